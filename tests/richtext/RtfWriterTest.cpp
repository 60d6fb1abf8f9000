#include "richtext/RtfWriter.h"

#include "richtext/RichDocument.h"
#include "richtext/RichTextPage.h"
#include "richtext/RtfReader.h"
#include "richtext/samplePages.h"

#include <QTextBlock>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Look {
    QString text;
    QStringList families;
    double points;
    bool bold, italic, underline, strikeOut;
    QBrush color, background;

    bool operator==(const Look&) const = default;
};

Look lookOf(const QTextFragment& fragment) {
    const QTextCharFormat format = fragment.charFormat();
    const QFont font = format.font();
    return {fragment.text(),        format.fontFamilies().toStringList(),
            format.fontPointSize(), font.bold(),
            font.italic(),          font.underline(),
            font.strikeOut(),       format.foreground(),
            format.background()};
}

void expectSameBlock(const QTextBlock& one, const QTextBlock& other) {
    EXPECT_EQ(one.text(), other.text());
    EXPECT_EQ(one.blockFormat(), other.blockFormat());
    auto otherPiece = other.begin();
    for (auto piece = one.begin(); !piece.atEnd() && !otherPiece.atEnd(); ++piece, ++otherPiece)
        EXPECT_TRUE(lookOf(piece.fragment()) == lookOf(otherPiece.fragment()))
            << piece.fragment().text().toStdString();
}

void expectRoundTrip(const QString& rtf) {
    QTextDocument first;
    fillDocument(first, readRtf(rtf));
    QTextDocument second;
    fillDocument(second, readRtf(writeRtf(first)));
    ASSERT_EQ(documentText(second), documentText(first));
    QTextBlock other = second.begin();
    for (QTextBlock block = first.begin(); block.isValid(); block = block.next()) {
        expectSameBlock(block, other);
        other = other.next();
    }
    EXPECT_EQ(writeRtf(second), writeRtf(first));
}

} // namespace

TEST(RtfWriter, theProgramsPagesComeBack) {
    expectRoundTrip(psalmPage({u"one"_s, u"he said \\cf2 two \\cf1 end"_s, u"three"_s}));
    expectRoundTrip(lexiconEntry());
}

TEST(RtfWriter, everyFormatComesBack) {
    expectRoundTrip(
        u"{\\rtf1\\deff1\\deftab360{\\fonttbl{\\f0 Arial;}{\\f1 Courier New;}}"
        "{\\colortbl;\\red1\\green2\\blue3;\\red250\\green240\\blue230;}"
        "a{\\b b}{\\i c}{\\ul d}{\\strike e}{\\b\\i\\ul\\fs31\\f0 f}{\\cf1 g}{\\highlight2 h}\\par"
        "\\qc i\\par\\qj\\li720\\ri360\\fi-360 j\\tab k\\line l\\par\\par\\pard\\qr m}"_s);
}

TEST(RtfWriter, everyCharacterComesBack) {
    QString body;
    for (char16_t code = 0x20; code < 0x250; ++code)
        body += u"\\u%1?"_s.arg(int(code));
    expectRoundTrip(
        u"{\\rtf1{\\fonttbl{\\f0 Arial;}} "_s + body
        + u" \\{\\}\\\\\\~\\'1e ἀγάπη \U0001F600 \uFFFD}"_s);
}

TEST(RtfWriter, whatIsWrittenIsPlainAscii) {
    QTextDocument document;
    fillDocument(document, plainRichText(u"ἀγάπη \U0001F600 caf\u00E9 \u0001"_s));
    const QString rtf = writeRtf(document);
    EXPECT_TRUE(std::ranges::all_of(
        rtf, [](QChar c) { return c == u'\n' || (c >= u' ' && c < QChar(0x7F)); }));
    EXPECT_EQ(readRtf(rtf).text, u"ἀγάπη \U0001F600 caf\u00E9 \u0001"_s);
}

TEST(RtfWriter, emptyParagraphsComeBackAtTheEndToo) {
    for (const QString& text : {u""_s, u"a"_s, u"a\n"_s, u"a\n\n"_s, u"\n"_s, u"a\n "_s, u" "_s}) {
        QTextDocument document;
        fillDocument(document, plainRichText(text));
        EXPECT_EQ(readRtf(writeRtf(document)).text, text) << text.toStdString();
    }
}

TEST(RtfWriter, aFontThatIsStoodInForKeepsItsName) {
    RichTextPage box;
    box.setTextRTF(u"{\\rtf1\\deff0{\\fonttbl{\\f0\\fnil MS Sans Serif;}}x}"_s);
    EXPECT_TRUE(box.TextRTF().contains(u"MS Sans Serif;"_s));
}

TEST(RtfWriter, theNameOfAFontCannotBreakTheTable) {
    QTextDocument document;
    QTextCharFormat format;
    format.setFontFamilies({u"Odd;{Na\\me} \u00E9"_s});
    QTextCursor(&document).insertText(u"x"_s, format);
    const RichText back = readRtf(writeRtf(document));
    EXPECT_EQ(back.text, u"x"_s);
    EXPECT_EQ(back.fonts.value(back.runs[0].style.font), u"Odd{Na\\me} \u00E9"_s);
}

TEST(RtfWriter, changesMadeToAPageAreWritten) {
    RichTextPage box;
    box.setTextRTF(psalmPage({u"grace and peace"_s}));
    box.Find(u"grace"_s);
    box.setSelColor(QColor(0, 0, 255));
    box.setSelUnderline(true);
    RichTextPage other;
    other.setTextRTF(box.TextRTF());
    EXPECT_EQ(other.Text(), box.Text());
    other.Find(u"grace"_s);
    EXPECT_EQ(other.SelColor(), QColor(0, 0, 255));
    EXPECT_TRUE(other.SelUnderline());
    EXPECT_FALSE(other.SelBold());
}

TEST(RtfWriter, theBoxesOwnFontIsWritten) {
    RichTextPage box;
    box.setFontName(u"Liberation Mono"_s);
    box.setFontSize(17);
    box.setFontBold(true);
    box.setText(u"x"_s);
    RichTextPage other;
    other.setTextRTF(box.TextRTF());
    other.setSelLength(1);
    EXPECT_TRUE(other.SelBold());
    EXPECT_TRUE(other.TextRTF().contains(u"\\fs34"_s));
    EXPECT_TRUE(other.TextRTF().contains(u"Liberation Mono;"_s));
}
