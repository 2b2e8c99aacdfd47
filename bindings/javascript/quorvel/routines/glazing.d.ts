// Produced from the catalogue of routines (catalogue/); do not edit.
import type { Each, List } from '../numbers.js';
import type { Radiation } from '../selectors.js';

/** What glassDirect returns. */
export interface GlassDirect<Real = number> {
  /** transmittance, parallel polarisation */
  readonly parallelTransmittance: Real;
  /** absorptance, parallel */
  readonly parallelAbsorptance: Real;
  /** reflectance, parallel */
  readonly parallelReflectance: Real;
  /** transmittance, perpendicular polarisation */
  readonly perpendicularTransmittance: Real;
  /** absorptance, perpendicular */
  readonly perpendicularAbsorptance: Real;
  /** reflectance, perpendicular */
  readonly perpendicularReflectance: Real;
}

/**
 * Transmittance, absorptance and reflectance of a pane for direct radiation, both polarisations.
 *
 * - The unpolarised values are the means of the two polarisations.
 * - A normal reflectance in 0.01..0.99 means coated: factors on the normal transmittance and on 1 -
 *   normalReflectance are interpolated from a table every 5 degrees, the same for both polarisations; beyond 1.57
 *   rad everything is reflected. Any other means uncoated and is not used.
 * - Uncoated glass has the refractive index 1.52. Below a transmittance of 0.001 it is opaque and reflects
 *   everything.
 * - No uncoated glass has a normal transmittance above 0.9184: from there on its absorption would be below 0 and is
 *   held at 0, so that the three add up to more than 1. At 0.92 their unpolarised sum is 1.0018 at normal
 *   incidence, 1.0024 at 1.5 rad and 1.011 at 1.57 rad.
 * - For nearly opaque uncoated glass the difference in absorptionProduct cancels: at normal incidence the
 *   transmittance comes back to within 4 % from 0.02 on and 34 % from 0.005 on; below that 0.002 gives 0 and 0.0025
 *   gives 0.006.
 * - Uncoated, an angle beyond pi/2 is not tested, and the results mean nothing there.
 * - The transmittance of coated glass is not tested: where it exceeds 1 with the reflectance the three do not add
 *   up to 1.
 *
 * Source: Uncoated glass: absorptionProduct, refractionAngle, surfaceReflectance, singlePassAbsorption, slabOptics
 *   in turn. Coated glass: tabulated angular factors whose origin is not recorded.
 *
 * @param normalTransmittance normal transmittance; valid 0 to 0.92
 * @param normalReflectance normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99
 * @param incidence angle of incidence [rad]; valid -1.5708 to 1.5708
 * @see WNDRGL of quorvel.h
 */
export function glassDirect(normalTransmittance: number, normalReflectance: number, incidence: number): GlassDirect;
export function glassDirect(
  normalTransmittance: Each<number>,
  normalReflectance: Each<number>,
  incidence: Each<number>,
): GlassDirect<Float32Array>;

/** What glassDiffuse returns. */
export interface GlassDiffuse<Real = number> {
  /** diffuse transmittance */
  readonly transmittance: Real;
  /** diffuse absorptance */
  readonly absorptance: Real;
}

/**
 * Transmittance and absorptance of a pane for isotropic diffuse radiation.
 *
 * - The pane is taken exactly as by glassDirect, coated and opaque glass included.
 * - The bits are those of glassDirect summed over the bands.
 *
 * Source: glassDirect at the centres of 18 bands of 5 degrees, each weighted with the integral of 2 sin cos over
 *   the band.
 *
 * @param normalTransmittance normal transmittance; valid 0 to 0.92
 * @param normalReflectance normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99
 * @see WNDFGL of quorvel.h
 */
export function glassDiffuse(normalTransmittance: number, normalReflectance: number): GlassDiffuse;
export function glassDiffuse(
  normalTransmittance: Each<number>,
  normalReflectance: Each<number>,
): GlassDiffuse<Float32Array>;

/** What stackedLayers returns. */
export interface StackedLayers<Real = number> {
  /** transmittance of the stack */
  readonly transmittance: Real;
  /** absorptance, 1 - transmittance - reflectance */
  readonly absorptance: Real;
  /** reflectance of the stack */
  readonly reflectance: Real;
}

/**
 * Transmittance, absorptance and reflectance of a stack of layers, each reflection counted once.
 *
 * - A layer's reflection passes the layers above it once each way; there is no further inter-reflection.
 * - Where transmittance and reflectance exceed 0.99 together, the reflectance is reduced until they do not. It
 *   turns negative if the transmittance alone is above 0.99.
 * - The last layer is met first. No layers are an empty stack, which transmits everything.
 *
 * Source: First-order combination of the layers.
 *
 * @param layerTransmittances transmittance of each layer; valid 0 to 1
 * @param layerReflectances reflectance of each layer; valid 0 to 1
 * @see WNCOM2 of quorvel.h
 */
