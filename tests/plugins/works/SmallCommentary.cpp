#include "plugins/works/SmallCommentary.h"

#include "readers/SwordLibrary.h"

#include <QDir>
#include <QFile>
#include <QtEndian>
#include <gtest/gtest.h>

#include <versekey.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype RecordSize = 10;  // block, place in it, length
constexpr qsizetype QtLengthSize = 4; // what the toolkit puts in front of packed bytes

sword::VerseKey keyOf(const QByteArray& place) {
    sword::VerseKey key;
    key.setIntros(true);
    key.setText(place.constData());
    return key;
}

QByteArray number(quint32 value) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// One testament: its index, and its texts in one block.
struct Testament {
    QByteArray index;
    QByteArray text;

    void add(long place, const QByteArray& entry) {
        const QByteArray length = number(quint32(entry.size())).first(2);
        const QByteArray record = number(0) + number(quint32(text.size())) + length;
        index.replace(place * RecordSize, RecordSize, record);
        text += entry;
    }

    void link(long place, long shared) {
        index.replace(place * RecordSize, RecordSize, index.mid(shared * RecordSize, RecordSize));
    }

    void writeTo(const QString& path) const {
        const QByteArray packed = qCompress(text).sliced(QtLengthSize);
        write(path + u".bzv"_s, index);
        write(path + u".bzz"_s, packed);
        write(
            path + u".bzs"_s,
            number(0) + number(quint32(packed.size())) + number(quint32(text.size())));
    }
};

Testament emptyTestament(const QByteArray& lastPlace) {
    return {QByteArray((keyOf(lastPlace).getTestamentIndex() + 1) * RecordSize, '\0'), {}};
}

} // namespace

void SmallCommentary::writeTo(const QString& folder) const {
    isolateSwordLibrary();
    ASSERT_TRUE(QDir().mkpath(folder + u"/modules/mhcc"_s) && QDir().mkpath(folder + u"/mods.d"_s));
    write(
        folder + u"/mods.d/mhcc.conf"_s,
        "[MHCC]\nDataPath=./modules/mhcc/\nModDrv=" + declaredDriver
            + "\nSourceType=OSIS\nBlockType=BOOK\nCompressType=ZIP\nDescription=A small "
              "commentary\nVersion=2.0\nDistributionLicense=Public Domain\n");
    Testament testaments[]{emptyTestament("Mal 4:6"), emptyTestament("Rev 22:21")};
    for (const auto& [place, text] : entries) {
        const sword::VerseKey key = keyOf(place);
        testaments[key.getTestament() - 1].add(key.getTestamentIndex(), text);
    }
    for (const auto& [place, origin] : links) {
        const sword::VerseKey key = keyOf(place);
        testaments[key.getTestament() - 1].link(
            key.getTestamentIndex(), keyOf(origin).getTestamentIndex());
    }
    testaments[0].writeTo(file(folder, u"ot"_s));
    testaments[1].writeTo(file(folder, u"nt"_s));
}

QString SmallCommentary::file(const QString& folder, const QString& name) {
    return folder + u"/modules/mhcc/"_s + name;
}
