// What tables cannot say about the sigmoidal models: an export that has no name in the catalogue, and an output
// slot that is read.

#include "frame/call.h"
#include "frame/exports.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace ansatz::test {
namespace {

using Slots = std::map<std::string, double>;

Outcome boltzman1(unsigned flags, double x, int indicator = 0, int nParams = 3) {
    static const FitFunction function = exported_routine("Boltzman1");
    return call({.function = function}, {flags, nParams, {5, 1, 2}, {x}, indicator});
}

TEST(Boltzman1, IsReachedByItsExportOnly) {
    EXPECT_EQ(get_funx("Boltzman1"), nullptr);
    EXPECT_EQ(boltzman1(FF_QUERY_DERIV, 2).status, 1);
}

// 5 + 1 levels around log centre 2: one decade above it 10/11 of the way up.
TEST(Boltzman1, RisesOverTheLogarithmOfTheDose) {
    EXPECT_EQ(boltzman1(FF_VALUE | FF_DERIV, 2).written, (Slots{{"y1", 3}}));
    const Outcome centre = boltzman1(FF_DERIV, 2);
    EXPECT_EQ(centre.written, (Slots{{"y1", 3}, {"d1", 0.5}, {"d2", 0.5}, {"d3", -2.302585093}}));
    const Outcome above = boltzman1(FF_DERIV, 3);
    EXPECT_DOUBLE_EQ(above.y[1], 51.0 / 11);
    EXPECT_DOUBLE_EQ(above.dyda[1], 10.0 / 11);
    EXPECT_NEAR(above.dyda[2], 1.0 / 11, 1e-16);
    EXPECT_NEAR(above.dyda[3], -2.302585093 * 40 / 121, 1e-15);
}

TEST(Boltzman1, OverflowAndPendingErrorsGiveTheBottom) {
    const Slots bottom = {{"y1", 1}}, bottom_slopes = {{"y1", 1}, {"d1", 0}, {"d2", 1}, {"d3", 0}};
    for (const auto& [x, indicator] : {std::pair{-400.0, 0}, {2.0, ERANGE}}) {
        const Outcome value = boltzman1(FF_VALUE, x, indicator), slopes = boltzman1(FF_DERIV, x, indicator);
        EXPECT_EQ(value.written, bottom);
        EXPECT_EQ(slopes.written, bottom_slopes);
        EXPECT_EQ(value.status + value.indicator + slopes.status + slopes.indicator, 0);
    }
    EXPECT_EQ(boltzman1(FF_VALUE, 2, EDOM).written, bottom);
    const Outcome passed_by = boltzman1(FF_DERIV, 2, EDOM);
    EXPECT_EQ(passed_by.y[1], 3);
    EXPECT_EQ(passed_by.indicator, EDOM);
}

TEST(Boltzman1, WantsParametersForTheValueOnly) {
    EXPECT_EQ(boltzman1(FF_VALUE, 2, 0, 0).status, 1);
    EXPECT_EQ(boltzman1(FF_VALUE, 2, 0, 0).written, (Slots{{"y1", MISSING_VALUE}}));
    EXPECT_EQ(boltzman1(FF_DERIV, 2, 0, 0).status, 0);
}

TEST(SWeibull2, PendingDomainErrorScalesTheSlopeByTheRate) {
    const double P[] = {0, 5, 1, 2, 1};
    double x[] = {0, 1}, y[2] = {}, dyda[] = {0, 0, 0, 0, 3};
    errno = EDOM;
    EXPECT_EQ(find("SWeibull2").function(FF_DERIV, 0, 4, 0, 0, P, 0, x, y, dyda), 1);
    EXPECT_EQ(errno, 0);
    for (const double marked : {y[1], dyda[1], dyda[2], dyda[3]}) EXPECT_EQ(marked, MISSING_VALUE);
    EXPECT_EQ(dyda[4], 3 * MISSING_VALUE);
}

} // namespace
} // namespace ansatz::test
