// The menus: built from their tables, and answered mostly by pressing a button of the tool bar.
#include "Configuration.h"
#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "core/frmBibleDescription.h"
#include "desktop/Desktop.h"
#include "desktop/HostPath.h"
#include "prefs/Internet.h"
#include "prefs/frmAbout.h"
#include "prefs/frmDownload.h"
#include "reader/MainCommands.h"
#include "reader/frmMain.h"
#include "search/frmHolyTextFind.h"
#include "search/frmIndex.h"
#include "search/frmNoteSearch.h"
#include "search/frmQuery.h"
#include "search/frmSimpleFind.h"

using namespace Qt::StringLiterals;

namespace {

const MenuTable& tableOf(int index) {
    return *std::ranges::find(mainMenus(), index, &MenuTable::index);
}

// What an item of the menu of translations stands for, beside the rows of the catalogue.
enum HelpContext { BibleDescriptions = 998, HowToAdd = 999 };

int helpContextOf(int item) {
    if (item == 13 || item == 14)
        return HowToAdd;
    return item == 15 ? BibleDescriptions : item;
}

} // namespace

MenuArray frmMain::makeMenu(int index) {
    const MenuTable& table = tableOf(index);
    QMenu* menu = mnuMain.addMenu(table.caption);
    menu->setObjectName(u"mnuMain("_s + QString::number(index) + u')');
    connect(menu, &QMenu::aboutToShow, this, [this] { runHandler([this] { mnuMain_Click(); }); });
    return {this, menu, table.name, table.rows};
}

MenuArray frmMain::makePopupMenu() {
    mnuPopText.setObjectName(u"mnuPopText"_s);
    return {this, &mnuPopText, popupMenu().name, popupMenu().rows};
}

void frmMain::wireMenus() {
    on(mnufile, &MenuItem::Click, this, &frmMain::mnuFile_Click);
    on(mnuedit, &MenuItem::Click, this, &frmMain::mnuEdit_Click);
    on(mnuSearch, &MenuItem::Click, this, &frmMain::mnuSearch_Click);
    on(mnuTool, &MenuItem::Click, this, &frmMain::mnuTool_Click);
    on(mnubible, &MenuItem::Click, this, &frmMain::mnuBible_Click);
    on(mnuBookmark, &MenuItem::Click, this, &frmMain::mnuBookmark_Click);
    on(mnudownload, &MenuItem::Click, this, &frmMain::mnudownload_Click);
    on(mnuHelp, &MenuItem::Click, this, &frmMain::mnuHelp_Click);
    on(mnutext, &MenuItem::Click, this, &frmMain::mnuText_Click);
}

void frmMain::mnuMain_Click() {
    showTitle(u"]"_s);
    setKeyPreview(true);
}

void frmMain::mnuFile_Click(int Index) {
    switch (Index) {
    case 0:
        cmdMain(16).setValue(true);
        break;
    case 7:
        Unload();
        break;
    default:
        break;
    }
}

void frmMain::mnuEdit_Click(int Index) {
    switch (Index) {
    case 0:
    case 1:
    case 2:
        cmdMain(13 + Index).setValue(true);
        break;
    case 3:
        selectAll();
        break;
    case 5:
        showNoteHeading();
        HideNotes = toFlag(HideNotes == Off);
        mnuedit(5).setChecked(HideNotes != Off);
        break;
    case 6:
        HideToolbar = toFlag(HideToolbar == Off);
        mnuedit(6).setChecked(HideToolbar != Off);
        break;
    default:
        break;
    }
}

void frmMain::mnuSearch_Click(int Index) const {
    switch (Index) {
    case 0:
        cmdMain(5).setValue(true);
        break;
    case 1:
        cmdMain(6).setValue(true);
        break;
    case 3:
        form<frmSimpleFind>().ShowModal();
        break;
    case 4:
        form<frmHolyTextFind>().ShowModal();
        break;
    case 6:
        cmdMain(3).setValue(true);
        break;
    default:
        break;
    }
}

void frmMain::mnuTool_Click(int Index) {
    if (Index == 1)
        form<frmIndex>().Show();
    showNormalPointer();
}

