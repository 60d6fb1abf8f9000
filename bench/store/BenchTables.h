// The tables that the measurements run on: a translation of the usual size, and one ten times as
// large, of random words with the lengths and letters of English. Made once per run.
//
// LUMENVIA_BENCH_KJV may name a translation; it then takes the place of the smaller table.
#pragma once

#include "store/Workspace.h"

#include <string>
#include <vector>

inline constexpr int BibleRows = 31102;
inline constexpr int LargeRows = 10 * BibleRows;

// The file with a table of so many rows.
QString benchFile(int rows);

// An open cursor on it, by verse order or by row order.
Recordset openByVerse(int rows);
Recordset openDynaset(int rows);

// Every verse text of the table in row order, one behind the other.
const std::string& allTexts(int rows);

// The keys of rows here and there in the table.
struct VerseKey {
    int book;
    int chapter;
    int verse;
};
const std::vector<VerseKey>& scatteredKeys(int rows);
