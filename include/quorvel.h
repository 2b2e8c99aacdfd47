/*
 * Quorvel - building-physics and building-services calculations.
 *
 * Produced from the catalogue of routines (catalogue/); do not edit.
 *
 * Every argument is passed by reference, inputs are never written, and arrays are one-based in the
 * texts and stored column by column. A text is a row of characters that ends with a NUL. Angles are
 * in radians; azimuths run from north, clockwise seen from above (east pi/2, south pi); tilt and
 * solar altitude are measured from the horizontal. Routines report no errors: what an argument
 * outside its range gets is said in the notes. Logical results are -1 (true) and 0 (false); 1.0e20
 * stands for a quantity that does not exist. Every routine is re-entrant. Only those of the climate
 * data file (CLBNF0 and following) have a state; they share it in a process, behind a lock.
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

/*
 * CLPERSKY (perez_diffuse): Diffuse irradiance of the sky on a tilted surface by the anisotropic
 *     sky of Perez.
 * Given:
 *     altitude                 float  rad   0.01 .. 1.5708  solar altitude
 *     tilt                     float  rad   0 .. 3.1416     tilt of the surface from the horizontal
 *     beam                     float  W/m²  0 .. 1100       beam irradiance on the horizontal
 *     diffuse                  float  W/m²  1 .. 700        diffuse irradiance on the horizontal
 *     incidence                float  rad   0 .. 3.1416     angle of incidence of the sun on the
 *                                                           surface
 *     extraterrestrial_normal  float  W/m²  1320 .. 1415    normal irradiance outside the
 *                                                           atmosphere
 * Returned:
 *     sky_diffuse  float  W/m²    diffuse irradiance of the sky on the surface
 * Notes:
 *     - The air mass is that of Kasten and Young with the altitude in radians in place of degrees:
 *       16 % too small for the sun at 2.5 degrees, 4 % at 30 and 2 % in the zenith; kept.
 *     - The circumsolar part is not below 0, the horizon's part may be; the sum is not limited.
 *     - Computed in double precision, coefficients and limits included; a clearness on the limit of
 *       two rows of coefficients belongs to the lower. The result jumps between rows, as the
 *       published model does.
 *     - Altitude, diffuse and extraterrestrial irradiance of 0 divide by zero.
 * Source: R. Perez, P. Ineichen, R. Seals, J. Michalsky and R. Stewart, Modeling daylight
 *     availability and irradiance components from direct and global irradiance, Solar Energy 44
 *     (1990): composite of all sites, coefficients with all their places. Air mass: F. Kasten and
 *     A. T. Young, Applied Optics 28 (1989).
 */
QUORVEL_API void CLPERSKY(const float *altitude, const float *tilt, const float *beam,
                          const float *diffuse, float *sky_diffuse, const float *incidence,
                          const float *extraterrestrial_normal);

/*
 * CLMUNRAD (muneer_slope): Irradiance on a tilted surface by Muneer's sky: beam, sky diffuse and
 *     ground-reflected.
 * Given:
 *     altitude                     float  rad   0.01 .. 1.5708  solar altitude
 *     azimuth                      float  rad   0 .. 6.2832     solar azimuth
 *     surface_azimuth              float  rad   0 .. 6.2832     azimuth of the surface's outward
 *                                                               normal
 *     tilt                         float  rad   0 .. 3.1416     tilt from the horizontal
 *     beam                         float  W/m²  0 .. 1100       beam irradiance on the horizontal
 *     diffuse                      float  W/m²  0 .. 700        diffuse irradiance on the
 *                                                               horizontal
 *     extraterrestrial_horizontal  float  W/m²  10 .. 1415      irradiance on the horizontal
 *                                                               outside the atmosphere
 *     ground_reflectance           float  1     0 .. 1          reflectance of the ground
 * Returned:
 *     beam_on_surface  float  W/m²    beam irradiance on the surface, 0 with the sun behind it
 *     sky_diffuse      float  W/m²    diffuse irradiance of the sky on the surface
 *     ground           float  W/m²    ground-reflected irradiance on the surface
 *     incidence        float  rad     angle of incidence, 1.5707964 with the sun behind the surface
 * Notes:
 *     - Radiance index 5.73 with the sun behind the surface; else 1.68 for a beam below 5 W/m² and
 *       -0.62 from there on. The circumsolar part starts above 5: exactly 5 takes -0.62 without it,
 *       on purpose.
 *     - A sun up to 0.1 rad above the horizon has a form of its own: the diffuse irradiance times
 *       the cosine of the angle of incidence, brightened with the tilt. The result jumps there and
 *       at the thresholds of the beam.
 *     - Computed in double precision: 0.1 as a single-precision altitude lies above the limit.
 *     - The beam is divided by the sine of the altitude: an altitude of 0 gives an infinite beam on
 *       the surface, or no number.
 * Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and
 *     Technology 11 (1990); radiance of the sky after P. Moon and D. E. Spencer (1942).
 */
QUORVEL_API void CLMUNRAD(const float *altitude, const float *azimuth,
                          const float *surface_azimuth, const float *tilt, const float *beam,
                          const float *diffuse, const float *extraterrestrial_horizontal,
                          const float *ground_reflectance, float *beam_on_surface,
                          float *sky_diffuse, float *ground, float *incidence);

/*
 * CLDIFRAD (diffuse_tilt_factor): Diffuse irradiance of the sky on a tilted surface without
 *     circumsolar part, by that on the horizontal.
 * Given:
 *     day       int32_t        1 .. 366        day of the year
 *     altitude  float    rad   0.01 .. 1.5708  solar altitude
 *     beam      float    W/m²  0 .. 1100       beam irradiance on the horizontal
 *     unused    float    W/m²  not used        accepted for the sake of existing callers
 *     tilt      float    rad   0 .. 3.1416     tilt from the horizontal
 *     model     int32_t        selector        model of the sky: 0 radiance index by the kind of
 *                                              sky, 1 clearness, northern Europe, 2 clearness,
 *                                              southern Europe, as any other value
 * Result:
 *     float  1  factor, 1 for a horizontal surface
 * Notes:
 *     - Model 0 takes the radiance index 5.73 up to an altitude of 0, 1.68 for a beam below 5 W/m²
 *       and -0.62 otherwise; the side of the surface does not matter here.
 *     - Models 1 and 2 divide by the sine of the altitude: at 0 the factor is infinite or no
 *       number.
 * Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and
 *     Technology 11 (1990), with a solar constant of 1367 W/m² and the eccentricity of CLETAJ.
 */
QUORVEL_API float CLDIFRAD(const int32_t *day, const float *altitude, const float *beam,
                           const float *unused, const float *tilt, const int32_t *model);

/*
 * CLDIFSLO (slope_diffuse): Diffuse irradiance of the sky on a tilted surface by day of the year
 *     and model of the sky.
 * Given:
 *     day              int32_t        1 .. 366        day of the year
 *     altitude         float    rad   0.01 .. 1.5708  solar altitude
 *     azimuth          float    rad   0 .. 6.2832     solar azimuth
 *     surface_azimuth  float    rad   0 .. 6.2832     azimuth of the surface's outward normal
 *     tilt             float    rad   0 .. 3.1416     tilt from the horizontal
 *     beam             float    W/m²  0 .. 1100       beam irradiance on the horizontal
 *     diffuse          float    W/m²  0 .. 700        diffuse irradiance on the horizontal
 *     model            int32_t        selector        model of the sky: 0 radiance index by the
 *                                                     kind of sky, 1 clearness, northern Europe, 2
 *                                                     clearness, southern Europe, as any other
 *                                                     value
 * Result:
 *     float  W/m²  diffuse irradiance on the surface
 * Notes:
 *     - The factor of CLDIFRAD and a circumsolar part, weighted by the clearness of the beam. A sun
 *       behind the surface has no circumsolar part, as one whose direction is not a number.
 *     - From a beam of 5 W/m² on, a sun below 0.1 rad has a form of its own, which follows the
 *       clearness but not the model. The result jumps there.
 *     - Divides by the sine of the altitude: at 0 the result is infinite or no number.
 * Source: As CLDIFRAD. Low sun: the clear sky of R. C. Temps and K. L. Coulson (Solar Energy 19,
 *     1977) with the modulation by T. M. Klucher (Solar Energy 23, 1979), the beam clearness in
 *     place of his factor.
 */
