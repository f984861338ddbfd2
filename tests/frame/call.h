// One call of a model as a host makes it, with every slot around the outputs watched.
#pragma once

#include <ansatz/ansatz.h>

#include <array>
#include <bit>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace ansatz::test {

struct Model {
    FitFunction function = nullptr;
    int nIndep = 0, nDep = 0, nParams = 0;
};

/// Looks a model up as a host does. Ends the program where the name is unknown: the test itself would be wrong.
Model find(const std::string& name);

inline constexpr int slots = 64;

/// NaNs that no computation makes: what outputs hold before a call, and what stands after the inputs, so that
/// a parameter read beyond those supplied poisons the result.
inline constexpr std::uint64_t canary_bits = 0x7ffdeadbeefcafe0, poison_bits = 0x7ffabad0bad0bad0;
inline constexpr double canary = std::bit_cast<double>(canary_bits),
                        poison = std::bit_cast<double>(poison_bits);

struct Request {
    unsigned flags = FF_VALUE;
    int nParams = 0;
    std::vector<double> P, x; ///< from index 0
    int indicator = 0;        ///< errno on entry
    bool null_dyda = false;   ///< no place for derivatives
};

/// What a model answered. Where dyda was null, its slots were left alone or the program is no more.
struct Outcome {
    std::int32_t status = 0;
    int indicator = 0;
    std::array<double, slots> y{}, dyda{};
    /// Every slot that the call wrote: "y1", "d3", "x2", and "d0:ZZZZZZZZ" for a 32-bit code at dyda[0].
    std::map<std::string, double> written;
};

Outcome call(const Model& model, const Request& request);

/// The same status, indicator and slots written, bit for bit.
bool same_outcome(const Outcome& a, const Outcome& b);

/// Same bits (so NaN equals itself and 0 differs from -0).
bool same_bits(double a, double b);

} // namespace ansatz::test
