// What the built shared library shows to the outside, read from its file.
#pragma once

#include <ansatz/ansatz.h>

#include <set>
#include <string>

namespace ansatz::test {

/// Is this name of the list exported on this platform? _Ellipse@40 belongs to the Windows DLL alone.
bool exported_here(const std::string& name);

/// The names that the library exports.
std::set<std::string> exported_names();

/// The routine behind an export name; null where there is none.
FitFunction exported_routine(const std::string& name);

} // namespace ansatz::test