QUORVEL_API float CLDIFSLO(const int32_t *day, const float *altitude, const float *azimuth,
                           const float *surface_azimuth, const float *tilt, const float *beam,
                           const float *diffuse, const int32_t *model);

/*
 * CLTAO (daily_temperature): Temperature at an hour of a day, by half cosine waves between its
 *     highest and its lowest.
 * Given:
 *     hour             float  h   0 .. 24    hour
 *     highest          float  °C  -50 .. 60  highest temperature of the day
 *     lowest           float  °C  -50 .. 60  lowest temperature of the day
 *     hour_of_highest  float  h   0 .. 24    hour of the highest
 *     hour_of_lowest   float  h   0 .. 24    hour of the lowest
 * Result:
 *     float  °C  temperature
 * Notes:
 *     - The same before and after midnight if the next day is like this one.
 *     - Hours of the extremes that coincide give the mean at every hour. With one at 0 and the
 *       other at 24 the wave through midnight has no length: at the later of the two the result is
 *       no number.
 *     - Pi is 3.141593 here, a step above the float nearest to it, so the extremes are met to
 *       rounding.
 * Source: Two half cosine waves.
 */
QUORVEL_API float CLTAO(const float *hour, const float *highest, const float *lowest,
                        const float *hour_of_highest, const float *hour_of_lowest);

/*
 * CLTAOX (daily_value): Value at an hour of a day that swings about its mean by half cosine waves
 *     between two hours.
 * Given:
 *     hour       float  h  0 .. 24      hour
 *     mean       float  1  -100 .. 100  mean, in the unit of the result
 *     amplitude  float  1  -50 .. 50    half the difference of the extremes, in the same unit
 *     first      float  h  0 .. 11.5    hour of the first extreme, the highest if factor times
 *                                       amplitude is positive
 *     second     float  h  12 .. 23.5   hour of the second extreme, after the first
 *     factor     float  1  -2 .. 2      factor on the amplitude
 * Result:
 *     float  1  value
 * Notes:
 *     - The order of the hours is not checked: with the second before the first, the wave that
 *       should go through midnight runs beyond its extreme.
 *     - Pi as in CLTAO.
 * Source: Two half cosine waves.
 */
QUORVEL_API float CLTAOX(const float *hour, const float *mean, const float *amplitude,
                         const float *first, const float *second, const float *factor);

/*
 * CLTEO (sol_air_temperature): Temperature of the sol-air kind: a base temperature raised by a net
 *     gain of heat.
 * Given:
 *     base        float  °C     -50 .. 60  base temperature, as of the air outdoors
 *     divisor     float  W/m²K  1 .. 100   divisor, as the heat transfer coefficient of the surface
 *     multiplier  float  1      0 .. 1     multiplier of the net gain, as the absorptance
 *     unused_1    float  1      not used   accepted for the sake of existing callers
 *     unused_2    float  1      not used   accepted for the sake of existing callers
 *     gain        float  W/m²   0 .. 1400  gain, as the solar irradiance
 *     loss        float  W/m²   0 .. 150   loss, as the long-wave radiation to the sky
 * Result:
 *     float  °C  base + multiplier (gain - loss) / divisor
 * Notes:
 *     - The multiplier weighs the loss as it does the gain.
 *     - A divisor of 0 divides by zero.
 * Source: Heat balance of an outer surface.
 */
QUORVEL_API float CLTEO(const float *base, const float *divisor, const float *multiplier,
                        const float *unused_1, const float *unused_2, const float *gain,
                        const float *loss);

/*
 * CLRERD (long_wave_loss): Net long-wave radiation that a surface loses to its surroundings, never
 *     negative.
 * Given:
 *     angle   float  rad  0 .. 3.1416  tilt from the horizontal
 *     factor  float  1    0 .. 1.2     share of the sky that is covered by cloud
 * Result:
 *     float  W/m²  net loss
 * Notes:
 *     - Horizontal 93 - 79 factor, vertical 21 - 17 factor, between them by the cosine of the
 *       angle. Less than nothing is 0; not a number stays so.
 * Source: Net long-wave losses of horizontal and vertical surfaces by cloud cover, as building
 *     services guides print them; meaning of the arguments inferred from these values.
 */
QUORVEL_API float CLRERD(const float *angle, const float *factor);

/*
 * CLBNF0 (station_records): Monthly records of a station, from a climate data file at given
 *     percentages of days.
 * Given:
 *     file     char        text      name of the climate data file, as the operating system takes
 *                                    it; trailing blanks do not count
 *     station  int32_t     1 .. 100  station of the file
 *     month    int32_t     0 .. 12   month whose record is filled, 0 for all twelve
 *     records  float    1  0 .. 100  a record of 11 reals per month, see the notes [11, 12]
 * Returned:
 *     records  float  1  0 .. 100  a record of 11 reals per month, see the notes [11, 12]
 * Notes:
 *     - Given in a record: 10 set of bands, rounded to the nearest integer (2 is set 2, any other
 *       set 1); 11 percentage of days. Returned, in the units of the file: 1 Q4, 2 Q6, 3 time B, 4
 *       Q3, 5 Q5, 6 time A, 7 Q1 and 8 Q2 (not below 0), 9 Q7 (0 to 1). The times are copied as
 *       they are.
 *     - A percentage at or below band 1's frequency gives band 1, one at or above band 10's gives
 *       band 10: nothing is extrapolated, unlike CLBAND. One that is not a number makes the
 *       quantities not numbers.
 *     - A file that is missing, not a regular file, too short or unreadable ends the call: months
 *       before the one that cannot be read are filled, that one and those after it are left as they
 *       were.
 *     - A month outside 0 to 12 counts as 1 or 12.
 *     - The library keeps the word of the header that places the stations for as long as it is
 *       loaded: files read by one process must agree in it. It also keeps the record read last,
 *       whatever becomes of the file.
 *     - The five routines of the climate data file share one state behind a lock. The file is open
 *       only during a call.
 * Source: Linear interpolation in the bands of the climate data file.
 */
QUORVEL_API void CLBNF0(const char *file, const int32_t *station, const int32_t *month,
                        float *records);

