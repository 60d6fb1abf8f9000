// The search in the user's notes.
#include "search/FocusOrder.h"
#include "search/NoteSearchFixture.h"

#include <QScreen>

namespace {

class NoteSearch : public NoteSearchFixture {};

} // namespace

TEST_F(NoteSearch, opensFromButtonMenuShortcutAndPopup) {
    const std::function<void()> ways[] = {
        [] { main().cmdMain(3).setValue(true); }, [] { main().mnuSearch(6).trigger(); },
        [] { main().mnutext(8).trigger(); },
        [] { QTest::keyClick(&main(), Qt::Key_Y, Qt::ControlModifier); }};
    main().activateWindow();
    for (const auto& way : ways) {
        desktop.expectWindow([](QWidget& opened) {
            EXPECT_EQ(opened.objectName(), u"frmNoteSearch"_s);
            press(Close);
        });
        way();
    }
}

TEST_F(NoteSearch, saysWhatItIsFor) {
    EXPECT_EQ(window().Caption(), u"Search Notes"_s);
    EXPECT_EQ(window().lblNoteSearch.Caption(), u"Find what:"_s);
    const std::pair<QString, QString> texts[] = {
        {u"Find &First"_s, u"Find first note with this text"_s},
        {u"&Close"_s, QString()},
        {u"Find &Next"_s, u"Find next note with this text"_s},
        {u"Find &Previous"_s, u"Find previous note with this text"_s}};
    for (int button = First; button <= Previous; ++button) {
        EXPECT_EQ(window().cmdNoteSearch(button).text(), texts[button].first);
        EXPECT_EQ(window().cmdNoteSearch(button).ToolTipText(), texts[button].second);
    }
    EXPECT_EQ(window().cmdHelp.ToolTipText(), u"Tool Overview"_s);
}

TEST_F(NoteSearch, isRefusedInAQueryWhichStaysAsItIs) {
    desktop.expectWindow([](QWidget&) {
        form<frmQuery>().txtQuery(0).setText(u"verse 40"_s);
        form<frmQuery>().cmdQuery(0).setValue(true);
    });
    main().cmdMain(5).setValue(true);
    const QString place = position();
    const QString page = main().txtMain.Text();
    desktop.expectMessage(refusal);
    main().cmdMain(3).setValue(true);
    EXPECT_FALSE(isLoaded<frmNoteSearch>());
    EXPECT_EQ(position(), place);
    EXPECT_EQ(main().txtMain.Text(), page);
    EXPECT_EQ(InQuery, On);
    EXPECT_EQ(QueryLock, On);
    EXPECT_NO_THROW(rsBible.FindFirst(u"book = 40"_s));
}

TEST_F(NoteSearch, walksForwardFromTheTopAndBack) {
    open([this] {
        window().txtNoteSearch.setText(u"thought"_s);
        press(First);
        expectPlace(u"Genesis 1:5"_s, u"1:1:5"_s, u"First thought"_s);
        EXPECT_EQ(main().cboVerse.Text(), u"5"_s);
        press(Next);
        expectPlace(u"Psalms 119:176"_s, u"19:119:176"_s, u"A THOUGHT \" x"_s);
        press(Next);
        expectPlace(u"Matthew 1:7"_s, u"40:1:7"_s, u"my thought, 100% _ok_ [a] #1?"_s);
        EXPECT_EQ(main().cboBook.Text(), u"Matthew"_s);
        EXPECT_EQ(window().NoteText.toString(), u"Verse 19:119:176."_s);
        press(Previous);
        press(Previous);
        expectPlace(u"Genesis 1:5"_s, u"1:1:5"_s, u"First thought"_s);
        desktop.expectMessage(noMore(u"thought"_s));
        press(Previous);
        expectPlace(u"Genesis 1:5"_s, u"1:1:5"_s, u"First thought"_s);
        press(Close);
    });
    expectPlace(u"Genesis 1:5"_s, u"1:1:5"_s, u"First thought"_s);
    EXPECT_EQ(main().focusWidget(), &main().txtFind);
}

