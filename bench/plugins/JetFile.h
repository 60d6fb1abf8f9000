// A Bible as a Jet database, written from a data file.
#pragma once

#include <QString>

// Jet 4, with the table tblMain.
void writeJet(const QString& dataFile, const QString& path);
