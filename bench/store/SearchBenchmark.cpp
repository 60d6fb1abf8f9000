// Searching the whole table, beside a plain search of the same bytes in memory.
#include "../PlainScan.h"
#include "BenchTables.h"

#include "basic/Text.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

// Words that the tables do not hold: one with rare letters, one of common letters alone.
const QString RareWord = u"Melchizedek quav"_s;
const QString CommonWord = u"ethis arento the"_s;
const QString GreekWord = u"Λόγος"_s;
const QString OneLetter = u"ñ"_s;

constexpr int VersesOfABible = 31102;

void findWithoutHit(benchmark::State& state, const QString& word) {
    Recordset cursor = openDynaset(biblesOf(state));
    for (auto _ : state)
        cursor.FindFirst(u"Body like '*"_s + word + u"*'"_s);
    if (!cursor.NoMatch())
        state.SkipWithError("the word was found");
    state.SetBytesProcessed(
        state.iterations() * static_cast<int64_t>(allTexts(biblesOf(state)).size()));
}

// As the find bar does it: the file is opened for each search, and nothing of it is in the cache
// of the connection.
void openAndFindWithoutHit(benchmark::State& state) {
    for (auto _ : state)
        openDynaset(biblesOf(state)).FindFirst(u"Body like '*"_s + RareWord + u"*'"_s);
}

void yardstick(benchmark::State& state, const QString& word) {
    const std::string& text = allTexts(biblesOf(state));
    const PlainScan scan(word.toStdString());
    for (auto _ : state)
        benchmark::DoNotOptimize(scan.isIn(text));
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(text.size()));
}

void FindFirst_byNumber(benchmark::State& state) {
    Recordset cursor = openDynaset(biblesOf(state));
    int number = 1;
    for (auto _ : state) {
        cursor.FindFirst(u"ID = "_s + Str(number));
        number = number * 7919 % VersesOfABible + 1;
    }
}

void Select_oneWordOutOfMany(benchmark::State& state) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(benchFile(biblesOf(state)));
    for (auto _ : state)
        benchmark::DoNotOptimize(database.OpenRecordset(
            u"SELECT * FROM tblMain WHERE (((body like \"*the*\")) )"_s, dbOpenDynaset));
}

void searching(benchmark::internal::Benchmark* benchmark) {
    withBothTables(benchmark);
    benchmark->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK_CAPTURE(yardstick, plainScanInMemory_rareLetters, RareWord)->Apply(searching);
BENCHMARK_CAPTURE(findWithoutHit, rareLetters, RareWord)->Apply(searching);
BENCHMARK_CAPTURE(yardstick, plainScanInMemory_commonLetters, CommonWord)->Apply(searching);
BENCHMARK_CAPTURE(findWithoutHit, commonLetters, CommonWord)->Apply(searching);
BENCHMARK_CAPTURE(findWithoutHit, greekLetters, GreekWord)->Apply(searching);
BENCHMARK_CAPTURE(findWithoutHit, oneLetter, OneLetter)->Apply(searching);
BENCHMARK(openAndFindWithoutHit)->Apply(searching);
BENCHMARK(Select_oneWordOutOfMany)->Apply(searching);
BENCHMARK(FindFirst_byNumber)->Apply(withBothTables);
