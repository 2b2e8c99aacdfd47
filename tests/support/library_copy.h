// A copy of the library, loaded beside the one under test: as fresh as in a new process, for
// routines whose state lasts as long as the library is loaded.
#pragma once

#include "common/library.h"
#include "support/climate_file.h"

namespace quorvel::test {

class LibraryCopy {
    TemporaryFolder folder_;
    void* handle_;

    void* find(const char* name) const;

  public:
    LibraryCopy();
    ~LibraryCopy();

#define QUORVEL_ROUTINE(name) \
    const host::Routine<decltype(&::name)> name { find(#name) }
    QUORVEL_ROUTINE(CLBNF0);
    QUORVEL_ROUTINE(CLBNFI);
    QUORVEL_ROUTINE(CLBNF1);
    QUORVEL_ROUTINE(CLBNF2);
    QUORVEL_ROUTINE(CLBNF3);
#undef QUORVEL_ROUTINE
};

}  // namespace quorvel::test
