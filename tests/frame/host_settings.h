// Floating-point settings that a host may have, on Linux with x86-64.
#pragma once

#include <cfenv>
#include <utility>
#include <xmmintrin.h>

namespace ansatz::test {

/// A change of settings; `in_sse_alone` where the x87 unit's stay as they were.
struct HostSettings {
    const char* name;
    void (*set)();
    bool in_sse_alone = false;
};

inline constexpr HostSettings host_settings[] = {
    {"rounds up", [] { std::fesetround(FE_UPWARD); }},
    {"rounds down", [] { std::fesetround(FE_DOWNWARD); }},
    {"rounds to zero", [] { std::fesetround(FE_TOWARDZERO); }},
    {"traps every exception", [] { feenableexcept(FE_ALL_EXCEPT); }},
    {"traps errors and rounds up",
     [] {
         feenableexcept(FE_DIVBYZERO | FE_OVERFLOW | FE_INVALID);
         std::fesetround(FE_UPWARD);
     }},
    {"flushes subnormals to zero", [] { _mm_setcsr(_mm_getcsr() | 0x8040); }, true},
};

/// What both units are set to, without their records of past exceptions.
inline auto current_settings() {
    constexpr unsigned past_exceptions = 0x3f;
    return std::pair(std::pair(std::fegetround(), fegetexcept()), _mm_getcsr() & ~past_exceptions);
}

/// The settings of a host for as long as it lives. Nothing may be computed meanwhile that the test relies on.
class InHost {
public:
    explicit InHost(const HostSettings& settings) {
        std::fegetenv(&before_);
        std::feclearexcept(FE_ALL_EXCEPT); // or it would be caught by its own past
        settings.set();
    }
    ~InHost() { std::fesetenv(&before_); }
    InHost(const InHost&) = delete;
    InHost& operator=(const InHost&) = delete;

private:
    std::fenv_t before_{};
};

} // namespace ansatz::test
