// The main window: the page of verses, the tree and the lists that lead to it, and the note of the
// current verse. One class over several files by duty: construction, load and unload in
// frmMain.cpp, the page in frmMain_page.cpp, the layout in frmMain_layout.cpp.
#pragma once

#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/Forms.h"
#include "controls/Label.h"
#include "controls/Menu.h"
#include "controls/Splitter.h"
#include "controls/TextBox.h"
#include "controls/TreeView.h"
#include "richtext/RichTextBox.h"

class frmMain final : public Form {
    Q_OBJECT

public:
    frmMain();

    QWidget pnlMain{this};
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

    // Picks and opens the translation at start; tells the user and ends the program without one.
    void LoadDatabases();

    // Fills the lists that lead through the text.
    void Screensetup();

    // Fills the list of books with the names in use and selects the first.
    void fillBookList();

    // The layout rule: the note pane keeps its share of the reading area.
    void Resize();

    // Turns the position of the cursor into the page: from the current row to the end of its
    // chapter, or, without WholeChapter, VersesPerPage and one verses. Afterwards the cursor stands
    // VersesPerPage and one rows before the end of the page, from where the paging keys start.
    void UpDateBibleText(bool WholeChapter);

    // Applies the user's colours to page and note, and his font to the note.
    void FormatText();

    // The plain text of VersesPerPage and one verses from the cursor on, which is put back.
    QString FormatPrinterOutput();

    // Rebuilds the bookmark items and keeps the bookmarks.
    void CreateMenu();

    // A hook of the catalogue's loading.
    void UpdateMenu() {}

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_Activate() override;
    void Form_GotFocus() override;
    void Form_Paint() override;
    void Form_Resize() override;

private:
    void layOut();
    void layOutStrip();
    void layOutNotePane();
    void openTranslation(const QString& path);
    void deleteTempFiles();
    void offerUpdates();

    void ColorText();
    void colorWord(const QString& word);
    void showReference();
    void rewind(int shown);
    void showNote();
    void markFoundText();

    qint16 LastSplitHeight = 0;
    qint16 LastSplitWidth = 0;
};
