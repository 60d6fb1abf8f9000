// Load and unload of the main window.
#include "reader/frmMain.h"

#include "Configuration.h"
#include "basic/Conversion.h"
#include "basic/Error.h"
#include "core/BookNames.h"
#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "desktop/Desktop.h"
#include "desktop/FileAttributes.h"
#include "desktop/HostPath.h"
#include "prefs/Internet.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString& fileOf(int row) {
    if (row < 0 || row >= CatalogueSize)
        throw Error(Error::SubscriptOutOfRange, u"Subscript out of range"_s);
    return BibleFile[static_cast<size_t>(row)];
}

// The path of a row's file; empty where the row or its file is missing.
QString installedFile(int row) {
    QString path;
    attempt([&] { path = FindDataFile(fileOf(row)); });
    return path == u"BAD" ? QString() : path;
}

void endWithoutTranslation() {
    const QString folder = programFolder();
    MsgBox(
        u"Unable to load any Bible Database [kjv.mdb, darby.mdb, rsv.mdb, ylt.mdb etc...]. Download your copy from "_s
            + configuration::HomeUrl + u"\r\n\r\nAfter you get it, unzip it into "_s + folder
            + u"\r\n\r\n"_s,
        MessageIcon::Stop, u"Need Plug in"_s);
    MsgBox(
        u"Make sure that there is at least one of these in "_s + folder, MessageIcon::Stop,
        u"Need Bible"_s);
    desktop().endProgram();
}

} // namespace

frmMain::frmMain()
    : Form(u"frmMain"_s) {
    layOut();
    wireControls();
    wireMenus();
    disableComingCommands();
    // The reader can page from the first moment.
    setKeyPreview(true);
    txtMain.setFocus();
}

void frmMain::wireControls() {
    on(cmdMain, &PictureButton::Click, this, &frmMain::cmdMain_Click);
    on(cmdMain, &PictureButton::MouseMove, this, &frmMain::cmdMain_MouseMove);
    on(cmdComment, &CommandButton::MouseMove, this, &frmMain::cmdComment_MouseMove);
    on(cmbTestament, &ComboBox::Click, this, &frmMain::cmbTestament_Click);
    on(cmbTestament, &ComboBox::GotFocus, this, &frmMain::cmbTestament_GotFocus);
    on(cboBook, &ComboBox::Click, this, &frmMain::cboBook_Click);
    on(cboBook, &ComboBox::GotFocus, this, &frmMain::cboBook_GotFocus);
    on(cboChapter, &ComboBox::Click, this, &frmMain::cboChapter_Click);
    on(cboChapter, &ComboBox::GotFocus, this, &frmMain::cboChapter_GotFocus);
    on(cboVerse, &ComboBox::Click, this, &frmMain::cboVerse_Click);
    on(cboVerse, &ComboBox::GotFocus, this, &frmMain::cboVerse_GotFocus);
    for (ComboBox* list : {&cmbTestament, &cboBook, &cboChapter, &cboVerse}) {
        on(*list, &ComboBox::KeyUp, this, &frmMain::list_KeyUp);
        on(*list, &ComboBox::LostFocus, this, &frmMain::list_LostFocus);
    }
    on(tree, &TreeView::NodeClick, this, &frmMain::Tree_NodeClick);
    on(txtMain, &RichTextBox::GotFocus, this, &frmMain::txtMain_GotFocus);
    on(txtMain, &RichTextBox::LostFocus, this, &frmMain::txtMain_LostFocus);
    on(txtMain, &RichTextBox::KeyDown, this, &frmMain::txtMain_KeyDown);
    on(txtMain, &RichTextBox::MouseUp, this, &frmMain::txtMain_MouseUp);
    on(txtFind, &TextBox::GotFocus, this, &frmMain::txtFind_GotFocus);
    on(txtFind, &TextBox::KeyPress, this, &frmMain::txtFind_KeyPress);
    on(txtFind, &TextBox::MouseMove, this, &frmMain::txtFind_MouseMove);
    on(txtNote, &MultilineTextBox::Change, this, &frmMain::txtNote_Change);
    on(txtNote, &MultilineTextBox::GotFocus, this, &frmMain::txtNote_GotFocus);
    on(txtNote, &MultilineTextBox::KeyPress, this, &frmMain::txtNote_KeyPress);
    on(txtNote, &MultilineTextBox::KeyUp, this, &frmMain::txtNote_KeyUp);
    on(txtNote, &MultilineTextBox::LostFocus, this, &frmMain::txtNote_LostFocus);
}

void frmMain::disableComingCommands() {
    for (const QString& name : comingCommands()) {
        if (auto* control = findChild<QWidget*>(name))
            control->setEnabled(false);
        if (auto* item = findChild<MenuItem*>(name))
            item->setEnabled(false);
    }
}

