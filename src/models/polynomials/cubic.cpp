#include "polynomial.h"

namespace ansatz::cubic {

ANSATZ_MODEL(Cubic, Polynomial<3>)

ANSATZ_PAGE(Cubic, .title = "Polynomial of the third order", .formula = "y = a + b x + c x^2 + d x^3",
            .parameters = {{"a", "y at x = 0", Trait::level},
                           {"b", "slope at x = 0", Trait::slope},
                           {"c", "coefficient of x^2", Trait::coefficient, Dimension{.x = -2, .y = 1}},
                           {"d", "coefficient of x^3", Trait::coefficient, Dimension{.x = -3, .y = 1}}},
            .typical = {{1, -2, 0.3, 0.5}, -3, 3}, .known_as = "cubic polynomial")

} // namespace ansatz::cubic
