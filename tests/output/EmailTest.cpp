// The window that asks for the address and the subject of a mail.
#include "output/frmEmail.h"

#include "Configuration.h"
#include "controls/Forms.h"
#include "prefs/Internet.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString bodyOfLink = u"&body=Press%20CTRL+V%20here%20to%20paste%20in%20the%20text."_s;

class Email : public ProgramFixture {
protected:
    static frmEmail& window() { return form<frmEmail>(); }

    static void store(const QString& section, const QString& key, const QString& value) {
        SaveSetting(QCoreApplication::applicationName(), section, key, value);
    }

    static QString stored(const QString& section, const QString& key) {
        return GetSetting(QCoreApplication::applicationName(), section, key, u"missing"_s);
    }

    static void storeTenAddresses() {
        for (int place = 0; place < 10; ++place)
            store(u"email"_s, QString::number(place), u"friend%1@a.example"_s.arg(place));
    }

    static QStringList storedAddresses() {
        QStringList addresses;
        for (int place = 0; place < 10; ++place)
            addresses.append(stored(u"email"_s, QString::number(place)));
        return addresses;
    }

    static QStringList listed() {
        QStringList addresses;
        for (int row = 0; row < window().cboEmail.ListCount(); ++row)
            addresses.append(window().cboEmail.List(row));
        return addresses;
    }

    static void open(const QString& body = u"In the beginning"_s) {
        window().Load();
        window().EmailBody = body;
        window().Show();
    }

    static void pressNext() { QTest::mouseClick(&window().cmdNext, Qt::LeftButton); }

    static void send(const QString& address, const QString& subject) {
        open();
        window().cboEmail.setText(address);
        window().txtSubject.setText(subject);
        pressNext();
    }
};

} // namespace

TEST_F(Email, saysWhatItAsksFor) {
    open();
    EXPECT_EQ(window().Caption(), u"Email Sender"_s);
    EXPECT_EQ(window().fraAddress.Caption(), u"Send to Whom?"_s);
    EXPECT_EQ(
        window().lblAddress.Caption(),
        u"This is optional, you'll be prompted later if you leave it blank"_s);
    EXPECT_EQ(window().fraSubject.Caption(), u"Subject"_s);
    EXPECT_EQ(
        window().lblSubject.Caption(),
        u"The Text will be added to your email. In the next step you can edit it."_s);
    EXPECT_EQ(window().cmdNext.Caption(), u"&Next >>"_s);
    EXPECT_EQ(window().cmdCancel.Caption(), u"&Cancel"_s);
}

TEST_F(Email, isFirstAddressedToTheDefaultWithABlankForASubject) {
    open();
    EXPECT_EQ(listed(), QStringList{configuration::DefaultMailAddress});
    EXPECT_EQ(window().cboEmail.Text(), configuration::DefaultMailAddress);
    EXPECT_EQ(window().txtSubject.Text(), u" "_s);
}

TEST_F(Email, listsTheStoredAddressesWithoutEmptyOnes) {
    store(u"email"_s, u"0"_s, u""_s);
    store(u"email"_s, u"2"_s, u"b@a.example"_s);
    store(u"email"_s, u"9"_s, u"c@a.example"_s);
    open();
    EXPECT_EQ(listed(), (QStringList{u"b@a.example"_s, u"c@a.example"_s}));
    EXPECT_EQ(window().cboEmail.ListIndex(), 0);
    EXPECT_EQ(window().cboEmail.Text(), u"b@a.example"_s);
}

TEST_F(Email, withoutAnyStoredAddressTheBoxIsEmpty) {
    store(u"email"_s, u"0"_s, u""_s);
    open();
    EXPECT_EQ(window().cboEmail.ListCount(), 0);
    EXPECT_EQ(window().cboEmail.Text(), QString());
}

TEST_F(Email, opensWithTheLastSubject) {
    store(u"options"_s, u"emailsubject"_s, u"Genesis 1"_s);
    open();
    EXPECT_EQ(window().txtSubject.Text(), u"Genesis 1"_s);
}

TEST_F(Email, anEmptySubjectIsAskedForAndNothingElseHappens) {
    open();
    window().txtSubject.setText({});
    window().cboEmail.setText(u"new@a.example"_s);
    desktop.expectMessage(
        {u"Please enter a subject for this message."_s, u"Lumenvia"_s, MessageIcon::Information,
         MessageButtons::Ok});
    pressNext();
    EXPECT_TRUE(isLoaded<frmEmail>());
    EXPECT_EQ(desktop.clipboard, QString());
    EXPECT_EQ(stored(u"email"_s, u"0"_s), u"missing"_s);
    EXPECT_EQ(stored(u"options"_s, u"emailsubject"_s), u"missing"_s);
}

TEST_F(Email, aBlankIsASubject) {
    desktop.expectLink(u"mailto:a@a.example?subject=%20"_s + bodyOfLink);
    send(u"a@a.example"_s, u" "_s);
    EXPECT_FALSE(isLoaded<frmEmail>());
}

TEST_F(Email, nextPutsTheTextOnTheClipboardAndOpensTheMailProgram) {
    desktop.clipboard = u"before"_s;
    open(u"In the beginning\nGod created"_s);
    window().cboEmail.setText(u"new@a.example"_s);
    window().txtSubject.setText(u"Genesis"_s);
    desktop.expectLink(u"mailto:new@a.example?subject=Genesis"_s + bodyOfLink);
    pressNext();
    EXPECT_EQ(desktop.clipboard, u"In the beginning\nGod created"_s);
    EXPECT_EQ(stored(u"options"_s, u"emailsubject"_s), u"Genesis"_s);
    EXPECT_FALSE(isLoaded<frmEmail>());
}

