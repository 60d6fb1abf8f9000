// The layouts of delimited texts.
#include "plugins/import/ImportFixture.h"

using namespace Qt::StringLiterals;

namespace {

struct Layout {
    const char* name;
    QByteArray content;
};

void PrintTo(const Layout& layout, std::ostream* stream) {
    *stream << layout.name;
}

class LayoutTest : public ImportTest, public testing::WithParamInterface<Layout> {};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Each, LayoutTest,
    testing::Values(
        Layout{"tabs", "Gen\t1\t1\tIn, the\n1SA\t3\t4\t\"Samuel\" ran\n"},
        Layout{"numbers", "1|1|1|In, the\n09|03|04|\"Samuel\" ran\n"},
        Layout{"names", "Genesis;1;1;In, the\n1 Samuel;3;4;\"Samuel\" ran\n"},
        Layout{"commasWithoutQuotes", "Gen,1,1,In, the\n1Sam,3,4,\"Samuel\" ran\n"},
        Layout{"commasWithQuotes", "Gen,1,1,\"In, the\"\n1Sam,3,4,\"\"\"Samuel\"\" ran\"\n"},
        Layout{
            "quotesEverywhere",
            "\"Gen\",\"1\",\"1\",\"In, the\"\n\"1Sam\",\"3\",\"4\",\"\"\"Samuel\"\" ran\"\n"},
        Layout{
            "header", "Book\tChapter\tVerse\tText\nGen\t1\t1\tIn, the\n1Sam\t3\t4\t\"Samuel\" "
                      "ran\n"},
        Layout{
            "headerInAnotherOrder",
            "text,id,b,c,v\n\"In, the\",1,Gen,1,1\n\"\"\"Samuel\"\" ran\",2,1Sam,3,4\n"},
        Layout{"rowNumbers", "1001001,1,1,1,\"In, the\"\n9003004,9,3,4,\"\"\"Samuel\"\" ran\"\n"},
        Layout{"references", "Gen 1:1 In, the\n1 Samuel 3:4 \"Samuel\" ran\n"},
        Layout{"referenceColumn", "Gen 1:1\tIn, the\n1Sam 3:4\t\"Samuel\" ran\n"},
        Layout{"osisReferences", "Gen.1.1|In, the\n1Sam.3.4|\"Samuel\" ran\n"},
        Layout{
            "referenceHeader",
            "reference;text\nGen 1:1;In, the\n1Sam 3:4;\"\"\"Samuel\"\" ran\"\n"},
        Layout{"comments", "# a text\n\nGen\t1\t1\tIn, the\n#\n1Sam\t3\t4\t\"Samuel\" ran\n"},
        Layout{"windowsLineEnds", "Gen\t1\t1\tIn, the\r\n1Sam\t3\t4\t\"Samuel\" ran\r\n"}));

TEST_P(LayoutTest, givesTheSameRowsAsEveryOther) {
    ASSERT_TRUE(importText(GetParam().content)) << qPrintable(errors);
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 In, the"_s, u"1 Samuel 3:4 \"Samuel\" ran"_s}));
}

TEST_F(ImportTest, aQuotedTextMayGoOnInTheNextLine) {
    ASSERT_TRUE(importText("Gen,1,1,\"In\nthe, beginning\"\nGen,1,2,And\n")) << qPrintable(errors);
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 In the, beginning"_s, u"Genesis 1:2 And"_s}));
}

TEST_F(ImportTest, aVerseThatJustOpensAQuotationSwallowsNoOther) {
    ASSERT_TRUE(importText("Gen,1,3,\"Let there be\nGen,1,4,light,\" he said\n"))
        << qPrintable(errors);
    EXPECT_EQ(
        stored(),
        QStringList({u"Genesis 1:3 \"Let there be"_s, u"Genesis 1:4 light,\" he said"_s}));
}

TEST_F(ImportTest, aQuotationInTheMiddleOfALineIsPartOfTheText) {
    ASSERT_TRUE(importText("book,chapter,verse,text,id\nGen,1,3,\"Let\" he said,7\n"));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:3 \"Let\" he said"_s));
}

TEST_F(ImportTest, aLineThatIsNoVerseIsNamed) {
    EXPECT_FALSE(importText("Gen\t1\t1\tIn\n\nGen\t1\n"));
    EXPECT_TRUE(
        errors.contains(u"text.txt:3: expected book, chapter, verse and text, parted by tabs"_s))
        << qPrintable(errors);
}

TEST_F(ImportTest, anUnknownBookInTheFirstLineIsNamed) {
    EXPECT_FALSE(importText("Genesys,1,1,In\n"));
    EXPECT_TRUE(errors.contains(u"text.txt:1: \"Genesys\" is not a book"_s)) << qPrintable(errors);
}

TEST_F(ImportTest, redLettersOfOurOwnPrefixAreKept) {
    ASSERT_TRUE(importText("John\t1\t1\t\x1E"
                           "004:004He: Come\n"));
    EXPECT_EQ(stored(), QStringList(u"John 1:1 \u001E004:004He: Come"_s));
}
