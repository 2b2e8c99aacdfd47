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

/* ---- Calendar, sun and sky ------------------------------------------------------------------- */

/*
 * CLDAY (store_design_day): Design day of a month as a day of the year, into the caller's variable.
 * Given:
 *     month  int32_t    1 .. 12  month
 * Returned:
 *     day  int32_t      design day of the year
 * Notes:
 *     - A month outside 1 to 12 gives 0.
 *     - The year has 365 days.
 * Source: Table of customary design days, close to the 21st of each month.
 */
QUORVEL_API void CLDAY(const int32_t *month, int32_t *day);

/*
 * CLDAYEX (store_design_day_by_option): Design day of a month as a day of the year or of the month,
 *     into the caller's variable.
 * Given:
 *     month   int32_t    1 .. 12   month
 *     option  int32_t    selector  how the day is counted: 1 day of the month, 2 day of the year
 * Returned:
 *     day  int32_t      design day
 * Notes:
 *     - The two counts are separate sets and not the same date: in February day 52 of the year (the
 *       21st) stands beside the 20th.
 *     - A month outside 1 to 12 gives 0; an option other than 1 counts as 2.
 * Source: Table of customary design days, close to the 21st of each month.
 */
QUORVEL_API void CLDAYEX(const int32_t *month, int32_t *day, const int32_t *option);

/*
 * ICLDAY (design_day): Design day of a month as a day of the year.
 * Given:
 *     month  int32_t    1 .. 12  month
 * Result:
 *     int32_t  design day of the year
 * Notes:
 *     - A month outside 1 to 12 gives 0.
 *     - The year has 365 days.
 * Source: Table of customary design days, close to the 21st of each month.
 */
QUORVEL_API int32_t ICLDAY(const int32_t *month);

/*
 * ICLDAYEX (design_day_by_option): Design day of a month as a day of the year or of the month.
 * Given:
 *     month   int32_t    1 .. 12   month
 *     option  int32_t    selector  how the day is counted: 1 day of the month, 2 day of the year
 * Result:
 *     int32_t  design day
 * Notes:
 *     - The two counts are separate sets and not the same date: in February day 52 of the year (the
 *       21st) stands beside the 20th.
 *     - A month outside 1 to 12 gives 0; an option other than 1 counts as 2.
 * Source: Table of customary design days, close to the 21st of each month.
 */
QUORVEL_API int32_t ICLDAYEX(const int32_t *month, const int32_t *option);

/*
 * ICLDA2 (second_design_day): Second design day of a month as a day of the year.
 * Given:
 *     month  int32_t    1 .. 12  month
 * Result:
 *     int32_t  second design day of the year
 * Notes:
 *     - A month outside 1 to 12 gives 0.
 *     - The year has 365 days.
 * Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
 */
QUORVEL_API int32_t ICLDA2(const int32_t *month);

/*
 * ICLDA2EX (second_design_day_by_option): Second design day of a month as a day of the year or of
 *     the month.
 * Given:
 *     month   int32_t    1 .. 12   month
 *     option  int32_t    selector  how the day is counted: 1 day of the month, 2 day of the year
 * Result:
 *     int32_t  second design day
 * Notes:
 *     - Both counts are the same date here.
 *     - A month outside 1 to 12 gives 0; an option other than 1 counts as 2.
 * Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
 */
QUORVEL_API int32_t ICLDA2EX(const int32_t *month, const int32_t *option);

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
 * CLTCOR (solar_time_correction): What is to be added to clock time to get solar time.
 * Given:
 *     offset               float    h    -2 .. 2            hours by which the clock is put
 *                                                           forward, as in summer time
 *     day                  int32_t       1 .. 366           day of the year
 *     longitude            float    rad  -3.1416 .. 3.1416  longitude of the site, positive west
 *     reference_longitude  float    rad  -3.1416 .. 3.1416  longitude of the clock's meridian,
 *                                                           positive west
 * Result:
 *     float  h  correction: equation of time - offset - (longitude - reference longitude) / 0.2618
 * Notes:
 *     - Only the difference of the longitudes counts. Given positive east instead, it enters with
 *       the wrong sign.
 *     - The equation of time stays within 0.7 min of the true one.
 *     - The hour is rounded to 0.2618 rad here and not in CLSNGE; kept.
 * Source: Fourier series of the equation of time to the third harmonic, of the kind given by J. W.
 *     Spencer, Search 2 (1971); coefficients refitted.
 */
QUORVEL_API float CLTCOR(const float *offset, const int32_t *day, const float *longitude,
                         const float *reference_longitude);

/*
 * CLBAND (band_climate): Monthly climate of one of ten bands of days, or interpolated at a
 *     cumulative percentage of days.
 * Given:
 *     band        int32_t     0 .. 10   band, or 0 to interpolate at the percentage
 *     month       int32_t     1 .. 12   month
 *     set         int32_t     selector  set of bands: 1 bands from the warmest to the coldest days,
 *                                       2 bands from the highest to the lowest Q1
 *     percentage  float    %  0 .. 100  cumulative percentage of days: given with band 0, otherwise
 *                                       returned
 * Returned:
 *     percentage  float  %    0 .. 100  cumulative percentage of days: given with band 0, otherwise
 *                                       returned
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
 *     - With band 0 the percentage is left as given.
 *     - A percentage below band 1 extrapolates backwards from it, by the step to band 2 at most;
 *       one above 100 gives band 10.
 *     - A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a
 *       set other than 2 as 1. A percentage that is not a number makes Q1 to Q8 not numbers.
 *     - The table built in is representative and not measured; data/bands tells how it was made and
 *       how to build with data of your own. Q1 to Q8 mean what the table's maker says; the meanings
 *       here are those of the table built in.
 * Source: Linear interpolation in the band table.
 */
QUORVEL_API void CLBAND(const int32_t *band, const int32_t *month, const int32_t *set,
                        float *percentage, float *q1, float *q2, float *q3, float *q4, float *q5,
                        float *q6, float *time_a, float *time_b, float *q7, float *q8);

/*
 * CLBAN1 (locate_band): Where a cumulative fraction of days lies among the ten bands of a month, in
 *     frequencies of the caller.
 * Given:
 *     fraction     float    1  0 .. 1   cumulative fraction of days
 *     month        int32_t     1 .. 12  month
 *     frequencies  float    1  0 .. 1   cumulative frequencies by month and band, not falling with
 *                                       the band [12, 10]
 * Returned:
 *     lower   int32_t       lower band, 1 to 9
 *     upper   int32_t       upper band, 2 to 10
 *     weight  float    1    (fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1
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
                        int32_t *lower, int32_t *upper, float *weight);

/*
 * CLBAN2 (interpolate_band_rows): Value between two rows of the band table.
 * Given:
 *     base    int32_t     0 .. 174  row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2
 *                                   and so on in set 1; 92 more in set 2
 *     lower   int32_t     1 .. 10   lower band
 *     upper   int32_t     1 .. 10   upper band
 *     month   int32_t     1 .. 12   month
 *     weight  float    1  -1 .. 1   share of the step from the lower to the upper row
 * Returned:
 *     value  float  1    value, in the quantity's unit
 * Notes:
 *     - Rows base + lower and base + upper outside 1 to 184 count as the nearest row, a month
 *       outside 1 to 12 as the nearest month.
 * Source: Linear interpolation in the band table.
 */
QUORVEL_API void CLBAN2(const int32_t *base, const int32_t *lower, const int32_t *upper,
                        const int32_t *month, const float *weight, float *value);

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
 * Source: The band table; see data/bands.
 */
QUORVEL_API void CLBAN3(const int32_t *row, float *values);

