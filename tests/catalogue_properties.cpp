// What holds for every row of the catalogue, checked in loops over all of them at their golden points.

#include "frame/golden.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <set>
#include <thread>

namespace ansatz::test {
namespace {

std::string describe(const GoldenRow& row, const GoldenPoint& point) {
    std::string text = row.name + " P";
    for (const double p : point.P) text += " " + std::to_string(p);
    text += " x";
    for (const double x : point.x) text += " " + std::to_string(x);
    return text;
}

using PointCheck = std::function<void(const GoldenRow&, const Model&, const GoldenPoint&)>;

void for_each_point(const PointCheck& check) {
    for (const GoldenRow& row : golden_rows()) {
        const Model model = find(row.name);
        for (const GoldenPoint& point : row.points) {
            SCOPED_TRACE(describe(row, point));
            check(row, model, point);
        }
    }
}

Outcome ask(const Model& model, const GoldenPoint& point, unsigned flags) {
    return call(model, {flags, static_cast<int>(point.P.size()), point.P, point.x});
}

void expect_numbers(const GoldenRow& row, Outcome outcome, const std::vector<Expected>& numbers,
                    const char* array) {
    for (const Expected& e : numbers) {
        const std::string slot = array + std::to_string(e.slot);
        ASSERT_TRUE(outcome.written.contains(slot)) << slot << " was not written";
        EXPECT_NEAR(outcome.written[slot], e.want, tolerance(row, e)) << slot;
    }
}

std::set<std::string> names(const std::vector<Expected>& numbers, const char* array) {
    std::set<std::string> slots_named;
    for (const Expected& e : numbers) slots_named.insert(array + std::to_string(e.slot));
    return slots_named;
}

std::set<std::string> written(const Outcome& outcome) {
    std::set<std::string> slots_written;
    for (const auto& [slot, value] : outcome.written) slots_written.insert(slot);
    return slots_written;
}

TEST(Catalogue, EveryRowThatComputesHasGoldenData) {
    const std::set<std::string> inert = {"LangmuirTS1",   "LangmuirTS2", "Rational4P",    "RationalEVP",
                                         "ExpCSum1",      "ExpCSum2",    "ExpCSumEVP",    "Prunty",
                                         "ChapmanEVP1",   "ChapmanEVP2", "BelehradekEVP", "ChapmanEVP3",
                                         "BentHyperblSmp"};
    std::map<std::string, std::size_t> points; // a row may be stated in two halves
    for (const GoldenRow& row : golden_rows()) points[row.name] += row.points.size();
    for (const auto& [name, count] : points) EXPECT_GE(count, 8u) << name;
    EXPECT_EQ(std::ssize(points) + std::ssize(inert), FuncTest(1, nullptr, nullptr, nullptr));
}

TEST(Catalogue, ValuesMatchTheIndependentComputation) {
    for_each_point([](const GoldenRow& row, const Model& model, const GoldenPoint& point) {
        const Outcome outcome = ask(model, point, FF_VALUE);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.indicator, 0);
        expect_numbers(row, outcome, point.y, "y");
        EXPECT_EQ(written(outcome), names(point.y, "y")) << "a slot beside the model's own was written";
    });
}

TEST(Catalogue, DerivativesMatchTheIndependentComputation) {
    for_each_point([](const GoldenRow& row, const Model& model, const GoldenPoint& point) {
        if (!row.derivatives) return;
        const Outcome outcome = ask(model, point, FF_DERIV);
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.indicator, 0);
        expect_numbers(row, outcome, point.y_by_derivatives.empty() ? point.y : point.y_by_derivatives, "y");
        expect_numbers(row, outcome, point.dyda, "d");
        std::set<std::string> owned = names(point.y, "y");
        owned.merge(names(point.dyda, "d"));
        EXPECT_EQ(written(outcome), owned) << "a slot beside the model's own was written";
    });
}

