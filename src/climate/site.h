// Radiation constants of the six site classes.
#pragma once

#include "climate/months.h"

namespace quorvel::climate {

template <class R>
struct SiteConstants {
    R ground_reflectance;
    R beam_factor;                 // on the direct normal irradiance
    R diffuse_factor;              // on the diffuse horizontal irradiance
    R alternative_diffuse_factor;  // takes its place where that is zero
};

// By site class, and 0 for none.
inline constexpr Real ground_reflectances[] = {0.2f, 0.2f, 0.2f, 0.5f, 0.2f, 0.2f, 0.0f};
inline constexpr Real alternative_diffuse_factors[] = {0.0f, 0.0f, 0.0f, 0.9f, 0.0f, 1.0f, 0.0f};

// January to December of class 1, then the others, which are the same all year, and 0 for none.
inline constexpr Real beam_factors[] = {
    0.88f, 0.83f, 0.88f, 0.73f, 0.72f, 0.82f, 0.72f, 0.73f, 0.88f,
    0.83f, 0.88f, 0.97f, 0.58f, 0.5f,  1.1f,  1.0f,  1.0f,  0.0f,
};
inline constexpr Real diffuse_factors[] = {
    1.29f, 1.18f, 0.97f, 0.93f, 0.89f, 0.66f, 0.89f, 0.93f, 0.97f,
    1.18f, 1.29f, 1.18f, 0.92f, 1.1f,  0.0f,  1.0f,  0.0f,  0.0f,
};

// All zero for no site class or no month.
template <class R>
SiteConstants<R> site_constants(IntegerOf<R> site_class, IntegerOf<R> month) noexcept {
    using I = IntegerOf<R>;
    const auto exists = (site_class >= 1) & (site_class <= 6) & is_month(month);
    const I by_class = select(exists, site_class, I(7)) - 1;
    const I by_month = select(by_class == 0, select(exists, month, I(1)) - 1, by_class + 11);
    return {lookup(ground_reflectances, by_class), lookup(beam_factors, by_month),
            lookup(diffuse_factors, by_month), lookup(alternative_diffuse_factors, by_class)};
}

}  // namespace quorvel::climate
