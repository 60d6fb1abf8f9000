#include "core/NewSetup.h"

#include "Configuration.h"
#include "controls/Handler.h"
#include "core/Catalogue.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "desktop/HostPath.h"
#include "reader/frmMain.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class Start : public ProgramFixture {
protected:
    static QString setting(const QString& key) {
        return GetSetting(ApplicationName, SettingsSection, key, u"missing"_s);
    }
};

} // namespace

TEST_F(Start, showsMatthewOneInTheMainWindow) {
    startProgram();
    frmMain& window = form<frmMain>();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.Caption(), u"Lumenvia Professional King James [Matthew 1:1] "_s);
    EXPECT_EQ(window.lblCurrentNote.Caption(), u"Your note for: Matthew 1:1"_s);
    const QString page = window.txtMain.Text();
    EXPECT_TRUE(page.startsWith(u"Matthew 1:1 Verse 40:1:1."_s)) << page.toStdString();
    EXPECT_TRUE(page.contains(u"Matthew 1:25 Verse 40:1:25."_s));
    EXPECT_FALSE(page.contains(u"40:2:1"_s));
}

TEST_F(Start, leavesTheFlagsOfARunningProgram) {
    HoldUpdates = On;
    SkipComboClick = On;
    InQuery = On;
    startProgram();
    for (const Flag flag :
         {StartingUp, HoldUpdates, SkipComboClick, QueryLock, SettingCombos, InQuery, ScreenBusy})
        EXPECT_EQ(flag, Off);
    EXPECT_EQ(FoundBible, On);
}

TEST_F(Start, takesTheFirstRowThatIsThereWhenTheChosenOneIsMissing) {
    addTranslation(u"DARBY.mdb"_s, sampleVerses());
    addTranslation(u"YLT.mdb"_s, sampleVerses());
    SaveSetting(ApplicationName, SettingsSection, u"BootUpBible"_s, u"2"_s);
    startProgram();
    EXPECT_EQ(CurrentBible, 5);
    EXPECT_EQ(BootUpBible, 2);
    EXPECT_EQ(setting(u"BootupBible"_s), u"2"_s);
}

TEST_F(Start, takesTheChosenRowBeforeAllOthers) {
    addTranslation(u"nasb.mdb"_s, sampleVerses());
    addTranslation(u"YLT.mdb"_s, sampleVerses());
    SaveSetting(ApplicationName, SettingsSection, u"BootUpBible"_s, u"6"_s);
    startProgram();
    EXPECT_EQ(CurrentBible, 6);
    EXPECT_TRUE(form<frmMain>().Caption().contains(u"YLT"_s));
}

TEST_F(Start, theFirstRunHasRowOneForItsChoice) {
    startProgram();
    EXPECT_EQ(BootUpBible, 1);
    EXPECT_EQ(CurrentBible, 2);
}

TEST_F(Start, aChosenRowThatIsNoneIsPassedOver) {
    for (const QString& row : {u"99"_s, u"-1"_s, u"16"_s, u"nonsense"_s, u"99999"_s}) {
        SaveSetting(ApplicationName, SettingsSection, u"BootUpBible"_s, row);
        startProgram();
        EXPECT_EQ(CurrentBible, 2) << row.toStdString();
        forms::discardAll();
    }
}

TEST_F(Start, theRowOpenedHoldsItsPathFromThenOn) {
    QDir::setCurrent(QDir::rootPath()); // where the bare name is no path
    startProgram();
    const QString path = programFolder() + u"\\KJV.mdb"_s;
    EXPECT_EQ(BibleFile[2], path);
    EXPECT_EQ(HomePath, path);
    EXPECT_EQ(setting(u"Path"_s), path);
    EXPECT_EQ(FindDataFile(path), path);
}

TEST_F(Start, aReadOnlyTranslationOpensSinceItsMarkIsCleared) {
    addTranslation(u"KJV.mdb"_s, sampleVerses());
    QFile::setPermissions(programFile(u"KJV.mdb"_s), QFileDevice::ReadOwner);
    startProgram();
    rsBible.Edit();
    rsBible.Fields(5) = u"a note"_s;
    rsBible.Update();
    EXPECT_EQ(rsBible.Fields(5).Value(), u"a note"_s);
    // An administrator could write to it as it was.
    EXPECT_TRUE(QFile::permissions(programFile(u"KJV.mdb"_s)).testFlag(QFileDevice::WriteOwner));
}

TEST_F(Start, aFolderThatCannotBeWrittenIsNoHindrance) {
    addTranslation(u"KJV.mdb"_s, sampleVerses());
    asPlainUser(Folder::ReadOnly, [this] {
#ifdef Q_OS_UNIX
        EXPECT_FALSE(QFile(programFile(u"new.txt"_s)).open(QIODevice::WriteOnly));
#endif
        startProgram();
    });
    EXPECT_TRUE(form<frmMain>().isVisible());
    EXPECT_TRUE(form<frmMain>().txtMain.Text().startsWith(u"Matthew 1:1 Verse 40:1:1."_s));
}

