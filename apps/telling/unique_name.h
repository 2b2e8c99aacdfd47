#pragma once

#include <random>
#include <string>

namespace quorvel::host {

// Part of a name for a file that no other process takes at the same time.
inline std::string unique_name() {
    std::random_device random;
    return '.' + std::to_string(random()) + std::to_string(random());
}

}  // namespace quorvel::host
