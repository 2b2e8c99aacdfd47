// Glazing: see quorvel/quorvel.hpp.
// Produced from the catalogue of routines (catalogue/); do not edit.
#pragma once

#include <quorvel.h>
#include <quorvel_arrays.h>

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "quorvel/call.hpp"
#include "quorvel/input.hpp"
#include "quorvel/selectors.hpp"

// The inner names keep what an application compiles apart from the library's own functions.
namespace quorvel::glazing {
inline namespace v0 {

/// What glass_direct returns.
struct GlassDirect {
    /// transmittance, parallel polarisation
    float parallel_transmittance = detail::none<float>;
    /// absorptance, parallel
    float parallel_absorptance = detail::none<float>;
    /// reflectance, parallel
    float parallel_reflectance = detail::none<float>;
    /// transmittance, perpendicular polarisation
    float perpendicular_transmittance = detail::none<float>;
    /// absorptance, perpendicular
    float perpendicular_absorptance = detail::none<float>;
    /// reflectance, perpendicular
    float perpendicular_reflectance = detail::none<float>;
};

/// Arrays for what glass_direct returns.
struct GlassDirectArrays {
    std::span<float> parallel_transmittance;
    std::span<float> parallel_absorptance;
    std::span<float> parallel_reflectance;
    std::span<float> perpendicular_transmittance;
    std::span<float> perpendicular_absorptance;
    std::span<float> perpendicular_reflectance;
};

/// Transmittance, absorptance and reflectance of a pane for direct radiation, both polarisations.
///
/// @note The unpolarised values are the means of the two polarisations.
///
/// @note A normal reflectance in 0.01..0.99 means coated: factors on the normal transmittance and
/// on 1 - normal_reflectance are interpolated from a table every 5 degrees, the same for both
/// polarisations; beyond 1.57 rad everything is reflected. Any other means uncoated and is not
/// used.
///
/// @note Uncoated glass has the refractive index 1.52. Below a transmittance of 0.001 it is opaque
/// and reflects everything.
///
/// @note No uncoated glass has a normal transmittance above 0.9184: from there on its absorption
/// would be below 0 and is held at 0, so that the three add up to more than 1. At 0.92 their
/// unpolarised sum is 1.0018 at normal incidence, 1.0024 at 1.5 rad and 1.011 at 1.57 rad.
///
/// @note For nearly opaque uncoated glass the difference in WNKL cancels: at normal incidence the
/// transmittance comes back to within 4 % from 0.02 on and 34 % from 0.005 on; below that 0.002
/// gives 0 and 0.0025 gives 0.006.
///
/// @note Uncoated, an angle beyond pi/2 is not tested, and the results mean nothing there.
///
/// @note The transmittance of coated glass is not tested: where it exceeds 1 with the reflectance
/// the three do not add up to 1.
///
/// @param normal_transmittance  0 .. 0.92: normal transmittance
/// @param normal_reflectance  0 .. 0.99: normal reflectance of coated glass, 0 for uncoated
/// @param incidence  rad, -1.5708 .. 1.5708: angle of incidence
/// Source: Uncoated glass: WNKL, WNRANG, WNREFL, WNABEN, WNTAR in turn. Coated glass: tabulated
///     angular factors whose origin is not recorded.
/// (WNDRGL of quorvel.h)
inline GlassDirect glass_direct(float normal_transmittance, float normal_reflectance,
        float incidence) {
    GlassDirect out;
    WNDRGL(&normal_transmittance, &normal_reflectance, &incidence, &out.parallel_transmittance,
        &out.parallel_absorptance, &out.parallel_reflectance, &out.perpendicular_transmittance,
        &out.perpendicular_absorptance, &out.perpendicular_reflectance);
    return out;
}

/// glass_direct for whole arrays.
inline void glass_direct(const Input<float>& normal_transmittance,
        const Input<float>& normal_reflectance, const Input<float>& incidence,
        const GlassDirectArrays& out) {
    detail::call_arrays("glass_direct", quorvel_glass_direct,
        detail::given("normal_transmittance", normal_transmittance),
        detail::given("normal_reflectance", normal_reflectance),
        detail::given("incidence", incidence),
        detail::returned("parallel_transmittance", out.parallel_transmittance),
        detail::returned("parallel_absorptance", out.parallel_absorptance),
        detail::returned("parallel_reflectance", out.parallel_reflectance),
        detail::returned("perpendicular_transmittance", out.perpendicular_transmittance),
        detail::returned("perpendicular_absorptance", out.perpendicular_absorptance),
        detail::returned("perpendicular_reflectance", out.perpendicular_reflectance));
}

/// What glass_diffuse returns.
struct GlassDiffuse {
    /// diffuse transmittance
    float transmittance = detail::none<float>;
    /// diffuse absorptance
    float absorptance = detail::none<float>;
};

/// Arrays for what glass_diffuse returns.
struct GlassDiffuseArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
};

/// Transmittance and absorptance of a pane for isotropic diffuse radiation.
///
/// @note The pane is taken exactly as by WNDRGL, coated and opaque glass included.
///
/// @note The bits are those of WNDRGL summed over the bands.
///
/// @param normal_transmittance  0 .. 0.92: normal transmittance
/// @param normal_reflectance  0 .. 0.99: normal reflectance of coated glass, 0 for uncoated
/// Source: WNDRGL at the centres of 18 bands of 5 degrees, each weighted with the integral of 2 sin
///     cos over the band.
/// (WNDFGL of quorvel.h)
inline GlassDiffuse glass_diffuse(float normal_transmittance, float normal_reflectance) {
    GlassDiffuse out;
    WNDFGL(&normal_transmittance, &normal_reflectance, &out.transmittance, &out.absorptance);
    return out;
}

/// glass_diffuse for whole arrays.
inline void glass_diffuse(const Input<float>& normal_transmittance,
        const Input<float>& normal_reflectance, const GlassDiffuseArrays& out) {
    detail::call_arrays("glass_diffuse", quorvel_glass_diffuse,
        detail::given("normal_transmittance", normal_transmittance),
        detail::given("normal_reflectance", normal_reflectance),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance));
}

/// What stacked_layers returns.
struct StackedLayers {
    /// transmittance of the stack
    float transmittance = detail::none<float>;
    /// absorptance, 1 - transmittance - reflectance
    float absorptance = detail::none<float>;
    /// reflectance of the stack
    float reflectance = detail::none<float>;
};

/// Arrays for what stacked_layers returns.
struct StackedLayersArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
    std::span<float> reflectance;
};

/// Transmittance, absorptance and reflectance of a stack of layers, each reflection counted once.
///
/// @note A layer's reflection passes the layers above it once each way; there is no further
/// inter-reflection.
///
/// @note Where transmittance and reflectance exceed 0.99 together, the reflectance is reduced until
/// they do not. It turns negative if the transmittance alone is above 0.99.
///
/// @note The last layer is met first. No layers are an empty stack, which transmits everything.
///
/// @param layer_transmittances  0 .. 1: transmittance of each layer [layers]
/// @param layer_reflectances  0 .. 1: reflectance of each layer [layers]
/// @throws std::out_of_range unless layer_transmittances and layer_reflectances have from 0
///     (layers: number of layers)
/// Source: First-order combination of the layers.
/// (WNCOM2 of quorvel.h)
inline StackedLayers stacked_layers(std::span<const float> layer_transmittances,
        std::span<const float> layer_reflectances) {
    const std::int32_t layers = detail::counted("stacked_layers", "layers", {0, 2147483647},
        {{"layer_transmittances", layer_transmittances.size()}, {"layer_reflectances",
        layer_reflectances.size()}});
    StackedLayers out;
    WNCOM2(&layers, detail::numbers(layer_transmittances), &detail::unread<float>,
        detail::numbers(layer_reflectances), &out.transmittance, &out.absorptance,
        &out.reflectance);
    return out;
}

