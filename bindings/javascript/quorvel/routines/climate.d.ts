// Produced from the catalogue of routines (catalogue/); do not edit.
import type { Each, List } from '../numbers.js';
import type { BandSet, DayKind, FileUnit, SkyKind, SkyModel, TimeKind } from '../selectors.js';

/** What locateBand returns. */
export interface LocateBand<Integer = number, Real = number> {
  /** lower band, 1 to 9 */
  readonly lowerBand: Integer;
  /** upper band, 2 to 10 */
  readonly upperBand: Integer;
  /** (fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1 */
  readonly bandWeight: Real;
}

/**
 * Where a cumulative fraction of days lies among the ten bands of a month, in frequencies of the caller.
 *
 * - Fractions, where bandClimate takes a percentage.
 * - At or below the first band's frequency the weight is 0 or negative. Bands of equal frequency are skipped
 *   upwards, to band 10 at most; for a fraction equal to the frequencies of all the rest the weight is not a
 *   number.
 * - A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands 9 and 10 and a
 *   weight that is not a number.
 *
 * Source: Search for linear interpolation.
 *
 * @param fraction cumulative fraction of days; valid 0 to 1
 * @param month month; valid 1 to 12
 * @param frequencies cumulative frequencies of each band in each month, not falling with the band; valid 0 to 1
 * @see CLBAN1 of quorvel.h
 */
export function locateBand(fraction: number, month: number, frequencies: List): LocateBand;
export function locateBand(
  fraction: Each<number>,
  month: Each<number>,
  frequencies: List,
): LocateBand<Int32Array, Float32Array>;

/** What bandClimate returns. */
export interface BandClimate<Real = number> {
  /** cumulative percentage of days: given with band 0, otherwise returned [%]; as given with band 0 */
  readonly percentage: Real;
  /** quantity Q1: beam factor */
  readonly q1: Real;
  /** quantity Q2: diffuse factor */
  readonly q2: Real;
  /** quantity Q3: air temperature at time A [°C] */
  readonly q3: Real;
  /** quantity Q4: air temperature at time B [°C] */
  readonly q4: Real;
  /** quantity Q5: wet-bulb temperature at time A [°C] */
  readonly q5: Real;
  /** quantity Q6: wet-bulb temperature at time B [°C] */
  readonly q6: Real;
  /** time A, in the afternoon [h] */
  readonly timeA: Real;
  /** time B, about sunrise [h] */
  readonly timeB: Real;
  /** quantity Q7: cloud-free share of the sky [%] */
  readonly q7: Real;
  /** quantity Q8: wind speed [m/s] */
  readonly q8: Real;
}

/**
 * Monthly climate of one of ten bands of days, or interpolated at a cumulative percentage of days.
 *
 * - A percentage below band 1 extrapolates backwards from it, by the step to band 2 at most; one above 100 gives
 *   band 10.
 * - A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a set other than 2 as 1.
 *   A percentage that is not a number makes Q1 to Q8 not numbers.
 * - The table built in is representative and not measured; data/bands tells how it was made and how to build with
 *   data of your own. Q1 to Q8 mean what the table's maker says; the meanings here are those of the table built in.
 *
 * Source: Linear interpolation in the band table.
 *
 * @param band band, or 0 to interpolate at the percentage; valid 0 to 10
 * @param month month; valid 1 to 12
 * @param bandSet set of bands: 1 bands from the warmest to the coldest days, 2 bands from the highest to the lowest
 *   Q1
 * @param percentage cumulative percentage of days: given with band 0, otherwise returned [%]; valid 0 to 100
 * @see CLBAND of quorvel.h
 */
export function bandClimate(band: number, month: number, bandSet: BandSet, percentage: number): BandClimate;
export function bandClimate(
  band: Each<number>,
  month: Each<number>,
  bandSet: Each<BandSet>,
  percentage: Each<number>,
): BandClimate<Float32Array>;

/**
 * Value between two rows of the band table.
 *
 * - Rows baseRow + lowerBand and baseRow + upperBand outside 1 to 184 count as the nearest row, a month outside 1
 *   to 12 as the nearest month.
 *
 * Source: Linear interpolation in the band table.
 *
 * @param baseRow row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2 and so on in set 1; 92 more in set
 *   2; valid 0 to 174
 * @param lowerBand lower band; valid 1 to 10
 * @param upperBand upper band; valid 1 to 10
 * @param month month; valid 1 to 12
 * @param bandWeight share of the step from the lower to the upper row; valid -1 to 1
 * @returns value, in the quantity's unit
 * @see CLBAN2 of quorvel.h
 */
export function interpolateBandRows(
  baseRow: number,
  lowerBand: number,
  upperBand: number,
  month: number,
  bandWeight: number,
): number;
export function interpolateBandRows(
  baseRow: Each<number>,
  lowerBand: Each<number>,
  upperBand: Each<number>,
  month: Each<number>,
  bandWeight: Each<number>,
): Float32Array;

/**
 * One row of the band table, a value per month.
 *
 * - Rows of a set: 1 time A, 2 time B, 3 to 12 cumulative frequency F of bands 1 to 10, 13 to 22 Q1, 23 to 32 Q2
 *   and so on to Q8.
 * - A row below 1 counts as 1, above 184 as 184.
 *
 * Source: The band table; see data/bands.
 *
 * @param row row: 1 to 92 in set 1, 93 to 184 in set 2; valid 1 to 184
 * @returns values from January to December, in the row's unit
 * @see CLBAN3 of quorvel.h
 */
export function bandRow(row: number): Float32Array;
export function bandRow(row: Each<number>): Float32Array;

/**
 * Design day of a month as a day of the year, as designDay gives it.
 *
 * - A month outside 1 to 12 gives 0.
 * - The year has 365 days.
 *
 * Source: Table of customary design days, close to the 21st of each month.
 *
 * @param month month; valid 1 to 12
 * @returns design day of the year
 * @see CLDAY of quorvel.h
 */
export function storeDesignDay(month: number): number;
export function storeDesignDay(month: Each<number>): Int32Array;

/**
 * Design day of a month as a day of the year or of the month, as designDayByOption gives it.
 *
 * - The two counts are separate sets and not the same date: in February day 52 of the year (the 21st) stands beside
 *   the 20th.
 * - A month outside 1 to 12 gives 0; another way of counting counts as 2.
 *
 * Source: Table of customary design days, close to the 21st of each month.
 *
 * @param month month; valid 1 to 12
 * @param dayKind how the day is counted: 1 day of the month, 2 day of the year
 * @returns design day
 * @see CLDAYEX of quorvel.h
 */