export function stackedLayers(layerTransmittances: List, layerReflectances: List): StackedLayers;

/** What tracedLayers returns. */
export interface TracedLayers<Real = number> {
  /** transmittance of the stack */
  readonly transmittance: Real;
  /** absorptance of the stack */
  readonly absorptance: Real;
  /** reflectance of the stack */
  readonly reflectance: Real;
}

/**
 * Transmittance, absorptance and reflectance of a stack of layers with the inter-reflections between all of them.
 *
 * - In a pass the flux goes forward through all layers and back by one; nine passes are made. What needs more than
 *   eight steps back is missing from all three results: nothing of one layer; of two, the ninth power of the
 *   product of their reflectances as a share of the transmittance; of ten and eleven layers all that the last ones
 *   reflect.
 * - The last layer is met first. No layers are an empty stack, which transmits everything.
 * - That transmittance, absorptance and reflectance of a layer add up to 1 is left to the caller.
 *
 * Source: Tracing of one forward and one backward flux, which tends to the adding method.
 *
 * @param layerTransmittances transmittance of each layer, the same from both sides; valid 0 to 1
 * @param layerAbsorptances absorptance of each layer; valid 0 to 1
 * @param layerReflectances reflectance of each layer, the same from both sides; valid 0 to 1
 * @see WNCOMP of quorvel.h
 */
export function tracedLayers(
  layerTransmittances: List,
  layerAbsorptances: List,
  layerReflectances: List,
): TracedLayers;

/** What rollerBlind returns. */
export interface RollerBlind<Real = number> {
  /** transmittance, that of the blind */
  readonly transmittance: Real;
  /** absorptance, the rest */
  readonly absorptance: Real;
  /** reflectance, that of the blind */
  readonly reflectance: Real;
}

/**
 * Transmittance, absorptance and reflectance of a roller blind, the same at every angle.
 *
 * Formula: absorptance = 1 - blindTransmittance - blindReflectance
 *
 * - Nothing is limited: a blind that transmits and reflects more than 1 gives a negative absorptance.
 *
 * Source: Conservation of energy.
 *
 * @param blindTransmittance transmittance of the blind; valid 0 to 1
 * @param blindReflectance reflectance of the blind; valid 0 to 1
 * @see WNDRRO of quorvel.h
 */
export function rollerBlind(blindTransmittance: number, blindReflectance: number): RollerBlind;
export function rollerBlind(
  blindTransmittance: Each<number>,
  blindReflectance: Each<number>,
): RollerBlind<Float32Array>;

/** What diffuseRollerBlind returns. */
export interface DiffuseRollerBlind<Real = number> {
  /** transmittance, that of the blind to rounding */
  readonly transmittance: Real;
  /** absorptance, the rest to rounding */
  readonly absorptance: Real;
  /** reflectance, 1 - transmittance - absorptance */
  readonly reflectance: Real;
}

/**
 * Transmittance, absorptance and reflectance of a roller blind for diffuse radiation.
 *
 * - The blind is the same at every angle; the sum of the bands' weights, 0.9999999, remains as a factor.
 * - Nothing is limited: a blind that transmits and reflects more than 1 gives a negative absorptance.
 *
 * Source: rollerBlind, integrated as in slatDiffuse.
 *
 * @param blindTransmittance transmittance of the blind; valid 0 to 1
 * @param blindReflectance reflectance of the blind; valid 0 to 1
 * @see WNDFRO of quorvel.h
 */
export function diffuseRollerBlind(blindTransmittance: number, blindReflectance: number): DiffuseRollerBlind;
export function diffuseRollerBlind(
  blindTransmittance: Each<number>,
  blindReflectance: Each<number>,
): DiffuseRollerBlind<Float32Array>;

/**
 * Angle of a ray inside the glass, by Snell's law.
 *
 * Formula: asin(sin(incidence) / refractiveIndex)
 *
 * - Where the sine of the incidence is below 0.01 in size the result is incidence / refractiveIndex, the ratio of
 *   the angles in place of that of the sines.
 * - An index so far below 1 that the reflection is total gives no number.
 *
 * Source: Snell's law.
 *
 * @param incidence angle of incidence [rad]; valid -1.5708 to 1.5708
 * @param refractiveIndex refractive index of the glass; valid 1 to 4
 * @returns refraction angle [rad]
 * @see WNRANG of quorvel.h
 */
