// Looks over a data file: says what it holds and what is wrong with it. Nothing is written.
#pragma once

#include "Console.h"

// Whether nothing is wrong. `path` is the program's or the host's.
bool checkDataFile(const QString& path, Console& console);