/*
 * CLSNGE (solar_geometry): Declination, altitude and azimuth of the sun, sunrise and sunset, by
 *     latitude, day of the year and solar hour.
 * Given:
 *     latitude  float    rad  -1.5708 .. 1.5708  latitude, positive north
 *     day       int32_t       1 .. 365           day of the year
 *     hour      float    h    0 .. 24            solar time, noon at 12
 * Returned:
 *     declination  float  rad    declination
 *     altitude     float  rad    altitude, 0 when the sun is below the horizon
 *     azimuth      float  rad    azimuth, 0 when the sun is below the horizon
 *     sunrise      float  h      sunrise; 25 when the sun does not rise, 0 when it does not set
 *     sunset       float  h      sunset; 25 when the sun does not set, 0 when it does not rise
 * Notes:
 *     - Latitude, day or hour outside its range (day 366 too) gives a declination, altitude and
 *       azimuth of 0 and leaves sunrise and sunset as they are.
 *     - Within 0.5 degrees of the true position; no leap years, no refraction, the sun a point.
 *     - Noon counts as morning. With the sun in the zenith the azimuth is arbitrary.
 *     - A latitude of 1.5707964, or its negative, is by rounding just beyond the pole: midnight sun
 *       and polar night change places there.
 *     - Not a number for the latitude or the hour makes what depends on it not a number.
 * Source: Spherical astronomy; sine of the declination as 0.398 times the sine of the sun's
 *     ecliptic longitude, with the first-order equation of the centre.
 */
QUORVEL_API void CLSNGE(const float *latitude, const int32_t *day, const float *hour,
                        float *declination, float *altitude, float *azimuth, float *sunrise,
                        float *sunset);

/*
 * CLSNSR (surface_angles): Angle of incidence of the sun on a surface, and its angles in the
 *     vertical and the horizontal sense.
 * Given:
 *     altitude         float  rad  -1.5708 .. 1.5708  solar altitude
 *     azimuth          float  rad  0 .. 6.2832        solar azimuth
 *     surface_azimuth  float  rad  0 .. 6.2832        azimuth of the surface's outward normal
 *     tilt             float  rad  0 .. 3.1416        tilt from the horizontal
 * Returned:
 *     incidence   float  rad    angle of incidence, 0 to pi; above pi/2 the sun is behind the
 *                               surface
 *     vertical    float  rad    angle off the normal in the plane of normal and slope, positive up
 *                               the slope; the profile angle of a vertical surface
 *     horizontal  float  rad    angle off the normal in the plane of normal and level line,
 *                               positive clockwise seen from above
 * Notes:
 *     - With the sun behind the surface the two angles exceed pi/2 in size.
 *     - With the sun along the level line the vertical angle is pi/2, with the sun along the slope
 *       line the horizontal angle is -pi/2: exactly so only where the components vanish, anything
 *       by rounding otherwise.
 *     - The components are rounded, so angles below 0.0005 rad are not resolved.
 * Source: Vector algebra: the sun's direction in the frame of level line, slope line and outward
 *     normal.
 */
QUORVEL_API void CLSNSR(const float *altitude, const float *azimuth, const float *surface_azimuth,
                        const float *tilt, float *incidence, float *vertical, float *horizontal);

/*
 * CLSNNR (design_irradiance): Design irradiance by solar altitude: direct normal and diffuse
 *     horizontal.
 * Given:
 *     altitude  float    rad  0 .. 1.5708  solar altitude
 *     azimuth   float    rad  not used     solar azimuth
 *     height    float    m    0 .. 4000    height of the site above sea level
 *     sky_kind  int32_t       selector     kind of sky: 0 clear, 1 cloudy: the larger diffuse
 *                                          irradiance
 * Returned:
 *     direct_normal       float  W/m²    direct normal irradiance, the same for both skies
 *     diffuse_horizontal  float  W/m²    diffuse irradiance on a horizontal surface
 * Notes:
 *     - Both grow with the height by the factor of CLHIGH.
 *     - Up to 0.087 rad both are proportional to the altitude, also below 0, where they are
 *       negative. The direct irradiance falls by 2 W/m² where the polynomial takes over.
 *     - An altitude beyond 1.5707964 in size gives two zeros. A sky kind below 0 counts as 0, above
 *       1 as 1.
 * Source: Polynomials through the design irradiances of a clear and a cloudy sky that building
 *     services guides print.
 */
QUORVEL_API void CLSNNR(const float *altitude, const float *azimuth, const float *height,
                        const int32_t *sky_kind, float *direct_normal, float *diffuse_horizontal);

/*
 * CLHIGH (height_factor): Factor by which irradiance grows with the height of the site.
 * Given:
 *     height    float  m    0 .. 4000    height of the site above sea level
 *     altitude  float  rad  0 .. 1.5708  solar altitude
 * Result:
 *     float  1  factor
 * Notes:
 *     - 1 below 300 m, and for suns whose sine of altitude is below 0.08; the factor jumps from 1
 *       to 1.041 or more at 300 m.
 * Source: Linear fit to height corrections of design irradiance.
 */
QUORVEL_API float CLHIGH(const float *height, const float *altitude);

/*
 * CLSORD (surface_irradiance): Irradiance on the plane of a surface: direct from the sun, diffuse
 *     from the sky, reflected from the ground.
 * Given:
 *     altitude            float  rad   0 .. 1.5708  solar altitude
 *     azimuth             float  rad   0 .. 6.2832  solar azimuth
 *     surface_azimuth     float  rad   0 .. 6.2832  azimuth of the surface's outward normal
 *     tilt                float  rad   0 .. 3.1416  tilt from the horizontal
 *     direct_normal       float  W/m²  0 .. 1400    direct normal irradiance
 *     diffuse_horizontal  float  W/m²  0 .. 1000    diffuse irradiance on a horizontal surface
 *     ground_reflectance  float  1     0 .. 1       reflectance of the ground
 *     beam_factor         float  1     0 .. 2       factor on the direct normal irradiance
 *     diffuse_factor      float  1     0 .. 2       factor on the diffuse horizontal irradiance
 * Returned:
 *     direct   float  W/m²    direct irradiance on the surface, 0 with the sun behind it
 *     diffuse  float  W/m²    diffuse irradiance on the surface
 *     ground   float  W/m²    ground-reflected irradiance on the surface
 * Notes:
 *     - A vertical surface gets up to 20 % less diffuse irradiance the more it faces north,
 *       whatever the hemisphere.
 *     - Nothing is limited: a negative altitude or irradiance gives negative parts. An angle that
 *       is not a number gives a direct irradiance of 0.
 * Source: Cosine law; isotropic sky and ground by view factors (B. Y. H. Liu and R. C. Jordan,
 *     Solar Energy 4, 1960), with an empirical darkening to the north.
 */
QUORVEL_API void CLSORD(const float *altitude, const float *azimuth, const float *surface_azimuth,
                        const float *tilt, const float *direct_normal,
                        const float *diffuse_horizontal, const float *ground_reflectance,
                        const float *beam_factor, const float *diffuse_factor, float *direct,
                        float *diffuse, float *ground);

