#include "plugins/works/SmallDictionary.h"
#include "plugins/works/WorkFixture.h"

#include "text/TopicArticle.h"

using namespace Qt::StringLiterals;

namespace {

class Topical : public WorkFixture {
protected:
    QStringList headwords() {
        nave.writeTo(modules.path());
        QStringList words;
        for (const QVariantList& row : made(u"easton"_s, u"easton.mdb"_s, u"Easton"_s)) {
            words.append(row[1].toString());
            articles.append(row[2].toString());
        }
        return words;
    }

    SmallDictionary nave;
    QStringList articles;
};

} // namespace

TEST_F(Topical, rowsAreSortedByHeadwordWithoutCaseAndTellOfThemselves) {
    nave.entries = {{"ZEAL", "z"}, {"ABOVE", "a"}, {"ABEL", "b"}};
    EXPECT_EQ(headwords(), QStringList({u"ABEL"_s, u"About this work"_s, u"ABOVE"_s, u"ZEAL"_s}));
    EXPECT_TRUE(articles[1].startsWith(
        u"The articles here are those of A small dictionary (SWORD module Nave 3.1, Public Domain)."_s))
        << qPrintable(articles[1]);
}

TEST(TopicArticle, headingsAndItemsAreLines) {
    EXPECT_EQ(
        readTopicArticle(
            u"ABEL"_s, u"<entryFree n=\"ABEL\"> <def> <lb/>\u2192 Son of <ref>Ge 4:1</ref>,<ref>25"
                       u"</ref>; <ref>5:1</ref> <list> <item>Death of</item> </list> <lb/>2. A "
                       u"stone</def> </entryFree>"_s),
        u"Son of Ge 4:1, 25; 5:1\r\n- Death of\r\n2. A stone"_s);
}

TEST(TopicArticle, aBlankInAGenitiveIsClosed) {
    EXPECT_EQ(
        readTopicArticle(u"A"_s, u"For God' s house, the sons' share"_s),
        u"For God's house, the sons' share"_s);
}

TEST(TopicArticle, aHeadwordGluedToItsArticleIsTakenAway) {
    EXPECT_EQ(readTopicArticle(u"REVERENCE"_s, u"<lb/>REVERENCEGe 35:5"_s), u"Ge 35:5"_s);
    EXPECT_EQ(readTopicArticle(u"SIN"_s, u"SIN of Adam"_s), u"SIN of Adam"_s);
}

TEST_F(Topical, articlesUnderOneHeadwordShareARow) {
    nave.entries = {{"SIN", "first"}, {"SIN", "second"}};
    nave.writeTo(modules.path());
    const QList<QVariantList> rows = made(u"easton"_s, u"easton.mdb"_s, u"Easton"_s);
    ASSERT_EQ(rows.size(), 2);
    EXPECT_EQ(rows[1], QVariantList({2LL, u"SIN"_s, u"first\r\n\r\nsecond"_s}));
}
