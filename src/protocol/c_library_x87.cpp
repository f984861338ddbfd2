// Sine and cosine for 32-bit Windows: the argument is reduced exactly, and what is left, at most pi/4, is where
// the processor's own instructions are good to the last bit of a double.

#include "protocol/c_library.h"

#if defined(_WIN32) && defined(__i386__)

#include <bit>
#include <cstdint>

namespace ansatz::c_library {
namespace {

/// The binary digits of 2/pi, after 64 zeros.
constexpr std::uint32_t two_over_pi[] = {
    0x00000000, 0x00000000, 0xa2f9836e, 0x4e441529, 0xfc2757d1, 0xf534ddc0, 0xdb629599, 0x3c439041,
    0xfe5163ab, 0xdebbc561, 0xb7246e3a, 0x424dd2e0, 0x06492eea, 0x09d1921c, 0xfe1deb1c, 0xb129a73e,
    0xe88235f5, 0x2ebb4484, 0xe99c7026, 0xb45f7e41, 0x3991d639, 0x835339f4, 0x9c845f8b, 0xbdf9283b,
    0x1ff897ff, 0xde05980f, 0xef2f118b, 0x5a0a6d1f, 0x6d367ecf, 0x27cb09b7, 0x4f463f66, 0x9e5fea2d,
    0x7527bac7, 0xebe5f17b, 0x3d0739f7, 0x8a5292ea, 0x6bfb5fb1, 0x1f8d5d08, 0x56033046,
};

/// An angle as a number of right angles, by its last two bits, and a rest within pi/4 of zero.
struct Angle {
    unsigned quarters;
    long double rest;
};

/// t times 2/pi is an integer of 53 bits times a section of the digits of 2/pi: digits further left give whole
/// turns and are left out, digits further right than 192 are too small to be seen, as no double comes closer to
/// a multiple of pi/2 than 2^-61. For positive t from pi/4 on.
Angle reduce(double t) {
    constexpr long double quarter_turn = 1.570796326794896619231321691639751442L;
    constexpr int words = 6;

    const auto bits = std::bit_cast<std::uint64_t>(t);
    const std::uint64_t integer = (bits & 0xfffffffffffff) | 0x10000000000000;
    const auto first = static_cast<unsigned>(bits >> 52) - 1013; // where the integer's unit is two right angles
    const unsigned word = first / 32, shift = first % 32;

    // product = integer * section, modulo one turn; word 0 holds the number of right angles in its two leading
    // bits
    std::uint32_t product[words];
    const std::uint64_t low = integer & 0xffffffff, high = integer >> 32;
    std::uint64_t carry = 0, before = 0;
    for (int i = words - 1; i >= 0; --i) {
        const std::uint32_t* digits = two_over_pi + word + i;
        const std::uint64_t pair = std::uint64_t{digits[0]} << 32 | digits[1];
        const std::uint64_t section = pair << shift >> 32;
        const std::uint64_t a = section * low, b = before * high;
        carry += (a & 0xffffffff) + (b & 0xffffffff);
        product[i] = static_cast<std::uint32_t>(carry);
        carry = (carry >> 32) + (a >> 32) + (b >> 32);
        before = section;
    }

    unsigned quarters = product[0] >> 30;
    product[0] &= 0x3fffffff;
    long double sign = 1;
    if (product[0] >> 29) { // more than half a right angle: seen from the next one, backwards
        ++quarters;
        sign = -1;
        for (std::uint32_t& digits : product) digits = ~digits;
        product[0] &= 0x3fffffff;
    }
    long double fraction = 0, weight = 0x1p-30L;
    for (const std::uint32_t digits : product) {
        fraction += weight * digits;
        weight *= 0x1p-32L;
    }
    return {quarters, sign * fraction * quarter_turn};
}

/// The sine of an angle that is `ahead` right angles further on.
double sine(double t, unsigned ahead) {
    if (!std::isfinite(t)) return t - t;
    Angle angle{0, t};
    if (std::fabs(t) > 0.78539816339744830961) {
        angle = reduce(std::fabs(t));
        if (t < 0) angle = {0 - angle.quarters, -angle.rest};
    }
    const unsigned quarters = angle.quarters + ahead;
    const long double size = quarters & 1 ? std::cos(angle.rest) : std::sin(angle.rest);
    return static_cast<double>(quarters & 2 ? -size : size);
}

} // namespace

double sin(double t) {
    return sine(t, 0);
}

double cos(double t) {
    return sine(t, 1);
}

double tanh(double t) {
    if (std::fabs(t) >= 20) return std::copysign(1.0, t);
    return static_cast<double>(std::tanh(static_cast<long double>(t)));
}

double acos(double t) {
    const long double cosine = t;
    return static_cast<double>(std::atan2(std::sqrt((1 - cosine) * (1 + cosine)), cosine));
}

} // namespace ansatz::c_library

#endif