/*
 * CLSOR2 (surface_irradiance_and_incidence): Irradiance on the plane of a surface as CLSORD, and
 *     the angle of incidence.
 * Given:
 *     altitude            float  rad   0 .. 1.5708  solar altitude
 *     azimuth             float  rad   0 .. 6.2832  solar azimuth
 *     surface_azimuth     float  rad   0 .. 6.2832  azimuth of the surface's outward normal
 *     tilt                float  rad   0 .. 3.1416  tilt from the horizontal
 *     direct_normal       float  W/m²  0 .. 1400    direct normal irradiance
 *     diffuse_horizontal  float  W/m²  0 .. 1000    diffuse irradiance on a horizontal surface
 *     ground_reflectance  float  1     0 .. 1       reflectance of the ground
 *     beam_factor         float  1     0 .. 2       factor on the direct normal irradiance
 *     diffuse_factor      float  1     0 .. 2       factor on the diffuse horizontal irradiance
 * Returned:
 *     direct     float  W/m²    direct irradiance on the surface, 0 with the sun behind it
 *     diffuse    float  W/m²    diffuse irradiance on the surface
 *     ground     float  W/m²    ground-reflected irradiance on the surface
 *     incidence  float  rad     angle of incidence, 1.5707964 with the sun behind the surface
 * Notes:
 *     - The irradiances are those of CLSORD, bit for bit; see there.
 *     - CLSNSR gives the angle of incidence behind the surface too.
 * Source: As CLSORD.
 */
QUORVEL_API void CLSOR2(const float *altitude, const float *azimuth, const float *surface_azimuth,
                        const float *tilt, const float *direct_normal,
                        const float *diffuse_horizontal, const float *ground_reflectance,
                        const float *beam_factor, const float *diffuse_factor, float *direct,
                        float *diffuse, float *ground, float *incidence);

/*
 * CLYALLOP (almanac_position): Altitude, azimuth and declination of the sun by calendar date and
 *     clock.
 * Given:
 *     mode       int32_t       selector           what the hour is: 1 solar time; longitude and
 *                                                 zone are set to 0, 2 clock of the zone, at the
 *                                                 longitude, 3 solar time; the zone only dates the
 *                                                 declination
 *     year       int32_t       1976 .. 2099       year
 *     month      int32_t       1 .. 12            month
 *     day        int32_t       1 .. 31            day of the month
 *     hour       float    h    0 .. 24            clock hour
 *     latitude   float    rad  -1.5708 .. 1.5708  latitude, positive north
 *     longitude  float    rad  -3.1416 .. 3.1416  longitude, positive west; written only in mode 1
 *     zone       float    rad  -3.1416 .. 3.1416  zone angle, the longitude of the clock's
 *                                                 meridian, positive west; written only in mode 1
 * Returned:
 *     longitude    float  rad  -3.1416 .. 3.1416  longitude, positive west; written only in mode 1
 *     zone         float  rad  -3.1416 .. 3.1416  zone angle, the longitude of the clock's
 *                                                 meridian, positive west; written only in mode 1
 *     altitude     float  rad                     altitude, negative below the horizon; no
 *                                                 refraction
 *     azimuth      float  rad                     azimuth
 *     declination  float  rad                     declination
 * Notes:
 *     - Within 0.03 degrees, and of the azimuth 0.1 degrees where the sun is near due south or
 *       north, since a cosine of azimuth beyond 0.999999 in size counts as 1. Of this 0.02 degrees
 *       come from a misplaced degree factor in the equation of the centre; kept.
 *     - The hour angle is not brought into -180 to 180 degrees. Its sign decides between morning
 *       and afternoon, so within an hour of midnight the azimuth may be the mirror image.
 *     - A mode other than 1 and 2 counts as 3. Date and hour are not checked: a day beyond the
 *       month's end counts on into the next month. Before March 1976 three years of four are a day
 *       late; 2100 is given a leap day.
 * Source: Low-precision formulas of B. D. Yallop for the sun, as printed in T. Muneer, Solar
 *     Radiation and Daylight Models for the Energy Efficient Design of Buildings, 1997.
 */
QUORVEL_API void CLYALLOP(const int32_t *mode, const int32_t *year, const int32_t *month,
                          const int32_t *day, const float *hour, const float *latitude,
                          float *longitude, float *zone, float *altitude, float *azimuth,
                          float *declination);

/*
 * CLRISESET (almanac_sun_hours): Sunrise and sunset in solar time by calendar date.
 * Given:
 *     year      int32_t       1976 .. 2099       year
 *     month     int32_t       1 .. 12            month
 *     day       int32_t       1 .. 31            day of the month
 *     latitude  float    rad  -1.5708 .. 1.5708  latitude, positive north
 * Returned:
 *     sunrise  float  h    sunrise; 25 when the sun does not rise, 0 when it does not set
 *     sunset   float  h    sunset; 25 when the sun does not set, 0 when it does not rise
 * Notes:
 *     - The centre of the sun on a level horizon without refraction, with the declination of noon
 *       at Greenwich.
 *     - Dates as in CLYALLOP. A latitude of 1.5707964, or its negative, is by rounding just beyond
 *       the pole: midnight sun and polar night change places there.
 * Source: Declination as CLYALLOP; sunrise equation.
 */
QUORVEL_API void CLRISESET(const int32_t *year, const int32_t *month, const int32_t *day,
                           const float *latitude, float *sunrise, float *sunset);

/*
 * CLETAJ (eccentricity_factor): Irradiance outside the atmosphere on a day, by that at the mean
 *     distance of the sun.
 * Given:
 *     day  int32_t    1 .. 366  day of the year
 * Result:
 *     float  1  factor
 * Notes:
 *     - 0.967 to 1.033; greatest in the first days of January.
 * Source: Correction of the European Solar Radiation Atlas, 1 + 0.03344 cos(day angle - 2.8
 *     degrees).
 */
QUORVEL_API float CLETAJ(const int32_t *day);

/*
 * CLMODUL (clearness_index): Global horizontal irradiance by that outside the atmosphere.
 * Given:
 *     day                int32_t        1 .. 366     day of the year
 *     altitude           float    rad   0 .. 1.5708  solar altitude
 *     global_horizontal  float    W/m²  0 .. 1400    global horizontal irradiance
 * Result:
 *     float  1  clearness index
 * Notes:
 *     - An altitude of 0 divides by zero: infinite, or not a number for an irradiance of 0.
 * Source: B. Y. H. Liu and R. C. Jordan, Solar Energy 4 (1960), with a solar constant of 1367 W/m²
 *     and the eccentricity of CLETAJ.
 */
QUORVEL_API float CLMODUL(const int32_t *day, const float *altitude,
                          const float *global_horizontal);

/* ---- Building fabric ------------------------------------------------------------------------- */

/*
 * TPRSUR (surface_resistance): Thermal resistance of the inside or outside surface of an element,
 *     for an emissivity of 0.9.
 * Given:
 *     type      int32_t       selector     surface: 1 outside, 2 inside
 *     theta     float    rad  0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing
 *                                          down
 *     exposure  int32_t       selector     exposure of an outside surface to the wind: 1 sheltered,
 *                                          2 normal, 3 severe
 * Result:
 *     float  m²K/W  surface resistance
 * Notes:
 *     - Another surface type gives 0. Another exposure counts as the nearest one.
 *     - An inside vertical surface has 1 / 8.23 = 0.12 m²K/W.
 *     - The tilt is not tested.
 * Source: Radiation and convection side by side. The customary values of inside surfaces (0.10 up,
 *     0.12 horizontal, 0.14 down) and of outside ones in normal and severe exposure (walls 0.06 and
 *     0.03, roofs 0.04 and 0.02) are met to two decimals; the origin of the convective coefficients
 *     is not recorded.
 */
QUORVEL_API float TPRSUR(const int32_t *type, const float *theta, const int32_t *exposure);

