// Books, chapters and verses that no catalogue has.
#include "plugins/import/ImportFixture.h"

using namespace Qt::StringLiterals;

namespace {

class NumbersTest : public FormatTest {
protected:
    bool importVerses(const QList<SampleVerse>& verses) { return importSample(GetParam(), verses); }

    void expectRemark(const QString& remark) {
        EXPECT_TRUE(out.contains(u"DARBY.mdb: %1\n"_s.arg(remark))) << qPrintable(out);
    }

    // Formats with one verse a line refuse what the others leave out, and name the line.
    void expectRefusedAtLine2(const QString& text) {
        const QString line = QLatin1String(GetParam().name) == "commas"_L1 ? u":3: "_s : u":2: "_s;
        EXPECT_TRUE(errors.contains(line + text)) << qPrintable(errors);
        expectNothingMade();
    }

    bool hasLines() const { return !GetParam().hasMarks; }

    const SampleVerse first = plainVerse(u"Gen"_s, u"1"_s, u"1"_s, u"In"_s);
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Each, NumbersTest, testing::ValuesIn(sampleFormats()), formatName);

TEST_P(NumbersTest, theApocryphaAreLeftOutAndNamed) {
    ASSERT_TRUE(importVerses(
        {first, plainVerse(u"Tob"_s, u"1"_s, u"1"_s, u"The"_s),
         plainVerse(u"Matt"_s, u"1"_s, u"1"_s, u"Book"_s)}))
        << qPrintable(errors);
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 In"_s, u"Matthew 1:1 Book"_s}));
    EXPECT_TRUE(out.contains(
        u"left out, since they are none of the 66 books: tob\n"_s, Qt::CaseInsensitive))
        << qPrintable(out);
}

TEST_P(NumbersTest, anUnknownBookIsNeverGuessed) {
    const bool made = importVerses({first, plainVerse(u"Genesys"_s, u"1"_s, u"2"_s, u"And"_s)});
    EXPECT_EQ(made, !hasLines());
    if (hasLines())
        return expectRefusedAtLine2(u"\"Genesys\" is not a book that this program knows"_s);
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 In"_s));
    EXPECT_TRUE(out.contains(u"66 books: genesys\n"_s, Qt::CaseInsensitive)) << qPrintable(out);
}

TEST_P(NumbersTest, ofADoubledVerseTheFirstCounts) {
    ASSERT_TRUE(importVerses({first, plainVerse(u"Gen"_s, u"1"_s, u"1"_s, u"Second"_s)}));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 In"_s));
    expectRemark(u"verses that the source repeats, taken once: Genesis 1:1"_s);
}

TEST_P(NumbersTest, verse0IsLeftOutAndNamed) {
    ASSERT_TRUE(importVerses({plainVerse(u"Gen"_s, u"1"_s, u"0"_s, u"Intro"_s), first}));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 In"_s));
    expectRemark(u"left out, verse 0 of: Genesis 1"_s);
}

TEST_P(NumbersTest, verse0OfAPsalmIsItsTitle) {
    ASSERT_TRUE(importVerses(
        {plainVerse(u"Ps"_s, u"3"_s, u"0"_s, u"A Psalm."_s),
         plainVerse(u"Ps"_s, u"3"_s, u"1"_s, u"LORD"_s)}));
    EXPECT_EQ(stored(), QStringList(u"Psalms 3:1 A Psalm. LORD"_s));
    expectRemark(u"verse 0 taken as the psalm's title: Psalms 3"_s);
}

TEST_P(NumbersTest, aChapterBehindTheCataloguesIsKeptAndNamed) {
    ASSERT_TRUE(importVerses({first, plainVerse(u"Gen"_s, u"999"_s, u"1"_s, u"Far"_s)}));
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 In"_s, u"Genesis 999:1 Far"_s}));
    expectRemark(u"chapters behind the catalogue's last one, as far as: Genesis 999"_s);
}

TEST_P(NumbersTest, numbersThatNoIntHoldsAreNamed) {
    const QString huge = u"99999999999999999999"_s;
    const bool made = importVerses({first, plainVerse(u"Gen"_s, u"1"_s, huge, u"And"_s)});
    EXPECT_EQ(made, !hasLines());
    if (hasLines())
        return expectRefusedAtLine2(u"\"%1\" is not the number of a verse"_s.arg(huge));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 In"_s));
    expectRemark(u"left out, since their numbers cannot be read: Genesis 1:"_s + huge);
}

TEST_P(NumbersTest, chaptersThatNoIntHoldsAreNamed) {
    const QString huge = u"99999999999999999999"_s;
    const bool made = importVerses({first, plainVerse(u"Gen"_s, huge, u"1"_s, u"And"_s)});
    EXPECT_EQ(made, !hasLines());
    if (hasLines())
        return expectRefusedAtLine2(u"\"%1\" is not the number of a chapter"_s.arg(huge));
    EXPECT_EQ(stored(), QStringList(u"Genesis 1:1 In"_s));
}

TEST_P(NumbersTest, versesThatStandTogetherAreKeptAtTheFirst) {
    ASSERT_TRUE(importVerses({first, plainVerse(u"Gen"_s, u"1"_s, u"3-4"_s, u"Light"_s)}));
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 In"_s, u"Genesis 1:3 Light"_s}));
    expectRemark(u"verses that stand together, kept at the first one: Genesis 1:3-4"_s);
}

TEST_P(NumbersTest, theEndOfABookThatIsMissingIsNamed) {
    ASSERT_TRUE(importVerses({first}));
    expectRemark(u"books that end before their last chapter: Genesis (1 of 50)"_s);
}

TEST_P(NumbersTest, booksMayStandInAnyOrder) {
    ASSERT_TRUE(importVerses({plainVerse(u"Rev"_s, u"22"_s, u"21"_s, u"Amen"_s), first}));
    EXPECT_EQ(stored(), QStringList({u"Genesis 1:1 In"_s, u"Revelation 22:21 Amen"_s}));
}

TEST_P(NumbersTest, aVerseOfMegabytesIsRefused) {
    const QString text = u"word "_s.repeated(500'000);
    EXPECT_FALSE(importVerses({first, plainVerse(u"Gen"_s, u"1"_s, u"2"_s, text)}));
    EXPECT_TRUE(errors.contains(u"is longer than 100000 characters"_s)) << qPrintable(errors);
    expectNothingMade();
}
