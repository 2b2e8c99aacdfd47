// The library under another name, as a host might come by it: loading it sets the processor's
// floating-point state to what the environment variable UNFIT_STATE says, and with UNFIT_RESULTS
// defined, one routine gives other results: next to the right ones, or off by what the variable
// UNFIT_OFFSET says.
#include <xmmintrin.h>

#include <cstdlib>

namespace {

[[gnu::constructor]] void set_state() {
    if (const char* state = std::getenv("UNFIT_STATE"))
        _mm_setcsr(static_cast<unsigned>(std::strtoul(state, nullptr, 0)));
}

}  // namespace

#ifdef UNFIT_RESULTS
#ifdef _WIN32
#define EXPORTED __declspec(dllexport)
#else
#define EXPORTED __attribute__((visibility("default")))
#endif
extern "C" EXPORTED float PSHDRY(const float* t);

float PSHDRY(const float* t) {
    const char* offset = std::getenv("UNFIT_OFFSET");
    return 1.0061f * *t + (offset ? std::strtof(offset, nullptr) : 0.0f);
}
#define OWN "PSHDRY"
#else
#define OWN "none"
#endif

// All else is the library's. Elsewhere the loader finds it in the library that this one needs.
#ifdef _WIN32
#define QUORVEL_ROUTINE(name)   \
    asm(".ifnc " #name "," OWN  \
        "\n.section .drectve\n" \
        ".ascii \" -export:" #name "=quorvel." #name "\"\n.text\n.endif");
#include "routine_names.inc"
#endif
