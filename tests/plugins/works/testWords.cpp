#include "plugins/SmallModule.h"
#include "plugins/works/SmallWordNet.h"
#include "plugins/works/WorkFixture.h"

using namespace Qt::StringLiterals;

namespace {

class Words : public WorkFixture {
protected:
    void makeOf(const QByteArray& verse) {
        kingJames.entries = {{"Gen 1:1", verse}};
        kingJames.writeTo(modules.path());
        wordNet.writeTo(dictionaries.path());
        for (const QVariantList& row : made(u"diction"_s, u"diction.mdb"_s, u"tblDictionary"_s)) {
            headwords.append(row[1].toString());
            articles.insert(row[1].toString(), {row[2].toString(), row[3].toString()});
        }
    }

    QString text(const QString& word) const { return articles.value(word).first; }
    QString label(const QString& word) const { return articles.value(word).second; }

    SmallModule kingJames;
    SmallWordNet wordNet;
    QStringList headwords;
    QHash<QString, std::pair<QString, QString>> articles;
};

} // namespace

TEST_F(Words, holdsTheWordsOfTheBibleAndNoOthers) {
    wordNet.senses = {{"noun", "zeal", "ardour"}, {"noun", "zebra", "an animal"}};
    makeOf("His zeal");
    EXPECT_EQ(text(u"zeal"_s), u"ardour"_s);
    EXPECT_EQ(label(u"zeal"_s), u"noun"_s);
    EXPECT_FALSE(headwords.contains(u"zebra"_s));
    EXPECT_FALSE(headwords.contains(u"his"_s));
}

TEST_F(Words, sensesAndPartsOfSpeechShareARow) {
    wordNet.senses = {
        {"noun", "zest", "taste"}, {"noun", "zest", "peel; \"a zest\" "}, {"verb", "zest", "add"}};
    makeOf("a zest");
    EXPECT_EQ(text(u"zest"_s), u"noun:\r\n1. taste\r\n2. peel; \"a zest\"\r\n\r\nverb:\r\nadd"_s);
    EXPECT_EQ(label(u"zest"_s), u"noun, verb"_s);
    EXPECT_EQ(headwords.count(u"zest"_s), 1);
}

TEST_F(Words, inflectedFormsHaveRowsOfTheirOwn) {
    wordNet.senses = {{"verb", "zap", "hit"}, {"verb", "zoom", "rise"}};
    wordNet.irregular = {{"zat", "zap"}};
    makeOf("he zoometh, thou zoomest; they zat");
    for (const QString& form : {u"zoometh"_s, u"zoomest"_s})
        EXPECT_EQ(text(form), u"verb, a form of \"zoom\":\r\nrise"_s) << qPrintable(form);
    EXPECT_EQ(text(u"zat"_s), u"verb, a form of \"zap\":\r\nhit"_s);
}

TEST_F(Words, aWordOfItsOwnIsNoArchaicForm) {
    wordNet.senses = {{"noun", "teeth", "a set"}, {"verb", "tee", "put on a peg"}};
    makeOf("teeth");
    EXPECT_EQ(text(u"teeth"_s), u"a set"_s);
}

TEST_F(Words, theProjectsAdditionsComeFirst) {
    wordNet.senses = {{"noun", "sackcloth", "a sack"}};
    makeOf("in sackcloth");
    EXPECT_TRUE(text(u"sackcloth"_s).startsWith(u"Coarse cloth"_s));
    EXPECT_TRUE(text(u"sackcloth"_s).endsWith(u"\r\n\r\na sack"_s));
    EXPECT_EQ(label(u"hath"_s), u"verb"_s);
}

TEST_F(Words, aNameHasOnlySensesWithACapitalAndOfItsTime) {
    wordNet.senses = {
        {"noun", "zeb", "a dye"},
        {"noun", "Zeb", "a singer", "18"},
        {"noun", "Zeb", "a king of Israel", "18"},
        {"noun", "Zeb", "a town in Ohio", "15"}};
    makeOf("And king Zeb");
    EXPECT_EQ(text(u"Zeb"_s), u"a king of Israel"_s);
}

TEST_F(Words, anotherWordHasSensesWithoutACapital) {
    wordNet.senses = {{"noun", "zeb", "a dye"}, {"noun", "Zeb", "a king of Israel", "18"}};
    makeOf("the zeb");
    EXPECT_EQ(text(u"zeb"_s), u"a dye"_s);
}

TEST_F(Words, rowsAreSortedByHeadwordWithoutCase) {
    wordNet.senses = {{"noun", "able", "x"}, {"noun", "Zeb", "a place"}, {"noun", "zest", "y"}};
    makeOf("the able Zeb, the zest");
    QStringList sorted = headwords;
    sorted.sort(Qt::CaseInsensitive);
    EXPECT_EQ(headwords, sorted);
    EXPECT_LT(headwords.indexOf(u"Zeb"_s), headwords.indexOf(u"zest"_s));
}

TEST_F(Words, theNoticeOfTheDictionaryIsKept) {
    makeOf("In");
    const QString notice =
        u"WordNet licence\r\n\r\nCopyright by the makers of the dictionary.\r\n\r\nKeep this."_s;
    EXPECT_EQ(text(u"About this dictionary"_s), notice);
    EXPECT_EQ(label(u"About this dictionary"_s), u"notice"_s);
    EXPECT_EQ(rowsOf(folder.filePath(u"diction.mdb"_s), u"tblInfo"_s).at(0).at(2), notice);
}

TEST_F(Words, aDictionaryThatIsNotThereNamesItsPackage) {
    kingJames.entries = {{"Gen 1:1", "In"}};
    kingJames.writeTo(modules.path());
    EXPECT_TRUE(
        make(u"diction"_s)
            .errors.contains(
                u"The dictionary WordNet is not installed. Install the package wordnet-base."_s));
}

TEST_F(Words, aDictionaryThatIsCutOffIsAnError) {
    wordNet.senses = {{"noun", "able", "x"}, {"noun", "zest", "y"}};
    kingJames.entries = {{"Gen 1:1", "the zest"}};
    kingJames.writeTo(modules.path());
    wordNet.writeTo(dictionaries.path());
    cut(dictionaries.filePath(u"data.noun"_s), 120);
    const ToolRun run = make(u"diction"_s);
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_TRUE(
        run.errors.contains(u"data.noun is damaged. Install the package wordnet-base again."_s))
        << qPrintable(run.errors);
    EXPECT_TRUE(filesIn(folder.path()).isEmpty());
}
