// What the installed sources must give, to the row.
#include "plugins/DataFiles.h"
#include "plugins/ToolRun.h"

#include "readers/SwordModule.h"
#include "text/Renderings.h"

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int NameField = 1;
constexpr int TextField = 2;

// Makes a work once for all tests of a suite.
template <const char* Name, const char* Table>
class InstalledWork : public testing::Test {
protected:
    static void SetUpTestSuite() {
        const QString work = QString::fromLatin1(Name);
        run = runTool(
            {u"make"_s, work, u"--from"_s, u"/usr/share/sword"_s, u"--to"_s, folder().path()});
        rows.clear();
        if (run.exitCode == 0)
            rows = rowsOf(folder().filePath(work + u".mdb"_s), QString::fromLatin1(Table));
    }

    void SetUp() override {
        if (run.errors.contains(u"is not installed"_s))
            GTEST_SKIP() << qPrintable(run.errors);
        ASSERT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    }

    static QTemporaryDir& folder() {
        static QTemporaryDir made;
        return made;
    }

    // A field of the row that a field names.
    static QString field(int wanted, int key, const QString& name) {
        for (const QVariantList& row : rows) {
            if (row[key] == name)
                return row[wanted].toString();
        }
        ADD_FAILURE() << qPrintable(name);
        return {};
    }

    static QString textOf(const QString& name) { return field(TextField, NameField, name); }

    // A ligature stands where its letters do.
    static std::pair<QString, QString> sortedBy(const QString& name) {
        const QString folded = name.toCaseFolded();
        return {QString(folded).replace(u'\u00E6', u"ae"_s), folded};
    }

    static void expectSortedHeadwords() {
        for (qsizetype row = 0; row < rows.size(); ++row) {
            EXPECT_EQ(rows[row][0], row + 1);
            if (row == 0)
                continue;
            const QString before = rows[row - 1][NameField].toString();
            EXPECT_LT(sortedBy(before), sortedBy(rows[row][NameField].toString()))
                << qPrintable(before);
        }
    }

    // No residue of mark-up, doubled blank, blank before a mark or empty text.
    static void expectCleanTexts(int from) {
        static const QRegularExpression residue(
            u"[{}\\\\<>\u2192\\x00-\\x09]|  | [,;)]|,,|^$|&\\w+;|(?<!\\r)\\n"_s);
        for (const QVariantList& row : rows) {
            if (row[NameField] == u"About this dictionary"_s) // a notice, kept as it is
                continue;
            for (qsizetype each = from; each < row.size(); ++each) {
                const QRegularExpressionMatch found = residue.match(row[each].toString());
                EXPECT_FALSE(found.hasMatch() && !row[each].toString().isEmpty())
                    << qPrintable(row[NameField].toString()) << " "
                    << qPrintable(row[each].toString().mid(found.capturedStart() - 20, 50));
            }
        }
    }

    static inline ToolRun run;
    static inline QList<QVariantList> rows;
};

// How the New Testament renders Greek words, one English word at a time.
struct TaggedWords {
    QHash<QString, int> occurrences;
    QHash<QString, QHash<int, int>> numbers; // of a word, each with its count

    template <class Accepted>
    QStringList commonest(qsizetype count, Accepted accepted) const {
        QStringList words;
        for (const auto& [word, each] : numbers.asKeyValueRange()) {
            if (accepted(word))
                words.append(word);
        }
        std::ranges::sort(words, [this](const QString& left, const QString& right) {
            return std::pair(-occurrences[left], left) < std::pair(-occurrences[right], right);
        });
        return words.first(count);
    }

    int rightEntry(const QString& word) const {
        std::pair<int, int> best; // count, number below zero: the lower one on a tie
        for (const auto& [number, count] : numbers[word].asKeyValueRange())
            best = std::max(best, std::pair(count, -number));
        return -best.second;
    }
};

