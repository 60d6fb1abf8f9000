#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "core/frmChangeBible.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class Keyboard : public ProgramFixture {
protected:
    void SetUp() override {
        startProgram();
        QCoreApplication::processEvents();
        window().txtMain.SetFocus();
    }

    static frmMain& window() { return form<frmMain>(); }
    static QString page() { return window().txtMain.Text(); }
    static QString reference() { return window().Caption().section(u'[', 1).section(u']', 0, 0); }

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QWidget* target = window().focusWidget() ? window().focusWidget() : &window();
        QTest::keyClick(target, key, modifiers);
    }

    static void show(int book, int chapter, int verse) {
        rsBible.Seek(u"="_s, book, chapter, verse);
        window().UpDateBibleText(true);
    }

    static QString listed() {
        return u"%1:%2:%3"_s.arg(window().cboBook.ListIndex() + 1)
            .arg(window().cboChapter.ListIndex() + 1)
            .arg(window().cboVerse.ListIndex() + 1);
    }
};

} // namespace

TEST_F(Keyboard, pageDownShowsWhatFollowsThePage) {
    press(Qt::Key_PageDown);
    EXPECT_EQ(reference(), u"Matthew 2:1"_s);
    EXPECT_TRUE(window().txtFind.hasFocus());
    press(Qt::Key_PageDown);
    EXPECT_EQ(reference(), u"Revelation 22:1"_s);
}

TEST_F(Keyboard, pageUpStepsBackFromTheRewoundRow) {
    VersesPerPage = 10;
    show(40, 2, 1); // 23 verses; the cursor is on the thirteenth
    EXPECT_EQ(position(), u"40:2:13"_s);
    press(Qt::Key_PageUp);
    EXPECT_EQ(reference(), u"Matthew 2:2"_s);
}

