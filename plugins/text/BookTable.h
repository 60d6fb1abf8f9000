// The 66 books of the catalogue and the names by which sources call them.
#pragma once

#include <QLatin1String>
#include <QString>
#include <compare>
#include <span>

struct Book {
    int number; // 1 to 66
    QLatin1String osis;
    QLatin1String usfm;
    QLatin1String name; // English, as sources write it: "1 Samuel"
    int chapters;       // the catalogue's count
};

struct VerseAddress {
    int book = 0; // 1 to 66
    int chapter = 0;
    int verse = 0;

    // NOLINTNEXTLINE(modernize-use-nullptr): the check mistakes what the compiler writes
    auto operator<=>(const VerseAddress&) const = default;
};

// In canonical order: entry = number - 1.
std::span<const Book> books();

// The book that a source means by an OSIS id, a USFM id, a number 1 to 66 or an English name,
// without regard to case; nullptr for anything else, never a guess.
const Book* findBook(QStringView name);

// An address as a user reads it: "1 Samuel 3:4"; "Book 70 3:4" outside of the catalogue.
QString verseName(const VerseAddress& address);
