#include "core/BookNames.h"

#include "basic/Conversion.h"
#include "basic/Text.h"
#include "core/GlobalCode.h"
#include "reader/frmMain.h"

using namespace Qt::StringLiterals;

// Letter for letter as readers know them, quirks included. Packed by hand: one name a line would
// hide the tables' shape.
// clang-format off

const std::array<QString, BookCount + 1> BookNamesEnglish = {
    QString(), u"Genesis"_s, u"Exodus"_s, u"Leviticus"_s, u"Numbers"_s, u"Deuteronomy"_s,
    u"Joshua"_s, u"Judges"_s, u"Ruth"_s, u"Samuel I"_s, u"Samuel II"_s, u"Kings I"_s,
    u"Kings II"_s, u"Chronicles I"_s, u"Chronicles II"_s, u"Ezra"_s, u"Nehemiah"_s, u"Esther"_s,
    u"Job"_s, u"Psalms"_s, u"Proverbs"_s, u"Ecclesiastes"_s, u"Song of Solomon"_s, u"Isaiah"_s,
    u"Jeremiah"_s, u"Lamentations"_s, u"Ezekiel"_s, u"Daniel"_s, u"Hosea"_s, u"Joel"_s, u"Amos"_s,
    u"Obadiah"_s, u"Jonah"_s, u"Micah"_s, u"Nahum"_s, u"Habakkuk"_s, u"Zephaniah"_s, u"Haggai"_s,
    u"Zechariah"_s, u"Malachi"_s, u"Matthew"_s, u"Mark"_s, u"Luke"_s, u"John"_s, u"Acts"_s,
    u"Romans"_s, u"Corinthians I"_s, u"Corinthians II"_s, u"Galatians"_s, u"Ephesians"_s,
    u"Philippians"_s, u"Colossians"_s, u"Thessalonians I"_s, u"Thessalonians II"_s,
    u"Timothy I"_s, u"Timothy II"_s, u"Titus"_s, u"Philemon"_s, u"Hebrews"_s, u"James"_s,
    u"Peter I"_s, u"Peter II"_s, u"John I"_s, u"John II"_s, u"John III"_s, u"Jude"_s,
    u"Revelation"_s};

const std::array<QString, BookCount + 1> BookNamesFrench = {
    QString(), u"Genèse"_s, u"Exode"_s, u"Lévitique"_s, u"Nombres"_s, u"Deutéronome"_s,
    u"Josué"_s, u"Juges"_s, u"Ruth"_s, u"1 Samuel"_s, u"2 Samuel"_s, u"1 Rois"_s, u"2 Rois"_s,
    u"1 Chroniques"_s, u"2 Chroniques"_s, u"Esdras"_s, u"Néhémie"_s, u"Esther"_s, u"Job"_s,
    u"Psaumes"_s, u"Proverbes"_s, u"Ecclésiaste"_s, u"Cantique"_s, u"Esaïe"_s, u"Jérémie"_s,
    u"Lamentations"_s, u"ezéchiel"_s, u"Daniel"_s, u"Osée"_s, u"Joël"_s, u"Amos"_s, u"Abdias"_s,
    u"Jonas"_s, u"Michée"_s, u"Nahum"_s, u"Habacuc"_s, u"Sophonie"_s, u"Aggée"_s, u"Zacharie"_s,
    u"Malachie"_s, u"Matthieu"_s, u"Marc"_s, u"Luc"_s, u"Jean"_s, u"Actes"_s, u"Romains"_s,
    u"1 Corinthiens"_s, u"2 Corinthiens"_s, u"Galates"_s, u"Ephésiens"_s, u"Philippiens"_s,
    u"Colossiens"_s, u"1 Thessalonicien"_s, u"2 Thessalonicien"_s, u"1 Timothée "_s,
    u"2 Timothée"_s, u"Tite"_s, u"Philémon"_s, u"Hébreux"_s, u"Jacques"_s, u"1 Pierre"_s,
    u"2 Pierre"_s, u"1 Jean"_s, u"2 Jean"_s, u"3 Jean"_s, u"Jude"_s, u"Apocalypse"_s};

const std::array<QString, BookCount + 1> BookNamesGerman = {
    QString(), u"1.Mose"_s, u"2.Mose"_s, u"3.Mose"_s, u"4.Mose"_s, u"5.Mose"_s, u"Josua"_s,
    u"Richter"_s, u"Rut"_s, u"1.Samuel"_s, u"2.Samuel"_s, u"1.Koenige"_s, u"2.Koenige"_s,
    u"1.Chronik"_s, u"2.Chronik"_s, u"Esra"_s, u"Nehemia"_s, u"Ester"_s, u"Hiob"_s, u"Psalm"_s,
    u"Sprueche"_s, u"Prediger"_s, u"Hoholied"_s, u"Jesaja"_s, u"Jeremia"_s, u"klagelieder"_s,
    u"Hesekiel"_s, u"Daniel"_s, u"Hosea"_s, u"Joel"_s, u"Amos"_s, u"Obadja"_s, u"Jona"_s,
    u"Micha"_s, u"Nahum"_s, u"Habakuk"_s, u"Zephanja"_s, u"Haggai"_s, u"Sacharja"_s,
    u"Maleachi"_s, u"Matthaeus"_s, u"Markus"_s, u"Lukas"_s, u"Johannes"_s, u"Apostelgeschichte"_s,
    u"Roemer"_s, u"1.Korinther"_s, u"2.Korinther"_s, u"Galater"_s, u"Epheser"_s, u"Philipper"_s,
    u"Kolosser"_s, u"1.Thessalonicher"_s, u"2.Thessalonicher"_s, u"1.Timotheus"_s,
    u"2.Timotheus"_s, u"Titus"_s, u"Philemon"_s, u"Hebraeer"_s, u"Jakobus"_s, u"1.Petrus"_s,
    u"2.Petrus"_s, u"1.Johannes"_s, u"2.Johannes"_s, u"3.Johannes"_s, u"Judas"_s, u"Offenbarung"_s};

