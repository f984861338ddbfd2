// Quantities that depend on parameters alone.
//
// A single call knows one point and nothing of the call before, so it computes them. A batch has one set of
// parameters for all its points: its loop computes such a quantity once and keeps it. The bits are the same.
#pragma once

#include "protocol/errors.h"

namespace ansatz {

#ifndef ANSATZ_BATCH

/// f of arguments that depend on parameters and on no x. `number` tells the quantities of one path apart: 0, 1,
/// 2, ..
template <auto f, class... Arguments> double of_parameters(int, Arguments... arguments) {
    return f(arguments...);
}

#else

namespace batch {

/// What a loop keeps; its points come one after the other.
struct Kept {
    static constexpr int most = 32;
    bool known[most] = {};
    double value[most];
};

/// Those of the loop that runs on this thread.
[[gnu::tls_model("initial-exec")]] inline constinit thread_local Kept* kept = nullptr;

/// A loop has one for as long as it runs. A signal handler's loop may interrupt another on the same thread,
/// which finds its own again.
class Keep {
public:
    Keep() : interrupted_(kept) { kept = &quantities_; }
    ~Keep() { kept = interrupted_; }
    Keep(const Keep&) = delete;
    Keep& operator=(const Keep&) = delete;

private:
    Kept* interrupted_;
    Kept quantities_;
};

} // namespace batch

/// What ends in an error is computed each time, so that every point sees its error.
template <auto f, class... Arguments> double of_parameters(int number, Arguments... arguments) {
    batch::Kept& kept = *batch::kept;
    if (number >= batch::Kept::most) return f(arguments...);
    if (kept.known[number]) return kept.value[number];
    const double result = f(arguments...);
    kept.value[number] = result;
    kept.known[number] = !math_error();
    return result;
}

#endif

} // namespace ansatz
