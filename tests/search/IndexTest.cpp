// The index of a query's hits: its window, and the way to the verse that is chosen in it.
#include "search/FocusOrder.h"
#include "search/IndexFixture.h"

#include <QClipboard>
#include <QGuiApplication>

namespace {

class Index : public IndexFixture {};

} // namespace

TEST_F(Index, withoutAQueryOffersOne) {
    desktop.expectMessage(question, Answer::No);
    open();
    EXPECT_FALSE(isLoaded<frmIndex>());
    desktop.expectMessage(question, Answer::Yes);
    desktop.expectWindow([](QWidget& opened) {
        EXPECT_EQ(opened.objectName(), u"frmQuery"_s);
        EXPECT_FALSE(isLoaded<frmIndex>());
        form<frmQuery>().cmdQuery(3).setValue(true);
    });
    main().mnuTool(1).trigger();
    EXPECT_FALSE(isLoaded<frmIndex>());
}

TEST_F(Index, opensFromButtonMenuAndShortcut) {
    const std::function<void()> ways[] = {
        open, [] { main().mnuTool(1).trigger(); },
        [] { QTest::keyClick(&main(), Qt::Key_I, Qt::ControlModifier); }};
    for (const auto& way : ways) {
        query(u"verse 19"_s);
        main().activateWindow();
        QCoreApplication::processEvents();
        way();
        EXPECT_TRUE(window().isVisible());
        press(window().CmdIndex(0));
        EXPECT_FALSE(isLoaded<frmIndex>());
        EXPECT_TRUE(main().isVisible());
    }
}

TEST_F(Index, saysWhatItIsFor) {
    EXPECT_EQ(window().Caption(), u"Index of verses"_s);
    EXPECT_EQ(window().lstIndex.ToolTipText(), u"Double Click here to jump to a verse"_s);
    EXPECT_EQ(window().CmdIndex(0).text(), u"&Exit"_s);
    EXPECT_EQ(window().CmdIndex(1).text(), u"Go To &Verse"_s);
    EXPECT_EQ(window().CmdIndex(1).ToolTipText(), u"Jump to the verse you have selected"_s);
    EXPECT_EQ(window().cmdHelp.ToolTipText(), u"Tool Overview"_s);
}

TEST_F(Index, showsTheChosenLineInFull) {
    query(u"verse 19"_s);
    open();
    EXPECT_EQ(window().txtIndex.Text(), QString());
    ListBox& list = window().lstIndex;
    QTest::mouseClick(
        list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(2)).center());
    EXPECT_EQ(window().txtIndex.Text(), u"Psalms 119:3 Verse 19:119:3."_s);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(window().txtIndex.Text(), u"Psalms 119:4 Verse 19:119:4."_s);
}

TEST_F(Index, nothingCanBeTypedIntoTheChosenVerse) {
    query(u"verse 19"_s);
    open();
    window().lstIndex.setListIndex(3);
    QTest::keyClicks(&window().txtIndex, u"typed"_s);
    for (const Qt::Key key : {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Space})
        QTest::keyClick(&window().txtIndex, key);
    EXPECT_EQ(window().txtIndex.Text(), u"Psalms 119:4 Verse 19:119:4."_s);
    EXPECT_TRUE(window().isVisible());
    for (int typed : {int{'x'}, 13, 8}) {
        window().txtIndex_KeyPress(typed);
        EXPECT_EQ(typed, 0);
    }
}

TEST_F(Index, theChosenVerseCanBeCopied) {
    query(u"verse 19"_s);
    open();
    window().lstIndex.setListIndex(3);
    QGuiApplication::clipboard()->clear();
    window().txtIndex.SetFocus();
    window().txtIndex.selectAll();
    QTest::keyClick(&window().txtIndex, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"Psalms 119:4 Verse 19:119:4."_s);
}

