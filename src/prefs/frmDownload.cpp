#include "prefs/frmDownload.h"

#include "Configuration.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "controls/ButtonRow.h"
#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "prefs/Internet.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int CharactersInLine = 64;
constexpr int CharactersInButton = 24;

} // namespace

frmDownload::frmDownload()
    : Form(u"frmDownload"_s) {
    setCaption(u"Download"_s);
    layOut();
    setDefaultButton(*this, Command1);
    on(Command1, &CommandButton::Click, this, &frmDownload::Command1_Click);
    on(Command2, &CommandButton::Click, this, &frmDownload::Command2_Click);
    on(Command3, &CommandButton::Click, this, &frmDownload::Command3_Click);
}

void frmDownload::layOut() {
    auto* frame = new QVBoxLayout(&Frame1);
    frame->setSpacing(WindowSpacing);
    for (Label* text : {&Label1, &Label3}) {
        text->setWordWrap(true);
        text->setMinimumWidth(fontMetrics().averageCharWidth() * CharactersInLine);
    }
    for (CommandButton* button : {&Command1, &Command2})
        button->setMinimumWidth(fontMetrics().averageCharWidth() * CharactersInButton);
    Label2.setBuddy(&cboDownload);
    frame->addWidget(&Label1);
    frame->addSpacing(WindowSpacing);
    frame->addWidget(&Label2);
    frame->addWidget(&cboDownload);
    frame->addWidget(&Command1, 0, Qt::AlignRight);
    frame->addSpacing(WindowSpacing);
    frame->addWidget(&Label3);
    frame->addWidget(&Command2, 0, Qt::AlignRight);
    auto* column = makeWindowColumn(*this);
    column->addWidget(&Frame1, 1);
    column->addWidget(new ButtonRow(nullptr, &Command3));
}

void frmDownload::Form_Load() {
    for (const QString& name : BibleLongName) {
        if (!Trim(name).isEmpty())
            cboDownload.AddItem(name);
    }
    selectItem();
}

// Asked for again while it is open, it goes to the row that is asked for now.
void frmDownload::Form_Activate() {
    if (m_item != DownloadItem)
        selectItem();
}

void frmDownload::selectItem() {
    m_item = DownloadItem;
    attempt([this] { cboDownload.setListIndex(m_item); });
}

// The list's rows are taken for those of the catalogue, although it leaves out rows without a name.
void frmDownload::Command1_Click() {
    const auto row = static_cast<size_t>(cboDownload.ListIndex());
    if (row < BibleInfoUrl.size())
        OpenUrl(BibleInfoUrl[row]);
    Unload();
}

void frmDownload::Command2_Click() {
    OpenUrl(configuration::HomeUrl + u"/order"_s);
}

void frmDownload::Command3_Click() {
    Unload();
}
