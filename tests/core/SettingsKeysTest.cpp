// Every key of the settings, its spelling in the file, its default, and the global that it stands
// for.
#include "core/GlobalCode.h"
#include "core/Settings.h"
#include "desktop/HostPath.h"
#include "settings/SettingsStore.h"
#include "support/ProgramFixture.h"

#include <QGuiApplication>
#include <QScreen>
#include <variant>

using namespace Qt::StringLiterals;

namespace {

using Global =
    std::variant<const QString*, const quint8*, const qint16*, const float*, const double*>;

struct Key {
    QString key; // as it is written
    QString standard;
    Global global;
};

const QList<Key> singleKeys = {
    {u"VersesPerPage"_s, u"40"_s, &VersesPerPage},
    {u"PrintWhat"_s, u"0"_s, &PrintWhat},
    {u"PrintSettings"_s, u"1"_s, &PrintSettings},
    {u"BookName"_s, u"1"_s, &PrintBookName},
    {u"ChapterNumber"_s, u"1"_s, &PrintChapterNumber},
    {u"VerseNumber"_s, u"1"_s, &PrintVerseNumber},
    {u"VersionName"_s, u"0"_s, &PrintVersionName},
    {u"PrintUsing"_s, u"1"_s, &PrintUsing},
    {u"Header"_s, {}, &PrintHeader},
    {u"Footer"_s, {}, &PrintFooter},
    {u"QueryColor0"_s, u"255"_s, &QueryColor[0]},
    {u"QueryColor1"_s, u"16711680"_s, &QueryColor[1]},
    {u"QueryColor2"_s, u"4227200"_s, &QueryColor[2]},
    {u"QueryColor3"_s, u"65280"_s, &QueryColor[3]},
    {u"QueryColor4"_s, u"128"_s, &QueryColor[4]},
    {u"QueryColor5"_s, u"3278280"_s, &QueryColor[5]},
    {u"QueryColor6"_s, u"12615808"_s, &QueryColor[6]},
    {u"BackColor"_s, u"16777215"_s, &BackColor},
    {u"MainColor"_s, u"0"_s, &MainColor},
    {u"MainUnderline"_s, u"0"_s, &MainUnderline},
    {u"MainItalic"_s, u"0"_s, &MainItalic},
    {u"MainBold"_s, u"0"_s, &MainBold},
    {u"MainFontSize"_s, u"12"_s, &MainFontSize},
    {u"MainFontName"_s, u"Times New Roman"_s, &MainFontName},
    {u"NoteBackColor"_s, u"16711680"_s, &NoteBackColor},
    {u"NoteColor"_s, u"16767215"_s, &NoteColor},
    {u"NoteUnderline"_s, u"0"_s, &NoteUnderline},
    {u"NoteItalic"_s, u"0"_s, &NoteItalic},
    {u"NoteBold"_s, u"-1"_s, &NoteBold},
    {u"NoteFontSize"_s, u"12"_s, &NoteFontSize},
    {u"NoteFontName"_s, u"MS Sans Serif"_s, &NoteFontName},
    {u"IndexUnderline"_s, u"0"_s, &IndexUnderline},
    {u"IndexItalic"_s, u"0"_s, &IndexItalic},
    {u"IndexBold"_s, u"0"_s, &IndexBold},
    {u"IndexFontSize"_s, u"10"_s, &IndexFontSize},
    {u"IndexFontName"_s, u"MS Sans Serif"_s, &IndexFontName},
    {u"PrintLeftmargin"_s, u".6"_s, &PrintLeftMargin},
    {u"PrintRightmargin"_s, u".6"_s, &PrintRightMargin},
    {u"PrintTopmargin"_s, u".6"_s, &PrintTopMargin},
    {u"PrintBottommargin"_s, u".6"_s, &PrintBottomMargin},
    {u"PrintFontSize"_s, u"12"_s, &PrintFontSize},
    {u"OptionNumPagesToPrint"_s, u"0"_s, &OptionNumPagesToPrint},
    {u"NumPagesToPrint"_s, u"50"_s, &NumPagesToPrint},
    {u"PrintPaperMarginSize"_s, u"1"_s, &PrintPaperMarginSize},
    {u"ReportName"_s, u"12normal.rpt"_s, &ReportName},
    {u"NumIndexItems"_s, u"50"_s, &NumIndexItems},
    {u"GeneralFontSize"_s, u"12"_s, &GeneralFontSize},
    {u"MatchWholeWord"_s, u"0"_s, &MatchWholeWord},
    {u"MatchCase"_s, u"0"_s, &MatchCase},
    {u"DisplayBook"_s, u"1"_s, &DisplayBook},
    {u"DisplayChapterVerse"_s, u"1"_s, &DisplayChapterVerse},
    {u"DisplayBoldHeading"_s, u"1"_s, &DisplayBoldHeading},
    {u"DisplayIndent"_s, u"1"_s, &DisplayIndent},
    {u"BootupBible"_s, u"1"_s, &BootUpBible},
    {u"BackGreen"_s, u"255"_s, &BackGreen},
    {u"BackRed"_s, u"255"_s, &BackRed},
    {u"BackBlue"_s, u"255"_s, &BackBlue},
    {u"TextGreen"_s, u"0"_s, &TextGreen},
    {u"TextRed"_s, u"0"_s, &TextRed},
    {u"TextBlue"_s, u"0"_s, &TextBlue},
    {u"ShowRedLetter"_s, u"1"_s, &ShowRedLetter},
};

// A key for each element of an array, the index behind the name.
template <class Value, size_t count>
QList<Key>
series(const QString& name, const QString& standard, const std::array<Value, count>& globals) {
    QList<Key> keys;
    for (size_t index = 0; index < count; ++index)
        keys.append({name + QString::number(index), standard, &globals[index]});
    return keys;
}

QList<Key> savedKeys() {
    return singleKeys + series(u"QueryFont"_s, u"MS Sans Serif"_s, QueryFont)
           + series(u"QueryFontSize"_s, u"13"_s, QueryFontSize)
           + series(u"QueryBold"_s, u"-1"_s, QueryBold)
           + series(u"QueryItalic"_s, u"0"_s, QueryItalic)
           + series(u"QueryUnderline"_s, u"-1"_s, QueryUnderline)
           + series(u"QueryStrikeThru"_s, u"0"_s, QueryStrikeThru)
           + series(u"BookmarkTEXT"_s, {}, BookmarkText)
           + series(u"BookmarkBook"_s, {}, BookmarkBook)
           + series(u"BookmarkChapter"_s, {}, BookmarkChapter)
           + series(u"BookmarkVerse"_s, {}, BookmarkVerse);
}

QList<Key> historyKeys() {
    return series(u"HistoryBook"_s, u"0"_s, HistoryBook)
           + series(u"HistoryChapter"_s, u"0"_s, HistoryChapter)
           + series(u"HistoryVerse"_s, u"0"_s, HistoryVerse)
           + series(u"HistoryDate"_s, u"1-jan-98"_s, HistoryDate);
}

QList<Key> windowKeys() {
    const QSize screen = QGuiApplication::primaryScreen()->size();
    return {
        {u"WindowTop"_s, u"0"_s, &WindowTop},
        {u"WindowLeft"_s, u"0"_s, &WindowLeft},
        {u"WindowWidth"_s, QString::number(screen.width() * 6 / 10), &WindowWidth},
        {u"WindowHeight"_s, QString::number(screen.height() * 6 / 10), &WindowHeight}};
}

// What is stored of a number that has no value is an empty text at first, and 0 from then on.
QString written(const Key& key) {
    const bool isText = std::holds_alternative<const QString*>(key.global);
    return key.standard.isEmpty() && !isText ? u"0"_s : key.standard;
}

void expectHolds(const Global& global, const QString& text, const QString& key) {
    if (const auto* held = std::get_if<const QString*>(&global)) {
        EXPECT_EQ(**held, text) << key.toStdString();
        return;
    }
    std::visit(
        [&](const auto* held) {
            if constexpr (!std::is_same_v<decltype(held), const QString*>) {
                EXPECT_EQ(static_cast<double>(*held), text.toDouble()) << key.toStdString();
            }
        },
        global);
}

// A value of its own for each key; all of them fit into any global.
QString valueOf(qsizetype place) {
    return QString::number(100 + place);
}

class SettingsKeys : public ProgramFixture {
protected:
    static QString stored(const QString& key) {
        return GetSetting(ApplicationName, SettingsSection, key, u"missing"_s);
    }

