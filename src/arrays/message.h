// A status in words.
#pragma once

#include <cstddef>
#include <cstdint>

#include "quorvel_arrays.h"

namespace quorvel::arrays {

// As quorvel_message of quorvel_arrays.h.
std::size_t message(const quorvel_routine& routine, std::int32_t status, char* text,
                    std::size_t size) noexcept;

}  // namespace quorvel::arrays
