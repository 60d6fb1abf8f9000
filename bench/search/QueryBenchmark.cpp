// A query from its OK to the painted page, and the index of a hundred hits beside its progress
// window, on the real King James Bible. Beside them a case-blind scan of the same verses in memory.
#include "../PlainScan.h"
#include "controls/Forms.h"
#include "core/GlobalCode.h"
#include "core/NewSetup.h"
#include "core/Settings.h"
#include "desktop/QtDesktop.h"
#include "reader/frmMain.h"
#include "search/frmIndex.h"
#include "search/frmQuery.h"
#include "settings/SettingsStore.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

const std::vector<std::string>& allVerses() {
    static const std::vector<std::string> verses = [] {
        std::vector<std::string> texts;
        Recordset rows = dbBible.OpenRecordset(u"tblMain"_s, dbOpenDynaset);
        for (; !rows.Eof(); rows.MoveNext())
            texts.push_back(rows.Fields(4).Value().toString().toStdString());
        return texts;
    }();
    return verses;
}

void scanForBoth(benchmark::State& state, const QString& first, const QString& second) {
    const PlainScan one(first.toStdString());
    const PlainScan two(second.toStdString());
    const std::vector<std::string>& verses = allVerses();
    for (auto _ : state) {
        int count = 0;
        for (const std::string& verse : verses)
            count += one.isIn(verse) && two.isIn(verse) ? 1 : 0;
        benchmark::DoNotOptimize(count);
    }
}

void paint(QWidget& window) {
    window.repaint();
    QApplication::processEvents();
}

void openQuery(const QString& first, const QString& second, bool whole = false) {
    frmQuery& window = form<frmQuery>();
    window.Show();
    window.txtQuery(0).setText(first);
    window.txtQuery(1).setText(second);
    window.optAndOr(second.isEmpty() ? 1 : 0).setValue(true);
    window.chkMatchCase.setValue(whole);
    paint(window);
}

void endQuery() {
    form<frmMain>().cmdMain(6).setValue(true);
    paint(form<frmMain>());
}

void query(benchmark::State& state, const QString& first, const QString& second, bool whole) {
    for (auto _ : state) {
        state.PauseTiming();
        openQuery(first, second, whole);
        state.ResumeTiming();
        form<frmQuery>().cmdQuery(0).setValue(true);
        paint(form<frmMain>());
        state.PauseTiming();
        endQuery();
        state.ResumeTiming();
    }
}

void indexOfAHundred(benchmark::State& state) {
    NumIndexItems = 100;
    VersesPerPage = 40;
    openQuery(u"grace"_s, {});
    form<frmQuery>().cmdQuery(0).setValue(true);
    int lines = 0;
    for (auto _ : state) {
        state.PauseTiming();
        rsBible.MoveFirst();
        state.ResumeTiming();
        form<frmIndex>().Show();
        paint(form<frmIndex>());
        state.PauseTiming();
        lines = form<frmIndex>().lstIndex.ListCount();
        form<frmIndex>().Unload();
        QApplication::processEvents();
        state.ResumeTiming();
    }
    if (lines != 99)
        state.SkipWithError("the index has not the lines it should have");
    endQuery();
}

BENCHMARK_CAPTURE(scanForBoth, lordAnd, u"lord"_s, u"and"_s)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(15)
    ->ReportAggregatesOnly();
BENCHMARK_CAPTURE(query, lordAnd, u"lord"_s, u"and"_s, false)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(15)
    ->ReportAggregatesOnly();
BENCHMARK_CAPTURE(query, andThe, u"and"_s, u"the"_s, false)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(15)
    ->ReportAggregatesOnly();
BENCHMARK_CAPTURE(query, lordAndWholeWords, u"lord"_s, u"and"_s, true)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(15)
    ->ReportAggregatesOnly();
BENCHMARK_CAPTURE(query, rareAndThe, u"melchizedek"_s, u"the"_s, false)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(15)
    ->ReportAggregatesOnly();
BENCHMARK(indexOfAHundred)->Unit(benchmark::kMillisecond)->Repetitions(15)->ReportAggregatesOnly();

bool makeBible(const QString& folder) {
    return QProcess::execute(
               QStringLiteral(LUMENVIA_MAKER), QStringList{u"make"_s, u"kjv"_s, u"--to"_s, folder})
           == 0;
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir home;
    qputenv("LUMENVIA_HOME", home.path().toLocal8Bit());
    setSettingsFolder(home.path());
    if (!makeBible(home.path()))
        return 1;
    QtDesktop realDesktop;
    setDesktop(&realDesktop);
    resetSettings();
    Main();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    forms::discardAll();
    return 0;
}
