// Voigt5, PsdVoigt1, PsdVoigt2: a common offset and any number of Voigt-like peaks, each given by its area.
//
//   y = P1 + sum over the peaks of  A V(x - c),  the area under V being 1
//
//   Voigt5     c, A, wG, wL     V the convolution of a Gaussian and a Lorentzian
//   PsdVoigt1  c, A, w, m       V = (1 - m) Gaussian(w) + m Lorentzian(w)
//   PsdVoigt2  c, A, wG, wL, m  V = (1 - m) Gaussian(wG) + m Lorentzian(wL)
//
//   P1 offset; then per peak: centre c, area A, the full widths at half maximum of its Gaussian and its
//   Lorentzian part, and the Lorentzian fraction m. The number of peaks is (nParams - 1) / 4, for PsdVoigt2
//   (nParams - 1) / 5; parameters behind the last whole peak are ignored. y[i+1] is peak i alone, without the
//   offset.
//
//   Values only: take numerical derivatives. A peak of area 0 is skipped, whatever its widths: its component
//   keeps what it held. Fails for nParams < 1, and in the pseudo-Voigts for a width <= 0. Voigt5 fails only
//   for a width of exactly 0: negative widths give a number, though no peak that means anything, and a purely
//   Gaussian peak is beyond it. Its V errs by up to 2.4e-6 of the height of V (measured for wL/wG from 0.001 to
//   100).
//
//   Voigt5 sees its first peak right. To every further peak it adds the Voigt function of the peak computed
//   before it, unless the further peak is seen from far in its Gaussian wing (region II below, |X| < 12):
//   results of more than one peak differ from a sum of Voigt profiles, and depend on the order of the peaks.

#include "protocol/forms.h"

namespace ansatz::voigt {
namespace {

constexpr double four_ln_2 = 2.77258872;
constexpr double unit_gauss = 0.939437278; // 2 sqrt(ln 2 / pi), the height of a Gaussian of width and area 1
constexpr double two_over_pi = 0.636619772;
constexpr double two_sqrt_ln_2 = 1.665109222;
constexpr double sqrt_ln_2 = 0.832554611;

/// The offset and the areas times their profiles. profile(d, shape, V) takes the distance from the centre and
/// the parameters behind the area, and gives V; false where it fails.
template <int block, class Profile> Status sum_of_peaks(const Point& at, Profile profile) {
    const auto [n, P, x, y, dyda] = at;
    if (n < 1) return fail(at);
    double sum = P[1];
    const int peaks = (n - 1) / block;
    for (int i = 1; i <= peaks; ++i) {
        const int centre = block * (i - 1) + 2;
        const double area = P[centre + 1];
        if (area == 0) continue;
        double V;
        if (!profile(x[1] - P[centre], P + centre + 2, V)) return fail(at);
        const double peak = area * V;
        y[i + 1] = peak;
        sum += peak;
    }
    y[1] = sum;
    return success;
}

bool mixture(double d, double wG, double wL, double m, double& V) {
    if (wG <= 0 || wL <= 0) return false;
    const double gauss = (1 - m) * unit_gauss * safe_exp(-four_ln_2 * (d * d) / (wG * wG)) / wG;
    if (math_error()) return false;
    V = gauss + m * two_over_pi * wL / (4 * (d * d) + wL * wL);
    return true;
}

Status one_width(const Point& at) {
    return sum_of_peaks<4>(at, [](double d, const double* shape, double& V) {
        return mixture(d, shape[0], shape[0], shape[1], V);
    });
}

Status two_widths(const Point& at) {
    return sum_of_peaks<5>(at, [](double d, const double* shape, double& V) {
        return mixture(d, shape[0], shape[1], shape[2], V);
    });
}

// Humlicek's rational approximation of the complex probability function with twelve points, 1979.
constexpr int nodes = 6;
constexpr double T[nodes] = {0.314240376, 0.947788391, 1.59768264, 2.27950708, 3.02063703, 3.8897249};
constexpr double C[nodes] = {1.01172805,   -0.75197147,     0.012557727,
                             0.0100220082, -0.000242068135, 5.00848061e-07};
constexpr double S[nodes] = {1.39323,       0.231152406,    -0.155351466,
                             0.00621836624, 9.19082986e-05, -6.27525958e-07};

/// The real part K(X, Y), in two regions of the plane. K is carried from one peak into the next.
class Voigt {
public:
    bool operator()(double d, const double* shape, double& V) {
        const double wG = shape[0], wL = shape[1];
        if (wG == 0 || wL == 0) return false;
        const double X = d * two_sqrt_ln_2 / wG;
        const double Y = wL * sqrt_ln_2 / wG;
        const double size = std::fabs(X);
        if (Y > 0.85 || size < 18.1 * Y + 1.65) {
            add_near(X, Y);
        } else {
            if (size < 12) {
                K = safe_exp(-(X * X));
                if (math_error()) return false;
            }
            add_far(X, Y);
        }
        V = K * unit_gauss / wG;
        return true;
    }

private:
    /// Region I, around the peak.
    void add_near(double X, double Y) {
        const double Y1 = Y + 1.5, Y2 = Y1 * Y1;
        for (int i = 0; i < nodes; ++i) {
            const double R = X - T[i], D = 1 / (R * R + Y2);
            const double Rp = X + T[i], Dp = 1 / (Rp * Rp + Y2);
            K += C[i] * (Y1 * D + Y1 * Dp) - S[i] * (R * D - Rp * Dp);
        }
    }

