// What is peculiar to USX, USFX and Zefania.
#include "plugins/import/ImportFixture.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray usxBook(const QByteArray& body) {
    return "<usx version=\"2.5\"><book code=\"GEN\" style=\"id\"/><chapter number=\"1\"/>" + body
           + "</usx>";
}

QByteArray zefaniaChapter(const QByteArray& body) {
    return "<XMLBIBLE><BIBLEBOOK bnumber=\"1\"><CHAPTER cnumber=\"1\">" + body
           + "</CHAPTER></BIBLEBOOK></XMLBIBLE>";
}

} // namespace

TEST_F(ImportTest, usxVersesGoOnOverParagraphsAndHeadings) {
    ASSERT_TRUE(importText(usxBook("<para style=\"q1\"><verse number=\"1\"/>one</para>"
                                   "<para style=\"s2\">Heading</para>"
                                   "<para style=\"q2\">two</para>")));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 one two"_s));
}

TEST_F(ImportTest, usxDropsFiguresSidebarsAndAlternateNumbers) {
    ASSERT_TRUE(importText(usxBook(
        "<para style=\"p\"><verse number=\"1\"/>one<figure style=\"fig\" desc=\"x\">A map</figure> "
        "<char style=\"va\">2</char>two</para><sidebar style=\"esb\"><para style=\"p\">Aside"
        "</para></sidebar>")));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 one two"_s));
}

TEST_F(ImportTest, usxJoinsThePartsOfAVerse) {
    ASSERT_TRUE(importText(usxBook("<para style=\"p\"><verse number=\"1a\"/>one</para>"
                                   "<para style=\"p\"><verse number=\"1b\"/>two</para>")));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 one two"_s));
    EXPECT_TRUE(
        out.contains(u"parts of verses, kept under the number of the verse: Genesis 1:1a\n"_s))
        << qPrintable(out);
}

TEST_F(ImportTest, usxTitleThatIsNumberedAsAVerseIsThatVerse) {
    ASSERT_TRUE(importText("<usx><book code=\"PSA\"/><chapter number=\"3\"/><para style=\"d\">"
                           "<verse number=\"1\"/>A Psalm.</para><para style=\"q\">"
                           "<verse number=\"2\"/>LORD</para></usx>"));
    EXPECT_EQ(stored(), QStringList({u"Psalms 3:1 A Psalm."_s, u"Psalms 3:2 LORD"_s}));
}

TEST_F(ImportTest, wordsOutsideOfVersesAreLeftOutAndSaid) {
    ASSERT_TRUE(importText(usxBook("<para style=\"p\">Before <verse number=\"1\"/>one</para>")));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 one"_s));
    EXPECT_TRUE(out.contains(u"words outside of verses left out: Genesis 1\n"_s))
        << qPrintable(out);
}

TEST_F(ImportTest, usfxTakesTheMarkerOfAParagraphFromItsAttribute) {
    ASSERT_TRUE(importText("<usfx><book id=\"GEN\"><c id=\"1\"/><p sfm=\"p\"><v id=\"1\"/>one<ve/>"
                           "</p><p sfm=\"s1\">Heading</p><p><v id=\"2\"/>two<x>Is 1</x>three<ve/>"
                           "</p></book></usfx>"));
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 one"_s, u"Genesis 1:2 two three"_s}));
}

TEST_F(ImportTest, usfxBookOfOneChapterNeedsNoChapter) {
    ASSERT_TRUE(importText("<usfx><book id=\"OBA\"><p><v id=\"1\"/>one</p></book></usfx>"));
    EXPECT_EQ(stored(), QStringList(u"Obadiah 1:1 one"_s));
}

TEST_F(ImportTest, aVerseWithoutAChapterIsLeftOutAndSaid) {
    ASSERT_TRUE(importText("<usfx><book id=\"GEN\"><p><v id=\"7\"/>one</p><c id=\"1\"/><p>"
                           "<v id=\"1\"/>two</p></book></usfx>"));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 two"_s));
    EXPECT_TRUE(out.contains(u"their numbers cannot be read: Genesis:7\n"_s)) << qPrintable(out);
}

TEST_F(ImportTest, zefaniaReddensOnlyWhatIsPrintedInRed) {
    for (const char* const css :
         {"color:red", "font-weight:bold; COLOR: #f00;", "color:rgb(255, 0, 0)"}) {
        ASSERT_TRUE(importText(zefaniaChapter(
            QByteArray("<VERS vnumber=\"1\">He: <STYLE css=\"") + css + "\">Come</STYLE></VERS>")));
        EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 \u001E004:004He: Come"_s));
    }
    for (const char* const css : {"background-color:red", "color:redder", "color:blue", ""}) {
        ASSERT_TRUE(importText(zefaniaChapter(
            QByteArray("<VERS vnumber=\"1\">He: <STYLE css=\"") + css + "\">Come</STYLE></VERS>")));
        EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 He: Come"_s));
    }
}

TEST_F(ImportTest, zefaniaPartsLinesAndDropsReferences) {
    ASSERT_TRUE(importText(
        zefaniaChapter("<VERS vnumber=\"1\">one<BR art=\"x-nl\"/>two<XREF vref=\"3\"/> three"
                       "<NOTE type=\"x\">n</NOTE>four</VERS>")));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 one two three four"_s));
}

TEST_F(ImportTest, zefaniaNamesMayBeInSmallLetters) {
    ASSERT_TRUE(importText("<xmlbible><biblebook bname=\"Genesis\"><chapter cnumber=\"1\">"
                           "<vers vnumber=\"1\">one</vers></chapter></biblebook></xmlbible>"));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 one"_s));
}

TEST_F(ImportTest, theTextsOwnNameAndLicenceAreKept) {
    for (const char* format : {"osis", "zefania"}) {
        ASSERT_TRUE(importSample(sampleFormat(format), littleBible()));
        const QVariantList info = rowsOf(path, u"tblInfo"_s).value(0);
        EXPECT_EQ(info.value(0), u"Sample"_s);
        EXPECT_TRUE(info.value(1).toString().endsWith(u".xml"_s));
        EXPECT_EQ(info.value(2), u"Free"_s);
    }
}
