// GCAS, ECS: a common offset and any number of nearly Gaussian peaks, each given by its area: Gram-Charlier and
// Edgeworth-Cramer series.
//
//   y = P1 + sum over the peaks of  A/(w sqrt(2 pi)) e^(-z^2/2) (1 + a3/6 H3 + a4/24 H4 [+ 10 a3^2/720 H6])
//       z = (x - c)/w,  H3 = z^3 - 3 z,  H4 = z^4 - 6 z^2 + 3,  H6 = z^6 - 15 z^4 + 45 z^2 - 15
//
//   P1 offset; then per peak: area A, centre c (the mean), width w (the standard deviation), skewness a3,
//   excess a4. ECS has the term in brackets, GCAS has not. Blocks: see blocks.h.
//
//   Values only. Fails per peak for w <= 0. The series is an approximation: for large a3 or a4 the peak has
//   several bumps and becomes negative.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::gram_charlier {
namespace {

template <bool edgeworth> struct Peak {
    static constexpr int size = 5, amplitude = 0;

    static bool allows(const double* p) { return !(p[2] <= 0); }

    static double value(double x, const double* p) {
        constexpr double sqrt_2_pi = 2.5066282746310002;
        const double A = p[0], c = p[1], w = p[2], a3 = p[3], a4 = p[4];
        const double z = (x - c) / w, z2 = z * z;
        const double e = safe_exp(-0.5 * z2);
        if (e == 0) return 0; // the polynomial may be infinite out here
        const double H3 = z * (z2 - 3), H4 = z2 * (z2 - 6) + 3;
        double series = 1 + a3 / 6 * H3 + a4 / 24 * H4;
        if constexpr (edgeworth) {
            const double H6 = ((z2 - 15) * z2 + 45) * z2 - 15;
            series += 10 * (a3 * a3) / 720 * H6;
        }
        return A / (w * sqrt_2_pi) * e * series;
    }
};

} // namespace

ANSATZ_MODEL(GCAS, blocks::ValueOrRefusal<Peak<false>>)

ANSATZ_PAGE(GCAS, .title = "",
            .formula = "y = y0 + sum A/(w sqrt(2 pi)) exp(-z^2/2) (1 + a3 (z^3 - 3 z)/6 + a4 (z^4 - 6 z^2 + "
                       "3)/24),  z = (x - xc)/w",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "area", Trait::area},
                      {"xc", "centre, the mean", Trait::position},
                      {"w", "width, the standard deviation", Trait::width},
                      {"a3", "skewness", Trait::constant},
                      {"a4", "excess", Trait::constant}},
            .notes = "Gram-Charlier series. Mind the order: the area comes first. Fails for w <= 0. Negative "
                     "and with several bumps for large a3 or a4.")

ANSATZ_MODEL(ECS, blocks::ValueOrRefusal<Peak<true>>)

ANSATZ_PAGE(ECS, .title = "",
            .formula = "y = y0 + sum A/(w sqrt(2 pi)) exp(-z^2/2) (1 + a3 (z^3 - 3 z)/6 + a4 (z^4 - 6 z^2 + "
                       "3)/24 + a3^2 (z^6 - 15 z^4 + 45 z^2 - 15)/72),  z = (x - xc)/w",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"A", "area", Trait::area},
                      {"xc", "centre, the mean", Trait::position},
                      {"w", "width, the standard deviation", Trait::width},
                      {"a3", "skewness", Trait::constant},
                      {"a4", "excess", Trait::constant}},
            .notes = "Edgeworth-Cramer series: GCAS with one more term. Mind the order: the area comes first. "
                     "Fails for w <= 0. Negative and with several bumps for large a3 or a4.")

} // namespace ansatz::gram_charlier
