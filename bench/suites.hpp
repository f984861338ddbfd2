// The suites of benchmarks.
#pragma once

namespace bench {

/// Every model by single calls and in batches on one thread and on two; and the lookups.
void register_catalogue();

/// The laws of laws.hpp written by hand, behind the library's calling convention, by automatic differentiation,
/// and parsed at run time. Ends the program where one is another law than the library's.
void register_rivals();

/// Whole fits with one optimiser and several suppliers of derivatives.
void register_fits();

} // namespace bench
