// Levels of instructions for which there is code of its own, and which of them this process uses.
#pragma once

#include "arrays/kernel.h"

namespace quorvel::arrays {

struct Level {
    const char* name;
    bool (*supported)() noexcept;
    const Kernel* kernels;  // by routine; none where single numbers are as fast
};

// The best level that processor and system support, unless QUORVEL_LEVEL in the environment or
// choose_level names a lower one.
const Level& level() noexcept;

// What runs a routine, by its number in the catalogue, for so many elements.
Kernel kernel(std::size_t routine, std::size_t count) noexcept;

// False, and no change, where there is no such level or it is not supported.
bool choose_level(const char* name) noexcept;

}  // namespace quorvel::arrays
