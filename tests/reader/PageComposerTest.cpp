#include "reader/PageComposer.h"

#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString standardHeader =
    u"{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fnil Times New Roman;}}"
    u"{\\colortbl\\red0\\green0\\blue0;\\red0\\green0\\blue0;\\red255\\green0\\blue\\0;}"
    u"\\plain\\f0\\fs24\\cf1"_s;

const QString closing = u" "_s + QString(29, u'}');

class PageComposer : public ProgramFixture {
protected:
    static void seek(int book, int chapter, int verse) {
        rsBible.Seek(u"="_s, book, chapter, verse);
        ASSERT_FALSE(rsBible.NoMatch());
    }

    // What stands between the head and the closing braces.
    static QString composed(bool WholeChapter = true) {
        QString rtf = composePage(WholeChapter).rtf;
        EXPECT_TRUE(rtf.startsWith(u"{\\rtf1"_s));
        EXPECT_TRUE(rtf.endsWith(closing));
        rtf.chop(closing.size());
        return rtf.mid(rtf.indexOf(u"\\cf1"_s) + 4);
    }

    static qsizetype verses(const QString& page) { return page.count(u" \\par "_s); }
};

} // namespace

TEST_F(PageComposer, writesThePageToTheLetter) {
    openTranslation(
        {{1, 1, 1, u"In the beginning"_s},
         {1, 1, 2, u"And the earth"_s},
         {1, 1, 3, u"And God"_s},
         {1, 2, 1, u"Thus"_s}});
    EXPECT_EQ(
        composePage(true).rtf.toStdString(),
        (standardHeader
         + u"{\\b Genesis\\b0} {\\b 1:1\\b0} In the beginning \\par "
           u"{\\b Genesis\\b0} \\li200\\fi-200{\\b 1:2\\b0} And the earth \\par "
           u"{\\b Genesis\\b0} \\li200\\fi-200{\\b 1:3\\b0} And God \\par "_s
         + closing)
            .toStdString());
    EXPECT_EQ(position(), u"1:2:1"_s);
}

TEST_F(PageComposer, theHeadFollowsTheUsersFontAndColours) {
    openTranslation(chapterOf(1, 1, 1));
    MainFontName = u"  Arial "_s;
    MainFontSize = 10.5;
    TextRed = 1;
    TextGreen = 2;
    TextBlue = 3;
    MainBold = -1; // plays no part
    EXPECT_TRUE(composePage(true).rtf.startsWith(
        u"{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fnil Arial;}}"
        u"{\\colortbl\\red0\\green0\\blue0;\\red1\\green2\\blue3;\\red255\\green0\\blue\\0;}"
        u"\\plain\\f0\\fs21\\cf1"_s));
}

TEST_F(PageComposer, withoutIndentTheHeadingsResetIt) {
    openTranslation(chapterOf(1, 1, 2) + chapterOf(1, 2, 1));
    DisplayIndent = 0;
    EXPECT_EQ(
        composed(), u"{\\b Genesis\\b0} {\\b 1:1\\b0} Verse 1:1:1. \\par "
                    u"{\\b Genesis\\b0} \\li0\\fi-0{\\b 1:2\\b0} Verse 1:1:2. \\par "_s);
}

TEST_F(PageComposer, withoutHeadingsEachLineIsTheVerseAlone) {
    openTranslation(chapterOf(1, 1, 2) + chapterOf(1, 2, 1));
    DisplayBook = 0;
    DisplayChapterVerse = 0;
    EXPECT_EQ(composed(), u"Verse 1:1:1. \\par Verse 1:1:2. \\par "_s);
}

TEST_F(PageComposer, headingsMayShowTheBookOrThePlaceAlone) {
    openTranslation(chapterOf(1, 1, 1) + chapterOf(1, 2, 1));
    DisplayBook = 0;
    EXPECT_EQ(composed(), u"{\\b 1:1\\b0} Verse 1:1:1. \\par "_s);
    DisplayBook = 1;
    DisplayChapterVerse = 0;
    seek(1, 1, 1);
    EXPECT_EQ(composed(), u"{\\b Genesis\\b0} Verse 1:1:1. \\par "_s);
}

TEST_F(PageComposer, aSwitchThatIsNotOneIsOff) {
    openTranslation(chapterOf(1, 1, 2) + chapterOf(1, 2, 1));
    for (const double value : {-1.0, 2.0, 0.5}) {
        seek(1, 1, 1);
        DisplayBook = value;
        DisplayChapterVerse = 1;
        DisplayIndent = value;
        EXPECT_EQ(
            composed(),
            u"{\\b 1:1\\b0} Verse 1:1:1. \\par \\li0\\fi-0{\\b 1:2\\b0} Verse 1:1:2. \\par "_s)
            << value;
        seek(1, 1, 1);
        DisplayChapterVerse = value;
        EXPECT_EQ(composed(), u"Verse 1:1:1. \\par Verse 1:1:2. \\par "_s) << value;
    }
}

TEST_F(PageComposer, runsToTheEndOfTheChapterFromWhereTheCursorStands) {
    openTranslation(sampleVerses());
    seek(19, 119, 1);
    const QString psalm = composed();
    EXPECT_EQ(verses(psalm), 176);
    EXPECT_EQ(position(), u"40:1:1"_s);
    seek(19, 119, 170);
    EXPECT_EQ(verses(composed()), 7);
}

TEST_F(PageComposer, withoutWholeChapterTheSettingSizesThePage) {
    openTranslation(sampleVerses());
    VersesPerPage = 40;
    const ComposedPage page = composePage(false);
    EXPECT_EQ(verses(page.rtf), 41);
    EXPECT_EQ(page.shown, 41);
    EXPECT_EQ(position(), u"1:2:11"_s);
}