/// stacked_layers for whole arrays.
/// Of a row of layer_transmittances and layer_reflectances, layers tells how many count.
inline void stacked_layers(const Input<std::int32_t>& layers,
        Table<const float> layer_transmittances, Table<const float> layer_reflectances,
        const StackedLayersArrays& out) {
    detail::call_arrays("stacked_layers", quorvel_stacked_layers,
        detail::given("layers", layers),
        detail::given("layer_transmittances", layer_transmittances, layers),
        detail::given("layer_reflectances", layer_reflectances, layers),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance", out.reflectance));
}

/// What traced_layers returns.
struct TracedLayers {
    /// transmittance of the stack
    float transmittance = detail::none<float>;
    /// absorptance of the stack
    float absorptance = detail::none<float>;
    /// reflectance of the stack
    float reflectance = detail::none<float>;
};

/// Arrays for what traced_layers returns.
struct TracedLayersArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
    std::span<float> reflectance;
};

/// Transmittance, absorptance and reflectance of a stack of layers with the inter-reflections
/// between all of them.
///
/// @note In a pass the flux goes forward through all layers and back by one; nine passes are made.
/// What needs more than eight steps back is missing from all three results: nothing of one layer;
/// of two, the ninth power of the product of their reflectances as a share of the transmittance; of
/// ten and eleven layers all that the last ones reflect.
///
/// @note The last layer is met first. No layers are an empty stack, which transmits everything.
///
/// @note That transmittance, absorptance and reflectance of a layer add up to 1 is left to the
/// caller.
///
/// @param layer_transmittances  0 .. 1: transmittance of each layer, the same from both sides
///     [layers]
/// @param layer_absorptances  0 .. 1: absorptance of each layer [layers]
/// @param layer_reflectances  0 .. 1: reflectance of each layer, the same from both sides [layers]
/// @throws std::out_of_range unless layer_transmittances and layer_absorptances and
///     layer_reflectances have 0 .. 11 (layers: number of layers)
/// Source: Tracing of one forward and one backward flux, which tends to the adding method.
/// (WNCOMP of quorvel.h)
inline TracedLayers traced_layers(std::span<const float> layer_transmittances,
        std::span<const float> layer_absorptances, std::span<const float> layer_reflectances) {
    const std::int32_t layers = detail::counted("traced_layers", "layers", {0, 11},
        {{"layer_transmittances", layer_transmittances.size()}, {"layer_absorptances",
        layer_absorptances.size()}, {"layer_reflectances", layer_reflectances.size()}});
    TracedLayers out;
    WNCOMP(&layers, detail::numbers(layer_transmittances), detail::numbers(layer_absorptances),
        detail::numbers(layer_reflectances), &out.transmittance, &out.absorptance,
        &out.reflectance);
    return out;
}

/// traced_layers for whole arrays.
/// Of a row of layer_transmittances and layer_absorptances and layer_reflectances, layers tells how
/// many count.
inline void traced_layers(const Input<std::int32_t>& layers,
        Table<const float> layer_transmittances, Table<const float> layer_absorptances,
        Table<const float> layer_reflectances, const TracedLayersArrays& out) {
    detail::call_arrays("traced_layers", quorvel_traced_layers,
        detail::given("layers", layers),
        detail::given("layer_transmittances", layer_transmittances, layers),
        detail::given("layer_absorptances", layer_absorptances, layers),
        detail::given("layer_reflectances", layer_reflectances, layers),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance", out.reflectance));
}

/// What roller_blind returns.
struct RollerBlind {
    /// transmittance, that of the blind
    float transmittance = detail::none<float>;
    /// absorptance, the rest
    float absorptance = detail::none<float>;
    /// reflectance, that of the blind
    float reflectance = detail::none<float>;
};

/// Arrays for what roller_blind returns.
struct RollerBlindArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
    std::span<float> reflectance;
};

/// Transmittance, absorptance and reflectance of a roller blind, the same at every angle.
///
/// Formula: absorptance = 1 - blind_transmittance - blind_reflectance
///
/// @note Nothing is limited: a blind that transmits and reflects more than 1 gives a negative
/// absorptance.
///
/// @param blind_transmittance  0 .. 1: transmittance of the blind
/// @param blind_reflectance  0 .. 1: reflectance of the blind
/// Source: Conservation of energy.
/// (WNDRRO of quorvel.h)
inline RollerBlind roller_blind(float blind_transmittance, float blind_reflectance) {
    RollerBlind out;
    WNDRRO(&blind_transmittance, &blind_reflectance, &detail::unread<float>, &out.transmittance,
        &out.absorptance, &out.reflectance);
    return out;
}

/// roller_blind for whole arrays.
inline void roller_blind(const Input<float>& blind_transmittance,
        const Input<float>& blind_reflectance, const RollerBlindArrays& out) {
    detail::call_arrays("roller_blind", quorvel_roller_blind,
        detail::given("blind_transmittance", blind_transmittance),
        detail::given("blind_reflectance", blind_reflectance),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance", out.reflectance));
}

/// What diffuse_roller_blind returns.
struct DiffuseRollerBlind {
    /// transmittance, that of the blind to rounding
    float transmittance = detail::none<float>;
    /// absorptance, the rest to rounding
    float absorptance = detail::none<float>;
    /// reflectance, 1 - transmittance - absorptance
    float reflectance = detail::none<float>;
};

/// Arrays for what diffuse_roller_blind returns.
struct DiffuseRollerBlindArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
    std::span<float> reflectance;
};

/// Transmittance, absorptance and reflectance of a roller blind for diffuse radiation.
///
/// @note The blind is the same at every angle; the sum of the bands' weights, 0.9999999, remains as
/// a factor.
///
/// @note Nothing is limited: a blind that transmits and reflects more than 1 gives a negative
/// absorptance.
///
/// @param blind_transmittance  0 .. 1: transmittance of the blind
/// @param blind_reflectance  0 .. 1: reflectance of the blind
/// Source: WNDRRO, integrated as in WNDFSL.
/// (WNDFRO of quorvel.h)
inline DiffuseRollerBlind diffuse_roller_blind(float blind_transmittance, float blind_reflectance) {
    DiffuseRollerBlind out;
    WNDFRO(&blind_transmittance, &blind_reflectance, &out.transmittance, &out.absorptance,
        &out.reflectance);
    return out;
}

