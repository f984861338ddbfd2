#include <ansatz/host/fit.hpp>

#include <Eigen/QR>
#include <Eigen/SVD>
#include <ceres/ceres.h>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace ansatz::host {
namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

/// The weighted residuals and their derivatives at one set of free parameters.
struct Linearisation {
    VectorXd residuals; ///< all points of y[1], then all of y[2]
    MatrixXd jacobian;  ///< residuals x free parameters
    double rss() const { return residuals.squaredNorm(); }
};

/// Throws Error when model, data and start values do not belong together.
void require(const Model& model, const Data& data, const std::vector<Start>& start) {
    model.require_size(static_cast<int>(start.size()));
    const Index points = data.x.rows();
    if (data.x.cols() != model.inputs()) {
        throw Error(
            fmt::format("{} needs {} x column(s), {} given", model.name(), model.inputs(), data.x.cols()));
    }
    if (model.implicit()) {
        if (data.y.size() > 0) {
            throw Error(
                fmt::format("{} is implicit: its value is fitted to zero and takes no y column", model.name()));
        }
    } else if (data.y.cols() != model.outputs() || data.y.rows() != points) {
        throw Error(
            fmt::format("{} needs {} y column(s), {} given", model.name(), model.outputs(), data.y.cols()));
    }
    if (data.weights.size() > 0) {
        if (data.weights.rows() != points ||
            (data.weights.cols() != 1 && data.weights.cols() != model.outputs())) {
            throw Error("weights need one value per data point");
        }
        if (!(data.weights.array() >= 0).all()) throw Error("weights must not be negative");
    }
    const auto slots = model.slots(static_cast<int>(start.size()));
    for (std::size_t k = 0; k < start.size(); ++k) {
        const auto& [value, fixed, lower, upper] = start[k];
        const std::string& symbol = slots[k].symbol;
        if (!std::isfinite(value))
            throw Error(fmt::format("the start value of {} is not a finite number", symbol));
        if (!fixed && !(lower < upper)) {
            throw Error(fmt::format("the bounds of {}, {} and {}, leave no room", symbol, lower, upper));
        }
        if (!fixed && (value < lower || value > upper)) {
            throw Error(fmt::format("the start value {} of {} is outside its bounds", value, symbol));
        }
    }
}

/// The residuals as a function of the free parameters. A point where the model or its derivatives fail makes
/// the whole evaluation fail, with or without a request for derivatives: a minimiser must not step where it
/// cannot go on from.
class Residuals {
public:
    Residuals(const Model& model, const Data& data, const std::vector<Start>& start, Derivatives source)
        : model_(model), data_(data), P_(values(start)), evaluator_(model, P_, source) {
        for (std::size_t k = 0; k < start.size(); ++k) {
            if (!start[k].fixed) free_.push_back(static_cast<Index>(k));
        }
        const Index points = data.x.rows();
        roots_ = MatrixXd::Ones(points, model.outputs());
        if (data.weights.size() > 0) {
            for (Index d = 0; d < roots_.cols(); ++d) {
                roots_.col(d) = data.weights.col(std::min(d, data.weights.cols() - 1)).cwiseSqrt();
            }
        }
        if (ColumnEvaluator::serves(model, static_cast<int>(start.size()), source)) {
            columns_.emplace(model, data.x, static_cast<int>(start.size()));
        }
        at_.residuals.resize(points * model.outputs());
        at_.jacobian.resize(at_.residuals.size(), static_cast<Index>(free_.size()));
        fitted_.resize(points, model.outputs());
    }

    const std::vector<Index>& free() const { return free_; }
    const MatrixXd& roots() const { return roots_; }
    const MatrixXd& fitted() const { return fitted_; }
    const Linearisation& at() const { return at_; }
    int evaluations() const { return evaluations_; }
    Index failed_point() const { return failed_point_; }

    VectorXd parameters(const VectorXd& free_values) const {
        VectorXd all = P_;
        for (std::size_t j = 0; j < free_.size(); ++j) all[free_[j]] = free_values[static_cast<Index>(j)];
        return all;
    }

