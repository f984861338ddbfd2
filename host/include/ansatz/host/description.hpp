// What a user should know about a model beyond its dimensions: its formula and the meaning of its parameters.
//
// There is one entry per model, in one file per family under host/descriptions. A model without an entry works
// everywhere; its parameters are then called P1..Pn.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ansatz::host {

/// Is a parameter estimated, or is it a reference position? Expected-value models are written in terms of the
/// response expected at some x, which the user chooses: a fit holds that x fixed unless told otherwise.
enum class Role { estimated, reference };

struct ParameterText {
    std::string_view symbol; ///< as in the formula
    std::string_view
        meaning; ///< with the unit where that is not obvious: "width, twice the standard deviation"
    Role role = Role::estimated;
};

/// One model. Parameters are listed in slot order: first `parameters`, then `block` once per peak or term.
struct Description {
    std::string_view name;    ///< as in the catalogue
    std::string_view formula; ///< written as docs/formulas.md says
    std::vector<ParameterText> parameters = {};
    std::vector<ParameterText> block = {}; ///< the repeated parameters, empty for a model of fixed size
    std::string_view block_name = "peak";  ///< what one block is
    int first_block = 1;                   ///< number in the symbols of the first block: 0 makes a0, a1, ...
    int most_blocks = 0;                   ///< 0 for no limit
    bool components = true;                ///< with a block: y[2], y[3], ... are the blocks' contributions
    bool implicit = false;                 ///< y[1] is a residual, fitted to zero: there is no y column
    bool paired = false;                   ///< of two outputs over two inputs: y[i] depends on x[i] alone
    int inputs = 0;                        ///< number of x columns where the model reads more than its row says
    bool reserved = false;                 ///< the name is taken, nothing is computed
    bool true_derivatives = true;          ///< if not, the host takes differences in place of the model's own
    std::string_view notes = {};           ///< where the model fails, and oddities
};

struct Family {
    std::string_view title; ///< "Peaks"
    std::vector<Description> models;
};

/// All descriptions, by family.
std::span<const Family> families();

/// The description of this name in any mix of upper and lower case, with its family's title.
struct Described {
    const Description* text = nullptr; ///< null when there is none
    std::string_view family = "Not described yet";
};
Described describe(std::string_view name);

} // namespace ansatz::host
