#include "text/OsisFragments.h"
#include "text/SpanishText.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString corrected(const VerseAddress& address, const QString& text) {
    MarkedText verse;
    verse.append(text, false);
    correctSpanishText(address, verse);
    return verse.text();
}

QString flattened(const QString& fragment) {
    return OsisFragments(lacksSpanishBlank).flatten(fragment).text();
}

} // namespace

TEST(SpanishText, dropsTheLetterNamesOfPsalm119) {
    EXPECT_EQ(corrected({19, 119, 1}, u"ALEPH. BIENAVENTURADOS los"_s), u"BIENAVENTURADOS los"_s);
    EXPECT_EQ(corrected({19, 119, 9}, u"BETH ¿Con qué"_s), u"¿Con qué"_s);
    EXPECT_EQ(corrected({19, 119, 169}, u"TAU. Acérquese"_s), u"Acérquese"_s);
}

TEST(SpanishText, dropsALetterNameOnlyWhereItsLetterBegins) {
    EXPECT_EQ(corrected({19, 119, 2}, u"HE. Enséñame"_s), u"HE. Enséñame"_s);
    EXPECT_EQ(corrected({19, 118, 33}, u"HE. Enséñame"_s), u"HE. Enséñame"_s);
    EXPECT_EQ(corrected({19, 119, 177}, u"ALEPH. Y"_s), u"ALEPH. Y"_s);
    EXPECT_EQ(corrected({19, 119, 9}, u"¿Con qué"_s), u"¿Con qué"_s);
}

TEST(SpanishText, dropsSubscriptionsOfEpistles) {
    EXPECT_EQ(
        corrected({48, 6, 18}, u"con vuestro espíritu. Amén. Enviada de Roma á los Gálatas."_s),
        u"con vuestro espíritu. Amén."_s);
    EXPECT_EQ(
        corrected({45, 16, 27}, u"Amén. Fué escrita de Corinto á los Romanos."_s), u"Amén."_s);
}

TEST(SpanishText, keepsWhatIsNoSubscription) {
    const QString doxology = u"por los siglos. Amén. Y otra vez digo"_s;
    EXPECT_EQ(corrected({48, 1, 5}, doxology), doxology);
    const QString gospel = u"Amén. La carta fué escrita"_s;
    EXPECT_EQ(corrected({43, 21, 25}, gospel), gospel);
}

TEST(SpanishText, partsAnAddedWordFromItsNeighbours) {
    EXPECT_EQ(
        flattened(u"<w>hay allí</w><transChange>también</transChange><w>bdelio</w> y"_s),
        u"hay allí también bdelio y"_s);
    EXPECT_EQ(
        flattened(u"<w>desolado</w><transChange>nos pedían</transChange><w>alegría</w>"_s),
        u"desolado nos pedían alegría"_s);
}

TEST(SpanishText, leavesAPronounOnItsVerb) {
    EXPECT_EQ(
        flattened(u"Y <w>vió</w><transChange>lo</transChange> <w>Jehová</w>,"_s),
        u"Y viólo Jehová,"_s);
    EXPECT_EQ(
        flattened(u"<w>oyéndo</w><transChange>lo</transChange><w>Jesús</w>,"_s),
        u"oyéndolo Jesús,"_s);
}

TEST(SpanishText, partsAPronounFromWhatIsNoVerb) {
    EXPECT_EQ(
        flattened(u"<w>Y no</w><transChange>lo</transChange><w>hizo saber</w>"_s),
        u"Y no lo hizo saber"_s);
}

TEST(SpanishText, leavesPunctuationAtAnAddedWord) {
    EXPECT_EQ(flattened(u"(<transChange>es</transChange>), ¿<w>no</w>?"_s), u"(es), ¿no?"_s);
}

TEST(SpanishText, otherTextsAreRightAsTheyStand) {
    EXPECT_EQ(
        OsisFragments().flatten(u"<w>father</w><transChange>s</transChange>"_s).text(),
        u"fathers"_s);
}
