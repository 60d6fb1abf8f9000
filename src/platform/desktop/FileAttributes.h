// Files as the program sees them: whether one can be read, and its attributes. All paths are the
// program's.
#pragma once

#include <QString>

// Whether the file can be opened for input. Never fails; a folder is no file.
bool FileExists(const QString& name);

// 0, or 1 for a file that its owner may not write. Error::FileNotFound.
int GetAttr(const QString& name);

// Makes the file writable for its owner. Error::PathAccess with the file's name where the system
// does not allow it, as on a read-only medium.
void clearAttributes(const QString& name);
