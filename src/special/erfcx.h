// The scaled complementary error function.
#pragma once

#include "build/arithmetic.h"

namespace ansatz {

/// e^(b^2) erfc(b) for b >= 0. Relative error below 5e-16 (measured on 5000 points up to 1e10, with glibc's
/// erfc).
Real erfcx(Real b);

} // namespace ansatz
