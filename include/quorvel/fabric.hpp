// Building fabric: see quorvel/quorvel.hpp.
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
namespace quorvel::fabric {
inline namespace v0 {

/// What cyclic_response returns.
struct CyclicResponse {
    /// W/m²K: admittance Y
    float admittance = detail::none<float>;
    /// h: time lead of the admittance, 0 to 24 / harmonic
    float admittance_lead = detail::none<float>;
    /// decrement factor f, 0 for a partition
    float decrement_factor = detail::none<float>;
    /// h: time lag of the decrement factor, 0 to 24 / harmonic, 0 for a partition
    float decrement_lag = detail::none<float>;
    /// surface factor F
    float surface_factor = detail::none<float>;
    /// h: time lag of the surface factor, 0 to 24 / harmonic
    float surface_factor_lag = detail::none<float>;
    /// W/m²K: U-value, as TPUVAL gives it
    float u_value = detail::none<float>;
};

/// Arrays for what cyclic_response returns.
struct CyclicResponseArrays {
    std::span<float> admittance;
    std::span<float> admittance_lead;
    std::span<float> decrement_factor;
    std::span<float> decrement_lag;
    std::span<float> surface_factor;
    std::span<float> surface_factor_lag;
    std::span<float> u_value;
};

/// Admittance, decrement factor and surface factor of a construction with their time shifts, and
/// its U-value.
///
/// Formula: M = Msi M1 ... Mn Mso; Y = m22 / m12, of a partition (m22 - 1) / m12; f = 1 / (u_value
/// m12); F = 1 - inside_resistance Y
///
/// @note Without layers the two surfaces are left.
///
/// @note Any kind but 2 counts as 1. A harmonic of 0 is a steady temperature: the admittance is U,
/// the time shifts are not numbers. One below 0 gives no numbers.
///
/// @note A layer without heat capacity acts as its resistance. One with very little is the less
/// accurate the smaller x is, its thickness over the depth at which the swing has sunk to 1/e (0.1
/// to 0.2 m in masonry): the relative error of its resistance is about 1e-7 / x, since sinh is
/// formed as a difference in single precision.
///
/// @note Shifts near 0 can come out near a whole cycle: rounding decides on which side of 0 an
/// angle falls. One that is exactly 0 may be -0, as both lags of layers without heat capacity are.
///
/// @note The moduli of all three factors are formed so that no square under- or overflows: a
/// decrement factor of 2.8e-24 (four layers of 0.6 m of concrete under harmonic 12) is one.
///
/// @note Where the x of all layers add up to about 87 the elements of the matrix overflow: the
/// admittance is infinite or not a number, and from 89 on nothing but U is a number. That is 12.3 m
/// of concrete of 1.75 W/mK, 2400 kg/m³ and 1000 J/kgK under the daily cycle; of 2 W/mK, 2000 kg/m³
/// and 880 J/kgK 15 m still have numbers.
///
/// @note Density and specific heat enter as their product only.
///
/// @note The formula's M is the product of the transmission matrices of the surfaces and the
/// layers. Its complex Y, f and F are the admittance, the decrement factor and the surface factor
/// with their time shifts.
///
/// @param thickness  m: thickness of each layer, from the room outwards; below 0: a layer of given
///     resistance, 0: no layer [layers]
/// @param conductivity  W/mK, from 0: conductivity of each layer; its resistance in m²K/W where the
///     thickness is below 0 [layers]
/// @param density  kg/m³, from 0: density of each layer [layers]
/// @param specific_heat  J/kgK, from 0: specific heat of each layer [layers]
/// @param inside_resistance  m²K/W, from 0: resistance of the surface at the room
/// @param outside_resistance  m²K/W, from 0: resistance of the far surface
/// @param harmonic  from 0: cycles in 24 hours
/// @param element_kind  kind of element: 1 element between two environments, 2 internal partition,
///     the same swing on both sides
/// @throws std::out_of_range unless thickness and conductivity and density and specific_heat have 0
///     .. 20 (layers: number of layers)
/// Source: Pipes, Matrix analysis of heat transfer problems, Journal of the Franklin Institute 263,
///     1957; Milbank and Harrington-Lynn, Thermal response and the admittance procedure, Building
///     Research Establishment CP 61/74, 1974; ISO 13786.
/// (TPADMT of quorvel.h)
inline CyclicResponse cyclic_response(std::span<const float> thickness,
        std::span<const float> conductivity, std::span<const float> density,
        std::span<const float> specific_heat, float inside_resistance, float outside_resistance,
        std::int32_t harmonic, std::int32_t element_kind) {
    const std::int32_t layers = detail::counted("cyclic_response", "layers", {0, 20}, {{"thickness",
        thickness.size()}, {"conductivity", conductivity.size()}, {"density", density.size()},
        {"specific_heat", specific_heat.size()}});
    CyclicResponse out;
    TPADMT(detail::numbers(thickness), detail::numbers(conductivity), detail::numbers(density),
        detail::numbers(specific_heat), &inside_resistance, &outside_resistance, &layers, &harmonic,
        &element_kind, &out.admittance, &out.admittance_lead, &out.decrement_factor,
        &out.decrement_lag, &out.surface_factor, &out.surface_factor_lag, &out.u_value);
    return out;
}

/// cyclic_response for whole arrays.
/// Of a row of thickness and conductivity and density and specific_heat, layers tells how many
/// count.
inline void cyclic_response(Table<const float> thickness, Table<const float> conductivity,
        Table<const float> density, Table<const float> specific_heat,
        const Input<float>& inside_resistance, const Input<float>& outside_resistance,
        const Input<std::int32_t>& layers, const Input<std::int32_t>& harmonic,
        const Input<std::int32_t>& element_kind, const CyclicResponseArrays& out) {
    detail::call_arrays("cyclic_response", quorvel_cyclic_response,
        detail::given("thickness", thickness, layers),
        detail::given("conductivity", conductivity, layers),
        detail::given("density", density, layers),
        detail::given("specific_heat", specific_heat, layers),
        detail::given("inside_resistance", inside_resistance),
        detail::given("outside_resistance", outside_resistance),
        detail::given("layers", layers),
        detail::given("harmonic", harmonic),
        detail::given("element_kind", element_kind),
        detail::returned("admittance", out.admittance),
        detail::returned("admittance_lead", out.admittance_lead),
        detail::returned("decrement_factor", out.decrement_factor),
        detail::returned("decrement_lag", out.decrement_lag),
        detail::returned("surface_factor", out.surface_factor),
        detail::returned("surface_factor_lag", out.surface_factor_lag),
        detail::returned("u_value", out.u_value));
}

/// Thermal resistance of a sealed vertical air cavity between ordinary building surfaces.
///
/// Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width), at least 0.1; Nu = 0.035
/// Ra^0.38, at least 1; Ra = 793.00165 width^3 / 4.4e-7
///
/// @note A width below 0.001 gives 0.1, where TPRCA2 and TPRCAX give 0: deliberate. Not a number
/// stays so.
///
/// @note The emissivities e1 and e2 of the faces are 0.85 and 0.86.
///
/// @param cavity_width  m, from 0.001: width
/// @return m²K/W: cavity resistance, not below 0.1
/// Source: As TPRCA2.
/// (TPRCAV of quorvel.h)
inline float vertical_cavity_resistance(float cavity_width) {
    return TPRCAV(&cavity_width);
}

/// vertical_cavity_resistance for whole arrays.
inline void vertical_cavity_resistance(const Input<float>& cavity_width, std::span<float> result) {
    detail::call_arrays("vertical_cavity_resistance", quorvel_vertical_cavity_resistance,
        detail::given("cavity_width", cavity_width),
        detail::returned("result", result));
}

/// Thermal resistance of a sealed air cavity by convection and long-wave radiation.
///
/// Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width); Nu = C Ra^n, at least 1; Ra =
/// 793.00165 width^3 / 4.4e-7
///
/// @note A tilt outside 0..3.1416 and a width below 0.001 give 0.
///
/// @note C and n of the Nusselt number C Ra^n, which is at least 1, are interpolated over the tilt
/// between 0, 0.785 and 1.57, and carried on as far as 1.59. From there the air rests and only
/// conducts: the resistance jumps.
///
/// @note Two faces of emissivity 0 leave the exchange undefined (0/0).
///
/// @param tilt  rad, 0 .. 3.1416: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down
/// @param cavity_width  m, from 0.001: width
/// @param emissivity_1  0 .. 1: long-wave emissivity of one face
/// @param emissivity_2  0 .. 1: long-wave emissivity of the other face
/// @return m²K/W: cavity resistance
/// Source: EN 673, Glass in building - Determination of thermal transmittance: C and n for
///     vertical, inclined and horizontal cavities, and air at 10 °C with 15 K between the faces.
/// (TPRCA2 of quorvel.h)
inline float air_cavity_resistance(float tilt, float cavity_width, float emissivity_1,
        float emissivity_2) {
    return TPRCA2(&tilt, &cavity_width, &emissivity_1, &emissivity_2);
}

/// air_cavity_resistance for whole arrays.
inline void air_cavity_resistance(const Input<float>& tilt, const Input<float>& cavity_width,
        const Input<float>& emissivity_1, const Input<float>& emissivity_2,
        std::span<float> result) {
    detail::call_arrays("air_cavity_resistance", quorvel_air_cavity_resistance,
        detail::given("tilt", tilt),
        detail::given("cavity_width", cavity_width),
        detail::given("emissivity_1", emissivity_1),
        detail::given("emissivity_2", emissivity_2),
        detail::returned("result", result));
}

/// Thermal resistance of a sealed cavity filled with any gas.
///
/// Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + conductivity Nu / width); Nu = C Ra^n, at least
/// 1; Ra = 0.52 specific_heat density^2 width^3 / (viscosity conductivity)
///
/// @note Guards and correlation as in TPRCA2.
///
/// @note The Rayleigh number has a factor of 0.52 m/s² for gravity times expansion times
/// temperature difference, whatever the gas and its temperature.
///
/// @note A negative Rayleigh number has no power: not a number.
///
/// @param tilt  rad, 0 .. 3.1416: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down
/// @param cavity_width  m, from 0.001: width
/// @param emissivity_1  0 .. 1: long-wave emissivity of one face
/// @param emissivity_2  0 .. 1: long-wave emissivity of the other face
/// @param density  kg/m³, from 0: density of the gas
/// @param conductivity  W/mK, from 0: thermal conductivity of the gas
/// @param specific_heat  J/kgK, from 0: specific heat of the gas at constant pressure
/// @param viscosity  Pa s, from 0: dynamic viscosity of the gas
/// @return m²K/W: cavity resistance
/// Source: As TPRCA2.
/// (TPRCAX of quorvel.h)
inline float gas_cavity_resistance(float tilt, float cavity_width, float emissivity_1,
        float emissivity_2, float density, float conductivity, float specific_heat,
        float viscosity) {
    return TPRCAX(&tilt, &cavity_width, &emissivity_1, &emissivity_2, &density, &conductivity,
        &specific_heat, &viscosity);
}

/// gas_cavity_resistance for whole arrays.
inline void gas_cavity_resistance(const Input<float>& tilt, const Input<float>& cavity_width,
        const Input<float>& emissivity_1, const Input<float>& emissivity_2,
        const Input<float>& density, const Input<float>& conductivity,
        const Input<float>& specific_heat, const Input<float>& viscosity, std::span<float> result) {
    detail::call_arrays("gas_cavity_resistance", quorvel_gas_cavity_resistance,
        detail::given("tilt", tilt),
        detail::given("cavity_width", cavity_width),
        detail::given("emissivity_1", emissivity_1),
        detail::given("emissivity_2", emissivity_2),
        detail::given("density", density),
        detail::given("conductivity", conductivity),
        detail::given("specific_heat", specific_heat),
        detail::given("viscosity", viscosity),
        detail::returned("result", result));
}

/// Vapour resistance of a construction.
///
/// Formula: sum of 1e9 thickness vapour_resistivity
///
/// @note A layer of given thermal resistance has 5 GN s/kg for each metre of its negative
/// thickness, whatever its resistivity: an air gap 0.05 m wide is entered as -0.05, not as -1.
///
/// @note Without layers it is 0.
///
/// @note Results are in N s/kg, resistivities in GN s/(kg m).
///
/// @param thickness  m: thickness of each layer; below 0: a layer of given thermal resistance, 0: a
///     membrane [layers]
/// @param vapour_resistivity  GN s/(kg m), from 0: vapour resistivity of each layer; of a membrane
///     its vapour resistance in GN s/kg [layers]
/// @return N s/kg: total vapour resistance
/// @throws std::out_of_range unless thickness and vapour_resistivity have 0 .. 20 (layers: number
///     of layers)
/// Source: Vapour resistances in series; 5 GN s/(kg m) is the customary resistivity of still air.
/// (TPDAMP of quorvel.h)
inline float total_vapour_resistance(std::span<const float> thickness,
        std::span<const float> vapour_resistivity) {
    const std::int32_t layers = detail::counted("total_vapour_resistance", "layers", {0, 20},
        {{"thickness", thickness.size()}, {"vapour_resistivity", vapour_resistivity.size()}});
    float out = detail::none<float>;
    TPDAMP(detail::numbers(thickness), detail::numbers(vapour_resistivity), &layers, &out);
    return out;
}

/// total_vapour_resistance for whole arrays.
/// Of a row of thickness and vapour_resistivity, layers tells how many count.
inline void total_vapour_resistance(Table<const float> thickness,
        Table<const float> vapour_resistivity, const Input<std::int32_t>& layers,
        std::span<float> vapour_resistance) {
    detail::call_arrays("total_vapour_resistance", quorvel_total_vapour_resistance,
        detail::given("thickness", thickness, layers),
        detail::given("vapour_resistivity", vapour_resistivity, layers),
        detail::given("layers", layers),
        detail::returned("vapour_resistance", vapour_resistance));
}

/// What condensation_profile returns.
struct CondensationProfile {
    /// °C: temperature at the interfaces, from the inside surface to the outside one [21]; not a
    /// number beyond element layers + 1
    std::array<float, 21> interface_temperature = detail::none<std::array<float, 21>>;
    /// Pa: vapour pressure at them [21]; not a number beyond element layers + 1
    std::array<float, 21> interface_vapour_pressure = detail::none<std::array<float, 21>>;
    /// Pa: saturation pressure at them [21]; not a number beyond element layers + 1
    std::array<float, 21> interface_saturation_pressure = detail::none<std::array<float, 21>>;
};

/// Arrays for what condensation_profile returns.
struct CondensationProfileArrays {
    std::span<std::array<float, 21>> interface_temperature;
    std::span<std::array<float, 21>> interface_vapour_pressure;
    std::span<std::array<float, 21>> interface_saturation_pressure;
};

/// Steady temperature, vapour pressure and saturation pressure at the interfaces of a construction;
/// the vapour pressure is held down to saturation where it would exceed it.
///
/// @note The first and the last interface are the surfaces. Without layers there is one surface,
/// with the temperature and the vapour pressure of its inside.
///
/// @note Vapour condenses at an interface where the vapour pressure equals the saturation pressure.
///
/// @note Relative humidities are limited to 0 to 100 %, the vapour pressures at the two surfaces to
/// saturation there. Between two surfaces without any vapour resistance the vapour pressure is no
/// number.
///
/// @note A layer of given thermal resistance has 5 GN s/kg for each metre of its negative
/// thickness, as in TPDAMP.
///
/// @note Saturation inside a layer, between its interfaces, is not looked for: see ITPCON.
///
/// @param thickness  m: thickness of each layer from the inside; below 0: a layer of given thermal
///     resistance, 0: a membrane [layers]
/// @param conductivity  W/mK, from 0: conductivity of each layer; its resistance in m²K/W where the
///     thickness is below 0 [layers]
/// @param vapour_resistivity  GN s/(kg m), from 0: vapour resistivity of each layer; of a membrane
///     its vapour resistance in GN s/kg [layers]
/// @param inside_resistance  m²K/W, from 0: resistance of the inside surface
/// @param outside_resistance  m²K/W, from 0: resistance of the outside surface
/// @param inside_temperature  °C, -100 .. 200: inside air temperature
/// @param outside_temperature  °C, -100 .. 200: outside air temperature
/// @param inside_humidity  %, 0 .. 100: inside relative humidity
/// @param outside_humidity  %, 0 .. 100: outside relative humidity
/// @throws std::out_of_range unless thickness and conductivity and vapour_resistivity have 0 .. 20
///     (layers: number of layers)
/// Source: Glaser's method in the stepwise form of ISO 13788: the vapour line is straight over the
///     vapour resistance between the interfaces at which it is held to saturation.
/// (TPGRAD of quorvel.h)
inline CondensationProfile condensation_profile(std::span<const float> thickness,
        std::span<const float> conductivity, std::span<const float> vapour_resistivity,
        float inside_resistance, float outside_resistance, float inside_temperature,
        float outside_temperature, float inside_humidity, float outside_humidity) {
    const std::int32_t layers = detail::counted("condensation_profile", "layers", {0, 20},
        {{"thickness", thickness.size()}, {"conductivity", conductivity.size()},
        {"vapour_resistivity", vapour_resistivity.size()}});
    CondensationProfile out;
    TPGRAD(detail::numbers(thickness), detail::numbers(conductivity),
        detail::numbers(vapour_resistivity), &inside_resistance, &outside_resistance, &layers,
        &inside_temperature, &outside_temperature, &inside_humidity, &outside_humidity,
        detail::numbers(out.interface_temperature), detail::numbers(out.interface_vapour_pressure),
        detail::numbers(out.interface_saturation_pressure));
    return out;
}

/// condensation_profile for whole arrays.
/// Of a row of thickness and conductivity and vapour_resistivity, layers tells how many count.
inline void condensation_profile(Table<const float> thickness, Table<const float> conductivity,
        Table<const float> vapour_resistivity, const Input<float>& inside_resistance,
        const Input<float>& outside_resistance, const Input<std::int32_t>& layers,
        const Input<float>& inside_temperature, const Input<float>& outside_temperature,
        const Input<float>& inside_humidity, const Input<float>& outside_humidity,
        const CondensationProfileArrays& out) {
    detail::call_arrays("condensation_profile", quorvel_condensation_profile,
        detail::given("thickness", thickness, layers),
        detail::given("conductivity", conductivity, layers),
        detail::given("vapour_resistivity", vapour_resistivity, layers),
        detail::given("inside_resistance", inside_resistance),
        detail::given("outside_resistance", outside_resistance),
        detail::given("layers", layers),
        detail::given("inside_temperature", inside_temperature),
        detail::given("outside_temperature", outside_temperature),
        detail::given("inside_humidity", inside_humidity),
        detail::given("outside_humidity", outside_humidity),
        detail::returned("interface_temperature", out.interface_temperature),
        detail::returned("interface_vapour_pressure", out.interface_vapour_pressure),
        detail::returned("interface_saturation_pressure", out.interface_saturation_pressure));
}

/// Whether vapour condenses inside a layer, from the temperatures and vapour pressures of its two
/// faces.
///
/// @note The layer is looked at in steps of 0.5 K from the warm face: the warm face itself is not,
/// the cold face only if a step falls on it. Faces less than 0.5 K apart give 0.
///
/// @note A cold face that is not below the warm one, or a temperature that is no number, gives 0.
///
/// @note Where the temperature is so large that a step of 0.5 K is lost in its rounding (8.4
/// million °C), the search ends there with 0.
///
/// @param warm_temperature  °C, -100 .. 200: temperature of the warm face
/// @param cold_temperature  °C, -100 .. 200: temperature of the cold face
/// @param warm_vapour_pressure  Pa, from 0: vapour pressure at the warm face
/// @param cold_vapour_pressure  Pa, from 0: vapour pressure at the cold face
/// @return 1 if vapour condenses, 0 if not
/// Source: Straight lines of temperature and vapour pressure through a homogeneous layer, against
///     the saturation pressure of PSSVP.
/// (ITPCON of quorvel.h)
inline std::int32_t condenses_within_layer(float warm_temperature, float cold_temperature,
        float warm_vapour_pressure, float cold_vapour_pressure) {
    return ITPCON(&warm_temperature, &cold_temperature, &warm_vapour_pressure,
        &cold_vapour_pressure);
}

/// condenses_within_layer for whole arrays.
inline void condenses_within_layer(const Input<float>& warm_temperature,
        const Input<float>& cold_temperature, const Input<float>& warm_vapour_pressure,
        const Input<float>& cold_vapour_pressure, std::span<std::int32_t> result) {
    detail::call_arrays("condenses_within_layer", quorvel_condenses_within_layer,
        detail::given("warm_temperature", warm_temperature),
        detail::given("cold_temperature", cold_temperature),
        detail::given("warm_vapour_pressure", warm_vapour_pressure),
        detail::given("cold_vapour_pressure", cold_vapour_pressure),
        detail::returned("result", result));
}

/// One property of one record of a construction, a list of elements from face to face.
///
/// @note The type code, 50 to 999, is 100 times the class plus the subtype: class 1 solid layer, 2
/// another layer, 3 gap (300 of given resistance, 302 filled with gas), 4 translucent layer, 5
/// boundary, 6 end marker; other classes have no meaning. It is rounded after the limits are
/// tested: 149.6 is class 1, subtype 50; 49.6 and what is no number are no codes.
///
/// @note Items of every class: 1 type code.
///
/// @note Items of classes 1, 3 and 4: 2 thickness in mm; 4 and 5 fields 4 and 5, of a layer the two
/// factors of its volumetric heat capacity, of a gas specific heat and density. Of 1 and 4: 3
/// conductivity in W/mK. Of 1 and 3: 6 field 6.
///
/// @note Items of class 3: 7 viscosity of the gas; 11 resistance in m²K/W, or conductivity of the
/// gas; 61 and 62 field 8, with subtype 1 and 2.
///
/// @note Items of classes 2, 4 and 5: 12 field 6. Of class 5 with subtype 1 or 2: 21 to 23 fields 2
/// to 4.
///
/// @note Items of packed fields (TPCOLT), all classes but 3 and 6: 31 solar transmittance, 32 front
/// and 33 back reflectance, 34 and 35 front and back absorptance, from field 9; 41 to 45 the same
/// from field 7; 54 and 55 the long-wave fractions of the two faces, 52 and 53 one less these, from
/// field 8.
///
/// @note Items of every class: 71 and 72 are 1 if the list ends with a record of code 601 and 602,
/// whichever valid record is asked about.
///
/// @note The complements of an undefined packed field, items 34, 35, 44, 45, 52 and 53, are -1e20
/// or -2e20, not 1e20: deliberate.
///
/// @param element_records  by field: ten fields of each record, counted from 1; the first is its
///     type code [10, record_count]
/// @param record_number  from 1: record asked about, counted from 1
/// @param item  1 .. 72: property asked for
/// @return by item: the property; 1e20 for none
/// @throws std::out_of_range unless element_records has from 1 (record_count: number of records)
/// Source: Layout of the element records.
/// (BELDAT of quorvel.h)
inline float element_property(std::span<const std::array<float, 10>> element_records,
        std::int32_t record_number, std::int32_t item) {
    const std::int32_t record_count = detail::counted("element_property", "record_count", {1,
        2147483647}, {{"element_records", element_records.size()}});
    return BELDAT(detail::numbers(element_records), &record_count, &record_number, &item);
}

/// element_property for whole arrays.
/// Of a row of element_records, record_count tells how many count.
inline void element_property(Table<const std::array<float, 10>> element_records,
        const Input<std::int32_t>& record_count, const Input<std::int32_t>& record_number,
        const Input<std::int32_t>& item, std::span<float> result) {
    detail::call_arrays("element_property", quorvel_element_property,
        detail::given("element_records", element_records, record_count),
        detail::given("record_count", record_count),
        detail::given("record_number", record_number),
        detail::given("item", item),
        detail::returned("result", result));
}

/// Coefficient of natural convection at a surface of a room.
///
/// Formula: ((1.63 dT^(1/3))^6 + (1.40 (dT / L)^(1/4))^6)^(1/6) upwards, 1.23 and 1.50 for 1.63 and
/// 1.40 at a vertical surface, 0.6 (dT / L^2)^(1/5) downwards; dT = |temperature_difference|, L =
/// characteristic_length
///
/// @note Any other direction gives 0.
///
/// @note The coefficients 1.23 and 1.50 of a vertical surface have the laminar term larger than the
/// turbulent one, with an upward flow it is the other way round; both are as published.
///
/// @note A length of 0 gives an infinite coefficient, one below 0 no number but for a downward
/// flow.
///
/// @param temperature_difference  K: difference between surface and air temperature; its sign makes
///     no difference
/// @param characteristic_length  m, from 0: characteristic length: height of a vertical surface,
///     four times the area over the perimeter of a horizontal one
/// @param heat_flow_direction  direction of the heat flow: 1 heat flow upwards, 2 vertical surface,
///     3 heat flow downwards
/// @return W/m²K: convective coefficient
/// Source: Alamdari and Hammond, Improved data correlations for buoyancy-driven convection in
///     rooms, Building Services Engineering Research and Technology 4, 1983.
/// (TPHCON of quorvel.h)
inline float natural_convection_coefficient(float temperature_difference,
        float characteristic_length, std::int32_t heat_flow_direction) {
    return TPHCON(&temperature_difference, &characteristic_length, &heat_flow_direction);
}

/// natural_convection_coefficient for whole arrays.
inline void natural_convection_coefficient(const Input<float>& temperature_difference,
        const Input<float>& characteristic_length, const Input<std::int32_t>& heat_flow_direction,
        std::span<float> result) {
    detail::call_arrays("natural_convection_coefficient", quorvel_natural_convection_coefficient,
        detail::given("temperature_difference", temperature_difference),
        detail::given("characteristic_length", characteristic_length),
        detail::given("heat_flow_direction", heat_flow_direction),
        detail::returned("result", result));
}

/// What pack_two_fractions returns.
struct PackTwoFractions {
    /// packed number; as given when unpacking; 1e20 for none
    float packed_number = detail::none<float>;
    /// fraction behind the point; as given when packing; 1e20 for none
    float fraction_1 = detail::none<float>;
    /// fraction held as units and tens; as given when packing; 1e20 for none
    float fraction_2 = detail::none<float>;
};

/// Arrays for what pack_two_fractions returns.
struct PackTwoFractionsArrays {
    std::span<float> packed_number;
    std::span<float> fraction_1;
    std::span<float> fraction_2;
};

/// Packs two fractions of two decimals into one real, or unpacks them.
///
/// @note As TPCOLT with a third fraction of 0, which is not returned: what stands above 100 is
/// ignored.
///
/// @param packing  direction: 1 pack, 2 unpack, as any other value
/// @param packed_number  0 .. 9999.99: packed number
/// @param fraction_1  0 .. 0.99: fraction behind the point
/// @param fraction_2  0 .. 0.99: fraction held as units and tens
/// Source: As TPCOLT.
/// (TPCOLW of quorvel.h)
inline PackTwoFractions pack_two_fractions(std::int32_t packing, float packed_number,
        float fraction_1, float fraction_2) {
    PackTwoFractions out;
    out.packed_number = packed_number;
    out.fraction_1 = fraction_1;
    out.fraction_2 = fraction_2;
    TPCOLW(&packing, &out.packed_number, &out.fraction_1, &out.fraction_2);
    return out;
}

/// pack_two_fractions for whole arrays.
inline void pack_two_fractions(const Input<std::int32_t>& packing,
        const Input<float>& packed_number, const Input<float>& fraction_1,
        const Input<float>& fraction_2, const PackTwoFractionsArrays& out) {
    detail::call_arrays("pack_two_fractions", quorvel_pack_two_fractions,
        detail::given("packing", packing),
        detail::given("packed_number", packed_number),
        detail::given("fraction_1", fraction_1),
        detail::given("fraction_2", fraction_2),
        detail::returned("packed_number", out.packed_number),
        detail::returned("fraction_1", out.fraction_1),
        detail::returned("fraction_2", out.fraction_2));
}

/// What pack_three_fractions returns.
struct PackThreeFractions {
    /// packed number; as given when unpacking; 1e20 for none
    float packed_number = detail::none<float>;
    /// fraction behind the point; as given when packing; 1e20 for none
    float fraction_1 = detail::none<float>;
    /// fraction held as units and tens; as given when packing; 1e20 for none
    float fraction_2 = detail::none<float>;
    /// fraction held as hundreds and thousands; as given when packing; 1e20 for none
    float fraction_3 = detail::none<float>;
};

/// Arrays for what pack_three_fractions returns.
struct PackThreeFractionsArrays {
    std::span<float> packed_number;
    std::span<float> fraction_1;
    std::span<float> fraction_2;
    std::span<float> fraction_3;
};

/// Packs three fractions of two decimals into one real, or unpacks them.
///
/// @note 0.25, 0.40, 0.07 are packed as 740.25.
///
/// @note Fractions that add up to more than 1e10, and a packed number above 1e10, are undefined and
/// give 1e20.
///
/// @note Fractions 2 and 3 are cut to two decimals, with a tenth of a hundredth to spare; fraction
/// 1 is added as it stands and cut when unpacked.
///
/// @note All triples from 0.00 to 0.99 come back, as hundredths times the float 0.01: for 29 of the
/// hundred fractions, 0.40 among them, that is the float next to the nearest.
///
/// @note A fraction of 1.00 is carried into the next one, 1 into 2 and 2 into 3.
///
/// @param packing  direction: 1 pack, 2 unpack, as any other value
/// @param packed_number  0 .. 9999.99: packed number
/// @param fraction_1  0 .. 0.99: fraction behind the point
/// @param fraction_2  0 .. 0.99: fraction held as units and tens
/// @param fraction_3  0 .. 0.99: fraction held as hundreds and thousands
/// Source: Format of the packed property numbers of element records (BELDAT).
/// (TPCOLT of quorvel.h)
inline PackThreeFractions pack_three_fractions(std::int32_t packing, float packed_number,
        float fraction_1, float fraction_2, float fraction_3) {
    PackThreeFractions out;
    out.packed_number = packed_number;
    out.fraction_1 = fraction_1;
    out.fraction_2 = fraction_2;
    out.fraction_3 = fraction_3;
    TPCOLT(&packing, &out.packed_number, &out.fraction_1, &out.fraction_2, &out.fraction_3);
    return out;
}

/// pack_three_fractions for whole arrays.
inline void pack_three_fractions(const Input<std::int32_t>& packing,
        const Input<float>& packed_number, const Input<float>& fraction_1,
        const Input<float>& fraction_2, const Input<float>& fraction_3,
        const PackThreeFractionsArrays& out) {
    detail::call_arrays("pack_three_fractions", quorvel_pack_three_fractions,
        detail::given("packing", packing),
        detail::given("packed_number", packed_number),
        detail::given("fraction_1", fraction_1),
        detail::given("fraction_2", fraction_2),
        detail::given("fraction_3", fraction_3),
        detail::returned("packed_number", out.packed_number),
        detail::returned("fraction_1", out.fraction_1),
        detail::returned("fraction_2", out.fraction_2),
        detail::returned("fraction_3", out.fraction_3));
}

/// What pack_three_fractions_third_first returns.
struct PackThreeFractionsThirdFirst {
    /// packed number; as given when unpacking; 1e20 for none
    float packed_number = detail::none<float>;
    /// fraction held as hundreds and thousands; as given when packing; 1e20 for none
    float fraction_3 = detail::none<float>;
    /// fraction behind the point; as given when packing; 1e20 for none
    float fraction_1 = detail::none<float>;
    /// fraction held as units and tens; as given when packing; 1e20 for none
    float fraction_2 = detail::none<float>;
};

/// Arrays for what pack_three_fractions_third_first returns.
struct PackThreeFractionsThirdFirstArrays {
    std::span<float> packed_number;
    std::span<float> fraction_3;
    std::span<float> fraction_1;
    std::span<float> fraction_2;
};

/// TPCOLT with its arguments in another order.
///
/// @param packing  direction: 1 pack, 2 unpack, as any other value
/// @param packed_number  0 .. 9999.99: packed number
/// @param fraction_3  0 .. 0.99: fraction held as hundreds and thousands
/// @param fraction_1  0 .. 0.99: fraction behind the point
/// @param fraction_2  0 .. 0.99: fraction held as units and tens
/// Source: As TPCOLT.
/// (TPCOLW2 of quorvel.h)
inline PackThreeFractionsThirdFirst pack_three_fractions_third_first(std::int32_t packing,
        float packed_number, float fraction_3, float fraction_1, float fraction_2) {
    PackThreeFractionsThirdFirst out;
    out.packed_number = packed_number;
    out.fraction_3 = fraction_3;
    out.fraction_1 = fraction_1;
    out.fraction_2 = fraction_2;
    TPCOLW2(&packing, &out.packed_number, &out.fraction_3, &out.fraction_1, &out.fraction_2);
    return out;
}

/// pack_three_fractions_third_first for whole arrays.
inline void pack_three_fractions_third_first(const Input<std::int32_t>& packing,
        const Input<float>& packed_number, const Input<float>& fraction_3,
        const Input<float>& fraction_1, const Input<float>& fraction_2,
        const PackThreeFractionsThirdFirstArrays& out) {
    detail::call_arrays("pack_three_fractions_third_first",
        quorvel_pack_three_fractions_third_first,
        detail::given("packing", packing),
        detail::given("packed_number", packed_number),
        detail::given("fraction_3", fraction_3),
        detail::given("fraction_1", fraction_1),
        detail::given("fraction_2", fraction_2),
        detail::returned("packed_number", out.packed_number),
        detail::returned("fraction_3", out.fraction_3),
        detail::returned("fraction_1", out.fraction_1),
        detail::returned("fraction_2", out.fraction_2));
}

/// What pack_pane returns.
struct PackPane {
    /// packed number; as given when unpacking; 1e20 for none
    float packed_number = detail::none<float>;
    /// absorptance; as given when packing; 1e20 for none
    float absorptance = detail::none<float>;
    /// reflectance of the first face; as given when packing; 1e20 for none
    float reflectance_1 = detail::none<float>;
    /// reflectance of the second face; as given when packing; 1e20 for none
    float reflectance_2 = detail::none<float>;
};

/// Arrays for what pack_pane returns.
struct PackPaneArrays {
    std::span<float> packed_number;
    std::span<float> absorptance;
    std::span<float> reflectance_1;
    std::span<float> reflectance_2;
};

/// Packs the solar absorptance of a pane and the reflectances of its faces into one real, as
/// absorptance and transmittances, or unpacks them.
///
/// @note Packed as TPCOLT packs the absorptance and the transmittances 1 - absorptance -
/// reflectance of the two faces. Undefined values as there.
///
/// @note A face that neither absorbs nor reflects transmits 1.00, which is carried into the next
/// position.
///
/// @note Absorptance and reflectance of a face that exceed 1 together do not come back.
///
/// @param packing  direction: 1 pack, 2 unpack, as any other value
/// @param packed_number  0 .. 9999.99: packed number
/// @param absorptance  0 .. 1: absorptance
/// @param reflectance_1  0 .. 1: reflectance of the first face
/// @param reflectance_2  0 .. 1: reflectance of the second face
/// Source: As TPCOLT.
/// (TPCOSW of quorvel.h)
inline PackPane pack_pane(std::int32_t packing, float packed_number, float absorptance,
        float reflectance_1, float reflectance_2) {
    PackPane out;
    out.packed_number = packed_number;
    out.absorptance = absorptance;
    out.reflectance_1 = reflectance_1;
    out.reflectance_2 = reflectance_2;
    TPCOSW(&packing, &out.packed_number, &out.absorptance, &out.reflectance_1, &out.reflectance_2);
    return out;
}

/// pack_pane for whole arrays.
inline void pack_pane(const Input<std::int32_t>& packing, const Input<float>& packed_number,
        const Input<float>& absorptance, const Input<float>& reflectance_1,
        const Input<float>& reflectance_2, const PackPaneArrays& out) {
    detail::call_arrays("pack_pane", quorvel_pack_pane,
        detail::given("packing", packing),
        detail::given("packed_number", packed_number),
        detail::given("absorptance", absorptance),
        detail::given("reflectance_1", reflectance_1),
        detail::given("reflectance_2", reflectance_2),
        detail::returned("packed_number", out.packed_number),
        detail::returned("absorptance", out.absorptance),
        detail::returned("reflectance_1", out.reflectance_1),
        detail::returned("reflectance_2", out.reflectance_2));
}

/// Thermal resistance of the inside or outside surface of an element, for an emissivity of 0.9.
///
/// Formula: inside 1 / (9.53 - 2.6 tilt / pi), outside 1 / (4.59 + a + 4 b (1 - tilt / pi)^2)
///
/// @note Another surface type gives 0. Another exposure counts as the nearest one.
///
/// @note An inside vertical surface has 1 / 8.23 = 0.12 m²K/W.
///
/// @note The tilt is not tested.
///
/// @note a is 4.3, 9.1 and 20.7 W/m²K by exposure, b is 1.3, 2.8 and 6.1.
///
/// @param surface  surface: 1 outside, 2 inside
/// @param tilt  rad, 0 .. 3.1416: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down
/// @param exposure  exposure of an outside surface to the wind: 1 sheltered, 2 normal, 3 severe
/// @return m²K/W: surface resistance
/// Source: Radiation and convection side by side. The customary values of inside surfaces (0.10 up,
///     0.12 horizontal, 0.14 down) and of outside ones in normal and severe exposure (walls 0.06
///     and 0.03, roofs 0.04 and 0.02) are met to two decimals; the origin of the convective
///     coefficients is not recorded.
/// (TPRSUR of quorvel.h)
inline float surface_resistance(std::int32_t surface, float tilt, std::int32_t exposure) {
    return TPRSUR(&surface, &tilt, &exposure);
}

/// surface_resistance for whole arrays.
inline void surface_resistance(const Input<std::int32_t>& surface, const Input<float>& tilt,
        const Input<std::int32_t>& exposure, std::span<float> result) {
    detail::call_arrays("surface_resistance", quorvel_surface_resistance,
        detail::given("surface", surface),
        detail::given("tilt", tilt),
        detail::given("exposure", exposure),
        detail::returned("result", result));
}

/// Thermal resistance of the inside or outside surface of an element of any emissivity.
///
/// Formula: inside 1 / (4.4 - 2.6 tilt / pi + 5.7 emissivity), outside 1 / (5.1 emissivity + a + 4
/// b (1 - tilt / pi)^2)
///
/// @note Another surface type gives 0. Another exposure counts as the nearest one.
///
/// @note At an emissivity of 0.9 it is TPRSUR to rounding.
///
/// @note Tilt and emissivity are not tested.
///
/// @note a and b are those of TPRSUR.
///
/// @param surface  surface: 1 outside, 2 inside
/// @param tilt  rad, 0 .. 3.1416: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down
/// @param exposure  exposure of an outside surface to the wind: 1 sheltered, 2 normal, 3 severe
/// @param emissivity  0 .. 1: long-wave emissivity of the surface
/// @return m²K/W: surface resistance
/// Source: As TPRSUR, with black-body coefficients of 5.1 W/m²K outside and 5.7 W/m²K inside.
/// (TPRSU2 of quorvel.h)
inline float surface_resistance_at_emissivity(std::int32_t surface, float tilt,
        std::int32_t exposure, float emissivity) {
    return TPRSU2(&surface, &tilt, &exposure, &emissivity);
}

/// surface_resistance_at_emissivity for whole arrays.
inline void surface_resistance_at_emissivity(const Input<std::int32_t>& surface,
        const Input<float>& tilt, const Input<std::int32_t>& exposure,
        const Input<float>& emissivity, std::span<float> result) {
    detail::call_arrays("surface_resistance_at_emissivity",
        quorvel_surface_resistance_at_emissivity,
        detail::given("surface", surface),
        detail::given("tilt", tilt),
        detail::given("exposure", exposure),
        detail::given("emissivity", emissivity),
        detail::returned("result", result));
}

/// U-value of a construction of plane layers between two surface resistances.
///
/// Formula: 1 / (surface_resistance_1 + surface_resistance_2 + sum of thickness / conductivity)
///
/// @note Without layers the two surfaces are left.
///
/// @note How far below 0 a thickness is makes no difference here; it does in TPDAMP and TPGRAD.
///
/// @note A thickness that is no number gives no number.
///
/// @param thickness  m: thickness of each layer; below 0: a layer of given resistance, 0: no layer
///     [layers]
/// @param conductivity  W/mK, from 0: conductivity of each layer; its resistance in m²K/W where the
///     thickness is below 0 [layers]
/// @param surface_resistance_1  m²K/W, from 0: resistance of one surface
/// @param surface_resistance_2  m²K/W, from 0: resistance of the other
/// @return W/m²K: U-value
/// @throws std::out_of_range unless thickness and conductivity have 0 .. 20 (layers: number of
///     layers)
/// Source: Resistances in series; ISO 6946.
/// (TPUVAL of quorvel.h)
inline float u_value(std::span<const float> thickness, std::span<const float> conductivity,
        float surface_resistance_1, float surface_resistance_2) {
    const std::int32_t layers = detail::counted("u_value", "layers", {0, 20}, {{"thickness",
        thickness.size()}, {"conductivity", conductivity.size()}});
    float out = detail::none<float>;
    TPUVAL(detail::numbers(thickness), detail::numbers(conductivity), &surface_resistance_1,
        &surface_resistance_2, &layers, &out);
    return out;
}

/// u_value for whole arrays.
/// Of a row of thickness and conductivity, layers tells how many count.
inline void u_value(Table<const float> thickness, Table<const float> conductivity,
        const Input<float>& surface_resistance_1, const Input<float>& surface_resistance_2,
        const Input<std::int32_t>& layers, std::span<float> u_value) {
    detail::call_arrays("u_value", quorvel_u_value,
        detail::given("thickness", thickness, layers),
        detail::given("conductivity", conductivity, layers),
        detail::given("surface_resistance_1", surface_resistance_1),
        detail::given("surface_resistance_2", surface_resistance_2),
        detail::given("layers", layers),
        detail::returned("u_value", u_value));
}

/// U-value of a construction at another tilt and exposure, from its U-value as a vertical wall in
/// normal exposure.
///
/// Formula: 1 / (1 / u_value - Rso - Rsi + Rso(tilt, exposure) + Rsi(tilt)), Rso and Rsi of a
/// vertical surface in normal exposure where nothing else is said
///
/// @note A U-value that is not above 0, or no number, comes back as it is.
///
/// @note Above 5.49 W/m²K, what the two surfaces of the wall let through by themselves, the layers
/// would have a negative resistance; the result is formed with it all the same.
///
/// @note An exposure below 1 counts as 1, above 3 as 3. The tilt is not limited.
///
/// @param u_value  W/m²K, from 0: U-value with the surface resistances of a vertical wall at
///     exposure 2
/// @param tilt  rad, 0 .. 3.1416: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down
/// @param exposure  wind exposure of the outside surface: 1 sheltered, 2 normal, 3 severe
/// @return W/m²K: U-value at that tilt and exposure
/// Source: Surface resistances of TPRSUR, exchanged.
/// (TPUMOD of quorvel.h)
inline float u_value_at_tilt_and_exposure(float u_value, float tilt, std::int32_t exposure) {
    return TPUMOD(&u_value, &tilt, &exposure);
}

/// u_value_at_tilt_and_exposure for whole arrays.
inline void u_value_at_tilt_and_exposure(const Input<float>& u_value, const Input<float>& tilt,
        const Input<std::int32_t>& exposure, std::span<float> result) {
    detail::call_arrays("u_value_at_tilt_and_exposure", quorvel_u_value_at_tilt_and_exposure,
        detail::given("u_value", u_value),
        detail::given("tilt", tilt),
        detail::given("exposure", exposure),
        detail::returned("result", result));
}

/// What window_parameters returns.
struct WindowParameters {
    /// W/m²K: admittance, the U-value
    float admittance = detail::none<float>;
    /// h: time lead of the admittance, 0
    float admittance_lead = detail::none<float>;
    /// decrement factor, 1
    float decrement_factor = detail::none<float>;
    /// h: time lag of the decrement factor, 0
    float decrement_lag = detail::none<float>;
    /// surface factor, 1 - Rsi U
    float surface_factor = detail::none<float>;
    /// h: time lag of the surface factor, 0
    float surface_factor_lag = detail::none<float>;
    /// W/m²K: U-value
    float u_value = detail::none<float>;
};

/// Arrays for what window_parameters returns.
struct WindowParametersArrays {
    std::span<float> admittance;
    std::span<float> admittance_lead;
    std::span<float> decrement_factor;
    std::span<float> decrement_lag;
    std::span<float> surface_factor;
    std::span<float> surface_factor_lag;
    std::span<float> u_value;
};

/// U-value, admittance, decrement factor and surface factor of a glazing of one to three panes.
///
/// Formula: u_value = 1 / (Rso + Rsi + the resistances of the cavities), surface_factor = 1 - Rsi
/// u_value
///
/// @note The resistance of the glass is neglected and nothing is stored in it.
///
/// @note Of three panes one may be open: the middle one leaves a single cavity as wide as both.
/// With two open panes, and with one open pane of two, there is no cavity.
///
/// @note The kinds of the panes are told by their sum: 0, 1, 2 count as three closed panes.
///
/// @note Another number of panes counts as one pane, with the emissivity of pane 3 outside.
///
/// @note Cavities as TPRCA2: one that it rejects has no resistance.
///
/// @note Rsi and Rso are the resistances of the inner and the outer surface.
///
/// @param panes  1 .. 3: number of panes, pane 1 nearest the room
/// @param pane_kind_1  kind of pane 1: 1 closes the cavities on both sides, 2 closes none
/// @param emissivity_1  0 .. 1: long-wave emissivity of pane 1
/// @param pane_kind_2  kind of pane 2: 1 closes the cavities on both sides, 2 closes none
/// @param emissivity_2  0 .. 1: long-wave emissivity of pane 2
/// @param pane_kind_3  kind of pane 3: 1 closes the cavities on both sides, 2 closes none
/// @param emissivity_3  0 .. 1: long-wave emissivity of pane 3
/// @param cavity_width_1  m, from 0.001: width of the cavity between panes 1 and 2
/// @param cavity_width_2  m, from 0.001: width of the cavity between panes 2 and 3
/// @param outer_surface  surface type of the outer face, normally 1: 1 outside, 2 inside
/// @param exposure  exposure of the outer face to the wind: 1 sheltered, 2 normal, 3 severe
/// @param tilt  rad, 0 .. 3.1416: tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down
/// Source: Surface resistances of TPRSU2 and cavities of TPRCA2 in series.
/// (TPWNDO of quorvel.h)
inline WindowParameters window_parameters(std::int32_t panes, std::int32_t pane_kind_1,
        float emissivity_1, std::int32_t pane_kind_2, float emissivity_2, std::int32_t pane_kind_3,
        float emissivity_3, float cavity_width_1, float cavity_width_2, std::int32_t outer_surface,
        std::int32_t exposure, float tilt) {
    WindowParameters out;
    TPWNDO(&panes, &pane_kind_1, &emissivity_1, &pane_kind_2, &emissivity_2, &pane_kind_3,
        &emissivity_3, &cavity_width_1, &cavity_width_2, &outer_surface, &exposure, &tilt,
        &detail::unread<float>, &out.admittance, &out.admittance_lead, &out.decrement_factor,
        &out.decrement_lag, &out.surface_factor, &out.surface_factor_lag, &out.u_value);
    return out;
}

/// window_parameters for whole arrays.
inline void window_parameters(const Input<std::int32_t>& panes,
        const Input<std::int32_t>& pane_kind_1, const Input<float>& emissivity_1,
        const Input<std::int32_t>& pane_kind_2, const Input<float>& emissivity_2,
        const Input<std::int32_t>& pane_kind_3, const Input<float>& emissivity_3,
        const Input<float>& cavity_width_1, const Input<float>& cavity_width_2,
        const Input<std::int32_t>& outer_surface, const Input<std::int32_t>& exposure,
        const Input<float>& tilt, const WindowParametersArrays& out) {
    detail::call_arrays("window_parameters", quorvel_window_parameters,
        detail::given("panes", panes),
        detail::given("pane_kind_1", pane_kind_1),
        detail::given("emissivity_1", emissivity_1),
        detail::given("pane_kind_2", pane_kind_2),
        detail::given("emissivity_2", emissivity_2),
        detail::given("pane_kind_3", pane_kind_3),
        detail::given("emissivity_3", emissivity_3),
        detail::given("cavity_width_1", cavity_width_1),
        detail::given("cavity_width_2", cavity_width_2),
        detail::given("outer_surface", outer_surface),
        detail::given("exposure", exposure),
        detail::given("tilt", tilt),
        detail::returned("admittance", out.admittance),
        detail::returned("admittance_lead", out.admittance_lead),
        detail::returned("decrement_factor", out.decrement_factor),
        detail::returned("decrement_lag", out.decrement_lag),
        detail::returned("surface_factor", out.surface_factor),
        detail::returned("surface_factor_lag", out.surface_factor_lag),
        detail::returned("u_value", out.u_value));
}

}  // namespace v0
}  // namespace quorvel::fabric
