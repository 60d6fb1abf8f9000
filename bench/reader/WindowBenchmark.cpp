// What a reader's hand waits for: a page key, a key in the note, another translation. Each from the
// event to the painted window.
#include "core/GlobalCode.h"
#include "desktop/HostPath.h"
#include "reader/frmMain.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTextEdit>
#include <benchmark/benchmark.h>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

enum Row { Spanish = 8, KingJames = 2 };

void press(QWidget& widget, int key, const QString& text = {}) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        QApplication::sendEvent(&widget, &event);
    }
}

void paint() {
    form<frmMain>().repaint();
    QApplication::processEvents();
}

void show(int book, int chapter) {
    rsBible.Seek(u"="_s, book, chapter, 1);
    form<frmMain>().UpDateBibleText(true);
    paint();
}

// PageDown from the chapter before.
void turnPage(benchmark::State& state, int book, int chapter) {
    frmMain& window = form<frmMain>();
    for (auto _ : state) {
        state.PauseTiming();
        show(book, chapter - 1);
        window.txtMain.setFocus();
        state.ResumeTiming();
        press(window.txtMain, Qt::Key_PageDown);
        paint();
    }
}

void turnToPsalm(benchmark::State& state) {
    turnPage(state, 19, 119);
}

void turnToChapter(benchmark::State& state) {
    turnPage(state, 40, 6);
}

// The yardstick of both: the same text, without any form, in the toolkit's own text box.
void showPlainPsalm(benchmark::State& state) {
    show(19, 119);
    const QString text = form<frmMain>().txtMain.Text();
    QTextEdit box;
    box.resize(form<frmMain>().txtMain.size());
    box.show();
    QApplication::processEvents();
    for (auto _ : state) {
        box.setPlainText(text);
        box.repaint();
        QApplication::processEvents();
    }
}

void typeInNote(benchmark::State& state) {
    show(40, 6);
    MultilineTextBox& note = form<frmMain>().txtNote;
    note.setFocus();
    bool typed = false;
    for (auto _ : state) {
        if (typed)
            press(note, Qt::Key_Backspace);
        else
            press(note, Qt::Key_A, u"a"_s);
        typed = !typed;
    }
}

// The yardstick of a key in the note: two small writes, each brought to the disk.
void flushTwice(benchmark::State& state) {
#ifdef Q_OS_UNIX
    QFile file(programFolder() + u"/flush"_s);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        state.SkipWithError("no file to flush");
    const QByteArray page(4096, 'x');
    for (auto _ : state) {
        for (int time = 0; time < 2; ++time) {
            file.write(page);
            fsync(file.handle());
        }
        file.seek(0);
    }
#else
    state.SkipWithError("not measured on this system");
#endif
}

void switchTranslation(benchmark::State& state) {
    int row = KingJames;
    for (auto _ : state) {
        row = row == KingJames ? Spanish : KingJames;
        form<frmMain>().loadNewBible(row);
        paint();
    }
    form<frmMain>().loadNewBible(KingJames);
}

void median(benchmark::internal::Benchmark* each) {
    each->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(15)->ReportAggregatesOnly();
}

BENCHMARK(turnToPsalm)->Apply(median);
BENCHMARK(turnToChapter)->Apply(median);
BENCHMARK(showPlainPsalm)->Apply(median);
BENCHMARK(typeInNote)->Apply(median);
BENCHMARK(flushTwice)->Apply(median);
BENCHMARK(switchTranslation)->Apply(median);

} // namespace
