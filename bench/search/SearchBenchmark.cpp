// The searches on the real King James Bible: a find step without a hit, a press of the find bar,
// and the marks on a page, beside a plain search of the same verses in memory.
#include "../PlainScan.h"
#include "basic/Error.h"
#include "controls/Forms.h"
#include "core/GlobalCode.h"
#include "core/NewSetup.h"
#include "core/Settings.h"
#include "desktop/Desktop.h"
#include "reader/frmMain.h"
#include "search/HitMarks.h"
#include "search/SearchCriteria.h"
#include "settings/SettingsStore.h"

#include <QApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

const QString Absent = u"Melchizedek quav"_s;
const QString AbsentOfCommonLetters = u"ethis arento the"_s;
const std::array<QString, 2> PsalmWords = {u"thy"_s, u"me"_s};

// Answers every box at once.
class QuietDesktop final : public Desktop {
public:
    Answer showMessage(const Message& /*message*/) override { return Answer::Ok; }
    void runModal(QWidget& /*window*/) override {}
    void openLink(const QString& /*link*/) override {}
    void runMenu(QMenu& /*menu*/, const QPoint& /*place*/) override {}
    void showHelp(const QString&, HelpCommand, int) override {}
    void closeHelp(const QString& /*helpFile*/) override {}
    void setClipboardText(const QString& /*text*/) override {}
    std::unique_ptr<QPagedPaintDevice> choosePrinter() override { return nullptr; }
    QDateTime now() override { return QDateTime::currentDateTime(); }
    void beep() override {}
    [[noreturn]] void endProgram() override { throw ProgramEnd(); }
};

bool makeBible(const QString& folder) {
    return QProcess::execute(
               QStringLiteral(LUMENVIA_MAKER), {u"make"_s, u"kjv"_s, u"--to"_s, folder})
           == 0;
}

const std::string& allVerses() {
    static const std::string text = [] {
        std::string verses;
        Recordset rows = dbBible.OpenRecordset(u"tblMain"_s, dbOpenDynaset);
        for (; !rows.Eof(); rows.MoveNext())
            verses += rows.Fields(4).Value().toString().toStdString();
        return verses;
    }();
    return text;
}

void plainScan(benchmark::State& state, const QString& word) {
    const std::string& text = allVerses();
    const PlainScan scan(word.toStdString());
    for (auto _ : state)
        benchmark::DoNotOptimize(scan.isIn(text));
}

void findWithoutHit(benchmark::State& state, const QString& criteria) {
    OpenBibleDynaset();
    for (auto _ : state)
        rsBible.FindNext(criteria);
    if (!rsBible.NoMatch())
        state.SkipWithError("the word was found");
    OpenBibleTable();
}

void findStep(benchmark::State& state, const QString& word) {
    findWithoutHit(state, u" (( body like "_s + anywherePattern(word) + u"))"_s);
}

void findStepOfWholeWord(benchmark::State& state, const QString& word) {
    const QString patterns = wholeWordPatterns(word, u".:;,"_s, u") or (body like "_s);
    findWithoutHit(state, u" ((body like "_s + patterns + u"))"_s);
}

// From the press to the answer: the translation is opened twice, and its whole text searched.
void pressFindBar(benchmark::State& state, const QString& text) {
    frmMain& window = form<frmMain>();
    for (auto _ : state) {
        rsBible.MoveFirst();
        window.txtFind.setText(text);
        window.findnextbutton();
        QApplication::processEvents();
    }
    window.txtFind.setText({});
}

void showPsalm() {
    rsBible.Seek(u"="_s, 19, 119, 1);
    form<frmMain>().UpDateBibleText(true);
    form<frmMain>().repaint();
    QApplication::processEvents();
}

void markPsalm(benchmark::State& state) {
    RichTextBox& page = form<frmMain>().txtMain;
    for (auto _ : state) {
        state.PauseTiming();
        showPsalm();
        state.ResumeTiming();
        markHits(page, PsalmWords);
        form<frmMain>().repaint();
        QApplication::processEvents();
    }
    double hits = 0;
    for (const QString& word : PsalmWords)
        hits += static_cast<double>(page.Text().count(word, Qt::CaseInsensitive));
    state.counters["hits"] = hits;
}

void configure(benchmark::internal::Benchmark* measured) {
    measured->Unit(benchmark::kMillisecond)->Repetitions(15)->ReportAggregatesOnly();
}

BENCHMARK_CAPTURE(plainScan, rareLetters, Absent)->Apply(configure);
BENCHMARK_CAPTURE(findStep, rareLetters, Absent)->Apply(configure);
BENCHMARK_CAPTURE(findStepOfWholeWord, rareLetters, Absent)->Apply(configure);
BENCHMARK_CAPTURE(plainScan, commonLetters, AbsentOfCommonLetters)->Apply(configure);
BENCHMARK_CAPTURE(findStep, commonLetters, AbsentOfCommonLetters)->Apply(configure);
BENCHMARK_CAPTURE(findStepOfWholeWord, commonLetters, AbsentOfCommonLetters)->Apply(configure);
BENCHMARK_CAPTURE(pressFindBar, withoutHit, Absent)->Apply(configure);
BENCHMARK_CAPTURE(pressFindBar, hitInTheLastBook, u"the testimony of Jesus"_s)->Apply(configure);
BENCHMARK(markPsalm)->Apply(configure);

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir home;
    qputenv("LUMENVIA_HOME", home.path().toLocal8Bit());
    setSettingsFolder(home.path());
    if (!makeBible(home.path()))
        return 1;
    QuietDesktop quietDesktop;
    setDesktop(&quietDesktop);
    resetSettings();
    Main();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    forms::discardAll();
    return 0;
}
