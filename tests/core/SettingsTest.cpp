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

struct Saved {
    QStringView key;
    QStringView value;
};

// What SaveSettings writes on an empty store, but for the bookmarks.
constexpr Saved defaults[] = {
    {u"VersesPerPage", u"40"},
    {u"PrintWhat", u"0"},
    {u"PrintSettings", u"1"},
    {u"BookName", u"1"},
    {u"ChapterNumber", u"1"},
    {u"VerseNumber", u"1"},
    {u"VersionName", u"0"},
    {u"PrintUsing", u"1"},
    {u"Header", u""},
    {u"Footer", u""},
    {u"QueryFont0", u"MS Sans Serif"},
    {u"QueryFont6", u"MS Sans Serif"},
    {u"QueryFontSize0", u"13"},
    {u"QueryFontSize6", u"13"},
    {u"QueryBold0", u"-1"},
    {u"QueryItalic3", u"0"},
    {u"QueryUnderline6", u"-1"},
    {u"QueryStrikeThru6", u"0"},
    {u"QueryColor0", u"255"},
    {u"QueryColor1", u"16711680"},
    {u"QueryColor2", u"4227200"},
    {u"QueryColor3", u"65280"},
    {u"QueryColor4", u"128"},
    {u"QueryColor5", u"3278280"},
    {u"QueryColor6", u"12615808"},
    {u"BackColor", u"16777215"},
    {u"MainColor", u"0"},
    {u"MainUnderline", u"0"},
    {u"MainItalic", u"0"},
    {u"MainBold", u"0"},
    {u"MainFontSize", u"12"},
    {u"MainFontName", u"Times New Roman"},
    {u"NoteBackColor", u"16711680"},
    {u"NoteColor", u"16767215"},
    {u"NoteUnderline", u"0"},
    {u"NoteItalic", u"0"},
    {u"NoteBold", u"-1"},
    {u"NoteFontSize", u"12"},
    {u"NoteFontName", u"MS Sans Serif"},
    {u"NoteHeight", u"73"},
    {u"IndexUnderline", u"0"},
    {u"IndexItalic", u"0"},
    {u"IndexBold", u"0"},
    {u"IndexFontSize", u"10"},
    {u"IndexFontName", u"MS Sans Serif"},
    {u"PrintLeftmargin", u".6"},
    {u"PrintRightmargin", u".6"},
    {u"PrintTopmargin", u".6"},
    {u"PrintBottommargin", u".6"},
    {u"PrintFontSize", u"12"},
    {u"OptionNumPagesToPrint", u"0"},
    {u"NumPagesToPrint", u"50"},
    {u"PrintPaperMarginSize", u"1"},
    {u"ReportName", u"12normal.rpt"},
    {u"NumIndexItems", u"50"},
    {u"GeneralFontSize", u"12"},
    {u"MatchWholeWord", u"0"},
    {u"MatchCase", u"0"},
    {u"DisplayBook", u"1"},
    {u"DisplayChapterVerse", u"1"},
    {u"DisplayBoldHeading", u"1"},
    {u"DisplayIndent", u"1"},
    {u"BootupBible", u"1"},
    {u"BackGreen", u"255"},
    {u"BackRed", u"255"},
    {u"BackBlue", u"255"},
    {u"TextGreen", u"0"},
    {u"TextRed", u"0"},
    {u"TextBlue", u"0"},
    {u"ShowRedLetter", u"1"},
    {u"showhide", u"1"},
    {u"HideToolbar", u"0"},
};

} // namespace

TEST_F(Settings, anEmptyStoreGivesEveryDefault) {
    LoadSettings();
    SaveSettings();
    for (const Saved& row : defaults)
        EXPECT_EQ(stored(row.key.toString()).toStdString(), row.value.toString().toStdString())
            << row.key.toString().toStdString();
    EXPECT_EQ(VersesPerPage, 40);
    EXPECT_EQ(HideNotes, Off);
    EXPECT_EQ(HideToolbar, Off);
}

TEST_F(Settings, theRightKeysAreKeptAndNoOthers) {
    LoadSettings();
    SaveSettings();
    for (const QString& key : {u"WindowTop"_s, u"WindowWidth"_s, u"HistoryBook0"_s})
        EXPECT_EQ(stored(key), u"missing"_s);
    EXPECT_EQ(stored(u"Path"_s), HomePath);
}

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

TEST_F(Settings, everyValueComesBack) {
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
