#include "frame/dll.h"
#include "frame/exports.h"
#include "frame/listed.h"

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <vector>

namespace ansatz::test {
namespace {

HMODULE library() {
    static const HMODULE module = [] {
        const HMODULE loaded = LoadLibraryA(ANSATZ_LIBRARY);
        if (!loaded) {
            std::fprintf(stderr, "cannot load %s: error %lu\n", ANSATZ_LIBRARY, GetLastError());
            std::exit(2);
        }
        return loaded;
    }();
    return module;
}

/// A file as the loader sees it: data by their address relative to the base.
class Image {
public:
    explicit Image(const char* path) {
        std::ifstream in(path, std::ios::binary);
        file_.assign(std::istreambuf_iterator<char>(in), {});
        const auto dos = at_offset<IMAGE_DOS_HEADER>(0);
        const auto headers = static_cast<std::size_t>(dos.e_lfanew);
        nt_ = at_offset<IMAGE_NT_HEADERS32>(headers);
        for (std::size_t i = 0; i < nt_.FileHeader.NumberOfSections; ++i) {
            sections_.push_back(
                at_offset<IMAGE_SECTION_HEADER>(headers + sizeof nt_ + i * sizeof(IMAGE_SECTION_HEADER)));
        }
    }

    const IMAGE_NT_HEADERS32& headers() const { return nt_; }
    const IMAGE_DATA_DIRECTORY& directory(std::size_t which) const {
        return nt_.OptionalHeader.DataDirectory[which];
    }

    template <class T> T at(DWORD address) const { return at_offset<T>(offset(address)); }
    std::string text(DWORD address) const { return file_.c_str() + offset(address); }

private:
    template <class T> T at_offset(std::size_t position) const {
        T t;
        std::memcpy(&t, file_.substr(position, sizeof t).data(), sizeof t);
        return t;
    }

    std::size_t offset(DWORD address) const {
        for (const IMAGE_SECTION_HEADER& s : sections_) {
            if (address >= s.VirtualAddress && address < s.VirtualAddress + s.SizeOfRawData)
                return address - s.VirtualAddress + s.PointerToRawData;
        }
        throw std::out_of_range("an address outside all sections");
    }

    std::string file_;
    IMAGE_NT_HEADERS32 nt_{};
    std::vector<IMAGE_SECTION_HEADER> sections_;
};

void read_exports(const Image& image, DllFile& dll) {
    const IMAGE_DATA_DIRECTORY& place = image.directory(IMAGE_DIRECTORY_ENTRY_EXPORT);
    const auto table = image.at<IMAGE_EXPORT_DIRECTORY>(place.VirtualAddress);
    dll.own_name = image.text(table.Name);
    std::vector<std::string> names;
    for (DWORD i = 0; i < table.NumberOfNames; ++i) {
        names.push_back(image.text(image.at<DWORD>(table.AddressOfNames + i * sizeof(DWORD))));
        const auto index = image.at<WORD>(table.AddressOfNameOrdinals + i * sizeof(WORD));
        dll.exports[names.back()] = static_cast<int>(table.Base + index);
    }
    dll.names_sorted = std::is_sorted(names.begin(), names.end());
    for (DWORD i = 0; i < table.NumberOfFunctions; ++i) {
        const auto address = image.at<DWORD>(table.AddressOfFunctions + i * sizeof(DWORD));
        dll.ordinals_in_use += address != 0;
        dll.forwarders += address >= place.VirtualAddress && address < place.VirtualAddress + place.Size;
    }
}

void read_imports(const Image& image, DllFile& dll) {
    DWORD address = image.directory(IMAGE_DIRECTORY_ENTRY_IMPORT).VirtualAddress;
    for (;; address += sizeof(IMAGE_IMPORT_DESCRIPTOR)) {
        const auto entry = image.at<IMAGE_IMPORT_DESCRIPTOR>(address);
        if (entry.Name == 0) return;
        int& routines = dll.imported_names[image.text(entry.Name)];
        for (DWORD thunk = entry.FirstThunk; image.at<DWORD>(thunk) != 0; thunk += sizeof(DWORD)) ++routines;
    }
}

} // namespace

void* resolve(const std::string& name) {
    return reinterpret_cast<void*>(GetProcAddress(library(), name.c_str()));
}

void* resolve(int ordinal) {
    return reinterpret_cast<void*>(GetProcAddress(library(), MAKEINTRESOURCEA(ordinal)));
}

void* resolve(const char* name, int ordinal) {
    void* const routine = resolve(std::string(name));
    if (!routine || routine != resolve(ordinal)) {
        std::fprintf(stderr, "%s and ordinal %d are not the same routine\n", name, ordinal);
        std::exit(2);
    }
    return routine;
}

DllFile read_dll() {
    const Image image(ANSATZ_LIBRARY);
    DllFile dll;
    dll.machine = image.headers().FileHeader.Machine;
    dll.characteristics = image.headers().FileHeader.Characteristics;
    dll.protection = image.headers().OptionalHeader.DllCharacteristics;
    dll.entry_point = image.headers().OptionalHeader.AddressOfEntryPoint;
    read_exports(image, dll);
    read_imports(image, dll);
    return dll;
}

bool exported_here(const std::string&) {
    return true;
}

std::set<std::string> exported_names() {
    std::set<std::string> names;
    for (const auto& [name, ordinal] : read_dll().exports) names.insert(name);
    return names;
}

FitFunction exported_routine(const std::string& name) {
    void* const routine = resolve(name);
    return routine == resolve(listed().exports.at(name)) ? reinterpret_cast<FitFunction>(routine) : nullptr;
}

} // namespace ansatz::test
