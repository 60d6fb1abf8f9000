// What the user has done is there again after the window was closed and the program started anew.
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

class Restart : public ProgramFixture {
protected:
    void SetUp() override {
        startProgram();
        SaveSetting(QCoreApplication::applicationName(), u"notified"_s, u"done"_s, u"yes"_s);
    }

    static frmMain& window() { return form<frmMain>(); }

    void restart() {
        desktop.expectEnd();
        window().close();
        restartProgram();
    }
};

} // namespace

TEST_F(Restart, keepsTheSettings) {
    VersesPerPage = 17;
    MainFontName = u"Courier"_s;
    BackRed = 200;
    PrintLeftMargin = 1.25;
    restart();
    EXPECT_EQ(VersesPerPage, 17);
    EXPECT_EQ(MainFontName, u"Courier"_s);
    EXPECT_EQ(PrintLeftMargin, 1.25);
    EXPECT_EQ(window().txtMain.BackColor(), QColor(200, 255, 255));
}

TEST_F(Restart, keepsTheMarksOfTheMenus) {
    window().mnuedit(5).trigger();
    window().mnuedit(6).trigger();
    restart();
    EXPECT_TRUE(window().mnuedit(5).Checked());
    EXPECT_TRUE(window().mnuedit(6).Checked());
    window().mnuedit(6).trigger();
    restart();
    EXPECT_TRUE(window().mnuedit(5).Checked());
    EXPECT_FALSE(window().mnuedit(6).Checked());
}

TEST_F(Restart, keepsTheBookmarks) {
    BookmarkText[0] = u"home"_s;
    BookmarkBook[0] = 40;
    BookmarkChapter[0] = 2;
    BookmarkVerse[0] = 5;
    restart();
    EXPECT_EQ(window().mnuBookmark(3).Caption(), u"home"_s);
    window().mnuBookmark(3).trigger();
    EXPECT_EQ(window().Caption(), u"Lumenvia Professional King James [Matthew 2:5] "_s);
}

TEST_F(Restart, keepsTheHistory) {
    VersesPerPage = 0; // the visit that is kept is the page's last verse
    window().cboVerse.setListIndex(4);
    window().cboChapter.setListIndex(1);
    ASSERT_EQ(HistoryChapter[0], 2);
    ASSERT_EQ(HistoryVerse[0], 25);
    ASSERT_EQ(HistoryChapter[1], 1);
    ASSERT_EQ(HistoryVerse[1], 31);
    const auto books = HistoryBook;
    const auto chapters = HistoryChapter;
    const auto verses = HistoryVerse;
    const auto dates = HistoryDate;
    restart();
    EXPECT_EQ(HistoryBook, books);
    EXPECT_EQ(HistoryChapter, chapters);
    EXPECT_EQ(HistoryVerse, verses);
    EXPECT_EQ(HistoryDate, dates);
}

TEST_F(Restart, opensTheTranslationThatWasChosenLastAtMatthewOne) {
    addTranslation(u"DARBY.mdb"_s, sampleVerses());
    window().mnubible(5).trigger();
    ASSERT_EQ(CurrentBible, 5);
    restart();
    EXPECT_EQ(CurrentBible, 5);
    EXPECT_EQ(window().Caption(), u"Lumenvia Professional Darby [Matthew 1:1] "_s);
    EXPECT_TRUE(window().mnubible(5).Checked());
    EXPECT_FALSE(window().mnubible(2).Checked());
}
