/*
 * Quorvel - building-physics and building-services calculations.
 *
 * Produced from the catalogue of routines (catalogue/); do not edit.
 *
 * Every argument is passed by reference, inputs are never written, and arrays are one-based in the
 * texts and stored column by column. A text is a row of characters that ends with a NUL (CLBNF0 says
 * how from languages that write none). Angles are in radians; azimuths run from north, clockwise
 * seen from above (east pi/2, south pi); tilt and solar altitude are measured from the horizontal.
 * Routines report no errors: what an argument outside its range gets is said in the notes. Logical
 * results are -1 (true) and 0 (false); 1.0e20 stands for a quantity that does not exist. Every
 * routine is re-entrant. Only those of the climate data file (CLBNF0 and following) have a state;
 * they share it in a process, behind a lock.
 */
#ifndef QUORVEL_H
#define QUORVEL_H

#include <stdint.h>

#if defined(QUORVEL_STATIC)
#define QUORVEL_API
#elif defined(_WIN32) && defined(QUORVEL_BUILDING)
#define QUORVEL_API /* exported by a list: a library that contains this one exports other names */
#elif defined(_WIN32)
#define QUORVEL_API __declspec(dllimport)
#else
#define QUORVEL_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Moist air ------------------------------------------------------------------------------- */

/*
 * PSHDRY (dry_air_enthalpy): Specific enthalpy of dry air.
 * Given:
 *     temperature  float  °C  -50 .. 100  temperature
 * Result:
 *     float  kJ/kg  specific enthalpy, 0 at 0 °C
 * Formula: 0.00071035 + 1.0058 t + 1.7139e-5 t^2 - 7.7976e-7 t^3 + 2.2256e-8 t^4 - 1.691e-10 t^5, t
 *     = temperature
 * Notes:
 *     - Within 0.02 kJ/kg of the ASHRAE tables from -20 to 50 °C, but 0.3 above them at -50 °C.
 *     - At 0 °C it is 0.0007 kJ/kg: the constant of the fit is deliberate.
 * Example: PSHDRY(20) -> 20.12 +- 0.05
 * Source: Polynomial fit to tables of dry air; its author is not known.
 */
QUORVEL_API float PSHDRY(const float *temperature);

/*
 * PSHVAP (water_vapour_enthalpy): Specific enthalpy of water vapour.
 * Given:
 *     temperature  float  °C  -50 .. 100  temperature
 * Result:
 *     float  kJ/kg  specific enthalpy, from liquid water at 0 °C
 * Formula: 2500.9 + 1.8439 t + 2.5285e-5 t^2 - 1.6297e-5 t^3 + 5.8962e-9 t^4 + 1.248e-9 t^5, t =
 *     temperature
 * Notes:
 *     - Within 0.5 kJ/kg of saturated steam from 0 to 60 °C (IAPWS 1995), within 7 at 100 °C.
 * Example: PSHVAP(20) -> 2537.4 +- 0.5
 * Source: Polynomial fit to tables of water vapour; its author is not known.
 */
QUORVEL_API float PSHVAP(const float *temperature);

/*
 * PSCPDR (dry_air_specific_heat): Specific heat of dry air at constant pressure.
 * Given:
 *     temperature  float  °C  -50 .. 100  temperature
 * Result:
 *     float  kJ/kgK  specific heat
 * Notes:
 *     - The pieces meet, but for steps of 0.00004 kJ/kgK up at 40 °C and down at 50 °C, which are
 *       deliberate.
 * Example: PSCPDR(20) -> 1.006 +- 0.002
 * Source: Straight lines between tabulated values for each 10 K; the author of the table is not
 *     known.
 */
QUORVEL_API float PSCPDR(const float *temperature);

/*
 * PSCPVA (water_vapour_specific_heat): Specific heat of water vapour at constant pressure.
 * Given:
 *     temperature  float  °C  -50 .. 100  temperature
 * Result:
 *     float  kJ/kgK  specific heat
 * Formula: 1.7 + 0.01 temperature, at most 1.9
 * Notes:
 *     - Constant from 20 °C up.
 * Example: PSCPVA(25) -> 1.912 +- 0.015
 * Source: Rounded engineering values; their author is not known.
 */
QUORVEL_API float PSCPVA(const float *temperature);

/*
 * PSHFG (latent_heat): Latent heat of evaporation of water, of sublimation of ice below 0 °C.
 * Given:
 *     temperature  float  °C  -50 .. 100  temperature
 * Result:
 *     float  kJ/kg  latent heat
 * Notes:
 *     - At exactly 60 °C the result is 0: the table's row for it is empty, which is deliberate.
 *       Just below and above, it is 2357.9.
 *     - Within 0.5 kJ/kg of the international values (IAPWS 1995) from 0 to 60 °C.
 * Example: PSHFG(20) -> 2453.5 +- 0.5
 * Source: Straight lines between tabulated values for each 10 K; the author of the table is not
 *     known.
 */
QUORVEL_API float PSHFG(const float *temperature);

/*
 * PSGS (moisture_content_from_psychrometer): Moisture content of air from the reading of a wet-and-
 *     dry-bulb psychrometer.
 * Given:
 *     dry_bulb      float    °C  -100 .. 200      dry-bulb temperature
 *     wet_bulb      float    °C  -100 .. 200      wet-bulb temperature
 *     pressure      float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                                 (naturally ventilated)
 * Result:
 *     float  kg/kg  moisture content, water vapour per dry air
 * Formula: g = 0.62197 f pv / (p - f pv)
 * Notes:
 *     - A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb
 *       is taken when the wet bulb is below 0 °C.
 *     - The enhancement factor takes its ice coefficients at 0 °C and below, where the saturation
 *       pressure counts exactly 0 °C as water; the difference is deliberate.
 *     - Not limited: a reading drier than any air gives a negative content, a vapour pressure above
 *       the atmospheric too.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Example: PSGS(25, 25, 101325, 1) -> 0.020173 +- 8.1e-05
 * Source: Vapour pressure of PSVAP; the enhancement factor f is a quadratic in absolute temperature
 *     whose coefficients are linear in pressure.
 */
QUORVEL_API float PSGS(const float *dry_bulb, const float *wet_bulb, const float *pressure,
                       const int32_t *psychrometer);

/*
 * PSPCST (percentage_saturation): Percentage saturation: moisture content by that of saturated air
 *     at the same temperature and pressure.
 * Given:
 *     dry_bulb          float  °C     -100 .. 200      dry-bulb temperature
 *     moisture_content  float  kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     pressure          float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     float  %  percentage saturation
 * Formula: 100 g / gs(t, p)
 * Notes:
 *     - Not limited: supersaturated air gives more than 100.
 *     - Percentage saturation is not relative humidity, the ratio of vapour pressures, and is the
 *       lower of the two.
 * Example: PSPCST(25, 0.020173, 101325) -> 100 +- 0.5
 * Source: Definition, with the saturation moisture content of PSGS.
 */
QUORVEL_API float PSPCST(const float *dry_bulb, const float *moisture_content,
                         const float *pressure);

/*
 * PSHWET (specific_enthalpy_from_psychrometer): Specific enthalpy of moist air from the reading of
 *     a wet-and-dry-bulb psychrometer.
 * Given:
 *     dry_bulb      float    °C  -100 .. 200      dry-bulb temperature
 *     wet_bulb      float    °C  -100 .. 200      wet-bulb temperature
 *     pressure      float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                                 (naturally ventilated)
 * Result:
 *     float  kJ/kg  specific enthalpy, by mass of dry air
 * Formula: h = PSHDRY(t) + g PSHVAP(t), g = PSGS(t, twb, p)
 * Notes:
 *     - A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb
 *       is taken when the wet bulb is below 0 °C.
 *     - Per kilogram of dry air, from dry air and liquid water at 0 °C.
 *     - Saturated air at 101325 Pa is within 0.07 kJ/kg of the ASHRAE tables from -20 to 30 °C,
 *       within 0.2 % up to 50 °C.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Example: PSHWET(25, 25, 101325, 1) -> 76.504 +- 0.22
 * Source: Enthalpies of PSHDRY and PSHVAP, moisture content of PSGS.
 */
QUORVEL_API float PSHWET(const float *dry_bulb, const float *wet_bulb, const float *pressure,
                         const int32_t *psychrometer);

/*
 * PSSPVL (specific_volume): Specific volume of moist air.
 * Given:
 *     dry_bulb          float  °C     -100 .. 200      dry-bulb temperature
 *     moisture_content  float  kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     pressure          float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     float  m³/kg  specific volume, by mass of dry air
 * Formula: v = 287.04 (t + 273.15) / pa - xa^2 B - 2 xa xv C - xv^2 D; xa = 0.62197 / (0.62197 +
 *     g), xv = 1 - xa, pa = p - p g / (1.0045 (0.62197 + g))
 * Notes:
 *     - A moisture content above saturation counts as saturation.
 *     - Per kilogram of dry air: the reciprocal is not the density of the moist air.
 *     - Virial coefficients of air, B = (4.542 - 0.082785 t + 0.0004353 t^2 - 2.1418e-6 t^3) /
 *       10000, and of air with vapour, C = (1.45 - 0.0097 t + 0.32 (t / 100)^2) / 1000; that of
 *       vapour, D, follows straight lines, one below 0 °C and one for each 10 K up to 50 °C and
 *       beyond.
 * Example: PSSPVL(25, 0.020173, 101325) -> 0.872 +- 0.001
 * Source: Virial equation of the mixture, written for 101325 Pa (1.0045 is the enhancement factor
 *     there); its author is not known.
 */
QUORVEL_API float PSSPVL(const float *dry_bulb, const float *moisture_content,
                         const float *pressure);

/*
 * PSTSAT (saturation_temperature_from_enthalpy): Temperature at which saturated air has a specific
 *     enthalpy.
 * Given:
 *     enthalpy  float  kJ/kg  -10 .. 460       specific enthalpy, by mass of dry air
 *     pressure  float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     float  °C  saturation temperature
 * Notes:
 *     - An enthalpy below -10 gives -13.4, above 460 it gives 60, whatever the pressure; at 101325
 *       Pa the search itself gives -12.98 and 59.98 there.
 *     - A stepping search with steps down to 0.01 K: the result is below the exact temperature by
 *       less than that, or above it by 0.001 K at most.
 *     - Where the search would never end (a pressure so low that the water boils, an argument that
 *       is not a number), the value it has reached is returned: some ten thousand degrees.
 * Example: PSTSAT(76.504, 101325) -> 25 +- 0.06
 * Source: Enthalpy of PSHWET, solved by a step-and-refine search.
 */
QUORVEL_API float PSTSAT(const float *enthalpy, const float *pressure);

/*
 * TPPOOL (pool_evaporation): Evaporation from an indoor pool and its heat flows, for room air given
 *     by its moisture content.
 * Given:
 *     water_area             float    m²     from 0           area of the water surface
 *     wetted_area            float    m²     from 0           further wetted area, which adds to
 *                                                             the latent load only
 *     water_temperature      float    °C     -100 .. 200      water temperature
 *     dry_bulb               float    °C     -100 .. 200      dry-bulb temperature of the room air
 *     moisture_content       float    kg/kg  0 .. 0.1         moisture content of the room air
 *     reference_temperature  float    °C     -100 .. 200      second reference temperature
 *     bathers                int32_t         from 0           number of bathers, below 1 unoccupied
 *     reference_coefficient  float    W/m²K  from 0           coefficient of the exchange with the
 *                                                             second reference temperature
 *     pressure               float    Pa     50000 .. 110000  atmospheric pressure
 * Returned:
 *     evaporation_rate  float  kg/(m²s)    evaporation rate
 *     latent_load       float  W           latent load, 2.45 MJ per kg evaporated
 *     convective_load   float  W           convection from the water to the room air at 10 W/m²K
 *     reference_load    float  W           exchange of the water with the second reference
 *                                          temperature
 * Formula: dp = ps(water_temperature) - pv; evaporation_rate = 2.193e-8 dp - 1.64e-5 without
 *     bathers, 4.17e-8 dp bathers / water_area + 3.28e-5 with them; latent_load = 2.45e6
 *     evaporation_rate (water_area + wetted_area)
 * Notes:
 *     - The vapour pressure is that of a sling psychrometer at the wet bulb of PSWBLB, and good to
 *       the step of that search.
 *     - Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
 *     - With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
 * Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079
 *     dp in kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.
 */
QUORVEL_API void TPPOOL(const float *water_area, const float *wetted_area,
                        const float *water_temperature, const float *dry_bulb,
                        const float *moisture_content, const float *reference_temperature,
                        const int32_t *bathers, const float *reference_coefficient,
                        const float *pressure, float *evaporation_rate, float *latent_load,
                        float *convective_load, float *reference_load);

/*
 * TPPOOL2 (pool_evaporation_from_wet_bulb): Evaporation from an indoor pool and its heat flows, for
 *     room air given by its wet bulb.
 * Given:
 *     water_area             float    m²     from 0           area of the water surface
 *     wetted_area            float    m²     from 0           further wetted area, which adds to
 *                                                             the latent load only
 *     water_temperature      float    °C     -100 .. 200      water temperature
 *     dry_bulb               float    °C     -100 .. 200      dry-bulb temperature of the room air
 *     wet_bulb               float    °C     -100 .. 200      wet-bulb temperature of the room air,
 *                                                             sling psychrometer
 *     reference_temperature  float    °C     -100 .. 200      second reference temperature
 *     bathers                int32_t         from 0           number of bathers, below 1 unoccupied
 *     reference_coefficient  float    W/m²K  from 0           coefficient of the exchange with the
 *                                                             second reference temperature
 *     pressure               float    Pa     50000 .. 110000  atmospheric pressure
 * Returned:
 *     evaporation_rate  float  kg/(m²s)    evaporation rate
 *     latent_load       float  W           latent load, 2.45 MJ per kg evaporated
 *     convective_load   float  W           convection from the water to the room air at 10 W/m²K
 *     reference_load    float  W           exchange of the water with the second reference
 *                                          temperature
 * Formula: dp = ps(water_temperature) - pv; evaporation_rate = 2.193e-8 dp - 1.64e-5 without
 *     bathers, 4.17e-8 dp bathers / water_area + 3.28e-5 with them; latent_load = 2.45e6
 *     evaporation_rate (water_area + wetted_area)
 * Notes:
 *     - A wet bulb at or above the dry bulb counts as saturated air.
 *     - Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
 *     - With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
 * Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079
 *     dp in kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.
 */
QUORVEL_API void TPPOOL2(const float *water_area, const float *wetted_area,
                         const float *water_temperature, const float *dry_bulb,
                         const float *wet_bulb, const float *reference_temperature,
                         const int32_t *bathers, const float *reference_coefficient,
                         const float *pressure, float *evaporation_rate, float *latent_load,
                         float *convective_load, float *reference_load);

/*
 * PSSVP (saturation_pressure): Saturation vapour pressure over a plane surface of water, or of ice
 *     below 0 °C.
 * Given:
 *     temperature  float  °C  -100 .. 200  temperature
 * Result:
 *     float  Pa  saturation vapour pressure
 * Formula: log10(ps) = 33.59051 - 3142.31 / T - 8.2 log10(T) + 0.0024804 T over water, 12.538099 -
 *     2663.91 / T over ice; T = temperature + 273.15
 * Notes:
 *     - Exactly 0 °C counts as water. The two branches meet there only to 0.04 Pa (610.34 over
 *       water, 610.30 over ice); the step is deliberate.
 *     - Within 0.4 % of the international formulation from -20 to 150 °C, within 1 % down to -40
 *       °C.
 * Example: PSSVP(20) -> 2339.3 +- 9.4
 * Source: National Engineering Laboratory, Steam Tables 1964, in the reduced form that building
 *     services guides print.
 */
QUORVEL_API float PSSVP(const float *temperature);

/*
 * PSVP (vapour_pressure): Vapour pressure of air at a dry-bulb temperature and relative humidity.
 * Given:
 *     dry_bulb           float  °C  -100 .. 200  dry-bulb temperature
 *     relative_humidity  float  %   0 .. 100     relative humidity
 * Result:
 *     float  Pa  vapour pressure
 * Formula: pv = rh / 100 ps(t)
 * Notes:
 *     - Relative humidity is limited to 0 to 100 %, not rejected.
 * Example: PSVP(20, 50) -> 1169.7 +- 4
 * Source: Definition of relative humidity, with the saturation pressure of PSSVP.
 */
QUORVEL_API float PSVP(const float *dry_bulb, const float *relative_humidity);

/*
 * PSVAP (vapour_pressure_from_psychrometer): Vapour pressure from the reading of a wet-and-dry-bulb
 *     psychrometer.
 * Given:
 *     dry_bulb      float    °C  -100 .. 200      dry-bulb temperature
 *     wet_bulb      float    °C  -100 .. 200      wet-bulb temperature
 *     pressure      float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                                 (naturally ventilated)
 * Result:
 *     float  Pa  vapour pressure
 * Formula: pv = ps(twb) - A p (t - twb)
 * Notes:
 *     - The coefficient of an iced bulb is taken when the wet bulb is below 0 °C.
 *     - A wet bulb at or above the dry bulb gives the saturation pressure at the dry-bulb
 *       temperature.
 *     - The result is not limited: a reading drier than any air gives a negative pressure.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 *     - A is 0.000666 1/K for a sling psychrometer and 0.000799 for a screen one, 0.000594 and
 *       0.00072 with an iced bulb.
 * Example: PSVAP(25, 20, 101325, 1) -> 2002 +- 9
 * Source: Psychrometer equation with the customary coefficients A.
 */
QUORVEL_API float PSVAP(const float *dry_bulb, const float *wet_bulb, const float *pressure,
                        const int32_t *psychrometer);

/*
 * PSTEFF (weighted_temperature): Weighted temperature of two air temperatures.
 * Given:
 *     first_temperature   float  °C  -100 .. 200  temperature with the greater weight
 *     second_temperature  float  °C  -100 .. 200  temperature with the lesser, negative weight
 * Result:
 *     float  °C  weighted temperature
 * Formula: (41.94 t1 - 7.33 t2) / (34.61 + t1 - t2)
 * Notes:
 *     - Two equal temperatures give that temperature. Infinite where the second is above the first
 *       by 34.61 K.
 * Example: PSTEFF(20, 10) -> 17.15983 +- 1e-05
 * Source: The derivation is not known, so the second temperature has no other meaning than the
 *     formula's.
 */
QUORVEL_API float PSTEFF(const float *first_temperature, const float *second_temperature);

/*
 * PSTWET (psychrometer_wet_bulb): Wet-bulb temperature that a psychrometer reads at a dry-bulb
 *     temperature and relative humidity.
 * Given:
 *     dry_bulb           float    °C  -100 .. 200      dry-bulb temperature
 *     relative_humidity  float    %   0 .. 100         relative humidity
 *     pressure           float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer       int32_t      selector         psychrometer type: 1 sling (aspirated), 2
 *                                                      screen (naturally ventilated)
 * Result:
 *     float  °C  wet-bulb temperature, never above the dry bulb
 * Notes:
 *     - The coefficient of an iced bulb is taken when the dry bulb is below 0 °C, where PSVAP looks
 *       at the wet bulb; the asymmetry is deliberate.
 *     - A stepping search that ends within 0.1 K: the result moves in small jumps with its
 *       arguments.
 *     - Relative humidity is limited to 0 to 100 %. Where the search would never end (a pressure of
 *       zero or below, say), the value it has reached is returned.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Example: PSTWET(30, 50, 101325, 1) -> 22 +- 0.2
 * Source: Psychrometer equation of PSVAP, solved by a step-and-refine search.
 */
QUORVEL_API float PSTWET(const float *dry_bulb, const float *relative_humidity,
                         const float *pressure, const int32_t *psychrometer);

/*
 * PSTWB (wet_bulb_from_percentage_saturation): Wet-bulb temperature that a psychrometer reads at a
 *     dry-bulb temperature and percentage saturation.
 * Given:
 *     dry_bulb               float    °C  -100 .. 200      dry-bulb temperature
 *     percentage_saturation  float    %   0 .. 100         percentage saturation
 *     pressure               float    Pa  50000 .. 110000  atmospheric pressure
 *     psychrometer           int32_t      selector         psychrometer type: 1 sling (aspirated),
 *                                                          2 screen (naturally ventilated)
 * Result:
 *     float  °C  wet-bulb temperature
 * Notes:
 *     - A stepping search with steps down to 0.01 K: the result is above the exact wet bulb by less
 *       than that and moves in small jumps with its arguments.
 *     - The percentage is not limited: 100 and more give the dry bulb.
 *     - About 0 °C, where the coefficient changes to that of an iced bulb, two wet bulbs can belong
 *       to one percentage; which of them is found depends on the steps.
 *     - Where the search would never end (below absolute zero, say), the value it has reached is
 *       returned.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Example: PSTWB(30, 50, 101325, 1) -> 22.28 +- 0.05
 * Source: Psychrometer equation of PSVAP with the moisture content of PSGS, solved by a step-and-
 *     refine search.
 */
QUORVEL_API float PSTWB(const float *dry_bulb, const float *percentage_saturation,
                        const float *pressure, const int32_t *psychrometer);

/*
 * PSWBLB (wet_bulb_from_moisture_content): Wet-bulb temperature that a psychrometer reads at a dry-
 *     bulb temperature and moisture content.
 * Given:
 *     dry_bulb          float    °C     -100 .. 200      dry-bulb temperature
 *     moisture_content  float    kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     pressure          float    Pa     50000 .. 110000  atmospheric pressure
 *     psychrometer      int32_t         selector         psychrometer type: 1 sling (aspirated), 2
 *                                                        screen (naturally ventilated)
 * Result:
 *     float  °C  wet-bulb temperature
 * Notes:
 *     - A stepping search with steps of 5 K down to 0.005 K and a last one of 0.0005 K: the result
 *       is within 0.005 K of the exact wet bulb.
 *     - At saturation or above the result is the dry bulb, whatever that is. Otherwise a dry bulb
 *       above 10000 °C gives -100, one that is not a number -200.
 *     - Where the search would never end (a moisture content that is not a number, or far below 0),
 *       the value it has reached is returned.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Example: PSWBLB(30, 0.013666, 101325, 1) -> 22.28 +- 0.05
 * Source: Psychrometer equation of PSVAP with the moisture content of PSGS, solved by a step-and-
 *     refine search.
 */
