#include <ansatz/host/table.hpp>

#include <ansatz/host/model.hpp>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <iostream>
#include <optional>

namespace ansatz::host {
namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blank = " \t\r\n";
    const auto first = text.find_first_not_of(blank);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blank) - first + 1);
}

/// The line up to a # outside quotes.
std::string_view without_comment(std::string_view line) {
    bool quoted = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == '"') quoted = !quoted;
        if (line[i] == '#' && !quoted) return line.substr(0, i);
    }
    return line;
}

char find_separator(std::string_view line) {
    for (const char candidate : {';', '\t', ','}) {
        bool quoted = false;
        for (const char c : line) {
            if (c == '"') quoted = !quoted;
            if (c == candidate && !quoted) return candidate;
        }
    }
    return ' ';
}

struct Cells {
    std::vector<std::string> texts;
    bool quoted = false; ///< any of them
};

/// Splits a line; a doubled quote inside quotes stands for one.
Cells split(std::string_view line, char separator) {
    Cells cells;
    std::string cell;
    bool inside = false, was_quoted = false;
    const auto finish = [&] {
        cells.texts.emplace_back(was_quoted ? std::string_view(cell) : trimmed(cell));
        cell.clear();
        was_quoted = false;
    };
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (c == '"') {
            if (inside && i + 1 < line.size() && line[i + 1] == '"') {
                cell += line[++i];
                continue;
            }
            if (!inside) cell = trimmed(cell);
            inside = !inside;
            was_quoted = cells.quoted = true;
        } else if (!inside && separator == ' ' && (c == ' ' || c == '\t')) {
            if (!cell.empty() || was_quoted) finish();
        } else if (!inside && c == separator) {
            finish();
        } else if (inside || !was_quoted) {
            cell += c;
        }
    }
    if (separator != ' ' || !cell.empty() || was_quoted) finish();
    return cells;
}

/// A cell's number, with a decimal comma where commas do not separate.
std::optional<double> number(std::string_view text, char separator) {
    std::string plain(text);
    if (separator == ';' || separator == '\t') {
        const auto comma = plain.find(',');
        if (comma != std::string::npos && plain.find('.') == std::string::npos) plain[comma] = '.';
    }
    return parse_number(plain);
}

} // namespace

std::optional<double> parse_number(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc{} || stop != end || !std::isfinite(value)) return std::nullopt;
    return value;
}

Table Table::load(const std::string& path, int skip) {
    if (path == "-") return read(std::cin, "standard input", skip);
    std::ifstream file(path, std::ios::binary);
    if (!file || file.peek() == std::ifstream::traits_type::eof()) {
        if (file.is_open() && file.eof()) throw Error(fmt::format("{}: the file is empty", path));
        throw Error(fmt::format("cannot read the file '{}'", path));
    }
    return read(file, path, skip);
}

Table Table::read(std::istream& in, std::string source, int skip) {
    Table table;
    table.source_ = std::move(source);
    std::string line;
    bool first = true;
    for (int line_number = 1; std::getline(in, line); ++line_number) {
        if (line_number <= skip) continue;
        std::string_view text = line;
        if (line_number == 1 && text.starts_with("\xef\xbb\xbf")) text.remove_prefix(3);
        text = without_comment(text);
        if (trimmed(text).empty()) continue;
        if (first) table.separator_ = find_separator(trimmed(text));
        // At the end of a line a tab is a blank; in front, it marks an empty first cell.
        Cells cells = split(table.separator_ == '\t' ? text : trimmed(text), table.separator_);
        const int count = static_cast<int>(cells.texts.size());
        if (first) {
            first = false;
            table.columns_ = count;
            const bool any_number = std::ranges::any_of(
                cells.texts, [&](const auto& cell) { return number(cell, table.separator_).has_value(); });
            if (cells.quoted || !any_number) {
                table.header_ = std::move(cells.texts);
                continue;
            }
        }
        if (count != table.columns_) {
            throw Error(
                fmt::format("{}: line {} has {} column{}, the lines before have {}; is there text above "
                            "the table?",
                            table.source_, line_number, count, count == 1 ? "" : "s", table.columns_));
        }
        table.lines_.push_back({line_number, std::move(cells.texts)});
    }
    if (in.bad()) throw Error(fmt::format("cannot read {}", table.source_));
    if (table.lines_.empty()) {
        throw Error(fmt::format("{}: no data{}", table.source_,
                                skip > 0 ? fmt::format(" after the {} lines skipped", skip) : ""));
    }
    return table;
}

std::string Table::name(int column) const {
    if (!has_header()) return fmt::format("column {}", column + 1);
    return header_[static_cast<std::size_t>(column)];
}

int Table::column(std::string_view name_or_number) const {
    for (auto matches : {+[](std::string_view a, std::string_view b) { return a == b; }, &same_name}) {
        for (std::size_t i = 0; i < header_.size(); ++i) {
            if (matches(header_[i], name_or_number)) return static_cast<int>(i);
        }
    }
    int index = 0;
    const char* const end = name_or_number.data() + name_or_number.size();
    const auto [stop, error] = std::from_chars(name_or_number.data(), end, index);
    if (error == std::errc{} && stop == end) {
        if (index >= 1 && index <= columns_) return index - 1;
        throw Error(fmt::format("{}: no column {}, there are {}", source_, index, columns_));
    }
    if (!has_header()) {
        throw Error(fmt::format("{}: no column '{}': the table has no header, address columns by number",
                                source_, name_or_number));
    }
    throw Error(fmt::format("{}: no column '{}'; the columns are {}", source_, name_or_number,
                            fmt::join(header_, ", ")));
}

Eigen::VectorXd Table::numbers(int column) const {
    Eigen::VectorXd result(rows());
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const auto& [line, cells] = lines_[i];
        const std::string& cell = cells[static_cast<std::size_t>(column)];
        const auto value = number(cell, separator_);
        if (!value) {
            throw Error(fmt::format("{}: line {}, column {}: {}", source_, line, column + 1,
                                    cell.empty() ? "no number" : fmt::format("'{}' is not a number", cell)));
        }
        result[static_cast<Eigen::Index>(i)] = *value;
    }
    return result;
}

} // namespace ansatz::host