/*
 * TPRSU2 (surface_resistance_at_emissivity): Thermal resistance of the inside or outside surface of
 *     an element of any emissivity.
 * Given:
 *     type        int32_t       selector     surface: 1 outside, 2 inside
 *     theta       float    rad  0 .. 3.1416  tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                            flowing down
 *     exposure    int32_t       selector     exposure of an outside surface to the wind: 1
 *                                            sheltered, 2 normal, 3 severe
 *     emissivity  float    1    0 .. 1       long-wave emissivity of the surface
 * Result:
 *     float  m²K/W  surface resistance
 * Notes:
 *     - Another surface type gives 0. Another exposure counts as the nearest one.
 *     - At an emissivity of 0.9 it is TPRSUR to rounding.
 *     - Tilt and emissivity are not tested.
 * Source: As TPRSUR, with black-body coefficients of 5.1 W/m²K outside and 5.7 W/m²K inside.
 */
QUORVEL_API float TPRSU2(const int32_t *type, const float *theta, const int32_t *exposure,
                         const float *emissivity);

/*
 * TPRCAV (vertical_cavity_resistance): Thermal resistance of a sealed vertical air cavity between
 *     ordinary building surfaces.
 * Given:
 *     d  float  m  0 .. 0.5  width
 * Result:
 *     float  m²K/W  cavity resistance, not below 0.1
 * Notes:
 *     - A width below 0.001 gives 0.1, where TPRCA2 and TPRCAX give 0: meant so. Not a number stays
 *       so.
 *     - The emissivities of the faces are 0.85 and 0.86.
 * Source: As TPRCA2.
 */
QUORVEL_API float TPRCAV(const float *d);

/*
 * TPRCA2 (air_cavity_resistance): Thermal resistance of a sealed air cavity by convection and long-
 *     wave radiation.
 * Given:
 *     theta  float  rad  0 .. 3.1416   tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down
 *     d      float  m    0.001 .. 0.5  width
 *     e1     float  1    0.01 .. 1     long-wave emissivity of one face
 *     e2     float  1    0.01 .. 1     long-wave emissivity of the other face
 * Result:
 *     float  m²K/W  cavity resistance
 * Notes:
 *     - A tilt outside 0..3.1416 and a width below 0.001 give 0.
 *     - C and n of the Nusselt number C Ra^n, which is at least 1, are interpolated over the tilt
 *       between 0, 0.785 and 1.57, and carried on as far as 1.59. From there the air rests and only
 *       conducts: the resistance jumps.
 *     - Two faces of emissivity 0 leave the exchange undefined (0/0).
 * Source: EN 673, Glass in building - Determination of thermal transmittance: C and n for vertical,
 *     inclined and horizontal cavities, and air at 10 °C with 15 K between the faces.
 */
QUORVEL_API float TPRCA2(const float *theta, const float *d, const float *e1, const float *e2);

/*
 * TPRCAX (gas_cavity_resistance): Thermal resistance of a sealed cavity filled with any gas.
 * Given:
 *     theta          float  rad    0 .. 3.1416     tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                                  flowing down
 *     d              float  m      0.001 .. 0.5    width
 *     e1             float  1      0.01 .. 1       long-wave emissivity of one face
 *     e2             float  1      0.01 .. 1       long-wave emissivity of the other face
 *     density        float  kg/m³  0.1 .. 8        density of the gas
 *     conductivity   float  W/mK   0.004 .. 0.2    thermal conductivity of the gas
 *     specific_heat  float  J/kgK  100 .. 6000     specific heat of the gas at constant pressure
 *     viscosity      float  Pa s   5e-06 .. 4e-05  dynamic viscosity of the gas
 * Result:
 *     float  m²K/W  cavity resistance
 * Notes:
 *     - Guards and correlation as in TPRCA2.
 *     - The Rayleigh number has a factor of 0.52 m/s² for gravity times expansion times temperature
 *       difference, whatever the gas and its temperature.
 *     - A negative Rayleigh number has no power: not a number.
 * Source: As TPRCA2.
 */
QUORVEL_API float TPRCAX(const float *theta, const float *d, const float *e1, const float *e2,
                         const float *density, const float *conductivity,
                         const float *specific_heat, const float *viscosity);

/*
 * TPCOLW (pack_two_fractions): Packs two fractions of two decimals into one real, or unpacks them.
 * Given:
 *     mode    int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed  float    1  0 .. 9999.99  packed number; written in mode 1 only
 *     p1      float    1  0 .. 0.99     fraction behind the point; not written in mode 1
 *     p2      float    1  0 .. 0.99     fraction held as units and tens; not written in mode 1
 * Returned:
 *     packed  float  1  0 .. 9999.99  packed number; written in mode 1 only
 *     p1      float  1  0 .. 0.99     fraction behind the point; not written in mode 1
 *     p2      float  1  0 .. 0.99     fraction held as units and tens; not written in mode 1
 * Notes:
 *     - As TPCOLT with a third fraction of 0, which is not returned: what stands above 100 is
 *       ignored.
 * Source: As TPCOLT.
 */
QUORVEL_API void TPCOLW(const int32_t *mode, float *packed, float *p1, float *p2);

/*
 * TPCOLT (pack_three_fractions): Packs three fractions of two decimals into one real, or unpacks
 *     them.
 * Given:
 *     mode    int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed  float    1  0 .. 9999.99  packed number; written in mode 1 only
 *     p1      float    1  0 .. 0.99     fraction behind the point; not written in mode 1
 *     p2      float    1  0 .. 0.99     fraction held as units and tens; not written in mode 1
 *     p3      float    1  0 .. 0.99     fraction held as hundreds and thousands; not written in
 *                                       mode 1
 * Returned:
 *     packed  float  1  0 .. 9999.99  packed number; written in mode 1 only
 *     p1      float  1  0 .. 0.99     fraction behind the point; not written in mode 1
 *     p2      float  1  0 .. 0.99     fraction held as units and tens; not written in mode 1
 *     p3      float  1  0 .. 0.99     fraction held as hundreds and thousands; not written in mode
 *                                     1
 * Notes:
 *     - 0.25, 0.40, 0.07 are packed as 740.25.
 *     - Fractions that add up to more than 1e10, and a packed number above 1e10, are undefined and
 *       give 1e20.
 *     - p2 and p3 are cut to two decimals, with a tenth of a hundredth to spare; p1 is added as it
 *       stands and cut when unpacked.
 *     - All triples from 0.00 to 0.99 come back, as hundredths times the float 0.01: for 29 of the
 *       hundred fractions, 0.40 among them, that is the float next to the nearest.
 *     - A p2 of 1.00 is carried into p3, a p1 of 1.00 into p2.
 * Source: Format of the packed property numbers of element records (BELDAT).
 */
QUORVEL_API void TPCOLT(const int32_t *mode, float *packed, float *p1, float *p2, float *p3);

/*
 * TPCOLW2 (pack_three_fractions_third_first): TPCOLT with its arguments in another order.
 * Given:
 *     mode    int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed  float    1  0 .. 9999.99  packed number; written in mode 1 only
 *     p3      float    1  0 .. 0.99     fraction held as hundreds and thousands; not written in
 *                                       mode 1
 *     p1      float    1  0 .. 0.99     fraction behind the point; not written in mode 1
 *     p2      float    1  0 .. 0.99     fraction held as units and tens; not written in mode 1
 * Returned:
 *     packed  float  1  0 .. 9999.99  packed number; written in mode 1 only
 *     p3      float  1  0 .. 0.99     fraction held as hundreds and thousands; not written in mode
 *                                     1
 *     p1      float  1  0 .. 0.99     fraction behind the point; not written in mode 1
 *     p2      float  1  0 .. 0.99     fraction held as units and tens; not written in mode 1
 * Source: As TPCOLT.
 */
