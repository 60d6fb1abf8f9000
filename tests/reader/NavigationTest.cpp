#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "study/History.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString title = u"Lumenvia Professional King James ["_s;

class Navigation : public ProgramFixture {
protected:
    void SetUp() override {
        startProgram();
        HistoryBook.fill(0);
    }

    static frmMain& window() { return form<frmMain>(); }

    static QString page() { return window().txtMain.Text(); }

    // The user picks a row of a list, the selected one too.
    static void pick(ComboBox& list, int index) {
        list.setCurrentIndex(index);
        Q_EMIT list.activated(index);
    }

    static void expectFlagsDown() {
        for (const Flag flag :
             {StartingUp, HoldUpdates, SkipComboClick, QueryLock, SettingCombos, InQuery})
            EXPECT_EQ(flag, Off);
    }

    static QString newestVisit() {
        return u"%1:%2:%3"_s.arg(HistoryBook[0]).arg(HistoryChapter[0]).arg(HistoryVerse[0]);
    }
};

} // namespace

TEST_F(Navigation, aBookOpensAtItsFirstChapter) {
    pick(window().cboBook, 39);
    EXPECT_TRUE(page().startsWith(u"Matthew 1:1 "_s));
    EXPECT_EQ(window().cboChapter.ListCount(), 28);
    EXPECT_EQ(window().cboChapter.ListIndex(), 0);
    EXPECT_EQ(window().cboVerse.ListIndex(), 0);
    EXPECT_TRUE(window().txtMain.hasFocus());
    expectFlagsDown();
}

TEST_F(Navigation, afterABookTheTitleNamesTheRewoundRow) {
    pick(window().cboBook, 39);
    EXPECT_EQ(window().Caption(), title + VerseReference() + u"] "_s);
    EXPECT_EQ(window().lblCurrentNote.Caption(), u"Your note for: "_s + VerseReference());
    EXPECT_EQ(position(), u"19:119:161"_s);
}

TEST_F(Navigation, aBookOfOneChapterHasOneEntry) {
    pick(window().cboBook, 30);
    EXPECT_EQ(window().cboChapter.ListCount(), 1);
    EXPECT_EQ(window().cboChapter.List(0), u"1"_s);
}

TEST_F(Navigation, aChapterOpensAtItsFirstVerse) {
    pick(window().cboBook, 39);
    pick(window().cboVerse, 4);
    pick(window().cboChapter, 1);
    EXPECT_EQ(window().cboVerse.ListIndex(), 0);
    EXPECT_TRUE(page().startsWith(u"Matthew 2:1 "_s));
    EXPECT_EQ(window().Caption(), title + u"Matthew 2:1] "_s);
    expectFlagsDown();
}

TEST_F(Navigation, aVerseOpensThePageFromThere) {
    pick(window().cboBook, 39);
    pick(window().cboVerse, 9);
    EXPECT_TRUE(page().startsWith(u"Matthew 1:10 "_s));
    EXPECT_EQ(window().Caption(), title + u"Matthew 1:10] "_s);
    EXPECT_TRUE(window().txtMain.hasFocus());
}

TEST_F(Navigation, aVerseThatDoesNotExistWalksDownToTheLast) {
    pick(window().cboBook, 0);
    pick(window().cboVerse, 39);
    EXPECT_EQ(window().cboVerse.ListIndex(), 30);
    EXPECT_TRUE(page().startsWith(u"Genesis 1:31 "_s));
    EXPECT_EQ(window().Caption(), title + u"Genesis 1:31] "_s);
    expectFlagsDown();
}

TEST_F(Navigation, aChapterWithoutVersesLeavesTheListEmpty) {
    pick(window().cboBook, 0);
    pick(window().cboChapter, 9);
    pick(window().cboVerse, 3);
    EXPECT_EQ(window().cboVerse.ListIndex(), -1);
    expectFlagsDown();
}

