// What is reported of a fit: decided in one place, and written for people or for programs.
#pragma once

#include "report.hpp"

#include <ansatz/host/fit.hpp>

#include <optional>
#include <string>
#include <vector>

namespace ansatz::tools {

/// The names of a table's columns that a fit works with.
struct ColumnNames {
    std::vector<std::string> x, y, weights, errors;
};

struct FitReport {
    struct Parameter {
        std::string number, symbol, meaning;
        double start, value;
        std::optional<double> standard_error;
        bool fixed;
        std::string bound; ///< "lower" or "upper" where the parameter ended at that bound
        std::optional<double> lower, upper;
    };

    /// A number about the whole fit; null where it has none. Without a label it is for programs alone.
    struct Statistic {
        std::string key, label;
        Json value;
    };

    host::Model model;
    std::string source;
    ColumnNames columns;
    int points;
    bool converged;
    std::string termination;
    int iterations, evaluations;
    double seconds;
    bool numerical;
    double relative_offset;
    std::vector<Parameter> parameters;
    std::vector<Statistic> statistics;
    std::vector<std::string> undetermined, varied; ///< symbols, the latter in the order of the matrices
    Eigen::MatrixXd covariance, correlation;       ///< empty when singular
    std::string remark;                            ///< a warning, for people alone; may be empty
};

/// `source` is the name of the data.
FitReport report_of(const host::Model& model, const host::Data& data, const std::vector<host::Start>& start,
                    const host::Fit& fit, const std::string& source, const ColumnNames& columns);

std::string to_text(const FitReport& report);
Json to_json(const FitReport& report);

} // namespace ansatz::tools
