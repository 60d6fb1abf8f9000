// Whatever the text, the reader ends, soon, and with a text no longer than the one it was given.
#include "richtext/RichDocument.h"
#include "richtext/RichTextPage.h"
#include "richtext/RtfReader.h"
#include "richtext/RtfWriter.h"
#include "richtext/samplePages.h"

#include <QElapsedTimer>
#include <QTextDocument>
#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 patience = 2000; // milliseconds; generous, since sanitizers are slow

void expectSound(const RichText& rich, qsizetype inputSize) {
    ASSERT_LE(rich.text.size(), inputSize);
    qsizetype covered = 0;
    for (const RichText::Run& run : rich.runs)
        covered += run.length;
    ASSERT_EQ(covered, rich.text.size());
    qsizetype length = -1;
    for (const RichText::Paragraph& paragraph : rich.paragraphs)
        length += paragraph.length + 1;
    ASSERT_EQ(length, rich.text.size());
}

RichText readInTime(const QString& rtf) {
    QElapsedTimer clock;
    clock.start();
    RichText rich = readRtf(rtf);
    EXPECT_LT(clock.elapsed(), patience);
    expectSound(rich, rtf.size());
    return rich;
}

class Soup {
public:
    explicit Soup(unsigned seed)
        : m_random(seed) {}

    QString mutatedPage();
    QString soup();

private:
    int below(int bound) { return int(m_random() % unsigned(bound)); }
    QString piece();
    QString number();

    std::mt19937 m_random;
    const QStringList m_pages = {
        psalmPage({u"Blessed are"_s, u"\\cf2They that \\cf1 keep"_s, u"\u1F00\u03B3"_s}),
        lexiconEntry(),
        u"{\\rtf1\\ansi{\\*\\generator x;}{\\info{\\author a}}\\uc2\\u8212??\\'93q\\'94"
        "\\bin3 {}{\\pard\\qc\\li30\\fs99\\highlight1 a\\line b\\par}}"_s,
    };
    const QStringList m_pieces = {
        u"{"_s,      u"}"_s,      u"\\"_s,     u"\\*"_s,        u"\\'"_s,        u"\\'4g"_s,
        u"\\'e9"_s,  u"\\u"_s,    u"\\uc"_s,   u"\\bin"_s,      u"\\fs"_s,       u"\\cf"_s,
        u"\\red"_s,  u";"_s,      u"\\f"_s,    u"\\par "_s,     u"\\pard"_s,     u"\\plain"_s,
        u"\\b"_s,    u"\\b0"_s,   u"\\li"_s,   u"\\fi"_s,       u"{\\fonttbl"_s, u"{\\colortbl"_s,
        u"{\\*"_s,   u"\\line"_s, u"\\tab"_s,  u"\\emdash"_s,   u"{\\pict"_s,    u"\\deftab"_s,
        u"word "_s,  u" "_s,      u"\r\n"_s,   u"\\\n"_s,       u"\\deff"_s,     u"\\unknownword"_s,
        u"\u2029"_s, u"\uFDD0"_s, u"\uFFFC"_s, u"\U0001F600"_s, u"\\qj"_s,       u"\\highlight"_s,
    };
};

QString Soup::number() {
    static const QStringList numbers = {
        u"-"_s, u"0"_s, u"-1"_s, u"99999999999"_s, u"-99999999999"_s, u"2147483648"_s, u"65536"_s};
    const int choice = below(int(numbers.size()) + 5);
    return choice < numbers.size() ? numbers[choice] : QString::number(below(3000));
}

QString Soup::piece() {
    const int choice = below(int(m_pieces.size()) + 15);
    if (choice < m_pieces.size())
        return m_pieces[choice];
    return choice % 3 == 0 ? QString(QChar(char16_t(below(0x10000)))) : number();
}

QString Soup::soup() {
    QString result = u"{\\rtf1"_s;
    for (int length = below(60); length > 0; --length)
        result += piece();
    return result;
}

