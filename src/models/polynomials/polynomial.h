// Polynomials of a fixed order. The value is summed from the highest power down and the value beside the
// derivatives from the lowest one up, so that the two may differ in their last digits: hosts rely on both.
//
// They never fail: values that overflow come out as infinities or NaN with status 0. nParams is not read, and a
// pending error passes through unseen.
#pragma once

#include "protocol/forms.h"

namespace ansatz {
namespace polynomial {

template <int order> Status value(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real x1 = x[1];
    Real sum = P[order + 1];
    for (int k = order; k >= 1; --k) sum = sum * x1 + P[k];
    y[1] = sum;
    return success;
}

template <int order> Status derivatives(const Point& at) {
    const auto [n, P, x, y, dyda] = at;
    const Real x1 = x[1];
    Real sum = P[1], power = 1;
    dyda[1] = 1;
    for (int k = 2; k <= order + 1; ++k) {
        power *= x1;
        dyda[k] = power;
        sum += P[k] * power;
    }
    y[1] = sum;
    return success;
}

} // namespace polynomial

template <int order> using Polynomial = BothPaths<polynomial::value<order>, polynomial::derivatives<order>>;

} // namespace ansatz
