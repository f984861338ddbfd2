// A picture of a fit, drawn by gnuplot.
#pragma once

#include <ansatz/host/fit.hpp>

#include <string>
#include <vector>

namespace ansatz::tools {

struct PlotLabels {
    std::string x;
    std::vector<std::string> y; ///< one per dependent variable
};

/// Throws host::Error unless a plot of this model can be written to this file: call it before a long fit.
void require_plottable(const host::Model& model, const std::string& file);

/// Data, fitted curve, the peaks' contributions where there are several, and the residuals below. `deviations`
/// (points x 1 or outputs, or empty) become error bars.
void plot(const host::Model& model, const host::Data& data, const host::Fit& fit,
          const Eigen::MatrixXd& deviations, const PlotLabels& labels, const std::string& file);

} // namespace ansatz::tools
