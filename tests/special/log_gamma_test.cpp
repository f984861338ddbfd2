// The logarithm of the gamma function against values worked out with 60 digits, and what it reports.

#include "special/log_gamma.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <limits>

namespace ansatz {
namespace {

constexpr double eps = std::numeric_limits<double>::epsilon();

TEST(LogGamma, KeepsItsRelativeAccuracyForPositiveArguments) {
    constexpr struct {
        double x, want;
    } table[] = {{1e-300, 690.77552789821370518},
                 {1e-05, 11.512919692895825626},
                 {0.4999, 0.57256131860411841589},
                 {0.5, 0.57236494292470008707},
                 {0.7, 0.26086724653166656857},
                 {1.0000001, -5.772155829918507097e-8},
                 {1.4746, -0.12140524614171447834},
                 {1.5, -0.12078223763524522235},
                 {1.9999999, -4.2278430309861298194e-8},
                 {2.3, 0.1541894549596304745},
                 {2.5, 0.28468287047291915963},
                 {9.99, 12.77931521435019336},
                 {10, 12.801827480081469611},
                 {171, 706.57306224578734711},
                 {1e300, 6.8977552789821374147e+302}};
    for (const auto& [x, want] : table) EXPECT_NEAR(log_gamma(x), want, 7 * eps * std::fabs(want)) << x;
    EXPECT_EQ(log_gamma(1), 0);
    EXPECT_EQ(log_gamma(2), 0);
}

TEST(LogGamma, ReflectsNegativeArguments) {
    constexpr struct {
        double x, want;
    } table[] = {{-1e-300, 690.77552789821370518}, {-0.3, 1.4648400508576025305},
                 {-0.5, 1.2655121234846453965},    {-1.5, 0.86004701537648101451},
                 {-3.9882, 1.2795877348803390394}, {-20.25, -41.600961915340524302},
                 {-1000.5, -5914.4377011168518766}};
    for (const auto& [x, want] : table)
        EXPECT_NEAR(log_gamma(x), want, 7 * eps * std::fmax(1, std::fabs(want))) << x;
}

TEST(LogGamma, ReportsPolesAndOverflowAsRangeErrors) {
    for (const double x : {0.0, -0.0, -1.0, -2.0, -1e20, 1e306}) {
        errno = 0;
        EXPECT_EQ(log_gamma(x), HUGE_VAL) << x;
        EXPECT_EQ(errno, ERANGE) << x;
    }
}

TEST(LogGamma, PassesWhatIsNoError) {
    for (const double x : {0.5, -0.5, 1.0, -5e-324, 5e-324, HUGE_VAL, -HUGE_VAL}) {
        errno = 0;
        EXPECT_FALSE(std::isnan(log_gamma(x))) << x;
        EXPECT_EQ(errno, 0) << x;
    }
    EXPECT_TRUE(std::isnan(log_gamma(std::nan(""))));
    EXPECT_EQ(errno, 0);
    errno = EDOM;
    log_gamma(3);
    EXPECT_EQ(errno, EDOM) << "an indicator that was set before stays set";
}

} // namespace
} // namespace ansatz