export function storeDesignDayByOption(month: number, dayKind: DayKind): number;
export function storeDesignDayByOption(month: Each<number>, dayKind: Each<DayKind>): Int32Array;

/**
 * Design day of a month as a day of the year.
 *
 * - A month outside 1 to 12 gives 0.
 * - The year has 365 days.
 *
 * Source: Table of customary design days, close to the 21st of each month.
 *
 * @param month month; valid 1 to 12
 * @returns design day of the year
 * @see ICLDAY of quorvel.h
 */
export function designDay(month: number): number;
export function designDay(month: Each<number>): Int32Array;

/**
 * Design day of a month as a day of the year or of the month.
 *
 * - The two counts are separate sets and not the same date: in February day 52 of the year (the 21st) stands beside
 *   the 20th.
 * - A month outside 1 to 12 gives 0; another way of counting counts as 2.
 *
 * Source: Table of customary design days, close to the 21st of each month.
 *
 * @param month month; valid 1 to 12
 * @param dayKind how the day is counted: 1 day of the month, 2 day of the year
 * @returns design day
 * @see ICLDAYEX of quorvel.h
 */
export function designDayByOption(month: number, dayKind: DayKind): number;
export function designDayByOption(month: Each<number>, dayKind: Each<DayKind>): Int32Array;

/**
 * Second design day of a month as a day of the year.
 *
 * - A month outside 1 to 12 gives 0.
 * - The year has 365 days.
 *
 * Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
 *
 * @param month month; valid 1 to 12
 * @returns second design day of the year
 * @see ICLDA2 of quorvel.h
 */
export function secondDesignDay(month: number): number;
export function secondDesignDay(month: Each<number>): Int32Array;

/**
 * Second design day of a month as a day of the year or of the month.
 *
 * - Both counts are the same date here.
 * - A month outside 1 to 12 gives 0; another way of counting counts as 2.
 *
 * Source: Table of design days: about the 29th until May, 21 June, the 4th from July.
 *
 * @param month month; valid 1 to 12
 * @param dayKind how the day is counted: 1 day of the month, 2 day of the year
 * @returns second design day
 * @see ICLDA2EX of quorvel.h
 */
export function secondDesignDayByOption(month: number, dayKind: DayKind): number;
export function secondDesignDayByOption(month: Each<number>, dayKind: Each<DayKind>): Int32Array;

/**
 * Monthly records of a station, from a climate data file at given percentages of days.
 *
 * - Given in a record: 10 set of bands, rounded to the nearest integer (2 is set 2, any other set 1); 11 percentage
 *   of days. Returned, in the units of the file: 1 Q4, 2 Q6, 3 time B, 4 Q3, 5 Q5, 6 time A, 7 Q1 and 8 Q2 (not
 *   below 0), 9 Q7 (0 to 1). The times are copied as they are.
 * - A percentage at or below band 1's frequency gives band 1, one at or above band 10's gives band 10: nothing is
 *   extrapolated, unlike bandClimate. One that is not a number makes the quantities not numbers.
 * - A file that is missing, not a regular file, too short or unreadable ends the call.
 * - A month outside 0 to 12 counts as 1 or 12.
 * - The library keeps the word of the header that places the stations for as long as it is loaded: files read by
 *   one process must agree in it. It also keeps the record read last, whatever becomes of the file.
 * - The five routines of the climate data file share one state behind a lock. The file is open only during a call.
 * - A relative name counts from the folder that is current in this call; later calls find the file wherever the
 *   process has gone.
 * - The name is in UTF-8, on Windows too, where one that is not UTF-8 names no file; elsewhere its bytes are taken
 *   as they are. VBA's ByVal String passes the characters of ASCII so, and no others.
 * - The name ends with a NUL, which Fortran does not write after characters: pass trim(name)//char(0). In VBA
 *   declare the argument as ByVal String, in Pascal as PAnsiChar and pass PAnsiChar(UTF8String(name)): both add the
 *   NUL. At most 4096 characters are read, so that a text of that length which is filled up with blanks needs none;
 *   a shorter one is read beyond its end.
 *
 * Source: Linear interpolation in the bands of the climate data file.
 *
 * @param fileName name of the climate data file, in UTF-8; trailing blanks do not count
 * @param station station of the file; valid from 1
 * @param month month whose record is filled, 0 for all twelve; valid 0 to 12
 * @param stationRecords a record of 11 reals per month, see the notes
 * @returns a record of 11 reals per month, see the notes; as given from the first month on that cannot be read
 * @see CLBNF0 of quorvel.h
 */
export function stationRecords(fileName: string, station: number, month: number, stationRecords: List): Float32Array;

/** What stationClimate returns. */
export interface StationClimate<Real = number> {
  /** quantity Q1, not below 0; not a number when the file cannot be read, or with another unit */
  readonly q1: Real;
  /** quantity Q2, not below 0; not a number when the file cannot be read, or with another unit */
  readonly q2: Real;
  /** quantity Q3, in the unit of the file; not a number when the file cannot be read, or with another unit */
  readonly q3: Real;
  /** quantity Q4, in the unit of the file; not a number when the file cannot be read, or with another unit */
  readonly q4: Real;
  /** quantity Q5, in the unit of the file; not a number when the file cannot be read, or with another unit */
  readonly q5: Real;
  /** quantity Q6, in the unit of the file; not a number when the file cannot be read, or with another unit */
  readonly q6: Real;
  /** quantity Q7, a fraction, 0 to 1; not a number when the file cannot be read, or with another unit */
  readonly q7: Real;
  /** time A [h]; not a number when the file cannot be read, or with another unit */
  readonly timeA: Real;
  /** time B [h]; not a number when the file cannot be read, or with another unit */
  readonly timeB: Real;
}

/**
 * Monthly climate of one of ten bands of days of a station, or interpolated at a cumulative percentage of days.
 *
 * - Percentages as in stationRecords; unlike bandClimate, a band's own percentage is not returned.
 * - interpolateStationRows and stationRow go on with the unit and station given here even if nothing could be read.
 * - A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a set other than 2 as 1.
 *
 * Source: As stationRecords.
 *
 * @param fileUnit unit: 31 the file that stationRecords opened last
 * @param station station of the file; valid from 1
 * @param band band, or 0 to interpolate at the percentage; valid 0 to 10
 * @param month month; valid 1 to 12
 * @param bandSet set of bands: 1 set 1, 2 set 2
 * @param percentage cumulative percentage of days, used with band 0 [%]; valid 0 to 100
 * @see CLBNFI of quorvel.h
 */