export function refractionAngle(incidence: number, refractiveIndex: number): number;
export function refractionAngle(incidence: Each<number>, refractiveIndex: Each<number>): Float32Array;

/** What surfaceReflectance returns. */
export interface SurfaceReflectance<Real = number> {
  /** reflectance, polarised parallel to the plane of incidence */
  readonly parallelReflectance: Real;
  /** reflectance, polarised perpendicular to it */
  readonly perpendicularReflectance: Real;
}

/**
 * Reflectance of one face of the glass for the two polarisations, by Fresnel's equations.
 *
 * Formula: perpendicular (sin(i - r) / sin(i + r))^2, parallel (tan(i - r) / tan(i + r))^2; i = incidence, r =
 *   refractionAngle
 *
 * - Up to an angle of 0.01 in size, and for an incidence that is no number, both are the value at normal incidence,
 *   ((1 - n) / (1 + n))^2 with the refractive index n. refractionAngle tests the sine of the angle instead; the two
 *   limits differ deliberately.
 *
 * Source: Fresnel's equations; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.
 *
 * @param incidence angle of incidence [rad]; valid -1.5708 to 1.5708
 * @param refractionAngle refraction angle, of the sign of the incidence [rad]; valid -1.5708 to 1.5708
 * @param refractiveIndex refractive index, used at normal incidence only; valid 1 to 4
 * @see WNREFL of quorvel.h
 */
export function surfaceReflectance(
  incidence: number,
  refractionAngle: number,
  refractiveIndex: number,
): SurfaceReflectance;
export function surfaceReflectance(
  incidence: Each<number>,
  refractionAngle: Each<number>,
  refractiveIndex: Each<number>,
): SurfaceReflectance<Float32Array>;

/**
 * Share of a ray that is absorbed in one pass through the body of a pane.
 *
 * Formula: 1 - exp(-absorptionProduct / cos(refractionAngle))
 *
 * Source: Bouguer's law of absorption.
 *
 * @param refractionAngle refraction angle [rad]; valid -1.5708 to 1.5708
 * @param absorptionProduct absorption coefficient times thickness; valid 0 to 20
 * @returns absorbed share
 * @see WNABEN of quorvel.h
 */
export function singlePassAbsorption(refractionAngle: number, absorptionProduct: number): number;
export function singlePassAbsorption(refractionAngle: Each<number>, absorptionProduct: Each<number>): Float32Array;

/** What slabOptics returns. */
export interface SlabOptics<Real = number> {
  /** transmittance */
  readonly transmittance: Real;
  /** absorptance, not below 0 */
  readonly absorptance: Real;
  /** reflectance */
  readonly reflectance: Real;
}

/**
 * Transmittance, absorptance and reflectance of a pane for one polarisation, with all inter-reflections between its
 *   two faces.
 *
 * Formula: transmittance = (1 - r)^2 tau / (1 - r^2 tau^2), reflectance = r + r (1 - r)^2 tau^2 / (1 - r^2 tau^2),
 *   absorptance = 1 - transmittance - reflectance; tau = 1 - singlePassAbsorptance, r = faceReflectance
 *
 * - Faces that reflect everything around a body that absorbs nothing leave the result undefined (0/0).
 * - What is no number stays so; the limit at 0 touches only numbers.
 *
 * Source: Stokes, On the intensity of the light reflected from or transmitted through a pile of plates, 1862;
 *   Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.
 *
 * @param singlePassAbsorptance share absorbed in a single pass; valid 0 to 1
 * @param faceReflectance reflectance of either face; valid 0 to 1
 * @see WNTAR of quorvel.h
 */
export function slabOptics(singlePassAbsorptance: number, faceReflectance: number): SlabOptics;
export function slabOptics(
  singlePassAbsorptance: Each<number>,
  faceReflectance: Each<number>,
): SlabOptics<Float32Array>;

/**
 * Absorption coefficient times thickness of a pane, from its transmittance at normal incidence.
 *
 * Formula: -ln((sqrt((1 - r)^4 + 4 r^2 T^2) - (1 - r)^2) / (2 T r^2)); T = normalTransmittance, r =
 *   ((refractiveIndex - 1) / (refractiveIndex + 1))^2
 *
 * - Evaluated as written in single precision, where a difference of roots cancels for nearly opaque glass: the
 *   relative error of the transmittance T, given back by normalTransmittance, is up to 1.5e-5 / T^2, which is 0.02
 *   % at 0.3, 0.15 % at 0.1 and 0.6 % at 0.05; at 0.002 and less the result is infinite.
 * - Above the transmittance of glass that absorbs nothing, 0.918 for an index of 1.52, the result is negative.
 * - A transmittance of 0 and an index of 1 divide by zero and give no finite number.
 *
 * Source: The slab of slabOptics at normal incidence, solved for the absorption.
 *
 * @param normalTransmittance normal transmittance of the pane; valid 0 to 0.92
 * @param refractiveIndex refractive index; valid 1 to 4
 * @returns absorption coefficient times thickness
 * @see WNKL of quorvel.h
 */
