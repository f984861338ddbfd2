// The Windows DLL as a host loads it: by LoadLibrary, its routines by name and by ordinal. And its file.
#pragma once

#include <cstdint>
#include <map>
#include <string>

namespace ansatz::test {

/// The address behind a name; null where there is none.
void* resolve(const std::string& name);

/// The address behind an ordinal; null where there is none.
void* resolve(int ordinal);

/// Ends the program, which cannot test anything, where name and ordinal are not the same routine.
void* resolve(const char* name, int ordinal);

/// The headers and tables of the DLL's file that say how it is loaded.
struct DllFile {
    std::uint16_t machine = 0, characteristics = 0;
    std::uint16_t protection = 0;  ///< what the loader and the processor may do to protect it
    std::uint32_t entry_point = 0; ///< relative to the base address
    std::string own_name;
    std::map<std::string, int> exports;        ///< name and ordinal
    bool names_sorted = false;                 ///< the loader searches by bisection
    int ordinals_in_use = 0, forwarders = 0;   ///< exported addresses, and those that name another DLL instead
    std::map<std::string, int> imported_names; ///< name of a DLL, and the number of routines taken from it
};

DllFile read_dll();

} // namespace ansatz::test