TEST_F(NoteSearch, startsItsNextFromTheReadingPosition) {
    rsBible.Seek(u"="_s, 40, 1, 7);
    open([this] {
        window().txtNoteSearch.setText(u"THOUGHT"_s);
        press(Next);
        // Page and cursor of the last verse of the table: the page is empty.
        EXPECT_EQ(position(), u"66:22:21"_s);
        desktop.expectMessage(noMore(u"THOUGHT"_s));
        press(Next);
        EXPECT_EQ(position(), u"66:22:21"_s);
        press(Close);
    });
    EXPECT_EQ(position(), u"66:22:21"_s);
    EXPECT_EQ(main().txtNote.Text(), u"last thought"_s);
}

TEST_F(NoteSearch, aMissLeavesTheReaderOnTheVerseThePressStartedOn) {
    rsBible.Seek(u"="_s, 40, 2, 3);
    open([this] {
        window().txtNoteSearch.setText(u"nowhere"_s);
        for (const int button : {First, Next, Previous}) {
            desktop.expectMessage(noMore(u"nowhere"_s));
            press(button);
            expectPlace(u"Matthew 2:3"_s, u"40:2:3"_s, u" "_s);
        }
        press(Close);
    });
    EXPECT_EQ(position(), u"40:2:3"_s);
}

TEST_F(NoteSearch, closedBeforeAnySearchLeavesTheCursorWhereItWas) {
    const std::function<void()> ways[] = {
        [] { press(Close); }, [] { QTest::keyClick(&window().txtNoteSearch, Qt::Key_Escape); },
        [] { window().close(); }, [] { window().Unload(); }};
    for (const auto& way : ways) {
        rsBible.Seek(u"="_s, 40, 2, 3);
        open(way);
        EXPECT_EQ(position(), u"40:2:3"_s);
        EXPECT_EQ(main().focusWidget(), &main().txtFind);
    }
}

TEST_F(NoteSearch, anEmptyTextMatchesEveryNoteThatIsNotNull) {
    open([this] {
        press(First);
        EXPECT_EQ(position(), u"1:1:5"_s);
        press(Next);
        EXPECT_EQ(position(), u"19:119:5"_s); // a blank
        press(Close);
    });
}

TEST_F(NoteSearch, aQuoteThatHappensToStayWellFormedIsTakenAsItIs) {
    open([this] {
        window().txtNoteSearch.setText(u"none*' or note like '*last"_s);
        press(First);
        EXPECT_EQ(position(), u"66:22:21"_s);
        window().txtNoteSearch.setText(u"\" x"_s);
        press(First);
        EXPECT_EQ(position(), u"19:119:176"_s);
        press(Close);
    });
}

TEST_F(NoteSearch, marksAreTextAndTheStarStandsForAnyRun) {
    const QString found[] = {u"100%"_s, u"_ok_"_s, u"[a]"_s, u"#1?"_s, u"my*ok"_s};
    open([&] {
        for (const QString& text : found) {
            window().txtNoteSearch.setText(text);
            press(First);
            EXPECT_EQ(position(), u"40:1:7"_s) << text.toStdString();
        }
        for (const QString& text : {u"m_"_s, u"[m]"_s, u"10?%"_s, u"\\"_s, u";"_s}) {
            window().txtNoteSearch.setText(text);
            desktop.expectMessage(noMore(text));
            press(First);
            EXPECT_EQ(position(), u"40:1:7"_s) << text.toStdString();
        }
        press(Close);
    });
}

TEST_F(NoteSearch, enterFindsTheNextNote) {
    rsBible.Seek(u"="_s, 1, 1, 1);
    open([] {
        QTest::keyClicks(&window().txtNoteSearch, u"thought"_s);
        QTest::keyClick(&window().txtNoteSearch, Qt::Key_Return);
        EXPECT_EQ(position(), u"1:1:5"_s);
        press(Close);
    });
}

