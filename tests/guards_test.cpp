// The guards and the error indicator, from inside the library.

#include "catalogue/catalogue.h"
#include "protocol/guards.h"

#include <gtest/gtest.h>

#include <limits>

namespace ansatz {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(ErrorIndicator, BehavesAlikeOnEveryLibrary) {
    struct Call {
        const char* what;
        double (*run)();
        int indicator;
    };
    const Call calls[] = {
        {"exp overflow", [] { return ansatz::exp(710.0); }, ERANGE},
        {"exp underflow", [] { return ansatz::exp(-800.0); }, 0},
        {"exp subnormal", [] { return ansatz::exp(-740.0); }, 0},
        {"exp inf", [] { return ansatz::exp(inf); }, 0},
        {"exp nan", [] { return ansatz::exp(nan); }, 0},
        {"log pole", [] { return ansatz::log(0.0); }, ERANGE},
        {"log negative", [] { return ansatz::log(-1.0); }, EDOM},
        {"log nan", [] { return ansatz::log(nan); }, 0},
        {"sqrt negative", [] { return ansatz::sqrt(-1.0); }, EDOM},
        {"sqrt -inf", [] { return ansatz::sqrt(-inf); }, EDOM},
        {"sin inf", [] { return ansatz::sin(inf); }, EDOM},
        {"cos -inf", [] { return ansatz::cos(-inf); }, EDOM},
        {"acos 1.5", [] { return ansatz::acos(1.5); }, EDOM},
        {"tanh inf", [] { return ansatz::tanh(inf); }, 0},
        {"pow overflow", [] { return ansatz::pow(10.0, 400.0); }, ERANGE},
        {"pow underflow", [] { return ansatz::pow(10.0, -400.0); }, 0},
        {"pow subnormal", [] { return ansatz::pow(10.0, -310.0); }, 0},
        {"pow pole", [] { return ansatz::pow(0.0, -1.0); }, ERANGE},
        {"pow negative, broken", [] { return ansatz::pow(-1.0, 0.5); }, EDOM},
        {"pow inf", [] { return ansatz::pow(inf, 2.0); }, 0},
        {"pow nan", [] { return ansatz::pow(nan, 2.0); }, 0},
    };
    for (const Call& call : calls) {
        errno = 0;
        volatile double r = call.run();
        static_cast<void>(r);
        EXPECT_EQ(errno, call.indicator) << call.what;
    }
    errno = ERANGE;
    volatile double r = ansatz::pow(10.0, -400.0);
    static_cast<void>(r);
    EXPECT_EQ(errno, ERANGE) << "an indicator set before stays set";
    errno = 0;
}

TEST(Guards, AtTheirLimits) {
    const double below = std::nextafter(-300.0, -301.0), above = std::nextafter(300.0, 301.0);
    errno = 0;
    EXPECT_EQ(safe_exp(-300), std::exp(-300.0));
    EXPECT_EQ(safe_exp(below), 0);
    EXPECT_EQ(safe_exp(-inf), 0);
    EXPECT_TRUE(std::isnan(safe_exp(nan)));
    EXPECT_EQ(safe_pow(0, 2), 0);
    EXPECT_FALSE(std::signbit(safe_pow(-0.0, 3))) << "no library call is made for a zero base";
    EXPECT_EQ(safe_pow(0, 0), 1);
    EXPECT_EQ(safe_pow(-2, 3), -8);
    EXPECT_EQ(clamped_exp(300), std::exp(300.0));
    EXPECT_EQ(clamped_exp(above), MISSING_VALUE);
    EXPECT_EQ(clamped_exp(inf), MISSING_VALUE);
    EXPECT_EQ(clamped_exp(below), 0);
    EXPECT_EQ(errno, 0);
}

TEST(Catalogue, CountsOfAnUnknownNameAreZero) {
    EXPECT_EQ(indep_count("PlaneMod"), 3);
    EXPECT_EQ(param_count("polyn"), 10);
    EXPECT_EQ(indep_count("Poly"), 0);
    EXPECT_EQ(param_count("Poly"), 0);
}

} // namespace
} // namespace ansatz
