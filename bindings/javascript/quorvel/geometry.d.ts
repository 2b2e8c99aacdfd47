export * from './routines/geometry.js';
export { ClippingError, clip, overlapArea, polygonArea } from './polygon.js';
export type { Clipped, PlanPoint, Polygon } from './polygon.js';