QUORVEL_API float PSWBLB(const float *dry_bulb, const float *moisture_content,
                         const float *pressure, const int32_t *psychrometer);

/* ---- Building fabric ------------------------------------------------------------------------- */

/*
 * TPADMT (cyclic_response): Admittance, decrement factor and surface factor of a construction with
 *     their time shifts, and its U-value.
 * Given:
 *     thickness           float    m      any       thickness of each layer, from the room
 *                                                   outwards; below 0: a layer of given resistance,
 *                                                   0: no layer [layers]
 *     conductivity        float    W/mK   from 0    conductivity of each layer; its resistance in
 *                                                   m²K/W where the thickness is below 0 [layers]
 *     density             float    kg/m³  from 0    density of each layer [layers]
 *     specific_heat       float    J/kgK  from 0    specific heat of each layer [layers]
 *     inside_resistance   float    m²K/W  from 0    resistance of the surface at the room
 *     outside_resistance  float    m²K/W  from 0    resistance of the far surface
 *     layers              int32_t         0 .. 20   number of layers
 *     harmonic            int32_t         from 0    cycles in 24 hours
 *     element_kind        int32_t         selector  kind of element: 1 element between two
 *                                                   environments, 2 internal partition, the same
 *                                                   swing on both sides
 * Returned:
 *     admittance          float  W/m²K    admittance Y; left as it was with more than 20 layers
 *     admittance_lead     float  h        time lead of the admittance, 0 to 24 / harmonic; left as
 *                                         it was with more than 20 layers
 *     decrement_factor    float  1        decrement factor f, 0 for a partition; left as it was
 *                                         with more than 20 layers
 *     decrement_lag       float  h        time lag of the decrement factor, 0 to 24 / harmonic, 0
 *                                         for a partition; left as it was with more than 20 layers
 *     surface_factor      float  1        surface factor F; left as it was with more than 20 layers
 *     surface_factor_lag  float  h        time lag of the surface factor, 0 to 24 / harmonic; left
 *                                         as it was with more than 20 layers
 *     u_value             float  W/m²K    U-value, as TPUVAL gives it; left as it was with more
 *                                         than 20 layers
 * Formula: M = Msi M1 ... Mn Mso; Y = m22 / m12, of a partition (m22 - 1) / m12; f = 1 / (u_value
 *     m12); F = 1 - inside_resistance Y
 * Notes:
 *     - Without layers the two surfaces are left.
 *     - Any kind but 2 counts as 1. A harmonic of 0 is a steady temperature: the admittance is U,
 *       the time shifts are not numbers. One below 0 gives no numbers.
 *     - A layer without heat capacity acts as its resistance. One with very little is the less
 *       accurate the smaller x is, its thickness over the depth at which the swing has sunk to 1/e
 *       (0.1 to 0.2 m in masonry): the relative error of its resistance is about 1e-7 / x, since
 *       sinh is formed as a difference in single precision.
 *     - Shifts near 0 can come out near a whole cycle: rounding decides on which side of 0 an angle
 *       falls. One that is exactly 0 may be -0, as both lags of layers without heat capacity are.
 *     - The moduli of all three factors are formed so that no square under- or overflows: a
 *       decrement factor of 2.8e-24 (four layers of 0.6 m of concrete under harmonic 12) is one.
 *     - Where the x of all layers add up to about 87 the elements of the matrix overflow: the
 *       admittance is infinite or not a number, and from 89 on nothing but U is a number. That is
 *       12.3 m of concrete of 1.75 W/mK, 2400 kg/m³ and 1000 J/kgK under the daily cycle; of 2
 *       W/mK, 2000 kg/m³ and 880 J/kgK 15 m still have numbers.
 *     - Density and specific heat enter as their product only.
 *     - The formula's M is the product of the transmission matrices of the surfaces and the layers.
 *       Its complex Y, f and F are the admittance, the decrement factor and the surface factor with
 *       their time shifts.
 *     - A count below 1 is no layers; no array is read.
 * Source: Pipes, Matrix analysis of heat transfer problems, Journal of the Franklin Institute 263,
 *     1957; Milbank and Harrington-Lynn, Thermal response and the admittance procedure, Building
 *     Research Establishment CP 61/74, 1974; ISO 13786.
 */
QUORVEL_API void TPADMT(const float *thickness, const float *conductivity, const float *density,
                        const float *specific_heat, const float *inside_resistance,
                        const float *outside_resistance, const int32_t *layers,
                        const int32_t *harmonic, const int32_t *element_kind, float *admittance,
                        float *admittance_lead, float *decrement_factor, float *decrement_lag,
                        float *surface_factor, float *surface_factor_lag, float *u_value);

/*
 * TPRCAV (vertical_cavity_resistance): Thermal resistance of a sealed vertical air cavity between
 *     ordinary building surfaces.
 * Given:
 *     cavity_width  float  m  from 0.001  width
 * Result:
 *     float  m²K/W  cavity resistance, not below 0.1
 * Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width), at least 0.1; Nu = 0.035
 *     Ra^0.38, at least 1; Ra = 793.00165 width^3 / 4.4e-7
 * Notes:
 *     - A width below 0.001 gives 0.1, where TPRCA2 and TPRCAX give 0: deliberate. Not a number
 *       stays so.
 *     - The emissivities e1 and e2 of the faces are 0.85 and 0.86.
 * Example: TPRCAV(0.025) -> 0.18 +- 0.01
 * Source: As TPRCA2.
 */
QUORVEL_API float TPRCAV(const float *cavity_width);

/*
 * TPRCA2 (air_cavity_resistance): Thermal resistance of a sealed air cavity by convection and long-
 *     wave radiation.
 * Given:
 *     tilt          float  rad  0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                            flowing down
 *     cavity_width  float  m    from 0.001   width
 *     emissivity_1  float  1    0 .. 1       long-wave emissivity of one face
 *     emissivity_2  float  1    0 .. 1       long-wave emissivity of the other face
 * Result:
 *     float  m²K/W  cavity resistance
 * Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width); Nu = C Ra^n, at least 1; Ra =
 *     793.00165 width^3 / 4.4e-7
 * Notes:
 *     - A tilt outside 0..3.1416 and a width below 0.001 give 0.
 *     - C and n of the Nusselt number C Ra^n, which is at least 1, are interpolated over the tilt
 *       between 0, 0.785 and 1.57, and carried on as far as 1.59. From there the air rests and only
 *       conducts: the resistance jumps.
 *     - Two faces of emissivity 0 leave the exchange undefined (0/0).
 * Example: TPRCA2(3.1415927, 0.05, 0.9, 0.9) -> 0.21 +- 0.006
 * Source: EN 673, Glass in building - Determination of thermal transmittance: C and n for vertical,
 *     inclined and horizontal cavities, and air at 10 °C with 15 K between the faces.
 */
QUORVEL_API float TPRCA2(const float *tilt, const float *cavity_width, const float *emissivity_1,
                         const float *emissivity_2);

/*
 * TPRCAX (gas_cavity_resistance): Thermal resistance of a sealed cavity filled with any gas.
 * Given:
 *     tilt           float  rad    0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                               flowing down
 *     cavity_width   float  m      from 0.001   width
 *     emissivity_1   float  1      0 .. 1       long-wave emissivity of one face
 *     emissivity_2   float  1      0 .. 1       long-wave emissivity of the other face
 *     density        float  kg/m³  from 0       density of the gas
 *     conductivity   float  W/mK   from 0       thermal conductivity of the gas
 *     specific_heat  float  J/kgK  from 0       specific heat of the gas at constant pressure
 *     viscosity      float  Pa s   from 0       dynamic viscosity of the gas
 * Result:
 *     float  m²K/W  cavity resistance
 * Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + conductivity Nu / width); Nu = C Ra^n, at least 1;
 *     Ra = 0.52 specific_heat density^2 width^3 / (viscosity conductivity)
 * Notes:
 *     - Guards and correlation as in TPRCA2.
 *     - The Rayleigh number has a factor of 0.52 m/s² for gravity times expansion times temperature
 *       difference, whatever the gas and its temperature.
 *     - A negative Rayleigh number has no power: not a number.
 * Source: As TPRCA2.
 */
QUORVEL_API float TPRCAX(const float *tilt, const float *cavity_width, const float *emissivity_1,
                         const float *emissivity_2, const float *density,
                         const float *conductivity, const float *specific_heat,
                         const float *viscosity);

/*
 * TPDAMP (total_vapour_resistance): Vapour resistance of a construction.
 * Given:
 *     thickness           float    m            any      thickness of each layer; below 0: a layer
 *                                                        of given thermal resistance, 0: a membrane
 *                                                        [layers]
 *     vapour_resistivity  float    GN s/(kg m)  from 0   vapour resistivity of each layer; of a
 *                                                        membrane its vapour resistance in GN s/kg
 *                                                        [layers]
 *     layers              int32_t               0 .. 20  number of layers
 * Returned:
 *     vapour_resistance  float  N s/kg    total vapour resistance; left as it was with more than 20
 *                                         layers
 * Formula: sum of 1e9 thickness vapour_resistivity
 * Notes:
 *     - A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness,
 *       whatever its resistivity: an air gap 0.05 m wide is entered as -0.05, not as -1.
 *     - Without layers it is 0.
 *     - Results are in N s/kg, resistivities in GN s/(kg m).
 *     - A count below 1 is no layers.
 * Example: TPDAMP((0.1), (50), 1) -> vapour_resistance = 5e+09 +- 1000
 * Source: Vapour resistances in series; 5 GN s/(kg m) is the customary resistivity of still air.
 */
QUORVEL_API void TPDAMP(const float *thickness, const float *vapour_resistivity,
                        const int32_t *layers, float *vapour_resistance);

/*
 * TPGRAD (condensation_profile): Steady temperature, vapour pressure and saturation pressure at the
 *     interfaces of a construction; the vapour pressure is held down to saturation where it would
 *     exceed it.
 * Given:
 *     thickness            float    m            any          thickness of each layer from the
 *                                                             inside; below 0: a layer of given
 *                                                             thermal resistance, 0: a membrane
 *                                                             [layers]
 *     conductivity         float    W/mK         from 0       conductivity of each layer; its
 *                                                             resistance in m²K/W where the
 *                                                             thickness is below 0 [layers]
 *     vapour_resistivity   float    GN s/(kg m)  from 0       vapour resistivity of each layer; of
 *                                                             a membrane its vapour resistance in
 *                                                             GN s/kg [layers]
 *     inside_resistance    float    m²K/W        from 0       resistance of the inside surface
 *     outside_resistance   float    m²K/W        from 0       resistance of the outside surface
 *     layers               int32_t               0 .. 20      number of layers
 *     inside_temperature   float    °C           -100 .. 200  inside air temperature
 *     outside_temperature  float    °C           -100 .. 200  outside air temperature
 *     inside_humidity      float    %            0 .. 100     inside relative humidity
 *     outside_humidity     float    %            0 .. 100     outside relative humidity
 * Returned:
 *     interface_temperature          float  °C    temperature at the interfaces, from the inside
 *                                                 surface to the outside one [21]; left as it was
 *                                                 with a count outside 0 to 20, and beyond element
 *                                                 layers + 1
 *     interface_vapour_pressure      float  Pa    vapour pressure at them [21]; left as it was with
 *                                                 a count outside 0 to 20, and beyond element
 *                                                 layers + 1
 *     interface_saturation_pressure  float  Pa    saturation pressure at them [21]; left as it was
 *                                                 with a count outside 0 to 20, and beyond element
 *                                                 layers + 1
 * Notes:
 *     - The first and the last interface are the surfaces. Without layers there is one surface,
 *       with the temperature and the vapour pressure of its inside.
 *     - Vapour condenses at an interface where the vapour pressure equals the saturation pressure.
 *     - Relative humidities are limited to 0 to 100 %, the vapour pressures at the two surfaces to
 *       saturation there. Between two surfaces without any vapour resistance the vapour pressure is
 *       no number.
 *     - A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness,
 *       as in TPDAMP.
 *     - Saturation inside a layer, between its interfaces, is not looked for: see ITPCON.
 *     - Only layers + 1 elements of each profile are written. More than 20 layers, or fewer than 0,
 *       write nothing.
 * Source: Glaser's method in the stepwise form of ISO 13788: the vapour line is straight over the
 *     vapour resistance between the interfaces at which it is held to saturation.
 */
QUORVEL_API void TPGRAD(const float *thickness, const float *conductivity,
                        const float *vapour_resistivity, const float *inside_resistance,
                        const float *outside_resistance, const int32_t *layers,
                        const float *inside_temperature, const float *outside_temperature,
                        const float *inside_humidity, const float *outside_humidity,
                        float *interface_temperature, float *interface_vapour_pressure,
                        float *interface_saturation_pressure);

/*
 * ITPCON (condenses_within_layer): Whether vapour condenses inside a layer, from the temperatures
 *     and vapour pressures of its two faces.
 * Given:
 *     warm_temperature      float  °C  -100 .. 200  temperature of the warm face
 *     cold_temperature      float  °C  -100 .. 200  temperature of the cold face
 *     warm_vapour_pressure  float  Pa  from 0       vapour pressure at the warm face
 *     cold_vapour_pressure  float  Pa  from 0       vapour pressure at the cold face
 * Result:
 *     int32_t  1 if vapour condenses, 0 if not
 * Notes:
 *     - The layer is looked at in steps of 0.5 K from the warm face: the warm face itself is not,
 *       the cold face only if a step falls on it. Faces less than 0.5 K apart give 0.
 *     - A cold face that is not below the warm one, or a temperature that is no number, gives 0.
 *     - Where the temperature is so large that a step of 0.5 K is lost in its rounding (8.4 million
 *       °C), the search ends there with 0.
 * Example: ITPCON(20, 0, 1400, 1000) -> 1
 * Source: Straight lines of temperature and vapour pressure through a homogeneous layer, against
 *     the saturation pressure of PSSVP.
 */
QUORVEL_API int32_t ITPCON(const float *warm_temperature, const float *cold_temperature,
                           const float *warm_vapour_pressure, const float *cold_vapour_pressure);

/*
 * BELDAT (element_property): One property of one record of a construction, a list of elements from
 *     face to face.
 * Given:
 *     element_records  float    by field  any      ten fields of each record, counted from 1; the
 *                                                  first is its type code [10, record_count]
 *     record_count     int32_t            from 1   number of records
 *     record_number    int32_t            from 1   record asked about, counted from 1
 *     item             int32_t            1 .. 72  property asked for
 * Result:
 *     float  by item  the property; 1e20 for none
 * Notes:
 *     - The type code, 50 to 999, is 100 times the class plus the subtype: class 1 solid layer, 2
 *       another layer, 3 gap (300 of given resistance, 302 filled with gas), 4 translucent layer, 5
 *       boundary, 6 end marker; other classes have no meaning. It is rounded after the limits are
 *       tested: 149.6 is class 1, subtype 50; 49.6 and what is no number are no codes.
 *     - Items of every class: 1 type code.
 *     - Items of classes 1, 3 and 4: 2 thickness in mm; 4 and 5 fields 4 and 5, of a layer the two
 *       factors of its volumetric heat capacity, of a gas specific heat and density. Of 1 and 4: 3
 *       conductivity in W/mK. Of 1 and 3: 6 field 6.
 *     - Items of class 3: 7 viscosity of the gas; 11 resistance in m²K/W, or conductivity of the
 *       gas; 61 and 62 field 8, with subtype 1 and 2.
 *     - Items of classes 2, 4 and 5: 12 field 6. Of class 5 with subtype 1 or 2: 21 to 23 fields 2
 *       to 4.
 *     - Items of packed fields (TPCOLT), all classes but 3 and 6: 31 solar transmittance, 32 front
 *       and 33 back reflectance, 34 and 35 front and back absorptance, from field 9; 41 to 45 the
 *       same from field 7; 54 and 55 the long-wave fractions of the two faces, 52 and 53 one less
 *       these, from field 8.
 *     - Items of every class: 71 and 72 are 1 if the list ends with a record of code 601 and 602,
 *       whichever valid record is asked about.
 *     - The complements of an undefined packed field, items 34, 35, 44, 45, 52 and 53, are -1e20 or
 *       -2e20, not 1e20: deliberate.
 * Example: BELDAT((101, 100, 0.04, 0, 0, 0, 0, 0, 0, 0), 1, 1, 2) -> 100
 * Source: Layout of the element records.
 */
QUORVEL_API float BELDAT(const float *element_records, const int32_t *record_count,
                         const int32_t *record_number, const int32_t *item);

/*
 * TPHCON (natural_convection_coefficient): Coefficient of natural convection at a surface of a
 *     room.
 * Given:
 *     temperature_difference  float    K  any       difference between surface and air temperature;
 *                                                   its sign makes no difference
 *     characteristic_length   float    m  from 0    characteristic length: height of a vertical
 *                                                   surface, four times the area over the perimeter
 *                                                   of a horizontal one
 *     heat_flow_direction     int32_t     selector  direction of the heat flow: 1 heat flow
 *                                                   upwards, 2 vertical surface, 3 heat flow
 *                                                   downwards
 * Result:
 *     float  W/m²K  convective coefficient
 * Formula: ((1.63 dT^(1/3))^6 + (1.40 (dT / L)^(1/4))^6)^(1/6) upwards, 1.23 and 1.50 for 1.63 and
 *     1.40 at a vertical surface, 0.6 (dT / L^2)^(1/5) downwards; dT = |temperature_difference|, L
 *     = characteristic_length
 * Notes:
 *     - Any other direction gives 0.
 *     - The coefficients 1.23 and 1.50 of a vertical surface have the laminar term larger than the
 *       turbulent one, with an upward flow it is the other way round; both are as published.
 *     - A length of 0 gives an infinite coefficient, one below 0 no number but for a downward flow.
 * Example: TPHCON(4, 2.5, 2) -> 2.0691 +- 0.001
 * Source: Alamdari and Hammond, Improved data correlations for buoyancy-driven convection in rooms,
 *     Building Services Engineering Research and Technology 4, 1983.
 */
QUORVEL_API float TPHCON(const float *temperature_difference, const float *characteristic_length,
                         const int32_t *heat_flow_direction);

/*
 * TPCOLW (pack_two_fractions): Packs two fractions of two decimals into one real, or unpacks them.
 * Given:
 *     packing        int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed_number  float    1  0 .. 9999.99  packed number
 *     fraction_1     float    1  0 .. 0.99     fraction behind the point
 *     fraction_2     float    1  0 .. 0.99     fraction held as units and tens
 * Returned:
 *     packed_number  float  1  0 .. 9999.99  packed number; left as it was when unpacking; 1e20 for
 *                                            none
 *     fraction_1     float  1  0 .. 0.99     fraction behind the point; left as it was when
 *                                            packing; 1e20 for none
 *     fraction_2     float  1  0 .. 0.99     fraction held as units and tens; left as it was when
 *                                            packing; 1e20 for none
 * Notes:
 *     - As TPCOLT with a third fraction of 0, which is not returned: what stands above 100 is
 *       ignored.
 * Example: TPCOLW(1, 0, 0.25, 0.4) -> packed_number = 40.25 +- 1e-05
 * Source: As TPCOLT.
 */
QUORVEL_API void TPCOLW(const int32_t *packing, float *packed_number, float *fraction_1,
                        float *fraction_2);

/*
 * TPCOLT (pack_three_fractions): Packs three fractions of two decimals into one real, or unpacks
 *     them.
 * Given:
 *     packing        int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed_number  float    1  0 .. 9999.99  packed number
 *     fraction_1     float    1  0 .. 0.99     fraction behind the point
 *     fraction_2     float    1  0 .. 0.99     fraction held as units and tens
 *     fraction_3     float    1  0 .. 0.99     fraction held as hundreds and thousands
 * Returned:
 *     packed_number  float  1  0 .. 9999.99  packed number; left as it was when unpacking; 1e20 for
 *                                            none
 *     fraction_1     float  1  0 .. 0.99     fraction behind the point; left as it was when
 *                                            packing; 1e20 for none
 *     fraction_2     float  1  0 .. 0.99     fraction held as units and tens; left as it was when
 *                                            packing; 1e20 for none
 *     fraction_3     float  1  0 .. 0.99     fraction held as hundreds and thousands; left as it
 *                                            was when packing; 1e20 for none
 * Notes:
 *     - 0.25, 0.40, 0.07 are packed as 740.25.
 *     - Fractions that add up to more than 1e10, and a packed number above 1e10, are undefined and
 *       give 1e20.
 *     - Fractions 2 and 3 are cut to two decimals, with a tenth of a hundredth to spare; fraction 1
 *       is added as it stands and cut when unpacked.
 *     - All triples from 0.00 to 0.99 come back, as hundredths times the float 0.01: for 29 of the
 *       hundred fractions, 0.40 among them, that is the float next to the nearest.
 *     - A fraction of 1.00 is carried into the next one, 1 into 2 and 2 into 3.
 * Example: TPCOLT(1, 0, 0.25, 0.4, 0.07) -> packed_number = 740.25 +- 0.0001
 * Source: Format of the packed property numbers of element records (BELDAT).
 */
QUORVEL_API void TPCOLT(const int32_t *packing, float *packed_number, float *fraction_1,
                        float *fraction_2, float *fraction_3);

/*
 * TPCOLW2 (pack_three_fractions_third_first): TPCOLT with its arguments in another order.
 * Given:
 *     packing        int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed_number  float    1  0 .. 9999.99  packed number
 *     fraction_3     float    1  0 .. 0.99     fraction held as hundreds and thousands
 *     fraction_1     float    1  0 .. 0.99     fraction behind the point
 *     fraction_2     float    1  0 .. 0.99     fraction held as units and tens
 * Returned:
 *     packed_number  float  1  0 .. 9999.99  packed number; left as it was when unpacking; 1e20 for
 *                                            none
 *     fraction_3     float  1  0 .. 0.99     fraction held as hundreds and thousands; left as it
 *                                            was when packing; 1e20 for none
 *     fraction_1     float  1  0 .. 0.99     fraction behind the point; left as it was when
 *                                            packing; 1e20 for none
 *     fraction_2     float  1  0 .. 0.99     fraction held as units and tens; left as it was when
 *                                            packing; 1e20 for none
 * Source: As TPCOLT.
 */
