// The frames of the surfaces that are a common offset plus blocks of coefficients of fixed basis functions:
//
//   P1 + sum over the blocks and over j of  c_j f_j(x1, x2)
//
//   y[k+1] is block k alone, without the offset. The blocks of one call share the basis functions, so a second
//   block adds nothing to what a fit can describe.
//
// Two frames count and check differently. Checked has (nParams - 1) / J blocks of J coefficients; it fails for
// nParams <= 0, with the marker in x[2], and its value fails after the first block if the error indicator is
// set. Unchecked has nParams / J blocks, so that the last parameter read is P(J m + 1); it never fails and
// leaves the error indicator as the library set it.
#pragma once

#include "protocol/forms.h"

#include <array>
#include <cstddef>

namespace ansatz::basis_surface {

template <std::size_t J> using Functions = std::array<Real, J>;

/// A basis: its functions at (x1, x2), in the order of the coefficients.
template <std::size_t J> using Basis = Functions<J> (*)(Real x1, Real x2);

/// One block's contribution, c[0] being its first coefficient.
template <std::size_t J> Real contribution(const Scalar* c, const Functions<J>& f) {
    Real sum = c[0] * f[0];
    for (std::size_t j = 1; j < J; ++j) sum += c[j] * f[j];
    return sum;
}

template <std::size_t J, Basis<J> basis> Status fill(const Point& at, int blocks) {
    const auto [n, P, x, y, dyda] = at;
    y[1] = P[1];
    dyda[1] = 1;
    if (blocks < 1) return success;
    const Functions<J> f = basis(x[1], x[2]);
    for (int k = 1; k <= blocks; ++k) {
        const std::size_t first = 2 + J * static_cast<std::size_t>(k - 1);
        for (std::size_t j = 0; j < J; ++j) dyda[first + j] = f[j];
        y[k + 1] = contribution<J>(P + first, f);
        y[1] += y[k + 1];
    }
    return success;
}

template <std::size_t J, Basis<J> basis> struct Checked {
    static constexpr int size = J;

    static Status value(const Point& at) {
        const auto [n, P, x, y, dyda] = at;
        if (n <= 0) return fail_surface(at);
        y[1] = P[1];
        const Functions<J> f = basis(x[1], x[2]);
        const int blocks = (n - 1) / size;
        for (int k = 1; k <= blocks; ++k) {
            y[k + 1] = contribution<J>(P + 2 + size * (k - 1), f);
            y[1] += y[k + 1];
            if (math_error()) return fail_surface(at);
        }
        return success;
    }

    static Status derivatives(const Point& at) {
        return at.n <= 0 ? fail_surface(at) : fill<J, basis>(at, (at.n - 1) / size);
    }

    using Form = BothPaths<value, derivatives>;
};

template <std::size_t J, Basis<J> basis> struct Unchecked {
    static constexpr int size = J;

    static Status value(const Point& at) {
        const auto [n, P, x, y, dyda] = at;
        y[1] = P[1];
        const int blocks = n / size;
        if (blocks < 1) return success; // without a block the library is not called
        const Functions<J> f = basis(x[1], x[2]);
        for (int k = 1; k <= blocks; ++k) {
            y[k + 1] = contribution<J>(P + 2 + size * (k - 1), f);
            y[1] += y[k + 1];
        }
        return success;
    }

    static Status derivatives(const Point& at) { return fill<J, basis>(at, at.n / size); }

    using Form = BothPaths<value, derivatives>;
};

} // namespace ansatz::basis_surface
