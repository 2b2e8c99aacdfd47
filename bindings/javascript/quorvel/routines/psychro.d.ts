// Produced from the catalogue of routines (catalogue/); do not edit.
import type { Each } from '../numbers.js';
import type { Psychrometer } from '../selectors.js';

/**
 * Specific enthalpy of dry air.
 *
 * Formula: 0.00071035 + 1.0058 t + 1.7139e-5 t^2 - 7.7976e-7 t^3 + 2.2256e-8 t^4 - 1.691e-10 t^5, t = temperature
 *
 * - Within 0.02 kJ/kg of the ASHRAE tables from -20 to 50 °C, but 0.3 above them at -50 °C.
 * - At 0 °C it is 0.0007 kJ/kg: the constant of the fit is deliberate.
 *
 * Source: Polynomial fit to tables of dry air; its author is not known.
 *
 * @param temperature temperature [°C]; valid -50 to 100
 * @returns specific enthalpy, 0 at 0 °C [kJ/kg]
 * @see PSHDRY of quorvel.h
 */
export function dryAirEnthalpy(temperature: number): number;
export function dryAirEnthalpy(temperature: Each<number>): Float32Array;

/**
 * Specific enthalpy of water vapour.
 *
 * Formula: 2500.9 + 1.8439 t + 2.5285e-5 t^2 - 1.6297e-5 t^3 + 5.8962e-9 t^4 + 1.248e-9 t^5, t = temperature
 *
 * - Within 0.5 kJ/kg of saturated steam from 0 to 60 °C (IAPWS 1995), within 7 at 100 °C.
 *
 * Source: Polynomial fit to tables of water vapour; its author is not known.
 *
 * @param temperature temperature [°C]; valid -50 to 100
 * @returns specific enthalpy, from liquid water at 0 °C [kJ/kg]
 * @see PSHVAP of quorvel.h
 */
export function waterVapourEnthalpy(temperature: number): number;
export function waterVapourEnthalpy(temperature: Each<number>): Float32Array;

/**
 * Specific heat of dry air at constant pressure.
 *
 * - The pieces meet, but for steps of 0.00004 kJ/kgK up at 40 °C and down at 50 °C, which are deliberate.
 *
 * Source: Straight lines between tabulated values for each 10 K; the author of the table is not known.
 *
 * @param temperature temperature [°C]; valid -50 to 100
 * @returns specific heat [kJ/kgK]
 * @see PSCPDR of quorvel.h
 */
export function dryAirSpecificHeat(temperature: number): number;
export function dryAirSpecificHeat(temperature: Each<number>): Float32Array;

/**
 * Specific heat of water vapour at constant pressure.
 *
 * Formula: 1.7 + 0.01 temperature, at most 1.9
 *
 * - Constant from 20 °C up.
 *
 * Source: Rounded engineering values; their author is not known.
 *
 * @param temperature temperature [°C]; valid -50 to 100
 * @returns specific heat [kJ/kgK]
 * @see PSCPVA of quorvel.h
 */
export function waterVapourSpecificHeat(temperature: number): number;
export function waterVapourSpecificHeat(temperature: Each<number>): Float32Array;

/**
 * Latent heat of evaporation of water, of sublimation of ice below 0 °C.
 *
 * - At exactly 60 °C the result is 0: the table's row for it is empty, which is deliberate. Just below and above,
 *   it is 2357.9.
 * - Within 0.5 kJ/kg of the international values (IAPWS 1995) from 0 to 60 °C.
 *
 * Source: Straight lines between tabulated values for each 10 K; the author of the table is not known.
 *
 * @param temperature temperature [°C]; valid -50 to 100
 * @returns latent heat [kJ/kg]
 * @see PSHFG of quorvel.h
 */
export function latentHeat(temperature: number): number;
export function latentHeat(temperature: Each<number>): Float32Array;

