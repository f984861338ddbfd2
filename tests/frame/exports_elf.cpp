#include "frame/exports.h"

#include <dlfcn.h>
#include <elf.h>

#include <fstream>
#include <iterator>
#include <vector>

namespace ansatz::test {
namespace {

/// A table of entries of one kind at an offset of the file.
template <class Entry>
std::vector<Entry> table(const std::string& file, std::size_t offset, std::size_t bytes) {
    std::vector<Entry> entries(bytes / sizeof(Entry));
    file.copy(reinterpret_cast<char*>(entries.data()), bytes, offset);
    return entries;
}

} // namespace

bool exported_here(const std::string& name) {
    return !name.starts_with('_');
}

std::set<std::string> exported_names() {
    std::ifstream in(ANSATZ_LIBRARY, std::ios::binary);
    const std::string file{std::istreambuf_iterator<char>(in), {}};
    const auto header = table<Elf64_Ehdr>(file, 0, sizeof(Elf64_Ehdr)).at(0);
    const auto sections = table<Elf64_Shdr>(file, header.e_shoff, header.e_shnum * sizeof(Elf64_Shdr));
    std::set<std::string> names;
    for (const Elf64_Shdr& section : sections) {
        if (section.sh_type != SHT_DYNSYM) continue;
        const std::size_t strings = sections.at(section.sh_link).sh_offset;
        for (const Elf64_Sym& symbol : table<Elf64_Sym>(file, section.sh_offset, section.sh_size)) {
            const bool defined =
                symbol.st_shndx != SHN_UNDEF && symbol.st_shndx != SHN_ABS; // the version is absolute
            if (defined && ELF64_ST_BIND(symbol.st_info) != STB_LOCAL)
                names.insert(file.data() + strings + symbol.st_name);
        }
    }
    return names;
}

FitFunction exported_routine(const std::string& name) {
    static void* const library = dlopen(ANSATZ_LIBRARY, RTLD_NOW | RTLD_LOCAL);
    return library ? reinterpret_cast<FitFunction>(dlsym(library, name.c_str())) : nullptr;
}

} // namespace ansatz::test
