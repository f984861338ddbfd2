// The Langevin function coth t - 1/t, the mean alignment of dipoles in a field.
#pragma once

#include "protocol/guards.h"

namespace ansatz {

/// For |t| below this the closed form drowns in cancellation and a series takes over.
inline constexpr Scalar langevin_series_bound = 0.0001;

/// coth t - 1/t for a caller that has e^(2t) at hand; near 0 that is not read.
inline Real langevin(Real t, Real exp_2t) {
    if (std::fabs(t) >= langevin_series_bound) return 2 / (exp_2t - 1) + 1 - 1 / t;
    return t / 3 - safe_pow(t, 3) / 45.0 + 2 * safe_pow(t, 5) / 945.0;
}

/// coth t - 1/t. The closed form errs by about 1e-16/t^2: at the bound, the worst place, it has four digits.
inline Real langevin(Real t) {
    return langevin(t, std::fabs(t) >= langevin_series_bound ? safe_exp(t + t) : 1);
}

} // namespace ansatz