/// diffuse_roller_blind for whole arrays.
inline void diffuse_roller_blind(const Input<float>& blind_transmittance,
        const Input<float>& blind_reflectance, const DiffuseRollerBlindArrays& out) {
    detail::call_arrays("diffuse_roller_blind", quorvel_diffuse_roller_blind,
        detail::given("blind_transmittance", blind_transmittance),
        detail::given("blind_reflectance", blind_reflectance),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance", out.reflectance));
}

/// Angle of a ray inside the glass, by Snell's law.
///
/// Formula: asin(sin(incidence) / refractive_index)
///
/// @note Where the sine of the incidence is below 0.01 in size the result is incidence /
/// refractive_index, the ratio of the angles in place of that of the sines.
///
/// @note An index so far below 1 that the reflection is total gives no number.
///
/// @param incidence  rad, -1.5708 .. 1.5708: angle of incidence
/// @param refractive_index  1 .. 4: refractive index of the glass
/// @return rad: refraction angle
/// Source: Snell's law.
/// (WNRANG of quorvel.h)
inline float refraction_angle(float incidence, float refractive_index) {
    return WNRANG(&incidence, &refractive_index);
}

/// refraction_angle for whole arrays.
inline void refraction_angle(const Input<float>& incidence, const Input<float>& refractive_index,
        std::span<float> result) {
    detail::call_arrays("refraction_angle", quorvel_refraction_angle,
        detail::given("incidence", incidence),
        detail::given("refractive_index", refractive_index),
        detail::returned("result", result));
}

/// What surface_reflectance returns.
struct SurfaceReflectance {
    /// reflectance, polarised parallel to the plane of incidence
    float parallel_reflectance = detail::none<float>;
    /// reflectance, polarised perpendicular to it
    float perpendicular_reflectance = detail::none<float>;
};

/// Arrays for what surface_reflectance returns.
struct SurfaceReflectanceArrays {
    std::span<float> parallel_reflectance;
    std::span<float> perpendicular_reflectance;
};

/// Reflectance of one face of the glass for the two polarisations, by Fresnel's equations.
///
/// Formula: perpendicular (sin(i - r) / sin(i + r))^2, parallel (tan(i - r) / tan(i + r))^2; i =
/// incidence, r = refraction_angle
///
/// @note Up to an angle of 0.01 in size, and for an incidence that is no number, both are the value
/// at normal incidence, ((1 - n) / (1 + n))^2 with the refractive index n. WNRANG tests the sine of
/// the angle instead; the two limits differ deliberately.
///
/// @param incidence  rad, -1.5708 .. 1.5708: angle of incidence
/// @param refraction_angle  rad, -1.5708 .. 1.5708: refraction angle, of the sign of the incidence
/// @param refractive_index  1 .. 4: refractive index, used at normal incidence only
/// Source: Fresnel's equations; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter
///     5.
/// (WNREFL of quorvel.h)
inline SurfaceReflectance surface_reflectance(float incidence, float refraction_angle,
        float refractive_index) {
    SurfaceReflectance out;
    WNREFL(&incidence, &refraction_angle, &refractive_index, &out.parallel_reflectance,
        &out.perpendicular_reflectance);
    return out;
}

/// surface_reflectance for whole arrays.
inline void surface_reflectance(const Input<float>& incidence, const Input<float>& refraction_angle,
        const Input<float>& refractive_index, const SurfaceReflectanceArrays& out) {
    detail::call_arrays("surface_reflectance", quorvel_surface_reflectance,
        detail::given("incidence", incidence),
        detail::given("refraction_angle", refraction_angle),
        detail::given("refractive_index", refractive_index),
        detail::returned("parallel_reflectance", out.parallel_reflectance),
        detail::returned("perpendicular_reflectance", out.perpendicular_reflectance));
}

/// Share of a ray that is absorbed in one pass through the body of a pane.
///
/// Formula: 1 - exp(-absorption_product / cos(refraction_angle))
///
/// @param refraction_angle  rad, -1.5708 .. 1.5708: refraction angle
/// @param absorption_product  0 .. 20: absorption coefficient times thickness
/// @return absorbed share
/// Source: Bouguer's law of absorption.
/// (WNABEN of quorvel.h)
inline float single_pass_absorption(float refraction_angle, float absorption_product) {
    return WNABEN(&refraction_angle, &absorption_product, &detail::unread<float>);
}

/// single_pass_absorption for whole arrays.
inline void single_pass_absorption(const Input<float>& refraction_angle,
        const Input<float>& absorption_product, std::span<float> result) {
    detail::call_arrays("single_pass_absorption", quorvel_single_pass_absorption,
        detail::given("refraction_angle", refraction_angle),
        detail::given("absorption_product", absorption_product),
        detail::returned("result", result));
}

/// What slab_optics returns.
struct SlabOptics {
    /// transmittance
    float transmittance = detail::none<float>;
    /// absorptance, not below 0
    float absorptance = detail::none<float>;
    /// reflectance
    float reflectance = detail::none<float>;
};

/// Arrays for what slab_optics returns.
struct SlabOpticsArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
    std::span<float> reflectance;
};

/// Transmittance, absorptance and reflectance of a pane for one polarisation, with all
/// inter-reflections between its two faces.
///
/// Formula: transmittance = (1 - r)^2 tau / (1 - r^2 tau^2), reflectance = r + r (1 - r)^2 tau^2 /
/// (1 - r^2 tau^2), absorptance = 1 - transmittance - reflectance; tau = 1 -
/// single_pass_absorptance, r = face_reflectance
///
/// @note Faces that reflect everything around a body that absorbs nothing leave the result
/// undefined (0/0).
///
/// @note What is no number stays so; the limit at 0 touches only numbers.
///
/// @param single_pass_absorptance  0 .. 1: share absorbed in a single pass
/// @param face_reflectance  0 .. 1: reflectance of either face
/// Source: Stokes, On the intensity of the light reflected from or transmitted through a pile of
///     plates, 1862; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.
/// (WNTAR of quorvel.h)
inline SlabOptics slab_optics(float single_pass_absorptance, float face_reflectance) {
    SlabOptics out;
    WNTAR(&single_pass_absorptance, &face_reflectance, &out.transmittance, &out.absorptance,
        &out.reflectance);
    return out;
}

