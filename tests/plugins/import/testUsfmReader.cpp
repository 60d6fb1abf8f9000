// What is peculiar to USFM.
#include "plugins/import/ImportFixture.h"

using namespace Qt::StringLiterals;

namespace {

class UsfmTest : public ImportTest {
protected:
    // The one verse that comes of a body.
    QString verse(const QByteArray& body) {
        EXPECT_TRUE(importText("\\id MAT\n\\c 1\n\\p\n\\v 1 " + body + "\n")) << qPrintable(errors);
        return stored().value(0).sliced(QStringView(u"Matthew 1:1 ").size());
    }
};

} // namespace

TEST_F(UsfmTest, keepsWordsOfCharacterStylesWithoutTheirAttributes) {
    EXPECT_EQ(
        verse("\\w gnat|lemma=\"g\" strong=\"H1\"\\w* \\k key\\k* \\nd LORD\\nd*"),
        u"gnat key LORD"_s);
    EXPECT_EQ(verse("\\w gnat|g\\w*s"), u"gnats"_s);
    EXPECT_EQ(verse("a | b"), u"a | b"_s);
}

TEST_F(UsfmTest, dropsNotesReferencesFiguresAndAlternateNumbers) {
    EXPECT_EQ(verse("God\\f + \\fr 1.1 \\fq x\\fq* \\ft Or\\f*created"), u"God created"_s);
    EXPECT_EQ(verse("God\\x - \\xo 1.1 \\xt Is 1\\x*, who"), u"God, who"_s);
    EXPECT_EQ(
        verse("one \\fig A map|src=\"m.png\"\\fig*two \\va 3\\va* \\rq Is 1\\rq*"), u"one two"_s);
}

TEST_F(UsfmTest, marksTheWordsOfChristThroughNestedStyles) {
    EXPECT_EQ(
        verse("He: \\wj Come\\f + \\ft n\\f* \\+w and|x=\"1\"\\+w* see\\wj*, so"),
        u"\u001E004:012He: Come and see, so"_s);
}

TEST_F(UsfmTest, versesGoOnOverParagraphsAndHeadings) {
    EXPECT_EQ(
        verse("one\n\\q2 two\n\\s Heading\n\\r (Is 1)\n\\b\n\\m three\n\\qs Selah\\qs*"),
        u"one two three Selah"_s);
}

TEST_F(UsfmTest, aParagraphEndsTheStylesThatAreOpen) {
    EXPECT_EQ(verse("\\wj Come\n\\p So"), u"\u001E000:004Come So"_s);
}

TEST_F(UsfmTest, aVerseNeedsNoParagraphBehindAHeading) {
    ASSERT_TRUE(importText("\\id GEN\n\\c 1\n\\s Heading\n\\v 1 one\n"));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 one"_s));
}

TEST_F(UsfmTest, aNoteWithoutAnEndHidesNoVerse) {
    ASSERT_TRUE(importText("\\id GEN\n\\c 1\n\\p\n\\v 1 one\\f + \\ft never\n\\v 2 two\n"));
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 one"_s, u"Genesis 1:2 two"_s}));
    EXPECT_TRUE(out.contains(u"notes without an end, taken to end with their verse: Genesis 1\n"_s))
        << qPrintable(out);
}

TEST_F(UsfmTest, dropsMilestonesAndSidebars) {
    EXPECT_EQ(verse("\\qt-s |sid=\"1\" who=\"Peter\"\\*one\\qt-e\\* \\ts\\*two"), u"one two"_s);
    EXPECT_EQ(verse("one\n\\esb \\cat x\\cat*\n\\p Aside\n\\esbe\n\\p two"), u"one two"_s);
}

TEST_F(UsfmTest, readsBlanksAndBreaksOfTheFormat) {
    EXPECT_EQ(verse("one~two // three"), u"one two three"_s);
    EXPECT_EQ(verse("either \\ or"), u"either / or"_s);
}

TEST_F(UsfmTest, numbersMayBeGluedToTheirMarkers) {
    ASSERT_TRUE(importText("\\id GEN\n\\c1\n\\p\n\\v1 one\n\\v2 two\n"));
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 one"_s, u"Genesis 1:2 two"_s}));
}

TEST_F(UsfmTest, oneFileMayHoldSeveralBooks) {
    ASSERT_TRUE(importText("\\id GEN\n\\c 1\n\\v 1 one\n\\id EXO\n\\c 1\n\\v 1 two\n"));
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 one"_s, u"Exodus 1:1 two"_s}));
}

TEST_F(UsfmTest, aPsalmsTitleThatIsNumberedAsAVerseIsThatVerse) {
    ASSERT_TRUE(importText("\\id PSA\n\\c 3\n\\d\n\\v 1 A Psalm.\n\\q\n\\v 2 LORD\n"));
    EXPECT_EQ(stored(), QStringList({u"Psalms 3:1 A Psalm."_s, u"Psalms 3:2 LORD"_s}));
}

TEST_F(UsfmTest, aFileThatDoesNotNameItsBookIsLeftOutAndTheNextOneRead) {
    writeFile(source.path(), u"1.usfm"_s, "\\c 1\n\\v 1 lost\n");
    writeFile(source.path(), u"2.usfm"_s, "\\id GEN\n\\c 1\n\\v 1 one\n");
    ASSERT_TRUE(import(source.path()));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 one"_s));
    EXPECT_TRUE(out.contains(u"1.usfm has no \\id line that names its book, and was left out\n"_s))
        << qPrintable(out);
}

TEST_F(UsfmTest, nestedStylesHaveNoDepthThatHarms) {
    QByteArray body;
    for (int level = 0; level < 10'000; ++level)
        body += "\\+add ";
    EXPECT_EQ(verse(body + "x\\p y"), u"x y"_s);
}