/*
 * CLBNFI (station_climate): Monthly climate of one of ten bands of days of a station, or
 *     interpolated at a cumulative percentage of days.
 * Given:
 *     unit        int32_t     selector  unit: 31 the file that CLBNF0 opened last
 *     station     int32_t     1 .. 100  station of the file
 *     band        int32_t     0 .. 10   band, or 0 to interpolate at the percentage
 *     month       int32_t     1 .. 12   month
 *     set         int32_t     selector  set of bands: 1 set 1, 2 set 2
 *     percentage  float    %  0 .. 100  cumulative percentage of days, used with band 0
 * Returned:
 *     q1      float  1    quantity Q1, not below 0
 *     q2      float  1    quantity Q2, not below 0
 *     q3      float  1    quantity Q3, in the unit of the file
 *     q4      float  1    quantity Q4, in the unit of the file
 *     q5      float  1    quantity Q5, in the unit of the file
 *     q6      float  1    quantity Q6, in the unit of the file
 *     q7      float  1    quantity Q7, a fraction, 0 to 1
 *     time_a  float  h    time A
 *     time_b  float  h    time B
 * Notes:
 *     - Percentages as in CLBNF0; unlike CLBAND, a band's own percentage is not returned.
 *     - When the file cannot be read, or the unit is another one, nothing is returned; CLBNF2 and
 *       CLBNF3 then go on with the unit and station given here all the same.
 *     - A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a
 *       set other than 2 as 1.
 * Source: As CLBNF0.
 */
QUORVEL_API void CLBNFI(const int32_t *unit, const int32_t *station, const int32_t *band,
                        const int32_t *month, const int32_t *set, const float *percentage,
                        float *q1, float *q2, float *q3, float *q4, float *q5, float *q6,
                        float *q7, float *time_a, float *time_b);

/*
 * CLBNF1 (locate_station_band): Where a cumulative fraction of days lies among the ten bands of a
 *     month, in the frequencies that CLBNF0 or CLBNFI read last.
 * Given:
 *     fraction  float    1  0 .. 1   cumulative fraction of days
 *     month     int32_t     1 .. 12  month
 * Returned:
 *     lower   int32_t       lower band, 1 to 10
 *     upper   int32_t       upper band, 1 to 10
 *     weight  float    1    size of (fraction - F(lower)) / (F(upper) - F(lower)), at most 1
 * Notes:
 *     - At or below band 1's frequency both bands are 1, at or above band 10's both are 10, and the
 *       weight is 0. Bands of equal frequency are skipped.
 *     - Before anything was read all frequencies are 0.
 *     - A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands
 *       9 and 10 and a weight that is not a number.
 * Source: Search for linear interpolation.
 */
QUORVEL_API void CLBNF1(const float *fraction, const int32_t *month, int32_t *lower,
                        int32_t *upper, float *weight);

/*
 * CLBNF2 (interpolate_station_rows): Value between two rows of the station given to CLBNF0 or
 *     CLBNFI last.
 * Given:
 *     base    int32_t     2 .. 154  row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2
 *                                   and so on in set 1; 82 more in set 2
 *     lower   int32_t     1 .. 10   lower band
 *     upper   int32_t     1 .. 10   upper band
 *     month   int32_t     1 .. 12   month
 *     weight  float    1  -1 .. 1   share of the step from the lower to the upper row
 * Returned:
 *     value  float  1    value, in the quantity's unit
 * Notes:
 *     - Rows base + lower and base + upper outside 1 to 171 count as the nearest row of the
 *       station, a month outside 1 to 12 as the nearest month.
 *     - When the file cannot be read nothing is returned.
 * Source: Linear interpolation in the bands of the climate data file.
 */
QUORVEL_API void CLBNF2(const int32_t *base, const int32_t *lower, const int32_t *upper,
                        const int32_t *month, const float *weight, float *value);

/*
 * CLBNF3 (station_row): One row of the station given to CLBNF0 or CLBNFI last.
 * Given:
 *     row  int32_t    1 .. 164  row: 1 time A, 2 time B, 3 to 12 F, 13 to 82 Q1 to Q7, ten each; 82
 *                               more in set 2
 * Returned:
 *     values  float  1    value of each month [12]
 * Notes:
 *     - A station has 171 rows; numbers outside count as the first or the last.
 *     - When the file cannot be read nothing is returned.
 * Source: Climate data file.
 */
QUORVEL_API void CLBNF3(const int32_t *row, float *values);

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
 *       °C), the search ends there with 0.
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

/* ---- Geometry -------------------------------------------------------------------------------- */

/*
 * GEDOTP (dot_product): Dot product of two vectors.
 * Given:
 *     a  float  m  -100 .. 100  vector [3]
 *     b  float  m  -100 .. 100  vector [3]
 * Result:
 *     float  m²  a . b
 * Source: Definition.
 */
QUORVEL_API float GEDOTP(const float *a, const float *b);

/*
 * GEDTDP (dot_product_in_double): Dot product of two vectors in double precision.
 * Given:
 *     a  double  m  -100 .. 100  vector [3]
 *     b  double  m  -100 .. 100  vector [3]
 * Result:
 *     double  m²  a . b
 * Source: Definition.
 */
QUORVEL_API double GEDTDP(const double *a, const double *b);

/*
 * GEXPRO (cross_product): Cross product of two vectors.
 * Given:
 *     a  float  m  -100 .. 100  vector [3]
 *     b  float  m  -100 .. 100  vector [3]
 * Returned:
 *     c  float  m²    a x b [3]
 * Source: Definition.
 */
QUORVEL_API void GEXPRO(const float *a, const float *b, float *c);

/*
 * GEXPDP (cross_product_in_double): Cross product of two vectors in double precision.
 * Given:
 *     a  double  m  -100 .. 100  vector [3]
 *     b  double  m  -100 .. 100  vector [3]
 * Returned:
 *     c  double  m²    a x b [3]
 * Source: Definition.
 */
QUORVEL_API void GEXPDP(const double *a, const double *b, double *c);

/*
 * GEVMOD (length): Length of a vector.
 * Given:
 *     a  float  m  -100 .. 100  vector [3]
 * Result:
 *     float  m  length
 * Notes:
 *     - Squares beyond the range of a float make the length infinite or 0: from about 1e19, below
 *       about 1e-23.
 * Source: Definition.
 */
QUORVEL_API float GEVMOD(const float *a);

/*
 * GEVMDP (length_in_double): Length of a vector in double precision.
 * Given:
 *     a  double  m  -100 .. 100  vector [3]
 * Result:
 *     double  m  length
 * Source: Definition.
 */
QUORVEL_API double GEVMDP(const double *a);

/*
 * GEMEET (meeting_point): Where two infinite lines in plan meet.
 * Given:
 *     a  float  m  -100 .. 100  point of line 1 [2]
 *     b  float  m  -100 .. 100  another point of line 1 [2]
 *     c  float  m  -100 .. 100  point of line 2 [2]
 *     d  float  m  -100 .. 100  another point of line 2 [2]
 * Returned:
 *     x  float  m    meeting point [2]
 * Notes:
 *     - Parallel lines give 1e20 in both coordinates: those for which |ab| |cd| times the sine of
 *       the angle between them is below 1e-10.
 *     - Any of the points may be vectors; their z is not read.
 * Source: Elementary analytic geometry.
 */
QUORVEL_API void GEMEET(const float *a, const float *b, const float *c, const float *d, float *x);

/*
 * GECROS (crossing_point): Where two segments in plan cross or touch.
 * Given:
 *     a  float  m  -100 .. 100  start of segment 1 [2]
 *     b  float  m  -100 .. 100  end of segment 1 [2]
 *     c  float  m  -100 .. 100  start of segment 2 [2]
 *     d  float  m  -100 .. 100  end of segment 2 [2]
 * Returned:
 *     x  float  m    crossing point [2]
 * Notes:
 *     - Segments that do not meet, and parallel ones whether they meet or not, give 1e20 in both
 *       coordinates. Not a number counts as not meeting.
 *     - A segment reaches almost 0.0001 beyond its ends in x and in y.
 * Source: As GEMEET.
 */
QUORVEL_API void GECROS(const float *a, const float *b, const float *c, const float *d, float *x);

