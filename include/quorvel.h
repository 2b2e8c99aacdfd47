/*
 * Quorvel - building-physics and building-services calculations.
 *
 * Produced from the catalogue of routines (catalogue/); do not edit.
 *
 * Every argument is passed by reference, inputs are never written, and arrays are one-based in the
 * texts and stored column by column. Angles are in radians; azimuths run from north, clockwise seen
 * from above (east pi/2, south pi); tilt and solar altitude are measured from the horizontal.
 * Routines report no errors: what an argument outside its range gets is said in the notes.
 * Logical results are -1 (true) and 0 (false); 1.0e20 stands for a quantity that does not exist.
 * Every routine is re-entrant.
 */
#ifndef QUORVEL_H
#define QUORVEL_H

#include <stdint.h>

#if defined(QUORVEL_STATIC)
#define QUORVEL_API
#elif defined(_WIN32) && defined(QUORVEL_BUILDING)
#define QUORVEL_API __declspec(dllexport)
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
 * PSSVP (saturation_pressure): Saturation vapour pressure over a plane surface of water, or of ice
 *     below 0 °C.
 * Given:
 *     t  float  °C  -100 .. 200  temperature
 * Result:
 *     float  Pa  saturation vapour pressure
 * Notes:
 *     - Exactly 0 °C counts as water. The two branches meet there only to 0.04 Pa (610.34 over
 *       water, 610.30 over ice); the step is kept.
 *     - Within 0.4 % of the international formulation from -20 to 150 °C, within 1 % down to -40
 *       °C.
 * Source: National Engineering Laboratory, Steam Tables 1964, in the reduced form that building
 *     services guides print.
 */
QUORVEL_API float PSSVP(const float *t);

/*
 * PSVP (vapour_pressure): Vapour pressure of air at a dry-bulb temperature and relative humidity.
 * Given:
 *     t   float  °C  -100 .. 200  dry-bulb temperature
 *     rh  float  %   0 .. 100     relative humidity
 * Result:
 *     float  Pa  vapour pressure
 * Notes:
 *     - Relative humidity is limited to 0 to 100 %, not rejected.
 * Source: Definition of relative humidity, with the saturation pressure of PSSVP.
 */
QUORVEL_API float PSVP(const float *t, const float *rh);

/*
 * PSVAP (vapour_pressure_from_psychrometer): Vapour pressure from the reading of a wet-and-dry-bulb
 *     psychrometer.
 * Given:
 *     t     float    °C  -50 .. 100       dry-bulb temperature
 *     twb   float    °C  -50 .. 100       wet-bulb temperature
 *     p     float    Pa  50000 .. 110000  atmospheric pressure
 *     type  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                         (naturally ventilated)
 * Result:
 *     float  Pa  vapour pressure
 * Notes:
 *     - The coefficient of an iced bulb is taken when the wet bulb is below 0 °C.
 *     - A wet bulb at or above the dry bulb gives the saturation pressure at the dry-bulb
 *       temperature.
 *     - The result is not limited: a reading drier than any air gives a negative pressure.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Source: Psychrometer equation pv = ps(twb) - A p (t - twb) with the customary coefficients A.
 */
QUORVEL_API float PSVAP(const float *t, const float *twb, const float *p, const int32_t *type);

/*
 * PSTWET (psychrometer_wet_bulb): Wet-bulb temperature that a psychrometer reads at a dry-bulb
 *     temperature and relative humidity.
 * Given:
 *     t     float    °C  -50 .. 100       dry-bulb temperature
 *     rh    float    %   0 .. 100         relative humidity
 *     p     float    Pa  50000 .. 110000  atmospheric pressure
 *     type  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                         (naturally ventilated)
 * Result:
 *     float  °C  wet-bulb temperature, never above the dry bulb
 * Notes:
 *     - The coefficient of an iced bulb is taken when the dry bulb is below 0 °C, where PSVAP looks
 *       at the wet bulb; the asymmetry is kept.
 *     - A stepping search that ends within 0.1 K: the result moves in small jumps with its
 *       arguments.
 *     - Relative humidity is limited to 0 to 100 %. Where the search would never end (a pressure of
 *       zero or below, say), the value it has reached is returned.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Source: Psychrometer equation of PSVAP, solved by a step-and-refine search.
 */
QUORVEL_API float PSTWET(const float *t, const float *rh, const float *p, const int32_t *type);

#ifdef __cplusplus
}
#endif

#endif /* QUORVEL_H */
