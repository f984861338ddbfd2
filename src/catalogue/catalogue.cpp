#include "catalogue/catalogue.h"

#include "catalogue/routines.h"

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

namespace ansatz {

extern const FunctionEntry FunctionCatalogue[catalogue_size] = {
#define ROW(name, nIndep, nDep, nParams, routine, export, ordinal)                                             \
    {nIndep, nDep, nParams, 0, name, ansatz_##routine},
#define ROW_HIDDEN(name, nIndep, nDep, nParams, routine) {nIndep, nDep, nParams, 0, name, ansatz_##routine},
#define ROW_WINDOWS(name, nIndep, nDep, nParams, routine, ordinal)                                             \
    {nIndep, nDep, nParams, 0, name, ansatz_##routine},
#include "catalogue/models.inc"
};

namespace {

#ifdef _WIN32
bool same_name(const char* a, const char* b) {
    return lstrcmpiA(a, b) == 0;
}
#else
char folded(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool same_name(const char* a, const char* b) {
    for (; folded(*a) == folded(*b); ++a, ++b) {
        if (*a == '\0') return true;
    }
    return false;
}
#endif

} // namespace

const FunctionEntry* find_row(const char* name) {
    for (const FunctionEntry& row : FunctionCatalogue) {
        if (same_name(row.name, name)) return &row;
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
