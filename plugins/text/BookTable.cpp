#include "text/BookTable.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

// clang-format off
constexpr std::array<Book, 66> Table{{
    {1, "Gen"_L1, "GEN"_L1, "Genesis"_L1, 50},
    {2, "Exod"_L1, "EXO"_L1, "Exodus"_L1, 40},
    {3, "Lev"_L1, "LEV"_L1, "Leviticus"_L1, 27},
    {4, "Num"_L1, "NUM"_L1, "Numbers"_L1, 36},
    {5, "Deut"_L1, "DEU"_L1, "Deuteronomy"_L1, 34},
    {6, "Josh"_L1, "JOS"_L1, "Joshua"_L1, 24},
    {7, "Judg"_L1, "JDG"_L1, "Judges"_L1, 21},
    {8, "Ruth"_L1, "RUT"_L1, "Ruth"_L1, 4},
    {9, "1Sam"_L1, "1SA"_L1, "1 Samuel"_L1, 31},
    {10, "2Sam"_L1, "2SA"_L1, "2 Samuel"_L1, 24},
    {11, "1Kgs"_L1, "1KI"_L1, "1 Kings"_L1, 22},
    {12, "2Kgs"_L1, "2KI"_L1, "2 Kings"_L1, 25},
    {13, "1Chr"_L1, "1CH"_L1, "1 Chronicles"_L1, 29},
    {14, "2Chr"_L1, "2CH"_L1, "2 Chronicles"_L1, 36},
    {15, "Ezra"_L1, "EZR"_L1, "Ezra"_L1, 10},
    {16, "Neh"_L1, "NEH"_L1, "Nehemiah"_L1, 13},
    {17, "Esth"_L1, "EST"_L1, "Esther"_L1, 10},
    {18, "Job"_L1, "JOB"_L1, "Job"_L1, 42},
    {19, "Ps"_L1, "PSA"_L1, "Psalms"_L1, 150},
    {20, "Prov"_L1, "PRO"_L1, "Proverbs"_L1, 31},
    {21, "Eccl"_L1, "ECC"_L1, "Ecclesiastes"_L1, 12},
    {22, "Song"_L1, "SNG"_L1, "Song of Solomon"_L1, 8},
    {23, "Isa"_L1, "ISA"_L1, "Isaiah"_L1, 66},
    {24, "Jer"_L1, "JER"_L1, "Jeremiah"_L1, 52},
    {25, "Lam"_L1, "LAM"_L1, "Lamentations"_L1, 5},
    {26, "Ezek"_L1, "EZK"_L1, "Ezekiel"_L1, 48},
    {27, "Dan"_L1, "DAN"_L1, "Daniel"_L1, 12},
    {28, "Hos"_L1, "HOS"_L1, "Hosea"_L1, 14},
    {29, "Joel"_L1, "JOL"_L1, "Joel"_L1, 3},
    {30, "Amos"_L1, "AMO"_L1, "Amos"_L1, 9},
    {31, "Obad"_L1, "OBA"_L1, "Obadiah"_L1, 1},
    {32, "Jonah"_L1, "JON"_L1, "Jonah"_L1, 4},
    {33, "Mic"_L1, "MIC"_L1, "Micah"_L1, 7},
    {34, "Nah"_L1, "NAM"_L1, "Nahum"_L1, 3},
    {35, "Hab"_L1, "HAB"_L1, "Habakkuk"_L1, 3},
    {36, "Zeph"_L1, "ZEP"_L1, "Zephaniah"_L1, 3},
    {37, "Hag"_L1, "HAG"_L1, "Haggai"_L1, 2},
    {38, "Zech"_L1, "ZEC"_L1, "Zechariah"_L1, 14},
    {39, "Mal"_L1, "MAL"_L1, "Malachi"_L1, 4},
    {40, "Matt"_L1, "MAT"_L1, "Matthew"_L1, 28},
    {41, "Mark"_L1, "MRK"_L1, "Mark"_L1, 16},
    {42, "Luke"_L1, "LUK"_L1, "Luke"_L1, 24},
    {43, "John"_L1, "JHN"_L1, "John"_L1, 21},
    {44, "Acts"_L1, "ACT"_L1, "Acts"_L1, 28},
    {45, "Rom"_L1, "ROM"_L1, "Romans"_L1, 16},
    {46, "1Cor"_L1, "1CO"_L1, "1 Corinthians"_L1, 16},
    {47, "2Cor"_L1, "2CO"_L1, "2 Corinthians"_L1, 13},
    {48, "Gal"_L1, "GAL"_L1, "Galatians"_L1, 6},
    {49, "Eph"_L1, "EPH"_L1, "Ephesians"_L1, 6},
    {50, "Phil"_L1, "PHP"_L1, "Philippians"_L1, 4},
    {51, "Col"_L1, "COL"_L1, "Colossians"_L1, 4},
    {52, "1Thess"_L1, "1TH"_L1, "1 Thessalonians"_L1, 5},
    {53, "2Thess"_L1, "2TH"_L1, "2 Thessalonians"_L1, 3},
    {54, "1Tim"_L1, "1TI"_L1, "1 Timothy"_L1, 6},
    {55, "2Tim"_L1, "2TI"_L1, "2 Timothy"_L1, 4},
    {56, "Titus"_L1, "TIT"_L1, "Titus"_L1, 3},
    {57, "Phlm"_L1, "PHM"_L1, "Philemon"_L1, 1},
    {58, "Heb"_L1, "HEB"_L1, "Hebrews"_L1, 13},
    {59, "Jas"_L1, "JAS"_L1, "James"_L1, 5},
    {60, "1Pet"_L1, "1PE"_L1, "1 Peter"_L1, 5},
    {61, "2Pet"_L1, "2PE"_L1, "2 Peter"_L1, 3},
    {62, "1John"_L1, "1JN"_L1, "1 John"_L1, 5},
    {63, "2John"_L1, "2JN"_L1, "2 John"_L1, 1},
    {64, "3John"_L1, "3JN"_L1, "3 John"_L1, 1},
    {65, "Jude"_L1, "JUD"_L1, "Jude"_L1, 1},
    {66, "Rev"_L1, "REV"_L1, "Revelation"_L1, 22},
}};
// clang-format on

bool isNamed(const Book& book, QStringView name) {
    return name.compare(book.osis, Qt::CaseInsensitive) == 0
           || name.compare(book.usfm, Qt::CaseInsensitive) == 0
           || name.compare(book.name, Qt::CaseInsensitive) == 0;
}

} // namespace

std::span<const Book> books() {
    return Table;
}

const Book* findBook(QStringView name) {
    bool isNumber = false;
    const int number = name.toInt(&isNumber);
    if (isNumber)
        return number >= 1 && number <= int(Table.size()) ? &Table[number - 1] : nullptr;
    for (const Book& book : Table) {
        if (isNamed(book, name))
            return &book;
    }
    return nullptr;
}

QString verseName(const VerseAddress& address) {
    const bool isKnown = address.book >= 1 && address.book <= int(Table.size());
    const QString book =
        isKnown ? QString(Table[address.book - 1].name) : u"Book %1"_s.arg(address.book);
    return u"%1 %2:%3"_s.arg(book).arg(address.chapter).arg(address.verse);
}
