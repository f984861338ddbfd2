// Whether a fit can be asked for.
#pragma once

#include <ansatz/host/fit.hpp>

namespace ansatz::host {

/// Throws Error when model, data and start values do not belong together.
void require_consistent(const Model& model, const Data& data, const std::vector<Start>& start);

/// Throws Error unless there is something to estimate, and as many data values for it.
void require_determinable(int data_values, int free);

} // namespace ansatz::host
