// A file that is not whole is refused with what is wrong, and never touched.
#include "plugins/jet/JetTest.h"

#include <random>

namespace {

class JetDamage : public JetTest, public testing::WithParamInterface<JetVersion> {
protected:
    JetDamage()
        : fixture(GetParam()) {
        fixture.add(verseTable());
        good = fixture.bytes();
    }

    QByteArray with(qsizetype at, const QByteArray& bytes) const {
        return QByteArray(good).replace(at, bytes.size(), bytes);
    }

    qsizetype page(qsizetype offset) const { return offset / fixture.format().pageSize; }

    // The slot of a row in the first page of rows: where the row begins, and its flags.
    qsizetype slot(int row) const {
        return fixture.dataPages(0).first() + fixture.format().rowCount + 2 + 2 * row;
    }
    int slotValue(int row) const {
        return uchar(good[slot(row)]) + 256 * uchar(good[slot(row) + 1]);
    }
    qsizetype rowStart(int row) const {
        return fixture.dataPages(0).first() + (slotValue(row) & 0x1fff);
    }

    // A file with a table of these fields, which has no rows.
    QByteArray withFields(const QList<JetFieldOutline>& fields) const {
        JetFixture other(GetParam());
        other.add({u"Table1"_s, fields, {}});
        return other.bytes();
    }

