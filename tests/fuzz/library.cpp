#include "quorvel/library.h"

#include <quorvel.h>

#include <stdexcept>
#include <string_view>

#include "fuzz/library.h"

// The library's own source, for its state. The linker takes this in place of the library's.
#include "entry/climate_file.cpp"

namespace quorvel::fuzz {

void forget_climate_file() { state = {}; }

}  // namespace quorvel::fuzz

namespace quorvel::host {

void load_library() {}

void* routine_address(const char* name) {
#define QUORVEL_ROUTINE(routine) \
    if (std::string_view(name) == #routine) return reinterpret_cast<void*>(&::routine);
#include "routine_names.inc"
#undef QUORVEL_ROUTINE
    throw std::runtime_error(std::string("there is no routine ") + name);
}

}  // namespace quorvel::host
