#include "host_call.h"

namespace {

/// What the assembly below works on. It knows the offsets.
struct Work {
    const void* routine;        // 0
    const std::uint32_t* slots; // 4
    std::uint32_t gap;          // 8: bytes that the stack pointer goes down by before the slots
    std::uint32_t x87, sse;     // 12, 16: settings for the call
    std::int32_t status;        // 20
    std::int32_t moved;         // 24
    std::uint32_t lost;         // 28
    std::uint32_t x87_state[7]; // 32: control word, status word, tag word, ..
    std::uint32_t sse_after;    // 60
    std::uint32_t flags;        // 64
    std::uint32_t stack;        // 68: the stack pointer before the slots
    std::uint32_t own_x87[7];   // 72: what the test program has
    std::uint32_t own_sse;      // 100
    std::uint32_t own_stack;    // 104
};

Work work;

} // namespace

extern "C" void ansatz_test_call(Work*);

// The address of `work` itself is needed after the call, whatever the routine did to the registers: it is kept
// in memory.
asm(R"(
    .text
    .globl _ansatz_test_call
_ansatz_test_call:
    pushl %ebp
    pushl %ebx
    pushl %esi
    pushl %edi
    movl 20(%esp), %eax
    movl %eax, ansatz_test_work
    movl %esp, 104(%eax)
    fnstenv 72(%eax)
    stmxcsr 100(%eax)
    fninit
    fldcw 12(%eax)
    ldmxcsr 16(%eax)
    andl $-16, %esp
    subl 8(%eax), %esp
    movl %esp, 68(%eax)
    movl 4(%eax), %ecx
    pushl 36(%ecx)
    pushl 32(%ecx)
    pushl 28(%ecx)
    pushl 24(%ecx)
    pushl 20(%ecx)
    pushl 16(%ecx)
    pushl 12(%ecx)
    pushl 8(%ecx)
    pushl 4(%ecx)
    pushl 0(%ecx)
    movl $0x1234abcd, %ebx
    movl $0x2345abcd, %esi
    movl $0x3456abcd, %edi
    movl $0x4567abcd, %ebp
    movl $0x5678abcd, %edx
    call *(%eax)
    movl ansatz_test_work, %ecx
    movl %eax, 20(%ecx)
    movl %esp, %eax
    subl 68(%ecx), %eax
    movl %eax, 24(%ecx)
    movl $0, 28(%ecx)
    cmpl $0x1234abcd, %ebx
    je 1f
    incl 28(%ecx)
1:  cmpl $0x2345abcd, %esi
    je 2f
    incl 28(%ecx)
2:  cmpl $0x3456abcd, %edi
    je 3f
    incl 28(%ecx)
3:  cmpl $0x4567abcd, %ebp
    je 4f
    incl 28(%ecx)
4:  movl 104(%ecx), %esp
    pushfl
    popl 64(%ecx)
    cld
    stmxcsr 60(%ecx)
    fwait
    fnstenv 32(%ecx)
    fldenv 72(%ecx)
    ldmxcsr 100(%ecx)
    popl %edi
    popl %esi
    popl %ebx
    popl %ebp
    ret
    .lcomm ansatz_test_work, 4
)");

namespace ansatz::test {

AfterCall call_as_host(const void* routine, const Slots& slots, std::uint32_t misalignment,
                       const HostSettings& settings) {
    work = {};
    work.routine = routine;
    work.slots = slots.data();
    // At the entry the ten slots and the return address, 44 bytes, lie below the gap.
    work.gap = (32 - 44 % 16 - misalignment) % 16;
    work.x87 = settings.x87;
    work.sse = settings.sse;
    ansatz_test_call(&work);
    AfterCall after{};
    after.status = work.status;
    after.stack_moved = work.moved;
    after.lost = work.lost;
    for (unsigned i = 0; i < 8; ++i) after.x87_in_use += (work.x87_state[2] >> 2 * i & 3) != 3;
    after.x87_control = work.x87_state[0] & 0xffff;
    after.sse_control = work.sse_after;
    after.direction_set = work.flags & 0x400;
    return after;
}

} // namespace ansatz::test
