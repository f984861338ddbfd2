// What the pictures over the plane of two x columns share.
#pragma once

#include "gnuplot.hpp"
#include "plot.hpp"

namespace ansatz::tools {

/// The rectangle of the data, never empty.
gnuplot::Window window_of(const host::Data& data);

/// x1, x2 and the fitted model's value over a window, on n lines of constant x1 with n points each.
Eigen::MatrixXd sampled(const Picture& picture, const gnuplot::Window& window, Eigen::Index n);

} // namespace ansatz::tools