/*
 * IGELIN (collinearity): Whether points in plan lie on one straight line.
 * Given:
 *     x  float    m  -10 .. 10  x of the points [n]
 *     y  float    m  -10 .. 10  y of the points [n]
 *     n  int32_t     1 .. 6     number of points
 * Result:
 *     int32_t  1 on one line; otherwise the number (2..n) of the first point whose y differs from
 *         that of point 1
 * Notes:
 *     - The points are held against the line through the first two that differ by 1e-5 or more in
 *       both coordinates. A point is off it when the ratios of its offsets to theirs, in x and in
 *       y, differ by more than 1e-5: what is tolerated grows with the distance between the two.
 *     - Points that all have the x or the y of point 1, to within 1e-5, are on one line, as are
 *       fewer than one. Not a number counts as equal to anything.
 *     - Coordinates near one another within 1e-5 can leave no two points to draw the line through;
 *       then the points are not on one line, and finding that out takes n²/2 comparisons.
 * Source: Intercept theorem.
 */
QUORVEL_API int32_t IGELIN(const float *x, const float *y, const int32_t *n);

/*
 * BORI (back_azimuth): Azimuth opposite to a direction that is given by its angle from east,
 *     anticlockwise; also the angle of an azimuth.
 * Given:
 *     a  float  °  0 .. 360  angle from east, anticlockwise, or azimuth
 * Result:
 *     float  °  azimuth of the opposite direction, or angle of it
 * Notes:
 *     - It is the remainder of 630 - a by 360 with the sign of the dividend: angles above 630 give
 *       negative results.
 *     - Magnitudes from 1000 on are no angles and are returned as they are.
 * Source: Definition.
 */
QUORVEL_API float BORI(const float *a);

/*
 * GEPROJ (projection): Projection of a point along a direction, forwards or backwards, onto a
 *     plane.
 * Given:
 *     p0      float  m  -100 .. 100  a point of the plane [3]
 *     normal  float  1  -1 .. 1      normal of the plane, of any length [3]
 *     p       float  m  -100 .. 100  the point [3]
 *     d       float  1  -1 .. 1      direction, of any length [3]
 * Returned:
 *     x  float  m    projected point [3]
 * Notes:
 *     - A direction parallel to the plane (d . normal of magnitude 1e-15 or less, or not a number)
 *       gives 1e20 in all coordinates.
 * Source: Elementary analytic geometry.
 */
QUORVEL_API void GEPROJ(const float *p0, const float *normal, const float *p, const float *d,
                        float *x);

/*
 * GEPROJ2 (forward_projection): Projection of a point along a direction, forwards only, onto a
 *     plane.
 * Given:
 *     p0      float  m  -100 .. 100  a point of the plane [3]
 *     normal  float  1  -1 .. 1      normal of the plane, of any length [3]
 *     p       float  m  -100 .. 100  the point [3]
 *     d       float  1  -1 .. 1      direction, of any length [3]
 * Returned:
 *     x  float  m    projected point [3]
 * Notes:
 *     - A direction parallel to the plane or away from it, and a point that is in the plane
 *       already, give 1e20 in all coordinates.
 *     - Forwards means that the way from p to x, scaled to length 1, differs from d, scaled so, by
 *       1e-6 at most in each component. Coordinates that are large beside the way to the plane can
 *       spoil that by rounding: at site coordinates of real buildings, about 7 % of the points
 *       whose projection lies ahead are not found.
 * Source: As GEPROJ.
 */
QUORVEL_API void GEPROJ2(const float *p0, const float *normal, const float *p, const float *d,
                         float *x);

/*
 * GEPROJ3 (forward_projection_or_start): Projection of a point along a direction onto a plane, or
 *     the point itself where the plane does not lie ahead.
 * Given:
 *     p0      float  m  -100 .. 100  a point of the plane [3]
 *     normal  float  1  -1 .. 1      normal of the plane, of any length [3]
 *     p       float  m  -100 .. 100  the point [3]
 *     d       float  1  -1 .. 1      direction, of any length [3]
 * Returned:
 *     x  float  m    projected point, or p [3]
 * Notes:
 *     - A direction parallel to the plane (as in GEPROJ) gives what the division by zero makes of
 *       it: infinities, not a number or points far off.
 *     - Ahead is as in GEPROJ2, and so about 7 % of the points at site coordinates of real
 *       buildings are returned as they are, although the plane lies ahead.
 * Source: As GEPROJ.
 */
QUORVEL_API void GEPROJ3(const float *p0, const float *normal, const float *p, const float *d,
                         float *x);

/*
 * GESUNV (direction_to): Unit vector of a direction, such as that to the sun.
 * Given:
 *     h  float  rad  -1.5708 .. 1.5708  altitude
 *     a  float  rad  0 .. 6.2832        azimuth
 * Returned:
 *     s  float  1    direction [3]
 * Source: Spherical to rectangular coordinates.
 */
QUORVEL_API void GESUNV(const float *h, const float *a, float *s);

/*
 * GERSET (surface_axes): Rotation matrix of a surface, from local to global coordinates, and its
 *     inverse.
 * Given:
 *     a  float  rad  0 .. 6.2832  azimuth of the outward normal
 *     b  float  rad  0 .. 3.1416  tilt: 0 horizontal facing up, pi/2 vertical
 * Returned:
 *     r   float  1    matrix; its columns are the local axes in global coordinates [3, 3]
 *     ri  float  1    inverse of r [3, 3]
 * Notes:
 *     - Local x is level and points to the right seen from outside, y points up the slope, z
 *       outwards; the axes are right-handed.
 *     - Elements of r below 1e-5 in magnitude are set to 0. The inverse, by elimination with full
 *       pivoting, is the transpose to rounding.
 * Source: Rotation matrices; Gauss-Jordan elimination.
 */
QUORVEL_API void GERSET(const float *a, const float *b, float *r, float *ri);

/*
 * GERAXI (local_to_global): Local to global coordinates: r p.
 * Given:
 *     p  float  m  -100 .. 100  vector in local coordinates [3]
 *     r  float  1  -1 .. 1      rotation matrix [3, 3]
 * Returned:
 *     q  float  m    vector in global coordinates [3]
 * Source: Definition.
 */
QUORVEL_API void GERAXI(const float *p, const float *r, float *q);

/*
 * GERAX2 (global_to_local): Global to local coordinates: the transpose of r times p.
 * Given:
 *     p  float  m  -100 .. 100  vector in global coordinates [3]
 *     r  float  1  -1 .. 1      rotation matrix [3, 3]
 * Returned:
 *     q  float  m    vector in local coordinates [3]
 * Source: Definition.
 */
QUORVEL_API void GERAX2(const float *p, const float *r, float *q);

/*
 * GEINLN (in_span): Whether a point of the line AB lies between A and B.
 * Given:
 *     a  float  m  -100 .. 100  one end [3]
 *     b  float  m  -100 .. 100  other end [3]
 *     p  float  m  -100 .. 100  point on the line AB [3]
 * Result:
 *     float  1  1 between them or at an end, else 0
 * Notes:
 *     - That the point is on the line is not tested: the answer is whether it is in the box of
 *       which A and B are corners.
 *     - Not a number in y or z of the point does not exclude it.
 * Source: Definition.
 */
QUORVEL_API float GEINLN(const float *a, const float *b, const float *p);

/*
 * GEINLN2 (ahead_and_nearer): Whether a point lies on B's side of A and nearer to A than B does.
 * Given:
 *     a  float  m  -100 .. 100  one end [3]
 *     b  float  m  -100 .. 100  other end [3]
 *     p  float  m  -100 .. 100  point [3]
 * Result:
 *     float  1  1 if so, else 0
 * Notes:
 *     - A itself counts, B does not; so nothing does where the two coincide.
 *     - Not a number anywhere gives 1.
 * Source: Definition.
 */
