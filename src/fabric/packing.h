// Up to three fractions of two decimals (0.00 to 0.99) in one real: the optical properties of a
// layer as they stand in its record. 0.25, 0.40 and 0.07 are packed as 740.25.
//
// Formed and taken apart in single precision throughout: 700 times the float 0.01 rounds to 7, but
// unrounded, in double precision, falls short of it. All triples survive (the largest, 9999.99, is
// held to 0.0005), to the hundredth and not always to the bit: 40 times the float 0.01 is not the
// float nearest to 0.40.
#pragma once

#include "base/number.h"

namespace quorvel::fabric {

template <class R>
struct Fractions {
    R first, second, third;
};

template <class R>
Fractions<R> undefined_fractions() noexcept {
    return {R(undefined), R(undefined), R(undefined)};
}

// 0.57 times 100 is 56.99999; a tenth of a hundredth keeps it from losing one.
template <class R>
inline R hundredths(R fraction) noexcept {
    return truncated(100.0f * fraction + 0.1f);
}

template <class R>
inline R joined(const Fractions<R>& p) noexcept {
    return p.first + hundredths(p.second) + 100.0f * hundredths(p.third);
}

template <class R>
inline R packed_fractions(const Fractions<R>& p) noexcept {
    return select(is_undefined(p.first + p.second + p.third), R(undefined), joined(p));
}

// A second fraction of 1.00 has been carried into the third. The remainder is exact everywhere.
template <class R>
inline Fractions<R> unpacked_fractions(R v) noexcept {
    return either(
        rarely(is_undefined(v)), [&] { return undefined_fractions<R>(); },
        [&] {
            return Fractions<R>{hundredths(v - truncated(v)) * 0.01f,
                                truncated(modulo(v, 100.0f)) * 0.01f, truncated(0.01f * v) * 0.01f};
        });
}

// What one face of a pane transmits if it reflects the fraction given, and the other way round.
template <class R>
R face_complement(R absorptance, R fraction) noexcept {
    return truncated(100.1f - 100.0f * (fraction + absorptance)) * 0.01f;
}

// A pane by its absorptance and the reflectances of its two faces, packed with transmittances in
// their place, so that the number reads like that of a layer described by its transmittance.
template <class R>
inline R packed_pane(const Fractions<R>& pane) noexcept {
    const R a = pane.first;
    const R t1 = face_complement(a, pane.second), t2 = face_complement(a, pane.third);
    const MaskOf<R> given = !is_undefined(a + pane.second + pane.third);
    const MaskOf<R> formed = !is_undefined(t1 + t2 + a);
    return select(given & formed, joined(Fractions<R>{a, t1, t2}), R(undefined));
}

template <class R>
inline Fractions<R> unpacked_pane(R v) noexcept {
    return either(
        rarely(is_undefined(v)), [&] { return undefined_fractions<R>(); },
        [&] {
            const Fractions<R> p = unpacked_fractions(v);
            return Fractions<R>{p.first, face_complement(p.first, p.second),
                                face_complement(p.first, p.third)};
        });
}

template <class R>
struct PackedFractions {
    R packed;
    Fractions<R> fractions;
};

inline constexpr Integer pack = 1;  // the mode; any other unpacks

// One from the other: the number from the fractions that it holds, or they from it.
template <class R, class Pack, class Unpack>
PackedFractions<R> completed(MaskOf<R> packs, R packed, const Fractions<R>& p, Pack pack,
                             Unpack unpack) noexcept {
    return either(
        packs,
        [&] {
            return PackedFractions<R>{pack(p), p};
        },
        [&] {
            return PackedFractions<R>{packed, unpack(packed)};
        });
}

template <class R>
PackedFractions<R> completed_fractions(MaskOf<R> packs, R packed, const Fractions<R>& p) noexcept {
    return completed(
        packs, packed, p, [](const Fractions<R>& held) { return packed_fractions(held); },
        [](R number) { return unpacked_fractions(number); });
}

template <class R>
struct PackThreeFractions {
    Maybe<R> packed, first, second, third;
};

template <class R>
PackThreeFractions<R> pack_three_fractions(IntegerOf<R> mode, R packed, R p1, R p2, R p3) noexcept {
    const MaskOf<R> packs = mode == pack;
    const auto [number, p] = completed_fractions<R>(packs, packed, {p1, p2, p3});
    return {{number, packs}, {p.first, !packs}, {p.second, !packs}, {p.third, !packs}};
}

template <class R>
struct PackThreeFractionsThirdFirst {
    Maybe<R> packed, third, first, second;
};

template <class R>
PackThreeFractionsThirdFirst<R> pack_three_fractions_third_first(IntegerOf<R> mode, R packed, R p3,
                                                                 R p1, R p2) noexcept {
    const MaskOf<R> packs = mode == pack;
    const auto [number, p] = completed_fractions<R>(packs, packed, {p1, p2, p3});
    return {{number, packs}, {p.third, !packs}, {p.first, !packs}, {p.second, !packs}};
}

template <class R>
struct PackTwoFractions {
    Maybe<R> packed, first, second;
};

template <class R>
PackTwoFractions<R> pack_two_fractions(IntegerOf<R> mode, R packed, R p1, R p2) noexcept {
    const MaskOf<R> packs = mode == pack;
    const auto [number, p] = completed_fractions<R>(packs, packed, {p1, p2, R(0.0f)});
    return {{number, packs}, {p.first, !packs}, {p.second, !packs}};
}

template <class R>
struct PackPane {
    Maybe<R> packed, absorptance, first_reflectance, second_reflectance;
};

template <class R>
PackPane<R> pack_pane(IntegerOf<R> mode, R packed, R a, R r1, R r2) noexcept {
    const MaskOf<R> packs = mode == pack;
    const auto [number, p] = completed<R>(
        packs, packed, {a, r1, r2}, [](const Fractions<R>& pane) { return packed_pane(pane); },
        [](R given) { return unpacked_pane(given); });
    return {{number, packs}, {p.first, !packs}, {p.second, !packs}, {p.third, !packs}};
}

}  // namespace quorvel::fabric
