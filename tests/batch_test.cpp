// Whole columns through the batch library: the numbers of single calls, bit for bit, where the caller wants
// them.

#include "frame/golden.h"
#include "frame/listed.h"

#include <ansatz/batch.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <cmath>
#include <csignal>
#include <cstdlib>
#include <sys/mman.h>

#ifdef __x86_64__
#include "frame/host_settings.h"
#endif

namespace ansatz::test {
namespace {

constexpr double untouched = 12345.678; // what outputs hold before a call

/// The points of a test, all with one set of parameters.
struct Points {
    std::vector<double> P;              // from 0
    std::vector<std::vector<double>> x; // columns
    std::size_t size() const { return x[0].size(); }
};

struct Results {
    std::int64_t failures = 0;
    std::vector<double> y, jacobian; // points x outputs, points x parameters
    std::vector<std::int32_t> status;
};

/// What single calls give, arranged as the batch promises it.
Results singly(const Model& model, const Points& points, unsigned request, int outputs) {
    const std::size_t N = points.size(), n = points.P.size();
    Results results;
    std::vector<double> P(2 * n + slots, 0.0), x(slots), y(2 * n + slots), dyda(2 * n + slots);
    std::copy(points.P.begin(), points.P.end(), P.begin() + 1);
    for (std::size_t i = 0; i < N; ++i) {
        std::fill(x.begin(), x.end(), 0.0);
        for (std::size_t c = 0; c < points.x.size(); ++c) x[c + 1] = points.x[c][i];
        std::fill(y.begin(), y.end(), 0.0);
        std::fill(dyda.begin(), dyda.end(), untouched);
        errno = 0;
        const std::int32_t status =
            model.function(request, 0, static_cast<int>(n), 0, 0, P.data(), 0, x.data(), y.data(), dyda.data());
        if (status != 0) {
            ++results.failures;
            if (same_bits(x[2], MISSING_VALUE)) y[1] = MISSING_VALUE;
        }
        results.status.push_back(status);
        results.y.insert(results.y.end(), y.begin() + 1, y.begin() + 1 + outputs);
        results.jacobian.insert(results.jacobian.end(), dyda.begin() + 1,
                                dyda.begin() + 1 + static_cast<std::ptrdiff_t>(n));
    }
    return results;
}

/// A batch over these points that has nowhere to write yet.
AnsatzBatch batch_of(const Points& points, unsigned request) {
    AnsatzBatch batch = {};
    batch.request = request;
    batch.nParams = static_cast<int>(points.P.size());
    batch.params = points.P.data();
    batch.nPoints = points.size();
    batch.nX = static_cast<int>(points.x.size());
    for (std::size_t c = 0; c < points.x.size(); ++c) {
        batch.x[c] = points.x[c].data();
        batch.xStride[c] = 1;
    }
    batch.jacobianStride = batch.nParams;
    return batch;
}

Results together(const std::string& name, const Points& points, unsigned request, int outputs, int threads) {
    const std::size_t N = points.size(), n = points.P.size();
    Results results;
    constexpr std::size_t guard = 8; // nothing may be written after the last row
    results.y.assign(N * static_cast<std::size_t>(outputs) + guard, untouched);
    results.jacobian.assign(N * n + guard, untouched);
    results.status.assign(N, -1);
    AnsatzBatch batch = batch_of(points, request);
    batch.nY = outputs;
    batch.y = results.y.data();
    batch.yStride = outputs;
    batch.jacobian = results.jacobian.data();
    batch.status = results.status.data();
    batch.threads = threads;
    results.failures = ansatz_batch_run(ansatz_batch_find(name.c_str()), &batch);
    for (std::size_t k = 1; k <= guard; ++k) {
        EXPECT_EQ(results.y[results.y.size() - k], untouched);
        EXPECT_EQ(results.jacobian[results.jacobian.size() - k], untouched);
    }
    results.y.resize(results.y.size() - guard);
    results.jacobian.resize(results.jacobian.size() - guard);
    return results;
}

/// The same bits; of two that are not a number it does not matter which.
bool alike(double a, double b) {
    return same_bits(a, b) || (std::isnan(a) && std::isnan(b));
}

void expect_alike(const Results& one, const Results& other) {
    EXPECT_EQ(one.failures, other.failures);
    EXPECT_EQ(one.status, other.status);
    EXPECT_TRUE(std::equal(one.y.begin(), one.y.end(), other.y.begin(), other.y.end(), alike));
    EXPECT_TRUE(std::equal(one.jacobian.begin(), one.jacobian.end(), other.jacobian.begin(),
                           other.jacobian.end(), alike));
}

TEST(Batch, HasTheBitsOfSingleCallsForEveryRow) {
    std::int64_t failures = 0, points_seen = 0;
    for (const GoldenRow& row : golden_rows()) {
        const Model model = find(row.name);
        Points points{.P = {}, .x = columns_of(row)};
        for (const auto& P : parameters_of(row)) {
            points.P = P;
            for (const unsigned request : {0u + FF_VALUE, 0u + FF_DERIV}) {
                for (const int outputs : {1, static_cast<int>(P.size()) + 1}) {
                    SCOPED_TRACE(row.name + " request " + std::to_string(request));
                    const Results expected = singly(model, points, request, outputs);
                    expect_alike(together(row.name, points, request, outputs, 1), expected);
                    failures += expected.failures;
                    points_seen += static_cast<std::int64_t>(points.size());
                }
            }
        }
    }
    EXPECT_GT(failures, points_seen / 20) << "the points hardly test failures";
    EXPECT_LT(failures, points_seen / 2) << "the points hardly test successes";
}

/// With fewer parameters than a model uses, or a number that its blocks do not come out to, a row holds what
/// fits and its neighbours are left alone; what the model reads beyond is 0.
TEST(Batch, KeepsToTheRowsOfTheJacobian) {
    for (const GoldenRow& row : golden_rows()) {
        const Model model = find(row.name);
        Points points{.P = {}, .x = columns_of(row)};
        const std::vector<double> all = row.points.back().P;
        for (std::size_t n = 0; n <= all.size() + 7; ++n) {
            points.P = all;
            points.P.resize(n, 0.75);
            for (const unsigned request : {0u + FF_VALUE, 0u + FF_DERIV}) {
                SCOPED_TRACE(row.name + " with " + std::to_string(n) + " parameters");
                expect_alike(together(row.name, points, request, 1, 1), singly(model, points, request, 1));
            }
        }
    }
}

/// Batches of as many parameters as there may be, and single calls of a few more.
TEST(Batch, TakesTheMostParameters) {
    for (const GoldenRow& row : golden_rows()) {
        const Model model = find(row.name);
        Points points{.P = row.points.back().P, .x = columns_of(row)};
        for (auto& column : points.x) column.resize(2);
        for (std::size_t n = 500; n <= ANSATZ_BATCH_MOST_PARAMS + 1; ++n) {
            points.P.resize(n, 0.75);
            for (const unsigned request : {0u + FF_VALUE, 0u + FF_DERIV}) {
                SCOPED_TRACE(row.name + " with " + std::to_string(n) + " parameters");
                const Results expected = singly(model, points, request, 1);
                if (n <= ANSATZ_BATCH_MOST_PARAMS)
                    expect_alike(together(row.name, points, request, 1, 1), expected);
                else
                    EXPECT_EQ(together(row.name, points, request, 1, 1).failures, -1);
            }
        }
    }
}

TEST(Batch, AnswersForTheReservedRows) {
    const Points points{.P = {1, 2, 3, 4}, .x = {{1, 2, 3}}};
    const Results succeeds = together("Prunty", points, FF_DERIV, 1, 1);
    EXPECT_EQ(succeeds.failures, 0);
    EXPECT_EQ(succeeds.y, (std::vector<double>{0, 0, 0}));
    EXPECT_EQ(succeeds.jacobian, std::vector<double>(12, untouched));
    EXPECT_EQ(together("ChapmanEVP1", points, FF_VALUE, 1, 1).failures, 3);
}

TEST(Batch, FindsEveryNameInAnyCase) {
    EXPECT_TRUE(ansatz_batch_find("gAUSS2d"));
    EXPECT_EQ(ansatz_batch_find("GAUSS"), ansatz_batch_find("Gauss"));
    EXPECT_FALSE(ansatz_batch_find("Gaus"));
    EXPECT_FALSE(ansatz_batch_find(""));
    EXPECT_FALSE(ansatz_batch_find(nullptr));
    const auto line = [](std::uint32_t, const char* text) {
        EXPECT_TRUE(ansatz_batch_find(text + 5)) << text; // "type NAME"
    };
    EXPECT_GE(FuncTest(1, nullptr, line, nullptr), std::ssize(listed().rows));
}

TEST(Batch, ReadsAndWritesWithStrides) {
    // Points as a table of rows (weight, x2, x1), read backwards; rows of the Jacobian in a wider matrix; y in
    // a table with a column of the caller's own.
    constexpr int N = 5, n = 6, wide = n + 3;
    const double P[n + 1] = {0, 0.5, 2.0, 0.3, 1.2, -0.4, 0.9}; // of Gauss2D, from 1
    double table[N][3], y[N][2], jacobian[N][wide];
    for (int i = 0; i < N; ++i) {
        table[i][0] = 1;
        table[i][1] = 0.1 * i;
        table[i][2] = 0.3 * i - 0.5;
        y[i][0] = y[i][1] = untouched;
        for (double& d : jacobian[i]) d = untouched;
    }
    AnsatzBatch batch = {};
    batch.request = FF_DERIV;
    batch.nParams = n;
    batch.params = P + 1;
    batch.nPoints = N;
    batch.nX = 2;
    batch.x[0] = &table[N - 1][2];
    batch.x[1] = &table[N - 1][1];
    batch.xStride[0] = batch.xStride[1] = -3;
    batch.nY = 1;
    batch.y = &y[0][1];
    batch.yStride = 2;
    batch.jacobian = &jacobian[0][2];
    batch.jacobianStride = wide;
    ASSERT_EQ(ansatz_batch_run(ansatz_batch_find("Gauss2D"), &batch), 0);

    const Model model = find("Gauss2D");
    for (int i = 0; i < N; ++i) {
        double x[3] = {0, table[N - 1 - i][2], table[N - 1 - i][1]}, value[4], dyda[n + 1];
        errno = 0;
        ASSERT_EQ(model.function(FF_DERIV, 0, n, 0, 0, P, 0, x, value, dyda), 0);
        EXPECT_EQ(y[i][0], untouched);
        EXPECT_EQ(y[i][1], value[1]);
        for (int k = 0; k < n; ++k) EXPECT_EQ(jacobian[i][2 + k], dyda[k + 1]);
        for (const int beside : {0, 1, wide - 1}) EXPECT_EQ(jacobian[i][beside], untouched);
    }
}

TEST(Batch, GivesTheSameOnSeveralThreads) {
    constexpr std::size_t N = 20011;                // blocks that do not come out even
    Points points{.P = {2.0, 1.5, 2.5}, .x = {{}}}; // of Hill, which fails for x < 0
    for (std::size_t i = 0; i < N; ++i)
        points.x[0].push_back(i % 7 == 3 ? -1.0 : 0.001 * static_cast<double>(i));
    const Results expected = singly(find("Hill"), points, FF_DERIV, 1);
    EXPECT_EQ(expected.failures, 2859);
    for (const int threads : {0, 1, 2, 3, 64}) {
        SCOPED_TRACE(threads);
        expect_alike(together("Hill", points, FF_DERIV, 1, threads), expected);
    }
}

TEST(Batch, LeavesTheCallersIndicatorAlone) {
    const Points points{.P = {1, 0, 1, 5}, .x = {{-1e5, 0, 1}}}; // the exponential overflows
    for (const int indicator : {0, ERANGE, EDOM, EINTR}) {
        errno = indicator;
        const Results results = together("ExpGrow1", points, FF_VALUE, 1, 1);
        EXPECT_EQ(errno, indicator);
        EXPECT_EQ(results.failures, 0);
    }
    const Points failing{.P = {1, 0, 1, 5}, .x = {{1e5, 0, 1}}};
    errno = EINTR;
    EXPECT_EQ(together("ExpGrow1", failing, FF_VALUE, 1, 2).failures, 1);
    EXPECT_EQ(errno, EINTR);
}

TEST(Batch, RefusesWhatMakesNoSense) {
    const double P[2] = {1, 2}, x[1] = {3};
    double y[1] = {untouched}, jacobian[2] = {untouched, untouched};
    AnsatzBatch good = {};
    good.request = FF_DERIV;
    good.nParams = 2;
    good.params = P;
    good.nPoints = 1;
    good.nX = 1;
    good.x[0] = x;
    good.nY = 1;
    good.y = y;
    good.jacobian = jacobian;
    const AnsatzBatchModel* line = ansatz_batch_find("Line");
    const auto refused = [&](auto spoil) {
        AnsatzBatch batch = good;
        spoil(batch);
        const bool minus_one = ansatz_batch_run(line, &batch) == -1;
        return minus_one && y[0] == untouched && jacobian[0] == untouched && jacobian[1] == untouched;
    };
    EXPECT_EQ(ansatz_batch_run(nullptr, &good), -1);
    EXPECT_EQ(ansatz_batch_run(line, nullptr), -1);
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.request = 0; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.request = FF_VALUE | FF_DERIV; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.request = FF_QUERY_DERIV; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.nParams = -1; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.nParams = ANSATZ_BATCH_MOST_PARAMS + 1; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.params = nullptr; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.nX = 0; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.nX = 2; })); // the second column is missing
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.nX = 4; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.nPoints = std::size_t{PTRDIFF_MAX} + 1; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.x[0] = nullptr; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.nY = -1; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.y = nullptr; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.jacobian = nullptr; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.reserved[0] = 1; }));
    EXPECT_TRUE(refused([](AnsatzBatch& b) { b.reserved[7] = std::uint64_t{1} << 63; }));
    EXPECT_EQ(ansatz_batch_run(line, &good), 0);
    EXPECT_EQ(y[0], 7);
    EXPECT_EQ(jacobian[1], 3);

    AnsatzBatch nothing = {}; // to do is no error
    nothing.nX = 1;
    for (const unsigned request : {0u + FF_VALUE, 0u + FF_DERIV}) {
        nothing.request = request;
        nothing.threads = 2;
        EXPECT_EQ(ansatz_batch_run(line, &nothing), 0);
        EXPECT_EQ(ansatz_batch_run(ansatz_batch_find("PolyN"), &nothing), 0); // by way of wide rows
    }
    nothing.nX = 4;
    EXPECT_EQ(ansatz_batch_run(line, &nothing), -1);
}

