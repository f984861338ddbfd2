// The C library's functions in double precision, each as good as the best that the platform offers.
//
// On 32-bit Windows the cross compiler's library computes with the 80-bit numbers of the x87 unit, which is
// fine for exponentials, logarithms and powers. The others fall short, and are made of 80-bit arithmetic here:
// the processor's sine and cosine know pi to 66 bits only, so near a multiple of pi most digits are wrong, and
// beyond 2^63 there is no answer at all; the arc cosine loses half its digits near 1, the hyperbolic tangent
// reports an overflow where it is 1, and those of the system's DLL differ from one Windows to the next.
#pragma once

#include <cmath>

namespace ansatz::c_library {

using std::erfc;
using std::exp;
using std::log;
using std::log1p;
using std::pow;
using std::sqrt;

#if defined(_WIN32) && defined(__i386__)
/// Does the library set errno in calls that end well? Its erfc does, where an exponential inside underflows.
inline constexpr bool notes_false_errors = true;

double sin(double t);
double cos(double t);
double tanh(double t);
double acos(double t);
#else
inline constexpr bool notes_false_errors = false;

using std::acos;
using std::cos;
using std::sin;
using std::tanh;
#endif

} // namespace ansatz::c_library
