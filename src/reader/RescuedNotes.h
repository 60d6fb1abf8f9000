// The last resort for a note that cannot be written to its verse: its file is locked for long,
// read-only, gone or on a full disk.
#pragma once

#include "reader/VerseRow.h"

#include <QString>

// Writes a note to its row through a cursor of its own; whether it is stored.
bool storeNote(const VerseRow& row, const QString& note);

// Appends a note, with its verse and translation, to the text file "unsaved notes.txt" in the
// program's folder or, where that cannot be written, in the user's home folder.
void rescueNote(const VerseRow& row, const QString& note);
