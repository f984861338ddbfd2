#include "frame/exports.h"

#include "frame/elf_file.h"

#include <dlfcn.h>

namespace ansatz::test {

bool exported_here(const std::string& name) {
    return !name.starts_with('_');
}

std::set<std::string> exported_names() {
    std::set<std::string> names;
    const ElfFile file(ANSATZ_LIBRARY);
    file.for_each<Elf64_Sym>(SHT_DYNSYM, [&](const Elf64_Sym& symbol, const char* strings) {
        const bool defined =
            symbol.st_shndx != SHN_UNDEF && symbol.st_shndx != SHN_ABS; // the version is absolute
        if (defined && ELF64_ST_BIND(symbol.st_info) != STB_LOCAL) names.insert(strings + symbol.st_name);
    });
    return names;
}

FitFunction exported_routine(const std::string& name) {
    static void* const library = dlopen(ANSATZ_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    return library ? reinterpret_cast<FitFunction>(dlsym(library, name.c_str())) : nullptr;
}

} // namespace ansatz::test