export function stationClimate(
  fileUnit: FileUnit,
  station: number,
  band: number,
  month: number,
  bandSet: BandSet,
  percentage: number,
): StationClimate;

/** What locateStationBand returns. */
export interface LocateStationBand<Integer = number, Real = number> {
  /** lower band, 1 to 10 */
  readonly lowerBand: Integer;
  /** upper band, 1 to 10 */
  readonly upperBand: Integer;
  /** size of (fraction - F(lower)) / (F(upper) - F(lower)), at most 1 */
  readonly bandWeight: Real;
}

/**
 * Where a cumulative fraction of days lies among the ten bands of a month, in the frequencies that stationRecords
 *   or stationClimate read last.
 *
 * - At or below band 1's frequency both bands are 1, at or above band 10's both are 10, and the weight is 0. Bands
 *   of equal frequency are skipped.
 * - Before anything was read all frequencies are 0.
 * - A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands 9 and 10 and a
 *   weight that is not a number.
 *
 * Source: Search for linear interpolation.
 *
 * @param fraction cumulative fraction of days; valid 0 to 1
 * @param month month; valid 1 to 12
 * @see CLBNF1 of quorvel.h
 */
export function locateStationBand(fraction: number, month: number): LocateStationBand;

/**
 * Value between two rows of the station given to stationRecords or stationClimate last.
 *
 * - Rows baseRow + lowerBand and baseRow + upperBand outside 1 to 171 count as the nearest row of the station, a
 *   month outside 1 to 12 as the nearest month.
 *
 * Source: Linear interpolation in the bands of the climate data file.
 *
 * @param baseRow row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2 and so on in set 1; 82 more in set
 *   2; valid 2 to 154
 * @param lowerBand lower band; valid 1 to 10
 * @param upperBand upper band; valid 1 to 10
 * @param month month; valid 1 to 12
 * @param bandWeight share of the step from the lower to the upper row; valid -1 to 1
 * @returns value, in the quantity's unit; not a number when the file cannot be read
 * @see CLBNF2 of quorvel.h
 */
export function interpolateStationRows(
  baseRow: number,
  lowerBand: number,
  upperBand: number,
  month: number,
  bandWeight: number,
): number;

/**
 * One row of the station given to stationRecords or stationClimate last.
 *
 * - A station has 171 rows; numbers outside count as the first or the last.
 *
 * Source: Climate data file.
 *
 * @param row row: 1 time A, 2 time B, 3 to 12 F, 13 to 82 Q1 to Q7, ten each; 82 more in set 2; valid 1 to 171
 * @returns value of each month; not a number when the file cannot be read
 * @see CLBNF3 of quorvel.h
 */
export function stationRow(row: number): Float32Array;

/**
 * Temperature at an hour of a day, by half cosine waves between its highest and its lowest.
 *
 * Formula: m + a cos(pi h / L) after the highest, m - a cos(pi h / L) after the lowest; m = mean of both, a = half
 *   their difference, h = hours since the one passed last, L = hours from it to the other
 *
 * - The same before and after midnight if the next day is like this one.
 * - Hours of the extremes that coincide give the mean at every hour. With one at 0 and the other at 24 the wave
 *   through midnight has no length: at the later of the two the result is no number.
 * - Pi is 3.141593 here, a step above the float nearest to it, so the extremes are met to rounding.
 *
 * Source: Two half cosine waves.
 *
 * @param hour hour [h]; valid 0 to 24
 * @param highestTemperature highest temperature of the day [°C]; valid -100 to 200
 * @param lowestTemperature lowest temperature of the day [°C]; valid -100 to 200
 * @param hourOfHighest hour of the highest [h]; valid 0 to 24
 * @param hourOfLowest hour of the lowest [h]; valid 0 to 24
 * @returns temperature [°C]
 * @see CLTAO of quorvel.h
 */
export function dailyTemperature(
  hour: number,
  highestTemperature: number,
  lowestTemperature: number,
  hourOfHighest: number,
  hourOfLowest: number,
): number;
export function dailyTemperature(
  hour: Each<number>,
  highestTemperature: Each<number>,
  lowestTemperature: Each<number>,
  hourOfHighest: Each<number>,
  hourOfLowest: Each<number>,
): Float32Array;

/**
 * Value at an hour of a day that swings about its mean by half cosine waves between two hours.
 *
 * Formula: mean + a cos(pi (hour - firstHour) / (secondHour - firstHour)) between the two hours, mean - a cos(pi h
 *   / (firstHour + 24 - secondHour)) h hours after the second; a = amplitudeFactor amplitude
 *
 * - The order of the hours is not checked: with the second before the first, the wave that should go through
 *   midnight runs beyond its extreme.
 * - Pi as in dailyTemperature.
 *
 * Source: Two half cosine waves.
 *
 * @param hour hour [h]; valid 0 to 24
 * @param mean mean, in the unit of the result
 * @param amplitude half the difference of the extremes, in the same unit
 * @param firstHour hour of the first extreme, the highest if amplitude times amplitudeFactor is positive [h]; valid
 *   0 to 24
 * @param secondHour hour of the second extreme, after the first [h]; valid 0 to 24
 * @param amplitudeFactor factor on the amplitude
 * @returns value
 * @see CLTAOX of quorvel.h
 */
export function dailyValue(
  hour: number,
  mean: number,
  amplitude: number,
  firstHour: number,
  secondHour: number,
  amplitudeFactor: number,
): number;
export function dailyValue(
  hour: Each<number>,
  mean: Each<number>,
  amplitude: Each<number>,
  firstHour: Each<number>,
  secondHour: Each<number>,
  amplitudeFactor: Each<number>,
): Float32Array;

/** What designIrradiance returns. */
export interface DesignIrradiance<Real = number> {
  /** direct normal irradiance, the same for both skies [W/m²] */
  readonly directNormal: Real;
  /** diffuse irradiance on the horizontal [W/m²] */
  readonly diffuseHorizontal: Real;
}

/**
 * Design irradiance by solar altitude: direct normal and diffuse horizontal.
 *
 * Formula: directNormal = 1035.49 - 156.13 / a - 1.91863 / a^2 + 2.51353 / a^3 - 0.148842 / a^4; diffuseHorizontal
 *   = 1.52269 + 280.358 a - 375.111 a^2 + 253.716 a^3 - 63.3311 a^4 of the clear sky, 0.331322 + 283.1 a + 4.42111
 *   a^2 of the cloudy one; a = solarAltitude above 0.087
 *
 * - Both grow with the height by the factor of heightFactor.
 * - Up to 0.087 rad both are proportional to the altitude, also below 0, where they are negative. The direct
 *   irradiance falls by 2 W/m² where the polynomial takes over.
 * - An altitude beyond 1.5707964 in size gives two zeros. A sky kind below 0 counts as 0, above 1 as 1.
 *
 * Source: Polynomials through the design irradiances of a clear and a cloudy sky that building services guides
 *   print.
 *
 * @param solarAltitude solar altitude [rad]; valid 0 to 1.5707964
 * @param siteHeight height of the site above sea level [m]; valid 0 to 4000
 * @param skyKind kind of sky: 0 clear, 1 cloudy: the larger diffuse irradiance
 * @see CLSNNR of quorvel.h
 */
