#include "prefs/frmAbout.h"

#include "Configuration.h"
#include "controls/ButtonRow.h"
#include "core/GlobalCode.h"
#include "prefs/Internet.h"

#include <QFontInfo>
#include <QFormLayout>
#include <QGridLayout>
#include <QIcon>

using namespace Qt::StringLiterals;

namespace {

constexpr double TitleScale = 1.6;
constexpr QSize PictureSize(48, 48);

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
    large.setPointSizeF(QFontInfo(large).pointSizeF() * TitleScale);
    lblTitle.setFont(large);
    picture.setPixmap(QIcon(u":/icons/lumenvia.svg"_s).pixmap(PictureSize, devicePixelRatioF()));
    auto* links = new QFormLayout;
    links->addRow(u"Home page:"_s, &Label1);
    links->addRow(u"Bibles and tools:"_s, &lblURL);
    auto* heading = new QGridLayout;
    heading->setSpacing(WindowSpacing);
    heading->setHorizontalSpacing(WindowMargin);
    heading->addWidget(&picture, 0, 0, 2, 1);
    heading->addWidget(&lblTitle, 0, 1);
    heading->addWidget(&lblVersion, 1, 1);
    heading->setColumnStretch(1, 1);
    auto* column = makeWindowColumn(*this);
    column->addLayout(heading);
    column->addSpacing(WindowSpacing);
    column->addLayout(links);
    column->addStretch();
    column->addSpacing(WindowSpacing);
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
