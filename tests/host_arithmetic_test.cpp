// Neither the rounding that a host has set nor the exceptions that it traps reach a model, or are changed by
// one.

#include "frame/golden.h"
#include "frame/host_settings.h"

#include <gtest/gtest.h>

namespace ansatz::test {
namespace {

TEST(HostArithmetic, DoesNotReachAModelAndIsLeftAsItWas) {
    for (const GoldenRow& row : golden_rows()) {
        const Model model = find(row.name);
        for (const GoldenPoint& point : points_around(row)) {
            for (const unsigned flags : {0u + FF_VALUE, 0u + FF_DERIV}) {
                const Request request{flags, static_cast<int>(point.P.size()), point.P, point.x};
                const Outcome expected = call(model, request);
                for (const HostSettings& settings : host_settings) {
                    Outcome outcome;
                    bool unchanged = false;
                    {
                        const InHost host(settings);
                        const auto before = current_settings();
                        outcome = call(model, request);
                        unchanged = current_settings() == before;
                    }
                    EXPECT_TRUE(unchanged) << row.name << " where the host " << settings.name;
                    EXPECT_TRUE(settings.in_sse_alone || same_outcome(outcome, expected))
                        << row.name << " where the host " << settings.name;
                }
            }
        }
    }
}

// The report's own arithmetic, and the rounding of numbers into text.
TEST(HostArithmetic, DoesNotReachTheTestCommand) {
    static std::string report; // the callback has no other way out
    const double P[] = {0, 0.1, 1.3, 2.1, 0.7};
    double x[] = {0, 0.9}, y[3], dyda[5];
    AnsatzTestRequest request = {"Gauss", FF_DERIV, 4, P, x, y, dyda};
    const auto reported = [&] {
        report.clear();
        FuncTest(
            2, nullptr, [](std::uint32_t, const char* line) { report.append(line) += '\n'; }, &request);
        return report;
    };
    const std::string expected = reported();
    for (const HostSettings& settings : host_settings) {
        if (settings.in_sse_alone) continue;
        std::string under;
        {
            const InHost host(settings);
            under = reported();
        }
        EXPECT_EQ(under, expected) << settings.name;
    }
}

} // namespace
} // namespace ansatz::test
