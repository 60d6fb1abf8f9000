// What the installed texts must give, to the verse.
#include "plugins/DataFiles.h"
#include "plugins/ToolRun.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct StoredVerse {
    qlonglong id;
    VerseAddress address;
    QString body;

    bool isRed() const { return body.startsWith(QChar(30)); }
    int redStart() const { return QStringView(body).sliced(1, 3).toInt(); }
    int redLength() const { return QStringView(body).sliced(5, 3).toInt(); }
};

// Makes a work once for all tests of a suite.
template <const char* Name, const char* File>
class InstalledText : public testing::Test {
protected:
    static void SetUpTestSuite() {
        const QString work = QString::fromLatin1(Name);
        const QStringList arguments{u"make"_s, work,           u"--from"_s, u"/usr/share/sword"_s,
                                    u"--to"_s, folder().path()};
        run = runTool(arguments);
        const QString path = folder().filePath(QString::fromLatin1(File));
        verses.clear();
        if (run.exitCode != 0)
            return;
        for (const QVariantList& row : rowsOf(path, u"tblMain"_s))
            verses.append(
                {row[0].toLongLong(),
                 {row[1].toInt(), row[2].toInt(), row[3].toInt()},
                 row[4].toString()});
        info = rowsOf(path, u"tblInfo"_s);
    }

    void SetUp() override {
        if (run.errors.contains(u"is not installed"_s))
            GTEST_SKIP() << qPrintable(run.errors);
        ASSERT_EQ(run.exitCode, 0) << qPrintable(run.errors);
    }

    static QTemporaryDir& folder() {
        static QTemporaryDir made;
        return made;
    }

    static QString body(int book, int chapter, int verse) {
        const VerseAddress address{book, chapter, verse};
        for (const StoredVerse& each : verses) {
            if (each.address == address)
                return each.body;
        }
        return {};
    }

    static bool anyBodyHas(const QString& pattern) {
        const QRegularExpression expression(pattern);
        for (const StoredVerse& verse : verses) {
            const QString text = verse.isRed() ? verse.body.sliced(8) : verse.body;
            if (text.contains(expression)) {
                ADD_FAILURE() << qPrintable(verseName(verse.address) + u' ' + text);
                return true;
            }
        }
        return false;
    }

    static void expectCanonicalOrder() {
        for (qsizetype row = 0; row < verses.size(); ++row) {
            ASSERT_EQ(verses[row].id, row + 1);
            ASSERT_TRUE(row == 0 || verses[row - 1].address < verses[row].address);
        }
    }

    static void expectCleanText() {
        EXPECT_FALSE(anyBodyHas(u"[{}\\\\\u00B6\u2019\\x00-\\x1F]"_s));
        EXPECT_FALSE(anyBodyHas(u"^$|^ | $|  "_s));
        EXPECT_FALSE(anyBodyHas(u"[,;:.!?][\\p{L}]|\\p{Ll}\\p{Lu}"_s));
    }

    static inline ToolRun run;
    static inline QList<StoredVerse> verses;
    static inline QList<QVariantList> info;
};

constexpr char KingJamesName[] = "kjv";
constexpr char KingJamesFile[] = "KJV.mdb";
constexpr char SpanishName[] = "spanish";
constexpr char SpanishFile[] = "Spanish.mdb";

using KingJames = InstalledText<KingJamesName, KingJamesFile>;
using Spanish = InstalledText<SpanishName, SpanishFile>;

const QString Marker = QChar(30);

} // namespace

TEST_F(KingJames, holdsEveryVerseInOrder) {
    EXPECT_EQ(verses.size(), 31102);
    expectCanonicalOrder();
    QSet<int> booksSeen;
    QSet<std::pair<int, int>> chapters;
    for (const StoredVerse& verse : verses) {
        booksSeen.insert(verse.address.book);
        chapters.insert({verse.address.book, verse.address.chapter});
    }
    EXPECT_EQ(booksSeen.size(), 66);
    EXPECT_EQ(chapters.size(), 1189);
}

