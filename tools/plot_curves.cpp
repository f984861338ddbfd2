// Curves of one x column, one or two of them.

#include "gnuplot.hpp"
#include "plot.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace ansatz::tools {
namespace {

using Eigen::Index;
using namespace gnuplot;

constexpr const char* peak_colours[] = {"#56b4e9", "#009e73", "#e69f00", "#cc79a7", "#0072b2", "#999999"};

/// One output over one x column: data and curve above, residuals below.
class CurvePanel {
public:
    CurvePanel(const Picture& picture, Index output)
        : p_(picture), output_(output), input_(p_.data.x.cols() > 1 ? output : 0),
          several_(p_.data.y.cols() > 1), bars_(p_.deviations.size() > 0) {
        const auto x = p_.data.x.col(input_);
        const double margin = x.maxCoeff() > x.minCoeff() ? 0.02 * (x.maxCoeff() - x.minCoeff()) : 0.5;
        low_ = x.minCoeff() - margin;
        high_ = x.maxCoeff() + margin;
        curve_ = curve();
    }

    std::string script(double left, double right) const {
        std::string title = fmt::format("Fit of {}", p_.model.name());
        if (several_) title += fmt::format(", y{}", output_ + 1);
        const std::vector<std::string> above = layers();
        const Place upper{left, right, 0.34, 0.93}, lower{left, right, 0.11, 0.30};
        const double distance = several_ ? 0.062 : 0.1;
        std::string text = blocks();
        text +=
            place(upper) + side_label(label(), upper, distance) +
            fmt::format("set xrange [{:.17g}:{:.17g}]\nset yrange [*:*]\nset ytics autofreq\nset format x ''\n"
                        "unset xlabel\nset title {} textcolor rgb '{}'\nset key {}\n"
                        "unset xzeroaxis\n",
                        low_, high_, quoted(title), ink, key(above.size())) +
            draw(above);
        Eigen::VectorXd sizes = residuals().cwiseAbs();
        if (bars_) sizes += deviations();
        text += place(lower) + side_label("residual", lower, distance) +
                residual_axes(sizes.maxCoeff(), p_.labels.x[static_cast<std::size_t>(input_)]) +
                draw(residual_layers(name("residuals"), bars_));
        return text;
    }

private:
    const std::string& label() const { return p_.labels.y[static_cast<std::size_t>(output_)]; }
    std::string name(std::string_view block) const { return fmt::format("{}{}", block, output_ + 1); }

    Eigen::VectorXd residuals() const { return p_.data.y.col(output_) - p_.fit.fitted.col(output_); }
    Eigen::VectorXd deviations() const {
        if (!bars_) return Eigen::VectorXd::Zero(p_.data.x.rows());
        return p_.deviations.col(std::min(output_, p_.deviations.cols() - 1));
    }

    /// x, the output, then every peak on the common offset.
    Eigen::MatrixXd curve() const {
        constexpr Index steps = 1001;
        Eigen::MatrixXd x = p_.data.x.colwise().mean().replicate(steps, 1); // the other column does not matter
        x.col(input_) = Eigen::VectorXd::LinSpaced(steps, low_, high_);
        const host::Evaluation fitted = host::evaluate(p_.model, p_.fit.values(), x);
        const Index peaks = fitted.components.cols();
        Eigen::MatrixXd rows(steps, 2 + peaks);
        rows.leftCols(2) << x.col(input_), fitted.y.col(output_);
        if (peaks > 0) {
            const Eigen::VectorXd offset = fitted.y.col(0) - fitted.components.rowwise().sum();
            rows.rightCols(peaks) = fitted.components.colwise() + offset;
        }
        return rows;
    }

    /// The curve; x, y and deviation of the data; the same of the residuals.
    std::string blocks() const {
        Eigen::MatrixXd data(p_.data.x.rows(), 3), left(p_.data.x.rows(), 3);
        data << p_.data.x.col(input_), p_.data.y.col(output_), deviations();
        left << p_.data.x.col(input_), residuals(), deviations();
        return block(name("curve"), curve_) + block(name("data"), data) + block(name("residuals"), left);
    }

    std::string_view key(std::size_t entries) const {
        Eigen::MatrixXd data(p_.data.x.rows(), 2);
        data << p_.data.x.col(input_), p_.data.y.col(output_);
        Window window{low_, high_, data.col(1).minCoeff(), data.col(1).maxCoeff()};
        for (const double y : curve_.col(1)) {
            if (std::isfinite(y)) window.include(low_, y);
        }
        return key_position(window, entries, data, curve_);
    }

    std::vector<std::string> layers() const {
        std::vector<std::string> layers;
        const int peaks = p_.model.components(static_cast<int>(p_.fit.parameters.size()));
        for (int k = 0; peaks > 1 && k < peaks; ++k) {
            layers.push_back(fmt::format(
                "${} using 1:{} with lines linewidth 1.3 dashtype 2 linecolor rgb '{}' title {}", name("curve"),
                3 + k, peak_colours[static_cast<std::size_t>(k) % std::size(peak_colours)],
                quoted(fmt::format("{} {}", p_.model.page()->block_name, k + p_.model.page()->first_block))));
        }
        layers.push_back(fmt::format("${} using 1:2 with lines linewidth 2.2 linecolor rgb '{}' title {}",
                                     name("curve"), curve_colour, quoted(p_.model.name())));
        layers.push_back(fmt::format(
            "${} using 1:2{} pointtype 7 pointsize 1 linewidth 1 linecolor rgb '{}' title {}", name("data"),
            bars_ ? ":3 with yerrorbars" : " with points", data_colour, quoted(label())));
        return layers;
    }

    const Picture& p_;
    Index output_, input_;
    bool several_, bars_;
    double low_, high_;
    Eigen::MatrixXd curve_;
};

} // namespace

void plot_curves(const Picture& picture) {
    std::string script;
    if (picture.data.y.cols() == 1) {
        script = head(picture.file, 900, 660) + "set multiplot\n" + CurvePanel(picture, 0).script(0.125, 0.97);
    } else {
        script = head(picture.file, 1440, 660) + "set multiplot\n" +
                 CurvePanel(picture, 0).script(0.08, 0.485) + CurvePanel(picture, 1).script(0.58, 0.985);
    }
    run(script + "unset multiplot\n", picture.file);
}

} // namespace ansatz::tools
