import type { BandSet } from './selectors.js';
import type { LocateStationBand, StationClimate } from './routines/climate.js';

/**
 * Band climate of many stations, monthly, from the bytes of a climate data file. Objects have nothing in common, those
 * of one file either. What cannot be read throws a RangeError.
 */
export declare class ClimateFile {
  constructor(bytes: Uint8Array);

  /**
   * Climate of a month, 1 to 12: of a band from 1 to 10, or else at a cumulative percentage of days. The quantities are
   * in the units of the file (Q1 and Q2 not below 0, Q7 from 0 to 1), the times hours of the day. [CLBNFI]
   */
  stationClimate(
    station: number, month: number, options?: { band?: number; percentage?: number; bandSet?: BandSet },
  ): StationClimate;

  /** Where a cumulative fraction of days lies among the ten bands of a month. [CLBNF1] */
  locateStationBand(
    station: number, month: number, fraction: number, options?: { bandSet?: BandSet },
  ): LocateStationBand;

  /** Value between the rows baseRow + lowerBand and baseRow + upperBand. [CLBNF2] */
  interpolateStationRows(station: number, month: number, baseRow: number, band: LocateStationBand): number;

  /**
   * A row from 1 to 171, a value for each month: 1 time A, 2 time B, 3 to 12 frequencies of the bands, 13 to 82 Q1 to
   * Q7, ten each; 82 more in set 2. [CLBNF3]
   */
  stationRow(station: number, row: number): Float32Array;

  /** Lets go of the bytes; where it is not called, that happens with the object. */
  close(): void;
}
