export * from './routines/climate.js';
export { ClimateFile } from './climate_file.js';
export { files } from './instance.js';