/// Central differences of y[1] with steps h and h/2, extrapolated: the error falls with h^4.
double extrapolated_difference(const Model& model, const GoldenPoint& point, int slot, double h) {
    const auto difference = [&](double step) {
        GoldenPoint up = point, down = point;
        up.P[static_cast<std::size_t>(slot - 1)] += step;
        down.P[static_cast<std::size_t>(slot - 1)] -= step;
        const double width =
            up.P[static_cast<std::size_t>(slot - 1)] - down.P[static_cast<std::size_t>(slot - 1)];
        return (ask(model, up, FF_VALUE).y[1] - ask(model, down, FF_VALUE).y[1]) / width;
    };
    return (4 * difference(h / 2) - difference(h)) / 3;
}

/// The point with every parameter and every x a few percent off, at random; a zero stays.
GoldenPoint near(const GoldenPoint& point, std::mt19937_64& random) {
    GoldenPoint moved = point;
    for (auto* inputs : {&moved.P, &moved.x}) {
        for (double& v : *inputs) v *= std::uniform_real_distribution(0.97, 1.03)(random);
    }
    return moved;
}

// The value path itself is differentiated, so this needs no formula besides the model's own.
void expect_slopes(const Model& model, const GoldenPoint& point) {
    const Outcome outcome = ask(model, point, FF_DERIV);
    for (const Expected& e : point.dyda) {
        if (e.stated) continue;
        const double p = point.P[static_cast<std::size_t>(e.slot - 1)];
        double best = HUGE_VAL;
        for (const double h : {3e-3, 1e-3, 3e-4, 1e-4, 1e-5, 1e-6, 1e-7}) { // small ones for narrow peaks
            const double numerical =
                extrapolated_difference(model, point, e.slot, h * std::fmax(std::fabs(p), 1e-2));
            best = std::fmin(best, std::fabs(numerical - outcome.dyda[static_cast<std::size_t>(e.slot)]));
        }
        const double found = std::fabs(outcome.dyda[static_cast<std::size_t>(e.slot)]);
        const double size =
            std::fmax(std::fabs(e.want), found) + e.condition + std::fabs(outcome.y[1] / (p == 0 ? 1 : p));
        EXPECT_LE(best, 1e-7 * size) << "slot " << e.slot;
    }
}

TEST(Catalogue, DerivativesMatchExtrapolatedDifferences) {
    std::mt19937_64 random(1);
    int points = 0;
    for_each_point([&](const GoldenRow& row, const Model& model, const GoldenPoint& point) {
        if (!row.derivatives) return;
        expect_slopes(model, point);
        for (int k = 0; k < 4; ++k) {
            const GoldenPoint moved = near(point, random);
            if (ask(model, moved, FF_VALUE).status != 0 || ask(model, moved, FF_DERIV).status != 0) continue;
            SCOPED_TRACE("moved to " + describe(row, moved));
            expect_slopes(model, moved);
            ++points;
        }
    });
    EXPECT_GT(points, 7000);
}

