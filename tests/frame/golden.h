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

/// The largest error accepted for one number of a row.
double tolerance(const GoldenRow& row, const Expected& expected);

} // namespace ansatz::test