    bool evaluate(const VectorXd& free_values) {
        if (valid_ && free_values == last_) return true;
        valid_ = false;
        last_ = free_values;
        ++evaluations_;
        if (columns_) {
            failed_point_ = columns_->compute(parameters(free_values));
            if (failed_point_ >= 0) return false;
        } else {
            evaluator_.set_parameters(parameters(free_values));
        }
        const Index points = data_.x.rows();
        for (Index i = 0; i < points; ++i) {
            if (!columns_ && !evaluator_.derivatives(data_.x, i)) {
                failed_point_ = i;
                return false;
            }
            for (Index d = 0; d < roots_.cols(); ++d) {
                const int output = static_cast<int>(d);
                const double y = columns_ ? columns_->y()[i] : evaluator_.y(output);
                const double target = model_.implicit() ? 0.0 : data_.y(i, d);
                const Index row = d * points + i;
                fitted_(i, d) = y;
                at_.residuals[row] = roots_(i, d) * (y - target);
                for (std::size_t j = 0; j < free_.size(); ++j) {
                    const double slope = columns_ ? columns_->derivative(i, free_[j])
                                                  : evaluator_.derivative(output, static_cast<int>(free_[j]));
                    at_.jacobian(row, static_cast<Index>(j)) = roots_(i, d) * slope;
                }
            }
        }
        valid_ = at_.residuals.allFinite() && at_.jacobian.allFinite();
        return valid_;
    }

    static VectorXd values(const std::vector<Start>& start) {
        VectorXd result(static_cast<Index>(start.size()));
        for (std::size_t k = 0; k < start.size(); ++k) result[static_cast<Index>(k)] = start[k].value;
        return result;
    }

private:
    const Model& model_;
    const Data& data_;
    VectorXd P_;
    Evaluator evaluator_;
    std::optional<ColumnEvaluator> columns_; // in place of the evaluator where it serves
    std::vector<Index> free_;
    MatrixXd roots_; // of the weights
    MatrixXd fitted_;
    Linearisation at_;
    VectorXd last_;
    bool valid_ = false;
    int evaluations_ = 0;
    Index failed_point_ = 0;
};

/// Presents the residuals to Ceres as one parameter block of the free parameters.
class CostFunction : public ceres::CostFunction {
public:
    explicit CostFunction(Residuals& residuals) : residuals_(residuals) {
        set_num_residuals(static_cast<int>(residuals.at().residuals.size()));
        mutable_parameter_block_sizes()->push_back(static_cast<int>(residuals.free().size()));
    }

    bool Evaluate(const double* const* parameters, double* values, double** jacobians) const override {
        const auto n = static_cast<Index>(residuals_.free().size());
        if (!residuals_.evaluate(Eigen::Map<const VectorXd>(parameters[0], n))) return false;
        const Linearisation& at = residuals_.at();
        std::copy_n(at.residuals.data(), at.residuals.size(), values);
        if (jacobians && jacobians[0]) {
            using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
            Eigen::Map<RowMajor>(jacobians[0], at.jacobian.rows(), n) = at.jacobian;
        }
        return true;
    }

private:
    Residuals& residuals_;
};

class ProgressCallback : public ceres::IterationCallback {
public:
    ProgressCallback(const FitOptions& options, std::function<double()> seconds, int iterations_before)
        : options_(options), seconds_(std::move(seconds)), before_(iterations_before) {}

    ceres::CallbackReturnType operator()(const ceres::IterationSummary& summary) override {
        const Progress progress{before_ + summary.iteration, 2 * summary.cost, seconds_()};
        return options_.progress(progress) ? ceres::SOLVER_CONTINUE : ceres::SOLVER_ABORT;
    }

private:
    const FitOptions& options_;
    std::function<double()> seconds_;
    int before_;
};

std::string failure_message(const Model& model, const Data& data, const Residuals& residuals,
                            const VectorXd& free_values, bool numerical) {
    const Index point = residuals.failed_point();
    std::vector<std::string> position;
    for (Index i = 0; i < data.x.cols(); ++i) position.push_back(fmt::format("{}", data.x(point, i)));
    const bool value = Evaluator(model, residuals.parameters(free_values)).value(data.x, point);
    return fmt::format("{}{} cannot be computed for the start values at x = {} (data point {}){}",
                       value ? "the derivatives of " : "", model.name(), fmt::join(position, ", "), point + 1,
                       value && !numerical ? "; change them, or take numerical derivatives" : "");
}

/// The columns of J that belong to parameters off their bounds.
MatrixXd columns(const MatrixXd& jacobian, const std::vector<Index>& chosen) {
    MatrixXd result(jacobian.rows(), static_cast<Index>(chosen.size()));
    for (std::size_t j = 0; j < chosen.size(); ++j) result.col(static_cast<Index>(j)) = jacobian.col(chosen[j]);
    return result;
}

