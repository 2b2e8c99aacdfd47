#include "program/library_identity.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string_view>

#include "conformance/routine_table.h"
#include "quorvel/library.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace quorvel::program {
namespace {

#ifdef _WIN32
constexpr const char* array_library_name = "quorvel_arrays.dll";

std::string file_of(void* address) {
    HMODULE module = nullptr;
    char name[4096];
    constexpr DWORD by_address =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    if (!GetModuleHandleExA(by_address, static_cast<const char*>(address), &module) ||
        !GetModuleFileNameA(module, name, sizeof name))
        throw std::runtime_error("cannot tell which file the library is in");
    return name;
}
#else
constexpr const char* array_library_name = "libquorvel_arrays.so." QUORVEL_SOVERSION;

std::string file_of(void* address) {
    Dl_info info;
    if (!dladdr(address, &info))
        throw std::runtime_error("cannot tell which file the library is in");
    return std::filesystem::canonical(info.dli_fname).string();
}
#endif

// The library carries its version as a text; its exports are routines only.
std::string version_in(const std::string& file) {
    constexpr std::string_view mark = "@(#) Quorvel ";
    std::ifstream stream(file, std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(stream), {}};
    const auto found = content.find(mark);
    return found == std::string::npos ? "" : content.c_str() + found + mark.size();
}

}  // namespace

LibraryIdentity loaded_library() {
    const std::string file = file_of(host::routine_address("PSSVP"));
    return {file, version_in(file)};
}

std::string library_version() {
    try {
        host::load_library();
        return loaded_library().version;
    } catch (const std::runtime_error&) {
        return "";
    }
}

ArrayLibrary array_library_beside(const LibraryIdentity& library) {
    const auto path = std::filesystem::path(library.file).replace_filename(array_library_name);
    const std::string file = path.string();
    if (!std::filesystem::exists(path)) return {{file, ""}, false, ""};
    using Level = const char* (*)();
    const auto level = reinterpret_cast<Level>(host::address_in(file.c_str(), "quorvel_level"));
    return {{file, version_in(file)}, true, level ? level() : ""};
}

std::vector<std::string> missing_routines() {
    std::vector<std::string> missing;
    for (const conformance::Routine& routine : conformance::routines()) try {
            host::routine_address(routine.name);
        } catch (const std::exception&) {
            missing.push_back(routine.name);
        }
    return missing;
}

}  // namespace quorvel::program
