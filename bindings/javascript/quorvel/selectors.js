// Produced from the catalogue of routines (catalogue/); do not edit.

export const Psychrometer = Object.freeze({ sling: 1, screen: 2 });

export const ElementKind = Object.freeze({ between: 1, partition: 2 });

export const HeatFlowDirection = Object.freeze({ upward: 1, horizontal: 2, downward: 3 });

export const Packing = Object.freeze({ pack: 1, unpack: 2 });

export const Surface = Object.freeze({ outside: 1, inside: 2 });

export const Exposure = Object.freeze({ sheltered: 1, normal: 2, severe: 3 });

export const PaneKind = Object.freeze({ closing: 1, vented: 2 });

export const Radiation = Object.freeze({ direct: 1, diffuse: 2 });

export const BandSet = Object.freeze({ first: 1, second: 2 });

export const DayKind = Object.freeze({ ofMonth: 1, ofYear: 2 });

export const FileUnit = Object.freeze({ openedLast: 31 });

export const SkyKind = Object.freeze({ clear: 0, cloudy: 1 });

export const SkyModel = Object.freeze({ radianceIndex: 0, northernEurope: 1, southernEurope: 2 });

export const TimeKind = Object.freeze({ solar: 1, zone: 2, datedSolar: 3 });

export const Enclosed = Object.freeze({ outside: 0, inside: 1 });