/// J with columns of unit length, and the lengths; a column of zeros keeps the length 0.
std::pair<MatrixXd, VectorXd> normalised(MatrixXd jacobian) {
    const VectorXd lengths = jacobian.colwise().norm();
    for (Index j = 0; j < jacobian.cols(); ++j) {
        if (lengths[j] > 0) jacobian.col(j) /= lengths[j];
    }
    return {std::move(jacobian), lengths};
}

/// Singular values of a normalised J below this part of the largest count as zero.
double rank_tolerance(bool numerical) {
    return numerical ? 1e-9 : 1e-13;
}

/// Q R = J with normalised columns. J has full rank where the residuals depend on every parameter, and on each
/// in its own way.
struct Decomposition : Eigen::ColPivHouseholderQR<MatrixXd> {
    Decomposition(const MatrixXd& jacobian, bool numerical) : ColPivHouseholderQR(normalised(jacobian).first) {
        setThreshold(rank_tolerance(numerical));
    }
    bool full_rank() const { return rank() == cols(); }
};

/// Gauss-Newton steps from a minimum found, as long as they shorten. Levenberg-Marquardt stops when the sum of
/// squares stands still, which leaves the parameters only half of a double's digits.
void polish(Residuals& residuals, VectorXd& free_values, const std::vector<Index>& interior,
            const std::vector<Start>& start) {
    double longest = std::numeric_limits<double>::infinity();
    for (int round = 0; round < 20; ++round) {
        if (!residuals.evaluate(free_values)) return;
        const double rss = residuals.at().rss();
        const auto [jacobian, lengths] = normalised(columns(residuals.at().jacobian, interior));
        const Eigen::ColPivHouseholderQR<MatrixXd> qr(jacobian);
        if (qr.rank() < jacobian.cols()) return;
        const VectorXd step = -qr.solve(residuals.at().residuals); // in units of the residuals
        if (!(step.norm() < longest)) return;
        longest = step.norm() / 2;
        VectorXd next = free_values;
        for (std::size_t j = 0; j < interior.size(); ++j) {
            double& value = next[interior[j]];
            value += step[static_cast<Index>(j)] / lengths[static_cast<Index>(j)];
            const auto k = static_cast<std::size_t>(residuals.free()[static_cast<std::size_t>(interior[j])]);
            if (value < start[k].lower || value > start[k].upper) return;
        }
        // The sum of squares is flat at the minimum: up to rounding, it must not grow.
        if (!residuals.evaluate(next) || residuals.at().rss() > rss * (1 + 1e-10)) return;
        free_values = next;
    }
}

/// Where a minimisation ended. Positions are those among the free parameters.
struct EndPoint {
    VectorXd free_values;
    std::vector<Index> interior = {}; ///< positions off their bounds
    std::vector<Index> movable =
        {}; ///< these, and those at a bound on whose inner side the sum of squares falls
    ceres::TerminationType termination = ceres::FAILURE;
    double rss = std::numeric_limits<double>::infinity();
    double relative_offset = 0;
    bool at_minimum = false;
    bool determined = false; ///< has J full rank?

    bool settled() const { return termination == ceres::CONVERGENCE || termination == ceres::FAILURE; }
    bool sound() const { return termination == ceres::CONVERGENCE && at_minimum && determined; }
    bool caught_at_bounds() const {
        return settled() && !at_minimum && std::ssize(interior) < free_values.size();
    }

    /// The lower sum of squares decides, and between equal ones the sounder end.
    bool better_than(const EndPoint& other) const {
        constexpr double equal = 1e-9;
        if (rss < other.rss * (1 - equal)) return true;
        return sound() && !other.sound() && rss <= other.rss * (1 + equal);
    }
};

/// The way from the start values to a minimum, in as many minimisations as it takes.
class Search {
public:
    Search(const Model& model, Residuals& residuals, const std::vector<Start>& start, const FitOptions& options,
           std::function<double()> seconds)
        : residuals_(residuals), start_(start), options_(options), seconds_(std::move(seconds)),
          implicit_(model.implicit()),
          numerical_(options.derivatives == Derivatives::numerical || !model.analytic()) {}