export function designIrradiance(solarAltitude: number, siteHeight: number, skyKind: SkyKind): DesignIrradiance;
export function designIrradiance(
  solarAltitude: Each<number>,
  siteHeight: Each<number>,
  skyKind: Each<SkyKind>,
): DesignIrradiance<Float32Array>;

/**
 * Factor by which irradiance grows with the height of the site.
 *
 * Formula: 1.02 + siteHeight (0.00002 + 0.00005 / sin(solarAltitude))
 *
 * - 1 below 300 m, and for suns whose sine of altitude is below 0.08; the factor jumps from 1 to 1.041 or more at
 *   300 m.
 *
 * Source: Linear fit to height corrections of design irradiance.
 *
 * @param siteHeight height of the site above sea level [m]; valid 0 to 4000
 * @param solarAltitude solar altitude [rad]; valid 0 to 1.5707964
 * @returns factor
 * @see CLHIGH of quorvel.h
 */
export function heightFactor(siteHeight: number, solarAltitude: number): number;
export function heightFactor(siteHeight: Each<number>, solarAltitude: Each<number>): Float32Array;

/**
 * Irradiance outside the atmosphere on a day, by that at the mean distance of the sun.
 *
 * Formula: 1 + 0.03344 cos((360 day / 365.25 - 2.8) pi / 180)
 *
 * - 0.967 to 1.033; greatest in the first days of January.
 *
 * Source: Correction of the European Solar Radiation Atlas, 1 + 0.03344 cos(day angle - 2.8 degrees).
 *
 * @param day day of the year; valid 1 to 366
 * @returns factor
 * @see CLETAJ of quorvel.h
 */
export function eccentricityFactor(day: number): number;
export function eccentricityFactor(day: Each<number>): Float32Array;

/**
 * Global horizontal irradiance by that outside the atmosphere.
 *
 * Formula: globalHorizontal / (1367 eccentricityFactor(day) sin(solarAltitude))
 *
 * - An altitude of 0 divides by zero: infinite, or not a number for an irradiance of 0.
 *
 * Source: B. Y. H. Liu and R. C. Jordan, Solar Energy 4 (1960), with a solar constant of 1367 W/m² and the
 *   eccentricity of eccentricityFactor.
 *
 * @param day day of the year; valid 1 to 366
 * @param solarAltitude solar altitude [rad]; valid 0 to 1.5707964
 * @param globalHorizontal global horizontal irradiance [W/m²]; valid from 0
 * @returns clearness index
 * @see CLMODUL of quorvel.h
 */
export function clearnessIndex(day: number, solarAltitude: number, globalHorizontal: number): number;
export function clearnessIndex(
  day: Each<number>,
  solarAltitude: Each<number>,
  globalHorizontal: Each<number>,
): Float32Array;

/** What muneerSlope returns. */
export interface MuneerSlope<Real = number> {
  /** beam irradiance on the surface, 0 with the sun behind it [W/m²] */
  readonly surfaceBeam: Real;
  /** diffuse irradiance of the sky on the surface [W/m²] */
  readonly surfaceDiffuse: Real;
  /** ground-reflected irradiance on the surface [W/m²] */
  readonly groundReflected: Real;
  /** angle of incidence, 1.5707964 with the sun behind the surface [rad] */
  readonly incidence: Real;
}

/**
 * Irradiance on a tilted surface by Muneer's sky: beam, sky diffuse and ground-reflected.
 *
 * Formula: surfaceBeam = beamHorizontal cos(i) / sin(h); surfaceDiffuse = diffuseHorizontal (f (1 - K) + K cos(i) /
 *   sin(h)); groundReflected = groundReflectance (beamHorizontal + diffuseHorizontal) sin(b / 2)^2; f = cos(b /
 *   2)^2 + 2 r / (pi (2 r + 3)) (sin(b) - b cos(b) - pi sin(b / 2)^2), K = beamHorizontal /
 *   extraterrestrialHorizontal, h = solarAltitude, b = tilt, i = angle of incidence
 *
 * - Radiance index r = 5.73 with the sun behind the surface; else 1.68 for a beam below 5 W/m² and -0.62 from there
 *   on. The circumsolar part starts above 5: exactly 5 takes -0.62 without it: deliberate.
 * - With the sun behind the surface cos(i) counts as 0; there, and up to a beam of 5 W/m², K does too.
 * - A sun up to 0.1 rad above the horizon has a form of its own: the diffuse irradiance times the cosine of the
 *   angle of incidence, brightened with the tilt. The result jumps there and at the thresholds of the beam.
 * - That form does not become the diffuse irradiance on the horizontal, as it does above 0.1 rad: there it is the
 *   diffuse irradiance times the sine of the altitude, 10 of 100 W/m² at 0.0999 rad and 1 at 0.01 rad, and on a
 *   wall that faces the sun 135.
 * - Computed in double precision: 0.1 as a single-precision altitude lies above the limit.
 * - The beam is divided by the sine of the altitude: an altitude of 0 gives an infinite beam on the surface, or no
 *   number.
 *
 * Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and Technology 11
 *   (1990); radiance of the sky after P. Moon and D. E. Spencer (1942).
 *
 * @param solarAltitude solar altitude [rad]; valid 0 to 1.5707964
 * @param solarAzimuth solar azimuth [rad]; valid 0 to 6.2832
 * @param surfaceAzimuth azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
 * @param tilt tilt from the horizontal [rad]; valid 0 to 3.1416
 * @param beamHorizontal beam irradiance on the horizontal [W/m²]; valid from 0
 * @param diffuseHorizontal diffuse irradiance on the horizontal [W/m²]; valid from 0
 * @param extraterrestrialHorizontal irradiance on the horizontal outside the atmosphere [W/m²]; valid 0 to 1415
 * @param groundReflectance reflectance of the ground; valid 0 to 1
 * @see CLMUNRAD of quorvel.h
 */
