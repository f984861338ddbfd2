// The DLL's file: exactly the listed names and ordinals, nothing needed but the system's own DLLs, and a load
// that never fails.

#include "frame/dll.h"
#include "frame/listed.h"

#include <gtest/gtest.h>

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

namespace ansatz::test {
namespace {

TEST(Dll, ExportsExactlyTheListedNamesAndOrdinals) {
    const DllFile dll = read_dll();
    EXPECT_EQ(dll.own_name, "ansatz.dll");
    EXPECT_EQ(dll.exports.size(), 200u);
    EXPECT_EQ(dll.exports, listed().exports);
    EXPECT_EQ(dll.ordinals_in_use, 200) << "no ordinal without a name";
    EXPECT_EQ(dll.forwarders, 0);
    EXPECT_TRUE(dll.names_sorted);
}

TEST(Dll, LoaderFindsEachRoutineByNameAndByOrdinal) {
    for (const auto& [name, ordinal] : listed().exports) {
        EXPECT_TRUE(resolve(name)) << name;
        EXPECT_EQ(resolve(name), resolve(ordinal)) << name << " " << ordinal;
    }
    EXPECT_EQ(resolve(listed().exports.at("_Ellipse@40")), resolve(4));
    for (const char* name :
         {"Ellipse", "ellipse", "Gauss@40", "_Gauss@40", "gauss", "Get_Func@20", "DllMain"}) {
        EXPECT_EQ(resolve(std::string(name)), nullptr) << name;
    }
    for (const int ordinal : {1, 6, 49, 51, 100, 65535}) EXPECT_EQ(resolve(ordinal), nullptr) << ordinal;
}

TEST(Dll, NeedsNothingButTheSystem) {
    const DllFile dll = read_dll();
    EXPECT_EQ(dll.machine, IMAGE_FILE_MACHINE_I386);
    EXPECT_TRUE(dll.characteristics & IMAGE_FILE_DLL);
    EXPECT_FALSE(dll.characteristics & IMAGE_FILE_RELOCS_STRIPPED) << "it has to be loadable at any address";
    for (const auto& [name, routines] : dll.imported_names) {
        EXPECT_TRUE(name == "KERNEL32.dll" || name == "msvcrt.dll" || name == "USER32.dll") << name;
    }
    EXPECT_TRUE(dll.imported_names.contains("KERNEL32.dll"));
}

TEST(Dll, IsProtected) {
    const std::uint16_t protection = read_dll().protection;
    EXPECT_TRUE(protection & IMAGE_DLLCHARACTERISTICS_DYNAMIC_BASE) << "loaded at a random address";
    EXPECT_TRUE(protection & IMAGE_DLLCHARACTERISTICS_NX_COMPAT) << "data is not executed";
    EXPECT_TRUE(protection & IMAGE_DLLCHARACTERISTICS_NO_SEH) << "nothing in it is an exception handler";
}

TEST(Dll, EntryPointAnswersOneForEveryReason) {
    // A copy, so that the library under test does not take part.
    ASSERT_TRUE(CopyFileA(ANSATZ_LIBRARY, "entry_point_copy.dll", FALSE)) << GetLastError();
    const HMODULE copy = LoadLibraryA("entry_point_copy.dll");
    ASSERT_TRUE(copy) << GetLastError();
    using EntryPoint = int(__stdcall*)(HMODULE, DWORD, void*);
    const auto entry = reinterpret_cast<EntryPoint>(reinterpret_cast<char*>(copy) + read_dll().entry_point);
    // The process lets go, once more than it took hold, and takes hold again.
    for (const DWORD reason : {DLL_THREAD_ATTACH, DLL_THREAD_DETACH, 4, 12345, DLL_PROCESS_DETACH,
                               DLL_PROCESS_DETACH, DLL_PROCESS_ATTACH}) {
        EXPECT_EQ(entry(copy, reason, nullptr), 1) << reason;
    }
    EXPECT_TRUE(FreeLibrary(copy));
    EXPECT_TRUE(DeleteFileA("entry_point_copy.dll"));
}

} // namespace
} // namespace ansatz::test
