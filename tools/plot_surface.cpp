// A surface over two x columns.

#include "gnuplot.hpp"
#include "plane.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace ansatz::tools {
namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;
using namespace gnuplot;

/// The two kinds of data: block, colour, sign of the residual.
struct Side {
    const char* name;
    const char* colour;
    int sign;
};
constexpr Side sides[] = {{"below", "#08306b", -1}, {"above", "#b2182b", 1}};

VectorXd residuals(const Picture& p) {
    return p.data.y.col(0) - p.fit.fitted.col(0);
}

/// The view shows about as many data at most: more would hide the surface.
constexpr Index most_in_view = 400;

/// The data of one side: x1, x2, y, residual, size of the mark in the map, and whether the view shows them.
MatrixXd of_side(const Picture& p, int sign) {
    const VectorXd left = residuals(p);
    const double largest = left.cwiseAbs().maxCoeff();
    const double scale = std::clamp(30 / std::sqrt(static_cast<double>(left.size())), 0.6, 3.0);
    const double shown = static_cast<double>(most_in_view) / static_cast<double>(left.size());
    MatrixXd rows = MatrixXd::Constant(left.size(), 6, std::numeric_limits<double>::quiet_NaN());
    for (Index i = 0; i < left.size(); ++i) {
        if ((left[i] >= 0) != (sign > 0)) continue;
        const double share = largest > 0 ? std::fabs(left[i]) / largest : 0; // the area of the mark
        // Multiples of the golden section are spread evenly, whatever the order of the data.
        const double spread = std::fmod(0.6180339887498949 * static_cast<double>(i), 1.0);
        rows.row(i) << p.data.x.row(i), p.data.y(i, 0), left[i], 0.15 + scale * std::sqrt(share),
            spread < shown ? 1.0 : 0.0;
    }
    return rows;
}

/// The smallest and the largest y of the fitted surface.
std::pair<double, double> heights(const MatrixXd& surface) {
    double low = std::numeric_limits<double>::infinity(), high = -low;
    for (const double y : surface.col(2)) {
        if (std::isfinite(y)) low = std::min(low, y), high = std::max(high, y);
    }
    return {low, high};
}

/// The surface, and on top of it each datum with the line that leads to it.
std::string view(const Picture& p, const Window& window) {
    std::string title = fmt::format("Fit of {}", p.model.name());
    if (p.data.x.rows() > most_in_view) title += ", some of the data";
    std::string text =
        fmt::format("set origin 0, 0\nset size 0.53, 1\nset title {} textcolor rgb '{}'\n{}"
                    "set zlabel {} rotate by 90 offset 1\nset border 895\nset view 60, 40, 0.98, 1.05\n"
                    "set xyplane relative 0.03\nunset colorbox\nset grid xtics ytics ztics\n"
                    "set pm3d scansautomatic border linecolor rgb '#555555' linewidth 0.3\n"
                    "set style fill solid 1\nset key at screen 0.52, 0.93\n",
                    quoted(title), ink, ranges(window), quoted(p.labels.y[0]));
    std::vector<std::string> layers = {"$surface using 1:2:3 with pm3d notitle"};
    for (const auto& [name, colour, sign] : sides) {
        layers.push_back(fmt::format("${} using 1:2:($6 > 0 ? $3 : NaN):(0):(0):(-$4) with vectors nohead "
                                     "linewidth 0.8 linecolor rgb '{}' notitle",
                                     name, colour));
        layers.push_back(fmt::format("${} using 1:2:($6 > 0 ? $3 : NaN) with points pointtype 7 pointsize 0.7 "
                                     "linecolor rgb '{}' title {}",
                                     name, colour, quoted(fmt::format("{} {} the fit", p.labels.y[0], name))));
    }
    return text + draw(layers, "splot");
}

/// The residuals as marks whose area is their size, over the contours of the surface.
std::string map(const Picture& p, const Window& window, bool contours) {
    std::string text =
        place({0.60, 0.905, 0.12, 0.93}) +
        fmt::format("set title {} textcolor rgb '{}'\nunset key\nset border 3\nset ylabel offset -0.5\n{}"
                    "set colorbox user origin screen 0.92, 0.12 size screen 0.013, 0.81\nset cblabel {}\n",
                    quoted(fmt::format("residuals (at most {:.3g}) over the contours of the fit",
                                       residuals(p).cwiseAbs().maxCoeff())),
                    ink, ranges(window), quoted(p.labels.y[0]));
    std::vector<std::string> layers;
    for (const auto& [name, colour, sign] : sides) {
        layers.push_back(fmt::format(
            "${} using 1:2:5 with points pointtype 7 pointsize variable linecolor rgb '{}'", name, colour));
    }
    if (contours) layers.emplace_back("$contours using 1:2:3 with lines linewidth 1.4 linecolor palette");
    return text + draw(layers);
}

} // namespace

void plot_surface(const Picture& p) {
    const Window window = window_of(p.data);
    const MatrixXd coarse = sampled(p, window, 41), fine = sampled(p, window, 121);
    auto [low, high] = heights(fine);
    const bool flat = !(high - low > 1e-9 * std::max(std::fabs(low), std::fabs(high)));
    if (flat) low -= 0.5, high += 0.5;

    std::string script = head(p.file, 1440, 700) + block("surface", coarse, 41);
    for (const Side& side : sides) script += block(side.name, of_side(p, side.sign));
    script +=
        fmt::format("set palette defined (0 '#6d62ad', 1 '#5f93c4', 2 '#5bb8ac', 3 '#9bd08a', 4 '#f0dc5a')\n"
                    "set xlabel {}\nset ylabel {}\nset cbrange [{:.10g}:{:.10g}]\n",
                    quoted(p.labels.x[0]), quoted(p.labels.x[1]), low, high);
    if (flat) {
        script += fmt::format("set zrange [{:.10g}:{:.10g}]\n", std::min(low, p.data.y.minCoeff()),
                              std::max(high, p.data.y.maxCoeff()));
    } else {
        script += block("fine", fine, 121) + "set contour base\nset cntrparam levels auto 12\nunset surface\n"
                                             "set table $contours\nsplot $fine using 1:2:3\nunset table\n"
                                             "set surface\nunset contour\n";
    }
    run(script + "set multiplot\n" + view(p, window) + map(p, window.widened(0.03), !flat) +
            "unset multiplot\n",
        p.file);
}

} // namespace ansatz::tools
