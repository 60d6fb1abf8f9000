#include "jet/JetConversion.h"

#include "basic/Error.h"
#include "jet/ConversionLock.h"
#include "jet/FileSteps.h"
#include "jet/JetCopy.h"
#include "jet/JetKind.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

constexpr int Attempts = 2;
constexpr quint32 WriteProtected = 0444;

[[noreturn]] void failAsRestless(const QString& path) {
    throw Error(
        Error::StorageFailure,
        u"%1 is being changed by another program. Close that, and try again."_s.arg(path));
}

// Makes a data file of `source` that is to stand at `destination`, beside the destination.
class Conversion {
public:
    Conversion(QString source, const QString& destination, const JetConversionOptions& options)
        : m_source(std::move(source))
        , m_part(destination + u".lumenvia-new"_s)
        , m_options(options) {
        removeLeftovers(m_part);
    }
    ~Conversion() { removeLeftovers(m_part); }
    Q_DISABLE_COPY_MOVE(Conversion)

    // When it returns, the disk has the new file under the path of part().
    void run() {
        for (int attempt = 0; attempt < Attempts; ++attempt) {
            m_state = stateOfFile(m_source);
            if (writePart())
                return;
        }
        failAsRestless(m_source);
    }

    const QString& part() const { return m_part; }
    const FileState& sourceState() const { return m_state; }

    void checkSource() const {
        if (stateOfFile(m_source) != m_state)
            failAsRestless(m_source);
    }

    void tell(const char* step) const {
        if (m_options.onStep)
            m_options.onStep(step);
    }

private:
    // Whether the source stayed the same meanwhile. What looks like damage may be a change.
    bool writePart() const {
        try {
            JetFile file(m_source);
            DataFileWriter writer(m_part);
            tell("begun");
            copyJetTables(file, writer);
            tell("copied");
            writer.finish();
            tell("written");
        } catch (const Error&) {
            if (stateOfFile(m_source) == m_state)
                throw;
        }
        return stateOfFile(m_source) == m_state;
    }

    QString m_source;
    QString m_part;
    const JetConversionOptions& m_options;
    FileState m_state;
};

// A journal of an earlier file of this name would be taken for the new file's.
void removeJournals(const QString& path) {
    for (const QString& ending : {u"-journal"_s, u"-wal"_s})
        QFile::remove(path + ending);
}

void convertInPlace(const QString& path, const JetConversionOptions& options) {
    const ConversionLock lock(path, options.lockWaitSeconds);
    if (kindOfFile(path) == FileKind::Ours) // another converter was here first
        return;
    Conversion conversion(path, path, options);
    conversion.tell("locked");
    conversion.run();
    setPermissions(conversion.part(), conversion.sourceState().permissions);
    conversion.tell("ready");
    keepOriginal(path);
    conversion.tell("kept");
    conversion.checkSource();
    removeJournals(path);
    moveOver(conversion.part(), path);
    conversion.tell("replaced");
}

QString hashed(const QByteArray& data) {
    const QByteArray hash = QCryptographicHash::hash(data, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().left(16));
}

QString cacheFolder(const JetConversionOptions& options) {
    if (!options.cacheFolder.isEmpty())
        return options.cacheFolder;
    return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation)
           + u"/lumenvia/converted"_s;
}

// The file's place and its state make the name: a changed file is converted anew.
class CachedCopy {
public:
    CachedCopy(const QString& source, QString folder)
        : m_folder(std::move(folder))
        , m_ofSource(hashed(source.toUtf8()) + u'-') {
        const FileState state = stateOfFile(source);
        const QByteArray version =
            QByteArray::number(state.size) + ' ' + QByteArray::number(state.modified);
        m_name = m_ofSource + hashed(version) + u'-' + QFileInfo(source).fileName().right(100);
    }

    QString path() const { return m_folder + u'/' + m_name; }

    bool isThere() const {
        return QFileInfo::exists(path()) && kindOfFile(path()) == FileKind::Ours;
    }

    // Those of earlier states of the source. A program that has one open keeps it.
    void removeOthers() const {
        const QStringList names = QDir(m_folder).entryList({m_ofSource + u'*'}, QDir::Files);
        for (const QString& name : names) {
            if (!name.startsWith(m_name))
                QFile::remove(m_folder + u'/' + name);
        }
    }

private:
    QString m_folder;
    QString m_ofSource;
    QString m_name;
};

QString convertIntoCache(const QString& path, const JetConversionOptions& options) {
    const QString folder = cacheFolder(options);
    if (!QDir().mkpath(folder))
        throw Error(
            Error::StorageFailure,
            u"%1 cannot be converted: neither its folder nor %2 can be written."_s.arg(
                path, folder));
    const CachedCopy copy(path, folder);
    const ConversionLock lock(copy.path(), options.lockWaitSeconds);
    if (!copy.isThere()) {
        Conversion conversion(path, copy.path(), options);
        conversion.tell("locked");
        conversion.run();
        setPermissions(conversion.part(), WriteProtected);
        conversion.tell("ready");
        moveOver(conversion.part(), copy.path());
        conversion.tell("replaced");
        copy.removeOthers();
    }
    return copy.path();
}

} // namespace

QString convertJetFile(const QString& path, const JetConversionOptions& options) {
    const FileKind kind = kindOfFile(path);
    if (kind == FileKind::Ours)
        return path;
    if (kind == FileKind::Other)
        throw Error(
            Error::NotADatabase,
            u"%1 is neither a Jet database nor a data file of Lumenvia."_s.arg(path));
    const QString file = QFileInfo(path).canonicalFilePath(); // a link to it stays a link
    try {
        convertInPlace(file, options);
        return path;
    } catch (const Error& error) {
        if (error.number() != Error::PathAccess)
            throw;
    }
    return convertIntoCache(file, options);
}
