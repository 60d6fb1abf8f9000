// Looks into data files, and writes into them as the program does.
#pragma once

#include "store/Workspace.h"
#include "text/BookTable.h"

#include <QStringList>
#include <QVariant>

// The rows of a table, in its own order, field by field.
QList<QVariantList> rowsOf(const QString& path, const QString& table);

// A field of the row of a verse; fails the test where there is no such row.
QVariant verseField(const QString& path, const VerseAddress& address, const QString& field);

// Writes the note of a verse.
void setNote(const QString& path, const VerseAddress& address, const QString& note);

// All that lies in a folder, hidden files too.
QStringList filesIn(const QString& folder);
