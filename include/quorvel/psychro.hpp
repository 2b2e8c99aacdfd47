// Moist air: see quorvel/quorvel.hpp.
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
namespace quorvel::psychro {
inline namespace v0 {

/// Specific enthalpy of dry air.
///
/// Formula: 0.00071035 + 1.0058 t + 1.7139e-5 t^2 - 7.7976e-7 t^3 + 2.2256e-8 t^4 - 1.691e-10 t^5,
/// t = temperature
///
/// @note Within 0.02 kJ/kg of the ASHRAE tables from -20 to 50 °C, but 0.3 above them at -50 °C.
///
/// @note At 0 °C it is 0.0007 kJ/kg: the constant of the fit is deliberate.
///
/// @param temperature  °C, -50 .. 100: temperature
/// @return kJ/kg: specific enthalpy, 0 at 0 °C
/// Source: Polynomial fit to tables of dry air; its author is not known.
/// (PSHDRY of quorvel.h)
inline float dry_air_enthalpy(float temperature) {
    return PSHDRY(&temperature);
}

/// dry_air_enthalpy for whole arrays.
inline void dry_air_enthalpy(const Input<float>& temperature, std::span<float> result) {
    detail::call_arrays("dry_air_enthalpy", quorvel_dry_air_enthalpy,
        detail::given("temperature", temperature),
        detail::returned("result", result));
}

/// Specific enthalpy of water vapour.
///
/// Formula: 2500.9 + 1.8439 t + 2.5285e-5 t^2 - 1.6297e-5 t^3 + 5.8962e-9 t^4 + 1.248e-9 t^5, t =
/// temperature
///
/// @note Within 0.5 kJ/kg of saturated steam from 0 to 60 °C (IAPWS 1995), within 7 at 100 °C.
///
/// @param temperature  °C, -50 .. 100: temperature
/// @return kJ/kg: specific enthalpy, from liquid water at 0 °C
/// Source: Polynomial fit to tables of water vapour; its author is not known.
/// (PSHVAP of quorvel.h)
inline float water_vapour_enthalpy(float temperature) {
    return PSHVAP(&temperature);
}

/// water_vapour_enthalpy for whole arrays.
inline void water_vapour_enthalpy(const Input<float>& temperature, std::span<float> result) {
    detail::call_arrays("water_vapour_enthalpy", quorvel_water_vapour_enthalpy,
        detail::given("temperature", temperature),
        detail::returned("result", result));
}

/// Specific heat of dry air at constant pressure.
///
/// @note The pieces meet, but for steps of 0.00004 kJ/kgK up at 40 °C and down at 50 °C, which are
/// deliberate.
///
/// @param temperature  °C, -50 .. 100: temperature
/// @return kJ/kgK: specific heat
/// Source: Straight lines between tabulated values for each 10 K; the author of the table is not
///     known.
/// (PSCPDR of quorvel.h)
inline float dry_air_specific_heat(float temperature) {
    return PSCPDR(&temperature);
}

/// dry_air_specific_heat for whole arrays.
inline void dry_air_specific_heat(const Input<float>& temperature, std::span<float> result) {
    detail::call_arrays("dry_air_specific_heat", quorvel_dry_air_specific_heat,
        detail::given("temperature", temperature),
        detail::returned("result", result));
}

/// Specific heat of water vapour at constant pressure.
///
/// Formula: 1.7 + 0.01 temperature, at most 1.9
///
/// @note Constant from 20 °C up.
///
/// @param temperature  °C, -50 .. 100: temperature
/// @return kJ/kgK: specific heat
/// Source: Rounded engineering values; their author is not known.
/// (PSCPVA of quorvel.h)
inline float water_vapour_specific_heat(float temperature) {
    return PSCPVA(&temperature);
}

/// water_vapour_specific_heat for whole arrays.
inline void water_vapour_specific_heat(const Input<float>& temperature, std::span<float> result) {
    detail::call_arrays("water_vapour_specific_heat", quorvel_water_vapour_specific_heat,
        detail::given("temperature", temperature),
        detail::returned("result", result));
}

/// Latent heat of evaporation of water, of sublimation of ice below 0 °C.
///
/// @note At exactly 60 °C the result is 0: the table's row for it is empty, which is deliberate.
/// Just below and above, it is 2357.9.
///
/// @note Within 0.5 kJ/kg of the international values (IAPWS 1995) from 0 to 60 °C.
///
/// @param temperature  °C, -50 .. 100: temperature
/// @return kJ/kg: latent heat
/// Source: Straight lines between tabulated values for each 10 K; the author of the table is not
///     known.
/// (PSHFG of quorvel.h)
inline float latent_heat(float temperature) {
    return PSHFG(&temperature);
}

/// latent_heat for whole arrays.
inline void latent_heat(const Input<float>& temperature, std::span<float> result) {
    detail::call_arrays("latent_heat", quorvel_latent_heat,
        detail::given("temperature", temperature),
        detail::returned("result", result));
}

/// Dry bulb of air with a vapour pressure and relative humidity.
///
/// Formula: rh / 100 ps(t) = pv
///
/// @note Found from -200 to 400 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
///
/// @param vapour_pressure  Pa, from 0: vapour pressure
/// @param relative_humidity  %, 0 .. 100: relative humidity
/// @return °C: dry-bulb temperature
/// Source: The dew point of saturated air of that temperature, by dew_point.
inline float dry_bulb_from_vapour_pressure_and_relative_humidity(float vapour_pressure,
        float relative_humidity) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity(1, &vapour_pressure, 0,
        &relative_humidity, 0, &out, 0);
    return out;
}

/// dry_bulb_from_vapour_pressure_and_relative_humidity for whole arrays.
inline void dry_bulb_from_vapour_pressure_and_relative_humidity(const Input<float>& vapour_pressure,
        const Input<float>& relative_humidity, std::span<float> result) {
    detail::call_arrays("dry_bulb_from_vapour_pressure_and_relative_humidity",
        quorvel_dry_bulb_from_vapour_pressure_and_relative_humidity,
        detail::given("vapour_pressure", vapour_pressure),
        detail::given("relative_humidity", relative_humidity),
        detail::returned("result", result));
}

/// Dry bulb of air with a vapour pressure and percentage saturation.
///
/// Formula: percentage / 100 gs(t, p) = moisture_content(t, pv, p)
///
/// @note Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note Up to where water boils at the atmospheric pressure. The percentage is not limited.
///
/// @param vapour_pressure  Pa, from 0: vapour pressure
/// @param percentage_saturation  %, 0 .. 100: percentage saturation
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_vapour_pressure_and_percentage_saturation(float vapour_pressure,
        float percentage_saturation, float pressure) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation(1, &vapour_pressure, 0,
        &percentage_saturation, 0, &pressure, 0, &out, 0);
    return out;
}

