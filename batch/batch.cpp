// The batch library: finds a model's loop, checks what the caller asks for, and shares the points among
// threads.

#include "build/entry.h"
#include "catalogue/name.h"
#include "protocol/host_arithmetic.h"

#include <atomic>
#include <cerrno>
#include <system_error>
#include <thread>
#include <vector>

#define ENTRY(name, nIndep, nDep, nParams, routine)                                                            \
    ANSATZ_LOOPS(routine);                                                                                     \
    ANSATZ_LAYOUT(name);
#include "catalogue/models.inc"

struct AnsatzBatchModel {
    const char* name;
    const ansatz::Layout* layout;
    const ansatz::batch::Loops* loops;
};

namespace ansatz::batch {
namespace {

constexpr AnsatzBatchModel models[] = {
#define ENTRY(name, nIndep, nDep, nParams, routine) {#name, &ansatz_layout_##name, &ansatz_loops_##routine},
#include "catalogue/models.inc"
};

bool makes_sense(const AnsatzBatch& b) {
    const bool derivatives = b.request == FF_DERIV;
    if (!derivatives && b.request != FF_VALUE) return false;
    for (const std::uint64_t asked_for : b.reserved) {
        if (asked_for != 0) return false;
    }
    if (b.nParams < 0 || b.nParams > most_params || (b.nParams > 0 && !b.params)) return false;
    if (b.nX < 1 || b.nX > 3) return false;
    if (b.nY < 0 || b.nY > most_params) return false;
    if (b.nPoints == 0) return true;
    if (b.nPoints > PTRDIFF_MAX) return false;
    for (int c = 0; c < b.nX; ++c) {
        if (!b.x[c]) return false;
    }
    return (b.nY == 0 || b.y) && (!derivatives || b.jacobian);
}

/// Points are worked off in blocks: long enough to be worth a look at a common counter, short enough that all
/// threads end at about the same time.
constexpr std::ptrdiff_t block = 512;
constexpr int most_threads = 64;

/// The share of the points that a thread begins with. In fits the same columns come again and again: each
/// thread finds its own part still in its core's cache.
struct alignas(64) Share {
    std::atomic<std::ptrdiff_t> next = 0;
    std::ptrdiff_t end = 0;
};

std::size_t run_on_threads(Loop loop, const Job& job, std::ptrdiff_t points, int threads) {
    Share shares[most_threads];
    for (int t = 0; t < threads; ++t) {
        shares[t].next = points / threads * t;
        shares[t].end = t + 1 < threads ? points / threads * (t + 1) : points;
    }
    std::atomic<std::size_t> failures = 0;
    const auto work = [&](int own_share) {
        Job own = job;
        std::int32_t sink = 0; // threads must not write to one place, even if nobody reads it
        if (own.status_stride == 0) own.status = &sink;
        double unread = 0;
        if (own.outputs == 0) own.y = &unread;
        std::size_t failed = 0;
        for (int k = 0; k < threads; ++k) { // the own share, then what others have left
            Share& share = shares[(own_share + k) % threads];
            for (;;) {
                const std::ptrdiff_t first = share.next.fetch_add(block, std::memory_order_relaxed);
                if (first >= share.end) break;
                failed += loop(own, first, std::min(first + block, share.end));
            }
        }
        failures.fetch_add(failed, std::memory_order_relaxed);
    };
    std::vector<std::jthread> others;
    try {
        others.reserve(static_cast<std::size_t>(threads) - 1);
        for (int t = 1; t < threads; ++t) others.emplace_back(work, t);
    } catch (const std::exception&) {
        // Those that could be started and this one do it all the same.
    }
    work(0);
    others.clear();
    return failures;
}

/// Rows of the Jacobian that are too short for what the model writes are filled by way of one that is not.
std::size_t run_by_wide_row(Loop loop, Job job, std::ptrdiff_t points) {
    double wide[most_slots] = {};
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
        if (ansatz::equal_ignoring_case(model.name, name)) return &model;
    }
    return nullptr;
}

std::int64_t ANSATZ_CALL ansatz_batch_run(const AnsatzBatchModel* model, const AnsatzBatch* batch) {
    using namespace ansatz::batch;
    if (!model || !batch || !makes_sense(*batch)) return -1;
    const AnsatzBatch& b = *batch;
    if (b.nPoints == 0) return 0; // there may be no columns to point into
    const bool derivatives = b.request == FF_DERIV;
    static constexpr double zero = 0;
    double unread_y = 0;
    std::int32_t unread_status = 0;
    const int slots = model->layout->slots(b.nParams);
    if (slots > most_slots) return -1;
    Job job{.n = b.nParams,
            .slots = std::max(slots, b.nParams),
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
    const int threads =
        static_cast<int>(std::min<std::ptrdiff_t>({(points - 1) / block + 1, b.threads, most_threads}));

    const int indicator = errno;
    const ansatz::BatchArithmetic own_arithmetic; // threads inherit it
    const std::size_t failures = derivatives && slots > b.nParams ? run_by_wide_row(loop, job, points)
                                 : threads > 1                    ? run_on_threads(loop, job, points, threads)
                                                                  : loop(job, 0, points);
    errno = indicator;
    return static_cast<std::int64_t>(failures);
}
