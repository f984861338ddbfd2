// A model's loop over many points, for the batch library: the form and its routines are inlined into it, so
// that a point costs no call, and what depends on parameters alone may leave the loop.
#pragma once

#include "protocol/errors.h"
#include "protocol/point.h"

#include <ansatz/batch.h>

#include <algorithm>
#include <cstddef>

namespace ansatz::batch {

inline constexpr int most_params = ANSATZ_BATCH_MOST_PARAMS;

/// Some models read or write a little further than nParams says.
inline constexpr int padding = most_params / 2;

/// A checked batch. Columns that the caller did not give point at a zero.
struct Job {
    int n;
    const double* params; ///< from 0
    const double* x[3];
    std::ptrdiff_t x_stride[3];
    int outputs;
    double* y;
    std::ptrdiff_t y_stride;
    double* jacobian;
    std::ptrdiff_t jacobian_stride;
    bool rows_hold_all_slots; ///< may the model write into the Jacobian's rows itself?
    std::int32_t* status;     ///< may be null
};

/// Computes the points first .. last - 1 and returns how many failed.
using Loop = std::size_t (*)(const Job& job, std::size_t first, std::size_t last);

struct Loops {
    Loop value, derivatives;
};

template <class Form, unsigned request>
[[gnu::flatten]] std::size_t loop(const Job& job, std::size_t first, std::size_t last) {
    // Everything in locals: nothing that the model stores can change it.
    const auto [n, params, columns, x_stride, outputs, y_column, y_stride, jacobian, jacobian_stride,
                rows_hold_all_slots, status_column] = job;
    constexpr std::size_t slots = most_params + padding + 1;
    double P[slots], y[slots], wide_row[slots];
    std::copy_n(params, n, P + 1);
    std::fill_n(P + 1 + n, padding, 0.0);

    std::size_t failures = 0;
    for (std::size_t i = first; i < last; ++i) {
        const auto at = static_cast<std::ptrdiff_t>(i);
        double x[4] = {0, columns[0][at * x_stride[0]], columns[1][at * x_stride[1]],
                       columns[2][at * x_stride[2]]};
        y[1] = 0;
        for (int k = 2; k <= outputs; ++k) y[k] = 0;
        double* dyda = nullptr;
        if constexpr (request == FF_DERIV) {
            double* const row = jacobian + at * jacobian_stride;
            if (rows_hold_all_slots) {
                dyda = row - 1;
            } else {
                dyda = wide_row;
                std::copy_n(row, n, dyda + 1);
            }
        }
        clear_error();
        const Status status = Form::serve(request, Point{n, P, x, y, dyda});
        if (status != success) {
            ++failures;
            if (x[2] == MISSING_VALUE) y[1] = MISSING_VALUE; // the marker of a surface
        }
        if constexpr (request == FF_DERIV) {
            if (!rows_hold_all_slots) std::copy_n(wide_row + 1, n, jacobian + at * jacobian_stride);
        }
        if (outputs > 0) {
            double* const out = y_column + at * y_stride;
            out[0] = y[1];
            for (int k = 1; k < outputs; ++k) out[k] = y[k + 1];
        }
        if (status_column) status_column[i] = status;
    }
    return failures;
}

template <class Form> inline constexpr Loops loops = {loop<Form, FF_VALUE>, loop<Form, FF_DERIV>};

} // namespace ansatz::batch

#define ANSATZ_LOOPS(name) extern const ansatz::batch::Loops ansatz_loops_##name
