// The user's preferences, bookmarks and history: read once from the settings store into these
// globals, which the program works on, and written back at start, at exit and with the bookmarks.
// Some are kept from run to run and applied by nothing; they belong to the user all the same.
#pragma once

#include "basic/Flag.h"

#include <QString>
#include <array>

// Pages of verses.
extern qint16 VersesPerPage;
extern double DisplayBook;
extern double DisplayChapterVerse;
extern double DisplayBoldHeading;
extern double DisplayIndent;
extern double ShowRedLetter;
extern qint16 BootUpBible; // catalogue row at start
extern Flag HideNotes;
extern Flag HideToolbar;

// What to print and how.
extern quint8 PrintWhat;
extern quint8 PrintSettings; // 0 print, 1 preview, 2 export
extern quint8 PrintBookName;
extern quint8 PrintChapterNumber;
extern quint8 PrintVerseNumber;
extern quint8 PrintVersionName;
extern quint8 PrintUsing;
extern QString PrintHeader;
extern QString PrintFooter;
extern double PrintLeftMargin;
extern double PrintRightMargin;
extern double PrintTopMargin;
extern double PrintBottomMargin;
extern double PrintFontSize;
extern double OptionNumPagesToPrint;
extern double NumPagesToPrint;
extern double PrintPaperMarginSize;
extern QString ReportName;

// Query words: kept, not applied.
inline constexpr size_t QueryStyleCount = 7;
extern std::array<QString, QueryStyleCount> QueryFont;
extern std::array<double, QueryStyleCount> QueryFontSize;
extern std::array<double, QueryStyleCount> QueryBold;
extern std::array<double, QueryStyleCount> QueryItalic;
extern std::array<double, QueryStyleCount> QueryUnderline;
extern std::array<double, QueryStyleCount> QueryStrikeThru;
extern std::array<double, QueryStyleCount> QueryColor;

// The page, the note pane and the index. Sizes in points; colour parts 0 to 255.
extern double BackColor;
extern double MainColor;
extern qint16 MainUnderline;
extern qint16 MainItalic;
extern qint16 MainBold;
extern double MainFontSize;
extern QString MainFontName;
extern double NoteBackColor;
extern double NoteColor;
extern qint16 NoteUnderline;
extern qint16 NoteItalic;
extern qint16 NoteBold;
extern double NoteFontSize;
extern QString NoteFontName;
extern qint16 NoteHeight;
extern qint16 IndexUnderline;
extern qint16 IndexItalic;
extern qint16 IndexBold;
extern double IndexFontSize;
extern QString IndexFontName;
extern double NumIndexItems;
extern double GeneralFontSize;
extern qint16 BackGreen;
extern qint16 BackRed;
extern qint16 BackBlue;
extern qint16 TextGreen;
extern qint16 TextRed;
extern qint16 TextBlue;

// The commentary's searches.
extern double MatchWholeWord;
extern double MatchCase;

// Where an earlier version left the window: read, and used by nothing.
extern double WindowTop;
extern double WindowLeft;
extern double WindowWidth;
extern double WindowHeight;

// A bookmark without a text is a free slot.
inline constexpr size_t BookmarkCount = 71;
extern std::array<QString, BookmarkCount> BookmarkText;
extern std::array<qint16, BookmarkCount> BookmarkBook;
extern std::array<qint16, BookmarkCount> BookmarkChapter;
extern std::array<qint16, BookmarkCount> BookmarkVerse;

// Visited verses, the newest at 0. A book of 0 is an empty entry.
inline constexpr size_t HistoryCount = 101;
extern std::array<float, HistoryCount> HistoryBook;
extern std::array<float, HistoryCount> HistoryChapter;
extern std::array<float, HistoryCount> HistoryVerse;
extern std::array<QString, HistoryCount> HistoryDate;

// Reads every setting. A missing key has its default; a text that is no number is 0; a number that
// its global cannot hold leaves the global as it was. Nothing is checked beyond that.
void LoadSettings();

// Writes every setting but the history, bookmarks included.
void SaveSettings();
void saveBookmarks();
void saveHistory();

// Every setting as it is before the first run.
void resetSettings();
