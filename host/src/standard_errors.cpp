#include "standard_errors.hpp"

#include "decomposition.hpp"

#include <Eigen/SVD>

#include <numeric>

namespace ansatz::host {
namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;
using Decomposed = Eigen::JacobiSVD<MatrixXd>;

/// The parameters with a part in a direction without effect.
std::vector<Index> without_effect(const Decomposed& svd, double rank_tolerance) {
    const VectorXd& sigma = svd.singularValues();
    const double least = sigma[0] * rank_tolerance;
    VectorXd null_space = VectorXd::Zero(sigma.size()); // the largest part of each parameter
    for (Index j = 0; j < sigma.size(); ++j) {
        if (!(sigma[j] > least)) null_space = null_space.cwiseMax(svd.matrixV().col(j).cwiseAbs());
    }
    std::vector<Index> result;
    for (Index j = 0; j < sigma.size(); ++j) {
        if (null_space[j] > 1e-3) result.push_back(j);
    }
    return result;
}

} // namespace

Uncertainty uncertainty(const MatrixXd& jacobian, double rank_tolerance, std::optional<double> variance) {
    const Index n = jacobian.cols();
    if (n == 0) return {};
    const auto [unit, lengths] = normalised(jacobian);
    const Decomposed svd(unit, Eigen::ComputeThinV);
    const VectorXd& sigma = svd.singularValues();
    Uncertainty result;
    result.condition = sigma[n - 1] > 0 ? sigma[0] / sigma[n - 1] : std::numeric_limits<double>::infinity();
    result.undetermined = without_effect(svd, rank_tolerance);
    if (!result.undetermined.empty() || !variance) return result;

    const MatrixXd root = svd.matrixV() * sigma.cwiseInverse().asDiagonal();
    const MatrixXd unscaled = root * root.transpose();
    const VectorXd inverse = lengths.cwiseInverse();
    result.covariance = *variance * (inverse.asDiagonal() * unscaled * inverse.asDiagonal());
    const VectorXd deviations = unscaled.diagonal().cwiseSqrt();
    result.correlation = unscaled.cwiseQuotient(deviations * deviations.transpose());
    if (!result.covariance.allFinite() || !result.correlation.allFinite()) { // where the model is all but flat
        result.covariance.resize(0, 0);
        result.correlation.resize(0, 0);
        result.undetermined.resize(static_cast<std::size_t>(n));
        std::iota(result.undetermined.begin(), result.undetermined.end(), Index{0});
    }
    return result;
}

std::optional<double> r_squared(const Data& data, const MatrixXd& roots, double rss) {
    double total = 0;
    for (Index d = 0; d < data.y.cols(); ++d) {
        const VectorXd w = roots.col(d).cwiseAbs2();
        const double mean = w.dot(data.y.col(d)) / w.sum();
        total += w.dot((data.y.col(d).array() - mean).square().matrix());
    }
    if (!(total > 0)) return std::nullopt;
    return 1 - rss / total;
}

} // namespace ansatz::host
