// Which library has been loaded.
#pragma once

#include <string>

namespace quorvel::check {

struct LibraryIdentity {
    std::string file;
    std::string version;  // empty if the file does not say
};

LibraryIdentity loaded_library();

}  // namespace quorvel::check
