#include "plugins/SmallModule.h"
#include "plugins/works/SmallDictionary.h"
#include "plugins/works/WorkFixture.h"

#include "text/GlossList.h"
#include "text/Renderings.h"
#include "text/StrongsGreek.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray entryOf(const QByteArray& word, const QByteArray& usage) {
    return "<entryFree><orth>G</orth> <orth rend=\"bold\" type=\"trans\">" + word
           + "</orth> <pron>p</pron><lb/> <def><orig>from <ref>G1</ref>;</orig><lb/> sense of "
           + word + ":--" + usage + ". </def></entryFree>";
}

class Lexicon : public WorkFixture {
protected:
    Lexicon() { greek.name = u"StrongsGreek"_s; }

    // Each field of the table, row by row.
    QList<QVariantList> rows() {
        greek.writeTo(modules.path());
        kingJames.writeTo(modules.path());
        return made(u"greek"_s, u"greek.mdb"_s, u"greek_lexicon"_s);
    }

    QStringList numbers() {
        QStringList numbers;
        for (const QVariantList& row : rows())
            numbers.append(row[0].toString());
        return numbers;
    }

    SmallDictionary greek;
    SmallModule kingJames;
};

} // namespace

TEST_F(Lexicon, theFirstRowTellsOfTheLexiconAndHasNoUsageToFind) {
    greek.entries = {{"00026", entryOf("agape", "love")}};
    const QList<QVariantList> all = rows();
    ASSERT_EQ(all.size(), 2);
    EXPECT_EQ(all[0][0], u"About this lexicon"_s);
    EXPECT_EQ(all[0][4], u"SWORD module StrongsGreek 3.1. Public Domain."_s);
    EXPECT_EQ(
        all[1], QVariantList(
                    {u"26"_s, u"agape"_s, u"p"_s, u"G"_s, u"from G1"_s, u"love."_s,
                     u"1) sense of agape"_s}));
}

TEST_F(Lexicon, whatTheNewTestamentRendersSoMoreOftenComesFirst) {
    greek.entries = {
        {"00001", entryOf("one", "man")},
        {"00002", entryOf("two", "man")},
        {"00003", entryOf("three", "man")}};
    kingJames.entries = {
        {"Gen 1:1", "<w lemma=\"strong:G0003\">man</w> <w lemma=\"strong:G0003\">man</w>"},
        {"Matt 1:1", "<w lemma=\"strong:G0002\">the man</w><w lemma=\"strong:G0003\">child</w>"}};
    EXPECT_EQ(numbers().sliced(1), QStringList({u"2"_s, u"1"_s, u"3"_s}));
}

TEST_F(Lexicon, anEntryOfManyGlossesStandsBehindOneOfFew) {
    greek.entries = {
        {"00001", entryOf("one", "go, come (near, by), man")}, {"00002", entryOf("two", "man")}};
    kingJames.entries = {
        {"Matt 1:1", "<w lemma=\"strong:G0001\">man</w> <w lemma=\"strong:G0001\">man</w> "
                     "<w lemma=\"strong:G0002\">man</w>"}};
    EXPECT_EQ(numbers().sliced(1), QStringList({u"2"_s, u"1"_s}));
}

TEST_F(Lexicon, numbersThatAreNotUsedHaveNoRow) {
    greek.entries = {{"00001", entryOf("one", "man")}, {"00002", "<def>Not Used </def>"}};
    EXPECT_EQ(numbers().sliced(1), QStringList(u"1"_s));
}

TEST_F(Lexicon, damagedEntriesAreTold) {
    greek.entries = {{"00001", "<orth>G<def>sense:--man"}, {"00002", entryOf("two", "man")}};
    EXPECT_EQ(rows().size(), 3);
    EXPECT_TRUE(said.contains(u"greek.mdb: 1 entries with damaged mark-up, their parts guessed"_s))
        << qPrintable(said);
}

