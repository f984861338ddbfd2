// What the pages promise of calls, held against the calls themselves, for every row.

#include "frame/call.h"

#include <ansatz/page.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace ansatz::test {
namespace {

void for_each_law(void (*check)(const Page& page, const Model& model)) {
    for (const Page& page : pages()) {
        if (page.reserved) continue;
        SCOPED_TRACE(std::string(page.name));
        check(page, find(std::string(page.name)));
    }
}

/// x over the typical range; a second and third one sweep theirs several times meanwhile.
std::vector<double> typical_x(const Typical& typical, double share) {
    const double other = std::fmod(7.3 * share, 1.0);
    const double x2 = typical.from2 + (typical.to2 - typical.from2) * other;
    return {typical.from + (typical.to - typical.from) * share, x2, x2};
}

std::vector<double> typical_parameters(const Page& page) {
    return {page.typical.parameters.begin(), page.typical.parameters.end()};
}

TEST(Pages, NoModelFailsInItsTypicalRange) {
    for_each_law([](const Page& page, const Model& model) {
        const std::vector<double> P = typical_parameters(page);
        ASSERT_FALSE(P.empty());
        for (const unsigned flags : {0u + FF_VALUE, 0u + FF_DERIV}) {
            if (flags == FF_DERIV && call(model, {FF_QUERY_DERIV, 0, {}, {}}).status != 1) continue;
            for (int i = 0; i < 200; ++i) {
                const std::vector<double> x = typical_x(page.typical, (i + 0.5) / 200);
                const Outcome outcome = call(model, {flags, static_cast<int>(P.size()), P, x});
                ASSERT_EQ(outcome.status, 0) << "x = " << x[0];
                for (const auto& [slot, number] : outcome.written) ASSERT_TRUE(std::isfinite(number)) << slot;
            }
        }
    });
}

// Arrays are sized by the layout: a slot that it forgets is a write past the end of somebody's array.
TEST(Pages, LayoutsHoldEverySlotThatACallReadsOrWrites) {
    for_each_law([](const Page& page, const Model& model) {
        const Layout layout = layout_of(page);
        const std::vector<double> all = typical_parameters(page), x = typical_x(page.typical, 0.4);
        ASSERT_FALSE(all.empty());
        for (int n = 0; n <= static_cast<int>(all.size()) + 7; ++n) {
            const int known = std::max(layout.slots(n), n); // callers have room for what they supply
            std::vector<double> P;
            for (int k = 0; k < known; ++k) {
                P.push_back(all[static_cast<std::size_t>(k) % all.size()]);
            }
            for (const unsigned flags : {0u + FF_VALUE, 0u + FF_DERIV}) {
                SCOPED_TRACE(std::to_string(n) + " parameters");
                // Parameters after the last one are NaNs of the frame's own: no result may depend on them.
                std::vector<double> padded = P;
                padded.resize(slots - 2, 0.5);
                const Outcome exact = call(model, {flags, n, P, x}), spare = call(model, {flags, n, padded, x});
                EXPECT_EQ(exact.status, spare.status);
                for (int k = 1; k < slots; ++k) {
                    const auto slot = static_cast<std::size_t>(k);
                    EXPECT_TRUE(same_bits(exact.y[slot], spare.y[slot])) << "y" << k;
                    EXPECT_TRUE(same_bits(exact.dyda[slot], spare.dyda[slot])) << "d" << k;
                    EXPECT_TRUE(k <= known || same_bits(exact.dyda[slot], canary)) << "d" << k;
                }
            }
        }
    });
}

/// Lower case without underscores.
std::string plain(std::string_view name) {
    std::string result;
    for (const char c : name) {
        if (c != '_') result += c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return result;
}

TEST(Pages, AModelIsFoundByTheNameOfItsFile) {
    std::vector<std::string> elsewhere;
    for (const Page& page : pages()) {
        if (page.reserved) continue;
        std::string_view stem = page.file.substr(page.file.rfind('/') + 1);
        stem.remove_suffix(4);
        if (!plain(page.name).starts_with(plain(stem))) elsewhere.emplace_back(page.name);
    }
    EXPECT_LE(elsewhere.size(), 10u) << testing::PrintToString(elsewhere);
}

} // namespace
} // namespace ansatz::test
