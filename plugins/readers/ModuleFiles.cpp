#include "readers/ModuleFiles.h"

#include "basic/Error.h"

#include <QDir>
#include <QFile>
#include <QtEndian>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 LongestDescription = 1 << 20;
constexpr quint32 LongestEntry = 1 << 20;
constexpr quint32 LargestBlock = 64 << 20;

// A driver of texts: how its index is written.
struct Driver {
    QLatin1String name;
    bool isCompressed;
    int sizeBytes; // of an entry's length in the index
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
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

// Whether each entry lies within its block, and each block within the text.
bool fitsBlocks(const QByteArray& index, const QByteArray& blocks, qint64 textSize, int sizeBytes) {
    constexpr int BlockSize = 12; // start, length, length when unpacked
    const int entrySize = 8 + sizeBytes;
    for (qsizetype at = 0; at + BlockSize <= blocks.size(); at += BlockSize) {
        if (numberAt(blocks, at) + qint64(numberAt(blocks, at + 4)) > textSize
            || numberAt(blocks, at + 8) > LargestBlock)
            return false;
    }
    for (qsizetype at = 0; at + entrySize <= index.size(); at += entrySize) {
        const quint32 length = lengthAt(index, at + 8, sizeBytes);
        const qint64 block = qint64(numberAt(index, at)) * BlockSize;
        if (length == 0)
            continue;
        if (length > LongestEntry || block + BlockSize > blocks.size()
            || numberAt(index, at + 4) + qint64(length) > numberAt(blocks, block + 8))
            return false;
    }
    return index.size() % entrySize == 0 && blocks.size() % BlockSize == 0;
}

// The files of one testament; whether it is there and what it should be.
struct TestamentCheck {
    bool isThere = false;
    bool fits = true;
};

TestamentCheck checkTestament(const QString& path, const Driver& driver) {
    if (!driver.isCompressed) {
        const QByteArray index = contentOf(path + u".vss"_s);
        return {!index.isEmpty(), fitsRaw(index, QFile(path).size(), driver.sizeBytes)};
    }
    for (const QLatin1String unit : {"b"_L1, "c"_L1, "v"_L1}) { // a block a book, chapter, verse
        const QString prefix = path + u'.' + unit;
        const QByteArray index = contentOf(prefix + u"zv"_s);
        if (index.isEmpty())
            continue;
        return {
            true, fitsBlocks(
                      index, contentOf(prefix + u"zs"_s), QFile(prefix + u"zz"_s).size(),
                      driver.sizeBytes)};
    }
    return {};
}

ModuleEntry readDescription(const QString& folder, const QString& path) {
    ModuleEntry module{{}, path, {}, {}};
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
        else if (key.compare("CipherKey"_L1, Qt::CaseInsensitive) == 0)
            module.isLocked = value.isEmpty();
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
    const TestamentCheck old = checkTestament(module.dataFolder + u"/ot"_s, *driver);
    const TestamentCheck recent = checkTestament(module.dataFolder + u"/nt"_s, *driver);
    if (!old.isThere && !recent.isThere)
        throw Error(
            Error::NotADatabase,
            u"The folder %1 has no files of the driver %2 that %3 names."_s.arg(
                module.dataFolder, module.driver, module.description));
    if (!old.fits || !recent.fits)
        throw Error(
            Error::NotADatabase,
            u"The files of the module %1 are damaged, or are not of the driver %2 that %3 names."_s
                .arg(module.name, module.driver, module.description));
}