    static void store(const QString& key, const QString& value) {
        SaveSetting(ApplicationName, SettingsSection, key, value);
    }

    // The keys of the section as the file spells them.
    QSet<QString> keysInFile() const {
        QSet<QString> keys;
        bool inSection = false;
        for (const QString& line : settingsText(ApplicationName).split(u'\n')) {
            if (line.startsWith(u'['))
                inSection = line == u"[Lumenvia]";
            else if (inSection && !line.isEmpty())
                keys.insert(line.section(u'=', 0, 0));
        }
        return keys;
    }
};

QSet<QString> namesOf(const QList<Key>& keys) {
    QSet<QString> names;
    for (const Key& key : keys)
        names.insert(key.key);
    return names;
}

} // namespace

TEST_F(SettingsKeys, anEmptyStoreGivesEveryDefault) {
    LoadSettings();
    SaveSettings();
    saveHistory();
    for (const Key& key : savedKeys() + historyKeys()) {
        expectHolds(key.global, key.standard, key.key);
        EXPECT_EQ(stored(key.key), written(key)) << key.key.toStdString();
    }
    for (const Key& key : windowKeys())
        expectHolds(key.global, key.standard, key.key);
    EXPECT_EQ(stored(u"showhide"_s), u"1"_s);
    EXPECT_EQ(stored(u"HideToolbar"_s), u"0"_s);
    EXPECT_EQ(stored(u"NoteHeight"_s), u"73"_s);
    EXPECT_EQ(stored(u"Path"_s), programFolder() + u'\\');
    EXPECT_EQ(HideNotes, Off);
    EXPECT_EQ(HideToolbar, Off);
}

