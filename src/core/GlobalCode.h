// The state that all windows share, and the routines on it that belong to no window.
#pragma once

#include "basic/Flag.h"
#include "store/Workspace.h"

#include <QString>
#include <array>

inline const QString ApplicationName = QStringLiteral("Lumenvia Professional");
inline const QString SettingsSection = QStringLiteral("Lumenvia");

// The open translation and the one cursor on it. Moving rsBible is how the program navigates: there
// is no verse model in memory.
extern Workspace wsBible;
extern Database dbBible;
extern Recordset rsBible;
extern qint16 CurrentBible; // row of the catalogue
extern Flag FoundBible;     // a translation file was found at start

// The only guards against lists whose selection is set by code.
extern Flag StartingUp;     // no page is drawn, no visit recorded
extern Flag HoldUpdates;    // a search moves the cursor: lists and page stay
extern Flag SkipComboClick; // a list is being refilled
extern Flag QueryLock;      // a query is on: lists obey only SettingCombos
extern Flag SettingCombos;  // code sets the lists from the cursor
extern Flag InQuery;        // rsBible is a query's result
extern Flag ScreenBusy;     // the window is being laid out; told, and asked by nobody

extern QString HomePath;   // the program's folder, then the path of the translation found
extern QString HelpFile;   // the application's help file
extern QString IndexText;  // what the index tool shows before its first run
extern Flag TipsRequested; // the tips shall show in spite of their setting
extern QString PopupWord;  // the word under a right click, while its menu is open
extern int DownloadItem;   // catalogue row that the download window selects

// The words of the current query; rows 0 and 1 are coloured on the page.
inline constexpr int QueryWordCount = 7;
extern std::array<QString, QueryWordCount> QueryWords;
extern std::array<QString, QueryWordCount> QueryHistory; // as last typed
extern std::array<QString, QueryWordCount - 1> QueryOperators;

// The SELECT text of the current query, and the rest of the form as last used.
extern QString QuerySQL;
extern bool OldQueryBoth;
extern int OldQueryBook;
extern int OldQueryScope;
extern bool OldQueryWhole;
extern qint16 QueryCancelled; // 999 once a query was cancelled

// What the advanced search last held.
extern std::array<QString, 2> OldSearchWords;
extern int OldSearchBook;
extern int OldSearchTestament;
extern bool OldSearchWholeWord;
extern bool OldSearchBoth;

// Temporary output files, deleted when the main window unloads. Entry 0 is not used.
extern std::array<QString, 101> TempFiles;

// Fills the catalogue and resets the shared state. Running it twice is harmless.
void InitGlobals();

// The full path of a data file: the first of the fixed places where the file exists, or "BAD".
// A found file that is marked read-only is made writable where the system lets it.
QString FindDataFile(const QString& name);

// The reference of the verse under the cursor, such as "Genesis 1:1". Without a current row the
// cursor goes to the first one and its page is drawn; where even that cannot be read the text is
// what could be had of it.
QString VerseReference();

// Reopen the translation in place of the present cursor: as a table in the order of VerseIndex, or
// as a dynaset in the order of its rows. Where the file is gone they tell the user so, and the old
// cursor stays. Other failures are Errors.
void OpenBibleTable();
void OpenBibleDynaset();
