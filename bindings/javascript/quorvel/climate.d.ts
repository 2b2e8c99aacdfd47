export * from './routines/climate.js';
export { ClimateFile } from './climate_file.js';

/**
 * Climate data files in memory, by name, for the five routines that C has for them: stationRecords reads the file of a
 * name, the others go on with it. A ClimateFile needs no name.
 */
export declare const files: Map<string, Uint8Array>;
