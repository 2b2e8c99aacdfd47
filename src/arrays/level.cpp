#include "arrays/level.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

#include "arrays/processor.h"

// The tables of the objects of each level, in namespaces of their own: what a compiler makes for
// one level, inline functions above all, must not be taken for another by the linker.
namespace quorvel_v2::arrays {
extern const quorvel::arrays::Kernel table[];
}
namespace quorvel_v3::arrays {
extern const quorvel::arrays::Kernel table[];
}
namespace quorvel_v4::arrays {
extern const quorvel::arrays::Kernel table[];
}

namespace quorvel::arrays {

extern const Kernel table[];

namespace {

// From the best to the one that every processor supports.
constexpr Level levels[] = {
#ifdef QUORVEL_HAS_v4
    {"v4", supports_v4, quorvel_v4::arrays::table},
#endif
#ifdef QUORVEL_HAS_v3
    {"v3", supports_v3, quorvel_v3::arrays::table},
#endif
#ifdef QUORVEL_HAS_v2
    {"v2", supports_v2, quorvel_v2::arrays::table},
#endif
    {"scalar", []() noexcept { return true; }, table},
};

const Level* supported_level(const char* name) noexcept {
    for (const Level& level : levels)
        if ((name == nullptr || std::strcmp(level.name, name) == 0) && level.supported())
            return &level;
    return nullptr;
}

const Level* first_level() noexcept {
    const Level* wanted = supported_level(std::getenv("QUORVEL_LEVEL"));
    return wanted != nullptr ? wanted : supported_level(nullptr);
}

std::atomic<const Level*> chosen = nullptr;

}  // namespace

const Level& level() noexcept {
    const Level* now = chosen.load(std::memory_order_relaxed);
    if (now != nullptr) return *now;
    const Level* const first = first_level();
    // What another thread has chosen meanwhile stays.
    return chosen.compare_exchange_strong(now, first, std::memory_order_relaxed) ? *first : *now;
}

Kernel kernel(std::size_t routine, std::size_t count) noexcept {
    constexpr std::size_t worth_packs = 3;  // an element or two cost more in a pack than alone
    const Kernel packs = count < worth_packs ? nullptr : level().kernels[routine];
    return packs != nullptr ? packs : table[routine];
}

bool choose_level(const char* name) noexcept {
    const Level* wanted = supported_level(name);
    if (wanted != nullptr) chosen.store(wanted, std::memory_order_relaxed);
    return wanted != nullptr;
}

}  // namespace quorvel::arrays