QUORVEL_API float GEINLN2(const float *a, const float *b, const float *p);

/*
 * GEPLEL (parallel_planes): Whether the planes of two triangles are parallel.
 * Given:
 *     t1  double  m  -10 .. 10  corners of one triangle [3, 3]
 *     t2  double  m  -10 .. 10  corners of the other [3, 3]
 * Result:
 *     int32_t  -1 if so, else 0
 * Notes:
 *     - So they are when the cross product of their normals, each as long as twice the triangle's
 *       area, is shorter than 0.001: small triangles are parallel to any.
 * Source: Definition.
 */
QUORVEL_API int32_t GEPLEL(const double *t1, const double *t2);

/*
 * GEPSID (parallel_sides): Whether two triangles have parallel sides, and which.
 * Given:
 *     t1  double  m  -10 .. 10  corners of one triangle [3, 3]
 *     t2  double  m  -10 .. 10  corners of the other [3, 3]
 * Returned:
 *     i  int32_t      side of t1: 1 from corner 1 to 2, 2 from corner 2 to 3; 3 none
 *     j  int32_t      side of t2, likewise
 * Result:
 *     int32_t  -1 if so, else 0
 * Notes:
 *     - Sides are parallel when their cross product is shorter than 0.001, so that short sides are
 *       parallel to any.
 *     - The sides from corner 3 to 1 are not tested.
 * Source: Definition.
 */
QUORVEL_API int32_t GEPSID(const double *t1, const double *t2, int32_t *i, int32_t *j);

/*
 * GERECT (rectangular): Whether a quadrilateral is rectangular.
 * Given:
 *     q  double  m  -10 .. 10  corners in turn [3, 4]
 * Result:
 *     int32_t  -1 if so, else 0
 * Notes:
 *     - So it is when at corners 2, 3 and 4 the dot product of the two sides is at most 1e-6 in
 *       magnitude.
 * Source: Definition.
 */
QUORVEL_API int32_t GERECT(const double *q);

/*
 * GETILT (facing): Azimuth and tilt of the plane of a triangle.
 * Given:
 *     t   double  m  -10 .. 10    corners, clockwise seen from outside [3, 3]
 *     az  double  °  0 .. 6.2832  azimuth of the outward normal; given, what a level triangle gets,
 *                                 in radians
 * Returned:
 *     az    double  °  0 .. 6.2832  azimuth of the outward normal; given, what a level triangle
 *                                   gets, in radians
 *     tilt  double  °               tilt: 0 horizontal facing up, 90 vertical, 180 facing down
 * Notes:
 *     - A level triangle, the level part of whose normal (as long as twice its area) is shorter
 *       than 1e-10, gets the given azimuth times 180/pi.
 *     - Azimuths of 360 or more are reduced by 360 once; from 359.99 on they become 0.
 *     - A triangle without area gives a tilt that is not a number.
 * Source: Definition.
 */
QUORVEL_API void GETILT(const double *t, double *az, double *tilt);

/*
 * GELCAL (local_coordinates): Two quadrilaterals in local coordinates of the first.
 * Given:
 *     q   double  m  -10 .. 10  corners of the first [3, 4]
 *     q2  double  m  -10 .. 10  corners of the second [3, 4]
 * Returned:
 *     ql   double  m    the first in local coordinates [3, 4]
 *     q2l  double  m    the second in local coordinates [3, 4]
 * Notes:
 *     - The origin is corner 1 of q; x points to corner 2, y to corner 4, z along the cross product
 *       of the ways from corner 1 to corners 2 and 3.
 *     - Coordinates are dot products with the axes, so that lengths are kept only where q has a
 *       right angle at corner 1.
 *     - Coincident corners give what is not a number.
 * Source: Definition.
 */
QUORVEL_API void GELCAL(const double *q, const double *q2, double *ql, double *q2l);

/*
 * GETRNS (to_local): Replaces each of four points by its components along three axes.
 * Given:
 *     p  double  m  -100 .. 100  points [3, 4]
 *     u  double  1  -1 .. 1      x axis [3]
 *     v  double  1  -1 .. 1      y axis [3]
 *     w  double  1  -1 .. 1      z axis [3]
 * Returned:
 *     p  double  m  -100 .. 100  points [3, 4]
 * Source: Definition.
 */
QUORVEL_API void GETRNS(double *p, const double *u, const double *v, const double *w);

/*
 * GEAPOL (plan_area): Area of a polygon in plan.
 * Given:
 *     x  float    m  -100 .. 100  x of the vertices [n]
 *     y  float    m  -100 .. 100  y of the vertices [n]
 *     n  int32_t     3 .. 12      number of vertices
 * Result:
 *     float  m²  area
 * Notes:
 *     - Fewer than one vertex give 0.
 *     - A polygon far from the origin beside its size loses digits.
 * Source: Shoelace formula.
 */
QUORVEL_API float GEAPOL(const float *x, const float *y, const int32_t *n);

/*
 * GEAPO2 (signed_plan_area): Area of a polygon in plan, positive for clockwise vertices.
 * Given:
 *     x  float    m  -100 .. 100  x of the vertices [n]
 *     y  float    m  -100 .. 100  y of the vertices [n]
 *     n  int32_t     3 .. 12      number of vertices
 * Result:
 *     float  m²  area, negative for anticlockwise vertices
 * Notes:
 *     - As GEAPOL.
 * Source: Shoelace formula.
 */
QUORVEL_API float GEAPO2(const float *x, const float *y, const int32_t *n);

/*
 * GEAPO3 (area_in_space): Area of a plane polygon in space.
 * Given:
 *     x  float    m  -100 .. 100  x of the vertices [n]
 *     y  float    m  -100 .. 100  y of the vertices [n]
 *     z  float    m  -100 .. 100  z of the vertices [n]
 *     n  int32_t     3 .. 12      number of vertices
 * Result:
 *     float  m²  area
 * Notes:
 *     - It is the sum of the triangles over the edges with the mean of the vertices as apex, all
 *       counted as positive: too large for a polygon that is not seen whole from there. Of the
 *       surfaces of real buildings 3.3 % come out too large by more than 0.1 %, half of these by
 *       more than 7 %.
 *     - Fewer than one vertex give 0.
 * Source: Elementary geometry.
 */
QUORVEL_API float GEAPO3(const float *x, const float *y, const float *z, const int32_t *n);

/*
 * GEASO (polygon_orientation): Area, tilt and orientation of a plane polygon in space.
 * Given:
 *     n  int32_t     3 .. 12      number of vertices
 *     v  float    m  -100 .. 100  vertices [3, n]
 * Returned:
 *     area    float  m²    area, positive when the vertices run as the corner at vertex 1 turns
 *     tilt    float  °     angle between the normal and the vertical
 *     orient  float  °     azimuth opposite to the normal
 * Notes:
 *     - The normal points to where the corner at vertex 1 is seen to turn anticlockwise: its
 *       opposite is the outward normal of a convex polygon that runs clockwise seen from outside.
 *     - Only the corner at vertex 1 gives the plane. Of 31605 surfaces of real buildings 141 begin
 *       within a straight side, and for 7 of these rounding alone decides the normal, so that area,
 *       tilt and orientation are wrong: let vertex 1 be a true corner.
 *     - The orientation of a nearly level polygon (the cosine of its tilt beyond 0.999) is the
 *       azimuth opposite to its first side, from vertex 1 to 2, if the normal points up, and that
 *       of the side if it points down.
 *     - Degrees are radians times 180 by 3.141593, so that right angles can be one step off, and
 *       what faces north may get 0.00003.
 *     - Of one vertex or two the area is 0. Fewer than one vertex give an area of 0; tilt and
 *       orientation are then left as they are.
 * Source: Shoelace formula in the plane of the polygon.
 */
