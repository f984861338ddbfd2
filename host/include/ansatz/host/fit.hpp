// Least-squares fitting of a model to data.
//
// The fit minimises  sum w (f(x; P) - y)^2  over the free parameters, over both columns jointly for a model of
// two dependent variables, and over f alone for an implicit model. Ceres Solver's Levenberg-Marquardt method
// finds the minimum; a few Gauss-Newton steps then settle the last digits. A search that ends at no minimum, or
// where the model has lost a parameter, is made once more with short first steps; one caught at bounds goes on
// from there.
//
// With J the derivatives of the residuals sqrt(w) (f - y) by the p free parameters, N residuals and
// s^2 = RSS / (N - p), the standard errors are the roots of the diagonal of  s^2 (J^T J)^-1.  A parameter that
// ends at a bound counts in p but is held in J: the data do not determine it.
#pragma once

#include <ansatz/host/evaluate.hpp>

#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace ansatz::host {

struct Data {
    Eigen::MatrixXd x;            ///< N x inputs
    Eigen::MatrixXd y = {};       ///< N x outputs; empty for an implicit model
    Eigen::MatrixXd weights = {}; ///< N x 1 or N x outputs, none negative; empty for equal weights
};

/// One parameter's part in a fit.
struct Start {
    double value = 0;
    bool fixed = false;
    double lower = -std::numeric_limits<double>::infinity();
    double upper = std::numeric_limits<double>::infinity();
};

/// Start values with the reference positions of expected-value models already fixed.
std::vector<Start> starts(const Model& model, const std::vector<double>& values);

struct Progress {
    int iteration;
    double rss;
    double seconds; ///< since the fit began
};

struct FitOptions {
    int max_iterations = 1000;
    Derivatives derivatives = Derivatives::best;
    /// The weights are 1/sd^2 of known standard deviations: standard errors are not scaled by s.
    bool known_errors = false;
    std::function<bool(const Progress&)> progress = {}; ///< called per iteration; false ends the fit
};

struct Estimate {
    Slot slot;
    double start = 0, value = 0;
    std::optional<double> error = {}; ///< standard error; none when fixed, at a bound or not determined
    bool fixed = false, at_lower = false, at_upper = false;
};

struct Fit {
    std::vector<Estimate> parameters;
    bool converged = false;
    std::string termination; ///< one sentence on why the fit ended
    double rss = 0;          ///< weighted residual sum of squares
    std::optional<double> r_squared, reduced_chi_square;
    int points = 0, residuals = 0, free = 0, degrees_of_freedom = 0;
    int iterations = 0, evaluations = 0; ///< an evaluation is one pass over the data
    double seconds = 0;
    bool numerical = false; ///< were derivatives taken by differences?

    /// The component of the residuals in the tangent space relative to the whole: 0 at an exact minimum.
    double relative_offset = 0;

    std::vector<int> varied;       ///< parameters with a standard error, in the order of the matrices
    Eigen::MatrixXd covariance;    ///< empty when singular
    Eigen::MatrixXd correlation;   ///< empty when singular
    std::vector<int> undetermined; ///< parameters that make the covariance singular
    double condition = 0;          ///< condition number of J with columns of unit length
    Eigen::MatrixXd fitted;        ///< N x outputs, the model at the data
    Eigen::VectorXd values() const;
};

/// Throws Error when the request does not fit the model or the data, and FitError when the model fails at the
/// start values. A fit that does not converge is returned as such.
Fit fit(const Model& model, const Data& data, const std::vector<Start>& start, const FitOptions& options = {});

} // namespace ansatz::host
