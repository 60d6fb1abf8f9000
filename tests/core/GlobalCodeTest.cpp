#include "core/GlobalCode.h"

#include "Configuration.h"
#include "basic/Error.h"
#include "core/Catalogue.h"
#include "core/Settings.h"
#include "desktop/HostPath.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class GlobalCode : public ProgramFixture {
protected:
    static Message missing(const QString& title) {
        return {
            u"KJV.mdb is not in "_s + programFolder() + u"\r\n\r\nGet your free copy from "_s
                + configuration::HomeUrl + u"\r\n\r\nContact "_s + configuration::SupportAddress
                + u" for more info if needed."_s,
            title, MessageIcon::Information};
    }
};

} // namespace

TEST_F(GlobalCode, initGlobalsResetsTheSharedState) {
    SkipComboClick = On;
    InQuery = On;
    TipsRequested = On;
    QueryWords.fill(u"x"_s);
    QueryOperators.fill(u"x"_s);
    for (int time = 0; time < 2; ++time) {
        InitGlobals();
        EXPECT_EQ(SkipComboClick, Off);
        EXPECT_EQ(InQuery, Off);
        EXPECT_EQ(TipsRequested, Off);
        EXPECT_EQ(IndexText, u"31222"_s);
        EXPECT_EQ(QueryWords[6], QString());
        EXPECT_EQ(QueryOperators[5], u"OR"_s);
        EXPECT_EQ(QueryOperators.size(), 6U);
    }
}

TEST_F(GlobalCode, theHelpFileIsSetOnlyWhereItIsFound) {
    QDir::setCurrent(QDir::rootPath()); // where the bare name is no path
    InitGlobals();
    EXPECT_EQ(HelpFile, QString());
    QFile help(programFile(u"bible.hlp"_s));
    ASSERT_TRUE(help.open(QIODevice::WriteOnly));
    InitGlobals();
    const QString path = programFolder() + u"\\bible.hlp"_s;
    EXPECT_EQ(HelpFile, path);
    ASSERT_TRUE(help.remove());
    InitGlobals();
    EXPECT_EQ(HelpFile, path);
}

TEST_F(GlobalCode, aReferenceIsBookChapterAndVerse) {
    openTranslation(sampleVerses());
    EXPECT_EQ(VerseReference(), u"Genesis 1:1"_s);
    rsBible.Seek(u"="_s, 19, 119, 176);
    EXPECT_EQ(VerseReference(), u"Psalms 119:176"_s);
}

TEST_F(GlobalCode, aReferenceWithoutARowGoesToTheFirstAndDrawsItsPage) {
    openTranslation(sampleVerses());
    rsBible.Seek(u"="_s, 50, 1, 1);
    EXPECT_EQ(VerseReference(), u"Genesis 1:1"_s);
    EXPECT_TRUE(form<frmMain>().txtMain.Text().contains(u"Verse 1:1:31."_s));
}

TEST_F(GlobalCode, aReferenceOnAnEmptyCursorIsEmptyAndDrawsNothing) {
    openTranslation({});
    EXPECT_EQ(VerseReference(), QString());
    rsBible = {};
    EXPECT_EQ(VerseReference(), QString());
    EXPECT_EQ(form<frmMain>().txtMain.Text(), QString());
}

TEST_F(GlobalCode, aReferenceOfARowWithoutABookGoesToTheFirstAndDrawsItsPage) {
    openTranslation(chapterOf(1, 1, 3) + chapterOf(1, 2, 2));
    OpenBibleDynaset(); // in the order of the rows, where Null is not the first
    for (int step = 0; step < 3; ++step)
        rsBible.MoveNext();
    rsBible.Edit();
    rsBible.Fields(1) = QVariant();
    rsBible.Update();
    EXPECT_EQ(VerseReference(), u"Genesis 1:1"_s);
    EXPECT_EQ(position(), u"1:1:1"_s);
    const QString page = form<frmMain>().txtMain.Text();
    EXPECT_TRUE(page.startsWith(u"Genesis 1:1 Verse 1:1:1."_s)) << page.toStdString();
    EXPECT_TRUE(page.endsWith(u"Verse 1:1:3. "_s)) << page.toStdString();
}

TEST_F(GlobalCode, aBookOutsideTheBibleHasNoName) {
    openTranslation({{0, 1, 1, u"zero"_s}, {99, 2, 3, u"many"_s}});
    EXPECT_EQ(VerseReference(), u" 1:1"_s);
    rsBible.MoveNext();
    EXPECT_EQ(VerseReference(), u" 2:3"_s);
}

TEST_F(GlobalCode, openBibleTableStandsOnTheFirstRowOfTheIndex) {
    openTranslation({{40, 1, 1, u"later"_s}, {1, 1, 1, u"first"_s}});
    OpenBibleDynaset();
    EXPECT_EQ(position(), u"40:1:1"_s);
    EXPECT_THROW(rsBible.Seek(u"="_s, 1, 1, 1), Error);
    OpenBibleTable();
    EXPECT_EQ(position(), u"1:1:1"_s);
    rsBible.Seek(u"="_s, 40, 1, 1);
    EXPECT_FALSE(rsBible.NoMatch());
}

TEST_F(GlobalCode, openBibleTableReturnsAtOnceWhileStartingUp) {
    openTranslation(sampleVerses());
    rsBible.MoveLast();
    StartingUp = On;
    OpenBibleTable();
    EXPECT_EQ(position(), u"66:22:21"_s);
    OpenBibleDynaset();
    EXPECT_EQ(position(), u"1:1:1"_s);
}

TEST_F(GlobalCode, aFileThatIsGoneIsToldAndTheOldCursorStays) {
    openTranslation(sampleVerses());
    rsBible.MoveLast();
    ASSERT_TRUE(QFile::remove(programFile(u"KJV.mdb"_s)));
    desktop.expectMessage(missing(u"Plug in not found"_s));
    OpenBibleTable();
    desktop.expectMessage(missing(u"Not Found"_s));
    OpenBibleDynaset();
    EXPECT_EQ(position(), u"66:22:21"_s);
}

TEST_F(GlobalCode, aReopeningRecoversFromAClosedCursor) {
    openTranslation(sampleVerses());
    rsBible.Close();
    OpenBibleTable();
    EXPECT_EQ(position(), u"1:1:1"_s);
}
