// The index of a query's hits.
#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "search/frmIndex.h"
#include "search/frmQuery.h"
#include "search/frmWorking.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const Message question{
    u"The Index tool is used to see the results of a Query in a Quick Pick List. \n\r\n\r"
    u"Show the Querying Tool?"_s,
    u"Index Tool"_s, MessageIcon::Question, MessageButtons::YesNo};
const Message fewerThanAPage{
    u"There is no need to run the Index tool because the number of verses found is less than "
    u"what you can see on the screen."_s,
    u"Index list not needed"_s, MessageIcon::Information};
const Message allOnThePage{
    u"There is no need to run the Index tool because all the verses found in your Query can be "
    u"seen on the screen."_s,
    u"Index list not needed"_s, MessageIcon::Information};

class Index : public ProgramFixture {
protected:
    // 25 + 23 verses with "Verse 40", 176 with "Verse 19".
    void SetUp() override {
        startProgram();
        QCoreApplication::processEvents();
        VersesPerPage = 5;
    }

    static frmMain& main() { return form<frmMain>(); }
    static frmIndex& window() { return form<frmIndex>(); }
    static void press(CommandButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }
    static void open() { main().cmdMain(10).setValue(true); }

    void query(const QString& word) {
        desktop.expectWindow([word](QWidget&) {
            form<frmQuery>().txtQuery(0).setText(word);
            form<frmQuery>().cmdQuery(0).setValue(true);
        });
        main().cmdMain(5).setValue(true);
        rsBible.MoveFirst();
    }

    static void expectNoFlag() {
        for (const Flag flag : {SettingCombos, SkipComboClick, HoldUpdates, StartingUp})
            EXPECT_EQ(flag, Off);
    }

    static QString listed() {
        return main().cboBook.Text() + u' ' + main().cboChapter.Text() + u':'
               + main().cboVerse.Text();
    }
};

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

TEST_F(Index, listsOneLineLessThanWantedFromTheCursorOn) {
    const std::pair<double, int> wanted[] = {{50, 49}, {0, 24},    {-3, 24},  {0.5, 24}, {20, 19},
                                             {99, 98}, {99.5, 99}, {100, 99}, {150, 99}, {6, 5}};
    query(u"verse 19"_s);
    for (const auto& [items, lines] : wanted) {
        NumIndexItems = items;
        rsBible.FindFirst(u"verse = 3"_s);
        open();
        EXPECT_EQ(window().lstIndex.ListCount(), lines) << items;
        EXPECT_EQ(window().lstIndex.List(0), u"Psalms 119:3 Verse 19:119:3."_s);
        EXPECT_EQ(window().IndexVerse[1].toInt(), 3);
        EXPECT_EQ(window().IndexID[2], window().IndexID[1] + 1);
        window().Unload();
    }
    expectNoFlag();
}

TEST_F(Index, startsOneHitBelowThePageTop) {
    query(u"verse 40"_s);
    main().UpDateBibleText(true);
    ASSERT_TRUE(main().Caption().contains(u"[Matthew 1:1]"_s));
    open();
    EXPECT_EQ(window().lstIndex.List(0), u"Matthew 1:2 Verse 40:1:2."_s);
}

TEST_F(Index, endsWithTheHitsAndLeavesTheCursorBehindThem) {
    query(u"verse 40:2"_s);
    open();
    EXPECT_EQ(window().lstIndex.ListCount(), 23);
    EXPECT_EQ(position(), u"EOF"_s);
    expectNoFlag();
    EXPECT_FALSE(isLoaded<frmWorking>());
    EXPECT_EQ(main().cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Index, isNotNeededForFewHits) {
    VersesPerPage = 40;
    query(u"verse 40:2"_s);
    desktop.expectMessage(allOnThePage);
    open();
    EXPECT_FALSE(isLoaded<frmIndex>());
    EXPECT_FALSE(isLoaded<frmWorking>());
}

TEST_F(Index, isNotNeededForFewerLinesThanAPage) {
    VersesPerPage = 40;
    NumIndexItems = 0;
    query(u"verse 19"_s);
    desktop.expectMessage(fewerThanAPage);
    open();
    EXPECT_FALSE(isLoaded<frmIndex>());
    VersesPerPage = 25; // just as many as the count
    rsBible.MoveFirst();
    open();
    EXPECT_TRUE(isLoaded<frmIndex>());
}

TEST_F(Index, showsTextsWithoutTheirRedLetters) {
    const QString red = QChar(30) + u"003 004one love two"_s;
    rsBible.Seek(u"="_s, 40, 1, 1);
    rsBible.Edit();
    rsBible.Fields(4) = red;
    rsBible.Update();
    query(u"love"_s);
    VersesPerPage = 1;
    open();
    EXPECT_EQ(window().lstIndex.List(0), u"Matthew 1:1 one love two"_s);
}

TEST_F(Index, tellsOfItsProgress) {
    class Watch final : public QObject {
    public:
        bool eventFilter(QObject* watched, QEvent* event) override {
            if (watched->objectName() == u"lblWorking" && event->type() == QEvent::Paint)
                texts.append(static_cast<Label*>(watched)->Caption());
            return false;
        }
        QStringList texts;
    } watch;
    query(u"verse 19"_s);
    frmWorking& working = form<frmWorking>();
    working.lblWorking.installEventFilter(&watch);
    NumIndexItems = 20;
    open();
    EXPECT_TRUE(watch.texts.contains(u"Adding: Psalms 119:18"_s));
    EXPECT_FALSE(isLoaded<frmWorking>());
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
    QTest::keyClicks(&window().txtIndex, u"typed"_s);
    QTest::keyClick(&window().txtIndex, Qt::Key_Delete);
    EXPECT_EQ(window().txtIndex.Text(), u"Psalms 119:4 Verse 19:119:4."_s);
    int key = 'x';
    window().txtIndex_KeyPress(key);
    EXPECT_EQ(key, 0);
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

TEST_F(Index, helpShowsItsTopic) {
    query(u"verse 19"_s);
    open();
    press(window().cmdHelp);
    ASSERT_EQ(desktop.shownHelp.size(), 1);
    EXPECT_TRUE(desktop.shownHelp.constFirst().endsWith(u" 15"_s));
}
