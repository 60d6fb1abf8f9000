#include "richtext/RtfReader.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString textOf(const QString& body) {
    return readRtf(u"{\\rtf1\\ansi "_s + body + u'}').text;
}

// The style of the first occurrence of `piece`, which must have one style throughout.
CharacterStyle styleOf(const RichText& rich, const QString& piece) {
    const qsizetype start = rich.text.indexOf(piece);
    EXPECT_GE(start, 0) << piece.toStdString();
    qsizetype end = 0;
    for (const RichText::Run& run : rich.runs) {
        end += run.length;
        if (start < end) {
            EXPECT_LE(start + piece.size(), end) << piece.toStdString();
            return run.style;
        }
    }
    return {};
}

CharacterStyle styleIn(const QString& body, const QString& piece) {
    return styleOf(readRtf(u"{\\rtf1\\ansi "_s + body + u'}'), piece);
}

const QString colors = u"{\\colortbl\\red0\\green0\\blue0;\\red10\\green20\\blue30;"
                       "\\red255\\green0\\blue\\0;}"_s;

} // namespace

TEST(RtfReader, textThatIsNoRtfIsTakenAsItStands) {
    const RichText rich = readRtf(u"None \\b Found {}\r\nhere"_s);
    EXPECT_EQ(rich.text, u"None \\b Found {}\nhere"_s);
    EXPECT_EQ(rich.paragraphs.size(), 2);
    EXPECT_EQ(styleOf(rich, u"None"_s), CharacterStyle{});
}

TEST(RtfReader, oneBlankBehindAWordBelongsToIt) {
    EXPECT_EQ(textOf(u"\\b one\\b0  two"_s), u"one two"_s);
    EXPECT_EQ(textOf(u"\\cf1In the beginning"_s), u"In the beginning"_s);
}

TEST(RtfReader, lineEndsOfTheSourceAreNoText) {
    EXPECT_EQ(textOf(u"one\r\n two\n"_s), u"one two"_s);
}

TEST(RtfReader, paragraphsAndLinesEnd) {
    const RichText rich = readRtf(u"{\\rtf1 one\\par two\\line three\\\nfour}"_s);
    EXPECT_EQ(rich.text, u"one\ntwo\u2028three\nfour"_s);
    ASSERT_EQ(rich.paragraphs.size(), 3);
    EXPECT_EQ(rich.paragraphs[1].length, 9);
}

TEST(RtfReader, theLastMarkOpensNoParagraph) {
    EXPECT_EQ(textOf(u"one\\par two\\par"_s), u"one\ntwo"_s);
    EXPECT_EQ(textOf(u"one\\par two\\par   "_s), u"one\ntwo"_s);
    EXPECT_EQ(textOf(u"one\\par\\par"_s), u"one\n"_s);
    EXPECT_EQ(textOf(u"one\\par x"_s), u"one\nx"_s);
    EXPECT_EQ(textOf(u"  "_s), u"  "_s);
}

TEST(RtfReader, runsCoverTheTextWithoutGaps) {
    const RichText rich = readRtf(u"{\\rtf1 a{\\b b}\\par c{\\i d\\par}  }"_s);
    qsizetype covered = 0;
    for (const RichText::Run& run : rich.runs)
        covered += run.length;
    EXPECT_EQ(covered, rich.text.size());
    EXPECT_EQ(rich.text, u"ab\ncd"_s);
}

TEST(RtfReader, emphasisEndsWithItsGroup) {
    const QString body = u"{\\b bold}plain{\\i italic}{\\ul under\\ulnone not}{\\strike out}"_s;
    EXPECT_TRUE(styleIn(body, u"bold"_s).bold);
    EXPECT_FALSE(styleIn(body, u"plain"_s).bold);
    EXPECT_TRUE(styleIn(body, u"italic"_s).italic);
    EXPECT_TRUE(styleIn(body, u"under"_s).underline);
    EXPECT_FALSE(styleIn(body, u"not"_s).underline);
    EXPECT_TRUE(styleIn(body, u"out"_s).strikeOut);
}

TEST(RtfReader, aZeroSwitchesEmphasisOff) {
    const QString body = u"{\\b Psalms\\b0} \\b1 on\\b0 off"_s;
    EXPECT_TRUE(styleIn(body, u"Psalms"_s).bold);
    EXPECT_TRUE(styleIn(body, u"on"_s).bold);
    EXPECT_FALSE(styleIn(body, u"off"_s).bold);
}

TEST(RtfReader, fontsAreFoundByTheirNumber) {
    const RichText rich = readRtf(u"{\\rtf1\\deff3{\\fonttbl{\\f0\\fnil Times New "
                                  u"Roman;}{\\f3\\fswiss{\\*\\falt Sans}Arial;}}"
                                  "default \\f0 serif \\f9 unknown}"_s);
    EXPECT_EQ(rich.fonts.value(styleOf(rich, u"default"_s).font), u"Arial"_s);
    EXPECT_EQ(rich.fonts.value(styleOf(rich, u"serif"_s).font), u"Times New Roman"_s);
    EXPECT_EQ(rich.fonts.value(styleOf(rich, u"unknown"_s).font), QString());
}