TEST_F(KingJames, isCleanPlainText) {
    expectCleanText();
    EXPECT_EQ(body(1, 1, 1), u"In the beginning God created the heaven and the earth."_s);
    EXPECT_EQ(
        body(2, 6, 3),
        u"And I appeared unto Abraham, unto Isaac, and unto Jacob, by the name of God Almighty, "
        u"but by my name JEHOVAH was I not known to them."_s);
    EXPECT_TRUE(body(10, 21, 7).contains(u"because of the LORD's oath"_s));
}

TEST_F(KingJames, hasTitlesOfPsalmsAndNeitherLetterNamesNorSubscriptions) {
    EXPECT_TRUE(body(19, 3, 1).startsWith(
        u"A Psalm of David, when he fled from Absalom his son. LORD, how are they"_s));
    EXPECT_TRUE(body(19, 119, 9).startsWith(u"Wherewithal shall a young man"_s));
    EXPECT_TRUE(body(45, 16, 27).endsWith(u"through Jesus Christ for ever. Amen."_s));
    EXPECT_TRUE(body(66, 22, 21).endsWith(u"be with you all. Amen."_s));
}

TEST_F(KingJames, hasRedLettersIn2028Verses) {
    int red = 0;
    int largestStart = 0;
    int largestLength = 0;
    for (const StoredVerse& verse : verses) {
        if (!verse.isRed())
            continue;
        ++red;
        largestStart = std::max(largestStart, verse.redStart());
        largestLength = std::max(largestLength, verse.redLength());
        EXPECT_GE(verse.address.book, 40);
        EXPECT_EQ(verse.body[4], u':');
        EXPECT_LE(8 + verse.redStart() + verse.redLength(), verse.body.size());
    }
    EXPECT_EQ(red, 2028);
    EXPECT_EQ(largestStart, 201);
    EXPECT_EQ(largestLength, 309);
}

TEST_F(KingJames, bridgesNarrowGapsOfRedAndTakesTheLongestRunOtherwise) {
    EXPECT_EQ(body(44, 1, 4).first(8), Marker + u"100:077"_s);
    EXPECT_EQ(body(42, 8, 45).first(8), Marker + u"016:015"_s);
    EXPECT_EQ(body(43, 21, 17).first(8), Marker + u"034:036"_s);
    EXPECT_EQ(body(43, 21, 17).sliced(8 + 34, 36), u"Simon, son of Jonas, lovest thou me?"_s);
}

TEST_F(KingJames, saysWhereItIsFrom) {
    ASSERT_EQ(info.size(), 1);
    EXPECT_EQ(info[0][0], u"King James Version"_s);
    EXPECT_TRUE(info[0][1].toString().startsWith(u"SWORD module engKJV2006eb "_s));
    EXPECT_EQ(info[0][2], u"Public Domain"_s);
}

TEST_F(Spanish, keepsItsOwnVersesAndGaps) {
    EXPECT_EQ(verses.size(), 31084);
    expectCanonicalOrder();
    EXPECT_FALSE(body(36, 1, 1).isEmpty());
    EXPECT_TRUE(body(44, 19, 41).isEmpty());
    EXPECT_TRUE(body(47, 13, 14).isEmpty());
}

TEST_F(Spanish, isCleanPlainText) {
    expectCleanText();
    EXPECT_EQ(body(1, 1, 1), u"EN el principio crió Dios los cielos y la tierra."_s);
    EXPECT_TRUE(body(1, 2, 12).contains(u"hay allí también bdelio"_s));
    EXPECT_TRUE(body(5, 32, 19).startsWith(u"Y viólo Jehová"_s));
    EXPECT_TRUE(body(19, 119, 9).startsWith(u"¿Con qué"_s));
    EXPECT_TRUE(body(47, 13, 13).endsWith(u"con vosotros todos. Amén."_s));
}

TEST_F(Spanish, hasNoRedLetters) {
    for (const StoredVerse& verse : verses)
        ASSERT_FALSE(verse.isRed());
}
