// Building physics and building services: moist air, walls, glazing and blinds, sun and sky, polygons.
import * as climateRoutines from './routines/climate.js';
import * as fabric from './routines/fabric.js';
import * as geometryRoutines from './routines/geometry.js';
import * as glazing from './routines/glazing.js';
import * as psychro from './routines/psychro.js';

export * as climate from './climate.js';
export * as geometry from './geometry.js';
export { fabric, glazing, psychro };
export * from './selectors.js';

const withoutChecks = (routines) =>
  Object.freeze(Object.fromEntries(Object.entries(routines).map(([name, routine]) => [name, routine.unchecked])));

/** The same functions of any numbers, as the routines of C take them. */
export const unchecked = Object.freeze({
  psychro: withoutChecks(psychro),
  fabric: withoutChecks(fabric),
  glazing: withoutChecks(glazing),
  climate: withoutChecks(climateRoutines),
  geometry: withoutChecks(geometryRoutines),
});
