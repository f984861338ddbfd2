#include "special/log_gamma.h"

#include "protocol/errors.h"

#include <array>
#include <limits>

namespace ansatz {
namespace {

constexpr Scalar pi = 3.141592653589793;
constexpr Scalar infinity = std::numeric_limits<double>::infinity();

/// ln Gamma(2 + t) for |t| <= 0.5, by the Taylor series
///   (1 - Euler's constant) t + sum over k >= 2 of (-t)^k (zeta(k) - 1) / k,
/// which keeps its relative accuracy down to the zero at t = 0.
Real around_two(Real t) {
    constexpr std::array<Scalar, 26> coefficient = {
        // k = 1 (sign turned), 2, 3, ...
        -0.42278433509846713939,  0.32246703342411321824,    0.067352301053198095133,
        0.020580808427784547879,  0.0073855510286739852663,  0.0028905103307415232858,
        0.0011927539117032609771, 0.00050966952474304242234, 0.00022315475845357937976,
        9.9457512781808533715e-5, 4.49262367381331417e-5,    2.0507212775670691553e-5,
        9.439488275268395904e-6,  4.3748667899074878042e-6,  2.0392157538013662368e-6,
        9.5514121304074198329e-7, 4.4924691987645660433e-7,  2.1207184805554665869e-7,
        1.0043224823968099609e-7, 4.7698101693639805658e-8,  2.271109460894316491e-8,
        1.0838659214896954091e-8, 5.1834750419700466551e-9,  2.4836745438024783172e-9,
        1.1921401405860912074e-9, 5.7313672416788620133e-10};
    // Odd and even powers apart: two short chains of operations instead of a long one.
    const Real s = t * t;
    Real odd = 0, even = 0;
    for (std::size_t k = coefficient.size(); k > 0; k -= 2) {
        odd = coefficient[k - 2] + s * odd;
        even = coefficient[k - 1] + s * even;
    }
    return t * (t * even - odd);
}

/// ln Gamma(x) for x >= 10, by Stirling's series.
Real far_out(Real x) {
    constexpr Scalar half_ln_2pi_less_half = 0.41893853320467274178;
    const Real r = 1 / x, s = r * r;
    const Real series =
        r * (1.0 / 12 -
             s * (1.0 / 360 -
                  s * (1.0 / 1260 - s * (1.0 / 1680 - s * (1.0 / 1188 - s * (691.0 / 360360 - s / 156))))));
    return (x - 0.5) * (log(x) - 1) + (half_ln_2pi_less_half + series);
}

Real positive(Real x) {
    if (x < 0.5) return around_two(x) - log(x * (x + 1));
    if (x < 1.5) return around_two(x - 1) - log(x);
    if (x < 2.5) return around_two(x - 2);
    if (x >= 10) return far_out(x);
    Real product = 1;
    while (x >= 2.5) product *= x -= 1;
    return around_two(x - 2) + log(product);
}

/// Sets the indicator for a pole or an overflow.
Real out_of_range() {
    indicator() = ERANGE;
    return infinity;
}

} // namespace

Real log_gamma(Real x) {
    if (std::isnan(x)) return x;
    if (std::isinf(x)) return infinity;
    if (x > 0) {
        const Real r = positive(x);
        return std::isinf(r) ? out_of_range() : r;
    }
    const Real from_integer = x - std::round(x);
    if (from_integer == 0) return out_of_range();
    // Gamma(x) Gamma(1 - x) = pi / sin(pi x)
    return -log(std::fabs(sin(pi * from_integer)) / pi) - positive(1 - x);
}

} // namespace ansatz
