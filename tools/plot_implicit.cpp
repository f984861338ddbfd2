// A curve in the plane of two x columns, given as the zeros of a model.

#include "gnuplot.hpp"
#include "plane.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace ansatz::tools {
namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using namespace gnuplot;

/// The data, and what of the curve lies within one more width of theirs on every side.
Window visible(const Picture& p) {
    Window window = Window::of(p.data);
    constexpr Index n = 201;
    const MatrixXd around = sampled(p, window.widened(1), n);
    const auto crosses = [&](Index a, Index b) { return (around(a, 2) < 0) != (around(b, 2) < 0); };
    for (Index i = 0; i + 1 < n; ++i) {
        for (Index j = 0; j + 1 < n; ++j) {
            const Index here = i * n + j;
            if (crosses(here, here + 1) || crosses(here, here + n)) {
                window.include(around(here, 0), around(here, 1));
                window.include(around(here + n + 1, 0), around(here + n + 1, 1));
            }
        }
    }
    return window.widened(0.05);
}

} // namespace

void plot_implicit(const Picture& p) {
    constexpr int width = 900, height = 960;
    const Window window = visible(p);
    constexpr Index n = 301;
    std::string script = head(p.file, width, height);
    script += block("grid", sampled(p, window, n), n) + block("data", p.data.x);
    MatrixXd residuals(p.data.x.rows(), 2);
    residuals << Eigen::VectorXd::LinSpaced(residuals.rows(), 1, static_cast<double>(residuals.rows())),
        p.fit.fitted;
    script += block("residuals", residuals);
    script += "set contour base\nset cntrparam levels discrete 0\nunset surface\nset table $curve\n"
              "splot $grid using 1:2:3\nunset table\nset multiplot\n";

    // Above: the curve. Axes of like spans get one scale, so that a circle is round.
    Place above{0.13, 0.97, 0.33, 0.95};
    const double span1 = window.high1 - window.low1, span2 = window.high2 - window.low2;
    if (span1 < 4 * span2 && span2 < 4 * span1) {
        const double across = (above.right - above.left) * width / span1;
        const double upward = (above.top - above.bottom) * height / span2; // pixels per unit
        const double spare1 = (above.right - above.left) * std::max(0.0, 1 - upward / across);
        const double spare2 = (above.top - above.bottom) * std::max(0.0, 1 - across / upward);
        above = {above.left + spare1 / 2, above.right - spare1 / 2, above.bottom + spare2 / 2,
                 above.top - spare2 / 2};
    }
    script += place(above) + side_label(p.labels.x[1], above, 0.1) +
              fmt::format("set title {} textcolor rgb '{}'\nset xlabel {}\n"
                          "set xrange [{:.17g}:{:.17g}]\nset yrange [{:.17g}:{:.17g}]\nset key center\n",
                          quoted(fmt::format("Fit of {}", p.model.name())), ink, quoted(p.labels.x[0]),
                          window.low1, window.high1, window.low2, window.high2) +
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
