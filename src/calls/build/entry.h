// What a model's last lines make in the library of single calls: its routine.
#pragma once

#include "protocol/host_arithmetic.h"
#include "protocol/routine.h"

/// ANSATZ_MODEL(Gauss, BothPaths<value, derivatives>), inside the model's namespace: the routine of this row,
/// and of those that share it. Of flags only the low byte is read, of nParams the low 16 bits, whatever the
/// caller left above them.
#define ANSATZ_MODEL(name, ...)                                                                                \
    ANSATZ_ROUTINE(name);                                                                                      \
    ANSATZ_ROUTINE(name) {                                                                                     \
        const ansatz::OwnArithmetic own_arithmetic;                                                            \
        return __VA_ARGS__::serve(flags & 0xff,                                                                \
                                  ansatz::Point{static_cast<std::int16_t>(nParams), params, x, y, dyda});      \
    }

/// Texts are for others.
#define ANSATZ_PAGE(name, ...)