    /// Region II, the wings of a nearly Gaussian peak: corrections to its exponential.
    void add_far(double X, double Y) {
        const double Y1 = Y + 1.5, Y2 = Y1 * Y1, Y3 = Y + 3;
        const auto term = [&](double R, double c, double s) {
            const double D = 1 / (R * R + Y2), RD = R * D;
            return Y * (c * (R * RD - 1.5 * Y1 * D) + s * Y3 * RD) / (R * R + 2.25);
        };
        for (int i = 0; i < nodes; ++i) {
            K += term(X - T[i], C[i], S[i]);
            K += term(X + T[i], C[i], -S[i]);
        }
    }

    double K = 0;
};

Status convolution(const Point& at) {
    return sum_of_peaks<4>(at, Voigt());
}

constexpr Answers answers{.query = 0, .probe = true};

} // namespace

ANSATZ_MODEL(Voigt5, ValueOrRefusal<convolution, answers>)

ANSATZ_PAGE(Voigt5, .title = "", .formula = "y = y0 + sum A voigt(x - xc, wG, wL)",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"A", "area", Trait::area},
                      {"wG", "full width at half maximum of the Gaussian part", Trait::width},
                      {"wL", "full width at half maximum of the Lorentzian part", Trait::width}},
            .notes = "voigt(d, wG, wL) is a Gaussian and a Lorentzian of these widths, convolved, of area 1 "
                     "around d = 0. Good to 3e-6 of the height. Fails for wG = 0 and wL = 0, so a pure "
                     "Gaussian or Lorentzian is out of reach: bound both from below. Meant for one peak: each "
                     "further one has the shape of the peak before it added, so that the areas of several "
                     "peaks are not their own. Take PsdVoigt1 or PsdVoigt2 for those.")

ANSATZ_MODEL(PsdVoigt1, ValueOrRefusal<one_width, answers>)

ANSATZ_PAGE(PsdVoigt1, .title = "",
            .formula = "y = y0 + sum A ((1 - eta) G + eta L),  G = (2/w) sqrt(ln(2)/pi) exp(-4 ln(2) ((x - "
                       "xc)/w)^2),  L = 2 w/(pi (4 (x - xc)^2 + w^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"A", "area", Trait::area},
                      {"w", "width, full at half maximum", Trait::width},
                      {"eta", "Lorentzian fraction, 0 (Gaussian) .. 1 (Lorentzian)", Trait::fraction}},
            .notes = "Fails for w <= 0. eta may leave 0..1, where the curve means nothing: bound it.")

ANSATZ_MODEL(PsdVoigt2, ValueOrRefusal<two_widths, answers>)

ANSATZ_PAGE(PsdVoigt2, .title = "",
            .formula = "y = y0 + sum A ((1 - eta) G + eta L),  G = (2/wG) sqrt(ln(2)/pi) exp(-4 ln(2) ((x - "
                       "xc)/wG)^2),  L = 2 wL/(pi (4 (x - xc)^2 + wL^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"A", "area", Trait::area},
                      {"wG", "full width at half maximum of the Gaussian part", Trait::width},
                      {"wL", "full width at half maximum of the Lorentzian part", Trait::width},
                      {"eta", "Lorentzian fraction, 0..1", Trait::fraction}},
            .notes = "Fails for wG <= 0 and wL <= 0. Where eta is near 0 or 1 the data do not determine the "
                     "width of the missing part; where wG and wL agree, PsdVoigt1 is enough.")

} // namespace ansatz::voigt
