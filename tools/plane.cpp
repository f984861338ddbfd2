#include "plane.hpp"

namespace ansatz::tools {

gnuplot::Window window_of(const host::Data& data) {
    gnuplot::Window window{data.x.col(0).minCoeff(), data.x.col(0).maxCoeff(), data.x.col(1).minCoeff(),
                           data.x.col(1).maxCoeff()};
    if (!(window.high1 > window.low1)) window.low1 -= 0.5, window.high1 += 0.5;
    if (!(window.high2 > window.low2)) window.low2 -= 0.5, window.high2 += 0.5;
    return window;
}

Eigen::MatrixXd sampled(const Picture& picture, const gnuplot::Window& window, Eigen::Index n) {
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
