// The window that changes the translation.
#include "core/frmChangeBible.h"

#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "prefs/frmDownload.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

#include <QApplication>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int KingJames = 2;
constexpr int Darby = 5;
constexpr int French = 9;

class ChangeBible : public ProgramFixture {
protected:
    void SetUp() override {
        addTranslation(u"KJV.mdb"_s, sampleVerses());
        addTranslation(u"French.mdb"_s, sampleVerses());
        startProgram();
        QCoreApplication::processEvents();
        window().Show();
        QCoreApplication::processEvents();
    }

    static frmChangeBible& window() { return form<frmChangeBible>(); }
    static QString shown(int information) { return window().lblbibleinfo(information).Caption(); }

    static void pick(int row) {
        OptionButton& button = window().OptBible(row);
        QTest::mouseClick(&button, Qt::LeftButton, {}, {5, button.height() / 2});
    }

    // A click of the mouse, which a disabled button ignores.
    static void press(CommandButton& button) { QTest::mouseClick(&button, Qt::LeftButton); }
};

} // namespace

TEST_F(ChangeBible, showsTheCatalogueWithTheOpenTranslationSelected) {
    EXPECT_EQ(window().Caption(), u"Change Current Bible"_s);
    for (int row = 0; row < CatalogueSize; ++row) {
        EXPECT_EQ(window().OptBible(row).Caption(), BibleLongName[static_cast<size_t>(row)]);
        EXPECT_EQ(window().OptBible(row).Value(), row == KingJames) << row;
    }
}

TEST_F(ChangeBible, tellsOfTheOpenTranslationWithTheWholePathOfItsFile) {
    EXPECT_EQ(shown(0), u"KJV - King James Version"_s);
    EXPECT_EQ(shown(1), FindDataFile(u"KJV.mdb"_s));
    EXPECT_EQ(shown(2), u"Yes"_s);
    EXPECT_EQ(shown(3), BibleInfoUrl[KingJames]);
    EXPECT_TRUE(window().cmdOK.Enabled());
}

TEST_F(ChangeBible, aRowWithoutItsFileCannotBeChosenAndAPresentOneBehindItCan) {
    pick(Darby);
    EXPECT_EQ(shown(0), u"Darby's Modern Translation"_s);
    EXPECT_EQ(shown(1), u"DARBY.mdb"_s);
    EXPECT_EQ(shown(2), u"Not installed. Download, then run it to install."_s);
    EXPECT_EQ(shown(3), BibleInfoUrl[Darby]);
    EXPECT_FALSE(window().cmdOK.Enabled());
    pick(French);
    EXPECT_EQ(shown(2), u"Yes"_s);
    EXPECT_TRUE(window().cmdOK.Enabled());
}

TEST_F(ChangeBible, addOnsAreNamedAndNotInstalled) {
    for (int row = 13; row < CatalogueSize; ++row) {
        pick(row);
        EXPECT_EQ(shown(0), BibleLongName[static_cast<size_t>(row)]);
        EXPECT_EQ(shown(1), QString());
        EXPECT_FALSE(window().cmdOK.Enabled()) << row;
    }
}

TEST_F(ChangeBible, okChangesToTheSelectedBible) {
    pick(French);
    press(window().cmdOK);
    EXPECT_FALSE(isLoaded<frmChangeBible>());
    EXPECT_EQ(CurrentBible, French);
    EXPECT_EQ(form<frmMain>().cboBook.List(0), u"Genèse"_s);
}

TEST_F(ChangeBible, okEndsAQueryFirst) {
    rsBible = dbBible.OpenRecordset(
        u"SELECT * FROM tblMain WHERE (((body like \"*:2:*\")) )"_s, dbOpenDynaset);
    InQuery = On;
    QueryLock = On;
    pick(French);
    press(window().cmdOK);
    EXPECT_EQ(InQuery, Off);
    EXPECT_EQ(CurrentBible, French);
    EXPECT_NO_THROW(rsBible.Seek(u"="_s, 40, 1, 1));
}

TEST_F(ChangeBible, okOnAFileThatHasGoneSinceOffersItsDownload) {
    pick(French);
    ASSERT_TRUE(QFile::remove(programFile(u"French.mdb"_s)));
    press(window().cmdOK);
    EXPECT_EQ(CurrentBible, KingJames);
    EXPECT_TRUE(isLoaded<frmDownload>());
    EXPECT_EQ(form<frmDownload>().cboDownload.ListIndex(), French);
}

TEST_F(ChangeBible, enterPressesOkWhereverTheFocusIs) {
    pick(French);
    QTest::keyClick(&window().OptBible(French), Qt::Key_Return);
    EXPECT_EQ(CurrentBible, French);
}

TEST_F(ChangeBible, enterPressesNoDisabledButton) {
    pick(Darby);
    QTest::keyClick(&window().OptBible(Darby), Qt::Key_Return);
    EXPECT_TRUE(isLoaded<frmChangeBible>());
    EXPECT_FALSE(isLoaded<frmDownload>());
}

TEST_F(ChangeBible, arrowKeysGoThroughTheRows) {
    ASSERT_EQ(QApplication::focusWidget()->objectName(), u"OptBible(2)"_s);
    QTest::keyClick(&window().OptBible(KingJames), Qt::Key_Down);
    EXPECT_TRUE(window().OptBible(KingJames + 1).Value());
    EXPECT_EQ(shown(0), u"RSV - Revised Standard Version"_s);
    QTest::keyClick(&window().OptBible(KingJames + 1), Qt::Key_Up);
    EXPECT_EQ(shown(2), u"Yes"_s);
}

TEST_F(ChangeBible, tabLeadsFromTheRowsToTheButtonsAndBack) {
    QStringList stations;
    for (int step = 0; step < 4; ++step) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        stations.append(QApplication::focusWidget()->objectName());
    }
    EXPECT_EQ(stations, (QStringList{u"cmdOK"_s, u"cmdHelp"_s, u"cmdCancel"_s, u"OptBible(2)"_s}));
}

TEST_F(ChangeBible, cancelAndEscapeChangeNothingAndLeadToTheFindBox) {
    pick(French);
    press(window().cmdCancel);
    EXPECT_FALSE(isLoaded<frmChangeBible>());
    EXPECT_EQ(CurrentBible, KingJames);
    EXPECT_EQ(form<frmMain>().focusWidget(), &form<frmMain>().txtFind);
    window().Show();
    pick(French);
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_FALSE(isLoaded<frmChangeBible>());
    EXPECT_EQ(CurrentBible, KingJames);
}

TEST_F(ChangeBible, addBibleOffersTheDownloadOfTheSelectedRow) {
    EXPECT_EQ(window().cmdHelp.Caption(), u"&Add Bible"_s);
    EXPECT_EQ(window().cmdHelp.ToolTipText(), u"How to add a Bible"_s);
    pick(Darby);
    press(window().cmdHelp);
    EXPECT_FALSE(isLoaded<frmChangeBible>());
    EXPECT_EQ(DownloadItem, Darby);
    EXPECT_EQ(form<frmDownload>().cboDownload.ListIndex(), Darby);
}

TEST_F(ChangeBible, growsToALongPathAndNotBeyondTheScreen) {
    const int before = window().width();
    BibleFile[Darby] = u"/folder"_s.repeated(15);
    pick(Darby);
    EXPECT_GT(window().width(), before);
    const int wide = window().width();
    pick(KingJames);
    EXPECT_EQ(window().width(), wide);
    BibleFile[Darby] = u"/folder"_s.repeated(2000);
    pick(Darby);
    EXPECT_LE(window().width(), window().screen()->availableGeometry().width());
}
