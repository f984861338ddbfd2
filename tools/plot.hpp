// Pictures of a fit, drawn by gnuplot. What is drawn depends on the model's shape:
//
//   one x column     data and fitted curve, the peaks' contributions where there are several, the residuals
//                    below; a model of two outputs gets such panels for each, side by side
//   two x columns    the fitted surface with the data, and a map of the residuals
//   implicit         the curve through the data, and the residuals below
//
// A model of more than two x columns has no picture.
#pragma once

#include <ansatz/host/fit.hpp>

#include <string>
#include <vector>

namespace ansatz::tools {

struct PlotLabels {
    std::vector<std::string> x, y; ///< the columns' names
};

/// A fit with what a picture of it needs.
struct Picture {
    const host::Model& model;
    const host::Data& data;
    const host::Fit& fit;
    const Eigen::MatrixXd& deviations; ///< points x 1 or outputs, shown as error bars; or empty
    PlotLabels labels;
    const std::string& file;
};

/// Throws host::Error unless a plot of this model can be written to this file: call it before a long fit.
void require_plottable(const host::Model& model, const std::string& file);

void plot(const Picture& picture);

// One kind each.
void plot_curves(const Picture& picture);
void plot_surface(const Picture& picture);
void plot_implicit(const Picture& picture);

} // namespace ansatz::tools
