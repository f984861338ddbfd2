// A surface over two x columns.

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

constexpr const char* above_colour = "#b2182b";
constexpr const char* below_colour = "#08306b";

/// The data above (sign 1) or below (-1) the surface: x1, x2, y, residual, size in the map of residuals.
MatrixXd side(const Picture& p, int sign) {
    const Eigen::VectorXd residuals = p.data.y.col(0) - p.fit.fitted.col(0);
    const double largest = residuals.cwiseAbs().maxCoeff();
    const double scale = std::clamp(30 / std::sqrt(static_cast<double>(residuals.size())), 0.6, 3.0);
    MatrixXd rows = MatrixXd::Constant(residuals.size(), 5, std::numeric_limits<double>::quiet_NaN());
    for (Index i = 0; i < residuals.size(); ++i) {
        if ((residuals[i] >= 0) != (sign > 0)) continue;
        const double share = largest > 0 ? std::fabs(residuals[i]) / largest : 0; // the area of the mark
        rows.row(i) << p.data.x.row(i), p.data.y(i, 0), residuals[i], 0.15 + scale * std::sqrt(share);
    }
    return rows;
}

} // namespace

void plot_surface(const Picture& p) {
    const Window window = Window::of(p.data), around = window.widened(0.03);
    const std::string& y = p.labels.y[0];
    std::string script = head(p.file, 1440, 700);
    script += block("surface", sampled(p, window, 41), 41) + block("fine", sampled(p, window, 121), 121);
    script += block("above", side(p, 1)) + block("below", side(p, -1));
    script +=
        fmt::format("set xlabel {}\nset ylabel {}\n"
                    "set palette defined (0 '#6d62ad', 1 '#5f93c4', 2 '#5bb8ac', 3 '#9bd08a', 4 '#f0dc5a')\n"
                    "set contour base\nset cntrparam levels auto 12\nunset surface\n"
                    "set table $contours\nsplot $fine using 1:2:3\nunset table\nset surface\n"
                    "unset contour\nset multiplot\n",
                    quoted(p.labels.x[0]), quoted(p.labels.x[1]));

    // Left: the surface, and on top of it each datum with the line that leads to it.
    script += fmt::format("set origin 0, 0\nset size 0.53, 1\nset title {} textcolor rgb '{}'\n"
                          "set xrange [{:.17g}:{:.17g}]\nset yrange [{:.17g}:{:.17g}]\n"
                          "set zlabel {} rotate by 90 offset 1\nset border 895\nset view 60, 40, 0.98, 1.05\n"
                          "set xyplane relative 0.03\nunset colorbox\nset grid xtics ytics ztics\n"
                          "set pm3d scansautomatic border linecolor rgb '#555555' linewidth 0.3\n"
                          "set style fill solid 1\nset key at screen 0.52, 0.93\n",
                          quoted(fmt::format("Fit of {}", p.model.name())), ink, window.low1, window.high1,
                          window.low2, window.high2, quoted(y));
    const auto lines = [](const char* name, const char* colour) {
        return fmt::format("${} using 1:2:3:(0):(0):(-$4) with vectors nohead linewidth 0.8 linecolor rgb '{}' "
                           "notitle",
                           name, colour);
    };
    const auto points = [](const char* name, const char* colour, const std::string& title) {
        return fmt::format("${} using 1:2:3 with points pointtype 7 pointsize 0.7 linecolor rgb '{}' title {}",
                           name, colour, quoted(title));
    };
    script += draw({"$surface using 1:2:3 with pm3d notitle", lines("below", below_colour),
                    points("below", below_colour, y + " below the fit"), lines("above", above_colour),
                    points("above", above_colour, y + " above the fit")},
                   "splot");

    // Right: contours of the surface, and the residuals as marks whose area is their size.
    const double largest = (p.data.y.col(0) - p.fit.fitted.col(0)).cwiseAbs().maxCoeff();
    script +=
        place({0.60, 0.905, 0.12, 0.93}) +
        fmt::format("set title {} textcolor rgb '{}'\nunset key\nset border 3\nset ylabel offset -0.5\n"
                    "set xrange [{:.17g}:{:.17g}]\nset yrange [{:.17g}:{:.17g}]\nset style fill solid 1\n"
                    "set colorbox user origin screen 0.92, 0.12 size screen 0.013, 0.81\nset cblabel {}\n",
                    quoted(fmt::format("residuals (at most {:.3g}) over the contours of the fit", largest)),
                    ink, around.low1, around.high1, around.low2, around.high2, quoted(y));
    std::vector<std::string> layers = {"$contours using 1:2:3 with lines linewidth 1.4 linecolor palette"};
    for (const auto& [name, colour] : {std::pair{"below", below_colour}, std::pair{"above", above_colour}}) {
        layers.push_back(fmt::format(
            "${} using 1:2:5 with points pointtype 7 pointsize variable linecolor rgb '{}'", name, colour));
    }
    script += draw(layers) + "unset multiplot\n";
    run(script, p.file);
}

} // namespace ansatz::tools
