// The tables that the measurements run on: the King James Bible as a user gets it, and one that
// holds it ten times. Made once per run.
#pragma once

#include "store/Workspace.h"

#include <benchmark/benchmark.h>
#include <string>
#include <vector>

// The file that holds so many Bibles, 1 or 10.
QString benchFile(int bibles);

// An open cursor on it, by verse order or by row order.
Recordset openByVerse(int bibles);
Recordset openDynaset(int bibles);

// Every verse text of the table in row order, one behind the other.
const std::string& allTexts(int bibles);

// The keys of rows here and there in the table.
struct VerseKey {
    int book;
    int chapter;
    int verse;
};
const std::vector<VerseKey>& scatteredKeys(int bibles);

// Measures with both tables; what counts is the median of many short runs.
void withBothTables(benchmark::internal::Benchmark* benchmark);
int biblesOf(const benchmark::State& state);
