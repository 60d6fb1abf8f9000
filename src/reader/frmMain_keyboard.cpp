// The keyboard reader: page keys move the cursor, and the lists follow it.
#include "basic/Conversion.h"
#include "basic/DoEvents.h"
#include "basic/Error.h"
#include "core/BookNames.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/PageComposer.h"
#include "reader/frmMain.h"

#include <QAbstractButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

enum Key {
    EnterKey = 13,
    ShiftKey = 16,
    CtrlKey = 17,
    AltKey = 18,
    CapsLock = 20,
    Space = 32,
    PageUp = 33,
    PageDown = 34,
    Up = 38,
    Down = 40,
    MetaKey = 91,
    MenuKey = 93,
    F10 = 121,
    NumLock = 144,
    ScrollLock = 145,
};
constexpr int RightButton = 2;

enum Modifier { Shift = 1, Ctrl = 2, Alt = 4 };

bool isPageKey(int key) {
    return key == PageUp || key == PageDown;
}

bool isModifier(int key) {
    static constexpr Key modifiers[] = {ShiftKey, CtrlKey, AltKey,    MetaKey,
                                        CapsLock, NumLock, ScrollLock};
    return std::ranges::find(modifiers, key) != std::end(modifiers);
}

// What opens the menu of a right click from the keyboard.
bool opensMenu(int key, int modifiers) {
    return key == MenuKey || (key == F10 && modifiers == Shift);
}

bool isArrowKey(int key) {
    return key == Up || key == Down;
}

int numberIn(int field) {
    return toInteger(rsBible.Fields(field).Value());
}

// One row in the key's direction; false when there is none any more.
bool step(int key) {
    const bool forward = key == PageDown || key == Down;
    if (forward)
        rsBible.MoveNext();
    else
        rsBible.MovePrevious();
    return forward ? !rsBible.Eof() : !rsBible.Bof();
}

// The counter of a page's rows is one byte wide: a longer page does not move.
void movePage(int key, int multiplier) {
    const int last = toByte(VersesPerPage * multiplier);
    for (int row = 0; row <= last && step(key); ++row) {
    }
}

void moveRow(int key) {
    if (key == Down ? !rsBible.Eof() : !rsBible.Bof())
        step(key);
}

} // namespace

// Modifiers are compared as a whole: two of them together count as none.
void frmMain::Form_KeyDown(int& KeyCode, int Shift) {
    const bool moves = isPageKey(KeyCode) || isArrowKey(KeyCode);
    if (isModifier(KeyCode) || opensMenu(KeyCode, Shift) || focusKeeps(KeyCode))
        return;
    if (Shift == Modifier::Ctrl)
        turnBook(KeyCode);
    else if (Shift == Modifier::Alt)
        turnChapter(KeyCode);
    else if (moves || (Shift & (Modifier::Ctrl | Modifier::Alt)) == 0)
        turnPage(KeyCode, Shift == Modifier::Shift ? 2 : 1);
}

// What belongs to the control with the focus: the note, the lists and the tree keep every key, also
// after a menu has switched key preview on; a box to type in its letters; a button what presses it.
bool frmMain::focusKeeps(int KeyCode) const {
    const QWidget* focus = focusWidget();
    if (focus == &txtNote || focus == &tree || qobject_cast<const QComboBox*>(focus))
        return true;
    if (focus == &txtFind)
        return !isPageKey(KeyCode) && !isArrowKey(KeyCode);
    return qobject_cast<const QAbstractButton*>(focus) && (KeyCode == Space || KeyCode == EnterKey);
}

// Books and chapters are turned from the top of the page, which is where the reader is.
void frmMain::turnBook(int KeyCode) {
    if (!isPageKey(KeyCode) || InQuery == On)
        return;
    if (m_pageTop)
        seekVerseRow(*m_pageTop);
    DoEvents();
    int book = 0;
    attempt([&] { book = numberIn(1); });
    if (book != (KeyCode == PageDown ? BookCount : 1)) {
        attempt([&] { rsBible.Seek(u"="_s, KeyCode == PageDown ? book + 1 : book - 1, 1, 1); });
        SettingCombos = On;
        attempt([&] { fillChapterList(numberIn(1)); });
        attempt([&] { cboBook.setListIndex(numberIn(1) - 1); });
        attempt([&] { cboChapter.setListIndex(0); });
        attempt([&] { cboVerse.setListIndex(0); });
        SettingCombos = Off;
    }
    attempt([this] { UpDateBibleText(true); });
}

void frmMain::turnChapter(int KeyCode) {
    if (!isPageKey(KeyCode) || InQuery == On)
        return;
    if (m_pageTop)
        seekVerseRow(*m_pageTop);
    attempt([&] {
        const int book = numberIn(1);
        const int chapter = numberIn(2) + (KeyCode == PageDown ? 1 : -1);
        if (chapter > 0 && chapter <= chapterCount(book))
            rsBible.Seek(u"="_s, book, chapter, 1);
    });
    showPlaceAndPage();
}

// Any other key draws the page again, from the row that the cursor was rewound to.
void frmMain::turnPage(int KeyCode, int multiplier) {
    if (isPageKey(KeyCode))
        attempt([&] { movePage(KeyCode, multiplier); });
    else if (isArrowKey(KeyCode))
        attempt([&] { moveRow(KeyCode); });
    // Beyond its ends a query shows its first or last hit, which is then where the reader is.
    if (InQuery == On && !returnToFirstRow() && isBehindLastRow())
        attempt([] { rsBible.MoveLast(); });
    showPlaceAndPage();
}

void frmMain::showPlaceAndPage() {
    selectPlaceInLists();
    attempt([this] { UpDateBibleText(true); });
}

// A page key turns the page, whoever has the focus; a key that the form has seen already is not
// handed to it twice.
void frmMain::txtMain_KeyDown(int& KeyCode, int Shift) {
    if (opensMenu(KeyCode, Shift)) {
        const QPoint place = txtMain.cursorRect().bottomLeft();
        txtMain_MouseUp(RightButton, 0, place.x(), place.y());
        KeyCode = 0;
    }
    if (!isPageKey(KeyCode))
        return;
    const bool seen = KeyPreview();
    setKeyPreview(true);
    if (!seen)
        Form_KeyDown(KeyCode, Shift);
    txtFind.SetFocus();
    KeyCode = 0;
}
