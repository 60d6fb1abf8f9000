#include "readers/ModuleFiles.h"

#include "basic/Error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <array>
#include <optional>
#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 LongestDescription = 1 << 20;
constexpr quint32 LongestEntry = 1 << 20;
constexpr quint32 LargestBlock = 64 << 20;
constexpr int BlockSize = 12; // start, length, length when unpacked

// A driver of texts: how its index is written.
struct Driver {
    QLatin1String name;
    bool isCompressed;
    int sizeBytes; // of an entry's length in the index

    // Of an entry in the index: the place of the text, which takes two numbers in a block.
    int entrySize() const { return (isCompressed ? 8 : 4) + sizeBytes; }
};

constexpr std::array Drivers{
    Driver{"RawText"_L1, false, 2},
    Driver{"RawText4"_L1, false, 4},
    Driver{"zText"_L1, true, 2},
    Driver{"zText4"_L1, true, 4},
};

const Driver* findDriver(const QString& name) {
    for (const Driver& driver : Drivers) {
        if (name.compare(driver.name, Qt::CaseInsensitive) == 0)
            return &driver;
    }
    return nullptr;
}

QByteArray contentOf(const QString& path) {
    QFile file(path);
    const bool isOpen = QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly);
    return isOpen ? file.readAll() : QByteArray();
}

quint32 numberAt(const QByteArray& bytes, qsizetype at) {
    return qFromLittleEndian<quint32>(bytes.constData() + at);
}

// An entry of an index: where the text starts, behind it its length.
quint32 lengthAt(const QByteArray& bytes, qsizetype at, int sizeBytes) {
    return sizeBytes == 4 ? numberAt(bytes, at)
                          : qFromLittleEndian<quint16>(bytes.constData() + at);
}

// Whether each entry lies within the text.
bool fitsRaw(const QByteArray& index, qint64 textSize, int sizeBytes) {
    const int entrySize = 4 + sizeBytes;
    for (qsizetype at = 0; at + entrySize <= index.size(); at += entrySize) {
        const quint32 length = lengthAt(index, at + 4, sizeBytes);
        if (length > 0
            && (length > LongestEntry || numberAt(index, at) + qint64(length) > textSize))
            return false;
    }
    return index.size() % entrySize == 0;
}

// Whether the bytes of a block unpack to what its entry says. The library trusts them to, and reads
// beyond the end of what it has otherwise.
bool unpacks(const QByteArray& packed, quint32 size) {
    QByteArray block(size, Qt::Uninitialized);
    uLongf room = size;
    const int outcome = uncompress(
        reinterpret_cast<Bytef*>(block.data()), &room,
        reinterpret_cast<const Bytef*>(packed.constData()), uLong(packed.size()));
    return outcome == Z_OK && room == size;
}

// Whether each block lies within the text and, where it is zipped, is whole.
bool holdsBlocks(const QByteArray& blocks, const QString& textPath, bool isZipped) {
    QFile text(textPath);
    if (!text.open(QIODevice::ReadOnly))
        return blocks.isEmpty();
    for (qsizetype at = 0; at + BlockSize <= blocks.size(); at += BlockSize) {
        const quint32 start = numberAt(blocks, at);
        const quint32 length = numberAt(blocks, at + 4);
        const quint32 unpackedLength = numberAt(blocks, at + 8);
        if (start + qint64(length) > text.size() || unpackedLength > LargestBlock)
            return false;
        if (isZipped && unpackedLength > 0
            && (!text.seek(start) || !unpacks(text.read(length), unpackedLength)))
            return false;
    }
    return blocks.size() % BlockSize == 0;
}

// Whether each entry lies within its block.
bool fitsBlocks(const QByteArray& index, const QByteArray& blocks, int sizeBytes) {
    const int entrySize = 8 + sizeBytes;
    for (qsizetype at = 0; at + entrySize <= index.size(); at += entrySize) {
        const quint32 length = lengthAt(index, at + 8, sizeBytes);
        const qint64 block = qint64(numberAt(index, at)) * BlockSize;
        if (length == 0)
            continue;
        if (length > LongestEntry || block + BlockSize > blocks.size()
            || numberAt(index, at + 4) + qint64(length) > numberAt(blocks, block + 8))
            return false;
    }
    return index.size() % entrySize == 0;
}

// The files of one testament.
struct TestamentFiles {
    QString index;
    QString text;
    QString blocks; // where the text is compressed
};

qint64 sizeOf(const QString& path) {
    const QFileInfo info(path);
    return info.isFile() ? info.size() : 0;
}

