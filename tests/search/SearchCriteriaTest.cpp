// The texts that the search windows share.
#include "search/SearchCriteria.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(SearchCriteria, aWordAnywhereStandsBetweenStars) {
    EXPECT_EQ(anywherePattern(u"grace"_s), u"\"*grace*\""_s);
    EXPECT_EQ(anywherePattern({}), u"\"**\""_s);
    EXPECT_EQ(anywherePattern(u" a\"b' "_s), u"\"* a\"b' *\""_s);
}

TEST(SearchCriteria, aWholeWordHasABlankBeforeItAndItsMarksInTheirOrder) {
    EXPECT_EQ(
        wholeWordPatterns(u"W"_s, u".;"_s, u" or x like "_s),
        u"\"* W *\" or x like \"* W.*\" or x like \"* W;*\""_s);
}

TEST(SearchCriteria, aScopeStartsWithItsFirstVerse) {
    const QString genesis = u"book = 1 and chapter = 1 and verse = 1"_s;
    EXPECT_EQ(scopeStart(0, 0), genesis);
    EXPECT_EQ(FirstVerseCriteria, genesis);
    EXPECT_EQ(scopeStart(1, 0), u"book = 1"_s);
    EXPECT_EQ(scopeStart(2, 0), u"book = 40 and chapter = 1 and verse = 1"_s);
}

TEST(SearchCriteria, theNumberOfABookStandsBehindABlankOfItsOwn) {
    for (int book = 1; book <= 66; ++book)
        EXPECT_EQ(
            scopeStart(0, book),
            u"book =  "_s + QString::number(book) + u" and chapter = 1 and verse = 1"_s);
}