QUORVEL_API void TPCOLW2(const int32_t *mode, float *packed, float *p3, float *p1, float *p2);

/*
 * TPCOSW (pack_pane): Packs the solar absorptance of a pane and the reflectances of its faces into
 *     one real, as absorptance and transmittances, or unpacks them.
 * Given:
 *     mode    int32_t     selector      direction: 1 pack, 2 unpack, as any other value
 *     packed  float    1  0 .. 9999.99  packed number; written in mode 1 only
 *     a       float    1  0.01 .. 0.5   absorptance; not written in mode 1
 *     r1      float    1  0 .. 0.49     reflectance of the first face; not written in mode 1
 *     r2      float    1  0 .. 0.49     reflectance of the second face; not written in mode 1
 * Returned:
 *     packed  float  1  0 .. 9999.99  packed number; written in mode 1 only
 *     a       float  1  0.01 .. 0.5   absorptance; not written in mode 1
 *     r1      float  1  0 .. 0.49     reflectance of the first face; not written in mode 1
 *     r2      float  1  0 .. 0.49     reflectance of the second face; not written in mode 1
 * Notes:
 *     - Packed as TPCOLT packs a, 1 - a - r1, 1 - a - r2. Undefined values as there.
 *     - A face that neither absorbs nor reflects, a = r1 = 0, transmits 1.00, which is carried into
 *       the next position.
 *     - a + r1 or a + r2 above 1 does not come back.
 * Source: As TPCOLT.
 */
QUORVEL_API void TPCOSW(const int32_t *mode, float *packed, float *a, float *r1, float *r2);

/*
 * TPWNDO (window_parameters): U-value, admittance, decrement factor and surface factor of a glazing
 *     of one to three panes.
 * Given:
 *     n           int32_t       1 .. 3        number of panes, pane 1 nearest the room
 *     kind1       int32_t       selector      kind of pane 1: 1 closes the cavities on both sides,
 *                                             2 closes none
 *     e1          float    1    0.01 .. 1     long-wave emissivity of pane 1
 *     kind2       int32_t       selector      kind of pane 2: 1 closes the cavities on both sides,
 *                                             2 closes none
 *     e2          float    1    0.01 .. 1     long-wave emissivity of pane 2
 *     kind3       int32_t       selector      kind of pane 3: 1 closes the cavities on both sides,
 *                                             2 closes none
 *     e3          float    1    0.01 .. 1     long-wave emissivity of pane 3
 *     d1          float    m    0.001 .. 0.5  width of the cavity between panes 1 and 2
 *     d2          float    m    0.001 .. 0.5  width of the cavity between panes 2 and 3
 *     outer_type  int32_t       selector      surface type of the outer face, normally 1: 1
 *                                             outside, 2 inside
 *     exposure    int32_t       selector      exposure of the outer face to the wind: 1 sheltered,
 *                                             2 normal, 3 severe
 *     theta       float    rad  0 .. 3.1416   tilt: 0 heat flowing up, pi/2 vertical, pi heat
 *                                             flowing down
 *     unused      float    1    not used      accepted for the sake of existing callers
 * Returned:
 *     admittance          float  W/m²K    admittance, the U-value
 *     admittance_lead     float  h        time lead of the admittance, 0
 *     decrement           float  1        decrement factor, 1
 *     decrement_lag       float  h        time lag of the decrement factor, 0
 *     surface_factor      float  1        surface factor, 1 - Rsi U
 *     surface_factor_lag  float  h        time lag of the surface factor, 0
 *     u                   float  W/m²K    U-value
 * Notes:
 *     - The resistance of the glass is neglected and nothing is stored in it.
 *     - Of three panes one may be open: the middle one leaves a single cavity of width d1 + d2.
 *       With two open panes, and with one open pane of two, there is no cavity.
 *     - The kinds of the n panes are told by their sum: 0, 1, 2 count as three closed panes.
 *     - Another number of panes counts as one pane, with e3 outside.
 *     - Cavities as TPRCA2: one that it rejects has no resistance.
 * Source: Surface resistances of TPRSU2 and cavities of TPRCA2 in series.
 */
QUORVEL_API void TPWNDO(const int32_t *n, const int32_t *kind1, const float *e1,
                        const int32_t *kind2, const float *e2, const int32_t *kind3,
                        const float *e3, const float *d1, const float *d2,
                        const int32_t *outer_type, const int32_t *exposure, const float *theta,
                        const float *unused, float *admittance, float *admittance_lead,
                        float *decrement, float *decrement_lag, float *surface_factor,
                        float *surface_factor_lag, float *u);

/*
 * BELDAT (element_property): One property of one record of a construction, a list of elements from
 *     face to face.
 * Given:
 *     records  float    by field  0 .. 999  ten fields of each record, the first its type code [10,
 *                                           n]
 *     n        int32_t            1 .. 20   number of records
 *     i        int32_t            1 .. 20   record asked about
 *     item     int32_t            1 .. 72   property asked for
 * Result:
 *     float  by item  the property, 1e20 if it does not exist
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
 *       -2e20, not 1e20: meant so.
 * Source: Layout of the element records.
 */
QUORVEL_API float BELDAT(const float *records, const int32_t *n, const int32_t *i,
                         const int32_t *item);

/*
 * TPUVAL (u_value): U-value of a construction of plane layers between two surface resistances.
 * Given:
 *     thickness     float    m      -0.1 .. 0.5  thickness of each layer; below 0: a layer of given
 *                                                resistance, 0: no layer [n]
 *     conductivity  float    W/mK   0.02 .. 3    conductivity of each layer; its resistance in
 *                                                m²K/W where the thickness is below 0 [n]
 *     r1            float    m²K/W  0 .. 0.3     resistance of one surface
 *     r2            float    m²K/W  0 .. 0.3     resistance of the other
 *     n             int32_t         0 .. 20      number of layers
 * Returned:
 *     u  float  W/m²K    U-value
 * Notes:
 *     - More than 20 layers write nothing. A count below 1 leaves the two surfaces alone; no array
 *       is read.
 *     - How far below 0 a thickness is makes no difference here; it does in TPDAMP and TPGRAD.
 *     - A thickness that is no number gives no number.
 * Source: Resistances in series; ISO 6946.
 */
QUORVEL_API void TPUVAL(const float *thickness, const float *conductivity, const float *r1,
                        const float *r2, const int32_t *n, float *u);

/*
 * TPUMOD (u_value_at_tilt_and_exposure): U-value of a construction at another tilt and exposure,
 *     from its U-value as a vertical wall in normal exposure.
 * Given:
 *     u         float    W/m²K  0 .. 5       U-value with the surface resistances of a vertical
 *                                            wall at exposure 2
 *     tilt      float    rad    0 .. 3.1416  tilt: 0 heat flowing upwards, pi/2 vertical, pi
 *                                            downwards
 *     exposure  int32_t         selector     wind exposure of the outside surface: 1 sheltered, 2
 *                                            normal, 3 severe
 * Result:
 *     float  W/m²K  U-value at that tilt and exposure
 * Notes:
 *     - A U-value that is not above 0, or no number, comes back as it is.
 *     - Above 5.49 W/m²K, what the two surfaces of the wall let through by themselves, the layers
 *       would have a negative resistance; the result is formed with it all the same.
 *     - An exposure below 1 counts as 1, above 3 as 3. The tilt is not limited.
 * Source: Surface resistances of TPRSUR, exchanged.
 */
QUORVEL_API float TPUMOD(const float *u, const float *tilt, const int32_t *exposure);