QUORVEL_API void TPCOLW2(const int32_t *packing, float *packed_number, float *fraction_3,
                         float *fraction_1, float *fraction_2);

/*
 * TPCOSW (pack_pane): Packs the solar absorptance of a pane and the reflectances of its faces into
 *     one real, as absorptance and transmittances, or unpacks them.
 * Given:
 *     packing        int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed_number  float    1  0 .. 9999.99  packed number
 *     absorptance    float    1  0 .. 1        absorptance
 *     reflectance_1  float    1  0 .. 1        reflectance of the first face
 *     reflectance_2  float    1  0 .. 1        reflectance of the second face
 * Returned:
 *     packed_number  float  1  0 .. 9999.99  packed number; left as it was when unpacking; 1e20 for
 *                                            none
 *     absorptance    float  1  0 .. 1        absorptance; left as it was when packing; 1e20 for
 *                                            none
 *     reflectance_1  float  1  0 .. 1        reflectance of the first face; left as it was when
 *                                            packing; 1e20 for none
 *     reflectance_2  float  1  0 .. 1        reflectance of the second face; left as it was when
 *                                            packing; 1e20 for none
 * Notes:
 *     - Packed as TPCOLT packs the absorptance and the transmittances 1 - absorptance - reflectance
 *       of the two faces. Undefined values as there.
 *     - A face that neither absorbs nor reflects transmits 1.00, which is carried into the next
 *       position.
 *     - Absorptance and reflectance of a face that exceed 1 together do not come back.
 * Example: TPCOSW(1, 0, 0.1, 0.2, 0.3) -> packed_number = 6070.1 +- 0.001
 * Source: As TPCOLT.
 */
QUORVEL_API void TPCOSW(const int32_t *packing, float *packed_number, float *absorptance,
                        float *reflectance_1, float *reflectance_2);

/*
 * TPRSUR (surface_resistance): Thermal resistance of the inside or outside surface of an element,
 *     for an emissivity of 0.9.
 * Given:
 *     surface   int32_t       selector     surface: 1 outside, 2 inside
 *     tilt      float    rad  0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing
 *                                          down
 *     exposure  int32_t       selector     exposure of an outside surface to the wind: 1 sheltered,
 *                                          2 normal, 3 severe
 * Result:
 *     float  m²K/W  surface resistance
 * Formula: inside 1 / (9.53 - 2.6 tilt / pi), outside 1 / (4.59 + a + 4 b (1 - tilt / pi)^2)
 * Notes:
 *     - Another surface type gives 0. Another exposure counts as the nearest one.
 *     - An inside vertical surface has 1 / 8.23 = 0.12 m²K/W.
 *     - The tilt is not tested.
 *     - a is 4.3, 9.1 and 20.7 W/m²K by exposure, b is 1.3, 2.8 and 6.1.
 * Example: TPRSUR(2, 1.5707963, 2) -> 0.12 +- 0.0055
 * Source: Radiation and convection side by side. The customary values of inside surfaces (0.10 up,
 *     0.12 horizontal, 0.14 down) and of outside ones in normal and severe exposure (walls 0.06 and
 *     0.03, roofs 0.04 and 0.02) are met to two decimals; the origin of the convective coefficients
 *     is not recorded.
 */
QUORVEL_API float TPRSUR(const int32_t *surface, const float *tilt, const int32_t *exposure);

/*
 * TPRSU2 (surface_resistance_at_emissivity): Thermal resistance of the inside or outside surface of
 *     an element of any emissivity.
 * Given:
 *     surface     int32_t       selector     surface: 1 outside, 2 inside
 *     tilt        float    rad  0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                            flowing down
 *     exposure    int32_t       selector     exposure of an outside surface to the wind: 1
 *                                            sheltered, 2 normal, 3 severe
 *     emissivity  float    1    0 .. 1       long-wave emissivity of the surface
 * Result:
 *     float  m²K/W  surface resistance
 * Formula: inside 1 / (4.4 - 2.6 tilt / pi + 5.7 emissivity), outside 1 / (5.1 emissivity + a + 4 b
 *     (1 - tilt / pi)^2)
 * Notes:
 *     - Another surface type gives 0. Another exposure counts as the nearest one.
 *     - At an emissivity of 0.9 it is TPRSUR to rounding.
 *     - Tilt and emissivity are not tested.
 *     - a and b are those of TPRSUR.
 * Example: TPRSU2(2, 1.5707963, 2, 0.9) -> 0.12 +- 0.005
 * Source: As TPRSUR, with black-body coefficients of 5.1 W/m²K outside and 5.7 W/m²K inside.
 */
QUORVEL_API float TPRSU2(const int32_t *surface, const float *tilt, const int32_t *exposure,
                         const float *emissivity);

/*
 * TPUVAL (u_value): U-value of a construction of plane layers between two surface resistances.
 * Given:
 *     thickness             float    m      any      thickness of each layer; below 0: a layer of
 *                                                    given resistance, 0: no layer [layers]
 *     conductivity          float    W/mK   from 0   conductivity of each layer; its resistance in
 *                                                    m²K/W where the thickness is below 0 [layers]
 *     surface_resistance_1  float    m²K/W  from 0   resistance of one surface
 *     surface_resistance_2  float    m²K/W  from 0   resistance of the other
 *     layers                int32_t         0 .. 20  number of layers
 * Returned:
 *     u_value  float  W/m²K    U-value; left as it was with more than 20 layers
 * Formula: 1 / (surface_resistance_1 + surface_resistance_2 + sum of thickness / conductivity)
 * Notes:
 *     - Without layers the two surfaces are left.
 *     - How far below 0 a thickness is makes no difference here; it does in TPDAMP and TPGRAD.
 *     - A thickness that is no number gives no number.
 *     - A count below 1 is no layers; no array is read.
 * Example: TPUVAL((0.1, 0.1), (0.04, 1), 0.13, 0.04, 2) -> u_value = 0.361011 +- 1e-06
 * Source: Resistances in series; ISO 6946.
 */
QUORVEL_API void TPUVAL(const float *thickness, const float *conductivity,
                        const float *surface_resistance_1, const float *surface_resistance_2,
                        const int32_t *layers, float *u_value);

/*
 * TPUMOD (u_value_at_tilt_and_exposure): U-value of a construction at another tilt and exposure,
 *     from its U-value as a vertical wall in normal exposure.
 * Given:
 *     u_value   float    W/m²K  from 0       U-value with the surface resistances of a vertical
 *                                            wall at exposure 2
 *     tilt      float    rad    0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                            flowing down
 *     exposure  int32_t         selector     wind exposure of the outside surface: 1 sheltered, 2
 *                                            normal, 3 severe
 * Result:
 *     float  W/m²K  U-value at that tilt and exposure
 * Formula: 1 / (1 / u_value - Rso - Rsi + Rso(tilt, exposure) + Rsi(tilt)), Rso and Rsi of a
 *     vertical surface in normal exposure where nothing else is said
 * Notes:
 *     - A U-value that is not above 0, or no number, comes back as it is.
 *     - Above 5.49 W/m²K, what the two surfaces of the wall let through by themselves, the layers
 *       would have a negative resistance; the result is formed with it all the same.
 *     - An exposure below 1 counts as 1, above 3 as 3. The tilt is not limited.
 * Example: TPUMOD(0.6, 0, 2) -> 0.615 +- 0.003
 * Source: Surface resistances of TPRSUR, exchanged.
 */
QUORVEL_API float TPUMOD(const float *u_value, const float *tilt, const int32_t *exposure);

/*
 * TPWNDO (window_parameters): U-value, admittance, decrement factor and surface factor of a glazing
 *     of one to three panes.
 * Given:
 *     panes           int32_t       1 .. 3       number of panes, pane 1 nearest the room
 *     pane_kind_1     int32_t       selector     kind of pane 1: 1 closes the cavities on both
 *                                                sides, 2 closes none
 *     emissivity_1    float    1    0 .. 1       long-wave emissivity of pane 1
 *     pane_kind_2     int32_t       selector     kind of pane 2: 1 closes the cavities on both
 *                                                sides, 2 closes none
 *     emissivity_2    float    1    0 .. 1       long-wave emissivity of pane 2
 *     pane_kind_3     int32_t       selector     kind of pane 3: 1 closes the cavities on both
 *                                                sides, 2 closes none
 *     emissivity_3    float    1    0 .. 1       long-wave emissivity of pane 3
 *     cavity_width_1  float    m    from 0.001   width of the cavity between panes 1 and 2
 *     cavity_width_2  float    m    from 0.001   width of the cavity between panes 2 and 3
 *     outer_surface   int32_t       selector     surface type of the outer face, normally 1: 1
 *                                                outside, 2 inside
 *     exposure        int32_t       selector     exposure of the outer face to the wind: 1
 *                                                sheltered, 2 normal, 3 severe
 *     tilt            float    rad  0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                                flowing down
 *     unused          float    1    not used     accepted for the sake of existing callers
 * Returned:
 *     admittance          float  W/m²K    admittance, the U-value
 *     admittance_lead     float  h        time lead of the admittance, 0
 *     decrement_factor    float  1        decrement factor, 1
 *     decrement_lag       float  h        time lag of the decrement factor, 0
 *     surface_factor      float  1        surface factor, 1 - Rsi U
 *     surface_factor_lag  float  h        time lag of the surface factor, 0
 *     u_value             float  W/m²K    U-value
 * Formula: u_value = 1 / (Rso + Rsi + the resistances of the cavities), surface_factor = 1 - Rsi
 *     u_value
 * Notes:
 *     - The resistance of the glass is neglected and nothing is stored in it.
 *     - Of three panes one may be open: the middle one leaves a single cavity as wide as both. With
 *       two open panes, and with one open pane of two, there is no cavity.
 *     - The kinds of the panes are told by their sum: 0, 1, 2 count as three closed panes.
 *     - Another number of panes counts as one pane, with the emissivity of pane 3 outside.
 *     - Cavities as TPRCA2: one that it rejects has no resistance.
 *     - Rsi and Rso are the resistances of the inner and the outer surface.
 * Source: Surface resistances of TPRSU2 and cavities of TPRCA2 in series.
 */
QUORVEL_API void TPWNDO(const int32_t *panes, const int32_t *pane_kind_1,
                        const float *emissivity_1, const int32_t *pane_kind_2,
                        const float *emissivity_2, const int32_t *pane_kind_3,
                        const float *emissivity_3, const float *cavity_width_1,
                        const float *cavity_width_2, const int32_t *outer_surface,
                        const int32_t *exposure, const float *tilt, const float *unused,
                        float *admittance, float *admittance_lead, float *decrement_factor,
                        float *decrement_lag, float *surface_factor, float *surface_factor_lag,
                        float *u_value);

/* ---- Glazing --------------------------------------------------------------------------------- */

/*
 * WNDRGL (glass_direct): Transmittance, absorptance and reflectance of a pane for direct radiation,
 *     both polarisations.
 * Given:
 *     normal_transmittance  float  1    0 .. 0.92          normal transmittance
 *     normal_reflectance    float  1    0 .. 0.99          normal reflectance of coated glass, 0
 *                                                          for uncoated
 *     incidence             float  rad  -1.5708 .. 1.5708  angle of incidence
 * Returned:
 *     parallel_transmittance       float  1    transmittance, parallel polarisation
 *     parallel_absorptance         float  1    absorptance, parallel
 *     parallel_reflectance         float  1    reflectance, parallel
 *     perpendicular_transmittance  float  1    transmittance, perpendicular polarisation
 *     perpendicular_absorptance    float  1    absorptance, perpendicular
 *     perpendicular_reflectance    float  1    reflectance, perpendicular
 * Notes:
 *     - The unpolarised values are the means of the two polarisations.
 *     - A normal reflectance in 0.01..0.99 means coated: factors on the normal transmittance and on
 *       1 - normal_reflectance are interpolated from a table every 5 degrees, the same for both
 *       polarisations; beyond 1.57 rad everything is reflected. Any other means uncoated and is not
 *       used.
 *     - Uncoated glass has the refractive index 1.52. Below a transmittance of 0.001 it is opaque
 *       and reflects everything.
 *     - No uncoated glass has a normal transmittance above 0.9184: from there on its absorption
 *       would be below 0 and is held at 0, so that the three add up to more than 1. At 0.92 their
 *       unpolarised sum is 1.0018 at normal incidence, 1.0024 at 1.5 rad and 1.011 at 1.57 rad.
 *     - For nearly opaque uncoated glass the difference in WNKL cancels: at normal incidence the
 *       transmittance comes back to within 4 % from 0.02 on and 34 % from 0.005 on; below that
 *       0.002 gives 0 and 0.0025 gives 0.006.
 *     - Uncoated, an angle beyond pi/2 is not tested, and the results mean nothing there.
 *     - The transmittance of coated glass is not tested: where it exceeds 1 with the reflectance
 *       the three do not add up to 1.
 * Source: Uncoated glass: WNKL, WNRANG, WNREFL, WNABEN, WNTAR in turn. Coated glass: tabulated
 *     angular factors whose origin is not recorded.
 */
QUORVEL_API void WNDRGL(const float *normal_transmittance, const float *normal_reflectance,
                        const float *incidence, float *parallel_transmittance,
                        float *parallel_absorptance, float *parallel_reflectance,
                        float *perpendicular_transmittance, float *perpendicular_absorptance,
                        float *perpendicular_reflectance);

/*
 * WNDFGL (glass_diffuse): Transmittance and absorptance of a pane for isotropic diffuse radiation.
 * Given:
 *     normal_transmittance  float  1  0 .. 0.92  normal transmittance
 *     normal_reflectance    float  1  0 .. 0.99  normal reflectance of coated glass, 0 for uncoated
 * Returned:
 *     transmittance  float  1    diffuse transmittance
 *     absorptance    float  1    diffuse absorptance
 * Notes:
 *     - The pane is taken exactly as by WNDRGL, coated and opaque glass included.
 *     - The bits are those of WNDRGL summed over the bands.
 * Example: WNDFGL(0.83, 0) -> transmittance = 0.75 +- 0.01
 * Source: WNDRGL at the centres of 18 bands of 5 degrees, each weighted with the integral of 2 sin
 *     cos over the band.
 */
QUORVEL_API void WNDFGL(const float *normal_transmittance, const float *normal_reflectance,
                        float *transmittance, float *absorptance);

/*
 * WNCOM2 (stacked_layers): Transmittance, absorptance and reflectance of a stack of layers, each
 *     reflection counted once.
 * Given:
 *     layers                int32_t     from 0    number of layers
 *     layer_transmittances  float    1  0 .. 1    transmittance of each layer [layers]
 *     unused                float    1  not used  accepted for the sake of existing callers
 *     layer_reflectances    float    1  0 .. 1    reflectance of each layer [layers]
 * Returned:
 *     transmittance  float  1    transmittance of the stack
 *     absorptance    float  1    absorptance, 1 - transmittance - reflectance
 *     reflectance    float  1    reflectance of the stack
 * Notes:
 *     - A layer's reflection passes the layers above it once each way; there is no further inter-
 *       reflection.
 *     - Where transmittance and reflectance exceed 0.99 together, the reflectance is reduced until
 *       they do not. It turns negative if the transmittance alone is above 0.99.
 *     - The last layer is met first. No layers are an empty stack, which transmits everything.
 *     - A count below 1 is an empty stack; no array is read.
 * Source: First-order combination of the layers.
 */
QUORVEL_API void WNCOM2(const int32_t *layers, const float *layer_transmittances,
                        const float *unused, const float *layer_reflectances, float *transmittance,
                        float *absorptance, float *reflectance);

/*
 * WNCOMP (traced_layers): Transmittance, absorptance and reflectance of a stack of layers with the
 *     inter-reflections between all of them.
 * Given:
 *     layers                int32_t     0 .. 11  number of layers
 *     layer_transmittances  float    1  0 .. 1   transmittance of each layer, the same from both
 *                                                sides [layers]
 *     layer_absorptances    float    1  0 .. 1   absorptance of each layer [layers]
 *     layer_reflectances    float    1  0 .. 1   reflectance of each layer, the same from both
 *                                                sides [layers]
 * Returned:
 *     transmittance  float  1    transmittance of the stack; left as it was with more than 11
 *                                layers
 *     absorptance    float  1    absorptance of the stack; left as it was with more than 11 layers
 *     reflectance    float  1    reflectance of the stack; left as it was with more than 11 layers
 * Notes:
 *     - In a pass the flux goes forward through all layers and back by one; nine passes are made.
 *       What needs more than eight steps back is missing from all three results: nothing of one
 *       layer; of two, the ninth power of the product of their reflectances as a share of the
 *       transmittance; of ten and eleven layers all that the last ones reflect.
 *     - The last layer is met first. No layers are an empty stack, which transmits everything.
 *     - That transmittance, absorptance and reflectance of a layer add up to 1 is left to the
 *       caller.
 *     - A count below 1 is an empty stack; no array is read.
 * Source: Tracing of one forward and one backward flux, which tends to the adding method.
 */
QUORVEL_API void WNCOMP(const int32_t *layers, const float *layer_transmittances,
                        const float *layer_absorptances, const float *layer_reflectances,
                        float *transmittance, float *absorptance, float *reflectance);

/*
 * WNDRRO (roller_blind): Transmittance, absorptance and reflectance of a roller blind, the same at
 *     every angle.
 * Given:
 *     blind_transmittance  float  1    0 .. 1    transmittance of the blind
 *     blind_reflectance    float  1    0 .. 1    reflectance of the blind
 *     incidence            float  rad  not used  angle of incidence
 * Returned:
 *     transmittance  float  1    transmittance, that of the blind
 *     absorptance    float  1    absorptance, the rest
 *     reflectance    float  1    reflectance, that of the blind
 * Formula: absorptance = 1 - blind_transmittance - blind_reflectance
 * Notes:
 *     - Nothing is limited: a blind that transmits and reflects more than 1 gives a negative
 *       absorptance.
 * Source: Conservation of energy.
 */
QUORVEL_API void WNDRRO(const float *blind_transmittance, const float *blind_reflectance,
                        const float *incidence, float *transmittance, float *absorptance,
                        float *reflectance);

/*
 * WNDFRO (diffuse_roller_blind): Transmittance, absorptance and reflectance of a roller blind for
 *     diffuse radiation.
 * Given:
 *     blind_transmittance  float  1  0 .. 1  transmittance of the blind
 *     blind_reflectance    float  1  0 .. 1  reflectance of the blind
 * Returned:
 *     transmittance  float  1    transmittance, that of the blind to rounding
 *     absorptance    float  1    absorptance, the rest to rounding
 *     reflectance    float  1    reflectance, 1 - transmittance - absorptance
 * Notes:
 *     - The blind is the same at every angle; the sum of the bands' weights, 0.9999999, remains as
 *       a factor.
 *     - Nothing is limited: a blind that transmits and reflects more than 1 gives a negative
 *       absorptance.
 * Source: WNDRRO, integrated as in WNDFSL.
 */
QUORVEL_API void WNDFRO(const float *blind_transmittance, const float *blind_reflectance,
                        float *transmittance, float *absorptance, float *reflectance);

/*
 * WNRANG (refraction_angle): Angle of a ray inside the glass, by Snell's law.
 * Given:
 *     incidence         float  rad  -1.5708 .. 1.5708  angle of incidence
 *     refractive_index  float  1    1 .. 4             refractive index of the glass
 * Result:
 *     float  rad  refraction angle
 * Formula: asin(sin(incidence) / refractive_index)
 * Notes:
 *     - Where the sine of the incidence is below 0.01 in size the result is incidence /
 *       refractive_index, the ratio of the angles in place of that of the sines.
 *     - An index so far below 1 that the reflection is total gives no number.
 * Example: WNRANG(0.5235988, 1.526) -> 0.333819 +- 2e-06
 * Source: Snell's law.
 */
QUORVEL_API float WNRANG(const float *incidence, const float *refractive_index);

/*
 * WNREFL (surface_reflectance): Reflectance of one face of the glass for the two polarisations, by
 *     Fresnel's equations.
 * Given:
 *     incidence         float  rad  -1.5708 .. 1.5708  angle of incidence
 *     refraction_angle  float  rad  -1.5708 .. 1.5708  refraction angle, of the sign of the
 *                                                      incidence
 *     refractive_index  float  1    1 .. 4             refractive index, used at normal incidence
 *                                                      only
 * Returned:
 *     parallel_reflectance       float  1    reflectance, polarised parallel to the plane of
 *                                            incidence
 *     perpendicular_reflectance  float  1    reflectance, polarised perpendicular to it
 * Formula: perpendicular (sin(i - r) / sin(i + r))^2, parallel (tan(i - r) / tan(i + r))^2; i =
 *     incidence, r = refraction_angle
 * Notes:
 *     - Up to an angle of 0.01 in size, and for an incidence that is no number, both are the value
 *       at normal incidence, ((1 - n) / (1 + n))^2 with the refractive index n. WNRANG tests the
 *       sine of the angle instead; the two limits differ deliberately.
 *     - The perpendicular one is written first.
 * Source: Fresnel's equations; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter
 *     5.
 */
QUORVEL_API void WNREFL(const float *incidence, const float *refraction_angle,
                        const float *refractive_index, float *parallel_reflectance,
                        float *perpendicular_reflectance);

/*
 * WNABEN (single_pass_absorption): Share of a ray that is absorbed in one pass through the body of
 *     a pane.
 * Given:
 *     refraction_angle    float  rad  -1.5708 .. 1.5708  refraction angle
 *     absorption_product  float  1    0 .. 20            absorption coefficient times thickness
 *     unused              float  1    not used           accepted for the sake of existing callers
 * Result:
 *     float  1  absorbed share
 * Formula: 1 - exp(-absorption_product / cos(refraction_angle))
 * Example: WNABEN(0.6035, 0.0736, -) -> 0.0855 +- 0.0001
 * Source: Bouguer's law of absorption.
 */
