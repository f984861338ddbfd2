// How the three-parameter laws of the regression handbook are served.
//
// One path per call: FF_VALUE wins, so ask for derivatives with FF_DERIV alone. They are the true partial
// derivatives of the value. Whatever fails marks y[1] and, on a derivative request, every slot of the law, and
// resets the error indicator.
//
// An expected-value form (a name in EVP) is the same curve as its plain law, given by the responses it takes at
// reference positions instead of by shape constants. It reads and differentiates slots beyond the catalogue's
// count: each reference position stands before its response, and the constants that remain come last.
#pragma once

#include "protocol/forms.h"

namespace ansatz {

template <Path value, Path derivatives> using ThreeParameterLaw =
    FormE<value, derivatives, Answers{.idle = Idle::flags}>;

} // namespace ansatz
