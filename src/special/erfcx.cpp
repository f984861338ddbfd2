#include "special/erfcx.h"

#include "protocol/errors.h"

#include <limits>

namespace ansatz {

Real erfcx(Real b) {
    if (b < 8) {
        // e^(b^2) needs b^2 to more digits than a double has: the square of the leading half of b is exact,
        // and of the rest of b^2 a few terms of the exponential are enough.
        const Real head = static_cast<float>(b);
        const Real rest = (b - head) * (b + head);
        const Real correction = 1 + rest * (1 + rest / 2 * (1 + rest / 3));
        return exp(head * head) * correction * erfc(b);
    }
    // 1/(b sqrt(pi)) (1 - 1/(2 b^2) + 3/(2 b^2)^2 - 15/(2 b^2)^3 ..); its terms decline for 64 steps at least.
    constexpr Scalar sqrt_pi = 1.7724538509055161;
    const Real t = 0.5 / b / b;
    Real term = 1, sum = 1;
    for (Scalar k = 1; std::fabs(term) > 0.125 * std::numeric_limits<Scalar>::epsilon(); k += 2) {
        term *= -k * t;
        sum += term;
    }
    return sum / (b * sqrt_pi);
}

} // namespace ansatz