    int iterations() const { return iterations_; }
    bool numerical() const { return numerical_; }
    bool stopped() const { return stopped_; } ///< by the caller

    EndPoint run(const VectorXd& from) {
        if (residuals_.evaluate(from)) first_norm_ = residuals_.at().residuals.norm();
        EndPoint end = descend(from, bold_radius);
        // A bold first step can land where the model no longer depends on a parameter: a rate so high that
        // every point lies on the plateau. No way leads back from there, so the fit is tried again with care,
        // unless the parameters could not be told apart from the outset.
        const auto distinct_at_start = [&] {
            return residuals_.evaluate(from) && Decomposition(residuals_.at().jacobian, numerical_).full_rank();
        };
        if (end.settled() && (!end.at_minimum || (!end.determined && distinct_at_start())) && can_go_on()) {
            EndPoint careful = descend(from, careful_radius);
            if (careful.better_than(end)) end = std::move(careful);
        }
        return end;
    }

private:
    // The radii of the trust region that a minimisation begins with, relative to the columns of J. The bold one
    // makes the first steps almost those of Gauss and Newton, which is the fast way and mostly the right one.
    static constexpr double bold_radius = 1e4, careful_radius = 1e-4;

    bool can_go_on() const { return !stopped_ && iterations_ < options_.max_iterations; }

    /// One minimisation, and further ones as long as its end is caught at bounds: a step that leads out of
    /// bounds is cut off at them, and what is left of it may point uphill. Parameters that belong at their
    /// bounds are then held there.
    EndPoint descend(const VectorXd& from, double radius) {
        EndPoint end = minimise(from, radius, {});
        while (end.caught_at_bounds() && can_go_on()) {
            std::vector<int> held;
            for (Index j = 0; j < end.free_values.size(); ++j) {
                if (!std::ranges::binary_search(end.movable, j)) held.push_back(static_cast<int>(j));
            }
            EndPoint next = minimise(end.free_values, bold_radius, held);
            if (!next.better_than(end)) break;
            end = std::move(next);
        }
        return end;
    }

    /// Levenberg-Marquardt from given values.
    EndPoint minimise(const VectorXd& from, double radius, const std::vector<int>& held) {
        EndPoint end{.free_values = from};
        CostFunction cost(residuals_);
        ceres::Problem::Options ownership;
        ownership.cost_function_ownership = ceres::DO_NOT_TAKE_OWNERSHIP;
        ceres::Problem problem(ownership);
        double* const values = end.free_values.data();
        const int n = static_cast<int>(from.size());
        problem.AddResidualBlock(&cost, nullptr, values);
        for (int j = 0; j < n; ++j) {
            const Start& limits = limits_of(j);
            if (std::isfinite(limits.lower)) problem.SetParameterLowerBound(values, j, limits.lower);
            if (std::isfinite(limits.upper)) problem.SetParameterUpperBound(values, j, limits.upper);
        }
        if (!held.empty()) problem.SetManifold(values, new ceres::SubsetManifold(n, held));
        ceres::Solver::Options solver;
        solver.linear_solver_type = ceres::DENSE_QR;
        solver.logging_type = ceres::SILENT;
        solver.max_num_iterations = options_.max_iterations - iterations_;
        solver.initial_trust_region_radius = radius;
        solver.function_tolerance = 1e-15;
        solver.parameter_tolerance = 1e-14;
        solver.gradient_tolerance = 0; // an absolute measure, which means nothing for data of unknown units
        solver.max_num_consecutive_invalid_steps = 50;
        ProgressCallback callback(options_, seconds_, iterations_);
        if (options_.progress) solver.callbacks.push_back(&callback);
        ceres::Solver::Summary summary;
        ceres::Solve(solver, &problem, &summary);
        iterations_ += static_cast<int>(summary.iterations.size()) - 1;
        stopped_ = summary.termination_type == ceres::USER_FAILURE;
        end.termination = summary.termination_type;
        for (Index j = 0; j < n; ++j) {
            const double value = end.free_values[j];
            if (value > limits_of(j).lower && value < limits_of(j).upper) end.interior.push_back(j);
        }
        if (end.termination == ceres::CONVERGENCE && !end.interior.empty()) {
            polish(residuals_, end.free_values, end.interior, start_);
        }
        if (residuals_.evaluate(end.free_values)) judge(end);
        return end;
    }

