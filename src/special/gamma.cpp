#include "special/gamma.h"

#include "protocol/guards.h"

namespace ansatz {
namespace {

constexpr Scalar pi = 3.141592653589793;
constexpr Scalar pi_squared = 9.869604401089358;

constexpr Scalar lanczos[] = {76.18009173,  -86.50532033,  24.01409822,
                              -1.231739516, 0.00120858003, -5.36382e-06};

} // namespace

Scalar ln_gamma(Scalar z) {
    const Scalar t = z - 1;
    Scalar tmp = t + 5.5;
    tmp = tmp - (t + 0.5) * log(tmp);
    Scalar ser = 1, k = 0;
    for (const Scalar c : lanczos) ser += c / (t + ++k);
    return log(2.50662827465 * ser) - tmp;
}

Scalar gamma_fn(Scalar z) {
    if (z <= 0) return MISSING_VALUE;
    if (z < 1) return pi * (1 - z) / (sin(pi * (1 - z)) * safe_exp(ln_gamma(2 - z)));
    return safe_exp(ln_gamma(z));
}

Scalar digamma_fn(Scalar z) {
    const Scalar t = z - 1;
    Scalar slope = 0, ser = 1, k = 0;
    for (const Scalar c : lanczos) {
        const Scalar den = t + ++k;
        slope += -c / (den * den);
        ser += c / den;
    }
    return log(z + 4.5) + ((z - 0.5) / (z + 4.5) - 1) + slope / ser;
}

Scalar gamma_prime(Scalar z) {
    if (z <= 0) return MISSING_VALUE;
    if (z < 1) {
        const Scalar v = 1 - z, a = pi * v, s = sin(a);
        const Scalar G = safe_exp(ln_gamma(2 - z));
        return digamma_fn(2 - z) * (s * a) / G - (s * pi / G + cos(a) * (v * pi_squared) / G);
    }
    return safe_exp(ln_gamma(z)) * digamma_fn(z);
}

} // namespace ansatz
