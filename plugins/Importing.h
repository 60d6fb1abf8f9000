// Makes a translation of the catalogue out of a user's own text.
#pragma once

#include "Console.h"

struct ImportOrder {
    QString source; // the text: a file or a folder
    QString file;   // of the translation, as the catalogue names it: "DARBY.mdb"
    QString folder; // of the data files, as the program writes paths; made if missing
};

// Whether the file is there in the end; if not, `console` tells why, and a file that was there is
// as it was. Notes of such a file are carried over, and those of the source are added.
bool importText(const ImportOrder& order, Console& console);
