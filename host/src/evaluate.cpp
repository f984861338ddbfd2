#include <ansatz/host/evaluate.hpp>

#include "usable.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cmath>

namespace ansatz::host {
namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

std::size_t size(auto n) {
    return static_cast<std::size_t>(n);
}

} // namespace

Evaluator::Evaluator(const Model& model, const Eigen::VectorXd& parameters, Derivatives source)
    : model_(model), n_(static_cast<int>(parameters.size())),
      analytic_(source == Derivatives::best && model.analytic()), P_(1 + size(model.slots_used(n_))),
      y_(P_.size() + size(model.outputs())), dyda_(P_.size()), result_(y_.size()),
      jacobian_(model.outputs(), n_) {
    model.require_size(n_);
    set_parameters(parameters);
}

void Evaluator::set_parameters(const Eigen::VectorXd& parameters) {
    std::copy_n(parameters.data(), n_, P_.begin() + 1);
}

/// Calls the model at given_. An output that it does not write, as placeholders do, stays NaN.
bool Evaluator::call(unsigned request) {
    x_ = given_;
    std::ranges::fill(y_, 0.0);
    std::fill_n(y_.begin() + 1, model_.outputs(), nan);
    errno = 0;
    return model_.function()(request, 0, n_, 0, 0, P_.data(), 0, x_.data(), y_.data(), dyda_.data()) == 0;
}

/// The values alone, into y_.
bool Evaluator::call_value() {
    return call(FF_VALUE) && std::all_of(y_.begin() + 1, y_.begin() + 1 + model_.outputs(), usable);
}

bool Evaluator::value(const Eigen::MatrixXd& x, Eigen::Index point) {
    for (int i = 0; i < model_.inputs(); ++i) given_[size(i) + 1] = x(point, i);
    if (!call_value()) return false;
    result_ = y_;
    return true;
}

bool Evaluator::derivatives(const Eigen::MatrixXd& x, Eigen::Index point) {
    if (!value(x, point)) return false;
    if (!analytic_) return differentiate(0);
    std::ranges::fill(dyda_, 0.0); // a model leaves the slots of a skipped peak untouched
    if (!call(FF_DERIV)) return false;
    for (int k = 0; k < n_; ++k) {
        jacobian_(0, k) = dyda_[size(k) + 1];
        if (!usable(jacobian_(0, k)) && !differentiate(0, k)) return false;
    }
    return model_.outputs() == 1 || differentiate(1); // dyda belongs to y[1] alone
}

/// Fills column k of the Jacobian, from this output on, by central differences. Two step widths are combined by
/// Richardson's extrapolation, and widths are lowered until both agree to what rounding allows: a parameter's
/// magnitude says little about the scale on which a model depends on it.
bool Evaluator::differentiate(int output_from, int k) {
    const int outputs = model_.outputs();
    using Outputs = std::array<double, 2>;
    double& parameter = P_[size(k) + 1];
    const double at = parameter;
    const auto difference = [&](double step) -> std::optional<Outputs> {
        Outputs sides[2];
        const double positions[2] = {at + step, at - step};
        for (int side = 0; side < 2; ++side) {
            parameter = positions[side];
            const bool ok = call_value();
            parameter = at;
            if (!ok) return std::nullopt;
            std::copy_n(y_.begin() + 1, outputs, sides[side].begin());
        }
        Outputs slope{};
        for (std::size_t d = 0; d < size(outputs); ++d) {
            slope[d] = (sides[0][d] - sides[1][d]) / (positions[0] - positions[1]);
        }
        return slope;
    };
    double best = std::numeric_limits<double>::infinity();
    double step = 1e-4 * std::max(std::fabs(at), 0.1);
    for (int attempt = 0; attempt < 6; ++attempt, step /= 8) {
        const auto wide = difference(step), narrow = difference(step / 2);
        if (!wide || !narrow) continue;
        double disagreement = 0;
        bool settled = true;
        for (std::size_t d = size(output_from); d < size(outputs); ++d) {
            const double gap = std::fabs((*wide)[d] - (*narrow)[d]);
            const double rounding = 1e-15 * std::fabs(result_[d + 1]) / step;
            settled = settled && gap <= std::max(1e-7 * std::fabs((*narrow)[d]), rounding);
            disagreement = std::max(disagreement, gap);
        }
        if (!std::isfinite(disagreement)) continue;
        if (disagreement < best) {
            best = disagreement;
            for (int d = output_from; d < outputs; ++d) {
                jacobian_(d, k) = (4 * (*narrow)[size(d)] - (*wide)[size(d)]) / 3;
            }
        }
        if (settled) break;
    }
    return std::isfinite(best);
}

bool Evaluator::differentiate(int output_from) {
    for (int k = 0; k < n_; ++k) {
        if (!differentiate(output_from, k)) return false;
    }
    return true;
}

bool Evaluation::all_ok() const {
    return std::ranges::all_of(ok, [](char point) { return point != 0; });
}

Evaluation evaluate(const Model& model, const Eigen::VectorXd& parameters, const Eigen::MatrixXd& x,
                    bool with_jacobian, Derivatives source) {
    if (x.cols() != model.inputs()) {
        throw Error(fmt::format("{} takes {} x value{} per point, {} given", model.name(), model.inputs(),
                                model.inputs() == 1 ? "" : "s", x.cols()));
    }
    const int n = static_cast<int>(parameters.size());
    Evaluator evaluator(model, parameters, source);
    Evaluation result;
    result.y.setConstant(x.rows(), model.outputs(), nan);
    result.components.setConstant(x.rows(), model.components(n), nan);
    if (with_jacobian) {
        result.jacobian.assign(size(model.outputs()), Eigen::MatrixXd::Constant(x.rows(), n, nan));
    }
    result.ok.resize(size(x.rows()));
    for (Eigen::Index i = 0; i < x.rows(); ++i) {
        const bool ok = with_jacobian ? evaluator.derivatives(x, i) : evaluator.value(x, i);
        result.ok[size(i)] = ok;
        if (!ok && !(with_jacobian && evaluator.value(x, i))) continue;
        for (int d = 0; d < model.outputs(); ++d) {
            result.y(i, d) = evaluator.y(d);
            if (!with_jacobian || !ok) continue;
            for (int k = 0; k < n; ++k) result.jacobian[size(d)](i, k) = evaluator.derivative(d, k);
        }
        for (Eigen::Index block = 0; block < result.components.cols(); ++block) {
            result.components(i, block) = evaluator.component(static_cast<int>(block));
        }
    }
    return result;
}

} // namespace ansatz::host
