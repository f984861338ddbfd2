// How well the data determine what was estimated.
#pragma once

#include <ansatz/host/fit.hpp>

namespace ansatz::host {

/// Covariance and correlations of some estimates; or, when J has no full rank, which of them are at fault.
struct Uncertainty {
    double condition = 0;                        ///< number of J with columns of unit length
    std::vector<Eigen::Index> undetermined = {}; ///< the columns of J that make the covariance singular
    Eigen::MatrixXd covariance = {};             ///< of all columns of J, or empty
    Eigen::MatrixXd correlation = {};
};

/// From the derivatives of the residuals by the estimates and the variance of a residual of weight 1. Without a
/// variance (as many parameters as points) there is no covariance.
Uncertainty uncertainty(const Eigen::MatrixXd& jacobian, double rank_tolerance, std::optional<double> variance);

/// 1 - RSS / (weighted sum of squares about the weighted mean of each column), from the roots of the weights.
std::optional<double> r_squared(const Data& data, const Eigen::MatrixXd& roots, double rss);

} // namespace ansatz::host