export function muneerSlope(
  solarAltitude: number,
  solarAzimuth: number,
  surfaceAzimuth: number,
  tilt: number,
  beamHorizontal: number,
  diffuseHorizontal: number,
  extraterrestrialHorizontal: number,
  groundReflectance: number,
): MuneerSlope;
export function muneerSlope(
  solarAltitude: Each<number>,
  solarAzimuth: Each<number>,
  surfaceAzimuth: Each<number>,
  tilt: Each<number>,
  beamHorizontal: Each<number>,
  diffuseHorizontal: Each<number>,
  extraterrestrialHorizontal: Each<number>,
  groundReflectance: Each<number>,
): MuneerSlope<Float32Array>;

/**
 * Diffuse irradiance of the sky on a tilted surface by the anisotropic sky of Perez.
 *
 * Formula: diffuseHorizontal ((1 - F1) cos(tilt / 2)^2 + F1 a / b + F2 sin(tilt)); a = cos(incidence), at least 0,
 *   b = sin(solarAltitude), at least 0.0871557; F1 = f11 + f12 D + f13 Z, at least 0, F2 = f21 + f22 D + f23 Z
 *
 * - The air mass is that of Kasten and Young with the altitude in radians in place of degrees: 16 % too small for
 *   the sun at 2.5 degrees, 4 % at 30 and 2 % in the zenith: deliberate.
 * - The circumsolar part is not below 0, the horizon's part may be; the sum is not limited.
 * - Computed in double precision, coefficients and limits included; a clearness on the limit of two rows of
 *   coefficients belongs to the lower. The result jumps between rows, as the published model does.
 * - Altitude, diffuse and extraterrestrial irradiance of 0 divide by zero.
 * - The formula's Z is the sun's angle from the zenith, D the brightness: the air mass times diffuseHorizontal /
 *   extraterrestrialNormal. The coefficients f are those of the row of the clearness.
 *
 * Source: R. Perez, P. Ineichen, R. Seals, J. Michalsky and R. Stewart, Modeling daylight availability and
 *   irradiance components from direct and global irradiance, Solar Energy 44 (1990): composite of all sites,
 *   coefficients with all their places. Air mass: F. Kasten and A. T. Young, Applied Optics 28 (1989).
 *
 * @param solarAltitude solar altitude [rad]; valid 0 to 1.5707964
 * @param tilt tilt from the horizontal [rad]; valid 0 to 3.1416
 * @param beamHorizontal beam irradiance on the horizontal [W/m²]; valid from 0
 * @param diffuseHorizontal diffuse irradiance on the horizontal [W/m²]; valid from 0
 * @param incidence angle of incidence of the sun on the surface [rad]; valid 0 to 3.1416
 * @param extraterrestrialNormal normal irradiance outside the atmosphere [W/m²]; valid 1320 to 1415
 * @returns diffuse irradiance of the sky on the surface [W/m²]
 * @see CLPERSKY of quorvel.h
 */
export function perezDiffuse(
  solarAltitude: number,
  tilt: number,
  beamHorizontal: number,
  diffuseHorizontal: number,
  incidence: number,
  extraterrestrialNormal: number,
): number;
export function perezDiffuse(
  solarAltitude: Each<number>,
  tilt: Each<number>,
  beamHorizontal: Each<number>,
  diffuseHorizontal: Each<number>,
  incidence: Each<number>,
  extraterrestrialNormal: Each<number>,
): Float32Array;

/** What siteConstants returns. */
export interface SiteConstants<Real = number> {
  /** reflectance of the ground */
  readonly groundReflectance: Real;
  /** factor on the direct normal irradiance */
  readonly beamFactor: Real;
  /** factor on the diffuse horizontal irradiance */
  readonly diffuseFactor: Real;
  /** factor that takes its place where it is 0 */
  readonly alternativeDiffuseFactor: Real;
}

/**
 * Radiation constants of a site class in a month.
 *
 * - Only class 1 varies over the year. Classes 4 and 6 have a diffuse factor of 0 and the alternative one in its
 *   place; the caller chooses.
 * - A site class outside 1 to 6 or a month outside 1 to 12 gives four zeros.
 *
 * Source: Table of design constants of the library.
 *
 * @param siteClass site class; valid 1 to 6
 * @param month month; valid 1 to 12
 * @see CLCONS of quorvel.h
 */
export function siteConstants(siteClass: number, month: number): SiteConstants;
export function siteConstants(siteClass: Each<number>, month: Each<number>): SiteConstants<Float32Array>;

/**
 * Diffuse irradiance of the sky on a tilted surface without circumsolar part, by that on the horizontal.
 *
 * Formula: cos(b / 2)^2 + a (sin(b) - b cos(b) - pi sin(b / 2)^2), b = tilt; model 0: a = 2 r / (pi (2 r + 3)),
 *   model 1: 0.00333 - 0.415 K - 0.6987 K^2, model 2: 0.00263 - 0.712 K - 0.6883 K^2; K = beamHorizontal / (1367
 *   eccentricityFactor(day) sin(solarAltitude))
 *
 * - Model 0 takes the radiance index r = 5.73 up to an altitude of 0, 1.68 for a beam below 5 W/m² and -0.62
 *   otherwise; the side of the surface does not matter here.
 * - Models 1 and 2 divide by the sine of the altitude: at 0 the factor is infinite or no number.
 *
 * Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and Technology 11
 *   (1990), with a solar constant of 1367 W/m² and the eccentricity of eccentricityFactor.
 *
 * @param day day of the year; valid 1 to 366
 * @param solarAltitude solar altitude [rad]; valid 0 to 1.5707964
 * @param beamHorizontal beam irradiance on the horizontal [W/m²]; valid from 0
 * @param tilt tilt from the horizontal [rad]; valid 0 to 3.1416
 * @param skyModel model of the sky: 0 radiance index by the kind of sky, 1 clearness, northern Europe, 2 clearness,
 *   southern Europe, as any other value
 * @returns factor, 1 for a horizontal surface
 * @see CLDIFRAD of quorvel.h
 */
export function diffuseTiltFactor(
  day: number,
  solarAltitude: number,
  beamHorizontal: number,
  tilt: number,
  skyModel: SkyModel,
): number;
export function diffuseTiltFactor(
  day: Each<number>,
  solarAltitude: Each<number>,
  beamHorizontal: Each<number>,
  tilt: Each<number>,
  skyModel: Each<SkyModel>,
): Float32Array;