TEST(RtfReader, sizesAreHalfPointsAndSenselessOnesAreTheDefault) {
    EXPECT_EQ(styleIn(u"\\fs25 x"_s, u"x"_s).halfPoints, 25);
    for (const QString& size : {u"\\fs0 "_s, u"\\fs-8 "_s, u"\\fs99999 "_s, u"\\fs "_s, u""_s})
        EXPECT_EQ(styleIn(size + u'x', u"x"_s).halfPoints, 24) << size.toStdString();
}

TEST(RtfReader, thePagesColourTable) {
    EXPECT_EQ(styleIn(colors + u"\\cf0 x"_s, u"x"_s).color, qRgb(0, 0, 0));
    EXPECT_EQ(styleIn(colors + u"\\cf1 x"_s, u"x"_s).color, qRgb(10, 20, 30));
    EXPECT_EQ(styleIn(colors + u"\\cf2 x"_s, u"x"_s).color, qRgb(255, 0, 0));
    EXPECT_EQ(styleIn(colors + u"\\cf3 x"_s, u"x"_s).color, std::nullopt);
    EXPECT_EQ(styleIn(colors + u"\\highlight2 x"_s, u"x"_s).background, qRgb(255, 0, 0));
    EXPECT_EQ(styleIn(colors + u"\\cb1 x"_s, u"x"_s).background, qRgb(10, 20, 30));
}

TEST(RtfReader, colourComponentsAreCutToTheirRange) {
    const QString table = u"{\\colortbl;\\red999\\green-5\\blue256;}"_s;
    EXPECT_EQ(styleIn(table + u"\\cf1 x"_s, u"x"_s).color, qRgb(255, 0, 255));
    EXPECT_EQ(styleIn(table + u"\\cf0 x"_s, u"x"_s).color, std::nullopt);
}

TEST(RtfReader, plainResetsTheCharacterFormatAlone) {
    const RichText rich = readRtf(
        u"{\\rtf1\\deff0{\\fonttbl{\\f0 Arial;}{\\f1 Courier;}}"_s + colors
        + u"\\li200\\f1\\fs40\\b\\i\\ul\\strike\\cf2\\cb1\\plain x}"_s);
    EXPECT_EQ(styleOf(rich, u"x"_s), (CharacterStyle{.font = 0, .halfPoints = 24}));
    EXPECT_EQ(rich.paragraphs[0].style.leftIndent, 200);
}

TEST(RtfReader, aParagraphHasTheFormatThatHoldsAtItsMark) {
    const RichText rich =
        readRtf(u"{\\rtf1 a\\par {\\b B\\b0} \\li200\\fi-200 b\\par\\qc\\ri30 c\\par\\pard d}"_s);
    ASSERT_EQ(rich.paragraphs.size(), 4);
    EXPECT_EQ(rich.paragraphs[0].style, ParagraphStyle{});
    EXPECT_EQ(rich.paragraphs[1].style, (ParagraphStyle{200, 0, -200}));
    EXPECT_EQ(rich.paragraphs[2].style, (ParagraphStyle{200, 30, -200, Qt::AlignHCenter}));
    EXPECT_EQ(rich.paragraphs[3].style, ParagraphStyle{});
}

TEST(RtfReader, alignments) {
    const RichText rich = readRtf(u"{\\rtf1\\qr a\\par\\qj b\\par\\ql c\\par\\qc d}"_s);
    const Qt::AlignmentFlag expected[] = {
        Qt::AlignRight, Qt::AlignJustify, Qt::AlignLeft, Qt::AlignHCenter};
    for (qsizetype i = 0; i < 4; ++i)
        EXPECT_EQ(rich.paragraphs[i].style.alignment, expected[i]);
}

TEST(RtfReader, escapesAndSpecialCharacters) {
    EXPECT_EQ(textOf(u"\\{\\}\\\\"_s), u"{}\\"_s);
    EXPECT_EQ(textOf(u"a\\~b\\_c\\-d"_s), u"a\u00A0b\u2011c\u00ADd"_s);
    EXPECT_EQ(
        textOf(u"\\emdash\\endash\\lquote\\rquote\\ldblquote\\rdblquote\\bullet\\tab x"_s),
        u"\u2014\u2013\u2018\u2019\u201C\u201D\u2022\tx"_s);
}

TEST(RtfReader, hexBytesAreWindows1252) {
    EXPECT_EQ(textOf(u"\\'e9\\'80\\'93x\\'9F\\'41"_s), u"\u00E9\u20AC\u201Cx\u0178A"_s);
    EXPECT_EQ(textOf(u"a\\'zzb\\'"_s), u"azzb"_s);
    EXPECT_EQ(textOf(u"a\\'4"_s), u"a\u0004"_s);
}

