#include "frame/golden.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>

namespace ansatz::test {
namespace {

std::vector<double> read_list(std::istringstream& line) {
    std::size_t count = 0;
    line >> count;
    std::vector<double> list(count);
    for (double& v : list) {
        std::string word;
        line >> word;
        v = std::strtod(word.c_str(), nullptr); // operator>> takes neither inf nor subnormals
    }
    return list;
}

void read_family(const std::filesystem::path& file, std::vector<GoldenRow>& rows) {
    std::ifstream in(file);
    for (std::string text; std::getline(in, text);) {
        std::istringstream line(text);
        std::string kind, word;
        line >> kind;
        if (kind == "row") {
            GoldenRow& row = rows.emplace_back();
            row.family = file.stem().string();
            line >> row.name >> word >> row.form >> word >> row.query >> word >> row.probe >> word >>
                row.idle >> word >> row.derivatives >> word >> row.slack;
        } else if (kind == "at") {
            GoldenPoint& point = rows.back().points.emplace_back();
            point.P = read_list(line);
            line >> word;
            point.x = read_list(line);
        } else {
            Expected e{};
            line >> e.slot >> word;
            e.want = std::strtod(word.c_str(), nullptr);
            e.exact = std::strtold(word.c_str(), nullptr);
            line >> word;
            e.condition = std::strtod(word.c_str(), nullptr);
            e.stated = static_cast<bool>(line >> word);
            GoldenPoint& point = rows.back().points.back();
            (kind == "y" ? point.y : kind == "v" ? point.y_by_derivatives : point.dyda).push_back(e);
        }
        if (line.bad()) std::abort();
    }
}

std::vector<GoldenRow> read_all() {
    std::vector<GoldenRow> rows;
    for (const auto& entry : std::filesystem::directory_iterator(ANSATZ_TEST_DATA "/golden")) {
        if (entry.path().extension() == ".txt") read_family(entry.path(), rows);
    }
    if (rows.empty()) {
        std::fprintf(stderr, "no golden data under %s\n", ANSATZ_TEST_DATA);
        std::exit(2);
    }
    return rows;
}

} // namespace

const std::vector<GoldenRow>& golden_rows() {
    static const std::vector<GoldenRow> rows = read_all();
    return rows;
}

std::vector<std::vector<double>> columns_of(const GoldenRow& row) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    std::vector<std::vector<double>> x(row.points.at(0).x.size());
    for (std::size_t c = 0; c < x.size(); ++c) {
        for (const GoldenPoint& point : row.points) x[c].push_back(point.x[c]);
        for (const double extreme : {0.0, -1.0, -3.7, 1e5, -1e5, 1e200, -1e200, inf, -inf, std::nan("")})
            x[c].push_back(extreme);
    }
    return x;
}

std::vector<std::vector<double>> parameters_of(const GoldenRow& row) {
    std::vector<std::vector<double>> variants;
    for (const GoldenPoint& point : row.points) variants.push_back(point.P);
    const std::vector<double> some = row.points.front().P;
    for (std::size_t k = 0; k < some.size(); ++k) {
        for (const double broken : {0.0, 1.0, -some[k], 1e-30, 1e200, std::nan("")}) {
            variants.push_back(some);
            variants.back()[k] = broken;
        }
    }
    return variants;
}

std::vector<GoldenPoint> points_around(const GoldenRow& row) {
    std::vector<GoldenPoint> points;
    const GoldenPoint& first = row.points.at(0);
    const auto add = [&](const std::vector<double>& P, const std::vector<double>& x) {
        GoldenPoint& point = points.emplace_back();
        point.P = P;
        point.x = x;
    };
    for (const auto& P : parameters_of(row)) add(P, first.x);
    const auto columns = columns_of(row);
    for (std::size_t i = 0; i < columns[0].size(); ++i) {
        std::vector<double> x;
        for (const auto& column : columns) x.push_back(column[i]);
        add(first.P, x);
    }
    return points;
}

double tolerance(const GoldenRow& row, const Expected& expected) {
    constexpr double eps = std::numeric_limits<double>::epsilon();
    return 4 * eps * row.slack * (std::fabs(expected.want) + expected.condition) + 1e-300;
}

} // namespace ansatz::test
