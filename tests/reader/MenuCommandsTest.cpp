// Which command opens which window, pressed as a user presses it.
#include "core/GlobalCode.h"
#include "core/frmBibleDescription.h"
#include "core/frmChangeBible.h"
#include "output/frmEmail.h"
#include "prefs/frmAbout.h"
#include "prefs/frmDownload.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class MenuCommands : public ProgramFixture {
protected:
    void SetUp() override {
        startProgram();
        QCoreApplication::processEvents();
    }

    static frmMain& window() { return form<frmMain>(); }

    static double share(const Splitter& splitter) {
        return double(splitter.Position()) / splitter.length();
    }
};

} // namespace

TEST_F(MenuCommands, openNewBibleShowsTheListOfTranslations) {
    window().mnufile(0).trigger();
    EXPECT_TRUE(form<frmChangeBible>().isVisible());
}

TEST_F(MenuCommands, howToAddBiblesShowsTheDownloads) {
    DownloadItem = 5;
    window().mnubible(14).trigger();
    EXPECT_TRUE(form<frmDownload>().isVisible());
    EXPECT_EQ(DownloadItem, 0);
}

TEST_F(MenuCommands, bibleDescriptionsOpensOverTheWindow) {
    desktop.expectWindow([](QWidget& shown) {
        EXPECT_EQ(shown.objectName(), u"frmBibleDescription"_s);
        shown.close();
    });
    window().mnubible(15).trigger();
}

TEST_F(MenuCommands, downloadMoreShowsTheDownloads) {
    DownloadItem = 5;
    window().mnudownload(0).trigger();
    EXPECT_TRUE(form<frmDownload>().isVisible());
    EXPECT_EQ(DownloadItem, 0);
}

TEST_F(MenuCommands, aboutIsShown) {
    window().mnuHelp(9).trigger();
    EXPECT_TRUE(form<frmAbout>().isVisible());
}

TEST_F(MenuCommands, mailTakesTheTextOfThePage) {
    QString body;
    desktop.expectWindow([&body](QWidget& shown) {
        body = form<frmEmail>().EmailBody;
        shown.close();
    });
    QTest::mouseClick(&window().cmdMain(22), Qt::LeftButton);
    EXPECT_TRUE(body.startsWith(u"Matthew 1:1"_s)) << qPrintable(body);
    EXPECT_EQ(body, window().txtMain.Text());
}

TEST_F(MenuCommands, bothSplittersKeepTheirShareWhenTheWindowGrows) {
    window().resize(900, 600);
    QCoreApplication::processEvents();
    window().vbuSplitter1.setShare(0.3);
    window().vbuSplitter2.setShare(0.6);
    window().resize(1400, 1000);
    QCoreApplication::processEvents();
    EXPECT_NEAR(share(window().vbuSplitter1), 0.3, 0.02);
    EXPECT_NEAR(share(window().vbuSplitter2), 0.6, 0.02);
}
