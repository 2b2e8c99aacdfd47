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

/* ---- Glazing --------------------------------------------------------------------------------- */

/*
 * WNRANG (refraction_angle): Angle of a ray inside the glass, by Snell's law.
 * Given:
 *     theta  float  rad  -1.5708 .. 1.5708  angle of incidence
 *     n      float  1    1 .. 4             refractive index of the glass
 * Result:
 *     float  rad  refraction angle
 * Notes:
 *     - Where the sine of theta is below 0.01 in size the result is theta / n, the ratio of the
 *       angles in place of that of the sines.
 *     - An index so far below 1 that the reflection is total gives no number.
 * Source: Snell's law.
 */
QUORVEL_API float WNRANG(const float *theta, const float *n);

/*
 * WNREFL (surface_reflectance): Reflectance of one face of the glass for the two polarisations, by
 *     Fresnel's equations.
 * Given:
 *     theta      float  rad  -1.5708 .. 1.5708  angle of incidence
 *     refracted  float  rad  -1.5708 .. 1.5708  refraction angle, of the sign of theta
 *     n          float  1    1 .. 4             refractive index, used at normal incidence only
 * Returned:
 *     rp  float  1    reflectance, polarised parallel to the plane of incidence
 *     rs  float  1    reflectance, polarised perpendicular to it
 * Notes:
 *     - Up to an angle of 0.01 in size, and for a theta that is no number, both are the value at
 *       normal incidence, ((1 - n) / (1 + n))^2. WNRANG tests the sine of the angle instead; the
 *       two limits differ on purpose.
 *     - rs is written before rp.
 * Source: Fresnel's equations; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter
 *     5.
 */
QUORVEL_API void WNREFL(const float *theta, const float *refracted, const float *n, float *rp,
                        float *rs);

/*
 * WNABEN (single_pass_absorption): Share of a ray that is absorbed in one pass through the body of
 *     a pane.
 * Given:
 *     refracted  float  rad  -1.5 .. 1.5  refraction angle
 *     kl         float  1    0 .. 20      absorption coefficient times thickness
 *     unused     float  1    not used     accepted for the sake of existing callers
 * Result:
 *     float  1  absorbed share, 1 - exp(-kl / cos refracted)
 * Source: Bouguer's law of absorption.
 */
QUORVEL_API float WNABEN(const float *refracted, const float *kl, const float *unused);

/*
 * WNTAR (slab_optics): Transmittance, absorptance and reflectance of a pane for one polarisation,
 *     with all inter-reflections between its two faces.
 * Given:
 *     absorbed   float  1  0 .. 1  share absorbed in a single pass
 *     reflected  float  1  0 .. 1  reflectance of either face
 * Returned:
 *     t  float  1    transmittance
 *     a  float  1    absorptance, not below 0
 *     r  float  1    reflectance
 * Notes:
 *     - Faces that reflect everything around a body that absorbs nothing leave the result undefined
 *       (0/0).
 *     - What is no number stays so; the limit at 0 touches only numbers.
 * Source: Stokes, On the intensity of the light reflected from or transmitted through a pile of
 *     plates, 1862; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.
 */
QUORVEL_API void WNTAR(const float *absorbed, const float *reflected, float *t, float *a, float *r);

/*
 * WNKL (absorption_product): Absorption coefficient times thickness of a pane, from its
 *     transmittance at normal incidence.
 * Given:
 *     tn  float  1  0.01 .. 0.92  normal transmittance of the pane
 *     n   float  1  1.3 .. 4      refractive index
 * Result:
 *     float  1  absorption coefficient times thickness
 * Notes:
 *     - Evaluated as written in single precision, where a difference of roots cancels for nearly
 *       opaque glass: the relative error of tn, given back by WNTNOR, is up to 1.5e-5 / tn^2, which
 *       is 0.02 % at 0.3, 0.15 % at 0.1 and 0.6 % at 0.05; at 0.002 and less the result is
 *       infinite.
 *     - Above the transmittance of glass that absorbs nothing, 0.918 for n = 1.52, the result is
 *       negative.
 *     - tn = 0 and n = 1 divide by zero and give no finite number.
 * Source: The slab of WNTAR at normal incidence, solved for the absorption.
 */