const std::array<QString, BookCount + 1> BookNamesSpanish = {
    QString(), u"Génesis"_s, u"Exodo"_s, u"Levítico"_s, u"Números"_s, u"Deuteronomio"_s,
    u"Josué"_s, u"Jueces"_s, u"Rut"_s, u"1 Samuel"_s, u"2 Samuel"_s, u"1 Reyes"_s, u"2 Reyes"_s,
    u"1 Crónicas"_s, u"2 Crónicas"_s, u"Esdras"_s, u"Nehemías"_s, u"Ester"_s, u"Job"_s,
    u"Salmos"_s, u"Proverbios"_s, u"Eclesiastés"_s, u"Cantares"_s, u"Isaías"_s, u"Jeremías"_s,
    u"Lamentaciones"_s, u"Ezequiel"_s, u"Daniel"_s, u"Oseas"_s, u"Joel"_s, u"Amós"_s, u"Abdías"_s,
    u"Jonás"_s, u"Miqueas"_s, u"Nahúm"_s, u"Habacuc"_s, u"Sofonías"_s, u"Hageo"_s, u"Zacarías"_s,
    u"Malaquías"_s, u"Mateo"_s, u"Marcos"_s, u"Lucas"_s, u"Juan"_s, u"Hechos"_s, u"Romanos"_s,
    u"1 Corintios"_s, u"2 Corintios"_s, u"Gálatas"_s, u"Efesios"_s, u"Filipenses"_s,
    u"Colosenses"_s, u"1 Tesalonicenses"_s, u"2 Tesalonicenses"_s, u"1 Timoteo"_s, u"2 Timoteo"_s,
    u"Tito"_s, u"Filemón"_s, u"Hebreos"_s, u"Santiago"_s, u"1 Pedro"_s, u"2 Pedro"_s, u"1 Juan"_s,
    u"2 Juan"_s, u"3 Juan"_s, u"Judas"_s, u"Apocalipsis"_s};

const std::array<QString, BookCount + 1> BookNamesDutch = {
    QString(), u"Genesis"_s, u"Exodus"_s, u"Leviticus"_s, u"Numeri"_s, u"Deuteronomium"_s,
    u"Jozua"_s, u"Richteren"_s, u"Ruth"_s, u"1 Samuel"_s, u"11 Samuel"_s, u"1 Koningen"_s,
    u"11 Koningen"_s, u"1 Kronieken"_s, u"11 Kronieken"_s, u"Ezra"_s, u"Nehemia"_s, u"Esther"_s,
    u"Job"_s, u"Psalmen"_s, u"Spreuken"_s, u"Prediker"_s, u"Hooglied"_s, u"Jesaja"_s,
    u"Jeremia"_s, u"Klaagliederen"_s, u"Ezechiel"_s, u"Daniel"_s, u"Hosea"_s, u"Joel"_s,
    u"Amos"_s, u"Obadja"_s, u"Jona"_s, u"Micha"_s, u"Nahum"_s, u"Habakuk"_s, u"Zefanja"_s,
    u"Haggai"_s, u"Zacharia"_s, u"Maleachi"_s, u"Mattheus"_s, u"Marcus"_s, u"Lucas"_s,
    u"Johannes"_s, u"Apostelen"_s, u"Romeinen"_s, u"1 Corinthiers"_s, u"2 Corinthiers"_s,
    u"Galaten"_s, u"Efeziers"_s, u"Filippenzen"_s, u"Colossenzen"_s, u"1 Thessalonicenzen"_s,
    u"2 Thessalonicenzen"_s, u"1 Timotheus"_s, u"2 Timotheus"_s, u"Titus"_s, u"Filemon"_s,
    u"Hebreeen"_s, u"Jacobus"_s, u"1 Petrus"_s, u"2 Petrus"_s, u"1 Johannes"_s, u"2 Johannes"_s,
    u"3 Johannes"_s, u"Judas"_s, u"Johannes"_s};

// clang-format on

const std::array<int, BookCount + 1> ChaptersInBook = {
    0,  50, 40, 27, 36, 34, 24, 21, 4, 31, 24, 22, 25, 29, 36, 10, 13, 10, 42, 150, 31, 12, 8,
    66, 52, 5,  48, 12, 14, 3,  9,  1, 4,  7,  3,  3,  3,  2,  14, 4,  28, 16, 24,  21, 28, 16,
    16, 13, 6,  6,  4,  4,  5,  3,  6, 4,  3,  1,  13, 5,  5,  3,  5,  1,  1,  1,   22};

std::array<QString, BookCount> BookNames;

namespace {

const std::array<QString, BookCount + 1>& bookTable(int row) {
    switch (row) {
    case 8:
        return BookNamesSpanish;
    case 9:
        return BookNamesFrench;
    case 10:
        return BookNamesGerman;
    case 11:
    case 12:
        return BookNamesDutch;
    default:
        return BookNamesEnglish;
    }
}

} // namespace

int chapterCount(int book) {
    return book >= 1 && book <= BookCount ? ChaptersInBook[static_cast<size_t>(book)] : 0;
}

QString bookName(const QVariant& book) {
    const double number = Val(toText(book));
    return number >= 1 && number <= BookCount ? BookNames[static_cast<size_t>(number) - 1]
                                              : QString();
}

void SelectBookNames(int row) {
    const auto& table = bookTable(row);
    std::copy(table.begin() + 1, table.end(), BookNames.begin());
    if (StartingUp == Off)
        form<frmMain>().fillBookList();
}
