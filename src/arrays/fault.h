// What is wrong with a call, found before anything is written.
#pragma once

#include <cstddef>
#include <cstdint>

#include "quorvel_arrays.h"

namespace quorvel::arrays {

// A status of quorvel_arrays.h.
std::int32_t fault_of(const quorvel_routine& routine, std::size_t count, void* const* at,
                      const std::ptrdiff_t* step) noexcept;

}  // namespace quorvel::arrays
