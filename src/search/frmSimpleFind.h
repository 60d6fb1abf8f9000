// The simple search: one word or phrase, found verse by verse. While the window is open the lists
// of the main window follow the cursor; the page waits until it closes.
#pragma once

#include "controls/CheckBox.h"
#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

class frmSimpleFind final : public Form {
    Q_OBJECT

public:
    frmSimpleFind();

    Frame fraMain{this, {u"fraMain", u"Find what"}};
    TextBox txtFind{&fraMain, {u"txtFind", u"Find what", u"Enter search word here."}};
    CheckBox chkMatchWholeWord{
        &fraMain,
        {u"chkMatchWholeWord", u"Match Whole Word",
         u"Only the whole world will be searched. (Slower performance)"}};
    Frame fraScope{this, {u"fraScope", u"Scope of Search"}};
    ControlArray<Label> lblFindWhat;
    ComboBox cboTestament{
        &fraScope, {u"cboTestament", u"Testament", u"Search only the Old or New Testament."}};
    ComboBox cboBook{&fraScope, {u"cboBook", u"Book", u"Search only a specific book"}};
    ControlArray<CommandButton> cmdFind; // first, which is never shown, next, previous, close
    CommandButton cmdHelp{this, {u"cmdHelp", u"&Help", u"Tool Overview"}};

    // Whether the cursor has been moved to the start of the scope.
    bool Repositioned = false;

    // The criteria for what the window now says.
    QString MakeSimpleSQL() const;

    // Moves the cursor to the start of the scope, once for each choice of a scope.
    void DoReposition();

    // One search each. They leave the cursor on the hit, and on a miss where it was, which they
    // tell the user; a word that spoils the criteria is an Error.
    void findFirstbutton();
    void findnextbutton();
    void FindPreviousButton();

    void cmdFind_Click(int Index);
    void cboBook_Click();
    void cboTestament_Click();
    void cmdHelp_Click();

    // Closes the window on the last hit without giving back the table cursor. A modal window does
    // not lose its activation to another window of the program, so nothing calls it.
    void Form_Deactivate();

protected:
    void Form_Load() override;
    CommandButton* closingButton() override { return &cmdFind(3); }

private:
    void layOut();
    void layOutScope();
    void layOutButtons();
    void wireControls();
    void leave();
    void search(int Index);
    void startFind();
    void offerBeginning();
};
