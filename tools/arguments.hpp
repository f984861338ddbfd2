// What the command's arguments mean: lists of numbers, x tuples, values by parameter name.
#pragma once

#include <ansatz/host/model.hpp>

#include <Eigen/Core>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ansatz::tools {

/// Rewrites arguments so that a list may contain blanks and negative numbers: the values after --start and its
/// like are attached to the option, `--start -1 2` becoming `--start=-1,2`, before they can be taken for
/// options. Values of --x stay apart: each is one point.
std::vector<std::string> attach_lists(const std::vector<std::string>& arguments);

/// One entry of a list such as "450", "w=8" or "P1".
struct Item {
    std::string name;            ///< empty for a plain number
    std::optional<double> value; ///< none for a plain name
};

/// The entries of comma-, semicolon- or blank-separated lists. Throws host::Error, naming the option.
std::vector<Item> parse_items(const std::vector<std::string>& lists, std::string_view option);

/// Parameter values given as plain numbers in slot order, or all by name. `also` may hold further values by
/// name; they replace those given, and need not be given where all are by name.
std::vector<double> parameter_values(const host::Model& model, const std::vector<Item>& items,
                                     const std::vector<Item>& also, std::string_view option);

/// The points of --x as rows: with one input every number is a point, with more every argument is.
Eigen::MatrixXd parse_points(const host::Model& model, const std::vector<std::string>& arguments);

/// Words separated by commas.
std::vector<std::string> split_words(const std::vector<std::string>& lists);

} // namespace ansatz::tools
