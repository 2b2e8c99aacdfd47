// A copy of the library, loaded beside the one under test: as fresh as in a new process, for
// routines whose state lasts as long as the library is loaded.
#pragma once

#include "conformance/climate_file.h"
#include "quorvel/library.h"

namespace quorvel::test {

using namespace conformance;

class LibraryCopy {
    TemporaryFolder folder_;
    void* handle_;

    void* find(const char* name) const;

  public:
    LibraryCopy();
    ~LibraryCopy();

    const host::Routine<decltype(&::CLBNF0)> CLBNF0{find("CLBNF0")};
    const host::Routine<decltype(&::CLBNFI)> CLBNFI{find("CLBNFI")};
    const host::Routine<decltype(&::CLBNF1)> CLBNF1{find("CLBNF1")};
    const host::Routine<decltype(&::CLBNF2)> CLBNF2{find("CLBNF2")};
    const host::Routine<decltype(&::CLBNF3)> CLBNF3{find("CLBNF3")};
};

}  // namespace quorvel::test
