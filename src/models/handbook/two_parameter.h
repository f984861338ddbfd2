// What the two-parameter models of the handbook have in common.
//
// Each law comes in a plain form and often in a modified one (Mod), the same curve with other constants. An
// expected-value form (EVP) describes the curve by the responses it takes at reference positions of x, which
// makes starting values easy: read them off the data. The reference positions are parameters too, so such a
// form reads three or four slots of P and fills as many of dyda, although its catalogue row lists two
// parameters.
#pragma once

#include "protocol/forms.h"

namespace ansatz {

/// One request per call, the value before the derivatives; a call that requests neither returns its flags byte.
template <Path value, Path derivatives> using TwoParameter =
    FormE<value, derivatives, Answers{.idle = Idle::flags}>;

/// Ends a derivative path on an error in its closing logarithm: the slots named are marked, y[1] stands.
template <class... Slots> Status fail_slots(const Point& at, Slots... slots) {
    clear_error();
    ((at.dyda[slots] = MISSING_VALUE), ...);
    return failure;
}

} // namespace ansatz
