#include "plot.hpp"

#include <fmt/format.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <sstream>

namespace ansatz::tools {
namespace {

using host::Error;

// Colours that stay apart for colour-blind readers (after Okabe and Ito).
constexpr const char* ink = "#333333";
constexpr const char* grid = "#dddddd";
constexpr const char* data_colours[] = {"#0072b2", "#009e73"};
constexpr const char* curve_colours[] = {"#d55e00", "#cc79a7"};
constexpr const char* peak_colours[] = {"#56b4e9", "#009e73", "#e69f00", "#cc79a7", "#0072b2", "#999999"};

std::string extension(const std::string& file) {
    std::string text = std::filesystem::path(file).extension().string();
    std::ranges::transform(text, text.begin(), [](char c) { return static_cast<char>(c | 0x20); });
    return text;
}

bool on_path(const std::string& program) {
    const char* path = std::getenv("PATH");
    std::istringstream directories(path ? path : "");
    for (std::string directory; std::getline(directories, directory, ':');) {
        if (access((directory + "/" + program).c_str(), X_OK) == 0) return true;
    }
    return false;
}

/// A gnuplot string in single quotes.
std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char c : text) result += c == '\'' ? std::string("''") : std::string(1, c);
    return result + "'";
}

std::string data_block(const host::Data& data, const host::Fit& fit, const Eigen::MatrixXd& deviations,
                       Eigen::Index output) {
    std::string block = fmt::format("$data{} << EOD\n", output + 1);
    for (Eigen::Index i = 0; i < data.x.rows(); ++i) {
        const double deviation =
            deviations.size() > 0 ? deviations(i, std::min(output, deviations.cols() - 1)) : 0.0;
        block += fmt::format("{:.17g} {:.17g} {:.17g} {:.17g}\n", data.x(i, 0), data.y(i, output), deviation,
                             data.y(i, output) - fit.fitted(i, output));
    }
    return block + "EOD\n";
}

/// x, the outputs, then every peak on the common offset. A blank line interrupts the curve where the model
/// fails.
std::string curve_block(const host::Evaluation& curve, const Eigen::MatrixXd& x) {
    std::string block = "$curve << EOD\n";
    for (Eigen::Index i = 0; i < x.rows(); ++i) {
        if (!curve.ok[static_cast<std::size_t>(i)]) {
            block += "\n";
            continue;
        }
        block += fmt::format("{:.10g}", x(i, 0));
        for (Eigen::Index d = 0; d < curve.y.cols(); ++d) block += fmt::format(" {:.10g}", curve.y(i, d));
        const double offset = curve.y(i, 0) - curve.components.row(i).sum();
        for (Eigen::Index k = 0; k < curve.components.cols(); ++k) {
            block += fmt::format(" {:.10g}", offset + curve.components(i, k));
        }
        block += "\n";
    }
    return block + "EOD\n";
}

/// Half the height of the residual panel.
double residual_reach(const host::Data& data, const host::Fit& fit, const Eigen::MatrixXd& deviations) {
    Eigen::MatrixXd size = (data.y - fit.fitted).cwiseAbs();
    for (Eigen::Index d = 0; deviations.size() > 0 && d < size.cols(); ++d) {
        size.col(d) += deviations.col(std::min(d, deviations.cols() - 1));
    }
    const double largest = size.maxCoeff();
    return largest > 0 ? 1.15 * largest : 1.0;
}

/// The largest of 1, 2 and 5 times a power of ten that does not exceed the number.
double round_step(double number) {
    const double power = std::pow(10.0, std::floor(std::log10(number)));
    for (const double factor : {5.0, 2.0}) {
        if (factor * power <= number) return factor * power;
    }
    return power;
}

/// The corner in which a key of this many entries covers least of the data and the curve.
std::string free_corner(const host::Data& data, const Eigen::MatrixXd& x, const Eigen::MatrixXd& y,
                        std::size_t entries) {
    const double low = data.y.minCoeff(), high = data.y.maxCoeff();
    const double across = 0.3 * (x.maxCoeff() - x.minCoeff()),
                 down = 0.08 * static_cast<double>(entries + 1) * (high - low);
    const auto covered = [&](bool top, bool right) {
        const auto count = [&](const Eigen::MatrixXd& xs, const Eigen::MatrixXd& ys) {
            int inside = 0;
            for (Eigen::Index i = 0; i < ys.rows(); ++i) {
                const bool beside = right ? xs(i, 0) > x.maxCoeff() - across : xs(i, 0) < x.minCoeff() + across;
                for (Eigen::Index d = 0; beside && d < ys.cols(); ++d) {
                    inside += top ? ys(i, d) > high - down : ys(i, d) < low + down;
                }
            }
            return static_cast<double>(inside) / static_cast<double>(ys.rows());
        };
        return count(data.x, data.y) + count(x, y);
    };
    std::string best;
    double least = std::numeric_limits<double>::infinity();
    for (const bool top : {true, false}) {
        for (const bool right : {true, false}) {
            const double share = covered(top, right);
            if (share >= least) continue;
            least = share;
            best = fmt::format("{} {}", top ? "top" : "bottom", right ? "right" : "left");
        }
    }
    return best;
}

void run_gnuplot(const std::string& script, const std::string& file) {
    std::FILE* pipe = popen("gnuplot", "w");
    if (!pipe) throw Error("--plot: gnuplot cannot be started");
    std::fwrite(script.data(), 1, script.size(), pipe);
    const int status = pclose(pipe);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw Error(fmt::format("--plot: gnuplot could not draw '{}'", file));
    }
}

} // namespace