TEST_F(PageComposer, nearTheTablesEndAPageOfTheSettingsSizeEndsWithIt) {
    openTranslation(sampleVerses());
    seek(66, 22, 15);
    const ComposedPage page = composePage(false);
    EXPECT_EQ(verses(page.rtf), 7);
    EXPECT_EQ(page.shown, 7);
    EXPECT_TRUE(page.rtf.endsWith(u"Verse 66:22:21. \\par "_s + closing));
    EXPECT_EQ(position(), u"66:22:21"_s);
}

// The verses are counted in sixteen bits: beyond 32,767 the count stands, the walk goes on to the
// chapter's end, and so many rows back from there the page begins.
TEST_F(PageComposer, aChapterBeyondTheCountLosesItsHead) {
    Verses endless;
    for (int verse = 1; verse <= 32'800; ++verse)
        endless.append({1, 1, verse, QString::number(verse)});
    openTranslation(endless + chapterOf(1, 2, 1));
    DisplayBook = 0;
    DisplayChapterVerse = 0;
    const QString page = composed();
    EXPECT_EQ(verses(page), 32'767);
    EXPECT_TRUE(page.startsWith(u"34 \\par 35 \\par "_s)) << page.left(40).toStdString();
    EXPECT_TRUE(page.endsWith(u"32800 \\par "_s)) << page.right(40).toStdString();
}

TEST_F(PageComposer, inTheLastChapterThePageBeginsOneVerseLate) {
    openTranslation(sampleVerses());
    seek(66, 22, 1);
    const QString page = composed();
    EXPECT_FALSE(page.contains(u"Verse 66:22:1."_s));
    EXPECT_TRUE(page.contains(u"Verse 66:22:2."_s));
    EXPECT_TRUE(page.contains(u"Verse 66:22:21."_s));
    EXPECT_EQ(verses(page), 20);
}

TEST_F(PageComposer, fromTheLastVerseThePageIsEmpty) {
    openTranslation(sampleVerses());
    rsBible.MoveLast();
    EXPECT_EQ(composed(), QString());
}

TEST_F(PageComposer, bookOfOneChapterRunsOnIntoTheNextOne) {
    openTranslation(
        chapterOf(63, 1, 3) + chapterOf(64, 1, 2) + chapterOf(65, 1, 2) + chapterOf(66, 22, 1));
    const QString page = composed();
    EXPECT_TRUE(page.contains(u"{\\b John II\\b0}"_s));
    EXPECT_TRUE(page.contains(u"{\\b John III\\b0}"_s));
    EXPECT_TRUE(page.contains(u"{\\b Jude\\b0}"_s));
    EXPECT_EQ(verses(page), 7);
}

TEST_F(PageComposer, aRunWithinABookEndsWithItsChapter) {
    openTranslation(chapterOf(1, 1, 2) + chapterOf(2, 2, 2));
    EXPECT_EQ(verses(composed()), 2);
}

TEST_F(PageComposer, redLettersAreColouredUnlessSwitchedOff) {
    openTranslation({{40, 1, 1, QChar(30) + u"004:002ab cdEF gh"_s}, {40, 2, 1, u"x"_s}});
    DisplayBook = 0;
    DisplayChapterVerse = 0;
    EXPECT_EQ(composed(), u"ab c\\cf2dE \\cf1F gh \\par "_s);
    seek(40, 1, 1);
    ShowRedLetter = 0;
    EXPECT_EQ(composed(), u"ab cdEF gh \\par "_s);
}

TEST_F(PageComposer, aRowThatCannotBeReadLeavesItsPartEmpty) {
    openTranslation({{1, 1, 1, u"one"_s}, {1, 1, 2, {}}, {1, 2, 1, u"x"_s}});
    rsBible.MoveNext();
    rsBible.Edit();
    rsBible.Fields(4) = QVariant();
    rsBible.Update();
    seek(1, 1, 1);
    EXPECT_EQ(
        composed(), u"{\\b Genesis\\b0} {\\b 1:1\\b0} one \\par "
                    u"{\\b Genesis\\b0} \\li200\\fi-200{\\b 1:2\\b0}  \\par "_s);
}

TEST_F(PageComposer, aBookOutsideTheBibleHasAnEmptyName) {
    openTranslation({{99, 1, 1, u"x"_s}, {99, 2, 1, u"y"_s}});
    EXPECT_EQ(composed(), u"{\\b \\b0} {\\b 1:1\\b0} x \\par "_s);
}

TEST_F(PageComposer, anEmptyOrMissingCursorGivesAnEmptyPage) {
    openTranslation({});
    EXPECT_EQ(composed(), QString());
    EXPECT_EQ(composed(false), QString());
    rsBible = {};
    EXPECT_EQ(composed(), QString());
    EXPECT_EQ(composed(false), QString());
}

TEST_F(PageComposer, beforeTheFirstRowThePageBeginsWithIt) {
    openTranslation(sampleVerses());
    rsBible.MovePrevious();
    ASSERT_TRUE(rsBible.Bof());
    const QString page = composed(false);
    EXPECT_TRUE(page.startsWith(u"{\\b Genesis\\b0} {\\b 1:1\\b0} Verse 1:1:1. \\par "_s))
        << page.left(80).toStdString();
    EXPECT_EQ(verses(page), VersesPerPage + 1);
}

TEST_F(PageComposer, stepBackStopsOnTheFirstRow) {
    openTranslation(sampleVerses());
    seek(1, 1, 5);
    stepBack(3);
    EXPECT_EQ(position(), u"1:1:2"_s);
    stepBack(2); // the last step leaves the first row behind
    EXPECT_EQ(position(), u"1:1:1"_s);
    stepBack(1000);
    EXPECT_EQ(position(), u"1:1:1"_s);
}
