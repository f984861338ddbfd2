// A model's page: what a user, a document, a fit or a binding should know about a model, beside its law.
//
// Each page stands in the model's own file, under src/models/FAMILY/, as ANSATZ_PAGE(Row, .title = ..., ...),
// one per row of the catalogue. The libraries of calls and of batches leave the texts out; the library `pages`
// holds them.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <span>
#include <string>
#include <string_view>

namespace ansatz {

/// What part a parameter plays in its law. Start values, bounds, units and bindings follow from it. Behind
/// each: its dimension, in powers of x and of y.
enum class Trait : unsigned char {
    offset,        ///< y: added to everything, the baseline
    level,         ///< y: a plateau, an asymptote, or the response at some x
    ceiling,       ///< y: a level that is above 0 and is approached from below
    amplitude,     ///< y: how high a peak, a step or an exponential term is
    area,          ///< x y: under a peak
    slope,         ///< y/x
    coefficient,   ///< the factor of a term, with a dimension of its own
    position,      ///< x: a centre, a midpoint
    log_position,  ///< a position on an axis of logarithms, as of doses
    threshold,     ///< x: where a curve begins or has its pole
    width,         ///< x
    log_width,     ///< a width on an axis of logarithms
    time,          ///< x: over which an exponential changes by the factor e
    rate,          ///< 1/x: the inverse of a time
    half_point,    ///< x: where half of an effect is reached
    period,        ///< x: of a wave, or half of it
    base,          ///< the factor per unit of x
    exponent,      ///< a power, of either sign
    shape,         ///< a number above 0
    fraction,      ///< a number from 0 to 1
    phase,         ///< in radians
    angle,         ///< in radians
    correlation,   ///< from -1 to 1
    reference,     ///< x: a position that the user chooses and a fit holds
    response,      ///< y: at a reference position
    inverse_level, ///< 1/y
    log_level,     ///< the logarithm of a level
    constant,      ///< none of these, with a dimension of its own
};

/// As it is written above: "log_position".
std::string_view trait_name(Trait trait);

/// Powers of x (the first or only one), of y, and of x2. An x3 counts as x.
struct Dimension {
    double x = 0, y = 0, x2 = 0;
    friend constexpr bool operator==(const Dimension&, const Dimension&) = default;
};

constexpr Dimension dimension_of(Trait trait) {
    switch (trait) {
    case Trait::offset:
    case Trait::level:
    case Trait::ceiling:
    case Trait::amplitude:
    case Trait::response: return {.y = 1};
    case Trait::area: return {.x = 1, .y = 1};
    case Trait::slope: return {.x = -1, .y = 1};
    case Trait::position:
    case Trait::threshold:
    case Trait::width:
    case Trait::time:
    case Trait::half_point:
    case Trait::period:
    case Trait::reference: return {.x = 1};
    case Trait::rate: return {.x = -1};
    case Trait::inverse_level: return {.y = -1};
    default: return {};
    }
}

/// The values for which a law has a meaning. An open end is itself excluded.
struct Limits {
    double lower = -std::numeric_limits<double>::infinity();
    double upper = std::numeric_limits<double>::infinity();
    bool lower_open = false, upper_open = false;
    bool zero_excluded = false; ///< both signs, but not 0
};

constexpr Limits above(double bound) {
    return {.lower = bound, .lower_open = true};
}
constexpr Limits below(double bound) {
    return {.upper = bound, .upper_open = true};
}
constexpr Limits at_least(double bound) {
    return {.lower = bound};
}
constexpr Limits at_most(double bound) {
    return {.upper = bound};
}
/// From one to the other, both included.
constexpr Limits from_to(double lower, double upper) {
    return {.lower = lower, .upper = upper};
}
/// Between them, both excluded.
constexpr Limits between(double lower, double upper) {
    return {.lower = lower, .upper = upper, .lower_open = true, .upper_open = true};
}
inline constexpr Limits any_number = {};
inline constexpr Limits positive = above(0);
inline constexpr Limits not_negative = at_least(0);
inline constexpr Limits not_zero = {.zero_excluded = true};

struct Parameter {
    std::string_view symbol; ///< as in the formula
    std::string_view
        meaning; ///< with the unit where that is not obvious: "width, twice the standard deviation"
    Trait trait = Trait::constant;
    Limits limits = {};
    Dimension dimension = {};

