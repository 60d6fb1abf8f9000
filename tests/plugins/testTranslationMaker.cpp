#include "plugins/DataFiles.h"

#include "Console.h"
#include "Progress.h"
#include "basic/Error.h"
#include "makers/TranslationMaker.h"

#include <QDate>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sstream>

using namespace Qt::StringLiterals;

namespace {

class ListedVerses final : public VerseSource {
public:
    explicit ListedVerses(QList<Verse> verses)
        : m_verses(std::move(verses)) {}

    std::optional<Verse> next() override {
        if (m_at == m_verses.size())
            return std::nullopt;
        return m_verses[m_at++];
    }
    double fraction() const override { return double(m_at) / double(m_verses.size()); }
    QStringList remarks() const override { return {u"from the source"_s}; }
    SourceInfo info() const override { return {u"Title"_s, u"list"_s, u"free"_s}; }

private:
    QList<Verse> m_verses;
    qsizetype m_at = 0;
};

class TranslationMakerTest : public testing::Test {
protected:
    MadeFile make(QList<Verse> verses, bool replaces = false) {
        Console console{stream, stream};
        Progress progress(console, u"test"_s);
        TranslationMaker maker(std::make_unique<ListedVerses>(std::move(verses)));
        return maker.make({path, replaces}, progress);
    }

    std::ostringstream stream;
    QTemporaryDir folder;
    const QString path = folder.filePath(u"KJV.mdb"_s);
};

} // namespace

TEST_F(TranslationMakerTest, writesRowsInCanonicalOrderCountedFromOne) {
    const MadeFile made = make({{{40, 1, 1}, u"c"_s}, {{1, 2, 1}, u"b"_s}, {{1, 1, 10}, u"a"_s}});
    EXPECT_EQ(made.rows, 3);
    EXPECT_EQ(
        rowsOf(path, u"tblMain"_s), QList<QVariantList>({
                                        {1LL, 1LL, 1LL, 10LL, u"a"_s, QVariant()},
                                        {2LL, 1LL, 2LL, 1LL, u"b"_s, QVariant()},
                                        {3LL, 40LL, 1LL, 1LL, u"c"_s, QVariant()},
                                    }));
}

TEST_F(TranslationMakerTest, seekFindsAVerse) {
    make({{{1, 1, 1}, u"a"_s}, {{43, 3, 16}, u"b"_s}});
    EXPECT_EQ(verseField(path, {43, 3, 16}, u"body"_s), u"b"_s);
    EXPECT_TRUE(verseField(path, {43, 3, 16}, u"note"_s).isNull());
}

TEST_F(TranslationMakerTest, saysWhereTheTextIsFrom) {
    make({{{1, 1, 1}, u"a"_s}});
    const QString today = QDate::currentDate().toString(Qt::ISODate);
    EXPECT_EQ(
        rowsOf(path, u"tblInfo"_s),
        QList<QVariantList>({{u"Title"_s, u"list"_s, u"free"_s, today}}));
}

TEST_F(TranslationMakerTest, warnsOfChaptersBehindTheCatalogues) {
    const MadeFile made =
        make({{{1, 50, 1}, u"a"_s}, {{19, 151, 1}, u"b"_s}, {{66, 23, 1}, u"c"_s}});
    EXPECT_EQ(made.rows, 3);
    EXPECT_EQ(
        made.remarks, QStringList(
                          {u"from the source"_s,
                           u"chapters behind the catalogue's last one, as far as: Psalms 151, "
                           u"Revelation 23"_s}));
}

TEST_F(TranslationMakerTest, takesARepeatedVerseOnceAndSaysSo) {
    const MadeFile made =
        make({{{1, 1, 2}, u"x"_s}, {{1, 1, 1}, u"first"_s}, {{1, 1, 1}, u"second"_s}});
    EXPECT_EQ(made.rows, 2);
    EXPECT_EQ(verseField(path, {1, 1, 1}, u"body"_s), u"first"_s);
    EXPECT_EQ(made.remarks.last(), u"verses that the source repeats, taken once: Genesis 1:1"_s);
}

TEST_F(TranslationMakerTest, saysHowManyVersesLoseTheirRed) {
    const QString red = u"\u001E000:003red"_s;
    make({{{1, 1, 1}, red}, {{1, 1, 2}, red}, {{1, 1, 3}, red}, {{1, 1, 4}, u"black"_s}});
    const MadeFile made =
        make({{{1, 1, 1}, u"red"_s}, {{1, 1, 2}, red + u'.'}, {{1, 1, 4}, u"black"_s}}, true);
    EXPECT_EQ(
        made.remarks.last(),
        u"2 verse(s) of the old file had words in red that the new text has not"_s);
}

TEST_F(TranslationMakerTest, saysNothingOfRedThatStays) {
    const QList<Verse> verses = {{{1, 1, 1}, u"\u001E000:003red"_s}, {{1, 1, 2}, u"black"_s}};
    make(verses);
    EXPECT_EQ(make(verses, true).remarks, QStringList(u"from the source"_s));
}

TEST_F(TranslationMakerTest, aSourceWithoutAVerseIsAnErrorAndMakesNothing) {
    EXPECT_THROW(make({}), Error);
    EXPECT_TRUE(filesIn(folder.path()).isEmpty());
}
