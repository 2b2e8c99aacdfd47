#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvel::host {

// The names of what a folder holds, in their order; nothing if it is no folder.
std::optional<std::vector<std::string>> names_in(const std::string& folder);

}  // namespace quorvel::host
