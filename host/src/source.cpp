#include "source.hpp"

#include "usable.hpp"

#include <algorithm>

namespace ansatz::host {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

std::unique_ptr<Source> Source::of(const Model& model, const MatrixXd& x, int parameters,
                                   Derivatives derivatives) {
    if (ColumnSource::serves(model, parameters, derivatives))
        return std::make_unique<ColumnSource>(model, x, parameters);
    return std::make_unique<PointSource>(model, x, parameters, derivatives);
}

Source::Source(const Model& model, const MatrixXd& x, int parameters)
    : x_(x), y_(x.rows(), model.outputs()), jacobian_(y_.size(), parameters) {}

/// Computes one point; false where it fails.
bool Source::take_point(Evaluator& evaluator, Index point) {
    if (!evaluator.derivatives(x_, point)) return false;
    for (Index d = 0; d < y_.cols(); ++d) {
        const int output = static_cast<int>(d);
        y_(point, d) = evaluator.y(output);
        for (Index k = 0; k < jacobian_.cols(); ++k)
            jacobian_(d * y_.rows() + point, k) = evaluator.derivative(output, static_cast<int>(k));
    }
    return true;
}

PointSource::PointSource(const Model& model, const MatrixXd& x, int parameters, Derivatives derivatives)
    : Source(model, x, parameters), evaluator_(model, VectorXd::Zero(parameters), derivatives) {}

Index PointSource::compute(const VectorXd& parameters) {
    evaluator_.set_parameters(parameters);
    for (Index i = 0; i < y_.rows(); ++i) {
        if (!take_point(evaluator_, i)) return i;
    }
    return -1;
}

bool ColumnSource::serves(const Model& model, int parameters, Derivatives derivatives) {
    return model.batch() && parameters <= ANSATZ_BATCH_MOST_PARAMS && derivatives == Derivatives::best &&
           model.analytic() && model.outputs() == 1;
}

ColumnSource::ColumnSource(const Model& model, const MatrixXd& x, int parameters)
    : Source(model, x, parameters), by_point_(model, VectorXd::Zero(parameters)), model_(model.batch()),
      value_status_(static_cast<std::size_t>(x.rows())), status_(value_status_.size()) {
    batch_.nParams = parameters;
    batch_.nPoints = status_.size();
    batch_.nX = model.inputs();
    for (int i = 0; i < model.inputs(); ++i) {
        batch_.x[i] = x.col(i).data();
        batch_.xStride[i] = 1;
    }
    batch_.jacobian = jacobian_.data();
    batch_.jacobianStride = parameters;
}

Index ColumnSource::compute(const VectorXd& parameters) {
    batch_.params = parameters.data();
    batch_.request = FF_VALUE; // the derivative path may differ from it in the last digits of y
    batch_.nY = 1;
    batch_.y = y_.data();
    batch_.yStride = 1;
    batch_.status = value_status_.data();
    ansatz_batch_run(model_, &batch_);
    jacobian_.setZero(); // a model leaves the slots of a skipped peak untouched
    batch_.request = FF_DERIV;
    batch_.nY = 0;
    batch_.status = status_.data();
    ansatz_batch_run(model_, &batch_);

    by_point_.set_parameters(parameters);
    for (Index i = 0; i < y_.rows(); ++i) {
        if (!usable_at(i) && !take_point(by_point_, i)) return i;
    }
    return -1;
}

bool ColumnSource::usable_at(Index point) const {
    const auto i = static_cast<std::size_t>(point);
    if (value_status_[i] != 0 || status_[i] != 0 || !usable(y_(point, 0))) return false;
    const double* const row = jacobian_.row(point).data();
    return std::all_of(row, row + jacobian_.cols(), usable);
}

} // namespace ansatz::host
