// The families of descriptions. To describe a model, add an entry to the file of its family.
#pragma once

#include <ansatz/host/description.hpp>

namespace ansatz::host::descriptions {

Family peaks();
Family sigmoids();
Family growth();
Family exponentials();
Family handbook();
Family handbook_asymptotic();
Family handbook_one_parameter();
Family handbook_two_parameter();
Family handbook_three_parameter();
Family polynomials();
Family powers();
Family distributions();
Family surfaces();
Family multi();
Family testing();
Family reserved();

} // namespace ansatz::host::descriptions
