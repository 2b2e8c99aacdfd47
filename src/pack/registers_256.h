// x86-64-v3. Included by registers.h.
#pragma once

#include <immintrin.h>

namespace quorvel::pack {

inline constexpr int width = 8;

using Floats = float __attribute__((vector_size(32)));
using Doubles = double __attribute__((vector_size(32)));
using Ints = std::int32_t __attribute__((vector_size(32)));
using Longs = std::uint64_t __attribute__((vector_size(32)));

}  // namespace quorvel::pack

#include "pack/vector_lanes.h"

namespace quorvel::pack {

QUORVEL_PACK bool any(Lanes a) noexcept { return _mm256_movemask_ps(__m256(a)) != 0; }
QUORVEL_PACK bool any(Halves<WideLanes> a) noexcept {
    return _mm256_movemask_pd(__m256d(a.low | a.high)) != 0;
}

QUORVEL_PACK Halves<Doubles> widened(Floats x) noexcept {
    return {_mm256_cvtps_pd(_mm256_castps256_ps128(x)),
            _mm256_cvtps_pd(_mm256_extractf128_ps(x, 1))};
}
QUORVEL_PACK Halves<Doubles> widened(Ints x) noexcept {
    return {_mm256_cvtepi32_pd(_mm256_castsi256_si128(__m256i(x))),
            _mm256_cvtepi32_pd(_mm256_extracti128_si256(__m256i(x), 1))};
}
QUORVEL_PACK Floats narrowed(Halves<Doubles> x) noexcept {
    return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(x.low)),
                                _mm256_cvtpd_ps(x.high), 1);
}
QUORVEL_PACK Ints low_words(Halves<Longs> x) noexcept {
    return __builtin_shufflevector(Ints(x.low), Ints(x.high), 0, 2, 4, 6, 8, 10, 12, 14);
}
QUORVEL_PACK Halves<WideLanes> widened_lanes(Lanes m) noexcept {
    return {WideLanes(_mm256_cvtepi32_epi64(_mm256_castsi256_si128(__m256i(m)))),
            WideLanes(_mm256_cvtepi32_epi64(_mm256_extracti128_si256(__m256i(m), 1)))};
}
QUORVEL_PACK Lanes narrowed(Halves<WideLanes> m) noexcept {
    const __m256 even = _mm256_shuffle_ps(__m256(m.low), __m256(m.high), 0x88);
    return Lanes(_mm256_permute4x64_epi64(_mm256_castps_si256(even), 0xd8));
}

QUORVEL_PACK Floats gathered(const float* table, Ints index) noexcept {
    return _mm256_i32gather_ps(table, __m256i(index), 4);
}
QUORVEL_PACK Ints gathered(const std::int32_t* table, Ints index) noexcept {
    return Ints(_mm256_i32gather_epi32(table, __m256i(index), 4));
}
QUORVEL_PACK Doubles gathered(const double* table, Longs index) noexcept {
    return _mm256_i64gather_pd(table, __m256i(index), 8);
}

QUORVEL_PACK Doubles fused(Doubles a, Doubles b, Doubles c) noexcept {
    return _mm256_fmadd_pd(a, b, c);
}
QUORVEL_PACK Doubles smaller(Doubles a, Doubles b) noexcept { return _mm256_min_pd(a, b); }
QUORVEL_PACK Doubles larger(Doubles a, Doubles b) noexcept { return _mm256_max_pd(a, b); }
QUORVEL_PACK Floats square_root(Floats x) noexcept { return _mm256_sqrt_ps(x); }
QUORVEL_PACK Doubles square_root(Doubles x) noexcept { return _mm256_sqrt_pd(x); }
QUORVEL_PACK Floats truncated(Floats x) noexcept {
    return _mm256_round_ps(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}
QUORVEL_PACK Doubles truncated(Doubles x) noexcept {
    return _mm256_round_pd(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}

}  // namespace quorvel::pack
