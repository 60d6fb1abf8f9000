#include "readers/CommentFiles.h"

#include "basic/Error.h"

#include <QDir>
#include <QFile>
#include <QtEndian>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype NumberSize = 4;
constexpr qsizetype ShortRecord = 10; // of an index: block, place in it, length
constexpr qsizetype LongRecord = 12;
constexpr qsizetype BlockRecord = 12; // place of a block, its length, its unpacked length

[[noreturn]] void refuse(const QString& path, const QString& reason) {
    throw Error(
        Error::NotADatabase, u"The file %1 %2 Install its package again."_s.arg(path, reason));
}

QByteArray readPart(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        refuse(path, u"cannot be read."_s);
    return file.readAll();
}

quint32 numberAt(const QByteArray& bytes, qsizetype offset) {
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

CommentLayout layoutOf(const QString& path, const QByteArray& index, qsizetype places) {
    if (index.size() == places * ShortRecord)
        return CommentLayout::ShortEntries;
    if (index.size() == places * LongRecord)
        return CommentLayout::LongEntries;
    refuse(path, u"is cut off or damaged: it has no index of the Bible's verses."_s);
}

// Whether each entry that has a length lies in a block that there is.
bool hasItsBlocks(const QByteArray& index, CommentLayout layout, qsizetype blockCount) {
    const qsizetype size = layout == CommentLayout::ShortEntries ? ShortRecord : LongRecord;
    for (qsizetype record = 0; record < index.size(); record += size) {
        const QByteArrayView length = QByteArrayView(index).sliced(record + 2 * NumberSize, 2);
        if (length != QByteArrayView("\0\0", 2) && numberAt(index, record) >= blockCount)
            return false;
    }
    return true;
}

// Whether each block lies in the file of that size.
bool fitsFile(const QByteArray& blocks, qint64 size) {
    for (qsizetype record = 0; record < blocks.size(); record += BlockRecord) {
        if (qint64(numberAt(blocks, record)) + numberAt(blocks, record + NumberSize) > size)
            return false;
    }
    return true;
}

} // namespace

CommentLayout
layoutOfComments(const QString& folder, QChar block, qsizetype oldPlaces, qsizetype newPlaces) {
    const auto file = [&](QLatin1StringView testament, QChar part) {
        return QDir(folder).filePath(u"%1.%2z%3"_s.arg(testament, block, part));
    };
    std::optional<CommentLayout> layout;
    for (const auto& [testament, places] : {std::pair("ot"_L1, oldPlaces), {"nt"_L1, newPlaces}}) {
        const QString indexPath = file(testament, u'v');
        const QString blocksPath = file(testament, u's');
        const QString textPath = file(testament, u'z');
        const QByteArray index = readPart(indexPath);
        const QByteArray blocks = readPart(blocksPath);
        const CommentLayout found = layoutOf(indexPath, index, places);
        if (layout && layout != found)
            refuse(indexPath, u"is not of the same layout as its neighbour."_s);
        layout = found;
        if (blocks.size() % BlockRecord != 0
            || !hasItsBlocks(index, found, blocks.size() / BlockRecord))
            refuse(blocksPath, u"is cut off."_s);
        if (!fitsFile(blocks, QFileInfo(textPath).size()))
            refuse(textPath, u"is missing or cut off."_s);
    }
    return *layout;
}
