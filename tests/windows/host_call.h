// A call as a host's compiler makes it: ten 32-bit slots on a stack that is aligned to 4 bytes and no more.
#pragma once

#include <array>
#include <cstdint>

namespace ansatz::test {

using Slots = std::array<std::uint32_t, 10>;

/// What the processor looked like after the call.
struct AfterCall {
    std::int32_t status;
    std::int32_t stack_moved;    ///< bytes by which the stack pointer is off from before the slots were pushed
    std::uint32_t lost;          ///< of ebx, esi, edi and ebp, how many were not restored
    std::uint32_t x87_in_use;    ///< registers of the x87 unit that are not empty
    std::uint32_t x87_control;   ///< its control word
    std::uint32_t sse_control;   ///< the control and status word of the SSE unit
    std::uint32_t direction_set; ///< not 0 where string instructions would run backwards
};

/// Floating-point settings of a host.
struct HostSettings {
    const char* name;
    std::uint16_t x87 = 0x37f;
    std::uint32_t sse = 0x1f80;
};

/// Calls a routine under these settings, with the stack pointer `misalignment` (0, 4, 8 or 12) bytes above a
/// multiple of 16 at its entry.
AfterCall call_as_host(const void* routine, const Slots& slots, std::uint32_t misalignment,
                       const HostSettings& settings);

} // namespace ansatz::test
