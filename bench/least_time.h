// Times that hold on a busy machine: the least of many interleaved runs.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstring>

namespace bench {

// Nanoseconds that f takes, divided by the number of its pieces.
template <class F>
double elapsed(int pieces, F f) {
    using namespace std::chrono;
    const auto start = steady_clock::now();
    f();
    return duration<double, std::nano>(steady_clock::now() - start).count() / pieces;
}

struct LeastTime {
    double ns = 1e9;

    template <class F>
    void of(int pieces, F f) {
        ns = std::min(ns, elapsed(pieces, f));
    }
    bool taken() const { return ns < 1e9; }
};

// Whether a routine is among the names on the command line; all are, where there are none.
inline bool asked_for(const char* routine, int count, char** names) {
    for (int i = 0; i < count; ++i)
        if (std::strcmp(names[i], routine) == 0) return true;
    return count <= 0;
}

}  // namespace bench
