#include "plugins/works/SmallCommentary.h"
#include "plugins/works/WorkFixture.h"

#include "readers/SwordComments.h"
#include "text/CommentText.h"

using namespace Qt::StringLiterals;

namespace {

class Comments : public WorkFixture {
protected:
    QList<QVariantList> rows() {
        commentary.writeTo(modules.path());
        return made(u"comment"_s, u"comment.mdb"_s, u"tblComment"_s);
    }

    SmallCommentary commentary;
};

QString flattened(const QString& fragment) {
    CommentText text;
    visitFragment(fragment, text);
    return text.takeText();
}

} // namespace

TEST_F(Comments, oneRowAChapterInCanonicalOrder) {
    commentary.entries = {
        {"Gen 1:1", "one"}, {"Gen 1:3", "two"}, {"Gen 2:1", "three"}, {"Rev 22:1", "four"}};
    EXPECT_EQ(
        rows(), QList<QVariantList>({
                    {1LL, 1LL, 1LL, u"one\r\ntwo"_s},
                    {2LL, 1LL, 2LL, u"three"_s},
                    {3LL, 66LL, 22LL, u"four"_s},
                }));
}

TEST_F(Comments, anEntryOfSeveralVersesComesOnce) {
    commentary.entries = {{"Gen 1:1", "one "}, {"Gen 1:4", "two "}};
    commentary.links = {{"Gen 1:2", "Gen 1:1"}, {"Gen 1:3", "Gen 1:1"}, {"Gen 1:5", "Gen 1:4"}};
    EXPECT_EQ(rows(), QList<QVariantList>({{1LL, 1LL, 1LL, u"one\r\ntwo"_s}}));
}

TEST_F(Comments, introductionsOpenTheirChapter) {
    commentary.entries = {
        {"Jude 1:0", "<div type=\"x-p\"/>intro of the chapter<div type=\"x-p\"/>"},
        {"Jude 0:0", "<title>Jude</title>"},
        {"Jude 1:1", "comment"}};
    EXPECT_EQ(
        rows(),
        QList<QVariantList>({{1LL, 65LL, 1LL, u"Jude\r\nintro of the chapter\r\ncomment"_s}}));
}

TEST_F(Comments, theLayoutOfTheFilesCountsAndNotTheDescription) {
    commentary.entries = {{"Matt 5:3", "blessed"}};
    const auto expected = QList<QVariantList>({{1LL, 40LL, 5LL, u"blessed"_s}});
    EXPECT_EQ(rows(), expected);
    ASSERT_TRUE(QFile::remove(folder.filePath(u"comment.mdb"_s)));
    commentary.declaredDriver = "zCom";
    EXPECT_EQ(rows(), expected);
}

TEST_F(Comments, saysWhereItIsFrom) {
    commentary.entries = {{"Gen 1:1", "one"}};
    rows();
    const QVariantList info = rowsOf(folder.filePath(u"comment.mdb"_s), u"tblInfo"_s).at(0);
    EXPECT_EQ(info[0], u"A small commentary"_s);
    EXPECT_EQ(info[1], u"SWORD module MHCC 2.0"_s);
    EXPECT_EQ(info[2], u"Public Domain"_s);
}

TEST_F(Comments, filesThatAreCutOffAreAnErrorThatNamesTheFile) {
    commentary.entries = {{"Gen 1:1", "one"}, {"Matt 1:1", "two"}};
    for (const QString& name : {u"ot.bzv"_s, u"nt.bzs"_s, u"ot.bzz"_s}) {
        commentary.writeTo(modules.path());
        QFile file(SmallCommentary::file(modules.path(), name));
        ASSERT_TRUE(file.resize(file.size() - 5));
        const ToolRun run = make(u"comment"_s);
        EXPECT_EQ(run.exitCode, 1);
        EXPECT_TRUE(
            run.errors.contains(name) && run.errors.contains(u"Install its package again"_s))
            << qPrintable(run.errors);
    }
    EXPECT_TRUE(filesIn(folder.path()).isEmpty());
}

TEST_F(Comments, anEntryInABlockThatIsNotThereIsAnError) {
    commentary.entries = {{"Gen 1:1", "one"}, {"Matt 1:1", "two"}};
    commentary.writeTo(modules.path());
    ASSERT_TRUE(QFile::resize(SmallCommentary::file(modules.path(), u"nt.bzs"_s), 0));
    const ToolRun run = make(u"comment"_s);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(run.errors.contains(u"nt.bzs is cut off."_s)) << qPrintable(run.errors);
}

TEST_F(Comments, aCommentaryWithoutACommentIsAnError) {
    commentary.entries = {{"Gen 1:1", "<chapter osisID=\"Gen.1\"/>"}};
    commentary.writeTo(modules.path());
    EXPECT_TRUE(make(u"comment"_s).errors.contains(u"holds no comment."_s));
}

TEST(CommentText, headingsAndRowsAreLinesAndSectionsArePartedByAnEmptyOne) {
    EXPECT_EQ(
        flattened(u"<title>Chapter 1</title> <title>Outline</title> <table><row><cell>Light.</cell>"
                  u"<cell>(3-5)</cell></row></table> <hi type=\"bold\">Verses 1-2</hi> "
                  u"<div type=\"x-p\" sID=\"a\"/> The  first.<div type=\"x-p\" eID=\"a\"/>More."_s),
        u"Chapter 1\r\n\r\nOutline\r\nLight. (3-5)\r\n\r\nVerses 1-2\r\nThe first.\r\nMore."_s);
}

TEST(CommentText, numbersOfVersesLoseTheirMarks) {
    EXPECT_EQ(flattened(u" --See ver. #(2) and {3}"_s), u"See ver. 2 and [3]"_s);
}

TEST(CommentText, damagedMarkupIsTakenAsPlainText) {
    CommentText text;
    EXPECT_FALSE(visitFragment(u"<hi>one</div> &amp; two"_s, text));
    EXPECT_EQ(text.takeText(), u"one & two"_s);
}
