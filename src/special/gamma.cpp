#include "special/gamma.h"

#include "protocol/guards.h"

namespace ansatz {
namespace {

constexpr double pi = 3.141592653589793;
constexpr double pi_squared = 9.869604401089358;

constexpr double lanczos[] = {76.18009173,  -86.50532033,  24.01409822,
                              -1.231739516, 0.00120858003, -5.36382e-06};

} // namespace

double ln_gamma(double z) {
    const double t = z - 1;
    double tmp = t + 5.5;
    tmp = tmp - (t + 0.5) * log(tmp);
    double ser = 1, k = 0;
    for (const double c : lanczos) ser += c / (t + ++k);
    return log(2.50662827465 * ser) - tmp;
}

double gamma_fn(double z) {
    if (z <= 0) return MISSING_VALUE;
    if (z < 1) return pi * (1 - z) / (sin(pi * (1 - z)) * safe_exp(ln_gamma(2 - z)));
    return safe_exp(ln_gamma(z));
}

double digamma_fn(double z) {
    const double t = z - 1;
    double slope = 0, ser = 1, k = 0;
    for (const double c : lanczos) {
        const double den = t + ++k;
        slope += -c / (den * den);
        ser += c / den;
    }
    return log(z + 4.5) + ((z - 0.5) / (z + 4.5) - 1) + slope / ser;
}

double gamma_prime(double z) {
    if (z <= 0) return MISSING_VALUE;
    if (z < 1) {
        const double v = 1 - z, a = pi * v, s = sin(a);
        const double G = safe_exp(ln_gamma(2 - z));
        return digamma_fn(2 - z) * (s * a) / G - (s * pi / G + cos(a) * (v * pi_squared) / G);
    }
    return safe_exp(ln_gamma(z)) * digamma_fn(z);
}

} // namespace ansatz