/**
 * Diffuse irradiance of the sky on a tilted surface by day of the year and model of the sky.
 *
 * Formula: diffuseHorizontal (f (1 - K) + K cos(i) / sin(solarAltitude)); f = diffuseTiltFactor, i = angle of
 *   incidence
 *
 * - The factor of diffuseTiltFactor and a circumsolar part, weighted by the clearness of the beam. A sun behind the
 *   surface has no circumsolar part, as one whose direction is not a number.
 * - From a beam of 5 W/m² on, a sun below 0.1 rad has a form of its own, which follows the clearness but not the
 *   model. The result jumps there.
 * - On the horizontal the result is the diffuse irradiance, but for that form, which brightens it around the sun:
 *   at 0.0999 rad by 0.4 % for a beam of 50 W/m² and by 4.5 % for 600.
 * - Divides by the sine of the altitude: at 0 the result is infinite or no number.
 * - K is that of diffuseTiltFactor.
 *
 * Source: As diffuseTiltFactor. Low sun: the clear sky of R. C. Temps and K. L. Coulson (Solar Energy 19, 1977)
 *   with the modulation by T. M. Klucher (Solar Energy 23, 1979), the beam clearness in place of his factor.
 *
 * @param day day of the year; valid 1 to 366
 * @param solarAltitude solar altitude [rad]; valid 0 to 1.5707964
 * @param solarAzimuth solar azimuth [rad]; valid 0 to 6.2832
 * @param surfaceAzimuth azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
 * @param tilt tilt from the horizontal [rad]; valid 0 to 3.1416
 * @param beamHorizontal beam irradiance on the horizontal [W/m²]; valid from 0
 * @param diffuseHorizontal diffuse irradiance on the horizontal [W/m²]; valid from 0
 * @param skyModel model of the sky: 0 radiance index by the kind of sky, 1 clearness, northern Europe, 2 clearness,
 *   southern Europe, as any other value
 * @returns diffuse irradiance of the sky on the surface [W/m²]
 * @see CLDIFSLO of quorvel.h
 */
export function slopeDiffuse(
  day: number,
  solarAltitude: number,
  solarAzimuth: number,
  surfaceAzimuth: number,
  tilt: number,
  beamHorizontal: number,
  diffuseHorizontal: number,
  skyModel: SkyModel,
): number;
export function slopeDiffuse(
  day: Each<number>,
  solarAltitude: Each<number>,
  solarAzimuth: Each<number>,
  surfaceAzimuth: Each<number>,
  tilt: Each<number>,
  beamHorizontal: Each<number>,
  diffuseHorizontal: Each<number>,
  skyModel: Each<SkyModel>,
): Float32Array;

/**
 * Temperature of the sol-air kind: a base temperature raised by a net gain of heat.
 *
 * Formula: baseTemperature + absorptance (irradiance - longWaveLoss) / surfaceCoefficient
 *
 * - The absorptance weighs the long-wave loss as it does the irradiance.
 * - A coefficient of 0 divides by zero.
 *
 * Source: Heat balance of an outer surface.
 *
 * @param baseTemperature base temperature, as of the air outdoors [°C]; valid -100 to 200
 * @param surfaceCoefficient heat transfer coefficient of the surface [W/m²K]; valid from 0
 * @param absorptance absorptance; valid 0 to 1
 * @param irradiance solar irradiance on the surface [W/m²]; valid from 0
 * @param longWaveLoss net loss [W/m²]; valid from 0
 * @returns sol-air temperature [°C]
 * @see CLTEO of quorvel.h
 */
export function solAirTemperature(
  baseTemperature: number,
  surfaceCoefficient: number,
  absorptance: number,
  irradiance: number,
  longWaveLoss: number,
): number;
export function solAirTemperature(
  baseTemperature: Each<number>,
  surfaceCoefficient: Each<number>,
  absorptance: Each<number>,
  irradiance: Each<number>,
  longWaveLoss: Each<number>,
): Float32Array;

/**
 * Net long-wave radiation that a surface loses to its surroundings, never negative.
 *
 * Formula: 72 cos(tilt) + 21 - (62 cos(tilt) + 17) cloudCover, at least 0
 *
 * - Horizontal 93 - 79 cloudCover, vertical 21 - 17 cloudCover, between them by the cosine of the tilt. Less than
 *   nothing is 0; not a number stays so.
 *
 * Source: Net long-wave losses of horizontal and vertical surfaces by cloud cover, as building services guides
 *   print them; meaning of the arguments inferred from these values.
 *
 * @param tilt tilt from the horizontal [rad]; valid 0 to 3.1416
 * @param cloudCover share of the sky that is covered by cloud; valid 0 to 1
 * @returns net loss [W/m²]
 * @see CLRERD of quorvel.h
 */
export function longWaveLoss(tilt: number, cloudCover: number): number;
export function longWaveLoss(tilt: Each<number>, cloudCover: Each<number>): Float32Array;

/**
 * What is to be added to clock time to get solar time.
 *
 * Formula: equation of time - clockOffset - (longitude - referenceLongitude) / 0.2618
 *
 * - Only the difference of the longitudes counts. Given positive east instead, it enters with the wrong sign.
 * - The equation of time stays within 0.7 min of the true one.
 * - The hour is rounded to 0.2618 rad here and not in solarGeometry: deliberate.
 *
 * Source: Fourier series of the equation of time to the third harmonic, of the kind given by J. W. Spencer, Search
 *   2 (1971); coefficients refitted.
 *
 * @param clockOffset hours by which the clock is put forward, as in summer time [h]
 * @param day day of the year; valid 1 to 366
 * @param longitude longitude of the site, positive west [rad]; valid -3.1416 to 3.1416
 * @param referenceLongitude longitude of the clock's meridian, positive west [rad]; valid -3.1416 to 3.1416
 * @returns correction [h]
 * @see CLTCOR of quorvel.h
 */
export function solarTimeCorrection(
  clockOffset: number,
  day: number,
  longitude: number,
  referenceLongitude: number,
): number;
export function solarTimeCorrection(
  clockOffset: Each<number>,
  day: Each<number>,
  longitude: Each<number>,
  referenceLongitude: Each<number>,
): Float32Array;

/** What almanacPosition returns. */
export interface AlmanacPosition<Real = number> {
  /** longitude, positive west [rad]; as given except with solar time */
  readonly longitude: Real;
  /** longitude of the clock's meridian, positive west [rad]; as given except with solar time */
  readonly zoneMeridian: Real;
  /** altitude, negative below the horizon; no refraction [rad] */
  readonly solarAltitude: Real;
  /** azimuth [rad] */
  readonly solarAzimuth: Real;
  /** declination [rad] */
  readonly declination: Real;
}

