#include "basic/Conversion.h"

#include "basic/Error.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::optional<Error::Number> errorOf(const std::function<void()>& operation) {
    try {
        operation();
    } catch (const Error& error) {
        return error.number();
    }
    return std::nullopt;
}

TEST(Conversion, nullIsAValueWithoutAValue) {
    EXPECT_TRUE(isNull(QVariant()));
    EXPECT_FALSE(isNull(QVariant(0)));
    EXPECT_FALSE(isNull(QVariant(u""_s)));
    EXPECT_FALSE(isNull(QVariant(QString())));
}

TEST(Conversion, toTextWritesNumbersWithoutBlanks) {
    EXPECT_EQ(toText(QVariant(12LL)), u"12"_s);
    EXPECT_EQ(toText(QVariant(12.0)), u"12"_s);
    EXPECT_EQ(toText(QVariant(-0.5)), u"-.5"_s);
    EXPECT_EQ(toText(QVariant(u" as it is "_s)), u" as it is "_s);
    EXPECT_EQ(errorOf([] { toText(QVariant()); }), Error::InvalidUseOfNull);
}

TEST(Conversion, toNumberTakesNumbersAndNumericTexts) {
    EXPECT_EQ(toNumber(QVariant(7LL)), 7);
    EXPECT_EQ(toNumber(QVariant(u" 12 "_s)), 12);
    EXPECT_EQ(toNumber(QVariant(u"-1.5"_s)), -1.5);
    EXPECT_EQ(errorOf([] { toNumber(QVariant()); }), Error::InvalidUseOfNull);
    for (const QString& text : {u""_s, u"x"_s, u"1 2"_s, u"12x"_s, u"nan"_s, u"inf"_s})
        EXPECT_EQ(errorOf([&] { toNumber(QVariant(text)); }), Error::TypeMismatch)
            << text.toStdString();
}

TEST(Conversion, halvesGoToTheEvenNeighbour) {
    EXPECT_EQ(toInteger(QVariant(0.5)), 0);
    EXPECT_EQ(toInteger(QVariant(1.5)), 2);
    EXPECT_EQ(toInteger(QVariant(2.5)), 2);
    EXPECT_EQ(toInteger(QVariant(-1.5)), -2);
    EXPECT_EQ(toInteger(QVariant(u"2.6"_s)), 3);
}

TEST(Conversion, whatDoesNotFitIsAnOverflow) {
    EXPECT_EQ(toInteger(QVariant(2147483647.0)), 2147483647);
    EXPECT_EQ(errorOf([] { toInteger(QVariant(2147483648.0)); }), Error::OverflowNumber);
    EXPECT_EQ(toInt16(32767.4), 32767);
    EXPECT_EQ(toInt16(-32768), -32768);
    EXPECT_EQ(errorOf([] { toInt16(32767.5); }), Error::OverflowNumber);
    EXPECT_EQ(errorOf([] { toInt16(-32769); }), Error::OverflowNumber);
    EXPECT_EQ(toByte(255), 255);
    EXPECT_EQ(errorOf([] { toByte(-1); }), Error::OverflowNumber);
    EXPECT_EQ(errorOf([] { toByte(256); }), Error::OverflowNumber);
    EXPECT_EQ(errorOf([] { toInt16(std::nan("")); }), Error::OverflowNumber);
    EXPECT_EQ(toSingle(0.5), 0.5F);
    EXPECT_EQ(errorOf([] { toSingle(1e300); }), Error::OverflowNumber);
    EXPECT_EQ(errorOf([] { toSingle(std::nan("")); }), Error::OverflowNumber);
}

} // namespace