/// slab_optics for whole arrays.
inline void slab_optics(const Input<float>& single_pass_absorptance,
        const Input<float>& face_reflectance, const SlabOpticsArrays& out) {
    detail::call_arrays("slab_optics", quorvel_slab_optics,
        detail::given("single_pass_absorptance", single_pass_absorptance),
        detail::given("face_reflectance", face_reflectance),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance", out.reflectance));
}

/// Absorption coefficient times thickness of a pane, from its transmittance at normal incidence.
///
/// Formula: -ln((sqrt((1 - r)^4 + 4 r^2 T^2) - (1 - r)^2) / (2 T r^2)); T = normal_transmittance, r
/// = ((refractive_index - 1) / (refractive_index + 1))^2
///
/// @note Evaluated as written in single precision, where a difference of roots cancels for nearly
/// opaque glass: the relative error of the transmittance T, given back by WNTNOR, is up to 1.5e-5 /
/// T^2, which is 0.02 % at 0.3, 0.15 % at 0.1 and 0.6 % at 0.05; at 0.002 and less the result is
/// infinite.
///
/// @note Above the transmittance of glass that absorbs nothing, 0.918 for an index of 1.52, the
/// result is negative.
///
/// @note A transmittance of 0 and an index of 1 divide by zero and give no finite number.
///
/// @param normal_transmittance  0 .. 0.92: normal transmittance of the pane
/// @param refractive_index  1 .. 4: refractive index
/// @return absorption coefficient times thickness
/// Source: The slab of WNTAR at normal incidence, solved for the absorption.
/// (WNKL of quorvel.h)
inline float absorption_product(float normal_transmittance, float refractive_index) {
    return WNKL(&normal_transmittance, &refractive_index);
}

/// absorption_product for whole arrays.
inline void absorption_product(const Input<float>& normal_transmittance,
        const Input<float>& refractive_index, std::span<float> result) {
    detail::call_arrays("absorption_product", quorvel_absorption_product,
        detail::given("normal_transmittance", normal_transmittance),
        detail::given("refractive_index", refractive_index),
        detail::returned("result", result));
}

/// Transmittance of a pane at normal incidence: the inverse of WNKL.
///
/// Formula: (1 - r)^2 tau / (1 - r^2 tau^2); tau = exp(-absorption_product), r = normal_reflectance
///
/// @note The second argument is a reflectance, ((n - 1) / (n + 1))^2, where WNKL takes the
/// refractive index.
///
/// @param absorption_product  0 .. 20: absorption coefficient times thickness
/// @param normal_reflectance  0 .. 0.99: normal reflectance of one face
/// @return normal transmittance of the pane
/// Source: The slab of WNTAR at normal incidence.
/// (WNTNOR of quorvel.h)
inline float normal_transmittance(float absorption_product, float normal_reflectance) {
    return WNTNOR(&absorption_product, &normal_reflectance);
}

/// normal_transmittance for whole arrays.
inline void normal_transmittance(const Input<float>& absorption_product,
        const Input<float>& normal_reflectance, std::span<float> result) {
    detail::call_arrays("normal_transmittance", quorvel_normal_transmittance,
        detail::given("absorption_product", absorption_product),
        detail::given("normal_reflectance", normal_reflectance),
        detail::returned("result", result));
}

/// What pane_temperatures returns.
struct PaneTemperatures {
    /// °C: temperature of pane 1, nearest the room; not a number with panes outside 1 to 5
    float pane_temperature_1 = detail::none<float>;
    /// °C: temperature of pane 2; not a number with panes outside 2 to 5
    float pane_temperature_2 = detail::none<float>;
    /// °C: temperature of pane 3; not a number with panes outside 3 to 5
    float pane_temperature_3 = detail::none<float>;
    /// °C: temperature of pane 4; not a number with panes outside 4 to 5
    float pane_temperature_4 = detail::none<float>;
    /// °C: temperature of pane 5; not a number with panes outside 4 to 5
    float pane_temperature_5 = detail::none<float>;
};

/// Arrays for what pane_temperatures returns.
struct PaneTemperaturesArrays {
    std::span<float> pane_temperature_1;
    std::span<float> pane_temperature_2;
    std::span<float> pane_temperature_3;
    std::span<float> pane_temperature_4;
    std::span<float> pane_temperature_5;
};

/// Steady temperatures of the panes of a glazing from the air temperatures on both sides and the
/// solar radiation that each pane absorbs.
///
/// @note What is given as absorbed in panes that are not there has no influence. Four panes are
/// calculated as five: what the fifth absorbs counts (give 0 for it), and it has a temperature.
///
/// @param inside_temperature  °C, -100 .. 200: air temperature in the room
/// @param outside_temperature  °C, -100 .. 200: air temperature outdoors
/// @param panes  1 .. 5: number of panes
/// @param absorbed_1  W/m², from 0: absorbed in pane 1, nearest the room
/// @param absorbed_2  W/m², from 0: absorbed in pane 2
/// @param absorbed_3  W/m², from 0: absorbed in pane 3
/// @param absorbed_4  W/m², from 0: absorbed in pane 4
/// @param absorbed_5  W/m², from 0: absorbed in pane 5
/// Source: Heat balance of the panes with fixed resistances: 0.12 m²K/W at the room side, 0.06
///     m²K/W outdoors; coefficients rounded to two decimals.
/// (WNTEMP of quorvel.h)
inline PaneTemperatures pane_temperatures(float inside_temperature, float outside_temperature,
        std::int32_t panes, float absorbed_1, float absorbed_2, float absorbed_3, float absorbed_4,
        float absorbed_5) {
    PaneTemperatures out;
    WNTEMP(&inside_temperature, &outside_temperature, &panes, &absorbed_1, &absorbed_2, &absorbed_3,
        &absorbed_4, &absorbed_5, &out.pane_temperature_1, &out.pane_temperature_2,
        &out.pane_temperature_3, &out.pane_temperature_4, &out.pane_temperature_5);
    return out;
}

/// pane_temperatures for whole arrays.
inline void pane_temperatures(const Input<float>& inside_temperature,
        const Input<float>& outside_temperature, const Input<std::int32_t>& panes,
        const Input<float>& absorbed_1, const Input<float>& absorbed_2,
        const Input<float>& absorbed_3, const Input<float>& absorbed_4,
        const Input<float>& absorbed_5, const PaneTemperaturesArrays& out) {
    detail::call_arrays("pane_temperatures", quorvel_pane_temperatures,
        detail::given("inside_temperature", inside_temperature),
        detail::given("outside_temperature", outside_temperature),
        detail::given("panes", panes),
        detail::given("absorbed_1", absorbed_1),
        detail::given("absorbed_2", absorbed_2),
        detail::given("absorbed_3", absorbed_3),
        detail::given("absorbed_4", absorbed_4),
        detail::given("absorbed_5", absorbed_5),
        detail::returned("pane_temperature_1", out.pane_temperature_1),
        detail::returned("pane_temperature_2", out.pane_temperature_2),
        detail::returned("pane_temperature_3", out.pane_temperature_3),
        detail::returned("pane_temperature_4", out.pane_temperature_4),
        detail::returned("pane_temperature_5", out.pane_temperature_5));
}

/// What unit_direct returns.
struct UnitDirect {
    /// transmittance
    float transmittance = detail::none<float>;
    /// absorptance
    float absorptance = detail::none<float>;
    /// reflectance, 1 - transmittance - absorptance, at least 0.01 to rounding
    float reflectance = detail::none<float>;
};

/// Arrays for what unit_direct returns.
struct UnitDirectArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
    std::span<float> reflectance;
};

