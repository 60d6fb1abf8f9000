#include "basic/Error.h"
#include "basic/Flag.h"

#include <gtest/gtest.h>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

TEST(Error, keepsItsNumberAndItsText) {
    const Error error(Error::NoCurrentRecord, u"Es gibt keine Zeile – größer"_s);
    EXPECT_EQ(error.number(), Error::NoCurrentRecord);
    EXPECT_EQ(error.text(), u"Es gibt keine Zeile – größer"_s);
    EXPECT_STREQ(error.what(), "Es gibt keine Zeile – größer");
}

TEST(Attempt, tellsWhetherTheStatementRanToItsEnd) {
    EXPECT_TRUE(attempt([] {}));
    EXPECT_FALSE(attempt([] { throw Error(Error::TypeMismatch, u"x"_s); }));
}

TEST(Attempt, leavesAnAssignmentThatFailedUndone) {
    const auto failing = []() -> int { throw Error(Error::TypeMismatch, u"x"_s); };
    int value = 5;
    attempt([&] { value = failing(); });
    EXPECT_EQ(value, 5);
}

TEST(Attempt, ignoresErrorsAndNothingElse) {
    EXPECT_THROW(attempt([] { throw std::runtime_error("a fault"); }), std::runtime_error);
}

TEST(Flag, isMinusOneOrZero) {
    EXPECT_EQ(toFlag(true), -1);
    EXPECT_EQ(toFlag(false), 0);
    EXPECT_EQ(On, -1);
    EXPECT_EQ(Off, 0);
}

} // namespace