TaggedWords readTaggedWords() {
    static const QRegularExpression tagged(u"<w lemma=\"([^\"]*)\"[^>]*>(.*?)</w>"_s);
    static const QRegularExpression greek(u"G0*(\\d+)"_s);
    static const QRegularExpression note(u"<note.*?</note>"_s);
    static const QRegularExpression tag(u"<[^>]*>"_s);
    TaggedWords words;
    const auto module = SwordModule::open(u"/usr/share/sword"_s, u"engKJV2006eb"_s);
    while (module->next()) {
        if (findBook(module->book())->number < 40)
            continue;
        const QString verse = module->entry().remove(note);
        for (const QString& word : wordsIn(QString(verse).remove(tag)))
            ++words.occurrences[word];
        for (const auto& each : tagged.globalMatch(verse)) {
            for (const auto& number : greek.globalMatch(each.captured(1))) {
                for (const QString& word : wordsIn(each.captured(2).remove(tag)))
                    ++words.numbers[word][number.captured(1).toInt()];
            }
        }
    }
    return words;
}

constexpr char CommentName[] = "comment";
constexpr char CommentTable[] = "tblComment";
constexpr char EastonName[] = "easton";
constexpr char EastonTable[] = "Easton";
constexpr char GreekName[] = "greek";
constexpr char GreekTable[] = "greek_lexicon";
constexpr char NamesName[] = "names";
constexpr char NamesTable[] = "tblnames";
constexpr char WordsName[] = "diction";
constexpr char WordsTable[] = "tblDictionary";

using InstalledComment = InstalledWork<CommentName, CommentTable>;
using InstalledEaston = InstalledWork<EastonName, EastonTable>;
using InstalledGreek = InstalledWork<GreekName, GreekTable>;
using InstalledNames = InstalledWork<NamesName, NamesTable>;
using InstalledWords = InstalledWork<WordsName, WordsTable>;

} // namespace

TEST_F(InstalledComment, holdsEveryChapterInCanonicalOrder) {
    ASSERT_EQ(rows.size(), 1189);
    qsizetype row = 0;
    for (const Book& book : books()) {
        for (int chapter = 1; chapter <= book.chapters; ++chapter, ++row) {
            EXPECT_EQ(rows[row][0], row + 1);
            EXPECT_EQ(rows[row][1], book.number);
            EXPECT_EQ(rows[row][2], chapter);
        }
    }
    expectCleanTexts(3);
}

TEST_F(InstalledComment, opensWithTheIntroductionOfTheBook) {
    EXPECT_TRUE(
        rows[0][3].toString().startsWith(u"Genesis\r\nGenesis is a name taken from the Greek"_s));
    const QString genesis = rows[0][3].toString();
    EXPECT_EQ(genesis.count(u"Genesis is a name taken from the Greek"_s), 1);
    EXPECT_TRUE(genesis.contains(u"\r\nThe creation of light. (3-5)\r\n"_s));
    EXPECT_TRUE(genesis.contains(u"\r\n\r\nVerses 1-2\r\nThe first verse of the Bible"_s));
    const QString jude = rows[1166][3].toString();
    EXPECT_TRUE(jude.startsWith(u"Jude\r\nThis epistle is addressed to all believers"_s));
}

TEST_F(InstalledEaston, holdsEachHeadwordOnceInOrder) {
    EXPECT_EQ(rows.size(), 5322 - 2 + 1); // two headwords come twice; the row about the work
    expectSortedHeadwords();
    expectCleanTexts(TextField);
    EXPECT_TRUE(textOf(u"About this work"_s).contains(u"Nave's Topical Bible"_s));
    EXPECT_TRUE(textOf(u"ABEL"_s).startsWith(u"1. Son of Adam. History of Ge 4:1-15, 25\r\n- "_s));
    EXPECT_TRUE(textOf(u"SIN"_s).contains(u"\r\n\r\nMISCELLANY OF MINOR SUB-TOPICS\r\n"_s));
}

