// x86-64-v4: truth is a bit in a register of its own kind. Included by registers.h.
#pragma once

#include <immintrin.h>

namespace quorvel::pack {

inline constexpr int width = 16;

using Floats = float __attribute__((vector_size(64)));
using Doubles = double __attribute__((vector_size(64)));
using Ints = std::int32_t __attribute__((vector_size(64)));
using Longs = std::uint64_t __attribute__((vector_size(64)));
using Lanes = std::uint16_t;
using WideLanes = std::uint8_t;

QUORVEL_PACK Lanes all_lanes(bool b) noexcept { return b ? 0xffff : 0; }
QUORVEL_PACK WideLanes all_wide_lanes(bool b) noexcept { return b ? 0xff : 0; }
QUORVEL_PACK bool any(Lanes a) noexcept { return a != 0; }
QUORVEL_PACK bool any(Halves<WideLanes> a) noexcept { return (a.low | a.high) != 0; }
QUORVEL_PACK bool lane(Lanes a, std::size_t i) noexcept { return (a >> i & 1) != 0; }

QUORVEL_PACK Lanes less(Floats a, Floats b) noexcept {
    return _mm512_cmp_ps_mask(a, b, _CMP_LT_OQ);
}
QUORVEL_PACK Lanes less_equal(Floats a, Floats b) noexcept {
    return _mm512_cmp_ps_mask(a, b, _CMP_LE_OQ);
}
QUORVEL_PACK Lanes equal(Floats a, Floats b) noexcept {
    return _mm512_cmp_ps_mask(a, b, _CMP_EQ_OQ);
}
QUORVEL_PACK Lanes less(Ints a, Ints b) noexcept {
    return _mm512_cmplt_epi32_mask(__m512i(a), __m512i(b));
}
QUORVEL_PACK Lanes less_equal(Ints a, Ints b) noexcept {
    return _mm512_cmple_epi32_mask(__m512i(a), __m512i(b));
}
QUORVEL_PACK Lanes equal(Ints a, Ints b) noexcept {
    return _mm512_cmpeq_epi32_mask(__m512i(a), __m512i(b));
}
QUORVEL_PACK WideLanes less(Doubles a, Doubles b) noexcept {
    return _mm512_cmp_pd_mask(a, b, _CMP_LT_OQ);
}
QUORVEL_PACK WideLanes less_equal(Doubles a, Doubles b) noexcept {
    return _mm512_cmp_pd_mask(a, b, _CMP_LE_OQ);
}
QUORVEL_PACK WideLanes equal(Doubles a, Doubles b) noexcept {
    return _mm512_cmp_pd_mask(a, b, _CMP_EQ_OQ);
}
QUORVEL_PACK WideLanes less(Longs a, Longs b) noexcept {
    return _mm512_cmplt_epu64_mask(__m512i(a), __m512i(b));
}
QUORVEL_PACK WideLanes equal(Longs a, Longs b) noexcept {
    return _mm512_cmpeq_epu64_mask(__m512i(a), __m512i(b));
}

QUORVEL_PACK Floats blend(Lanes m, Floats a, Floats b) noexcept {
    return _mm512_mask_blend_ps(m, b, a);
}
QUORVEL_PACK Ints blend(Lanes m, Ints a, Ints b) noexcept {
    return Ints(_mm512_mask_blend_epi32(m, __m512i(b), __m512i(a)));
}
QUORVEL_PACK Doubles blend(WideLanes m, Doubles a, Doubles b) noexcept {
    return _mm512_mask_blend_pd(m, b, a);
}
QUORVEL_PACK Longs blend(WideLanes m, Longs a, Longs b) noexcept {
    return Longs(_mm512_mask_blend_epi64(m, __m512i(b), __m512i(a)));
}

QUORVEL_PACK Halves<Doubles> widened(Floats x) noexcept {
    return {_mm512_cvtps_pd(_mm512_castps512_ps256(x)),
            _mm512_cvtps_pd(_mm512_extractf32x8_ps(x, 1))};
}
QUORVEL_PACK Halves<Doubles> widened(Ints x) noexcept {
    return {_mm512_cvtepi32_pd(_mm512_castsi512_si256(__m512i(x))),
            _mm512_cvtepi32_pd(_mm512_extracti32x8_epi32(__m512i(x), 1))};
}
QUORVEL_PACK Floats narrowed(Halves<Doubles> x) noexcept {
    return _mm512_insertf32x8(_mm512_castps256_ps512(_mm512_cvtpd_ps(x.low)),
                              _mm512_cvtpd_ps(x.high), 1);
}
QUORVEL_PACK Ints low_words(Halves<Longs> x) noexcept {
    return __builtin_shufflevector(Ints(x.low), Ints(x.high), 0, 2, 4, 6, 8, 10, 12, 14, 16, 18, 20,
                                   22, 24, 26, 28, 30);
}
QUORVEL_PACK Halves<WideLanes> widened_lanes(Lanes m) noexcept {
    return {static_cast<WideLanes>(m), static_cast<WideLanes>(m >> 8)};
}
QUORVEL_PACK Lanes narrowed(Halves<WideLanes> m) noexcept {
    return static_cast<Lanes>(m.low | m.high << 8);
}

QUORVEL_PACK Floats gathered(const float* table, Ints index) noexcept {
    return _mm512_i32gather_ps(__m512i(index), table, 4);
}
QUORVEL_PACK Ints gathered(const std::int32_t* table, Ints index) noexcept {
    return Ints(_mm512_i32gather_epi32(__m512i(index), table, 4));
}
QUORVEL_PACK Doubles gathered(const double* table, Longs index) noexcept {
    return _mm512_i64gather_pd(__m512i(index), table, 8);
}

QUORVEL_PACK Doubles fused(Doubles a, Doubles b, Doubles c) noexcept {
    return _mm512_fmadd_pd(a, b, c);
}
QUORVEL_PACK Doubles smaller(Doubles a, Doubles b) noexcept { return _mm512_min_pd(a, b); }
QUORVEL_PACK Doubles larger(Doubles a, Doubles b) noexcept { return _mm512_max_pd(a, b); }
QUORVEL_PACK Floats square_root(Floats x) noexcept { return _mm512_sqrt_ps(x); }
QUORVEL_PACK Doubles square_root(Doubles x) noexcept { return _mm512_sqrt_pd(x); }
QUORVEL_PACK Floats truncated(Floats x) noexcept {
    return _mm512_roundscale_ps(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}
QUORVEL_PACK Doubles truncated(Doubles x) noexcept {
    return _mm512_roundscale_pd(x, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
}

}  // namespace quorvel::pack
