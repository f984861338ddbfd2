// What the pictures share: colours, panels, and gnuplot itself.
#pragma once

#include <Eigen/Core>

#include <string>
#include <string_view>
#include <vector>

namespace ansatz::tools::gnuplot {

// Colours that stay apart for colour-blind readers (after Okabe and Ito).
constexpr const char* ink = "#333333";
constexpr const char* grid = "#dddddd";
constexpr const char* data_colour = "#0072b2";
constexpr const char* curve_colour = "#d55e00";

/// Throws host::Error unless gnuplot can write a picture to this file.
void require_writable(const std::string& file);

/// Text as a gnuplot string that shows exactly it, as far as it can be drawn. Bytes other than letters and
/// blanks are written as \ooo: whatever the text, gnuplot finds nothing in it to interpret or to run. (A digit
/// after \ooo would be read as part of it.)
std::string quoted(const std::string& text);

/// The beginning of a script: a white picture of the file's kind and about this size, with thin axes and a
/// light grid.
std::string head(const std::string& file, int width, int height);

/// A named block of data, with a blank line after every `scan` rows if that is not 0. What is not finite
/// interrupts a curve and leaves a hole in a surface.
std::string block(std::string_view name, const Eigen::MatrixXd& rows, Eigen::Index scan = 0);

/// The command that draws these layers, from below to above.
std::string draw(const std::vector<std::string>& layers, std::string_view command = "plot");

/// Where a panel stands, in fractions of the picture.
struct Place {
    double left, right, bottom, top;
};
std::string place(const Place& at);

/// What the axes of a panel show.
struct Window {
    double low1, high1, low2, high2;

    /// With this share of its width more on every side.
    Window widened(double share) const;
    void include(double x, double y);
};

/// The ranges of both axes.
std::string ranges(const Window& window);

/// Where in a panel a legend of some entries hides the least of the data and of the curve, given as x, y.
std::string_view key_position(const Window& window, std::size_t entries, const Eigen::MatrixXd& data,
                              const Eigen::MatrixXd& curve);

/// The label of a panel's y axis, at a fixed distance from it in fractions of the picture: wide numbers at the
/// tics must not push it out.
std::string side_label(const std::string& text, const Place& at, double distance);

/// A panel for residuals up to this size, with a zero line and few tics; the range of x is the caller's.
std::string residual_axes(double largest, const std::string& label);

/// The layers of residuals: columns 1, 2 and, for error bars, 3 of a block.
std::vector<std::string> residual_layers(std::string_view block, bool bars);

/// Runs gnuplot on a script that draws, and writes the picture to this file. Throws Failure.
void run(std::string script, const std::string& file);

} // namespace ansatz::tools::gnuplot