/**
 * Dry bulb of air with a vapour pressure and relative humidity.
 *
 * Formula: rh / 100 ps(t) = pv
 *
 * - Found from -200 to 400 °C; where there is none, as for arguments out of range, the result is not a number.
 * - Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
 *
 * Source: The dew point of saturated air of that temperature, by dewPoint.
 *
 * @param vapourPressure vapour pressure [Pa]; valid from 0
 * @param relativeHumidity relative humidity [%]; valid 0 to 100
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromVapourPressureAndRelativeHumidity(vapourPressure: number, relativeHumidity: number): number;
export function dryBulbFromVapourPressureAndRelativeHumidity(
  vapourPressure: Each<number>,
  relativeHumidity: Each<number>,
): Float32Array;

/**
 * Dry bulb of air with a vapour pressure and percentage saturation.
 *
 * Formula: percentage / 100 gs(t, p) = moistureContent(t, pv, p)
 *
 * - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
 * - Up to where water boils at the atmospheric pressure. The percentage is not limited.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param vapourPressure vapour pressure [Pa]; valid from 0
 * @param percentageSaturation percentage saturation [%]; valid 0 to 100
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromVapourPressureAndPercentageSaturation(
  vapourPressure: number,
  percentageSaturation: number,
  pressure: number,
): number;
export function dryBulbFromVapourPressureAndPercentageSaturation(
  vapourPressure: Each<number>,
  percentageSaturation: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Dry bulb of air with a moisture content and relative humidity.
 *
 * Formula: rh / 100 ps(t) = vapourPressureFromMoistureContent(t, g, p)
 *
 * - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
 * - Relative humidity is limited to 0 to 100 %, not rejected; 0 % gives not a number.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param moistureContent moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
 * @param relativeHumidity relative humidity [%]; valid 0 to 100
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromMoistureContentAndRelativeHumidity(
  moistureContent: number,
  relativeHumidity: number,
  pressure: number,
): number;
export function dryBulbFromMoistureContentAndRelativeHumidity(
  moistureContent: Each<number>,
  relativeHumidity: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Dry bulb of air with a moisture content and percentage saturation.
 *
 * Formula: percentage / 100 gs(t, p) = g
 *
 * - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
 * - Up to where water boils at the atmospheric pressure. The percentage is not limited.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param moistureContent moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
 * @param percentageSaturation percentage saturation [%]; valid 0 to 100
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromMoistureContentAndPercentageSaturation(
  moistureContent: number,
  percentageSaturation: number,
  pressure: number,
): number;
export function dryBulbFromMoistureContentAndPercentageSaturation(
  moistureContent: Each<number>,
  percentageSaturation: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Dry bulb of air with a specific enthalpy and moisture content.
 *
 * Formula: ha(t) + g hv(t) = h
 *
 * - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
 * - The enthalpies hold from -50 to 100 °C.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param enthalpy specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
 * @param moistureContent moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromEnthalpyAndMoistureContent(enthalpy: number, moistureContent: number): number;
export function dryBulbFromEnthalpyAndMoistureContent(
  enthalpy: Each<number>,
  moistureContent: Each<number>,
): Float32Array;

/**
 * Dry bulb of air with a specific enthalpy and vapour pressure.
 *
 * Formula: moistureContentFromEnthalpy(t, h) = moistureContent(t, pv, p)
 *
 * - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
 * - The enthalpies hold from -50 to 100 °C.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param enthalpy specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
 * @param vapourPressure vapour pressure [Pa]; valid from 0
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromEnthalpyAndVapourPressure(
  enthalpy: number,
  vapourPressure: number,
  pressure: number,
): number;
export function dryBulbFromEnthalpyAndVapourPressure(
  enthalpy: Each<number>,
  vapourPressure: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Dry bulb of air with a specific enthalpy and relative humidity.
 *
 * Formula: moistureContentFromEnthalpy(t, h) = moistureContent(t, rh / 100 ps(t), p)
 *
 * - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
 * - The enthalpies hold from -50 to 100 °C.
 * - Relative humidity is limited to 0 to 100 %, not rejected.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param enthalpy specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
 * @param relativeHumidity relative humidity [%]; valid 0 to 100
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromEnthalpyAndRelativeHumidity(
  enthalpy: number,
  relativeHumidity: number,
  pressure: number,
): number;
export function dryBulbFromEnthalpyAndRelativeHumidity(
  enthalpy: Each<number>,
  relativeHumidity: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Dry bulb of air with a specific enthalpy and percentage saturation.
 *
 * Formula: moistureContentFromEnthalpy(t, h) = percentage / 100 gs(t, p)
 *
 * - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
 * - The enthalpies hold from -50 to 100 °C.
 * - Up to where water boils at the atmospheric pressure. The percentage is not limited.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param enthalpy specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
 * @param percentageSaturation percentage saturation [%]; valid 0 to 100
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromEnthalpyAndPercentageSaturation(
  enthalpy: number,
  percentageSaturation: number,
  pressure: number,
): number;
export function dryBulbFromEnthalpyAndPercentageSaturation(
  enthalpy: Each<number>,
  percentageSaturation: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Dry bulb of air with a wet bulb and vapour pressure.
 *
 * Formula: t = twb + (ps(twb) - pv) / (A p)
 *
 * - A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Psychrometer equation of vapourPressureFromPsychrometer, solved for the dry bulb.
 *
 * @param wetBulb wet-bulb temperature [°C]; valid -100 to 200
 * @param vapourPressure vapour pressure [Pa]; valid from 0
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromWetBulbAndVapourPressure(
  wetBulb: number,
  vapourPressure: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function dryBulbFromWetBulbAndVapourPressure(
  wetBulb: Each<number>,
  vapourPressure: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/**
 * Dry bulb of air with a wet bulb and moisture content.
 *
 * Formula: vapourPressureFromPsychrometer(t, twb, p) = vapourPressureFromMoistureContent(t, g, p)
 *
 * - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
 * - A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param wetBulb wet-bulb temperature [°C]; valid -100 to 200
 * @param moistureContent moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromWetBulbAndMoistureContent(
  wetBulb: number,
  moistureContent: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function dryBulbFromWetBulbAndMoistureContent(
  wetBulb: Each<number>,
  moistureContent: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/**
 * Dry bulb of air with a wet bulb and relative humidity.
 *
 * Formula: vapourPressureFromPsychrometer(t, twb, p) = rh / 100 ps(t)
 *
 * - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
 * - Relative humidity is limited to 0 to 100 %, not rejected.
 * - A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param wetBulb wet-bulb temperature [°C]; valid -100 to 200
 * @param relativeHumidity relative humidity [%]; valid 0 to 100
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromWetBulbAndRelativeHumidity(
  wetBulb: number,
  relativeHumidity: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function dryBulbFromWetBulbAndRelativeHumidity(
  wetBulb: Each<number>,
  relativeHumidity: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/**
 * Dry bulb of air with a wet bulb and percentage saturation.
 *
 * Formula: moistureContentFromPsychrometer(t, twb, p) = percentage / 100 gs(t, p)
 *
 * - Found from -100 to 200 °C; where there is none, as for arguments out of range, the result is not a number.
 * - Up to where water boils at the atmospheric pressure. The percentage is not limited.
 * - A dry bulb below the wet bulb counts as saturation: the wet bulb is the result.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param wetBulb wet-bulb temperature [°C]; valid -100 to 200
 * @param percentageSaturation percentage saturation [%]; valid 0 to 100
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromWetBulbAndPercentageSaturation(
  wetBulb: number,
  percentageSaturation: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function dryBulbFromWetBulbAndPercentageSaturation(
  wetBulb: Each<number>,
  percentageSaturation: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/**
 * Dry bulb of air with a wet bulb and specific enthalpy.
 *
 * Formula: specificEnthalpyFromPsychrometer(t, twb, p) = h
 *
 * - Badly conditioned, since the enthalpy hardly changes along a wet bulb: 0.01 kJ/kg of enthalpy can be 0.25 K of
 *   dry bulb. For wet bulbs from -50 to 55 °C, above which the enthalpy turns.
 * - An enthalpy that no air of that wet bulb has, between saturated and dry, gives not a number; 1 K beyond
 *   saturation is allowed for, and gives the wet bulb.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Newton's method in double precision on the equations of the routines named.
 *
 * @param wetBulb wet-bulb temperature [°C]; valid -100 to 200
 * @param enthalpy specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns dry-bulb temperature [°C]
 */
