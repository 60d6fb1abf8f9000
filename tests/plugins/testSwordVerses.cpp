#include "plugins/SmallModule.h"

#include "basic/Error.h"
#include "readers/SwordVerses.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

class SwordVersesTest : public testing::Test {
protected:
    std::unique_ptr<SwordModule> open() {
        module.writeTo(folder.path());
        return SwordModule::open(folder.path(), module.name);
    }

    // All that the module yields, as "Genesis 1:1 text".
    QStringList readAll(SwordVerses& verses) {
        QStringList all;
        while (const std::optional<Verse> verse = verses.next())
            all.append(verseName(verse->address) + u' ' + verse->body);
        return all;
    }

    QTemporaryDir folder;
    SmallModule module;
};

} // namespace

TEST_F(SwordVersesTest, yieldsTheVersesThatTheModuleHolds) {
    module.entries = {{"Gen 1:1", "In the <w>beginning</w>"}, {"Rev 22:21", "Amen. "}};
    SwordVerses verses(open(), u"here"_s, {});
    EXPECT_EQ(
        readAll(verses),
        QStringList({u"Genesis 1:1 In the beginning"_s, u"Revelation 22:21 Amen."_s}));
    EXPECT_DOUBLE_EQ(verses.fraction(), 1);
}

TEST_F(SwordVersesTest, namesTheBooksThatEndEarly) {
    module.entries = {
        {"Gen 1:1", "In"}, {"Gen 49:1", "And"}, {"Jude 1:1", "Jude"}, {"Rev 22:21", "Amen"}};
    SwordVerses verses(open(), u"here"_s, {});
    readAll(verses);
    EXPECT_EQ(
        verses.remarks(),
        QStringList(u"books that end before their last chapter: Genesis (49 of 50)"_s));
}

TEST_F(SwordVersesTest, aWholeTextHasNoRemark) {
    module.entries = {{"Jude 1:25", "To the only wise God"}, {"Rev 22:21", "Amen"}};
    SwordVerses verses(open(), u"here"_s, {});
    EXPECT_EQ(readAll(verses).size(), 2);
    EXPECT_TRUE(verses.remarks().isEmpty());
}

TEST_F(SwordVersesTest, aFileThatIsCutOffIsRefusedWhateverItIsReadFor) {
    module.entries = {{"Gen 1:1", "In"}};
    ASSERT_NE(open(), nullptr);
    QFile index(folder.filePath(u"modules/%1/nt.vss"_s.arg(module.name)));
    ASSERT_TRUE(index.resize(index.size() - 6));
    EXPECT_THROW(SwordModule::open(folder.path(), module.name), Error);
}

TEST_F(SwordVersesTest, skipsAVerseWithoutWords) {
    module.entries = {{"Gen 1:1", "In"}, {"Gen 1:2", " <chapter eID=\"x\"/> "}};
    SwordVerses verses(open(), u"here"_s, {});
    EXPECT_EQ(readAll(verses), QStringList(u"Genesis 1:1 In"_s));
}

TEST_F(SwordVersesTest, writesTheRedLetterPrefix) {
    module.entries = {{"John 1:38", "saith, <q who=\"Jesus\">What seek ye?</q>"}};
    SwordVerses verses(open(), u"here"_s, {});
    EXPECT_EQ(readAll(verses), QStringList(u"John 1:38 \u001E007:013saith, What seek ye?"_s));
}

TEST_F(SwordVersesTest, leavesTheApocryphaOutAndSaysSo) {
    module.verseScheme = "KJVA";
    module.entries = {
        {"Gen 50:1", "In"}, {"Tob 1:1", "The book"}, {"Tob 1:2", "who"}, {"Matt 28:1", "The"}};
    SwordVerses verses(open(), u"here"_s, {});
    EXPECT_EQ(readAll(verses), QStringList({u"Genesis 50:1 In"_s, u"Matthew 28:1 The"_s}));
    EXPECT_EQ(
        verses.remarks(), QStringList(u"left out, since they are none of the 66 books: Tob"_s));
}

TEST_F(SwordVersesTest, countsDamagedVerses) {
    module.entries = {{"Gen 50:1", "In</w>"}, {"Gen 50:2", "<w>And"}, {"Gen 50:3", "God"}};
    SwordVerses verses(open(), u"here"_s, {});
    EXPECT_EQ(readAll(verses).size(), 3);
    EXPECT_EQ(
        verses.remarks(),
        QStringList(
            u"2 verse(s) with damaged mark-up taken as plain text, the first one Genesis 50:1"_s));
}

TEST_F(SwordVersesTest, readsAModuleInLatin1) {
    module.encoding = "Latin-1";
    module.entries = {{"Gen 1:1", "Se\xF1or"}};
    SwordVerses verses(open(), u"here"_s, {});
    EXPECT_EQ(readAll(verses), QStringList(u"Genesis 1:1 Señor"_s));
}

TEST_F(SwordVersesTest, tellsWhereTheTextIsFrom) {
    SwordVerses verses(open(), u"SWORD module x 7.1"_s, {});
    EXPECT_EQ(verses.info().title, u"A small text"_s);
    EXPECT_EQ(verses.info().source, u"SWORD module x 7.1"_s);
    EXPECT_EQ(verses.info().licence, u"Public Domain"_s);
}

TEST_F(SwordVersesTest, refusesAnotherMarkup) {
    module.markup = "ThML";
    auto opened = open();
    EXPECT_THROW(SwordVerses(std::move(opened), u"here"_s, {}), Error);
}

TEST_F(SwordVersesTest, opensOnlyTheModuleThatIsAskedFor) {
    module.writeTo(folder.path());
    EXPECT_EQ(SwordModule::open(folder.path(), u"other"_s), nullptr);
    EXPECT_EQ(SwordModule::open(folder.path() + u"/none"_s, module.name), nullptr);
    EXPECT_NE(SwordModule::open(folder.path(), module.name), nullptr);
}
