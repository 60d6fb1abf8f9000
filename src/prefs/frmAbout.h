// The program's name, version and home page.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Label.h"
#include "controls/LinkLabel.h"

class frmAbout final : public Form {
    Q_OBJECT

public:
    frmAbout();

    QLabel picture{this};
    Label lblTitle{this, {u"lblTitle"}};
    Label lblVersion{this, {u"lblVersion"}};
    LinkLabel Label1{this, {u"Label1"}};
    LinkLabel lblURL{this, {u"lblURL"}};
    CommandButton cmdOk{this, {u"cmdOk", u"OK"}};

    void Label1_Click();
    void lblURL_Click();
    void cmdOk_Click();

protected:
    void Form_Load() override;
    CommandButton* closingButton() override { return &cmdOk; }

private:
    void layOut();
};
