#include "conformance/routine_table.h"

#include <cstdint>

namespace quorvel::conformance {

const std::vector<Routine>& routines() {
    static const std::vector<Routine> table = {
#include "routine_table.inc"
    };
    return table;
}

}  // namespace quorvel::conformance
