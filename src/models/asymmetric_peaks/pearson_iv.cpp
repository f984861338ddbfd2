// PearsonIV: one skewed peak, the normalised Pearson type IV density.
//
//   y = P1 + P3 k / P4 (1 + z^2)^-m e^(-nu atan z),   z = (x - P2) / P4
//       k = |Gamma(m + i nu/2)|^2 2^(2m-2) / (pi Gamma(2m - 1))
//
//   P1 offset, P2 location, P3 area, P4 width, P5 = nu skew (positive: the long tail is on the left), P6 = m
//   exponent. The maximum is at P2 - P4 nu / (2m).
//
//   Values only, and never a status of failure: y[1] alone is MISSING_VALUE for m <= 0.5 or P4 <= 0. The error
//   indicator is neither looked at nor changed. FF_PROBE is answered, but nothing is written.

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

ANSATZ_PAGE(PearsonIV, .title = "",
            .formula = "y = y0 + (A k/w) (1 + z^2)^(-m) exp(-nu atan(z)),  z = (x - xc)/w,  k = 4^(m - 1) "
                       "absgamma(m, nu/2)^2/(pi gamma(2 m - 1))",
            .parameters = {{"y0", "offset", Trait::offset},
                           {"xc", "location; the maximum is at xc - w nu/(2 m)", Trait::constant},
                           {"A", "area", Trait::area},
                           {"w", "width; for nu = 0 the full width at half maximum is 2 w sqrt(2^(1/m) - 1)",
                            Trait::width},
                           {"nu", "skew; positive: the long tail is on the left", Trait::constant},
                           {"m", "tail exponent, above 1/2; 1 with nu = 0 is a Lorentzian", Trait::constant}},
            .notes = "absgamma(a, b) is the modulus of the gamma function at a + i b; k makes A the area. No "
                     "value for w <= 0 and m <= 0.5: bound both from below. xc, w, nu and m are strongly "
                     "correlated where the data show little of the tails.")

} // namespace ansatz::pearson_iv_model