export function absorptionProduct(normalTransmittance: number, refractiveIndex: number): number;
export function absorptionProduct(normalTransmittance: Each<number>, refractiveIndex: Each<number>): Float32Array;

/**
 * Transmittance of a pane at normal incidence: the inverse of absorptionProduct.
 *
 * Formula: (1 - r)^2 tau / (1 - r^2 tau^2); tau = exp(-absorptionProduct), r = normalReflectance
 *
 * - The second argument is a reflectance, ((n - 1) / (n + 1))^2, where absorptionProduct takes the refractive
 *   index.
 *
 * Source: The slab of slabOptics at normal incidence.
 *
 * @param absorptionProduct absorption coefficient times thickness; valid 0 to 20
 * @param normalReflectance normal reflectance of one face; valid 0 to 0.99
 * @returns normal transmittance of the pane
 * @see WNTNOR of quorvel.h
 */
export function normalTransmittance(absorptionProduct: number, normalReflectance: number): number;
export function normalTransmittance(absorptionProduct: Each<number>, normalReflectance: Each<number>): Float32Array;

/** What paneTemperatures returns. */
export interface PaneTemperatures<Real = number> {
  /** temperature of pane 1, nearest the room [°C]; not a number with panes outside 1 to 5 */
  readonly paneTemperature1: Real;
  /** temperature of pane 2 [°C]; not a number with panes outside 2 to 5 */
  readonly paneTemperature2: Real;
  /** temperature of pane 3 [°C]; not a number with panes outside 3 to 5 */
  readonly paneTemperature3: Real;
  /** temperature of pane 4 [°C]; not a number with panes outside 4 to 5 */
  readonly paneTemperature4: Real;
  /** temperature of pane 5 [°C]; not a number with panes outside 4 to 5 */
  readonly paneTemperature5: Real;
}

/**
 * Steady temperatures of the panes of a glazing from the air temperatures on both sides and the solar radiation
 *   that each pane absorbs.
 *
 * - What is given as absorbed in panes that are not there has no influence. Four panes are calculated as five: what
 *   the fifth absorbs counts (give 0 for it), and it has a temperature.
 *
 * Source: Heat balance of the panes with fixed resistances: 0.12 m²K/W at the room side, 0.06 m²K/W outdoors;
 *   coefficients rounded to two decimals.
 *
 * @param insideTemperature air temperature in the room [°C]; valid -100 to 200
 * @param outsideTemperature air temperature outdoors [°C]; valid -100 to 200
 * @param panes number of panes; valid 1 to 5
 * @param absorbed1 absorbed in pane 1, nearest the room [W/m²]; valid from 0
 * @param absorbed2 absorbed in pane 2 [W/m²]; valid from 0
 * @param absorbed3 absorbed in pane 3 [W/m²]; valid from 0
 * @param absorbed4 absorbed in pane 4 [W/m²]; valid from 0
 * @param absorbed5 absorbed in pane 5 [W/m²]; valid from 0
 * @see WNTEMP of quorvel.h
 */
export function paneTemperatures(
  insideTemperature: number,
  outsideTemperature: number,
  panes: number,
  absorbed1: number,
  absorbed2: number,
  absorbed3: number,
  absorbed4: number,
  absorbed5: number,
): PaneTemperatures;
export function paneTemperatures(
  insideTemperature: Each<number>,
  outsideTemperature: Each<number>,
  panes: Each<number>,
  absorbed1: Each<number>,
  absorbed2: Each<number>,
  absorbed3: Each<number>,
  absorbed4: Each<number>,
  absorbed5: Each<number>,
): PaneTemperatures<Float32Array>;

/** What unitDirect returns. */
export interface UnitDirect<Real = number> {
  /** transmittance */
  readonly transmittance: Real;
  /** absorptance */
  readonly absorptance: Real;
  /** reflectance, 1 - transmittance - absorptance, at least 0.01 to rounding */
  readonly reflectance: Real;
}