/// Transmittance, absorptance and reflectance for direct radiation of a glazing unit known only by
/// its shading coefficients.
///
/// @note A long-wave coefficient below 0.0001 counts as missing: the other is then split into 0.9
/// short-wave and 0.1 long-wave.
///
/// @note An uncoated pane of index 1.52 and normal transmittance 0.87 times the short-wave
/// coefficient carries the angular behaviour.
///
/// @note If the two coefficients add up to at most 1, the absorptance is 2.61 times the long-wave
/// one at normal incidence and follows the pane over the angle; otherwise it is that of the pane. A
/// total of 1 belongs to the former, but only as single precision rounds.
///
/// @note The absorptance is at most 0.99 - transmittance. An opaque unit, whose equivalent pane
/// absorbs nothing, gets just that: coefficients of 0 give an absorptance of 0.99.
///
/// @note An angle beyond pi/2 is not tested, and the results mean nothing there: coefficients of
/// 0.9 and 0.05 give a transmittance of -0.54 at 1.6 rad.
///
/// @param shortwave_shading_coefficient  0 .. 1.05: short-wave shading coefficient; the total one
///     if the long-wave one is missing
/// @param longwave_shading_coefficient  0 .. 1: long-wave shading coefficient, 0 if missing
/// @param incidence  rad, -1.5708 .. 1.5708: angle of incidence
/// Source: Shading coefficients relative to clear float glass of total transmittance 0.87, of whose
///     absorbed part a third flows inwards.
/// (WNDRSC of quorvel.h)
inline UnitDirect unit_direct(float shortwave_shading_coefficient,
        float longwave_shading_coefficient, float incidence) {
    UnitDirect out;
    WNDRSC(&shortwave_shading_coefficient, &longwave_shading_coefficient, &incidence,
        &out.transmittance, &out.absorptance, &out.reflectance);
    return out;
}

/// unit_direct for whole arrays.
inline void unit_direct(const Input<float>& shortwave_shading_coefficient,
        const Input<float>& longwave_shading_coefficient, const Input<float>& incidence,
        const UnitDirectArrays& out) {
    detail::call_arrays("unit_direct", quorvel_unit_direct,
        detail::given("shortwave_shading_coefficient", shortwave_shading_coefficient),
        detail::given("longwave_shading_coefficient", longwave_shading_coefficient),
        detail::given("incidence", incidence),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance", out.reflectance));
}

/// What unit_diffuse returns.
struct UnitDiffuse {
    /// diffuse transmittance
    float transmittance = detail::none<float>;
    /// diffuse absorptance
    float absorptance = detail::none<float>;
    /// diffuse reflectance, 1 - transmittance - absorptance
    float reflectance = detail::none<float>;
};

/// Arrays for what unit_diffuse returns.
struct UnitDiffuseArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
    std::span<float> reflectance;
};

/// Transmittance, absorptance and reflectance for isotropic diffuse radiation of a glazing unit
/// known only by its shading coefficients.
///
/// @note Coefficients as in WNDRSC. If they add up to at most 1 the absorptance is 2.61 times the
/// long-wave one, otherwise that of the equivalent pane.
///
/// @note The absorptance is at most 0.99 - transmittance. Unlike WNDRSC, coefficients of 0 give a
/// reflectance of 1.
///
/// @param shortwave_shading_coefficient  0 .. 1.05: short-wave shading coefficient; the total one
///     if the long-wave one is missing
/// @param longwave_shading_coefficient  0 .. 1: long-wave shading coefficient, 0 if missing
/// Source: WNDRSC, with the equivalent pane integrated as in WNDFGL.
/// (WNDFSC of quorvel.h)
inline UnitDiffuse unit_diffuse(float shortwave_shading_coefficient,
        float longwave_shading_coefficient) {
    UnitDiffuse out;
    WNDFSC(&shortwave_shading_coefficient, &longwave_shading_coefficient, &out.transmittance,
        &out.absorptance, &out.reflectance);
    return out;
}

