#include "catalogue/catalogue.h"

#include "catalogue/name.h"
#include "catalogue/routines.h"

namespace ansatz {

extern const FunctionEntry FunctionCatalogue[catalogue_size] = {
#define ENTRY(name, nIndep, nDep, nParams, routine) {nIndep, nDep, nParams, 0, #name, ansatz_##routine},
#include "catalogue/models.inc"
};

const FunctionEntry* find_row(const char* name) {
    for (const FunctionEntry& row : FunctionCatalogue) {
        if (equal_ignoring_case(row.name, name)) return &row;
    }
    return nullptr;
}

std::int32_t indep_count(const char* name) {
    const FunctionEntry* row = find_row(name);
    return row ? static_cast<std::int16_t>(row->nIndep) : 0;
}

std::int32_t param_count(const char* name) {
    const FunctionEntry* row = find_row(name);
    return row ? static_cast<std::int16_t>(row->nParams) : 0;
}

} // namespace ansatz

FitFunction ANSATZ_CALL Get_Func(const char* name, std::uint16_t* pIndep, std::uint16_t* pDep,
                                 std::uint16_t* pParams, std::uint16_t* pReserved) {
    const ansatz::FunctionEntry* row = ansatz::find_row(name);
    if (!row) return nullptr;
    if (pIndep) *pIndep = row->nIndep;
    if (pDep) *pDep = row->nDep;
    if (pParams) *pParams = row->nParams;
    if (pReserved) *pReserved = row->reserved;
    return row->function;
}

FitFunction ANSATZ_CALL get_funx(const char* name) {
    return Get_Func(name, nullptr, nullptr, nullptr, nullptr);
}

std::int32_t ANSATZ_CALL get_funx_list(std::int32_t) {
    return 0;
}
