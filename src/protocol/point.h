// What a model sees of one call, and what it answers.
#pragma once

#include "build/arithmetic.h"

#include <ansatz/ansatz.h>

#include <cstdint>

namespace ansatz {

using Status = std::int32_t;

inline constexpr Status success = 0;
inline constexpr Status failure = 1;

/// Returned by a value path that has the final answer: the call ends with status 0, and the derivative
/// path does not run even when it was requested.
inline constexpr Status ends_call = 2;

/// The five things that a model may touch. The arrays are addressed from 1, as in the formulas.
struct Point {
    int n;           ///< nParams, sign-extended from 16 bits; read by models of varying size only
    const Scalar* P; ///< parameters P[1]..
    Real* x;         ///< independent variables x[1]..; surfaces write their failure marker into x[2]
    Real* y;         ///< y[1] the value, y[2].. components or the second dependent variable
    Real* dyda;      ///< dyda[k] the partial derivative of y[1] by P[k]
};

/// One path of a model: its value or its derivatives.
using Path = Status (*)(const Point&);

} // namespace ansatz