    /// The minimiser also stops when no step helps, as with wrong or useless derivatives. At a minimum the
    /// residuals are orthogonal to the tangent space, unless they are mere rounding.
    void judge(EndPoint& end) const {
        const Linearisation& at = residuals_.at();
        end.rss = at.rss();
        const VectorXd uphill = at.jacobian.transpose() * at.residuals;
        for (Index j = 0; j < uphill.size(); ++j) {
            const bool falls_above = end.free_values[j] < limits_of(j).upper && uphill[j] < 0;
            const bool falls_below = end.free_values[j] > limits_of(j).lower && uphill[j] > 0;
            if (std::ranges::binary_search(end.interior, j) || falls_above || falls_below) {
                end.movable.push_back(j);
            }
        }
        end.determined = true;
        if (!end.movable.empty()) {
            const Decomposition qr(columns(at.jacobian, end.movable), numerical_);
            end.determined = qr.full_rank();
            const VectorXd projected = qr.householderQ().transpose() * at.residuals;
            if (end.rss > 0) end.relative_offset = projected.head(qr.rank()).norm() / at.residuals.norm();
        }
        const double scale = implicit_ ? std::sqrt(static_cast<double>(residuals_.fitted().rows()))
                                       : residuals_.roots().cwiseProduct(residuals_.fitted()).norm();
        const bool exact = std::sqrt(end.rss) <= std::max(1e-10 * scale, 1e-12 * first_norm_);
        end.at_minimum = exact || end.relative_offset < 1e-3;
    }

    const Start& limits_of(Index j) const {
        return start_[static_cast<std::size_t>(residuals_.free()[static_cast<std::size_t>(j)])];
    }

    Residuals& residuals_;
    const std::vector<Start>& start_;
    const FitOptions& options_;
    std::function<double()> seconds_;
    bool implicit_, numerical_;
    double first_norm_ = 0;
    int iterations_ = 0;
    bool stopped_ = false;
};

/// Standard errors, covariance and correlations; or, when J has no full rank, which parameters are at fault.
void estimate_errors(Fit& fit, const Residuals& residuals, const std::vector<Index>& interior, bool numerical,
                     bool known_errors) {
    const auto [jacobian, lengths] = normalised(columns(residuals.at().jacobian, interior));
    const Index n = jacobian.cols();
    std::vector<int> slots;
    for (const Index j : interior)
        slots.push_back(static_cast<int>(residuals.free()[static_cast<std::size_t>(j)]));
    if (n == 0) return;
    const Eigen::JacobiSVD<MatrixXd> svd(jacobian, Eigen::ComputeThinV);
    const VectorXd& sigma = svd.singularValues();
    fit.condition = sigma[n - 1] > 0 ? sigma[0] / sigma[n - 1] : std::numeric_limits<double>::infinity();

    const double least = sigma[0] * rank_tolerance(numerical);
    VectorXd null_space = VectorXd::Zero(n); // the largest part of each parameter in a direction without effect
    for (Index j = 0; j < n; ++j) {
        if (!(sigma[j] > least)) null_space = null_space.cwiseMax(svd.matrixV().col(j).cwiseAbs());
    }
    for (Index j = 0; j < n; ++j) {
        if (null_space[j] > 1e-3) fit.undetermined.push_back(slots[static_cast<std::size_t>(j)]);
    }
    if (!fit.undetermined.empty()) return;
    if (!known_errors && !fit.reduced_chi_square) return; // as many parameters as points

    const double scale = known_errors ? 1.0 : *fit.reduced_chi_square;
    const MatrixXd root = svd.matrixV() * sigma.cwiseInverse().asDiagonal();
    const MatrixXd unscaled = root * root.transpose();
    const VectorXd inverse = lengths.cwiseInverse();
    fit.covariance = scale * (inverse.asDiagonal() * unscaled * inverse.asDiagonal());
    const VectorXd deviations = unscaled.diagonal().cwiseSqrt();
    fit.correlation = unscaled.cwiseQuotient(deviations * deviations.transpose());
    if (!fit.covariance.allFinite() || !fit.correlation.allFinite()) { // where the model is all but flat
        fit.covariance.resize(0, 0);
        fit.correlation.resize(0, 0);
        fit.undetermined = slots;
        return;
    }
    fit.varied = slots;
    for (Index j = 0; j < n; ++j) {
        fit.parameters[static_cast<std::size_t>(slots[static_cast<std::size_t>(j)])].error =
            std::sqrt(fit.covariance(j, j));
    }
}