void require_plottable(const host::Model& model, const std::string& file) {
    const std::string kind = extension(file);
    if (kind != ".svg" && kind != ".png") {
        throw Error(fmt::format("--plot: '{}' must end in .svg or .png", file));
    }
    if (model.inputs() != 1 || model.implicit()) {
        throw Error(fmt::format("--plot: {} is no curve of one x column and cannot be drawn", model.name()));
    }
    const auto directory = std::filesystem::path(file).parent_path();
    if (access(directory.empty() ? "." : directory.c_str(), W_OK) != 0) {
        throw Error(fmt::format("--plot: cannot write '{}'", file));
    }
    if (!on_path("gnuplot")) throw Error("--plot needs gnuplot, which is not installed");
}

void plot(const host::Model& model, const host::Data& data, const host::Fit& fit,
          const Eigen::MatrixXd& deviations, const PlotLabels& labels, const std::string& file) {
    const double low = data.x.col(0).minCoeff(), high = data.x.col(0).maxCoeff();
    const double margin = high > low ? 0.02 * (high - low) : 0.5;
    const Eigen::MatrixXd x = Eigen::VectorXd::LinSpaced(1001, low - margin, high + margin);
    const host::Evaluation curve = host::evaluate(model, fit.values(), x);
    const bool bars = deviations.size() > 0;
    const Eigen::Index outputs = data.y.cols(),
                       peaks = curve.components.cols() > 1 ? curve.components.cols() : 0;

    std::string script;
    script += extension(file) == ".svg"
                  ? "set terminal svg noenhanced size 900,660 font 'Helvetica,15' background '#ffffff'\n"
                  : "set terminal pngcairo noenhanced size 1500,1100 font 'Sans,21' linewidth 1.6 background "
                    "'#ffffff'\n";
    script += fmt::format("set output {}\n", quoted(file));
    for (Eigen::Index d = 0; d < outputs; ++d) script += data_block(data, fit, deviations, d);
    script += curve_block(curve, x);
    script +=
        fmt::format("set border 3 linecolor rgb '{0}'\nset tics nomirror out scale 0.6 textcolor rgb '{0}'\n"
                    "set grid linecolor rgb '{1}' linetype 1 linewidth 0.7\n"
                    "set lmargin at screen 0.115\nset rmargin at screen 0.97\n"
                    "set xrange [{2:.17g}:{3:.17g}]\nset key {4} samplen 2 spacing 1.2\n",
                    ink, grid, low - margin, high + margin,
                    free_corner(data, x, curve.y, static_cast<std::size_t>(2 * outputs + peaks)));

    // Above: data and curve.
    script += fmt::format("set multiplot\nset tmargin at screen 0.93\nset bmargin at screen 0.34\n"
                          "set title {} textcolor rgb '{}'\nset ylabel {} offset -0.5\nset format x ''\n",
                          quoted(fmt::format("Fit of {}", model.name())), ink,
                          quoted(outputs == 1 ? labels.y[0] : labels.y[0] + ", " + labels.y[1]));
    std::vector<std::string> layers;
    for (Eigen::Index k = 0; k < peaks; ++k) {
        layers.push_back(
            fmt::format("$curve using 1:{} with lines linewidth 1.3 dashtype 2 linecolor rgb '{}' title {}",
                        2 + outputs + k, peak_colours[static_cast<std::size_t>(k) % std::size(peak_colours)],
                        quoted(fmt::format("{} {}", model.description()->block_name,
                                           k + model.description()->first_block))));
    }
    for (Eigen::Index d = 0; d < outputs; ++d) {
        const auto colour = static_cast<std::size_t>(d);
        layers.push_back(
            fmt::format("$curve using 1:{} with lines linewidth 2.2 linecolor rgb '{}' title {}", 2 + d,
                        curve_colours[colour],
                        quoted(outputs == 1 ? model.name() : fmt::format("{} y{}", model.name(), d + 1))));
        layers.push_back(
            fmt::format("$data{} using 1:2{} pointtype 7 pointsize 1 linewidth 1 linecolor rgb '{}' "
                        "title {}",
                        d + 1, bars ? ":3 with yerrorbars" : " with points", data_colours[colour],
                        quoted(labels.y[colour])));
    }
    const auto plot_layers = [&] {
        script += "plot ";
        for (std::size_t i = 0; i < layers.size(); ++i) script += (i == 0 ? "" : ", ") + layers[i];
        script += "\n";
    };
    plot_layers();

    // Below: the residuals, data minus curve.
    const double reach = residual_reach(data, fit, deviations);
    const double tic = round_step(reach);
    script += fmt::format("set tmargin at screen 0.30\nset bmargin at screen 0.11\nunset title\nunset key\n"
                          "set ylabel 'residual' offset -0.5\nset xlabel {}\nset format x '%g'\n"
                          "set yrange [{:.10g}:{:.10g}]\nset ytics {:.10g}, {:.10g}, {:.10g}\n"
                          "set xzeroaxis linewidth 1.5 linecolor rgb '{}' linetype 1\n",
                          quoted(labels.x), -reach, reach, -tic, tic, tic, curve_colours[0]);
    layers.clear();
    for (Eigen::Index d = 0; d < outputs; ++d) {
        const char* const colour = data_colours[static_cast<std::size_t>(d)];
        if (!bars) {
            layers.push_back(
                fmt::format("$data{} using 1:4 with impulses linewidth 1 linecolor rgb '{}'", d + 1, colour));
        }
        layers.push_back(
            fmt::format("$data{} using 1:4{} pointtype 7 pointsize 1 linewidth 1 linecolor rgb '{}'", d + 1,
                        bars ? ":3 with yerrorbars" : " with points", colour));
    }
    plot_layers();
    script += "unset multiplot\n";
    run_gnuplot(script, file);
}

} // namespace ansatz::tools
