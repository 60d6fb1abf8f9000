// The main window: the page of verses, the tree and the lists that lead to it, the note of the
// current verse, and the commands of the whole program. One class over several files by duty:
// construction, load and unload in frmMain.cpp, and by their names frmMain_page, _navigation,
// _keyboard, _notes, _findbar, _layout, _menus and _commands.
#pragma once

#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/CommonDialog.h"
#include "controls/Forms.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/Splitter.h"
#include "controls/TextBox.h"
#include "controls/TreeView.h"
#include "reader/MainCommands.h"
#include "reader/VerseRow.h"
#include "richtext/RichTextBox.h"

#include <QMenuBar>

class frmMain final : public Form {
    Q_OBJECT

public:
    frmMain();

    QMenuBar mnuMain{this};
    MenuArray mnufile = makeMenu(0);
    MenuArray mnuedit = makeMenu(1);
    MenuArray mnuSearch = makeMenu(2);
    MenuArray mnuTool = makeMenu(3);
    MenuArray mnubible = makeMenu(4);
    MenuArray mnuBookmark = makeMenu(5);
    MenuArray mnudownload = makeMenu(7);
    MenuArray mnuHelp = makeMenu(8);
    QMenu mnuPopText{this};
    MenuArray mnutext = makePopupMenu();
    CommonDialog cdlCommon;

    QWidget pnlMain{this};
    ControlArray<PictureButton> cmdMain;
    ComboBox cmbTestament{&pnlMain, {u"cmbTestament", {}, u"Change Testament"}};
    ComboBox cboBook{&pnlMain, {u"cboBook", {}, u"Change Book"}};
    ComboBox cboChapter{&pnlMain, {u"cboChapter", {}, u"Change Chapter"}};
    ComboBox cboVerse{&pnlMain, {u"cboVerse", {}, u"Change Verse"}};
    TextBox txtFind{&pnlMain, {u"txtFind", {}, u"Enter text to search for"}};

    Splitter vbuSplitter1{this, u"vbuSplitter1", Splitter::ByWidth};
    TreeView tree{&vbuSplitter1, {u"tree", u"Books and chapters"}};
    Splitter vbuSplitter2{&vbuSplitter1, u"vbuSplitter2", Splitter::ByHeight};
    RichTextBox txtMain{&vbuSplitter2, {u"txtMain", u"Bible text"}};
    QWidget notePane{&vbuSplitter2};
    Label lblCurrentNote{&notePane, {u"lblCurrentNote", u"Note for "}};
    CommandButton cmdComment{
        &notePane, {u"cmdComment", u"&Commentary", u"View a commentary on this chapter"}};
    MultilineTextBox txtNote{&notePane, {u"txtNote", u"Your note"}};

    // Which text box last held the focus; the clipboard commands give it back.
    bool MainHasFocus = false;
    bool NoteHasFocus = false;
    bool FindHasFocus = false;

    // Picks and opens the translation at start; tells the user and ends the program without one.
    void LoadDatabases();

    // Swaps the open translation for that of a catalogue row, at its first verse; where its file
    // is missing the download window opens on it, and nothing else changes. Ends no query: callers
    // press End Query first.
    void loadNewBible(int row);

    // Hooks of the catalogue's loading and of the export.
    void UpdateMenu() {}
    void ExportText() {}

    // Turns the position of the cursor into the page: from the current row to the end of its
    // chapter, or, without WholeChapter, VersesPerPage and one verses. Afterwards the cursor stands
    // VersesPerPage and one rows before the end of the page, from where the paging keys start.
    void UpDateBibleText(bool WholeChapter);

    // Applies the user's colours to page and note, and his font to the note.
    void FormatText();

    // The plain text of VersesPerPage and one verses from the cursor on, which is put back.
    QString FormatPrinterOutput();

    // The title of the window with the reference of the cursor; `end` closes the bracket.
    void showTitle(const QString& end);

    // "Your note for: " and the reference of the cursor, above the note.
    void showNoteHeading();

    // Fills the note pane from the row under the cursor, to which it belongs from then on.
    void showNote();

    // Fills the lists that lead through the text.
    void Screensetup();
    void fillBookList();
    void fillChapterList(int book);

    void enableLists(bool enabled);

    // Sets the lists from the cursor; the last of them, the verse, acts as if the user had.
    void SyncCombosToCursor();

