// What a model's last lines make in the batch library: its loops over many points, and the layout of its slots.
#pragma once

#include "loop.h"

#include <ansatz/page.hpp>

#define ANSATZ_LOOPS(name) extern "C" const ansatz::batch::Loops ansatz_loops_##name
#define ANSATZ_LAYOUT(name) extern "C" const ansatz::Layout ansatz_layout_##name

#define ANSATZ_MODEL(name, ...)                                                                                \
    ANSATZ_LOOPS(name);                                                                                        \
    constexpr ansatz::batch::Loops ansatz_loops_##name = ansatz::batch::loops<__VA_ARGS__>;

#define ANSATZ_PAGE(name, ...)                                                                                 \
    ANSATZ_LAYOUT(name);                                                                                       \
    constexpr ansatz::Layout ansatz_layout_##name = ansatz::layout_of(ansatz::Page{__VA_ARGS__});
