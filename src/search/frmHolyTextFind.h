// The advanced search: one or two words, walked hit by hit. Each hit is shown at once on the page
// behind the window, with the words marked.
#pragma once

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/OptionButton.h"
#include "controls/TextBox.h"

#include <QVariant>

class Error;

class frmHolyTextFind final : public Form {
    Q_OBJECT

public:
    frmHolyTextFind();

    Frame fraFind{this, {u"fraFind", u"Enter text to look for"}};
    Label Label1{&fraFind, {u"Label1", u"First Word"}};
    Label Label2{&fraFind, {u"Label2", u"Second Word (Optional)"}};
    ControlArray<TextBox> txtFind;
    ControlArray<OptionButton> optAndOr; // both words, either word
    Frame fraScope{this, {u"fraScope", u"Scope of Search"}};
    ControlArray<Label> lblFindWhat;
    ComboBox cboTestament{&fraScope, {u"cboTestament", u"Testament"}};
    ComboBox cboBook{&fraScope, {u"cboBook", u"Book"}};
    CheckBox chkMatchWholeWord{&fraScope, {u"chkMatchWholeWord", u"Match Whole Word"}};
    // first and query, which are never shown, close, next, previous
    ControlArray<CommandButton> cmdHolyTextFind;
    CommandButton cmdHelp{this, {u"cmdHelp", u"&Help", u"Tool Overview"}};

    QString SearchSQL; // the criteria last made

    // main.cmbTestament's row when the window opened.
    qint16 SavedTestament = 0;

    // Where Close leads: the place of the cursor when the window opened, then the last hit.
    QVariant LastBook;
    QVariant LastChapter;
    QVariant LastVerse;

    // Whether the cursor has been moved to the start of the scope.
    bool Repositioned = false;

    // Keeps what the window holds for its next opening, for as long as the program runs.
    void RememberOldSearch() const;
    void MakeSQL();

    // After a search: its words are the words that are marked.
    void DoSearch();

    // Marks the words on the page.
    void DoColor();

    void cmdHolyTextFind_Click(int Index);
    void cboBook_Click();
    void cboTestament_Click();
    void cmdHelp_Click();
    void Form_MouseMove();
    void fraFind_MouseMove() { Form_MouseMove(); }

protected:
    void Form_Load() override;
    void Form_Unload() override;
    CommandButton* closingButton() override { return &cmdHolyTextFind(1); }
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void makeControls();
    void layOut();
    void layOutWords();
    void layOutScope();
    void orderFocus();
    void wireControls();
    void restoreOldSearch();
    void search(int Index);
    void moveToScope();
    void findNext();
    void findPrevious();
    void offerBeginning();
    void takePlace();
    void takeListedPlace();
    void showHit();
    // The page cannot be marked: tells the user, and closes the window.
    void textSearchFailed(const Error& error);
    void leave();
};
