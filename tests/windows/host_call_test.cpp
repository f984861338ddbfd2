// Every model called as existing hosts call it: rubbish in the bytes that nothing may read, a stack aligned to
// 4 bytes, and the floating-point settings of many hosts. The answers have to be the same, the processor as
// before.

#include "host_call.h"

#include "frame/call.h"
#include "frame/dll.h"
#include "frame/golden.h"
#include "frame/listed.h"

#include <gtest/gtest.h>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <cerrno>
#include <limits>

namespace ansatz::test {
namespace {

std::uint32_t address(const void* p) {
    return reinterpret_cast<std::uint32_t>(p);
}

constexpr HostSettings plain = {"as the compiler sets it up"};
constexpr HostSettings hosts[] = {
    {"53 bits, as every thread starts", 0x27f, 0x1f80},
    {"24 bits", 0x7f, 0x1f80},
    {"exceptions at overflow, division by zero, invalid operations", 0x1372, 0x1900},
    {"exceptions at everything", 0x340, 0x0000},
    {"53 bits, exceptions at everything", 0x240, 0x0000},
    {"rounding up", 0xb7f, 0x5f80},
    {"rounding to zero, 24 bits", 0xc7f, 0x7f80},
    {"subnormals flushed to zero", 0x37f, 0x9fc0},
};

struct Answer {
    AfterCall after{};
    int indicator = 0;
    std::array<double, slots> x{}, y{}, dyda{};
};

Answer ask(FitFunction function, const Request& request, std::uint32_t misalignment,
           const HostSettings& settings) {
    std::array<double, slots> P;
    Answer answer;
    P.fill(poison);
    answer.x.fill(poison);
    answer.y.fill(canary);
    answer.dyda.fill(canary);
    std::copy(request.P.begin(), request.P.end(), P.begin() + 1);
    std::copy(request.x.begin(), request.x.end(), answer.x.begin() + 1);
    const auto n = static_cast<std::uint32_t>(request.nParams) & 0xffff;
    errno = request.indicator;
    answer.after = call_as_host(reinterpret_cast<const void*>(function),
                                {request.flags | 0xbadf0000 | 0x5a00, 0xdeadbeef, n | 0x7eef0000, 0xdeadbeef,
                                 0xdeadbeef, address(P.data()), 0xdeadbeef, address(answer.x.data()),
                                 address(answer.y.data()), address(answer.dyda.data())},
                                misalignment, settings);
    answer.indicator = errno;
    return answer;
}

void expect_processor_as_before(const AfterCall& after, const HostSettings& settings) {
    EXPECT_EQ(after.stack_moved, 0);
    EXPECT_EQ(after.lost, 0u);
    EXPECT_EQ(after.x87_in_use, 0u);
    EXPECT_EQ(after.x87_control, settings.x87 | 0x40u); // a bit that is always set
    EXPECT_EQ(after.sse_control & ~0x3fu, settings.sse & ~0x3fu);
    EXPECT_EQ(after.direction_set, 0u);
}

void expect_same(const Answer& answer, const Answer& want) {
    EXPECT_EQ(answer.after.status, want.after.status);
    EXPECT_EQ(answer.indicator, want.indicator);
    EXPECT_TRUE(std::equal(answer.x.begin(), answer.x.end(), want.x.begin(), same_bits));
    EXPECT_TRUE(std::equal(answer.y.begin(), answer.y.end(), want.y.begin(), same_bits));
    EXPECT_TRUE(std::equal(answer.dyda.begin(), answer.dyda.end(), want.dyda.begin(), same_bits));
}

/// The golden points of every model, and points at which most models overflow, leave their domain or divide by
/// zero.
template <class Check> void for_each_request(const Check& check) {
    for (const GoldenRow& row : golden_rows()) {
        const FitFunction function = find(row.name).function;
        std::vector<Request> requests;
        for (const GoldenPoint& point : row.points) {
            const int n = static_cast<int>(point.P.size());
            for (const unsigned flags : {0u + FF_VALUE, 0u + FF_DERIV, 0u + FF_QUERY_DERIV, 0u + FF_PROBE}) {
                requests.push_back({flags, n, point.P, point.x});
            }
        }
        const GoldenPoint& first = row.points.at(0);
        const int n = static_cast<int>(first.P.size());
        for (const double odd :
             {0.0, -1.0, 1e3, -1e3, 1e200, -1e200, 1e-200, std::numeric_limits<double>::infinity()}) {
            for (const unsigned flags : {0u + FF_VALUE, 0u + FF_DERIV}) {
                requests.push_back({flags, n, std::vector<double>(first.P.size(), odd), first.x});
                requests.push_back({flags, n, first.P, std::vector<double>(first.x.size(), odd)});
            }
        }
        for (const Request& request : requests) {
            SCOPED_TRACE(row.name + ", flags " + std::to_string(request.flags) + ", P1 " +
                         std::to_string(request.P.at(0)) + ", x " + std::to_string(request.x.at(0)));
            check(function, request);
        }
    }
}

TEST(HostCall, UnusedBytesAreNotReadAndTheProcessorIsLeftAsItWas) {
    for_each_request([](FitFunction function, const Request& request) {
        const Outcome want = call({function, 0, 0, 0}, request);
        const Answer answer = ask(function, request, 0, plain);
        expect_processor_as_before(answer.after, plain);
        EXPECT_EQ(answer.after.status, want.status);
        EXPECT_EQ(answer.indicator, want.indicator);
        EXPECT_TRUE(std::equal(answer.y.begin(), answer.y.end(), want.y.begin(), same_bits));
        EXPECT_TRUE(std::equal(answer.dyda.begin(), answer.dyda.end(), want.dyda.begin(), same_bits));
    });
}

TEST(HostCall, AnyAlignmentOfTheStackWillDo) {
    for_each_request([](FitFunction function, const Request& request) {
        const Answer want = ask(function, request, 0, plain);
        for (const std::uint32_t misalignment : {4u, 8u, 12u}) {
            const Answer answer = ask(function, request, misalignment, plain);
            expect_processor_as_before(answer.after, plain);
            expect_same(answer, want);
        }
    });
}

class HostCallUnder : public testing::TestWithParam<HostSettings> {};

TEST_P(HostCallUnder, SettingsOfTheHostDoNotReachTheModel) {
    for_each_request([](FitFunction function, const Request& request) {
        const Answer want = ask(function, request, 0, plain);
        const Answer answer = ask(function, request, 4, GetParam());
        expect_processor_as_before(answer.after, GetParam());
        expect_same(answer, want);
    });
}

INSTANTIATE_TEST_SUITE_P(Hosts, HostCallUnder, testing::ValuesIn(hosts), [](const auto& host) {
    std::string name = host.param.name;
    std::replace_if(
        name.begin(), name.end(), [](char c) { return c == ' ' || c == ','; }, '_');
    return name;
});

std::vector<std::string> received;

LRESULT CALLBACK keep_line(HWND window, UINT message, WPARAM first, LPARAM last) {
    if (message != 1024) return DefWindowProcA(window, message, first, last);
    EXPECT_EQ(first, 0u);
    received.emplace_back(reinterpret_cast<const char*>(last));
    return 0;
}

void ANSATZ_CALL not_called(std::uint32_t, const char*) {
    ADD_FAILURE() << "the window has precedence";
}

TEST(TestCommand, SendsItsLinesToAWindow) {
    WNDCLASSA description = {};
    description.lpfnWndProc = keep_line;
    description.lpszClassName = "ansatz_test";
    ASSERT_TRUE(RegisterClassA(&description));
    const HWND window =
        CreateWindowA("ansatz_test", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ASSERT_TRUE(window) << GetLastError();
    const std::int32_t count = FuncTest(1, window, not_called, nullptr);
    EXPECT_EQ(count, std::ssize(received));
    EXPECT_GE(received.size(), listed().rows.size());
    EXPECT_EQ(received.at(0), "type Shah");
    DestroyWindow(window);
}

} // namespace
} // namespace ansatz::test