QUORVEL_API float WNABEN(const float *refraction_angle, const float *absorption_product,
                         const float *unused);

/*
 * WNTAR (slab_optics): Transmittance, absorptance and reflectance of a pane for one polarisation,
 *     with all inter-reflections between its two faces.
 * Given:
 *     single_pass_absorptance  float  1  0 .. 1  share absorbed in a single pass
 *     face_reflectance         float  1  0 .. 1  reflectance of either face
 * Returned:
 *     transmittance  float  1    transmittance
 *     absorptance    float  1    absorptance, not below 0
 *     reflectance    float  1    reflectance
 * Formula: transmittance = (1 - r)^2 tau / (1 - r^2 tau^2), reflectance = r + r (1 - r)^2 tau^2 /
 *     (1 - r^2 tau^2), absorptance = 1 - transmittance - reflectance; tau = 1 -
 *     single_pass_absorptance, r = face_reflectance
 * Notes:
 *     - Faces that reflect everything around a body that absorbs nothing leave the result undefined
 *       (0/0).
 *     - What is no number stays so; the limit at 0 touches only numbers.
 * Source: Stokes, On the intensity of the light reflected from or transmitted through a pile of
 *     plates, 1862; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.
 */
QUORVEL_API void WNTAR(const float *single_pass_absorptance, const float *face_reflectance,
                       float *transmittance, float *absorptance, float *reflectance);

/*
 * WNKL (absorption_product): Absorption coefficient times thickness of a pane, from its
 *     transmittance at normal incidence.
 * Given:
 *     normal_transmittance  float  1  0 .. 0.92  normal transmittance of the pane
 *     refractive_index      float  1  1 .. 4     refractive index
 * Result:
 *     float  1  absorption coefficient times thickness
 * Formula: -ln((sqrt((1 - r)^4 + 4 r^2 T^2) - (1 - r)^2) / (2 T r^2)); T = normal_transmittance, r
 *     = ((refractive_index - 1) / (refractive_index + 1))^2
 * Notes:
 *     - Evaluated as written in single precision, where a difference of roots cancels for nearly
 *       opaque glass: the relative error of the transmittance T, given back by WNTNOR, is up to
 *       1.5e-5 / T^2, which is 0.02 % at 0.3, 0.15 % at 0.1 and 0.6 % at 0.05; at 0.002 and less
 *       the result is infinite.
 *     - Above the transmittance of glass that absorbs nothing, 0.918 for an index of 1.52, the
 *       result is negative.
 *     - A transmittance of 0 and an index of 1 divide by zero and give no finite number.
 * Example: WNKL(0.8516, 1.526) -> 0.0736 +- 5e-05
 * Source: The slab of WNTAR at normal incidence, solved for the absorption.
 */
QUORVEL_API float WNKL(const float *normal_transmittance, const float *refractive_index);

/*
 * WNTNOR (normal_transmittance): Transmittance of a pane at normal incidence: the inverse of WNKL.
 * Given:
 *     absorption_product  float  1  0 .. 20    absorption coefficient times thickness
 *     normal_reflectance  float  1  0 .. 0.99  normal reflectance of one face
 * Result:
 *     float  1  normal transmittance of the pane
 * Formula: (1 - r)^2 tau / (1 - r^2 tau^2); tau = exp(-absorption_product), r = normal_reflectance
 * Notes:
 *     - The second argument is a reflectance, ((n - 1) / (n + 1))^2, where WNKL takes the
 *       refractive index.
 * Example: WNTNOR(0.0736, 0.043362) -> 0.8516 +- 1e-05
 * Source: The slab of WNTAR at normal incidence.
 */
QUORVEL_API float WNTNOR(const float *absorption_product, const float *normal_reflectance);

/*
 * WNTEMP (pane_temperatures): Steady temperatures of the panes of a glazing from the air
 *     temperatures on both sides and the solar radiation that each pane absorbs.
 * Given:
 *     inside_temperature   float    °C    -100 .. 200  air temperature in the room
 *     outside_temperature  float    °C    -100 .. 200  air temperature outdoors
 *     panes                int32_t        1 .. 5       number of panes
 *     absorbed_1           float    W/m²  from 0       absorbed in pane 1, nearest the room
 *     absorbed_2           float    W/m²  from 0       absorbed in pane 2
 *     absorbed_3           float    W/m²  from 0       absorbed in pane 3
 *     absorbed_4           float    W/m²  from 0       absorbed in pane 4
 *     absorbed_5           float    W/m²  from 0       absorbed in pane 5
 * Returned:
 *     pane_temperature_1  float  °C    temperature of pane 1, nearest the room; left as it was with
 *                                      panes outside 1 to 5
 *     pane_temperature_2  float  °C    temperature of pane 2; left as it was with panes outside 2
 *                                      to 5
 *     pane_temperature_3  float  °C    temperature of pane 3; left as it was with panes outside 3
 *                                      to 5
 *     pane_temperature_4  float  °C    temperature of pane 4; left as it was with panes outside 4
 *                                      to 5
 *     pane_temperature_5  float  °C    temperature of pane 5; left as it was with panes outside 4
 *                                      to 5
 * Notes:
 *     - What is given as absorbed in panes that are not there has no influence. Four panes are
 *       calculated as five: what the fifth absorbs counts (give 0 for it), and it has a
 *       temperature.
 * Example: WNTEMP(20, 0, 1, 100, 0, 0, 0, 0) -> pane_temperature_1 = 10.67 +- 0.1
 * Source: Heat balance of the panes with fixed resistances: 0.12 m²K/W at the room side, 0.06 m²K/W
 *     outdoors; coefficients rounded to two decimals.
 */
QUORVEL_API void WNTEMP(const float *inside_temperature, const float *outside_temperature,
                        const int32_t *panes, const float *absorbed_1, const float *absorbed_2,
                        const float *absorbed_3, const float *absorbed_4, const float *absorbed_5,
                        float *pane_temperature_1, float *pane_temperature_2,
                        float *pane_temperature_3, float *pane_temperature_4,
                        float *pane_temperature_5);

/*
 * WNDRSC (unit_direct): Transmittance, absorptance and reflectance for direct radiation of a
 *     glazing unit known only by its shading coefficients.
 * Given:
 *     shortwave_shading_coefficient  float  1    0 .. 1.05          short-wave shading coefficient;
 *                                                                   the total one if the long-wave
 *                                                                   one is missing
 *     longwave_shading_coefficient   float  1    0 .. 1             long-wave shading coefficient,
 *                                                                   0 if missing
 *     incidence                      float  rad  -1.5708 .. 1.5708  angle of incidence
 * Returned:
 *     transmittance  float  1    transmittance
 *     absorptance    float  1    absorptance
 *     reflectance    float  1    reflectance, 1 - transmittance - absorptance, at least 0.01 to
 *                                rounding
 * Notes:
 *     - A long-wave coefficient below 0.0001 counts as missing: the other is then split into 0.9
 *       short-wave and 0.1 long-wave.
 *     - An uncoated pane of index 1.52 and normal transmittance 0.87 times the short-wave
 *       coefficient carries the angular behaviour.
 *     - If the two coefficients add up to at most 1, the absorptance is 2.61 times the long-wave
 *       one at normal incidence and follows the pane over the angle; otherwise it is that of the
 *       pane. A total of 1 belongs to the former, but only as single precision rounds.
 *     - The absorptance is at most 0.99 - transmittance. An opaque unit, whose equivalent pane
 *       absorbs nothing, gets just that: coefficients of 0 give an absorptance of 0.99.
 *     - An angle beyond pi/2 is not tested, and the results mean nothing there: coefficients of 0.9
 *       and 0.05 give a transmittance of -0.54 at 1.6 rad.
 * Source: Shading coefficients relative to clear float glass of total transmittance 0.87, of whose
 *     absorbed part a third flows inwards.
 */
QUORVEL_API void WNDRSC(const float *shortwave_shading_coefficient,
                        const float *longwave_shading_coefficient, const float *incidence,
                        float *transmittance, float *absorptance, float *reflectance);

/*
 * WNDFSC (unit_diffuse): Transmittance, absorptance and reflectance for isotropic diffuse radiation
 *     of a glazing unit known only by its shading coefficients.
 * Given:
 *     shortwave_shading_coefficient  float  1  0 .. 1.05  short-wave shading coefficient; the total
 *                                                         one if the long-wave one is missing
 *     longwave_shading_coefficient   float  1  0 .. 1     long-wave shading coefficient, 0 if
 *                                                         missing
 * Returned:
 *     transmittance  float  1    diffuse transmittance
 *     absorptance    float  1    diffuse absorptance
 *     reflectance    float  1    diffuse reflectance, 1 - transmittance - absorptance
 * Notes:
 *     - Coefficients as in WNDRSC. If they add up to at most 1 the absorptance is 2.61 times the
 *       long-wave one, otherwise that of the equivalent pane.
 *     - The absorptance is at most 0.99 - transmittance. Unlike WNDRSC, coefficients of 0 give a
 *       reflectance of 1.
 * Source: WNDRSC, with the equivalent pane integrated as in WNDFGL.
 */
QUORVEL_API void WNDFSC(const float *shortwave_shading_coefficient,
                        const float *longwave_shading_coefficient, float *transmittance,
                        float *absorptance, float *reflectance);

/*
 * WNDRSM (unit_direct_shares): WNDRSC, with the remainder that is neither transmitted nor absorbed
 *     split among the panes of the unit.
 * Given:
 *     shortwave_shading_coefficient  float    1    0 .. 1.05          short-wave shading
 *                                                                     coefficient; the total one if
 *                                                                     the long-wave one is missing
 *     longwave_shading_coefficient   float    1    0 .. 1             long-wave shading
 *                                                                     coefficient, 0 if missing
 *     incidence                      float    rad  -1.5708 .. 1.5708  angle of incidence
 *     panes                          int32_t       1 .. 5             number of panes
 * Returned:
 *     transmittance  float  1    transmittance
 *     pane_shares    float  1    share of each pane in 1 - transmittance - absorptance [panes];
 *                                left as it was with a count outside 1 to 5
 *     absorptance    float  1    absorptance
 * Notes:
 *     - What is split is the remainder, not the absorptance.
 *     - Transmittance and absorptance are returned whatever the number of panes.
 * Source: WNDRSC; the shares by number of panes are fixed, 0.4 and 0.6 for two, their origin is not
 *     recorded.
 */
QUORVEL_API void WNDRSM(const float *shortwave_shading_coefficient,
                        const float *longwave_shading_coefficient, const float *incidence,
                        const int32_t *panes, float *transmittance, float *pane_shares,
                        float *absorptance);

/*
 * WNDFSM (unit_diffuse_shares): WNDFSC, with the remainder that is neither transmitted nor absorbed
 *     split among the panes of the unit.
 * Given:
 *     shortwave_shading_coefficient  float    1  0 .. 1.05  short-wave shading coefficient; the
 *                                                           total one if the long-wave one is
 *                                                           missing
 *     longwave_shading_coefficient   float    1  0 .. 1     long-wave shading coefficient, 0 if
 *                                                           missing
 *     panes                          int32_t     1 .. 5     number of panes
 * Returned:
 *     transmittance  float  1    diffuse transmittance
 *     pane_shares    float  1    share of each pane in 1 - transmittance - absorptance [panes];
 *                                left as it was with a count outside 1 to 5
 *     absorptance    float  1    diffuse absorptance
 * Notes:
 *     - The remainder is split as in WNDRSM.
 * Source: WNDFSC, with the shares of WNDRSM.
 */
QUORVEL_API void WNDFSM(const float *shortwave_shading_coefficient,
                        const float *longwave_shading_coefficient, const int32_t *panes,
                        float *transmittance, float *pane_shares, float *absorptance);

/*
 * WNDRS0 (unit_shares): WNDRSM or WNDFSM, by a selector.
 * Given:
 *     radiation                      int32_t       selector           kind of radiation: 1 direct
 *                                                                     radiation (WNDRSM), 2 diffuse
 *                                                                     radiation (WNDFSM), as any
 *                                                                     other value
 *     shortwave_shading_coefficient  float    1    0 .. 1.05          short-wave shading
 *                                                                     coefficient; the total one if
 *                                                                     the long-wave one is missing
 *     longwave_shading_coefficient   float    1    0 .. 1             long-wave shading
 *                                                                     coefficient, 0 if missing
 *     incidence                      float    rad  -1.5708 .. 1.5708  angle of incidence, read for
 *                                                                     direct radiation only
 *     panes                          int32_t       1 .. 5             number of panes
 * Returned:
 *     transmittance  float  1    transmittance
 *     pane_shares    float  1    share of each pane in 1 - transmittance - absorptance [panes];
 *                                left as it was with a count outside 1 to 5
 *     absorptance    float  1    absorptance
 * Notes:
 *     - The remainder is split as in WNDRSM.
 * Source: WNDRSM and WNDFSM.
 */
QUORVEL_API void WNDRS0(const int32_t *radiation, const float *shortwave_shading_coefficient,
                        const float *longwave_shading_coefficient, const float *incidence,
                        const int32_t *panes, float *transmittance, float *pane_shares,
                        float *absorptance);

/*
 * WNDRSL (slat_direct): Transmittance, absorptance and reflectance of a slatted blind for a beam,
 *     both faces of the slats alike.
 * Given:
 *     slat_spacing      float  m    from 0             spacing of the slats; only its ratio to
 *                                                      their width matters, in whatever unit
 *     slat_width        float  m    from 0             width of a slat
 *     slat_angle        float  °    -90 .. 90          slat angle in degrees, 0 for level slats,
 *                                                      positive with the outer edge lowered
 *     profile_angle     float  rad  -1.5708 .. 1.5708  profile angle of the beam, positive from
 *                                                      above
 *     slat_absorptance  float  1    0 .. 1             absorptance of the slats
 * Returned:
 *     transmittance  float  1    transmittance
 *     absorptance    float  1    absorptance
 *     reflectance    float  1    reflectance, 1 - transmittance - absorptance
 * Notes:
 *     - The slats are flat, thin, opaque and diffusely reflecting. After the first reflection each
 *       slat is taken as evenly lit.
 *     - For slat angles up to 90 degrees and an absorptance in 0..1 all three are in 0..1, but for
 *       the rounding of single precision: 1e-4 for slats that are nearly closed, 4e-7 over the
 *       cosine of the profile angle for grazing beams.
 *     - A beam within 0.01 rad of the slats' plane passes whole. A beam along the blind (cosine of
 *       the profile angle below 1e-6, or the angle 1.570796 or more in size) meets an opaque sheet
 *       with the absorptance of the slats.
 *     - The mirror image, with both angles negative, gives the same bits.
 * Example: WNDRSL(1, 1, 45, -0.785398, 0.5) -> transmittance = 1, absorptance = 0, reflectance = 0
 * Source: Exchange factors by H. C. Hottel's crossed strings, and the inter-reflection between two
 *     neighbouring slats.
 */
QUORVEL_API void WNDRSL(const float *slat_spacing, const float *slat_width,
                        const float *slat_angle, const float *profile_angle,
                        const float *slat_absorptance, float *transmittance, float *absorptance,
                        float *reflectance);

/*
 * WNDRS2 (two_faced_slat_direct): Transmittance, absorptance and reflectance of a blind for a beam,
 *     whose slats have two different faces.
 * Given:
 *     slat_spacing          float  m    from 0             spacing of the slats; only its ratio to
 *                                                          their width matters, in whatever unit
 *     slat_width            float  m    from 0             width of a slat
 *     slat_angle            float  °    -90 .. 90          slat angle in degrees, 0 for level
 *                                                          slats, positive with the outer edge
 *                                                          lowered
 *     profile_angle         float  rad  -1.5708 .. 1.5708  profile angle of the beam, positive from
 *                                                          above
 *     struck_absorptance    float  1    0 .. 1             absorptance of the face that the beam
 *                                                          strikes first
 *     opposite_absorptance  float  1    0 .. 1             absorptance of the opposite face
 * Returned:
 *     transmittance  float  1    transmittance
 *     absorptance    float  1    absorptance
 *     reflectance    float  1    reflectance, 1 - transmittance - absorptance, not limited
 * Notes:
 *     - Equal faces give the bits of WNDRSL and keep the balance.
 *     - Unequal faces do not: whatever is absorbed after the first reflection counts with that of
 *       the face struck, as if both faces absorbed like the one struck and reflected like the
 *       opposite one. A bright face opposite a dark one absorbs too little, and the reflectance
 *       holds the rest; a dark face opposite a bright one absorbs too much, in dense blinds many
 *       times what arrives, and the reflectance is negative by as much. Where the face struck
 *       absorbs at most what the opposite one does, all three stay in 0..1.
 *     - The face struck first is the upper one where profile angle and slat angle have a positive
 *       sum and the lower one else; the absorptances are to be chosen accordingly.
 * Source: As WNDRSL.
 */
QUORVEL_API void WNDRS2(const float *slat_spacing, const float *slat_width,
                        const float *slat_angle, const float *profile_angle,
                        const float *struck_absorptance, const float *opposite_absorptance,
                        float *transmittance, float *absorptance, float *reflectance);

/*
 * WNDRS3 (open_slat_direct): WNDRS2 for a blind that leaves a share of the radiation to pass
 *     untouched.
 * Given:
 *     slat_spacing          float  m    from 0             spacing of the slats; only its ratio to
 *                                                          their width matters, in whatever unit
 *     slat_width            float  m    from 0             width of a slat
 *     slat_angle            float  °    -90 .. 90          slat angle in degrees, 0 for level
 *                                                          slats, positive with the outer edge
 *                                                          lowered
 *     profile_angle         float  rad  -1.5708 .. 1.5708  profile angle of the beam, positive from
 *                                                          above
 *     open_share            float  1    0 .. 1             open share of the blind; 0 or less for
 *                                                          none
 *     struck_absorptance    float  1    0 .. 1             absorptance of the face that the beam
 *                                                          strikes first
 *     opposite_absorptance  float  1    0 .. 1             absorptance of the opposite face
 * Returned:
 *     transmittance  float  1    transmittance, the open share included
 *     absorptance    float  1    absorptance
 *     reflectance    float  1    reflectance
 * Notes:
 *     - Without an open share these are the bits of WNDRS2; a share that is not a number is none.
 *     - A beam along the blind is transmitted by the open share and absorbed as by the face struck:
 *       the share does not reduce the absorptance there, and the reflectance, 1 less both, may be
 *       negative: deliberate.
 * Source: As WNDRSL.
 */
QUORVEL_API void WNDRS3(const float *slat_spacing, const float *slat_width,
                        const float *slat_angle, const float *profile_angle,
                        const float *open_share, const float *struck_absorptance,
                        const float *opposite_absorptance, float *transmittance,
                        float *absorptance, float *reflectance);

/*
 * WNDFSL (slat_diffuse): Transmittance and absorptance of a slatted blind for the diffuse radiation
 *     from the sky's and from the ground's side, both faces of the slats alike.
 * Given:
 *     slat_spacing      float  m  from 0     spacing of the slats; only its ratio to their width
 *                                            matters, in whatever unit
 *     slat_width        float  m  from 0     width of a slat
 *     slat_angle        float  °  -90 .. 90  slat angle in degrees, 0 for level slats, positive
 *                                            with the outer edge lowered
 *     slat_absorptance  float  1  0 .. 1     absorptance of the slats
 * Returned:
 *     sky_transmittance     float  1    transmittance for radiation from above the horizon
 *     ground_transmittance  float  1    transmittance for radiation from below it
 *     sky_absorptance       float  1    absorptance for radiation from above the horizon
 *     ground_absorptance    float  1    absorptance for radiation from below it
 * Notes:
 *     - The bits are those of WNDRSL summed over the bands.
 *     - Slats at an angle of 5, 15, ... 85 degrees have a band within 0.01 rad of their plane,
 *       which passes whole.
 *     - The opposite angle swaps sky and ground.
 * Source: WNDRSL at the centres of nine bands of 10 degrees on either side of the horizon, each
 *     weighted with the integral of the cosine over the band: radiance uniform in the profile
 *     angle.
 */
QUORVEL_API void WNDFSL(const float *slat_spacing, const float *slat_width,
                        const float *slat_angle, const float *slat_absorptance,
                        float *sky_transmittance, float *ground_transmittance,
                        float *sky_absorptance, float *ground_absorptance);

/*
 * WNDFS2 (two_faced_slat_diffuse): WNDFSL for slats with two different faces.
 * Given:
 *     slat_spacing          float  m  from 0     spacing of the slats; only its ratio to their
 *                                                width matters, in whatever unit
 *     slat_width            float  m  from 0     width of a slat
 *     slat_angle            float  °  -90 .. 90  slat angle in degrees, 0 for level slats, positive
 *                                                with the outer edge lowered
 *     struck_absorptance    float  1  0 .. 1     absorptance of the face that the beam strikes
 *                                                first
 *     opposite_absorptance  float  1  0 .. 1     absorptance of the opposite face
 * Returned:
 *     sky_transmittance     float  1    transmittance for radiation from above the horizon
 *     ground_transmittance  float  1    transmittance for radiation from below it
 *     sky_absorptance       float  1    absorptance for radiation from above the horizon
 *     ground_absorptance    float  1    absorptance for radiation from below it
 * Notes:
 *     - The absorptances belong to whichever face a beam strikes first. Slats with different upper
 *       and lower faces need two calls: with the upper face struck for the results of the sky, with
 *       the lower face for those of the ground. Beams between the horizon and the plane of the
 *       slats strike the other face all the same.
 *     - Unequal faces as in WNDRS2.
 * Source: WNDRS2, integrated as in WNDFSL.
 */
QUORVEL_API void WNDFS2(const float *slat_spacing, const float *slat_width,
                        const float *slat_angle, const float *struck_absorptance,
                        const float *opposite_absorptance, float *sky_transmittance,
                        float *ground_transmittance, float *sky_absorptance,
                        float *ground_absorptance);

