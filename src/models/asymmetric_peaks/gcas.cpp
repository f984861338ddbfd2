// GCAS and ECS. Values only. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::gram_charlier {
namespace {

template <bool edgeworth> struct Peak {
    static constexpr int size = 5, amplitude = 0;

    static bool allows(const Scalar* p) { return !(p[2] <= 0); }

    static Real value(Real x, const Scalar* p) {
        constexpr Scalar sqrt_2_pi = 2.5066282746310002;
        const Scalar A = p[0], c = p[1], w = p[2], a3 = p[3], a4 = p[4];
        const Real z = (x - c) / w, z2 = z * z;
        const Real e = safe_exp(-0.5 * z2);
        if (e == 0) return 0; // the polynomial may be infinite out here
        const Real H3 = z * (z2 - 3), H4 = z2 * (z2 - 6) + 3;
        Real series = 1 + a3 / 6 * H3 + a4 / 24 * H4;
        if constexpr (edgeworth) {
            const Real H6 = ((z2 - 15) * z2 + 45) * z2 - 15;
            series += 10 * (a3 * a3) / 720 * H6;
        }
        return A / (w * sqrt_2_pi) * e * series;
    }
};

} // namespace

ANSATZ_MODEL(GCAS, blocks::ValueOrRefusal<Peak<false>>)

ANSATZ_PAGE(
    GCAS, .title = "Nearly Gaussian peaks on a common offset, Gram-Charlier series",
    .formula = "y = y0 + sum A/(w sqrt(2 pi)) exp(-z^2/2) (1 + a3 (z^3 - 3 z)/6 + a4 (z^4 - 6 z^2 + "
               "3)/24),  z = (x - xc)/w",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"A", "area", Trait::area},
              {"xc", "centre, the mean", Trait::position},
              {"w", "width, the standard deviation", Trait::width, positive},
              {"a3", "skewness", Trait::coefficient},
              {"a4", "excess", Trait::coefficient}},
    .typical = {{0.2, 2, 3, 0.7, 0.6, 0.3, 4, 7, 0.8, -0.4, 0.2}, 0, 10}, .known_as = "Gram-Charlier A series",
    .notes = "Mind the order: the area comes first. Fails for w <= 0. A series after few terms: negative "
             "and with several bumps for large a3 or a4.")

ANSATZ_MODEL(ECS, blocks::ValueOrRefusal<Peak<true>>)

ANSATZ_PAGE(
    ECS, .title = "Nearly Gaussian peaks on a common offset, Edgeworth-Cramer series",
    .formula = "y = y0 + sum A/(w sqrt(2 pi)) exp(-z^2/2) (1 + a3 (z^3 - 3 z)/6 + a4 (z^4 - 6 z^2 + "
               "3)/24 + a3^2 (z^6 - 15 z^4 + 45 z^2 - 15)/72),  z = (x - xc)/w",
    .parameters = {{"y0", "offset", Trait::offset}},
    .block = {{"A", "area", Trait::area},
              {"xc", "centre, the mean", Trait::position},
              {"w", "width, the standard deviation", Trait::width, positive},
              {"a3", "skewness", Trait::coefficient},
              {"a4", "excess", Trait::coefficient}},
    .typical = {{0.2, 2, 3, 0.7, 0.6, 0.3, 4, 7, 0.8, -0.4, 0.2}, 0, 10}, .known_as = "Edgeworth series",
    .notes = "GCAS with one more term. Mind the order: the area comes first. Fails for w <= 0. A series "
             "after few terms: negative and with several bumps for large a3 or a4.")

} // namespace ansatz::gram_charlier
