#include "polynomial.h"

namespace ansatz::parabola {

ANSATZ_MODEL(Parabola, Polynomial<2>)

ANSATZ_PAGE(Parabola, .title = "Polynomial of the second order", .formula = "y = a + b x + c x^2",
            .parameters = {{"a", "y at x = 0", Trait::level},
                           {"b", "slope at x = 0", Trait::slope},
                           {"c", "coefficient of x^2", Trait::coefficient, Dimension{.x = -2, .y = 1}}},
            .typical = {{1, 2, -0.3}, -1, 8}, .known_as = "quadratic polynomial")

} // namespace ansatz::parabola
