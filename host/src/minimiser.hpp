// One minimisation, by the Levenberg-Marquardt method.
#pragma once

#include "problem.hpp"

#include <functional>

namespace ansatz::host {

/// Why a minimisation ended.
enum class Ending {
    converged, ///< the sum of squares or the values stand still
    failed,    ///< no step could be computed
    limit,     ///< of iterations
    stopped,   ///< by the caller
};

/// Takes the iteration and its sum of squares; false ends the search.
using Report = std::function<bool(int iteration, double rss)>;

struct Descent {
    Ending ending;
    int iterations;
};

/// Moves the free values to a minimum within their ranges. Those at the positions held stay. The radius is that
/// of the first trust region, relative to the columns of J. `report` may be empty.
Descent minimise(Problem& problem, Eigen::VectorXd& free_values, const std::vector<int>& held, double radius,
                 int max_iterations, const Report& report);

} // namespace ansatz::host
