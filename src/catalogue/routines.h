// Declares the routine of every model in the table.
#pragma once

#include "protocol/forms.h"

#define ROW(name, nIndep, nDep, nParams, routine, export, ordinal) ANSATZ_ROUTINE(routine);
#define ROW_HIDDEN(name, nIndep, nDep, nParams, routine) ANSATZ_ROUTINE(routine);
#define ROW_WINDOWS(name, nIndep, nDep, nParams, routine, ordinal) ANSATZ_ROUTINE(routine);
#define EXPORT(routine, export, ordinal) ANSATZ_ROUTINE(routine);
#include "catalogue/models.inc"
