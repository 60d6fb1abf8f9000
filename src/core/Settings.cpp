#include "core/Settings.h"

#include "basic/Conversion.h"
#include "basic/Error.h"
#include "basic/Text.h"
#include "core/GlobalCode.h"
#include "core/SettingsTable.h"
#include "desktop/HostPath.h"
#include "settings/SettingsStore.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint16 StandardNoteHeight = 73;

QString stored(const QString& key, const QString& standard) {
    return GetSetting(ApplicationName, SettingsSection, key, standard);
}

void store(const QString& key, const QString& text) {
    SaveSetting(ApplicationName, SettingsSection, key, text);
}

QString decimal(double number) {
    return Trim(Str(number));
}

struct Assign {
    const QString& text;

    void operator()(QString* global) const { *global = text; }
    void operator()(quint8* global) const { *global = toByte(Val(text)); }
    void operator()(qint16* global) const { *global = toInt16(Val(text)); }
    void operator()(float* global) const { *global = toSingle(Val(text)); }
    void operator()(double* global) const {
        const double number = Val(text);
        toSingle(number); // what no calculation on it could bear is an Error
        *global = number;
    }
};

struct TextOf {
    QString operator()(const QString* global) const { return *global; }
    template <class Number>
    QString operator()(const Number* global) const {
        return decimal(*global);
    }
};

// Two switches are stored the other way about, and compared in two different ways.
void setHideNotes(const QString& showHide) {
    HideNotes = toFlag(showHide == u"0");
}

void setHideToolbar(const QString& hideToolbar) {
    HideToolbar = toFlag(Val(hideToolbar) != 0);
}

void storeSetting(const QString& key) {
    store(key, std::visit(TextOf{}, settingOf(key).global));
}

void storeIndexed(const QStringList& keys, size_t count) {
    for (size_t index = 0; index < count; ++index) {
        for (const QString& key : keys)
            storeSetting(key + QString::number(index));
    }
}

const QStringList bookmarkKeys = {
    u"BookmarkTEXT"_s, u"BookmarkBook"_s, u"BookmarkChapter"_s, u"BookmarkVerse"_s};

const QStringList historyKeys = {
    u"HistoryBook"_s, u"HistoryChapter"_s, u"HistoryVerse"_s, u"HistoryDate"_s};

const QStringList queryKeys = {
    u"QueryFont"_s,   u"QueryFontSize"_s,  u"QueryColor"_s,      u"QueryBold"_s,
    u"QueryItalic"_s, u"QueryUnderline"_s, u"QueryStrikeThru"_s,
};

// In the order of writing, and in the spelling in which a new store has them.
const QStringList keysBeforeQuery = {
    u"VersesPerPage"_s, u"PrintWhat"_s,   u"PrintSettings"_s, u"BookName"_s, u"ChapterNumber"_s,
    u"VerseNumber"_s,   u"VersionName"_s, u"PrintUsing"_s,    u"Header"_s,   u"Footer"_s,
};

const QStringList keysBeforeNoteHeight = {
    u"PrintLeftmargin"_s, u"PrintRightmargin"_s, u"PrintTopmargin"_s, u"PrintBottommargin"_s,
    u"PrintFontSize"_s,   u"BackColor"_s,        u"MainColor"_s,      u"MainUnderline"_s,
    u"MainItalic"_s,      u"MainBold"_s,         u"MainFontSize"_s,   u"MainFontName"_s,
    u"NoteBackColor"_s,   u"NoteColor"_s,        u"NoteUnderline"_s,  u"NoteItalic"_s,
    u"NoteBold"_s,        u"NoteFontSize"_s,     u"NoteFontName"_s,
};

const QStringList keysAfterNoteHeight = {
    u"IndexUnderline"_s,
    u"IndexItalic"_s,
    u"IndexBold"_s,
    u"IndexFontSize"_s,
    u"IndexFontName"_s,
    u"PrintPaperMarginSize"_s,
    u"NumPagesToPrint"_s,
    u"PrintFontSize"_s,
    u"ReportName"_s,
    u"NumIndexItems"_s,
    u"OptionNumPagesToPrint"_s,
    u"GeneralFontSize"_s,
    u"MatchWholeWord"_s,
    u"MatchCase"_s,
    u"DisplayBook"_s,
    u"DisplayChapterVerse"_s,
    u"DisplayBoldHeading"_s,
    u"DisplayIndent"_s,
    u"BootupBible"_s,
    u"BackGreen"_s,
    u"BackRed"_s,
    u"BackBlue"_s,
    u"TextGreen"_s,
    u"TextRed"_s,
    u"TextBlue"_s,
    u"ShowRedLetter"_s,
};

void storeSettings(const QStringList& keys) {
    for (const QString& key : keys)
        storeSetting(key);
}

} // namespace

void resetSettings() {
    for (const Setting& setting : settingsTable())
        std::visit(Assign{setting.standard}, setting.global);
    HideNotes = Off;
    HideToolbar = Off;
    NoteHeight = StandardNoteHeight;
}

void LoadSettings() {
    for (const Setting& setting : settingsTable()) {
        const QString text = stored(setting.key, setting.standard);
        attempt([&] { std::visit(Assign{text}, setting.global); });
    }
    setHideNotes(stored(u"ShowHide"_s, u"1"_s));
    setHideToolbar(stored(u"HideToolbar"_s, u"0"_s));
    NoteHeight = StandardNoteHeight;
    HomePath = programFolder() + u'\\';
}

void SaveSettings() {
    store(u"Path"_s, HomePath);
    storeSettings(keysBeforeQuery);
    storeIndexed(queryKeys, QueryStyleCount);
    storeIndexed(bookmarkKeys, BookmarkCount);
    storeSettings(keysBeforeNoteHeight);
    store(u"NoteHeight"_s, decimal(NoteHeight));
    storeSettings(keysAfterNoteHeight);
    store(u"showhide"_s, HideNotes != Off ? u"0"_s : u"1"_s);
    store(u"HideToolbar"_s, HideToolbar == On ? u"1"_s : u"0"_s);
    flushSettings();
}

void saveBookmarks() {
    storeIndexed(bookmarkKeys, BookmarkCount);
    flushSettings();
}

void saveHistory() {
    storeIndexed(historyKeys, HistoryCount);
    flushSettings();
}
