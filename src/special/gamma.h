// The gamma function, its logarithm and their derivatives, by a series of six terms: what "PearsonVII" is made
// of. They err in the tenth digit; where more is needed, use log_gamma.h.
//
// Like every function that models call, they report through the error indicator: ln_gamma is taken of positive
// numbers, gamma_fn and gamma_prime overflow (a range error) above z = 171.6.
#pragma once

#include "build/arithmetic.h"

namespace ansatz {

/// ln Gamma(z) for z > 0, by Lanczos' series. Error below 2.1e-10 for z >= 1 (measured up to 171).
Scalar ln_gamma(Scalar z);

/// Gamma(z) for z > 0, by reflection below 1; MISSING_VALUE for z <= 0. Relative error below 2.1e-10.
Scalar gamma_fn(Scalar z);

/// The derivative of ln_gamma, term by term. Error below 5e-11 for z >= 1.
Scalar digamma_fn(Scalar z);

/// The derivative of gamma_fn from z = 1 on. Below 1 it gives the derivative of a sin(a) / Gamma(2 - z) with
/// a = pi (1 - z), where gamma_fn has a / (sin(a) Gamma(2 - z)): another number, which "PearsonVII" reports in
/// its derivative by the shape. MISSING_VALUE for z <= 0.
Scalar gamma_prime(Scalar z);

} // namespace ansatz
