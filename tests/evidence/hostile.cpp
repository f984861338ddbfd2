// Calls every model with whatever a host could pass by mistake - any doubles, any flags, any nParams that the
// buffers hold - and checks after every call that the model kept to its contract:
//
//   the status is one of those documented; parameters, x and every slot that is not the model's own keep their
//   bits; a request that computes nothing writes nothing; a value request writes no derivative; after a failure
//   the indicator is 0, except where the model's page says that it stays; the same call gives the same bits
//   whatever the outputs held before; no call takes long.
//
// Every array ends (or begins) right at a page without access, so one slot too far ends the program.
//
//   hostile CALLS [SEED]

#include "frame/golden.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <set>
#include <span>

namespace ansatz::test {
namespace {

/// xoshiro256+ by Blackman and Vigna: fast, and the same everywhere.
class Random {
public:
    explicit Random(std::uint64_t seed) {
        for (auto& word : state_) { // splitmix64
            std::uint64_t z = seed += 0x9e3779b97f4a7c15;
            z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
            z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
            word = z ^ (z >> 31);
        }
    }
    std::uint64_t bits() {
        auto& s = state_;
        const std::uint64_t result = s[0] + s[3], t = s[1] << 17;
        s[2] ^= s[0], s[3] ^= s[1], s[1] ^= s[2], s[0] ^= s[3], s[2] ^= t;
        s[3] = std::rotl(s[3], 45);
        return result;
    }
    int below(int n) { return static_cast<int>((bits() >> 32) * static_cast<std::uint64_t>(n) >> 32); }
    bool one_in(int n) { return below(n) == 0; }
    double uniform(double low, double high) {
        return low + (high - low) * std::ldexp(double(bits() >> 11), -53);
    }

private:
    std::array<std::uint64_t, 4> state_{};
};

constexpr double inf = std::numeric_limits<double>::infinity();
const double canaries[2] = {std::bit_cast<double>(std::uint64_t{0x7ffdeadbeefcafe0}),
                            std::bit_cast<double>(std::uint64_t{0x7ff5a5a5a5a5a5a5})};

/// Numbers at which formulas, guards and tests turn.
const double turning_points[] = {0.0,         -0.0,
                                 1,           -1,
                                 0.5,         2,
                                 3,           -2,
                                 1e-8,        0.1,
                                 10,          100,
                                 140,         141,
                                 171,         300,
                                 300.1,       -300,
                                 -300.1,      664,
                                 666,         709.7,
                                 709.8,       -745.2,
                                 1e4,         1e15,
                                 1e-160,      1e160,
                                 1e300,       -1e300,
                                 5e-324,      -5e-324,
                                 2.3e-308,    1.7e308,
                                 -1.7e308,    inf,
                                 -inf,        MISSING_VALUE,
                                 0x1p-52,     1 - 0x1p-53,
                                 1 + 0x1p-52, 0x1p31,
                                 -0x1p31,     0x1p63,
                                 4294967296.5};

double any_double(Random& random) {
    switch (random.below(8)) {
    case 0: return std::bit_cast<double>(random.bits());
    case 1: return std::numeric_limits<double>::quiet_NaN();
    case 2:
    case 3:
    case 4: return turning_points[random.below(std::size(turning_points))];
    case 5: return random.below(21) - 10;
    case 6: return std::ldexp(random.uniform(-1, 1), random.below(200) - 100);
    default: return random.uniform(-5, 5);
    }
}

/// Memory for one array between two pages without access.
class Fenced {
public:
    static constexpr std::size_t capacity = 33 * 4096 / sizeof(double) * 8; // 2^15 slots and some

