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

#include "protocol/blocks.h"

#include <algorithm>
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

template <std::size_t J> Status values(const Point& at, int blocks, const Functions<J>& f) {
    return add_blocks<J>(at, blocks,
                         [&](const Scalar* p, int) -> Outcome { return contribution<J>(p + 1, f); });
}

/// The basis at this point; without a block the library is not called.
template <std::size_t J, Basis<J> basis> Functions<J> needed(const Point& at, int blocks) {
    return blocks < 1 ? Functions<J>{} : basis(at.x[1], at.x[2]);
}

template <std::size_t J, Basis<J> basis> Status fill(const Point& at, int blocks) {
    at.dyda[1] = 1;
    const Functions<J> f = needed<J, basis>(at, blocks);
    return add_blocks<J>(at, blocks, [&](const Scalar* p, int k) -> Outcome {
        for (std::size_t j = 0; j < J; ++j) at.dyda[k + 1 + static_cast<int>(j)] = f[j];
        return contribution<J>(p + 1, f);
    });
}

template <std::size_t J, Basis<J> basis> struct Checked {
    static constexpr int size = J;

    static Status value(const Point& at) {
        if (at.n <= 0) return fail_surface(at);
        const Functions<J> f = basis(at.x[1], at.x[2]);
        const int blocks = (at.n - 1) / size;
        if (blocks < 1 || !math_error()) return values<J>(at, blocks, f);
        values<J>(at, 1, f);
        return fail_surface(at);
    }

    static Status derivatives(const Point& at) {
        return at.n <= 0 ? fail_surface(at) : fill<J, basis>(at, (at.n - 1) / size);
    }

    using Form = BothPaths<value, derivatives>;
};

template <std::size_t J, Basis<J> basis> struct Unchecked {
    static constexpr int size = J;

    static Status value(const Point& at) {
        const int blocks = at.n / size;
        return values<J>(at, blocks, needed<J, basis>(at, blocks));
    }

    static Status derivatives(const Point& at) { return fill<J, basis>(at, at.n / size); }

    using Form = BothPaths<value, derivatives>;
};

} // namespace ansatz::basis_surface