/*
 * TPHCON (natural_convection_coefficient): Coefficient of natural convection at a surface of a
 *     room.
 * Given:
 *     dt      float    K  -50 .. 50  difference between surface and air temperature; its sign makes
 *                                    no difference
 *     length  float    m  0.1 .. 10  characteristic length: height of a vertical surface, four
 *                                    times the area over the perimeter of a horizontal one
 *     kind    int32_t     selector   direction of the heat flow: 1 heat flow upwards, 2 vertical
 *                                    surface, 3 heat flow downwards
 * Result:
 *     float  W/m²K  convective coefficient
 * Notes:
 *     - Any other kind gives 0.
 *     - The coefficients 1.23 and 1.50 of kind 2 have the laminar term larger than the turbulent
 *       one, in kind 1 it is the other way round; both are as published.
 *     - A length of 0 gives an infinite coefficient, one below 0 no number for kinds 1 and 2.
 * Source: Alamdari and Hammond, Improved data correlations for buoyancy-driven convection in rooms,
 *     Building Services Engineering Research and Technology 4, 1983.
 */
QUORVEL_API float TPHCON(const float *dt, const float *length, const int32_t *kind);

/*
 * ITPCON (condenses_within_layer): Whether vapour condenses inside a layer, from the temperatures
 *     and vapour pressures of its two faces.
 * Given:
 *     t1  float  °C  -50 .. 100  temperature of the warm face
 *     t2  float  °C  -50 .. 100  temperature of the cold face
 *     p1  float  Pa  0 .. 5000   vapour pressure at the warm face
 *     p2  float  Pa  0 .. 5000   vapour pressure at the cold face
 * Result:
 *     int32_t  1 if vapour condenses, 0 if not
 * Notes:
 *     - The layer is looked at in steps of 0.5 K from the warm face: the warm face itself is not,
 *       the cold face only if a step falls on it. Faces less than 0.5 K apart give 0.
 *     - A cold face that is not below the warm one, or a temperature that is no number, gives 0.
 *     - Where the temperature is so large that a step of 0.5 K is lost in its rounding (8.4 million
 *       °C), the search ends there with 0. Steps across millions of degrees take up to a tenth of a
 *       second.
 * Source: Straight lines of temperature and vapour pressure through a homogeneous layer, against
 *     the saturation pressure of PSSVP.
 */
QUORVEL_API int32_t ITPCON(const float *t1, const float *t2, const float *p1, const float *p2);

/*
 * TPADMT (cyclic_response): Admittance, decrement factor and surface factor of a construction with
 *     their time shifts, and its U-value.
 * Given:
 *     thickness      float    m      -0.05 .. 0.3  thickness of each layer, from the room outwards;
 *                                                  below 0: a layer of given resistance, 0: no
 *                                                  layer [n]
 *     conductivity   float    W/mK   0.03 .. 3     conductivity of each layer; its resistance in
 *                                                  m²K/W where the thickness is below 0 [n]
 *     density        float    kg/m³  10 .. 2500    density of each layer [n]
 *     specific_heat  float    J/kgK  500 .. 2500   specific heat of each layer [n]
 *     rsi            float    m²K/W  0.05 .. 0.2   resistance of the surface at the room
 *     rso            float    m²K/W  0.02 .. 0.2   resistance of the far surface
 *     n              int32_t         0 .. 20       number of layers
 *     harmonic       int32_t         1 .. 6        cycles in 24 hours
 *     kind           int32_t         selector      kind of element: 1 element between two
 *                                                  environments, 2 internal partition, the same
 *                                                  swing on both sides
 * Returned:
 *     admittance        float  W/m²K    admittance Y
 *     admittance_lead   float  h        time lead of the admittance, 0 to 24 / harmonic
 *     decrement_factor  float  1        decrement factor f, 0 for a partition
 *     decrement_lag     float  h        time lag of the decrement factor, 0 to 24 / harmonic, 0 for
 *                                       a partition
 *     surface_factor    float  1        surface factor F
 *     surface_lag       float  h        time lag of the surface factor, 0 to 24 / harmonic
 *     u                 float  W/m²K    U-value, as TPUVAL gives it
 * Notes:
 *     - More than 20 layers write nothing. A count below 1 leaves the two surfaces alone; no array
 *       is read.
 *     - Any kind but 2 counts as 1. A harmonic of 0 is a steady temperature: the admittance is U,
 *       the time shifts are not numbers. One below 0 gives no numbers.
 *     - A layer without heat capacity acts as its resistance. One with very little is the less
 *       accurate the smaller x is, its thickness over the depth at which the swing has sunk to 1/e
 *       (0.1 to 0.2 m in masonry): the relative error of its resistance is about 1e-7 / x, since
 *       sinh is formed as a difference in single precision.
 *     - Shifts near 0 can come out near a whole cycle: rounding decides on which side of 0 an angle
 *       falls. One that is exactly 0 may be -0.
 *     - Where a construction damps the swing to less than about 1e-19 the decrement factor loses
 *       accuracy and becomes 0; where the x of all layers add up to about 88 the elements of the
 *       matrix overflow and nothing is a number.
 *     - Density and specific heat enter as their product only.
 * Source: Pipes, Matrix analysis of heat transfer problems, Journal of the Franklin Institute 263,
 *     1957; Milbank and Harrington-Lynn, Thermal response and the admittance procedure, Building
 *     Research Establishment CP 61/74, 1974; ISO 13786.
 */
QUORVEL_API void TPADMT(const float *thickness, const float *conductivity, const float *density,
                        const float *specific_heat, const float *rsi, const float *rso,
                        const int32_t *n, const int32_t *harmonic, const int32_t *kind,
                        float *admittance, float *admittance_lead, float *decrement_factor,
                        float *decrement_lag, float *surface_factor, float *surface_lag, float *u);

/*
 * TPDAMP (total_vapour_resistance): Vapour resistance of a construction.
 * Given:
 *     thickness    float    m            -0.1 .. 0.5  thickness of each layer; below 0: a layer of
 *                                                     given thermal resistance, 0: a membrane [n]
 *     resistivity  float    GN s/(kg m)  0 .. 1000    vapour resistivity of each layer; of a
 *                                                     membrane its vapour resistance in GN s/kg [n]
 *     n            int32_t               0 .. 20      number of layers
 * Returned:
 *     g_total  float  N s/kg    total vapour resistance
 * Notes:
 *     - A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness,
 *       whatever its resistivity: an air gap 0.05 m wide is entered as -0.05, not as -1.
 *     - More than 20 layers write nothing; a count below 1 gives 0.
 *     - Results are in N s/kg, resistivities in GN s/(kg m).
 * Source: Vapour resistances in series; 5 GN s/(kg m) is the customary resistivity of still air.
 */
QUORVEL_API void TPDAMP(const float *thickness, const float *resistivity, const int32_t *n,
                        float *g_total);

