#include "basic/Text.h"

#include "basic/Error.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace Qt::StringLiterals;

namespace {

bool isRefused(const std::function<void()>& operation) {
    return !attempt(operation);
}

TEST(Str, putsABlankInThePlaceOfAMissingSign) {
    EXPECT_EQ(Str(5), u" 5"_s);
    EXPECT_EQ(Str(-5), u"-5"_s);
    EXPECT_EQ(Str(0), u" 0"_s);
    EXPECT_EQ(Str(-0.0), u" 0"_s);
    EXPECT_EQ(Str(31102), u" 31102"_s);
    EXPECT_EQ(Str(1234567890123), u" 1234567890123"_s);
}

TEST(Str, writesNoZeroBeforeThePoint) {
    EXPECT_EQ(Str(0.6), u" .6"_s);
    EXPECT_EQ(Str(-0.5), u"-.5"_s);
    EXPECT_EQ(Str(10.25), u" 10.25"_s);
}

TEST(Str, ofWhatIsNoNumberIsAnOverflow) {
    EXPECT_TRUE(isRefused([] { Str(std::numeric_limits<double>::infinity()); }));
    EXPECT_TRUE(isRefused([] { Str(std::nan("")); }));
}

TEST(Val, readsTheNumberAtTheHead) {
    EXPECT_EQ(Val(u"12"_s), 12);
    EXPECT_EQ(Val(u" 12 apples"_s), 12);
    EXPECT_EQ(Val(u"-3.5x"_s), -3.5);
    EXPECT_EQ(Val(u"+7"_s), 7);
    EXPECT_EQ(Val(u".5"_s), .5);
    EXPECT_EQ(Val(u"1.2.3"_s), 1.2);
    EXPECT_EQ(Val(u"5-3"_s), 5);
    EXPECT_EQ(Val(u"1,000"_s), 1);
}

TEST(Val, skipsBlanksWhereverTheyStand) {
    EXPECT_EQ(Val(u"  1 6 1 5 "_s), 1615);
    EXPECT_EQ(Val(u"\t-\n4\r2"_s), -42);
}

TEST(Val, ofNoNumberIsZero) {
    for (const QString& text :
         {u""_s, u" "_s, u"x"_s, u"-"_s, u"."_s, u"-."_s, u"+-1"_s, u"e5"_s, u"Genesis 1"_s,
          QString(), u"nan"_s, u"inf"_s})
        EXPECT_EQ(Val(text), 0) << text.toStdString();
}

TEST(Val, readsAnExponentOnlyWhenItIsWhole) {
    EXPECT_EQ(Val(u"1e3"_s), 1000);
    EXPECT_EQ(Val(u"1E-2x"_s), .01);
    EXPECT_EQ(Val(u"2e"_s), 2);
    EXPECT_EQ(Val(u"2e+"_s), 2);
    EXPECT_EQ(Val(u"2 ends"_s), 2);
    EXPECT_EQ(Val(u"1e2e3"_s), 100);
}

TEST(Val, beyondADoubleIsZero) {
    EXPECT_EQ(Val(u"1e999"_s), 0);
    EXPECT_EQ(Val(u"-1e999"_s), 0);
    EXPECT_EQ(Val(u"1e-999"_s), 0);
    EXPECT_EQ(Val(u"9"_s.repeated(400)), 0);
}

TEST(Val, readsBackWhatStrWrites) {
    std::mt19937 random(3);
    for (int round = 0; round < 20000; ++round) {
        const double number = static_cast<double>(static_cast<int>(random())) / (1 << round % 24);
        EXPECT_NEAR(Val(Str(number)), number, std::abs(number) * 1e-14);
    }
}

TEST(Val, neverFails) {
    std::mt19937 random(4);
    const QString alphabet = u"0123456789+-.eE \tx\u0663"_s;
    for (int round = 0; round < 50000; ++round) {
        QString text;
        for (auto length = random() % 12; length > 0; --length)
            text +=
                alphabet[static_cast<qsizetype>(random() % static_cast<unsigned>(alphabet.size()))];
        EXPECT_TRUE(std::isfinite(Val(text))) << text.toStdString();
    }
}

TEST(Trim, takesBlanksAndOnlyBlanksFromBothEnds) {
    EXPECT_EQ(Trim(u"  a b  "_s), u"a b"_s);
    EXPECT_EQ(Trim(u" \ta\n "_s), u"\ta\n"_s);
    EXPECT_EQ(Trim(u"   "_s), u""_s);
    EXPECT_EQ(Trim(u""_s), u""_s);
    EXPECT_EQ(Trim(QChar(0xA0) + u"a"_s), QChar(0xA0) + u"a"_s);
}

TEST(Mid, countsFromOne) {
    EXPECT_EQ(Mid(u"Genesis"_s, 1), u"Genesis"_s);
    EXPECT_EQ(Mid(u"Genesis"_s, 4), u"esis"_s);
    EXPECT_EQ(Mid(u"Genesis"_s, 2, 3), u"ene"_s);
    EXPECT_EQ(Mid(u"Genesis"_s, 2, 0), u""_s);
    EXPECT_EQ(Mid(u"Genesis"_s, 7, 99), u"s"_s);
}

TEST(Mid, behindTheEndIsEmpty) {
    EXPECT_EQ(Mid(u"Genesis"_s, 8), u""_s);
    EXPECT_EQ(Mid(u"Genesis"_s, 1000, 5), u""_s);
    EXPECT_EQ(Mid(u""_s, 1), u""_s);
}

TEST(Mid, refusesAPlaceBelowOneAndALengthBelowZero) {
    EXPECT_TRUE(isRefused([] { Mid(u"a"_s, 0); }));
    EXPECT_TRUE(isRefused([] { Mid(u"a"_s, -1, 1); }));
    EXPECT_TRUE(isRefused([] { Mid(u"a"_s, 1, -1); }));
}

TEST(Left, takesTheFirstCharacters) {
    EXPECT_EQ(Left(u"Genesis"_s, 3), u"Gen"_s);
    EXPECT_EQ(Left(u"Genesis"_s, 0), u""_s);
    EXPECT_EQ(Left(u"Genesis"_s, 99), u"Genesis"_s);
    EXPECT_TRUE(isRefused([] { Left(u"a"_s, -1); }));
}

TEST(InStr, givesThePlaceOrZero) {
    EXPECT_EQ(InStr(u"In the beginning"_s, u"the"_s), 4);
    EXPECT_EQ(InStr(u"In the beginning"_s, u"The"_s), 0);
    EXPECT_EQ(InStr(1, u"In the beginning"_s, u"THE"_s, Qt::CaseInsensitive), 4);
    EXPECT_EQ(InStr(5, u"in in"_s, u"in"_s), 0);
    EXPECT_EQ(InStr(4, u"in in"_s, u"in"_s), 4);
    EXPECT_EQ(InStr(u""_s, u"x"_s), 0);
}

TEST(InStr, findsAnEmptyTextWhereItStarts) {
    EXPECT_EQ(InStr(2, u"abc"_s, u""_s), 2);
    EXPECT_EQ(InStr(u""_s, u""_s), 0);
    EXPECT_EQ(InStr(9, u"abc"_s, u"a"_s), 0);
}

TEST(InStr, refusesAStartBelowOne) {
    EXPECT_TRUE(isRefused([] { InStr(0, u"abc"_s, u"a"_s); }));
}

} // namespace
