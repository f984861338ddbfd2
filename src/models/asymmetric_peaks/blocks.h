// The frame of the asymmetric peaks and the pseudo-Voigts: a common offset P1, then equal blocks of parameters,
// one per peak.
//
// The number of peaks is (nParams - 1) / size; parameters after the last whole block are ignored. y[i+1] is
// peak i alone. A peak whose amplitude (or area) is exactly 0 is skipped, whatever its other parameters: its
// component keeps what it held, its derivatives are 0. Fails for nParams < 1, for parameters that the peak does
// not allow, and on an error of its library calls, which is looked for once per peak, so that a pending one is
// seen even where none was called; the derivatives then mark dyda[1] and the failing peak's block.
//
// A peak is a struct of
//   size                parameters per block
//   amplitude           where in the block, from 0, the amplitude stands
//   allows(p)           are the block's parameters, p[0] .. p[size - 1], in the domain?
//   value(x, p)         the contribution
//   slopes(x, p, d)     the contribution, and its derivatives by p[0].. into d[0].., where the peak has them
#pragma once

#include "protocol/blocks.h"

#include <algorithm>

namespace ansatz::blocks {

template <class Peak> Status value(const Point& at) {
    if (at.n < 1) return fail(at);
    return add_blocks<Peak::size>(at, (at.n - 1) / Peak::size, [&](const Scalar* before, int) -> Outcome {
        const Scalar* p = before + 1;
        if (p[Peak::amplitude] == 0) return skipped;
        if (!Peak::allows(p)) return fail(at);
        const Real peak = Peak::value(at.x[1], p);
        if (math_error()) return fail(at);
        return peak;
    });
}

template <class Peak> Status derivatives(const Point& at) {
    if (at.n < 1) return fail(at);
    at.dyda[1] = 1;
    return add_blocks<Peak::size>(at, (at.n - 1) / Peak::size, [&](const Scalar* before, int k) -> Outcome {
        const Scalar* p = before + 1;
        Real* d = at.dyda + k + 1;
        if (p[Peak::amplitude] == 0) {
            std::fill_n(d, Peak::size, 0.0);
            return skipped;
        }
        const auto failed = [&] {
            std::fill_n(d, Peak::size, MISSING_VALUE);
            return fail(at, 1);
        };
        if (!Peak::allows(p)) return failed();
        const Real peak = Peak::slopes(at.x[1], p, d);
        if (math_error()) return failed();
        return peak;
    });
}

template <class Peak, Answers answers = Answers{}> using BothPaths =
    ansatz::BothPaths<value<Peak>, derivatives<Peak>, answers>;

/// Values only; these all answer the probe.
template <class Peak> using ValueOrRefusal =
    ansatz::ValueOrRefusal<value<Peak>, Answers{.query = 0, .probe = true}>;

/// For a peak that is 0, with all its derivatives, at this x.
template <int size> Real nothing(Real* d) {
    std::fill_n(d, size, 0.0);
    return 0;
}

/// e^t whose overflow is no error: the term is infinite, and what it damps reaches its limit, 0.
inline Real saturating_exp(Real t) {
    const int before = indicator();
    const Real r = safe_exp(t);
    if (std::isinf(r)) indicator() = before;
    return r;
}

} // namespace ansatz::blocks
