#include "core/SettingsTable.h"

#include "basic/Error.h"
#include "core/Settings.h"

#include <QGuiApplication>
#include <QHash>
#include <QScreen>

using namespace Qt::StringLiterals;

// The globals of Settings.h. They get their values from the table below.
qint16 VersesPerPage;
double DisplayBook;
double DisplayChapterVerse;
double DisplayBoldHeading;
double DisplayIndent;
double ShowRedLetter;
qint16 BootUpBible;
Flag HideNotes;
Flag HideToolbar;
quint8 PrintWhat;
quint8 PrintSettings;
quint8 PrintBookName;
quint8 PrintChapterNumber;
quint8 PrintVerseNumber;
quint8 PrintVersionName;
quint8 PrintUsing;
QString PrintHeader;
QString PrintFooter;
double PrintLeftMargin;
double PrintRightMargin;
double PrintTopMargin;
double PrintBottomMargin;
double PrintFontSize;
double OptionNumPagesToPrint;
double NumPagesToPrint;
double PrintPaperMarginSize;
QString ReportName;
std::array<QString, QueryStyleCount> QueryFont;
std::array<double, QueryStyleCount> QueryFontSize;
std::array<double, QueryStyleCount> QueryBold;
std::array<double, QueryStyleCount> QueryItalic;
std::array<double, QueryStyleCount> QueryUnderline;
std::array<double, QueryStyleCount> QueryStrikeThru;
std::array<double, QueryStyleCount> QueryColor;
double BackColor;
double MainColor;
qint16 MainUnderline;
qint16 MainItalic;
qint16 MainBold;
double MainFontSize;
QString MainFontName;
double NoteBackColor;
double NoteColor;
qint16 NoteUnderline;
qint16 NoteItalic;
qint16 NoteBold;
double NoteFontSize;
QString NoteFontName;
qint16 NoteHeight;
qint16 IndexUnderline;
qint16 IndexItalic;
qint16 IndexBold;
double IndexFontSize;
QString IndexFontName;
double NumIndexItems;
double GeneralFontSize;
qint16 BackGreen;
qint16 BackRed;
qint16 BackBlue;
qint16 TextGreen;
qint16 TextRed;
qint16 TextBlue;
double MatchWholeWord;
double MatchCase;
double WindowTop;
double WindowLeft;
double WindowWidth;
double WindowHeight;
std::array<QString, BookmarkCount> BookmarkText;
std::array<qint16, BookmarkCount> BookmarkBook;
std::array<qint16, BookmarkCount> BookmarkChapter;
std::array<qint16, BookmarkCount> BookmarkVerse;
std::array<float, HistoryCount> HistoryBook;
std::array<float, HistoryCount> HistoryChapter;
std::array<float, HistoryCount> HistoryVerse;
std::array<QString, HistoryCount> HistoryDate;

namespace {

// One setting for each element of an array, the index behind the key.
template <class Global, size_t count>
QList<Setting>
series(const QString& key, const QString& standard, std::array<Global, count>& globals) {
    QList<Setting> settings;
    for (size_t index = 0; index < count; ++index)
        settings.append({key + QString::number(index), standard, &globals[index]});
    return settings;
}

QString shareOfScreen(int length) {
    return QString::number(length * 6 / 10);
}

QSize screenSize() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen ? screen->size() : QSize();
}

// clang-format off
QList<Setting> pageAndPrintSettings() {
    return {
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
    };
}

QList<Setting> queryAndBookmarkSettings() {
    return series(u"QueryFont"_s, u"MS Sans Serif"_s, QueryFont)
        + series(u"QueryFontSize"_s, u"13"_s, QueryFontSize)
        + series(u"QueryBold"_s, u"-1"_s, QueryBold)
        + series(u"QueryItalic"_s, u"0"_s, QueryItalic)
        + series(u"QueryUnderline"_s, u"-1"_s, QueryUnderline)
        + series(u"QueryStrikeThru"_s, u"0"_s, QueryStrikeThru)
        + series(u"BookmarkTEXT"_s, {}, BookmarkText)
        + series(u"BookmarkBook"_s, {}, BookmarkBook)
        + series(u"BookmarkChapter"_s, {}, BookmarkChapter)
        + series(u"BookmarkVerse"_s, {}, BookmarkVerse)
        + QList<Setting>{
            {u"QueryColor0"_s, u"255"_s, &QueryColor[0]},
            {u"QueryColor1"_s, u"16711680"_s, &QueryColor[1]},
            {u"QueryColor2"_s, u"4227200"_s, &QueryColor[2]},
            {u"QueryColor3"_s, u"65280"_s, &QueryColor[3]},
            {u"QueryColor4"_s, u"128"_s, &QueryColor[4]},
            {u"QueryColor5"_s, u"3278280"_s, &QueryColor[5]},
            {u"QueryColor6"_s, u"12615808"_s, &QueryColor[6]},
        };
}