/*
 * WNDFS3 (open_slat_diffuse): WNDFS2 for a blind that leaves a share of the radiation to pass
 *     untouched.
 * Given:
 *     slat_spacing          float  m  from 0     spacing of the slats; only its ratio to their
 *                                                width matters, in whatever unit
 *     slat_width            float  m  from 0     width of a slat
 *     slat_angle            float  °  -90 .. 90  slat angle in degrees, 0 for level slats, positive
 *                                                with the outer edge lowered
 *     open_share            float  1  0 .. 1     open share of the blind; 0 or less for none
 *     struck_absorptance    float  1  0 .. 1     absorptance of the face that the beam strikes
 *                                                first
 *     opposite_absorptance  float  1  0 .. 1     absorptance of the opposite face
 * Returned:
 *     sky_transmittance     float  1    transmittance for radiation from above the horizon
 *     ground_transmittance  float  1    transmittance for radiation from below it
 *     sky_absorptance       float  1    absorptance for radiation from above the horizon
 *     ground_absorptance    float  1    absorptance for radiation from below it
 * Notes:
 *     - Faces as in WNDFS2, the open share as in WNDRS3.
 * Source: WNDRS3, integrated as in WNDFSL.
 */
QUORVEL_API void WNDFS3(const float *slat_spacing, const float *slat_width,
                        const float *slat_angle, const float *open_share,
                        const float *struck_absorptance, const float *opposite_absorptance,
                        float *sky_transmittance, float *ground_transmittance,
                        float *sky_absorptance, float *ground_absorptance);

/* ---- Calendar, sun and sky ------------------------------------------------------------------- */

/*
 * CLBAN1 (locate_band): Where a cumulative fraction of days lies among the ten bands of a month, in
 *     frequencies of the caller.
 * Given:
 *     fraction     float    1  0 .. 1   cumulative fraction of days
 *     month        int32_t     1 .. 12  month
 *     frequencies  float    1  0 .. 1   cumulative frequencies of each band in each month, not
 *                                       falling with the band [12, 10]
 * Returned:
 *     lower_band   int32_t       lower band, 1 to 9
 *     upper_band   int32_t       upper band, 2 to 10
 *     band_weight  float    1    (fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1
 * Notes:
 *     - Fractions, where CLBAND takes a percentage.
 *     - At or below the first band's frequency the weight is 0 or negative. Bands of equal
 *       frequency are skipped upwards, to band 10 at most; for a fraction equal to the frequencies
 *       of all the rest the weight is not a number.
 *     - A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands
 *       9 and 10 and a weight that is not a number.
 * Source: Search for linear interpolation.
 */
QUORVEL_API void CLBAN1(const float *fraction, const int32_t *month, const float *frequencies,
                        int32_t *lower_band, int32_t *upper_band, float *band_weight);

/*
 * CLBAND (band_climate): Monthly climate of one of ten bands of days, or interpolated at a
 *     cumulative percentage of days.
 * Given:
 *     band        int32_t     0 .. 10   band, or 0 to interpolate at the percentage
 *     month       int32_t     1 .. 12   month
 *     band_set    int32_t     selector  set of bands: 1 bands from the warmest to the coldest days,
 *                                       2 bands from the highest to the lowest Q1
 *     percentage  float    %  0 .. 100  cumulative percentage of days: given with band 0, otherwise
 *                                       returned
 * Returned:
 *     percentage  float  %    0 .. 100  cumulative percentage of days: given with band 0, otherwise
 *                                       returned; left as it was with band 0
 *     q1          float  1              quantity Q1: beam factor
 *     q2          float  1              quantity Q2: diffuse factor
 *     q3          float  °C             quantity Q3: air temperature at time A
 *     q4          float  °C             quantity Q4: air temperature at time B
 *     q5          float  °C             quantity Q5: wet-bulb temperature at time A
 *     q6          float  °C             quantity Q6: wet-bulb temperature at time B
 *     time_a      float  h              time A, in the afternoon
 *     time_b      float  h              time B, about sunrise
 *     q7          float  %              quantity Q7: cloud-free share of the sky
 *     q8          float  m/s            quantity Q8: wind speed
 * Notes:
 *     - A percentage below band 1 extrapolates backwards from it, by the step to band 2 at most;
 *       one above 100 gives band 10.
 *     - A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a
 *       set other than 2 as 1. A percentage that is not a number makes Q1 to Q8 not numbers.
 *     - The table built in is representative and not measured; data/bands tells how it was made and
 *       how to build with data of your own. Q1 to Q8 mean what the table's maker says; the meanings
 *       here are those of the table built in.
 * Example: CLBAND(10, 6, 1, 0) -> percentage = 100 +- 0.0001
 * Source: Linear interpolation in the band table.
 */
QUORVEL_API void CLBAND(const int32_t *band, const int32_t *month, const int32_t *band_set,
                        float *percentage, float *q1, float *q2, float *q3, float *q4, float *q5,
                        float *q6, float *time_a, float *time_b, float *q7, float *q8);

/*
 * CLBAN2 (interpolate_band_rows): Value between two rows of the band table.
 * Given:
 *     base_row     int32_t     0 .. 174  row before the quantity's band 1: 2 for F, 12 for Q1, 22
 *                                        for Q2 and so on in set 1; 92 more in set 2
 *     lower_band   int32_t     1 .. 10   lower band
 *     upper_band   int32_t     1 .. 10   upper band
 *     month        int32_t     1 .. 12   month
 *     band_weight  float    1  -1 .. 1   share of the step from the lower to the upper row
 * Returned:
 *     value  float  1    value, in the quantity's unit
 * Notes:
 *     - Rows base_row + lower_band and base_row + upper_band outside 1 to 184 count as the nearest
 *       row, a month outside 1 to 12 as the nearest month.
 * Example: CLBAN2(2, 10, 10, 1, 0) -> value = 1
 * Source: Linear interpolation in the band table.
 */
QUORVEL_API void CLBAN2(const int32_t *base_row, const int32_t *lower_band,
                        const int32_t *upper_band, const int32_t *month, const float *band_weight,
                        float *value);

/*
 * CLBAN3 (band_row): One row of the band table, a value per month.
 * Given:
 *     row  int32_t    1 .. 184  row: 1 to 92 in set 1, 93 to 184 in set 2
 * Returned:
 *     values  float  1    values from January to December, in the row's unit [12]
 * Notes:
 *     - Rows of a set: 1 time A, 2 time B, 3 to 12 cumulative frequency F of bands 1 to 10, 13 to
 *       22 Q1, 23 to 32 Q2 and so on to Q8.
 *     - A row below 1 counts as 1, above 184 as 184.
 * Example: CLBAN3(12) -> values = (1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1)
 * Source: The band table; see data/bands.
 */
QUORVEL_API void CLBAN3(const int32_t *row, float *values);

/*
 * CLDAY (store_design_day): Design day of a month as a day of the year, as ICLDAY gives it.
 * Given:
 *     month  int32_t    1 .. 12  month
 * Returned:
 *     day  int32_t      design day of the year
 * Notes:
 *     - A month outside 1 to 12 gives 0.
 *     - The year has 365 days.
 * Example: CLDAY(6) -> day = 172 +- 1
 * Source: Table of customary design days, close to the 21st of each month.
 */
QUORVEL_API void CLDAY(const int32_t *month, int32_t *day);

/*
 * CLDAYEX (store_design_day_by_option): Design day of a month as a day of the year or of the month,
 *     as ICLDAYEX gives it.
 * Given:
 *     month     int32_t    1 .. 12   month
 *     day_kind  int32_t    selector  how the day is counted: 1 day of the month, 2 day of the year
 * Returned:
 *     day  int32_t      design day
 * Notes:
 *     - The two counts are separate sets and not the same date: in February day 52 of the year (the
 *       21st) stands beside the 20th.
 *     - A month outside 1 to 12 gives 0; another way of counting counts as 2.
 * Example: CLDAYEX(12, 1) -> day = 21 +- 1
 * Source: Table of customary design days, close to the 21st of each month.
 */
QUORVEL_API void CLDAYEX(const int32_t *month, int32_t *day, const int32_t *day_kind);

/*
 * ICLDAY (design_day): Design day of a month as a day of the year.
 * Given:
 *     month  int32_t    1 .. 12  month
 * Result:
 *     int32_t  design day of the year
 * Notes:
 *     - A month outside 1 to 12 gives 0.
 *     - The year has 365 days.
 * Example: ICLDAY(6) -> 172 +- 1
 * Source: Table of customary design days, close to the 21st of each month.
 */
QUORVEL_API int32_t ICLDAY(const int32_t *month);

/*
 * ICLDAYEX (design_day_by_option): Design day of a month as a day of the year or of the month.
 * Given:
 *     month     int32_t    1 .. 12   month
 *     day_kind  int32_t    selector  how the day is counted: 1 day of the month, 2 day of the year
 * Result:
 *     int32_t  design day
 * Notes:
 *     - The two counts are separate sets and not the same date: in February day 52 of the year (the
 *       21st) stands beside the 20th.
 *     - A month outside 1 to 12 gives 0; another way of counting counts as 2.
 * Example: ICLDAYEX(12, 2) -> 355 +- 1
 * Source: Table of customary design days, close to the 21st of each month.
 */
QUORVEL_API int32_t ICLDAYEX(const int32_t *month, const int32_t *day_kind);

/*
 * ICLDA2 (second_design_day): Second design day of a month as a day of the year.
 * Given:
 *     month  int32_t    1 .. 12  month
 * Result:
 *     int32_t  second design day of the year
 * Notes:
 *     - A month outside 1 to 12 gives 0.
 *     - The year has 365 days.
 * Example: ICLDA2(6) -> 172
 * Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
 */
QUORVEL_API int32_t ICLDA2(const int32_t *month);

/*
 * ICLDA2EX (second_design_day_by_option): Second design day of a month as a day of the year or of
 *     the month.
 * Given:
 *     month     int32_t    1 .. 12   month
 *     day_kind  int32_t    selector  how the day is counted: 1 day of the month, 2 day of the year
 * Result:
 *     int32_t  second design day
 * Notes:
 *     - Both counts are the same date here.
 *     - A month outside 1 to 12 gives 0; another way of counting counts as 2.
 * Example: ICLDA2EX(7, 1) -> 4
 * Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
 */
QUORVEL_API int32_t ICLDA2EX(const int32_t *month, const int32_t *day_kind);

/*
 * CLBNF0 (station_records): Monthly records of a station, from a climate data file at given
 *     percentages of days.
 * Given:
 *     file_name        char        text     name of the climate data file, in UTF-8; trailing
 *                                           blanks do not count
 *     station          int32_t     from 1   station of the file
 *     month            int32_t     0 .. 12  month whose record is filled, 0 for all twelve
 *     station_records  float    1  any      a record of 11 reals per month, see the notes [11, 12]
 * Returned:
 *     station_records  float  1  any  a record of 11 reals per month, see the notes [11, 12]; left
 *                                     as it was from the first month on that cannot be read
 * Notes:
 *     - Given in a record: 10 set of bands, rounded to the nearest integer (2 is set 2, any other
 *       set 1); 11 percentage of days. Returned, in the units of the file: 1 Q4, 2 Q6, 3 time B, 4
 *       Q3, 5 Q5, 6 time A, 7 Q1 and 8 Q2 (not below 0), 9 Q7 (0 to 1). The times are copied as
 *       they are.
 *     - A percentage at or below band 1's frequency gives band 1, one at or above band 10's gives
 *       band 10: nothing is extrapolated, unlike CLBAND. One that is not a number makes the
 *       quantities not numbers.
 *     - A file that is missing, not a regular file, too short or unreadable ends the call.
 *     - A month outside 0 to 12 counts as 1 or 12.
 *     - The library keeps the word of the header that places the stations for as long as it is
 *       loaded: files read by one process must agree in it. It also keeps the record read last,
 *       whatever becomes of the file.
 *     - The five routines of the climate data file share one state behind a lock. The file is open
 *       only during a call.
 *     - A relative name counts from the folder that is current in this call; later calls find the
 *       file wherever the process has gone.
 *     - The name is in UTF-8, on Windows too, where one that is not UTF-8 names no file; elsewhere
 *       its bytes are taken as they are. VBA's ByVal String passes the characters of ASCII so, and
 *       no others.
 *     - The name ends with a NUL, which Fortran does not write after characters: pass
 *       trim(name)//char(0). In VBA declare the argument as ByVal String, in Pascal as PAnsiChar
 *       and pass PAnsiChar(UTF8String(name)): both add the NUL. At most 4096 characters are read,
 *       so that a text of that length which is filled up with blanks needs none; a shorter one is
 *       read beyond its end.
 * Source: Linear interpolation in the bands of the climate data file.
 */
QUORVEL_API void CLBNF0(const char *file_name, const int32_t *station, const int32_t *month,
                        float *station_records);

/*
 * CLBNFI (station_climate): Monthly climate of one of ten bands of days of a station, or
 *     interpolated at a cumulative percentage of days.
 * Given:
 *     file_unit   int32_t     selector  unit: 31 the file that CLBNF0 opened last
 *     station     int32_t     from 1    station of the file
 *     band        int32_t     0 .. 10   band, or 0 to interpolate at the percentage
 *     month       int32_t     1 .. 12   month
 *     band_set    int32_t     selector  set of bands: 1 set 1, 2 set 2
 *     percentage  float    %  0 .. 100  cumulative percentage of days, used with band 0
 * Returned:
 *     q1      float  1    quantity Q1, not below 0; left as it was when the file cannot be read, or
 *                         with another unit
 *     q2      float  1    quantity Q2, not below 0; left as it was when the file cannot be read, or
 *                         with another unit
 *     q3      float  1    quantity Q3, in the unit of the file; left as it was when the file cannot
 *                         be read, or with another unit
 *     q4      float  1    quantity Q4, in the unit of the file; left as it was when the file cannot
 *                         be read, or with another unit
 *     q5      float  1    quantity Q5, in the unit of the file; left as it was when the file cannot
 *                         be read, or with another unit
 *     q6      float  1    quantity Q6, in the unit of the file; left as it was when the file cannot
 *                         be read, or with another unit
 *     q7      float  1    quantity Q7, a fraction, 0 to 1; left as it was when the file cannot be
 *                         read, or with another unit
 *     time_a  float  h    time A; left as it was when the file cannot be read, or with another unit
 *     time_b  float  h    time B; left as it was when the file cannot be read, or with another unit
 * Notes:
 *     - Percentages as in CLBNF0; unlike CLBAND, a band's own percentage is not returned.
 *     - CLBNF2 and CLBNF3 go on with the unit and station given here even if nothing could be read.
 *     - A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a
 *       set other than 2 as 1.
 * Source: As CLBNF0.
 */
QUORVEL_API void CLBNFI(const int32_t *file_unit, const int32_t *station, const int32_t *band,
                        const int32_t *month, const int32_t *band_set, const float *percentage,
                        float *q1, float *q2, float *q3, float *q4, float *q5, float *q6,
                        float *q7, float *time_a, float *time_b);

/*
 * CLBNF1 (locate_station_band): Where a cumulative fraction of days lies among the ten bands of a
 *     month, in the frequencies that CLBNF0 or CLBNFI read last.
 * Given:
 *     fraction  float    1  0 .. 1   cumulative fraction of days
 *     month     int32_t     1 .. 12  month
 * Returned:
 *     lower_band   int32_t       lower band, 1 to 10
 *     upper_band   int32_t       upper band, 1 to 10
 *     band_weight  float    1    size of (fraction - F(lower)) / (F(upper) - F(lower)), at most 1
 * Notes:
 *     - At or below band 1's frequency both bands are 1, at or above band 10's both are 10, and the
 *       weight is 0. Bands of equal frequency are skipped.
 *     - Before anything was read all frequencies are 0.
 *     - A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands
 *       9 and 10 and a weight that is not a number.
 * Source: Search for linear interpolation.
 */
QUORVEL_API void CLBNF1(const float *fraction, const int32_t *month, int32_t *lower_band,
                        int32_t *upper_band, float *band_weight);

/*
 * CLBNF2 (interpolate_station_rows): Value between two rows of the station given to CLBNF0 or
 *     CLBNFI last.
 * Given:
 *     base_row     int32_t     2 .. 154  row before the quantity's band 1: 2 for F, 12 for Q1, 22
 *                                        for Q2 and so on in set 1; 82 more in set 2
 *     lower_band   int32_t     1 .. 10   lower band
 *     upper_band   int32_t     1 .. 10   upper band
 *     month        int32_t     1 .. 12   month
 *     band_weight  float    1  -1 .. 1   share of the step from the lower to the upper row
 * Returned:
 *     value  float  1    value, in the quantity's unit; left as it was when the file cannot be read
 * Notes:
 *     - Rows base_row + lower_band and base_row + upper_band outside 1 to 171 count as the nearest
 *       row of the station, a month outside 1 to 12 as the nearest month.
 * Example: CLBNF2(12, 3, 4, 1, 0.5) -> value = 0.532542 +- 2e-05
 * Source: Linear interpolation in the bands of the climate data file.
 */
QUORVEL_API void CLBNF2(const int32_t *base_row, const int32_t *lower_band,
                        const int32_t *upper_band, const int32_t *month, const float *band_weight,
                        float *value);

/*
 * CLBNF3 (station_row): One row of the station given to CLBNF0 or CLBNFI last.
 * Given:
 *     row  int32_t    1 .. 171  row: 1 time A, 2 time B, 3 to 12 F, 13 to 82 Q1 to Q7, ten each; 82
 *                               more in set 2
 * Returned:
 *     values  float  1    value of each month [12]; left as it was when the file cannot be read
 * Notes:
 *     - A station has 171 rows; numbers outside count as the first or the last.
 * Example: CLBNF3(1) -> values = (15, 14, 15, 15, 16, 14, 16, 15, 14, 16, 14, 14)
 * Source: Climate data file.
 */
QUORVEL_API void CLBNF3(const int32_t *row, float *values);

/*
 * CLTAO (daily_temperature): Temperature at an hour of a day, by half cosine waves between its
 *     highest and its lowest.
 * Given:
 *     hour                 float  h   0 .. 24      hour
 *     highest_temperature  float  °C  -100 .. 200  highest temperature of the day
 *     lowest_temperature   float  °C  -100 .. 200  lowest temperature of the day
 *     hour_of_highest      float  h   0 .. 24      hour of the highest
 *     hour_of_lowest       float  h   0 .. 24      hour of the lowest
 * Result:
 *     float  °C  temperature
 * Formula: m + a cos(pi h / L) after the highest, m - a cos(pi h / L) after the lowest; m = mean of
 *     both, a = half their difference, h = hours since the one passed last, L = hours from it to
 *     the other
 * Notes:
 *     - The same before and after midnight if the next day is like this one.
 *     - Hours of the extremes that coincide give the mean at every hour. With one at 0 and the
 *       other at 24 the wave through midnight has no length: at the later of the two the result is
 *       no number.
 *     - Pi is 3.141593 here, a step above the float nearest to it, so the extremes are met to
 *       rounding.
 * Example: CLTAO(14, 25, 15, 14, 4) -> 25 +- 0.0001
 * Source: Two half cosine waves.
 */
QUORVEL_API float CLTAO(const float *hour, const float *highest_temperature,
                        const float *lowest_temperature, const float *hour_of_highest,
                        const float *hour_of_lowest);

/*
 * CLTAOX (daily_value): Value at an hour of a day that swings about its mean by half cosine waves
 *     between two hours.
 * Given:
 *     hour              float  h  0 .. 24  hour
 *     mean              float  1  any      mean, in the unit of the result
 *     amplitude         float  1  any      half the difference of the extremes, in the same unit
 *     first_hour        float  h  0 .. 24  hour of the first extreme, the highest if amplitude
 *                                          times amplitude_factor is positive
 *     second_hour       float  h  0 .. 24  hour of the second extreme, after the first
 *     amplitude_factor  float  1  any      factor on the amplitude
 * Result:
 *     float  1  value
 * Formula: mean + a cos(pi (hour - first_hour) / (second_hour - first_hour)) between the two hours,
 *     mean - a cos(pi h / (first_hour + 24 - second_hour)) h hours after the second; a =
 *     amplitude_factor amplitude
 * Notes:
 *     - The order of the hours is not checked: with the second before the first, the wave that
 *       should go through midnight runs beyond its extreme.
 *     - Pi as in CLTAO.
 * Example: CLTAOX(15, 20, 5, 3, 15, -1) -> 25 +- 0.0001
 * Source: Two half cosine waves.
 */
QUORVEL_API float CLTAOX(const float *hour, const float *mean, const float *amplitude,
                         const float *first_hour, const float *second_hour,
                         const float *amplitude_factor);

/*
 * CLSNNR (design_irradiance): Design irradiance by solar altitude: direct normal and diffuse
 *     horizontal.
 * Given:
 *     solar_altitude  float    rad  0 .. 1.5707964  solar altitude
 *     solar_azimuth   float    rad  not used        solar azimuth
 *     site_height     float    m    0 .. 4000       height of the site above sea level
 *     sky_kind        int32_t       selector        kind of sky: 0 clear, 1 cloudy: the larger
 *                                                   diffuse irradiance
 * Returned:
 *     direct_normal       float  W/m²    direct normal irradiance, the same for both skies
 *     diffuse_horizontal  float  W/m²    diffuse irradiance on the horizontal
 * Formula: direct_normal = 1035.49 - 156.13 / a - 1.91863 / a^2 + 2.51353 / a^3 - 0.148842 / a^4;
 *     diffuse_horizontal = 1.52269 + 280.358 a - 375.111 a^2 + 253.716 a^3 - 63.3311 a^4 of the
 *     clear sky, 0.331322 + 283.1 a + 4.42111 a^2 of the cloudy one; a = solar_altitude above 0.087
 * Notes:
 *     - Both grow with the height by the factor of CLHIGH.
 *     - Up to 0.087 rad both are proportional to the altitude, also below 0, where they are
 *       negative. The direct irradiance falls by 2 W/m² where the polynomial takes over.
 *     - An altitude beyond 1.5707964 in size gives two zeros. A sky kind below 0 counts as 0, above
 *       1 as 1.
 * Example: CLSNNR(0.523599, -, 0, 0) -> direct_normal = 740 +- 7.4
 * Source: Polynomials through the design irradiances of a clear and a cloudy sky that building
 *     services guides print.
 */
