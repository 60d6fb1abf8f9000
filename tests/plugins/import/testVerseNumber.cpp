#include "readers/VerseNumber.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(VerseNumber, readsANumber) {
    EXPECT_EQ(readVerseNumber(u" 17 ")->first, 17);
    EXPECT_FALSE(readVerseNumber(u"17")->isPart);
    EXPECT_FALSE(readVerseNumber(u"17")->isRange);
}

TEST(VerseNumber, readsParts) {
    EXPECT_TRUE(readVerseNumber(u"3a")->isPart);
    EXPECT_FALSE(readVerseNumber(u"3a")->isLaterPart);
    EXPECT_TRUE(readVerseNumber(u"3B")->isLaterPart);
}

TEST(VerseNumber, readsRanges) {
    for (const QString& range :
         {u"3-4"_s, u"3\u20134"_s, u"3,4"_s, u"3a-4b"_s, u"3\u200F-\u200F4"_s, u"3-4, 6"_s}) {
        ASSERT_TRUE(readVerseNumber(range)) << qPrintable(range);
        EXPECT_EQ(readVerseNumber(range)->first, 3);
        EXPECT_TRUE(readVerseNumber(range)->isRange);
    }
}

TEST(VerseNumber, guessesNothing) {
    for (const QString& text :
         {u""_s, u"-1"_s, u"x"_s, u"3xx"_s, u"3-"_s, u"99999999999"_s, u"1-99999999999"_s,
          u"1.5"_s})
        EXPECT_FALSE(readVerseNumber(text)) << qPrintable(text);
}

TEST(VerseNumber, chaptersHaveNoParts) {
    EXPECT_EQ(readChapterNumber(u"119"), 119);
    for (const QString& text : {u""_s, u"1a"_s, u"1-2"_s, u"99999999999"_s, u"-3"_s})
        EXPECT_FALSE(readChapterNumber(text)) << qPrintable(text);
}
