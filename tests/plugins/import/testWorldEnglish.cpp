// A text in another verse scheme, with the apocrypha, dropped notes and a glossary behind its last
// verse.
#include "plugins/DataFiles.h"
#include "plugins/ToolRun.h"

#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QString Description = u"/usr/share/sword/mods.d/engWEB2015eb.conf"_s;

class WorldEnglish : public testing::Test {
protected:
    static void SetUpTestSuite() {
        run =
            runTool({u"import"_s, Description, u"--as"_s, u"darby"_s, u"--to"_s, folder().path()});
    }

    void SetUp() override {
        if (!QFileInfo::exists(Description))
            GTEST_SKIP() << "the package sword-text-web is not installed";
        ASSERT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    }

    static QTemporaryDir& folder() {
        static QTemporaryDir made;
        return made;
    }

    static QString file() { return folder().filePath(u"DARBY.mdb"_s); }

    static QString body(const VerseAddress& address) {
        return verseField(file(), address, u"body"_s).toString();
    }

    static inline ToolRun run;
};

} // namespace

TEST_F(WorldEnglish, givesTheVersesOfThe66Books) {
    const QList<QVariantList> rows = rowsOf(file(), u"tblMain"_s);
    EXPECT_EQ(rows.size(), 31095);
    QSet<int> books;
    for (const QVariantList& row : rows)
        books.insert(row[1].toInt());
    EXPECT_EQ(books.size(), 66);
}

TEST_F(WorldEnglish, keepsWordsApartThatOnlyANoteParted) {
    EXPECT_EQ(body({1, 1, 1}), u"In the beginning, God created the heavens and the earth."_s);
    EXPECT_TRUE(body({1, 2, 4}).contains(u"in the day that Yahweh God made the earth"_s));
    EXPECT_TRUE(body({40, 4, 18}).contains(u"he saw two brothers: Simon, who"_s));
}

TEST_F(WorldEnglish, endsWithoutItsGlossary) {
    EXPECT_EQ(
        body({66, 22, 21}), u"The grace of the Lord Jesus Christ be with all the saints. Amen."_s);
}

TEST_F(WorldEnglish, namesTheApocryphaAsLeftOut) {
    EXPECT_TRUE(run.out.contains(
        u"left out, since they are none of the 66 books: Tob, Jdt, EsthGr, Wis, Sir, Bar, 1Macc, "
        u"2Macc, 1Esd, PrMan, AddPs, 3Macc, 2Esd, 4Macc\n"_s))
        << qPrintable(run.out);
    EXPECT_FALSE(run.out.contains(u"books that end before"_s));
}
