// Small models of every shape that the catalogue has, by the protocol of ansatz.h, for tests of the host alone.
#pragma once

#include <ansatz/host/model.hpp>

#include <cmath>

namespace custom {

using ansatz::Page;
using ansatz::Trait;
using ansatz::host::Model;

// The arguments that a model reads, in protocol order.
#define CUSTOM_ROUTINE(name)                                                                                   \
    inline std::int32_t name(std::uint32_t flags, std::uint32_t, [[maybe_unused]] std::int32_t n,              \
                             std::uint32_t, std::uint32_t, const double* P, std::uint32_t,                     \
                             [[maybe_unused]] double* x, [[maybe_unused]] double* y,                           \
                             [[maybe_unused]] double* dyda)

/// y = P1 + P2 x, with derivatives.
CUSTOM_ROUTINE(line_routine) {
    if (flags & FF_QUERY_DERIV) return 1;
    y[1] = P[1] + P[2] * x[1];
    if (flags & FF_DERIV) dyda[1] = 1, dyda[2] = x[1];
    return 0;
}
inline Model line() {
    return Model::custom("line", line_routine, 1, 1, 2);
}

/// y = P1 x with a derivative of the wrong sign, so that every step leads uphill.
CUSTOM_ROUTINE(misleading_routine) {
    if (flags & FF_QUERY_DERIV) return 1;
    y[1] = P[1] * x[1];
    if (flags & FF_DERIV) dyda[1] = -x[1];
    return 0;
}
inline Model misleading() {
    return Model::custom("misleading", misleading_routine, 1, 1, 1);
}

/// y = P1 + P2 + P3 x: the data do not tell P1 from P2.
CUSTOM_ROUTINE(redundant_routine) {
    if (flags & FF_QUERY_DERIV) return 0;
    y[1] = P[1] + P[2] + P[3] * x[1];
    return 0;
}
inline Model redundant() {
    return Model::custom("redundant", redundant_routine, 1, 1, 3);
}

/// Two dependent variables that share P2; y[1] alone has derivatives.
CUSTOM_ROUTINE(pair_routine) {
    if (flags & FF_QUERY_DERIV) return 1;
    if (flags & FF_DERIV) dyda[1] = 1, dyda[2] = x[1], dyda[3] = 0;
    y[1] = P[1] + P[2] * x[1];
    if (flags & FF_VALUE) y[2] = P[3] * std::exp(-P[2] * x[1]);
    return 0;
}
inline Model pair() {
    return Model::custom("pair", pair_routine, 1, 2, 3);
}

/// A circle as an implicit model. Reports success whatever comes out, as the library's implicit models do.
CUSTOM_ROUTINE(circle_routine) {
    if (flags & FF_VALUE) {
        const double u = (x[1] - P[1]) / P[3], v = (x[2] - P[2]) / P[3];
        y[1] = u * u + v * v - 1;
    }
    return 0;
}
inline Model circle() {
    static const Page text{.formula = "0 = ((x1 - xc)/r)^2 + ((x2 - yc)/r)^2 - 1",
                           .implicit = true,
                           .parameters = {{"xc", "", Trait::position},
                                          {"yc", "", Trait::position},
                                          {"r", "radius", Trait::width}}};
    return Model::custom("circle", circle_routine, 2, 1, 3, &text);
}

/// A surface y = P1 sqrt(x1) + P2 x2 that fails for x1 < 0 and then writes into x[2].
CUSTOM_ROUTINE(surface_routine) {
    if (flags & FF_QUERY_DERIV) return 1;
    if (x[1] < 0) {
        x[2] = MISSING_VALUE;
        return 1;
    }
    y[1] = P[1] * std::sqrt(x[1]) + P[2] * x[2];
    if (flags & FF_DERIV) dyda[1] = std::sqrt(x[1]), dyda[2] = x[2];
    return 0;
}
inline Model surface() {
    return Model::custom("surface", surface_routine, 2, 1, 2);
}

/// An expected-value line: P2 is the response at the reference position P1, P3 the slope. The row says two
/// parameters, as for the models of the library.
CUSTOM_ROUTINE(expected_routine) {
    if (flags & FF_QUERY_DERIV) return 0;
    y[1] = P[2] + P[3] * (x[1] - P[1]);
    return 0;
}
inline Model expected() {
    static const Page text{.formula = "y = E + b (x - X)",
                           .parameters = {{"X", "reference x", Trait::reference},
                                          {"E", "response at X", Trait::response},
                                          {"b", "slope", Trait::slope}}};
    return Model::custom("expected", expected_routine, 1, 1, 2, &text);
}

/// y = sum a_k x^k over as many terms as there are parameters. Deliberately touches a slot after the last.
CUSTOM_ROUTINE(series_routine) {
    if (flags & FF_QUERY_DERIV) return 1;
    double power = 1;
    y[1] = P[n + 2];
    dyda[n + 2] = 7;
    for (int k = 1; k <= n; ++k, power *= x[1]) {
        y[1] += P[k] * power;
        if (flags & FF_DERIV) dyda[k] = power;
    }
    return 0;
}
inline Model series() {
    static const Page text{.formula = "y = sum a x^k",
                           .block = {{"a", "coefficient", Trait::coefficient}},
                           .block_name = "term",
                           .first_block = 0,
                           .most_blocks = 3,
                           .components = false,
                           .layout = {.block = 1, .least = 6}};
    return Model::custom("series", series_routine, 1, 1, 2, &text);
}

} // namespace custom
