#include "core/frmChangeBible.h"

#include "basic/Error.h"
#include "controls/ButtonRow.h"
#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "prefs/frmDownload.h"
#include "reader/frmMain.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace {

constexpr int CharactersInLine = 60;
constexpr int BiblesInColumn = CatalogueSize / 2;

constexpr int InformationCount = 4;
const std::array<QString, InformationCount> informationHeadings = {
    u"Description:"_s, u"Filename:"_s, u"Installed:"_s, u"Download:"_s};

enum Information { DescriptionOfBible, FileOfBible, WhetherInstalled, PageOfBible };

QString nameOf(const QString& array, int index) {
    return array + u'(' + QString::number(index) + u')';
}

} // namespace

frmChangeBible::frmChangeBible()
    : Form(u"frmChangeBible"_s) {
    setCaption(u"Change Current Bible"_s);
    layOut();
    setDefaultButton(*this, cmdOK);
    on(OptBible, &OptionButton::Click, this, &frmChangeBible::OptBible_Click);
    on(cmdOK, &CommandButton::Click, this, &frmChangeBible::cmdOk_Click);
    on(cmdHelp, &CommandButton::Click, this, &frmChangeBible::cmdHelp_Click);
    on(cmdCancel, &CommandButton::Click, this, &frmChangeBible::cmdCancel_Click);
}

ControlArray<OptionButton> frmChangeBible::makeBibles() {
    ControlArray<OptionButton> bibles;
    auto* grid = new QGridLayout(&fambibles);
    for (int row = 0; row < CatalogueSize; ++row) {
        const QString name = nameOf(u"OptBible"_s, row);
        OptionButton& button =
            bibles.add(row, std::make_unique<OptionButton>(&fambibles, ControlText{name}));
        grid->addWidget(&button, row % BiblesInColumn, row / BiblesInColumn);
    }
    return bibles;
}

ControlArray<Label> frmChangeBible::makeInformation() {
    ControlArray<Label> labels;
    auto* rows = new QFormLayout(&famDesscribe);
    for (int row = 0; row < InformationCount; ++row) {
        const QString name = nameOf(u"lblbibleinfo"_s, row);
        Label& label = labels.add(row, std::make_unique<Label>(&famDesscribe, ControlText{name}));
        label.setTextInteractionFlags(Qt::TextSelectableByMouse);
        // Not the text's own width: a path may be longer than the screen is wide.
        label.setMinimumWidth(fontMetrics().averageCharWidth() * CharactersInLine);
        rows->addRow(informationHeadings[static_cast<size_t>(row)], &label);
    }
    return labels;
}

void frmChangeBible::layOut() {
    auto* column = makeWindowColumn(*this);
    column->addWidget(&fambibles);
    column->addWidget(&famDesscribe);
    column->addStretch();
    auto* buttons = new ButtonRow(&cmdOK, &cmdCancel);
    buttons->addOther(cmdHelp);
    column->addWidget(buttons);
    adjustSize();
}

void frmChangeBible::growToInformation() {
    famDesscribe.updateGeometry(); // tells its new needs at once
    const QSize room = screen()->availableSize();
    resize(size().expandedTo(sizeHint()).boundedTo(room.expandedTo(minimumSizeHint())));
}

void frmChangeBible::Form_Load() {
    SetupScreen();
}

void frmChangeBible::SetupScreen() const {
    for (int row = 0; row < CatalogueSize; ++row)
        OptBible(row).setCaption(BibleLongName[static_cast<size_t>(row)]);
    OptBible(CurrentBible).setValue(true);
    OptBible(CurrentBible).SetFocus();
}

void frmChangeBible::OptBible_Click(int Index) {
    const auto row = static_cast<size_t>(Index);
    lblbibleinfo(DescriptionOfBible).setCaption(BibleLongName[row]);
    lblbibleinfo(FileOfBible).setCaption(BibleFile[row]);
    lblbibleinfo(PageOfBible).setCaption(BibleInfoUrl[row]);
    cmdOK.setEnabled(true);
    m_row = Index;
    const bool installed = FindDataFile(BibleFile[row]) != u"BAD";
    lblbibleinfo(WhetherInstalled)
        .setCaption(installed ? u"Yes"_s : u"Not installed. Download, then run it to install."_s);
    cmdOK.setEnabled(installed);
    growToInformation();
}

// A switch ends no query by itself.
void frmChangeBible::cmdOk_Click() {
    Unload();
    if (InQuery == On)
        form<frmMain>().cmdMain(6).setValue(true);
    form<frmMain>().loadNewBible(m_row);
}

void frmChangeBible::cmdHelp_Click() {
    DownloadItem = m_row;
    Unload();
    form<frmDownload>().Show();
}

void frmChangeBible::cmdCancel_Click() {
    Unload();
    attempt([] { form<frmMain>().txtFind.SetFocus(); });
}
