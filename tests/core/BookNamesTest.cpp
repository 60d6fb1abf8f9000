#include "core/BookNames.h"

#include "basic/Error.h"
#include "core/GlobalCode.h"
#include "reader/frmMain.h"
#include "support/ProgramFixture.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

class BookNamesTest : public ProgramFixture {
protected:
    // The names in use after a row was chosen at start, when no list is filled.
    static QStringList namesOfRow(int row) {
        StartingUp = On;
        SelectBookNames(row);
        StartingUp = Off;
        return {BookNames.begin(), BookNames.end()};
    }

    static QStringList names(QStringView joined) { return joined.toString().split(u'|'); }
};

constexpr QStringView english =
    u"Genesis|Exodus|Leviticus|Numbers|Deuteronomy|Joshua|Judges|Ruth|Samuel I|Samuel II|K"
    u"ings I|Kings II|Chronicles I|Chronicles II|Ezra|Nehemiah|Esther|Job|Psalms|Proverbs|"
    u"Ecclesiastes|Song of Solomon|Isaiah|Jeremiah|Lamentations|Ezekiel|Daniel|Hosea|Joel|"
    u"Amos|Obadiah|Jonah|Micah|Nahum|Habakkuk|Zephaniah|Haggai|Zechariah|Malachi|Matthew|M"
    u"ark|Luke|John|Acts|Romans|Corinthians I|Corinthians II|Galatians|Ephesians|Philippia"
    u"ns|Colossians|Thessalonians I|Thessalonians II|Timothy I|Timothy II|Titus|Philemon|H"
    u"ebrews|James|Peter I|Peter II|John I|John II|John III|Jude|Revelation";

constexpr QStringView french =
    u"Genèse|Exode|Lévitique|Nombres|Deutéronome|Josué|Juges|Ruth|1 Samuel|2 Samuel|1 Rois"
    u"|2 Rois|1 Chroniques|2 Chroniques|Esdras|Néhémie|Esther|Job|Psaumes|Proverbes|Ecclés"
    u"iaste|Cantique|Esaïe|Jérémie|Lamentations|ezéchiel|Daniel|Osée|Joël|Amos|Abdias|Jona"
    u"s|Michée|Nahum|Habacuc|Sophonie|Aggée|Zacharie|Malachie|Matthieu|Marc|Luc|Jean|Actes"
    u"|Romains|1 Corinthiens|2 Corinthiens|Galates|Ephésiens|Philippiens|Colossiens|1 Thes"
    u"salonicien|2 Thessalonicien|1 Timothée |2 Timothée|Tite|Philémon|Hébreux|Jacques|1 P"
    u"ierre|2 Pierre|1 Jean|2 Jean|3 Jean|Jude|Apocalypse";

constexpr QStringView german =
    u"1.Mose|2.Mose|3.Mose|4.Mose|5.Mose|Josua|Richter|Rut|1.Samuel|2.Samuel|1.Koenige|2.K"
    u"oenige|1.Chronik|2.Chronik|Esra|Nehemia|Ester|Hiob|Psalm|Sprueche|Prediger|Hoholied|"
    u"Jesaja|Jeremia|klagelieder|Hesekiel|Daniel|Hosea|Joel|Amos|Obadja|Jona|Micha|Nahum|H"
    u"abakuk|Zephanja|Haggai|Sacharja|Maleachi|Matthaeus|Markus|Lukas|Johannes|Apostelgesc"
    u"hichte|Roemer|1.Korinther|2.Korinther|Galater|Epheser|Philipper|Kolosser|1.Thessalon"
    u"icher|2.Thessalonicher|1.Timotheus|2.Timotheus|Titus|Philemon|Hebraeer|Jakobus|1.Pet"
    u"rus|2.Petrus|1.Johannes|2.Johannes|3.Johannes|Judas|Offenbarung";

constexpr QStringView spanish =
    u"Génesis|Exodo|Levítico|Números|Deuteronomio|Josué|Jueces|Rut|1 Samuel|2 Samuel|1 Rey"
    u"es|2 Reyes|1 Crónicas|2 Crónicas|Esdras|Nehemías|Ester|Job|Salmos|Proverbios|Eclesia"
    u"stés|Cantares|Isaías|Jeremías|Lamentaciones|Ezequiel|Daniel|Oseas|Joel|Amós|Abdías|J"
    u"onás|Miqueas|Nahúm|Habacuc|Sofonías|Hageo|Zacarías|Malaquías|Mateo|Marcos|Lucas|Juan"
    u"|Hechos|Romanos|1 Corintios|2 Corintios|Gálatas|Efesios|Filipenses|Colosenses|1 Tesa"
    u"lonicenses|2 Tesalonicenses|1 Timoteo|2 Timoteo|Tito|Filemón|Hebreos|Santiago|1 Pedr"
    u"o|2 Pedro|1 Juan|2 Juan|3 Juan|Judas|Apocalipsis";