TEST_F(InstalledGreek, holdsEveryEntryBehindTheRowAboutIt) {
    ASSERT_EQ(rows.size(), 5523 + 1);
    EXPECT_EQ(rows[0][0], u"About this lexicon"_s);
    QSet<int> numbers;
    int complete = 0;
    for (const QVariantList& row : rows.sliced(1)) {
        numbers.insert(row[0].toString().toInt());
        complete += std::ranges::none_of(
            row, [](const QVariant& each) { return each.toString().isEmpty(); });
    }
    EXPECT_EQ(numbers.size(), 5523);
    EXPECT_EQ(complete, 5512);
    expectCleanTexts(0);
}

TEST_F(InstalledGreek, takesTheFieldsApart) {
    constexpr int Number = 0;
    EXPECT_EQ(field(1, Number, u"26"_s), u"ag\u00E1p\u0113"_s);
    EXPECT_EQ(field(4, Number, u"26"_s), u"from G25"_s);
    EXPECT_EQ(field(5, Number, u"26"_s), u"(feast of) charity(-ably), dear, love."_s);
    EXPECT_EQ(
        field(6, Number, u"26"_s),
        u"1) love, i.e. affection or benevolence 2) specially (plural) a love-feast"_s);
    EXPECT_TRUE(field(6, Number, u"846"_s).contains(u"(alone or in the compound [G1438])"_s));
}

// Of the 800 commonest words of the New Testament of four letters and more that any usage holds,
// those whose look-up finds the right entry: the one that is rendered by the word most often. A
// look-up takes the first row behind row 1 whose usage holds the word.
TEST_F(InstalledGreek, theOrderFindsTheRightEntryOf348WordsAndTheNumbersOf147) {
    QList<std::pair<int, QString>> entries;
    for (const QVariantList& row : rows.sliced(1))
        entries.append({row[0].toString().toInt(), row[5].toString().toLower()});
    const TaggedWords tagged = readTaggedWords();
    const QStringList words = tagged.commonest(800, [&](const QString& word) {
        return word.size() >= 4 && std::ranges::any_of(entries, [&](const auto& entry) {
                   return entry.second.contains(word);
               });
    });
    const auto countRight = [&] {
        return std::ranges::count_if(words, [&](const QString& word) {
            const auto found = std::ranges::find_if(
                entries, [&](const auto& entry) { return entry.second.contains(word); });
            return found->first == tagged.rightEntry(word);
        });
    };
    EXPECT_GE(countRight(), 348);
    std::ranges::sort(entries);
    EXPECT_NEAR(double(countRight()), 147, 5);
}

TEST_F(InstalledNames, holdsTheNamesWithTheirMeanings) {
    EXPECT_GE(rows.size(), 2760);
    expectSortedHeadwords();
    expectCleanTexts(TextField);
    EXPECT_EQ(
        textOf(u"Abiel"_s),
        u"father (that is possessor) of God. Abiel, the name of two Israelites. [H22]"_s);
    EXPECT_TRUE(
        textOf(u"David"_s).startsWith(u"loving. David, the youngest son of Jesse. [H1732]"_s));
    EXPECT_TRUE(textOf(u"Caesar"_s).contains(u"[G2541]"_s));
    for (const QString& name : {u"Peter"_s, u"Judas"_s, u"Delilah"_s, u"Aeneas"_s, u"Levites"_s})
        EXPECT_FALSE(textOf(name).isEmpty()) << qPrintable(name);
}

TEST_F(InstalledWords, holdsTheWordsOfTheBibleAndTheirForms) {
    EXPECT_NEAR(double(rows.size()), 9000, 500);
    expectSortedHeadwords();
    expectCleanTexts(TextField);
    EXPECT_TRUE(
        textOf(u"moveth"_s).startsWith(u"verb, a form of \"move\":\r\n1. change location"_s));
    EXPECT_TRUE(textOf(u"begat"_s).contains(u"make children"_s));
    EXPECT_EQ(field(3, NameField, u"begat"_s), u"verb"_s);
    EXPECT_TRUE(textOf(u"god"_s).contains(u"the supernatural being"_s));
    EXPECT_TRUE(textOf(u"About this dictionary"_s)
                    .contains(u"WordNet 3.0 Copyright 2006 by Princeton University."_s));
}
