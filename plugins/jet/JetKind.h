// What a file is, by its content.
#pragma once

#include <QString>

enum class FileKind {
    Jet,   // a Jet or ACE database
    Ours,  // a data file of the store
    Other, // anything else, an empty file too
};

// Error::FileNotFound, or PathAccess for a file that cannot be read.
FileKind kindOfFile(const QString& path);
