// How the small laws of the regression handbook are served, whatever the number of their parameters.
//
// One path per call: FF_VALUE wins, so ask for derivatives with FF_DERIV alone. A call that requests neither
// gets its flags byte back.
//
// Many laws come in several parameterisations. A plain form (no suffix) has the constants of the formula; a
// modified one (Mod) is the same curve with other constants. An expected-value form (EVP) describes the curve
// by the responses it takes at reference positions of x, which makes starting values easy: read them off the
// data. The reference positions are parameters too: such a form reads, and differentiates, slots beyond the
// catalogue's count.
#pragma once

#include "protocol/forms.h"

namespace ansatz {

template <Path value, Path derivatives> using HandbookLaw =
    OnePath<value, derivatives, Answers{.idle = Idle::flags}>;

} // namespace ansatz
