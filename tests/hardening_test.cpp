// How the files that are installed are protected: what a fault in them, or a folder that someone else prepared,
// must not lead to.

#include "frame/elf_file.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace ansatz::test {
namespace {

struct Built {
    const char* name;
    const char* path;
    bool program = false;
};

constexpr Built built[] = {
    {"library", ansatz_FILE},
#ifdef ansatz_batch_FILE
    {"batch_library", ansatz_batch_FILE},
#endif
#ifdef ansatz_command_FILE
    {"command", ansatz_command_FILE, true},
#endif
};

class Hardening : public testing::TestWithParam<Built> {
protected:
    const ElfFile file{GetParam().path};
};

TEST_P(Hardening, MemoryIsNeverBothWrittenAndExecuted) {
    std::set<Elf64_Word> types;
    for (const Elf64_Phdr& segment : file.segments()) {
        types.insert(segment.p_type);
        EXPECT_NE(segment.p_flags & (PF_W | PF_X), 0u + PF_W + PF_X) << "type " << segment.p_type;
    }
    EXPECT_TRUE(types.contains(PT_GNU_STACK)) << "without it the stack is executable";
    EXPECT_TRUE(types.contains(PT_GNU_RELRO));
}

TEST_P(Hardening, AddressesAreResolvedAtTheLoad) {
    Elf64_Xword flags = 0, flags_1 = 0;
    file.for_each<Elf64_Dyn>(SHT_DYNAMIC, [&](const Elf64_Dyn& entry, const char*) {
        if (entry.d_tag == DT_FLAGS) flags = entry.d_un.d_val;
        if (entry.d_tag == DT_FLAGS_1) flags_1 = entry.d_un.d_val;
    });
    EXPECT_TRUE(flags & DF_BIND_NOW || flags_1 & DF_1_NOW) << "or the table of addresses stays writable";
    EXPECT_EQ(file.header().e_type, ET_DYN) << "it has to be loadable at any address";
    EXPECT_EQ((flags_1 & DF_1_PIE) != 0, GetParam().program);
}

TEST_P(Hardening, NoLibraryIsLookedForInTheCurrentFolder) {
    file.for_each<Elf64_Dyn>(SHT_DYNAMIC, [&](const Elf64_Dyn& entry, const char* strings) {
        if (entry.d_tag != DT_RPATH && entry.d_tag != DT_RUNPATH) return;
        // The bar makes an empty last element one that getline sees.
        std::istringstream folders(strings + entry.d_un.d_val + std::string(":|"));
        for (std::string folder; std::getline(folders, folder, ':') && folder != "|";) {
            EXPECT_TRUE(folder.starts_with('/') || folder.starts_with("$ORIGIN/")) << '"' << folder << '"';
        }
    });
}

TEST_P(Hardening, AnOverrunOfTheStackIsNoticed) {
    std::set<std::string> names;
    file.for_each<Elf64_Sym>(SHT_DYNSYM, [&](const Elf64_Sym& symbol, const char* strings) {
        names.insert(strings + symbol.st_name);
    });
    EXPECT_TRUE(names.contains("__stack_chk_fail"));
}

INSTANTIATE_TEST_SUITE_P(Files, Hardening, testing::ValuesIn(built),
                         [](const auto& file) { return std::string(file.param.name); });

} // namespace
} // namespace ansatz::test