TEST_F(Navigation, theVerseListEndsAtAHundredAndSeventyFive) {
    EXPECT_EQ(window().cboVerse.ListCount(), 175);
    pick(window().cboBook, 18);
    pick(window().cboChapter, 118);
    EXPECT_EQ(window().cboVerse.ListCount(), 175);
    pick(window().cboVerse, 174);
    EXPECT_TRUE(page().startsWith(u"Psalms 119:175 "_s));
}

TEST_F(Navigation, aVerseRecordsAVisitOfTheRewoundRow) {
    VersesPerPage = 24;
    pick(window().cboBook, 39);
    EXPECT_EQ(HistoryBook[0], 0); // no verse was picked
    pick(window().cboVerse, 9);
    EXPECT_EQ(newestVisit(), position());
    pick(window().cboVerse, 9);
    EXPECT_EQ(HistoryBook[1], 0); // the same visit again is none
    EXPECT_EQ(HistoryDate[0], QLocale().toString(desktop.clock, QLocale::ShortFormat));
}

TEST_F(Navigation, noVisitIsRecordedWhileHistoryIsBrowsed) {
    NoHistory = On;
    pick(window().cboVerse, 9);
    NoHistory = Off;
    EXPECT_EQ(HistoryBook[0], 0);
}

TEST_F(Navigation, theOldestVisitFallsOut) {
    HistoryBook.fill(7);
    HistoryDate[99] = u"next to last"_s;
    pick(window().cboVerse, 9);
    EXPECT_EQ(HistoryDate[100], u"next to last"_s);
    EXPECT_EQ(newestVisit(), position());
}

TEST_F(Navigation, theStartRecordsNoVisit) {
    EXPECT_EQ(HistoryVerse[0], 0);
}

TEST_F(Navigation, heldListsDoNothing) {
    const QString before = page();
    for (Flag* flag : {&HoldUpdates, &SkipComboClick, &QueryLock}) {
        *flag = On;
        const QString place = position();
        pick(window().cboBook, 39);
        pick(window().cboVerse, 5);
        EXPECT_EQ(page(), before);
        EXPECT_EQ(position(), place);
        *flag = Off;
    }
}

TEST_F(Navigation, aChapterClickInAQueryDoesNothing) {
    QueryLock = On;
    InQuery = On;
    const QString before = page();
    pick(window().cboChapter, 3);
    EXPECT_EQ(page(), before);
}

TEST_F(Navigation, whileCodeSetsTheListsNoneOfThemActs) {
    const QString before = page();
    const QString place = position();
    SettingCombos = On;
    pick(window().cboBook, 18);
    pick(window().cboChapter, 118);
    pick(window().cboVerse, 9);
    SettingCombos = Off;
    EXPECT_EQ(page(), before);
    EXPECT_EQ(position(), place);
    EXPECT_EQ(window().cboChapter.ListCount(), 150);
    EXPECT_EQ(HistoryBook[0], 0);
}

TEST_F(Navigation, theTestamentsAreJumps) {
    pick(window().cmbTestament, 2);
    EXPECT_TRUE(page().startsWith(u"Matthew 1:1 "_s));
    EXPECT_EQ(window().cboBook.ListIndex(), 39);
    EXPECT_EQ(window().cboBook.ListCount(), 66);
    EXPECT_EQ(window().Caption(), title + u"Matthew 1:1] "_s);
    pick(window().cmbTestament, 1);
    EXPECT_TRUE(page().startsWith(u"Genesis 1:1 "_s));
    EXPECT_EQ(window().cboBook.ListIndex(), 0);
    pick(window().cmbTestament, 2);
    pick(window().cmbTestament, 0);
    EXPECT_TRUE(page().startsWith(u"Genesis 1:1 "_s));
    expectFlagsDown();
}

