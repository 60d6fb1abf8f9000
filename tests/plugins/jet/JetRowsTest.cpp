// Which rows a table has, and in which order; how its columns are found.
#include "plugins/jet/JetTest.h"

namespace {

class JetRowsTest : public JetTest, public testing::WithParamInterface<JetVersion> {
protected:
    // Rows "row 1", "row 2" ... of these fates, behind a text that fills pages.
    static JetTableOutline table(const QList<JetRowOutline::Fate>& fates) {
        JetTableOutline result{
            u"Table1"_s, {{u"text"_s, JetType::Text, 200}, {u"number"_s, JetType::Long}}, {}};
        for (int row = 0; row < fates.size(); ++row)
            result.rows.append({{u"row %1 "_s.arg(row).repeated(10), row}, fates[row]});
        return result;
    }

    QList<qlonglong> numbers(const JetTableOutline& table) const {
        JetFixture fixture(GetParam());
        fixture.add(table);
        QList<qlonglong> result;
        for (const QVariantList& row : converted(fixture))
            result.append(row[1].toLongLong());
        return result;
    }
};

INSTANTIATE_TEST_SUITE_P(
    , JetRowsTest, testing::Values(JetVersion::Jet3, JetVersion::Jet4),
    [](const auto& suite) { return suite.param == JetVersion::Jet3 ? "Jet3" : "Jet4"; });

using enum JetRowOutline::Fate;

TEST_P(JetRowsTest, deletedRowsStayBehind) {
    EXPECT_EQ(
        numbers(table({Deleted, Plain, Deleted, Deleted, Plain, Deleted})),
        QList<qlonglong>({1, 4}));
}

TEST_P(JetRowsTest, movedRowsKeepTheirPlace) {
    EXPECT_EQ(
        numbers(table({Plain, Moved, Plain, Moved, Deleted, Moved, Plain})),
        QList<qlonglong>({0, 1, 2, 3, 5, 6}));
}

TEST_P(JetRowsTest, rowsOfManyPagesKeepTheirOrder) {
    QList<JetRowOutline::Fate> fates(500, Plain);
    for (int row = 0; row < 500; row += 7)
        fates[row] = Moved;
    QList<qlonglong> expected;
    for (int row = 0; row < 500; ++row)
        expected.append(row);
    EXPECT_EQ(numbers(table(fates)), expected);
}

TEST_P(JetRowsTest, aMapOnPagesOfItsOwnServesAsWell) {
    JetTableOutline outline = table(QList<JetRowOutline::Fate>(100, Plain));
    outline.mapOfPages = true;
    EXPECT_EQ(numbers(outline).size(), 100);
}

TEST_P(JetRowsTest, aTableWithoutRowsIsMade) {
    EXPECT_EQ(numbers(table({})), QList<qlonglong>());
    EXPECT_EQ(fieldsOf(path(), u"Table1"_s), QStringList({u"text"_s, u"number"_s}));
}

TEST_P(JetRowsTest, columnsStandInTheOrderOfTheirOrdinals) {
    JetTableOutline outline{
        u"Table1"_s,
        {{u"third"_s, JetType::Text, 50, false, 0, 7},
         {u"first"_s, JetType::Long, 0, false, 1, 0},
         {u"second"_s, JetType::Text, 50, false, 2, 3}},
        {{{u"c"_s, 1, u"b"_s}}}};
    JetFixture fixture(GetParam());
    fixture.add(outline);
    EXPECT_EQ(converted(fixture), QList<QVariantList>({{number(1), u"b"_s, u"c"_s}}));
    EXPECT_EQ(fieldsOf(path(), u"Table1"_s), QStringList({u"first"_s, u"second"_s, u"third"_s}));
}

TEST_P(JetRowsTest, columnsOfOneOrdinalStandByName) {
    JetTableOutline outline{
        u"Table1"_s,
        {{u"b"_s, JetType::Long, 0, false, 0, 4},
         {u"c"_s, JetType::Long, 0, false, 1, 0},
         {u"a"_s, JetType::Long, 0, false, 2, 4}},
        {{{1, 2, 3}}}};
    JetFixture fixture(GetParam());
    fixture.add(outline);
    converted(fixture);
    EXPECT_EQ(fieldsOf(path(), u"Table1"_s), QStringList({u"c"_s, u"a"_s, u"b"_s}));
}

TEST_P(JetRowsTest, columnsBehindADeletedOneKeepTheirValues) {
    JetTableOutline outline{
        u"Table1"_s,
        {{u"a"_s, JetType::Text, 50, false, 1}, {u"b"_s, JetType::Long, 0, false, 9}},
        {{{u"x"_s, 5}}, {{QVariant(), 6}}, {{u"y"_s, QVariant()}}}};
    JetFixture fixture(GetParam());
    fixture.add(outline);
    EXPECT_EQ(
        converted(fixture),
        QList<QVariantList>({{u"x"_s, number(5)}, {QVariant(), number(6)}, {u"y"_s, QVariant()}}));
}

TEST_P(JetRowsTest, aDefinitionOfSeveralPagesIsRead) {
    JetTableOutline outline{u"Table1"_s, {}, {{}}};
    for (int field = 0; field < 200; ++field) {
        outline.fields.append(
            {u"a field with a long name, and a number %1"_s.arg(field), JetType::Integer});
        outline.rows[0].values.append(field);
    }
    JetFixture fixture(GetParam());
    fixture.add(outline);
    const QList<QVariantList> rows = converted(fixture);
    ASSERT_EQ(rows.size(), 1);
    EXPECT_EQ(rows[0].size(), 200);
    EXPECT_EQ(rows[0].value(199), number(199));
}

TEST_P(JetRowsTest, namesMayHoldWhatSqlUses) {
    JetTableOutline outline{
        u"my \"table\"; --"_s,
        {{u"unique"_s, JetType::Long}, {u"it's [a] \"field\""_s, JetType::Long}},
        {{{1, 2}}}};
    JetFixture fixture(GetParam());
    fixture.add(outline);
    converted(fixture, outline.name);
    EXPECT_EQ(fieldsOf(path(), outline.name), QStringList({u"unique"_s, u"it's [a] \"field\""_s}));
}

TEST_P(JetRowsTest, allTablesOfTheUserComeOverAndNoneOfTheEngine) {
    JetFixture fixture(GetParam());
    for (const auto& [name, flags] :
         {std::pair(u"One"_s, 0u), std::pair(u"two"_s, 8u), std::pair(u"MSysOther"_s, 0u),
          std::pair(u"Hidden"_s, 0x80000000u), std::pair(u"Hidden too"_s, 2u)})
        fixture.add({name, {{u"a"_s, JetType::Long}}, {{{1}}}, 0, -1, flags});
    EXPECT_EQ(converted(fixture, u"One"_s).size(), 1);
    EXPECT_EQ(rowsOf(path(), u"two"_s).size(), 1);
    for (const QString& name :
         {u"MSysObjects"_s, u"MSysOther"_s, u"Hidden"_s, u"Hidden too"_s, u"A query"_s})
        EXPECT_THROW(rowsOf(path(), name), Error) << qPrintable(name);
}

} // namespace