/// dry_bulb_from_vapour_pressure_and_percentage_saturation for whole arrays.
inline void dry_bulb_from_vapour_pressure_and_percentage_saturation(const Input<float>& vapour_pressure,
        const Input<float>& percentage_saturation, const Input<float>& pressure,
        std::span<float> result) {
    detail::call_arrays("dry_bulb_from_vapour_pressure_and_percentage_saturation",
        quorvel_dry_bulb_from_vapour_pressure_and_percentage_saturation,
        detail::given("vapour_pressure", vapour_pressure),
        detail::given("percentage_saturation", percentage_saturation),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Dry bulb of air with a moisture content and relative humidity.
///
/// Formula: rh / 100 ps(t) = vapour_pressure_from_moisture_content(t, g, p)
///
/// @note Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
///
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content, water vapour per dry air
/// @param relative_humidity  %, 0 .. 100: relative humidity
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_moisture_content_and_relative_humidity(float moisture_content,
        float relative_humidity, float pressure) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_moisture_content_and_relative_humidity(1, &moisture_content, 0,
        &relative_humidity, 0, &pressure, 0, &out, 0);
    return out;
}

/// dry_bulb_from_moisture_content_and_relative_humidity for whole arrays.
inline void dry_bulb_from_moisture_content_and_relative_humidity(const Input<float>& moisture_content,
        const Input<float>& relative_humidity, const Input<float>& pressure,
        std::span<float> result) {
    detail::call_arrays("dry_bulb_from_moisture_content_and_relative_humidity",
        quorvel_dry_bulb_from_moisture_content_and_relative_humidity,
        detail::given("moisture_content", moisture_content),
        detail::given("relative_humidity", relative_humidity),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Dry bulb of air with a moisture content and percentage saturation.
///
/// Formula: percentage / 100 gs(t, p) = g
///
/// @note Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note Up to where water boils at the atmospheric pressure. The percentage is not limited.
///
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content, water vapour per dry air
/// @param percentage_saturation  %, 0 .. 100: percentage saturation
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_moisture_content_and_percentage_saturation(float moisture_content,
        float percentage_saturation, float pressure) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_moisture_content_and_percentage_saturation(1, &moisture_content, 0,
        &percentage_saturation, 0, &pressure, 0, &out, 0);
    return out;
}

/// dry_bulb_from_moisture_content_and_percentage_saturation for whole arrays.
inline void dry_bulb_from_moisture_content_and_percentage_saturation(const Input<float>& moisture_content,
        const Input<float>& percentage_saturation, const Input<float>& pressure,
        std::span<float> result) {
    detail::call_arrays("dry_bulb_from_moisture_content_and_percentage_saturation",
        quorvel_dry_bulb_from_moisture_content_and_percentage_saturation,
        detail::given("moisture_content", moisture_content),
        detail::given("percentage_saturation", percentage_saturation),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Dry bulb of air with a specific enthalpy and moisture content.
///
/// Formula: ha(t) + g hv(t) = h
///
/// @note Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note The enthalpies hold from -50 to 100 °C.
///
/// @param enthalpy  kJ/kg, -10 .. 460: specific enthalpy, by mass of dry air
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content, water vapour per dry air
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_enthalpy_and_moisture_content(float enthalpy, float moisture_content) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_enthalpy_and_moisture_content(1, &enthalpy, 0, &moisture_content, 0, &out,
        0);
    return out;
}

/// dry_bulb_from_enthalpy_and_moisture_content for whole arrays.
inline void dry_bulb_from_enthalpy_and_moisture_content(const Input<float>& enthalpy,
        const Input<float>& moisture_content, std::span<float> result) {
    detail::call_arrays("dry_bulb_from_enthalpy_and_moisture_content",
        quorvel_dry_bulb_from_enthalpy_and_moisture_content,
        detail::given("enthalpy", enthalpy),
        detail::given("moisture_content", moisture_content),
        detail::returned("result", result));
}

/// Dry bulb of air with a specific enthalpy and vapour pressure.
///
/// Formula: moisture_content_from_enthalpy(t, h) = moisture_content(t, pv, p)
///
/// @note Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note The enthalpies hold from -50 to 100 °C.
///
/// @param enthalpy  kJ/kg, -10 .. 460: specific enthalpy, by mass of dry air
/// @param vapour_pressure  Pa, from 0: vapour pressure
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_enthalpy_and_vapour_pressure(float enthalpy, float vapour_pressure,
        float pressure) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_enthalpy_and_vapour_pressure(1, &enthalpy, 0, &vapour_pressure, 0,
        &pressure, 0, &out, 0);
    return out;
}

/// dry_bulb_from_enthalpy_and_vapour_pressure for whole arrays.
inline void dry_bulb_from_enthalpy_and_vapour_pressure(const Input<float>& enthalpy,
        const Input<float>& vapour_pressure, const Input<float>& pressure,
        std::span<float> result) {
    detail::call_arrays("dry_bulb_from_enthalpy_and_vapour_pressure",
        quorvel_dry_bulb_from_enthalpy_and_vapour_pressure,
        detail::given("enthalpy", enthalpy),
        detail::given("vapour_pressure", vapour_pressure),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Dry bulb of air with a specific enthalpy and relative humidity.
///
/// Formula: moisture_content_from_enthalpy(t, h) = moisture_content(t, rh / 100 ps(t), p)
///
/// @note Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note The enthalpies hold from -50 to 100 °C.
///
/// @note Relative humidity is limited to 0 to 100 %, not rejected.
///
/// @param enthalpy  kJ/kg, -10 .. 460: specific enthalpy, by mass of dry air
/// @param relative_humidity  %, 0 .. 100: relative humidity
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_enthalpy_and_relative_humidity(float enthalpy, float relative_humidity,
        float pressure) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_enthalpy_and_relative_humidity(1, &enthalpy, 0, &relative_humidity, 0,
        &pressure, 0, &out, 0);
    return out;
}

/// dry_bulb_from_enthalpy_and_relative_humidity for whole arrays.
inline void dry_bulb_from_enthalpy_and_relative_humidity(const Input<float>& enthalpy,
        const Input<float>& relative_humidity, const Input<float>& pressure,
        std::span<float> result) {
    detail::call_arrays("dry_bulb_from_enthalpy_and_relative_humidity",
        quorvel_dry_bulb_from_enthalpy_and_relative_humidity,
        detail::given("enthalpy", enthalpy),
        detail::given("relative_humidity", relative_humidity),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Dry bulb of air with a specific enthalpy and percentage saturation.
///
/// Formula: moisture_content_from_enthalpy(t, h) = percentage / 100 gs(t, p)
///
/// @note Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note The enthalpies hold from -50 to 100 °C.
///
/// @note Up to where water boils at the atmospheric pressure. The percentage is not limited.
///
/// @param enthalpy  kJ/kg, -10 .. 460: specific enthalpy, by mass of dry air
/// @param percentage_saturation  %, 0 .. 100: percentage saturation
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_enthalpy_and_percentage_saturation(float enthalpy,
        float percentage_saturation, float pressure) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_enthalpy_and_percentage_saturation(1, &enthalpy, 0,
        &percentage_saturation, 0, &pressure, 0, &out, 0);
    return out;
}

/// dry_bulb_from_enthalpy_and_percentage_saturation for whole arrays.
inline void dry_bulb_from_enthalpy_and_percentage_saturation(const Input<float>& enthalpy,
        const Input<float>& percentage_saturation, const Input<float>& pressure,
        std::span<float> result) {
    detail::call_arrays("dry_bulb_from_enthalpy_and_percentage_saturation",
        quorvel_dry_bulb_from_enthalpy_and_percentage_saturation,
        detail::given("enthalpy", enthalpy),
        detail::given("percentage_saturation", percentage_saturation),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Dry bulb of air with a wet bulb and vapour pressure.
///
/// Formula: t = twb + (ps(twb) - pv) / (A p)
///
/// @note A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param wet_bulb  °C, -100 .. 200: wet-bulb temperature
/// @param vapour_pressure  Pa, from 0: vapour pressure
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return °C: dry-bulb temperature
/// Source: Psychrometer equation of vapour_pressure_from_psychrometer, solved for the dry bulb.
inline float dry_bulb_from_wet_bulb_and_vapour_pressure(float wet_bulb, float vapour_pressure,
        float pressure, std::int32_t psychrometer) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure(1, &wet_bulb, 0, &vapour_pressure, 0,
        &pressure, 0, &psychrometer, 0, &out, 0);
    return out;
}

/// dry_bulb_from_wet_bulb_and_vapour_pressure for whole arrays.
inline void dry_bulb_from_wet_bulb_and_vapour_pressure(const Input<float>& wet_bulb,
        const Input<float>& vapour_pressure, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("dry_bulb_from_wet_bulb_and_vapour_pressure",
        quorvel_dry_bulb_from_wet_bulb_and_vapour_pressure,
        detail::given("wet_bulb", wet_bulb),
        detail::given("vapour_pressure", vapour_pressure),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// Dry bulb of air with a wet bulb and moisture content.
///
/// Formula: vapour_pressure_from_psychrometer(t, twb, p) = vapour_pressure_from_moisture_content(t,
/// g, p)
///
/// @note Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param wet_bulb  °C, -100 .. 200: wet-bulb temperature
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content, water vapour per dry air
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_wet_bulb_and_moisture_content(float wet_bulb, float moisture_content,
        float pressure, std::int32_t psychrometer) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_wet_bulb_and_moisture_content(1, &wet_bulb, 0, &moisture_content, 0,
        &pressure, 0, &psychrometer, 0, &out, 0);
    return out;
}

/// dry_bulb_from_wet_bulb_and_moisture_content for whole arrays.
inline void dry_bulb_from_wet_bulb_and_moisture_content(const Input<float>& wet_bulb,
        const Input<float>& moisture_content, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("dry_bulb_from_wet_bulb_and_moisture_content",
        quorvel_dry_bulb_from_wet_bulb_and_moisture_content,
        detail::given("wet_bulb", wet_bulb),
        detail::given("moisture_content", moisture_content),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// Dry bulb of air with a wet bulb and relative humidity.
///
/// Formula: vapour_pressure_from_psychrometer(t, twb, p) = rh / 100 ps(t)
///
/// @note Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note Relative humidity is limited to 0 to 100 %, not rejected.
///
/// @note A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param wet_bulb  °C, -100 .. 200: wet-bulb temperature
/// @param relative_humidity  %, 0 .. 100: relative humidity
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_wet_bulb_and_relative_humidity(float wet_bulb, float relative_humidity,
        float pressure, std::int32_t psychrometer) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_wet_bulb_and_relative_humidity(1, &wet_bulb, 0, &relative_humidity, 0,
        &pressure, 0, &psychrometer, 0, &out, 0);
    return out;
}

/// dry_bulb_from_wet_bulb_and_relative_humidity for whole arrays.
inline void dry_bulb_from_wet_bulb_and_relative_humidity(const Input<float>& wet_bulb,
        const Input<float>& relative_humidity, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("dry_bulb_from_wet_bulb_and_relative_humidity",
        quorvel_dry_bulb_from_wet_bulb_and_relative_humidity,
        detail::given("wet_bulb", wet_bulb),
        detail::given("relative_humidity", relative_humidity),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// Dry bulb of air with a wet bulb and percentage saturation.
///
/// Formula: moisture_content_from_psychrometer(t, twb, p) = percentage / 100 gs(t, p)
///
/// @note Found from -100 to 200 °C; where there is none, as for arguments out of range, the result
/// is not a number.
///
/// @note Up to where water boils at the atmospheric pressure. The percentage is not limited.
///
/// @note A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param wet_bulb  °C, -100 .. 200: wet-bulb temperature
/// @param percentage_saturation  %, 0 .. 100: percentage saturation
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_wet_bulb_and_percentage_saturation(float wet_bulb,
        float percentage_saturation, float pressure, std::int32_t psychrometer) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation(1, &wet_bulb, 0,
        &percentage_saturation, 0, &pressure, 0, &psychrometer, 0, &out, 0);
    return out;
}

/// dry_bulb_from_wet_bulb_and_percentage_saturation for whole arrays.
inline void dry_bulb_from_wet_bulb_and_percentage_saturation(const Input<float>& wet_bulb,
        const Input<float>& percentage_saturation, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("dry_bulb_from_wet_bulb_and_percentage_saturation",
        quorvel_dry_bulb_from_wet_bulb_and_percentage_saturation,
        detail::given("wet_bulb", wet_bulb),
        detail::given("percentage_saturation", percentage_saturation),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// Dry bulb of air with a wet bulb and specific enthalpy.
///
/// Formula: specific_enthalpy_from_psychrometer(t, twb, p) = h
///
/// @note Badly conditioned, since the enthalpy hardly changes along a wet bulb: 0.01 kJ/kg of
/// enthalpy can be 0.25 K of dry bulb. For wet bulbs from -50 to 55 °C, above which the enthalpy
/// turns.
///
/// @note An enthalpy that no air of that wet bulb has, between saturated and dry, gives not a
/// number; 1 K beyond saturation is allowed for, and gives the wet bulb.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param wet_bulb  °C, -100 .. 200: wet-bulb temperature
/// @param enthalpy  kJ/kg, -10 .. 460: specific enthalpy, by mass of dry air
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return °C: dry-bulb temperature
/// Source: Newton's method in double precision on the equations of the routines named.
inline float dry_bulb_from_wet_bulb_and_enthalpy(float wet_bulb, float enthalpy, float pressure,
        std::int32_t psychrometer) {
    float out = detail::none<float>;
    quorvel_dry_bulb_from_wet_bulb_and_enthalpy(1, &wet_bulb, 0, &enthalpy, 0, &pressure, 0,
        &psychrometer, 0, &out, 0);
    return out;
}

/// dry_bulb_from_wet_bulb_and_enthalpy for whole arrays.
inline void dry_bulb_from_wet_bulb_and_enthalpy(const Input<float>& wet_bulb,
        const Input<float>& enthalpy, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("dry_bulb_from_wet_bulb_and_enthalpy",
        quorvel_dry_bulb_from_wet_bulb_and_enthalpy,
        detail::given("wet_bulb", wet_bulb),
        detail::given("enthalpy", enthalpy),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// What adiabatic_mixing returns.
struct AdiabaticMixing {
    /// °C: dry-bulb temperature of the mixture
    float dry_bulb = detail::none<float>;
    /// kg/kg: moisture content of the mixture
    float moisture_content = detail::none<float>;
    /// kJ/kg: specific enthalpy of the mixture, by mass of dry air
    float enthalpy = detail::none<float>;
};

/// Arrays for what adiabatic_mixing returns.
struct AdiabaticMixingArrays {
    std::span<float> dry_bulb;
    std::span<float> moisture_content;
    std::span<float> enthalpy;
};

/// Two streams of moist air that become one, without heat from outside.
///
/// Formula: g = (m1 g1 + m2 g2) / (m1 + m2), h likewise; t from h and g
///
/// @note All moisture counts as vapour: percentage_saturation says whether the mixture is above
/// saturation and would form fog.
///
/// @note The enthalpies hold from -50 to 100 °C. Where no dry bulb from -100 to 200 °C belongs to
/// the mixture, it is not a number; nor is anything without flow.
///
/// @param first_air_flow  kg/s, from 0: mass flow of dry air in the first stream, or its share in
///     any unit
/// @param first_dry_bulb  °C, -100 .. 200: dry-bulb temperature of the first stream
/// @param first_moisture_content  kg/kg, 0 .. 0.1: moisture content of the first stream
/// @param second_air_flow  kg/s, from 0: mass flow of dry air in the second stream, in the same
///     unit
/// @param second_dry_bulb  °C, -100 .. 200: dry-bulb temperature of the second stream
/// @param second_moisture_content  kg/kg, 0 .. 0.1: moisture content of the second stream
/// Source: Balances of enthalpy, water and dry air: ASHRAE Handbook Fundamentals 2017, chapter 1,
///     adiabatic mixing of two moist airstreams.
inline AdiabaticMixing adiabatic_mixing(float first_air_flow, float first_dry_bulb,
        float first_moisture_content, float second_air_flow, float second_dry_bulb,
        float second_moisture_content) {
    AdiabaticMixing out;
    quorvel_adiabatic_mixing(1, &first_air_flow, 0, &first_dry_bulb, 0, &first_moisture_content, 0,
        &second_air_flow, 0, &second_dry_bulb, 0, &second_moisture_content, 0, &out.dry_bulb, 0,
        &out.moisture_content, 0, &out.enthalpy, 0);
    return out;
}

/// adiabatic_mixing for whole arrays.
inline void adiabatic_mixing(const Input<float>& first_air_flow, const Input<float>& first_dry_bulb,
        const Input<float>& first_moisture_content, const Input<float>& second_air_flow,
        const Input<float>& second_dry_bulb, const Input<float>& second_moisture_content,
        const AdiabaticMixingArrays& out) {
    detail::call_arrays("adiabatic_mixing", quorvel_adiabatic_mixing,
        detail::given("first_air_flow", first_air_flow),
        detail::given("first_dry_bulb", first_dry_bulb),
        detail::given("first_moisture_content", first_moisture_content),
        detail::given("second_air_flow", second_air_flow),
        detail::given("second_dry_bulb", second_dry_bulb),
        detail::given("second_moisture_content", second_moisture_content),
        detail::returned("dry_bulb", out.dry_bulb),
        detail::returned("moisture_content", out.moisture_content),
        detail::returned("enthalpy", out.enthalpy));
}

/// Moisture content of air from the reading of a wet-and-dry-bulb psychrometer.
///
/// Formula: g = 0.62197 f pv / (p - f pv)
///
/// @note A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb
/// is taken when the wet bulb is below 0 °C.
///
/// @note The enhancement factor takes its ice coefficients at 0 °C and below, where the saturation
/// pressure counts exactly 0 °C as water; the difference is deliberate.
///
/// @note Not limited: a reading drier than any air gives a negative content, a vapour pressure
/// above the atmospheric too.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param wet_bulb  °C, -100 .. 200: wet-bulb temperature
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return kg/kg: moisture content, water vapour per dry air
/// Source: Vapour pressure of PSVAP; the enhancement factor f is a quadratic in absolute
///     temperature whose coefficients are linear in pressure.
/// (PSGS of quorvel.h)
inline float moisture_content_from_psychrometer(float dry_bulb, float wet_bulb, float pressure,
        std::int32_t psychrometer) {
    return PSGS(&dry_bulb, &wet_bulb, &pressure, &psychrometer);
}

/// moisture_content_from_psychrometer for whole arrays.
inline void moisture_content_from_psychrometer(const Input<float>& dry_bulb,
        const Input<float>& wet_bulb, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("moisture_content_from_psychrometer",
        quorvel_moisture_content_from_psychrometer,
        detail::given("dry_bulb", dry_bulb),
        detail::given("wet_bulb", wet_bulb),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// Moisture content of air with a vapour pressure.
///
/// Formula: g = 0.62197 f pv / (p - f pv)
///
/// @note Enhancement factor f of moisture_content_from_psychrometer, at the dry bulb.
///
/// @note Not limited: neither to saturation, nor to vapour pressures below the atmospheric.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param vapour_pressure  Pa, from 0: vapour pressure
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return kg/kg: moisture content, water vapour per dry air
/// Source: Definition for a mixture of ideal gases, ASHRAE Handbook Fundamentals 2017, chapter 1,
///     with the enhancement factor of moisture_content_from_psychrometer.
inline float moisture_content(float dry_bulb, float vapour_pressure, float pressure) {
    float out = detail::none<float>;
    quorvel_moisture_content(1, &dry_bulb, 0, &vapour_pressure, 0, &pressure, 0, &out, 0);
    return out;
}

/// moisture_content for whole arrays.
inline void moisture_content(const Input<float>& dry_bulb, const Input<float>& vapour_pressure,
        const Input<float>& pressure, std::span<float> result) {
    detail::call_arrays("moisture_content", quorvel_moisture_content,
        detail::given("dry_bulb", dry_bulb),
        detail::given("vapour_pressure", vapour_pressure),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Vapour pressure of air with a moisture content, the inverse of moisture_content.
///
/// Formula: pv = p g / (f (0.62197 + g))
///
/// @note Not limited to saturation.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content, water vapour per dry air
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return Pa: vapour pressure
/// Source: As moisture_content.
inline float vapour_pressure_from_moisture_content(float dry_bulb, float moisture_content,
        float pressure) {
    float out = detail::none<float>;
    quorvel_vapour_pressure_from_moisture_content(1, &dry_bulb, 0, &moisture_content, 0, &pressure,
        0, &out, 0);
    return out;
}

/// vapour_pressure_from_moisture_content for whole arrays.
inline void vapour_pressure_from_moisture_content(const Input<float>& dry_bulb,
        const Input<float>& moisture_content, const Input<float>& pressure,
        std::span<float> result) {
    detail::call_arrays("vapour_pressure_from_moisture_content",
        quorvel_vapour_pressure_from_moisture_content,
        detail::given("dry_bulb", dry_bulb),
        detail::given("moisture_content", moisture_content),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Moisture content of air with a percentage saturation, the inverse of percentage_saturation.
///
/// Formula: g = percentage / 100 gs(t, p)
///
/// @note Not limited. From boiling on, where the saturation pressure is above the atmospheric, it
/// means nothing.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param percentage_saturation  %, 0 .. 100: percentage saturation
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return kg/kg: moisture content, water vapour per dry air
/// Source: Definition, with the saturation moisture content of moisture_content_from_psychrometer.
inline float moisture_content_from_percentage_saturation(float dry_bulb,
        float percentage_saturation, float pressure) {
    float out = detail::none<float>;
    quorvel_moisture_content_from_percentage_saturation(1, &dry_bulb, 0, &percentage_saturation, 0,
        &pressure, 0, &out, 0);
    return out;
}

/// moisture_content_from_percentage_saturation for whole arrays.
inline void moisture_content_from_percentage_saturation(const Input<float>& dry_bulb,
        const Input<float>& percentage_saturation, const Input<float>& pressure,
        std::span<float> result) {
    detail::call_arrays("moisture_content_from_percentage_saturation",
        quorvel_moisture_content_from_percentage_saturation,
        detail::given("dry_bulb", dry_bulb),
        detail::given("percentage_saturation", percentage_saturation),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Moisture content of air with a specific enthalpy, the inverse of specific_enthalpy.
///
/// Formula: g = (h - ha(t)) / hv(t)
///
/// @note Not limited: negative where dry air alone has more, and neither to saturation.
///
/// @param dry_bulb  °C, -50 .. 100: dry-bulb temperature
/// @param enthalpy  kJ/kg, -10 .. 460: specific enthalpy, by mass of dry air
/// @return kg/kg: moisture content, water vapour per dry air
/// Source: As specific_enthalpy.
inline float moisture_content_from_enthalpy(float dry_bulb, float enthalpy) {
    float out = detail::none<float>;
    quorvel_moisture_content_from_enthalpy(1, &dry_bulb, 0, &enthalpy, 0, &out, 0);
    return out;
}

/// moisture_content_from_enthalpy for whole arrays.
inline void moisture_content_from_enthalpy(const Input<float>& dry_bulb,
        const Input<float>& enthalpy, std::span<float> result) {
    detail::call_arrays("moisture_content_from_enthalpy", quorvel_moisture_content_from_enthalpy,
        detail::given("dry_bulb", dry_bulb),
        detail::given("enthalpy", enthalpy),
        detail::returned("result", result));
}

/// Density of moist air.
///
/// Formula: (1 + g) / v, by specific_volume
///
/// @note A moisture content above saturation counts as saturation.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content, water vapour per dry air
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return kg/m³: density of the moist air
/// Source: Definition: ASHRAE Handbook Fundamentals 2017, chapter 1.
inline float moist_air_density(float dry_bulb, float moisture_content, float pressure) {
    float out = detail::none<float>;
    quorvel_moist_air_density(1, &dry_bulb, 0, &moisture_content, 0, &pressure, 0, &out, 0);
    return out;
}

/// moist_air_density for whole arrays.
inline void moist_air_density(const Input<float>& dry_bulb, const Input<float>& moisture_content,
        const Input<float>& pressure, std::span<float> result) {
    detail::call_arrays("moist_air_density", quorvel_moist_air_density,
        detail::given("dry_bulb", dry_bulb),
        detail::given("moisture_content", moisture_content),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Percentage saturation: moisture content by that of saturated air at the same temperature and
/// pressure.
///
/// Formula: 100 g / gs(t, p)
///
/// @note Not limited: supersaturated air gives more than 100.
///
/// @note Percentage saturation is not relative humidity, the ratio of vapour pressures, and is the
/// lower of the two.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content, water vapour per dry air
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return %: percentage saturation
/// Source: Definition, with the saturation moisture content of PSGS.
/// (PSPCST of quorvel.h)
inline float percentage_saturation(float dry_bulb, float moisture_content, float pressure) {
    return PSPCST(&dry_bulb, &moisture_content, &pressure);
}

/// percentage_saturation for whole arrays.
inline void percentage_saturation(const Input<float>& dry_bulb,
        const Input<float>& moisture_content, const Input<float>& pressure,
        std::span<float> result) {
    detail::call_arrays("percentage_saturation", quorvel_percentage_saturation,
        detail::given("dry_bulb", dry_bulb),
        detail::given("moisture_content", moisture_content),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Specific enthalpy of moist air.
///
/// Formula: h = ha(t) + g hv(t), by dry_air_enthalpy and water_vapour_enthalpy
///
/// @note Per kilogram of dry air, from dry air and liquid water at 0 °C.
///
/// @note All moisture counts as vapour: the moisture content is not limited to that of saturated
/// air.
///
/// @param dry_bulb  °C, -50 .. 100: dry-bulb temperature
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content, water vapour per dry air
/// @return kJ/kg: specific enthalpy, by mass of dry air
/// Source: Sum over dry air and vapour, as for mixtures of ideal gases: ASHRAE Handbook
///     Fundamentals 2017, chapter 1.
inline float specific_enthalpy(float dry_bulb, float moisture_content) {
    float out = detail::none<float>;
    quorvel_specific_enthalpy(1, &dry_bulb, 0, &moisture_content, 0, &out, 0);
    return out;
}

/// specific_enthalpy for whole arrays.
inline void specific_enthalpy(const Input<float>& dry_bulb, const Input<float>& moisture_content,
        std::span<float> result) {
    detail::call_arrays("specific_enthalpy", quorvel_specific_enthalpy,
        detail::given("dry_bulb", dry_bulb),
        detail::given("moisture_content", moisture_content),
        detail::returned("result", result));
}

/// Specific enthalpy of moist air from the reading of a wet-and-dry-bulb psychrometer.
///
/// Formula: h = PSHDRY(t) + g PSHVAP(t), g = PSGS(t, twb, p)
///
/// @note A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb
/// is taken when the wet bulb is below 0 °C.
///
/// @note Per kilogram of dry air, from dry air and liquid water at 0 °C.
///
/// @note Saturated air at 101325 Pa is within 0.07 kJ/kg of the ASHRAE tables from -20 to 30 °C,
/// within 0.2 % up to 50 °C.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param wet_bulb  °C, -100 .. 200: wet-bulb temperature
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return kJ/kg: specific enthalpy, by mass of dry air
/// Source: Enthalpies of PSHDRY and PSHVAP, moisture content of PSGS.
/// (PSHWET of quorvel.h)
inline float specific_enthalpy_from_psychrometer(float dry_bulb, float wet_bulb, float pressure,
        std::int32_t psychrometer) {
    return PSHWET(&dry_bulb, &wet_bulb, &pressure, &psychrometer);
}

/// specific_enthalpy_from_psychrometer for whole arrays.
inline void specific_enthalpy_from_psychrometer(const Input<float>& dry_bulb,
        const Input<float>& wet_bulb, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("specific_enthalpy_from_psychrometer",
        quorvel_specific_enthalpy_from_psychrometer,
        detail::given("dry_bulb", dry_bulb),
        detail::given("wet_bulb", wet_bulb),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// Specific volume of moist air.
///
/// Formula: v = 287.04 (t + 273.15) / pa - xa^2 B - 2 xa xv C - xv^2 D; xa = 0.62197 / (0.62197 +
/// g), xv = 1 - xa, pa = p - p g / (1.0045 (0.62197 + g))
///
/// @note A moisture content above saturation counts as saturation.
///
/// @note Per kilogram of dry air: the reciprocal is not the density of the moist air.
///
/// @note Virial coefficients of air, B = (4.542 - 0.082785 t + 0.0004353 t^2 - 2.1418e-6 t^3) /
/// 10000, and of air with vapour, C = (1.45 - 0.0097 t + 0.32 (t / 100)^2) / 1000; that of vapour,
/// D, follows straight lines, one below 0 °C and one for each 10 K up to 50 °C and beyond.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content, water vapour per dry air
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return m³/kg: specific volume, by mass of dry air
/// Source: Virial equation of the mixture, written for 101325 Pa (1.0045 is the enhancement factor
///     there); its author is not known.
/// (PSSPVL of quorvel.h)
inline float specific_volume(float dry_bulb, float moisture_content, float pressure) {
    return PSSPVL(&dry_bulb, &moisture_content, &pressure);
}

/// specific_volume for whole arrays.
inline void specific_volume(const Input<float>& dry_bulb, const Input<float>& moisture_content,
        const Input<float>& pressure, std::span<float> result) {
    detail::call_arrays("specific_volume", quorvel_specific_volume,
        detail::given("dry_bulb", dry_bulb),
        detail::given("moisture_content", moisture_content),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// Temperature at which saturated air has a specific enthalpy.
///
/// @note An enthalpy below -10 gives -13.4, above 460 it gives 60, whatever the pressure; at 101325
/// Pa the search itself gives -12.98 and 59.98 there.
///
/// @note A stepping search with steps down to 0.01 K: the result is below the exact temperature by
/// less than that, or above it by 0.001 K at most.
///
/// @note Where the search would never end (a pressure so low that the water boils, an argument that
/// is not a number), the value it has reached is returned: some ten thousand degrees.
///
/// @param enthalpy  kJ/kg, -10 .. 460: specific enthalpy, by mass of dry air
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @return °C: saturation temperature
/// Source: Enthalpy of PSHWET, solved by a step-and-refine search.
/// (PSTSAT of quorvel.h)
inline float saturation_temperature_from_enthalpy(float enthalpy, float pressure) {
    return PSTSAT(&enthalpy, &pressure);
}

/// saturation_temperature_from_enthalpy for whole arrays.
inline void saturation_temperature_from_enthalpy(const Input<float>& enthalpy,
        const Input<float>& pressure, std::span<float> result) {
    detail::call_arrays("saturation_temperature_from_enthalpy",
        quorvel_saturation_temperature_from_enthalpy,
        detail::given("enthalpy", enthalpy),
        detail::given("pressure", pressure),
        detail::returned("result", result));
}

/// What pool_evaporation returns.
struct PoolEvaporation {
    /// kg/(m²s): evaporation rate
    float evaporation_rate = detail::none<float>;
    /// W: latent load, 2.45 MJ per kg evaporated
    float latent_load = detail::none<float>;
    /// W: convection from the water to the room air at 10 W/m²K
    float convective_load = detail::none<float>;
    /// W: exchange of the water with the second reference temperature
    float reference_load = detail::none<float>;
};

/// Arrays for what pool_evaporation returns.
struct PoolEvaporationArrays {
    std::span<float> evaporation_rate;
    std::span<float> latent_load;
    std::span<float> convective_load;
    std::span<float> reference_load;
};

/// Evaporation from an indoor pool and its heat flows, for room air given by its moisture content.
///
/// Formula: dp = ps(water_temperature) - pv; evaporation_rate = 2.193e-8 dp - 1.64e-5 without
/// bathers, 4.17e-8 dp bathers / water_area + 3.28e-5 with them; latent_load = 2.45e6
/// evaporation_rate (water_area + wetted_area)
///
/// @note The vapour pressure is that of a sling psychrometer at the wet bulb of PSWBLB, and good to
/// the step of that search.
///
/// @note Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
///
/// @note With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
///
/// @param water_area  m², from 0: area of the water surface
/// @param wetted_area  m², from 0: further wetted area, which adds to the latent load only
/// @param water_temperature  °C, -100 .. 200: water temperature
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature of the room air
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content of the room air
/// @param reference_temperature  °C, -100 .. 200: second reference temperature
/// @param bathers  from 0: number of bathers, below 1 unoccupied
/// @param reference_coefficient  W/m²K, from 0: coefficient of the exchange with the second
///     reference temperature
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 +
///     0.000079 dp in kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.
/// (TPPOOL of quorvel.h)
inline PoolEvaporation pool_evaporation(float water_area, float wetted_area,
        float water_temperature, float dry_bulb, float moisture_content,
        float reference_temperature, std::int32_t bathers, float reference_coefficient,
        float pressure) {
    PoolEvaporation out;
    TPPOOL(&water_area, &wetted_area, &water_temperature, &dry_bulb, &moisture_content,
        &reference_temperature, &bathers, &reference_coefficient, &pressure, &out.evaporation_rate,
        &out.latent_load, &out.convective_load, &out.reference_load);
    return out;
}

/// pool_evaporation for whole arrays.
inline void pool_evaporation(const Input<float>& water_area, const Input<float>& wetted_area,
        const Input<float>& water_temperature, const Input<float>& dry_bulb,
        const Input<float>& moisture_content, const Input<float>& reference_temperature,
        const Input<std::int32_t>& bathers, const Input<float>& reference_coefficient,
        const Input<float>& pressure, const PoolEvaporationArrays& out) {
    detail::call_arrays("pool_evaporation", quorvel_pool_evaporation,
        detail::given("water_area", water_area),
        detail::given("wetted_area", wetted_area),
        detail::given("water_temperature", water_temperature),
        detail::given("dry_bulb", dry_bulb),
        detail::given("moisture_content", moisture_content),
        detail::given("reference_temperature", reference_temperature),
        detail::given("bathers", bathers),
        detail::given("reference_coefficient", reference_coefficient),
        detail::given("pressure", pressure),
        detail::returned("evaporation_rate", out.evaporation_rate),
        detail::returned("latent_load", out.latent_load),
        detail::returned("convective_load", out.convective_load),
        detail::returned("reference_load", out.reference_load));
}

/// What pool_evaporation_from_wet_bulb returns.
struct PoolEvaporationFromWetBulb {
    /// kg/(m²s): evaporation rate
    float evaporation_rate = detail::none<float>;
    /// W: latent load, 2.45 MJ per kg evaporated
    float latent_load = detail::none<float>;
    /// W: convection from the water to the room air at 10 W/m²K
    float convective_load = detail::none<float>;
    /// W: exchange of the water with the second reference temperature
    float reference_load = detail::none<float>;
};

/// Arrays for what pool_evaporation_from_wet_bulb returns.
struct PoolEvaporationFromWetBulbArrays {
    std::span<float> evaporation_rate;
    std::span<float> latent_load;
    std::span<float> convective_load;
    std::span<float> reference_load;
};

/// Evaporation from an indoor pool and its heat flows, for room air given by its wet bulb.
///
/// Formula: dp = ps(water_temperature) - pv; evaporation_rate = 2.193e-8 dp - 1.64e-5 without
/// bathers, 4.17e-8 dp bathers / water_area + 3.28e-5 with them; latent_load = 2.45e6
/// evaporation_rate (water_area + wetted_area)
///
/// @note A wet bulb at or above the dry bulb counts as saturated air.
///
/// @note Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
///
/// @note With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
///
/// @param water_area  m², from 0: area of the water surface
/// @param wetted_area  m², from 0: further wetted area, which adds to the latent load only
/// @param water_temperature  °C, -100 .. 200: water temperature
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature of the room air
/// @param wet_bulb  °C, -100 .. 200: wet-bulb temperature of the room air, sling psychrometer
/// @param reference_temperature  °C, -100 .. 200: second reference temperature
/// @param bathers  from 0: number of bathers, below 1 unoccupied
/// @param reference_coefficient  W/m²K, from 0: coefficient of the exchange with the second
///     reference temperature
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 +
///     0.000079 dp in kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.
/// (TPPOOL2 of quorvel.h)
inline PoolEvaporationFromWetBulb pool_evaporation_from_wet_bulb(float water_area,
        float wetted_area, float water_temperature, float dry_bulb, float wet_bulb,
        float reference_temperature, std::int32_t bathers, float reference_coefficient,
        float pressure) {
    PoolEvaporationFromWetBulb out;
    TPPOOL2(&water_area, &wetted_area, &water_temperature, &dry_bulb, &wet_bulb,
        &reference_temperature, &bathers, &reference_coefficient, &pressure, &out.evaporation_rate,
        &out.latent_load, &out.convective_load, &out.reference_load);
    return out;
}

/// pool_evaporation_from_wet_bulb for whole arrays.
inline void pool_evaporation_from_wet_bulb(const Input<float>& water_area,
        const Input<float>& wetted_area, const Input<float>& water_temperature,
        const Input<float>& dry_bulb, const Input<float>& wet_bulb,
        const Input<float>& reference_temperature, const Input<std::int32_t>& bathers,
        const Input<float>& reference_coefficient, const Input<float>& pressure,
        const PoolEvaporationFromWetBulbArrays& out) {
    detail::call_arrays("pool_evaporation_from_wet_bulb", quorvel_pool_evaporation_from_wet_bulb,
        detail::given("water_area", water_area),
        detail::given("wetted_area", wetted_area),
        detail::given("water_temperature", water_temperature),
        detail::given("dry_bulb", dry_bulb),
        detail::given("wet_bulb", wet_bulb),
        detail::given("reference_temperature", reference_temperature),
        detail::given("bathers", bathers),
        detail::given("reference_coefficient", reference_coefficient),
        detail::given("pressure", pressure),
        detail::returned("evaporation_rate", out.evaporation_rate),
        detail::returned("latent_load", out.latent_load),
        detail::returned("convective_load", out.convective_load),
        detail::returned("reference_load", out.reference_load));
}

/// Saturation vapour pressure over a plane surface of water, or of ice below 0 °C.
///
/// Formula: log10(ps) = 33.59051 - 3142.31 / T - 8.2 log10(T) + 0.0024804 T over water, 12.538099 -
/// 2663.91 / T over ice; T = temperature + 273.15
///
/// @note Exactly 0 °C counts as water. The two branches meet there only to 0.04 Pa (610.34 over
/// water, 610.30 over ice); the step is deliberate.
///
/// @note Within 0.4 % of the international formulation from -20 to 150 °C, within 1 % down to -40
/// °C.
///
/// @param temperature  °C, -100 .. 200: temperature
/// @return Pa: saturation vapour pressure
/// Source: National Engineering Laboratory, Steam Tables 1964, in the reduced form that building
///     services guides print.
/// (PSSVP of quorvel.h)
inline float saturation_pressure(float temperature) {
    return PSSVP(&temperature);
}

/// saturation_pressure for whole arrays.
inline void saturation_pressure(const Input<float>& temperature, std::span<float> result) {
    detail::call_arrays("saturation_pressure", quorvel_saturation_pressure,
        detail::given("temperature", temperature),
        detail::returned("result", result));
}

/// Dew point of air with a vapour pressure, the inverse of the saturation pressure; below 0 °C the
/// frost point.
///
/// Formula: ps(dew_point) = pv
///
/// @note Solved in double precision; saturation_pressure, in single precision, returns the vapour
/// pressure to 0.002 %, and dew_point the temperature that was given to it to 0.001 K up to 100 °C.
///
/// @note The vapour pressures between ice and water at 0 °C, 610.30 to 610.34 Pa, give 0 °C to
/// 0.0001 K.
///
/// @note Found from -200 to 400 °C. A pressure of 0 or less, or beyond those of this range, gives
/// not a number.
///
/// @param vapour_pressure  Pa, from 0: vapour pressure
/// @return °C: dew-point temperature, of frost below 0 °C
/// Source: Saturation pressure of saturation_pressure (National Engineering Laboratory, Steam
///     Tables 1964), solved by Newton's method.
inline float dew_point(float vapour_pressure) {
    float out = detail::none<float>;
    quorvel_dew_point(1, &vapour_pressure, 0, &out, 0);
    return out;
}

/// dew_point for whole arrays.
inline void dew_point(const Input<float>& vapour_pressure, std::span<float> result) {
    detail::call_arrays("dew_point", quorvel_dew_point,
        detail::given("vapour_pressure", vapour_pressure),
        detail::returned("result", result));
}

/// Vapour pressure of air at a dry-bulb temperature and relative humidity.
///
/// Formula: pv = rh / 100 ps(t)
///
/// @note Relative humidity is limited to 0 to 100 %, not rejected.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param relative_humidity  %, 0 .. 100: relative humidity
/// @return Pa: vapour pressure
/// Source: Definition of relative humidity, with the saturation pressure of PSSVP.
/// (PSVP of quorvel.h)
inline float vapour_pressure(float dry_bulb, float relative_humidity) {
    return PSVP(&dry_bulb, &relative_humidity);
}

/// vapour_pressure for whole arrays.
inline void vapour_pressure(const Input<float>& dry_bulb, const Input<float>& relative_humidity,
        std::span<float> result) {
    detail::call_arrays("vapour_pressure", quorvel_vapour_pressure,
        detail::given("dry_bulb", dry_bulb),
        detail::given("relative_humidity", relative_humidity),
        detail::returned("result", result));
}

/// Relative humidity of air with a vapour pressure.
///
/// Formula: rh = 100 pv / ps(t)
///
/// @note Not limited: supersaturated air gives more than 100.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param vapour_pressure  Pa, from 0: vapour pressure
/// @return %: relative humidity
/// Source: Definition of relative humidity, the ratio of vapour pressures, with
///     saturation_pressure.
inline float relative_humidity(float dry_bulb, float vapour_pressure) {
    float out = detail::none<float>;
    quorvel_relative_humidity(1, &dry_bulb, 0, &vapour_pressure, 0, &out, 0);
    return out;
}

/// relative_humidity for whole arrays.
inline void relative_humidity(const Input<float>& dry_bulb, const Input<float>& vapour_pressure,
        std::span<float> result) {
    detail::call_arrays("relative_humidity", quorvel_relative_humidity,
        detail::given("dry_bulb", dry_bulb),
        detail::given("vapour_pressure", vapour_pressure),
        detail::returned("result", result));
}

/// Vapour pressure from the reading of a wet-and-dry-bulb psychrometer.
///
/// Formula: pv = ps(twb) - A p (t - twb)
///
/// @note The coefficient of an iced bulb is taken when the wet bulb is below 0 °C.
///
/// @note A wet bulb at or above the dry bulb gives the saturation pressure at the dry-bulb
/// temperature.
///
/// @note The result is not limited: a reading drier than any air gives a negative pressure.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @note A is 0.000666 1/K for a sling psychrometer and 0.000799 for a screen one, 0.000594 and
/// 0.00072 with an iced bulb.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param wet_bulb  °C, -100 .. 200: wet-bulb temperature
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return Pa: vapour pressure
/// Source: Psychrometer equation with the customary coefficients A.
/// (PSVAP of quorvel.h)
inline float vapour_pressure_from_psychrometer(float dry_bulb, float wet_bulb, float pressure,
        std::int32_t psychrometer) {
    return PSVAP(&dry_bulb, &wet_bulb, &pressure, &psychrometer);
}

/// vapour_pressure_from_psychrometer for whole arrays.
inline void vapour_pressure_from_psychrometer(const Input<float>& dry_bulb,
        const Input<float>& wet_bulb, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("vapour_pressure_from_psychrometer",
        quorvel_vapour_pressure_from_psychrometer,
        detail::given("dry_bulb", dry_bulb),
        detail::given("wet_bulb", wet_bulb),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// Weighted temperature of two air temperatures.
///
/// Formula: (41.94 t1 - 7.33 t2) / (34.61 + t1 - t2)
///
/// @note Two equal temperatures give that temperature. Infinite where the second is above the first
/// by 34.61 K.
///
/// @param first_temperature  °C, -100 .. 200: temperature with the greater weight
/// @param second_temperature  °C, -100 .. 200: temperature with the lesser, negative weight
/// @return °C: weighted temperature
/// Source: The derivation is not known, so the second temperature has no other meaning than the
///     formula's.
/// (PSTEFF of quorvel.h)
inline float weighted_temperature(float first_temperature, float second_temperature) {
    return PSTEFF(&first_temperature, &second_temperature);
}

/// weighted_temperature for whole arrays.
inline void weighted_temperature(const Input<float>& first_temperature,
        const Input<float>& second_temperature, std::span<float> result) {
    detail::call_arrays("weighted_temperature", quorvel_weighted_temperature,
        detail::given("first_temperature", first_temperature),
        detail::given("second_temperature", second_temperature),
        detail::returned("result", result));
}

/// Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and relative humidity.
///
/// @note The coefficient of an iced bulb is taken when the dry bulb is below 0 °C, where PSVAP
/// looks at the wet bulb; the asymmetry is deliberate.
///
/// @note A stepping search that ends within 0.1 K: the result moves in small jumps with its
/// arguments.
///
/// @note Relative humidity is limited to 0 to 100 %. Where the search would never end (a pressure
/// of zero or below, say), the value it has reached is returned.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param relative_humidity  %, 0 .. 100: relative humidity
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return °C: wet-bulb temperature, never above the dry bulb
/// Source: Psychrometer equation of PSVAP, solved by a step-and-refine search.
/// (PSTWET of quorvel.h)
inline float psychrometer_wet_bulb(float dry_bulb, float relative_humidity, float pressure,
        std::int32_t psychrometer) {
    return PSTWET(&dry_bulb, &relative_humidity, &pressure, &psychrometer);
}

/// psychrometer_wet_bulb for whole arrays.
inline void psychrometer_wet_bulb(const Input<float>& dry_bulb,
        const Input<float>& relative_humidity, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("psychrometer_wet_bulb", quorvel_psychrometer_wet_bulb,
        detail::given("dry_bulb", dry_bulb),
        detail::given("relative_humidity", relative_humidity),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and percentage
/// saturation.
///
/// @note A stepping search with steps down to 0.01 K: the result is above the exact wet bulb by
/// less than that and moves in small jumps with its arguments.
///
/// @note The percentage is not limited: 100 and more give the dry bulb.
///
/// @note About 0 °C, where the coefficient changes to that of an iced bulb, two wet bulbs can
/// belong to one percentage; which of them is found depends on the steps.
///
/// @note Where the search would never end (below absolute zero, say), the value it has reached is
/// returned.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param percentage_saturation  %, 0 .. 100: percentage saturation
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return °C: wet-bulb temperature
/// Source: Psychrometer equation of PSVAP with the moisture content of PSGS, solved by a
///     step-and-refine search.
/// (PSTWB of quorvel.h)
inline float wet_bulb_from_percentage_saturation(float dry_bulb, float percentage_saturation,
        float pressure, std::int32_t psychrometer) {
    return PSTWB(&dry_bulb, &percentage_saturation, &pressure, &psychrometer);
}

/// wet_bulb_from_percentage_saturation for whole arrays.
inline void wet_bulb_from_percentage_saturation(const Input<float>& dry_bulb,
        const Input<float>& percentage_saturation, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("wet_bulb_from_percentage_saturation",
        quorvel_wet_bulb_from_percentage_saturation,
        detail::given("dry_bulb", dry_bulb),
        detail::given("percentage_saturation", percentage_saturation),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and moisture content.
///
/// @note A stepping search with steps of 5 K down to 0.005 K and a last one of 0.0005 K: the result
/// is within 0.005 K of the exact wet bulb.
///
/// @note At saturation or above the result is the dry bulb, whatever that is. Otherwise a dry bulb
/// above 10000 °C gives -100, one that is not a number -200.
///
/// @note Where the search would never end (a moisture content that is not a number, or far below
/// 0), the value it has reached is returned.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param moisture_content  kg/kg, 0 .. 0.1: moisture content, water vapour per dry air
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return °C: wet-bulb temperature
/// Source: Psychrometer equation of PSVAP with the moisture content of PSGS, solved by a
///     step-and-refine search.
/// (PSWBLB of quorvel.h)
inline float wet_bulb_from_moisture_content(float dry_bulb, float moisture_content, float pressure,
        std::int32_t psychrometer) {
    return PSWBLB(&dry_bulb, &moisture_content, &pressure, &psychrometer);
}

/// wet_bulb_from_moisture_content for whole arrays.
inline void wet_bulb_from_moisture_content(const Input<float>& dry_bulb,
        const Input<float>& moisture_content, const Input<float>& pressure,
        const Input<std::int32_t>& psychrometer, std::span<float> result) {
    detail::call_arrays("wet_bulb_from_moisture_content", quorvel_wet_bulb_from_moisture_content,
        detail::given("dry_bulb", dry_bulb),
        detail::given("moisture_content", moisture_content),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

/// Wet-bulb temperature that a psychrometer reads in air with a vapour pressure.
///
/// Formula: ps(twb) - A p (t - twb) = pv
///
/// @note The exact solution, in double precision; vapour_pressure_from_psychrometer gives the
/// vapour pressure back to 0.002 % of saturation.
///
/// @note About 0 °C an iced wet bulb and one that is not can belong to the same air: that which is
/// not iced is found.
///
/// @note At saturation or above the result is the dry bulb. A vapour pressure too far below 0 gives
/// not a number.
///
/// @note A psychrometer type below 1 counts as 1, above 2 as 2.
///
/// @param dry_bulb  °C, -100 .. 200: dry-bulb temperature
/// @param vapour_pressure  Pa, from 0: vapour pressure
/// @param pressure  Pa, 50000 .. 110000: atmospheric pressure
/// @param psychrometer  psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
/// @return °C: wet-bulb temperature
/// Source: Psychrometer equation of vapour_pressure_from_psychrometer, solved by Newton's method.
inline float wet_bulb(float dry_bulb, float vapour_pressure, float pressure,
        std::int32_t psychrometer) {
    float out = detail::none<float>;
    quorvel_wet_bulb(1, &dry_bulb, 0, &vapour_pressure, 0, &pressure, 0, &psychrometer, 0, &out, 0);
    return out;
}

/// wet_bulb for whole arrays.
inline void wet_bulb(const Input<float>& dry_bulb, const Input<float>& vapour_pressure,
        const Input<float>& pressure, const Input<std::int32_t>& psychrometer,
        std::span<float> result) {
    detail::call_arrays("wet_bulb", quorvel_wet_bulb,
        detail::given("dry_bulb", dry_bulb),
        detail::given("vapour_pressure", vapour_pressure),
        detail::given("pressure", pressure),
        detail::given("psychrometer", psychrometer),
        detail::returned("result", result));
}

}  // namespace v0
}  // namespace quorvel::psychro