TEST(StrongsGreek, takesTheFieldsOfAnEntry) {
    const GreekEntry entry = readGreekEntry(
        u"<orth>ἀγάπη</orth> <orth type=\"writing\">A)GA/PH</orth> <orth rend=\"bold\" "
        u"type=\"trans\">agápē</orth> <pron>ag-ah'-pay</pron><lb/> <def><orig>of Hebrew origin "
        u"(<ref>H0175</ref>);</orig><lb/> love; a love-feast:--(feast of) charity(-ably). </def>"_s);
    EXPECT_EQ(entry.greek, u"ἀγάπη"_s);
    EXPECT_EQ(entry.word, u"agápē"_s);
    EXPECT_EQ(entry.sound, u"ag-ah'-pay"_s);
    EXPECT_EQ(entry.origin, u"of Hebrew origin (H175)"_s);
    EXPECT_EQ(entry.sense, u"love; a love-feast"_s);
    EXPECT_EQ(entry.usage, u"(feast of) charity(-ably)."_s);
    EXPECT_FALSE(entry.isDamaged);
}

TEST(StrongsGreek, originWithoutMarkupEndsAtTheFirstSemicolonOutsideOfBrackets) {
    const GreekEntry entry = readGreekEntry(
        u"<orth>κ</orth><orth type=\"trans\">kyrios</orth> <pron>koo</pron><lb/> from <orth>κῦρος"
        u"</orth> <orth type=\"writing\">KU</orth> <orth type=\"trans\">kyros</orth> (a; b);<lb/> "
        u"<def>supreme; master:-- God, Lord. </def>"_s);
    EXPECT_EQ(entry.word, u"kyrios"_s);
    EXPECT_EQ(entry.origin, u"from κῦρος kyros (a; b)"_s);
    EXPECT_EQ(entry.sense, u"supreme; master"_s);
    EXPECT_EQ(entry.usage, u"God, Lord."_s);
}

TEST(StrongsGreek, aSenseThatTheMarkupTakesForTheOriginServesAsBoth) {
    const GreekEntry entry = readGreekEntry(
        u"<orth type=\"trans\">ego</orth><def><orig>a pronoun I</orig>:--I, me. </def>"_s);
    EXPECT_EQ(entry.origin, u"a pronoun I"_s);
    EXPECT_EQ(entry.sense, u"a pronoun I"_s);
}

TEST(StrongsGreek, damagedMarkupIsTold) {
    EXPECT_TRUE(readGreekEntry(u"<def>love:--dear"_s).isDamaged);
}

TEST(StrongsGreek, fieldsHoldNothingThatAPageWouldReadAsMarkup) {
    const GreekEntry entry =
        readGreekEntry(u"<orth type=\"trans\">a{b}</orth><def>c\\d; {e}:--\\f</def>"_s);
    EXPECT_EQ(entry.word, u"a[b]"_s);
    EXPECT_EQ(entry.sense, u"[e]"_s);
    EXPECT_EQ(entry.usage, u"/f"_s);
}

TEST(NumberedSenses, markEachPartOutsideOfBrackets) {
    EXPECT_EQ(numberedSenses(u"a (b; c); d; e"_s), u"1) a (b; c) 2) d 3) e"_s);
    EXPECT_EQ(numberedSenses(u"alone"_s), u"1) alone"_s);
}

TEST(NumberedSenses, bracketWhatWouldBeTakenForAMark) {
    EXPECT_EQ(
        numberedSenses(u"like (see G25), (1 Cor. 13:2), (G3a)"_s),
        u"1) like (see [G25]), (1 Cor. [13:2]), ([G3a])"_s);
}

TEST(GlossList, bracketsThatWereNeverOpenedAreForgiven) {
    EXPECT_EQ(
        topLevelParts(u"a), b (c, d), , e", u','), QStringList({u"a)"_s, u"b (c, d)"_s, u"e"_s}));
}

TEST(RenderingsTest, countRenderingsThatShareAWordWithTheUsage) {
    Renderings renderings;
    renderings.add(
        u"<w lemma=\"strong:G0025 strong:G1\">He loved</w> <w lemma=\"strong:G0025\">dear</w>"
        u"<note><w lemma=\"strong:G0025\">loved</w></note> <w lemma=\"strong:H0025\">loved</w>"_s);
    EXPECT_EQ(renderings.countOf(25, u"(be-)loved, charity"_s), 1);
    EXPECT_EQ(renderings.countOf(25, u"dear, he"_s), 2);
    EXPECT_EQ(renderings.countOf(1, u"loved"_s), 1);
    EXPECT_EQ(renderings.countOf(2, u"loved"_s), 0);
}
