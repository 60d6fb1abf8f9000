#include "plugins/works/SmallDictionary.h"

#include <QDir>
#include <QFile>
#include <QtEndian>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype EntriesInABlock = 2;
constexpr qsizetype QtLengthSize = 4; // what the toolkit puts in front of packed bytes

QByteArray number(qsizetype value) {
    QByteArray bytes(4, '\0');
    qToLittleEndian(quint32(value), bytes.data());
    return bytes;
}

void write(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// The number of its entries, the place of each, the entries.
QByteArray blockOf(const QList<QByteArray>& texts) {
    qsizetype offset = 4 + 8 * texts.size();
    QByteArray head = number(texts.size());
    for (const QByteArray& text : texts) {
        head += number(offset) + number(text.size() + 1);
        offset += text.size() + 1;
    }
    return head + texts.join('\0') + '\0';
}

} // namespace

void SmallDictionary::writeTo(const QString& folder) const {
    ASSERT_TRUE(
        QDir().mkpath(folder + u"/modules/"_s + name) && QDir().mkpath(folder + u"/mods.d"_s));
    write(
        folder + u"/mods.d/"_s + name.toLower() + u".conf"_s,
        "[" + name.toUtf8() + "]\nDataPath=./modules/" + name.toUtf8() + "/dict\nModDrv=" + driver
            + "\nCompressType=ZIP\nSourceType=TEI\nDescription=A small dictionary\nVersion=3.1\n"
              "DistributionLicense=Public Domain\n");
    auto sorted = entries;
    std::ranges::stable_sort(sorted, std::ranges::less(), &decltype(sorted)::value_type::first);
    QByteArray places, keys, blockPlaces, blocks;
    QList<QByteArray> texts;
    for (const auto& [key, text] : sorted) {
        const QByteArray record =
            key + "\r\n" + number(blockPlaces.size() / 8) + number(texts.size());
        places += number(keys.size()) + number(record.size());
        keys += record + "\r\n";
        texts.append(text);
        if (texts.size() < EntriesInABlock && key != sorted.back().first)
            continue;
        const QByteArray packed = qCompress(blockOf(texts)).sliced(QtLengthSize);
        blockPlaces += number(blocks.size()) + number(packed.size());
        blocks += packed;
        texts.clear();
    }
    write(file(folder, u"idx"_s), places);
    write(file(folder, u"dat"_s), keys);
    write(file(folder, u"zdx"_s), blockPlaces);
    write(file(folder, u"zdt"_s), blocks);
}

QString SmallDictionary::file(const QString& folder, const QString& ending) const {
    return folder + u"/modules/"_s + name + u"/dict."_s + ending;
}
