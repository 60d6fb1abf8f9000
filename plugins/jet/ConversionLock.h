// Keeps converters of one file apart.
#pragma once

#include <QString>

// Held as long as it lives, by a lock file beside `path`. The system frees the lock when its holder
// dies; the lock file that is then left hinders nobody.
class ConversionLock {
public:
    // Waits. Error::PathAccess where the folder cannot be written; StorageFailure for every other
    // failure and when another converter holds the lock for too long.
    ConversionLock(const QString& path, int waitSeconds);
    ~ConversionLock();
    Q_DISABLE_COPY_MOVE(ConversionLock)

private:
    bool tryToLock();
    bool holdsTheFile() const;

    QByteArray m_lockFile;
    int m_descriptor = -1;
};
