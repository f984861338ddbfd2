// The golden data: per row its facts and, at generic points, the value and the derivatives from an independent
// computation with 50 digits (golden/*.py), each with its condition.
#pragma once

#include "frame/call.h"

#include <string>
#include <vector>

namespace ansatz::test {

struct Expected {
    int slot;
    double want;
    long double exact;   ///< the same with the digits beyond a double, where long double has them
    double condition;    ///< sum of |d want/d input * input|: what an error in the inputs is magnified by
    bool stated = false; ///< a derivative slot that departs from the true derivative on purpose
};

struct GoldenPoint {
    std::vector<double> P, x;
    std::vector<Expected> y;                ///< of the value path
    std::vector<Expected> y_by_derivatives; ///< of the derivative path, where its constants differ; else empty
    std::vector<Expected> dyda;
};

struct GoldenRow {
    std::string family, name, form, probe, idle; ///< as tests/golden/laws.py describes them
    int query = 0;
    bool derivatives = false;
    double slack = 1;
    std::vector<GoldenPoint> points;
};

/// All rows of all families.
const std::vector<GoldenRow>& golden_rows();

/// The x of all golden points of a row, and some where models fail or reach their limits.
std::vector<std::vector<double>> columns_of(const GoldenRow& row);

/// A row's golden parameters, and variants of them that break one condition of the domain at a time.
std::vector<std::vector<double>> parameters_of(const GoldenRow& row);

/// The first golden point with every one of these parameters, and with every one of these x.
std::vector<GoldenPoint> points_around(const GoldenRow& row);

/// The largest error accepted for one number of a row.
double tolerance(const GoldenRow& row, const Expected& expected);

} // namespace ansatz::test
