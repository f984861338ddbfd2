// The way from the start values to a minimum.
#pragma once

#include "minimiser.hpp"
#include "problem.hpp"

namespace ansatz::host {

/// Where a search ended. Positions are those among the free values.
struct Found {
    Eigen::VectorXd free_values;
    std::vector<Eigen::Index> interior = {}; ///< positions off their bounds
    Ending ending = Ending::failed;
    bool at_minimum = false;
    /// The component of the residuals in the tangent space relative to the whole: 0 at an exact minimum.
    double relative_offset = 0;
    int iterations = 0;
};

/// Searches from values where the problem can be evaluated, in as many minimisations as it takes. `report` may
/// be empty.
Found search(Problem& problem, const Eigen::VectorXd& from, int max_iterations, const Report& report);

} // namespace ansatz::host
