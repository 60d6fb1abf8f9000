// The steps of the file system by which one file takes the place of another without a moment in
// which either could be lost.
#pragma once

#include <QString>

// What tells that a file is the same as before, or was changed meanwhile.
struct FileState {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modified = 0; // nanoseconds
    quint32 permissions = 0;

    bool operator==(const FileState&) const = default;
};

FileState stateOfFile(const QString& path);

// Keeps the file's content under its name with `.jet`, `.2.jet` ... behind it, whichever is free or
// is that very file already. By a second name for the same file, or by a copy where the file system
// has no such names. The path of the kept file.
QString keepOriginal(const QString& path);

// Renames over what is there. When it returns, the disk knows.
void moveOver(const QString& from, const QString& to);

void setPermissions(const QString& path, quint32 permissions);

// Removes what starts with this path.
void removeLeftovers(const QString& pathPrefix);

// All of the above throw such an Error, by the system's last error: PathAccess where there is no
// permission to write, otherwise StorageFailure. `what` holds the sentence's subject, with %1 for
// the path.
[[noreturn]] void throwSystemError(const QString& what, const QString& path);
