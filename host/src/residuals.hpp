// The weighted residuals of a fit and their derivatives, as a problem for the search.
#pragma once

#include "problem.hpp"
#include "source.hpp"

#include <ansatz/host/fit.hpp>

#include <memory>

namespace ansatz::host {

/// The residuals sqrt(w) (f - y), or sqrt(w) f of an implicit model, as a function of the free parameters: all
/// points of y[1], then all of y[2]. Model and data must outlive this.
class Residuals : public Problem {
public:
    Residuals(const Model& model, const Data& data, const std::vector<Start>& start, Derivatives derivatives);

    const std::vector<Range>& ranges() const override { return ranges_; }
    bool evaluate(const Eigen::VectorXd& free_values) override;
    const Reduction& at() const override { return at_; }
    double scale() const override;
    double rank_tolerance() const override { return numerical_ ? 1e-9 : 1e-13; }

    /// Evaluates, and throws FitError, naming the first data point that fails.
    void require(const Eigen::VectorXd& free_values);

    const std::vector<Eigen::Index>& free() const { return free_; } ///< which parameters are free
    Eigen::VectorXd free_start() const { return start_(free_); }
    /// All parameters, in their order.
    Eigen::VectorXd parameters(const Eigen::VectorXd& free_values) const;

    const Eigen::MatrixXd& roots() const { return roots_; }        ///< of the weights, points x outputs
    const Eigen::MatrixXd& fitted() const { return source_->y(); } ///< the model at the data
    int data_values() const { return static_cast<int>((roots_.array() > 0).count()); } ///< of any weight
    bool numerical() const { return numerical_; } ///< are derivatives taken by differences?
    int evaluations() const { return evaluations_; }

private:
    std::string failure_message(const Eigen::VectorXd& free_values) const;

    const Model& model_;
    const Data& data_;
    Eigen::VectorXd start_;
    std::vector<Eigen::Index> free_;
    std::vector<Range> ranges_;
    Eigen::MatrixXd roots_, targets_;
    bool numerical_;
    std::unique_ptr<Source> source_;
    Reduction at_;
    Eigen::VectorXd last_;
    bool valid_ = false;
    int evaluations_ = 0;
    Eigen::Index failed_point_ = -1; // of the last evaluation; -1 where the model itself does not fail
};

} // namespace ansatz::host
