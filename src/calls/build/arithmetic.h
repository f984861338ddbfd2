// What the models are made of in the library of single calls: plain doubles, errno, nothing kept between calls.
//
// The same sources are built more than once: here, as loops over columns (batch/build) and as pages of text
// (pages/build). Each build has its own arithmetic.h and entry.h, and the include path chooses; the models do
// not know which.
#pragma once

#include <cerrno>

namespace ansatz {

/// A quantity that depends on x.
using Real = double;

/// A quantity that depends on parameters alone: one for all points of a batch.
using Scalar = double;

/// The error indicator.
inline int& indicator() {
    return errno;
}

/// f of arguments that depend on parameters and on no x. A single call knows one point and nothing of the call
/// before, so it computes it; a batch computes it once.
template <auto f, class... Arguments> Scalar of_parameters(Arguments... arguments) {
    return f(arguments...);
}

} // namespace ansatz
