// An executable or shared library as it lies on the disk.
#pragma once

#include <elf.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace ansatz::test {

class ElfFile {
public:
    explicit ElfFile(const char* path) {
        std::ifstream in(path, std::ios::binary);
        file_.assign(std::istreambuf_iterator<char>(in), {});
        header_ = table<Elf64_Ehdr>(0, sizeof(Elf64_Ehdr)).at(0);
    }

    const Elf64_Ehdr& header() const { return header_; }
    std::vector<Elf64_Phdr> segments() const {
        return table<Elf64_Phdr>(header_.e_phoff, header_.e_phnum * sizeof(Elf64_Phdr));
    }

    /// The entries of the sections of a type, each with the strings that it points into.
    template <class Entry, class Use> void for_each(Elf64_Word type, const Use& use) const {
        const auto sections = table<Elf64_Shdr>(header_.e_shoff, header_.e_shnum * sizeof(Elf64_Shdr));
        for (const Elf64_Shdr& section : sections) {
            if (section.sh_type != type) continue;
            const char* const strings = file_.data() + sections.at(section.sh_link).sh_offset;
            for (const Entry& entry : table<Entry>(section.sh_offset, section.sh_size)) use(entry, strings);
        }
    }

private:
    /// A table of entries of one kind at an offset of the file.
    template <class Entry> std::vector<Entry> table(std::size_t offset, std::size_t bytes) const {
        std::vector<Entry> entries(bytes / sizeof(Entry));
        file_.copy(reinterpret_cast<char*>(entries.data()), bytes, offset);
        return entries;
    }

    std::string file_;
    Elf64_Ehdr header_{};
};

} // namespace ansatz::test