#ifdef __x86_64__
TEST(Batch, DoesNotDependOnTheHostsArithmetic) {
    const auto check = [](const std::string& name, const Points& points, int threads) {
        for (const unsigned request : {0u + FF_VALUE, 0u + FF_DERIV}) {
            const Results expected = singly(find(name), points, request, 1);
            for (const HostSettings& settings : host_settings) {
                SCOPED_TRACE(name + " where the host " + settings.name);
                Results results;
                bool unchanged = false;
                {
                    const InHost host(settings);
                    const auto before = current_settings();
                    results = together(name, points, request, 1, threads);
                    unchanged = current_settings() == before;
                }
                EXPECT_TRUE(unchanged);
                expect_alike(results, expected);
            }
        }
    };
    for (const GoldenRow& row : golden_rows()) {
        for (const auto& P : parameters_of(row)) check(row.name, {.P = P, .x = columns_of(row)}, 1);
    }
    Points many{.P = {0.1, 1.3, 2.1, 0.7}, .x = {{}}};
    for (int i = 0; i < 3000; ++i) many.x[0].push_back(0.001 * i);
    check("Gauss", many, 3);
}
#endif

/// A batch whose Jacobian lies on locked pages, one row on each, and the batches that the handler of the faults
/// runs.
struct Interruption {
    static constexpr std::size_t page = 4096, pages = 6, doubles = page / sizeof(double);
    double* jacobian = nullptr;
    std::vector<std::pair<const AnsatzBatchModel*, AnsatzBatch>> others;
    int count = 0;

