// The physical limit: what a model costs when its formula is written out by hand in the loop over the data,
// with the terms that value and derivatives have in common kept, and without any handling of errors.
//
//   LIMIT1(Line, 2) {            // y of P[1], P[2] and one x
//       if (d) {                 // the derivatives are wanted
//           d[1] = 1;
//           d[2] = x;
//       }
//       return P[1] + P[2] * x;
//   }
//
// A model of a varying number of peaks or terms is written for the catalogue's default number. Special
// functions that C++ does not have are the library's own on both sides.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace bench {

/// Columns to compute from and to.
struct Work {
    const double* params; ///< from 0
    const double* x[3];   ///< columns
    std::size_t points;
    double* y;        ///< a column for each dependent variable, one behind the other
    double* jacobian; ///< row-major, points x parameters
};

struct Limit {
    std::string_view name;
    int params;
    /// The data in a loop: terms of the parameters alone leave it, and what the compiler can it computes for
    /// several points at a time.
    void (*loop_values)(const Work&);
    void (*loop_derivatives)(const Work&);
    /// One point at a time, inlined in the same place but with nothing carried over from the point before: what
    /// a call per point could cost at best.
    void (*point_values)(const Work&);
    void (*point_derivatives)(const Work&);
};

/// All that are written, sorted by name.
const std::vector<Limit>& limits();
const Limit* find_limit(std::string_view name);

namespace detail {

bool add(const Limit& limit);

template <class Law, bool derivatives, bool by_point> [[gnu::flatten]] void run(const Work& work) {
    double P[Law::params + 1];
    std::copy_n(work.params, Law::params, P + 1);
    const double* const columns[3] = {work.x[0], work.x[1], work.x[2]};
    double* const y = work.y;
    double* row = work.jacobian;
    const std::size_t points = work.points;
    for (std::size_t i = 0; i < points; ++i) {
        if constexpr (by_point) asm volatile("" : : "r"(P) : "memory"); // the parameters may have changed
        double x[4] = {};
        for (int c = 0; c < Law::inputs; ++c) x[c + 1] = columns[c][i];
        if constexpr (Law::outputs == 2) {
            std::tie(y[i], y[points + i]) = Law::at(P, x);
        } else {
            y[i] = Law::at(P, x, derivatives ? row - 1 : nullptr);
        }
        if constexpr (derivatives) row += Law::params;
    }
}

template <class Law> bool add_law(std::string_view name) {
    return add({name, Law::params, run<Law, false, false>, run<Law, true, false>, run<Law, false, true>,
                run<Law, true, true>});
}

template <int n, double (*law)(const double*, double, double*)> struct One {
    static constexpr int inputs = 1, params = n, outputs = 1;
    static double at(const double* P, const double* x, double* d) { return law(P, x[1], d); }
};
template <int n, double (*law)(const double*, double, double, double*)> struct Two {
    static constexpr int inputs = 2, params = n, outputs = 1;
    static double at(const double* P, const double* x, double* d) { return law(P, x[1], x[2], d); }
};
template <int n, double (*law)(const double*, double, double, double, double*)> struct Three {
    static constexpr int inputs = 3, params = n, outputs = 1;
    static double at(const double* P, const double* x, double* d) { return law(P, x[1], x[2], x[3], d); }
};

using Pair = std::pair<double, double>;
template <int n, Pair (*law)(const double*, double, double)> struct Both {
    static constexpr int inputs = 2, params = n, outputs = 2;
    static Pair at(const double* P, const double* x) { return law(P, x[1], x[2]); }
};

} // namespace detail
} // namespace bench

#define LIMIT(name, type, arguments, shape, n)                                                                 \
    static type name arguments;                                                                                \
    [[maybe_unused]] static const bool name##_added =                                                          \
        bench::detail::add_law<bench::detail::shape<n, name>>(#name);                                          \
    [[gnu::always_inline]] static inline type name arguments
#define LIMIT1(name, n)                                                                                        \
    LIMIT(name, double, ([[maybe_unused]] const double* P, double x, [[maybe_unused]] double* d), One, n)
#define LIMIT2(name, n)                                                                                        \
    LIMIT(name, double, (const double* P, double x1, double x2, [[maybe_unused]] double* d), Two, n)
#define LIMIT3(name, n)                                                                                        \
    LIMIT(name, double, (const double* P, double x1, double x2, double x3, [[maybe_unused]] double* d), Three, \
          n)

/// Two dependent variables, without derivatives. The second column of y follows the first.
#define LIMIT_PAIR(name, n)                                                                                    \
    LIMIT(name, bench::detail::Pair, (const double* P, double x1, [[maybe_unused]] double x2), Both, n)
