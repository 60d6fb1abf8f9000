// Opening, seeking and stepping: each with both table sizes, since the cost must not depend on it.
#include "BenchTables.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

int rowsOf(const benchmark::State& state) {
    return static_cast<int>(state.range(0));
}

void Seek_scatteredVerses(benchmark::State& state) {
    Recordset cursor = openByVerse(rowsOf(state));
    const std::vector<VerseKey>& keys = scatteredKeys(rowsOf(state));
    size_t next = 0;
    for (auto _ : state) {
        const VerseKey& key = keys[next++ % keys.size()];
        cursor.Seek(u"="_s, key.book, key.chapter, key.verse);
    }
}

void MoveNext_throughTheTable(benchmark::State& state) {
    Recordset cursor = openByVerse(rowsOf(state));
    for (auto _ : state) {
        cursor.MoveNext();
        if (cursor.Eof())
            cursor.MoveFirst();
    }
}

void MovePrevious_throughTheTable(benchmark::State& state) {
    Recordset cursor = openByVerse(rowsOf(state));
    cursor.MoveLast();
    for (auto _ : state) {
        cursor.MovePrevious();
        if (cursor.Bof())
            cursor.MoveLast();
    }
}

// What a page is built of: a jump, then twenty rows with their fields read.
void SeekAndReadAPageOf20Rows(benchmark::State& state) {
    Recordset cursor = openByVerse(rowsOf(state));
    const std::vector<VerseKey>& keys = scatteredKeys(rowsOf(state));
    size_t next = 0;
    for (auto _ : state) {
        const VerseKey& key = keys[next++ % keys.size()];
        cursor.Seek(u"="_s, key.book, key.chapter, key.verse);
        for (int row = 0; row < 20 && !cursor.Eof(); ++row) {
            for (int field = 1; field <= 5; ++field)
                benchmark::DoNotOptimize(cursor.Fields(field).Value());
            cursor.MoveNext();
        }
    }
}

void OpenRecordset_byVerse(benchmark::State& state) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(benchFile(rowsOf(state)));
    for (auto _ : state) {
        Recordset cursor = database.OpenRecordset(u"tblMain"_s, dbOpenTable);
        cursor.Index(u"VerseIndex"_s);
        benchmark::DoNotOptimize(cursor);
    }
}

void OpenRecordset_dynaset(benchmark::State& state) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(benchFile(rowsOf(state)));
    for (auto _ : state)
        benchmark::DoNotOptimize(database.OpenRecordset(u"tblMain"_s, dbOpenDynaset));
}

void OpenDatabase_andClose(benchmark::State& state) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    for (auto _ : state)
        workspace.OpenDatabase(benchFile(rowsOf(state))).Close();
}

void bothSizes(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgName("rows")->Arg(BibleRows)->Arg(LargeRows);
}

} // namespace

BENCHMARK(Seek_scatteredVerses)->Apply(bothSizes);
BENCHMARK(MoveNext_throughTheTable)->Apply(bothSizes);
BENCHMARK(MovePrevious_throughTheTable)->Apply(bothSizes);
BENCHMARK(SeekAndReadAPageOf20Rows)->Apply(bothSizes);
BENCHMARK(OpenRecordset_byVerse)->Apply(bothSizes);
BENCHMARK(OpenRecordset_dynaset)->Apply(bothSizes);
BENCHMARK(OpenDatabase_andClose)->Apply(bothSizes);
