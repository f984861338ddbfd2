// How the one-parameter and the asymptotic laws of the handbook serve a request: the value or the derivatives,
// one path per call, and a call that requests neither gets its flags byte back.
#pragma once

#include "protocol/forms.h"

namespace ansatz {

template <Path value, Path derivatives> using OnePath = FormE<value, derivatives, Answers{.idle = Idle::flags}>;

} // namespace ansatz
