// Constant, Line, Parabola, Cubic, Poly4, Poly5: polynomials of a fixed order.
//
//   y = P1 + P2 x + P3 x^2 + ... up to x^5
//
//   P1 the value at x = 0, the others the coefficients of the rising powers.
//
//   Never fails. Values that overflow come out as infinities or NaN with status 0; nParams is not read, and a
//   pending error passes through unseen. The value is summed from the highest power down and the value beside
//   the derivatives from the lowest one up, so that the two may differ in their last digits.

#include "protocol/forms.h"

namespace ansatz::polynomial {
namespace {

template <int order> Status value(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    double sum = P[order + 1];
    for (int k = order; k >= 1; --k) sum = sum * x + P[k];
    y[1] = sum;
    return success;
}

template <int order> Status derivatives(const Point& at) {
    const auto [n, P, xs, y, dyda] = at;
    const double x = xs[1];
    double sum = P[1], power = 1;
    dyda[1] = 1;
    for (int k = 2; k <= order + 1; ++k) {
        power *= x;
        dyda[k] = power;
        sum += P[k] * power;
    }
    y[1] = sum;
    return success;
}

template <int order> using Model = BothPaths<value<order>, derivatives<order>>;

} // namespace

ANSATZ_MODEL(Constant, Model<0>)

ANSATZ_PAGE(Constant, .title = "", .formula = "y = a", .parameters = {{"a", "level", Trait::level}})

ANSATZ_MODEL(Line, Model<1>)

ANSATZ_PAGE(Line, .title = "", .formula = "y = a + b x",
            .parameters = {{"a", "intercept", Trait::constant}, {"b", "slope", Trait::slope}})

ANSATZ_MODEL(Parabola, Model<2>)

ANSATZ_PAGE(Parabola, .title = "", .formula = "y = a + b x + c x^2",
            .parameters = {{"a", "y at x = 0", Trait::constant},
                           {"b", "slope at x = 0", Trait::slope},
                           {"c", "coefficient of x^2", Trait::constant}})

ANSATZ_MODEL(Cubic, Model<3>)

ANSATZ_PAGE(Cubic, .title = "", .formula = "y = a + b x + c x^2 + d x^3",
            .parameters = {{"a", "y at x = 0", Trait::constant},
                           {"b", "slope at x = 0", Trait::slope},
                           {"c", "coefficient of x^2", Trait::constant},
                           {"d", "coefficient of x^3", Trait::constant}})

ANSATZ_MODEL(Poly4, Model<4>)

ANSATZ_PAGE(Poly4, .title = "", .formula = "y = a0 + a1 x + a2 x^2 + a3 x^3 + a4 x^4",
            .parameters = {{"a0", "y at x = 0", Trait::constant},
                           {"a1", "slope at x = 0", Trait::slope},
                           {"a2", "coefficient of x^2", Trait::constant},
                           {"a3", "coefficient of x^3", Trait::constant},
                           {"a4", "coefficient of x^4", Trait::constant}})

ANSATZ_MODEL(Poly5, Model<5>)

ANSATZ_PAGE(Poly5, .title = "", .formula = "y = a0 + a1 x + a2 x^2 + a3 x^3 + a4 x^4 + a5 x^5",
            .parameters = {{"a0", "y at x = 0", Trait::constant},
                           {"a1", "slope at x = 0", Trait::slope},
                           {"a2", "coefficient of x^2", Trait::constant},
                           {"a3", "coefficient of x^3", Trait::constant},
                           {"a4", "coefficient of x^4", Trait::constant},
                           {"a5", "coefficient of x^5", Trait::constant}})

} // namespace ansatz::polynomial
