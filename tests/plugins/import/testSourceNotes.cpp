// Notes that the source brings.
#include "plugins/import/ImportFixture.h"

#include "Console.h"
#include "Progress.h"
#include "basic/Error.h"
#include "makers/TranslationMaker.h"

#include <sstream>

using namespace Qt::StringLiterals;

namespace {

class NotedVerses final : public VerseSource {
public:
    explicit NotedVerses(QList<Verse> verses)
        : m_verses(std::move(verses)) {}

    std::optional<Verse> next() override {
        return m_verses.isEmpty() ? std::nullopt : std::optional(m_verses.takeFirst());
    }
    double fraction() const override { return 0; }
    QStringList remarks() const override { return {}; }
    SourceInfo info() const override { return {u"Title"_s, u"The list"_s, u"free"_s}; }

private:
    QList<Verse> m_verses;
};

class SourceNotesTest : public ImportTest {
protected:
    MadeFile make(QList<Verse> verses, bool replaces = false) {
        std::ostringstream stream;
        Console console{stream, stream};
        Progress progress(console, u"test"_s);
        TranslationMaker maker(std::make_unique<NotedVerses>(std::move(verses)));
        return maker.make({path, replaces}, progress);
    }

    QVariant note(const VerseAddress& address) const {
        return verseField(path, address, u"note"_s);
    }
};

} // namespace

TEST_F(SourceNotesTest, areStored) {
    const MadeFile made = make({{{1, 1, 1}, u"In"_s, u"new"_s}, {{1, 1, 2}, u"And"_s}});
    EXPECT_EQ(note({1, 1, 1}), u"new"_s);
    EXPECT_TRUE(note({1, 1, 2}).isNull());
    EXPECT_EQ(made.remarks, QStringList(u"1 note(s) of the source stored"_s));
}

TEST_F(SourceNotesTest, comeBehindTheOnesThatAreThere) {
    makeOldFile();
    const MadeFile made = make({{{1, 1, 1}, u"In"_s, u"theirs"_s}}, true);
    EXPECT_EQ(note({1, 1, 1}), u"mine\r\n\r\ntheirs"_s);
    EXPECT_EQ(
        made.remarks, QStringList(
                          {u"1 note(s) carried over"_s,
                           u"1 note(s) of the source put behind a note that was there"_s}));
}

TEST_F(SourceNotesTest, areNotAddedAgain) {
    makeOldFile();
    make({{{1, 1, 1}, u"In"_s, u"theirs"_s}}, true);
    make({{{1, 1, 1}, u"In"_s, u"theirs"_s}}, true);
    EXPECT_EQ(note({1, 1, 1}), u"mine\r\n\r\ntheirs"_s);
}

TEST_F(SourceNotesTest, thatAreTheSameAreOne) {
    makeOldFile();
    make({{{1, 1, 1}, u"In"_s, u"mine"_s}}, true);
    EXPECT_EQ(note({1, 1, 1}), u"mine"_s);
}

TEST_F(SourceNotesTest, ofADoubledVerseAreBothKept) {
    make({{{1, 1, 1}, u"In"_s, u"one"_s}, {{1, 1, 1}, u"In again"_s, u"two"_s}});
    EXPECT_EQ(note({1, 1, 1}), u"one\r\n\r\ntwo"_s);
}

TEST_F(SourceNotesTest, thatAreBlankAreNone) {
    make({{{1, 1, 1}, u"In"_s, u" "_s}});
    EXPECT_TRUE(note({1, 1, 1}).isNull());
}

TEST_F(SourceNotesTest, ofAVerseWithoutWordsAreKeptAside) {
    const MadeFile made = make({{{1, 1, 1}, u"In"_s}, {{1, 1, 2}, QString(), u"lone"_s}});
    EXPECT_EQ(made.rows, 1);
    EXPECT_EQ(rowsOf(path, u"tblKeptNotes"_s), QList<QVariantList>({{1LL, 1LL, 2LL, u"lone"_s}}));
    EXPECT_EQ(
        made.remarks,
        QStringList(
            u"1 note(s) without a verse in this text, kept in tblKeptNotes: Genesis 1:2"_s));
}

TEST_F(SourceNotesTest, findTheirVerseInALaterText) {
    make({{{1, 1, 1}, u"In"_s}, {{1, 1, 2}, QString(), u"lone"_s}});
    make({{{1, 1, 2}, u"And"_s}}, true);
    EXPECT_EQ(note({1, 1, 2}), u"lone"_s);
}

TEST_F(SourceNotesTest, moreTextThanABibleHasIsRefused) {
    QList<Verse> verses;
    for (int chapter = 1; chapter <= 400; ++chapter)
        verses.append({{1, chapter, 1}, QString(100'000, u'x')});
    EXPECT_THROW(make(verses), Error);
    expectNothingMade();
}

TEST_F(SourceNotesTest, moreVersesThanABibleHasAreRefused) {
    QList<Verse> verses;
    for (int verse = 1; verse <= 200'001; ++verse)
        verses.append({{1, 1, verse}, u"x"_s});
    EXPECT_THROW(make(verses), Error);
    expectNothingMade();
}
