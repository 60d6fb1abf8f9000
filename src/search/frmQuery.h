// The query window: asks for one or two words and puts the verses that hold them in the place of
// the cursor, for the whole program, until End Query.
#pragma once

#include "basic/Flag.h"
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

class frmQuery final : public Form {
    Q_OBJECT

public:
    frmQuery();

    Frame famQuery{this, {u"famQuery", u"Enter text(s) to search for"}};
    Label Label1{&famQuery, {u"Label1", u"First Word"}};
    Label Label2{&famQuery, {u"Label2", u"Second Word (Optional)"}};
    ControlArray<TextBox> txtQuery;
    ControlArray<OptionButton> optAndOr; // both, either
    CheckBox chkMatchCase{&famQuery, {u"chkMatchCase", u"Match Whole Words"}};
    Frame famBooks{this, {u"famBooks", u"What to Search Through"}};
    ControlArray<Label> lblFindWhat;
    ComboBox cboScope{&famBooks, {u"cboScope", u"Testament"}};
    ComboBox cboBook{&famBooks, {u"cboBook", u"Book"}};
    ControlArray<CommandButton> cmdQuery; // OK, Clear Form, which is never shown, Cancel
    CommandButton cmdHelp{this, {u"cmdHelp", u"&Help", u"Tool Overview"}};

    // The position to go back to if the query finds nothing.
    QVariant OldBook;
    QVariant OldChapter;
    QVariant OldVerse;

    // Whether the query has found no verse.
    bool QueryEmpty = false;

    void SetupQueryForm();

    // Keeps the form for its next opening, for as long as the program runs.
    void RememberOldQuery() const;

    // Makes QuerySQL and QueryWords; false where the user has to be told that a word is missing.
    bool MakeSQLString() const;

    // Puts the verses of QuerySQL in the place of the cursor; without one, and with a text that the
    // store does not understand, the user is told and the program has the table cursor.
    void ExecuteSQL();

    void cmdQuery_Click(int Index);
    void cboScope_Click();
    void cboBook_Change();
    void txtQuery_GotFocus(int Index) const;
    void cmdHelp_Click();

protected:
    void Form_Load() override;
    void Form_Unload() override;
    CommandButton* closingButton() override { return &cmdQuery(3); }

private:
    void layOut();
    void layOutWords();
    void layOutBooks();
    void orderTabs();
    void wireControls();
    void fillBooks(const QString& all, int first, int last);
    void restoreOldQuery();
    void rememberPlace();
    void returnFromEmptyQuery();
    void runQuery();
    void showResult();
    void cancel();

    Flag m_foundInQuery = Off;
};
