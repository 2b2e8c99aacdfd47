// Nanoseconds a call by reference of every routine, in this library and in another build of it.
//     quorvel_compare OTHER_LIBRARY [ROUTINE...]
#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <vector>

#include "conformance/climate_file.h"
#include "conformance/random_arguments.h"
#include "least_time.h"
#include "quorvel/library.h"

using namespace quorvel;
using namespace quorvel::conformance;

namespace {

constexpr int rounds = 200;
constexpr double round_time = 200e3;  // ns, about

// Calls over valid arguments, enough of them that no branch is learnt by heart.
class Calls {
  public:
    explicit Calls(const Routine& routine) : routine_(routine) {
        Random random(1);
        for (int i = 0; i < 256; ++i) sets_.emplace_back(routine).draw_valid(random);
    }
    void make(void* function, int count) {
        std::uint64_t result;
        for (int i = 0; i < count; ++i)
            routine_.call(reinterpret_cast<Address>(function), sets_[i % 256].addresses(), &result);
    }

  private:
    const Routine& routine_;
    std::vector<ArgumentSet> sets_;
};

void compare(const Routine& routine, void* here, void* other) {
    Calls calls(routine);
    constexpr int trial = 256;
    const double each = bench::elapsed(trial, [&] { calls.make(here, trial); });
    const int count = std::max(16, static_cast<int>(round_time / each));
    bench::LeastTime now, before;
    for (int round = 0; round < rounds; ++round) {
        if (round % 2) now.of(count, [&] { calls.make(here, count); });
        before.of(count, [&] { calls.make(other, count); });
        if (round % 2 == 0) now.of(count, [&] { calls.make(here, count); });
    }
    std::printf("%-10s %9.2f %9.2f %6.2f\n", routine.name, before.ns, now.ns, now.ns / before.ns);
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
    host::load_library();  // first: it is found by its name, which the other one has too
    void* const other = argc > 1 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : nullptr;
    if (!other) {
        std::fprintf(stderr, "usage: quorvel_compare OTHER_LIBRARY [ROUTINE...]\n");
        return 2;
    }
    const ExampleFolder folder;  // which climate file routines read from
    std::printf("%-10s %9s %9s %6s\n", "ns a call", "other", "this", "ratio");
    for (const Routine& routine : routines()) {
        void* const before = dlsym(other, routine.name);  // none, where the routine is new
        if (before && bench::asked_for(routine.name, argc - 2, argv + 2))
            compare(routine, host::routine_address(routine.name), before);
    }
}
