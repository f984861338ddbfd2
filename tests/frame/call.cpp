#include "frame/call.h"

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace ansatz::test {

Model find(const std::string& name) {
    std::uint16_t nIndep = 0, nDep = 0, nParams = 0;
    const FitFunction function = Get_Func(name.c_str(), &nIndep, &nDep, &nParams, nullptr);
    if (!function) {
        std::fprintf(stderr, "the test names a model that is not in the catalogue: %s\n", name.c_str());
        std::exit(2);
    }
    return {function, nIndep, nDep, nParams};
}

bool same_bits(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

bool same_outcome(const Outcome& a, const Outcome& b) {
    const auto same_slot = [](const auto& one, const auto& other) {
        return one.first == other.first && same_bits(one.second, other.second);
    };
    return a.status == b.status && a.indicator == b.indicator &&
           std::equal(a.written.begin(), a.written.end(), b.written.begin(), b.written.end(), same_slot);
}

namespace {

/// Notes which slots of an array differ from what they held.
void note_changes(Outcome& outcome, const char* array, const std::array<double, slots>& now,
                  const std::array<double, slots>& before, std::size_t first = 0) {
    for (std::size_t k = first; k < slots; ++k) {
        if (!same_bits(now[k], before[k]))
            outcome.written[std::string(array).append(std::to_string(k))] = now[k];
    }
}

} // namespace

Outcome call(const Model& model, const Request& request) {
    std::array<double, slots> P, x;
    Outcome outcome;
    P.fill(poison);
    x.fill(poison);
    outcome.y.fill(canary);
    outcome.dyda.fill(canary);
    std::copy(request.P.begin(), request.P.end(), P.begin() + 1);
    std::copy(request.x.begin(), request.x.end(), x.begin() + 1);
    const auto P_before = P, x_before = x, untouched = outcome.y;

    errno = request.indicator;
    outcome.status = model.function(request.flags, 0, request.nParams, 0, 0, P.data(), 0, x.data(),
                                    outcome.y.data(), request.null_dyda ? nullptr : outcome.dyda.data());
    outcome.indicator = errno;

    note_changes(outcome, "P", P, P_before);
    note_changes(outcome, "x", x, x_before);
    note_changes(outcome, "y", outcome.y, untouched);
    note_changes(outcome, "d", outcome.dyda, untouched, 1);
    // Little-endian: the first four bytes at dyda are the low half of dyda[0].
    const auto first = std::bit_cast<std::uint64_t>(outcome.dyda[0]),
               before = std::bit_cast<std::uint64_t>(canary);
    if (first != before) {
        const bool half = first >> 32 == before >> 32;
        outcome.written[half ? std::string("d0:").append(std::to_string(first & 0xffffffff)) : "d0"] =
            outcome.dyda[0];
    }
    return outcome;
}

} // namespace ansatz::test
