#include "richtext/RichTextPage.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Box : RichTextPage {
    explicit Box(const QString& text) { setText(text); }
};

constexpr int wholeWord = RichTextPage::rtfWholeWord;
constexpr int matchCase = RichTextPage::rtfMatchCase;

} // namespace

TEST(Find, givesThePlaceAndSelectsTheHit) {
    Box box(u"Grace and peace"_s);
    EXPECT_EQ(box.Find(u"peace"_s), 10);
    EXPECT_EQ(box.SelStart(), 10);
    EXPECT_EQ(box.SelLength(), 5);
    EXPECT_EQ(box.SelText(), u"peace"_s);
}

TEST(Find, withoutAStartBeginsAtTheBeginning) {
    Box box(u"one two one"_s);
    box.setSelStart(5);
    EXPECT_EQ(box.Find(u"one"_s), 0);
}

TEST(Find, aMissChangesNothing) {
    Box box(u"one two"_s);
    box.setSelStart(1);
    box.setSelLength(3);
    EXPECT_EQ(box.Find(u"three"_s), -1);
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelLength(), 3);
}

TEST(Find, anEmptyTextIsNowhere) {
    Box box(u"one"_s);
    EXPECT_EQ(box.Find(QString()), -1);
    Box empty(QString{});
    EXPECT_EQ(empty.Find(u"x"_s), -1);
}

TEST(Find, aStartAtOrBehindTheEndFindsNothing) {
    Box box(u"one one"_s);
    EXPECT_EQ(box.Find(u"one"_s, 7, 7), -1);
    EXPECT_EQ(box.Find(u"one"_s, 4, 4), -1);
    EXPECT_EQ(box.Find(u"one"_s, 5, 3), -1);
    EXPECT_EQ(box.Find(u"one"_s, 99), -1);
    EXPECT_EQ(box.Find(u"one"_s, 99, 200), -1);
}

TEST(Find, aHitLiesWhollyInItsRange) {
    Box box(u"one two"_s);
    EXPECT_EQ(box.Find(u"two"_s, 0, 7), 4);
    EXPECT_EQ(box.Find(u"two"_s, 0, 6), -1);
    EXPECT_EQ(box.Find(u"two"_s, 4, 7), 4);
    EXPECT_EQ(box.Find(u"two"_s, 5, 7), -1);
    EXPECT_EQ(box.Find(u"two"_s, 0, 1000), 4);
    EXPECT_EQ(box.Find(u"one"_s, 0, 0), -1);
}

TEST(Find, overlappingHitsAreFoundFromThePlaceBehind) {
    Box box(u"aaaa"_s);
    EXPECT_EQ(box.Find(u"aa"_s, 0), 0);
    EXPECT_EQ(box.Find(u"aa"_s, 1), 1);
    EXPECT_EQ(box.Find(u"aa"_s, 2), 2);
    EXPECT_EQ(box.Find(u"aa"_s, 3), -1);
}

TEST(Find, caseDoesNotCountInAnyScript) {
    Box box(u"GRACE Ἀγάπη МИР 𐐀"_s);
    EXPECT_EQ(box.Find(u"grace"_s), 0);
    EXPECT_EQ(box.Find(u"ἈΓΆΠΗ"_s), 6);
    EXPECT_EQ(box.Find(u"мир"_s), 12);
    EXPECT_EQ(box.Find(u"𐐨"_s), 16);
}

TEST(Find, caseCountsWhenAsked) {
    Box box(u"LORD Lord lord МИР"_s);
    EXPECT_EQ(box.Find(u"lord"_s, -1, -1, matchCase), 10);
    EXPECT_EQ(box.Find(u"Lord"_s, -1, -1, matchCase), 5);
    EXPECT_EQ(box.Find(u"мир"_s, -1, -1, matchCase), -1);
}

TEST(Find, wholeWordsStandBetweenOtherCharacters) {
    Box box(u"another the_ the1 (the) The"_s);
    EXPECT_EQ(box.Find(u"the"_s, -1, -1, wholeWord), 19);
    EXPECT_EQ(box.Find(u"the"_s, 20, -1, wholeWord), 24);
    EXPECT_EQ(box.Find(u"the"_s, 20, -1, wholeWord | matchCase), -1);
    EXPECT_EQ(box.Find(u"(the"_s, -1, -1, wholeWord), 18);
}

TEST(Find, wholeWordsKnowLettersOfEveryKind) {
    Box box(u"e\u0301a 𐐨b a𐐨 a é"_s);
    EXPECT_EQ(box.Find(u"a"_s, -1, -1, wholeWord), 12);
    EXPECT_EQ(box.Find(u"e"_s, -1, -1, wholeWord), -1);
    EXPECT_EQ(box.Find(u"b"_s, -1, -1, wholeWord), -1);
}

TEST(Find, aWholeWordMayEndBehindTheRange) {
    Box box(u"then the"_s);
    EXPECT_EQ(box.Find(u"the"_s, 0, 3, wholeWord), -1);
    EXPECT_EQ(box.Find(u"the"_s, 0, 8, wholeWord), 5);
}

TEST(Find, positionsCountUtf16UnitsAndOneForALineEnd) {
    Box box(u"\U0001F600 a\r\nb\nc"_s);
    EXPECT_EQ(box.Find(u"a"_s), 3);
    EXPECT_EQ(box.Find(u"b"_s), 5);
    EXPECT_EQ(box.SelText(), u"b"_s);
    EXPECT_EQ(box.Find(u"c"_s), 7);
    EXPECT_EQ(box.Find(u"a\nb"_s), 3);
    EXPECT_EQ(box.SelText(), u"a\nb"_s);
}

TEST(Find, aBreakWithinAParagraphIsALineEnd) {
    RichTextPage box;
    box.setTextRTF(u"{\\rtf1 one\\line two\\par three}"_s);
    EXPECT_EQ(box.Text(), u"one\ntwo\nthree"_s);
    EXPECT_EQ(box.Find(u"one\ntwo\nthree"_s), 0);
}

TEST(Find, withoutHighlightSelectsNothing) {
    Box box(u"one two"_s);
    EXPECT_EQ(box.Find(u"two"_s, -1, -1, RichTextPage::rtfNoHighlight), 4);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelLength(), 0);
}

TEST(Find, looksInTheTextAsItIsNow) {
    Box box(u"one"_s);
    EXPECT_EQ(box.Find(u"two"_s), -1);
    box.textCursor().insertText(u"two "_s);
    EXPECT_EQ(box.Find(u"two"_s), 0);
    box.setText(u"and two"_s);
    EXPECT_EQ(box.Find(u"two"_s), 4);
    box.setTextRTF(u"{\\rtf1 {\\b two} more}"_s);
    EXPECT_EQ(box.Find(u"two"_s), 0);
    box.setSelBold(false);
    EXPECT_EQ(box.Find(u"more"_s), 4);
}
