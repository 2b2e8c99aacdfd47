// Calls a routine with every argument directly against an inaccessible page.
#pragma once

#include "contract/guarded_memory.h"
#include "contract/outcome.h"

namespace quorvel::test {

class GuardedCall {
  public:
    // Has room for arguments as large as these.
    GuardedCall(const Routine& routine, Address function, const ArgumentSet& largest);

    // Inputs cannot be written while the routine runs, and an array is exactly as long as its
    // counts say.
    Outcome operator()(const ArgumentSet& arguments, Against page);

  private:
    const Routine& routine_;
    Address function_;
    std::vector<GuardedMemory> memory_;
};

}  // namespace quorvel::test