TEST_F(Start, showsTheBookmarksOfTheSettings) {
    SaveSetting(ApplicationName, SettingsSection, u"BookmarkTEXT0"_s, u"home"_s);
    SaveSetting(ApplicationName, SettingsSection, u"BookmarkTEXT9"_s, u"abroad"_s);
    startProgram();
    frmMain& window = form<frmMain>();
    EXPECT_EQ(window.mnuBookmark(3).Caption(), u"home"_s);
    EXPECT_EQ(window.mnuBookmark(4).Caption(), u"abroad"_s);
    EXPECT_TRUE(window.mnuBookmark(3).Visible() && window.mnuBookmark(4).Visible());
}

TEST_F(Start, showsPageAndNoteInTheColoursOfTheSettings) {
    const std::pair<QString, QString> colours[] = {
        {u"BackRed"_s, u"10"_s}, {u"BackGreen"_s, u"20"_s}, {u"BackBlue"_s, u"30"_s},
        {u"TextRed"_s, u"40"_s}, {u"TextGreen"_s, u"50"_s}, {u"TextBlue"_s, u"60"_s}};
    for (const auto& [key, value] : colours)
        SaveSetting(ApplicationName, SettingsSection, key, value);
    startProgram();
    frmMain& window = form<frmMain>();
    EXPECT_EQ(window.txtMain.BackColor(), QColor(10, 20, 30));
    EXPECT_EQ(window.txtMain.SelColor(), QColor(40, 50, 60));
    EXPECT_EQ(window.txtNote.palette().color(QPalette::Base), QColor(10, 20, 30));
    EXPECT_EQ(window.txtNote.palette().color(QPalette::Text), QColor(40, 50, 60));
}

TEST_F(Start, aTitleShowsTheOddBracketOfARowsName) {
    addTranslation(u"Dutchlei.mdb"_s, sampleVerses());
    startProgram();
    EXPECT_EQ(
        form<frmMain>().Caption(),
        u"Lumenvia Professional Hollands (Dutch (LEI) [Mattheus 1:1] "_s);
}

TEST_F(Start, withoutATranslationTwoMessagesEndTheProgram) {
    const QString folder = programFolder();
    desktop.expectMessage(
        {u"Unable to load any Bible Database [kjv.mdb, darby.mdb, rsv.mdb, ylt.mdb etc...]. "
         u"Download your copy from "_s
             + configuration::HomeUrl + u"\r\n\r\nAfter you get it, unzip it into "_s + folder
             + u"\r\n\r\n"_s,
         u"Need Plug in"_s, MessageIcon::Stop});
    desktop.expectMessage(
        {u"Make sure that there is at least one of these in "_s + folder, u"Need Bible"_s,
         MessageIcon::Stop});
    desktop.expectEnd();
    runHandler(Main);
    EXPECT_TRUE(programHasEnded());
    EXPECT_FALSE(form<frmMain>().isVisible());
    EXPECT_EQ(FoundBible, Off);
    EXPECT_EQ(setting(u"VersesPerPage"_s), u"40"_s); // saved before the search is known to fail
}

TEST_F(Start, fillsTheListsOfTheStrip) {
    startProgram();
    frmMain& window = form<frmMain>();
    EXPECT_EQ(window.cmbTestament.List(0), u"Both"_s);
    EXPECT_EQ(window.cmbTestament.List(1), u"Old"_s);
    EXPECT_EQ(window.cmbTestament.List(2), u"New"_s);
    EXPECT_EQ(window.cboBook.ListCount(), 66);
    EXPECT_EQ(window.cboVerse.ListCount(), 175);
    EXPECT_EQ(window.cboVerse.List(174), u"175"_s);
    EXPECT_EQ(window.cboBook.ListIndex(), 0);
    EXPECT_EQ(window.cmbTestament.ListIndex(), 0);
}

TEST_F(Start, theHelpFileLosesItsFolder) {
    addTranslation(u"KJV.mdb"_s, sampleVerses());
    QFile help(programFile(u"bible.hlp"_s));
    ASSERT_TRUE(help.open(QIODevice::WriteOnly));
    QDir::setCurrent(QDir::rootPath());
    startProgram();
    EXPECT_EQ(FindDataFile(u"bible.hlp"_s), programFolder() + u"\\bible.hlp"_s);
    EXPECT_EQ(HelpFile, u"bible.hlp"_s);
}

TEST_F(Start, aTableThatBeginsElsewhereStillShowsAPage) {
    addTranslation(u"KJV.mdb"_s, chapterOf(1, 1, 3) + chapterOf(1, 2, 1));
    startProgram(); // there is no Matthew: the first row is shown
    EXPECT_TRUE(form<frmMain>().txtMain.Text().contains(u"Verse 1:1:1."_s));
}