QUORVEL_API void GEASO(const int32_t *n, const float *v, float *area, float *tilt, float *orient);

/*
 * GECOIN (coincide): Whether two points in plan coincide.
 * Given:
 *     x1  float  m  -100 .. 100  x of one point
 *     y1  float  m  -100 .. 100  y of one point
 *     x2  float  m  -100 .. 100  x of the other
 *     y2  float  m  -100 .. 100  y of the other
 * Result:
 *     int32_t  -1 if both coordinates differ by less than 1e-5, else 0
 * Source: Definition.
 */
QUORVEL_API int32_t GECOIN(const float *x1, const float *y1, const float *x2, const float *y2);

/*
 * IGEPNT (side_of_line): Side of a directed line in plan on which a point lies.
 * Given:
 *     a  float  m  -100 .. 100  start of the line [2]
 *     b  float  m  -100 .. 100  point towards which it runs [2]
 *     c  float  m  -100 .. 100  point [2]
 * Result:
 *     int32_t  1 right of the line, -1 left of it, 0 nearer to it than 1e-5
 * Notes:
 *     - Where a and b are the same the line runs north.
 *     - Not a number gives 0.
 * Source: Distance of a point from a line by its bearing.
 */
QUORVEL_API int32_t IGEPNT(const float *a, const float *b, const float *c);

/*
 * GECLOS (count_enclosed): How many points lie in a convex polygon with clockwise vertices or on
 *     its boundary, and which.
 * Given:
 *     x     float    m  -10 .. 10  x of the vertices [n]
 *     y     float    m  -10 .. 10  y of the vertices [n]
 *     n     int32_t     3 .. 6     number of vertices
 *     px    float    m  -10 .. 10  x of the points [m]
 *     py    float    m  -10 .. 10  y of the points [m]
 *     m     int32_t     1 .. 6     number of points
 *     flag  int32_t     selector   1 for points that are enclosed; left as given for others: 0 not
 *                                  enclosed, 1 enclosed [m]
 * Returned:
 *     flag   int32_t    selector  1 for points that are enclosed; left as given for others: 0 not
 *                                 enclosed, 1 enclosed [m]
 *     count  int32_t              number of enclosed points
 * Notes:
 *     - A point is enclosed when it is left of no edge, as IGEPNT sees it, or is at a vertex (to
 *       less than 1e-5 in each coordinate) that comes before any such edge.
 *     - Points that are not numbers are left of no edge, and so enclosed.
 *     - Without vertices or points the count is 0 and no flag is set.
 * Source: A convex polygon is the intersection of half-planes.
 */
QUORVEL_API void GECLOS(const float *x, const float *y, const int32_t *n, const float *px,
                        const float *py, const int32_t *m, int32_t *flag, int32_t *count);

/*
 * GESIDE (boundary_crossing): Where a segment crosses the boundary of a polygon in plan.
 * Given:
 *     a  float    m  -10 .. 10  start of the segment [2]
 *     b  float    m  -10 .. 10  end of the segment [2]
 *     x  float    m  -10 .. 10  x of the vertices [n]
 *     y  float    m  -10 .. 10  y of the vertices [n]
 *     n  int32_t     3 .. 12    number of vertices
 * Returned:
 *     p  float    m    crossing point, or what the notes say [2]
 *     k  int32_t       number of the vertex that ends the crossed edge, or what the notes say
 * Notes:
 *     - The edges are tried in turn, from vertex 1 to 2 on, as GECROS does; the first one that is
 *       crossed away from a ends the search. A crossing beyond 100000 is none.
 *     - No such edge, but a at a vertex j (to less than 1e-5): k = -j, and p is the last outcome of
 *       the search, a or 1e20.
 *     - Otherwise, a on edges: k is 999 + the number of the vertex that ends the last of them, and
 *       p that vertex. (The sum is taken modulo 2^32. Of a polygon with 1000 vertices or more,
 *       small codes of this kind cannot be told from edges by k alone.)
 *     - Otherwise k = 0, and p is 1e20.
 * Source: As GECROS.
 */
QUORVEL_API void GESIDE(const float *a, const float *b, const float *x, const float *y,
                        const int32_t *n, float *p, int32_t *k);

/*
 * GEINSI (inside): Whether a point in the plane of a polygon in space lies inside or on its
 *     boundary.
 * Given:
 *     p  float    m  -10 .. 10  point [3]
 *     v  float    m  -10 .. 10  vertices, the last of which repeats the first [3, n]
 *     n  int32_t     4 .. 13    number of vertices, the repeated one included
 * Returned:
 *     inside  int32_t      1 inside, 0 outside
 * Notes:
 *     - The first edge with whose line the point is in line (twice the area of the triangle between
 *       them at most 1e-6) decides alone: 1 if the point is in the span of the edge, as GEINLN sees
 *       it, else 0. So a point may be found outside a polygon that is not convex because it is in
 *       line with an edge.
 *     - That the point is in the plane is not tested: over the middle of a square it is inside up
 *       to half the length of a side.
 *     - Fewer than one edge, and not a number, give 0.
 * Source: Sum of the angles under which the point sees the edges.
 */
QUORVEL_API void GEINSI(const float *p, const float *v, const int32_t *n, int32_t *inside);

/*
 * HOHOLEDP (clip): Difference A - B and overlap of two simple polygons A and B in plan, in double
 *     precision.
 * Given:
 *     x      double   m  -10 .. 10  x of the pool of points; new points are appended [nmax]
 *     y      double   m  -10 .. 10  y of the pool of points [nmax]
 *     na     int32_t     3 .. 6     number of vertices of A, from 3
 *     ia     int32_t     1 .. 30    vertices of A: positions in the pool, from 1 [na]
 *     nb     int32_t     3 .. 6     number of vertices of B, from 3
 *     ib     int32_t     1 .. 30    vertices of B [nb]
 *     nmax   int32_t     30 .. 50   capacity of the pool
 *     kmax   int32_t     1 .. 20    most crossings of A and B to deal with, up to 1024
 *     ldif   int32_t     1 .. 50    capacity of dif
 *     lovl   int32_t     1 .. 50    capacity of ovl
 *     npool  int32_t     30 .. 50   points in use in the pool
 * Returned:
 *     x      double   m  -10 .. 10  x of the pool of points; new points are appended [nmax]
 *     y      double   m  -10 .. 10  y of the pool of points [nmax]
 *     npool  int32_t     30 .. 50   points in use in the pool
 *     dif    int32_t                pieces of A - B [ldif]
 *     ovl    int32_t                pieces of the overlap [lovl]
 *     ierr   int32_t                0 success, else what went wrong
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
 *     - ierr = 1 or 2: A or B has fewer than 3 vertices, or one that is not in the pool (up to
 *       npool and nmax). 3 or 4: A or B crosses itself. 5: A has no area to speak of (25 square
 *       tolerances). B without area is nothing to subtract.
 *     - ierr = 6: more than kmax crossings. 7: the pool is full. 8 or 9: an edge of A or B carries
 *       more than 10 crossings. 10 or 11: dif or ovl is full. 105 or 106: the edges of A or of B do
 *       not enter and leave the other polygon by turns, as can happen where a polygon is narrower
 *       than the tolerance, or touches itself. 109: no bridge, for polygons with coordinates that
 *       are not numbers. In no case does anything happen beyond what the capacities allow. A
 *       failure leaves lists and pool as they are by then.
 *     - On which side of an edge a point lies is decided exactly, also at site coordinates, where
 *       edges are in line with one another only to rounding.
 * Source: Boundary tracing from crossing to crossing: K. Weiler, P. Atherton, Hidden surface
 *     removal using polygon area sorting, 1977.
 */
