import type * as climateRoutines from './routines/climate.js';
import type * as fabricRoutines from './routines/fabric.js';
import type * as geometryRoutines from './routines/geometry.js';
import type * as glazingRoutines from './routines/glazing.js';
import type * as psychroRoutines from './routines/psychro.js';

export * as psychro from './routines/psychro.js';
export * as fabric from './routines/fabric.js';
export * as glazing from './routines/glazing.js';
export * as climate from './climate.js';
export * as geometry from './geometry.js';
export * from './selectors.js';
export type { Each, List } from './numbers.js';

/** What a refused argument throws, as a RangeError or a TypeError: the message has it all in words. */
export interface Refusal extends Error {
  readonly routine: string;
  readonly argument: string;
  readonly value: unknown;
}

/**
 * The same functions without checks of values: of any numbers they give what the routines of C give, to the bit. That
 * lists are equally long is checked even so.
 */
export declare const unchecked: {
  readonly psychro: typeof psychroRoutines;
  readonly fabric: typeof fabricRoutines;
  readonly glazing: typeof glazingRoutines;
  readonly climate: typeof climateRoutines;
  readonly geometry: typeof geometryRoutines;
};
