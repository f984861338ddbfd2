// The batch library: finds a model's loop, checks what the caller asks for, and shares the points among
// threads.

#include "catalogue/name.h"
#include "protocol/batch_loop.h"

#include <atomic>
#include <cerrno>
#include <system_error>
#include <thread>
#include <vector>

#define ROW(name, nIndep, nDep, nParams, routine, export, ordinal) ANSATZ_LOOPS(routine);
#define ROW_HIDDEN(name, nIndep, nDep, nParams, routine) ANSATZ_LOOPS(routine);
#define ROW_WINDOWS(name, nIndep, nDep, nParams, routine, ordinal) ANSATZ_LOOPS(routine);
#include "catalogue/models.inc"

struct AnsatzBatchModel {
    const char* name;
    int nParams;
    const ansatz::batch::Loops* loops;
};

namespace ansatz::batch {
namespace {

constexpr AnsatzBatchModel models[] = {
#define ROW(name, nIndep, nDep, nParams, routine, export, ordinal) {name, nParams, &ansatz_loops_##routine},
#define ROW_HIDDEN(name, nIndep, nDep, nParams, routine) {name, nParams, &ansatz_loops_##routine},
#define ROW_WINDOWS(name, nIndep, nDep, nParams, routine, ordinal) {name, nParams, &ansatz_loops_##routine},
#include "catalogue/models.inc"
};

/// How many derivative slots a model may write when it is given n parameters, where that is not simply the
/// larger of n and its catalogue count: base + block * ((n - skip) / count).
struct Slots {
    const char* name;
    int base, block = 0, skip = 0, count = 1;
};
constexpr Slots unusual[] = {
    // Expected-value models differentiate by their reference positions, which the catalogue does not count.
    {"LogarithmEVP", 2},
    {"Reciprocal0EVP", 2},
    {"ExponentEVP", 2},
    {"PowerEVP", 2},
    {"Reciprocal1EVP", 2},
    {"ParetoEVP", 2},
    {"Exponent2EVP", 2},
    {"Exponent3EVP", 2},
    {"Log2P1EVP", 3},
    {"Log2P2EVP", 4},
    {"BoxLucas1EVP", 3},
    {"Exp2PEVP", 4},
    {"FreundlichEVP", 4},
    {"HyperbolaEVP", 4},
    {"ReciprocalEVP", 4},
    {"Ratkowsky2P1EVP", 3},
    {"Ratkowsky2P2EVP", 3},
    {"Ratkowsky2P3EVP", 3},
    {"Freundlich3PEVP1", 4},
    {"Freundlich3PEVP2", 5},
    {"FreundlichEXTEVP", 4},
    {"BlNeldEVP", 5},
    {"HarrisEVP", 5},
    // The number of blocks is counted without regard to the offset.
    {"Polynomial2D", 1, 10, 0, 10},
    {"Chebyshev2D", 1, 5, 0, 5},
    {"Cosine", 1, 5, 0, 5},
    {"Extreme2D", 1, 5, 0, 5},
    {"LogisticCum", 1, 5, 0, 5},
    {"DoseResp", 1, 5, 0, 5},
    {"Power2D", 1, 5, 0, 5},
    {"Exponential2D", 1, 3, 0, 3},
    // Blocks are counted by threes and lie four apart; six long and five apart.
    {"Gaussian", 0, 4, 1, 3},
    {"Gaussian2D", 2, 5, 1, 5},
    // Never more than it is given, but always the first.
    {"PolyN", 1, 1, 1},
};

int slots_written(const AnsatzBatchModel& model, int n) {
    for (const Slots& u : unusual) {
        if (same_name(u.name, model.name)) return u.base + u.block * (std::max(n - u.skip, 0) / u.count);
    }
    return std::max(n, model.nParams);
}

bool makes_sense(const AnsatzBatch& b) {
    const bool derivatives = b.request == FF_DERIV;
    if (!derivatives && b.request != FF_VALUE) return false;
    if (b.nParams < 0 || b.nParams > most_params || (b.nParams > 0 && !b.params)) return false;
    if (b.nX < 1 || b.nX > 3) return false;
    if (b.nY < 0 || b.nY > most_params) return false;
    if (b.nPoints == 0) return true;
    for (int c = 0; c < b.nX; ++c) {
        if (!b.x[c]) return false;
    }
    return (b.nY == 0 || b.y) && (!derivatives || b.jacobian);
}

/// Points are handed out to threads in blocks: long enough to be worth a look at the common counter, short
/// enough that all end at about the same time.
constexpr std::ptrdiff_t block = 1024;

std::size_t run_on_threads(Loop loop, const Job& job, std::ptrdiff_t points, int threads) {
    std::atomic<std::ptrdiff_t> next = 0;
    std::atomic<std::size_t> failures = 0;
    const auto work = [&] {
        Job own = job;
        std::int32_t sink = 0; // threads must not write to one place, even if nobody reads it
        if (own.status_stride == 0) own.status = &sink;
        double unread = 0;
        if (own.outputs == 0) own.y = &unread;
        for (;;) {
            const std::ptrdiff_t first = next.fetch_add(block, std::memory_order_relaxed);
            if (first >= points) return;
            failures.fetch_add(loop(own, first, std::min(first + block, points)), std::memory_order_relaxed);
        }
    };
    std::vector<std::jthread> others;
    try {
        others.reserve(static_cast<std::size_t>(threads) - 1);
        for (int t = 1; t < threads; ++t) others.emplace_back(work);
    } catch (const std::exception&) {
        // Those that could be started and this one do it all the same.
    }
    work();
    others.clear();
    return failures;
}

/// Rows of the Jacobian that are too short for what the model writes are filled by way of one that is not.
std::size_t run_by_wide_row(Loop loop, Job job, std::ptrdiff_t points) {
    double wide[2 * most_params] = {};
    double* row = job.jacobian;
    const std::ptrdiff_t stride = job.jacobian_stride;
    job.jacobian = wide;
    job.jacobian_stride = 0;
    std::size_t failures = 0;
    for (std::ptrdiff_t i = 0; i < points; ++i, row += stride) {
        std::copy_n(row, job.n, wide);
        failures += loop(job, i, i + 1);
        std::copy_n(wide, job.n, row);
    }
    return failures;
}

} // namespace
} // namespace ansatz::batch

