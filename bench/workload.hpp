// What a model is timed on: parameters and columns of data that show its character, for every row that
// computes.
#pragma once

#include <ansatz/host/model.hpp>

#include <cstdint>
#include <string>
#include <vector>

namespace bench {

enum class Kind { value, gradient };

struct Workload {
    std::string name;
    FitFunction function = nullptr;
    const AnsatzBatchModel* batch = nullptr;
    int inputs = 0, outputs = 0;
    bool derivatives = false;               ///< are they computed, whatever a query answers?
    std::vector<double> P = {};             ///< from index 0
    std::vector<double> from = {}, to = {}; ///< the range of each variable

    int params() const { return static_cast<int>(P.size()); }

    /// The columns of N points, one after the other. The first variable rises, as data usually do.
    std::vector<double> columns(std::size_t N) const;
};

/// All rows that compute, with the typical parameters of their pages: one block of a model that repeats a
/// block, but as many as a law of laws.hpp has. Ends the program where a model does not answer there.
const std::vector<Workload>& workloads();
const Workload& workload(const std::string& name);

/// One way to compute a model: y has a column for each output, one after the other; the Jacobian is row-major,
/// points x parameters.
using Side = void (*)(const Workload& model, Kind kind, std::size_t N, const double* x, double* y,
                      double* jacobian);

/// Single calls as a host makes them that has its data in columns: the indicator is cleared before each, a row
/// of the Jacobian is handed over as it lies.
void call_singly(const Workload& model, Kind kind, std::size_t N, const double* x, double* y, double* jacobian);

/// Registers the benchmark "side/value/model/points" or "side/gradient/model/points".
void time_side(const std::string& side, const Workload& model, Side compute, Kind kind, int points);

inline constexpr int sizes[] = {1, 100, 1000, 100000};

} // namespace bench