/**
 * Altitude, azimuth and declination of the sun by calendar date and clock.
 *
 * - Within 0.03 degrees, and of the azimuth 0.1 degrees where the sun is near due south or north, since a cosine of
 *   azimuth beyond 0.999999 in size counts as 1. Of this 0.02 degrees come from a misplaced degree factor in the
 *   equation of the centre: deliberate.
 * - The hour angle is not brought into -180 to 180 degrees. Its sign decides between morning and afternoon, so
 *   within an hour of midnight the azimuth may be the mirror image.
 * - A kind of time other than 1 and 2 counts as 3. Date and hour are not checked: a day beyond the month's end
 *   counts on into the next month. Before March 1976 three years of four are a day late; 2100 is given a leap day.
 *
 * Source: Low-precision formulas of B. D. Yallop for the sun, as printed in T. Muneer, Solar Radiation and Daylight
 *   Models for the Energy Efficient Design of Buildings, 1997.
 *
 * @param timeKind what the time is: 1 solar time; longitude and zone meridian are set to 0, 2 clock of the zone, at
 *   the longitude, 3 solar time; the zone meridian only dates the declination
 * @param year year; valid 1976 to 2099
 * @param month month; valid 1 to 12
 * @param dayOfMonth day of the month; valid 1 to 31
 * @param clockTime clock hour [h]; valid 0 to 24
 * @param latitude latitude, positive north [rad]; valid -1.5707964 to 1.5707964
 * @param longitude longitude, positive west [rad]; valid -3.1416 to 3.1416
 * @param zoneMeridian longitude of the clock's meridian, positive west [rad]; valid -3.1416 to 3.1416
 * @see CLYALLOP of quorvel.h
 */
export function almanacPosition(
  timeKind: TimeKind,
  year: number,
  month: number,
  dayOfMonth: number,
  clockTime: number,
  latitude: number,
  longitude: number,
  zoneMeridian: number,
): AlmanacPosition;
export function almanacPosition(
  timeKind: Each<TimeKind>,
  year: Each<number>,
  month: Each<number>,
  dayOfMonth: Each<number>,
  clockTime: Each<number>,
  latitude: Each<number>,
  longitude: Each<number>,
  zoneMeridian: Each<number>,
): AlmanacPosition<Float32Array>;

/** What almanacSunHours returns. */
export interface AlmanacSunHours<Real = number> {
  /** sunrise; 25 when the sun does not rise, 0 when it does not set [h] */
  readonly sunrise: Real;
  /** sunset; 25 when the sun does not set, 0 when it does not rise [h] */
  readonly sunset: Real;
}

/**
 * Sunrise and sunset in solar time by calendar date.
 *
 * - The centre of the sun on a level horizon without refraction, with the declination of noon at Greenwich.
 * - Dates as in almanacPosition. A latitude of 1.5707964, or its negative, is by rounding just beyond the pole:
 *   midnight sun and polar night change places there.
 *
 * Source: Declination as almanacPosition; sunrise equation.
 *
 * @param year year; valid 1976 to 2099
 * @param month month; valid 1 to 12
 * @param dayOfMonth day of the month; valid 1 to 31
 * @param latitude latitude, positive north [rad]; valid -1.5707964 to 1.5707964
 * @see CLRISESET of quorvel.h
 */
export function almanacSunHours(year: number, month: number, dayOfMonth: number, latitude: number): AlmanacSunHours;
export function almanacSunHours(
  year: Each<number>,
  month: Each<number>,
  dayOfMonth: Each<number>,
  latitude: Each<number>,
): AlmanacSunHours<Float32Array>;

/** What solarGeometry returns. */
export interface SolarGeometry<Real = number> {
  /** declination [rad] */
  readonly declination: Real;
  /** altitude, 0 when the sun is below the horizon [rad] */
  readonly solarAltitude: Real;
  /** azimuth, 0 when the sun is below the horizon [rad] */
  readonly solarAzimuth: Real;
  /** sunrise; 25 when the sun does not rise, 0 when it does not set [h]; not a number with latitude, day or hour
   * outside its range */
  readonly sunrise: Real;
  /** sunset; 25 when the sun does not set, 0 when it does not rise [h]; not a number with latitude, day or hour outside
   * its range */
  readonly sunset: Real;
}

/**
 * Declination, altitude and azimuth of the sun, sunrise and sunset, by latitude, day of the year and solar hour.
 *
 * Formula: sin(declination) = 0.398 sin(d - 1.4096 + 0.03347 sin(d)), d = 0.01721 day; sin(altitude) =
 *   sin(declination) sin(latitude) + cos(declination) cos(latitude) cos(H), H = 0.261799395 (12 - solarTime);
 *   sunrise = 12 / pi acos(tan(latitude) tan(declination)), sunset = 24 - sunrise
 *
 * - Latitude, day or hour outside its range (day 366 too) gives a declination, altitude and azimuth of 0.
 * - Within 0.5 degrees of the true position; no leap years, no refraction, the sun a point.
 * - Noon counts as morning. With the sun in the zenith the azimuth is arbitrary.
 * - A latitude of 1.5707964, or its negative, is by rounding just beyond the pole: midnight sun and polar night
 *   change places there.
 * - Not a number for the latitude or the hour makes what depends on it not a number.
 *
 * Source: Spherical astronomy; sine of the declination as 0.398 times the sine of the sun's ecliptic longitude,
 *   with the first-order equation of the centre.
 *
 * @param latitude latitude, positive north [rad]; valid -1.5707964 to 1.5707964
 * @param day day of the year; valid 1 to 365
 * @param solarTime solar time, noon at 12 [h]; valid 0 to 24
 * @see CLSNGE of quorvel.h
 */
export function solarGeometry(latitude: number, day: number, solarTime: number): SolarGeometry;
export function solarGeometry(
  latitude: Each<number>,
  day: Each<number>,
  solarTime: Each<number>,
): SolarGeometry<Float32Array>;

/** What surfaceAngles returns. */
export interface SurfaceAngles<Real = number> {
  /** angle of incidence, 0 to pi; above pi/2 the sun is behind the surface [rad] */
  readonly incidence: Real;
  /** angle off the normal in the plane of normal and slope, positive up the slope; the profile angle of a vertical
   * surface [rad] */
  readonly verticalShadowAngle: Real;
  /** angle off the normal in the plane of normal and level line, positive clockwise seen from above [rad] */
  readonly horizontalShadowAngle: Real;
}

