// Evaluation of a model, for one point or for whole columns of data.
#pragma once

#include <ansatz/host/model.hpp>

#include <Eigen/Core>

#include <array>
#include <vector>

namespace ansatz::host {

/// Where the derivatives come from. `best` takes the model's own where it offers them and central differences
/// with Richardson's extrapolation elsewhere: for models that offer none or false ones, for the second
/// dependent variable, and for the single derivative that a model marks as missing although it succeeds.
enum class Derivatives { best, numerical };

/// A model with given parameters and the buffers it is called through. Evaluates one point at a time and
/// allocates nothing after its construction. Use one per thread.
class Evaluator {
public:
    Evaluator(const Model& model, const Eigen::VectorXd& parameters, Derivatives source = Derivatives::best);

    /// Replaces the parameters, by as many.
    void set_parameters(const Eigen::VectorXd& parameters);

    /// Computes y and the components at row `point` of x (points x inputs). Returns false where the model fails
    /// or yields a value that is not finite.
    bool value(const Eigen::MatrixXd& x, Eigen::Index point);

    /// The same with the derivatives; it also fails where those are not finite.
    bool derivatives(const Eigen::MatrixXd& x, Eigen::Index point);

    // The results of the last call that succeeded, counted from 0.
    double y(int output) const { return result_[static_cast<std::size_t>(output) + 1]; }
    double component(int block) const { return result_[static_cast<std::size_t>(block) + 2]; }
    double derivative(int output, int parameter) const { return jacobian_(output, parameter); }

private:
    bool call(unsigned request);
    bool call_value();
    bool differentiate(int output_from);
    bool differentiate(int output_from, int k);

    Model model_;
    int n_;
    bool analytic_;
    std::vector<double> P_, y_, dyda_;    // addressed from 1, as the models do
    std::array<double, 4> x_{}, given_{}; // a failing surface writes into x[2]: models get a copy
    std::vector<double> result_;          // y and components at the point itself, addressed from 1
    Eigen::MatrixXd jacobian_;            // outputs x parameters
};

/// A model's outputs for N points and P parameters.
struct Evaluation {
    Eigen::MatrixXd y;                     ///< N x outputs; NaN where the model fails
    Eigen::MatrixXd components;            ///< N x components
    std::vector<Eigen::MatrixXd> jacobian; ///< per output N x P, only when requested; NaN where that fails
    std::vector<char> ok;                  ///< per point: did everything that was requested succeed?
    bool all_ok() const;
};

/// Evaluates at every row of x (N x inputs). Throws Error on a wrong number of parameters or columns.
Evaluation evaluate(const Model& model, const Eigen::VectorXd& parameters, const Eigen::MatrixXd& x,
                    bool with_jacobian = false, Derivatives source = Derivatives::best);

} // namespace ansatz::host
