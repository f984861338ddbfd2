// Printing: aligned tables, and what every subcommand says about a model in JSON.
#pragma once

#include <ansatz/host/model.hpp>

#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace ansatz::tools {

using Json = nlohmann::ordered_json;

enum class Align { left, right };

/// Rows of cells under a header, columns padded to equal width and indented.
class TextTable {
public:
    explicit TextTable(std::vector<std::pair<std::string, Align>> columns) : columns_(std::move(columns)) {}
    void add(std::vector<std::string> cells) { rows_.push_back(std::move(cells)); }
    std::string text(std::string_view indent = "  ") const;

private:
    std::vector<std::pair<std::string, Align>> columns_;
    std::vector<std::vector<std::string>> rows_;
};

/// JSON in ASCII, so that no terminal takes a name in it for a command; bytes that are not UTF-8 become U+FFFD.
std::string json_text(const Json& json);

/// Name, family, dimensions, formula, parameters and notes.
Json describe_json(const host::Model& model);

/// "1 + 3 per peak", or the plain number.
std::string parameter_count(const host::Model& model);

} // namespace ansatz::tools
