// What the distributions answer. A call that requests neither the value nor the derivatives is a failure here.
#pragma once

#include "protocol/forms.h"

namespace ansatz::distribution {

inline constexpr Answers values{.query = 0, .idle = Idle::one};
inline constexpr Answers with_derivatives{.query = 1, .idle = Idle::one};

} // namespace ansatz::distribution