/// unit_diffuse for whole arrays.
inline void unit_diffuse(const Input<float>& shortwave_shading_coefficient,
        const Input<float>& longwave_shading_coefficient, const UnitDiffuseArrays& out) {
    detail::call_arrays("unit_diffuse", quorvel_unit_diffuse,
        detail::given("shortwave_shading_coefficient", shortwave_shading_coefficient),
        detail::given("longwave_shading_coefficient", longwave_shading_coefficient),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance", out.reflectance));
}

/// What unit_direct_shares returns.
struct UnitDirectShares {
    /// transmittance
    float transmittance = detail::none<float>;
    /// share of each pane in 1 - transmittance - absorptance [panes]
    std::vector<float> pane_shares;
    /// absorptance
    float absorptance = detail::none<float>;
};

/// Arrays for what unit_direct_shares returns.
struct UnitDirectSharesArrays {
    std::span<float> transmittance;
    Table<float> pane_shares;
    std::span<float> absorptance;
};

/// WNDRSC, with the remainder that is neither transmitted nor absorbed split among the panes of the
/// unit.
///
/// @note What is split is the remainder, not the absorptance.
///
/// @param shortwave_shading_coefficient  0 .. 1.05: short-wave shading coefficient; the total one
///     if the long-wave one is missing
/// @param longwave_shading_coefficient  0 .. 1: long-wave shading coefficient, 0 if missing
/// @param incidence  rad, -1.5708 .. 1.5708: angle of incidence
/// @param panes  1 .. 5: number of panes
/// Source: WNDRSC; the shares by number of panes are fixed, 0.4 and 0.6 for two, their origin is
///     not recorded.
/// (WNDRSM of quorvel.h)
inline UnitDirectShares unit_direct_shares(float shortwave_shading_coefficient,
        float longwave_shading_coefficient, float incidence, std::int32_t panes) {
    detail::check_count("unit_direct_shares", "panes", {1, 5}, panes);
    UnitDirectShares out;
    out.pane_shares.assign(static_cast<std::size_t>(panes), detail::none<float>);
    WNDRSM(&shortwave_shading_coefficient, &longwave_shading_coefficient, &incidence, &panes,
        &out.transmittance, detail::numbers(out.pane_shares), &out.absorptance);
    return out;
}

/// unit_direct_shares for whole arrays.
/// Of a row of pane_shares, panes tells how many count.
inline void unit_direct_shares(const Input<float>& shortwave_shading_coefficient,
        const Input<float>& longwave_shading_coefficient, const Input<float>& incidence,
        const Input<std::int32_t>& panes, const UnitDirectSharesArrays& out) {
    detail::call_arrays("unit_direct_shares", quorvel_unit_direct_shares,
        detail::given("shortwave_shading_coefficient", shortwave_shading_coefficient),
        detail::given("longwave_shading_coefficient", longwave_shading_coefficient),
        detail::given("incidence", incidence),
        detail::given("panes", panes),
        detail::returned("transmittance", out.transmittance),
        detail::returned("pane_shares", out.pane_shares, panes),
        detail::returned("absorptance", out.absorptance));
}

/// What unit_diffuse_shares returns.
struct UnitDiffuseShares {
    /// diffuse transmittance
    float transmittance = detail::none<float>;
    /// share of each pane in 1 - transmittance - absorptance [panes]
    std::vector<float> pane_shares;
    /// diffuse absorptance
    float absorptance = detail::none<float>;
};

/// Arrays for what unit_diffuse_shares returns.
struct UnitDiffuseSharesArrays {
    std::span<float> transmittance;
    Table<float> pane_shares;
    std::span<float> absorptance;
};

/// WNDFSC, with the remainder that is neither transmitted nor absorbed split among the panes of the
/// unit.
///
/// @note The remainder is split as in WNDRSM.
///
/// @param shortwave_shading_coefficient  0 .. 1.05: short-wave shading coefficient; the total one
///     if the long-wave one is missing
/// @param longwave_shading_coefficient  0 .. 1: long-wave shading coefficient, 0 if missing
/// @param panes  1 .. 5: number of panes
/// Source: WNDFSC, with the shares of WNDRSM.
/// (WNDFSM of quorvel.h)
inline UnitDiffuseShares unit_diffuse_shares(float shortwave_shading_coefficient,
        float longwave_shading_coefficient, std::int32_t panes) {
    detail::check_count("unit_diffuse_shares", "panes", {1, 5}, panes);
    UnitDiffuseShares out;
    out.pane_shares.assign(static_cast<std::size_t>(panes), detail::none<float>);
    WNDFSM(&shortwave_shading_coefficient, &longwave_shading_coefficient, &panes,
        &out.transmittance, detail::numbers(out.pane_shares), &out.absorptance);
    return out;
}

/// unit_diffuse_shares for whole arrays.
/// Of a row of pane_shares, panes tells how many count.
inline void unit_diffuse_shares(const Input<float>& shortwave_shading_coefficient,
        const Input<float>& longwave_shading_coefficient, const Input<std::int32_t>& panes,
        const UnitDiffuseSharesArrays& out) {
    detail::call_arrays("unit_diffuse_shares", quorvel_unit_diffuse_shares,
        detail::given("shortwave_shading_coefficient", shortwave_shading_coefficient),
        detail::given("longwave_shading_coefficient", longwave_shading_coefficient),
        detail::given("panes", panes),
        detail::returned("transmittance", out.transmittance),
        detail::returned("pane_shares", out.pane_shares, panes),
        detail::returned("absorptance", out.absorptance));
}

/// What unit_shares returns.
struct UnitShares {
    /// transmittance
    float transmittance = detail::none<float>;
    /// share of each pane in 1 - transmittance - absorptance [panes]
    std::vector<float> pane_shares;
    /// absorptance
    float absorptance = detail::none<float>;
};

/// Arrays for what unit_shares returns.
struct UnitSharesArrays {
    std::span<float> transmittance;
    Table<float> pane_shares;
    std::span<float> absorptance;
};

/// WNDRSM or WNDFSM, by a selector.
///
/// @note The remainder is split as in WNDRSM.
///
/// @param radiation  kind of radiation: 1 direct radiation (WNDRSM), 2 diffuse radiation (WNDFSM),
///     as any other value
/// @param shortwave_shading_coefficient  0 .. 1.05: short-wave shading coefficient; the total one
///     if the long-wave one is missing
/// @param longwave_shading_coefficient  0 .. 1: long-wave shading coefficient, 0 if missing
/// @param incidence  rad, -1.5708 .. 1.5708: angle of incidence, read for direct radiation only
/// @param panes  1 .. 5: number of panes
/// Source: WNDRSM and WNDFSM.
/// (WNDRS0 of quorvel.h)
inline UnitShares unit_shares(std::int32_t radiation, float shortwave_shading_coefficient,
        float longwave_shading_coefficient, float incidence, std::int32_t panes) {
    detail::check_count("unit_shares", "panes", {1, 5}, panes);
    UnitShares out;
    out.pane_shares.assign(static_cast<std::size_t>(panes), detail::none<float>);
    WNDRS0(&radiation, &shortwave_shading_coefficient, &longwave_shading_coefficient, &incidence,
        &panes, &out.transmittance, detail::numbers(out.pane_shares), &out.absorptance);
    return out;
}

/// unit_shares for whole arrays.
/// Of a row of pane_shares, panes tells how many count.
inline void unit_shares(const Input<std::int32_t>& radiation,
        const Input<float>& shortwave_shading_coefficient,
        const Input<float>& longwave_shading_coefficient, const Input<float>& incidence,
        const Input<std::int32_t>& panes, const UnitSharesArrays& out) {
    detail::call_arrays("unit_shares", quorvel_unit_shares,
        detail::given("radiation", radiation),
        detail::given("shortwave_shading_coefficient", shortwave_shading_coefficient),
        detail::given("longwave_shading_coefficient", longwave_shading_coefficient),
        detail::given("incidence", incidence),
        detail::given("panes", panes),
        detail::returned("transmittance", out.transmittance),
        detail::returned("pane_shares", out.pane_shares, panes),
        detail::returned("absorptance", out.absorptance));
}

/// What slat_direct returns.
struct SlatDirect {
    /// transmittance
    float transmittance = detail::none<float>;
    /// absorptance
    float absorptance = detail::none<float>;
    /// reflectance, 1 - transmittance - absorptance
    float reflectance = detail::none<float>;
};

/// Arrays for what slat_direct returns.
struct SlatDirectArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
    std::span<float> reflectance;
};

/// Transmittance, absorptance and reflectance of a slatted blind for a beam, both faces of the
/// slats alike.
///
/// @note The slats are flat, thin, opaque and diffusely reflecting. After the first reflection each
/// slat is taken as evenly lit.
///
/// @note For slat angles up to 90 degrees and an absorptance in 0..1 all three are in 0..1, but for
/// the rounding of single precision: 1e-4 for slats that are nearly closed, 4e-7 over the cosine of
/// the profile angle for grazing beams.
///
/// @note A beam within 0.01 rad of the slats' plane passes whole. A beam along the blind (cosine of
/// the profile angle below 1e-6, or the angle 1.570796 or more in size) meets an opaque sheet with
/// the absorptance of the slats.
///
/// @note The mirror image, with both angles negative, gives the same bits.
///
/// @param slat_spacing  m, from 0: spacing of the slats; only its ratio to their width matters, in
///     whatever unit
/// @param slat_width  m, from 0: width of a slat
/// @param slat_angle  °, -90 .. 90: slat angle in degrees, 0 for level slats, positive with the
///     outer edge lowered
/// @param profile_angle  rad, -1.5708 .. 1.5708: profile angle of the beam, positive from above
/// @param slat_absorptance  0 .. 1: absorptance of the slats
/// Source: Exchange factors by H. C. Hottel's crossed strings, and the inter-reflection between two
///     neighbouring slats.
/// (WNDRSL of quorvel.h)
inline SlatDirect slat_direct(float slat_spacing, float slat_width, float slat_angle,
        float profile_angle, float slat_absorptance) {
    SlatDirect out;
    WNDRSL(&slat_spacing, &slat_width, &slat_angle, &profile_angle, &slat_absorptance,
        &out.transmittance, &out.absorptance, &out.reflectance);
    return out;
}

/// slat_direct for whole arrays.
inline void slat_direct(const Input<float>& slat_spacing, const Input<float>& slat_width,
        const Input<float>& slat_angle, const Input<float>& profile_angle,
        const Input<float>& slat_absorptance, const SlatDirectArrays& out) {
    detail::call_arrays("slat_direct", quorvel_slat_direct,
        detail::given("slat_spacing", slat_spacing),
        detail::given("slat_width", slat_width),
        detail::given("slat_angle", slat_angle),
        detail::given("profile_angle", profile_angle),
        detail::given("slat_absorptance", slat_absorptance),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance", out.reflectance));
}

/// What two_faced_slat_direct returns.
struct TwoFacedSlatDirect {
    /// transmittance
    float transmittance = detail::none<float>;
    /// absorptance
    float absorptance = detail::none<float>;
    /// reflectance, 1 - transmittance - absorptance, not limited
    float reflectance = detail::none<float>;
};

/// Arrays for what two_faced_slat_direct returns.
struct TwoFacedSlatDirectArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
    std::span<float> reflectance;
};

