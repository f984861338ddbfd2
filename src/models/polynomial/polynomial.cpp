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

template <int order> using Model = FormD<value<order>, derivatives<order>>;

} // namespace
} // namespace ansatz::polynomial

ANSATZ_MODEL(Polynomial0, ansatz::polynomial::Model<0>)
ANSATZ_MODEL(Polynomial1, ansatz::polynomial::Model<1>)
ANSATZ_MODEL(Polynomial2, ansatz::polynomial::Model<2>)
ANSATZ_MODEL(Polynomial3, ansatz::polynomial::Model<3>)
ANSATZ_MODEL(Polynomial4, ansatz::polynomial::Model<4>)
ANSATZ_MODEL(Polynomial5, ansatz::polynomial::Model<5>)