/// 1 - RSS / (weighted sum of squares about the weighted mean of each column).
std::optional<double> r_squared(const Data& data, const MatrixXd& roots, double rss) {
    double total = 0;
    for (Index d = 0; d < data.y.cols(); ++d) {
        const VectorXd w = roots.col(d).cwiseAbs2();
        const double mean = w.dot(data.y.col(d)) / w.sum();
        total += w.dot((data.y.col(d).array() - mean).square().matrix());
    }
    if (!(total > 0)) return std::nullopt;
    return 1 - rss / total;
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
    VectorXd result(static_cast<Index>(parameters.size()));
    for (std::size_t k = 0; k < parameters.size(); ++k) result[static_cast<Index>(k)] = parameters[k].value;
    return result;
}

Fit fit(const Model& model, const Data& data, const std::vector<Start>& start, const FitOptions& options) {
    const auto began = std::chrono::steady_clock::now();
    const auto seconds = [began] {
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    };
    require(model, data, start);
    Residuals residuals(model, data, start, options.derivatives);
    Search search(model, residuals, start, options, seconds);
    const std::size_t free_count = residuals.free().size();

    Fit result;
    result.points = static_cast<int>(data.x.rows());
    result.residuals = static_cast<int>((residuals.roots().array() > 0).count());
    result.free = static_cast<int>(free_count);
    result.degrees_of_freedom = result.residuals - result.free;
    result.numerical = search.numerical();
    if (free_count == 0) throw Error("every parameter is fixed: there is nothing to fit");
    if (result.degrees_of_freedom < 0) {
        throw Error(
            fmt::format("{} data value(s) cannot determine {} free parameters", result.residuals, free_count));
    }

    VectorXd free_values(static_cast<Index>(free_count));
    for (std::size_t j = 0; j < free_count; ++j) {
        free_values[static_cast<Index>(j)] = start[static_cast<std::size_t>(residuals.free()[j])].value;
    }
    if (!residuals.evaluate(free_values))
        throw FitError(failure_message(model, data, residuals, free_values, result.numerical));
    const EndPoint end = search.run(free_values);
    free_values = end.free_values;

    std::vector<Estimate>& estimates = result.parameters;
    const auto slots = model.slots(static_cast<int>(start.size()));
    for (std::size_t k = 0; k < start.size(); ++k) {
        estimates.push_back({.slot = slots[k], .start = start[k].value, .fixed = start[k].fixed});
    }
    for (std::size_t j = 0; j < free_count; ++j) {
        const auto k = static_cast<std::size_t>(residuals.free()[j]);
        const double value = free_values[static_cast<Index>(j)];
        estimates[k].at_lower = value <= start[k].lower;
        estimates[k].at_upper = value >= start[k].upper;
    }
    if (!residuals.evaluate(free_values))
        throw FitError(failure_message(model, data, residuals, free_values, result.numerical));

    const VectorXd values = residuals.parameters(free_values);
    for (std::size_t k = 0; k < start.size(); ++k) estimates[k].value = values[static_cast<Index>(k)];
    result.rss = residuals.at().rss();
    result.fitted = residuals.fitted();
    if (!model.implicit()) result.r_squared = r_squared(data, residuals.roots(), result.rss);
    if (result.degrees_of_freedom > 0) result.reduced_chi_square = result.rss / result.degrees_of_freedom;
    result.iterations = search.iterations();
    result.evaluations = residuals.evaluations();
    result.relative_offset = end.relative_offset;
    switch (search.stopped() ? ceres::USER_FAILURE : end.termination) {
    case ceres::CONVERGENCE:
        result.converged = end.at_minimum;
        if (!end.at_minimum) {
            result.termination = fmt::format("stopped short of a minimum{}: no step lowers the sum of squares",
                                             result.numerical ? "" : " (numerical derivatives may do better)");
            break;
        }
        result.termination = "converged: the sum of squares no longer decreases";
        break;
    case ceres::NO_CONVERGENCE: result.termination = "stopped at the limit of iterations"; break;
    case ceres::USER_FAILURE: result.termination = "stopped on request"; break;
    default: result.termination = "stopped: no step could be computed"; break;
    }
    estimate_errors(result, residuals, end.interior, result.numerical, options.known_errors);
    result.seconds = seconds();
    return result;
}

} // namespace ansatz::host