QUORVEL_API void CLSNNR(const float *solar_altitude, const float *solar_azimuth,
                        const float *site_height, const int32_t *sky_kind, float *direct_normal,
                        float *diffuse_horizontal);

/*
 * CLHIGH (height_factor): Factor by which irradiance grows with the height of the site.
 * Given:
 *     site_height     float  m    0 .. 4000       height of the site above sea level
 *     solar_altitude  float  rad  0 .. 1.5707964  solar altitude
 * Result:
 *     float  1  factor
 * Formula: 1.02 + site_height (0.00002 + 0.00005 / sin(solar_altitude))
 * Notes:
 *     - 1 below 300 m, and for suns whose sine of altitude is below 0.08; the factor jumps from 1
 *       to 1.041 or more at 300 m.
 * Example: CLHIGH(0, 0.5235988) -> 1
 * Source: Linear fit to height corrections of design irradiance.
 */
QUORVEL_API float CLHIGH(const float *site_height, const float *solar_altitude);

/*
 * CLETAJ (eccentricity_factor): Irradiance outside the atmosphere on a day, by that at the mean
 *     distance of the sun.
 * Given:
 *     day  int32_t    1 .. 366  day of the year
 * Result:
 *     float  1  factor
 * Formula: 1 + 0.03344 cos((360 day / 365.25 - 2.8) pi / 180)
 * Notes:
 *     - 0.967 to 1.033; greatest in the first days of January.
 * Example: CLETAJ(3) -> 1.034 +- 0.002
 * Source: Correction of the European Solar Radiation Atlas, 1 + 0.03344 cos(day angle - 2.8
 *     degrees).
 */
QUORVEL_API float CLETAJ(const int32_t *day);

/*
 * CLMODUL (clearness_index): Global horizontal irradiance by that outside the atmosphere.
 * Given:
 *     day                int32_t        1 .. 366        day of the year
 *     solar_altitude     float    rad   0 .. 1.5707964  solar altitude
 *     global_horizontal  float    W/m²  from 0          global horizontal irradiance
 * Result:
 *     float  1  clearness index
 * Formula: global_horizontal / (1367 CLETAJ(day) sin(solar_altitude))
 * Notes:
 *     - An altitude of 0 divides by zero: infinite, or not a number for an irradiance of 0.
 * Example: CLMODUL(94, 0.5235988, 341.75) -> 0.5 +- 0.003
 * Source: B. Y. H. Liu and R. C. Jordan, Solar Energy 4 (1960), with a solar constant of 1367 W/m²
 *     and the eccentricity of CLETAJ.
 */
QUORVEL_API float CLMODUL(const int32_t *day, const float *solar_altitude,
                          const float *global_horizontal);

/*
 * CLMUNRAD (muneer_slope): Irradiance on a tilted surface by Muneer's sky: beam, sky diffuse and
 *     ground-reflected.
 * Given:
 *     solar_altitude               float  rad   0 .. 1.5707964  solar altitude
 *     solar_azimuth                float  rad   0 .. 6.2832     solar azimuth
 *     surface_azimuth              float  rad   0 .. 6.2832     azimuth of the surface's outward
 *                                                               normal
 *     tilt                         float  rad   0 .. 3.1416     tilt from the horizontal
 *     beam_horizontal              float  W/m²  from 0          beam irradiance on the horizontal
 *     diffuse_horizontal           float  W/m²  from 0          diffuse irradiance on the
 *                                                               horizontal
 *     extraterrestrial_horizontal  float  W/m²  0 .. 1415       irradiance on the horizontal
 *                                                               outside the atmosphere
 *     ground_reflectance           float  1     0 .. 1          reflectance of the ground
 * Returned:
 *     surface_beam      float  W/m²    beam irradiance on the surface, 0 with the sun behind it
 *     surface_diffuse   float  W/m²    diffuse irradiance of the sky on the surface
 *     ground_reflected  float  W/m²    ground-reflected irradiance on the surface
 *     incidence         float  rad     angle of incidence, 1.5707964 with the sun behind the
 *                                      surface
 * Formula: surface_beam = beam_horizontal cos(i) / sin(h); surface_diffuse = diffuse_horizontal (f
 *     (1 - K) + K cos(i) / sin(h)); ground_reflected = ground_reflectance (beam_horizontal +
 *     diffuse_horizontal) sin(b / 2)^2; f = cos(b / 2)^2 + 2 r / (pi (2 r + 3)) (sin(b) - b cos(b)
 *     - pi sin(b / 2)^2), K = beam_horizontal / extraterrestrial_horizontal, h = solar_altitude, b
 *     = tilt, i = angle of incidence
 * Notes:
 *     - Radiance index r = 5.73 with the sun behind the surface; else 1.68 for a beam below 5 W/m²
 *       and -0.62 from there on. The circumsolar part starts above 5: exactly 5 takes -0.62 without
 *       it: deliberate.
 *     - With the sun behind the surface cos(i) counts as 0; there, and up to a beam of 5 W/m², K
 *       does too.
 *     - A sun up to 0.1 rad above the horizon has a form of its own: the diffuse irradiance times
 *       the cosine of the angle of incidence, brightened with the tilt. The result jumps there and
 *       at the thresholds of the beam.
 *     - That form does not become the diffuse irradiance on the horizontal, as it does above 0.1
 *       rad: there it is the diffuse irradiance times the sine of the altitude, 10 of 100 W/m² at
 *       0.0999 rad and 1 at 0.01 rad, and on a wall that faces the sun 135.
 *     - Computed in double precision: 0.1 as a single-precision altitude lies above the limit.
 *     - The beam is divided by the sine of the altitude: an altitude of 0 gives an infinite beam on
 *       the surface, or no number.
 * Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and
 *     Technology 11 (1990); radiance of the sky after P. Moon and D. E. Spencer (1942).
 */
QUORVEL_API void CLMUNRAD(const float *solar_altitude, const float *solar_azimuth,
                          const float *surface_azimuth, const float *tilt,
                          const float *beam_horizontal, const float *diffuse_horizontal,
                          const float *extraterrestrial_horizontal,
                          const float *ground_reflectance, float *surface_beam,
                          float *surface_diffuse, float *ground_reflected, float *incidence);

/*
 * CLPERSKY (perez_diffuse): Diffuse irradiance of the sky on a tilted surface by the anisotropic
 *     sky of Perez.
 * Given:
 *     solar_altitude           float  rad   0 .. 1.5707964  solar altitude
 *     tilt                     float  rad   0 .. 3.1416     tilt from the horizontal
 *     beam_horizontal          float  W/m²  from 0          beam irradiance on the horizontal
 *     diffuse_horizontal       float  W/m²  from 0          diffuse irradiance on the horizontal
 *     incidence                float  rad   0 .. 3.1416     angle of incidence of the sun on the
 *                                                           surface
 *     extraterrestrial_normal  float  W/m²  1320 .. 1415    normal irradiance outside the
 *                                                           atmosphere
 * Returned:
 *     surface_diffuse  float  W/m²    diffuse irradiance of the sky on the surface
 * Formula: diffuse_horizontal ((1 - F1) cos(tilt / 2)^2 + F1 a / b + F2 sin(tilt)); a =
 *     cos(incidence), at least 0, b = sin(solar_altitude), at least 0.0871557; F1 = f11 + f12 D +
 *     f13 Z, at least 0, F2 = f21 + f22 D + f23 Z
 * Notes:
 *     - The air mass is that of Kasten and Young with the altitude in radians in place of degrees:
 *       16 % too small for the sun at 2.5 degrees, 4 % at 30 and 2 % in the zenith: deliberate.
 *     - The circumsolar part is not below 0, the horizon's part may be; the sum is not limited.
 *     - Computed in double precision, coefficients and limits included; a clearness on the limit of
 *       two rows of coefficients belongs to the lower. The result jumps between rows, as the
 *       published model does.
 *     - Altitude, diffuse and extraterrestrial irradiance of 0 divide by zero.
 *     - The formula's Z is the sun's angle from the zenith, D the brightness: the air mass times
 *       diffuse_horizontal / extraterrestrial_normal. The coefficients f are those of the row of
 *       the clearness.
 * Example: CLPERSKY(0.8, 0, 300, 150, 0.7707963, 1367) -> surface_diffuse = 150 +- 0.01
 * Source: R. Perez, P. Ineichen, R. Seals, J. Michalsky and R. Stewart, Modeling daylight
 *     availability and irradiance components from direct and global irradiance, Solar Energy 44
 *     (1990): composite of all sites, coefficients with all their places. Air mass: F. Kasten and
 *     A. T. Young, Applied Optics 28 (1989).
 */
QUORVEL_API void CLPERSKY(const float *solar_altitude, const float *tilt,
                          const float *beam_horizontal, const float *diffuse_horizontal,
                          float *surface_diffuse, const float *incidence,
                          const float *extraterrestrial_normal);

/*
 * CLCONS (site_constants): Radiation constants of a site class in a month.
 * Given:
 *     site_class  int32_t    1 .. 6   site class
 *     month       int32_t    1 .. 12  month
 * Returned:
 *     ground_reflectance          float  1    reflectance of the ground
 *     beam_factor                 float  1    factor on the direct normal irradiance
 *     diffuse_factor              float  1    factor on the diffuse horizontal irradiance
 *     alternative_diffuse_factor  float  1    factor that takes its place where it is 0
 * Notes:
 *     - Only class 1 varies over the year. Classes 4 and 6 have a diffuse factor of 0 and the
 *       alternative one in its place; the caller chooses.
 *     - A site class outside 1 to 6 or a month outside 1 to 12 gives four zeros.
 * Source: Table of design constants of the library.
 */
QUORVEL_API void CLCONS(const int32_t *site_class, const int32_t *month, float *ground_reflectance,
                        float *beam_factor, float *diffuse_factor,
                        float *alternative_diffuse_factor);

/*
 * CLDIFRAD (diffuse_tilt_factor): Diffuse irradiance of the sky on a tilted surface without
 *     circumsolar part, by that on the horizontal.
 * Given:
 *     day              int32_t        1 .. 366        day of the year
 *     solar_altitude   float    rad   0 .. 1.5707964  solar altitude
 *     beam_horizontal  float    W/m²  from 0          beam irradiance on the horizontal
 *     unused           float    1     not used        accepted for the sake of existing callers
 *     tilt             float    rad   0 .. 3.1416     tilt from the horizontal
 *     sky_model        int32_t        selector        model of the sky: 0 radiance index by the
 *                                                     kind of sky, 1 clearness, northern Europe, 2
 *                                                     clearness, southern Europe, as any other
 *                                                     value
 * Result:
 *     float  1  factor, 1 for a horizontal surface
 * Formula: cos(b / 2)^2 + a (sin(b) - b cos(b) - pi sin(b / 2)^2), b = tilt; model 0: a = 2 r / (pi
 *     (2 r + 3)), model 1: 0.00333 - 0.415 K - 0.6987 K^2, model 2: 0.00263 - 0.712 K - 0.6883 K^2;
 *     K = beam_horizontal / (1367 CLETAJ(day) sin(solar_altitude))
 * Notes:
 *     - Model 0 takes the radiance index r = 5.73 up to an altitude of 0, 1.68 for a beam below 5
 *       W/m² and -0.62 otherwise; the side of the surface does not matter here.
 *     - Models 1 and 2 divide by the sine of the altitude: at 0 the factor is infinite or no
 *       number.
 * Example: CLDIFRAD(100, 0.8, 300, -, 0, 1) -> 1 +- 1e-06
 * Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and
 *     Technology 11 (1990), with a solar constant of 1367 W/m² and the eccentricity of CLETAJ.
 */
QUORVEL_API float CLDIFRAD(const int32_t *day, const float *solar_altitude,
                           const float *beam_horizontal, const float *unused, const float *tilt,
                           const int32_t *sky_model);

/*
 * CLDIFSLO (slope_diffuse): Diffuse irradiance of the sky on a tilted surface by day of the year
 *     and model of the sky.
 * Given:
 *     day                 int32_t        1 .. 366        day of the year
 *     solar_altitude      float    rad   0 .. 1.5707964  solar altitude
 *     solar_azimuth       float    rad   0 .. 6.2832     solar azimuth
 *     surface_azimuth     float    rad   0 .. 6.2832     azimuth of the surface's outward normal
 *     tilt                float    rad   0 .. 3.1416     tilt from the horizontal
 *     beam_horizontal     float    W/m²  from 0          beam irradiance on the horizontal
 *     diffuse_horizontal  float    W/m²  from 0          diffuse irradiance on the horizontal
 *     sky_model           int32_t        selector        model of the sky: 0 radiance index by the
 *                                                        kind of sky, 1 clearness, northern Europe,
 *                                                        2 clearness, southern Europe, as any other
 *                                                        value
 * Result:
 *     float  W/m²  diffuse irradiance of the sky on the surface
 * Formula: diffuse_horizontal (f (1 - K) + K cos(i) / sin(solar_altitude)); f = CLDIFRAD, i = angle
 *     of incidence
 * Notes:
 *     - The factor of CLDIFRAD and a circumsolar part, weighted by the clearness of the beam. A sun
 *       behind the surface has no circumsolar part, as one whose direction is not a number.
 *     - From a beam of 5 W/m² on, a sun below 0.1 rad has a form of its own, which follows the
 *       clearness but not the model. The result jumps there.
 *     - On the horizontal the result is the diffuse irradiance, but for that form, which brightens
 *       it around the sun: at 0.0999 rad by 0.4 % for a beam of 50 W/m² and by 4.5 % for 600.
 *     - Divides by the sine of the altitude: at 0 the result is infinite or no number.
 *     - K is that of CLDIFRAD.
 * Example: CLDIFSLO(100, 0.8, 3, 0, 0, 300, 150, 2) -> 150 +- 0.01
 * Source: As CLDIFRAD. Low sun: the clear sky of R. C. Temps and K. L. Coulson (Solar Energy 19,
 *     1977) with the modulation by T. M. Klucher (Solar Energy 23, 1979), the beam clearness in
 *     place of his factor.
 */
QUORVEL_API float CLDIFSLO(const int32_t *day, const float *solar_altitude,
                           const float *solar_azimuth, const float *surface_azimuth,
                           const float *tilt, const float *beam_horizontal,
                           const float *diffuse_horizontal, const int32_t *sky_model);

/*
 * CLTEO (sol_air_temperature): Temperature of the sol-air kind: a base temperature raised by a net
 *     gain of heat.
 * Given:
 *     base_temperature     float  °C     -100 .. 200  base temperature, as of the air outdoors
 *     surface_coefficient  float  W/m²K  from 0       heat transfer coefficient of the surface
 *     absorptance          float  1      0 .. 1       absorptance
 *     unused_1             float  1      not used     accepted for the sake of existing callers
 *     unused_2             float  1      not used     accepted for the sake of existing callers
 *     irradiance           float  W/m²   from 0       solar irradiance on the surface
 *     long_wave_loss       float  W/m²   from 0       net loss
 * Result:
 *     float  °C  sol-air temperature
 * Formula: base_temperature + absorptance (irradiance - long_wave_loss) / surface_coefficient
 * Notes:
 *     - The absorptance weighs the long-wave loss as it does the irradiance.
 *     - A coefficient of 0 divides by zero.
 * Example: CLTEO(20, 25, 1, -, -, 500, 100) -> 36 +- 1e-05
 * Source: Heat balance of an outer surface.
 */
QUORVEL_API float CLTEO(const float *base_temperature, const float *surface_coefficient,
                        const float *absorptance, const float *unused_1, const float *unused_2,
                        const float *irradiance, const float *long_wave_loss);

/*
 * CLRERD (long_wave_loss): Net long-wave radiation that a surface loses to its surroundings, never
 *     negative.
 * Given:
 *     tilt         float  rad  0 .. 3.1416  tilt from the horizontal
 *     cloud_cover  float  1    0 .. 1       share of the sky that is covered by cloud
 * Result:
 *     float  W/m²  net loss
 * Formula: 72 cos(tilt) + 21 - (62 cos(tilt) + 17) cloud_cover, at least 0
 * Notes:
 *     - Horizontal 93 - 79 cloud_cover, vertical 21 - 17 cloud_cover, between them by the cosine of
 *       the tilt. Less than nothing is 0; not a number stays so.
 * Example: CLRERD(0, 0) -> 93 +- 0.0001
 * Source: Net long-wave losses of horizontal and vertical surfaces by cloud cover, as building
 *     services guides print them; meaning of the arguments inferred from these values.
 */
QUORVEL_API float CLRERD(const float *tilt, const float *cloud_cover);

/*
 * CLTCOR (solar_time_correction): What is to be added to clock time to get solar time.
 * Given:
 *     clock_offset         float    h    any                hours by which the clock is put
 *                                                           forward, as in summer time
 *     day                  int32_t       1 .. 366           day of the year
 *     longitude            float    rad  -3.1416 .. 3.1416  longitude of the site, positive west
 *     reference_longitude  float    rad  -3.1416 .. 3.1416  longitude of the clock's meridian,
 *                                                           positive west
 * Result:
 *     float  h  correction
 * Formula: equation of time - clock_offset - (longitude - reference_longitude) / 0.2618
 * Notes:
 *     - Only the difference of the longitudes counts. Given positive east instead, it enters with
 *       the wrong sign.
 *     - The equation of time stays within 0.7 min of the true one.
 *     - The hour is rounded to 0.2618 rad here and not in CLSNGE: deliberate.
 * Example: CLTCOR(0, 307, 0, 0) -> 0.2737 +- 0.012
 * Source: Fourier series of the equation of time to the third harmonic, of the kind given by J. W.
 *     Spencer, Search 2 (1971); coefficients refitted.
 */
QUORVEL_API float CLTCOR(const float *clock_offset, const int32_t *day, const float *longitude,
                         const float *reference_longitude);

/*
 * CLYALLOP (almanac_position): Altitude, azimuth and declination of the sun by calendar date and
 *     clock.
 * Given:
 *     time_kind      int32_t       selector                 what the time is: 1 solar time;
 *                                                           longitude and zone meridian are set to
 *                                                           0, 2 clock of the zone, at the
 *                                                           longitude, 3 solar time; the zone
 *                                                           meridian only dates the declination
 *     year           int32_t       1976 .. 2099             year
 *     month          int32_t       1 .. 12                  month
 *     day_of_month   int32_t       1 .. 31                  day of the month
 *     clock_time     float    h    0 .. 24                  clock hour
 *     latitude       float    rad  -1.5707964 .. 1.5707964  latitude, positive north
 *     longitude      float    rad  -3.1416 .. 3.1416        longitude, positive west
 *     zone_meridian  float    rad  -3.1416 .. 3.1416        longitude of the clock's meridian,
 *                                                           positive west
 * Returned:
 *     longitude       float  rad  -3.1416 .. 3.1416  longitude, positive west; left as it was
 *                                                    except with solar time
 *     zone_meridian   float  rad  -3.1416 .. 3.1416  longitude of the clock's meridian, positive
 *                                                    west; left as it was except with solar time
 *     solar_altitude  float  rad                     altitude, negative below the horizon; no
 *                                                    refraction
 *     solar_azimuth   float  rad                     azimuth
 *     declination     float  rad                     declination
 * Notes:
 *     - Within 0.03 degrees, and of the azimuth 0.1 degrees where the sun is near due south or
 *       north, since a cosine of azimuth beyond 0.999999 in size counts as 1. Of this 0.02 degrees
 *       come from a misplaced degree factor in the equation of the centre: deliberate.
 *     - The hour angle is not brought into -180 to 180 degrees. Its sign decides between morning
 *       and afternoon, so within an hour of midnight the azimuth may be the mirror image.
 *     - A kind of time other than 1 and 2 counts as 3. Date and hour are not checked: a day beyond
 *       the month's end counts on into the next month. Before March 1976 three years of four are a
 *       day late; 2100 is given a leap day.
 * Source: Low-precision formulas of B. D. Yallop for the sun, as printed in T. Muneer, Solar
 *     Radiation and Daylight Models for the Energy Efficient Design of Buildings, 1997.
 */
QUORVEL_API void CLYALLOP(const int32_t *time_kind, const int32_t *year, const int32_t *month,
                          const int32_t *day_of_month, const float *clock_time,
                          const float *latitude, float *longitude, float *zone_meridian,
                          float *solar_altitude, float *solar_azimuth, float *declination);

/*
 * CLRISESET (almanac_sun_hours): Sunrise and sunset in solar time by calendar date.
 * Given:
 *     year          int32_t       1976 .. 2099             year
 *     month         int32_t       1 .. 12                  month
 *     day_of_month  int32_t       1 .. 31                  day of the month
 *     latitude      float    rad  -1.5707964 .. 1.5707964  latitude, positive north
 * Returned:
 *     sunrise  float  h    sunrise; 25 when the sun does not rise, 0 when it does not set
 *     sunset   float  h    sunset; 25 when the sun does not set, 0 when it does not rise
 * Notes:
 *     - The centre of the sun on a level horizon without refraction, with the declination of noon
 *       at Greenwich.
 *     - Dates as in CLYALLOP. A latitude of 1.5707964, or its negative, is by rounding just beyond
 *       the pole: midnight sun and polar night change places there.
 * Example: CLRISESET(2010, 6, 21, 0.898845) -> sunrise = 3.798 +- 0.003, sunset = 20.202 +- 0.003
 * Source: Declination as CLYALLOP; sunrise equation.
 */
QUORVEL_API void CLRISESET(const int32_t *year, const int32_t *month, const int32_t *day_of_month,
                           const float *latitude, float *sunrise, float *sunset);

