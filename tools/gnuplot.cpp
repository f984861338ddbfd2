#include "gnuplot.hpp"

#include <ansatz/host/error.hpp>

#include <fmt/format.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sstream>

namespace ansatz::tools::gnuplot {
namespace {

using host::Error;

std::string extension(const std::string& file) {
    std::string text = std::filesystem::path(file).extension().string();
    std::ranges::transform(text, text.begin(), [](char c) { return static_cast<char>(c | 0x20); });
    return text;
}

bool on_path(const std::string& program) {
    const char* path = std::getenv("PATH"); // NOLINT(concurrency-mt-unsafe): the command has one thread
    std::istringstream directories(path ? path : "");
    for (std::string directory; std::getline(directories, directory, ':');) {
        directory.append("/").append(program);
        if (access(directory.c_str(), X_OK) == 0) return true;
    }
    return false;
}

/// The largest of 1, 2 and 5 times a power of ten that does not exceed the number.
double round_step(double number) {
    const double power = std::pow(10.0, std::floor(std::log10(number)));
    for (const double factor : {5.0, 2.0}) {
        if (factor * power <= number) return factor * power;
    }
    return power;
}

} // namespace

void require_writable(const std::string& file) {
    const std::string kind = extension(file);
    if (kind != ".svg" && kind != ".png") {
        throw Error(fmt::format("--plot: '{}' must end in .svg or .png", file));
    }
    const auto directory = std::filesystem::path(file).parent_path();
    if (access(directory.empty() ? "." : directory.c_str(), W_OK) != 0) {
        throw Error(fmt::format("--plot: cannot write '{}'", file));
    }
    if (!on_path("gnuplot")) throw Error("--plot needs gnuplot, which is not installed");
}

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char c : text) result += c == '\'' ? std::string("''") : std::string(1, c);
    return result + "'";
}

std::string head(const std::string& file, int width, int height) {
    const std::string terminal =
        extension(file) == ".svg" ? fmt::format("svg noenhanced size {},{} font 'Helvetica,15'", width, height)
                                  : fmt::format("pngcairo noenhanced size {},{} font 'Sans,21' linewidth 1.6",
                                                width * 5 / 3, height * 5 / 3);
    return fmt::format("set terminal {0} background '#ffffff'\nset output {1}\n"
                       "set border 3 linecolor rgb '{2}'\nset tics nomirror out scale 0.6 textcolor rgb '{2}'\n"
                       "set grid linecolor rgb '{3}' linetype 1 linewidth 0.7\n"
                       "set key top right samplen 2 spacing 1.2\n",
                       terminal, quoted(file), ink, grid);
}

std::string block(std::string_view name, const Eigen::MatrixXd& rows, Eigen::Index scan) {
    std::string text = fmt::format("${} << EOD\n", name);
    for (Eigen::Index i = 0; i < rows.rows(); ++i) {
        for (Eigen::Index j = 0; j < rows.cols(); ++j) {
            text += std::isfinite(rows(i, j)) ? fmt::format("{:.10g} ", rows(i, j)) : "NaN ";
        }
        text += scan != 0 && (i + 1) % scan == 0 ? "\n\n" : "\n";
    }
    return text + "EOD\n";
}

std::string draw(const std::vector<std::string>& layers, std::string_view command) {
    std::string text(command);
    for (std::size_t i = 0; i < layers.size(); ++i) text += (i == 0 ? " " : ", ") + layers[i];
    return text + "\n";
}

std::string place(const Place& at) {
    return fmt::format("set lmargin at screen {}\nset rmargin at screen {}\nset bmargin at screen {}\n"
                       "set tmargin at screen {}\n",
                       at.left, at.right, at.bottom, at.top);
}

std::string ranges(const Window& window) {
    return fmt::format("set xrange [{:.17g}:{:.17g}]\nset yrange [{:.17g}:{:.17g}]\n", window.low1,
                       window.high1, window.low2, window.high2);
}

Window Window::widened(double share) const {
    const double by1 = share * (high1 - low1), by2 = share * (high2 - low2);
    return {low1 - by1, high1 + by1, low2 - by2, high2 + by2};
}

void Window::include(double x, double y) {
    low1 = std::min(low1, x), high1 = std::max(high1, x);
    low2 = std::min(low2, y), high2 = std::max(high2, y);
}

std::string_view key_position(const Window& window, std::size_t entries, const Eigen::MatrixXd& data,
                              const Eigen::MatrixXd& curve) {
    const double width = 0.38, height = 0.04 + 0.07 * static_cast<double>(entries);
    const struct {
        std::string_view name;
        double left, bottom; // in fractions of the panel
    } places[] = {{"top right", 1 - width, 1 - height},
                  {"top left", 0, 1 - height},
                  {"bottom right", 1 - width, 0},
                  {"bottom left", 0, 0},
                  {"center", (1 - width) / 2, (1 - height) / 2}};
    const auto hidden = [&](const auto& place) {
        double shares = 0;
        for (const Eigen::MatrixXd* marks : {&data, &curve}) {
            const Eigen::ArrayXd x = (marks->col(0).array() - window.low1) / (window.high1 - window.low1);
            const Eigen::ArrayXd y = (marks->col(1).array() - window.low2) / (window.high2 - window.low2);
            const Eigen::Array<bool, Eigen::Dynamic, 1> inside =
                x > place.left && x < place.left + width && y > place.bottom && y < place.bottom + height;
            if (inside.size() > 0) {
                shares += static_cast<double>(inside.count()) / static_cast<double>(inside.size());
            }
        }
        return shares;
    };
    return std::ranges::min_element(places, {}, hidden)->name;
}

std::string side_label(const std::string& text, const Place& at, double distance) {
    return fmt::format("set label 1 {} at screen {}, {} rotate by 90 center\n", quoted(text),
                       at.left - distance, (at.bottom + at.top) / 2);
}

std::string residual_axes(double largest, const std::string& label) {
    const double reach = largest > 0 ? 1.15 * largest : 1.0;
    const double tic = round_step(reach);
    return fmt::format("unset title\nunset key\nset xlabel {}\n"
                       "set format x '%g'\nset yrange [{:.10g}:{:.10g}]\nset ytics {:.10g}, {:.10g}, {:.10g}\n"
                       "set xzeroaxis linewidth 1.5 linecolor rgb '{}' linetype 1\n",
                       quoted(label), -reach, reach, -tic, tic, tic, curve_colour);
}

std::vector<std::string> residual_layers(std::string_view block, bool bars) {
    std::vector<std::string> layers;
    if (!bars) {
        layers.push_back(
            fmt::format("${} using 1:2 with impulses linewidth 1 linecolor rgb '{}'", block, data_colour));
    }
    layers.push_back(fmt::format("${} using 1:2{} pointtype 7 pointsize 1 linewidth 1 linecolor rgb '{}'",
                                 block, bars ? ":3 with yerrorbars" : " with points", data_colour));
    return layers;
}

void run(const std::string& script, const std::string& file) {
    std::FILE* pipe = popen("gnuplot", "w");
    if (!pipe) throw Error("--plot: gnuplot cannot be started");
    std::fwrite(script.data(), 1, script.size(), pipe);
    const int status = pclose(pipe);
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        throw Error(fmt::format("--plot: gnuplot could not draw '{}'", file));
    }
}

} // namespace ansatz::tools::gnuplot