/**
 * Transmittance, absorptance and reflectance for direct radiation of a glazing unit known only by its shading
 *   coefficients.
 *
 * - A long-wave coefficient below 0.0001 counts as missing: the other is then split into 0.9 short-wave and 0.1
 *   long-wave.
 * - An uncoated pane of index 1.52 and normal transmittance 0.87 times the short-wave coefficient carries the
 *   angular behaviour.
 * - If the two coefficients add up to at most 1, the absorptance is 2.61 times the long-wave one at normal
 *   incidence and follows the pane over the angle; otherwise it is that of the pane. A total of 1 belongs to the
 *   former, but only as single precision rounds.
 * - The absorptance is at most 0.99 - transmittance. An opaque unit, whose equivalent pane absorbs nothing, gets
 *   just that: coefficients of 0 give an absorptance of 0.99.
 * - An angle beyond pi/2 is not tested, and the results mean nothing there: coefficients of 0.9 and 0.05 give a
 *   transmittance of -0.54 at 1.6 rad.
 *
 * Source: Shading coefficients relative to clear float glass of total transmittance 0.87, of whose absorbed part a
 *   third flows inwards.
 *
 * @param shortwaveShadingCoefficient short-wave shading coefficient; the total one if the long-wave one is missing;
 *   valid 0 to 1.05
 * @param longwaveShadingCoefficient long-wave shading coefficient, 0 if missing; valid 0 to 1
 * @param incidence angle of incidence [rad]; valid -1.5708 to 1.5708
 * @see WNDRSC of quorvel.h
 */
export function unitDirect(
  shortwaveShadingCoefficient: number,
  longwaveShadingCoefficient: number,
  incidence: number,
): UnitDirect;
export function unitDirect(
  shortwaveShadingCoefficient: Each<number>,
  longwaveShadingCoefficient: Each<number>,
  incidence: Each<number>,
): UnitDirect<Float32Array>;

/** What unitDiffuse returns. */
export interface UnitDiffuse<Real = number> {
  /** diffuse transmittance */
  readonly transmittance: Real;
  /** diffuse absorptance */
  readonly absorptance: Real;
  /** diffuse reflectance, 1 - transmittance - absorptance */
  readonly reflectance: Real;
}

/**
 * Transmittance, absorptance and reflectance for isotropic diffuse radiation of a glazing unit known only by its
 *   shading coefficients.
 *
 * - Coefficients as in unitDirect. If they add up to at most 1 the absorptance is 2.61 times the long-wave one,
 *   otherwise that of the equivalent pane.
 * - The absorptance is at most 0.99 - transmittance. Unlike unitDirect, coefficients of 0 give a reflectance of 1.
 *
 * Source: unitDirect, with the equivalent pane integrated as in glassDiffuse.
 *
 * @param shortwaveShadingCoefficient short-wave shading coefficient; the total one if the long-wave one is missing;
 *   valid 0 to 1.05
 * @param longwaveShadingCoefficient long-wave shading coefficient, 0 if missing; valid 0 to 1
 * @see WNDFSC of quorvel.h
 */
export function unitDiffuse(shortwaveShadingCoefficient: number, longwaveShadingCoefficient: number): UnitDiffuse;
export function unitDiffuse(
  shortwaveShadingCoefficient: Each<number>,
  longwaveShadingCoefficient: Each<number>,
): UnitDiffuse<Float32Array>;

/** What unitDirectShares returns. */
export interface UnitDirectShares<Real = number> {
  /** transmittance */
  readonly transmittance: Real;
  /** share of each pane in 1 - transmittance - absorptance */
  readonly paneShares: Float32Array;
  /** absorptance */
  readonly absorptance: Real;
}

/**
 * unitDirect, with the remainder that is neither transmitted nor absorbed split among the panes of the unit.
 *
 * - What is split is the remainder, not the absorptance.
 *
 * Source: unitDirect; the shares by number of panes are fixed, 0.4 and 0.6 for two, their origin is not recorded.
 *
 * @param shortwaveShadingCoefficient short-wave shading coefficient; the total one if the long-wave one is missing;
 *   valid 0 to 1.05
 * @param longwaveShadingCoefficient long-wave shading coefficient, 0 if missing; valid 0 to 1
 * @param incidence angle of incidence [rad]; valid -1.5708 to 1.5708
 * @param panes number of panes; valid 1 to 5
 * @see WNDRSM of quorvel.h
 */
export function unitDirectShares(
  shortwaveShadingCoefficient: number,
  longwaveShadingCoefficient: number,
  incidence: number,
  panes: number,
): UnitDirectShares;
export function unitDirectShares(
  shortwaveShadingCoefficient: Each<number>,
  longwaveShadingCoefficient: Each<number>,
  incidence: Each<number>,
  panes: Each<number>,
): UnitDirectShares<Float32Array>;

/** What unitDiffuseShares returns. */
export interface UnitDiffuseShares<Real = number> {
  /** diffuse transmittance */
  readonly transmittance: Real;
  /** share of each pane in 1 - transmittance - absorptance */
  readonly paneShares: Float32Array;
  /** diffuse absorptance */
  readonly absorptance: Real;
}

