// PearsonIV. Values only, and never a status of failure: y[1] alone is MISSING_VALUE for m <= 0.5 or w <= 0.
// The error indicator is neither looked at nor changed. FF_PROBE is answered, but nothing is written.

#include "special/pearson_iv.h"
#include "protocol/forms.h"

namespace ansatz::pearson_iv_model {
namespace {

Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = pearson_iv(P[1], P[2], P[3], P[4], P[5], P[6], x[1]);
    return success;
}

struct Form {
    static Status serve(unsigned flags, const Point& at) {
        return flags & FF_PROBE ? static_cast<Status>(PROBE_MASK_ANSWER)
                                : ValueOrNothing<value>::serve(flags, at);
    }
};

} // namespace

ANSATZ_MODEL(PearsonIV, Form)

ANSATZ_PAGE(PearsonIV, .title = "A skewed peak with heavy tails on an offset, by its area",
            .formula = "y = y0 + (A k/w) (1 + z^2)^(-m) exp(-nu atan(z)),  z = (x - xc)/w,  k = 4^(m - 1) "
                       "absgamma(m, nu/2)^2/(pi gamma(2 m - 1))",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "location; the maximum is at xc - w nu/(2 m)", Trait::position},
                           {"A", "area", Trait::area},
                           {"w", "width; for nu = 0 the full width at half maximum is 2 w sqrt(2^(1/m) - 1)",
                            Trait::width, positive},
                           {"nu", "skew; positive: the long tail is on the left", Trait::coefficient},
                           {"m", "tail exponent; 1 with nu = 0 is a Lorentzian", Trait::shape, above(0.5)}},
            .typical = {{0.2, 4, 4, 1.2, -2, 1.8}, 0, 12}, .known_as = "Pearson type IV distribution",
            .source = "Pearson, 1895",
            .notes = "absgamma(a, b) is the modulus of the gamma function at a + i b; k makes A the area. No "
                     "value for w <= 0 and m <= 0.5. xc, w, nu and m are strongly correlated where the data "
                     "show little of the tails.")

} // namespace ansatz::pearson_iv_model
