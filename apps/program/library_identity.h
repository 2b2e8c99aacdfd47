// Which library has been loaded.
#pragma once

#include <string>
#include <vector>

namespace quorvel::program {

struct LibraryIdentity {
    std::string file;
    std::string version;  // empty if the file does not say
};

LibraryIdentity loaded_library();

// The version of the library, loaded if it is not yet; empty if that cannot be.
std::string library_version();

// The array library that belongs to it.
struct ArrayLibrary {
    LibraryIdentity identity;  // the file that it would be in, where there is none
    bool there;
    std::string level;  // of instructions, in use on this machine; empty if it cannot be loaded
};

ArrayLibrary array_library_beside(const LibraryIdentity& library);

// Routines that it should export and does not.
std::vector<std::string> missing_routines();

}  // namespace quorvel::program