constexpr QStringView dutch =
    u"Genesis|Exodus|Leviticus|Numeri|Deuteronomium|Jozua|Richteren|Ruth|1 Samuel|11 Samue"
    u"l|1 Koningen|11 Koningen|1 Kronieken|11 Kronieken|Ezra|Nehemia|Esther|Job|Psalmen|Sp"
    u"reuken|Prediker|Hooglied|Jesaja|Jeremia|Klaagliederen|Ezechiel|Daniel|Hosea|Joel|Amo"
    u"s|Obadja|Jona|Micha|Nahum|Habakuk|Zefanja|Haggai|Zacharia|Maleachi|Mattheus|Marcus|L"
    u"ucas|Johannes|Apostelen|Romeinen|1 Corinthiers|2 Corinthiers|Galaten|Efeziers|Filipp"
    u"enzen|Colossenzen|1 Thessalonicenzen|2 Thessalonicenzen|1 Timotheus|2 Timotheus|Titu"
    u"s|Filemon|Hebreeen|Jacobus|1 Petrus|2 Petrus|1 Johannes|2 Johannes|3 Johannes|Judas|"
    u"Johannes";

} // namespace

TEST_F(BookNamesTest, areLetterForLetterInEachLanguage) {
    for (const int row : {0, 1, 2, 3, 4, 5, 6, 7, 13, 14, 15, -1, 99})
        EXPECT_EQ(namesOfRow(row), names(english)) << row;
    EXPECT_EQ(namesOfRow(8), names(spanish));
    EXPECT_EQ(namesOfRow(9), names(french));
    EXPECT_EQ(namesOfRow(10), names(german));
    EXPECT_EQ(namesOfRow(11), names(dutch));
    EXPECT_EQ(namesOfRow(12), names(dutch));
}

TEST_F(BookNamesTest, tablesCountFromBookOne) {
    EXPECT_EQ(BookNamesEnglish[1], u"Genesis"_s);
    EXPECT_EQ(BookNamesFrench[26], u"ezéchiel"_s);
    EXPECT_EQ(BookNamesGerman[22], u"Hoholied"_s);
    EXPECT_EQ(BookNamesSpanish[2], u"Exodo"_s);
    EXPECT_EQ(BookNamesDutch[66], u"Johannes"_s);
    EXPECT_TRUE(BookNamesEnglish[0].isEmpty());
}

TEST_F(BookNamesTest, chaptersAreAThousandOneHundredAndEightyNine) {
    const std::array<int, 67> chapters = {
        0,  50, 40, 27, 36, 34, 24, 21, 4, 31, 24, 22, 25, 29, 36, 10, 13, 10, 42, 150, 31, 12, 8,
        66, 52, 5,  48, 12, 14, 3,  9,  1, 4,  7,  3,  3,  3,  2,  14, 4,  28, 16, 24,  21, 28, 16,
        16, 13, 6,  6,  4,  4,  5,  3,  6, 4,  3,  1,  13, 5,  5,  3,  5,  1,  1,  1,   22};
    EXPECT_EQ(ChaptersInBook, chapters);
    EXPECT_EQ(std::accumulate(ChaptersInBook.begin(), ChaptersInBook.end(), 0), 1189);
    for (int book = 1; book <= BookCount; ++book)
        EXPECT_EQ(chapterCount(book), chapters[static_cast<size_t>(book)]) << book;
}

TEST_F(BookNamesTest, aBookIsNamedByItsNumberOrItsTextForm) {
    namesOfRow(0);
    EXPECT_EQ(bookName(12), u"Kings II"_s);
    EXPECT_EQ(bookName(u"12"_s), u"Kings II"_s);
    for (const QVariant& book :
         {QVariant(0), QVariant(67), QVariant(99), QVariant(-1), QVariant(u"x"_s)})
        EXPECT_EQ(bookName(book), QString());
    EXPECT_THROW(bookName({}), Error);
}

TEST_F(BookNamesTest, afterTheStartAChoiceFillsTheListOfBooks) {
    startProgram();
    SelectBookNames(9);
    frmMain& window = form<frmMain>();
    EXPECT_EQ(window.cboBook.ListCount(), 66);
    EXPECT_EQ(window.cboBook.List(0), u"Genèse"_s);
    EXPECT_EQ(window.cboBook.ListIndex(), 0);
}
