#include "gnuplot.hpp"

#include "commands.hpp"
#include "files.hpp"
#include "process.hpp"

#include <ansatz/host/text.hpp>

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <system_error>
#include <utility>

namespace ansatz::tools::gnuplot {
namespace {

using host::Error;

std::string extension(const std::string& file) {
    std::string text = std::filesystem::path(file).extension().string();
    std::ranges::transform(text, text.begin(), [](char c) { return static_cast<char>(c | 0x20); });
    return text;
}

bool is_svg(const std::string& file) {
    return extension(file) == ".svg";
}

void replace_all(std::string& text, std::string_view old, std::string_view by) {
    for (auto at = text.find(old); at != std::string::npos; at = text.find(old, at + by.size())) {
        text.replace(at, old.size(), by);
    }
}

/// Bytes in a gnuplot string.
std::string octal(std::string_view bytes) {
    std::string result;
    for (const char c : bytes) result += fmt::format("\\{:03o}", static_cast<unsigned char>(c));
    return result;
}

/// The characters that mean something to XML. gnuplot escapes some of them, and never those that look like XML
/// already; so in an SVG it gets noncharacters in their place, which no text of quoted() contains.
constexpr struct {
    std::string_view character, stand_in, entity;
} xml_characters[] = {
    {"&", "\xef\xb7\x90", "&amp;"}, {"<", "\xef\xb7\x91", "&lt;"}, {">", "\xef\xb7\x92", "&gt;"}};

bool is_complete(std::string_view picture, bool svg) {
    if (!svg) return picture.starts_with("\x89PNG") && picture.ends_with("IEND\xae\x42\x60\x82");
    const auto last = picture.find_last_not_of("\r\n");
    return last != std::string_view::npos && picture.substr(0, last + 1).ends_with("</svg>");
}

/// The line of gnuplot's messages that tells most: in front of it come blank ones and a copy of the script.
std::string complaint(const std::string& messages) {
    std::istringstream lines(messages);
    std::string first;
    for (std::string line; std::getline(lines, line);) {
        line.erase(0, line.find_first_not_of(" \t\r"));
        if (line.starts_with("line ")) return line;
        if (first.empty()) first = line;
    }
    return first;
}

[[noreturn]] void fail(const std::string& file, const std::string& why) {
    throw Failure(fmt::format("--plot: gnuplot could not draw '{}': {}", file, why));
}

std::string drawn(const std::string& script, const std::string& file) {
    setenv("LC_ALL", "C.UTF-8", 1); // gnuplot's: its texts are UTF-8 whatever the user's locale
    Ended gnuplot{};
    try {
        gnuplot = run_program(find_program("gnuplot"), {"gnuplot", "--default-settings"}, script);
    } catch (const std::system_error& error) {
        fail(file, error.what());
    }
    const std::string message = complaint(gnuplot.errors);
    if (!gnuplot.well()) fail(file, message.empty() ? gnuplot.how() : message);
    if (!is_complete(gnuplot.output, is_svg(file))) {
        fail(file, message.empty() ? "the picture is not complete" : message);
    }
    if (!message.empty()) fmt::print(stderr, "ansatz: gnuplot says: {}\n", host::printable(message));
    return std::move(gnuplot.output);
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
    if (!is_replaceable(file)) throw Error(fmt::format("--plot: cannot write '{}'", file));
    if (find_program("gnuplot").empty()) throw Error("--plot needs gnuplot, which is not installed");
}

std::string quoted(const std::string& text) {
    std::string result = "\"";
    for (const char c : host::drawable(text)) {
        const bool plain = c == ' ' || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        result += plain ? std::string(1, c) : octal({&c, 1});
    }
    return result + '"';
}

std::string head(const std::string& file, int width, int height) {
    const std::string terminal =
        is_svg(file) ? fmt::format("svg noenhanced size {},{} font 'Helvetica,15'", width, height)
                     : fmt::format("pngcairo noenhanced size {},{} font 'Sans,21' linewidth 1.6", width * 5 / 3,
                                   height * 5 / 3);
    return fmt::format("set encoding utf8\nset terminal {0} background '#ffffff'\n"
                       "set border 3 linecolor rgb '{1}'\nset tics nomirror out scale 0.6 textcolor rgb '{1}'\n"
                       "set grid linecolor rgb '{2}' linetype 1 linewidth 0.7\n"
                       "set key top right samplen 2 spacing 1.2\n",
                       terminal, ink, grid);
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

void run(std::string script, const std::string& file) {
    const bool svg = is_svg(file);
    for (const auto& [character, stand_in, entity] : xml_characters) {
        if (svg) replace_all(script, octal(character), octal(stand_in));
    }
    std::string picture = drawn(script, file);
    for (const auto& [character, stand_in, entity] : xml_characters) {
        if (svg) replace_all(picture, stand_in, entity);
    }
    try {
        replace_file(file, picture);
    } catch (const std::system_error& error) {
        throw Failure(fmt::format("--plot: cannot write '{}': {}", file, error.what()));
    }
}

} // namespace ansatz::tools::gnuplot
