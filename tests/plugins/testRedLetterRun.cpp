#include "text/RedLetterRun.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString Marker = QChar(30);

MarkedText textOf(const QList<std::pair<int, bool>>& parts) {
    MarkedText verse;
    for (const auto& [length, red] : parts)
        verse.append(u"x"_s.repeated(length), red);
    return verse;
}

} // namespace

TEST(RedLetterRun, nothingIsStoredForAVerseWithoutRed) {
    EXPECT_FALSE(runToStore({}));
    EXPECT_EQ(storedBody(textOf({{7, false}})), u"xxxxxxx"_s);
}

TEST(RedLetterRun, prefixHasMarkerStartColonLengthInThreeDigits) {
    EXPECT_EQ(
        storedBody(textOf({{12, false}, {34, true}})), Marker + u"012:034"_s + u"x"_s.repeated(46));
}

TEST(RedLetterRun, gapOfTwentyIsBridged) {
    EXPECT_EQ(runToStore({{5, 10}, {35, 4}}), (RedRun{5, 34}));
}

TEST(RedLetterRun, gapOfTwentyOneLeavesTheLongestRun) {
    EXPECT_EQ(runToStore({{5, 10}, {36, 4}}), (RedRun{5, 10}));
    EXPECT_EQ(runToStore({{5, 4}, {30, 10}}), (RedRun{30, 10}));
}

TEST(RedLetterRun, firstOfEquallyLongRunsIsStored) {
    EXPECT_EQ(runToStore({{16, 15}, {156, 15}}), (RedRun{16, 15}));
}

TEST(RedLetterRun, oneWideGapKeepsAllRunsApart) {
    EXPECT_EQ(runToStore({{0, 5}, {7, 5}, {80, 9}}), (RedRun{80, 9}));
}

TEST(RedLetterRun, severalNarrowGapsAreAllBridged) {
    EXPECT_EQ(runToStore({{0, 5}, {20, 5}, {40, 5}}), (RedRun{0, 45}));
}

TEST(RedLetterRun, lengthThatThreeDigitsCannotSayIsCut) {
    const QString body = storedBody(textOf({{2, false}, {1200, true}}));
    EXPECT_EQ(body.first(8), Marker + u"002:999"_s);
    EXPECT_EQ(body.size(), 8 + 1202);
}

TEST(RedLetterRun, startThatThreeDigitsCannotSayLeavesTheVersePlain) {
    EXPECT_EQ(storedBody(textOf({{1000, false}, {5, true}})), u"x"_s.repeated(1005));
    EXPECT_EQ(storedBody(textOf({{999, false}, {5, true}})).first(8), Marker + u"999:005"_s);
}
