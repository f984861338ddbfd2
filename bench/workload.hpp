// What a model is timed on: parameters and columns of data at which it answers, for every row that computes.
#pragma once

#include "limits/limit.hpp"

#include <ansatz/ansatz.h>
#include <ansatz/batch.h>

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
    bool derivatives = false;     ///< does the model compute them?
    std::vector<double> P;        ///< from index 0
    std::vector<double> from, to; ///< the range of each variable
    const Limit* limit = nullptr;

    int params() const { return static_cast<int>(P.size()); }

    /// The columns of N points, one behind the other. The first variable rises, as data usually do.
    std::vector<double> columns(std::size_t N) const;
};

/// All rows that compute, with the parameters of their first golden point at which that works. Ends the program
/// where a limit and the library disagree.
const std::vector<Workload>& workloads();
const Workload& workload(const std::string& name);

/// N single calls as a host makes them that has its data in columns: the indicator is cleared before each, a
/// row of the Jacobian is handed over as it lies. Returns the number of failures.
std::size_t call_singly(const Workload& model, Kind kind, std::size_t N, const double* columns, double* y,
                        double* jacobian);

/// The same numbers through the batch library.
std::int64_t call_batch(const Workload& model, Kind kind, std::size_t N, const double* columns, double* y,
                        double* jacobian, int threads);

/// And from the formula written by hand, in a loop or one point at a time.
void run_limit(const Workload& model, Kind kind, std::size_t N, const double* columns, double* y,
               double* jacobian, bool by_point);

} // namespace bench
