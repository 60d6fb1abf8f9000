// The ways out to the web and to mail.
#include "prefs/Internet.h"

#include "controls/Forms.h"
#include "output/frmEmail.h"
#include "prefs/connectFirst.h"
#include "support/ProgramFixture.h"

#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

class Internet : public ProgramFixture {
protected:
    // What of a mail link leaves the program.
    void expectMail(const QString& link, const QString& encoded) {
        desktop.expectLink(u"mailto:"_s + encoded);
        OpenUrl(u"mailto:"_s + link);
    }
};

} // namespace

TEST_F(Internet, isAlwaysConnected) {
    EXPECT_TRUE(IsConnected());
}

TEST_F(Internet, asksToSeeToTheConnectionBeforeAWebPage) {
    desktop.expectMessage(connectFirst);
    desktop.expectLink(u"http://www.lumenvia.example/lumenvia"_s);
    OpenUrl(u"http://www.lumenvia.example/lumenvia"_s);
}

TEST_F(Internet, opensAMailLinkWithoutAWord) {
    expectMail(u"friend@lumenvia.example"_s, u"friend@lumenvia.example"_s);
}

TEST_F(Internet, knowsAMailLinkByItsSmallLettersAnywhereInIt) {
    desktop.expectMessage(connectFirst);
    desktop.expectLink(u"MAILTO:friend@lumenvia.example"_s);
    OpenUrl(u"MAILTO:friend@lumenvia.example"_s);
    desktop.expectLink(u"http://www.lumenvia.example/mailto"_s);
    OpenUrl(u"http://www.lumenvia.example/mailto"_s);
}

TEST_F(Internet, leavesWhatALinkMayHold) {
    const QString allowed = u"a.b-c_d~e!$&'()*+,;=:@/?#[]%20%c3%A9"_s;
    expectMail(allowed, allowed);
}

TEST_F(Internet, encodesWhatNoLinkMayHold) {
    expectMail(u"a b"_s, u"a%20b"_s);
    expectMail(u"a\r\nb\tc"_s, u"a%0D%0Ab%09c"_s);
    expectMail(u"\"<>\\^`{|}"_s, u"%22%3C%3E%5C%5E%60%7B%7C%7D"_s);
    expectMail(u"Genèse"_s, u"Gen%C3%A8se"_s);
    expectMail(u"😀"_s, u"%F0%9F%98%80"_s);
    expectMail(u"שלום"_s, u"%D7%A9%D7%9C%D7%95%D7%9D"_s);
    expectMail(QString(QChar(0)) + QChar(0x7f), u"%00%7F"_s);
}

TEST_F(Internet, encodesAPercentSignThatEncodesNothing) {
    expectMail(u"100%"_s, u"100%25"_s);
    expectMail(u"%4"_s, u"%254"_s);
    expectMail(u"5% off %zz"_s, u"5%25%20off%20%25zz"_s);
}

TEST_F(Internet, aLoneHalfOfACharacterIsAQuestionMark) {
    expectMail(QString(QChar(0xd83d)), u"?"_s);
}

TEST_F(Internet, whatLeavesTheProgramIsALinkForEveryText) {
    for (int code = 1; code < 0x2100; ++code) {
        const QString text = u"a?subject="_s + QChar(code) + u"&body=b"_s;
        const QString encoded = QString::fromLatin1(
            QUrl::toPercentEncoding(text, QByteArrayLiteral("!#$&'()*+,/:;=?@[]")));
        expectMail(text, encoded);
    }
}

TEST_F(Internet, mailingATextAsksForAddressAndSubject) {
    desktop.expectWindow([](QWidget& window) {
        EXPECT_EQ(dynamic_cast<frmEmail&>(window).EmailBody, u"In the beginning\n"_s);
        EXPECT_TRUE(isLoaded<frmEmail>());
        window.close();
    });
    EmailText(u"In the beginning\n"_s);
    EXPECT_FALSE(isLoaded<frmEmail>());
}
