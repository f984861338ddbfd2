// The processor's floating-point settings belong to the host. Some hosts compute with fewer digits in the x87
// unit (every thread of Windows starts with 53 bits), round in other directions, flush subnormals to zero, or
// have the processor raise an exception at an overflow. None of that may reach a model: the same call gives the
// same answer in every host.
#pragma once

namespace ansatz {

#if defined(_WIN32) && defined(__i386__)

/// While it lives: 64-bit precision, rounding to nearest, no exceptions. Costs next to nothing where the host
/// has that already.
class OwnArithmetic {
public:
    OwnArithmetic() {
        asm volatile("fnstcw %0\n\tstmxcsr %1" : "=m"(x87_), "=m"(sse_)::"memory");
        if (x87_ != own_x87) load_x87(own_x87);
        if ((sse_ & sse_settings) != own_sse) load_sse(own_sse);
    }

    ~OwnArithmetic() {
        if (x87_ != own_x87) {
            // Errors noted meanwhile would be raised in the host, by its next innocent instruction.
            if ((x87_ & exceptions) != exceptions) asm volatile("fnclex" ::: "memory");
            load_x87(x87_);
        }
        if ((sse_ & sse_settings) != own_sse) load_sse(sse_);
    }

    OwnArithmetic(const OwnArithmetic&) = delete;
    OwnArithmetic& operator=(const OwnArithmetic&) = delete;

private:
    static constexpr unsigned short own_x87 = 0x37f, exceptions = 0x3f;
    static constexpr unsigned own_sse = 0x1f80, sse_settings = ~0x3fU; // without the flags of past errors

    static void load_x87(unsigned short settings) { asm volatile("fldcw %0" ::"m"(settings) : "memory"); }
    static void load_sse(unsigned settings) { asm volatile("ldmxcsr %0" ::"m"(settings) : "memory"); }

    unsigned short x87_ = 0;
    unsigned sse_ = 0;
};

#else

class OwnArithmetic {
public:
    OwnArithmetic() {} // NOLINT(modernize-use-equals-default): no warning about an unused variable
};

#endif

} // namespace ansatz