QUORVEL_API float WNKL(const float *tn, const float *n);

/*
 * WNTNOR (normal_transmittance): Transmittance of a pane at normal incidence: the inverse of WNKL.
 * Given:
 *     kl   float  1  0 .. 20    absorption coefficient times thickness
 *     rho  float  1  0 .. 0.99  normal reflectance of one face
 * Result:
 *     float  1  normal transmittance of the pane
 * Notes:
 *     - The second argument is a reflectance, ((n - 1) / (n + 1))^2, where WNKL takes the
 *       refractive index.
 * Source: The slab of WNTAR at normal incidence.
 */
QUORVEL_API float WNTNOR(const float *kl, const float *rho);

/*
 * WNDRGL (glass_direct): Transmittance, absorptance and reflectance of a pane for direct radiation,
 *     both polarisations.
 * Given:
 *     tn     float  1    0 .. 0.92          normal transmittance
 *     r0     float  1    0 .. 0.99          normal reflectance of coated glass, 0 for uncoated
 *     theta  float  rad  -1.5708 .. 1.5708  angle of incidence
 * Returned:
 *     t_p  float  1    transmittance, parallel polarisation
 *     a_p  float  1    absorptance, parallel
 *     r_p  float  1    reflectance, parallel
 *     t_s  float  1    transmittance, perpendicular polarisation
 *     a_s  float  1    absorptance, perpendicular
 *     r_s  float  1    reflectance, perpendicular
 * Notes:
 *     - The unpolarised values are the means of the two polarisations.
 *     - An r0 in 0.01..0.99 means coated: factors on tn and on 1 - r0 are interpolated from a table
 *       every 5 degrees, the same for both polarisations; beyond 1.57 rad everything is reflected.
 *       Any other r0 means uncoated and is not used.
 *     - Uncoated glass has the refractive index 1.52. Below tn = 0.001 it is opaque and reflects
 *       everything.
 *     - tn is not tested for coated glass: with tn + r0 above 1 the three do not add up to 1.
 * Source: Uncoated glass: WNKL, WNRANG, WNREFL, WNABEN, WNTAR in turn. Coated glass: tabulated
 *     angular factors whose origin is not recorded.
 */
QUORVEL_API void WNDRGL(const float *tn, const float *r0, const float *theta, float *t_p,
                        float *a_p, float *r_p, float *t_s, float *a_s, float *r_s);

/*
 * WNDFGL (glass_diffuse): Transmittance and absorptance of a pane for isotropic diffuse radiation.
 * Given:
 *     tn  float  1  0 .. 0.92  normal transmittance
 *     r0  float  1  0 .. 0.99  normal reflectance of coated glass, 0 for uncoated
 * Returned:
 *     t  float  1    diffuse transmittance
 *     a  float  1    diffuse absorptance
 * Notes:
 *     - The pane is taken exactly as by WNDRGL, r0 and opaque glass included.
 *     - The bits are those of WNDRGL summed over the bands.
 * Source: WNDRGL at the centres of 18 bands of 5 degrees, each weighted with the integral of 2 sin
 *     cos over the band.
 */
QUORVEL_API void WNDFGL(const float *tn, const float *r0, float *t, float *a);

/*
 * WNDRSC (unit_direct): Transmittance, absorptance and reflectance for direct radiation of a
 *     glazing unit known only by its shading coefficients.
 * Given:
 *     sc     float  1    0 .. 1.05          short-wave shading coefficient; the total one if scl is
 *                                           missing
 *     scl    float  1    0 .. 1             long-wave shading coefficient, 0 if missing
 *     theta  float  rad  -1.5708 .. 1.5708  angle of incidence
 * Returned:
 *     t  float  1    transmittance
 *     a  float  1    absorptance
 *     r  float  1    reflectance, 1 - t - a, at least 0.01 to rounding
 * Notes:
 *     - An scl below 0.0001 counts as missing: sc is then split into 0.9 short-wave and 0.1 long-
 *       wave.
 *     - An uncoated pane of index 1.52 and normal transmittance 0.87 times the short-wave
 *       coefficient carries the angular behaviour.
 *     - If the two coefficients add up to at most 1, the absorptance is 2.61 times the long-wave
 *       one at normal incidence and follows the pane over the angle; otherwise it is that of the
 *       pane. sc = 1 with scl missing belongs to the former, but only as single precision rounds.
 *     - The absorptance is at most 0.99 - t. An opaque unit, whose equivalent pane absorbs nothing,
 *       gets just that: sc = scl = 0 gives t = 0, a = 0.99.
 * Source: Shading coefficients relative to clear float glass of total transmittance 0.87, of whose
 *     absorbed part a third flows inwards.
 */