TEST_F(NoteSearch, findsTheNoteThatWasBeingTyped) {
    rsBible.Seek(u"="_s, 40, 2, 1);
    VersesPerPage = 22;
    main().UpDateBibleText(true);
    main().txtNote.SetFocus();
    QTest::keyClicks(&main().txtNote, u"brand new"_s);
    open([] {
        window().txtNoteSearch.setText(u"brand new"_s);
        press(First);
        EXPECT_EQ(position(), u"40:2:1"_s);
        press(Close);
    });
}

TEST_F(NoteSearch, aNoteTypedAfterwardsGoesToTheVerseThatWasFound) {
    open([] {
        window().txtNoteSearch.setText(u"my thought"_s);
        press(First);
        press(Close);
    });
    main().txtNote.SetFocus();
    QTest::keyClicks(&main().txtNote, u"new "_s);
    rsBible.Seek(u"="_s, 40, 1, 7);
    EXPECT_EQ(rsBible.Fields(5).Value().toString(), u"new my thought, 100% _ok_ [a] #1?"_s);
}

TEST_F(NoteSearch, theHeadingNamesTheVerseAlsoWhereTheUserHidesTheNotes) {
    HideNotes = On;
    open([] {
        window().txtNoteSearch.setText(u"thought"_s);
        press(First);
        EXPECT_EQ(main().lblCurrentNote.Caption(), u"Your note for: Genesis 1:5"_s);
        press(Next);
        EXPECT_EQ(main().lblCurrentNote.Caption(), u"Your note for: Psalms 119:176"_s);
        press(Close);
    });
    EXPECT_EQ(main().lblCurrentNote.Caption(), u"Your note for: Psalms 119:176"_s);
}

TEST_F(NoteSearch, anErrorAtItsCloseIsToldAndClosesItAllTheSame) {
    rsBible.MoveLast();
    rsBible.MoveNext();
    QString reason;
    try {
        rsBible.Fields(0).Value();
    } catch (const Error& error) {
        reason = error.text();
    }
    open([&] {
        desktop.expectMessage(
            {u"Error in Note Search: "_s + reason, u"Error"_s, MessageIcon::Information});
        press(Close);
        EXPECT_FALSE(isLoaded<frmNoteSearch>());
    });
    EXPECT_EQ(main().cursor().shape(), Qt::ArrowCursor);
    EXPECT_FALSE(main().txtMain.Text().isEmpty());
}

TEST_F(NoteSearch, standsInTheLowerRightCorner) {
    open([] {
        const QRect screen = window().screen()->geometry();
        EXPECT_EQ(window().x(), screen.width() - window().width() - twips(100));
        EXPECT_EQ(window().y(), screen.height() - twips(390) - window().height());
        press(Close);
    });
}

TEST_F(NoteSearch, theFocusGoesFromLeftToRight) {
    open([] {
        EXPECT_EQ(firstFocus(window()), u"txtNoteSearch"_s);
        EXPECT_EQ(
            focusOrder(window().txtNoteSearch),
            (QStringList{
                u"txtNoteSearch"_s, u"cmdNoteSearch(2)"_s, u"cmdNoteSearch(0)"_s,
                u"cmdNoteSearch(3)"_s, u"cmdNoteSearch(1)"_s, u"cmdHelp"_s}));
        press(Close);
    });
}

TEST_F(NoteSearch, helpShowsItsTopic) {
    open([] {
        QTest::mouseClick(&window().cmdHelp, Qt::LeftButton);
        press(Close);
    });
    ASSERT_EQ(desktop.shownHelp.size(), 1);
    EXPECT_TRUE(desktop.shownHelp.constFirst().endsWith(u" 13"_s));
}
