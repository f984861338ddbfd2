#include "minimiser.hpp"

#include <ceres/ceres.h>

#include <algorithm>
#include <cmath>

namespace ansatz::host {
namespace {

using Eigen::Index;
using Eigen::VectorXd;

/// Presents the problem to Ceres as one parameter block of the free values.
class CostFunction : public ceres::CostFunction {
public:
    explicit CostFunction(Problem& problem) : problem_(problem) {
        set_num_residuals(static_cast<int>(problem.at().residuals.size()));
        mutable_parameter_block_sizes()->push_back(static_cast<int>(problem.ranges().size()));
    }

    bool Evaluate(const double* const* parameters, double* values, double** jacobians) const override {
        const Index n = std::ssize(problem_.ranges());
        if (!problem_.evaluate(Eigen::Map<const VectorXd>(parameters[0], n))) return false;
        const Reduction& at = problem_.at();
        std::copy_n(at.residuals.data(), at.residuals.size(), values);
        if (jacobians && jacobians[0]) {
            using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
            Eigen::Map<RowMajor>(jacobians[0], at.jacobian.rows(), n) = at.jacobian;
        }
        return true;
    }

private:
    Problem& problem_;
};

class ReportCallback : public ceres::IterationCallback {
public:
    explicit ReportCallback(const Report& report) : report_(report) {}

    ceres::CallbackReturnType operator()(const ceres::IterationSummary& summary) override {
        return report_(summary.iteration, 2 * summary.cost) ? ceres::SOLVER_CONTINUE : ceres::SOLVER_ABORT;
    }

private:
    const Report& report_;
};

Ending ending_of(ceres::TerminationType termination) {
    switch (termination) {
    case ceres::CONVERGENCE: return Ending::converged;
    case ceres::NO_CONVERGENCE: return Ending::limit;
    case ceres::USER_FAILURE: return Ending::stopped;
    default: return Ending::failed;
    }
}

} // namespace

Descent minimise(Problem& problem, VectorXd& free_values, const std::vector<int>& held, double radius,
                 int max_iterations, const Report& report) {
    CostFunction cost(problem);
    ceres::Problem::Options ownership;
    ownership.cost_function_ownership = ceres::DO_NOT_TAKE_OWNERSHIP;
    ceres::Problem posed(ownership);
    double* const values = free_values.data();
    const int n = static_cast<int>(free_values.size());
    posed.AddResidualBlock(&cost, nullptr, values);
    for (int j = 0; j < n; ++j) {
        const Range& range = problem.ranges()[static_cast<std::size_t>(j)];
        if (std::isfinite(range.lower)) posed.SetParameterLowerBound(values, j, range.lower);
        if (std::isfinite(range.upper)) posed.SetParameterUpperBound(values, j, range.upper);
    }
    if (!held.empty()) posed.SetManifold(values, new ceres::SubsetManifold(n, held));
    ceres::Solver::Options solver;
    solver.linear_solver_type = ceres::DENSE_QR;
    solver.logging_type = ceres::SILENT;
    solver.max_num_iterations = max_iterations;
    solver.initial_trust_region_radius = radius;
    solver.function_tolerance = 1e-15;
    solver.parameter_tolerance = 1e-14;
    solver.gradient_tolerance = 0; // an absolute measure, which means nothing for data of unknown units
    solver.max_num_consecutive_invalid_steps = 50;
    ReportCallback callback(report);
    if (report) solver.callbacks.push_back(&callback);
    ceres::Solver::Summary summary;
    ceres::Solve(solver, &posed, &summary);
    return {ending_of(summary.termination_type), static_cast<int>(summary.iterations.size()) - 1};
}

} // namespace ansatz::host