void frmMain::Form_Load() {
    StartingUp = On;
    InitGlobals();
    LoadSettings();
    if (FindDataFile(u"bible.hlp"_s) != u"BAD")
        HelpFile = u"bible.hlp"_s;
    ScreenBusy = On;
    HoldUpdates = Off;
    LoadDatabases();
    SelectBookNames(CurrentBible);
    Screensetup();
    CreateMenu();
    FormatText();
    ScreenBusy = Off;
    mnuedit(5).setChecked(HideNotes != Off);
    mnuedit(6).setChecked(HideToolbar != Off);
    attempt([this] { mnubible(CurrentBible).setChecked(true); });
}

void frmMain::LoadDatabases() {
    FoundBible = Off;
    QString path;
    // The row the user chose last, or else the first that is there.
    for (int row = -1; row < CatalogueSize && FoundBible == Off; ++row) {
        const int candidate = row < 0 ? BootUpBible : row;
        path = installedFile(candidate);
        if (path.isEmpty())
            continue;
        FoundBible = On;
        CurrentBible = toInt16(candidate);
        SelectBookNames(CurrentBible);
    }
    HomePath = path;
    SaveSettings();
    if (FoundBible == Off)
        endWithoutTranslation();
    UpdateMenu();
    attempt([&] {
        if (GetAttr(path) != 0)
            clearAttributes(path);
    });
    openTranslation(path);
}

void frmMain::openTranslation(const QString& path) {
    try {
        wsBible = DBEngine::CreateWorkspace(u"Bible"_s, u"Admin"_s, {});
        dbBible = wsBible.OpenDatabase(path);
    } catch (const Error& error) {
        MsgBox(u"Database Load Error: "_s + error.text(), MessageIcon::Stop);
        return;
    }
    try {
        rsBible = dbBible.OpenRecordset(u"tblMain"_s, dbOpenTable);
        rsBible.Index(u"VerseIndex"_s);
        rsBible.MoveFirst();
    } catch (const Error& error) {
        MsgBox(u"Database Assign Error: "_s + error.text(), MessageIcon::Information, u"Error"_s);
        return;
    }
    BibleFile[static_cast<size_t>(CurrentBible)] = path;
}

void frmMain::Form_Unload() {
    keepUnsavedNote();
    attempt([] {
        SaveSetting(ApplicationName, u"Last"_s, u"book"_s, toText(rsBible.Fields(1).Value()));
    });
    // One too high on purpose; nothing reads it.
    attempt([] {
        SaveSetting(
            ApplicationName, u"Last"_s, u"chapter"_s,
            QString::number(toInteger(rsBible.Fields(2).Value()) + 1));
    });
    deleteTempFiles();
    attempt([] { desktop().closeHelp(HelpFile); });
    attempt([] { SaveSettings(); });
    attempt([] { saveHistory(); });
    attempt([this] { offerUpdates(); });
    desktop().endProgram();
}

void frmMain::deleteTempFiles() {
    for (size_t slot = 1; slot < TempFiles.size() && FileExists(TempFiles[slot]); ++slot)
        QFile::remove(hostPath(TempFiles[slot]));
}

// Asks once per user.
void frmMain::offerUpdates() {
    const QString program = QCoreApplication::applicationName();
    if (GetSetting(program, u"notified"_s, u"done"_s, u"no"_s) != u"no")
        return;
    SaveSetting(program, u"notified"_s, u"done"_s, u"yes"_s);
    flushSettings();
    const Answer answer = MsgBox(
        u"Would you like to be notified of FREE updates? (All Updates are free forever)\r\n\r\n"
        u"This sends a blank email to "_s
            + configuration::UpdateAddress,
        MessageIcon::Question, {}, MessageButtons::YesNo);
    if (answer != Answer::Yes)
        return;
    OpenUrl(
        u"mailto:"_s + configuration::UpdateAddress + u"?subject=Just send this email [Lumenvia "_s
        + QString::number(configuration::VersionMajor) + u'.'
        + QString::number(configuration::VersionMinor) + u']');
}

// A tool window that has just closed may have moved the cursor.
void frmMain::Form_Activate() {
    Resize();
    if (StartingUp == Off && HoldUpdates == Off)
        refreshNote();
}

void frmMain::windowLeft() {
    writePendingNote();
}

void frmMain::Form_Click() {
    Resize();
}

void frmMain::Form_Paint() {
    Resize();
}

void frmMain::Form_Resize() {
    Resize();
}

void frmMain::Form_GotFocus() {
    setKeyPreview(true);
    Resize();
    setFocus();
}
