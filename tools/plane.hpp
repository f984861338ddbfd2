// What the pictures over the plane of two x columns share.
#pragma once

#include "plot.hpp"

namespace ansatz::tools {

/// A rectangle of the plane.
struct Window {
    double low1, high1, low2, high2;

    /// That of the data, never empty.
    static Window of(const host::Data& data);

    /// With this share of its width more on every side.
    Window widened(double share) const;
    void include(double x1, double x2);
};

/// x1, x2 and the fitted model's value over a window, on n lines of constant x1 with n points each.
Eigen::MatrixXd sampled(const Picture& picture, const Window& window, Eigen::Index n);

} // namespace ansatz::tools