/**
 * unitDiffuse, with the remainder that is neither transmitted nor absorbed split among the panes of the unit.
 *
 * - The remainder is split as in unitDirectShares.
 *
 * Source: unitDiffuse, with the shares of unitDirectShares.
 *
 * @param shortwaveShadingCoefficient short-wave shading coefficient; the total one if the long-wave one is missing;
 *   valid 0 to 1.05
 * @param longwaveShadingCoefficient long-wave shading coefficient, 0 if missing; valid 0 to 1
 * @param panes number of panes; valid 1 to 5
 * @see WNDFSM of quorvel.h
 */
export function unitDiffuseShares(
  shortwaveShadingCoefficient: number,
  longwaveShadingCoefficient: number,
  panes: number,
): UnitDiffuseShares;
export function unitDiffuseShares(
  shortwaveShadingCoefficient: Each<number>,
  longwaveShadingCoefficient: Each<number>,
  panes: Each<number>,
): UnitDiffuseShares<Float32Array>;

/** What unitShares returns. */
export interface UnitShares<Real = number> {
  /** transmittance */
  readonly transmittance: Real;
  /** share of each pane in 1 - transmittance - absorptance */
  readonly paneShares: Float32Array;
  /** absorptance */
  readonly absorptance: Real;
}

/**
 * unitDirectShares or unitDiffuseShares, by a selector.
 *
 * - The remainder is split as in unitDirectShares.
 *
 * Source: unitDirectShares and unitDiffuseShares.
 *
 * @param radiation kind of radiation: 1 direct radiation (unitDirectShares), 2 diffuse radiation
 *   (unitDiffuseShares), as any other value
 * @param shortwaveShadingCoefficient short-wave shading coefficient; the total one if the long-wave one is missing;
 *   valid 0 to 1.05
 * @param longwaveShadingCoefficient long-wave shading coefficient, 0 if missing; valid 0 to 1
 * @param incidence angle of incidence, read for direct radiation only [rad]; valid -1.5708 to 1.5708
 * @param panes number of panes; valid 1 to 5
 * @see WNDRS0 of quorvel.h
 */
export function unitShares(
  radiation: Radiation,
  shortwaveShadingCoefficient: number,
  longwaveShadingCoefficient: number,
  incidence: number,
  panes: number,
): UnitShares;
export function unitShares(
  radiation: Each<Radiation>,
  shortwaveShadingCoefficient: Each<number>,
  longwaveShadingCoefficient: Each<number>,
  incidence: Each<number>,
  panes: Each<number>,
): UnitShares<Float32Array>;

/** What slatDirect returns. */
export interface SlatDirect<Real = number> {
  /** transmittance */
  readonly transmittance: Real;
  /** absorptance */
  readonly absorptance: Real;
  /** reflectance, 1 - transmittance - absorptance */
  readonly reflectance: Real;
}

/**
 * Transmittance, absorptance and reflectance of a slatted blind for a beam, both faces of the slats alike.
 *
 * - The slats are flat, thin, opaque and diffusely reflecting. After the first reflection each slat is taken as
 *   evenly lit.
 * - For slat angles up to 90 degrees and an absorptance in 0..1 all three are in 0..1, but for the rounding of
 *   single precision: 1e-4 for slats that are nearly closed, 4e-7 over the cosine of the profile angle for grazing
 *   beams.
 * - A beam within 0.01 rad of the slats' plane passes whole. A beam along the blind (cosine of the profile angle
 *   below 1e-6, or the angle 1.570796 or more in size) meets an opaque sheet with the absorptance of the slats.
 * - The mirror image, with both angles negative, gives the same bits.
 *
 * Source: Exchange factors by H. C. Hottel's crossed strings, and the inter-reflection between two neighbouring
 *   slats.
 *
 * @param slatSpacing spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from
 *   0
 * @param slatWidth width of a slat [m]; valid from 0
 * @param slatAngle slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid -90 to
 *   90
 * @param profileAngle profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708
 * @param slatAbsorptance absorptance of the slats; valid 0 to 1
 * @see WNDRSL of quorvel.h
 */
export function slatDirect(
  slatSpacing: number,
  slatWidth: number,
  slatAngle: number,
  profileAngle: number,
  slatAbsorptance: number,
): SlatDirect;
export function slatDirect(
  slatSpacing: Each<number>,
  slatWidth: Each<number>,
  slatAngle: Each<number>,
  profileAngle: Each<number>,
  slatAbsorptance: Each<number>,
): SlatDirect<Float32Array>;