    // The lists follow the cursor, and none of them acts. selectPlaceInLists leaves it to the list
    // of books to fill that of the chapters.
    void showPlaceInLists();
    void selectPlaceInLists();

    // The same under the flags as they are.
    void setListsToCursor();

    // Writes the note to the row that it belongs to.
    void WriteNote();

    // The layout rule: both splitters keep their share.
    void Resize();

    // One step of the find bar from the verse under the cursor on: the next or previous verse that
    // holds the text of txtFind becomes the reading position. Without one the user is told, and
    // everything stays.
    void findnextbutton();
    void FindPreviousButton();

    // A hook of the find bar.
    void HighlightFindButton() {}

    // Rebuilds the bookmark items and keeps the bookmarks.
    void CreateMenu();

    void cmbTestament_Click();
    void cmbTestament_GotFocus();
    void cboBook_Click();
    void cboBook_GotFocus();
    void cboChapter_Click();
    void cboChapter_GotFocus();
    void cboVerse_Click();
    void cboVerse_GotFocus();
    void list_KeyUp();
    void list_LostFocus();
    void Tree_NodeClick(const QString& Node);

    void txtMain_GotFocus();
    void txtMain_LostFocus();
    void txtMain_KeyDown(int& KeyCode, int Shift);
    void txtMain_MouseUp(int Button, int Shift, int X, int Y);
    void txtFind_GotFocus();
    void txtFind_KeyPress(int& KeyAscii);
    void txtFind_MouseMove();
    void txtNote_GotFocus();
    void txtNote_KeyPress(int& KeyAscii);
    void txtNote_Change();
    void txtNote_KeyUp();
    void txtNote_LostFocus();
    void cmdComment_MouseMove();

    void cmdMain_Click(int Index);
    void cmdMain_MouseMove(int Index);
    void mnuMain_Click();
    void mnuFile_Click(int Index);
    void mnuEdit_Click(int Index);
    void mnuSearch_Click(int Index) const;
    void mnuTool_Click(int Index);
    void mnuBible_Click(int Index);
    void mnuBookmark_Click(int Index);
    void mnudownload_Click(int Index);
    void mnuHelp_Click(int Index);
    void mnuText_Click(int Index);

    void Form_KeyDown(int& KeyCode, int Shift) override;

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_Activate() override;
    void windowLeft() override;
    void Form_Click() override;
    void Form_GotFocus() override;
    void Form_Paint() override;
    void Form_Resize() override;

private:
    void openTranslation(const QString& path);
    void deleteTempFiles();
    void offerUpdates();

    MenuArray makeMenu(int index);
    MenuArray makePopupMenu();
    void wireMenus();
    void wireControls();
    void disableComingCommands();
    void layOut();
    void layOutStrip();
    void layOutNotePane();
    QWidget* makeGroup(ToolBarButton::Group group);
    PictureButton* makeButton(const ToolBarButton& button, QWidget* group);

    void ColorText();
    void rewind(int shown);
    void fillNote(const QString& note);
    void refreshNote();
    bool isOnAnotherRow() const;
    QString noteToStore() const;
    void writePendingNote();
    void keepUnsavedNote();
    void markFoundText();

    void selectPlace();
    void showHint(const QString& hint);
    void seekVerseDownward(int book, int chapter, int verse);
    void seekTestament(int testament);
    void turnBook(int KeyCode);
    void turnChapter(int KeyCode);
    void turnPage(int KeyCode, int multiplier);
    void showPlaceAndPage();
    bool focusKeeps(int KeyCode) const;

    void findFromCursor(bool forward);

    void EndQuery();
    void searchText() const;
    void restoreFocus();
    void sendToTextBox(Qt::Key key);
    void openInstead(const QString& path);
    void selectAll();
    void copyFromPage();
    void jumpToBookmark(size_t slot);
    bool goToBookmark(size_t slot);
    void showHelpContents();

    qint16 LastSplitHeight = 0;
    qint16 LastSplitWidth = 0;
    std::optional<VerseRow> m_pageTop;
    std::optional<VerseRow> m_noteRow;
    QVariant m_loadedNote;
    bool m_noteUnsaved = false;
    bool m_noteWriteFailed = false;
    bool m_fillingNote = false;
};
