// The error indicator, and the library functions that report through it.
//
// The indicator is errno. C libraries disagree about it: some report a range error when pow underflows, some
// report no overflow at all. The functions here make every library behave alike:
//   overflow, pole                        range error
//   argument outside the domain           domain error (also sin and cos of an infinity)
//   underflow                             no error
//   NaN or infinity that passes through   no error
// An indicator that was set before stays set. All of that is decided from the result alone, which costs
// one compare on ordinary results; only a result that is zero, subnormal, infinite or NaN is looked at closely.
// Values are the C library's own, bit for bit.
#pragma once

#include "protocol/c_library.h"
#include "protocol/point.h"

#include <bit>
#include <cerrno>
#include <cmath>
#include <cstdint>

namespace ansatz {

static_assert(EDOM == 33 && ERANGE == 34, "hosts read the indicator by these numbers");

#ifdef ANSATZ_BATCH
/// The loops of the batch library keep an indicator of their own. They begin every point without a pending
/// error, and the functions below decide from results alone, so the library's errno need not be looked at.
[[gnu::tls_model("initial-exec")]] inline constinit thread_local int batch_indicator = 0;
inline int& indicator() {
    return batch_indicator;
}

/// Puts the indicator back as a loop found it: another loop may be under way, interrupted by a signal.
class KeepIndicator {
public:
    KeepIndicator() : found_(batch_indicator) {}
    ~KeepIndicator() { batch_indicator = found_; }
    KeepIndicator(const KeepIndicator&) = delete;
    KeepIndicator& operator=(const KeepIndicator&) = delete;

private:
    int found_;
};
#else
inline int& indicator() {
    return errno;
}
#endif

inline bool range_error() {
    return indicator() == ERANGE;
}
inline bool domain_error() {
    return indicator() == EDOM;
}
inline bool math_error() {
    return range_error() || domain_error();
}
inline void clear_error() {
    indicator() = 0;
}

/// Ends a failed path: MISSING_VALUE into y[1] and into the derivative slots named; status 1. The indicator is
/// left as it is.
template <class... Slots> Status reject(const Point& at, Slots... slots) {
    ((at.dyda[slots] = MISSING_VALUE), ...);
    at.y[1] = MISSING_VALUE;
    return failure;
}

/// The same, and the indicator is reset: how nearly every failure ends.
template <class... Slots> Status fail(const Point& at, Slots... slots) {
    clear_error();
    return reject(at, slots...);
}

/// Both with every derivative slot 1..n of a model.
inline Status reject_all(const Point& at, int n) {
    for (int k = 1; k <= n; ++k) at.dyda[k] = MISSING_VALUE;
    return reject(at);
}
inline Status fail_all(const Point& at, int n) {
    clear_error();
    return reject_all(at, n);
}

/// Ends a derivative path whose value stands: only the slots named are marked, y[1] keeps what was written;
/// indicator reset, status 1.
template <class... Slots> Status fail_slots(const Point& at, Slots... slots) {
    ((at.dyda[slots] = MISSING_VALUE), ...);
    clear_error();
    return failure;
}

/// How the surfaces fail: the marker goes into x[2], outputs keep what they held, indicator reset, status 1.
inline Status fail_surface(const Point& at) {
    at.x[2] = MISSING_VALUE;
    clear_error();
    return failure;
}

namespace detail {

/// Neither zero, subnormal, infinite nor NaN: no function here errs with such a result. One compare tells, of
/// the bits without their sign, which the shift drops.
inline bool ordinary(double r) {
    constexpr std::uint64_t normal = std::uint64_t{1} << 53, infinite = std::uint64_t{0x7ff} << 53;
    return (std::bit_cast<std::uint64_t>(r) << 1) - normal < infinite - normal;
}

/// Sets the indicator from an extraordinary result r of a call that found it at `before`; finite tells whether
/// all arguments were finite, nan whether one was NaN.
[[gnu::cold, gnu::noinline]] inline double settle(double r, int before, bool finite, bool nan) {
    indicator() = before;
    if (std::isnan(r) && !nan) indicator() = EDOM;
    if (std::isinf(r) && finite) indicator() = ERANGE;
    return r;
}

/// An ordinary result of a call that found the indicator at `before`.
inline double accept(double r, int before) {
    if constexpr (c_library::notes_false_errors) indicator() = before;
    return r;
}

template <double (*f)(double)> inline double checked(double t) {
    const int before = indicator();
    const double r = f(t);
    return ordinary(r) ? accept(r, before) : settle(r, before, std::isfinite(t), std::isnan(t));
}

} // namespace detail

// The library functions that models call, by their plain names.
inline double exp(double t) {
    return detail::checked<c_library::exp>(t);
}
inline double log(double t) {
    return detail::checked<c_library::log>(t);
}
inline double log1p(double t) {
    return detail::checked<c_library::log1p>(t);
}
inline double sqrt(double t) {
    return detail::checked<c_library::sqrt>(t);
}
inline double sin(double t) {
    return detail::checked<c_library::sin>(t);
}
inline double cos(double t) {
    return detail::checked<c_library::cos>(t);
}
inline double tanh(double t) {
    return detail::checked<c_library::tanh>(t);
}
inline double acos(double t) {
    return detail::checked<c_library::acos>(t);
}

inline double erfc(double t) {
    return detail::checked<c_library::erfc>(t);
}

inline double pow(double a, double b) {
    const int before = indicator();
    const double r = c_library::pow(a, b);
    return detail::ordinary(r) ? detail::accept(r, before)
                               : detail::settle(r, before, std::isfinite(a) && std::isfinite(b),
                                                std::isnan(a) || std::isnan(b));
}

} // namespace ansatz