/** What twoFacedSlatDirect returns. */
export interface TwoFacedSlatDirect<Real = number> {
  /** transmittance */
  readonly transmittance: Real;
  /** absorptance */
  readonly absorptance: Real;
  /** reflectance, 1 - transmittance - absorptance, not limited */
  readonly reflectance: Real;
}

/**
 * Transmittance, absorptance and reflectance of a blind for a beam, whose slats have two different faces.
 *
 * - Equal faces give the bits of slatDirect and keep the balance.
 * - Unequal faces do not: whatever is absorbed after the first reflection counts with that of the face struck, as
 *   if both faces absorbed like the one struck and reflected like the opposite one. A bright face opposite a dark
 *   one absorbs too little, and the reflectance holds the rest; a dark face opposite a bright one absorbs too much,
 *   in dense blinds many times what arrives, and the reflectance is negative by as much. Where the face struck
 *   absorbs at most what the opposite one does, all three stay in 0..1.
 * - The face struck first is the upper one where profile angle and slat angle have a positive sum and the lower one
 *   else; the absorptances are to be chosen accordingly.
 *
 * Source: As slatDirect.
 *
 * @param slatSpacing spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from
 *   0
 * @param slatWidth width of a slat [m]; valid from 0
 * @param slatAngle slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid -90 to
 *   90
 * @param profileAngle profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708
 * @param struckAbsorptance absorptance of the face that the beam strikes first; valid 0 to 1
 * @param oppositeAbsorptance absorptance of the opposite face; valid 0 to 1
 * @see WNDRS2 of quorvel.h
 */
export function twoFacedSlatDirect(
  slatSpacing: number,
  slatWidth: number,
  slatAngle: number,
  profileAngle: number,
  struckAbsorptance: number,
  oppositeAbsorptance: number,
): TwoFacedSlatDirect;
export function twoFacedSlatDirect(
  slatSpacing: Each<number>,
  slatWidth: Each<number>,
  slatAngle: Each<number>,
  profileAngle: Each<number>,
  struckAbsorptance: Each<number>,
  oppositeAbsorptance: Each<number>,
): TwoFacedSlatDirect<Float32Array>;

/** What openSlatDirect returns. */
export interface OpenSlatDirect<Real = number> {
  /** transmittance, the open share included */
  readonly transmittance: Real;
  /** absorptance */
  readonly absorptance: Real;
  /** reflectance */
  readonly reflectance: Real;
}

/**
 * twoFacedSlatDirect for a blind that leaves a share of the radiation to pass untouched.
 *
 * - Without an open share these are the bits of twoFacedSlatDirect; a share that is not a number is none.
 * - A beam along the blind is transmitted by the open share and absorbed as by the face struck: the share does not
 *   reduce the absorptance there, and the reflectance, 1 less both, may be negative: deliberate.
 *
 * Source: As slatDirect.
 *
 * @param slatSpacing spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from
 *   0
 * @param slatWidth width of a slat [m]; valid from 0
 * @param slatAngle slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid -90 to
 *   90
 * @param profileAngle profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708
 * @param openShare open share of the blind; 0 or less for none; valid 0 to 1
 * @param struckAbsorptance absorptance of the face that the beam strikes first; valid 0 to 1
 * @param oppositeAbsorptance absorptance of the opposite face; valid 0 to 1
 * @see WNDRS3 of quorvel.h
 */
export function openSlatDirect(
  slatSpacing: number,
  slatWidth: number,
  slatAngle: number,
  profileAngle: number,
  openShare: number,
  struckAbsorptance: number,
  oppositeAbsorptance: number,
): OpenSlatDirect;
export function openSlatDirect(
  slatSpacing: Each<number>,
  slatWidth: Each<number>,
  slatAngle: Each<number>,
  profileAngle: Each<number>,
  openShare: Each<number>,
  struckAbsorptance: Each<number>,
  oppositeAbsorptance: Each<number>,
): OpenSlatDirect<Float32Array>;

/** What slatDiffuse returns. */
export interface SlatDiffuse<Real = number> {
  /** transmittance for radiation from above the horizon */
  readonly skyTransmittance: Real;
  /** transmittance for radiation from below it */
  readonly groundTransmittance: Real;
  /** absorptance for radiation from above the horizon */
  readonly skyAbsorptance: Real;
  /** absorptance for radiation from below it */
  readonly groundAbsorptance: Real;
}

