// Asym2Sig: a common offset and any number of asymmetric peaks, the product of a rising and a falling sigmoid.
//
//   y = P1 + sum over the peaks of  A / (1 + e^(-(d + w1/2)/w2)) (1 - 1/(1 + e^(-(d - w1/2)/w3))),   d = x - c
//
//   P1 offset; then per peak: centre c, amplitude A, distance w1 of the two half-way points, width w2 of the
//   left slope and w3 of the right slope. For w1 much larger than w2 and w3 the peak is a plateau of height A,
//   for smaller ones it is lower. Blocks: see blocks.h.
//
//   Values only. Fails per peak for w1 < 0, w2 <= 0 and w3 <= 0. The falling sigmoid is taken as 1 / (1 +
//   e^(..)), so that the far tail keeps its digits; where an exponential overflows, its sigmoid has reached its
//   limit 0.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::asym2sig {
namespace {

struct Peak {
    static constexpr int size = 5, amplitude = 1;

    static bool allows(const double* p) { return !(p[2] < 0 || p[3] <= 0 || p[4] <= 0); }

    static double value(double x, const double* p) {
        const double c = p[0], A = p[1], w1 = p[2], w2 = p[3], w3 = p[4];
        const double d = x - c;
        const double rise = 1 + blocks::saturating_exp(-(d + w1 / 2) / w2);
        const double fall = 1 + blocks::saturating_exp((d - w1 / 2) / w3);
        return A / rise / fall;
    }
};

} // namespace

ANSATZ_MODEL(Asym2Sig, blocks::ValueOrRefusal<Peak>)

ANSATZ_PAGE(Asym2Sig, .title = "",
            .formula = "y = y0 + sum A/(1 + exp(-(x - xc + w1/2)/w2)) (1 - 1/(1 + exp(-(x - xc - w1/2)/w3)))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"A", "amplitude; the height where w1 is large against w2 and w3", Trait::amplitude},
                      {"w1", "distance of the points half-way up and down", Trait::constant},
                      {"w2", "width of the left slope", Trait::width},
                      {"w3", "width of the right slope", Trait::width}},
            .notes = "Fails for w1 < 0, w2 <= 0 and w3 <= 0. For w1 below w2 and w3 amplitude and w1 can "
                     "hardly be told apart.")

} // namespace ansatz::asym2sig