QString Soup::mutatedPage() {
    QString page = m_pages[below(int(m_pages.size()))];
    for (int changes = 1 + below(8); changes > 0; --changes) {
        const int place = below(int(page.size()));
        switch (below(4)) {
        case 0:
            page.remove(place, 1 + below(20));
            break;
        case 1:
            page.insert(place, piece());
            break;
        case 2:
            page.replace(place, 1, piece());
            break;
        default:
            page.insert(place, page.mid(below(int(page.size())), below(40)));
            break;
        }
        if (page.isEmpty())
            page = u"{"_s;
    }
    return page;
}

} // namespace

TEST(RtfRobustness, aMillionOpeningBraces) {
    EXPECT_EQ(readInTime(u"{\\rtf1"_s + QString(1'000'000, u'{')).text, QString());
    EXPECT_EQ(readInTime(u"{\\rtf1"_s + u"{\\b "_s.repeated(250'000) + u'x').text, u"x"_s);
    EXPECT_EQ(readInTime(QString(1'000'000, u'{')).text.size(), 1'000'000);
}

TEST(RtfRobustness, aMillionBracesThatAreNoRtfShowInTime) {
    RichTextPage page;
    page.resize(800, 600);
    page.show();
    QElapsedTimer clock;
    clock.start();
    page.setTextRTF(QString(1'000'000, u'{'));
    page.grab();
    page.setTextRTF(u"a short text"_s);
    EXPECT_LT(clock.elapsed(), 5 * patience);
    EXPECT_EQ(page.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST(RtfRobustness, groupsBeyondTheBoundStillClose) {
    const int depth = 5000;
    const RichText rich = readInTime(
        u"{\\rtf1 a"_s + QString(depth, u'{') + u"\\b b"_s + QString(depth, u'}') + u"c}"_s);
    EXPECT_EQ(rich.text, u"abc"_s);
    EXPECT_FALSE(rich.runs.constLast().style.bold);
}

TEST(RtfRobustness, aMillionClosingBraces) {
    EXPECT_EQ(readInTime(u"{\\rtf1 a"_s + QString(1'000'000, u'}') + u'b').text, u"ab"_s);
}

TEST(RtfRobustness, aWordWithAMillionDigits) {
    EXPECT_EQ(readInTime(u"{\\rtf1\\fs"_s + QString(1'000'000, u'9') + u" x}"_s).text, u"x"_s);
    EXPECT_EQ(readInTime(u"{\\rtf1\\u-"_s + QString(1'000'000, u'9') + u" }"_s).text.size(), 1);
}

TEST(RtfRobustness, aWordWithAMillionLetters) {
    EXPECT_EQ(readInTime(u"{\\rtf1\\"_s + QString(1'000'000, u'b') + u" x}"_s).text, u"x"_s);
}

TEST(RtfRobustness, manyFontsAndColours) {
    readInTime(
        u"{\\rtf1{\\fonttbl"_s + u"{\\f1 Name;}"_s.repeated(50'000) + u"}{\\colortbl"_s
        + QString(500'000, u';') + u"}\\cf400000 x}"_s);
}

TEST(RtfRobustness, extremeIndentsAndSizesShow) {
    QTextDocument document;
    fillDocument(
        document, readRtf(u"{\\rtf1\\li999999999\\ri999999999\\fi-999999999\\fs1000 a b\\par"
                          "\\pard\\fi-500\\fs1 c\\par\\li-5\\fi999999999 d}"_s));
    document.setPageSize(QSizeF(600, -1));
    EXPECT_GT(document.size().height(), 0);
}

TEST(RtfRobustness, readsAHundredThousandMutatedAndRandomTexts) {
    Soup soup(20240607);
    for (int round = 0; round < 60'000 && !HasFatalFailure(); ++round) {
        readInTime(soup.mutatedPage());
        readInTime(soup.soup());
    }
}

TEST(RtfRobustness, whateverIsReadIsShownAndWrittenAndReadAgain) {
    Soup soup(4711);
    QTextDocument document;
    QTextDocument again;
    for (int round = 0; round < 3000 && !HasFatalFailure(); ++round) {
        const RichText rich = readInTime(round % 2 == 0 ? soup.mutatedPage() : soup.soup());
        fillDocument(document, rich);
        ASSERT_EQ(document.toRawText().size(), rich.text.size());
        const QString written = writeRtf(document);
        fillDocument(again, readRtf(written));
        ASSERT_EQ(documentText(again), documentText(document)) << written.toStdString();
    }
}