export function dryBulbFromWetBulbAndEnthalpy(
  wetBulb: number,
  enthalpy: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function dryBulbFromWetBulbAndEnthalpy(
  wetBulb: Each<number>,
  enthalpy: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/** What adiabaticMixing returns. */
export interface AdiabaticMixing<Real = number> {
  /** dry-bulb temperature of the mixture [°C] */
  readonly dryBulb: Real;
  /** moisture content of the mixture [kg/kg] */
  readonly moistureContent: Real;
  /** specific enthalpy of the mixture, by mass of dry air [kJ/kg] */
  readonly enthalpy: Real;
}

/**
 * Two streams of moist air that become one, without heat from outside.
 *
 * Formula: g = (m1 g1 + m2 g2) / (m1 + m2), h likewise; t from h and g
 *
 * - All moisture counts as vapour: percentageSaturation says whether the mixture is above saturation and would form
 *   fog.
 * - The enthalpies hold from -50 to 100 °C. Where no dry bulb from -100 to 200 °C belongs to the mixture, it is not
 *   a number; nor is anything without flow.
 *
 * Source: Balances of enthalpy, water and dry air: ASHRAE Handbook Fundamentals 2017, chapter 1, adiabatic mixing
 *   of two moist airstreams.
 *
 * @param firstAirFlow mass flow of dry air in the first stream, or its share in any unit [kg/s]; valid from 0
 * @param firstDryBulb dry-bulb temperature of the first stream [°C]; valid -100 to 200
 * @param firstMoistureContent moisture content of the first stream [kg/kg]; valid 0 to 0.1
 * @param secondAirFlow mass flow of dry air in the second stream, in the same unit [kg/s]; valid from 0
 * @param secondDryBulb dry-bulb temperature of the second stream [°C]; valid -100 to 200
 * @param secondMoistureContent moisture content of the second stream [kg/kg]; valid 0 to 0.1
 */
export function adiabaticMixing(
  firstAirFlow: number,
  firstDryBulb: number,
  firstMoistureContent: number,
  secondAirFlow: number,
  secondDryBulb: number,
  secondMoistureContent: number,
): AdiabaticMixing;
export function adiabaticMixing(
  firstAirFlow: Each<number>,
  firstDryBulb: Each<number>,
  firstMoistureContent: Each<number>,
  secondAirFlow: Each<number>,
  secondDryBulb: Each<number>,
  secondMoistureContent: Each<number>,
): AdiabaticMixing<Float32Array>;

/**
 * Moisture content of air from the reading of a wet-and-dry-bulb psychrometer.
 *
 * Formula: g = 0.62197 f pv / (p - f pv)
 *
 * - A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is taken when the wet
 *   bulb is below 0 °C.
 * - The enhancement factor takes its ice coefficients at 0 °C and below, where the saturation pressure counts
 *   exactly 0 °C as water; the difference is deliberate.
 * - Not limited: a reading drier than any air gives a negative content, a vapour pressure above the atmospheric
 *   too.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Vapour pressure of vapourPressureFromPsychrometer; the enhancement factor f is a quadratic in absolute
 *   temperature whose coefficients are linear in pressure.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param wetBulb wet-bulb temperature [°C]; valid -100 to 200
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns moisture content, water vapour per dry air [kg/kg]
 * @see PSGS of quorvel.h
 */
export function moistureContentFromPsychrometer(
  dryBulb: number,
  wetBulb: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function moistureContentFromPsychrometer(
  dryBulb: Each<number>,
  wetBulb: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/**
 * Moisture content of air with a vapour pressure.
 *
 * Formula: g = 0.62197 f pv / (p - f pv)
 *
 * - Enhancement factor f of moistureContentFromPsychrometer, at the dry bulb.
 * - Not limited: neither to saturation, nor to vapour pressures below the atmospheric.
 *
 * Source: Definition for a mixture of ideal gases, ASHRAE Handbook Fundamentals 2017, chapter 1, with the
 *   enhancement factor of moistureContentFromPsychrometer.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param vapourPressure vapour pressure [Pa]; valid from 0
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns moisture content, water vapour per dry air [kg/kg]
 */
export function moistureContent(dryBulb: number, vapourPressure: number, pressure: number): number;
export function moistureContent(
  dryBulb: Each<number>,
  vapourPressure: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Vapour pressure of air with a moisture content, the inverse of moistureContent.
 *
 * Formula: pv = p g / (f (0.62197 + g))
 *
 * - Not limited to saturation.
 *
 * Source: As moistureContent.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param moistureContent moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns vapour pressure [Pa]
 */
export function vapourPressureFromMoistureContent(dryBulb: number, moistureContent: number, pressure: number): number;
export function vapourPressureFromMoistureContent(
  dryBulb: Each<number>,
  moistureContent: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Moisture content of air with a percentage saturation, the inverse of percentageSaturation.
 *
 * Formula: g = percentage / 100 gs(t, p)
 *
 * - Not limited. From boiling on, where the saturation pressure is above the atmospheric, it means nothing.
 *
 * Source: Definition, with the saturation moisture content of moistureContentFromPsychrometer.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param percentageSaturation percentage saturation [%]; valid 0 to 100
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns moisture content, water vapour per dry air [kg/kg]
 */
export function moistureContentFromPercentageSaturation(
  dryBulb: number,
  percentageSaturation: number,
  pressure: number,
): number;
export function moistureContentFromPercentageSaturation(
  dryBulb: Each<number>,
  percentageSaturation: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Moisture content of air with a specific enthalpy, the inverse of specificEnthalpy.
 *
 * Formula: g = (h - ha(t)) / hv(t)
 *
 * - Not limited: negative where dry air alone has more, and neither to saturation.
 *
 * Source: As specificEnthalpy.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -50 to 100
 * @param enthalpy specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
 * @returns moisture content, water vapour per dry air [kg/kg]
 */
export function moistureContentFromEnthalpy(dryBulb: number, enthalpy: number): number;
export function moistureContentFromEnthalpy(dryBulb: Each<number>, enthalpy: Each<number>): Float32Array;

/**
 * Density of moist air.
 *
 * Formula: (1 + g) / v, by specificVolume
 *
 * - A moisture content above saturation counts as saturation.
 *
 * Source: Definition: ASHRAE Handbook Fundamentals 2017, chapter 1.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param moistureContent moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns density of the moist air [kg/m³]
 */
export function moistAirDensity(dryBulb: number, moistureContent: number, pressure: number): number;
export function moistAirDensity(
  dryBulb: Each<number>,
  moistureContent: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Percentage saturation: moisture content by that of saturated air at the same temperature and pressure.
 *
 * Formula: 100 g / gs(t, p)
 *
 * - Not limited: supersaturated air gives more than 100.
 * - Percentage saturation is not relative humidity, the ratio of vapour pressures, and is the lower of the two.
 *
 * Source: Definition, with the saturation moisture content of moistureContentFromPsychrometer.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param moistureContent moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns percentage saturation [%]
 * @see PSPCST of quorvel.h
 */
export function percentageSaturation(dryBulb: number, moistureContent: number, pressure: number): number;
export function percentageSaturation(
  dryBulb: Each<number>,
  moistureContent: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Specific enthalpy of moist air.
 *
 * Formula: h = ha(t) + g hv(t), by dryAirEnthalpy and waterVapourEnthalpy
 *
 * - Per kilogram of dry air, from dry air and liquid water at 0 °C.
 * - All moisture counts as vapour: the moisture content is not limited to that of saturated air.
 *
 * Source: Sum over dry air and vapour, as for mixtures of ideal gases: ASHRAE Handbook Fundamentals 2017, chapter
 *   1.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -50 to 100
 * @param moistureContent moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
 * @returns specific enthalpy, by mass of dry air [kJ/kg]
 */
export function specificEnthalpy(dryBulb: number, moistureContent: number): number;
export function specificEnthalpy(dryBulb: Each<number>, moistureContent: Each<number>): Float32Array;

/**
 * Specific enthalpy of moist air from the reading of a wet-and-dry-bulb psychrometer.
 *
 * Formula: h = dryAirEnthalpy(t) + g waterVapourEnthalpy(t), g = moistureContentFromPsychrometer(t, twb, p)
 *
 * - A wet bulb at or above the dry bulb counts as saturation; the coefficient of an iced bulb is taken when the wet
 *   bulb is below 0 °C.
 * - Per kilogram of dry air, from dry air and liquid water at 0 °C.
 * - Saturated air at 101325 Pa is within 0.07 kJ/kg of the ASHRAE tables from -20 to 30 °C, within 0.2 % up to 50
 *   °C.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Enthalpies of dryAirEnthalpy and waterVapourEnthalpy, moisture content of
 *   moistureContentFromPsychrometer.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param wetBulb wet-bulb temperature [°C]; valid -100 to 200
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns specific enthalpy, by mass of dry air [kJ/kg]
 * @see PSHWET of quorvel.h
 */
export function specificEnthalpyFromPsychrometer(
  dryBulb: number,
  wetBulb: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function specificEnthalpyFromPsychrometer(
  dryBulb: Each<number>,
  wetBulb: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/**
 * Specific volume of moist air.
 *
 * Formula: v = 287.04 (t + 273.15) / pa - xa^2 B - 2 xa xv C - xv^2 D; xa = 0.62197 / (0.62197 + g), xv = 1 - xa,
 *   pa = p - p g / (1.0045 (0.62197 + g))
 *
 * - A moisture content above saturation counts as saturation.
 * - Per kilogram of dry air: the reciprocal is not the density of the moist air.
 * - Virial coefficients of air, B = (4.542 - 0.082785 t + 0.0004353 t^2 - 2.1418e-6 t^3) / 10000, and of air with
 *   vapour, C = (1.45 - 0.0097 t + 0.32 (t / 100)^2) / 1000; that of vapour, D, follows straight lines, one below 0
 *   °C and one for each 10 K up to 50 °C and beyond.
 *
 * Source: Virial equation of the mixture, written for 101325 Pa (1.0045 is the enhancement factor there); its
 *   author is not known.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param moistureContent moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns specific volume, by mass of dry air [m³/kg]
 * @see PSSPVL of quorvel.h
 */
export function specificVolume(dryBulb: number, moistureContent: number, pressure: number): number;
export function specificVolume(
  dryBulb: Each<number>,
  moistureContent: Each<number>,
  pressure: Each<number>,
): Float32Array;

/**
 * Temperature at which saturated air has a specific enthalpy.
 *
 * - An enthalpy below -10 gives -13.4, above 460 it gives 60, whatever the pressure; at 101325 Pa the search itself
 *   gives -12.98 and 59.98 there.
 * - A stepping search with steps down to 0.01 K: the result is below the exact temperature by less than that, or
 *   above it by 0.001 K at most.
 * - Where the search would never end (a pressure so low that the water boils, an argument that is not a number),
 *   the value it has reached is returned: some ten thousand degrees.
 *
 * Source: Enthalpy of specificEnthalpyFromPsychrometer, solved by a step-and-refine search.
 *
 * @param enthalpy specific enthalpy, by mass of dry air [kJ/kg]; valid -10 to 460
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @returns saturation temperature [°C]
 * @see PSTSAT of quorvel.h
 */
export function saturationTemperatureFromEnthalpy(enthalpy: number, pressure: number): number;
export function saturationTemperatureFromEnthalpy(enthalpy: Each<number>, pressure: Each<number>): Float32Array;

/** What poolEvaporation returns. */
export interface PoolEvaporation<Real = number> {
  /** evaporation rate [kg/(m²s)] */
  readonly evaporationRate: Real;
  /** latent load, 2.45 MJ per kg evaporated [W] */
  readonly latentLoad: Real;
  /** convection from the water to the room air at 10 W/m²K [W] */
  readonly convectiveLoad: Real;
  /** exchange of the water with the second reference temperature [W] */
  readonly referenceLoad: Real;
}

/**
 * Evaporation from an indoor pool and its heat flows, for room air given by its moisture content.
 *
 * Formula: dp = ps(waterTemperature) - pv; evaporationRate = 2.193e-8 dp - 1.64e-5 without bathers, 4.17e-8 dp
 *   bathers / waterArea + 3.28e-5 with them; latentLoad = 2.45e6 evaporationRate (waterArea + wettedArea)
 *
 * - The vapour pressure is that of a sling psychrometer at the wet bulb of wetBulbFromMoistureContent, and good to
 *   the step of that search.
 * - Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
 * - With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
 *
 * Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp in
 *   kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.
 *
 * @param waterArea area of the water surface [m²]; valid from 0
 * @param wettedArea further wetted area, which adds to the latent load only [m²]; valid from 0
 * @param waterTemperature water temperature [°C]; valid -100 to 200
 * @param dryBulb dry-bulb temperature of the room air [°C]; valid -100 to 200
 * @param moistureContent moisture content of the room air [kg/kg]; valid 0 to 0.1
 * @param referenceTemperature second reference temperature [°C]; valid -100 to 200
 * @param bathers number of bathers, below 1 unoccupied; valid from 0
 * @param referenceCoefficient coefficient of the exchange with the second reference temperature [W/m²K]; valid from
 *   0
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @see TPPOOL of quorvel.h
 */
export function poolEvaporation(
  waterArea: number,
  wettedArea: number,
  waterTemperature: number,
  dryBulb: number,
  moistureContent: number,
  referenceTemperature: number,
  bathers: number,
  referenceCoefficient: number,
  pressure: number,
): PoolEvaporation;
export function poolEvaporation(
  waterArea: Each<number>,
  wettedArea: Each<number>,
  waterTemperature: Each<number>,
  dryBulb: Each<number>,
  moistureContent: Each<number>,
  referenceTemperature: Each<number>,
  bathers: Each<number>,
  referenceCoefficient: Each<number>,
  pressure: Each<number>,
): PoolEvaporation<Float32Array>;

/** What poolEvaporationFromWetBulb returns. */
export interface PoolEvaporationFromWetBulb<Real = number> {
  /** evaporation rate [kg/(m²s)] */
  readonly evaporationRate: Real;
  /** latent load, 2.45 MJ per kg evaporated [W] */
  readonly latentLoad: Real;
  /** convection from the water to the room air at 10 W/m²K [W] */
  readonly convectiveLoad: Real;
  /** exchange of the water with the second reference temperature [W] */
  readonly referenceLoad: Real;
}

/**
 * Evaporation from an indoor pool and its heat flows, for room air given by its wet bulb.
 *
 * Formula: dp = ps(waterTemperature) - pv; evaporationRate = 2.193e-8 dp - 1.64e-5 without bathers, 4.17e-8 dp
 *   bathers / waterArea + 3.28e-5 with them; latentLoad = 2.45e6 evaporationRate (waterArea + wettedArea)
 *
 * - A wet bulb at or above the dry bulb counts as saturated air.
 * - Nothing is limited: a calm pool close to equilibrium with the air has a negative rate.
 * - With bathers the rate per area falls as the pool grows, and an area of 0 divides by zero.
 *
 * Source: Regressions of the kind that Biasin and Krumme gave in 1974 (unoccupied -0.059 + 0.000079 dp in
 *   kg/(m²h)), turned to kg/(m²s); fixed latent heat and convective coefficient.
 *
 * @param waterArea area of the water surface [m²]; valid from 0
 * @param wettedArea further wetted area, which adds to the latent load only [m²]; valid from 0
 * @param waterTemperature water temperature [°C]; valid -100 to 200
 * @param dryBulb dry-bulb temperature of the room air [°C]; valid -100 to 200
 * @param wetBulb wet-bulb temperature of the room air, sling psychrometer [°C]; valid -100 to 200
 * @param referenceTemperature second reference temperature [°C]; valid -100 to 200
 * @param bathers number of bathers, below 1 unoccupied; valid from 0
 * @param referenceCoefficient coefficient of the exchange with the second reference temperature [W/m²K]; valid from
 *   0
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @see TPPOOL2 of quorvel.h
 */
export function poolEvaporationFromWetBulb(
  waterArea: number,
  wettedArea: number,
  waterTemperature: number,
  dryBulb: number,
  wetBulb: number,
  referenceTemperature: number,
  bathers: number,
  referenceCoefficient: number,
  pressure: number,
): PoolEvaporationFromWetBulb;
export function poolEvaporationFromWetBulb(
  waterArea: Each<number>,
  wettedArea: Each<number>,
  waterTemperature: Each<number>,
  dryBulb: Each<number>,
  wetBulb: Each<number>,
  referenceTemperature: Each<number>,
  bathers: Each<number>,
  referenceCoefficient: Each<number>,
  pressure: Each<number>,
): PoolEvaporationFromWetBulb<Float32Array>;

/**
 * Saturation vapour pressure over a plane surface of water, or of ice below 0 °C.
 *
 * Formula: log10(ps) = 33.59051 - 3142.31 / T - 8.2 log10(T) + 0.0024804 T over water, 12.538099 - 2663.91 / T over
 *   ice; T = temperature + 273.15
 *
 * - Exactly 0 °C counts as water. The two branches meet there only to 0.04 Pa (610.34 over water, 610.30 over ice);
 *   the step is deliberate.
 * - Within 0.4 % of the international formulation from -20 to 150 °C, within 1 % down to -40 °C.
 *
 * Source: National Engineering Laboratory, Steam Tables 1964, in the reduced form that building services guides
 *   print.
 *
 * @param temperature temperature [°C]; valid -100 to 200
 * @returns saturation vapour pressure [Pa]
 * @see PSSVP of quorvel.h
 */
export function saturationPressure(temperature: number): number;
export function saturationPressure(temperature: Each<number>): Float32Array;

/**
 * Dew point of air with a vapour pressure, the inverse of the saturation pressure; below 0 °C the frost point.
 *
 * Formula: ps(dewPoint) = pv
 *
 * - Solved in double precision; saturationPressure, in single precision, returns the vapour pressure to 0.002 %,
 *   and dewPoint the temperature that was given to it to 0.001 K up to 100 °C.
 * - The vapour pressures between ice and water at 0 °C, 610.30 to 610.34 Pa, give 0 °C to 0.0001 K.
 * - Found from -200 to 400 °C. A pressure of 0 or less, or beyond those of this range, gives not a number.
 *
 * Source: Saturation pressure of saturationPressure (National Engineering Laboratory, Steam Tables 1964), solved by
 *   Newton's method.
 *
 * @param vapourPressure vapour pressure [Pa]; valid from 0
 * @returns dew-point temperature, of frost below 0 °C [°C]
 */
export function dewPoint(vapourPressure: number): number;
export function dewPoint(vapourPressure: Each<number>): Float32Array;

/**
 * Vapour pressure of air at a dry-bulb temperature and relative humidity.
 *
 * Formula: pv = rh / 100 ps(t)
 *
 * - Relative humidity is limited to 0 to 100 %, not rejected.
 *
 * Source: Definition of relative humidity, with the saturation pressure of saturationPressure.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param relativeHumidity relative humidity [%]; valid 0 to 100
 * @returns vapour pressure [Pa]
 * @see PSVP of quorvel.h
 */
export function vapourPressure(dryBulb: number, relativeHumidity: number): number;
export function vapourPressure(dryBulb: Each<number>, relativeHumidity: Each<number>): Float32Array;

/**
 * Relative humidity of air with a vapour pressure.
 *
 * Formula: rh = 100 pv / ps(t)
 *
 * - Not limited: supersaturated air gives more than 100.
 *
 * Source: Definition of relative humidity, the ratio of vapour pressures, with saturationPressure.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param vapourPressure vapour pressure [Pa]; valid from 0
 * @returns relative humidity [%]
 */
export function relativeHumidity(dryBulb: number, vapourPressure: number): number;
export function relativeHumidity(dryBulb: Each<number>, vapourPressure: Each<number>): Float32Array;

/**
 * Vapour pressure from the reading of a wet-and-dry-bulb psychrometer.
 *
 * Formula: pv = ps(twb) - A p (t - twb)
 *
 * - The coefficient of an iced bulb is taken when the wet bulb is below 0 °C.
 * - A wet bulb at or above the dry bulb gives the saturation pressure at the dry-bulb temperature.
 * - The result is not limited: a reading drier than any air gives a negative pressure.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 * - A is 0.000666 1/K for a sling psychrometer and 0.000799 for a screen one, 0.000594 and 0.00072 with an iced
 *   bulb.
 *
 * Source: Psychrometer equation with the customary coefficients A.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param wetBulb wet-bulb temperature [°C]; valid -100 to 200
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns vapour pressure [Pa]
 * @see PSVAP of quorvel.h
 */
export function vapourPressureFromPsychrometer(
  dryBulb: number,
  wetBulb: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function vapourPressureFromPsychrometer(
  dryBulb: Each<number>,
  wetBulb: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/**
 * Weighted temperature of two air temperatures.
 *
 * Formula: (41.94 t1 - 7.33 t2) / (34.61 + t1 - t2)
 *
 * - Two equal temperatures give that temperature. Infinite where the second is above the first by 34.61 K.
 *
 * Source: The derivation is not known, so the second temperature has no other meaning than the formula's.
 *
 * @param firstTemperature temperature with the greater weight [°C]; valid -100 to 200
 * @param secondTemperature temperature with the lesser, negative weight [°C]; valid -100 to 200
 * @returns weighted temperature [°C]
 * @see PSTEFF of quorvel.h
 */
export function weightedTemperature(firstTemperature: number, secondTemperature: number): number;
export function weightedTemperature(firstTemperature: Each<number>, secondTemperature: Each<number>): Float32Array;

/**
 * Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and relative humidity.
 *
 * - The coefficient of an iced bulb is taken when the dry bulb is below 0 °C, where vapourPressureFromPsychrometer
 *   looks at the wet bulb; the asymmetry is deliberate.
 * - A stepping search that ends within 0.1 K: the result moves in small jumps with its arguments.
 * - Relative humidity is limited to 0 to 100 %. Where the search would never end (a pressure of zero or below,
 *   say), the value it has reached is returned.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Psychrometer equation of vapourPressureFromPsychrometer, solved by a step-and-refine search.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param relativeHumidity relative humidity [%]; valid 0 to 100
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns wet-bulb temperature, never above the dry bulb [°C]
 * @see PSTWET of quorvel.h
 */
export function psychrometerWetBulb(
  dryBulb: number,
  relativeHumidity: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function psychrometerWetBulb(
  dryBulb: Each<number>,
  relativeHumidity: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/**
 * Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and percentage saturation.
 *
 * - A stepping search with steps down to 0.01 K: the result is above the exact wet bulb by less than that and moves
 *   in small jumps with its arguments.
 * - The percentage is not limited: 100 and more give the dry bulb.
 * - About 0 °C, where the coefficient changes to that of an iced bulb, two wet bulbs can belong to one percentage;
 *   which of them is found depends on the steps.
 * - Where the search would never end (below absolute zero, say), the value it has reached is returned.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Psychrometer equation of vapourPressureFromPsychrometer with the moisture content of
 *   moistureContentFromPsychrometer, solved by a step-and-refine search.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param percentageSaturation percentage saturation [%]; valid 0 to 100
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns wet-bulb temperature [°C]
 * @see PSTWB of quorvel.h
 */
export function wetBulbFromPercentageSaturation(
  dryBulb: number,
  percentageSaturation: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function wetBulbFromPercentageSaturation(
  dryBulb: Each<number>,
  percentageSaturation: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/**
 * Wet-bulb temperature that a psychrometer reads at a dry-bulb temperature and moisture content.
 *
 * - A stepping search with steps of 5 K down to 0.005 K and a last one of 0.0005 K: the result is within 0.005 K of
 *   the exact wet bulb.
 * - At saturation or above the result is the dry bulb, whatever that is. Otherwise a dry bulb above 10000 °C gives
 *   -100, one that is not a number -200.
 * - Where the search would never end (a moisture content that is not a number, or far below 0), the value it has
 *   reached is returned.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Psychrometer equation of vapourPressureFromPsychrometer with the moisture content of
 *   moistureContentFromPsychrometer, solved by a step-and-refine search.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param moistureContent moisture content, water vapour per dry air [kg/kg]; valid 0 to 0.1
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns wet-bulb temperature [°C]
 * @see PSWBLB of quorvel.h
 */
export function wetBulbFromMoistureContent(
  dryBulb: number,
  moistureContent: number,
  pressure: number,
  psychrometer: Psychrometer,
): number;
export function wetBulbFromMoistureContent(
  dryBulb: Each<number>,
  moistureContent: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;

/**
 * Wet-bulb temperature that a psychrometer reads in air with a vapour pressure.
 *
 * Formula: ps(twb) - A p (t - twb) = pv
 *
 * - The exact solution, in double precision; vapourPressureFromPsychrometer gives the vapour pressure back to 0.002
 *   % of saturation.
 * - About 0 °C an iced wet bulb and one that is not can belong to the same air: that which is not iced is found.
 * - At saturation or above the result is the dry bulb. A vapour pressure too far below 0 gives not a number.
 * - A psychrometer type below 1 counts as 1, above 2 as 2.
 *
 * Source: Psychrometer equation of vapourPressureFromPsychrometer, solved by Newton's method.
 *
 * @param dryBulb dry-bulb temperature [°C]; valid -100 to 200
 * @param vapourPressure vapour pressure [Pa]; valid from 0
 * @param pressure atmospheric pressure [Pa]; valid 50000 to 110000
 * @param psychrometer psychrometer type: 1 sling (aspirated), 2 screen (naturally ventilated)
 * @returns wet-bulb temperature [°C]
 */
export function wetBulb(dryBulb: number, vapourPressure: number, pressure: number, psychrometer: Psychrometer): number;
export function wetBulb(
  dryBulb: Each<number>,
  vapourPressure: Each<number>,
  pressure: Each<number>,
  psychrometer: Each<Psychrometer>,
): Float32Array;
