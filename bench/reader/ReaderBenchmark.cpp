// The page of Psalm 119 in the real King James Bible: composed, and brought into its window. Beside
// it the making of that Bible.
#include "controls/Forms.h"
#include "core/GlobalCode.h"
#include "core/NewSetup.h"
#include "core/Settings.h"
#include "desktop/QtDesktop.h"
#include "reader/PageComposer.h"
#include "reader/frmMain.h"
#include "settings/SettingsStore.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

// Calls the maker of data files; `what` are its works and options.
bool makeBibles(const QString& folder, const QStringList& what) {
    const QStringList arguments = QStringList{u"make"_s, u"--to"_s, folder} + what;
    return QProcess::execute(QStringLiteral(LUMENVIA_MAKER), arguments) == 0;
}

void seekPsalm() {
    rsBible.Seek(u"="_s, 19, 119, 1);
}

// Reading the same rows without making a page of them: what the store alone takes.
void readPsalm(benchmark::State& state) {
    for (auto _ : state) {
        seekPsalm();
        qsizetype length = 0;
        for (int verse = 0; verse < 176; ++verse) {
            length += rsBible.Fields(4).Value().toString().size();
            rsBible.MoveNext();
        }
        benchmark::DoNotOptimize(length);
    }
}

void composePsalm(benchmark::State& state) {
    for (auto _ : state) {
        seekPsalm();
        benchmark::DoNotOptimize(composePage(true));
    }
}

// From the position of the cursor to the painted page, note and title.
void showPsalm(benchmark::State& state) {
    frmMain& window = form<frmMain>();
    for (auto _ : state) {
        seekPsalm();
        window.UpDateBibleText(true);
        window.repaint();
        QApplication::processEvents();
    }
}

void showChapter(benchmark::State& state) {
    frmMain& window = form<frmMain>();
    for (auto _ : state) {
        rsBible.Seek(u"="_s, 40, 5, 1);
        window.UpDateBibleText(true);
        window.repaint();
        QApplication::processEvents();
    }
}

void makeKjv(benchmark::State& state) {
    const QTemporaryDir folder;
    for (auto _ : state) {
        if (!makeBibles(folder.path(), {u"kjv"_s, u"--force"_s}))
            state.SkipWithError("the King James Bible cannot be made");
    }
}

BENCHMARK(readPsalm)->Unit(benchmark::kMillisecond)->Repetitions(15)->ReportAggregatesOnly();
BENCHMARK(composePsalm)->Unit(benchmark::kMillisecond)->Repetitions(15)->ReportAggregatesOnly();
BENCHMARK(showPsalm)->Unit(benchmark::kMillisecond)->Repetitions(15)->ReportAggregatesOnly();
BENCHMARK(showChapter)->Unit(benchmark::kMillisecond)->Repetitions(15)->ReportAggregatesOnly();
BENCHMARK(makeKjv)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(7)
    ->ReportAggregatesOnly();

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir home;
    qputenv("LUMENVIA_HOME", home.path().toLocal8Bit());
    setSettingsFolder(home.path());
    if (!makeBibles(home.path(), {u"kjv"_s, u"spanish"_s}))
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
