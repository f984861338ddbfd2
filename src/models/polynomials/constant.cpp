#include "polynomial.h"

namespace ansatz::constant {

ANSATZ_MODEL(Constant, Polynomial<0>)

ANSATZ_PAGE(Constant, .title = "The same level everywhere", .formula = "y = a",
            .parameters = {{"a", "level", Trait::level}}, .typical = {{3}, 0, 10},
            .known_as = "horizontal line, mean", .notes = "A fit gives the weighted mean of y.")

} // namespace ansatz::constant
