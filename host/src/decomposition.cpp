#include "decomposition.hpp"

namespace ansatz::host {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

MatrixXd columns(const MatrixXd& jacobian, const std::vector<Index>& chosen) {
    MatrixXd result(jacobian.rows(), static_cast<Index>(chosen.size()));
    for (std::size_t j = 0; j < chosen.size(); ++j) result.col(static_cast<Index>(j)) = jacobian.col(chosen[j]);
    return result;
}

std::pair<MatrixXd, VectorXd> normalised(MatrixXd jacobian) {
    const VectorXd lengths = jacobian.colwise().norm();
    for (Index j = 0; j < jacobian.cols(); ++j) {
        if (lengths[j] > 0) jacobian.col(j) /= lengths[j];
    }
    return {std::move(jacobian), lengths};
}

Decomposition::Decomposition(const MatrixXd& jacobian, double rank_tolerance)
    : ColPivHouseholderQR(normalised(jacobian).first) {
    setThreshold(rank_tolerance);
}

} // namespace ansatz::host
