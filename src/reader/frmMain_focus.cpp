// Which text box has the focus, and what a right click on the page leads to.
#include "basic/Text.h"
#include "core/GlobalCode.h"
#include "desktop/Desktop.h"
#include "reader/frmMain.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int RightButton = 2;
constexpr int EnterKey = 13;

// The first word of a selection; of several, with the blank behind it.
QString wordOf(const QString& selection) {
    const QString text = Trim(selection);
    const qsizetype blank = text.indexOf(u' ');
    return blank < 0 ? text : text.left(blank + 1);
}

} // namespace

// The page cannot be cut or pasted into.
void frmMain::txtMain_GotFocus() {
    MainHasFocus = true;
    NoteHasFocus = false;
    FindHasFocus = false;
    mnuedit(0).setEnabled(false);
    mnuedit(2).setEnabled(false);
}

void frmMain::txtMain_LostFocus() {
    mnuedit(0).setEnabled(true);
    mnuedit(2).setEnabled(true);
}

void frmMain::txtMain_MouseUp(int Button, int /*Shift*/, int X, int Y) {
    PopupWord.clear();
    if (Button != RightButton)
        return;
    if (!txtMain.SelText().isEmpty())
        PopupWord = wordOf(txtMain.SelText());
    // The commands of the menu run inside this call and read the word.
    desktop().runMenu(mnuPopText, txtMain.mapToGlobal(QPoint(X, Y)));
    PopupWord.clear();
}

void frmMain::txtFind_GotFocus() {
    MainHasFocus = false;
    NoteHasFocus = false;
    FindHasFocus = true;
}

void frmMain::txtFind_KeyPress(int& KeyAscii) {
    if (KeyAscii == EnterKey)
        cmdMain(8).setValue(true);
    txtFind_GotFocus();
}

void frmMain::txtFind_MouseMove() {
    showTitle(u"]"_s);
}
