// Each kind of value comes over as what it is.
#include "plugins/jet/JetTest.h"

#include <limits>

namespace {

struct Written {
    JetVersion version;
    quint32 key;
    std::string name;
};

class JetTypes : public JetTest, public testing::WithParamInterface<Written> {
protected:
    // The values of a column of this type, after the conversion.
    QVariantList column(const JetFieldOutline& field, const QVariantList& values) const {
        QVariantList result;
        for (const QVariantList& row :
             converted(withField(GetParam().version, field, values, GetParam().key)))
            result.append(row.value(0));
        return result;
    }
};

INSTANTIATE_TEST_SUITE_P(
    , JetTypes,
    testing::Values(
        Written{JetVersion::Jet3, 0, "Jet3"}, Written{JetVersion::Jet4, 0, "Jet4"},
        Written{JetVersion::Ace, 0, "Ace"}, Written{JetVersion::Jet3, 0xd1e2f304, "EncodedJet3"},
        Written{JetVersion::Jet4, 0xd1e2f304, "EncodedJet4"}),
    [](const auto& suite) { return suite.param.name; });

TEST_P(JetTypes, booleansAreOneOrZeroAndNeverNull) {
    EXPECT_EQ(
        column({u"x"_s, JetType::Bool}, {true, false, QVariant()}),
        QVariantList({number(1), number(0), number(0)}));
}

TEST_P(JetTypes, aByteHasNoSign) {
    EXPECT_EQ(
        column({u"x"_s, JetType::Byte}, {0, 255, QVariant()}),
        QVariantList({number(0), number(255), QVariant()}));
}

TEST_P(JetTypes, integersHaveASign) {
    EXPECT_EQ(
        column({u"x"_s, JetType::Integer}, {-32768, 32767, -1}),
        QVariantList({number(-32768), number(32767), number(-1)}));
}

TEST_P(JetTypes, longIntegersHaveASign) {
    constexpr qlonglong least = std::numeric_limits<qint32>::min();
    EXPECT_EQ(
        column({u"x"_s, JetType::Long}, {least, 2147483647, QVariant()}),
        QVariantList({number(least), number(2147483647), QVariant()}));
}

TEST_P(JetTypes, singlesDoublesAndDatesAreReal) {
    EXPECT_EQ(
        column({u"x"_s, JetType::Single}, {1.5, -0.25, QVariant()}),
        QVariantList({1.5, -0.25, QVariant()}));
    EXPECT_EQ(column({u"x"_s, JetType::Double}, {0.1, -1e300}), QVariantList({0.1, -1e300}));
    EXPECT_EQ(column({u"x"_s, JetType::Date}, {36526.5}), QVariantList({36526.5}));
}

TEST_P(JetTypes, moneyCountsTenThousandths) {
    EXPECT_EQ(
        column({u"x"_s, JetType::Money}, {12345678LL, -5000LL}), QVariantList({1234.5678, -0.5}));
}

TEST_P(JetTypes, aNumericIsASignAndFourNumbersTheHighestFirst) {
    const QByteArray value =
        QByteArray(1, '\1') + QByteArray(8, '\0') + longBytes(1) + longBytes(2);
    EXPECT_EQ(column({u"x"_s, JetType::Numeric}, {value}), QVariantList({-4294967298.0}));
}

TEST_P(JetTypes, textsKeepNullEmptyAndBlankApart) {
    for (const JetType type : {JetType::Text, JetType::Memo})
        EXPECT_EQ(
            column({u"x"_s, type, 100}, {QVariant(), u""_s, u" "_s, u"caf\xe9"_s, QVariant()}),
            QVariantList({QVariant(), u""_s, u" "_s, u"caf\xe9"_s, QVariant()}));
}

TEST_P(JetTypes, aGuidIsWrittenOut) {
    QByteArray bytes;
    for (int byte = 0; byte < 16; ++byte)
        bytes += char(byte * 16 + byte);
    EXPECT_EQ(
        column({u"x"_s, JetType::Guid}, {bytes, QVariant()}),
        QVariantList({u"{33221100-5544-7766-8899-AABBCCDDEEFF}"_s, QVariant()}));
}

TEST_P(JetTypes, binariesAndObjectsAreBytes) {
    const QByteArray bytes("\0\1\xff\xfe\0", 5);
    const QByteArray large = bytes.repeated(3000);
    EXPECT_EQ(column({u"x"_s, JetType::Bytes, 50}, {bytes}), QVariantList({bytes}));
    EXPECT_EQ(
        column({u"x"_s, JetType::Binary, 50}, {bytes, QVariant()}),
        QVariantList({bytes, QVariant()}));
    EXPECT_EQ(
        column({u"x"_s, JetType::Ole}, {bytes, large, QVariant()}),
        QVariantList({bytes, large, QVariant()}));
}

TEST_P(JetTypes, manyFieldsOfARowKeepTheirPlaces) {
    JetTableOutline table{u"Table1"_s, {}, {}};
    QVariantList values;
    for (int field = 0; field < 60; ++field) {
        const bool isText = field % 3 == 0;
        table.fields.append({u"f%1"_s.arg(field), isText ? JetType::Text : JetType::Long, 100});
        values.append(isText ? QVariant(u"text %1 "_s.arg(field).repeated(4)) : number(field));
    }
    values[7] = QVariant();
    values[9] = QVariant();
    table.rows = {{values}, {values}};
    JetFixture fixture(GetParam().version, GetParam().key);
    fixture.add(table);
    EXPECT_EQ(converted(fixture), QList<QVariantList>({values, values}));
}

TEST_P(JetTypes, aRowThatIsOlderThanAFieldHasNullThere) {
    JetTableOutline table{
        u"Table1"_s,
        {{u"a"_s, JetType::Long}, {u"b"_s, JetType::Long}, {u"c"_s, JetType::Bool}},
        {{{1, 2, true}}, {{3}}}};
    JetFixture fixture(GetParam().version, GetParam().key);
    fixture.add(table);
    EXPECT_EQ(
        converted(fixture),
        QList<QVariantList>(
            {{number(1), number(2), number(1)}, {number(3), QVariant(), number(0)}}));
}

// The Null bit of the newer field would lie in the bytes of another row.
TEST_P(JetTypes, aRowThatIsOlderThanADeletedAndANewerFieldHasNullThere) {
    JetTableOutline table{
        u"Table1"_s,
        {{u"a"_s, JetType::Long, 0, false, 0}, {u"c"_s, JetType::Long, 0, false, 9}},
        {{{1, 2}}, {{3}, JetRowOutline::Plain, 2}}};
    JetFixture fixture(GetParam().version, GetParam().key);
    fixture.add(table);
    EXPECT_EQ(
        converted(fixture), QList<QVariantList>({{number(1), number(2)}, {number(3), QVariant()}}));
}

} // namespace
