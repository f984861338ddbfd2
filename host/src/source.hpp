// Where a fit's numbers come from: a model's values and derivatives at all of the data.
#pragma once

#include <ansatz/host/evaluate.hpp>

#include <memory>

namespace ansatz::host {

/// A model at every row of x, which must outlive this.
class Source {
public:
    /// By whole columns where the batch library can, else point by point; the numbers have the same bits.
    static std::unique_ptr<Source> of(const Model& model, const Eigen::MatrixXd& x, int parameters,
                                      Derivatives derivatives);
    Source(const Source&) = delete;
    Source& operator=(const Source&) = delete;
    virtual ~Source() = default;

    /// Computes y and the Jacobian at every point, as an Evaluator does. Returns the first point that fails, or
    /// -1.
    virtual Eigen::Index compute(const Eigen::VectorXd& parameters) = 0;

    // The results of the last computation that succeeded.
    const Eigen::MatrixXd& y() const { return y_; } ///< points x outputs
    /// By parameter; in the rows all points of y[1], then all of y[2].
    const auto& jacobian() const { return jacobian_; }

protected:
    Source(const Model& model, const Eigen::MatrixXd& x, int parameters);
    bool take_point(Evaluator& evaluator, Eigen::Index point);

    const Eigen::MatrixXd& x_;
    Eigen::MatrixXd y_;
    Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor> jacobian_;
};

/// Any model, one point at a time.
class PointSource : public Source {
public:
    PointSource(const Model& model, const Eigen::MatrixXd& x, int parameters, Derivatives derivatives);
    Eigen::Index compute(const Eigen::VectorXd& parameters) override;

private:
    Evaluator evaluator_;
};

/// A model of the catalogue with one output and derivatives of its own, at all points in one call.
class ColumnSource : public Source {
public:
    static bool serves(const Model& model, int parameters, Derivatives derivatives);

    ColumnSource(const Model& model, const Eigen::MatrixXd& x, int parameters);
    Eigen::Index compute(const Eigen::VectorXd& parameters) override;

private:
    bool usable_at(Eigen::Index point) const;

    Evaluator by_point_; // for the points that need a closer look
    AnsatzBatch batch_ = {};
    const AnsatzBatchModel* model_;
    std::vector<std::int32_t> value_status_, status_;
};

} // namespace ansatz::host
