// x86-64-v2. It has neither gathers nor fused operations: tables are read one element after the
// other, and fused() rounds twice. Included by registers.h.
#pragma once

#include <smmintrin.h>

namespace quorvel::pack {

inline constexpr int width = 4;

using Floats = float __attribute__((vector_size(16)));
using Doubles = double __attribute__((vector_size(16)));
using Ints = std::int32_t __attribute__((vector_size(16)));
using Longs = std::uint64_t __attribute__((vector_size(16)));

}  // namespace quorvel::pack

#include "pack/vector_lanes.h"

namespace quorvel::pack {

QUORVEL_PACK bool any(Lanes a) noexcept { return _mm_movemask_ps(__m128(a)) != 0; }
QUORVEL_PACK bool any(Halves<WideLanes> a) noexcept {
    return _mm_movemask_pd(__m128d(a.low | a.high)) != 0;
}

QUORVEL_PACK Halves<Doubles> widened(Floats x) noexcept {
    return {_mm_cvtps_pd(x), _mm_cvtps_pd(_mm_movehl_ps(x, x))};
}
QUORVEL_PACK Halves<Doubles> widened(Ints x) noexcept {
    return {_mm_cvtepi32_pd(__m128i(x)), _mm_cvtepi32_pd(_mm_shuffle_epi32(__m128i(x), 0xee))};
}
QUORVEL_PACK Floats narrowed(Halves<Doubles> x) noexcept {
    return _mm_movelh_ps(_mm_cvtpd_ps(x.low), _mm_cvtpd_ps(x.high));
}
QUORVEL_PACK Ints low_words(Halves<Longs> x) noexcept {
    return __builtin_shufflevector(Ints(x.low), Ints(x.high), 0, 2, 4, 6);
}
QUORVEL_PACK Halves<WideLanes> widened_lanes(Lanes m) noexcept {
    return {WideLanes(_mm_unpacklo_epi32(__m128i(m), __m128i(m))),
            WideLanes(_mm_unpackhi_epi32(__m128i(m), __m128i(m)))};
}
QUORVEL_PACK Lanes narrowed(Halves<WideLanes> m) noexcept {
    return Lanes(_mm_shuffle_ps(__m128(m.low), __m128(m.high), 0x88));
}

QUORVEL_PACK Floats gathered(const float* table, Ints i) noexcept {
    return Floats{table[i[0]], table[i[1]], table[i[2]], table[i[3]]};
}
QUORVEL_PACK Ints gathered(const std::int32_t* table, Ints i) noexcept {
    return Ints{table[i[0]], table[i[1]], table[i[2]], table[i[3]]};
}
QUORVEL_PACK Doubles gathered(const double* table, Longs i) noexcept {
    return Doubles{table[i[0]], table[i[1]]};
}

QUORVEL_PACK Doubles fused(Doubles a, Doubles b, Doubles c) noexcept { return a * b + c; }
QUORVEL_PACK Doubles smaller(Doubles a, Doubles b) noexcept { return _mm_min_pd(a, b); }
QUORVEL_PACK Doubles larger(Doubles a, Doubles b) noexcept { return _mm_max_pd(a, b); }
QUORVEL_PACK Floats square_root(Floats x) noexcept { return _mm_sqrt_ps(x); }
QUORVEL_PACK Doubles square_root(Doubles x) noexcept { return _mm_sqrt_pd(x); }
QUORVEL_PACK Floats truncated(Floats x) noexcept {
    return _mm_round_ps(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}
QUORVEL_PACK Doubles truncated(Doubles x) noexcept {
    return _mm_round_pd(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}

}  // namespace quorvel::pack
