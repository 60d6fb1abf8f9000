#include "jet/ConversionLock.h"

#include "basic/Error.h"
#include "jet/FileSteps.h"

#include <QDeadlineTimer>
#include <QFile>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr useconds_t BetweenTries = 20000;

}

ConversionLock::ConversionLock(const QString& path, int waitSeconds)
    : m_lockFile(QFile::encodeName(path + u".converting"_s)) {
    const QDeadlineTimer deadline(qint64(waitSeconds) * 1000);
    while (!tryToLock()) {
        if (deadline.hasExpired())
            throw Error(
                Error::StorageFailure,
                u"%1 is being converted by another program. Try again in a moment."_s.arg(path));
        usleep(BetweenTries);
    }
}

ConversionLock::~ConversionLock() {
    unlink(m_lockFile.constData()); // while it is held: see holdsTheFile
    close(m_descriptor);
}

bool ConversionLock::tryToLock() {
    m_descriptor = open(m_lockFile.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (m_descriptor < 0)
        throwSystemError(u"The conversion of %1"_s, QFile::decodeName(m_lockFile).chopped(11));
    const bool isLocked = flock(m_descriptor, LOCK_EX | LOCK_NB) == 0;
    const int error = isLocked ? 0 : errno;
    if (isLocked && holdsTheFile())
        return true;
    close(m_descriptor);
    errno = error;
    if (!isLocked && error != EWOULDBLOCK && error != EINTR) // no locks on this file system
        throwSystemError(u"The conversion of %1"_s, QFile::decodeName(m_lockFile).chopped(11));
    return false;
}

// Whoever held the lock before may have removed its file since it was opened here.
bool ConversionLock::holdsTheFile() const {
    struct stat held {};
    struct stat named {};
    return fstat(m_descriptor, &held) == 0 && stat(m_lockFile.constData(), &named) == 0
           && held.st_dev == named.st_dev && held.st_ino == named.st_ino;
}