void frmMain::mnuBible_Click(int Index) {
    switch (helpContextOf(Index)) {
    case BibleDescriptions:
        form<frmBibleDescription>().ShowModal();
        break;
    case HowToAdd:
        DownloadItem = 0;
        form<frmDownload>().Show();
        break;
    default:
        DownloadItem = Index;
        if (InQuery == On)
            cmdMain(6).setValue(true);
        loadNewBible(Index);
        break;
    }
}

void frmMain::mnudownload_Click(int Index) {
    if (Index == 0) {
        DownloadItem = 0;
        form<frmDownload>().Show();
    } else if (Index == 2) {
        OpenUrl(configuration::HomeUrl + u"/order"_s);
    }
}

void frmMain::mnuHelp_Click(int Index) {
    switch (Index) {
    case 0:
        showHelpContents();
        break;
    case 6:
        OpenUrl(configuration::HomeUrl + u"/notified.htm"_s);
        break;
    case 7:
        OpenUrl(configuration::HomeUrl);
        break;
    case 9:
        form<frmAbout>().Show();
        break;
    default:
        break;
    }
}

void frmMain::showHelpContents() {
    const QString file = FindDataFile(u"bible.hlp"_s);
    if (file == u"BAD") {
        MsgBox(
            u"Unable to find Help file. Make sure it exists in "_s + programFolder(),
            MessageIcon::Information, u"Can't Find Help"_s);
        return;
    }
    cdlCommon.HelpFile = file;
    cdlCommon.helpCommand = HelpCommand::Contents;
    cdlCommon.ShowHelp();
}

void frmMain::mnuText_Click(int Index) {
    if (Index == 1 && MainHasFocus)
        copyFromPage();
    else if (Index == 5)
        form<frmQuery>().ShowModal();
    else if (Index == 7)
        form<frmHolyTextFind>().ShowModal();
    else if (Index == 8)
        form<frmNoteSearch>().ShowModal();
}

void frmMain::CreateMenu() {
    for (int item = 3; item <= 67; ++item)
        attempt([&] { mnuBookmark.Unload(item); });
    try {
        int item = 3;
        for (size_t slot = 0; slot <= 67; ++slot) {
            if (BookmarkText[slot].isEmpty())
                continue;
            MenuItem& bookmark = mnuBookmark.Load(item);
            bookmark.setCaption(BookmarkText[slot]);
            bookmark.setVisible(true);
            bookmark.Click.handleWith([this, item] { mnuBookmark_Click(item); });
            ++item;
        }
    } catch (const Error&) {
        MsgBox(
            u"You have reached the maximum number of Bookmarks: "_s + u"70"_s,
            MessageIcon::Information, u"Bookmarks"_s);
        SaveSettings();
    }
    saveBookmarks();
}

// The slot follows from the place in the menu and not from the caption, so a gap in the table
// shifts what stands behind it.
void frmMain::mnuBookmark_Click(int Index) {
    if (Index >= 3)
        jumpToBookmark(static_cast<size_t>(Index) - 3);
}

void frmMain::jumpToBookmark(size_t slot) {
    const QString title = Caption();
    const QString heading = lblCurrentNote.Caption();
    showTitle(u"] "_s);
    showNoteHeading();
    if (goToBookmark(slot))
        return;
    setCaption(title);
    lblCurrentNote.setCaption(heading);
}

// Whether the bookmark was reached; where it was not, the user is told and the cursor is back.
bool frmMain::goToBookmark(size_t slot) {
    if (InQuery == On) {
        MsgBox(
            u"In a query you can't jump to bookmarks. Press Ctrl+J to end the Query."_s,
            MessageIcon::Information, u"Can't Use Bookmarks"_s);
        return false;
    }
    const std::optional<VerseRow> before = currentVerseRow();
    const VerseRow target{{}, BookmarkBook[slot], BookmarkChapter[slot], BookmarkVerse[slot]};
    if (!seekVerseRow(target)) {
        MsgBox(
            u"Unable to Find your bookmarked location."_s, MessageIcon::Information,
            u"Bookmarks"_s);
        if (before)
            seekVerseRow(*before);
        return false;
    }
    UpDateBibleText(true);
    showTitle(u"] "_s);
    showNoteHeading();
    // The page has rewound the cursor; the lists and the reader want the place that was asked for.
    seekVerseRow(target);
    showPlaceInLists();
    UpDateBibleText(true);
    return true;
}
