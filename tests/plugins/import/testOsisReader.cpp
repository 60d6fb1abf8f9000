// What is peculiar to whole documents in OSIS.
#include "plugins/import/ImportFixture.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray document(const QByteArray& body) {
    return "<osis><osisText><div type=\"book\" osisID=\"John\">" + body
           + "</div></osisText></osis>";
}

} // namespace

TEST_F(ImportTest, osisQuotationsGoOnAcrossVerses) {
    ASSERT_TRUE(importText(
        document("<verse sID=\"a\" osisID=\"John.1.1\"/>He: <q sID=\"q\" who=\"Jesus\"/>Come<verse "
                 "eID=\"a\"/><verse sID=\"b\" osisID=\"John.1.2\"/>and see.<q eID=\"q\"/> So<verse "
                 "eID=\"b\"/>")));
    EXPECT_EQ(
        stored(),
        QStringList({u"John 1:1 \u001E004:004He: Come"_s, u"John 1:2 \u001E000:008and see. So"_s}));
}

TEST_F(ImportTest, osisAContainerOfRedHoldsSeveralVerses) {
    ASSERT_TRUE(importText(document(
        "<q who=\"Jesus\"><verse osisID=\"John.1.1\">Come</verse><verse osisID=\"John.1.2\">see"
        "</verse></q><verse osisID=\"John.1.3\">So</verse>")));
    EXPECT_EQ(
        stored(),
        QStringList(
            {u"John 1:1 \u001E000:004Come"_s, u"John 1:2 \u001E000:003see"_s, u"John 1:3 So"_s}));
}

TEST_F(ImportTest, osisAddressesMayNameTheirWorkAndSeveralVerses) {
    ASSERT_TRUE(importText(document(
        "<verse osisID=\"Bible.KJV:John.1.1\">one</verse><verse osisID=\"John.1.2 John.1.3\">two"
        "</verse><verse osisID=\"John.1.4!a\">three</verse><verse osisID=\"John.1.4!b\">four"
        "</verse>")));
    EXPECT_EQ(
        stored(), QStringList({u"John 1:1 one"_s, u"John 1:2 two"_s, u"John 1:4 three four"_s}));
    EXPECT_TRUE(out.contains(u"kept at the first one: John 1:2-3\n"_s)) << qPrintable(out);
}

TEST_F(ImportTest, osisDropsHeadingsIntroductionsAndWhatFollowsTheBook) {
    ASSERT_TRUE(importText(document(
        "<title>John</title><div type=\"introduction\"><p>Of this book</p></div><chapter "
        "osisID=\"John.1\"><title>One</title><verse osisID=\"John.1.1\">one</verse></chapter>"
        "<div type=\"colophon\">Written</div></div><div type=\"glossary\"><p>Abba</p>")));
    EXPECT_EQ(stored(), QStringList(u"John 1:1 one"_s));
    EXPECT_TRUE(out.contains(u"words outside of verses left out: John"_s)) << qPrintable(out);
}

TEST_F(ImportTest, osisVersesInPoetryKeepTheirLinesApart) {
    ASSERT_TRUE(importText(document(
        "<lg><l><verse sID=\"a\" osisID=\"John.1.1\"/>one</l><l>two<verse eID=\"a\"/></l></lg>")));
    EXPECT_EQ(stored(), QStringList(u"John 1:1 one two"_s));
}

TEST_F(ImportTest, osisAMilestoneThatIsNeverEndedEndsWithTheNext) {
    ASSERT_TRUE(importText(document("<verse sID=\"a\" osisID=\"John.1.1\"/>one<verse sID=\"b\" "
                                    "osisID=\"John.1.2\"/>two")));
    EXPECT_EQ(stored(), QStringList({u"John 1:1 one"_s, u"John 1:2 two"_s}));
}

TEST_F(ImportTest, osisAnAddressThatIsNoneIsLeftOutAndSaid) {
    ASSERT_TRUE(importText(
        document("<verse osisID=\"John.1.1\">one</verse><verse osisID=\"John.x\">two</verse>")));
    EXPECT_EQ(stored(), QStringList(u"John 1:1 one"_s));
    EXPECT_TRUE(out.contains(u"their numbers cannot be read: John x:\n"_s)) << qPrintable(out);
}
