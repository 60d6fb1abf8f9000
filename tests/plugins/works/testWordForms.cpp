#include "text/Vocabulary.h"
#include "text/WordForms.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(WordForms, nounsLoseTheirPlural) {
    EXPECT_TRUE(modernBases(PartOfSpeech::Noun, "churches").contains("church"));
    EXPECT_TRUE(modernBases(PartOfSpeech::Noun, "cities").contains("city"));
    EXPECT_TRUE(modernBases(PartOfSpeech::Noun, "husbandmen").contains("husbandman"));
}

TEST(WordForms, verbsLoseTheirEndings) {
    EXPECT_TRUE(modernBases(PartOfSpeech::Verb, "moved").contains("move"));
    EXPECT_TRUE(modernBases(PartOfSpeech::Verb, "walking").contains("walk"));
    EXPECT_TRUE(modernBases(PartOfSpeech::Verb, "carries").contains("carry"));
}

TEST(WordForms, aStemThatWouldDoubleItsLastLetterIsNone) {
    EXPECT_EQ(modernBases(PartOfSpeech::Verb, "hated"), QList<QByteArray>{"hate"});
    EXPECT_TRUE(modernBases(PartOfSpeech::Verb, "showing").contains("show"));
}

TEST(WordForms, archaicEndingsAreThoseOfVerbs) {
    EXPECT_TRUE(archaicBases("moveth").contains("move"));
    EXPECT_TRUE(archaicBases("walkest").contains("walk"));
    EXPECT_TRUE(archaicBases("crieth").contains("cry"));
    EXPECT_TRUE(archaicBases("sitteth").contains("sit"));
    EXPECT_TRUE(archaicBases("lovedst").contains("love"));
    EXPECT_TRUE(archaicBases("walkedst").contains("walk"));
}

TEST(WordForms, otherWordsHaveNoArchaicBase) {
    EXPECT_TRUE(archaicBases("bread").isEmpty());
    EXPECT_TRUE(archaicBases("eth").isEmpty());
}

TEST(VocabularyTest, takesWordsOnceWithoutCaseAndGenitive) {
    Vocabulary vocabulary;
    vocabulary.add(u"\u001E012:003The LORD's house, the 'sea'");
    QList<QByteArray> words;
    for (const auto& [word, seen] : vocabulary.words())
        words.append(word);
    EXPECT_EQ(words, QList<QByteArray>({"house", "lord", "sea", "the"}));
}

TEST(VocabularyTest, aNameIsNeverSeenWithoutACapital) {
    Vocabulary vocabulary;
    vocabulary.add(u"Job was good. Listen to Mark: a mark.");
    EXPECT_TRUE(vocabulary.words().at("mark").isPlain());
    EXPECT_TRUE(vocabulary.words().at("mark").isCapital);
    EXPECT_TRUE(vocabulary.words().at("listen").isPlain());
    vocabulary.add(u"his servant Job");
    EXPECT_FALSE(vocabulary.words().at("job").isPlain());
}

TEST(VocabularyTest, wordsWithOtherLettersAreLeftOut) {
    Vocabulary vocabulary;
    vocabulary.add(u"Judæa");
    EXPECT_TRUE(vocabulary.words().empty());
}
