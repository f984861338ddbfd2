#include "special/erfcx.h"

#include "protocol/errors.h"

#include <limits>

namespace ansatz {

double erfcx(double b) {
    if (b < 8) {
        // e^(b^2) needs b^2 to more digits than a double has: the square of the leading half of b is exact,
        // and of the rest of b^2 a few terms of the exponential are enough.
        const double head = static_cast<float>(b);
        const double rest = (b - head) * (b + head);
        const double correction = 1 + rest * (1 + rest / 2 * (1 + rest / 3));
        return exp(head * head) * correction * erfc(b);
    }
    // 1/(b sqrt(pi)) (1 - 1/(2 b^2) + 3/(2 b^2)^2 - 15/(2 b^2)^3 ..); its terms decline for 64 steps at least.
    constexpr double sqrt_pi = 1.7724538509055161;
    const double t = 0.5 / b / b;
    double term = 1, sum = 1;
    for (double k = 1; std::fabs(term) > 0.125 * std::numeric_limits<double>::epsilon(); k += 2) {
        term *= -k * t;
        sum += term;
    }
    return sum / (b * sqrt_pi);
}

} // namespace ansatz