/// Transmittance, absorptance and reflectance of a blind for a beam, whose slats have two different
/// faces.
///
/// @note Equal faces give the bits of WNDRSL and keep the balance.
///
/// @note Unequal faces do not: whatever is absorbed after the first reflection counts with that of
/// the face struck, as if both faces absorbed like the one struck and reflected like the opposite
/// one. A bright face opposite a dark one absorbs too little, and the reflectance holds the rest; a
/// dark face opposite a bright one absorbs too much, in dense blinds many times what arrives, and
/// the reflectance is negative by as much. Where the face struck absorbs at most what the opposite
/// one does, all three stay in 0..1.
///
/// @note The face struck first is the upper one where profile angle and slat angle have a positive
/// sum and the lower one else; the absorptances are to be chosen accordingly.
///
/// @param slat_spacing  m, from 0: spacing of the slats; only its ratio to their width matters, in
///     whatever unit
/// @param slat_width  m, from 0: width of a slat
/// @param slat_angle  °, -90 .. 90: slat angle in degrees, 0 for level slats, positive with the
///     outer edge lowered
/// @param profile_angle  rad, -1.5708 .. 1.5708: profile angle of the beam, positive from above
/// @param struck_absorptance  0 .. 1: absorptance of the face that the beam strikes first
/// @param opposite_absorptance  0 .. 1: absorptance of the opposite face
/// Source: As WNDRSL.
/// (WNDRS2 of quorvel.h)
inline TwoFacedSlatDirect two_faced_slat_direct(float slat_spacing, float slat_width,
        float slat_angle, float profile_angle, float struck_absorptance,
        float opposite_absorptance) {
    TwoFacedSlatDirect out;
    WNDRS2(&slat_spacing, &slat_width, &slat_angle, &profile_angle, &struck_absorptance,
        &opposite_absorptance, &out.transmittance, &out.absorptance, &out.reflectance);
    return out;
}