/*
 * CLSNGE (solar_geometry): Declination, altitude and azimuth of the sun, sunrise and sunset, by
 *     latitude, day of the year and solar hour.
 * Given:
 *     latitude    float    rad  -1.5707964 .. 1.5707964  latitude, positive north
 *     day         int32_t       1 .. 365                 day of the year
 *     solar_time  float    h    0 .. 24                  solar time, noon at 12
 * Returned:
 *     declination     float  rad    declination
 *     solar_altitude  float  rad    altitude, 0 when the sun is below the horizon
 *     solar_azimuth   float  rad    azimuth, 0 when the sun is below the horizon
 *     sunrise         float  h      sunrise; 25 when the sun does not rise, 0 when it does not set;
 *                                   left as it was with latitude, day or hour outside its range
 *     sunset          float  h      sunset; 25 when the sun does not set, 0 when it does not rise;
 *                                   left as it was with latitude, day or hour outside its range
 * Formula: sin(declination) = 0.398 sin(d - 1.4096 + 0.03347 sin(d)), d = 0.01721 day;
 *     sin(altitude) = sin(declination) sin(latitude) + cos(declination) cos(latitude) cos(H), H =
 *     0.261799395 (12 - solar_time); sunrise = 12 / pi acos(tan(latitude) tan(declination)), sunset
 *     = 24 - sunrise
 * Notes:
 *     - Latitude, day or hour outside its range (day 366 too) gives a declination, altitude and
 *       azimuth of 0.
 *     - Within 0.5 degrees of the true position; no leap years, no refraction, the sun a point.
 *     - Noon counts as morning. With the sun in the zenith the azimuth is arbitrary.
 *     - A latitude of 1.5707964, or its negative, is by rounding just beyond the pole: midnight sun
 *       and polar night change places there.
 *     - Not a number for the latitude or the hour makes what depends on it not a number.
 * Source: Spherical astronomy; sine of the declination as 0.398 times the sine of the sun's
 *     ecliptic longitude, with the first-order equation of the centre.
 */
QUORVEL_API void CLSNGE(const float *latitude, const int32_t *day, const float *solar_time,
                        float *declination, float *solar_altitude, float *solar_azimuth,
                        float *sunrise, float *sunset);

/*
 * CLSNSR (surface_angles): Angle of incidence of the sun on a surface, and its angles in the
 *     vertical and the horizontal sense.
 * Given:
 *     solar_altitude   float  rad  -1.5707964 .. 1.5707964  solar altitude
 *     solar_azimuth    float  rad  0 .. 6.2832              solar azimuth
 *     surface_azimuth  float  rad  0 .. 6.2832              azimuth of the surface's outward normal
 *     tilt             float  rad  0 .. 3.1416              tilt from the horizontal
 * Returned:
 *     incidence                float  rad    angle of incidence, 0 to pi; above pi/2 the sun is
 *                                            behind the surface
 *     vertical_shadow_angle    float  rad    angle off the normal in the plane of normal and slope,
 *                                            positive up the slope; the profile angle of a vertical
 *                                            surface
 *     horizontal_shadow_angle  float  rad    angle off the normal in the plane of normal and level
 *                                            line, positive clockwise seen from above
 * Formula: cos(incidence) = cos(solar_altitude) sin(tilt) cos(solar_azimuth - surface_azimuth) +
 *     sin(solar_altitude) cos(tilt)
 * Notes:
 *     - With the sun behind the surface the two angles exceed pi/2 in size.
 *     - With the sun along the level line the vertical angle is pi/2, with the sun along the slope
 *       line the horizontal angle is -pi/2: exactly so only where the components vanish, anything
 *       by rounding otherwise.
 *     - The components are rounded, so angles below 0.0005 rad are not resolved.
 * Source: Vector algebra: the sun's direction in the frame of level line, slope line and outward
 *     normal.
 */
QUORVEL_API void CLSNSR(const float *solar_altitude, const float *solar_azimuth,
                        const float *surface_azimuth, const float *tilt, float *incidence,
                        float *vertical_shadow_angle, float *horizontal_shadow_angle);

/*
 * CLSORD (surface_irradiance): Irradiance on the plane of a surface: direct from the sun, diffuse
 *     from the sky, reflected from the ground.
 * Given:
 *     solar_altitude      float  rad   0 .. 1.5707964  solar altitude
 *     solar_azimuth       float  rad   0 .. 6.2832     solar azimuth
 *     surface_azimuth     float  rad   0 .. 6.2832     azimuth of the surface's outward normal
 *     tilt                float  rad   0 .. 3.1416     tilt from the horizontal
 *     direct_normal       float  W/m²  from 0          direct normal irradiance
 *     diffuse_horizontal  float  W/m²  from 0          diffuse irradiance on the horizontal
 *     ground_reflectance  float  1     0 .. 1          reflectance of the ground
 *     beam_factor         float  1     from 0          factor on the direct normal irradiance
 *     diffuse_factor      float  1     from 0          factor on the diffuse horizontal irradiance
 * Returned:
 *     surface_beam      float  W/m²    beam irradiance on the surface, 0 with the sun behind it
 *     surface_diffuse   float  W/m²    diffuse irradiance of the sky on the surface
 *     ground_reflected  float  W/m²    ground-reflected irradiance on the surface
 * Formula: surface_beam = direct_normal beam_factor cos(i); surface_diffuse = d (1 + cos(tilt)) / 2
 *     (1 - 0.1 sin(tilt) (1 + cos(surface_azimuth))); ground_reflected = ground_reflectance (1 -
 *     cos(tilt)) / 2 (d + direct_normal beam_factor sin(solar_altitude)); d = diffuse_horizontal
 *     diffuse_factor, i = angle of incidence, the beam 0 behind the surface
 * Notes:
 *     - A vertical surface gets up to 20 % less diffuse irradiance the more it faces north,
 *       whatever the hemisphere.
 *     - Nothing is limited: a negative altitude or irradiance gives negative parts. An angle that
 *       is not a number gives a direct irradiance of 0.
 * Example: CLSORD(0.5235988, 3.14159, 0, 0, 800, 100, 0, 1, 1) -> surface_beam = 400 +- 0.1
 * Source: Cosine law; isotropic sky and ground by view factors (B. Y. H. Liu and R. C. Jordan,
 *     Solar Energy 4, 1960), with an empirical darkening to the north.
 */
QUORVEL_API void CLSORD(const float *solar_altitude, const float *solar_azimuth,
                        const float *surface_azimuth, const float *tilt,
                        const float *direct_normal, const float *diffuse_horizontal,
                        const float *ground_reflectance, const float *beam_factor,
                        const float *diffuse_factor, float *surface_beam, float *surface_diffuse,
                        float *ground_reflected);

/*
 * CLSOR2 (surface_irradiance_and_incidence): Irradiance on the plane of a surface as CLSORD, and
 *     the angle of incidence.
 * Given:
 *     solar_altitude      float  rad   0 .. 1.5707964  solar altitude
 *     solar_azimuth       float  rad   0 .. 6.2832     solar azimuth
 *     surface_azimuth     float  rad   0 .. 6.2832     azimuth of the surface's outward normal
 *     tilt                float  rad   0 .. 3.1416     tilt from the horizontal
 *     direct_normal       float  W/m²  from 0          direct normal irradiance
 *     diffuse_horizontal  float  W/m²  from 0          diffuse irradiance on the horizontal
 *     ground_reflectance  float  1     0 .. 1          reflectance of the ground
 *     beam_factor         float  1     from 0          factor on the direct normal irradiance
 *     diffuse_factor      float  1     from 0          factor on the diffuse horizontal irradiance
 * Returned:
 *     surface_beam      float  W/m²    beam irradiance on the surface, 0 with the sun behind it
 *     surface_diffuse   float  W/m²    diffuse irradiance of the sky on the surface
 *     ground_reflected  float  W/m²    ground-reflected irradiance on the surface
 *     incidence         float  rad     angle of incidence, 1.5707964 with the sun behind the
 *                                      surface
 * Notes:
 *     - The irradiances are those of CLSORD, bit for bit; see there.
 *     - CLSNSR gives the angle of incidence behind the surface too.
 * Source: As CLSORD.
 */
QUORVEL_API void CLSOR2(const float *solar_altitude, const float *solar_azimuth,
                        const float *surface_azimuth, const float *tilt,
                        const float *direct_normal, const float *diffuse_horizontal,
                        const float *ground_reflectance, const float *beam_factor,
                        const float *diffuse_factor, float *surface_beam, float *surface_diffuse,
                        float *ground_reflected, float *incidence);

/* ---- Geometry -------------------------------------------------------------------------------- */

/*
 * HOHOLEDP (clip): Difference A - B and overlap of two simple polygons A and B in plan, in double
 *     precision.
 * Given:
 *     x                    double   m  any        x of the pool of points; new points are appended
 *                                                 [point_capacity]
 *     y                    double   m  any        y of the pool of points [point_capacity]
 *     vertices_a           int32_t     from 3     number of vertices of A, from 3
 *     positions_a          int32_t     from 1     vertices of A: positions in the pool, from 1
 *                                                 [vertices_a]
 *     vertices_b           int32_t     from 3     number of vertices of B, from 3
 *     positions_b          int32_t     from 1     vertices of B [vertices_b]
 *     point_capacity       int32_t     from 0     capacity of the pool
 *     crossing_capacity    int32_t     0 .. 1024  most crossings of A and B to deal with, up to
 *                                                 1024
 *     difference_capacity  int32_t     from 0     capacity of difference_pieces
 *     overlap_capacity     int32_t     from 0     capacity of overlap_pieces
 *     used_points          int32_t     from 1     points in use in the pool
 * Returned:
 *     x                  double   m  any     x of the pool of points; new points are appended
 *                                            [point_capacity]
 *     y                  double   m  any     y of the pool of points [point_capacity]
 *     used_points        int32_t     from 1  points in use in the pool
 *     difference_pieces  int32_t             pieces of A - B [difference_capacity]; left as it was
 *                                            with a status other than 0
 *     overlap_pieces     int32_t             pieces of the overlap [overlap_capacity]; left as it
 *                                            was with a status other than 0
 *     status             int32_t             0 success, else what went wrong
 * Notes:
 *     - A list of pieces is, for each piece, its number of vertices and their positions in the
 *       pool, and at last a 0, which counts in its capacity. The pieces run in the sense of A. A
 *       list without room for the 0 is not written.
 *     - Where B lies within A the difference is two pieces, cut along level bridges from the
 *       leftmost and the rightmost vertex of B. The negative of a position marks a vertex from
 *       which a bridge leads to the next one. A piece may touch itself along a bridge.
 *     - The polygons may run either way, touch, and have vertices and edges in common; repeated
 *       vertices are let be. B is moved off A where they touch: contact within a tolerance of 1e-4
 *       of the diagonal of the box round both counts as none, and the areas are exact to about this
 *       times the length of the boundaries. The areas of difference and overlap add up to that of A
 *       to rounding.
 *     - B without area is nothing to subtract. In no case does anything happen beyond what the
 *       capacities allow. A failure leaves lists and pool as they are by then.
 *     - On which side of an edge a point lies is decided exactly, also at site coordinates, where
 *       edges are in line with one another only to rounding.
 * Status:
 *     0    success
 *     1    A has fewer than 3 vertices, or one that is not in the pool (up to used_points and
 *          point_capacity)
 *     2    B has fewer than 3 vertices, or one that is not in the pool
 *     3    A crosses itself
 *     4    B crosses itself
 *     5    A has no area to speak of (25 square tolerances)
 *     6    A and B cross more than crossing_capacity times
 *     7    the pool is full
 *     8    an edge of A carries more than 10 crossings
 *     9    an edge of B carries more than 10 crossings
 *     10   difference_pieces is full
 *     11   overlap_pieces is full
 *     105  the edges of A do not enter and leave B by turns, as can happen where a polygon is
 *          narrower than the tolerance, or touches itself
 *     106  the edges of B do not enter and leave A by turns, likewise
 *     109  no bridge from B to A, for polygons with coordinates that are not numbers
 * Source: Boundary tracing from crossing to crossing: K. Weiler, P. Atherton, Hidden surface
 *     removal using polygon area sorting, 1977.
 */
QUORVEL_API void HOHOLEDP(double *x, double *y, const int32_t *vertices_a,
                          const int32_t *positions_a, const int32_t *vertices_b,
                          const int32_t *positions_b, const int32_t *point_capacity,
                          const int32_t *crossing_capacity, const int32_t *difference_capacity,
                          const int32_t *overlap_capacity, int32_t *used_points,
                          int32_t *difference_pieces, int32_t *overlap_pieces, int32_t *status);

/*
 * GEOVER (overlap): Pieces and area of the overlap of two simple polygons in plan.
 * Given:
 *     x_1         float    m  any     x of polygon 1 [vertices_1]
 *     y_1         float    m  any     y of polygon 1 [vertices_1]
 *     vertices_1  int32_t     from 3  number of vertices of polygon 1, from 3
 *     x_2         float    m  any     x of polygon 2 [vertices_2]
 *     y_2         float    m  any     y of polygon 2 [vertices_2]
 *     vertices_2  int32_t     from 3  number of vertices of polygon 2, from 3
 * Returned:
 *     piece_x         float    m     x of the vertices of the pieces, a column each; 0 beyond them
 *                                    [25, 5]
 *     piece_y         float    m     y of the vertices of the pieces [25, 5]
 *     piece_vertices  int32_t        number of vertices of each piece, 0 beyond the last [5]
 *     area            float    m²    area of the overlap
 * Notes:
 *     - The overlap of HOHOLEDP with polygon 2 as A and polygon 1 as B, and with its accuracy. The
 *       pieces run in the sense of polygon 2.
 *     - A coordinate nearer to 0 than 1e-4 is taken as 0.
 *     - The outputs are all 0 where the polygons do not overlap, and where HOHOLEDP fails: a
 *       polygon that crosses itself, more than 10 crossings, more than 50 vertices and crossings in
 *       all. Likewise for more than 5 pieces, or more than 24 vertices in one. Of pairs of real
 *       polygons 0.75 % exceed one of these capacities.
 *     - The outputs are also 0 where polygon 1 lies in polygon 2 and the two have 42 vertices or
 *       more together: what is left of polygon 2 around it does not fit. Where polygon 2 lies in
 *       polygon 1 they may have 50, as anywhere else.
 * Source: As HOHOLEDP.
 */
QUORVEL_API void GEOVER(const float *x_1, const float *y_1, const int32_t *vertices_1,
                        const float *x_2, const float *y_2, const int32_t *vertices_2,
                        float *piece_x, float *piece_y, int32_t *piece_vertices, float *area);

/*
 * GEHOLE (overlap_alias): The same as GEOVER.
 * Given:
 *     x_1         float    m  any     x of polygon 1 [vertices_1]
 *     y_1         float    m  any     y of polygon 1 [vertices_1]
 *     vertices_1  int32_t     from 3  number of vertices of polygon 1, from 3
 *     x_2         float    m  any     x of polygon 2 [vertices_2]
 *     y_2         float    m  any     y of polygon 2 [vertices_2]
 *     vertices_2  int32_t     from 3  number of vertices of polygon 2, from 3
 * Returned:
 *     piece_x         float    m     x of the vertices of the pieces, a column each; 0 beyond them
 *                                    [25, 5]
 *     piece_y         float    m     y of the vertices of the pieces [25, 5]
 *     piece_vertices  int32_t        number of vertices of each piece, 0 beyond the last [5]
 *     area            float    m²    area of the overlap
 * Notes:
 *     - As GEOVER, in all.
 * Source: As HOHOLEDP.
 */
QUORVEL_API void GEHOLE(const float *x_1, const float *y_1, const int32_t *vertices_1,
                        const float *x_2, const float *y_2, const int32_t *vertices_2,
                        float *piece_x, float *piece_y, int32_t *piece_vertices, float *area);

/*
 * IGELIN (collinearity): Whether points in plan lie on one straight line.
 * Given:
 *     x       float    m  any     x of the vertices [points]
 *     y       float    m  any     y of the vertices [points]
 *     points  int32_t     from 1  number of points
 * Result:
 *     int32_t  1 on one line; otherwise the number, counted from 1, of the first point whose y
 *         differs from that of the first of all
 * Notes:
 *     - The points are held against the line through the first two that differ by 1e-5 or more in
 *       both coordinates. A point is off it when the ratios of its offsets to theirs, in x and in
 *       y, differ by more than 1e-5: what is tolerated grows with the distance between the two.
 *     - Points that all have the x or the y of the first, to within 1e-5, are on one line. Not a
 *       number counts as equal to anything.
 *     - Coordinates near one another within 1e-5 can leave no two points to draw the line through;
 *       then the points are not on one line, and finding that out takes n²/2 comparisons.
 *     - Fewer than one point are on one line.
 * Example: IGELIN((0, 1, 2), (0, 1, 2), 3) -> 1
 * Source: Intercept theorem.
 */
QUORVEL_API int32_t IGELIN(const float *x, const float *y, const int32_t *points);

/*
 * GECLOS (count_enclosed): How many points lie in a convex polygon with clockwise vertices or on
 *     its boundary, and which.
 * Given:
 *     x         float    m  any       x of the vertices [vertices]
 *     y         float    m  any       y of the vertices [vertices]
 *     vertices  int32_t     from 3    number of vertices
 *     point_x   float    m  any       x of the points [points]
 *     point_y   float    m  any       y of the points [points]
 *     points    int32_t     from 1    number of points
 *     enclosed  int32_t     selector  1 for points that are enclosed: 0 not enclosed, 1 enclosed
 *                                     [points]
 * Returned:
 *     enclosed         int32_t    selector  1 for points that are enclosed: 0 not enclosed, 1
 *                                           enclosed [points]; left as it was for points that are
 *                                           not enclosed
 *     enclosed_points  int32_t              number of enclosed points
 * Notes:
 *     - A point is enclosed when it is left of no edge, as IGEPNT sees it, or is at a vertex (to
 *       less than 1e-5 in each coordinate) that comes before any such edge.
 *     - Points that are not numbers are left of no edge, and so enclosed.
 *     - Without vertices or points the number enclosed is 0.
 * Source: A convex polygon is the intersection of half-planes.
 */
QUORVEL_API void GECLOS(const float *x, const float *y, const int32_t *vertices,
                        const float *point_x, const float *point_y, const int32_t *points,
                        int32_t *enclosed, int32_t *enclosed_points);

/*
 * GESIDE (boundary_crossing): Where a segment crosses the boundary of a polygon in plan.
 * Given:
 *     segment_start  float    m  any     start of the segment [2]
 *     segment_end    float    m  any     end of the segment [2]
 *     x              float    m  any     x of the vertices [vertices]
 *     y              float    m  any     y of the vertices [vertices]
 *     vertices       int32_t     from 3  number of vertices
 * Returned:
 *     crossing_point  float    m    crossing point, or what the notes say [2]; 1e20 for none
 *     crossing_code   int32_t       number, counted from 1, of the vertex that ends the crossed
 *                                   edge, or what the notes say
 * Notes:
 *     - The edges are tried in turn, from that between the first two vertices on, as GECROS does;
 *       the first one that is crossed away from the start ends the search. A crossing beyond 100000
 *       is none.
 *     - No such edge, but the start at a vertex (to less than 1e-5): the code is its number with a
 *       minus, and the point is the last outcome of the search, the start or 1e20.
 *     - Otherwise, the start on edges: the code is 999 + the number of the vertex that ends the
 *       last of them, and the point that vertex. (The sum is taken modulo 2^32. Of a polygon with
 *       1000 vertices or more, small codes of this kind cannot be told from edges by the code
 *       alone.)
 *     - Otherwise the code is 0, and the point 1e20.
 * Source: As GECROS.
 */
QUORVEL_API void GESIDE(const float *segment_start, const float *segment_end, const float *x,
                        const float *y, const int32_t *vertices, float *crossing_point,
                        int32_t *crossing_code);

/*
 * GEINSI (inside): Whether a point in the plane of a polygon in space lies inside or on its
 *     boundary.
 * Given:
 *     point     float    m  any     point [3]
 *     polygon   float    m  any     vertices, the last of which repeats the first [3, vertices]
 *     vertices  int32_t     from 4  number of vertices, the repeated one included
 * Returned:
 *     inside  int32_t      1 inside, 0 outside
 * Notes:
 *     - The first edge with whose line the point is in line (twice the area of the triangle between
 *       them at most 1e-6) decides alone: 1 if the point is in the span of the edge, as GEINLN sees
 *       it, else 0. So a point may be found outside a polygon that is not convex because it is in
 *       line with an edge.
 *     - That the point is in the plane is not tested: over the middle of a square it is inside up
 *       to half the length of a side.
 *     - Not a number gives 0.
 *     - Fewer than one edge give 0.
 * Example: GEINSI((0.5, 0.5, 0), (0, 0, 0, 0, 1, 0, 1, 1, 0, 1, 0, 0, 0, 0, 0), 5) -> inside = 1
 * Source: Sum of the angles under which the point sees the edges.
 */
QUORVEL_API void GEINSI(const float *point, const float *polygon, const int32_t *vertices,
                        int32_t *inside);

/*
 * GEPLEL (parallel_planes): Whether the planes of two triangles are parallel.
 * Given:
 *     triangle_1  double  m  any  corners of one triangle [3, 3]
 *     triangle_2  double  m  any  corners of the other [3, 3]
 * Result:
 *     int32_t  whether they are parallel; -1 if so, else 0
 * Notes:
 *     - So they are when the cross product of their normals, each as long as twice the triangle's
 *       area, is shorter than 0.001: small triangles are parallel to any.
 * Example: GEPLEL((0, 0, 0, 1, 0, 0, 0, 1, 0), (0, 0, 1, 1, 0, 1, 0, 1, 1)) -> -1
 * Source: Definition.
 */
QUORVEL_API int32_t GEPLEL(const double *triangle_1, const double *triangle_2);

/*
 * GEPSID (parallel_sides): Whether two triangles have parallel sides, and which.
 * Given:
 *     triangle_1  double  m  any  corners of one triangle [3, 3]
 *     triangle_2  double  m  any  corners of the other [3, 3]
 * Returned:
 *     side_1  int32_t      side of one triangle: 1 between its first two corners, 2 between its
 *                          last two; 3 none
 *     side_2  int32_t      side of the other, likewise
 * Result:
 *     int32_t  whether there are any; -1 if so, else 0
 * Notes:
 *     - Sides are parallel when their cross product is shorter than 0.001, so that short sides are
 *       parallel to any.
 *     - The sides between last and first corner are not tested.
 * Source: Definition.
 */
QUORVEL_API int32_t GEPSID(const double *triangle_1, const double *triangle_2, int32_t *side_1,
                           int32_t *side_2);

