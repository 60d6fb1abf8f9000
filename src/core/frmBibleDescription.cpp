#include "core/frmBibleDescription.h"

#include "controls/ButtonRow.h"
#include "core/BibleDescriptions.h"
#include "prefs/Internet.h"
#include "reader/frmMain.h"

using namespace Qt::StringLiterals;

namespace {

// What is comfortable to read.
constexpr int CharactersInLine = 90;
constexpr int LinesInView = 28;

} // namespace

frmBibleDescription::frmBibleDescription()
    : Form(u"frmBibleDescription"_s) {
    setCaption(u"Bible Descriptions"_s);
    txtHistory.setReadOnly(true);
    txtHistory.setText(bibleDescriptions());
    txtHistory.document()->setDocumentMargin(WindowSpacing);
    auto* column = makeWindowColumn(*this);
    column->addWidget(&txtHistory, 1);
    auto* buttons = new ButtonRow(&cmdOk, nullptr);
    buttons->addOther(cmdEmail);
    column->addWidget(buttons);
    resize(
        fontMetrics().averageCharWidth() * CharactersInLine,
        fontMetrics().lineSpacing() * LinesInView);
    setDefaultButton(*this, cmdOk);
    on(cmdEmail, &CommandButton::Click, this, &frmBibleDescription::cmdEmail_Click);
    on(cmdOk, &CommandButton::Click, this, &frmBibleDescription::cmdOk_Click);
}

void frmBibleDescription::cmdEmail_Click() {
    Unload();
    EmailText(txtHistory.Text());
}

void frmBibleDescription::cmdOk_Click() {
    Unload();
    form<frmMain>().txtFind.SetFocus();
}
