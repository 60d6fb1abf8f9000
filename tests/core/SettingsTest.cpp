#include "core/Settings.h"

#include "controls/Forms.h"
#include "core/GlobalCode.h"
#include "core/SettingsTable.h"
#include "desktop/HostPath.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

class Settings : public ProgramFixture {
protected:
    static QString stored(const QString& key) {
        return GetSetting(ApplicationName, SettingsSection, key, u"missing"_s);
    }

    static void store(const QString& key, const QString& value) {
        SaveSetting(ApplicationName, SettingsSection, key, value);
    }

    // Loads a store that holds one setting, over the defaults.
    static void load(const QString& key, const QString& value) {
        store(key, value);
        resetSettings();
        LoadSettings();
    }
};

} // namespace

TEST_F(Settings, aBookmarkSlotThatWasNeverUsedIsEmpty) {
    LoadSettings();
    for (const size_t slot : {0U, 70U}) {
        EXPECT_EQ(BookmarkText[slot], QString());
        EXPECT_EQ(BookmarkBook[slot], 0);
        EXPECT_EQ(BookmarkChapter[slot], 0);
        EXPECT_EQ(BookmarkVerse[slot], 0);
    }
}

TEST_F(Settings, historyBeginsEmptyWithItsDate) {
    LoadSettings();
    EXPECT_EQ(HistoryBook[100], 0);
    EXPECT_EQ(HistoryVerse[0], 0);
    EXPECT_EQ(HistoryDate[100], u"1-jan-98"_s);
}

TEST_F(Settings, oddValuesComeBack) {
    resetSettings();
    VersesPerPage = -7;
    PrintLeftMargin = 1.25;
    QueryColor[5] = 99;
    BookmarkText[70] = u"Ünïcode, \"quoted\""_s;
    BookmarkVerse[70] = 176;
    MainFontName = u"Courier"_s;
    MainFontSize = 12.5;
    TextBlue = 254;
    HideNotes = On;
    HideToolbar = On;
    HistoryChapter[100] = 119;
    HistoryDate[7] = u"1/2/2003 4:05:06 PM"_s;
    SaveSettings();
    saveHistory();
    resetSettings();
    LoadSettings();
    EXPECT_EQ(VersesPerPage, -7);
    EXPECT_EQ(PrintLeftMargin, 1.25);
    EXPECT_EQ(QueryColor[5], 99);
    EXPECT_EQ(BookmarkText[70], u"Ünïcode, \"quoted\""_s);
    EXPECT_EQ(BookmarkVerse[70], 176);
    EXPECT_EQ(MainFontName, u"Courier"_s);
    EXPECT_EQ(MainFontSize, 12.5);
    EXPECT_EQ(TextBlue, 254);
    EXPECT_EQ(HideNotes, On);
    EXPECT_EQ(HideToolbar, On);
    EXPECT_EQ(HistoryChapter[100], 119);
    EXPECT_EQ(HistoryDate[7], u"1/2/2003 4:05:06 PM"_s);
}

TEST_F(Settings, bothSpellingsOfAKeyMeanOneSetting) {
    for (const QString& key : {u"PrintRightMargin"_s, u"printrightmargin"_s}) {
        load(key, u".25"_s);
        EXPECT_EQ(PrintRightMargin, .25);
    }
    load(u"BootupBible"_s, u"8"_s);
    EXPECT_EQ(BootUpBible, 8);
    load(u"ReportName"_s, u"own.rpt"_s);
    EXPECT_EQ(ReportName, u"own.rpt"_s);
    load(u"Printfontsize"_s, u"9"_s);
    EXPECT_EQ(PrintFontSize, 9);
}

TEST_F(Settings, textThatIsNoNumberGivesZero) {
    load(u"VersesPerPage"_s, u"many"_s);
    EXPECT_EQ(VersesPerPage, 0);
    load(u"MainFontSize"_s, {});
    EXPECT_EQ(MainFontSize, 0);
}

TEST_F(Settings, aNumberThatIsTooBigLeavesTheGlobalAsItWas) {
    load(u"VersesPerPage"_s, u"32768"_s);
    EXPECT_EQ(VersesPerPage, 40);
    load(u"PrintUsing"_s, u"256"_s);
    EXPECT_EQ(PrintUsing, 1);
    load(u"PrintWhat"_s, u"-1"_s);
    EXPECT_EQ(PrintWhat, 0);
    load(u"MainFontSize"_s, u"1e300"_s);
    EXPECT_EQ(MainFontSize, 12);
    load(u"HistoryBook0"_s, u"1e300"_s);
    EXPECT_EQ(HistoryBook[0], 0);
}

TEST_F(Settings, thereAreNoRangeChecks) {
    load(u"VersesPerPage"_s, u"0"_s);
    EXPECT_EQ(VersesPerPage, 0);
    load(u"TextRed"_s, u"-300"_s);
    EXPECT_EQ(TextRed, -300);
}

TEST_F(Settings, notesAreHiddenOnlyByTheTextZero) {
    load(u"ShowHide"_s, u"0"_s);
    EXPECT_EQ(HideNotes, On);
    for (const QString& text : {u"1"_s, u""_s, u"00"_s, u" 0"_s, u"no"_s}) {
        load(u"showhide"_s, text);
        EXPECT_EQ(HideNotes, Off) << text.toStdString();
    }
}

TEST_F(Settings, theToolbarIsHiddenByEveryNumberButZero) {
    for (const QString& text : {u"1"_s, u"-1"_s, u"7"_s}) {
        load(u"HideToolbar"_s, text);
        EXPECT_EQ(HideToolbar, On) << text.toStdString();
    }
    for (const QString& text : {u"0"_s, u""_s, u"no"_s, u"0.0"_s}) {
        load(u"HideToolbar"_s, text);
        EXPECT_EQ(HideToolbar, Off) << text.toStdString();
    }
}

TEST_F(Settings, theHeightOfTheNoteIsWrittenAndNotRead) {
    load(u"NoteHeight"_s, u"200"_s);
    EXPECT_EQ(NoteHeight, 73);
    SaveSettings();
    EXPECT_EQ(stored(u"NoteHeight"_s), u"73"_s);
}

TEST_F(Settings, theHomePathIsTheProgramsFolder) {
    load(u"Path"_s, u"elsewhere"_s);
    EXPECT_EQ(HomePath, programFolder() + u"\\"_s);
}

TEST_F(Settings, nonsenseInEveryKeyIsNoHindrance) {
    const QStringList nonsense = {
        u"☃"_s, u"-99999999999999999999"_s, u"1e999"_s, u"NaN"_s, u"{\\rtf1"_s, u"'; drop"_s};
    for (const QString& text : nonsense) {
        for (const Setting& setting : settingsTable())
            store(setting.key, text);
        store(u"ShowHide"_s, text);
        resetSettings();
        LoadSettings();
        SaveSettings();
        EXPECT_EQ(stored(u"Header"_s), text);
    }
}

TEST_F(Settings, aPageIsShownWithNonsenseInEveryKey) {
    addTranslation(u"KJV.mdb"_s, sampleVerses());
    for (const QString& text : {u"☃"_s, u"-5"_s, u"30000"_s, u"1e30"_s}) {
        for (const Setting& setting : settingsTable())
            store(setting.key, text);
        startProgram();
        EXPECT_EQ(StartingUp, Off);
        forms::discardAll();
    }
}
