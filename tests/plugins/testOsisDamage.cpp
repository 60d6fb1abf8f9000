#include "text/OsisFragments.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString salvaged(const QString& fragment) {
    OsisFragments fragments;
    QString text = fragments.flatten(fragment).text();
    EXPECT_TRUE(fragments.wasDamaged());
    return text;
}

} // namespace

TEST(OsisDamage, crossedTagsKeepTheWords) {
    EXPECT_EQ(
        salvaged(u"And the \\nd <w>LORD</w></divineName> <w>spake</w>"_s), u"And the LORD spake"_s);
    EXPECT_EQ(salvaged(u"<w>In <i>the</w> beginning</i>"_s), u"In the beginning"_s);
}

TEST(OsisDamage, aNoteThatIsCompleteStillGoes) {
    EXPECT_EQ(
        salvaged(u"the LORD:<note>the <divineName>LORD: or, JEHOVAH</note> and"_s),
        u"the LORD: and"_s);
}

TEST(OsisDamage, aNoteThatNeverEndsCostsNoWords) {
    EXPECT_EQ(salvaged(u"word<note> more"_s), u"word more"_s);
}

TEST(OsisDamage, charactersThatMarkupForbidsCostNoWords) {
    EXPECT_EQ(salvaged(u"a < b & c > d"_s), u"a < b & c > d"_s);
    EXPECT_EQ(salvaged(u"salt&nbsp;and &amp; <w>light"_s), u"salt&nbsp;and & light"_s);
    EXPECT_EQ(salvaged(u"a\u0001b<w>c</w>"_s), u"abc"_s);
}

TEST(OsisDamage, aTagThatNeverEndsCostsNoWords) {
    EXPECT_EQ(salvaged(u"light <w lemma"_s), u"light <w lemma"_s);
}

TEST(OsisDamage, closesAnOpenQuotationRatherThanReddenTheRest) {
    OsisFragments fragments;
    fragments.flatten(u"<q sID=\"a\" who=\"Jesus\"/>Blessed"_s);
    EXPECT_TRUE(fragments.flatten(u"are</w> they"_s).redRuns().isEmpty());
    EXPECT_TRUE(fragments.flatten(u"that mourn"_s).redRuns().isEmpty());
}

TEST(OsisDamage, theNextVerseIsReadAsUsual) {
    OsisFragments fragments;
    fragments.flatten(u"one</w>"_s);
    EXPECT_EQ(fragments.flatten(u"<w>two</w>"_s).text(), u"two"_s);
    EXPECT_FALSE(fragments.wasDamaged());
}
