// PsdVoigt1 and PsdVoigt2. The constants have nine digits; hosts rely on them. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::psd_voigt {
namespace {

constexpr Scalar four_ln_2 = 2.77258872;
constexpr Scalar unit_gauss = 0.939437278; // 2 sqrt(ln 2 / pi), the height of a Gaussian of width and area 1
constexpr Scalar two_over_pi = 0.636619772;

/// The peak of area 1, at distance d from its centre.
Real mixture(Real d, Scalar wG, Scalar wL, Scalar eta) {
    const Real gauss = (1 - eta) * unit_gauss * safe_exp(-four_ln_2 * (d * d) / (wG * wG)) / wG;
    return gauss + eta * two_over_pi * wL / (4 * (d * d) + wL * wL);
}

struct OneWidth {
    static constexpr int size = 4, amplitude = 1;

    static bool allows(const Scalar* p) { return !(p[2] <= 0); }

    static Real value(Real x, const Scalar* p) {
        const Scalar c = p[0], A = p[1], w = p[2], eta = p[3];
        return A * mixture(x - c, w, w, eta);
    }
};

struct TwoWidths {
    static constexpr int size = 5, amplitude = 1;

    static bool allows(const Scalar* p) { return !(p[2] <= 0 || p[3] <= 0); }

    static Real value(Real x, const Scalar* p) {
        const Scalar c = p[0], A = p[1], wG = p[2], wL = p[3], eta = p[4];
        return A * mixture(x - c, wG, wL, eta);
    }
};

} // namespace

ANSATZ_MODEL(PsdVoigt1, blocks::ValueOrRefusal<OneWidth>)

ANSATZ_PAGE(PsdVoigt1,
            .title = "Pseudo-Voigt peaks on a common offset, a Gaussian and a Lorentzian of the same width",
            .formula = "y = y0 + sum A ((1 - eta) G + eta L),  G = (2/w) sqrt(ln(2)/pi) exp(-4 ln(2) ((x - "
                       "xc)/w)^2),  L = 2 w/(pi (4 (x - xc)^2 + w^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"A", "area", Trait::area},
                      {"w", "width, full at half maximum", Trait::width, positive},
                      {"eta", "Lorentzian fraction, from 0 (Gaussian) to 1 (Lorentzian)", Trait::fraction,
                       from_to(0, 1)}},
            .typical = {{0.2, 3, 2, 1, 0.3, 6.5, 4, 1.5, 0.8}, 0, 10}, .known_as = "pseudo-Voigt profile",
            .source = "Wertheim, Butler, West and Buchanan, 1974",
            .notes = "Fails for w <= 0. The model itself lets eta leave 0..1, where the curve means nothing.")

ANSATZ_MODEL(PsdVoigt2, blocks::ValueOrRefusal<TwoWidths>)

ANSATZ_PAGE(PsdVoigt2, .title = "Pseudo-Voigt peaks on a common offset, with separate widths of the two parts",
            .formula = "y = y0 + sum A ((1 - eta) G + eta L),  G = (2/wG) sqrt(ln(2)/pi) exp(-4 ln(2) ((x - "
                       "xc)/wG)^2),  L = 2 wL/(pi (4 (x - xc)^2 + wL^2))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"A", "area", Trait::area},
                      {"wG", "width of the Gaussian part, full at half maximum", Trait::width, positive},
                      {"wL", "width of the Lorentzian part, full at half maximum", Trait::width, positive},
                      {"eta", "Lorentzian fraction, from 0 (Gaussian) to 1 (Lorentzian)", Trait::fraction,
                       from_to(0, 1)}},
            .typical = {{0.2, 3, 2, 1, 1.5, 0.4, 6.5, 4, 1.5, 0.8, 0.6}, 0, 10},
            .known_as = "pseudo-Voigt profile",
            .notes = "Fails for wG <= 0 and wL <= 0. Where eta is near 0 or 1 the data do not determine the "
                     "width of the missing part; where wG and wL agree, PsdVoigt1 is enough.")

} // namespace ansatz::psd_voigt
