// The processor's floating-point settings belong to the host. Some hosts compute with fewer digits in the x87
// unit (every thread of Windows starts with 53 bits), round in other directions, flush subnormals to zero, or
// have the processor raise an exception at an overflow. None of that may reach a model: the same call gives the
// same answer in every host. What is promised where, ansatz.h says.
#pragma once

#include <optional>

namespace ansatz {

#if defined(__x86_64__) || (defined(_WIN32) && defined(__i386__))

/// While it lives, the SSE unit rounds to nearest, keeps subnormals and raises nothing.
class OwnSse {
public:
    OwnSse() {
        asm volatile("stmxcsr %0" : "=m"(hosts_)::"memory");
        if (changed()) load(own);
    }
    ~OwnSse() {
        if (changed()) load(hosts_);
    }
    OwnSse(const OwnSse&) = delete;
    OwnSse& operator=(const OwnSse&) = delete;

private:
    static constexpr unsigned own = 0x1f80, past_errors = 0x3f;

    bool changed() const { return (hosts_ & ~past_errors) != own; }
    static void load(unsigned settings) { asm volatile("ldmxcsr %0" ::"m"(settings) : "memory"); }

    unsigned hosts_ = 0;
};

#endif

#if defined(_WIN32) && defined(__i386__)

/// The same for the x87 unit, with 64-bit precision.
class OwnX87 {
public:
    OwnX87() {
        asm volatile("fnstcw %0" : "=m"(hosts_)::"memory");
        if (changed()) load(own);
    }
    ~OwnX87() {
        if (!changed()) return;
        // Errors noted meanwhile would be raised in the host, by its next innocent instruction.
        if ((hosts_ & exceptions) != exceptions) asm volatile("fnclex" ::: "memory");
        load(hosts_);
    }
    OwnX87(const OwnX87&) = delete;
    OwnX87& operator=(const OwnX87&) = delete;

private:
    static constexpr unsigned short own = 0x37f, exceptions = 0x3f;

    bool changed() const { return hosts_ != own; }
    static void load(unsigned short settings) { asm volatile("fldcw %0" ::"m"(settings) : "memory"); }

    unsigned short hosts_ = 0;
};

/// Both units: models compute with one, the C library with the other.
class OwnArithmetic {
    OwnX87 x87_;
    OwnSse sse_;
};

#elif defined(__x86_64__)

/// Nothing computes with the x87 unit here. But to read the SSE unit's settings takes up to 5 ns, longer than a
/// straight line, for all arithmetic before has to end first. Those of the x87 unit are there at once, and the
/// C library's fesetround, feenableexcept and fesetenv set both units alike: so they tell whether to look. A
/// host that changes the SSE unit's alone goes unnoticed.
class OwnArithmetic {
public:
    OwnArithmetic() {
        unsigned short x87 = 0;
        asm volatile("fnstcw %0" : "=m"(x87)::"memory");
        if ((x87 & rounding_and_exceptions) != nearest_and_none) sse_.emplace();
    }

private:
    static constexpr unsigned rounding_and_exceptions = 0xc3f, nearest_and_none = 0x3f;

    std::optional<OwnSse> sse_;
};

/// A batch has the time.
using BatchArithmetic = OwnSse;

#else

class OwnArithmetic {
public:
    OwnArithmetic() {} // NOLINT(modernize-use-equals-default): no warning about an unused variable
};

using BatchArithmetic = OwnArithmetic;

#endif

} // namespace ansatz