TEST_F(SettingsKeys, everyKeyIsReadIntoItsGlobalAndWrittenFromIt) {
    const QList<Key> saved = savedKeys() + historyKeys();
    const QList<Key> all = saved + windowKeys();
    for (qsizetype place = 0; place < all.size(); ++place)
        store(all[place].key, valueOf(place));
    LoadSettings();
    for (qsizetype place = 0; place < all.size(); ++place)
        expectHolds(all[place].global, valueOf(place), all[place].key);
    for (const Key& key : all)
        store(key.key, u"overwritten"_s);
    SaveSettings();
    saveHistory();
    for (qsizetype place = 0; place < saved.size(); ++place)
        EXPECT_EQ(stored(saved[place].key), valueOf(place)) << saved[place].key.toStdString();
    for (const Key& key : windowKeys())
        EXPECT_EQ(stored(key.key), u"overwritten"_s) << key.key.toStdString();
}

TEST_F(SettingsKeys, theRightKeysAreKeptAndNoOthers) {
    LoadSettings();
    SaveSettings();
    const QSet<QString> settings =
        namesOf(savedKeys())
        + QSet<QString>{u"Path"_s, u"NoteHeight"_s, u"showhide"_s, u"HideToolbar"_s};
    EXPECT_EQ(keysInFile() - settings, QSet<QString>());
    EXPECT_EQ(settings - keysInFile(), QSet<QString>());
    saveHistory();
    EXPECT_EQ(keysInFile() - settings, namesOf(historyKeys()));
}
