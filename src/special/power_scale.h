// The position of x between two reference positions, measured on the scale of a power: what the expected-value
// forms of the power laws are made of.
#pragma once

#include "protocol/guards.h"

namespace ansatz {

///   place = (x^b - first^b) / (second^b - first^b):  0 at the first reference, 1 at the second
///
/// x and both references are positive. `span`, the divisor, is 0 for equal references and for b == 0; the
/// caller looks at it, and at the error indicator.
struct PowerScale {
    Real at_x;                  ///< x^b
    Scalar at_first, at_second; ///< the same of the references
    Scalar span;
    Real place;

    PowerScale(Real x, Scalar first, Scalar second, Scalar b)
        : at_x(safe_pow(x, b)), at_first(of_parameters<safe_pow>(first, b)),
          at_second(of_parameters<safe_pow>(second, b)), span(at_second - at_first),
          place((at_x - at_first) / span) {}

    /// 1 - place, without the cancellation near the second reference.
    Real rest() const { return (at_second - at_x) / span; }

    /// Partial derivatives of place.
    struct Slopes {
        Real by_first, by_second, by_b;
    };
    Slopes slopes(Real x, Scalar first, Scalar second, Scalar b) const {
        const Real near_first = rest() * at_first / span, near_second = place * at_second / span;
        return {-near_first * b / first, -near_second * b / second,
                near_first * log(x / first) + near_second * log(x / second)};
    }
};

} // namespace ansatz
