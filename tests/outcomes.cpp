// Two builds of the library side by side: one writes down what it answers to many calls, the other has to
// answer the same.
//
//   outcomes write FILE      calls every row and writes each call and its outcome
//   outcomes compare FILE    makes the calls of the file: same status, same error indicator, same slots
//   written, the
//                            same values to 4 ulp
//
// Where a formula cancels, one ulp in a function of the C library is worth many in the value, and no two
// libraries can agree to 4. So the writing build measures the noise of its own value, and four times that is
// allowed.
//
// One line per call: name, flags, nParams, indicator, parameters, x; status, indicator, and each slot written
// with its value and noise. Numbers are written as their bits.

#include "frame/golden.h"
#include "frame/listed.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <limits>
#include <random>
#include <sstream>

namespace ansatz::test {
namespace {

constexpr int spare = 4; // parameters filled in after nParams: some models read references there

std::string bits(double v) {
    char text[20];
    std::snprintf(text, sizeof text, "%llx", std::bit_cast<unsigned long long>(v));
    return text;
}

double from_bits(const std::string& text) {
    return std::bit_cast<double>(std::stoull(text, nullptr, 16));
}

/// Calls of one row: its golden points, random points of two kinds, and points at the limits of its domain.
class Requests {
public:
    explicit Requests(const Model& model) : model_(model), random_(7) {}

    std::vector<Request> all(const GoldenRow* golden) {
        if (golden) {
            for (const GoldenPoint& point : golden->points)
                add(static_cast<int>(point.P.size()), point.P, point.x);
        }
        for (int i = 0; i < 12; ++i) add_random([this] { return between(0.1, 3); });
        for (int i = 0; i < 12; ++i) add_random([this] { return between(-4, 4); });
        for (int i = 0; i < 40; ++i) add_random([this] { return odd(); });
        return std::move(requests_);
    }

private:
    template <class Draw> void add_random(const Draw& draw) {
        std::vector<double> P(static_cast<std::size_t>(model_.nParams + spare)),
            x(static_cast<std::size_t>(model_.nIndep));
        std::generate(P.begin(), P.end(), draw);
        std::generate(x.begin(), x.end(), draw);
        add(model_.nParams, P, x);
    }

    void add(int n, const std::vector<double>& P, const std::vector<double>& x) {
        for (const unsigned flags : {0u + FF_VALUE, 0u + FF_DERIV, 0u + (FF_VALUE | FF_DERIV)}) {
            requests_.push_back({flags, n, P, x, 0});
        }
        if (requests_.size() % 4 == 3)
            requests_.push_back({0u + FF_DERIV, n, P, x, static_cast<int>(33 + random_() % 2)});
        for (const unsigned flags : {0u, 0u + FF_QUERY_DERIV, 0u + FF_PROBE})
            requests_.push_back({flags, n, P, x, 0});
    }

    /// The distributions of the standard differ from library to library; the generator does not.
    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(random_() >> 11) * 0x1p-53;
    }

    double odd() {
        constexpr double inf = std::numeric_limits<double>::infinity();
        static const double values[] = {
            0,      -0.0,   1,     -1,   0.5,   2,    3,      -2,
            10,     1e-5,   -1e-5, 1e3,  -1e3,  1e10, 1e-300, 1e300,
            -1e300, 5e-324, 700,   -745, 1e-16, inf,  -inf,   std::numeric_limits<double>::quiet_NaN()};
        const auto which = random_() % (2 * std::size(values));
        return which < std::size(values) ? values[which] : between(0.1, 3);
    }

