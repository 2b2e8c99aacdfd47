#include "climate/library_copy.h"

#include <stdexcept>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace quorvel::test {
namespace {

#ifdef _WIN32
std::filesystem::path file_with(void* address) {
    HMODULE module = nullptr;
    GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        static_cast<const char*>(address), &module);
    char name[MAX_PATH] = "";
    GetModuleFileNameA(module, name, sizeof name);
    return name;
}
void* load(const std::filesystem::path& file) {
    return reinterpret_cast<void*>(LoadLibraryA(file.string().c_str()));
}
void* symbol(void* library, const char* name) {
    return reinterpret_cast<void*>(GetProcAddress(reinterpret_cast<HMODULE>(library), name));
}
void unload(void* library) { FreeLibrary(reinterpret_cast<HMODULE>(library)); }
#else
std::filesystem::path file_with(void* address) {
    Dl_info info;
    return dladdr(address, &info) ? info.dli_fname : "";
}
void* load(const std::filesystem::path& file) {
    return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
}
void* symbol(void* library, const char* name) { return dlsym(library, name); }
void unload(void* library) { dlclose(library); }
#endif

void* load_copy(const std::filesystem::path& folder) {
    const auto original = file_with(host::routine_address("CLBNF0"));
    // Windows tells libraries apart by their names.
    const auto copy = folder / (folder.filename().string() + ".dll");
    std::filesystem::copy_file(original, copy);
    void* const library = load(copy);
    if (!library) throw std::runtime_error("cannot load " + copy.string());
    return library;
}

}  // namespace

LibraryCopy::LibraryCopy() : handle_(load_copy(folder_.path())) {}

LibraryCopy::~LibraryCopy() { unload(handle_); }

void* LibraryCopy::find(const char* name) const {
    void* const address = symbol(handle_, name);
    if (!address) throw std::runtime_error(std::string("the library does not export ") + name);
    return address;
}

}  // namespace quorvel::test