const AnsatzBatchModel* ANSATZ_CALL ansatz_batch_find(const char* name) {
    if (!name) return nullptr;
    for (const AnsatzBatchModel& model : ansatz::batch::models) {
        if (ansatz::same_name(model.name, name)) return &model;
    }
    return nullptr;
}

std::int64_t ANSATZ_CALL ansatz_batch_run(const AnsatzBatchModel* model, const AnsatzBatch* batch) {
    using namespace ansatz::batch;
    if (!model || !batch || !makes_sense(*batch)) return -1;
    const AnsatzBatch& b = *batch;
    const bool derivatives = b.request == FF_DERIV;
    static constexpr double zero = 0;
    double unread_y = 0;
    std::int32_t unread_status = 0;
    Job job{.n = b.nParams,
            .params = b.params,
            .x = {&zero, &zero, &zero},
            .x_stride = {0, 0, 0},
            .outputs = b.nY,
            .y = b.nY > 0 ? b.y : &unread_y,
            .y_stride = b.nY > 0 ? b.yStride : 0,
            .jacobian = b.jacobian,
            .jacobian_stride = b.jacobianStride,
            .status = b.status ? b.status : &unread_status,
            .status_stride = b.status ? 1 : 0};
    for (int c = 0; c < b.nX; ++c) {
        job.x[c] = b.x[c];
        job.x_stride[c] = b.xStride[c];
    }
    const Loop loop = derivatives ? model->loops->derivatives : model->loops->value;
    const auto points = static_cast<std::ptrdiff_t>(b.nPoints);
    const int threads = static_cast<int>(std::min<std::ptrdiff_t>((points + block - 1) / block, b.threads));

    const int indicator = errno;
    const std::size_t failures = derivatives && slots_written(*model, b.nParams) > b.nParams
                                     ? run_by_wide_row(loop, job, points)
                                 : threads > 1 ? run_on_threads(loop, job, points, threads)
                                               : loop(job, 0, points);
    errno = indicator;
    return static_cast<std::int64_t>(failures);
}
