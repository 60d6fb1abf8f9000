// Navigation: the lists and the tree that lead through the text.
#include "basic/Conversion.h"
#include "basic/DoEvents.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "core/BookNames.h"
#include "core/GlobalCode.h"
#include "desktop/Desktop.h"
#include "reader/frmMain.h"
#include "study/History.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int FirstBookOfNewTestament = 40;

// Whether code or a query holds the lists, so that a click on one is none of the user's.
bool listsAreHeld() {
    return HoldUpdates == On || SkipComboClick == On || (QueryLock == On && SettingCombos == Off);
}

int numberIn(const ComboBox& list) {
    return static_cast<int>(Val(list.Text()));
}

} // namespace

void frmMain::fillBookList() {
    cboBook.Clear();
    cboBook.AddItems(QStringList(BookNames.begin(), BookNames.end()));
    cboBook.setListIndex(0);
}

void frmMain::fillChapterList(int book) {
    QStringList chapters;
    for (int chapter = 1; chapter <= chapterCount(book); ++chapter)
        chapters.append(QString::number(chapter));
    cboChapter.Clear();
    cboChapter.AddItems(chapters);
}

void frmMain::cboBook_Click() {
    if (listsAreHeld())
        return;
    const int book = cboBook.ListIndex() + 1;
    if (SettingCombos == Off)
        attempt([&] { rsBible.Seek(u"="_s, book, 1, 1); });
    fillChapterList(book);
    if (cboChapter.ListCount() > 0) {
        attempt([this] { cboChapter.setListIndex(0); });
        attempt([this] { cboVerse.setListIndex(0); });
    }
    txtMain.SetFocus();
    // Behind the page, these name the row that it was rewound to.
    showTitle(u"] "_s);
    showNoteHeading();
}

void frmMain::cboChapter_Click() {
    if (listsAreHeld())
        return;
    attempt([this] { cboVerse.setListIndex(0); });
    if (SettingCombos == Off) {
        attempt([this] {
            rsBible.Seek(u"="_s, cboBook.ListIndex() + 1, numberIn(cboChapter), numberIn(cboVerse));
        });
        attempt([this] { UpDateBibleText(true); });
    }
    txtMain.SetFocus();
}

void frmMain::cboVerse_Click() {
    if (listsAreHeld())
        return;
    DoEvents();
    if (QueryLock == Off && SettingCombos == Off)
        seekVerseDownward(cboBook.ListIndex() + 1, numberIn(cboChapter), numberIn(cboVerse));
    DoEvents();
    if (InQuery == Off && SettingCombos == Off)
        attempt([this] { UpDateBibleText(true); });
    DoEvents();
    if (SettingCombos == Off)
        AddToHistory();
    txtMain.SetFocus();
}

// Stands on the verse, or on the last one of its chapter where it does not exist, and lets the list
// say which. A cursor that cannot seek leaves the list alone.
void frmMain::seekVerseDownward(int book, int chapter, int verse) {
    bool missing = true;
    const auto seek = [&] {
        return attempt([&] {
            rsBible.Seek(u"="_s, book, chapter, verse);
            missing = rsBible.NoMatch();
        });
    };
    bool sought = seek();
    while (sought && missing && --verse >= 1)
        sought = seek();
    if (!sought)
        return;
    const int listed = cboVerse.ListIndex();
    attempt([&] { cboVerse.setListIndex(verse - 1); });
    // The list's own click has drawn its page and rewound the cursor.
    if (cboVerse.ListIndex() != listed)
        seek();
}

void frmMain::cmbTestament_Click() {
    if (StartingUp == On)
        return;
    if (QueryLock == On) {
        MsgBox(
            u"Feature unavailable while in a Query. Press Ctrl+J to end the query."_s,
            MessageIcon::Information, u"Tool Not Available"_s);
        return;
    }
    ScreenBusy = On;
    const int testament = cmbTestament.ListIndex();
    seekTestament(testament);
    attempt([&] {
        if (cboBook.ListCount() > 0)
            cboBook.setListIndex(testament == 2 ? FirstBookOfNewTestament - 1 : 0);
    });
    // The list of books may have drawn a page of its own and rewound the cursor.
    seekTestament(testament);
    attempt([this] { UpDateBibleText(true); });
    showNormalPointer();
    txtMain.SetFocus();
    ScreenBusy = Off;
}

void frmMain::seekTestament(int testament) {
    attempt([&] {
        if (testament == 0)
            rsBible.MoveFirst();
        else
            rsBible.Seek(u"="_s, testament == 1 ? 1 : FirstBookOfNewTestament, 1, 1);
    });
}

// Roots move nothing.
void frmMain::Tree_NodeClick(const QString& Node) {
    const qsizetype colon = Node.indexOf(u':');
    if (colon <= 0 && !Node.startsWith(u'X'))
        return;
    const QString book = colon > 0 ? Trim(Node.left(colon)) : Node.mid(1);
    const QString chapter = colon > 0 ? Trim(Node.mid(colon + 1)) : u"1"_s;
    attempt([&] { rsBible.Seek(u"="_s, book, chapter, 1); });
    attempt([this] { UpDateBibleText(true); });
}

void frmMain::SyncCombosToCursor() {
    SettingCombos = On;
    attempt([this] { cboBook.setListIndex(toInteger(rsBible.Fields(1).Value()) - 1); });
    attempt([this] { fillChapterList(toInteger(rsBible.Fields(1).Value())); });
    attempt([this] { cboChapter.setListIndex(toInteger(rsBible.Fields(2).Value()) - 1); });
    SettingCombos = Off;
    attempt([this] { cboVerse.setListIndex(toInteger(rsBible.Fields(3).Value()) - 1); });
}

void frmMain::showPlaceInLists() {
    SettingCombos = On;
    setListsToCursor();
    SettingCombos = Off;
}

void frmMain::selectPlaceInLists() {
    SettingCombos = On;
    selectPlace();
    SettingCombos = Off;
}

void frmMain::setListsToCursor() {
    attempt([this] { cboBook.setListIndex(toInteger(rsBible.Fields(1).Value()) - 1); });
    attempt([this] { fillChapterList(toInteger(rsBible.Fields(1).Value())); });
    selectPlace();
}

void frmMain::selectPlace() {
    attempt([this] { cboBook.setListIndex(toInteger(rsBible.Fields(1).Value()) - 1); });
    attempt([this] { cboChapter.setListIndex(toInteger(rsBible.Fields(2).Value()) - 1); });
    attempt([this] { cboVerse.setListIndex(toInteger(rsBible.Fields(3).Value()) - 1); });
}

// While a list has the focus, the title says what it is for, and it keeps its own arrow keys.
void frmMain::cmbTestament_GotFocus() {
    showHint(u"View Testament"_s);
}

void frmMain::cboBook_GotFocus() {
    showHint(u"Go to Book"_s);
}

void frmMain::cboChapter_GotFocus() {
    showHint(u"Go to Chapter"_s);
}

void frmMain::cboVerse_GotFocus() {
    showHint(u"Go to Verse"_s);
}

void frmMain::showHint(const QString& hint) {
    setKeyPreview(false);
    showTitle(u"] :"_s + hint);
}

void frmMain::list_KeyUp() {
    setKeyPreview(false);
}

void frmMain::list_LostFocus() {
    setKeyPreview(true);
}
