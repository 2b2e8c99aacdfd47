// Which library has been loaded.
#pragma once

#include <string>
#include <vector>

namespace quorvel::check {

struct LibraryIdentity {
    std::string file;
    std::string version;  // empty if the file does not say
};

LibraryIdentity loaded_library();

// Routines that it should export and does not.
std::vector<std::string> missing_routines();

}  // namespace quorvel::check
