// What the search knows of a fit.
#pragma once

#include <Eigen/Core>

#include <limits>
#include <vector>

namespace ansatz::host {

/// What a pass over the data leaves of it: a linear least-squares problem in the steps of the free values. The
/// sum of squares, the gradient and the steps are those of the data; the rows need not be. Any residuals and
/// Jacobian with the same J'J, J'r and r'r will do, such as R and Q'r of J = Q R, with the root of what Q'r
/// lacks of the sum of squares below.
struct Reduction {
    Eigen::VectorXd residuals;
    Eigen::MatrixXd jacobian; ///< residuals x free values
    double rss() const { return residuals.squaredNorm(); }
};

/// What a free value may be.
struct Range {
    double lower = -std::numeric_limits<double>::infinity();
    double upper = std::numeric_limits<double>::infinity();

    bool inside(double value) const { return value > lower && value < upper; }
};

/// A sum of squares over free values. What is held, tied or weighted behind them, and how the data are passed
/// over, the search does not see.
class Problem {
public:
    Problem() = default;
    Problem(const Problem&) = delete;
    Problem& operator=(const Problem&) = delete;
    virtual ~Problem() = default;

    virtual const std::vector<Range>& ranges() const = 0; ///< of the free values

    /// Makes the reduction that at() shows. A place already seen last costs nothing. Returns false where the
    /// model or its derivatives fail: a minimiser must not step where it cannot go on from.
    virtual bool evaluate(const Eigen::VectorXd& free_values) = 0;
    virtual const Reduction& at() const = 0;

    /// The size of what the residuals at the place of at() are differences of: what they round to.
    virtual double scale() const = 0;

    /// Singular values of a normalised J below this part of the largest count as zero.
    virtual double rank_tolerance() const = 0;
};

} // namespace ansatz::host
