// The routines that the array library alone has, called as those by reference are; what they are
// held to is the formula over one number, compiled here.
#pragma once

#include "conformance/routine_table.h"

namespace quorvel::conformance {

// By readable name. Their calls take no address of a function.
const std::vector<Routine>& arrays_only();

}  // namespace quorvel::conformance
