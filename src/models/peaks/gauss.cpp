// Gauss: a common offset and any number of Gaussian peaks, each given by its area.
//
//   y = P1 + sum over the peaks of  A / (w sqrt(pi/2)) e^(-2 ((x - c)/w)^2)
//
//   P1 offset; then per peak three parameters: centre c, width w (twice the standard deviation), area A.
//   The number of peaks is (nParams - 1) / 3; parameters behind the last whole peak are ignored.
//   y[i+1] is peak i alone, without the offset.
//
//   Fails for nParams <= 0, and per peak for a width of 0 and on an error pending on entry; the derivatives let
//   a domain error pass. A negative width is accepted for the value, where it turns the peak upside down, and
//   fails for the derivatives. A peak of area 0 is skipped: its component keeps what it held, its derivatives
//   are 0.

#include "protocol/forms.h"

namespace ansatz::gauss {
namespace {

constexpr double sqrt_half_pi = 1.253314137316;
constexpr double sqrt_2 = 1.414213562373;

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    double sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int i = 1; i <= peaks; ++i) {
        const double c = P[3 * i - 1], w = P[3 * i], A = P[3 * i + 1];
        if (A == 0) continue;
        if (w == 0) return fail(at);
        const double t = (x[1] - c) / w;
        const double peak = safe_exp(t * t * -2.0) * A / (w * sqrt_half_pi);
        if (math_error()) return fail(at);
        y[i + 1] = peak;
        sum += peak;
    }
    y[1] = sum;
    return success;
}

Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    if (n <= 0) return fail(at);
    dyda[1] = 1;
    double sum = P[1];
    const int peaks = (n - 1) / 3;
    for (int i = 1; i <= peaks; ++i) {
        const int centre = 3 * i - 1, width = 3 * i, area = 3 * i + 1;
        const double c = P[centre], w = P[width], A = P[area];
        if (A == 0) {
            dyda[centre] = dyda[width] = dyda[area] = 0;
            continue;
        }
        if (w <= 0) return fail(at, 1, centre, width, area);
        const double d = x[1] - c;
        const double u = d * sqrt_2 / w;
        const double s = u * u;
        const double g = safe_exp(-s) / (w * sqrt_half_pi);
        dyda[area] = g;
        if (range_error()) return fail(at, 1, centre, width, area); // a pending domain error passes
        dyda[width] = (2 * s - 1) * A * g / w;
        dyda[centre] = x[1] == c ? 0 : s * (2 * A) * g / d;
        const double peak = g * A;
        y[i + 1] = peak;
        sum += peak;
    }
    y[1] = sum;
    return success;
}

} // namespace

ANSATZ_MODEL(Gauss, BothPaths<value, derivatives>)

ANSATZ_PAGE(Gauss, .title = "", .formula = "y = y0 + sum A/(w sqrt(pi/2)) exp(-2 ((x - xc)/w)^2)",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"w", "width, twice the standard deviation", Trait::width},
                      {"A", "area", Trait::area}},
            .notes = "Fails for w = 0; the derivatives, and so a fit, fail for w < 0. A peak of area 0 has no "
                     "derivatives: do not start a fit there.")

} // namespace ansatz::gauss
