// Jacobians whose columns have units of their own, made comparable.
#pragma once

#include <Eigen/QR>

#include <utility>
#include <vector>

namespace ansatz::host {

/// The columns of J at these positions.
Eigen::MatrixXd columns(const Eigen::MatrixXd& jacobian, const std::vector<Eigen::Index>& chosen);

/// J with columns of unit length, and the lengths; a column of zeros keeps the length 0.
std::pair<Eigen::MatrixXd, Eigen::VectorXd> normalised(Eigen::MatrixXd jacobian);

/// Q R = J with normalised columns. J has full rank where the residuals depend on every parameter, and on each
/// in its own way.
struct Decomposition : Eigen::ColPivHouseholderQR<Eigen::MatrixXd> {
    Decomposition(const Eigen::MatrixXd& jacobian, double rank_tolerance);
    bool full_rank() const { return rank() == cols(); }
};

} // namespace ansatz::host
