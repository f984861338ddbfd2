// The table of all models and the lookups that search it.
#pragma once

#include "protocol/point.h"

namespace ansatz {

/// One row. The layout is the one that hosts know.
struct FunctionEntry {
    std::uint16_t nIndep;
    std::uint16_t nDep;
    std::uint16_t nParams; ///< the default count of a model with a varying number of peaks or terms
    std::uint16_t reserved;
    const char* name;
    FitFunction function;
};

constexpr int count_rows() {
    int rows = 0;
#define ENTRY(name, nIndep, nDep, nParams, routine) ++rows;
#include "catalogue/models.inc"
    return rows;
}
inline constexpr int catalogue_size = count_rows();
extern const FunctionEntry FunctionCatalogue[catalogue_size];

/// The first row of this name, in any mix of upper and lower case; null when there is none.
const FunctionEntry* find_row(const char* name);

/// The number of independent variables of a name; 0 when there is no such row.
std::int32_t indep_count(const char* name);

/// The number of parameters of a name; 0 when there is no such row.
std::int32_t param_count(const char* name);

} // namespace ansatz
