#include "quorvel/library.h"

#include <cstdlib>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace quorvel::host {
namespace {

#ifdef _WIN32
constexpr const char* default_names[] = {"quorvel.dll"};

void* open(const char* name) { return reinterpret_cast<void*>(LoadLibraryA(name)); }
void* find(void* library, const char* symbol) {
    return reinterpret_cast<void*>(GetProcAddress(reinterpret_cast<HMODULE>(library), symbol));
}
std::string last_error() { return "Windows error " + std::to_string(GetLastError()); }
#else
// By its soname, which names the interface, as an installed program finds it; the other is the link
// for compilers, and what a library copied by hand is called.
constexpr const char* default_names[] = {"libquorvel.so." QUORVEL_SOVERSION, "libquorvel.so"};

void* open(const char* name) { return dlopen(name, RTLD_NOW | RTLD_LOCAL); }
void* find(void* library, const char* symbol) { return dlsym(library, symbol); }
std::string last_error() { return dlerror(); }
#endif

void* library = nullptr;

}  // namespace

void load_library() {
    const char* const chosen = std::getenv("QUORVEL_LIBRARY");
    std::vector<const char*> names(std::begin(default_names), std::end(default_names));
    if (chosen) names = {chosen};
    for (const char* name : names)
        if ((library = open(name))) return;
    throw std::runtime_error(std::string("cannot load ") + names.back() + ": " + last_error());
}

void* routine_address(const char* name) {
    if (!library) load_library();
    void* address = find(library, name);
    if (!address) throw std::runtime_error(std::string("the library does not export ") + name);
    return address;
}

void* address_in(const char* file, const char* name) {
    void* const other = open(file);
    return other ? find(other, name) : nullptr;
}

}  // namespace quorvel::host
