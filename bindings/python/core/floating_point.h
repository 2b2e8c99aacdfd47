// The processor's notes of what happened in floating-point arithmetic, put back as they were.
#pragma once

#ifdef __SSE2__
#include <xmmintrin.h>
#else
#include <cfenv>
#endif

namespace quorvel::python {

#ifdef __SSE2__
class KeptFlags {
  public:
    KeptFlags() noexcept : word_(_mm_getcsr()) {}
    ~KeptFlags() { _mm_setcsr(word_); }

  private:
    unsigned word_;
};
#else
class KeptFlags {
  public:
    KeptFlags() noexcept { std::fegetexceptflag(&flags_, FE_ALL_EXCEPT); }
    ~KeptFlags() { std::fesetexceptflag(&flags_, FE_ALL_EXCEPT); }

  private:
    std::fexcept_t flags_;
};
#endif

}  // namespace quorvel::python
