#include "search.hpp"

#include "decomposition.hpp"

#include <algorithm>
#include <cmath>

namespace ansatz::host {
namespace {

using Eigen::Index;
using Eigen::VectorXd;

/// Where a minimisation ended. Positions are those among the free values.
struct EndPoint {
    VectorXd free_values;
    std::vector<Index> interior = {}; ///< positions off their bounds
    std::vector<Index> movable =
        {}; ///< these, and those at a bound on whose inner side the sum of squares falls
    Ending ending = Ending::failed;
    double rss = std::numeric_limits<double>::infinity();
    double relative_offset = 0;
    bool at_minimum = false;
    bool determined = false; ///< has J full rank?

    bool settled() const { return ending == Ending::converged || ending == Ending::failed; }
    bool sound() const { return ending == Ending::converged && at_minimum && determined; }
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

class Search {
public:
    Search(Problem& problem, int max_iterations, const Report& report)
        : problem_(problem), max_iterations_(max_iterations), report_(report) {}

    Found run(const VectorXd& from) {
        if (problem_.evaluate(from)) first_norm_ = std::sqrt(problem_.at().rss());
        EndPoint end = descend(from, bold_radius);
        // A bold first step can land where the model no longer depends on a parameter: a rate so high that
        // every point lies on the plateau. No way leads back from there, so the fit is tried again with care,
        // unless the parameters could not be told apart from the outset.
        const auto distinct_at_start = [&] {
            return problem_.evaluate(from) &&
                   Decomposition(problem_.at().jacobian, problem_.rank_tolerance()).full_rank();
        };
        if (end.settled() && (!end.at_minimum || (!end.determined && distinct_at_start())) && can_go_on()) {
            EndPoint careful = descend(from, careful_radius);
            if (careful.better_than(end)) end = std::move(careful);
        }
        return {.free_values = std::move(end.free_values),
                .interior = std::move(end.interior),
                .ending = stopped_ ? Ending::stopped : end.ending,
                .at_minimum = end.at_minimum,
                .relative_offset = end.relative_offset,
                .iterations = iterations_};
    }

private:
    // The radii of the trust region that a minimisation begins with, relative to the columns of J. The bold one
    // makes the first steps almost those of Gauss and Newton, which is the fast way and mostly the right one.
    static constexpr double bold_radius = 1e4, careful_radius = 1e-4;

    bool can_go_on() const { return !stopped_ && iterations_ < max_iterations_; }

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

    /// One minimisation, to the last digits, and what its end is worth.
    EndPoint minimise(const VectorXd& from, double radius, const std::vector<int>& held) {
        EndPoint end{.free_values = from};
        Report report;
        if (report_) report = [&](int iteration, double rss) { return report_(iterations_ + iteration, rss); };
        const Descent descent =
            host::minimise(problem_, end.free_values, held, radius, max_iterations_ - iterations_, report);
        iterations_ += descent.iterations;
        end.ending = descent.ending;
        stopped_ = end.ending == Ending::stopped;
        for (Index j = 0; j < end.free_values.size(); ++j) {
            if (range_of(j).inside(end.free_values[j])) end.interior.push_back(j);
        }
        if (end.ending == Ending::converged && !end.interior.empty()) polish(end.free_values, end.interior);
        if (problem_.evaluate(end.free_values)) judge(end);
        return end;
    }

    /// Gauss-Newton steps from a minimum found, as long as they shorten. Levenberg-Marquardt stops when the sum
    /// of squares stands still, which leaves the parameters only half of a double's digits.
    void polish(VectorXd& free_values, const std::vector<Index>& interior) {
        double longest = std::numeric_limits<double>::infinity();
        for (int round = 0; round < 20; ++round) {
            if (!problem_.evaluate(free_values)) return;
            const double rss = problem_.at().rss();
            const auto [jacobian, lengths] = normalised(columns(problem_.at().jacobian, interior));
            const Eigen::ColPivHouseholderQR<Eigen::MatrixXd> qr(jacobian);
            if (qr.rank() < jacobian.cols()) return;
            const VectorXd step = -qr.solve(problem_.at().residuals); // in units of the residuals
            if (!(step.norm() < longest)) return;
            longest = step.norm() / 2;
            VectorXd next = free_values;
            for (std::size_t j = 0; j < interior.size(); ++j) {
                double& value = next[interior[j]];
                value += step[static_cast<Index>(j)] / lengths[static_cast<Index>(j)];
                if (value < range_of(interior[j]).lower || value > range_of(interior[j]).upper) return;
            }
            // The sum of squares is flat at the minimum: up to rounding, it must not grow.
            if (!problem_.evaluate(next) || problem_.at().rss() > rss * (1 + 1e-10)) return;
            free_values = next;
        }
    }

    /// The minimiser also stops when no step helps, as with wrong or useless derivatives. At a minimum the
    /// residuals are orthogonal to the tangent space, unless they are mere rounding.
    void judge(EndPoint& end) const {
        const Reduction& at = problem_.at();
        end.rss = at.rss();
        const VectorXd uphill = at.jacobian.transpose() * at.residuals;
        for (Index j = 0; j < uphill.size(); ++j) {
            const bool falls_above = end.free_values[j] < range_of(j).upper && uphill[j] < 0;
            const bool falls_below = end.free_values[j] > range_of(j).lower && uphill[j] > 0;
            if (std::ranges::binary_search(end.interior, j) || falls_above || falls_below) {
                end.movable.push_back(j);
            }
        }
        end.determined = true;
        if (!end.movable.empty()) {
            const Decomposition qr(columns(at.jacobian, end.movable), problem_.rank_tolerance());
            end.determined = qr.full_rank();
            const VectorXd projected = qr.householderQ().transpose() * at.residuals;
            if (end.rss > 0) end.relative_offset = projected.head(qr.rank()).norm() / std::sqrt(end.rss);
        }
        const bool exact = std::sqrt(end.rss) <= std::max(1e-10 * problem_.scale(), 1e-12 * first_norm_);
        end.at_minimum = exact || end.relative_offset < 1e-3;
    }

    const Range& range_of(Index j) const { return problem_.ranges()[static_cast<std::size_t>(j)]; }

    Problem& problem_;
    int max_iterations_;
    const Report& report_;
    double first_norm_ = 0;
    int iterations_ = 0;
    bool stopped_ = false;
};

} // namespace

Found search(Problem& problem, const VectorXd& from, int max_iterations, const Report& report) {
    return Search(problem, max_iterations, report).run(from);
}

} // namespace ansatz::host
