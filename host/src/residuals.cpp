#include "residuals.hpp"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>

namespace ansatz::host {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

namespace {

MatrixXd roots_of_weights(const Model& model, const Data& data) {
    MatrixXd roots = MatrixXd::Ones(data.x.rows(), model.outputs());
    if (data.weights.size() == 0) return roots;
    for (Index d = 0; d < roots.cols(); ++d) {
        roots.col(d) = data.weights.col(std::min(d, data.weights.cols() - 1)).cwiseSqrt();
    }
    return roots;
}

} // namespace

Residuals::Residuals(const Model& model, const Data& data, const std::vector<Start>& start,
                     Derivatives derivatives)
    : model_(model), data_(data), start_(static_cast<Index>(start.size())),
      roots_(roots_of_weights(model, data)),
      targets_(model.implicit() ? MatrixXd(MatrixXd::Zero(roots_.rows(), roots_.cols())) : data.y),
      numerical_(derivatives == Derivatives::numerical || !model.analytic()),
      source_(Source::of(model, data.x, static_cast<int>(start.size()), derivatives)) {
    for (std::size_t k = 0; k < start.size(); ++k) {
        start_[static_cast<Index>(k)] = start[k].value;
        if (start[k].fixed) continue;
        free_.push_back(static_cast<Index>(k));
        ranges_.push_back({start[k].lower, start[k].upper});
    }
    at_.residuals.resize(roots_.size());
    at_.jacobian.resize(roots_.size(), std::ssize(free_));
}

VectorXd Residuals::parameters(const VectorXd& free_values) const {
    VectorXd all = start_;
    all(free_) = free_values;
    return all;
}

bool Residuals::evaluate(const VectorXd& free_values) {
    if (valid_ && free_values == last_) return true;
    valid_ = false;
    last_ = free_values;
    ++evaluations_;
    failed_point_ = source_->compute(parameters(free_values));
    if (failed_point_ >= 0) return false;
    const auto roots = roots_.reshaped();
    at_.residuals = roots.cwiseProduct((source_->y() - targets_).reshaped());
    for (Index j = 0; j < at_.jacobian.cols(); ++j) {
        at_.jacobian.col(j) = roots.cwiseProduct(source_->jacobian().col(free_[static_cast<std::size_t>(j)]));
    }
    valid_ = at_.residuals.allFinite() && at_.jacobian.allFinite();
    return valid_;
}

double Residuals::scale() const {
    return model_.implicit() ? std::sqrt(static_cast<double>(roots_.rows()))
                             : roots_.cwiseProduct(fitted()).norm();
}

void Residuals::require(const VectorXd& free_values) {
    if (!evaluate(free_values)) throw FitError(failure_message(free_values));
}

std::string Residuals::failure_message(const VectorXd& free_values) const {
    if (failed_point_ < 0) {
        return fmt::format("the weighted residuals of {} or their derivatives overflow for the start values",
                           model_.name());
    }
    std::vector<std::string> position;
    for (Index i = 0; i < data_.x.cols(); ++i) position.push_back(fmt::format("{}", data_.x(failed_point_, i)));
    const bool value = Evaluator(model_, parameters(free_values)).value(data_.x, failed_point_);
    return fmt::format("{}{} cannot be computed for the start values at x = {} (data point {}){}",
                       value ? "the derivatives of " : "", model_.name(), fmt::join(position, ", "),
                       failed_point_ + 1,
                       value && !numerical_ ? "; change them, or take numerical derivatives" : "");
}

} // namespace ansatz::host
