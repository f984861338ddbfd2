// The bounded power and the Langevin function: what the models that use them do not show.

#include "special/bounded_pow.h"
#include "special/langevin.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <limits>

namespace ansatz {
namespace {

class BoundedPow : public testing::Test {
protected:
    void SetUp() override { errno = 0; }
};

TEST_F(BoundedPow, BoundsBaseAndExponentOnlyTogether) {
    EXPECT_DOUBLE_EQ(bounded_pow(150, 150), 2.8702848252332551433e+300);
    EXPECT_DOUBLE_EQ(bounded_pow(HUGE_VAL, 1e300), 2.8702848252332551433e+300);
    EXPECT_DOUBLE_EQ(bounded_pow(150, 2), 22500);
    EXPECT_DOUBLE_EQ(bounded_pow(2, 150), 0x1p150);
    EXPECT_DOUBLE_EQ(bounded_pow(140, 141), 140 * 2.8702848252332551433e+300);
    EXPECT_DOUBLE_EQ(bounded_pow(141, 140), 7.7745591440660413031e+300);
    EXPECT_EQ(errno, 0);
    EXPECT_EQ(bounded_pow(0, 3), 0);
    EXPECT_FALSE(std::signbit(bounded_pow(-0.0, 3)));
}

TEST_F(BoundedPow, MarksAnErrorAndLeavesItSet) {
    EXPECT_EQ(bounded_pow(10, 400), MISSING_VALUE);
    EXPECT_EQ(errno, ERANGE);
    errno = 0;
    EXPECT_EQ(bounded_pow(-1, 0.5), MISSING_VALUE);
    EXPECT_EQ(errno, EDOM);
    EXPECT_EQ(bounded_pow(2, 2), MISSING_VALUE) << "an indicator that was set before counts";
    EXPECT_DOUBLE_EQ(bounded_pow(150, 150), 2.8702848252332551433e+300) << "but not where both are bounded";
    double result = 0;
    EXPECT_FALSE(try_bounded_pow(10, 400, &result));
    EXPECT_EQ(result, HUGE_VAL);
}

TEST_F(BoundedPow, PassesAMarkerOn) {
    EXPECT_EQ(bounded_pow(MISSING_VALUE, 2), MISSING_VALUE);
    EXPECT_EQ(bounded_pow(2, MISSING_VALUE), MISSING_VALUE);
    EXPECT_EQ(errno, 0);
}

TEST(LangevinFunction, TakesTheSeriesBelowItsBoundOnly) {
    EXPECT_EQ(langevin(0), 0);
    EXPECT_DOUBLE_EQ(langevin(0.00005), 0.000016666666663888889688);
    EXPECT_DOUBLE_EQ(langevin(-0.00009), -0.000029999999983800001902);
    // At the bound the closed form speaks: the rounding of e^(2t) alone makes an error of up to 5.6e-9.
    EXPECT_NEAR(langevin(0.0001), 0.0001 / 3, 1e-8);
    EXPECT_NE(langevin(0.0001), 0.0001 / 3 - 1e-12 / 45 + 2 * 1e-20 / 945);
    EXPECT_NEAR(langevin(1), 0.31303528549933130364, 4e-16);
    EXPECT_NEAR(langevin(-3), -0.67163648998035583776, 4e-16);
}

} // namespace
} // namespace ansatz
