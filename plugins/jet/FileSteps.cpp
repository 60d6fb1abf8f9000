#include "jet/FileSteps.h"

#include "basic/Error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 NanosecondsPerSecond = 1000000000;

QByteArray systemName(const QString& path) {
    return QFile::encodeName(path);
}

void sync(const QString& path) {
    const int descriptor = open(systemName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    fsync(descriptor);
    close(descriptor);
}

void syncFolderOf(const QString& path) {
    sync(QFileInfo(path).absolutePath());
}

bool isNoLinkHere(int error) {
    return error == EPERM || error == EACCES || error == EMLINK || error == ENOTSUP
           || error == ENOSYS || error == EXDEV;
}

// Under a name of its own until it is whole.
void copyWhole(const QString& from, const QString& to) {
    const QString part = from + u".lumenvia-new.copy"_s;
    QFile::remove(part);
    QFile source(from);
    if (!source.copy(part)) {
        QFile::remove(part);
        throw Error(
            Error::StorageFailure,
            u"The original of %1 could not be kept: %2"_s.arg(from, source.errorString()));
    }
    sync(part);
    moveOver(part, to);
}

// Whether the name was free, or stood for this file already, and does so now.
bool keepAs(const QString& path, const QString& name) {
    if (link(systemName(path).constData(), systemName(name).constData()) == 0)
        return true;
    const int error = errno;
    if (QFileInfo::exists(name)) {
        const FileState here = stateOfFile(path);
        const FileState there = stateOfFile(name);
        return here.device == there.device && here.inode == there.inode;
    }
    errno = error;
    if (!isNoLinkHere(error))
        throwSystemError(u"The original of %1"_s, path);
    copyWhole(path, name);
    return true;
}

} // namespace

void throwSystemError(const QString& what, const QString& path) {
    const int error = errno;
    const bool isForbidden = error == EACCES || error == EPERM || error == EROFS;
    const QString subject = what.arg(path);
    if (error == ENOSPC || error == EDQUOT)
        throw Error(
            Error::StorageFailure, u"%1 could not be written: the disk is full."_s.arg(subject));
    throw Error(
        isForbidden ? Error::PathAccess : Error::StorageFailure,
        u"%1 could not be written: %2"_s.arg(subject, QString::fromLocal8Bit(strerror(error))));
}

FileState stateOfFile(const QString& path) {
    struct stat status {};
    if (stat(systemName(path).constData(), &status) != 0)
        throw Error(Error::FileNotFound, u"The file %1 does not exist."_s.arg(path));
    return {
        status.st_dev,
        status.st_ino,
        status.st_size,
        status.st_mtim.tv_sec * NanosecondsPerSecond + status.st_mtim.tv_nsec,
        status.st_mode & 07777,
    };
}

QString keepOriginal(const QString& path) {
    for (int number = 1;; ++number) {
        QString name = path + (number == 1 ? u".jet"_s : u".%1.jet"_s.arg(QString::number(number)));
        if (keepAs(path, name)) {
            syncFolderOf(path);
            return name;
        }
    }
}

void moveOver(const QString& from, const QString& to) {
    if (rename(systemName(from).constData(), systemName(to).constData()) != 0)
        throwSystemError(u"The file %1"_s, to);
    syncFolderOf(to);
}

void setPermissions(const QString& path, quint32 permissions) {
    if (chmod(systemName(path).constData(), permissions) != 0)
        throwSystemError(u"The file %1"_s, path);
}

void removeLeftovers(const QString& pathPrefix) {
    const QFileInfo info(pathPrefix);
    const QDir folder = info.dir();
    const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (const QString& name : names) {
        if (name.startsWith(info.fileName()))
            QFile::remove(folder.filePath(name));
    }
}
