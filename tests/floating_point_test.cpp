// A library compiled for a processor with fused multiply-add computes the same bits as the plain one: formulas
// are evaluated as they are written.

#include "frame/golden.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace ansatz::test {
namespace {

TEST(FloatingPoint, ABuildForFusedMultiplyAddComputesTheSameBits) {
    if (!__builtin_cpu_supports("fma") || !__builtin_cpu_supports("avx2"))
        GTEST_SKIP() << "this processor has none";
    void* const library = dlopen(ANSATZ_FMA_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    ASSERT_TRUE(library) << dlerror();
    const auto find_fused = reinterpret_cast<FitFunction (*)(const char*)>(dlsym(library, "get_funx"));
    for (const GoldenRow& row : golden_rows()) {
        const Model plain = find(row.name);
        Model fused = plain;
        fused.function = find_fused(row.name.c_str());
        ASSERT_NE(fused.function, plain.function);
        for (const GoldenPoint& point : row.points) {
            for (const unsigned flags : {0u + FF_VALUE, 0u + FF_DERIV}) {
                const Request request{flags, static_cast<int>(point.P.size()), point.P, point.x};
                const Outcome a = call(plain, request), b = call(fused, request);
                EXPECT_TRUE(std::equal(a.y.begin(), a.y.end(), b.y.begin(), same_bits)) << row.name;
                EXPECT_TRUE(std::equal(a.dyda.begin(), a.dyda.end(), b.dyda.begin(), same_bits)) << row.name;
            }
        }
    }
}

} // namespace
} // namespace ansatz::test
