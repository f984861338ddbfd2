// How a routine is declared.
#pragma once

#include "protocol/point.h"

/// A routine's linkage name; what it is exported as is the catalogue's business.
#define ANSATZ_ROUTINE(name)                                                                                   \
    extern "C" ANSATZ_API std::int32_t ANSATZ_CALL ansatz_##name(                                              \
        std::uint32_t flags, std::uint32_t, std::int32_t nParams, std::uint32_t, std::uint32_t,                \
        const double* params, std::uint32_t, double* x, double* y, double* dyda)
