// The commands of the tool bar, what they share, and the switch of the translation.
#include "basic/Conversion.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "controls/SendKeys.h"
#include "core/BookNames.h"
#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "core/frmChangeBible.h"
#include "desktop/Desktop.h"
#include "desktop/FileAttributes.h"
#include "prefs/Internet.h"
#include "prefs/frmDownload.h"
#include "reader/frmMain.h"
#include "search/frmHolyTextFind.h"
#include "search/frmIndex.h"
#include "search/frmNoteSearch.h"
#include "search/frmQuery.h"

#include <map>

using namespace Qt::StringLiterals;

namespace {

// Whether the cursor finds by criteria: where no table could be opened, a query or a search leaves
// it so at its end.
bool isDynaset() {
    return attempt([] { rsBible.FindFirst(u"ID = 0 and ID = 1"_s); });
}

} // namespace

// What the buttons do whose windows are there; the others are disabled.
void frmMain::cmdMain_Click(int Index) {
    using Command = void (*)(frmMain&);
    static const std::map<int, Command> commands = {
        {3, [](frmMain&) { form<frmNoteSearch>().ShowModal(); }},
        {4, [](frmMain& main) { main.searchText(); }},
        {5, [](frmMain&) { form<frmQuery>().ShowModal(); }},
        {6, [](frmMain& main) { main.EndQuery(); }},
        {7, [](frmMain& main) { main.FindPreviousButton(); }},
        {8, [](frmMain& main) { main.findnextbutton(); }},
        {10, [](frmMain&) { form<frmIndex>().Show(); }},
        {13, [](frmMain& main) { main.sendToTextBox(Qt::Key_X); }},
        {14, [](frmMain& main) { main.sendToTextBox(Qt::Key_C); }},
        {15, [](frmMain& main) { main.sendToTextBox(Qt::Key_V); }},
        {16, [](frmMain&) { form<frmChangeBible>().Show(); }},
        {22, [](frmMain& main) { EmailText(main.txtMain.Text()); }},
    };
    showNormalPointer();
    const auto command = commands.find(Index);
    if (command != commands.end())
        command->second(*this);
    showNormalPointer();
}

void frmMain::searchText() const {
    cmdMain(6).setValue(true);
    form<frmHolyTextFind>().ShowModal();
}

// While the mouse is on a button, the title says what it does.
void frmMain::cmdMain_MouseMove(int Index) {
    showTitle(u"]: "_s + cmdMain(Index).ToolTipText());
}

void frmMain::cmdComment_MouseMove() {
    showTitle(u"]: "_s + cmdComment.ToolTipText());
}

// Pressing a button may have taken the focus from the text box that the command is meant for.
void frmMain::restoreFocus() {
    if (NoteHasFocus)
        txtNote.SetFocus();
    if (FindHasFocus)
        txtFind.SetFocus();
    if (MainHasFocus)
        txtMain.SetFocus();
}

void frmMain::sendToTextBox(Qt::Key key) {
    restoreFocus();
    sendKey(key, Qt::ControlModifier);
}

void frmMain::selectAll() {
    if (NoteHasFocus)
        txtNote.selectAll();
    else
        sendKey(Qt::Key_A, Qt::ControlModifier);
}

void frmMain::copyFromPage() {
    const QString text = txtMain.SelText();
    if (text.isEmpty())
        MsgBox(u"Please highlight some text first."_s, MessageIcon::Information, u"Can't Copy"_s);
    else
        desktop().setClipboardText(text);
}

// The verse that the lists show becomes the reading position. On a plain cursor nothing happens, so
// that a window may press this button to be sure of one.
void frmMain::EndQuery() {
    if (InQuery == Off && !isDynaset())
        return;
    showHourglass();
    QueryLock = Off;
    SettingCombos = Off;
    const int book = cboBook.ListIndex() + 1;
    const double chapter = Val(cboChapter.Text());
    const double verse = Val(cboVerse.Text());
    attempt([] { OpenBibleTable(); });
    InQuery = Off;
    // Where no table could be opened the page stays, as the cursor has been rewound behind it.
    if (attempt([&] { rsBible.Seek(u"="_s, book, chapter, verse); }))
        attempt([this] { UpDateBibleText(true); });
    showNormalPointer();
    enableLists(true);
}

void frmMain::enableLists(bool enabled) {
    for (ComboBox* list : {&cboBook, &cboChapter, &cboVerse, &cmbTestament})
        list->setEnabled(enabled);
}

void frmMain::loadNewBible(int row) {
    QueryLock = Off;
    SettingCombos = Off;
    enableLists(true);
    const QString path = FindDataFile(BibleFile[static_cast<size_t>(row)]);
    if (path == u"BAD") {
        DownloadItem = row;
        form<frmDownload>().Show();
        return;
    }
    // Afterwards the same address would be a verse of the other translation.
    keepUnsavedNote();
    m_noteRow.reset();
    attempt([&] {
        if (GetAttr(path) != 0)
            clearAttributes(path);
    });
    openInstead(path);
    BootUpBible = toInt16(row);
    for (int item = 0; item <= 15; ++item)
        mnubible(item).setChecked(false);
    attempt([&] { SelectBookNames(row); });
    attempt([&] { mnubible(row).setChecked(true); });
    CurrentBible = toInt16(row);
    attempt([] { rsBible.MoveFirst(); });
    attempt([this] { UpDateBibleText(true); });
    showTitle(u"]"_s);
    StartingUp = On;
    for (ComboBox* list : {&cmbTestament, &cboBook, &cboChapter, &cboVerse})
        attempt([&] { list->setListIndex(0); });
    StartingUp = Off;
}

// A file that cannot be opened leaves a cursor that fails at its next read; the text and the notes
// of the old translation must not pass for those of the new one.
void frmMain::openInstead(const QString& path) {
    dbBible = {};
    rsBible = {};
    attempt([] { wsBible = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {}); });
    attempt([&] { dbBible = wsBible.OpenDatabase(path); });
    attempt([] { rsBible = dbBible.OpenRecordset(u"tblMain"_s, dbOpenTable); });
    attempt([] { rsBible.Index(u"VerseIndex"_s); });
    attempt([] { rsBible.MoveFirst(); });
}
