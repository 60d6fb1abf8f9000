#include "output/frmEmail.h"

#include "Configuration.h"
#include "basic/Error.h"
#include "controls/ButtonRow.h"
#include "desktop/Desktop.h"
#include "prefs/Internet.h"
#include "settings/SettingsStore.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int CharactersInLine = 64;

using Addresses = std::array<QString, 10>;

const QString AddressSection = u"email"_s;

// The stored addresses, the latest first; a place that holds none is empty.
Addresses storedAddresses() {
    Addresses addresses;
    for (size_t place = 0; place < addresses.size(); ++place) {
        addresses[place] = GetSetting(
            QCoreApplication::applicationName(), AddressSection, QString::number(place),
            place == 0 ? configuration::DefaultMailAddress : QString());
    }
    return addresses;
}

void storeAddress(size_t place, const QString& address) {
    SaveSetting(
        QCoreApplication::applicationName(), AddressSection, QString::number(place), address);
}

} // namespace

frmEmail::frmEmail()
    : Form(u"frmEmail"_s) {
    setCaption(u"Email Sender"_s);
    layOut();
    setDefaultButton(*this, cmdNext);
    on(cmdNext, &CommandButton::Click, this, &frmEmail::cmdNext_Click);
    on(cmdCancel, &CommandButton::Click, this, &frmEmail::cmdCancel_Click);
}

void frmEmail::layOut() {
    auto* address = new QVBoxLayout(&fraAddress);
    address->setSpacing(WindowSpacing);
    address->addWidget(&lblAddress);
    address->addWidget(&cboEmail);
    auto* subject = new QVBoxLayout(&fraSubject);
    subject->setSpacing(WindowSpacing);
    subject->addWidget(&txtSubject);
    subject->addWidget(&lblSubject);
    auto* column = makeWindowColumn(*this);
    column->addWidget(&fraAddress);
    column->addWidget(&fraSubject);
    column->addStretch();
    column->addWidget(new ButtonRow(&cmdNext, &cmdCancel));
    setMinimumWidth(fontMetrics().averageCharWidth() * CharactersInLine);
}

void frmEmail::Form_Load() {
    txtSubject.setText(
        GetSetting(QCoreApplication::applicationName(), u"options"_s, u"emailsubject"_s, u" "_s));
    DocboSearchPopulate();
}

void frmEmail::DocboSearchPopulate() {
    cboEmail.Clear();
    for (const QString& address : storedAddresses()) {
        if (!address.isEmpty())
            cboEmail.AddItem(address);
    }
    attempt([this] { cboEmail.setListIndex(0); });
}

void frmEmail::PopulateSearchCombo(const QString& Address) {
    const Addresses before = storedAddresses();
    if (Address.isEmpty() || std::ranges::find(before, Address) != before.end())
        return;
    for (size_t place = before.size() - 1; place > 0; --place)
        storeAddress(place, before[place - 1]);
    storeAddress(0, Address);
}

void frmEmail::cmdNext_Click() {
    const QString subject = txtSubject.Text();
    if (subject.isEmpty()) {
        MsgBox(u"Please enter a subject for this message."_s, MessageIcon::Information);
        return;
    }
    SaveSetting(QCoreApplication::applicationName(), u"options"_s, u"emailsubject"_s, subject);
    PopulateSearchCombo(cboEmail.Text());
    desktop().setClipboardText(EmailBody);
    OpenUrl(
        u"mailto:"_s + cboEmail.Text() + u"?subject="_s + subject
        + u"&body=Press CTRL+V here to paste in the text."_s);
    Unload();
}

void frmEmail::cmdCancel_Click() {
    Unload();
}
