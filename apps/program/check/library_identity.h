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

// The array library that belongs to it.
struct ArrayLibrary {
    LibraryIdentity identity;  // the file that it would be in, where there is none
    bool there;
    std::string level;  // of instructions, in use on this machine; empty if it cannot be loaded
};

ArrayLibrary array_library_beside(const LibraryIdentity& library);

// Routines that it should export and does not.
std::vector<std::string> missing_routines();

}  // namespace quorvel::check
