#include "pack_doubles.h"

#define QUORVEL_LEVEL(level)                                         \
    namespace quorvel_##level {                                      \
        extern const pack_doubles::Function pack_double_functions[]; \
    }
QUORVEL_LEVEL(v2)
QUORVEL_LEVEL(v3)
QUORVEL_LEVEL(v4)
#undef QUORVEL_LEVEL

namespace pack_doubles {

std::span<const Level> levels() {
    static constexpr Level all[] = {{"v2", quorvel_v2::pack_double_functions},
                                    {"v3", quorvel_v3::pack_double_functions},
                                    {"v4", quorvel_v4::pack_double_functions}};
    const bool v2 = __builtin_cpu_supports("sse4.2");
    const bool v3 = v2 && __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
    const bool v4 = v3 && __builtin_cpu_supports("avx512dq") &&
                    __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512bw");
    return std::span(all).first(v4 ? 3 : v3 ? 2 : v2 ? 1 : 0);
}

}  // namespace pack_doubles
