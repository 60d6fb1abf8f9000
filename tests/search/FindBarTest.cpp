#include "core/Settings.h"
#include "search/FindBarFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class FindBar : public FindBarFixture {};

struct Look {
    QString page;
    QString note;
    QString heading;
    QString lists;
    QString place;

    bool operator==(const Look&) const = default;
};

} // namespace

TEST_F(FindBar, showsTheHitAtTheTopOfThePageAndInTheLists) {
    findNext(u"begins"_s);
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
    EXPECT_EQ(listed(), u"Matthew 1 2"_s);
    EXPECT_EQ(window().Caption(), u"Lumenvia Professional King James [Matthew 1:2] "_s);
    EXPECT_EQ(position(), u"40:1:2"_s);
    expectReadingAgain();
}

TEST_F(FindBar, walksFromHitToHitInBothDirections) {
    const QStringList forward = {u"1:1:2"_s,  u"1:1:3"_s,  u"2:1:1"_s,   u"19:119:176"_s,
                                 u"40:1:1"_s, u"40:1:2"_s, u"66:22:21"_s};
    for (const QString& place : forward) {
        findNext(u"GRACE"_s);
        EXPECT_EQ(position(), place);
    }
    for (qsizetype hit = forward.size() - 2; hit >= 0; --hit) {
        findPrevious(u"grace"_s);
        EXPECT_EQ(position(), forward[hit]);
    }
    findPrevious(u"grace"_s);
    EXPECT_EQ(position(), u"1:1:1"_s);
}

TEST_F(FindBar, goesOnFromWhereTheReaderStandsByThen) {
    findNext(u"peace"_s);
    rsBible.Seek(u"="_s, 40, 1, 1);
    findNext(u"peace"_s);
    EXPECT_EQ(position(), u"66:22:21"_s);
}

TEST_F(FindBar, asksForATextWhereThereIsNone) {
    for (const int button : {7, 8}) {
        desktop.expectMessage(
            {u"Please enter some text to look for."_s, u"Need Text"_s, MessageIcon::Information});
        window().txtMain.SetFocus();
        window().txtFind.setText({});
        window().cmdMain(button).setValue(true);
        EXPECT_EQ(window().focusWidget(), &window().txtFind);
        EXPECT_EQ(position(), u"1:1:1"_s);
    }
}

TEST_F(FindBar, searchesOnEnter) {
    window().txtFind.SetFocus();
    QTest::keyClicks(&window().txtFind, u"begins"_s);
    QTest::keyClick(&window().txtFind, Qt::Key_Return);
    EXPECT_EQ(position(), u"40:1:2"_s);
    EXPECT_EQ(window().focusWidget(), &window().txtFind);
    EXPECT_TRUE(window().FindHasFocus);
    EXPECT_FALSE(window().MainHasFocus || window().NoteHasFocus);
}

TEST_F(FindBar, enterInTheEmptyBoxAsksForAText) {
    window().txtFind.SetFocus();
    desktop.expectMessage(
        {u"Please enter some text to look for."_s, u"Need Text"_s, MessageIcon::Information});
    QTest::keyClick(&window().txtFind, Qt::Key_Return);
    EXPECT_EQ(window().focusWidget(), &window().txtFind);
    EXPECT_EQ(position(), u"1:1:1"_s);
}

TEST_F(FindBar, saysWhatItIsFor) {
    EXPECT_EQ(window().txtFind.ToolTipText(), u"Enter text to search for"_s);
    EXPECT_EQ(window().cmdMain(8).ToolTipText(), u"Find next"_s);
    EXPECT_EQ(window().cmdMain(7).ToolTipText(), u"Find previous"_s);
}

TEST_F(FindBar, aLetterTypedIntoItTellsWhereTheFocusIs) {
    window().txtFind.SetFocus();
    window().MainHasFocus = true;
    window().NoteHasFocus = true;
    window().FindHasFocus = false;
    QTest::keyClick(&window().txtFind, Qt::Key_A);
    EXPECT_EQ(window().txtFind.Text(), u"a"_s);
    EXPECT_TRUE(window().FindHasFocus);
    EXPECT_FALSE(window().MainHasFocus || window().NoteHasFocus);
}

TEST_F(FindBar, acceptsASingleLetter) {
    findNext(u"y"_s);
    EXPECT_EQ(position(), u"19:119:176"_s);
}

TEST_F(FindBar, aMissIsToldAndLeavesEverything) {
    show(40, 1, 1);
    const auto look = [] {
        return Look{
            window().txtMain.TextRTF(), window().txtNote.Text(), window().lblCurrentNote.Caption(),
            listed(), position()};
    };
    const Look before = look();
    expectMissForward(u"xyzzy"_s);
    findNext(u"xyzzy"_s);
    EXPECT_EQ(window().Caption(), u"Searching for xyzzy"_s);
    expectMissBackward(u"xyzzy"_s);
    findPrevious(u"xyzzy"_s);
    EXPECT_TRUE(look() == before);
    expectReadingAgain();
    window().txtFind_MouseMove();
    EXPECT_TRUE(window().Caption().startsWith(u"Lumenvia Professional King James ["_s));
}