TEST_F(Keyboard, shiftDoublesTheStep) {
    VersesPerPage = 10;
    show(1, 1, 1); // 31 verses; the cursor is on the twenty-first
    EXPECT_EQ(position(), u"1:1:21"_s);
    press(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(reference(), u"Genesis 2:11"_s);
}

TEST_F(Keyboard, upAndDownStepOneRow) {
    VersesPerPage = 24;
    show(40, 1, 1);
    EXPECT_EQ(position(), u"40:1:1"_s);
    press(Qt::Key_Down);
    EXPECT_EQ(reference(), u"Matthew 1:2"_s);
    EXPECT_EQ(position(), u"40:1:1"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(reference(), u"Psalms 119:176"_s);
}

TEST_F(Keyboard, downFromMatthewOneShowsTheBookBefore) {
    press(Qt::Key_Down);
    EXPECT_EQ(reference(), u"Psalms 119:162"_s);
}

TEST_F(Keyboard, theListsFollowEveryKey) {
    press(Qt::Key_PageDown);
    EXPECT_EQ(listed(), u"40:2:1"_s);
    EXPECT_EQ(window().cboChapter.ListCount(), 28);
    EXPECT_EQ(SettingCombos, Off);
}

TEST_F(Keyboard, ctrlPageUpAtTheFirstBookDrawsAgainAndMovesNothing) {
    show(1, 2, 3);
    window().setCaption(u"[before]"_s);
    press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(reference(), u"Genesis 2:3"_s);
    EXPECT_EQ(SettingCombos, Off);
}

TEST_F(Keyboard, ctrlPageDownAtTheLastBookDrawsAgainAndMovesNothing) {
    show(66, 22, 3);
    window().setCaption(u"[before]"_s);
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(reference(), u"Revelation 22:3"_s);
}

TEST_F(Keyboard, altTurnsChaptersFromTheTopOfThePage) {
    show(1, 1, 5);
    press(Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(reference(), u"Genesis 2:1"_s);
    EXPECT_EQ(listed(), u"1:2:1"_s);
    press(Qt::Key_PageUp, Qt::AltModifier);
    EXPECT_EQ(reference(), u"Genesis 1:1"_s);
    press(Qt::Key_PageUp, Qt::AltModifier);
    EXPECT_EQ(reference(), u"Genesis 1:1"_s);
}

TEST_F(Keyboard, altPageDownAtTheLastChapterLeavesTheBook) {
    show(66, 22, 1);
    window().setCaption(u"[before]"_s);
    press(Qt::Key_PageDown, Qt::AltModifier);
    EXPECT_EQ(reference(), u"Revelation 22:1"_s);
}

TEST_F(Keyboard, ctrlAndAltAreIgnoredInAQuery) {
    show(1, 1, 5);
    InQuery = On;
    const QString place = position();
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier}) {
        press(Qt::Key_PageDown, modifier);
        press(Qt::Key_PageUp, modifier);
    }
    EXPECT_EQ(position(), place);
    InQuery = Off;
    EXPECT_EQ(reference(), u"Genesis 1:5"_s);
}

TEST_F(Keyboard, twoModifiersTogetherCountAsNone) {
    press(Qt::Key_PageDown, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(reference(), u"Matthew 2:1"_s);
}

TEST_F(Keyboard, aModifierAloneDoesNothing) {
    const QString place = position();
    for (const Qt::Key key :
         {Qt::Key_Shift, Qt::Key_Control, Qt::Key_Alt, Qt::Key_Meta, Qt::Key_CapsLock,
          Qt::Key_NumLock, Qt::Key_ScrollLock})
        press(key);
    EXPECT_EQ(position(), place);
    EXPECT_EQ(reference(), u"Matthew 1:1"_s);
}

TEST_F(Keyboard, ctrlOrAltWithAnotherKeyDoesNothing) {
    const QString place = position();
    press(Qt::Key_C, Qt::ControlModifier);
    press(Qt::Key_Down, Qt::ControlModifier);
    press(Qt::Key_Up, Qt::AltModifier);
    press(Qt::Key_K, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(position(), place);
    EXPECT_EQ(reference(), u"Matthew 1:1"_s);
}

TEST_F(Keyboard, anyOtherKeyDrawsFromTheRewoundRow) {
    const QString rewound = VerseReference();
    EXPECT_EQ(rewound, u"Psalms 119:161"_s);
    press(Qt::Key_A);
    EXPECT_EQ(reference(), rewound);
}

TEST_F(Keyboard, aStepBeyondAByteMovesNothing) {
    VersesPerPage = 200;
    show(19, 119, 1);
    const QString rewound = VerseReference();
    press(Qt::Key_PageDown, Qt::ShiftModifier);
    EXPECT_EQ(reference(), rewound);
    VersesPerPage = 255;
    show(1, 1, 1);
    press(Qt::Key_PageDown);
    EXPECT_EQ(reference(), u"Matthew 1:25"_s);
}

TEST_F(Keyboard, pagingPastTheEndShowsAnEmptyPageOfTheLastVerse) {
    show(66, 22, 1);
    press(Qt::Key_PageDown);
    press(Qt::Key_PageDown);
    EXPECT_EQ(reference(), u"Revelation 22:21"_s);
    EXPECT_EQ(page(), QString());
    press(Qt::Key_PageDown);
    EXPECT_EQ(reference(), u"Revelation 22:21"_s);
    EXPECT_EQ(page(), QString());
}

TEST_F(Keyboard, pagingBeforeTheStartShowsTheFirstChapter) {
    for (const int verses : {40, 5}) {
        VersesPerPage = static_cast<qint16>(verses);
        show(1, 1, 1);
        rsBible.MoveFirst();
        press(Qt::Key_PageUp);
        EXPECT_EQ(reference(), u"Genesis 1:1"_s);
        EXPECT_TRUE(page().startsWith(u"Genesis 1:1 "_s)) << verses;
    }
}

TEST_F(Keyboard, typingInTheFindBoxDrawsNothingAndKeepsTheFocus) {
    window().txtFind.SetFocus();
    const QString place = position();
    QTest::keyClicks(&window().txtFind, u"grace"_s);
    EXPECT_EQ(position(), place);
    EXPECT_EQ(reference(), u"Matthew 1:1"_s);
    EXPECT_TRUE(window().txtFind.hasFocus());
    press(Qt::Key_PageDown);
    EXPECT_EQ(reference(), u"Matthew 2:1"_s);
}

TEST_F(Keyboard, aPageKeyInThePageTurnsOnce) {
    press(Qt::Key_PageDown);
    EXPECT_EQ(reference(), u"Matthew 2:1"_s);
    EXPECT_TRUE(window().KeyPreview());
}

TEST_F(Keyboard, aPageKeyInThePageTurnsWithoutKeyPreviewToo) {
    window().setKeyPreview(false);
    press(Qt::Key_PageDown);
    EXPECT_EQ(reference(), u"Matthew 2:1"_s);
    EXPECT_TRUE(window().KeyPreview());
}

TEST_F(Keyboard, aPageKeyInTheNoteStaysThere) {
    window().txtNote.SetFocus();
    press(Qt::Key_PageDown);
    EXPECT_EQ(reference(), u"Matthew 1:1"_s);
    EXPECT_TRUE(window().txtNote.hasFocus());
}

TEST_F(Keyboard, keysInAQueryWalkTheResult) {
    rsBible = dbBible.OpenRecordset(
        u"SELECT * FROM tblMain WHERE (((body like \"*:2:*\")) )"_s, dbOpenDynaset);
    InQuery = On;
    VersesPerPage = 9;
    window().UpDateBibleText(true);
    const QString first = reference();
    EXPECT_EQ(first, u"Genesis 2:1"_s);
    press(Qt::Key_PageDown);
    EXPECT_EQ(reference(), u"Genesis 2:12"_s); // ten matches behind the second
    InQuery = Off;
}

TEST_F(Keyboard, theMenuBarGoesThroughItsMenus) {
    window().mnuMain.setFocus();
    window().setCaption(u"[before]"_s);
    QTest::keyClick(&window().mnuMain, Qt::Key_Right);
    EXPECT_EQ(reference(), u"before"_s);
}

TEST_F(Keyboard, aButtonWithTheFocusIsPressed) {
    window().cmdMain(16).SetFocus();
    window().setCaption(u"[before]"_s);
    press(Qt::Key_Space);
    EXPECT_EQ(reference(), u"before"_s);
    EXPECT_TRUE(isLoaded<frmChangeBible>());
}

TEST_F(Keyboard, theTreeKeepsItsKeys) {
    window().tree.SetFocus();
    window().setCaption(u"[before]"_s);
    press(Qt::Key_Right);
    EXPECT_EQ(reference(), u"before"_s);
    EXPECT_TRUE(window().tree.hasFocus());
}
