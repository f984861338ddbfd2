// Tables of numbers as people keep them: comma-, semicolon-, tab- or blank-separated text.
//
// The separator is found from the first line: semicolon, tab, comma, else blanks. The first line is a header
// when none of its cells is a number, or one is quoted. Text after # is a comment; blank lines are skipped. In
// semicolon- and tab-separated tables a number may have a decimal comma.
#pragma once

#include <ansatz/host/error.hpp>

#include <Eigen/Core>

#include <istream>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ansatz::host {

/// The finite number that the whole of a text is.
std::optional<double> parse_number(std::string_view text);

class Table {
public:
    /// Reads a file, or standard input for "-", from after its first `skip` lines on, which may hold any text.
    /// Throws Error with the file's name and the line.
    static Table load(const std::string& path, int skip = 0);
    static Table read(std::istream& in, std::string source, int skip = 0);

    int columns() const { return columns_; }
    int rows() const { return static_cast<int>(lines_.size()); }
    bool has_header() const { return !header_.empty(); }

    /// The header's name of a column, counted from 0; "column 2" without a header.
    std::string name(int column) const;

    /// The column addressed by its name or its number from 1. Throws Error, listing the columns.
    int column(std::string_view name_or_number) const;

    /// The numbers of a column. Throws Error with line, column and text at a cell that is not a finite number.
    Eigen::VectorXd numbers(int column) const;

private:
    struct Line {
        int number;
        std::vector<std::string> cells;
    };
    std::string source_;
    char separator_ = ' ';
    int columns_ = 0;
    std::vector<std::string> header_;
    std::vector<Line> lines_;
};

} // namespace ansatz::host