QUORVEL_API void HOHOLEDP(double *x, double *y, const int32_t *na, const int32_t *ia,
                          const int32_t *nb, const int32_t *ib, const int32_t *nmax,
                          const int32_t *kmax, const int32_t *ldif, const int32_t *lovl,
                          int32_t *npool, int32_t *dif, int32_t *ovl, int32_t *ierr);

/*
 * GEOVER (overlap): Pieces and area of the overlap of two simple polygons in plan.
 * Given:
 *     xa  float    m  -10 .. 10  x of polygon 1 [na]
 *     ya  float    m  -10 .. 10  y of polygon 1 [na]
 *     na  int32_t     3 .. 6     number of vertices of polygon 1, from 3
 *     xb  float    m  -10 .. 10  x of polygon 2 [nb]
 *     yb  float    m  -10 .. 10  y of polygon 2 [nb]
 *     nb  int32_t     3 .. 6     number of vertices of polygon 2, from 3
 * Returned:
 *     xout  float    m     x of the vertices of the pieces, a column each; 0 beyond them [25, 5]
 *     yout  float    m     y of the vertices of the pieces [25, 5]
 *     nout  int32_t        number of vertices of each piece, 0 beyond the last [5]
 *     area  float    m²    area of the overlap
 * Notes:
 *     - The overlap of HOHOLEDP with polygon 2 as A and polygon 1 as B, and with its accuracy. The
 *       pieces run in the sense of polygon 2.
 *     - A coordinate nearer to 0 than 1e-4 is taken as 0.
 *     - The outputs are all 0 where the polygons do not overlap, and where HOHOLEDP fails: a
 *       polygon that crosses itself, more than 10 crossings, more than 50 vertices and crossings in
 *       all. Likewise for more than 5 pieces, or more than 24 vertices in one. Of pairs of real
 *       polygons 0.75 % exceed one of these capacities.
 * Source: As HOHOLEDP.
 */
QUORVEL_API void GEOVER(const float *xa, const float *ya, const int32_t *na, const float *xb,
                        const float *yb, const int32_t *nb, float *xout, float *yout,
                        int32_t *nout, float *area);

/*
 * GEHOLE (overlap_alias): The same as GEOVER.
 * Given:
 *     xa  float    m  -10 .. 10  x of polygon 1 [na]
 *     ya  float    m  -10 .. 10  y of polygon 1 [na]
 *     na  int32_t     3 .. 6     number of vertices of polygon 1, from 3
 *     xb  float    m  -10 .. 10  x of polygon 2 [nb]
 *     yb  float    m  -10 .. 10  y of polygon 2 [nb]
 *     nb  int32_t     3 .. 6     number of vertices of polygon 2, from 3
 * Returned:
 *     xout  float    m     x of the vertices of the pieces, a column each; 0 beyond them [25, 5]
 *     yout  float    m     y of the vertices of the pieces [25, 5]
 *     nout  int32_t        number of vertices of each piece, 0 beyond the last [5]
 *     area  float    m²    area of the overlap
 * Notes:
 *     - As GEOVER, in all.
 * Source: As HOHOLEDP.
 */
QUORVEL_API void GEHOLE(const float *xa, const float *ya, const int32_t *na, const float *xb,
                        const float *yb, const int32_t *nb, float *xout, float *yout,
                        int32_t *nout, float *area);

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
 * WNDRSL (slat_direct): Transmittance, absorptance and reflectance of a slatted blind for a beam,
 *     both faces of the slats alike.
 * Given:
 *     s      float  m    0.005 .. 0.5       spacing of the slats; only s / w matters, in whatever
 *                                           unit
 *     w      float  m    0.01 .. 0.5        width of a slat
 *     beta   float  °    -90 .. 90          slat angle in degrees, 0 for level slats, positive with
 *                                           the outer edge lowered
 *     phi    float  rad  -1.5708 .. 1.5708  profile angle of the beam, positive from above
 *     alpha  float  1    0 .. 1             absorptance of the slats
 * Returned:
 *     t  float  1    transmittance
 *     a  float  1    absorptance
 *     r  float  1    reflectance, 1 - t - a
 * Notes:
 *     - The slats are flat, thin, opaque and diffusely reflecting. After the first reflection each
 *       slat is taken as evenly lit.
 *     - For slat angles up to 90 degrees and an absorptance in 0..1 all three are in 0..1, but for
 *       the rounding of single precision: 1e-4 for slats that are nearly closed, 4e-7 / cos phi for
 *       grazing beams.
 *     - A beam within 0.01 rad of the slats' plane passes whole (t = 1, a = r = 0). A beam along
 *       the blind (cosine of phi below 1e-6, or phi 1.570796 or more in size) meets an opaque
 *       sheet: t = 0, a = alpha, r = 1 - alpha.
 *     - The mirror image (-beta and -phi) gives the same bits.
 * Source: Exchange factors by H. C. Hottel's crossed strings, and the inter-reflection between two
 *     neighbouring slats.
 */
QUORVEL_API void WNDRSL(const float *s, const float *w, const float *beta, const float *phi,
                        const float *alpha, float *t, float *a, float *r);

/*
 * WNDRS2 (two_faced_slat_direct): Transmittance, absorptance and reflectance of a blind for a beam,
 *     whose slats have two different faces.
 * Given:
 *     s        float  m    0.005 .. 0.5       spacing of the slats; only s / w matters, in whatever
 *                                             unit
 *     w        float  m    0.01 .. 0.5        width of a slat
 *     beta     float  °    -90 .. 90          slat angle in degrees, as in WNDRSL
 *     phi      float  rad  -1.5708 .. 1.5708  profile angle of the beam, positive from above
 *     alpha    float  1    0 .. 1             absorptance of the face that the beam strikes first
 *     alpha_b  float  1    0 .. 1             absorptance of the opposite face
 * Returned:
 *     t  float  1    transmittance
 *     a  float  1    absorptance
 *     r  float  1    reflectance, 1 - t - a, not limited
 * Notes:
 *     - Equal faces give the bits of WNDRSL and keep the balance.
 *     - Unequal faces do not: whatever is absorbed after the first reflection counts with alpha, as
 *       if both faces absorbed like the one struck and reflected like the opposite one. A bright
 *       face opposite a dark one absorbs too little, and r holds the rest; a dark face opposite a
 *       bright one absorbs too much, in dense blinds many times what arrives, and r is negative by
 *       as much. Where alpha is at most alpha_b, all three stay in 0..1.
 *     - The face struck first is the upper one where phi + beta is positive and the lower one else;
 *       alpha is to be chosen accordingly.
 * Source: As WNDRSL.
 */
QUORVEL_API void WNDRS2(const float *s, const float *w, const float *beta, const float *phi,
                        const float *alpha, const float *alpha_b, float *t, float *a, float *r);

