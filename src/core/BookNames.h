// The names of the books in five languages, and their lengths. There is no table of verse counts:
// whether a verse exists is known only to the database.
#pragma once

#include <QString>
#include <array>

inline constexpr int BookCount = 66;

// Indexed by book number, 1 to 66; entry 0 is empty.
extern const std::array<QString, BookCount + 1> BookNamesEnglish;
extern const std::array<QString, BookCount + 1> BookNamesFrench;
extern const std::array<QString, BookCount + 1> BookNamesGerman;
extern const std::array<QString, BookCount + 1> BookNamesSpanish;
extern const std::array<QString, BookCount + 1> BookNamesDutch;

// The number of chapters by book number, for every language; entry 0 is 0.
extern const std::array<int, BookCount + 1> ChaptersInBook;

// The same for any number: 0 outside 1 to 66.
int chapterCount(int book);

// The names in use, by book number minus 1: those of the open translation's language.
extern std::array<QString, BookCount> BookNames;

// The name in use of a book as a verse row holds it (a number, or its text form); empty outside
// 1 to 66. Null is an Error.
QString bookName(const QVariant& book);

// Takes the names of the language of a catalogue row; rows without a language of their own, and
// numbers that are no row, take the English ones. Outside of start-up it fills the main window's
// list of books with them and selects the first, which moves the cursor to Genesis 1:1.
void SelectBookNames(int row);
