#include "support/routine_table.h"

#include "quorvel.h"

namespace quorvel::test {

const std::vector<Routine>& routines() {
    static const std::vector<Routine> table = {
#include "routine_table.inc"
    };
    return table;
}

}  // namespace quorvel::test
