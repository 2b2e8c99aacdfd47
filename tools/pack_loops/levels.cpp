#include "arrays/processor.h"
#include "pack_loops.h"

#define QUORVEL_LEVEL(level)                                    \
    namespace quorvel_##level {                                 \
        extern const pack_loops::Functions pack_functions;      \
        extern const pack_loops::DoubleFunction pack_doubles[]; \
    }
QUORVEL_LEVEL(v2)
QUORVEL_LEVEL(v3)
QUORVEL_LEVEL(v4)
#undef QUORVEL_LEVEL

namespace pack_loops {

std::span<const Level> levels() {
    using namespace quorvel::arrays;
    static constexpr Level all[] = {{"v2", &quorvel_v2::pack_functions, quorvel_v2::pack_doubles},
                                    {"v3", &quorvel_v3::pack_functions, quorvel_v3::pack_doubles},
                                    {"v4", &quorvel_v4::pack_functions, quorvel_v4::pack_doubles}};
    return std::span(all).first(supports_v4() ? 3 : supports_v3() ? 2 : supports_v2() ? 1 : 0);
}

}  // namespace pack_loops