TEST_F(Navigation, testamentsRefuseInAQuery) {
    QueryLock = On;
    desktop.expectMessage(
        {u"Feature unavailable while in a Query. Press Ctrl+J to end the query."_s,
         u"Tool Not Available"_s, MessageIcon::Information});
    pick(window().cmbTestament, 2);
    EXPECT_EQ(window().cboBook.ListIndex(), 0);
}

TEST_F(Navigation, testamentsAreSilentWhileStartingUp) {
    StartingUp = On;
    QueryLock = On;
    pick(window().cmbTestament, 2);
    StartingUp = Off;
    EXPECT_EQ(window().cboBook.ListIndex(), 0);
}

TEST_F(Navigation, theTreeOpensBooksAndChaptersAndLeavesTheLists) {
    window().Tree_NodeClick(u"X19"_s); // Psalm 1 is not in this text
    window().Tree_NodeClick(u"40:2"_s);
    EXPECT_TRUE(page().startsWith(u"Matthew 2:1 "_s));
    EXPECT_EQ(window().Caption(), title + u"Matthew 2:1] "_s);
    window().Tree_NodeClick(u"X40"_s);
    EXPECT_TRUE(page().startsWith(u"Matthew 1:1 "_s));
    EXPECT_EQ(window().cboBook.ListIndex(), 0);
}

TEST_F(Navigation, rootsOfTheTreeMoveNothing) {
    const QString before = page();
    const QString place = position();
    for (const QString& key : {u"Root1"_s, u"Root2"_s, QString(), u":1"_s})
        window().Tree_NodeClick(key);
    EXPECT_EQ(page(), before);
    EXPECT_EQ(position(), place);
}

TEST_F(Navigation, theTreeIsClickedByMouse) {
    TreeView& tree = window().tree;
    tree.expandItem(const_cast<QTreeWidgetItem*>(tree.node(u"Root2"_s)));
    const QRect place = tree.visualItemRect(tree.node(u"X40"_s));
    pick(window().cboBook, 0);
    ASSERT_TRUE(page().startsWith(u"Genesis 1:1 "_s));
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place.center());
    EXPECT_TRUE(page().startsWith(u"Matthew 1:1 "_s));
}

TEST_F(Navigation, aSeekThatFailsShowsTheFirstPage) {
    pick(window().cboBook, 49);
    EXPECT_TRUE(page().startsWith(u"Genesis 1:1 "_s)) << page().toStdString();
    expectFlagsDown();
}

TEST_F(Navigation, theListsFollowTheCursor) {
    rsBible.Seek(u"="_s, 40, 2, 5);
    window().SyncCombosToCursor();
    EXPECT_EQ(window().cboBook.ListIndex(), 39);
    EXPECT_EQ(window().cboChapter.ListIndex(), 1);
    EXPECT_EQ(window().cboVerse.ListIndex(), 4);
    EXPECT_TRUE(page().startsWith(u"Matthew 2:5 "_s)); // the verse acts
    expectFlagsDown();
}

TEST_F(Navigation, aListWithTheFocusSaysWhatItIsFor) {
    const std::pair<ComboBox*, QString> lists[] = {
        {&window().cboBook, u"Go to Book"_s},
        {&window().cboChapter, u"Go to Chapter"_s},
        {&window().cboVerse, u"Go to Verse"_s},
        {&window().cmbTestament, u"View Testament"_s}};
    for (const auto& [list, hint] : lists) {
        list->SetFocus();
        EXPECT_EQ(window().Caption(), title + VerseReference() + u"] :"_s + hint);
        EXPECT_FALSE(window().KeyPreview());
        window().txtMain.SetFocus();
        EXPECT_TRUE(window().KeyPreview());
    }
}

TEST_F(Navigation, aListKeepsItsOwnArrowKeys) {
    window().cboBook.SetFocus();
    const QString before = position();
    QTest::keyClick(&window().cboBook, Qt::Key_End);
    EXPECT_EQ(window().cboBook.ListIndex(), 65);
    EXPECT_NE(position(), before);
}
