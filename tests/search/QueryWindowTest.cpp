// The query window: what it says, its lists, its keys and its memory.
#include "search/FocusOrder.h"
#include "search/QueryFixture.h"

namespace {

class QueryWindow : public QueryFixture {};

} // namespace

TEST_F(QueryWindow, opensFromButtonMenuAndShortcut) {
    const std::function<void()> ways[] = {
        [] { main().cmdMain(5).setValue(true); }, [] { main().mnuSearch(0).trigger(); },
        [] { main().mnutext(5).trigger(); },
        [] { QTest::keyClick(&main(), Qt::Key_S, Qt::ControlModifier); }};
    for (const auto& way : ways) {
        activate(main());
        desktop.expectWindow([](QWidget& opened) {
            EXPECT_EQ(opened.objectName(), u"frmQuery"_s);
            cancel();
        });
        way();
    }
}

TEST_F(QueryWindow, saysWhatItIsFor) {
    frmQuery& form = window();
    EXPECT_EQ(form.Caption(), u"Query Bible to view only certain verses"_s);
    EXPECT_EQ(form.famQuery.Caption(), u"Enter text(s) to search for"_s);
    EXPECT_EQ(form.Label1.Caption(), u"First Word"_s);
    EXPECT_EQ(form.Label2.Caption(), u"Second Word (Optional)"_s);
    EXPECT_EQ(form.optAndOr(0).Caption(), u"Find verses with BOTH words"_s);
    EXPECT_EQ(form.optAndOr(1).Caption(), u"Find verses with EITHER words"_s);
    EXPECT_EQ(form.famBooks.Caption(), u"What to Search Through"_s);
    EXPECT_EQ(form.chkMatchCase.Caption(), u"Match Whole Words"_s);
    EXPECT_EQ(form.cmdQuery(0).text(), u"&OK"_s);
    EXPECT_EQ(form.cmdQuery(1).text(), u"Clear &Form"_s);
    EXPECT_EQ(form.cmdQuery(3).text(), u"&Cancel"_s);
    EXPECT_EQ(form.cmdHelp.ToolTipText(), u"Tool Overview"_s);
    EXPECT_EQ(form.lblFindWhat(0).Caption(), u"Testament"_s);
    EXPECT_EQ(form.lblFindWhat(1).Caption(), QString());
    EXPECT_EQ(form.lblFindWhat(2).Caption(), u"Book"_s);
}

TEST_F(QueryWindow, opensOnItsFirstWordWithEitherAndEverything) {
    open([] {
        EXPECT_TRUE(window().txtQuery(0).hasFocus());
        EXPECT_FALSE(window().optAndOr(0).Value());
        EXPECT_TRUE(window().optAndOr(1).Value());
        EXPECT_FALSE(window().chkMatchCase.Value());
        EXPECT_FALSE(window().cmdQuery(1).isVisible());
        EXPECT_EQ(window().cboScope.ListIndex(), 0);
        EXPECT_EQ(window().cboBook.ListIndex(), 0);
        EXPECT_EQ(window().cboBook.Text(), u"All Books"_s);
        EXPECT_EQ(window().cboBook.ListCount(), 67);
        EXPECT_EQ(window().cboBook.List(66), BookNames[65]);
        window().cmdQuery_Click(1); // has no case of its own
        cancel();
    });
}

TEST_F(QueryWindow, theScopeFillsTheListOfBooksCrosswise) {
    open([] {
        frmQuery& form = window();
        EXPECT_EQ(form.cboScope.List(0), u"Search Both New and Old"_s);
        EXPECT_EQ(form.cboScope.List(1), u"Search Old Testament ONLY"_s);
        EXPECT_EQ(form.cboScope.List(2), u"Search New Testament ONLY"_s);
        form.cboScope.setListIndex(1);
        EXPECT_EQ(form.cboBook.List(0), u"All Books (New)"_s);
        EXPECT_EQ(form.cboBook.List(1), BookNames[39]);
        EXPECT_EQ(form.cboBook.ListCount(), 28);
        EXPECT_FALSE(form.cboBook.Enabled());
        form.cboScope.setListIndex(2);
        EXPECT_EQ(form.cboBook.List(0), u"All Books (Old)"_s);
        EXPECT_EQ(form.cboBook.List(39), BookNames[38]);
        EXPECT_EQ(form.cboBook.ListCount(), 40);
        EXPECT_FALSE(form.cboBook.Enabled());
        form.cboScope.setListIndex(0);
        EXPECT_EQ(form.cboBook.List(0), u"All Books (Both)"_s);
        EXPECT_EQ(form.cboBook.ListCount(), 67);
        EXPECT_TRUE(form.cboBook.Enabled());
        EXPECT_EQ(form.cboBook.ListIndex(), 0);
        cancel();
    });
}

TEST_F(QueryWindow, thirtyNineIsAddedUnderTheOldTestamentAlone) {
    open([] {
        frmQuery& form = window();
        form.txtQuery(0).setText(u"x"_s);
        form.cboScope.setListIndex(1);
        form.cboBook.setListIndex(3);
        EXPECT_TRUE(form.MakeSQLString());
        EXPECT_TRUE(QuerySQL.endsWith(u" AND ((BOOK < 40))  AND ((BOOK=42)) "_s));
        form.cboScope.setListIndex(2);
        form.cboBook.setListIndex(3);
        EXPECT_TRUE(form.MakeSQLString());
        EXPECT_TRUE(QuerySQL.endsWith(u" AND ((BOOK > 39))  AND ((BOOK=3)) "_s));
        cancel();
    });
}

