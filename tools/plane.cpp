#include "plane.hpp"

#include <algorithm>

namespace ansatz::tools {

Window Window::of(const host::Data& data) {
    Window window{data.x.col(0).minCoeff(), data.x.col(0).maxCoeff(), data.x.col(1).minCoeff(),
                  data.x.col(1).maxCoeff()};
    if (!(window.high1 > window.low1)) window.low1 -= 0.5, window.high1 += 0.5;
    if (!(window.high2 > window.low2)) window.low2 -= 0.5, window.high2 += 0.5;
    return window;
}

Window Window::widened(double share) const {
    const double by1 = share * (high1 - low1), by2 = share * (high2 - low2);
    return {low1 - by1, high1 + by1, low2 - by2, high2 + by2};
}

void Window::include(double x1, double x2) {
    low1 = std::min(low1, x1), high1 = std::max(high1, x1);
    low2 = std::min(low2, x2), high2 = std::max(high2, x2);
}

Eigen::MatrixXd sampled(const Picture& picture, const Window& window, Eigen::Index n) {
    const Eigen::VectorXd lines = Eigen::VectorXd::LinSpaced(n, window.low1, window.high1);
    Eigen::MatrixXd x(n * n, 2);
    for (Eigen::Index i = 0; i < n; ++i) {
        x.col(0).segment(i * n, n).setConstant(lines[i]);
        x.col(1).segment(i * n, n) = Eigen::VectorXd::LinSpaced(n, window.low2, window.high2);
    }
    Eigen::MatrixXd rows(n * n, 3);
    rows << x, host::evaluate(picture.model, picture.fit.values(), x).y;
    return rows;
}

} // namespace ansatz::tools