/*
 * GERECT (rectangular): Whether a quadrilateral is rectangular.
 * Given:
 *     quadrilateral  double  m  any  corners in turn [3, 4]
 * Result:
 *     int32_t  whether it is rectangular; -1 if so, else 0
 * Notes:
 *     - So it is when at all corners but the first the dot product of the two sides is at most 1e-6
 *       in magnitude.
 * Example: GERECT((0, 0, 0, 2, 0, 0, 2, 1, 0, 0, 1, 0)) -> -1
 * Source: Definition.
 */
QUORVEL_API int32_t GERECT(const double *quadrilateral);

/*
 * GETILT (facing): Azimuth and tilt of the plane of a triangle.
 * Given:
 *     triangle  double  m  any          corners, clockwise seen from outside [3, 3]
 *     azimuth   double  °  0 .. 6.2832  azimuth of the outward normal; given, what a level triangle
 *                                       gets, in radians
 * Returned:
 *     azimuth  double  °  0 .. 6.2832  azimuth of the outward normal; given, what a level triangle
 *                                      gets, in radians
 *     tilt     double  °               tilt: 0 horizontal facing up, 90 vertical, 180 facing down
 * Notes:
 *     - A level triangle, the level part of whose normal (as long as twice its area) is shorter
 *       than 1e-10, gets the given azimuth times 180/pi.
 *     - Azimuths of 360 or more are reduced by 360 once; from 359.99 on they become 0.
 *     - A triangle without area gives a tilt that is not a number.
 * Example: GETILT((0, 0, 0, 0, 0, 1, 1, 0, 1), 0) -> azimuth = 180 +- 1e-06, tilt = 90 +- 1e-06
 * Source: Definition.
 */
QUORVEL_API void GETILT(const double *triangle, double *azimuth, double *tilt);

/*
 * GELCAL (local_coordinates): Two quadrilaterals in local coordinates of the first.
 * Given:
 *     quadrilateral_1  double  m  any  corners of the first [3, 4]
 *     quadrilateral_2  double  m  any  corners of the second [3, 4]
 * Returned:
 *     local_1  double  m    the first in local coordinates [3, 4]
 *     local_2  double  m    the second in local coordinates [3, 4]
 * Notes:
 *     - The origin is the first corner of the first; from there x points to the second corner, y to
 *       the fourth, z along the cross product of the ways to the second and the third.
 *     - Coordinates are dot products with the axes, so that lengths are kept only where that has a
 *       right angle at its first corner.
 *     - Coincident corners give what is not a number.
 * Source: Definition.
 */
QUORVEL_API void GELCAL(const double *quadrilateral_1, const double *quadrilateral_2,
                        double *local_1, double *local_2);

/*
 * GETRNS (to_local): Components of each of four points along three axes.
 * Given:
 *     corners  double  m  any  points [3, 4]
 *     x_axis   double  1  any  x axis [3]
 *     y_axis   double  1  any  y axis [3]
 *     z_axis   double  1  any  z axis [3]
 * Returned:
 *     corners  double  m  any  points [3, 4]
 * Source: Definition.
 */
QUORVEL_API void GETRNS(double *corners, const double *x_axis, const double *y_axis,
                        const double *z_axis);

/*
 * GEMEET (meeting_point): Where two infinite lines in plan meet.
 * Given:
 *     line_1_start  float  m  any  point of line 1 [2]
 *     line_1_end    float  m  any  another point of line 1 [2]
 *     line_2_start  float  m  any  point of line 2 [2]
 *     line_2_end    float  m  any  another point of line 2 [2]
 * Returned:
 *     meeting_point  float  m    meeting point [2]; 1e20 for none
 * Notes:
 *     - Parallel lines give 1e20 in both coordinates: those for which |ab| |cd| times the sine of
 *       the angle between them is below 1e-10.
 *     - Any of the points may be vectors; their z is not read.
 * Example: GEMEET((0, 0), (1, 1), (0, 2), (2, 0)) -> meeting_point = (1, 1)
 * Source: Elementary analytic geometry.
 */
QUORVEL_API void GEMEET(const float *line_1_start, const float *line_1_end,
                        const float *line_2_start, const float *line_2_end, float *meeting_point);

/*
 * GECROS (crossing_point): Where two segments in plan cross or touch.
 * Given:
 *     segment_1_start  float  m  any  start of segment 1 [2]
 *     segment_1_end    float  m  any  end of segment 1 [2]
 *     segment_2_start  float  m  any  start of segment 2 [2]
 *     segment_2_end    float  m  any  end of segment 2 [2]
 * Returned:
 *     crossing_point  float  m    crossing point [2]; 1e20 for none
 * Notes:
 *     - Segments that do not meet, and parallel ones whether they meet or not, give 1e20 in both
 *       coordinates. Not a number counts as not meeting.
 *     - A segment reaches almost 0.0001 beyond its ends in x and in y.
 * Example: GECROS((0, 0), (2, 2), (0, 2), (2, 0)) -> crossing_point = (1, 1)
 * Source: As GEMEET.
 */
QUORVEL_API void GECROS(const float *segment_1_start, const float *segment_1_end,
                        const float *segment_2_start, const float *segment_2_end,
                        float *crossing_point);

/*
 * GEINLN (in_span): Whether a point of the line AB lies between A and B.
 * Given:
 *     first_end   float  m  any  one end [3]
 *     second_end  float  m  any  other end [3]
 *     point       float  m  any  point on the line AB [3]
 * Result:
 *     float  1  1 between them or at an end, else 0
 * Notes:
 *     - That the point is on the line is not tested: the answer is whether it is in the box of
 *       which A and B are corners.
 *     - Not a number in y or z of the point does not exclude it.
 * Example: GEINLN((0, 0, 0), (2, 2, 2), (1, 1, 1)) -> 1
 * Source: Definition.
 */
QUORVEL_API float GEINLN(const float *first_end, const float *second_end, const float *point);

/*
 * GEINLN2 (ahead_and_nearer): Whether a point lies on B's side of A and nearer to A than B does.
 * Given:
 *     first_end   float  m  any  one end [3]
 *     second_end  float  m  any  other end [3]
 *     point       float  m  any  point [3]
 * Result:
 *     float  1  1 if so, else 0
 * Notes:
 *     - A itself counts, B does not; so nothing does where the two coincide.
 *     - Not a number anywhere gives 1.
 * Example: GEINLN2((0, 0, 0), (2, 2, 2), (1, 1, 1)) -> 1
 * Source: Definition.
 */
QUORVEL_API float GEINLN2(const float *first_end, const float *second_end, const float *point);

/*
 * GECOIN (coincide): Whether two points in plan coincide.
 * Given:
 *     x_1  float  m  any  x of one point
 *     y_1  float  m  any  y of one point
 *     x_2  float  m  any  x of the other
 *     y_2  float  m  any  y of the other
 * Result:
 *     int32_t  whether both coordinates differ by less than 1e-5; -1 if so, else 0
 * Example: GECOIN(1, 2, 1.000001, 2) -> -1
 * Source: Definition.
 */
QUORVEL_API int32_t GECOIN(const float *x_1, const float *y_1, const float *x_2, const float *y_2);

/*
 * IGEPNT (side_of_line): Side of a directed line in plan on which a point lies.
 * Given:
 *     line_start  float  m  any  start of the line [2]
 *     line_end    float  m  any  point towards which it runs [2]
 *     point       float  m  any  point [2]
 * Result:
 *     int32_t  1 right of the line, -1 left of it, 0 nearer to it than 1e-5
 * Notes:
 *     - Where the two points of the line are the same the line runs north.
 *     - Not a number gives 0.
 * Example: IGEPNT((0, 0), (0, 1), (1, 0.5)) -> 1
 * Source: Distance of a point from a line by its bearing.
 */
QUORVEL_API int32_t IGEPNT(const float *line_start, const float *line_end, const float *point);

/*
 * BORI (back_azimuth): Azimuth opposite to a direction that is given by its angle from east,
 *     anticlockwise; also the angle of an azimuth.
 * Given:
 *     angle  float  °  0 .. 360  angle from east, anticlockwise, or azimuth
 * Result:
 *     float  °  azimuth of the opposite direction, or angle of it
 * Notes:
 *     - It is the remainder of 630 - angle by 360 with the sign of the dividend: angles above 630
 *       give negative results.
 *     - Magnitudes from 1000 on are no angles and are returned as they are.
 * Example: BORI(90) -> 180
 * Source: Definition.
 */
QUORVEL_API float BORI(const float *angle);

/*
 * GESUNV (direction_to): Unit vector of a direction, such as that to the sun.
 * Given:
 *     solar_altitude  float  rad  -1.5708 .. 1.5708  altitude
 *     solar_azimuth   float  rad  0 .. 6.2832        azimuth
 * Returned:
 *     direction  float  1    direction [3]
 * Formula: (sin(solar_azimuth) cos(solar_altitude), cos(solar_azimuth) cos(solar_altitude),
 *     sin(solar_altitude))
 * Example: GESUNV(0.5235988, 1.5707963) -> direction = (0.8660254, 0, 0.5) +- 1e-06
 * Source: Spherical to rectangular coordinates.
 */
QUORVEL_API void GESUNV(const float *solar_altitude, const float *solar_azimuth, float *direction);

/*
 * GERSET (surface_axes): Rotation matrix of a surface, from local to global coordinates, and its
 *     inverse.
 * Given:
 *     surface_azimuth  float  rad  0 .. 6.2832  azimuth of the surface's outward normal
 *     tilt             float  rad  0 .. 3.1416  tilt: 0 horizontal facing up, pi/2 vertical
 * Returned:
 *     rotation_matrix  float  1    matrix; its columns are the local axes in global coordinates [3,
 *                                  3]
 *     inverse_matrix   float  1    inverse of it [3, 3]
 * Formula: columns (-cos(a), sin(a), 0), (-sin(a) cos(b), -cos(a) cos(b), sin(b)), (sin(a) sin(b),
 *     cos(a) sin(b), cos(b)); a = surface_azimuth, b = tilt
 * Notes:
 *     - Local x is level and points to the right seen from outside, y points up the slope, z
 *       outwards; the axes are right-handed.
 *     - Elements of the matrix below 1e-5 in magnitude are set to 0. The inverse, by elimination
 *       with full pivoting, is the transpose to rounding.
 * Example: GERSET(0, 1.5707963) -> rotation_matrix = (-1, 0, 0, 0, 0, 1, 0, 1, 0) +- 1e-06
 * Source: Rotation matrices; Gauss-Jordan elimination.
 */
QUORVEL_API void GERSET(const float *surface_azimuth, const float *tilt, float *rotation_matrix,
                        float *inverse_matrix);

/*
 * GERAXI (local_to_global): Local to global coordinates: the rotation matrix times the vector.
 * Given:
 *     local_vector     float  m  any      vector in local coordinates [3]
 *     rotation_matrix  float  1  -1 .. 1  rotation matrix [3, 3]
 * Returned:
 *     global_vector  float  m    vector in global coordinates [3]
 * Example: GERAXI((1, 2, 3), (0, 1, 0, -1, 0, 0, 0, 0, 1)) -> global_vector = (-2, 1, 3)
 * Source: Definition.
 */
QUORVEL_API void GERAXI(const float *local_vector, const float *rotation_matrix,
                        float *global_vector);

/*
 * GERAX2 (global_to_local): Global to local coordinates: the transpose of the rotation matrix times
 *     the vector.
 * Given:
 *     global_vector    float  m  any      vector in global coordinates [3]
 *     rotation_matrix  float  1  -1 .. 1  rotation matrix [3, 3]
 * Returned:
 *     local_vector  float  m    vector in local coordinates [3]
 * Example: GERAX2((-2, 1, 3), (0, 1, 0, -1, 0, 0, 0, 0, 1)) -> local_vector = (1, 2, 3)
 * Source: Definition.
 */
QUORVEL_API void GERAX2(const float *global_vector, const float *rotation_matrix,
                        float *local_vector);

/*
 * GEAPOL (plan_area): Area of a polygon in plan.
 * Given:
 *     x         float    m  any     x of the vertices [vertices]
 *     y         float    m  any     y of the vertices [vertices]
 *     vertices  int32_t     from 3  number of vertices
 * Result:
 *     float  m²  area
 * Formula: half the size of the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
 * Notes:
 *     - A polygon far from the origin beside its size loses digits.
 *     - Fewer than one vertex give 0.
 * Example: GEAPOL((0, 0, 1, 1), (0, 1, 1, 0), 4) -> 1
 * Source: Shoelace formula.
 */
QUORVEL_API float GEAPOL(const float *x, const float *y, const int32_t *vertices);

/*
 * GEAPO2 (signed_plan_area): Area of a polygon in plan, positive for clockwise vertices.
 * Given:
 *     x         float    m  any     x of the vertices [vertices]
 *     y         float    m  any     y of the vertices [vertices]
 *     vertices  int32_t     from 3  number of vertices
 * Result:
 *     float  m²  area, negative for anticlockwise vertices
 * Formula: half the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
 * Notes:
 *     - As GEAPOL.
 * Example: GEAPO2((0, 0, 1, 1), (0, 1, 1, 0), 4) -> 1
 * Source: Shoelace formula.
 */
QUORVEL_API float GEAPO2(const float *x, const float *y, const int32_t *vertices);

/*
 * GEAPO3 (area_in_space): Area of a plane polygon in space.
 * Given:
 *     x         float    m  any     x of the vertices [vertices]
 *     y         float    m  any     y of the vertices [vertices]
 *     z         float    m  any     z of the vertices [vertices]
 *     vertices  int32_t     from 3  number of vertices
 * Result:
 *     float  m²  area
 * Notes:
 *     - It is the sum of the triangles over the edges with the mean of the vertices as apex, all
 *       counted as positive: too large for a polygon that is not seen whole from there. Of the
 *       surfaces of real buildings 3.3 % come out too large by more than 0.1 %, half of these by
 *       more than 7 %.
 *     - Fewer than one vertex give 0.
 * Example: GEAPO3((0, 0, 1, 1), (0, 3, 3, 0), (0, 4, 4, 0), 4) -> 5 +- 1e-05
 * Source: Elementary geometry.
 */
QUORVEL_API float GEAPO3(const float *x, const float *y, const float *z, const int32_t *vertices);

/*
 * GEASO (polygon_orientation): Area, tilt and orientation of a plane polygon in space.
 * Given:
 *     vertices  int32_t     from 3  number of vertices
 *     polygon   float    m  any     vertices [3, vertices]
 * Returned:
 *     area          float  m²    area, positive when the vertices run as the corner at the first
 *                                one turns
 *     tilt          float  °     angle between the normal and the vertical; left as it was with
 *                                fewer than one vertex
 *     back_azimuth  float  °     azimuth opposite to the normal; left as it was with fewer than one
 *                                vertex
 * Notes:
 *     - The normal points to where the corner at the first vertex is seen to turn anticlockwise:
 *       its opposite is the outward normal of a convex polygon that runs clockwise seen from
 *       outside.
 *     - Only the corner at the first vertex gives the plane. Of 31605 surfaces of real buildings
 *       141 begin within a straight side, and for 7 of these rounding alone decides the normal, so
 *       that area, tilt and orientation are wrong: let the first vertex be a true corner.
 *     - The orientation of a nearly level polygon (the cosine of its tilt beyond 0.999) is the
 *       azimuth opposite to its first side if the normal points up, and that of the side if it
 *       points down.
 *     - Degrees are radians times 180 by 3.141593, so that right angles can be one step off, and
 *       what faces north may get 0.00003.
 *     - With fewer than three vertices the area is 0.
 * Source: Shoelace formula in the plane of the polygon.
 */
QUORVEL_API void GEASO(const int32_t *vertices, const float *polygon, float *area, float *tilt,
                       float *back_azimuth);

/*
 * GEPROJ (projection): Projection of a point along a direction, forwards or backwards, onto a
 *     plane.
 * Given:
 *     plane_point   float  m  any  a point of the plane [3]
 *     plane_normal  float  1  any  normal of the plane, of any length [3]
 *     point         float  m  any  the point [3]
 *     direction     float  1  any  direction, of any length [3]
 * Returned:
 *     projected_point  float  m    projected point [3]; 1e20 for none
 * Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction .
 *     plane_normal)
 * Notes:
 *     - A direction parallel to the plane (its dot product with the normal of magnitude 1e-15 or
 *       less, or not a number) gives 1e20 in all coordinates.
 * Example: GEPROJ((0, 0, 0), (0, 0, 1), (0, 0, 5), (1, 0, -1)) -> projected_point = (5, 0, 0)
 * Source: Elementary analytic geometry.
 */
QUORVEL_API void GEPROJ(const float *plane_point, const float *plane_normal, const float *point,
                        const float *direction, float *projected_point);

/*
 * GEPROJ2 (forward_projection): Projection of a point along a direction, forwards only, onto a
 *     plane.
 * Given:
 *     plane_point   float  m  any  a point of the plane [3]
 *     plane_normal  float  1  any  normal of the plane, of any length [3]
 *     point         float  m  any  the point [3]
 *     direction     float  1  any  direction, of any length [3]
 * Returned:
 *     projected_point  float  m    projected point [3]; 1e20 for none
 * Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction .
 *     plane_normal)
 * Notes:
 *     - A direction parallel to the plane or away from it, and a point that is in the plane
 *       already, give 1e20 in all coordinates.
 *     - Forwards means that the way from the point to its projection, scaled to length 1, differs
 *       from the direction, scaled so, by 1e-6 at most in each component. Coordinates that are
 *       large beside the way to the plane can spoil that by rounding: at site coordinates of real
 *       buildings, about 7 % of the points whose projection lies ahead are not found.
 * Example: GEPROJ2((0, 0, 0), (0, 0, 1), (0, 0, 5), (1, 0, -1)) -> projected_point = (5, 0, 0)
 * Source: As GEPROJ.
 */
QUORVEL_API void GEPROJ2(const float *plane_point, const float *plane_normal, const float *point,
                         const float *direction, float *projected_point);

/*
 * GEPROJ3 (forward_projection_or_start): Projection of a point along a direction onto a plane, or
 *     the point itself where the plane does not lie ahead.
 * Given:
 *     plane_point   float  m  any  a point of the plane [3]
 *     plane_normal  float  1  any  normal of the plane, of any length [3]
 *     point         float  m  any  the point [3]
 *     direction     float  1  any  direction, of any length [3]
 * Returned:
 *     projected_point  float  m    projected point, or the point itself [3]
 * Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction .
 *     plane_normal)
 * Notes:
 *     - A direction whose product with the normal is exactly 0 gives what the division by zero
 *       makes of it: infinities or not a number. There is no other limit for parallel directions,
 *       so that the length of the normal does not matter.
 *     - Ahead is as in GEPROJ2, and so about 7 % of the points at site coordinates of real
 *       buildings are returned as they are, although the plane lies ahead.
 * Example: GEPROJ3((0, 0, 0), (0, 0, 1), (0, 0, 5), (-1, 0, 1)) -> projected_point = (0, 0, 5)
 * Source: As GEPROJ.
 */
QUORVEL_API void GEPROJ3(const float *plane_point, const float *plane_normal, const float *point,
                         const float *direction, float *projected_point);

/*
 * GEDOTP (dot_product): Dot product of two vectors.
 * Given:
 *     vector_a  float  m  any  vector [3]
 *     vector_b  float  m  any  vector [3]
 * Result:
 *     float  m²  a . b
 * Formula: a1 b1 + a2 b2 + a3 b3
 * Example: GEDOTP((1, 2, 3), (4, 5, 6)) -> 32
 * Source: Definition.
 */
QUORVEL_API float GEDOTP(const float *vector_a, const float *vector_b);

/*
 * GEDTDP (dot_product_in_double): Dot product of two vectors in double precision.
 * Given:
 *     vector_a  double  m  any  vector [3]
 *     vector_b  double  m  any  vector [3]
 * Result:
 *     double  m²  a . b
 * Formula: a1 b1 + a2 b2 + a3 b3
 * Example: GEDTDP((1, 2, 3), (4, 5, 6)) -> 32
 * Source: Definition.
 */
QUORVEL_API double GEDTDP(const double *vector_a, const double *vector_b);

/*
 * GEXPRO (cross_product): Cross product of two vectors.
 * Given:
 *     vector_a  float  m  any  vector [3]
 *     vector_b  float  m  any  vector [3]
 * Returned:
 *     cross_product  float  m²    a x b [3]
 * Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
 * Example: GEXPRO((1, 2, 3), (4, 5, 6)) -> cross_product = (-3, 6, -3)
 * Source: Definition.
 */
QUORVEL_API void GEXPRO(const float *vector_a, const float *vector_b, float *cross_product);

/*
 * GEXPDP (cross_product_in_double): Cross product of two vectors in double precision.
 * Given:
 *     vector_a  double  m  any  vector [3]
 *     vector_b  double  m  any  vector [3]
 * Returned:
 *     cross_product  double  m²    a x b [3]
 * Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
 * Example: GEXPDP((1, 2, 3), (4, 5, 6)) -> cross_product = (-3, 6, -3)
 * Source: Definition.
 */
QUORVEL_API void GEXPDP(const double *vector_a, const double *vector_b, double *cross_product);

/*
 * GEVMOD (length): Length of a vector.
 * Given:
 *     vector  float  m  any  vector [3]
 * Result:
 *     float  m  length
 * Formula: sqrt(v1^2 + v2^2 + v3^2)
 * Notes:
 *     - Squares beyond the range of a float make the length infinite or 0: from about 1e19, below
 *       about 1e-23.
 * Example: GEVMOD((3, 4, 12)) -> 13
 * Source: Definition.
 */
QUORVEL_API float GEVMOD(const float *vector);

/*
 * GEVMDP (length_in_double): Length of a vector in double precision.
 * Given:
 *     vector  double  m  any  vector [3]
 * Result:
 *     double  m  length
 * Formula: sqrt(v1^2 + v2^2 + v3^2)
 * Example: GEVMDP((3, 4, 12)) -> 13
 * Source: Definition.
 */
QUORVEL_API double GEVMDP(const double *vector);

#ifdef __cplusplus
}
#endif

#endif /* QUORVEL_H */
