#include <ansatz/host/fit.hpp>

#include "decomposition.hpp"
#include "request.hpp"
#include "residuals.hpp"
#include "search.hpp"
#include "standard_errors.hpp"

#include <fmt/format.h>

#include <chrono>
#include <cmath>

namespace ansatz::host {
namespace {

using Eigen::Index;
using Eigen::VectorXd;

std::size_t size(Index n) {
    return static_cast<std::size_t>(n);
}

std::vector<Estimate> estimates(const Model& model, const std::vector<Start>& start, const Residuals& residuals,
                                const VectorXd& free_values) {
    const auto slots = model.slots(static_cast<int>(start.size()));
    const VectorXd values = residuals.parameters(free_values);
    std::vector<Estimate> result;
    for (std::size_t k = 0; k < start.size(); ++k) {
        const auto& [begin, fixed, lower, upper] = start[k];
        const double value = values[static_cast<Index>(k)];
        result.push_back({.slot = slots[k],
                          .start = begin,
                          .value = value,
                          .fixed = fixed,
                          .at_lower = !fixed && value <= lower,
                          .at_upper = !fixed && value >= upper});
    }
    return result;
}

std::string sentence(const Found& found, bool numerical) {
    switch (found.ending) {
    case Ending::converged:
        if (found.at_minimum) return "converged: the sum of squares no longer decreases";
        return fmt::format("stopped short of a minimum{}: no step lowers the sum of squares",
                           numerical ? "" : " (numerical derivatives may do better)");
    case Ending::limit: return "stopped at the limit of iterations";
    case Ending::stopped: return "stopped on request";
    default: return "stopped: no step could be computed";
    }
}

/// A parameter at a bound counts as held: the data do not determine it.
void add_uncertainty(Fit& fit, const Residuals& residuals, const std::vector<Index>& interior,
                     bool known_errors) {
    const Uncertainty found =
        uncertainty(columns(residuals.at().jacobian, interior), residuals.rank_tolerance(),
                    known_errors ? std::optional(1.0) : fit.reduced_chi_square);
    const auto parameter = [&](Index column) {
        return static_cast<int>(residuals.free()[size(interior[size(column)])]);
    };
    fit.condition = found.condition;
    fit.covariance = found.covariance;
    fit.correlation = found.correlation;
    for (const Index j : found.undetermined) fit.undetermined.push_back(parameter(j));
    for (Index j = 0; j < fit.covariance.cols(); ++j) {
        fit.varied.push_back(parameter(j));
        fit.parameters[size(fit.varied.back())].error = std::sqrt(fit.covariance(j, j));
    }
}

} // namespace

std::vector<Start> starts(const Model& model, const std::vector<double>& values) {
    const auto slots = model.slots(static_cast<int>(values.size()));
    std::vector<Start> result;
    for (std::size_t k = 0; k < values.size(); ++k) {
        result.push_back({.value = values[k], .fixed = slots[k].reference()});
    }
    return result;
}

VectorXd Fit::values() const {
    VectorXd result(std::ssize(parameters));
    for (std::size_t k = 0; k < parameters.size(); ++k) result[static_cast<Index>(k)] = parameters[k].value;
    return result;
}

Fit fit(const Model& model, const Data& data, const std::vector<Start>& start, const FitOptions& options) {
    const auto seconds = [began = std::chrono::steady_clock::now()] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    };
    Report report;
    if (options.progress) {
        report = [&](int iteration, double rss) { return options.progress({iteration, rss, seconds()}); };
    }
    require_consistent(model, data, start);
    Residuals residuals(model, data, start, options.derivatives);
    Fit result;
    result.points = static_cast<int>(data.x.rows());
    result.residuals = residuals.data_values();
    result.free = static_cast<int>(residuals.free().size());
    result.degrees_of_freedom = result.residuals - result.free;
    require_determinable(result.residuals, result.free);
    residuals.require(residuals.free_start());

    const Found found = search(residuals, residuals.free_start(), options.max_iterations, report);
    residuals.require(found.free_values);

    result.parameters = estimates(model, start, residuals, found.free_values);
    result.converged = found.ending == Ending::converged && found.at_minimum;
    result.termination = sentence(found, residuals.numerical());
    result.rss = residuals.at().rss();
    if (!model.implicit()) result.r_squared = r_squared(data, residuals.roots(), result.rss);
    if (result.degrees_of_freedom > 0) result.reduced_chi_square = result.rss / result.degrees_of_freedom;
    result.iterations = found.iterations;
    result.evaluations = residuals.evaluations();
    result.numerical = residuals.numerical();
    result.relative_offset = found.relative_offset;
    result.fitted = residuals.fitted();
    add_uncertainty(result, residuals, found.interior, options.known_errors);
    result.seconds = seconds();
    return result;
}

} // namespace ansatz::host
