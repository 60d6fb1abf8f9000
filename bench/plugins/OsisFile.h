// A Bible as an OSIS document, written from a data file.
#pragma once

#include <QString>

// Containers for books, chapters and verses; words in red as quotations of Jesus.
void writeOsis(const QString& dataFile, const QString& path);
