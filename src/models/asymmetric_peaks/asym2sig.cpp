// Asym2Sig. Values only. The falling sigmoid is taken as 1 / (1 + e^(..)), so that the far tail keeps its
// digits; where an exponential overflows, its sigmoid has reached its limit 0. Blocks: see blocks.h.

#include "models/asymmetric_peaks/blocks.h"

namespace ansatz::asym2sig {
namespace {

struct Peak {
    static constexpr int size = 5, amplitude = 1;

    static bool allows(const Scalar* p) { return !(p[2] < 0 || p[3] <= 0 || p[4] <= 0); }

    static Real value(Real x, const Scalar* p) {
        const Scalar c = p[0], A = p[1], w1 = p[2], w2 = p[3], w3 = p[4];
        const Real d = x - c;
        const Real rise = 1 + blocks::saturating_exp(-(d + w1 / 2) / w2);
        const Real fall = 1 + blocks::saturating_exp((d - w1 / 2) / w3);
        return A / rise / fall;
    }
};

} // namespace

ANSATZ_MODEL(Asym2Sig, blocks::ValueOrRefusal<Peak>)

ANSATZ_PAGE(Asym2Sig, .title = "Peaks on a common offset, each the product of a rising and a falling sigmoid",
            .formula = "y = y0 + sum A/(1 + exp(-(x - xc + w1/2)/w2)) (1 - 1/(1 + exp(-(x - xc - w1/2)/w3)))",
            .parameters = {{"y0", "offset", Trait::offset}},
            .block = {{"xc", "centre", Trait::position},
                      {"A", "amplitude; the height where w1 is large against w2 and w3", Trait::amplitude},
                      {"w1", "distance of the points half-way up and down", Trait::width, not_negative},
                      {"w2", "width of the left slope", Trait::width, positive},
                      {"w3", "width of the right slope", Trait::width, positive}},
            .typical = {{0.2, 3, 2, 1.5, 0.2, 0.5, 7, 3, 1, 0.4, 0.2}, 0, 10},
            .known_as = "asymmetric double sigmoid",
            .notes = "Fails for w1 < 0, w2 <= 0 and w3 <= 0. For w1 below w2 and w3 amplitude and w1 can "
                     "hardly be told apart.")

} // namespace ansatz::asym2sig