QUORVEL_API void WNDRSC(const float *sc, const float *scl, const float *theta, float *t, float *a,
                        float *r);

/*
 * WNDFSC (unit_diffuse): Transmittance, absorptance and reflectance for isotropic diffuse radiation
 *     of a glazing unit known only by its shading coefficients.
 * Given:
 *     sc   float  1  0 .. 1.05  short-wave shading coefficient; the total one if scl is missing
 *     scl  float  1  0 .. 1     long-wave shading coefficient, 0 if missing
 * Returned:
 *     t  float  1    diffuse transmittance
 *     a  float  1    diffuse absorptance
 *     r  float  1    diffuse reflectance, 1 - t - a
 * Notes:
 *     - Coefficients as in WNDRSC. If they add up to at most 1 the absorptance is 2.61 times the
 *       long-wave one, otherwise that of the equivalent pane.
 *     - The absorptance is at most 0.99 - t. Unlike WNDRSC, sc = scl = 0 gives a = 0 and r = 1.
 * Source: WNDRSC, with the equivalent pane integrated as in WNDFGL.
 */
QUORVEL_API void WNDFSC(const float *sc, const float *scl, float *t, float *a, float *r);

/*
 * WNDRSM (unit_direct_shares): WNDRSC, with the remainder 1 - t - a split among the panes of the
 *     unit.
 * Given:
 *     sc     float    1    0 .. 1.05          short-wave shading coefficient; the total one if scl
 *                                             is missing
 *     scl    float    1    0 .. 1             long-wave shading coefficient, 0 if missing
 *     theta  float    rad  -1.5708 .. 1.5708  angle of incidence
 *     n      int32_t       1 .. 5             number of panes
 * Returned:
 *     t      float  1    transmittance
 *     panes  float  1    share of each pane in 1 - t - a [n]
 *     a      float  1    absorptance
 * Notes:
 *     - What is split is the remainder 1 - t - a, not the absorptance.
 *     - A pane count outside 1..5 leaves the panes untouched; t and a are returned all the same.
 * Source: WNDRSC; the shares by number of panes are fixed, 0.4 and 0.6 for two, their origin is not
 *     recorded.
 */
QUORVEL_API void WNDRSM(const float *sc, const float *scl, const float *theta, const int32_t *n,
                        float *t, float *panes, float *a);

/*
 * WNDFSM (unit_diffuse_shares): WNDFSC, with the remainder 1 - t - a split among the panes of the
 *     unit.
 * Given:
 *     sc   float    1  0 .. 1.05  short-wave shading coefficient; the total one if scl is missing
 *     scl  float    1  0 .. 1     long-wave shading coefficient, 0 if missing
 *     n    int32_t     1 .. 5     number of panes
 * Returned:
 *     t      float  1    diffuse transmittance
 *     panes  float  1    share of each pane in 1 - t - a [n]
 *     a      float  1    diffuse absorptance
 * Notes:
 *     - The panes as in WNDRSM: the remainder is split, and a count outside 1..5 leaves them
 *       untouched.
 * Source: WNDFSC, with the shares of WNDRSM.
 */
QUORVEL_API void WNDFSM(const float *sc, const float *scl, const int32_t *n, float *t,
                        float *panes, float *a);

/*
 * WNDRS0 (unit_shares): WNDRSM or WNDFSM, by a selector.
 * Given:
 *     mode   int32_t       selector           kind of radiation: 1 direct radiation (WNDRSM), 2
 *                                             diffuse radiation (WNDFSM), as any other value
 *     sc     float    1    0 .. 1.05          short-wave shading coefficient; the total one if scl
 *                                             is missing
 *     scl    float    1    0 .. 1             long-wave shading coefficient, 0 if missing
 *     theta  float    rad  -1.5708 .. 1.5708  angle of incidence, read in mode 1 only
 *     n      int32_t       1 .. 5             number of panes
 * Returned:
 *     t      float  1    transmittance
 *     panes  float  1    share of each pane in 1 - t - a [n]
 *     a      float  1    absorptance
 * Notes:
 *     - The panes as in WNDRSM: the remainder is split, and a count outside 1..5 leaves them
 *       untouched.
 * Source: WNDRSM and WNDFSM.
 */
