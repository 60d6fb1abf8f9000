#include "prefs/frmAbout.h"

#include "Configuration.h"
#include "controls/ButtonRow.h"
#include "core/GlobalCode.h"
#include "prefs/Internet.h"

#include <QFormLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int Margin = 12;
constexpr int Spacing = 8;
constexpr double TitleScale = 1.6;

QString versionText() {
    return u"Version %1.%2.%3"_s.arg(configuration::VersionMajor)
        .arg(configuration::VersionMinor)
        .arg(configuration::VersionRevision);
}

} // namespace

frmAbout::frmAbout()
    : Form(u"frmAbout"_s) {
    layOut();
    setDefaultButton(*this, cmdOk);
    on(Label1, &LinkLabel::Click, this, &frmAbout::Label1_Click);
    on(lblURL, &LinkLabel::Click, this, &frmAbout::lblURL_Click);
    on(cmdOk, &CommandButton::Click, this, &frmAbout::cmdOk_Click);
}

void frmAbout::layOut() {
    QFont large = lblTitle.font();
    large.setPointSizeF(large.pointSizeF() * TitleScale);
    lblTitle.setFont(large);
    auto* links = new QFormLayout;
    links->addRow(u"Home page:"_s, &Label1);
    links->addRow(u"Bibles and tools:"_s, &lblURL);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Margin, Margin, Margin, Margin);
    column->setSpacing(Spacing);
    column->addWidget(&lblTitle);
    column->addWidget(&lblVersion);
    column->addSpacing(Spacing);
    column->addLayout(links);
    column->addStretch();
    column->addWidget(new ButtonRow(&cmdOk, nullptr));
    cmdOk.setFocus();
}

void frmAbout::Form_Load() {
    setCaption(u"About "_s + ApplicationName);
    lblTitle.setCaption(ApplicationName);
    lblVersion.setCaption(versionText());
    Label1.setCaption(configuration::HomeUrl);
    lblURL.setCaption(configuration::HomeUrl);
}

void frmAbout::Label1_Click() {
    OpenUrl(configuration::HomeUrl);
}

void frmAbout::lblURL_Click() {
    OpenUrl(configuration::HomeUrl);
}

void frmAbout::cmdOk_Click() {
    Unload();
}
