#include "store/FileSwap.h"

#include "basic/Error.h"
#include "store/Connection.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>
#include <filesystem>
#include <sqlite3.h>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

std::filesystem::path systemPath(const QString& path) {
    return QFileInfo(path).filesystemFilePath();
}

// Where the system has a way to say so: the change of name reaches the disk.
void syncFolderOf([[maybe_unused]] const QString& path) {
#ifdef Q_OS_UNIX
    const int folder = open(QFile::encodeName(QFileInfo(path).absolutePath()), O_RDONLY);
    if (folder < 0)
        return;
    fsync(folder);
    close(folder);
#endif
}

// Far longer than a file is in the making without being written to.
constexpr int SecondsUntilLeftOver = 60 * 60;

// What programs left that were killed while they made the file. Younger ones may be in the making.
void removeLeftovers(const QString& destination) {
    const QFileInfo file(destination);
    static const QRegularExpression ending(u"^\\.new-[0-9a-f]{32}(-journal)?$"_s);
    const QDateTime limit = QDateTime::currentDateTime().addSecs(-SecondsUntilLeftOver);
    for (const QFileInfo& other : file.dir().entryInfoList(QDir::Files | QDir::Hidden)) {
        const QString name = other.fileName();
        if (name.startsWith(file.fileName())
            && ending.match(name.sliced(file.fileName().size())).hasMatch()
            && other.lastModified() < limit)
            QFile::remove(other.filePath());
    }
}

} // namespace

FileSwap::FileSwap(const QString& destination)
    : m_destination(destination)
    , m_path(destination + u".new-"_s + QUuid::createUuid().toString(QUuid::Id128)) {
    removeLeftovers(destination);
}

FileSwap::~FileSwap() {
    QFile::remove(m_path);
    QFile::remove(m_path + u"-journal"_s);
}

// The journal of a program that died while writing the old file would be taken for the new file's.
// The engine carries it out on the old file, and what is then left of it means nothing.
void FileSwap::settleJournal() const {
    const QString journal = m_destination + u"-journal"_s;
    if (!QFile::exists(journal))
        return;
    if (QFile::exists(m_destination)) {
        const Connection old(m_destination, Connection::Access::Write);
        const int code = old.tryExecute("BEGIN IMMEDIATE");
        if ((code & 0xff) == SQLITE_BUSY)
            old.fail(code);
    }
    QFile::remove(journal);
}

void FileSwap::putInPlace() {
    settleJournal();
    std::error_code error;
    std::filesystem::rename(systemPath(m_path), systemPath(m_destination), error);
    if (error)
        throw Error(
            Error::StorageFailure,
            u"The file %1 could not be put in its place: %2"_s.arg(
                shownPath(m_destination), QString::fromLocal8Bit(error.message().c_str())));
    syncFolderOf(m_destination);
}
