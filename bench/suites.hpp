// The suites of benchmarks. Each names its benchmarks suite/side/kind/model/points, with "-" for what does not
// apply.
#pragma once

namespace bench {

inline constexpr int sizes[] = {1, 100, 1000, 100000};

/// Every model by single calls, in batches on one thread and on two, and written by hand; and the lookups.
void register_catalogue();

/// What a call costs whatever the model.
void register_floor();

/// A dozen models beside automatic differentiation and formulas that are parsed at run time.
void register_rivals();

/// Whole fits with one optimiser and several suppliers of derivatives.
void register_fits();

} // namespace bench