    constexpr Parameter() = default;
    constexpr Parameter(std::string_view its_symbol, std::string_view its_meaning, Trait its_trait,
                        Limits its_limits = {})
        : symbol(its_symbol), meaning(its_meaning), trait(its_trait), limits(its_limits),
          dimension(dimension_of(its_trait)) {}
    constexpr Parameter(std::string_view its_symbol, std::string_view its_meaning, Trait its_trait,
                        Dimension its_dimension, Limits its_limits = {})
        : symbol(its_symbol), meaning(its_meaning), trait(its_trait), limits(its_limits),
          dimension(its_dimension) {}
};

/// A list with room for `most` entries, which a page holds within itself.
template <class T, std::size_t most> class List {
public:
    constexpr List() = default;
    constexpr List(std::initializer_list<T> entries) : size_(entries.size()) {
        std::copy(entries.begin(), entries.end(), entries_.begin()); // too many do not compile
    }
    constexpr const T* begin() const { return entries_.data(); }
    constexpr const T* end() const { return entries_.data() + size_; }
    constexpr std::size_t size() const { return size_; }
    constexpr bool empty() const { return size_ == 0; }
    constexpr const T& operator[](std::size_t i) const { return entries_[i]; }

private:
    std::array<T, most> entries_ = {};
    std::size_t size_ = 0;
};

/// Which slots a call with n parameters reads and writes. Blocks of `block` parameters (a peak, a term) follow
/// `lead` common ones, each `stride` after the one before; there are (n - skipped) / counted of them. Without a
/// block the model reads and writes the slots 1 .. lead whatever n is.
struct Layout {
    int lead = 0, block = 0;
    int stride = 0;   ///< from one block to the next; 0: block
    int skipped = -1; ///< parameters left out when the blocks are counted; -1: lead
    int counted = 0;  ///< how many parameters make a block when they are counted; 0: stride
    int least = 0;    ///< slots that are read and written even without a block, if more than lead

    constexpr int distance() const { return stride != 0 ? stride : block; }
    constexpr int blocks(int n) const {
        if (block == 0) return 0;
        return std::max(n - (skipped >= 0 ? skipped : lead), 0) / (counted != 0 ? counted : distance());
    }
    /// The last slot of params that is read and of dyda that is written.
    constexpr int slots(int n) const {
        const int count = blocks(n);
        return std::max(least, count == 0 ? lead : lead + distance() * (count - 1) + block);
    }
};

/// A derivative slot that does not hold the true derivative.
struct Departure {
    int slot;                    ///< of dyda; with several blocks, that of the first one
    std::string_view where = {}; ///< a condition, as "x = xc"; empty: everywhere
};

/// A parameter set and a range of x that show the character of the curve.
struct Typical {
    List<double, 24> parameters;
    double from = 0, to = 1;   ///< of x or x1
    double from2 = 0, to2 = 1; ///< of x2, and of x3
};

/// Along which axes a law keeps its form when the unit is changed.
enum class Scales : unsigned char { both, x_only, y_only, neither };

/// One row of the catalogue. Parameters are listed in slot order: first `parameters`, then `block` once per
/// peak or term.
struct Page {
    std::string_view title = {};   ///< one line: what it is
    std::string_view formula = {}; ///< in the grammar of formulas (CONTRIBUTING.md)
    bool reserved = false;         ///< the name is taken, nothing is computed
    int inputs = 0;                ///< number of x columns where the model reads more than its row says
    bool implicit = false;         ///< y[1] is a residual, fitted to zero: there is no y column
    bool paired = false;           ///< of two outputs over two inputs: y[i] depends on x[i] alone
    List<Parameter, 12> parameters = {};
    List<Parameter, 12> block = {};       ///< the repeated parameters, empty for a model of fixed size
    std::string_view block_name = "peak"; ///< what one block is
    int first_block = 1;                  ///< number in the symbols of the first block: 0 makes a0, a1, ...
    int most_blocks = 0;                  ///< 0 for no limit
    bool components = true;               ///< with a block: y[2], y[3], ... are the blocks' contributions
    Layout layout = {};                   ///< only where it is not what parameters and block say
    List<Limits, 3> x = {};               ///< where the law is defined, per x; no entry: everywhere
    Typical typical = {};
    Scales scales = Scales::both;
    List<Departure, 8> departures = {}; ///< derivatives that are not true ones
    bool true_derivatives = true;       ///< if not, a host takes differences in place of the model's own
    std::string_view same_as = {};      ///< the same curve in other parameters: "MicMent(Vm = a, Km = 1/b)"
    std::string_view known_as = {};     ///< other names that the field uses, separated by commas
    std::string_view source = {};       ///< author and year, where known
    std::string_view notes = {};        ///< where the model fails, and oddities

    std::string_view name = {};   ///< as in the catalogue
    std::string_view family = {}; ///< the folder that the model's file is in: "asymmetric_peaks"
    std::string_view file = {};   ///< that file, from the top folder
};

/// The layout that a page describes.
constexpr Layout layout_of(const Page& page) {
    const Layout& given = page.layout;
    if (given.lead != 0 || given.block != 0) return given;
    return {.lead = static_cast<int>(page.parameters.size()), .block = static_cast<int>(page.block.size())};
}

/// All pages, in the order of the catalogue.
std::span<const Page> pages();

/// The page of this name, in any mix of upper and lower case; null when there is none.
const Page* find_page(std::string_view name);

/// Do two names agree in any mix of upper and lower case?
bool same_name(std::string_view a, std::string_view b);

/// The formula as LaTeX, of what amsmath and the web have in common; empty for a reserved name.
std::string_view latex(const Page& page);

/// The families, as pages name them, in alphabetical order.
std::span<const std::string_view> families();

/// A family's title for readers: "asymmetric_peaks" becomes "Asymmetric peaks".
std::string family_title(std::string_view family);

} // namespace ansatz
