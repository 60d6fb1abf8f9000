// The choice of a plug-in to fetch from the web; the web page does the rest. DownloadItem is the
// row that it opens on.
#pragma once

#include "controls/ComboBox.h"
#include "controls/CommandButton.h"
#include "controls/Form.h"
#include "controls/Frame.h"
#include "controls/Label.h"

class frmDownload final : public Form {
    Q_OBJECT

public:
    frmDownload();

    Frame Frame1{this, {u"Frame1", u"Download a Component You Don't Have"}};
    Label Label1{
        &Frame1,
        {u"Label1",
         u"You don't have that FREE Lumenvia component on your PC. Would you like me to install it "
         u"automatically for you from the Internet, or get the CD?"}};
    Label Label2{&Frame1, {u"Label2", u"Choose What to Download (No Cost)"}};
    ComboBox cboDownload{&Frame1, {u"cboDownload", u"Choose What to Download (No Cost)"}};
    CommandButton Command1{&Frame1, {u"Command1", u"Start Download!"}};
    Label Label3{
        &Frame1,
        {u"Label3",
         u"Rather get EVERYTHING on an CD that will install all the Lumenvia plugins, Bibles and "
         u"Tools for you? No need to download then. The CD has lots of extra music and research "
         u"papers too, which are only available on the CD."}};
    CommandButton Command2{&Frame1, {u"Command2", u"Order CD Securely"}};
    CommandButton Command3{this, {u"Command3", u"&Cancel"}};

    void Command1_Click();
    void Command2_Click();
    void Command3_Click();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    CommandButton* closingButton() override { return &Command3; }

private:
    void layOut();
    void selectItem();

    int m_item = 0;
};
