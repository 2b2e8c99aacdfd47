/** x and y, in metres. */
export type PlanPoint = readonly [x: number, y: number];

/** Vertices one after the other, either way round. It must not cross itself. */
export type Polygon = readonly PlanPoint[];

/** The pieces run in the sense of a. */
export interface Clipped {
  readonly difference: Polygon[];
  readonly overlap: Polygon[];
}

/** Two polygons that cannot be clipped; says why. */
export declare class ClippingError extends Error {}

/**
 * Difference a - b and overlap of two simple polygons in plan, in double precision. Where b lies within a the
 * difference is two pieces, which touch along level bridges. Exact to about 1e-4 of the diagonal of the box round both,
 * times the length of the boundaries.
 *
 * Throws a ClippingError where a polygon crosses itself or has no area, or where the two cross more than 1024 times.
 * (`unchecked.geometry.clip` is the routine HOHOLEDP of quorvel.h.)
 */
export declare function clip(a: Polygon, b: Polygon): Clipped;

/** Area of the overlap of two polygons [m²]. */
export declare function overlapArea(a: Polygon, b: Polygon): number;

/** Area of a polygon [m²], whichever way round it runs. */
export declare function polygonArea(polygon: Polygon): number;
