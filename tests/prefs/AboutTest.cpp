// The window that names the program.
#include "prefs/frmAbout.h"

#include "Configuration.h"
#include "controls/Forms.h"
#include "prefs/connectFirst.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class About : public ProgramFixture {
protected:
    void SetUp() override { window().Show(); }

    static frmAbout& window() { return form<frmAbout>(); }
};

} // namespace

TEST_F(About, tellsNameVersionAndHomePage) {
    EXPECT_EQ(window().Caption(), u"About Lumenvia Professional"_s);
    EXPECT_EQ(
        window().lblVersion.Caption(), u"Version %1.%2.%3"_s.arg(configuration::VersionMajor)
                                           .arg(configuration::VersionMinor)
                                           .arg(configuration::VersionRevision));
    EXPECT_EQ(window().Label1.Caption(), configuration::HomeUrl);
    EXPECT_EQ(window().lblURL.Caption(), configuration::HomeUrl);
}

TEST_F(About, eitherLinkOpensTheHomePage) {
    for (LinkLabel* link : {&window().Label1, &window().lblURL}) {
        desktop.expectMessage(connectFirst);
        desktop.expectLink(configuration::HomeUrl);
        const QPoint onText(4, link->height() / 2);
        QTest::mouseClick(link, Qt::LeftButton, {}, onText);
    }
    EXPECT_TRUE(isLoaded<frmAbout>());
}

TEST_F(About, okEnterAndEscapeCloseIt) {
    QTest::mouseClick(&window().cmdOk, Qt::LeftButton);
    EXPECT_FALSE(isLoaded<frmAbout>());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        window().Show();
        QTest::keyClick(&window(), key);
        EXPECT_FALSE(isLoaded<frmAbout>());
    }
}