TEST(RtfReader, unicodeNumbersReplaceTheirFallback) {
    EXPECT_EQ(textOf(u"\\u8212?x"_s), u"\u2014x"_s);
    EXPECT_EQ(textOf(u"\\u8212\\'97x"_s), u"\u2014x"_s);
    EXPECT_EQ(textOf(u"\\uc0\\u8212 x"_s), u"\u2014x"_s);
    EXPECT_EQ(textOf(u"\\uc2\\u8212??x"_s), u"\u2014x"_s);
    EXPECT_EQ(textOf(u"{\\uc0\\u8212 x}\\u8212?y"_s), u"\u2014x\u2014y"_s);
    EXPECT_EQ(textOf(u"{\\u8212}x"_s), u"\u2014x"_s);
    EXPECT_EQ(textOf(u"\\u-3913?"_s), QString(QChar(0xF0B7)));
    EXPECT_EQ(textOf(u"\\u-10179?\\u-8704?"_s), u"\U0001F600"_s);
}

TEST(RtfReader, rawUnicodeIsText) {
    EXPECT_EQ(textOf(u"ἀγάπη \U0001F600 אהבה"_s), u"ἀγάπη \U0001F600 אהבה"_s);
}

TEST(RtfReader, charactersThatADocumentKeepsForItselfAreReplaced) {
    EXPECT_EQ(textOf(u"a\uFFFCb\uFDD0c"_s), u"a\uFFFDb\uFFFDc"_s);
    EXPECT_EQ(textOf(u"a\u2029b\\'0dc"_s), u"a\u2028b\u2028c"_s);
}

TEST(RtfReader, unknownWordsAndSymbolsArePassedOver) {
    EXPECT_EQ(textOf(u"a\\nonsense12 b\\Bold c\\| d\\-"_s), u"abc d\u00AD"_s);
    EXPECT_EQ(textOf(u"\\b- dash"_s), u"- dash"_s);
}

TEST(RtfReader, destinationsThatAreNoPageAreSkipped) {
    EXPECT_EQ(
        textOf(u"{\\stylesheet{\\s0 Normal;}}{\\info{\\author A}}{\\pict\\wmetafile8 0100}"
               "{\\*\\generator G {nested} more;}{\\*\\fonttbl{\\f0 X;}}text"_s),
        u"text"_s);
    EXPECT_EQ(textOf(u"{\\field{\\*\\fldinst LINK}{\\fldrslt shown}}"_s), u"shown"_s);
}

TEST(RtfReader, aDestinationWordWithinTextHidesNothing) {
    EXPECT_EQ(textOf(u"a\\info b{c\\pict d}"_s), u"abcd"_s);
}

TEST(RtfReader, binaryDataIsPassedOverWithinTheText) {
    EXPECT_EQ(textOf(u"a\\bin4 }}{\\b"_s), u"ab"_s);
    EXPECT_EQ(textOf(u"a\\bin99999999999999 bc"_s), u"a"_s);
    EXPECT_EQ(textOf(u"a\\bin-4 bc\\bin d"_s), u"abcd"_s);
}

TEST(RtfReader, surplusClosingBracesAreIgnoredAndTextBehindThemIsReadOn) {
    const RichText rich =
        readRtf(u"{\\rtf1"_s + colors + u"\\fs30\\cf1 one}}}}} two{\\b three}} four}}"_s);
    EXPECT_EQ(rich.text, u"one twothree four"_s);
    const CharacterStyle page = styleOf(rich, u"one"_s);
    EXPECT_EQ(styleOf(rich, u"two"_s), page);
    EXPECT_TRUE(styleOf(rich, u"three"_s).bold);
    EXPECT_EQ(styleOf(rich, u"four"_s), page);
}

TEST(RtfReader, missingClosingBracesAreFine) {
    EXPECT_EQ(readRtf(u"{\\rtf1{\\b one{\\i two"_s).text, u"onetwo"_s);
    EXPECT_EQ(readRtf(u"{\\rtf1{\\fonttbl{\\f0 Ari"_s).text, QString());
    EXPECT_EQ(readRtf(u"{\\rtf1 one\\"_s).text, u"one"_s);
    EXPECT_EQ(readRtf(u"{\\rtf"_s).text, QString());
}

TEST(RtfReader, tabDistance) {
    EXPECT_EQ(readRtf(u"{\\rtf1\\deftab360 x}"_s).tabDistance, 360);
    EXPECT_EQ(readRtf(u"{\\rtf1\\deftab0 x}"_s).tabDistance, 720);
    EXPECT_EQ(readRtf(u"{\\rtf1\\deftab-9999999999 x}"_s).tabDistance, 720);
}
