// The window that offers plug-ins.
#include "prefs/frmDownload.h"

#include "Configuration.h"
#include "controls/Forms.h"
#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "prefs/connectFirst.h"
#include "support/ProgramFixture.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class Download : public ProgramFixture {
protected:
    static frmDownload& window() { return form<frmDownload>(); }

    static void openOn(int item) {
        DownloadItem = item;
        window().Show();
    }

    void expectPage(const QString& link) {
        desktop.expectMessage(connectFirst);
        desktop.expectLink(link);
    }
};

} // namespace

TEST_F(Download, saysWhatItOffers) {
    openOn(0);
    EXPECT_EQ(window().Caption(), u"Download"_s);
    EXPECT_EQ(window().Frame1.Caption(), u"Download a Component You Don't Have"_s);
    EXPECT_EQ(
        window().Label1.Caption(),
        u"You don't have that FREE Lumenvia component on your PC. Would you like me to install it automatically for you from the Internet, or get the CD?"_s);
    EXPECT_EQ(window().Label2.Caption(), u"Choose What to Download (No Cost)"_s);
    EXPECT_EQ(window().Command1.Caption(), u"Start Download!"_s);
    EXPECT_EQ(
        window().Label3.Caption(),
        u"Rather get EVERYTHING on an CD that will install all the Lumenvia plugins, Bibles and Tools for you? No need to download then. The CD has lots of extra music and research papers too, which are only available on the CD."_s);
    EXPECT_EQ(window().Command2.Caption(), u"Order CD Securely"_s);
    EXPECT_EQ(window().Command3.Caption(), u"&Cancel"_s);
}

TEST_F(Download, listsTheCatalogue) {
    openOn(0);
    ASSERT_EQ(window().cboDownload.ListCount(), CatalogueSize);
    for (int row = 0; row < CatalogueSize; ++row)
        EXPECT_EQ(window().cboDownload.List(row), BibleLongName[static_cast<size_t>(row)]);
}

TEST_F(Download, opensOnTheRowThatIsAskedFor) {
    openOn(13);
    EXPECT_EQ(window().cboDownload.Text(), u"Commentary"_s);
}

TEST_F(Download, aRowThatIsNotThereSelectsNothing) {
    for (const int item : {-1, -5, CatalogueSize, 1000}) {
        openOn(item);
        EXPECT_EQ(window().cboDownload.ListIndex(), -1) << item;
        QTest::mouseClick(&window().Command1, Qt::LeftButton);
        EXPECT_FALSE(isLoaded<frmDownload>()) << item;
    }
}

TEST_F(Download, startOpensThePageOfTheSelectedRowAndCloses) {
    openOn(13);
    window().cboDownload.setListIndex(6);
    expectPage(configuration::HomeUrl + u"/plugins/ylt.htm"_s);
    QTest::mouseClick(&window().Command1, Qt::LeftButton);
    EXPECT_FALSE(isLoaded<frmDownload>());
}

TEST_F(Download, enterStartsIt) {
    openOn(15);
    expectPage(BibleInfoUrl[15]);
    QTest::keyClick(&window().cboDownload, Qt::Key_Return);
    EXPECT_FALSE(isLoaded<frmDownload>());
}

TEST_F(Download, aRowWithoutANameShiftsTheChoiceByOne) {
    BibleLongName[3] = u"  "_s;
    openOn(4);
    EXPECT_EQ(window().cboDownload.ListCount(), CatalogueSize - 1);
    EXPECT_EQ(window().cboDownload.Text(), BibleLongName[5]);
    expectPage(BibleInfoUrl[4]);
    window().Command1.setValue(true);
}

TEST_F(Download, theOrderPageOpensBesideIt) {
    openOn(0);
    expectPage(configuration::HomeUrl + u"/order"_s);
    QTest::mouseClick(&window().Command2, Qt::LeftButton);
    EXPECT_TRUE(isLoaded<frmDownload>());
}

TEST_F(Download, cancelAndEscapeCloseIt) {
    openOn(0);
    QTest::mouseClick(&window().Command3, Qt::LeftButton);
    EXPECT_FALSE(isLoaded<frmDownload>());
    openOn(0);
    QTest::keyClick(&window().cboDownload, Qt::Key_Escape);
    EXPECT_FALSE(isLoaded<frmDownload>());
}

TEST_F(Download, goesToTheRowThatIsAskedForWhileItIsOpen) {
    openOn(3);
    QCoreApplication::processEvents();
    openOn(4);
    QEvent activation(QEvent::ActivationChange);
    QApplication::sendEvent(&window(), &activation);
    EXPECT_EQ(window().cboDownload.ListIndex(), 4);
}