// The forms as tests/golden/laws.py describes them; a model of form "own" is left to its cases.
TEST(Catalogue, EachRequestIsServedAsTheFormPromises) {
    const std::set<std::string> nothing;
    for_each_point([&](const GoldenRow& row, const Model& model, const GoldenPoint& point) {
        for (const unsigned also : {0u, 0u + FF_VALUE, 0u + FF_DERIV}) {
            const Outcome query = ask(model, point, FF_QUERY_DERIV | also);
            EXPECT_EQ(query.status, row.query);
            EXPECT_EQ(written(query), nothing);
        }
        if (row.probe == "plain") {
            const Outcome probe = ask(model, point, FF_PROBE | FF_QUERY_DERIV | FF_VALUE | FF_DERIV);
            EXPECT_EQ(probe.status, PROBE_ANSWER);
            EXPECT_EQ(written(probe), std::set<std::string>{"d0:0"});
        } else if (row.probe == "none") {
            EXPECT_EQ(ask(model, point, FF_PROBE | FF_QUERY_DERIV).status, row.query);
        }
        if (row.idle != "own") {
            const Outcome idle = ask(model, point, row.probe == "none" ? 0u + FF_PROBE : 0u);
            const int flags_byte = row.probe == "none" ? FF_PROBE : 0;
            EXPECT_EQ(idle.status, row.idle == "flags" ? flags_byte : row.idle == "one" ? 1 : 0);
            EXPECT_EQ(written(idle), nothing);
        }
        const Outcome value = ask(model, point, FF_VALUE), derivatives = ask(model, point, FF_DERIV);
        const Outcome both = ask(model, point, FF_VALUE | FF_DERIV);
        if (row.form == "both") {
            for (const auto& [slot, v] : derivatives.written)
                EXPECT_TRUE(same_bits(v, both.written.at(slot))) << slot;
            EXPECT_EQ(written(both), written(derivatives));
        }
        if (row.form == "one" || row.form == "refuse" || row.form == "ignore") {
            for (const auto& [slot, v] : value.written)
                EXPECT_TRUE(same_bits(v, both.written.at(slot))) << slot;
            EXPECT_EQ(written(both), written(value));
        }
        if (row.form == "refuse") {
            EXPECT_EQ(derivatives.status, 1);
        } else if (row.form == "ignore") {
            EXPECT_EQ(derivatives.status, 0);
            EXPECT_EQ(written(derivatives), nothing);
        }
    });
}

TEST(Catalogue, AValueNeedsNoPlaceForDerivatives) {
    int failed = 0;
    for (const GoldenRow& row : golden_rows()) {
        const Model model = find(row.name);
        for (const GoldenPoint& point : points_around(row)) {
            Request request{FF_VALUE, static_cast<int>(point.P.size()), point.P, point.x};
            const Outcome with = call(model, request);
            request.null_dyda = true;
            EXPECT_TRUE(same_outcome(call(model, request), with)) << describe(row, point);
            failed += with.status;
        }
    }
    EXPECT_GT(failed, 500);
}

TEST(Catalogue, BitsAboveTheLowOnesAreIgnored) {
    for_each_point([](const GoldenRow&, const Model& model, const GoldenPoint& point) {
        const int n = static_cast<int>(point.P.size());
        for (const unsigned flags : {0u + FF_VALUE, 0u + FF_DERIV}) {
            const Outcome plain = call(model, {flags, n, point.P, point.x});
            const Outcome noisy = call(model, {flags | 0xabcdef00, n | 0x7fff0000, point.P, point.x});
            EXPECT_EQ(plain.status, noisy.status);
            EXPECT_EQ(written(plain), written(noisy));
            EXPECT_TRUE(std::equal(plain.y.begin(), plain.y.end(), noisy.y.begin(), same_bits));
            EXPECT_TRUE(std::equal(plain.dyda.begin(), plain.dyda.end(), noisy.dyda.begin(), same_bits));
        }
    });
}

/// Every output of every row at every point, in order, as one thread sees them.
std::vector<double> all_outputs() {
    std::vector<double> outputs;
    for (const GoldenRow& row : golden_rows()) {
        const Model model = find(row.name);
        for (const GoldenPoint& point : row.points) {
            for (const unsigned flags : {0u + FF_VALUE, 0u + FF_DERIV}) {
                const Outcome outcome = ask(model, point, flags);
                outputs.insert(outputs.end(), outcome.y.begin(), outcome.y.end());
                outputs.insert(outputs.end(), outcome.dyda.begin(), outcome.dyda.end());
            }
        }
    }
    return outputs;
}

TEST(Catalogue, ManyThreadsComputeTheSameBits) {
    const std::vector<double> alone = all_outputs();
    std::vector<std::vector<double>> results(8);
    std::vector<std::thread> threads;
    for (auto& result : results) threads.emplace_back([&result] { result = all_outputs(); });
    for (auto& thread : threads) thread.join();
    for (const auto& result : results) {
        EXPECT_TRUE(std::equal(alone.begin(), alone.end(), result.begin(), result.end(), same_bits));
    }
}

} // namespace
} // namespace ansatz::test
