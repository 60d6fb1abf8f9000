// The choice of another translation: tells of each row of the catalogue what it is and whether its
// file is there, and hands the chosen one to the main window.
#pragma once

#include "controls/CommandButton.h"
#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/OptionButton.h"

class frmChangeBible final : public Form {
    Q_OBJECT

public:
    frmChangeBible();

    Frame fambibles{this, {u"fambibles", u"Bibles to choose from"}};
    ControlArray<OptionButton> OptBible = makeBibles();
    Frame famDesscribe{this, {u"famDesscribe", u"Bible Information"}};
    // Description, file name, whether installed, web page.
    ControlArray<Label> lblbibleinfo = makeInformation();
    CommandButton cmdOK{this, {u"cmdOK", u"OK", u"Change to selected Bible"}};
    CommandButton cmdHelp{this, {u"cmdHelp", u"&Add Bible", u"How to add a Bible"}};
    CommandButton cmdCancel{this, {u"cmdCancel", u"&Cancel", u"Close without changing"}};

    // Shows the catalogue with the open translation selected.
    void SetupScreen() const;

    void OptBible_Click(int Index);
    void cmdOk_Click();
    void cmdHelp_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    CommandButton* closingButton() override { return &cmdCancel; }

private:
    ControlArray<OptionButton> makeBibles();
    ControlArray<Label> makeInformation();
    void layOut();
    void growToInformation();

    int m_row = 0;
};
