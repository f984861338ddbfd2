// Both functions are values of Kummer's function M:
//
//   e^-t I1(t) = (t/2) M(3/2, 3, -2t),    e^-t (I0(t) - I1(t)) = M(3/2, 2, -2t)
//
// and M(3/2, b, -z) is e^-z M(b - 3/2, b, z), a power series of positive terms, and for large z the asymptotic
// series Gamma(b)/Gamma(b - 3/2) z^(-3/2) sum (3/2)_k (5/2 - b)_k / (k! z^k).

#include "special/bessel.h"

#include "protocol/errors.h"

#include <array>
#include <limits>

namespace ansatz {
namespace {

constexpr Scalar epsilon = std::numeric_limits<Scalar>::epsilon();

/// The quotients of successive terms of the power series, without their factor z. At z = 40 about 100 are used.
template <int b> constexpr std::array<Scalar, 128> quotients = [] {
    std::array<Scalar, 128> q{};
    for (std::size_t k = 0; k < q.size(); ++k) {
        const auto n = static_cast<Scalar>(k);
        q[k] = (b - 1.5 + n) / ((b + n) * (n + 1));
    }
    return q;
}();

/// M(3/2, b, -z) for z >= 0. From z = 40 on the smallest term of the asymptotic series is below half a unit of
/// the last digit; the terms before decline, so the loop ends where a term no longer counts.
template <int b> Real kummer(Scalar gamma_quotient, Real z) {
    Real term = 1, sum = 1;
    if (z < 40) {
        for (const Scalar q : quotients<b>) {
            term *= q * z;
            sum += term;
            if (!(term > 0.125 * epsilon * sum)) break;
        }
        return exp(-z) * sum;
    }
    const Real t = 1 / z;
    for (Scalar k = 0; k < 40 && std::fabs(term) > 0.125 * epsilon; ++k) {
        term *= (1.5 + k) * (2.5 - b + k) / (k + 1) * t;
        sum += term;
    }
    return gamma_quotient * sum * t * sqrt(t);
}

} // namespace

Real scaled_bessel_i1(Real t) {
    constexpr Scalar gamma_quotient = 2.2567583341910251; // Gamma(3) / Gamma(3/2) = 4 / sqrt(pi)
    return 0.5 * t * kummer<3>(gamma_quotient, 2 * t);
}

Real scaled_bessel_i0_minus_i1(Real t) {
    constexpr Scalar gamma_quotient = 0.5641895835477563; // Gamma(2) / Gamma(1/2) = 1 / sqrt(pi)
    return kummer<2>(gamma_quotient, 2 * t);
}

} // namespace ansatz