// Nothing where the module has neither an index nor a text of the testament. A whole text behind an
// index of nothing was cut off.
std::optional<TestamentFiles> filesOf(const QString& path, const Driver& driver) {
    QList<TestamentFiles> candidates;
    if (!driver.isCompressed)
        candidates.append({path + u".vss"_s, path, {}});
    else
        for (const QLatin1String unit :
             {"b"_L1, "c"_L1, "v"_L1}) { // a block a book, chapter, verse
            const QString prefix = path + u'.' + unit;
            candidates.append({prefix + u"zv"_s, prefix + u"zz"_s, prefix + u"zs"_s});
        }
    for (const TestamentFiles& files : candidates) {
        if (sizeOf(files.index) > 0 || sizeOf(files.text) > 0)
            return files;
    }
    return std::nullopt;
}

bool fits(const TestamentFiles& files, const Driver& driver, bool isZipped) {
    const QByteArray index = contentOf(files.index);
    if (!driver.isCompressed)
        return fitsRaw(index, sizeOf(files.text), driver.sizeBytes);
    const QByteArray blocks = contentOf(files.blocks);
    return fitsBlocks(index, blocks, driver.sizeBytes) && holdsBlocks(blocks, files.text, isZipped);
}

void checkLength(const TestamentFiles& files, const Driver& driver, qint64 places) {
    const qint64 entries = sizeOf(files.index) / driver.entrySize();
    if (entries < places)
        throw Error(
            Error::NotADatabase,
            u"The file %1 is cut off: it has %2 entries; the verses of the module need %3."_s.arg(
                files.index, QString::number(entries), QString::number(places)));
}

ModuleEntry readDescription(const QString& folder, const QString& path) {
    ModuleEntry module;
    module.description = path;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return module;
    for (const QByteArray& bytes : file.read(LongestDescription).split('\n')) {
        const QString line = QString::fromUtf8(bytes).trimmed();
        const QString key = line.section(u'=', 0, 0).trimmed();
        const QString value = line.section(u'=', 1).trimmed();
        if (line.startsWith(u'[') && line.endsWith(u']') && module.name.isEmpty())
            module.name = line.sliced(1, line.size() - 2);
        else if (key.compare("ModDrv"_L1, Qt::CaseInsensitive) == 0)
            module.driver = value;
        else if (key.compare("DataPath"_L1, Qt::CaseInsensitive) == 0)
            module.dataFolder = QDir::cleanPath(folder + u'/' + value);
        else if (key.compare("CompressType"_L1, Qt::CaseInsensitive) == 0)
            module.isZipped = value.compare("ZIP"_L1, Qt::CaseInsensitive) == 0;
        else if (key.compare("CipherKey"_L1, Qt::CaseInsensitive) == 0) {
            module.isLocked = value.isEmpty();
            module.isCiphered = true;
        }
    }
    return module;
}

} // namespace

bool ModuleEntry::isText() const {
    return findDriver(driver);
}

std::vector<ModuleEntry> modulesIn(const QString& folder) {
    std::vector<ModuleEntry> modules;
    const QDir descriptions(folder + u"/mods.d"_s, u"*.conf"_s, QDir::Name, QDir::Files);
    for (const QString& name : descriptions.entryList()) {
        ModuleEntry module = readDescription(folder, descriptions.filePath(name));
        if (!module.name.isEmpty() && !module.driver.isEmpty())
            modules.push_back(std::move(module));
    }
    return modules;
}

void checkModuleFiles(const ModuleEntry& module) {
    const Driver* driver = findDriver(module.driver);
    if (!driver)
        throw Error(
            Error::NotADatabase, u"The module %1 is no text of a Bible: its driver is %2."_s.arg(
                                     module.name, module.driver));
    if (module.isLocked)
        throw Error(
            Error::NotADatabase,
            u"The module %1 is locked, and its description has no key."_s.arg(module.name));
    bool isThere = false;
    for (const QString& testament : {u"/ot"_s, u"/nt"_s}) {
        const auto files = filesOf(module.dataFolder + testament, *driver);
        isThere = isThere || files;
        if (files && !fits(*files, *driver, module.isZipped && !module.isCiphered))
            throw Error(
                Error::NotADatabase,
                u"The files of the module %1 are damaged, or are not of the "
                u"driver %2 that %3 names."_s.arg(module.name, module.driver, module.description));
    }
    if (!isThere)
        throw Error(
            Error::NotADatabase,
            u"The folder %1 has no files of the driver %2 that %3 names."_s.arg(
                module.dataFolder, module.driver, module.description));
}

void checkModuleLength(const ModuleEntry& module, const ModulePlaces& places) {
    const Driver* driver = findDriver(module.driver);
    for (const auto& [testament, count] :
         {std::pair(u"/ot"_s, places.oldTestament), {u"/nt"_s, places.newTestament}}) {
        if (const auto files = filesOf(module.dataFolder + testament, *driver))
            checkLength(*files, *driver, count);
    }
}
