// Opening, seeking and stepping: each with both table sizes, since the cost must not depend on it.
#include "BenchTables.h"

using namespace Qt::StringLiterals;

namespace {

void Seek_scatteredVerses(benchmark::State& state) {
    Recordset cursor = openByVerse(biblesOf(state));
    const std::vector<VerseKey>& keys = scatteredKeys(biblesOf(state));
    size_t next = 0;
    for (auto _ : state) {
        const VerseKey& key = keys[next++ % keys.size()];
        cursor.Seek(u"="_s, key.book, key.chapter, key.verse);
    }
}

void MoveNext_throughTheTable(benchmark::State& state) {
    Recordset cursor = openByVerse(biblesOf(state));
    for (auto _ : state) {
        cursor.MoveNext();
        if (cursor.Eof())
            cursor.MoveFirst();
    }
}

void MovePrevious_throughTheTable(benchmark::State& state) {
    Recordset cursor = openByVerse(biblesOf(state));
    cursor.MoveLast();
    for (auto _ : state) {
        cursor.MovePrevious();
        if (cursor.Bof())
            cursor.MoveLast();
    }
}

// A jump and the first step away from it, when nothing was read ahead yet.
void SeekAndStep(benchmark::State& state, void (Recordset::*step)()) {
    Recordset cursor = openByVerse(biblesOf(state));
    const std::vector<VerseKey>& keys = scatteredKeys(biblesOf(state));
    size_t next = 0;
    for (auto _ : state) {
        const VerseKey& key = keys[next++ % keys.size()];
        cursor.Seek(u"="_s, key.book, key.chapter, key.verse);
        (cursor.*step)();
    }
}

// What a page is built of: a jump, then twenty rows with their fields read.
void SeekAndReadAPageOf20Rows(benchmark::State& state) {
    Recordset cursor = openByVerse(biblesOf(state));
    const std::vector<VerseKey>& keys = scatteredKeys(biblesOf(state));
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
    Database database = workspace.OpenDatabase(benchFile(biblesOf(state)));
    for (auto _ : state) {
        Recordset cursor = database.OpenRecordset(u"tblMain"_s, dbOpenTable);
        cursor.Index(u"VerseIndex"_s);
        benchmark::DoNotOptimize(cursor);
    }
}

void OpenRecordset_dynaset(benchmark::State& state) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    Database database = workspace.OpenDatabase(benchFile(biblesOf(state)));
    for (auto _ : state)
        benchmark::DoNotOptimize(database.OpenRecordset(u"tblMain"_s, dbOpenDynaset));
}

void OpenDatabase_andClose(benchmark::State& state) {
    Workspace workspace = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
    for (auto _ : state)
        workspace.OpenDatabase(benchFile(biblesOf(state))).Close();
}

} // namespace

BENCHMARK(Seek_scatteredVerses)->Apply(withBothTables);
BENCHMARK(MoveNext_throughTheTable)->Apply(withBothTables);
BENCHMARK(MovePrevious_throughTheTable)->Apply(withBothTables);
BENCHMARK_CAPTURE(SeekAndStep, MoveNext, &Recordset::MoveNext)->Apply(withBothTables);
BENCHMARK_CAPTURE(SeekAndStep, MovePrevious, &Recordset::MovePrevious)->Apply(withBothTables);
BENCHMARK(SeekAndReadAPageOf20Rows)->Apply(withBothTables);
BENCHMARK(OpenRecordset_byVerse)->Apply(withBothTables);
BENCHMARK(OpenRecordset_dynaset)->Apply(withBothTables);
BENCHMARK(OpenDatabase_andClose)->Apply(withBothTables);