/**
 * Angle of incidence of the sun on a surface, and its angles in the vertical and the horizontal sense.
 *
 * Formula: cos(incidence) = cos(solarAltitude) sin(tilt) cos(solarAzimuth - surfaceAzimuth) + sin(solarAltitude)
 *   cos(tilt)
 *
 * - With the sun behind the surface the two angles exceed pi/2 in size.
 * - With the sun along the level line the vertical angle is pi/2, with the sun along the slope line the horizontal
 *   angle is -pi/2: exactly so only where the components vanish, anything by rounding otherwise.
 * - The components are rounded, so angles below 0.0005 rad are not resolved.
 *
 * Source: Vector algebra: the sun's direction in the frame of level line, slope line and outward normal.
 *
 * @param solarAltitude solar altitude [rad]; valid -1.5707964 to 1.5707964
 * @param solarAzimuth solar azimuth [rad]; valid 0 to 6.2832
 * @param surfaceAzimuth azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
 * @param tilt tilt from the horizontal [rad]; valid 0 to 3.1416
 * @see CLSNSR of quorvel.h
 */
export function surfaceAngles(
  solarAltitude: number,
  solarAzimuth: number,
  surfaceAzimuth: number,
  tilt: number,
): SurfaceAngles;
export function surfaceAngles(
  solarAltitude: Each<number>,
  solarAzimuth: Each<number>,
  surfaceAzimuth: Each<number>,
  tilt: Each<number>,
): SurfaceAngles<Float32Array>;

/** What surfaceIrradiance returns. */
export interface SurfaceIrradiance<Real = number> {
  /** beam irradiance on the surface, 0 with the sun behind it [W/m²] */
  readonly surfaceBeam: Real;
  /** diffuse irradiance of the sky on the surface [W/m²] */
  readonly surfaceDiffuse: Real;
  /** ground-reflected irradiance on the surface [W/m²] */
  readonly groundReflected: Real;
}

/**
 * Irradiance on the plane of a surface: direct from the sun, diffuse from the sky, reflected from the ground.
 *
 * Formula: surfaceBeam = directNormal beamFactor cos(i); surfaceDiffuse = d (1 + cos(tilt)) / 2 (1 - 0.1 sin(tilt)
 *   (1 + cos(surfaceAzimuth))); groundReflected = groundReflectance (1 - cos(tilt)) / 2 (d + directNormal
 *   beamFactor sin(solarAltitude)); d = diffuseHorizontal diffuseFactor, i = angle of incidence, the beam 0 behind
 *   the surface
 *
 * - A vertical surface gets up to 20 % less diffuse irradiance the more it faces north, whatever the hemisphere.
 * - Nothing is limited: a negative altitude or irradiance gives negative parts. An angle that is not a number gives
 *   a direct irradiance of 0.
 *
 * Source: Cosine law; isotropic sky and ground by view factors (B. Y. H. Liu and R. C. Jordan, Solar Energy 4,
 *   1960), with an empirical darkening to the north.
 *
 * @param solarAltitude solar altitude [rad]; valid 0 to 1.5707964
 * @param solarAzimuth solar azimuth [rad]; valid 0 to 6.2832
 * @param surfaceAzimuth azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
 * @param tilt tilt from the horizontal [rad]; valid 0 to 3.1416
 * @param directNormal direct normal irradiance [W/m²]; valid from 0
 * @param diffuseHorizontal diffuse irradiance on the horizontal [W/m²]; valid from 0
 * @param groundReflectance reflectance of the ground; valid 0 to 1
 * @param beamFactor factor on the direct normal irradiance; valid from 0
 * @param diffuseFactor factor on the diffuse horizontal irradiance; valid from 0
 * @see CLSORD of quorvel.h
 */
export function surfaceIrradiance(
  solarAltitude: number,
  solarAzimuth: number,
  surfaceAzimuth: number,
  tilt: number,
  directNormal: number,
  diffuseHorizontal: number,
  groundReflectance: number,
  beamFactor: number,
  diffuseFactor: number,
): SurfaceIrradiance;
export function surfaceIrradiance(
  solarAltitude: Each<number>,
  solarAzimuth: Each<number>,
  surfaceAzimuth: Each<number>,
  tilt: Each<number>,
  directNormal: Each<number>,
  diffuseHorizontal: Each<number>,
  groundReflectance: Each<number>,
  beamFactor: Each<number>,
  diffuseFactor: Each<number>,
): SurfaceIrradiance<Float32Array>;

/** What surfaceIrradianceAndIncidence returns. */
export interface SurfaceIrradianceAndIncidence<Real = number> {
  /** beam irradiance on the surface, 0 with the sun behind it [W/m²] */
  readonly surfaceBeam: Real;
  /** diffuse irradiance of the sky on the surface [W/m²] */
  readonly surfaceDiffuse: Real;
  /** ground-reflected irradiance on the surface [W/m²] */
  readonly groundReflected: Real;
  /** angle of incidence, 1.5707964 with the sun behind the surface [rad] */
  readonly incidence: Real;
}

/**
 * Irradiance on the plane of a surface as surfaceIrradiance, and the angle of incidence.
 *
 * - The irradiances are those of surfaceIrradiance, bit for bit; see there.
 * - surfaceAngles gives the angle of incidence behind the surface too.
 *
 * Source: As surfaceIrradiance.
 *
 * @param solarAltitude solar altitude [rad]; valid 0 to 1.5707964
 * @param solarAzimuth solar azimuth [rad]; valid 0 to 6.2832
 * @param surfaceAzimuth azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
 * @param tilt tilt from the horizontal [rad]; valid 0 to 3.1416
 * @param directNormal direct normal irradiance [W/m²]; valid from 0
 * @param diffuseHorizontal diffuse irradiance on the horizontal [W/m²]; valid from 0
 * @param groundReflectance reflectance of the ground; valid 0 to 1
 * @param beamFactor factor on the direct normal irradiance; valid from 0
 * @param diffuseFactor factor on the diffuse horizontal irradiance; valid from 0
 * @see CLSOR2 of quorvel.h
 */
export function surfaceIrradianceAndIncidence(
  solarAltitude: number,
  solarAzimuth: number,
  surfaceAzimuth: number,
  tilt: number,
  directNormal: number,
  diffuseHorizontal: number,
  groundReflectance: number,
  beamFactor: number,
  diffuseFactor: number,
): SurfaceIrradianceAndIncidence;
export function surfaceIrradianceAndIncidence(
  solarAltitude: Each<number>,
  solarAzimuth: Each<number>,
  surfaceAzimuth: Each<number>,
  tilt: Each<number>,
  directNormal: Each<number>,
  diffuseHorizontal: Each<number>,
  groundReflectance: Each<number>,
  beamFactor: Each<number>,
  diffuseFactor: Each<number>,
): SurfaceIrradianceAndIncidence<Float32Array>;