    JetFixture fixture;
    QByteArray good;
};

INSTANTIATE_TEST_SUITE_P(
    , JetDamage, testing::Values(JetVersion::Jet3, JetVersion::Jet4),
    [](const auto& suite) { return suite.param == JetVersion::Jet3 ? "Jet3" : "Jet4"; });

TEST_P(JetDamage, fewerRowsThanTheTableClaims) {
    const qsizetype count = fixture.definition(0) + (GetParam() == JetVersion::Jet3 ? 12 : 16);
    EXPECT_EQ(
        refusal(with(count, longBytes(31102))),
        u"kjv.mdb is damaged: table tblMain, 4 of 31102 rows readable."_s);
}

TEST_P(JetDamage, aPageOfAnotherKind) {
    const qsizetype data = fixture.dataPages(0).first();
    EXPECT_EQ(
        refusal(with(data, QByteArray(1, '\4'))),
        u"kjv.mdb is damaged: table tblMain, 0 of 4 rows readable; page %1 is none of this table."_s
            .arg(page(data)));
}

TEST_P(JetDamage, aPageOfAnotherOwner) {
    const qsizetype moved = fixture.dataPages(0).last();
    EXPECT_EQ(
        refusal(with(moved + 4, longBytes(2))),
        u"kjv.mdb is damaged: table tblMain, 2 of 4 rows readable; page %1 is none of this table."_s
            .arg(page(moved)));
}

TEST_P(JetDamage, aPointerToARowOfItsOwn) {
    const auto number = static_cast<quint32>(page(fixture.dataPages(0).first()));
    EXPECT_EQ(
        refusal(with(rowStart(2), longBytes(number << 8))),
        u"kjv.mdb is damaged: table tblMain, 2 of 4 rows readable; "
        u"a pointer leads to a row of its own."_s);
}

TEST_P(JetDamage, aRowOutsideOfItsPage) {
    for (const int start : {0, 0x1fff, 5000, 10})
        EXPECT_EQ(
            refusal(with(slot(1), shortBytes(start))),
            u"kjv.mdb is damaged: table tblMain, 1 of 4 rows readable; "
            u"a row does not lie within its page."_s);
}

TEST_P(JetDamage, morePlacesForRowsThanAPageHas) {
    const qsizetype count = fixture.dataPages(0).first() + fixture.format().rowCount;
    EXPECT_EQ(
        refusal(with(count, shortBytes(0xffff))),
        u"kjv.mdb is damaged: table tblMain, 0 of 4 rows readable; a page claims 65535 rows."_s);
}

TEST_P(JetDamage, aRowThatClaimsTooManyColumns) {
    EXPECT_EQ(
        refusal(with(rowStart(1), QByteArray(1, '\xfa'))),
        u"kjv.mdb is damaged: table tblMain, 1 of 4 rows readable; a row claims 250 columns."_s);
}

TEST_P(JetDamage, aRowThatIsCutOff) {
    const int start = slotValue(0) & 0x1fff; // where the row behind it ends
    EXPECT_TRUE(refusal(with(slot(1), shortBytes(start - 2))).endsWith(u"a row is cut off."_s));
}

TEST_P(JetDamage, aDefinitionThatIsNone) {
    EXPECT_EQ(
        refusal(with(fixture.definition(0), QByteArray(1, '\1'))),
        u"kjv.mdb is damaged: table tblMain, page %1 is no part of a definition."_s.arg(
            page(fixture.definition(0))));
}

TEST_P(JetDamage, aContinuationOfADefinitionThatIsNone) {
    const qsizetype data = fixture.dataPages(0).first();
    EXPECT_EQ(
        refusal(with(fixture.definition(0) + 4, longBytes(quint32(page(data))))),
        u"kjv.mdb is damaged: table tblMain, page %1 is no part of a definition."_s.arg(
            page(data)));
}

TEST_P(JetDamage, aDefinitionWithoutEnd) {
    const auto own = static_cast<quint32>(page(fixture.definition(0)));
    EXPECT_EQ(
        refusal(with(fixture.definition(0) + 4, longBytes(own))),
        u"kjv.mdb is damaged: table tblMain, the pages of its definition have no end."_s);
}

TEST_P(JetDamage, aMapOfPagesThatIsNone) {
    const qsizetype pointer = fixture.definition(0) + (GetParam() == JetVersion::Jet3 ? 35 : 55);
    const auto data = static_cast<quint32>(page(fixture.dataPages(0).first()));
    EXPECT_EQ(
        refusal(with(pointer, longBytes(data << 8))),
        u"kjv.mdb is damaged: table tblMain, its map of pages is none."_s);
}

TEST_P(JetDamage, columnsWithoutANameOrWithOneName) {
    EXPECT_EQ(
        refusal(withFields({{u""_s, JetType::Long}})),
        u"kjv.mdb is damaged: table Table1, one of its columns has no name."_s);
    EXPECT_EQ(
        refusal(withFields({{u"body"_s, JetType::Long}, {u"Body"_s, JetType::Long}})),
        u"kjv.mdb is damaged: table Table1, it has the column \"Body\" twice."_s);
}

TEST_P(JetDamage, columnsOfAnUnknownKind) {
    EXPECT_EQ(
        refusal(withFields({{u"x"_s, JetType(0x77)}})),
        u"kjv.mdb is damaged: table Table1, its column \"x\" is of an unknown kind (119)."_s);
}

TEST_P(JetDamage, aTranslationWithoutOneOfItsFields) {
    for (int field = 0; field < 6; ++field) {
        JetTableOutline verses = verseTable();
        const QString name = verses.fields[field].name;
        verses.fields[field].name = u"other"_s;
        JetFixture other(GetParam());
        other.add(verses);
        EXPECT_EQ(
            refusal(other.bytes()),
            u"kjv.mdb has no field \"%1\" in its table tblMain."_s.arg(name));
    }
}

TEST_P(JetDamage, aFileWithoutTables) {
    EXPECT_EQ(refusal(JetFixture(GetParam()).bytes()), u"kjv.mdb holds no tables."_s);
}

TEST_P(JetDamage, aFileCutOffAnywhere) {
    std::mt19937 random(7);
    for (int round = 0; round < 50; ++round) {
        const auto size = 20 + random() % static_cast<unsigned>(good.size() - 20);
        EXPECT_TRUE(refusal(good.left(size)).startsWith(u"kjv.mdb is damaged: "_s)) << size;
    }
}

TEST_P(JetDamage, anotherTableIsNoExcuse) {
    JetFixture two(GetParam());
    two.add(verseTable());
    two.add({u"Table1"_s, {{u"x"_s, JetType::Long}}, {{{1}}}, 0, 2});
    EXPECT_EQ(refusal(two.bytes()), u"kjv.mdb is damaged: table Table1, 1 of 2 rows readable."_s);
}

class OtherFiles : public JetTest {};

TEST_F(OtherFiles, anEncryptedFileIsRefused) {
    EXPECT_EQ(
        refusal(withField(JetVersion::Ace, {u"x"_s, JetType::Long}, {1}, 0x1234).bytes()),
        u"kjv.mdb is encrypted. Open it in the program that it is from, take the password away, "
        u"and try again."_s);
}

TEST_F(OtherFiles, aVersionThatNobodyKnowsIsRefused) {
    QByteArray bytes = verseFile();
    bytes[0x14] = '\7';
    EXPECT_EQ(
        refusal(bytes),
        u"kjv.mdb is a Jet database of a version that this program does not know."_s);
}

TEST_F(OtherFiles, aFileOfNeitherKindIsRefused) {
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("\0\1\0\0", 4), QByteArray("\0\1\0\0Standard Jet", 16),
          QByteArray("Standard Jet DB"), QByteArray("SQLite format 3\0", 16),
          QByteArray("SQLite format 3\0", 16) + QByteArray(4080, '\0'), QByteArray(9000, 'x')})
        EXPECT_EQ(
            refusal(bytes),
            u"%1 is neither a Jet database nor a data file of Lumenvia."_s.arg(path()));
}

TEST_F(OtherFiles, aFileThatIsNotThereIsRefused) {
    EXPECT_EQ(
        errorTextOf([&] { convertJetFile(path(), options()); }),
        u"The file %1 does not exist."_s.arg(path()));
    EXPECT_NE(errorTextOf([&] { convertJetFile(path(u"."_s), options()); }), QString());
}

} // namespace