TEST_F(FindBar, doesNotGoOnAtTheOtherEnd) {
    rsBible.MoveLast();
    expectMissForward(u"grace"_s);
    findNext(u"grace"_s);
    EXPECT_EQ(position(), u"66:22:21"_s);
    rsBible.MoveFirst();
    expectMissBackward(u"grace"_s);
    findPrevious(u"grace"_s);
    EXPECT_EQ(position(), u"1:1:1"_s);
}

TEST_F(FindBar, aStarStandsForAnyRun) {
    findNext(u"grace*lord"_s);
    EXPECT_EQ(position(), u"66:22:21"_s);
    rsBible.MoveFirst();
    findNext(u"*"_s);
    EXPECT_EQ(position(), u"1:1:2"_s);
}

TEST_F(FindBar, addsOneVisitPerPress) {
    HistoryBook.fill(0);
    HistoryVerse.fill(0);
    findNext(u"grace"_s);
    findNext(u"grace"_s);
    EXPECT_EQ(HistoryBook[0], 1.F);
    EXPECT_EQ(HistoryVerse[0], 3.F);
    EXPECT_EQ(HistoryVerse[1], 2.F);
    EXPECT_EQ(HistoryBook[2], 0.F);
}

TEST_F(FindBar, aMissIsNoVisit) {
    HistoryBook.fill(0);
    expectMissForward(u"xyzzy"_s);
    findNext(u"xyzzy"_s);
    EXPECT_EQ(HistoryBook[0], 0.F);
}

TEST_F(FindBar, theNotePaneBelongsToTheHit) {
    findNext(u"Now grace"_s);
    EXPECT_EQ(window().txtNote.Text(), u"a note"_s);
    EXPECT_EQ(window().lblCurrentNote.Caption(), u"Your note for: Genesis 1:2"_s);
    findNext(u"begins"_s);
    window().txtNote.SetFocus();
    QTest::keyClicks(&window().txtNote, u"mine"_s);
    EXPECT_EQ(rsBible.Fields(5).Value(), u"mine "_s);
    rsBible.Seek(u"="_s, 1, 1, 1);
    EXPECT_TRUE(rsBible.Fields(5).Value().isNull());
}

TEST_F(FindBar, aVerseThatTheListLacksIsShownAllTheSame) {
    findNext(u"at last"_s);
    EXPECT_EQ(pageTop(), u"Psalms 119:176 My grace; at last."_s);
    EXPECT_EQ(window().cboBook.Text(), u"Psalms"_s);
    EXPECT_EQ(window().cboChapter.Text(), u"119"_s);
    EXPECT_EQ(position(), u"19:119:176"_s);
}

TEST_F(FindBar, dropsAQuerysResultWhileTheQueryStaysOn) {
    beInQuery(u"peace"_s);
    findNext(u"disgrace"_s);
    EXPECT_EQ(position(), u"1:1:3"_s);
    EXPECT_EQ(InQuery, On);
    EXPECT_EQ(QueryLock, On);
    EXPECT_EQ(HoldUpdates, Off);
    EXPECT_EQ(rsBible.RecordCount(), 9);
}

TEST_F(FindBar, aQueryWhoseResultItDroppedStillEnds) {
    beInQuery(u"peace"_s);
    findNext(u"disgrace"_s);
    ASSERT_EQ(InQuery, On);
    window().activateWindow();
    QTest::keyClick(&window(), Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(listed(), u"Genesis 1 3"_s);
    EXPECT_EQ(pageTop(), u"Genesis 1:3 A disgrace to all."_s);
    EXPECT_TRUE(window().cboBook.Enabled() && window().cmbTestament.Enabled());
    expectReadingAgain();
}

TEST_F(FindBar, aMissBehindTheLastHitOfAQueryLeavesPageAndLists) {
    beInQuery(u"peace"_s);
    window().UpDateBibleText(true);
    const QString page = window().txtMain.TextRTF();
    const QString lists = listed();
    rsBible.MoveLast();
    rsBible.MoveNext(); // as the index leaves it
    expectMissForward(u"xyzzy"_s);
    findNext(u"xyzzy"_s);
    EXPECT_EQ(window().txtMain.TextRTF(), page);
    EXPECT_EQ(listed(), lists);
    EXPECT_EQ(position(), u"1:1:1"_s);
    EXPECT_EQ(InQuery, On);
    EXPECT_EQ(HoldUpdates, Off);
}

TEST_F(FindBar, findsInTheRedLettersPrefixToo) {
    Verses verses = graceVerses();
    verses[7].body = QChar(30) + u"000 005grace begins this one."_s;
    startOn(verses);
    rsBible.MoveFirst();
    findNext(u"000 005"_s);
    EXPECT_EQ(position(), u"40:1:2"_s);
    EXPECT_EQ(pageTop(), u"Matthew 1:2 grace begins this one."_s);
}

TEST_F(FindBar, findsInADamagedPositionFromTheFirstRow) {
    rsBible.Seek(u"="_s, 50, 1, 1);
    findNext(u"grace"_s);
    EXPECT_EQ(position(), u"1:1:2"_s);
}
