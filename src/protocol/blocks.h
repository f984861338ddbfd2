// The loop of the models that are a common offset plus any number of equal blocks of parameters, their peaks or
// terms.
#pragma once

#include "protocol/forms.h"

namespace ansatz {

/// Of a block that adds nothing: its component keeps what it held.
struct Skipped {};
inline constexpr Skipped skipped;

/// What becomes of a block: it adds a number, is skipped, or ends the path with a status.
struct Outcome {
    enum Kind { adds, skips, ends } kind;
    Real number = 0;
    Status status = success;

    Outcome(Real contribution) : kind(adds), number(contribution) {}
    Outcome(Skipped) : kind(skips) {}
    Outcome(Status end) : kind(ends), status(end) {}
};

/// The offset P1 and what `count` blocks of `size` parameters add to it go into y[1]; y[2], y[3], .. are the
/// blocks alone. With lead 0 no offset comes before the blocks.
///
/// block(p, k) makes the Outcome of one block: its parameters are p[1], p[2], .., its derivatives belong into
/// dyda[k + 1], dyda[k + 2], .. Where a block ends the path, y[1] holds the sum of those before it, unless the
/// block writes there.
template <int size, int lead = 1, class Block> Status add_blocks(const Point& at, int count, Block block) {
    at.y[1] = lead ? at.P[1] : 0;
    for (int i = 0; i < count; ++i) {
        const int k = lead + size * i;
        const Outcome outcome = block(at.P + k, k);
        if (outcome.kind == Outcome::ends) return outcome.status;
        if (outcome.kind == Outcome::adds) {
            at.y[i + 2] = outcome.number;
            at.y[1] += outcome.number;
        }
    }
    return success;
}

} // namespace ansatz
