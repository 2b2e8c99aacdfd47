// Up to three fractions of two decimals (0.00 to 0.99) in one real: the optical properties of a
// layer as they stand in its record. 0.25, 0.40 and 0.07 are packed as 740.25.
//
// Formed and taken apart in single precision throughout: 700 times the float 0.01 rounds to 7, but
// unrounded, in double precision, falls short of it. All triples survive (the largest, 9999.99, is
// held to 0.0005), to the hundredth and not always to the bit: 40 times the float 0.01 is not the
// float nearest to 0.40.
#pragma once

#include <cmath>

#include "base/contract.h"

namespace quorvel::fabric {

struct Fractions {
    Real first, second, third;
};

// 0.57 times 100 is 56.99999; a tenth of a hundredth keeps it from losing one.
inline Real hundredths(Real fraction) noexcept { return std::trunc(100.0f * fraction + 0.1f); }

inline Real joined(const Fractions& p) noexcept {
    return p.first + hundredths(p.second) + 100.0f * hundredths(p.third);
}

inline Real packed(const Fractions& p) noexcept {
    return is_undefined(p.first + p.second + p.third) ? undefined : joined(p);
}

// A second fraction of 1.00 has been carried into the third. The remainder is exact everywhere.
inline Fractions unpacked(Real v) noexcept {
    if (is_undefined(v)) return {undefined, undefined, undefined};
    return {hundredths(v - std::trunc(v)) * 0.01f, std::trunc(std::fmod(v, 100.0f)) * 0.01f,
            std::trunc(0.01f * v) * 0.01f};
}

// Absorptance of a pane and the reflectances of its two faces.
struct PaneFaces {
    Real absorptance, first_reflectance, second_reflectance;
};

// What one face of a pane transmits if it reflects the fraction given, and the other way round.
inline Real face_complement(Real absorptance, Real fraction) noexcept {
    return std::trunc(100.1f - 100.0f * (fraction + absorptance)) * 0.01f;
}

// Packed with transmittances in place of the reflectances, so that the number reads like that of a
// layer described by its transmittance.
inline Real packed_pane(const PaneFaces& pane) noexcept {
    const auto [a, r1, r2] = pane;
    if (is_undefined(a + r1 + r2)) return undefined;
    const Real t1 = face_complement(a, r1), t2 = face_complement(a, r2);
    return is_undefined(t1 + t2 + a) ? undefined : joined({a, t1, t2});
}

inline PaneFaces unpacked_pane(Real v) noexcept {
    if (is_undefined(v)) return {undefined, undefined, undefined};
    const auto [a, t1, t2] = unpacked(v);
    return {a, face_complement(a, t1), face_complement(a, t2)};
}

}  // namespace quorvel::fabric