/// two_faced_slat_direct for whole arrays.
inline void two_faced_slat_direct(const Input<float>& slat_spacing, const Input<float>& slat_width,
        const Input<float>& slat_angle, const Input<float>& profile_angle,
        const Input<float>& struck_absorptance, const Input<float>& opposite_absorptance,
        const TwoFacedSlatDirectArrays& out) {
    detail::call_arrays("two_faced_slat_direct", quorvel_two_faced_slat_direct,
        detail::given("slat_spacing", slat_spacing),
        detail::given("slat_width", slat_width),
        detail::given("slat_angle", slat_angle),
        detail::given("profile_angle", profile_angle),
        detail::given("struck_absorptance", struck_absorptance),
        detail::given("opposite_absorptance", opposite_absorptance),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance", out.reflectance));
}

/// What open_slat_direct returns.
struct OpenSlatDirect {
    /// transmittance, the open share included
    float transmittance = detail::none<float>;
    /// absorptance
    float absorptance = detail::none<float>;
    /// reflectance
    float reflectance = detail::none<float>;
};

/// Arrays for what open_slat_direct returns.
struct OpenSlatDirectArrays {
    std::span<float> transmittance;
    std::span<float> absorptance;
    std::span<float> reflectance;
};

/// WNDRS2 for a blind that leaves a share of the radiation to pass untouched.
///
/// @note Without an open share these are the bits of WNDRS2; a share that is not a number is none.
///
/// @note A beam along the blind is transmitted by the open share and absorbed as by the face
/// struck: the share does not reduce the absorptance there, and the reflectance, 1 less both, may
/// be negative: deliberate.
///
/// @param slat_spacing  m, from 0: spacing of the slats; only its ratio to their width matters, in
///     whatever unit
/// @param slat_width  m, from 0: width of a slat
/// @param slat_angle  °, -90 .. 90: slat angle in degrees, 0 for level slats, positive with the
///     outer edge lowered
/// @param profile_angle  rad, -1.5708 .. 1.5708: profile angle of the beam, positive from above
/// @param open_share  0 .. 1: open share of the blind; 0 or less for none
/// @param struck_absorptance  0 .. 1: absorptance of the face that the beam strikes first
/// @param opposite_absorptance  0 .. 1: absorptance of the opposite face
/// Source: As WNDRSL.
/// (WNDRS3 of quorvel.h)
inline OpenSlatDirect open_slat_direct(float slat_spacing, float slat_width, float slat_angle,
        float profile_angle, float open_share, float struck_absorptance,
        float opposite_absorptance) {
    OpenSlatDirect out;
    WNDRS3(&slat_spacing, &slat_width, &slat_angle, &profile_angle, &open_share,
        &struck_absorptance, &opposite_absorptance, &out.transmittance, &out.absorptance,
        &out.reflectance);
    return out;
}

/// open_slat_direct for whole arrays.
inline void open_slat_direct(const Input<float>& slat_spacing, const Input<float>& slat_width,
        const Input<float>& slat_angle, const Input<float>& profile_angle,
        const Input<float>& open_share, const Input<float>& struck_absorptance,
        const Input<float>& opposite_absorptance, const OpenSlatDirectArrays& out) {
    detail::call_arrays("open_slat_direct", quorvel_open_slat_direct,
        detail::given("slat_spacing", slat_spacing),
        detail::given("slat_width", slat_width),
        detail::given("slat_angle", slat_angle),
        detail::given("profile_angle", profile_angle),
        detail::given("open_share", open_share),
        detail::given("struck_absorptance", struck_absorptance),
        detail::given("opposite_absorptance", opposite_absorptance),
        detail::returned("transmittance", out.transmittance),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance", out.reflectance));
}

/// What slat_diffuse returns.
struct SlatDiffuse {
    /// transmittance for radiation from above the horizon
    float sky_transmittance = detail::none<float>;
    /// transmittance for radiation from below it
    float ground_transmittance = detail::none<float>;
    /// absorptance for radiation from above the horizon
    float sky_absorptance = detail::none<float>;
    /// absorptance for radiation from below it
    float ground_absorptance = detail::none<float>;
};

/// Arrays for what slat_diffuse returns.
struct SlatDiffuseArrays {
    std::span<float> sky_transmittance;
    std::span<float> ground_transmittance;
    std::span<float> sky_absorptance;
    std::span<float> ground_absorptance;
};

/// Transmittance and absorptance of a slatted blind for the diffuse radiation from the sky's and
/// from the ground's side, both faces of the slats alike.
///
/// @note The bits are those of WNDRSL summed over the bands.
///
/// @note Slats at an angle of 5, 15, ... 85 degrees have a band within 0.01 rad of their plane,
/// which passes whole.
///
/// @note The opposite angle swaps sky and ground.
///
/// @param slat_spacing  m, from 0: spacing of the slats; only its ratio to their width matters, in
///     whatever unit
/// @param slat_width  m, from 0: width of a slat
/// @param slat_angle  °, -90 .. 90: slat angle in degrees, 0 for level slats, positive with the
///     outer edge lowered
/// @param slat_absorptance  0 .. 1: absorptance of the slats
/// Source: WNDRSL at the centres of nine bands of 10 degrees on either side of the horizon, each
///     weighted with the integral of the cosine over the band: radiance uniform in the profile
///     angle.
/// (WNDFSL of quorvel.h)
inline SlatDiffuse slat_diffuse(float slat_spacing, float slat_width, float slat_angle,
        float slat_absorptance) {
    SlatDiffuse out;
    WNDFSL(&slat_spacing, &slat_width, &slat_angle, &slat_absorptance, &out.sky_transmittance,
        &out.ground_transmittance, &out.sky_absorptance, &out.ground_absorptance);
    return out;
}

/// slat_diffuse for whole arrays.
inline void slat_diffuse(const Input<float>& slat_spacing, const Input<float>& slat_width,
        const Input<float>& slat_angle, const Input<float>& slat_absorptance,
        const SlatDiffuseArrays& out) {
    detail::call_arrays("slat_diffuse", quorvel_slat_diffuse,
        detail::given("slat_spacing", slat_spacing),
        detail::given("slat_width", slat_width),
        detail::given("slat_angle", slat_angle),
        detail::given("slat_absorptance", slat_absorptance),
        detail::returned("sky_transmittance", out.sky_transmittance),
        detail::returned("ground_transmittance", out.ground_transmittance),
        detail::returned("sky_absorptance", out.sky_absorptance),
        detail::returned("ground_absorptance", out.ground_absorptance));
}

/// What two_faced_slat_diffuse returns.
struct TwoFacedSlatDiffuse {
    /// transmittance for radiation from above the horizon
    float sky_transmittance = detail::none<float>;
    /// transmittance for radiation from below it
    float ground_transmittance = detail::none<float>;
    /// absorptance for radiation from above the horizon
    float sky_absorptance = detail::none<float>;
    /// absorptance for radiation from below it
    float ground_absorptance = detail::none<float>;
};

/// Arrays for what two_faced_slat_diffuse returns.
struct TwoFacedSlatDiffuseArrays {
    std::span<float> sky_transmittance;
    std::span<float> ground_transmittance;
    std::span<float> sky_absorptance;
    std::span<float> ground_absorptance;
};

/// WNDFSL for slats with two different faces.
///
/// @note The absorptances belong to whichever face a beam strikes first. Slats with different upper
/// and lower faces need two calls: with the upper face struck for the results of the sky, with the
/// lower face for those of the ground. Beams between the horizon and the plane of the slats strike
/// the other face all the same.
///
/// @note Unequal faces as in WNDRS2.
///
/// @param slat_spacing  m, from 0: spacing of the slats; only its ratio to their width matters, in
///     whatever unit
/// @param slat_width  m, from 0: width of a slat
/// @param slat_angle  °, -90 .. 90: slat angle in degrees, 0 for level slats, positive with the
///     outer edge lowered
/// @param struck_absorptance  0 .. 1: absorptance of the face that the beam strikes first
/// @param opposite_absorptance  0 .. 1: absorptance of the opposite face
/// Source: WNDRS2, integrated as in WNDFSL.
/// (WNDFS2 of quorvel.h)
inline TwoFacedSlatDiffuse two_faced_slat_diffuse(float slat_spacing, float slat_width,
        float slat_angle, float struck_absorptance, float opposite_absorptance) {
    TwoFacedSlatDiffuse out;
    WNDFS2(&slat_spacing, &slat_width, &slat_angle, &struck_absorptance, &opposite_absorptance,
        &out.sky_transmittance, &out.ground_transmittance, &out.sky_absorptance,
        &out.ground_absorptance);
    return out;
}

/// two_faced_slat_diffuse for whole arrays.
inline void two_faced_slat_diffuse(const Input<float>& slat_spacing, const Input<float>& slat_width,
        const Input<float>& slat_angle, const Input<float>& struck_absorptance,
        const Input<float>& opposite_absorptance, const TwoFacedSlatDiffuseArrays& out) {
    detail::call_arrays("two_faced_slat_diffuse", quorvel_two_faced_slat_diffuse,
        detail::given("slat_spacing", slat_spacing),
        detail::given("slat_width", slat_width),
        detail::given("slat_angle", slat_angle),
        detail::given("struck_absorptance", struck_absorptance),
        detail::given("opposite_absorptance", opposite_absorptance),
        detail::returned("sky_transmittance", out.sky_transmittance),
        detail::returned("ground_transmittance", out.ground_transmittance),
        detail::returned("sky_absorptance", out.sky_absorptance),
        detail::returned("ground_absorptance", out.ground_absorptance));
}

/// What open_slat_diffuse returns.
struct OpenSlatDiffuse {
    /// transmittance for radiation from above the horizon
    float sky_transmittance = detail::none<float>;
    /// transmittance for radiation from below it
    float ground_transmittance = detail::none<float>;
    /// absorptance for radiation from above the horizon
    float sky_absorptance = detail::none<float>;
    /// absorptance for radiation from below it
    float ground_absorptance = detail::none<float>;
};

/// Arrays for what open_slat_diffuse returns.
struct OpenSlatDiffuseArrays {
    std::span<float> sky_transmittance;
    std::span<float> ground_transmittance;
    std::span<float> sky_absorptance;
    std::span<float> ground_absorptance;
};

/// WNDFS2 for a blind that leaves a share of the radiation to pass untouched.
///
/// @note Faces as in WNDFS2, the open share as in WNDRS3.
///
/// @param slat_spacing  m, from 0: spacing of the slats; only its ratio to their width matters, in
///     whatever unit
/// @param slat_width  m, from 0: width of a slat
/// @param slat_angle  °, -90 .. 90: slat angle in degrees, 0 for level slats, positive with the
///     outer edge lowered
/// @param open_share  0 .. 1: open share of the blind; 0 or less for none
/// @param struck_absorptance  0 .. 1: absorptance of the face that the beam strikes first
/// @param opposite_absorptance  0 .. 1: absorptance of the opposite face
/// Source: WNDRS3, integrated as in WNDFSL.
/// (WNDFS3 of quorvel.h)
inline OpenSlatDiffuse open_slat_diffuse(float slat_spacing, float slat_width, float slat_angle,
        float open_share, float struck_absorptance, float opposite_absorptance) {
    OpenSlatDiffuse out;
    WNDFS3(&slat_spacing, &slat_width, &slat_angle, &open_share, &struck_absorptance,
        &opposite_absorptance, &out.sky_transmittance, &out.ground_transmittance,
        &out.sky_absorptance, &out.ground_absorptance);
    return out;
}

/// open_slat_diffuse for whole arrays.
inline void open_slat_diffuse(const Input<float>& slat_spacing, const Input<float>& slat_width,
        const Input<float>& slat_angle, const Input<float>& open_share,
        const Input<float>& struck_absorptance, const Input<float>& opposite_absorptance,
        const OpenSlatDiffuseArrays& out) {
    detail::call_arrays("open_slat_diffuse", quorvel_open_slat_diffuse,
        detail::given("slat_spacing", slat_spacing),
        detail::given("slat_width", slat_width),
        detail::given("slat_angle", slat_angle),
        detail::given("open_share", open_share),
        detail::given("struck_absorptance", struck_absorptance),
        detail::given("opposite_absorptance", opposite_absorptance),
        detail::returned("sky_transmittance", out.sky_transmittance),
        detail::returned("ground_transmittance", out.ground_transmittance),
        detail::returned("sky_absorptance", out.sky_absorptance),
        detail::returned("ground_absorptance", out.ground_absorptance));
}

}  // namespace v0
}  // namespace quorvel::glazing
