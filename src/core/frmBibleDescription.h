// A text about the translations, to read and to send on.
#pragma once

#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/TextBox.h"

class frmBibleDescription final : public Form {
    Q_OBJECT

public:
    frmBibleDescription();

    MultilineTextBox txtHistory{this, {u"txtHistory", u"Bible Descriptions"}};
    CommandButton cmdEmail{this, {u"cmdEmail", u"&EMail...", u"EMail this text to a friend"}};
    CommandButton cmdOk{this, {u"cmdOk", u"OK"}};

    void cmdEmail_Click();
    void cmdOk_Click();

protected:
    CommandButton* closingButton() override { return &cmdOk; }
};
