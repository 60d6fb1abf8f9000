// How long the longest page of the Bible takes: read, shown, painted, marked, written. The
// yardstick is the toolkit's own text box with the same text and no format at all.
#include "richtext/RichDocument.h"
#include "richtext/RichTextPage.h"
#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"
#include "richtext/samplePages.h"

#include <QApplication>
#include <QStyleFactory>
#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize windowSize(1100, 760);
constexpr int hitCount = 300;

const QString& psalm() {
    static const QString page = psalmPage(longestPsalm());
    return page;
}

// The Psalm with a word added so that the page holds it 300 times.
QString markedPsalm() {
    QStringList verses = longestPsalm();
    int hits = 0;
    for (qsizetype i = 0; hits < hitCount; i = (i + 1) % verses.size(), ++hits)
        verses[i] += u" grace"_s;
    return psalmPage(verses);
}

template <class Box>
void showInWindow(Box& box) {
    box.resize(windowSize);
    box.setReadOnly(true);
    box.show();
    QCoreApplication::processEvents();
}

// Lets the work go that was left for later, so that it is not counted with the next round.
template <class Rest>
void untimed(benchmark::State& state, Rest&& rest) {
    state.PauseTiming();
    rest();
    QCoreApplication::processEvents();
    state.ResumeTiming();
}

void psalm119_setTextRTF_and_paint(benchmark::State& state) {
    RichTextPage box;
    showInWindow(box);
    for (auto _ : state) {
        box.setTextRTF(psalm());
        box.viewport()->repaint();
        untimed(state, [] {});
    }
}

void yardstick_psalm119_setPlainText_and_paint(benchmark::State& state) {
    RichTextPage source;
    source.setTextRTF(psalm());
    QTextEdit box;
    showInWindow(box);
    for (auto _ : state) {
        box.setPlainText(source.Text());
        box.viewport()->repaint();
        untimed(state, [] {});
    }
}

void psalm119_into_a_new_box_and_paint(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        RichTextPage box;
        showInWindow(box);
        state.ResumeTiming();
        box.setTextRTF(psalm());
        box.viewport()->repaint();
        untimed(state, [] {});
    }
}

void psalm119_read_the_RTF(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(readRtf(psalm()));
}

void psalm119_fill_a_document_without_layout(benchmark::State& state) {
    const RichText content = readRtf(psalm());
    for (auto _ : state) {
        QTextDocument document;
        fillDocument(document, content);
    }
}

void psalm119_lay_out_all(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        QTextDocument document;
        fillDocument(document, readRtf(psalm()));
        state.ResumeTiming();
        document.setPageSize(QSizeF(windowSize.width(), -1));
        benchmark::DoNotOptimize(document.size());
    }
}

void psalm119_paint_alone(benchmark::State& state) {
    RichTextPage box;
    showInWindow(box);
    box.setTextRTF(psalm());
    QCoreApplication::processEvents();
    for (auto _ : state)
        box.viewport()->repaint();
}

void psalm119_write_the_RTF(benchmark::State& state) {
    RichTextPage box;
    box.setTextRTF(psalm());
    for (auto _ : state)
        benchmark::DoNotOptimize(box.TextRTF());
}

int markAll(RichTextPage& box, const QString& word) {
    const int end = int(box.Text().size());
    int hits = 0;
    for (int start = 1;;) {
        const int place = box.Find(word, start, end, 0);
        if (place < 0)
            return hits;
        box.setSelColor(QColor(0, 0, 255));
        box.setSelBold(true);
        box.setSelUnderline(true);
        start = place + int(word.size());
        box.setSelLength(0);
        ++hits;
    }
}

// Hide, mark, show, as the program does, and the new layout; the painting is not counted.
void psalm119_mark_300_hits_hidden_and_show(benchmark::State& state) {
    RichTextPage box;
    showInWindow(box);
    const QString page = markedPsalm();
    for (auto _ : state) {
        untimed(state, [&] { box.setTextRTF(page); });
        box.hide();
        if (markAll(box, u"grace"_s) != hitCount)
            state.SkipWithError("not every hit was marked");
        box.show();
    }
}

void psalm119_find_300_hits(benchmark::State& state) {
    RichTextPage box;
    box.setTextRTF(markedPsalm());
    for (auto _ : state) {
        int hits = 0;
        for (int place = -1; (place = box.Find(u"grace"_s, place + 1)) >= 0;)
            ++hits;
        if (hits != hitCount)
            state.SkipWithError("not every hit was found");
    }
}

} // namespace

#define PAGE_BENCHMARK(name) BENCHMARK(name)->Unit(benchmark::kMillisecond)->UseRealTime()

PAGE_BENCHMARK(psalm119_setTextRTF_and_paint);
PAGE_BENCHMARK(yardstick_psalm119_setPlainText_and_paint);
PAGE_BENCHMARK(psalm119_into_a_new_box_and_paint);
PAGE_BENCHMARK(psalm119_read_the_RTF);
PAGE_BENCHMARK(psalm119_fill_a_document_without_layout);
PAGE_BENCHMARK(psalm119_lay_out_all);
PAGE_BENCHMARK(psalm119_paint_alone);
PAGE_BENCHMARK(psalm119_mark_300_hits_hidden_and_show);
PAGE_BENCHMARK(psalm119_find_300_hits);
PAGE_BENCHMARK(psalm119_write_the_RTF);

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(u"Fusion"_s));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