TEST_F(Index, calledAgainKeepsItsList) {
    query(u"verse 19"_s);
    rsBible.FindFirst(u"verse = 3"_s);
    open();
    window().lstIndex.setListIndex(2);
    const QString place = position();
    QTest::keyClick(&main(), Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(window().lstIndex.List(0), u"Psalms 119:3 Verse 19:119:3."_s);
    EXPECT_EQ(window().lstIndex.ListIndex(), 2);
    EXPECT_EQ(position(), place);
}

TEST_F(Index, aVerseThatANewQueryLacksLeavesTheReaderThere) {
    query(u"verse 40"_s);
    open();
    query(u"verse 19"_s);
    rsBible.FindFirst(u"verse = 9"_s);
    window().lstIndex.setListIndex(4);
    press(window().CmdIndex(1));
    EXPECT_FALSE(isLoaded<frmIndex>());
    EXPECT_EQ(listed(), u"Psalms 119:9"_s);
    EXPECT_TRUE(main().Caption().contains(u"[Psalms 119:9]"_s));
    EXPECT_EQ(InQuery, On);
    expectNoFlag();
}

TEST_F(Index, withoutASelectionNothingIsReached) {
    query(u"verse 19"_s);
    open();
    desktop.expectMessage(
        {u"Please click on the page you would like to go to first."_s, u"Index"_s,
         MessageIcon::Information});
    window().lstIndex.SetFocus();
    QTest::keyClick(&window().lstIndex, Qt::Key_Return);
    desktop.expectMessage(
        {u"Please click on the verse you would like to go to first."_s, u"Need a Verse"_s,
         MessageIcon::Information});
    press(window().CmdIndex(1));
    EXPECT_TRUE(window().isVisible());
    expectNoFlag();
}

TEST_F(Index, jumpsByButtonDoubleClickAndEnter) {
    const std::function<void(ListBox&)> ways[] = {
        [](ListBox&) { press(window().CmdIndex(1)); },
        [](ListBox& list) {
            const QPoint place = list.visualItemRect(list.item(4)).center();
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
            QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
        },
        [](ListBox& list) { QTest::keyClick(&list, Qt::Key_Return); }};
    for (const auto& way : ways) {
        query(u"verse 40"_s);
        rsBible.FindFirst(u"verse = 20"_s);
        open();
        QCoreApplication::processEvents(); // the list gets its size
        window().lstIndex.setListIndex(4);
        way(window().lstIndex);
        EXPECT_FALSE(isLoaded<frmIndex>()) << "way " << &way - ways;
        EXPECT_EQ(InQuery, On);
        expectNoFlag();
        EXPECT_EQ(listed(), u"Matthew 1:24"_s);
        EXPECT_TRUE(main().Caption().contains(u"[Matthew 1:24]"_s));
        EXPECT_EQ(main().txtMain.Text().count(u"Verse"_s), 2);
    }
}

TEST_F(Index, jumpsToAVerseThatTheListOfVersesLacks) {
    query(u"verse 19"_s);
    rsBible.FindFirst(u"verse = 170"_s);
    VersesPerPage = 2;
    open();
    window().lstIndex.setListIndex(6);
    press(window().CmdIndex(1));
    EXPECT_TRUE(main().Caption().contains(u"[Psalms 119:176]"_s));
    expectNoFlag();
}

TEST_F(Index, stillJumpsWhenTheQueryHasEnded) {
    query(u"verse 40"_s);
    open();
    main().cmdMain(6).setValue(true);
    window().lstIndex.setListIndex(7);
    press(window().CmdIndex(1));
    EXPECT_TRUE(main().Caption().contains(u"[Matthew 1:8]"_s));
    EXPECT_EQ(listed(), u"Matthew 1:8"_s);
    expectNoFlag();
}

TEST_F(Index, itsFirstLineStaysWhereTheReaderIsWhenTheQueryHasEnded) {
    query(u"verse 40"_s);
    open();
    main().cmdMain(6).setValue(true);
    rsBible.Seek(u"="_s, 1, 2, 3);
    window().lstIndex.setListIndex(0);
    press(window().CmdIndex(1));
    EXPECT_TRUE(main().Caption().contains(u"[Genesis 2:3]"_s));
}

TEST_F(Index, tellsOfACursorThatCannotFind) {
    query(u"verse 40"_s);
    open();
    OpenBibleTable(); // as the find bar leaves it
    QString reason;
    try {
        rsBible.FindFirst(u"ID = 1"_s);
    } catch (const Error& error) {
        reason = error.text();
    }
    window().lstIndex.setListIndex(1);
    desktop.expectMessage(
        {u"Error in Getting Index Item: \r\n"_s + reason, u"Lumenvia"_s, MessageIcon::Information});
    press(window().CmdIndex(1));
    EXPECT_TRUE(isLoaded<frmIndex>());
    expectNoFlag();
}

TEST_F(Index, isShownInItsOwnFont) {
    IndexFontName = u"Liberation Mono"_s;
    IndexFontSize = 17;
    IndexBold = -1;
    IndexItalic = -1;
    IndexUnderline = -1;
    query(u"verse 19"_s);
    open();
    const QFont font = window().lstIndex.font();
    EXPECT_EQ(font.family(), u"Liberation Mono"_s);
    EXPECT_EQ(font.pointSizeF(), 17);
    EXPECT_TRUE(font.bold() && font.italic() && font.underline());
    window().Unload();
    IndexFontSize = -2;
    rsBible.MoveFirst();
    open();
    EXPECT_GT(window().lstIndex.font().pointSizeF(), 0);
}

TEST_F(Index, escapeAndTheTitleBarExit) {
    query(u"verse 19"_s);
    for (const bool byKey : {true, false}) {
        rsBible.MoveFirst();
        open();
        if (byKey)
            QTest::keyClick(&window().txtIndex, Qt::Key_Escape);
        else
            window().close();
        EXPECT_FALSE(isLoaded<frmIndex>());
    }
}

TEST_F(Index, theFocusGoesFromTopToBottom) {
    query(u"verse 19"_s);
    open();
    EXPECT_EQ(firstFocus(window()), u"lstIndex"_s);
    EXPECT_EQ(
        focusOrder(window().lstIndex),
        (QStringList{
            u"lstIndex"_s, u"txtIndex"_s, u"CmdIndex(1)"_s, u"CmdIndex(0)"_s, u"cmdHelp"_s}));
}

TEST_F(Index, helpShowsItsTopic) {
    query(u"verse 19"_s);
    open();
    press(window().cmdHelp);
    ASSERT_EQ(desktop.shownHelp.size(), 1);
    EXPECT_TRUE(desktop.shownHelp.constFirst().endsWith(u" 15"_s));
}