/*
 * TPGRAD (condensation_profile): Steady temperature, vapour pressure and saturation pressure at the
 *     interfaces of a construction; the vapour pressure is held down to saturation where it would
 *     exceed it.
 * Given:
 *     thickness     float    m            -0.1 .. 0.5  thickness of each layer from the inside;
 *                                                      below 0: a layer of given thermal
 *                                                      resistance, 0: a membrane [n]
 *     conductivity  float    W/mK         0.02 .. 3    conductivity of each layer; its resistance
 *                                                      in m²K/W where the thickness is below 0 [n]
 *     resistivity   float    GN s/(kg m)  1 .. 1000    vapour resistivity of each layer; of a
 *                                                      membrane its vapour resistance in GN s/kg
 *                                                      [n]
 *     r_inside      float    m²K/W        0 .. 0.3     resistance of the inside surface
 *     r_outside     float    m²K/W        0 .. 0.3     resistance of the outside surface
 *     n             int32_t               1 .. 20      number of layers
 *     t_inside      float    °C           -50 .. 60    inside air temperature
 *     t_outside     float    °C           -50 .. 60    outside air temperature
 *     rh_inside     float    %            0 .. 100     inside relative humidity
 *     rh_outside    float    %            0 .. 100     outside relative humidity
 * Returned:
 *     t   float  °C    temperature at the first n + 1 interfaces, from the inside surface to the
 *                      outside one [21]
 *     p   float  Pa    vapour pressure at them [21]
 *     ps  float  Pa    saturation pressure at them [21]
 * Notes:
 *     - Only n + 1 elements of each profile are written. More than 20 layers, or fewer than 1,
 *       write nothing.
 *     - Vapour condenses at an interface where p equals ps.
 *     - Relative humidities are limited to 0 to 100 %, the vapour pressures at the two surfaces to
 *       saturation there. Between two surfaces without any vapour resistance the vapour pressure is
 *       no number.
 *     - A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness,
 *       as in TPDAMP.
 *     - Saturation inside a layer, between its interfaces, is not looked for: see ITPCON.
 * Source: Glaser's method in the stepwise form of ISO 13788: the vapour line is straight over the
 *     vapour resistance between the interfaces at which it is held to saturation.
 */
QUORVEL_API void TPGRAD(const float *thickness, const float *conductivity,
                        const float *resistivity, const float *r_inside, const float *r_outside,
                        const int32_t *n, const float *t_inside, const float *t_outside,
                        const float *rh_inside, const float *rh_outside, float *t, float *p,
                        float *ps);

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

/*
 * PSGS (moisture_content_from_psychrometer): Moisture content of air from the reading of a wet-and-
 *     dry-bulb psychrometer.
 * Given:
 *     t     float    °C  -50 .. 100       dry-bulb temperature
 *     twb   float    °C  -50 .. 100       wet-bulb temperature
 *     p     float    Pa  50000 .. 110000  atmospheric pressure
 *     type  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                         (naturally ventilated)
 * Result:
 *     float  kg/kg  moisture content
 * Notes:
 *     - A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb
 *       is taken when the wet bulb is below 0 °C.
 *     - The enhancement factor takes its ice coefficients at 0 °C and below, where the saturation
 *       pressure counts exactly 0 °C as water; the difference is kept.
 *     - Not limited: a reading drier than any air gives a negative content, a vapour pressure above
 *       p too.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Source: Vapour pressure of PSVAP; g = 0.62197 f pv / (p - f pv), where the enhancement factor is
 *     a quadratic in absolute temperature whose coefficients are linear in pressure.
 */
QUORVEL_API float PSGS(const float *t, const float *twb, const float *p, const int32_t *type);

/*
 * PSPCST (percentage_saturation): Percentage saturation: moisture content by that of saturated air
 *     at the same temperature and pressure.
 * Given:
 *     t  float  °C     -50 .. 80        dry-bulb temperature
 *     g  float  kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     p  float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     float  %  percentage saturation
 * Notes:
 *     - Not limited: supersaturated air gives more than 100.
 *     - Percentage saturation is not relative humidity, the ratio of vapour pressures, and is the
 *       lower of the two.
 * Source: Definition, with the saturation moisture content of PSGS.
 */
QUORVEL_API float PSPCST(const float *t, const float *g, const float *p);

/*
 * PSHWET (specific_enthalpy_from_psychrometer): Specific enthalpy of moist air from the reading of
 *     a wet-and-dry-bulb psychrometer.
 * Given:
 *     t     float    °C  -50 .. 60        dry-bulb temperature
 *     twb   float    °C  -50 .. 60        wet-bulb temperature
 *     p     float    Pa  50000 .. 110000  atmospheric pressure
 *     type  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                         (naturally ventilated)
 * Result:
 *     float  kJ/kg  specific enthalpy, by mass of dry air
 * Notes:
 *     - A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb
 *       is taken when the wet bulb is below 0 °C.
 *     - Per kilogram of dry air, from dry air and liquid water at 0 °C.
 *     - Saturated air at 101325 Pa is within 0.07 kJ/kg of the ASHRAE tables from -20 to 30 °C,
 *       within 0.2 % up to 50 °C.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Source: Enthalpies of PSHDRY and PSHVAP, moisture content of PSGS.
 */
QUORVEL_API float PSHWET(const float *t, const float *twb, const float *p, const int32_t *type);

/*
 * PSSPVL (specific_volume): Specific volume of moist air.
 * Given:
 *     t  float  °C     -50 .. 60        dry-bulb temperature
 *     g  float  kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     p  float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     float  m³/kg  specific volume, by mass of dry air
 * Notes:
 *     - A moisture content above saturation counts as saturation.
 *     - Per kilogram of dry air: the reciprocal is not the density of the moist air.
 * Source: Virial equation of the mixture, written for 101325 Pa (1.0045 is the enhancement factor
 *     there); its author is not known.
 */
QUORVEL_API float PSSPVL(const float *t, const float *g, const float *p);

/*
 * PSTWB (wet_bulb_from_percentage_saturation): Wet-bulb temperature that a psychrometer reads at a
 *     dry-bulb temperature and percentage saturation.
 * Given:
 *     t     float    °C  -50 .. 80        dry-bulb temperature
 *     mu    float    %   0 .. 100         percentage saturation
 *     p     float    Pa  50000 .. 110000  atmospheric pressure
 *     type  int32_t      selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                         (naturally ventilated)
 * Result:
 *     float  °C  wet-bulb temperature
 * Notes:
 *     - A stepping search with steps down to 0.01 K: the result is above the exact wet bulb by less
 *       than that and moves in small jumps with its arguments.
 *     - The percentage is not limited: 100 and more give t.
 *     - About 0 °C, where the coefficient changes to that of an iced bulb, two wet bulbs can belong
 *       to one percentage; which of them is found depends on the steps.
 *     - Where the search would never end (below absolute zero, say), the value it has reached is
 *       returned.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Source: Psychrometer equation of PSVAP with the moisture content of PSGS, solved by a step-and-
 *     refine search.
 */
QUORVEL_API float PSTWB(const float *t, const float *mu, const float *p, const int32_t *type);

/*
 * PSWBLB (wet_bulb_from_moisture_content): Wet-bulb temperature that a psychrometer reads at a dry-
 *     bulb temperature and moisture content.
 * Given:
 *     t     float    °C     -50 .. 80        dry-bulb temperature
 *     g     float    kg/kg  0 .. 0.1         moisture content, water vapour per dry air
 *     p     float    Pa     50000 .. 110000  atmospheric pressure
 *     type  int32_t         selector         psychrometer type: 1 sling (aspirated), 2 screen
 *                                            (naturally ventilated)
 * Result:
 *     float  °C  wet-bulb temperature
 * Notes:
 *     - A stepping search with steps of 5 K down to 0.005 K and a last one of 0.0005 K: the result
 *       is within 0.005 K of the exact wet bulb.
 *     - At saturation or above the result is t, whatever t is. Otherwise a dry bulb above 10000 °C
 *       gives -100, one that is not a number -200.
 *     - Where the search would never end (a moisture content that is not a number, or far below 0),
 *       the value it has reached is returned.
 *     - A psychrometer type below 1 counts as 1, above 2 as 2.
 * Source: Psychrometer equation of PSVAP with the moisture content of PSGS, solved by a step-and-
 *     refine search.
 */
QUORVEL_API float PSWBLB(const float *t, const float *g, const float *p, const int32_t *type);