QList<Setting> fontSettings() {
    return {
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
    };
}

// The print font size is read twice, under two spellings of one key.
QList<Setting> outputSettings() {
    return {
        {u"PrintLeftmargin"_s, u".6"_s, &PrintLeftMargin},
        {u"PrintRightMargin"_s, u".6"_s, &PrintRightMargin},
        {u"PrintTopMargin"_s, u".6"_s, &PrintTopMargin},
        {u"PrintBottomMargin"_s, u".6"_s, &PrintBottomMargin},
        {u"Printfontsize"_s, u"12"_s, &PrintFontSize},
        {u"OptionNumPagesToPrint"_s, u"0"_s, &OptionNumPagesToPrint},
        {u"NumPagesToPrint"_s, u"50"_s, &NumPagesToPrint},
        {u"PrintPaperMarginSize"_s, u"1"_s, &PrintPaperMarginSize},
        {u"PrintFontSize"_s, u"12"_s, &PrintFontSize},
        {u"Reportname"_s, u"12normal.rpt"_s, &ReportName},
        {u"NumIndexItems"_s, u"50"_s, &NumIndexItems},
        {u"GeneralFontSize"_s, u"12"_s, &GeneralFontSize},
    };
}

QList<Setting> displaySettings() {
    return {
        {u"MatchWholeWord"_s, u"0"_s, &MatchWholeWord},
        {u"MatchCase"_s, u"0"_s, &MatchCase},
        {u"DisplayBook"_s, u"1"_s, &DisplayBook},
        {u"DisplayChapterVerse"_s, u"1"_s, &DisplayChapterVerse},
        {u"DisplayBoldHeading"_s, u"1"_s, &DisplayBoldHeading},
        {u"DisplayIndent"_s, u"1"_s, &DisplayIndent},
        {u"BootUpBible"_s, u"1"_s, &BootUpBible},
        {u"BackGreen"_s, u"255"_s, &BackGreen},
        {u"BackRed"_s, u"255"_s, &BackRed},
        {u"BackBlue"_s, u"255"_s, &BackBlue},
        {u"TextGreen"_s, u"0"_s, &TextGreen},
        {u"TextRed"_s, u"0"_s, &TextRed},
        {u"TextBlue"_s, u"0"_s, &TextBlue},
        {u"ShowRedLetter"_s, u"1"_s, &ShowRedLetter},
    };
}
// clang-format on

QList<Setting> windowAndHistorySettings() {
    const QSize screen = screenSize();
    return QList<Setting>{
               {u"WindowTop"_s, u"0"_s, &WindowTop},
               {u"WindowLeft"_s, u"0"_s, &WindowLeft},
               {u"WindowWidth"_s, shareOfScreen(screen.width()), &WindowWidth},
               {u"WindowHeight"_s, shareOfScreen(screen.height()), &WindowHeight},
           }
           + series(u"HistoryBook"_s, u"0"_s, HistoryBook)
           + series(u"HistoryChapter"_s, u"0"_s, HistoryChapter)
           + series(u"HistoryVerse"_s, u"0"_s, HistoryVerse)
           + series(u"HistoryDate"_s, u"1-jan-98"_s, HistoryDate);
}

} // namespace

const QList<Setting>& settingsTable() {
    static const QList<Setting> table = pageAndPrintSettings() + queryAndBookmarkSettings()
                                        + fontSettings() + outputSettings() + displaySettings()
                                        + windowAndHistorySettings();
    return table;
}

const Setting& settingOf(const QString& key) {
    static const auto byKey = [] {
        QHash<QString, const Setting*> settings;
        for (const Setting& setting : settingsTable())
            settings.insert(setting.key.toCaseFolded(), &setting);
        return settings;
    }();
    const Setting* setting = byKey.value(key.toCaseFolded());
    if (!setting)
        throw Error(Error::SubscriptOutOfRange, u"There is no setting "_s + key);
    return *setting;
}
