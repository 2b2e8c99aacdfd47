// A copy of the library, loaded beside the one under test: as fresh as in a new process, for
// routines whose state lasts as long as the library is loaded.
#pragma once

#include "conformance/climate_file.h"
#include "quorvel/climate.h"

namespace quorvel::test {

using namespace conformance;

class LibraryCopy {
    TemporaryFolder folder_;
    void* handle_;

    void* find(const char* name) const;

  public:
    LibraryCopy();
    ~LibraryCopy();

    decltype(lib::CLBNF0) CLBNF0{find("CLBNF0")};
    decltype(lib::CLBNFI) CLBNFI{find("CLBNFI")};
    decltype(lib::CLBNF1) CLBNF1{find("CLBNF1")};
    decltype(lib::CLBNF2) CLBNF2{find("CLBNF2")};
    decltype(lib::CLBNF3) CLBNF3{find("CLBNF3")};
};

}  // namespace quorvel::test
