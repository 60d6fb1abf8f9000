#include "text/OsisFragments.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString flattened(const QString& fragment) {
    OsisFragments fragments;
    QString text = fragments.flatten(fragment).text();
    EXPECT_FALSE(fragments.wasDamaged());
    return text;
}

QList<RedRun> redRuns(const QString& fragment) {
    return OsisFragments().flatten(fragment).redRuns();
}

} // namespace

TEST(OsisText, keepsWordsAddedWordsAndDivineNamesAsPlainText) {
    EXPECT_EQ(
        flattened(u"the <divineName><w lemma=\"strong:H3068\">LORD</w></divineName> "
                  u"<transChange type=\"added\">is</transChange> <w>good</w>."_s),
        u"the LORD is good."_s);
}

TEST(OsisText, dropsNotesWithAllThatIsInThem) {
    EXPECT_EQ(
        flattened(u"light.<note placement=\"foot\"><reference>1.4 </reference>the <w>light</w> "
                  u"from…</note> And"_s),
        u"light. And"_s);
}

TEST(OsisText, putsABlankWhereADroppedNoteGluedTwoWords) {
    EXPECT_EQ(flattened(u"God<note>x</note><w>created</w>"_s), u"God created"_s);
    EXPECT_EQ(flattened(u"God<note>x</note>, who"_s), u"God, who"_s);
    EXPECT_EQ(flattened(u"<w>give<note>a <p>b</p></note></w>, "_s), u"give,"_s);
}

TEST(OsisText, keepsAWordThatTwoElementsShare) {
    EXPECT_EQ(flattened(u"shall be <w>give</w>n"_s), u"shall be given"_s);
}

TEST(OsisText, putsAPsalmsCanonicalTitleInFront) {
    EXPECT_EQ(
        flattened(u"<title canonical=\"true\" type=\"psalm\">A <w>Psalm</w> of David.</title>"
                  u"<lg sID=\"g\"/><l sID=\"l\"/>LORD, how<l eID=\"l\"/>"_s),
        u"A Psalm of David. LORD, how"_s);
}

TEST(OsisText, dropsOtherTitles) {
    EXPECT_EQ(
        flattened(u"<title><foreign>ב BETH.</foreign></title>Wherewithal"_s), u"Wherewithal"_s);
    EXPECT_EQ(
        flattened(u"<title canonical=\"true\" type=\"acrostic\">ALEPH</title>Blessed"_s),
        u"Blessed"_s);
    EXPECT_EQ(flattened(u"<title type=\"psalm\">Morning</title>LORD"_s), u"LORD"_s);
}

TEST(OsisText, dropsSubscriptionsOfEpistles) {
    EXPECT_EQ(flattened(u"Amen. <title>Written from Rome.</title>"_s), u"Amen."_s);
    EXPECT_EQ(
        flattened(u"Amen. <div type=\"colophon\" sID=\"c\"/>Written <w>from</w> Rome."
                  u"<div type=\"colophon\" eID=\"c\"/>"_s),
        u"Amen."_s);
    EXPECT_EQ(flattened(u"Amen.<div type=\"colophon\">From Rome.</div>"_s), u"Amen."_s);
}

TEST(OsisText, stopsAtTheCloseOfTheBook) {
    OsisFragments fragments;
    const QString last =
        u"Amen.<div type=\"book\" osisID=\"Rev\" eID=\"b\"/> <div type=\"glossary\">Abba</div>"_s;
    EXPECT_EQ(fragments.flatten(last).text(), u"Amen."_s);
    EXPECT_EQ(fragments.flatten(u"Next"_s).text(), u"Next"_s);
}

TEST(OsisText, partsLinesOfAPoem) {
    EXPECT_EQ(
        flattened(u"<l sID=\"a\"/>one<l eID=\"a\"/><l sID=\"b\"/>two<l eID=\"b\"/><lb/>three"_s),
        u"one two three"_s);
}

TEST(OsisText, dropsResidueOfOtherMarkup) {
    EXPECT_EQ(flattened(u"Because the \\nd <w>LORD</w> hath"_s), u"Because the LORD hath"_s);
    EXPECT_EQ(flattened(u"the \\+nd LORD\\+nd*’s oath"_s), u"the LORD's oath"_s);
    EXPECT_EQ(flattened(u"either\\or"_s), u"either/or"_s);
}

TEST(OsisText, readsEntities) {
    EXPECT_EQ(flattened(u"salt &amp; light &#x2014; &lt;b&gt;"_s), u"salt & light — <b>"_s);
}

TEST(OsisText, marksTheWordsOfChrist) {
    EXPECT_EQ(
        redRuns(u"He said, <q marker=\"\" who=\"Jesus\"><w>Who</w> <w>touched</w> me?</q> And"_s),
        QList<RedRun>({{9, 15}}));
}

TEST(OsisText, aNoteInsideAQuotationDoesNotPartIt) {
    EXPECT_EQ(
        redRuns(u"<q who=\"Jesus\">Feed<note>or, tend</note>my sheep</q>"_s),
        QList<RedRun>({{0, 13}}));
}

TEST(OsisText, quotationsOfOthersAreBlack) {
    EXPECT_TRUE(redRuns(u"<q who=\"Peter\">Thou art</q> <q>So</q>"_s).isEmpty());
}

TEST(OsisText, aQuotationWithinTheWordsOfChristIsRed) {
    EXPECT_EQ(
        redRuns(u"<q who=\"Jesus\">Say, <q who=\"David\">The LORD</q> said</q> he"_s),
        QList<RedRun>({{0, 18}}));
}

TEST(OsisText, milestonesMarkAQuotationAcrossVerses) {
    OsisFragments fragments;
    EXPECT_EQ(
        fragments.flatten(u"He said, <q sID=\"q1\" who=\"Jesus\"/>Blessed"_s).redRuns(),
        QList<RedRun>({{9, 7}}));
    EXPECT_EQ(fragments.flatten(u"are they."_s).redRuns(), QList<RedRun>({{0, 9}}));
    EXPECT_EQ(
        fragments.flatten(u"Rejoice.<q eID=\"q1\"/> And"_s).redRuns(), QList<RedRun>({{0, 8}}));
    EXPECT_TRUE(fragments.flatten(u"he went"_s).redRuns().isEmpty());
}

TEST(OsisText, containersMarkAQuotationAcrossVerses) {
    OsisFragments fragments;
    EXPECT_EQ(
        fragments.flatten(u"He said, <q who=\"Jesus\">Blessed <q>are"_s).redRuns(),
        QList<RedRun>({{9, 11}}));
    EXPECT_EQ(fragments.flatten(u"<w>they</w>."_s).redRuns(), QList<RedRun>({{0, 5}}));
    EXPECT_EQ(fragments.flatten(u"Rejoice.</q></q> And"_s).redRuns(), QList<RedRun>({{0, 8}}));
    EXPECT_TRUE(fragments.flatten(u"he went"_s).redRuns().isEmpty());
    EXPECT_FALSE(fragments.wasDamaged());
}

TEST(OsisText, nestedMilestonesEndEachItsOwnQuotation) {
    OsisFragments fragments;
    const MarkedText verse = fragments.flatten(
        u"<q sID=\"a\" who=\"Jesus\"/>one <q sID=\"b\" who=\"Jesus\"/>two<q eID=\"b\"/> three"
        u"<q eID=\"a\" who=\"Jesus\"/> four"_s);
    EXPECT_EQ(verse.redRuns(), QList<RedRun>({{0, 13}}));
}
