// A small viewer of formatted text. A caller loads it, fills rtfMessage, and shows it.
#pragma once

#include "controls/CommonDialog.h"
#include "controls/Form.h"
#include "controls/StatusBar.h"
#include "controls/ToolBar.h"
#include "richtext/RichTextBox.h"

class frmMessage final : public Form {
    Q_OBJECT

public:
    frmMessage();

    ToolBar Toolbar;
    RichTextBox rtfMessage{this, {u"rtfMessage", u"Text"}};
    StatusBar status{this, {u"status"}};
    CommonDialog common;

    void Toolbar_ButtonClick(const QString& Key);

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void sendByMail();
    void print();
    void copy();
};
