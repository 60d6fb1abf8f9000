#include "text/MarkedText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString pageText(const QString& text) {
    MarkedText verse;
    verse.append(text, false);
    return verse.text();
}

} // namespace

TEST(MarkedText, collapsesBlanksAndLineEndsAndTrims) {
    EXPECT_EQ(pageText(u"  In \n\t the\u00A0 beginning \r\n"_s), u"In the beginning"_s);
}

TEST(MarkedText, turnsBracesIntoBracketsAndBackslashIntoSlash) {
    EXPECT_EQ(pageText(u"{a} b\\c"_s), u"[a] b/c"_s);
}

TEST(MarkedText, turnsTypographicApostrophesIntoTypedOnes) {
    EXPECT_EQ(pageText(u"the LORD\u2019s \u2018oath\u2019"_s), u"the LORD's 'oath'"_s);
}

TEST(MarkedText, dropsPilcrowsAndInvisibleCharacters) {
    EXPECT_EQ(pageText(u"\u00B6 And\u00AD \uFEFFGod\u200B"_s), u"And God"_s);
}

TEST(MarkedText, dropsTheRedLetterMarkerAndOtherControlCharacters) {
    EXPECT_EQ(pageText(u"a\u001E\u0001b"_s), u"ab"_s);
}

TEST(MarkedText, keepsLettersOfEveryScript) {
    EXPECT_EQ(pageText(u"Æneas Señor אָלֶף — “x”"_s), u"Æneas Señor אָלֶף — “x”"_s);
}

TEST(MarkedText, findsRunsInTheFinishedText) {
    MarkedText verse;
    verse.append(u"  He  said,  "_s, false);
    verse.append(u" \u00B6Follow \n me. "_s, true);
    verse.append(u" And"_s, false);
    ASSERT_EQ(verse.text(), u"He said, Follow me. And"_s);
    EXPECT_EQ(verse.redRuns(), QList<RedRun>({{9, 10}}));
}

TEST(MarkedText, leavesTheBlankBetweenRedAndBlackBlack) {
    MarkedText verse;
    verse.append(u"a "_s, true);
    verse.append(u"b"_s, false);
    verse.append(u" c"_s, true);
    EXPECT_EQ(verse.redRuns(), QList<RedRun>({{0, 1}, {4, 1}}));
}

TEST(MarkedText, countsInUtf16Units) {
    MarkedText verse;
    verse.append(u"\U0001D11E "_s, false);
    verse.append(u"red"_s, true);
    EXPECT_EQ(verse.redRuns(), QList<RedRun>({{3, 3}}));
}

TEST(MarkedText, putsABlankAtAJointOnlyWhereWordsWouldRunTogether) {
    const auto joined = [](const QString& before, const QString& after) {
        MarkedText verse;
        verse.append(before, false);
        verse.markJoint();
        verse.append(after, false);
        return verse.text();
    };
    EXPECT_EQ(joined(u"God"_s, u"created"_s), u"God created"_s);
    EXPECT_EQ(joined(u"east,"_s, u"they"_s), u"east, they"_s);
    EXPECT_EQ(joined(u"said,"_s, u"“Come"_s), u"said, “Come"_s);
    EXPECT_EQ(joined(u"days"_s, u", and"_s), u"days, and"_s);
    EXPECT_EQ(joined(u"“"_s, u"Come"_s), u"“Come"_s);
    EXPECT_EQ(joined(u"sin—"_s, u"and"_s), u"sin—and"_s);
    EXPECT_EQ(joined(u"God "_s, u"created"_s), u"God created"_s);
    EXPECT_EQ(joined(u"seed"_s, u"”"_s), u"seed”"_s);
}

TEST(MarkedText, keepsRunsRightWhenCharactersAreTakenOutOrPutIn) {
    MarkedText verse;
    verse.append(u"ALEPH. Uno"_s, false);
    verse.append(u"dos"_s, true);
    verse.remove(0, 7);
    verse.insertBlank(3);
    EXPECT_EQ(verse.text(), u"Uno dos"_s);
    EXPECT_EQ(verse.redRuns(), QList<RedRun>({{4, 3}}));
}
