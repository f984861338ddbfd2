// Declares the routine of every model in the table.
#pragma once

#include "protocol/routine.h"

#define ENTRY(name, nIndep, nDep, nParams, routine) ANSATZ_ROUTINE(routine);
#define EXPORT(routine, export, ordinal) ANSATZ_ROUTINE(routine);
#include "catalogue/models.inc"
