// Radiation constants of the six site classes.
#pragma once

#include <array>

#include "climate/calendar.h"

namespace quorvel::climate {

struct SiteConstants {
    Real ground_reflectance;
    Real beam_factor;                 // on the direct normal irradiance
    Real diffuse_factor;              // on the diffuse horizontal irradiance
    Real alternative_diffuse_factor;  // takes its place where that is zero
};

using MonthlyFactors = std::array<Real, 12>;  // January to December

constexpr MonthlyFactors all_year(Real factor) noexcept {
    MonthlyFactors factors{};
    factors.fill(factor);
    return factors;
}

struct SiteClass {
    Real ground_reflectance;
    MonthlyFactors beam, diffuse, alternative_diffuse;
};

inline constexpr SiteClass site_classes[6] = {
    {0.2f,
     {0.88f, 0.83f, 0.88f, 0.73f, 0.72f, 0.82f, 0.72f, 0.73f, 0.88f, 0.83f, 0.88f, 0.97f},
     {1.29f, 1.18f, 0.97f, 0.93f, 0.89f, 0.66f, 0.89f, 0.93f, 0.97f, 1.18f, 1.29f, 1.18f},
     all_year(0.0f)},
    {0.2f, all_year(0.58f), all_year(0.92f), all_year(0.0f)},
    {0.2f, all_year(0.5f), all_year(1.1f), all_year(0.0f)},
    {0.5f, all_year(1.1f), all_year(0.0f), all_year(0.9f)},
    {0.2f, all_year(1.0f), all_year(1.0f), all_year(0.0f)},
    {0.2f, all_year(1.0f), all_year(0.0f), all_year(1.0f)},
};

// All zero for no site class or no month.
constexpr SiteConstants site_constants(Integer site_class, Integer month) noexcept {
    if (site_class < 1 || site_class > 6 || !is_month(month)) return {0.0f, 0.0f, 0.0f, 0.0f};
    const SiteClass& site = site_classes[site_class - 1];
    const auto m = static_cast<std::size_t>(month - 1);
    return {site.ground_reflectance, site.beam[m], site.diffuse[m], site.alternative_diffuse[m]};
}

}  // namespace quorvel::climate