QUORVEL_API void WNDRS0(const int32_t *mode, const float *sc, const float *scl, const float *theta,
                        const int32_t *n, float *t, float *panes, float *a);

/*
 * WNCOM2 (stacked_layers): Transmittance, absorptance and reflectance of a stack of layers, each
 *     reflection counted once.
 * Given:
 *     n       int32_t     1 .. 20   number of layers; layer n is met first
 *     t       float    1  0 .. 1    transmittance of each layer [n]
 *     unused  float    1  not used  accepted for the sake of existing callers
 *     r       float    1  0 .. 1    reflectance of each layer [n]
 * Returned:
 *     t_total  float  1    transmittance of the stack
 *     a_total  float  1    absorptance, 1 - t_total - r_total
 *     r_total  float  1    reflectance of the stack
 * Notes:
 *     - A layer's reflection passes the layers above it once each way; there is no further inter-
 *       reflection.
 *     - Where transmittance and reflectance exceed 0.99 together, the reflectance is reduced until
 *       they do not. It turns negative if the transmittance alone is above 0.99.
 *     - A count below 1 is an empty stack, which transmits everything; no array is read.
 * Source: First-order combination of the layers.
 */
QUORVEL_API void WNCOM2(const int32_t *n, const float *t, const float *unused, const float *r,
                        float *t_total, float *a_total, float *r_total);

/*
 * WNDRRO (roller_blind): Transmittance, absorptance and reflectance of a roller blind, the same at
 *     every angle.
 * Given:
 *     tau    float  1    0 .. 1    transmittance of the blind
 *     rho    float  1    0 .. 1    reflectance of the blind
 *     theta  float  rad  not used  angle of incidence
 * Returned:
 *     t  float  1    transmittance, tau
 *     a  float  1    absorptance, 1 - tau - rho
 *     r  float  1    reflectance, rho
 * Notes:
 *     - Nothing is limited: tau + rho above 1 gives a negative absorptance.
 * Source: Conservation of energy.
 */
QUORVEL_API void WNDRRO(const float *tau, const float *rho, const float *theta, float *t, float *a,
                        float *r);

/*
 * WNTEMP (pane_temperatures): Steady temperatures of the panes of a glazing from the air
 *     temperatures on both sides and the solar radiation that each pane absorbs.
 * Given:
 *     t_room  float    °C    -50 .. 100  air temperature in the room
 *     t_out   float    °C    -50 .. 100  air temperature outdoors
 *     n       int32_t        1 .. 5      number of panes
 *     s1      float    W/m²  0 .. 1000   absorbed in pane 1, nearest the room
 *     s2      float    W/m²  0 .. 1000   absorbed in pane 2
 *     s3      float    W/m²  0 .. 1000   absorbed in pane 3
 *     s4      float    W/m²  0 .. 1000   absorbed in pane 4
 *     s5      float    W/m²  0 .. 1000   absorbed in pane 5
 * Returned:
 *     t1  float  °C    temperature of pane 1, nearest the room
 *     t2  float  °C    temperature of pane 2
 *     t3  float  °C    temperature of pane 3
 *     t4  float  °C    temperature of pane 4
 *     t5  float  °C    temperature of pane 5
 * Notes:
 *     - Only the first n absorbed values are read and the first n temperatures written, but for n =
 *       4.
 *     - Four panes are calculated as five: s5 is read (give 0 for it) and t5 is written.
 *     - A count outside 1..5 writes nothing.
 * Source: Heat balance of the panes with fixed resistances: 0.12 m²K/W at the room side, 0.06 m²K/W
 *     outdoors; coefficients rounded to two decimals.
 */
QUORVEL_API void WNTEMP(const float *t_room, const float *t_out, const int32_t *n, const float *s1,
                        const float *s2, const float *s3, const float *s4, const float *s5,
                        float *t1, float *t2, float *t3, float *t4, float *t5);

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