TEST_F(Email, anEmptyTextEmptiesTheClipboard) {
    desktop.clipboard = u"before"_s;
    open({});
    desktop.expectLink(
        u"mailto:"_s + configuration::DefaultMailAddress + u"?subject=%20"_s + bodyOfLink);
    pressNext();
    EXPECT_EQ(desktop.clipboard, QString());
}

TEST_F(Email, anEmptyAddressIsLeftToTheMailProgramAndNotStored) {
    storeTenAddresses();
    const QStringList before = storedAddresses();
    desktop.expectLink(u"mailto:?subject=Genesis"_s + bodyOfLink);
    send({}, u"Genesis"_s);
    EXPECT_EQ(storedAddresses(), before);
}

TEST_F(Email, aNewAddressComesFirstAndTheDefaultStaysBehindIt) {
    desktop.expectLink(u"mailto:new@a.example?subject=s"_s + bodyOfLink);
    send(u"new@a.example"_s, u"s"_s);
    open();
    EXPECT_EQ(listed(), (QStringList{u"new@a.example"_s, configuration::DefaultMailAddress}));
}

TEST_F(Email, theDefaultAddressIsInTheListAlready) {
    desktop.expectLink(
        u"mailto:"_s + configuration::DefaultMailAddress + u"?subject=s"_s + bodyOfLink);
    send(configuration::DefaultMailAddress, u"s"_s);
    EXPECT_EQ(stored(u"email"_s, u"0"_s), u"missing"_s);
}

TEST_F(Email, anAddressOfTheListChangesNothing) {
    storeTenAddresses();
    const QStringList before = storedAddresses();
    for (const QString& address :
         {u"friend0@a.example"_s, u"friend5@a.example"_s, u"friend9@a.example"_s}) {
        window().PopulateSearchCombo(address);
        EXPECT_EQ(storedAddresses(), before);
    }
}

TEST_F(Email, anEleventhAddressDropsTheOldest) {
    storeTenAddresses();
    QStringList expected = storedAddresses();
    expected.removeLast();
    expected.prepend(u"new@a.example"_s);
    window().PopulateSearchCombo(u"new@a.example"_s);
    EXPECT_EQ(storedAddresses(), expected);
}

TEST_F(Email, lettersOfOtherCaseAreAnotherAddress) {
    storeTenAddresses();
    window().PopulateSearchCombo(u"FRIEND0@a.example"_s);
    EXPECT_EQ(storedAddresses()[0], u"FRIEND0@a.example"_s);
}

TEST_F(Email, everyCharacterComesThroughToTheLinkAndBackFromTheStore) {
    const QStringList texts = {u"a & b = c # d"_s, u"\"quoted\" <x> 'y'"_s, u"50% off"_s,
                               u"😀 שלום"_s,        u"@Invalid(), [x]"_s,    u"a;b,c\\d`e$(f)|g"_s};
    for (const QString& text : texts) {
        QString encoded = QString::fromLatin1(
            QUrl::toPercentEncoding(text, QByteArrayLiteral("!#$&'()*+,/:;=?@[]")));
        desktop.expectLink(u"mailto:"_s + encoded + u"?subject="_s + encoded + bodyOfLink);
        send(text, text);
        open();
        EXPECT_EQ(window().txtSubject.Text(), text);
        EXPECT_EQ(window().cboEmail.Text(), text);
        window().Unload();
    }
}

TEST_F(Email, lineEndsOfAStoredSubjectAreNoNewHeadersOfTheMail) {
    store(u"options"_s, u"emailsubject"_s, u"a\r\nBcc: b"_s);
    store(u"email"_s, u"0"_s, u"a@a.example"_s);
    open();
    desktop.expectLink(u"mailto:a@a.example?subject=a%0D%0ABcc:%20b"_s + bodyOfLink);
    pressNext();
}

TEST_F(Email, enterInEitherFieldGoesOn) {
    for (int field = 0; field < 2; ++field) {
        open();
        desktop.expectLink(
            u"mailto:"_s + configuration::DefaultMailAddress + u"?subject=%20"_s + bodyOfLink);
        QWidget* fields[] = {window().cboEmail.lineEdit(), &window().txtSubject};
        QTest::keyClick(fields[field], Qt::Key_Return);
        EXPECT_FALSE(isLoaded<frmEmail>()) << field;
    }
}

TEST_F(Email, tabLeadsFromTheAddressOverTheSubjectToTheButtons) {
    open();
    window().activateWindow();
    QCoreApplication::processEvents();
    QStringList stations{window().focusWidget()->objectName()};
    for (int step = 0; step < 4; ++step) {
        QTest::keyClick(window().focusWidget(), Qt::Key_Tab);
        stations.append(window().focusWidget()->objectName());
    }
    EXPECT_EQ(
        stations,
        (QStringList{u"cboEmail"_s, u"txtSubject"_s, u"cmdNext"_s, u"cmdCancel"_s, u"cboEmail"_s}));
}

TEST_F(Email, cancelAndEscapeSendNothing) {
    open();
    QTest::mouseClick(&window().cmdCancel, Qt::LeftButton);
    EXPECT_FALSE(isLoaded<frmEmail>());
    open();
    QTest::keyClick(window().cboEmail.lineEdit(), Qt::Key_Escape);
    EXPECT_FALSE(isLoaded<frmEmail>());
    EXPECT_EQ(desktop.clipboard, QString());
}
