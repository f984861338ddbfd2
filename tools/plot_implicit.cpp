// A curve in the plane of two x columns, given as the zeros of a model.

#include "gnuplot.hpp"
#include "plane.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <vector>

namespace ansatz::tools {
namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using namespace gnuplot;

/// Points beside the curve: those between which and a neighbour the sign of the value changes. The values are
/// sampled on n lines.
MatrixXd beside_curve(const MatrixXd& values, Index n) {
    std::vector<Index> found;
    const auto crosses = [&](Index a, Index b) { return (values(a, 2) < 0) != (values(b, 2) < 0); };
    for (Index i = 0; i + 1 < n; ++i) {
        for (Index j = 0; j + 1 < n; ++j) {
            const Index here = i * n + j;
            if (crosses(here, here + 1) || crosses(here, here + n)) found.push_back(here);
        }
    }
    return values(found, Eigen::seqN(0, 2));
}

/// The data, and what of the curve lies within one more width of theirs on every side.
Window visible(const Picture& p) {
    Window window = window_of(p.data);
    constexpr Index n = 201;
    const MatrixXd curve = beside_curve(sampled(p, window.widened(1), n), n);
    for (Index i = 0; i < curve.rows(); ++i) window.include(curve(i, 0), curve(i, 1));
    return window.widened(0.06);
}

/// The part of a place in which both axes have the same scale.
Place to_scale(const Place& at, const Window& window, double width, double height) {
    const double across = (at.right - at.left) * width / (window.high1 - window.low1); // pixels per unit
    const double upward = (at.top - at.bottom) * height / (window.high2 - window.low2);
    const double spare1 = (at.right - at.left) * std::max(0.0, 1 - upward / across) / 2;
    const double spare2 = (at.top - at.bottom) * std::max(0.0, 1 - across / upward) / 2;
    return {at.left + spare1, at.right - spare1, at.bottom + spare2, at.top - spare2};
}

} // namespace

void plot_implicit(const Picture& p) {
    constexpr int width = 900, height = 960;
    constexpr Index n = 301;
    const Window window = visible(p);
    const MatrixXd values = sampled(p, window, n);
    MatrixXd residuals(p.data.x.rows(), 2);
    residuals << Eigen::VectorXd::LinSpaced(residuals.rows(), 1, static_cast<double>(residuals.rows())),
        p.fit.fitted;
    std::string script = head(p.file, width, height) + block("values", values, n) + block("data", p.data.x) +
                         block("residuals", residuals) +
                         "set contour base\nset cntrparam levels discrete 0\nunset surface\nset table $curve\n"
                         "splot $values using 1:2:3\nunset table\nset multiplot\n";

    // Above: the curve. Axes of like spans get one scale, so that a circle is round.
    Place above{0.13, 0.97, 0.33, 0.95};
    const double ratio = (window.high2 - window.low2) / (window.high1 - window.low1);
    if (ratio > 0.25 && ratio < 4) above = to_scale(above, window, width, height);
    script += place(above) + side_label(p.labels.x[1], above, 0.1) +
              fmt::format("set title {} textcolor rgb '{}'\nset xlabel {}\n{}set key {}\n",
                          quoted(fmt::format("Fit of {}", p.model.name())), ink, quoted(p.labels.x[0]),
                          ranges(window), key_position(window, 2, p.data.x, beside_curve(values, n))) +
              draw({fmt::format("$curve using 1:2 with lines linewidth 2.2 linecolor rgb '{}' title {}",
                                curve_colour, quoted(p.model.name())),
                    fmt::format("$data using 1:2 with points pointtype 7 pointsize 1 linecolor rgb '{}' "
                                "title 'data'",
                                data_colour)});

    // Below: the residuals of the equation.
    constexpr Place below{0.13, 0.97, 0.08, 0.23};
    script += place(below) + side_label("residual", below, 0.1) +
              fmt::format("set xrange [0:{}]\n", residuals.rows() + 1) +
              residual_axes(p.fit.fitted.cwiseAbs().maxCoeff(), "data point") +
              draw(residual_layers("residuals", false)) + "unset multiplot\n";
    run(script, p.file);
}

} // namespace ansatz::tools