/*
 * WNDRS3 (open_slat_direct): WNDRS2 for a blind that leaves a share of the radiation to pass
 *     untouched.
 * Given:
 *     s        float  m    0.005 .. 0.5       spacing of the slats; only s / w matters, in whatever
 *                                             unit
 *     w        float  m    0.01 .. 0.5        width of a slat
 *     beta     float  °    -90 .. 90          slat angle in degrees, as in WNDRSL
 *     phi      float  rad  -1.5708 .. 1.5708  profile angle of the beam, positive from above
 *     f        float  1    0 .. 1             open share of the blind; 0 or less for none
 *     alpha    float  1    0 .. 1             absorptance of the face that the beam strikes first
 *     alpha_b  float  1    0 .. 1             absorptance of the opposite face
 * Returned:
 *     t  float  1    transmittance, the open share included
 *     a  float  1    absorptance
 *     r  float  1    reflectance
 * Notes:
 *     - Without an open share these are the bits of WNDRS2; an f that is not a number is none.
 *     - A beam along the blind gives t = f, a = alpha, r = 1 - f - alpha: the open share does not
 *       reduce the absorptance there, and r is negative where f + alpha exceeds 1. Kept.
 * Source: As WNDRSL.
 */
QUORVEL_API void WNDRS3(const float *s, const float *w, const float *beta, const float *phi,
                        const float *f, const float *alpha, const float *alpha_b, float *t,
                        float *a, float *r);

/*
 * WNDFSL (slat_diffuse): Transmittance and absorptance of a slatted blind for the diffuse radiation
 *     from the sky's and from the ground's side, both faces of the slats alike.
 * Given:
 *     s      float  m  0.005 .. 0.5  spacing of the slats; only s / w matters, in whatever unit
 *     w      float  m  0.01 .. 0.5   width of a slat
 *     beta   float  °  -90 .. 90     slat angle in degrees, as in WNDRSL
 *     alpha  float  1  0 .. 1        absorptance of the slats
 * Returned:
 *     t_sky     float  1    transmittance for radiation from above the horizon
 *     t_ground  float  1    transmittance for radiation from below it
 *     a_sky     float  1    absorptance for radiation from above the horizon
 *     a_ground  float  1    absorptance for radiation from below it
 * Notes:
 *     - The bits are those of WNDRSL summed over the bands.
 *     - Slats at an angle of 5, 15, ... 85 degrees have a band within 0.01 rad of their plane,
 *       which passes whole.
 *     - The opposite angle swaps sky and ground.
 * Source: WNDRSL at the centres of nine bands of 10 degrees on either side of the horizon, each
 *     weighted with the integral of the cosine over the band: radiance uniform in the profile
 *     angle.
 */
QUORVEL_API void WNDFSL(const float *s, const float *w, const float *beta, const float *alpha,
                        float *t_sky, float *t_ground, float *a_sky, float *a_ground);

/*
 * WNDFS2 (two_faced_slat_diffuse): WNDFSL for slats with two different faces.
 * Given:
 *     s        float  m  0.005 .. 0.5  spacing of the slats; only s / w matters, in whatever unit
 *     w        float  m  0.01 .. 0.5   width of a slat
 *     beta     float  °  -90 .. 90     slat angle in degrees, as in WNDRSL
 *     alpha    float  1  0 .. 1        absorptance of the face that the beam strikes first
 *     alpha_b  float  1  0 .. 1        absorptance of the opposite face
 * Returned:
 *     t_sky     float  1    transmittance for radiation from above the horizon
 *     t_ground  float  1    transmittance for radiation from below it
 *     a_sky     float  1    absorptance for radiation from above the horizon
 *     a_ground  float  1    absorptance for radiation from below it
 * Notes:
 *     - alpha belongs to whichever face a beam strikes first. Slats with different upper and lower
 *       faces need two calls: with alpha of the upper face for the results of the sky, of the lower
 *       face for those of the ground. Beams between the horizon and the plane of the slats strike
 *       the other face all the same.
 *     - Unequal faces as in WNDRS2.
 * Source: WNDRS2, integrated as in WNDFSL.
 */
QUORVEL_API void WNDFS2(const float *s, const float *w, const float *beta, const float *alpha,
                        const float *alpha_b, float *t_sky, float *t_ground, float *a_sky,
                        float *a_ground);

/*
 * WNDFS3 (open_slat_diffuse): WNDFS2 for a blind that leaves a share of the radiation to pass
 *     untouched.
 * Given:
 *     s        float  m  0.005 .. 0.5  spacing of the slats; only s / w matters, in whatever unit
 *     w        float  m  0.01 .. 0.5   width of a slat
 *     beta     float  °  -90 .. 90     slat angle in degrees, as in WNDRSL
 *     f        float  1  0 .. 1        open share of the blind; 0 or less for none
 *     alpha    float  1  0 .. 1        absorptance of the face that the beam strikes first
 *     alpha_b  float  1  0 .. 1        absorptance of the opposite face
 * Returned:
 *     t_sky     float  1    transmittance for radiation from above the horizon
 *     t_ground  float  1    transmittance for radiation from below it
 *     a_sky     float  1    absorptance for radiation from above the horizon
 *     a_ground  float  1    absorptance for radiation from below it
 * Notes:
 *     - Faces as in WNDFS2, the open share as in WNDRS3.
 * Source: WNDRS3, integrated as in WNDFSL.
 */
QUORVEL_API void WNDFS3(const float *s, const float *w, const float *beta, const float *f,
                        const float *alpha, const float *alpha_b, float *t_sky, float *t_ground,
                        float *a_sky, float *a_ground);

/*
 * WNDFRO (diffuse_roller_blind): Transmittance, absorptance and reflectance of a roller blind for
 *     diffuse radiation.
 * Given:
 *     tau  float  1  0 .. 1  transmittance of the blind
 *     rho  float  1  0 .. 1  reflectance of the blind
 * Returned:
 *     t  float  1    transmittance, tau to rounding
 *     a  float  1    absorptance, 1 - tau - rho to rounding
 *     r  float  1    reflectance, 1 - t - a
 * Notes:
 *     - The blind is the same at every angle; the sum of the bands' weights, 0.9999999, remains as
 *       a factor.
 *     - Nothing is limited: tau + rho above 1 gives a negative absorptance.
 * Source: WNDRRO, integrated as in WNDFSL.
 */
QUORVEL_API void WNDFRO(const float *tau, const float *rho, float *t, float *a, float *r);

/*
 * WNCOMP (traced_layers): Transmittance, absorptance and reflectance of a stack of layers with the
 *     inter-reflections between all of them.
 * Given:
 *     n  int32_t     1 .. 11  number of layers; layer n is met first
 *     t  float    1  0 .. 1   transmittance of each layer, the same from both sides [n]
 *     a  float    1  0 .. 1   absorptance of each layer [n]
 *     r  float    1  0 .. 1   reflectance of each layer, the same from both sides [n]
 * Returned:
 *     t_total  float  1    transmittance of the stack
 *     a_total  float  1    absorptance of the stack
 *     r_total  float  1    reflectance of the stack
 * Notes:
 *     - In a pass the flux goes forward through all layers and back by one; nine passes are made.
 *       What needs more than eight steps back is missing from all three results: nothing of one
 *       layer; of two, the ninth power of the product of their reflectances as a share of the
 *       transmittance; of ten and eleven layers all that the last ones reflect.
 *     - A count below 1 is an empty stack, which transmits everything; no array is read. A count
 *       above 11 writes nothing.
 *     - That t, a and r of a layer add up to 1 is left to the caller.
 * Source: Tracing of one forward and one backward flux, which tends to the adding method.
 */
QUORVEL_API void WNCOMP(const int32_t *n, const float *t, const float *a, const float *r,
                        float *t_total, float *a_total, float *r_total);

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