    void lock(int protection) const { mprotect(jacobian, page * pages, protection); }

    void interrupt(void* at) {
        const auto first = reinterpret_cast<std::uintptr_t>(jacobian),
                   byte = reinterpret_cast<std::uintptr_t>(at);
        if (byte - first >= page * pages) std::abort(); // some other fault
        mprotect(jacobian + (byte - first) / page * doubles, page, PROT_READ | PROT_WRITE);
        for (const auto& [model, batch] : others) ansatz_batch_run(model, &batch);
        ++count;
    }
};
Interruption interruption;

TEST(Batch, MayBeRunByASignalHandlerInTheMidstOfAPoint) {
    constexpr std::size_t N = Interruption::pages, wide = Interruption::doubles;
    interruption.jacobian = static_cast<double*>(
        mmap(nullptr, N * Interruption::page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(interruption.jacobian, MAP_FAILED);
    // One that keeps quantities of its parameters, and one that leaves an error behind.
    const Points peak{.P = {0.5, 1, 7, 3, 2.5}, .x = {{-1, 0.5, 2}}}, rehearsal{.P = {1, 2, 1}, .x = {{1}}};
    double unread[15];
    for (const auto& [name, points] : {std::pair("PearsonVII", &peak), std::pair("errtest", &rehearsal)}) {
        interruption.others.emplace_back(ansatz_batch_find(name), batch_of(*points, FF_DERIV));
        interruption.others.back().second.jacobian = unread;
    }
    struct sigaction handler = {}, usual = {};
    handler.sa_sigaction = [](int, siginfo_t* info, void*) { interruption.interrupt(info->si_addr); };
    handler.sa_flags = SA_SIGINFO;

    for (const GoldenRow& row : golden_rows()) {
        if (!row.derivatives) continue;
        SCOPED_TRACE(row.name);
        Points points{.P = row.points.front().P, .x = columns_of(row)};
        for (auto& column : points.x) // golden ones, and some that may fail
            column.erase(column.begin() + 2, column.end() - static_cast<std::ptrdiff_t>(N - 2));
        const std::size_t n = points.P.size();
        const Results undisturbed = together(row.name, points, FF_DERIV, 1, 1);

        Results results;
        results.y.resize(N);
        results.status.resize(N);
        AnsatzBatch batch = batch_of(points, FF_DERIV);
        batch.nY = 1;
        batch.yStride = 1;
        batch.y = results.y.data();
        batch.status = results.status.data();
        batch.jacobian = interruption.jacobian;
        batch.jacobianStride = wide;
        interruption.lock(PROT_READ | PROT_WRITE);
        std::fill_n(interruption.jacobian, N * wide, untouched);
        interruption.lock(PROT_NONE);
        interruption.count = 0;
        sigaction(SIGSEGV, &handler, &usual);
        results.failures = ansatz_batch_run(ansatz_batch_find(row.name.c_str()), &batch);
        sigaction(SIGSEGV, &usual, nullptr);
        interruption.lock(PROT_READ);
        for (std::size_t i = 0; i < N; ++i)
            results.jacobian.insert(results.jacobian.end(), batch.jacobian + i * wide,
                                    batch.jacobian + i * wide + n);
        EXPECT_GT(interruption.count, 0);
        expect_alike(results, undisturbed);
    }
    munmap(interruption.jacobian, N * Interruption::page);
}

TEST(Batch, NeedsNeitherValuesNorStatuses) {
    const double P[2] = {1, 2}, x[2] = {3, 4};
    double jacobian[4];
    AnsatzBatch batch = {};
    batch.request = FF_DERIV;
    batch.nParams = 2;
    batch.params = P;
    batch.nPoints = 2;
    batch.nX = 1;
    batch.x[0] = x;
    batch.xStride[0] = 1;
    batch.jacobian = jacobian;
    batch.jacobianStride = 2;
    EXPECT_EQ(ansatz_batch_run(ansatz_batch_find("Line"), &batch), 0);
    EXPECT_EQ(jacobian[3], 4);
}

} // namespace
} // namespace ansatz::test