    Fenced() {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        const std::size_t bytes = capacity * sizeof(double);
        char* const all =
            static_cast<char*>(mmap(nullptr, bytes + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
        if (all == MAP_FAILED || mprotect(all + page, bytes, PROT_READ | PROT_WRITE) != 0) std::abort();
        begin_ = reinterpret_cast<double*>(all + page);
    }

    /// An array of `length` slots addressed from 1, its last slot the last before a fence, or (`low`) its first
    /// slot the first after one, so that even its index 0 has none.
    double* from_1(int length, bool low) const { return low ? begin_ - 1 : begin_ + capacity - length - 1; }

private:
    double* begin_;
};

// The exceptions that models' pages state.

/// A parameter or an x outside the domain, or too few parameters, leaves the indicator as the caller had it.
const std::set<std::string> keep_indicator = {"Asymptotic1", "Asymptotic2", "Asymptotic3", "Asymptotic4",
                                              "Asymptotic5", "Asymptotic6", "Asymptotic7", "Goldman",
                                              "Laplace",     "LogistPK",    "Pareto2",     "Poisson",
                                              "Pulse",       "Pulse1",      "Rayleigh",    "Weibull"};

/// An overflow on the derivative path leaves it set.
const std::set<std::string> set_indicator = {"Shah"};

/// A pending domain error scales what dyda[4] held instead of marking it.
const std::set<std::string> scale_a_slot = {"SWeibull2"};

/// How a model whose size follows from nParams counts: (nParams - lead) / size blocks, the last parameter read
/// being number per blocks + plus. Most have whole blocks after an offset, {1, size, size, 1}; these are the
/// others.
struct Counting {
    const char* name;
    int lead, size, per, plus;
};
constexpr Counting uncommon[] = {
    {"Gaussian", 1, 3, 4, 0},         {"Gaussian2D", 1, 5, 5, 2},    {"Rational2D", 0, 10, 10, 0},
    {"RationalTaylor", 0, 10, 10, 0}, {"Chebyshev2D", 0, 5, 5, 1},   {"Cosine", 0, 5, 5, 1},
    {"Polynomial2D", 0, 10, 10, 1},   {"Power2D", 0, 5, 5, 1},       {"DoseResp", 0, 5, 5, 1},
    {"Extreme2D", 0, 5, 5, 1},        {"Exponential2D", 0, 3, 3, 1}, {"ExtremeCum", 0, 7, 7, 1},
    {"GaussCum", 0, 5, 5, 1},         {"GaussLog", 0, 5, 5, 1},      {"LogisticCum", 0, 5, 5, 1},
    {"LogNormal2D", 0, 7, 7, 1},      {"LogisticPeak", 0, 4, 4, 1}};

/// What a row may do: from its golden data, whose points have one and more blocks.
struct Contract {
    std::string name, form = "own", probe = "none", idle = "own";
    Model model;
    std::vector<const GoldenPoint*> points;
    int query = -1; ///< -1: not known
    bool surface = false, replicated = false;
    int parameters = 0, inputs = 0, outputs = 0;
    Counting counting{};

    int blocks(int n) const {
        return counting.size == 0 ? 0 : std::max(0, (n - counting.lead) / counting.size);
    }
    int slots(int n) const {
        return replicated ? std::max({parameters, n, counting.per * blocks(n) + counting.plus}) : parameters;
    }
    /// Slots of dyda. Lorentz marks a whole further block when the width that it tests is the last one
    /// supplied.
    int derivatives(int n) const { return std::max(slots(n), name == "Lorentz" ? 3 * blocks(n) + 4 : 0); }
    int results(int n) const { return std::max(outputs, counting.size == 0 ? 0 : 1 + blocks(n)); }
};

std::vector<Contract> contracts() {
    static std::vector<std::string> names;
    FuncTest(
        1, nullptr, [](std::uint32_t, const char* line) { names.emplace_back(line + 5); }, nullptr);
    std::vector<Contract> all;
    for (const std::string& name : names) {
        Contract& c = all.emplace_back();
        c.name = name;
        c.model = find(name);
        c.parameters = c.model.nParams;
        c.inputs = c.model.nIndep;
        c.outputs = c.model.nDep;
        std::set<std::pair<std::size_t, std::size_t>> shapes; // numbers of parameters and of results
        for (const GoldenRow& row : golden_rows()) {
            if (row.name != name) continue;
            c.form = row.form, c.probe = row.probe, c.idle = row.idle, c.query = row.query;
            for (const GoldenPoint& point : row.points) {
                c.points.push_back(&point);
                c.inputs = std::max(c.inputs, static_cast<int>(point.x.size()));
                shapes.emplace(point.P.size(), point.y.size());
            }
        }
        if (shapes.empty()) continue; // a reserved name: reads and writes nothing
        const auto [few, first] = *shapes.begin();
        const auto [many, last] = *shapes.rbegin();
        const int size = first == last ? 0 : static_cast<int>((many - few) / (last - first));
        c.replicated = size != 0 || name == "PolyN";
        c.counting = {"", 1, size, size, 1};
        for (const Counting& other : uncommon) {
            if (name == other.name) c.counting = other;
        }
        if (!c.replicated) {
            c.parameters = std::max(c.parameters, static_cast<int>(many));
            c.outputs = std::max(c.outputs, static_cast<int>(first));
        }
        c.surface =
            c.model.nIndep == 2 && c.model.nDep == 1 && name != "Ellipse" && name != "Circle" && name != "Cole";
    }
    return all;
}

/// One call, with everything that it may see and change.
class Siege {
public:
    explicit Siege(std::uint64_t seed) : random_(seed) {}

    void attack(const Contract& c) {
        c_ = &c;
        draw();
        perform(canaries[0]);
        check();
        if (!random_.one_in(4) || scale_a_slot.contains(c.name)) return;
        const std::vector<double> y = y_now_, d = d_now_; // the same call, the outputs holding something else
        const int status = status_, indicator = indicator_;
        perform(canaries[1]);
        const auto same = [](double before, double now) {
            return same_bits(before, canaries[0]) ? same_bits(now, canaries[1]) : same_bits(before, now);
        };
        demand(status == status_ && indicator == indicator_ && std::ranges::equal(y, y_now_, same) &&
                   std::ranges::equal(d, d_now_, same),
               "depends on what the outputs held");
    }

    std::size_t violations() const { return seen_.size(); }
    void report() const {
        std::printf("the slowest call took %.0f microseconds, of %s with nParams = %d\n", 1e6 * slowest_,
                    slowest_name_.c_str(), slowest_n_);
    }

private:
    void draw() {
        const Contract& c = *c_;
        const GoldenPoint* point =
            c.points.empty() ? nullptr
                             : c.points[static_cast<std::size_t>(random_.below(int(c.points.size())))];
        n_ = static_cast<std::int16_t>(random_.bits());
        if (c.replicated) {
            const int kind = random_.below(40000);
            if (kind == 0)
                n_ = std::abs(n_ == -32768 ? 0 : n_);
            else if (kind < 4000)
                n_ = -std::abs(n_);
            else if (kind < 16000)
                n_ = random_.below(40) - 4;
            else
                n_ = static_cast<int>(point->P.size());
        }
        flags_ = random_.one_in(3) ? static_cast<unsigned>(random_.bits())
                                   : 2u * static_cast<unsigned>(1 + random_.below(3));
        entry_ =
            random_.one_in(8) ? std::array{ERANGE, EDOM, EINTR}[static_cast<std::size_t>(random_.below(3))] : 0;
        low_ = random_.bits();
        P_given_.resize(static_cast<std::size_t>(c.slots(n_)));
        x_given_.resize(static_cast<std::size_t>(c.inputs));
        const auto fill = [&](std::vector<double>& to, const std::vector<double>* from, int strange) {
            for (std::size_t k = 0; k < to.size(); ++k) {
                const bool wild = !from || random_.below(8) < strange;
                const double v = from ? (*from)[k % from->size()] : 0;
                to[k] = wild ? any_double(random_) : v * (strange == 0 ? random_.uniform(0.9, 1.1) : 1);
            }
        };
        const int strange = std::array{0, 1, 1, 4, 8}[static_cast<std::size_t>(random_.below(5))];
        fill(P_given_, point ? &point->P : nullptr, strange);
        fill(x_given_, point ? &point->x : nullptr, strange);
        if (random_.one_in(8) && !P_given_.empty()) { // equal inputs: at a centre, at a reference position
            const double p = P_given_[static_cast<std::size_t>(random_.below(int(P_given_.size())))];
            if (random_.one_in(2))
                x_given_[0] = p;
            else
                P_given_[static_cast<std::size_t>(random_.below(int(P_given_.size())))] = p;
        }
    }

    void perform(double canary) {
        const Contract& c = *c_;
        const int slots = static_cast<int>(P_given_.size()), results = c.results(n_),
                  derivatives = c.derivatives(n_);
        const bool probes = c.probe != "none";
        const auto low = [&](int bit) { return (low_ >> bit & 1) != 0; };
        double* const P = P_.from_1(slots, low(0));
        double* const x = x_.from_1(c.inputs, low(1));
        double* const y = y_.from_1(results, low(2));
        double* const d = d_.from_1(derivatives, low(3) && !probes);
        std::ranges::copy(P_given_, P + 1);
        std::ranges::copy(x_given_, x + 1);
        std::fill_n(y + 1, results, canary);
        std::fill_n(d + 1, derivatives, canary);
        for (double* const array : {low(0) ? nullptr : P, low(1) ? nullptr : x, low(2) ? nullptr : y,
                                    low(3) && !probes ? nullptr : d}) {
            if (array) array[0] = canary;
        }
        const auto n =
            static_cast<std::int32_t>((random_.bits() & 0x7fff0000u) | (static_cast<unsigned>(n_) & 0xffffu));
        const auto noise = static_cast<std::uint32_t>(random_.bits());
        const auto started = std::chrono::steady_clock::now();
        errno = entry_;
        status_ = c.model.function(flags_, noise, n, noise, ~noise, P, noise, x, y, d);
        indicator_ = errno;
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();

        y_now_.assign(y + 1, y + 1 + results);
        d_now_.assign(d + 1, d + 1 + derivatives);
        canary_ = canary;
        probed_ = probes && flags_ & FF_PROBE;
        demand(std::equal(P_given_.begin(), P_given_.end(), P + 1, same_bits), "changed a parameter");
        x_marked_ = x_changed_ = false;
        for (std::size_t k = 0; k < x_given_.size(); ++k) {
            if (same_bits(x[k + 1], x_given_[k])) continue;
            (k == 1 && x[2] == MISSING_VALUE ? x_marked_ : x_changed_) = true;
        }
        demand((low(0) || same_bits(P[0], canary)) && (low(1) || same_bits(x[0], canary)) &&
                   (low(2) || same_bits(y[0], canary)),
               "wrote an index 0");
        if (!(low(3) && !probes)) {
            const auto now = std::bit_cast<std::uint64_t>(d[0]), before = std::bit_cast<std::uint64_t>(canary);
            demand(probed_ ? now >> 32 == before >> 32 : now == before, "wrote dyda[0]");
        }
        if (seconds > slowest_) time_again(P, x, y, d, seconds);
    }

    /// A call may have been interrupted: the least of three further ones counts.
    void time_again(const double* P, double* x, double* y, double* d, double seconds) {
        for (int k = 0; k < 3; ++k) {
            std::ranges::copy(x_given_, x + 1);
            const auto started = std::chrono::steady_clock::now();
            errno = entry_;
            c_->model.function(flags_, 0, n_, 0, 0, P, 0, x, y, d);
            const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - started;
            seconds = std::min(seconds, taken.count());
        }
        if (seconds <= slowest_) return;
        slowest_ = seconds;
        slowest_name_ = c_->name;
        slowest_n_ = n_;
        demand(seconds < 0.05, "took longer than 50 ms");
    }

    bool untouched(const std::vector<double>& outputs) const {
        return std::ranges::all_of(outputs, [&](double v) { return same_bits(v, canary_); });
    }

    void check() {
        const Contract& c = *c_;
        const bool silent = untouched(y_now_) && untouched(d_now_) && !x_marked_;
        demand(!x_changed_ && (!x_marked_ || (c.surface && status_ == failure)), "changed x");
        demand(indicator_ == 0 || indicator_ == entry_ || indicator_ == ERANGE || indicator_ == EDOM,
               "set an unknown indicator");
        const int byte = static_cast<int>(flags_ & 0xff);
        if (probed_) {
            demand(status_ == (c.probe == "plain" ? 0 + PROBE_ANSWER : 0 + PROBE_MASK_ANSWER), "probe: status");
            demand(silent && indicator_ == entry_, "probe: left a trace");
        } else if (flags_ & FF_QUERY_DERIV) {
            demand(c.query < 0 ? status_ == 0 || status_ == 1 : status_ == c.query, "query: status");
            demand(silent && indicator_ == entry_, "query: left a trace");
        } else if (!(flags_ & (FF_VALUE | FF_DERIV)) && c.idle != "own") {
            demand(status_ == (c.idle == "flags" ? byte : c.idle == "one" ? 1 : 0), "idle: status");
            demand(silent && indicator_ == entry_, "idle: left a trace");
        } else {
            demand(status_ == 0 || status_ == 1 || (c.idle == "own" && !(flags_ & 6) && status_ == byte),
                   "status");
            const bool value_only =
                !(flags_ & FF_DERIV) || (flags_ & FF_VALUE && c.form != "both" && c.form != "own");
            demand(!value_only || untouched(d_now_), "wrote a derivative on a value request");
            demand(c.query >= 0 || silent, "a reserved name wrote something");
            const bool refused = c.form == "refuse" && !(flags_ & FF_VALUE);
            if (status_ == failure && c.query >= 0 && !refused)
                demand(indicator_ == 0 || (indicator_ == entry_ && keep_indicator.contains(c.name)) ||
                           set_indicator.contains(c.name),
                       "left the indicator set after a failure");
        }
    }

    /// Reports the first violation of each kind by a model, with the call that shows it.
    void demand(bool kept, const char* what) {
        if (kept || !seen_.emplace(c_->name, what).second) return;
        std::printf("%s: %s: status %d, errno %d -> %d, flags %u, nParams %d, P", c_->name.c_str(), what,
                    status_, entry_, indicator_, flags_ & 0xff, n_);
        for (std::size_t k = 0; k < std::min<std::size_t>(P_given_.size(), 24); ++k)
            std::printf(" %.17g", P_given_[k]);
        std::printf(" x");
        for (const double v : x_given_) std::printf(" %.17g", v);
        std::printf("\n");
    }

    static constexpr int failure = 1;
    Random random_;
    Fenced P_, x_, y_, d_;
    const Contract* c_ = nullptr;
    int n_ = 0, entry_ = 0, status_ = 0, indicator_ = 0;
    unsigned flags_ = 0;
    std::uint64_t low_ = 0;
    std::vector<double> P_given_, x_given_, y_now_, d_now_;
    double canary_ = 0;
    bool probed_ = false, x_marked_ = false, x_changed_ = false;
    std::set<std::pair<std::string, std::string>> seen_;
    double slowest_ = 0;
    std::string slowest_name_;
    int slowest_n_ = 0;
};

int run(long long calls, std::uint64_t seed) {
    const std::vector<Contract> rows = contracts();
    Siege siege(seed);
    for (long long k = 0; k < calls; ++k) {
        if (k % 4096 == 0) alarm(60); // a call that never ends
        siege.attack(rows[static_cast<std::size_t>(k) % rows.size()]);
    }
    std::printf("%lld calls of %zu models from seed %llu: %zu violations; ", calls, rows.size(),
                static_cast<unsigned long long>(seed), siege.violations());
    siege.report();
    return siege.violations() == 0 ? 0 : 1;
}

} // namespace
} // namespace ansatz::test

int main(int argc, char** argv) {
    const long long calls = argc > 1 ? std::atoll(argv[1]) : 1000000;
    return ansatz::test::run(calls, argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1);
}