/*
 * PSTSAT (saturation_temperature_from_enthalpy): Temperature at which saturated air has a specific
 *     enthalpy.
 * Given:
 *     h  float  kJ/kg  -10 .. 460       specific enthalpy, by mass of dry air
 *     p  float  Pa     50000 .. 110000  atmospheric pressure
 * Result:
 *     float  °C  saturation temperature
 * Notes:
 *     - An enthalpy below -10 gives -13.4, above 460 it gives 60, whatever the pressure; at 101325
 *       Pa the search itself gives -12.98 and 59.98 there.
 *     - A stepping search with steps down to 0.01 K: the result is below the exact temperature by
 *       less than that, or above it by 0.001 K at most.
 *     - Where the search would never end (a pressure so low that the water boils, an argument that
 *       is not a number), the value it has reached is returned: some ten thousand degrees.
 * Source: Enthalpy of PSHWET, solved by a step-and-refine search.
 */
QUORVEL_API float PSTSAT(const float *h, const float *p);

/*
 * PSHDRY (dry_air_enthalpy): Specific enthalpy of dry air.
 * Given:
 *     t  float  °C  -50 .. 100  temperature
 * Result:
 *     float  kJ/kg  specific enthalpy, 0 at 0 °C
 * Notes:
 *     - Within 0.02 kJ/kg of the ASHRAE tables from -20 to 50 °C, but 0.3 above them at -50 °C.
 *     - At 0 °C it is 0.0007 kJ/kg: the constant of the fit is kept.
 * Source: Polynomial fit to tables of dry air; its author is not known.
 */
QUORVEL_API float PSHDRY(const float *t);

/*
 * PSHVAP (water_vapour_enthalpy): Specific enthalpy of water vapour.
 * Given:
 *     t  float  °C  -50 .. 100  temperature
 * Result:
 *     float  kJ/kg  specific enthalpy, from liquid water at 0 °C
 * Notes:
 *     - Within 0.5 kJ/kg of saturated steam from 0 to 60 °C (IAPWS 1995), within 7 at 100 °C.
 * Source: Polynomial fit to tables of water vapour; its author is not known.
 */
QUORVEL_API float PSHVAP(const float *t);

/*
 * PSCPDR (dry_air_specific_heat): Specific heat of dry air at constant pressure.
 * Given:
 *     t  float  °C  -50 .. 100  temperature
 * Result:
 *     float  kJ/kgK  specific heat
 * Notes:
 *     - The pieces meet, but for steps of 0.00004 kJ/kgK up at 40 °C and down at 50 °C, which are
 *       kept.
 * Source: Straight lines between tabulated values for each 10 K; the author of the table is not
 *     known.
 */
QUORVEL_API float PSCPDR(const float *t);

/*
 * PSCPVA (water_vapour_specific_heat): Specific heat of water vapour at constant pressure.
 * Given:
 *     t  float  °C  -50 .. 100  temperature
 * Result:
 *     float  kJ/kgK  specific heat
 * Notes:
 *     - Constant from 20 °C up.
 * Source: Rounded engineering values; their author is not known.
 */
QUORVEL_API float PSCPVA(const float *t);

/*
 * PSHFG (latent_heat): Latent heat of evaporation of water, of sublimation of ice below 0 °C.
 * Given:
 *     t  float  °C  -50 .. 100  temperature
 * Result:
 *     float  kJ/kg  latent heat
 * Notes:
 *     - At exactly 60 °C the result is 0: the table's row for it is empty, which is kept. Just
 *       below and above, it is 2357.9.
 *     - Within 0.5 kJ/kg of the international values (IAPWS 1995) from 0 to 60 °C.
 * Source: Straight lines between tabulated values for each 10 K; the author of the table is not
 *     known.
 */
QUORVEL_API float PSHFG(const float *t);

/*
 * PSTEFF (weighted_temperature): Weighted temperature of two air temperatures.
 * Given:
 *     t1  float  °C  -20 .. 60  temperature with the greater weight
 *     t2  float  °C  -20 .. 60  temperature with the lesser, negative weight
 * Result:
 *     float  °C  weighted temperature
 * Notes:
 *     - Two equal temperatures give that temperature. Infinite where t2 is above t1 by 34.61 K.
 * Source: (41.94 t1 - 7.33 t2) / (34.61 + t1 - t2); its derivation is not known, so the second
 *     temperature has no other meaning than the formula's.
 */
QUORVEL_API float PSTEFF(const float *t1, const float *t2);

/*
 * TPPOOL (pool_evaporation): Evaporation from an indoor pool and its heat flows, for room air given
 *     by its moisture content.
 * Given:
 *     a   float    m²     1 .. 2000        area of the water surface
 *     a2  float    m²     0 .. 2000        further wetted area, which adds to the latent load only
 *     tw  float    °C     0 .. 45          water temperature
 *     ta  float    °C     0 .. 45          dry-bulb temperature of the room air
 *     g   float    kg/kg  0 .. 0.03        moisture content of the room air
 *     t2  float    °C     0 .. 45          second reference temperature
 *     nb  int32_t         0 .. 500         number of bathers, below 1 unoccupied
 *     h2  float    W/m²K  0 .. 20          coefficient of the exchange with t2
 *     p   float    Pa     50000 .. 110000  atmospheric pressure
 * Returned:
 *     e       float  kg/(m²s)    evaporation rate
 *     q_lat   float  W           latent load, 2.45 MJ per kg evaporated
 *     q_conv  float  W           convection from the water to the room air at 10 W/m²K
 *     q2      float  W           exchange of the water with t2
 * Notes:
 *     - The vapour pressure is that of a sling psychrometer at the wet bulb of PSWBLB, and good to
 *       the step of that search.
 *     - Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
 *     - With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
 * Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079
 *     dp in kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.
 */
QUORVEL_API void TPPOOL(const float *a, const float *a2, const float *tw, const float *ta,
                        const float *g, const float *t2, const int32_t *nb, const float *h2,
                        const float *p, float *e, float *q_lat, float *q_conv, float *q2);

/*
 * TPPOOL2 (pool_evaporation_from_wet_bulb): Evaporation from an indoor pool and its heat flows, for
 *     room air given by its wet bulb.
 * Given:
 *     a    float    m²     1 .. 2000        area of the water surface
 *     a2   float    m²     0 .. 2000        further wetted area, which adds to the latent load only
 *     tw   float    °C     0 .. 45          water temperature
 *     ta   float    °C     0 .. 45          dry-bulb temperature of the room air
 *     twb  float    °C     0 .. 45          wet-bulb temperature of the room air, sling
 *                                           psychrometer
 *     t2   float    °C     0 .. 45          second reference temperature
 *     nb   int32_t         0 .. 500         number of bathers, below 1 unoccupied
 *     h2   float    W/m²K  0 .. 20          coefficient of the exchange with t2
 *     p    float    Pa     50000 .. 110000  atmospheric pressure
 * Returned:
 *     e       float  kg/(m²s)    evaporation rate
 *     q_lat   float  W           latent load, 2.45 MJ per kg evaporated
 *     q_conv  float  W           convection from the water to the room air at 10 W/m²K
 *     q2      float  W           exchange of the water with t2
 * Notes:
 *     - A wet bulb at or above ta counts as saturated air at ta.
 *     - Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
 *     - With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
 * Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079
 *     dp in kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.
 */
QUORVEL_API void TPPOOL2(const float *a, const float *a2, const float *tw, const float *ta,
                         const float *twb, const float *t2, const int32_t *nb, const float *h2,
                         const float *p, float *e, float *q_lat, float *q_conv, float *q2);

#ifdef __cplusplus
}
#endif

#endif /* QUORVEL_H */