// The threads that are started, counted; the first `startable` of them can be.
#include <dlfcn.h>
#include <pthread.h>

static int started = 0, startable = 1000;

extern "C" int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*routine)(void*),
                              void* argument) noexcept {
    if (started >= startable) return EAGAIN;
    ++started;
    static const auto create = reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
    return create(thread, attributes, routine, argument);
}

namespace ansatz::test {

TEST(Batch, StartsAsManyThreadsAsAreWantedAndOfUse) {
    const struct {
        std::size_t points;
        int threads, startable, started;
    } cases[] = {{50000, 4, 99, 3}, {50000, 1000, 99, 63}, {50000, 1, 99, 0}, {50000, -1, 99, 0},
                 {10, 4, 99, 0},    {50000, 4, 1, 1},      {50000, 4, 0, 0}};
    for (const auto& [points, threads, can, expected] : cases) {
        Points all{.P = {1, 2}, .x = {std::vector<double>(points, 3.0)}};
        started = 0, startable = can;
        const Results results = together("Line", all, FF_DERIV, 1, threads);
        EXPECT_EQ(started, expected) << threads << " threads for " << points;
        EXPECT_EQ(results.y, std::vector<double>(points, 7)) << threads << " threads for " << points;
    }
    // Rows with room for all that the model writes, and more parameters than it takes.
    const std::vector<double> column(50000, 2.0);
    started = 0, startable = 1000;
    together("Gaussian2D", {.P = {1, 5, 2, 1.2, 1.8, 0.5, 0.6, 0, 0, 0}, .x = {column, column}}, FF_DERIV, 1,
             4);
    EXPECT_EQ(started, 3);
}

TEST(Batch, NeedsNoParametersAndRefusesAFourthColumn) {
    const double one = 1;
    double y = 0;
    AnsatzBatch batch = {};
    batch.request = FF_VALUE;
    batch.nPoints = 1;
    batch.nX = 1;
    batch.x[0] = batch.x[1] = batch.x[2] = &one;
    batch.xStride[0] = 1;
    batch.nY = 1;
    batch.y = &y;
    EXPECT_EQ(ansatz_batch_run(ansatz_batch_find("Line"), &batch), 0);
    batch.nX = 4;
    EXPECT_EQ(ansatz_batch_run(ansatz_batch_find("Line"), &batch), -1);
}

} // namespace ansatz::test