TEST_F(QueryWindow, aPickedBookGivesTheFocusToTheFirstWord) {
    open([] {
        frmQuery& form = window();
        form.txtQuery(0).setText(u"light"_s);
        form.cboBook.SetFocus();
        QTest::keyClick(&form.cboBook, Qt::Key_Down);
        EXPECT_EQ(form.cboBook.ListIndex(), 1);
        EXPECT_EQ(form.cboScope.ListIndex(), 0);
        EXPECT_TRUE(form.txtQuery(0).hasFocus());
        EXPECT_EQ(form.txtQuery(0).selectedText(), u"light"_s);
        cancel();
    });
}

TEST_F(QueryWindow, aWordThatGetsTheFocusIsSelected) {
    open([] {
        for (const int word : {1, 0}) {
            window().txtQuery(word).setText(u"light"_s);
            window().txtQuery(word).SetFocus();
            EXPECT_EQ(window().txtQuery(word).selectedText(), u"light"_s) << word;
        }
        cancel();
    });
}

TEST_F(QueryWindow, theFocusGoesFromTopToBottom) {
    open([] {
        EXPECT_EQ(
            focusOrder(window().txtQuery(0)),
            (QStringList{
                u"txtQuery(0)"_s, u"txtQuery(1)"_s, u"optAndOr(0)"_s, u"optAndOr(1)"_s,
                u"chkMatchCase"_s, u"cboScope"_s, u"cboBook"_s, u"cmdQuery(0)"_s, u"cmdQuery(3)"_s,
                u"cmdHelp"_s}));
        cancel();
    });
}

TEST_F(QueryWindow, needsAFirstWord) {
    desktop.expectWindow([this](QWidget& opened) {
        activate(opened);
        window().txtQuery(1).setText(u"light"_s);
        window().optAndOr(0).setValue(true);
        window().cmdQuery(0).SetFocus();
        desktop.expectMessage(needText);
        ok();
        EXPECT_TRUE(window().isVisible());
        EXPECT_TRUE(window().txtQuery(0).hasFocus());
        expectFlags(Off, Off);
        EXPECT_TRUE(areListsEnabled());
        EXPECT_EQ(QueryHistory[1], u"light"_s);
        EXPECT_TRUE(OldQueryBoth);
        cancel();
    });
    main().cmdMain(5).setValue(true);
    EXPECT_TRUE(isTableCursor());
}

TEST_F(QueryWindow, escapeAndTheTitleBarCancelAndEnterIsOk) {
    open([] { QTest::keyClick(&window().txtQuery(0), Qt::Key_Escape); });
    EXPECT_EQ(QueryCancelled, 999);
    QueryCancelled = 0;
    open([] { window().close(); });
    EXPECT_EQ(QueryCancelled, 999);
    open([] {
        QTest::keyClicks(&window().txtQuery(0), u"light"_s);
        QTest::keyClick(&window().txtQuery(0), Qt::Key_Return);
    });
    expectFlags(On, On);
}

TEST_F(QueryWindow, remembersItsFormForTheRun) {
    open([] {
        window().txtQuery(0).setText(u"light"_s);
        window().txtQuery(1).setText(u"again"_s);
        window().optAndOr(0).setValue(true);
        window().chkMatchCase.setValue(true);
        window().cboBook.setListIndex(40);
        ok();
    });
    open([] {
        EXPECT_EQ(window().txtQuery(0).Text(), u"light"_s);
        EXPECT_EQ(window().txtQuery(0).selectedText(), u"light"_s);
        EXPECT_EQ(window().txtQuery(1).Text(), u"again"_s);
        EXPECT_TRUE(window().optAndOr(0).Value());
        EXPECT_TRUE(window().chkMatchCase.Value());
        EXPECT_EQ(window().cboBook.ListIndex(), 40);
        EXPECT_EQ(window().cboScope.ListIndex(), 0);
        cancel();
    });
}

TEST_F(QueryWindow, aRememberedScopeTakesARememberedBookAway) {
    OldQueryBook = 3;
    OldQueryScope = 2;
    open([] {
        EXPECT_EQ(window().cboScope.ListIndex(), 2);
        EXPECT_EQ(window().cboBook.ListIndex(), 0);
        EXPECT_EQ(window().cboBook.Text(), u"All Books (Old)"_s);
        cancel();
    });
}

TEST_F(QueryWindow, theTestamentOfTheMainWindowGivesWayToTheRememberedScope) {
    for (const int testament : {1, 2}) {
        main().cmbTestament.setListIndex(testament);
        OldQueryBook = 66; // too far down in the list of one testament
        open([] {
            EXPECT_EQ(window().cboScope.ListIndex(), 0);
            EXPECT_EQ(window().cboBook.Text(), u"All Books (Both)"_s);
            EXPECT_TRUE(window().cboBook.Enabled());
            cancel();
        });
    }
}

TEST_F(QueryWindow, helpShowsItsTopic) {
    open([] {
        press(window().cmdHelp);
        cancel();
    });
    ASSERT_EQ(desktop.shownHelp.size(), 1);
    EXPECT_TRUE(desktop.shownHelp.constFirst().endsWith(u" 10"_s));
}
