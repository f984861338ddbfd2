// A model's loop over many points, for the batch library: the form and its routines are inlined into it, so
// that a point costs no call, and what depends on parameters alone may leave the loop.
#pragma once

#include "protocol/errors.h"
#include "protocol/point.h"

#include <ansatz/batch.h>

#include <algorithm>
#include <cstddef>
#include <utility>

namespace ansatz::batch {

inline constexpr int most_params = ANSATZ_BATCH_MOST_PARAMS;

/// The most slots that a call with so many parameters reads or writes: some models lay their blocks further
/// apart than they count them. A call with more is refused.
inline constexpr int most_slots = most_params + most_params / 2;

/// A checked batch. What the caller did not give is there all the same, with a stride of 0: columns of zeros to
/// read, places to write that nobody reads.
struct Job {
    int n;
    int slots;            ///< how many parameters the model reads, at least n: the further ones are 0
    const double* params; ///< from 0
    const double* x[3];
    std::ptrdiff_t x_stride[3];
    int outputs; ///< with 0, y takes one number all the same
    double* y;
    std::ptrdiff_t y_stride;
    double* jacobian; ///< with rows that hold every slot the model writes
    std::ptrdiff_t jacobian_stride;
    std::int32_t* status;
    std::ptrdiff_t status_stride;
};

/// Computes the points first .. last - 1 and returns how many failed.
using Loop = std::size_t (*)(const Job& job, std::ptrdiff_t first, std::ptrdiff_t last);

struct Loops {
    Loop value, derivatives;
};

template <class Form, unsigned request>
[[gnu::flatten]] std::size_t loop(const Job& job, std::ptrdiff_t first, std::ptrdiff_t last) {
    // Everything in locals, so that nothing a model stores can change it.
    const auto [n, slots, params, columns, x_stride, outputs, y_column, y_stride, jacobian, jacobian_stride,
                statuses, status_stride] = job;
    Scalar P[1 + most_slots];
    Real y[1 + most_slots];
    std::copy_n(params, n, P + 1);
    std::fill_n(P + 1 + n, slots - n, 0.0);

    const double *x1 = columns[0] + first * x_stride[0], *x2 = columns[1] + first * x_stride[1],
                 *x3 = columns[2] + first * x_stride[2];
    double* out = y_column + first * y_stride;
    double* dyda = request == FF_DERIV ? jacobian + first * jacobian_stride - 1 : nullptr;
    std::int32_t* status = statuses + first * status_stride;
    Kept kept; // a signal handler's loop may interrupt another on the same thread, which finds its own again
    const Running before = std::exchange(running, {.indicator = 0, .kept = &kept});
    std::size_t failures = 0;
    for (std::ptrdiff_t i = first; i < last; ++i) {
        double x[4] = {0, *x1, *x2, *x3};
        y[1] = 0;
        for (int k = 2; k <= outputs; ++k) y[k] = 0;
        clear_error();
        const Status answer = Form::serve(request, Point{n, P, x, y, dyda});
        if (answer != success) {
            ++failures;
            if (x[2] == MISSING_VALUE) y[1] = MISSING_VALUE; // the marker of a surface
        }
        *status = answer;
        out[0] = y[1];
        for (int k = 1; k < outputs; ++k) out[k] = y[k + 1];
        x1 += x_stride[0];
        x2 += x_stride[1];
        x3 += x_stride[2];
        out += y_stride;
        status += status_stride;
        if constexpr (request == FF_DERIV) dyda += jacobian_stride;
    }
    running = before;
    return failures;
}

template <class Form> inline constexpr Loops loops = {loop<Form, FF_VALUE>, loop<Form, FF_DERIV>};

} // namespace ansatz::batch