    const Model& model_;
    std::mt19937_64 random_;
    std::vector<Request> requests_;
};

/// How far the values of a call scatter from a straight line when all inputs move a little along it, up and
/// down: on so short a way every formula is straight, and what is left is rounding. The largest of a few such
/// directions.
std::map<std::string, double> noise(const Model& model, const Request& request, const Outcome& outcome) {
    std::map<std::string, double> noise;
    std::minstd_rand random(1);
    for (const double step :
         {0x1p-31, 0x1.5p-32, 0x1.3p-32, 0x1.9p-33, 0x1.bp-33, 0x1.1p-34, 0x1.7p-34, 0x1.fp-35}) {
        Request up = request, down = request;
        for (auto list : {&Request::P, &Request::x}) {
            for (std::size_t i = 0; i < (request.*list).size(); ++i) {
                const double way = (request.*list)[i] * step * (random() % 2 ? 1 : -1);
                (up.*list)[i] += way;
                (down.*list)[i] -= way;
            }
        }
        const Outcome above = call(model, up), below = call(model, down);
        for (const auto& [slot, v] : outcome.written) {
            const auto a = above.written.find(slot), b = below.written.find(slot);
            if (a == above.written.end() || b == below.written.end()) continue;
            const double bend = std::fabs((a->second - v) - (v - b->second));
            if (bend <= 1e-6 * std::fabs(v)) noise[slot] = std::max(noise[slot], bend);
        }
    }
    return noise;
}

int write(const char* path) {
    std::ofstream out(path);
    for (const ListedRow& row : listed().rows) {
        const Model model = find(row.name);
        const auto& rows = golden_rows();
        const auto golden =
            std::find_if(rows.begin(), rows.end(), [&](const auto& g) { return g.name == row.name; });
        for (const Request& request : Requests(model).all(golden == rows.end() ? nullptr : &*golden)) {
            const Outcome outcome = call(model, request);
            out << row.name << ' ' << request.flags << ' ' << request.nParams << ' ' << request.indicator << ' '
                << request.P.size();
            for (const double p : request.P) out << ' ' << bits(p);
            out << ' ' << request.x.size();
            for (const double x : request.x) out << ' ' << bits(x);
            out << ' ' << outcome.status << ' ' << outcome.indicator;
            std::map<std::string, double> scatter;
            if (outcome.status == 0) scatter = noise(model, request, outcome);
            for (const auto& [slot, v] : outcome.written)
                out << ' ' << slot << ' ' << bits(v) << ' ' << bits(scatter[slot]);
            out << '\n';
        }
    }
    return out.flush() ? 0 : 1;
}

std::vector<double> read_list(std::istringstream& line) {
    std::size_t count = 0;
    line >> count;
    std::vector<double> list(count);
    std::string word;
    for (double& v : list) {
        line >> word;
        v = from_bits(word);
    }
    return list;
}

enum class Agreement { to_4_ulp, within_noise, none };

Agreement agreement(double got, double want, double noise) {
    const auto exactly = [](bool yes) { return yes ? Agreement::to_4_ulp : Agreement::none; };
    if (std::isnan(want)) return exactly(std::isnan(got));
    if (want == MISSING_VALUE || want == 0 || std::isinf(want)) return exactly(got == want);
    const double off = std::fabs(got - want);
    if (off <= 4 * std::numeric_limits<double>::epsilon() * std::fabs(want)) return Agreement::to_4_ulp;
    return off <= noise ? Agreement::within_noise : Agreement::none;
}

/// What differs, in words; empty where nothing does. Counts the values that agree within their noise only.
std::string difference(const Outcome& got, std::istringstream& want, long& noisy) {
    std::ostringstream text;
    text.precision(17);
    int status = 0, indicator = 0;
    want >> status >> indicator;
    if (got.status != status) text << " status " << got.status << ", not " << status << ';';
    if (got.indicator != indicator) text << " indicator " << got.indicator << ", not " << indicator << ';';
    std::map<std::string, double> rest = got.written;
    for (std::string slot, value, scatter; want >> slot >> value >> scatter;) {
        const double v = from_bits(value);
        const auto found = rest.find(slot);
        if (found == rest.end()) {
            text << ' ' << slot << " not written, there " << v << ';';
            continue;
        }
        const Agreement agreed = agreement(found->second, v, from_bits(scatter));
        if (agreed == Agreement::none) text << ' ' << slot << " = " << found->second << ", not " << v << ';';
        noisy += agreed == Agreement::within_noise;
        rest.erase(found);
    }
    for (const auto& [slot, v] : rest) text << ' ' << slot << " = " << v << ", there not written;";
    return text.str();
}

int compare(const char* path) {
    std::ifstream in(path);
    long calls = 0, different = 0, noisy = 0;
    for (std::string text; std::getline(in, text); ++calls) {
        std::istringstream line(text);
        std::string name;
        Request request;
        line >> name >> request.flags >> request.nParams >> request.indicator;
        request.P = read_list(line);
        request.x = read_list(line);
        const std::string words = difference(call(find(name), request), line, noisy);
        if (words.empty()) continue;
        ++different;
        std::printf("%s, flags %u, nParams %d, P", name.c_str(), request.flags, request.nParams);
        for (const double p : request.P) std::printf(" %.17g", p);
        std::printf(", x");
        for (const double x : request.x) std::printf(" %.17g", x);
        std::printf(":%s\n", words.c_str());
    }
    std::printf("%ld calls compared, %ld differ; %ld values agree within their noise, all others to 4 ulp\n",
                calls, different, noisy);
    return calls > 0 && different == 0 ? 0 : 1;
}

} // namespace
} // namespace ansatz::test

int main(int argc, char** argv) {
    if (argc == 3 && std::strcmp(argv[1], "write") == 0) return ansatz::test::write(argv[2]);
    if (argc == 3 && std::strcmp(argv[1], "compare") == 0) return ansatz::test::compare(argv[2]);
    std::fprintf(stderr, "usage: outcomes write|compare FILE\n");
    return 2;
}
