// Opens a user's own text, whatever its format.
#pragma once

#include "readers/VerseSource.h"

#include <memory>

// The verses of a file or folder (a path of the host), read by what its content shows it to be.
// Error with what is wrong: FileNotFound; NotADatabase for a file that is empty, an archive, or of
// a format that no reader knows.
std::unique_ptr<VerseSource> openVerseSource(const QString& path);

// Whether the file looks like one of those that a text with a file for each book is made of.
bool isBookFile(const QString& path);
