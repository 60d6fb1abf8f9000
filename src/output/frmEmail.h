// Asks for the address and the subject of a mail. The text itself goes by the clipboard, since a
// mail link can hold little.
#pragma once

#include "controls/CommandButton.h"
#include "controls/EditableComboBox.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"
#include "controls/TextBox.h"

class frmEmail final : public Form {
    Q_OBJECT

public:
    frmEmail();

    // The plain text to send; set it before the window shows.
    QString EmailBody;

    Frame fraAddress{this, {u"fraAddress", u"Send to Whom?"}};
    Label lblAddress{
        &fraAddress,
        {u"lblAddress", u"This is optional, you'll be prompted later if you leave it blank"}};
    EditableComboBox cboEmail{&fraAddress, {u"cboEmail", u"Send to Whom?"}};
    Frame fraSubject{this, {u"fraSubject", u"Subject"}};
    Label lblSubject{
        &fraSubject,
        {u"lblSubject",
         u"The Text will be added to your email. In the next step you can edit it."}};
    TextBox txtSubject{&fraSubject, {u"txtSubject", u"Subject"}};
    CommandButton cmdNext{this, {u"cmdNext", u"&Next >>"}};
    CommandButton cmdCancel{this, {u"cmdCancel", u"&Cancel"}};

    // Fills the list with the stored addresses, the latest first.
    void DocboSearchPopulate();

    // Stores an address before the others, unless it is one of them, or empty. The tenth falls out.
    void PopulateSearchCombo(const QString& Address);

    void cmdNext_Click();
    void cmdCancel_Click();

protected:
    void Form_Load() override;
    CommandButton* closingButton() override { return &cmdCancel; }

private:
    void layOut();
};
