#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "reader/frmMain.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

const Message tooMany{
    u"You have reached the maximum number of Bookmarks: 70"_s, u"Bookmarks"_s,
    MessageIcon::Information};

class BookmarkMenu : public ProgramFixture {
protected:
    void SetUp() override {
        startProgram();
        QCoreApplication::processEvents();
    }

    static frmMain& window() { return form<frmMain>(); }

    static void setBookmark(size_t slot, const QString& text, int book, int chapter, int verse) {
        BookmarkText[slot] = text;
        BookmarkBook[slot] = static_cast<qint16>(book);
        BookmarkChapter[slot] = static_cast<qint16>(chapter);
        BookmarkVerse[slot] = static_cast<qint16>(verse);
    }

    static void fillSlots(size_t count) {
        for (size_t slot = 0; slot < count; ++slot)
            setBookmark(slot, u"mark %1"_s.arg(slot), 40, 2, 3);
    }

    static QStringList captions() {
        QStringList captions;
        for (const auto& [index, item] : window().mnuBookmark) {
            if (index >= 3)
                captions.append(item->Caption());
        }
        return captions;
    }
};

} // namespace

TEST_F(BookmarkMenu, hasAnItemForEachUsedSlotWithoutGaps) {
    setBookmark(0, u"first"_s, 40, 1, 1);
    setBookmark(5, u"second"_s, 40, 2, 1);
    setBookmark(69, u"off the menu"_s, 40, 2, 2);
    window().CreateMenu();
    EXPECT_EQ(captions(), (QStringList{u"first"_s, u"second"_s}));
    EXPECT_TRUE(window().mnuBookmark(3).Visible());
    BookmarkText[0].clear();
    window().CreateMenu();
    EXPECT_EQ(captions(), QStringList{u"second"_s});
}

TEST_F(BookmarkMenu, isKeptInTheSettingsWhenItIsMade) {
    setBookmark(70, u"last slot"_s, 66, 22, 21);
    window().CreateMenu();
    const auto stored = [](const QString& key) {
        return GetSetting(ApplicationName, SettingsSection, key);
    };
    EXPECT_EQ(stored(u"BookmarkTEXT70"_s), u"last slot"_s);
    EXPECT_EQ(stored(u"BookmarkBook70"_s), u"66"_s);
    EXPECT_EQ(stored(u"BookmarkChapter70"_s), u"22"_s);
    EXPECT_EQ(stored(u"BookmarkVerse70"_s), u"21"_s);
    EXPECT_EQ(stored(u"BookmarkTEXT1"_s), QString());
}

TEST_F(BookmarkMenu, isFullWhenAnItemCannotBeLoaded) {
    fillSlots(68);
    window().CreateMenu();
    EXPECT_EQ(captions().size(), 68);
    desktop.expectMessage(tooMany);
    window().CreateMenu();
    EXPECT_EQ(GetSetting(ApplicationName, SettingsSection, u"BookmarkTEXT67"_s), u"mark 67"_s);
}

TEST_F(BookmarkMenu, anItemGoesToItsVerse) {
    setBookmark(0, u"home"_s, 40, 2, 5);
    window().CreateMenu();
    window().mnuBookmark(3).trigger();
    EXPECT_EQ(window().Caption(), u"Lumenvia Professional King James [Matthew 2:5] "_s);
    EXPECT_TRUE(window().txtMain.Text().startsWith(u"Matthew 2:5 "_s));
    EXPECT_EQ(window().cboBook.ListIndex(), 39);
    EXPECT_EQ(window().cboChapter.ListIndex(), 1);
    EXPECT_EQ(window().cboVerse.ListIndex(), 4);
    EXPECT_EQ(SettingCombos, Off);
}

TEST_F(BookmarkMenu, aGapInTheTableShiftsTheRowsBehindIt) {
    setBookmark(1, u"second slot"_s, 40, 2, 5);
    window().CreateMenu();
    desktop.expectMessage(
        {u"Unable to Find your bookmarked location."_s, u"Bookmarks"_s, MessageIcon::Information});
    window().mnuBookmark(3).trigger(); // item 3 stands for slot 0, which is empty
}

TEST_F(BookmarkMenu, aPlaceThatIsMissingLeavesEverythingAsItWas) {
    setBookmark(0, u"nowhere"_s, 50, 1, 1);
    window().CreateMenu();
    const QString title = window().Caption();
    const QString heading = window().lblCurrentNote.Caption();
    const QString page = window().txtMain.Text();
    const QString place = position();
    desktop.expectMessage(
        {u"Unable to Find your bookmarked location."_s, u"Bookmarks"_s, MessageIcon::Information});
    window().mnuBookmark(3).trigger();
    EXPECT_EQ(window().Caption(), title);
    EXPECT_EQ(window().lblCurrentNote.Caption(), heading);
    EXPECT_EQ(window().txtMain.Text(), page);
    EXPECT_EQ(position(), place);
    EXPECT_EQ(window().cboBook.ListIndex(), 0);
}

TEST_F(BookmarkMenu, aQueryRefusesTheJump) {
    setBookmark(0, u"home"_s, 40, 2, 5);
    window().CreateMenu();
    const QString place = position();
    InQuery = On;
    desktop.expectMessage(
        {u"In a query you can't jump to bookmarks. Press Ctrl+J to end the Query."_s,
         u"Can't Use Bookmarks"_s, MessageIcon::Information});
    window().mnuBookmark(3).trigger();
    InQuery = Off;
    EXPECT_EQ(position(), place);
}
