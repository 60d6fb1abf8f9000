#include "Configuration.h"
#include "controls/Handler.h"
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

#include <QCoreApplication>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const Message updatesQuestion{
    u"Would you like to be notified of FREE updates? (All Updates are free forever)\r\n\r\nThis "
    u"sends a blank email to "_s
        + configuration::UpdateAddress,
    u"Lumenvia"_s, MessageIcon::Question, MessageButtons::YesNo};

class Shutdown : public ProgramFixture {
protected:
    void SetUp() override { startProgram(); }

    static QString setting(const QString& section, const QString& key) {
        return GetSetting(ApplicationName, section, key, u"missing"_s);
    }

    static QString notified() {
        return GetSetting(
            QCoreApplication::applicationName(), u"notified"_s, u"done"_s, u"missing"_s);
    }

    static void answerBefore() {
        SaveSetting(QCoreApplication::applicationName(), u"notified"_s, u"done"_s, u"done"_s);
    }

    void closeWindow() {
        desktop.expectEnd();
        form<frmMain>().close();
        EXPECT_TRUE(programHasEnded());
    }

    static void makeFile(const QString& path) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
};

} // namespace

TEST_F(Shutdown, savesThePlaceWithItsChapterOneTooHigh) {
    answerBefore();
    rsBible.Seek(u"="_s, 19, 119, 5);
    closeWindow();
    EXPECT_EQ(setting(u"Last"_s, u"book"_s), u"19"_s);
    EXPECT_EQ(setting(u"Last"_s, u"chapter"_s), u"120"_s);
}

TEST_F(Shutdown, aCursorWithoutARowSavesNoPlaceAndGoesOn) {
    answerBefore();
    rsBible = {};
    closeWindow();
    EXPECT_EQ(setting(u"Last"_s, u"book"_s), u"missing"_s);
    EXPECT_EQ(setting(SettingsSection, u"HistoryDate100"_s), u"1-jan-98"_s);
}

TEST_F(Shutdown, deletesTemporaryFilesUpToTheFirstGap) {
    answerBefore();
    for (const int slot : {1, 2, 4}) {
        TempFiles[static_cast<size_t>(slot)] = programFile(u"temp%1.txt"_s.arg(slot));
        makeFile(TempFiles[static_cast<size_t>(slot)]);
    }
    closeWindow();
    EXPECT_FALSE(QFile::exists(programFile(u"temp1.txt"_s)));
    EXPECT_FALSE(QFile::exists(programFile(u"temp2.txt"_s)));
    EXPECT_TRUE(QFile::exists(programFile(u"temp4.txt"_s)));
}

TEST_F(Shutdown, deletesEveryTemporaryFileUpToSlotAHundred) {
    answerBefore();
    ASSERT_EQ(TempFiles.size(), 101U);
    for (size_t slot = 1; slot < TempFiles.size(); ++slot) {
        TempFiles[slot] = programFile(u"temp%1.txt"_s.arg(slot));
        makeFile(TempFiles[slot]);
    }
    closeWindow();
    for (size_t slot = 1; slot < TempFiles.size(); ++slot)
        EXPECT_FALSE(QFile::exists(TempFiles[slot])) << slot;
}

TEST_F(Shutdown, cleansUpThenSavesThenAsks) {
    VersesPerPage = 17;
    HistoryDate[0] = u"today"_s;
    TempFiles[1] = programFile(u"temp.txt"_s);
    makeFile(TempFiles[1]);
    desktop.whenHelpCloses = [this] {
        EXPECT_FALSE(QFile::exists(TempFiles[1]));
        EXPECT_TRUE(settingsText(ApplicationName).contains(u"VersesPerPage=40\n"_s));
    };
    desktop.expectMessage(updatesQuestion, Answer::No, [this] {
        EXPECT_EQ(desktop.closedHelpFiles.size(), 1);
        const QString saved = settingsText(ApplicationName);
        for (const QString& line :
             {u"VersesPerPage=17\n"_s, u"HistoryDate0=today\n"_s, u"[Last]"_s})
            EXPECT_TRUE(saved.contains(line)) << line.toStdString();
        // Whoever kills the program over the question is not asked again.
        EXPECT_TRUE(settingsText(QCoreApplication::applicationName()).contains(u"done=yes"_s));
    });
    closeWindow();
}

TEST_F(Shutdown, closesTheHelpViewer) {
    answerBefore();
    HelpFile = u"bible.hlp"_s;
    closeWindow();
    EXPECT_EQ(desktop.closedHelpFiles, QStringList{u"bible.hlp"_s});
}

TEST_F(Shutdown, savesSettingsBookmarksAndHistory) {
    answerBefore();
    VersesPerPage = 17;
    BookmarkText[3] = u"John"_s;
    BookmarkBook[3] = 43;
    HistoryBook[0] = 40;
    HistoryChapter[0] = 5;
    HistoryVerse[0] = 3;
    HistoryDate[0] = u"today"_s;
    closeWindow();
    EXPECT_EQ(setting(SettingsSection, u"VersesPerPage"_s), u"17"_s);
    EXPECT_EQ(setting(SettingsSection, u"BookmarkTEXT3"_s), u"John"_s);
    EXPECT_EQ(setting(SettingsSection, u"BookmarkBook3"_s), u"43"_s);
    EXPECT_EQ(setting(SettingsSection, u"HistoryBook0"_s), u"40"_s);
    EXPECT_EQ(setting(SettingsSection, u"HistoryChapter0"_s), u"5"_s);
    EXPECT_EQ(setting(SettingsSection, u"HistoryVerse0"_s), u"3"_s);
    EXPECT_EQ(setting(SettingsSection, u"HistoryDate0"_s), u"today"_s);
}

TEST_F(Shutdown, theFirstEndAsksAboutUpdatesAndNoIsEnough) {
    desktop.expectMessage(updatesQuestion, Answer::No);
    closeWindow();
    EXPECT_EQ(notified(), u"yes"_s);
}

TEST_F(Shutdown, yesWritesToTheUpdateAddress) {
    desktop.expectMessage(updatesQuestion, Answer::Yes);
    const QString version = QString::number(configuration::VersionMajor) + u'.'
                            + QString::number(configuration::VersionMinor);
    desktop.expectLink(
        u"mailto:"_s + configuration::UpdateAddress
        + u"?subject=Just%20send%20this%20email%20[Lumenvia%20"_s + version + u']');
    closeWindow();
}

TEST_F(Shutdown, anAnsweredQuestionComesNoMoreAndIsNotWrittenAgain) {
    answerBefore();
    closeWindow();
    EXPECT_EQ(notified(), u"done"_s);
}

TEST_F(Shutdown, leavesTheDatabasesOpen) {
    answerBefore();
    closeWindow();
    EXPECT_NO_THROW(rsBible.MoveFirst());
}
