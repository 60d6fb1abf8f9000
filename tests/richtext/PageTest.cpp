// The program's own pages, to the letter, as the box shows them.
#include "richtext/RichTextPage.h"
#include "richtext/samplePages.h"

#include <QTextBlock>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QTextCharFormat formatAt(const RichTextPage& box, const QString& piece) {
    QTextCursor cursor(box.document());
    cursor.setPosition(int(box.Text().indexOf(piece)) + 1);
    return cursor.charFormat();
}

const QStringList threeVerses = {
    u"Blessed are the undefiled"_s,
    u"And he said, \\cf2Come unto me \\cf1 all ye"_s,
    u"They also do no iniquity"_s,
};

} // namespace

TEST(Page, eachVerseIsOneLine) {
    RichTextPage box;
    box.setTextRTF(psalmPage(threeVerses));
    EXPECT_EQ(
        box.Text(), u"Psalms 119:1 Blessed are the undefiled \n"
                    "Psalms 119:2 And he said, Come unto me all ye \n"
                    "Psalms 119:3 They also do no iniquity "_s);
    EXPECT_EQ(box.document()->blockCount(), 3);
}

TEST(Page, headingsAreBoldAndTheTextIsInThePagesFont) {
    RichTextPage box;
    box.setTextRTF(psalmPage(threeVerses));
    for (const QString& heading : {u"Psalms"_s, u"119:1"_s, u"119:3"_s})
        EXPECT_EQ(formatAt(box, heading).fontWeight(), QFont::Bold);
    const QTextCharFormat text = formatAt(box, u"undefiled"_s);
    EXPECT_NE(text.fontWeight(), QFont::Bold);
    EXPECT_EQ(text.fontPointSize(), 12);
    EXPECT_EQ(text.foreground().color(), QColor(10, 20, 30));
}

TEST(Page, redLettersAreRedToTheBlankBehindThem) {
    RichTextPage box;
    box.setTextRTF(psalmPage(threeVerses));
    EXPECT_EQ(formatAt(box, u"said, "_s).foreground().color(), QColor(10, 20, 30));
    EXPECT_EQ(formatAt(box, u"Come"_s).foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(formatAt(box, u"me"_s).foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(formatAt(box, u"all"_s).foreground().color(), QColor(10, 20, 30));
}

TEST(Page, aRedRunAtTheHeadOfAVerse) {
    RichTextPage box;
    box.setTextRTF(psalmPage({u"\\cf2Jesus \\cf1wept."_s}));
    EXPECT_EQ(box.Text(), u"Psalms 119:1 Jesus wept. "_s);
    EXPECT_EQ(formatAt(box, u"Jesus"_s).foreground().color(), QColor(255, 0, 0));
    EXPECT_EQ(formatAt(box, u"wept"_s).foreground().color(), QColor(10, 20, 30));
}

TEST(Page, versesHangFromTheSecondOn) {
    RichTextPage box;
    box.setTextRTF(psalmPage(threeVerses));
    QTextBlock block = box.document()->firstBlock();
    EXPECT_EQ(block.blockFormat().leftMargin(), 0);
    for (block = block.next(); block.isValid(); block = block.next()) {
        EXPECT_NEAR(block.blockFormat().leftMargin(), 200 / 15.0, 0.001);
        EXPECT_NEAR(block.blockFormat().textIndent(), -200 / 15.0, 0.001);
    }
}

TEST(Page, everyLineIsSpaced) {
    RichTextPage box;
    const auto spacing = [&](const QTextBlock& block) { return block.blockFormat().lineHeight(); };
    EXPECT_EQ(spacing(box.document()->firstBlock()), 120);
    box.setTextRTF(psalmPage(threeVerses));
    EXPECT_EQ(spacing(box.document()->firstBlock()), 120);
    EXPECT_EQ(spacing(box.document()->lastBlock()), 120);
    box.setText(u"one\ntwo"_s);
    EXPECT_EQ(spacing(box.document()->lastBlock()), 120);
}

TEST(Page, anEmptyPageIsEmpty) {
    RichTextPage box;
    box.setTextRTF(psalmPage({}));
    EXPECT_EQ(box.Text().trimmed(), QString());
    EXPECT_EQ(box.document()->blockCount(), 1);
}

TEST(Page, aPageReplacesTheOneBefore) {
    RichTextPage box;
    box.setTextRTF(lexiconEntry());
    box.setTextRTF(psalmPage({u"Amen"_s}));
    EXPECT_EQ(box.Text(), u"Psalms 119:1 Amen "_s);
    box.setTextRTF(u"None Found"_s);
    EXPECT_EQ(box.Text(), u"None Found"_s);
    EXPECT_FALSE(formatAt(box, u"None"_s).hasProperty(QTextFormat::ForegroundBrush));
    EXPECT_FALSE(formatAt(box, u"None"_s).hasProperty(QTextFormat::FontPointSize));
}

TEST(Page, theLexiconsEntry) {
    RichTextPage box;
    box.setTextRTF(lexiconEntry());
    EXPECT_EQ(
        box.Text(), u"Strong's Number:\n\t26\n\n"
                    "Greek:\n\tAgape  [ag-ah'-pay]  agaph\n\n"
                    "Word Origin:\n\tfrom 25\n\n"
                    "Word Usage:\n\tlove 86\n\n"
                    "Definition(s):\n1) brotherly love, \n2) love feasts"_s);
    EXPECT_EQ(formatAt(box, u"Greek"_s).fontWeight(), QFont::Bold);
    EXPECT_EQ(formatAt(box, u"Greek"_s).fontPointSize(), 12.5);
    EXPECT_NE(formatAt(box, u"Agape"_s).fontWeight(), QFont::Bold);
    EXPECT_EQ(formatAt(box, u"agaph"_s).fontPointSize(), 15);
    EXPECT_EQ(formatAt(box, u"agaph"_s).fontFamilies().toStringList(), QStringList{u"BSTGreek"_s});
    EXPECT_EQ(box.document()->defaultTextOption().tabStopDistance(), 48);
}

TEST(Page, aNewPageBeginsAtItsTop) {
    RichTextPage box;
    box.resize(400, 200);
    box.show();
    box.setTextRTF(psalmPage(longestPsalm()));
    box.setSelStart(10000);
    box.setTextRTF(psalmPage(longestPsalm()));
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.cursorRect().top(), 20);
}
