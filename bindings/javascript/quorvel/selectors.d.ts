// Produced from the catalogue of routines (catalogue/); do not edit.
import type { NameOrValue } from './numbers.js';

/** Psychrometer type: its values by their names. */
export declare const Psychrometer: {
  /** sling (aspirated) */
  readonly sling: 1;
  /** screen (naturally ventilated) */
  readonly screen: 2;
};
/** Psychrometer type: a name or its value. */
export type Psychrometer = NameOrValue<typeof Psychrometer>;

/** Kind of element: its values by their names. */
export declare const ElementKind: {
  /** element between two environments */
  readonly between: 1;
  /** internal partition, the same swing on both sides */
  readonly partition: 2;
};
/** Kind of element: a name or its value. */
export type ElementKind = NameOrValue<typeof ElementKind>;

/** Direction of the heat flow: its values by their names. */
export declare const HeatFlowDirection: {
  /** heat flow upwards */
  readonly upward: 1;
  /** vertical surface */
  readonly horizontal: 2;
  /** heat flow downwards */
  readonly downward: 3;
};
/** Direction of the heat flow: a name or its value. */
export type HeatFlowDirection = NameOrValue<typeof HeatFlowDirection>;

/** Direction: its values by their names. */
export declare const Packing: {
  /** pack */
  readonly pack: 1;
  /** unpack, as any other value */
  readonly unpack: 2;
};
/** Direction: a name or its value. */
export type Packing = NameOrValue<typeof Packing>;

/** Surface type of the outer face, normally 1: its values by their names. */
export declare const Surface: {
  /** outside */
  readonly outside: 1;
  /** inside */
  readonly inside: 2;
};
/** Surface type of the outer face, normally 1: a name or its value. */
export type Surface = NameOrValue<typeof Surface>;

/** Exposure of the outer face to the wind: its values by their names. */
export declare const Exposure: {
  /** sheltered */
  readonly sheltered: 1;
  /** normal */
  readonly normal: 2;
  /** severe */
  readonly severe: 3;
};
/** Exposure of the outer face to the wind: a name or its value. */
export type Exposure = NameOrValue<typeof Exposure>;

/** Kind of pane 3: its values by their names. */
export declare const PaneKind: {
  /** closes the cavities on both sides */
  readonly closing: 1;
  /** closes none */
  readonly vented: 2;
};
/** Kind of pane 3: a name or its value. */
export type PaneKind = NameOrValue<typeof PaneKind>;

/** Kind of radiation: its values by their names. */
export declare const Radiation: {
  /** direct radiation (WNDRSM) */
  readonly direct: 1;
  /** diffuse radiation (WNDFSM), as any other value */
  readonly diffuse: 2;
};
/** Kind of radiation: a name or its value. */
export type Radiation = NameOrValue<typeof Radiation>;

/** Set of bands: its values by their names. */
export declare const BandSet: {
  /** set 1 */
  readonly first: 1;
  /** set 2 */
  readonly second: 2;
};
/** Set of bands: a name or its value. */
export type BandSet = NameOrValue<typeof BandSet>;

/** How the day is counted: its values by their names. */
export declare const DayKind: {
  /** day of the month */
  readonly ofMonth: 1;
  /** day of the year */
  readonly ofYear: 2;
};
/** How the day is counted: a name or its value. */
export type DayKind = NameOrValue<typeof DayKind>;

/** Unit: its values by their names. */
export declare const FileUnit: {
  /** the file that CLBNF0 opened last */
  readonly openedLast: 31;
};
/** Unit: a name or its value. */
export type FileUnit = NameOrValue<typeof FileUnit>;

/** Kind of sky: its values by their names. */
export declare const SkyKind: {
  /** clear */
  readonly clear: 0;
  /** cloudy: the larger diffuse irradiance */
  readonly cloudy: 1;
};
/** Kind of sky: a name or its value. */
export type SkyKind = NameOrValue<typeof SkyKind>;

/** Model of the sky: its values by their names. */
export declare const SkyModel: {
  /** radiance index by the kind of sky */
  readonly radianceIndex: 0;
  /** clearness, northern Europe */
  readonly northernEurope: 1;
  /** clearness, southern Europe, as any other value */
  readonly southernEurope: 2;
};
/** Model of the sky: a name or its value. */
export type SkyModel = NameOrValue<typeof SkyModel>;

/** What the time is: its values by their names. */
export declare const TimeKind: {
  /** solar time; longitude and zone meridian are set to 0 */
  readonly solar: 1;
  /** clock of the zone, at the longitude */
  readonly zone: 2;
  /** solar time; the zone meridian only dates the declination */
  readonly datedSolar: 3;
};
/** What the time is: a name or its value. */
export type TimeKind = NameOrValue<typeof TimeKind>;

/** 1 for points that are enclosed: its values by their names. */
export declare const Enclosed: {
  /** not enclosed */
  readonly outside: 0;
  /** enclosed */
  readonly inside: 1;
};
/** 1 for points that are enclosed: a name or its value. */
export type Enclosed = NameOrValue<typeof Enclosed>;