/**
 * Transmittance and absorptance of a slatted blind for the diffuse radiation from the sky's and from the ground's
 *   side, both faces of the slats alike.
 *
 * - The bits are those of slatDirect summed over the bands.
 * - Slats at an angle of 5, 15, ... 85 degrees have a band within 0.01 rad of their plane, which passes whole.
 * - The opposite angle swaps sky and ground.
 *
 * Source: slatDirect at the centres of nine bands of 10 degrees on either side of the horizon, each weighted with
 *   the integral of the cosine over the band: radiance uniform in the profile angle.
 *
 * @param slatSpacing spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from
 *   0
 * @param slatWidth width of a slat [m]; valid from 0
 * @param slatAngle slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid -90 to
 *   90
 * @param slatAbsorptance absorptance of the slats; valid 0 to 1
 * @see WNDFSL of quorvel.h
 */
export function slatDiffuse(
  slatSpacing: number,
  slatWidth: number,
  slatAngle: number,
  slatAbsorptance: number,
): SlatDiffuse;
export function slatDiffuse(
  slatSpacing: Each<number>,
  slatWidth: Each<number>,
  slatAngle: Each<number>,
  slatAbsorptance: Each<number>,
): SlatDiffuse<Float32Array>;

/** What twoFacedSlatDiffuse returns. */
export interface TwoFacedSlatDiffuse<Real = number> {
  /** transmittance for radiation from above the horizon */
  readonly skyTransmittance: Real;
  /** transmittance for radiation from below it */
  readonly groundTransmittance: Real;
  /** absorptance for radiation from above the horizon */
  readonly skyAbsorptance: Real;
  /** absorptance for radiation from below it */
  readonly groundAbsorptance: Real;
}

/**
 * slatDiffuse for slats with two different faces.
 *
 * - The absorptances belong to whichever face a beam strikes first. Slats with different upper and lower faces need
 *   two calls: with the upper face struck for the results of the sky, with the lower face for those of the ground.
 *   Beams between the horizon and the plane of the slats strike the other face all the same.
 * - Unequal faces as in twoFacedSlatDirect.
 *
 * Source: twoFacedSlatDirect, integrated as in slatDiffuse.
 *
 * @param slatSpacing spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from
 *   0
 * @param slatWidth width of a slat [m]; valid from 0
 * @param slatAngle slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid -90 to
 *   90
 * @param struckAbsorptance absorptance of the face that the beam strikes first; valid 0 to 1
 * @param oppositeAbsorptance absorptance of the opposite face; valid 0 to 1
 * @see WNDFS2 of quorvel.h
 */
export function twoFacedSlatDiffuse(
  slatSpacing: number,
  slatWidth: number,
  slatAngle: number,
  struckAbsorptance: number,
  oppositeAbsorptance: number,
): TwoFacedSlatDiffuse;
export function twoFacedSlatDiffuse(
  slatSpacing: Each<number>,
  slatWidth: Each<number>,
  slatAngle: Each<number>,
  struckAbsorptance: Each<number>,
  oppositeAbsorptance: Each<number>,
): TwoFacedSlatDiffuse<Float32Array>;

/** What openSlatDiffuse returns. */
export interface OpenSlatDiffuse<Real = number> {
  /** transmittance for radiation from above the horizon */
  readonly skyTransmittance: Real;
  /** transmittance for radiation from below it */
  readonly groundTransmittance: Real;
  /** absorptance for radiation from above the horizon */
  readonly skyAbsorptance: Real;
  /** absorptance for radiation from below it */
  readonly groundAbsorptance: Real;
}

/**
 * twoFacedSlatDiffuse for a blind that leaves a share of the radiation to pass untouched.
 *
 * - Faces as in twoFacedSlatDiffuse, the open share as in openSlatDirect.
 *
 * Source: openSlatDirect, integrated as in slatDiffuse.
 *
 * @param slatSpacing spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid from
 *   0
 * @param slatWidth width of a slat [m]; valid from 0
 * @param slatAngle slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid -90 to
 *   90
 * @param openShare open share of the blind; 0 or less for none; valid 0 to 1
 * @param struckAbsorptance absorptance of the face that the beam strikes first; valid 0 to 1
 * @param oppositeAbsorptance absorptance of the opposite face; valid 0 to 1
 * @see WNDFS3 of quorvel.h
 */
export function openSlatDiffuse(
  slatSpacing: number,
  slatWidth: number,
  slatAngle: number,
  openShare: number,
  struckAbsorptance: number,
  oppositeAbsorptance: number,
): OpenSlatDiffuse;
export function openSlatDiffuse(
  slatSpacing: Each<number>,
  slatWidth: Each<number>,
  slatAngle: Each<number>,
  openShare: Each<number>,
  struckAbsorptance: Each<number>,
  oppositeAbsorptance: Each<number>,
): OpenSlatDiffuse<Float32Array>;
