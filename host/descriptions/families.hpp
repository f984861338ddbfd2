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

// The parameters of expected-value forms with two reference positions.
inline constexpr ParameterText x1 = {"x1", "x of the response y1", Role::reference};
inline constexpr ParameterText x2 = {"x2", "x of the response y2", Role::reference};
inline constexpr ParameterText y1 = {"y1", "response at x1"};
inline constexpr ParameterText y2 = {"y2", "response at x2"};

} // namespace ansatz::host::descriptions
