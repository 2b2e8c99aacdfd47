// Produced from the catalogue of routines (catalogue/); do not edit.
import type { Each, List } from '../numbers.js';
import type { ElementKind, Exposure, HeatFlowDirection, Packing, PaneKind, Surface } from '../selectors.js';

/** What cyclicResponse returns. */
export interface CyclicResponse<Real = number> {
  /** admittance Y [W/m²K] */
  readonly admittance: Real;
  /** time lead of the admittance, 0 to 24 / harmonic [h] */
  readonly admittanceLead: Real;
  /** decrement factor f, 0 for a partition */
  readonly decrementFactor: Real;
  /** time lag of the decrement factor, 0 to 24 / harmonic, 0 for a partition [h] */
  readonly decrementLag: Real;
  /** surface factor F */
  readonly surfaceFactor: Real;
  /** time lag of the surface factor, 0 to 24 / harmonic [h] */
  readonly surfaceFactorLag: Real;
  /** U-value, as uValue gives it [W/m²K] */
  readonly uValue: Real;
}

/**
 * Admittance, decrement factor and surface factor of a construction with their time shifts, and its U-value.
 *
 * Formula: M = Msi M1 ... Mn Mso; Y = m22 / m12, of a partition (m22 - 1) / m12; f = 1 / (uValue m12); F = 1 -
 *   insideResistance Y
 *
 * - Without layers the two surfaces are left.
 * - Any kind but 2 counts as 1. A harmonic of 0 is a steady temperature: the admittance is U, the time shifts are
 *   not numbers. One below 0 gives no numbers.
 * - A layer without heat capacity acts as its resistance. One with very little is the less accurate the smaller x
 *   is, its thickness over the depth at which the swing has sunk to 1/e (0.1 to 0.2 m in masonry): the relative
 *   error of its resistance is about 1e-7 / x, since sinh is formed as a difference in single precision.
 * - Shifts near 0 can come out near a whole cycle: rounding decides on which side of 0 an angle falls. One that is
 *   exactly 0 may be -0, as both lags of layers without heat capacity are.
 * - The moduli of all three factors are formed so that no square under- or overflows: a decrement factor of 2.8e-24
 *   (four layers of 0.6 m of concrete under harmonic 12) is one.
 * - Where the x of all layers add up to about 87 the elements of the matrix overflow: the admittance is infinite or
 *   not a number, and from 89 on nothing but U is a number. That is 12.3 m of concrete of 1.75 W/mK, 2400 kg/m³ and
 *   1000 J/kgK under the daily cycle; of 2 W/mK, 2000 kg/m³ and 880 J/kgK 15 m still have numbers.
 * - Density and specific heat enter as their product only.
 * - The formula's M is the product of the transmission matrices of the surfaces and the layers. Its complex Y, f
 *   and F are the admittance, the decrement factor and the surface factor with their time shifts.
 *
 * Source: Pipes, Matrix analysis of heat transfer problems, Journal of the Franklin Institute 263, 1957; Milbank
 *   and Harrington-Lynn, Thermal response and the admittance procedure, Building Research Establishment CP 61/74,
 *   1974; ISO 13786.
 *
 * @param thickness thickness of each layer, from the room outwards; below 0: a layer of given resistance, 0: no
 *   layer [m]
 * @param conductivity conductivity of each layer; its resistance in m²K/W where the thickness is below 0 [W/mK];
 *   valid from 0
 * @param density density of each layer [kg/m³]; valid from 0
 * @param specificHeat specific heat of each layer [J/kgK]; valid from 0
 * @param insideResistance resistance of the surface at the room [m²K/W]; valid from 0
 * @param outsideResistance resistance of the far surface [m²K/W]; valid from 0
 * @param harmonic cycles in 24 hours; valid from 0
 * @param elementKind kind of element: 1 element between two environments, 2 internal partition, the same swing on
 *   both sides
 * @see TPADMT of quorvel.h
 */
export function cyclicResponse(
  thickness: List,
  conductivity: List,
  density: List,
  specificHeat: List,
  insideResistance: number,
  outsideResistance: number,
  harmonic: number,
  elementKind: ElementKind,
): CyclicResponse;
export function cyclicResponse(
  thickness: List,
  conductivity: List,
  density: List,
  specificHeat: List,
  insideResistance: Each<number>,
  outsideResistance: Each<number>,
  harmonic: Each<number>,
  elementKind: Each<ElementKind>,
): CyclicResponse<Float32Array>;

/**
 * Thermal resistance of a sealed vertical air cavity between ordinary building surfaces.
 *
 * Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width), at least 0.1; Nu = 0.035 Ra^0.38, at least 1;
 *   Ra = 793.00165 width^3 / 4.4e-7
 *
 * - A width below 0.001 gives 0.1, where airCavityResistance and gasCavityResistance give 0: deliberate. Not a
 *   number stays so.
 * - The emissivities e1 and e2 of the faces are 0.85 and 0.86.
 *
 * Source: As airCavityResistance.
 *
 * @param cavityWidth width [m]; valid from 0.001
 * @returns cavity resistance, not below 0.1 [m²K/W]
 * @see TPRCAV of quorvel.h
 */
export function verticalCavityResistance(cavityWidth: number): number;
export function verticalCavityResistance(cavityWidth: Each<number>): Float32Array;

/**
 * Thermal resistance of a sealed air cavity by convection and long-wave radiation.
 *
 * Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width); Nu = C Ra^n, at least 1; Ra = 793.00165 width^3
 *   / 4.4e-7
 *
 * - A tilt outside 0..3.1416 and a width below 0.001 give 0.
 * - C and n of the Nusselt number C Ra^n, which is at least 1, are interpolated over the tilt between 0, 0.785 and
 *   1.57, and carried on as far as 1.59. From there the air rests and only conducts: the resistance jumps.
 * - Two faces of emissivity 0 leave the exchange undefined (0/0).
 *
 * Source: EN 673, Glass in building - Determination of thermal transmittance: C and n for vertical, inclined and
 *   horizontal cavities, and air at 10 °C with 15 K between the faces.
 *
 * @param tilt tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
 * @param cavityWidth width [m]; valid from 0.001
 * @param emissivity1 long-wave emissivity of one face; valid 0 to 1
 * @param emissivity2 long-wave emissivity of the other face; valid 0 to 1
 * @returns cavity resistance [m²K/W]
 * @see TPRCA2 of quorvel.h
 */
export function airCavityResistance(
  tilt: number,
  cavityWidth: number,
  emissivity1: number,
  emissivity2: number,
): number;
export function airCavityResistance(
  tilt: Each<number>,
  cavityWidth: Each<number>,
  emissivity1: Each<number>,
  emissivity2: Each<number>,
): Float32Array;

/**
 * Thermal resistance of a sealed cavity filled with any gas.
 *
 * Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + conductivity Nu / width); Nu = C Ra^n, at least 1; Ra = 0.52
 *   specificHeat density^2 width^3 / (viscosity conductivity)
 *
 * - Guards and correlation as in airCavityResistance.
 * - The Rayleigh number has a factor of 0.52 m/s² for gravity times expansion times temperature difference,
 *   whatever the gas and its temperature.
 * - A negative Rayleigh number has no power: not a number.
 *
 * Source: As airCavityResistance.
 *
 * @param tilt tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
 * @param cavityWidth width [m]; valid from 0.001
 * @param emissivity1 long-wave emissivity of one face; valid 0 to 1
 * @param emissivity2 long-wave emissivity of the other face; valid 0 to 1
 * @param density density of the gas [kg/m³]; valid from 0
 * @param conductivity thermal conductivity of the gas [W/mK]; valid from 0
 * @param specificHeat specific heat of the gas at constant pressure [J/kgK]; valid from 0
 * @param viscosity dynamic viscosity of the gas [Pa s]; valid from 0
 * @returns cavity resistance [m²K/W]
 * @see TPRCAX of quorvel.h
 */
export function gasCavityResistance(
  tilt: number,
  cavityWidth: number,
  emissivity1: number,
  emissivity2: number,
  density: number,
  conductivity: number,
  specificHeat: number,
  viscosity: number,
): number;
export function gasCavityResistance(
  tilt: Each<number>,
  cavityWidth: Each<number>,
  emissivity1: Each<number>,
  emissivity2: Each<number>,
  density: Each<number>,
  conductivity: Each<number>,
  specificHeat: Each<number>,
  viscosity: Each<number>,
): Float32Array;

/**
 * Vapour resistance of a construction.
 *
 * Formula: sum of 1e9 thickness vapourResistivity
 *
 * - A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, whatever its
 *   resistivity: an air gap 0.05 m wide is entered as -0.05, not as -1.
 * - Without layers it is 0.
 * - Results are in N s/kg, resistivities in GN s/(kg m).
 *
 * Source: Vapour resistances in series; 5 GN s/(kg m) is the customary resistivity of still air.
 *
 * @param thickness thickness of each layer; below 0: a layer of given thermal resistance, 0: a membrane [m]
 * @param vapourResistivity vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg [GN
 *   s/(kg m)]; valid from 0
 * @returns total vapour resistance [N s/kg]
 * @see TPDAMP of quorvel.h
 */
export function totalVapourResistance(thickness: List, vapourResistivity: List): number;

/** What condensationProfile returns. */
export interface CondensationProfile {
  /** temperature at the interfaces, from the inside surface to the outside one [°C]; not a number beyond element layers
   * + 1 */
  readonly interfaceTemperature: Float32Array;
  /** vapour pressure at them [Pa]; not a number beyond element layers + 1 */
  readonly interfaceVapourPressure: Float32Array;
  /** saturation pressure at them [Pa]; not a number beyond element layers + 1 */
  readonly interfaceSaturationPressure: Float32Array;
}

/**
 * Steady temperature, vapour pressure and saturation pressure at the interfaces of a construction; the vapour
 *   pressure is held down to saturation where it would exceed it.
 *
 * - The first and the last interface are the surfaces. Without layers there is one surface, with the temperature
 *   and the vapour pressure of its inside.
 * - Vapour condenses at an interface where the vapour pressure equals the saturation pressure.
 * - Relative humidities are limited to 0 to 100 %, the vapour pressures at the two surfaces to saturation there.
 *   Between two surfaces without any vapour resistance the vapour pressure is no number.
 * - A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, as in
 *   totalVapourResistance.
 * - Saturation inside a layer, between its interfaces, is not looked for: see condensesWithinLayer.
 *
 * Source: Glaser's method in the stepwise form of ISO 13788: the vapour line is straight over the vapour resistance
 *   between the interfaces at which it is held to saturation.
 *
 * @param thickness thickness of each layer from the inside; below 0: a layer of given thermal resistance, 0: a
 *   membrane [m]
 * @param conductivity conductivity of each layer; its resistance in m²K/W where the thickness is below 0 [W/mK];
 *   valid from 0
 * @param vapourResistivity vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg [GN
 *   s/(kg m)]; valid from 0
 * @param insideResistance resistance of the inside surface [m²K/W]; valid from 0
 * @param outsideResistance resistance of the outside surface [m²K/W]; valid from 0
 * @param insideTemperature inside air temperature [°C]; valid -100 to 200
 * @param outsideTemperature outside air temperature [°C]; valid -100 to 200
 * @param insideHumidity inside relative humidity [%]; valid 0 to 100
 * @param outsideHumidity outside relative humidity [%]; valid 0 to 100
 * @see TPGRAD of quorvel.h
 */
export function condensationProfile(
  thickness: List,
  conductivity: List,
  vapourResistivity: List,
  insideResistance: number,
  outsideResistance: number,
  insideTemperature: number,
  outsideTemperature: number,
  insideHumidity: number,
  outsideHumidity: number,
): CondensationProfile;
export function condensationProfile(
  thickness: List,
  conductivity: List,
  vapourResistivity: List,
  insideResistance: Each<number>,
  outsideResistance: Each<number>,
  insideTemperature: Each<number>,
  outsideTemperature: Each<number>,
  insideHumidity: Each<number>,
  outsideHumidity: Each<number>,
): CondensationProfile;

/**
 * Whether vapour condenses inside a layer, from the temperatures and vapour pressures of its two faces.
 *
 * - The layer is looked at in steps of 0.5 K from the warm face: the warm face itself is not, the cold face only if
 *   a step falls on it. Faces less than 0.5 K apart give 0.
 * - A cold face that is not below the warm one, or a temperature that is no number, gives 0.
 * - Where the temperature is so large that a step of 0.5 K is lost in its rounding (8.4 million °C), the search
 *   ends there with 0.
 *
 * Source: Straight lines of temperature and vapour pressure through a homogeneous layer, against the saturation
 *   pressure of saturationPressure.
 *
 * @param warmTemperature temperature of the warm face [°C]; valid -100 to 200
 * @param coldTemperature temperature of the cold face [°C]; valid -100 to 200
 * @param warmVapourPressure vapour pressure at the warm face [Pa]; valid from 0
 * @param coldVapourPressure vapour pressure at the cold face [Pa]; valid from 0
 * @returns 1 if vapour condenses, 0 if not
 * @see ITPCON of quorvel.h
 */
export function condensesWithinLayer(
  warmTemperature: number,
  coldTemperature: number,
  warmVapourPressure: number,
  coldVapourPressure: number,
): number;
export function condensesWithinLayer(
  warmTemperature: Each<number>,
  coldTemperature: Each<number>,
  warmVapourPressure: Each<number>,
  coldVapourPressure: Each<number>,
): Int32Array;

/**
 * One property of one record of a construction, a list of elements from face to face.
 *
 * - The type code, 50 to 999, is 100 times the class plus the subtype: class 1 solid layer, 2 another layer, 3 gap
 *   (300 of given resistance, 302 filled with gas), 4 translucent layer, 5 boundary, 6 end marker; other classes
 *   have no meaning. It is rounded after the limits are tested: 149.6 is class 1, subtype 50; 49.6 and what is no
 *   number are no codes.
 * - Items of every class: 1 type code.
 * - Items of classes 1, 3 and 4: 2 thickness in mm; 4 and 5 fields 4 and 5, of a layer the two factors of its
 *   volumetric heat capacity, of a gas specific heat and density. Of 1 and 4: 3 conductivity in W/mK. Of 1 and 3: 6
 *   field 6.
 * - Items of class 3: 7 viscosity of the gas; 11 resistance in m²K/W, or conductivity of the gas; 61 and 62 field
 *   8, with subtype 1 and 2.
 * - Items of classes 2, 4 and 5: 12 field 6. Of class 5 with subtype 1 or 2: 21 to 23 fields 2 to 4.
 * - Items of packed fields (packThreeFractions), all classes but 3 and 6: 31 solar transmittance, 32 front and 33
 *   back reflectance, 34 and 35 front and back absorptance, from field 9; 41 to 45 the same from field 7; 54 and 55
 *   the long-wave fractions of the two faces, 52 and 53 one less these, from field 8.
 * - Items of every class: 71 and 72 are 1 if the list ends with a record of code 601 and 602, whichever valid
 *   record is asked about.
 * - The complements of an undefined packed field, items 34, 35, 44, 45, 52 and 53, are -1e20 or -2e20, not 1e20:
 *   deliberate.
 *
 * Source: Layout of the element records.
 *
 * @param elementRecords ten fields of each record, counted from 1; the first is its type code [by field]
 * @param recordNumber record asked about, counted from 1; valid from 1
 * @param item property asked for; valid 1 to 72
 * @returns the property [by item]; 1e20 where there is none
 * @see BELDAT of quorvel.h
 */
export function elementProperty(elementRecords: List, recordNumber: number, item: number): number;
export function elementProperty(elementRecords: List, recordNumber: Each<number>, item: Each<number>): Float32Array;

/**
 * Coefficient of natural convection at a surface of a room.
 *
 * Formula: ((1.63 dT^(1/3))^6 + (1.40 (dT / L)^(1/4))^6)^(1/6) upwards, 1.23 and 1.50 for 1.63 and 1.40 at a
 *   vertical surface, 0.6 (dT / L^2)^(1/5) downwards; dT = |temperatureDifference|, L = characteristicLength
 *
 * - Any other direction gives 0.
 * - The coefficients 1.23 and 1.50 of a vertical surface have the laminar term larger than the turbulent one, with
 *   an upward flow it is the other way round; both are as published.
 * - A length of 0 gives an infinite coefficient, one below 0 no number but for a downward flow.
 *
 * Source: Alamdari and Hammond, Improved data correlations for buoyancy-driven convection in rooms, Building
 *   Services Engineering Research and Technology 4, 1983.
 *
 * @param temperatureDifference difference between surface and air temperature; its sign makes no difference [K]
 * @param characteristicLength characteristic length: height of a vertical surface, four times the area over the
 *   perimeter of a horizontal one [m]; valid from 0
 * @param heatFlowDirection direction of the heat flow: 1 heat flow upwards, 2 vertical surface, 3 heat flow
 *   downwards
 * @returns convective coefficient [W/m²K]
 * @see TPHCON of quorvel.h
 */
export function naturalConvectionCoefficient(
  temperatureDifference: number,
  characteristicLength: number,
  heatFlowDirection: HeatFlowDirection,
): number;
export function naturalConvectionCoefficient(
  temperatureDifference: Each<number>,
  characteristicLength: Each<number>,
  heatFlowDirection: Each<HeatFlowDirection>,
): Float32Array;

/** What packTwoFractions returns. */
export interface PackTwoFractions<Real = number> {
  /** packed number; 1e20 where there is none; as given when unpacking */
  readonly packedNumber: Real;
  /** fraction behind the point; 1e20 where there is none; as given when packing */
  readonly fraction1: Real;
  /** fraction held as units and tens; 1e20 where there is none; as given when packing */
  readonly fraction2: Real;
}

/**
 * Packs two fractions of two decimals into one real, or unpacks them.
 *
 * - As packThreeFractions with a third fraction of 0, which is not returned: what stands above 100 is ignored.
 *
 * Source: As packThreeFractions.
 *
 * @param packing direction: 1 pack, 2 unpack, as any other value
 * @param packedNumber packed number; valid 0 to 9999.99
 * @param fraction1 fraction behind the point; valid 0 to 0.99
 * @param fraction2 fraction held as units and tens; valid 0 to 0.99
 * @see TPCOLW of quorvel.h
 */
export function packTwoFractions(
  packing: Packing,
  packedNumber: number,
  fraction1: number,
  fraction2: number,
): PackTwoFractions;
export function packTwoFractions(
  packing: Each<Packing>,
  packedNumber: Each<number>,
  fraction1: Each<number>,
  fraction2: Each<number>,
): PackTwoFractions<Float32Array>;

/** What packThreeFractions returns. */
export interface PackThreeFractions<Real = number> {
  /** packed number; 1e20 where there is none; as given when unpacking */
  readonly packedNumber: Real;
  /** fraction behind the point; 1e20 where there is none; as given when packing */
  readonly fraction1: Real;
  /** fraction held as units and tens; 1e20 where there is none; as given when packing */
  readonly fraction2: Real;
  /** fraction held as hundreds and thousands; 1e20 where there is none; as given when packing */
  readonly fraction3: Real;
}

/**
 * Packs three fractions of two decimals into one real, or unpacks them.
 *
 * - 0.25, 0.40, 0.07 are packed as 740.25.
 * - Fractions that add up to more than 1e10, and a packed number above 1e10, are undefined and give 1e20.
 * - Fractions 2 and 3 are cut to two decimals, with a tenth of a hundredth to spare; fraction 1 is added as it
 *   stands and cut when unpacked.
 * - All triples from 0.00 to 0.99 come back, as hundredths times the float 0.01: for 29 of the hundred fractions,
 *   0.40 among them, that is the float next to the nearest.
 * - A fraction of 1.00 is carried into the next one, 1 into 2 and 2 into 3.
 *
 * Source: Format of the packed property numbers of element records (elementProperty).
 *
 * @param packing direction: 1 pack, 2 unpack, as any other value
 * @param packedNumber packed number; valid 0 to 9999.99
 * @param fraction1 fraction behind the point; valid 0 to 0.99
 * @param fraction2 fraction held as units and tens; valid 0 to 0.99
 * @param fraction3 fraction held as hundreds and thousands; valid 0 to 0.99
 * @see TPCOLT of quorvel.h
 */
export function packThreeFractions(
  packing: Packing,
  packedNumber: number,
  fraction1: number,
  fraction2: number,
  fraction3: number,
): PackThreeFractions;
export function packThreeFractions(
  packing: Each<Packing>,
  packedNumber: Each<number>,
  fraction1: Each<number>,
  fraction2: Each<number>,
  fraction3: Each<number>,
): PackThreeFractions<Float32Array>;

/** What packThreeFractionsThirdFirst returns. */
export interface PackThreeFractionsThirdFirst<Real = number> {
  /** packed number; 1e20 where there is none; as given when unpacking */
  readonly packedNumber: Real;
  /** fraction held as hundreds and thousands; 1e20 where there is none; as given when packing */
  readonly fraction3: Real;
  /** fraction behind the point; 1e20 where there is none; as given when packing */
  readonly fraction1: Real;
  /** fraction held as units and tens; 1e20 where there is none; as given when packing */
  readonly fraction2: Real;
}

/**
 * packThreeFractions with its arguments in another order.
 *
 * Source: As packThreeFractions.
 *
 * @param packing direction: 1 pack, 2 unpack, as any other value
 * @param packedNumber packed number; valid 0 to 9999.99
 * @param fraction3 fraction held as hundreds and thousands; valid 0 to 0.99
 * @param fraction1 fraction behind the point; valid 0 to 0.99
 * @param fraction2 fraction held as units and tens; valid 0 to 0.99
 * @see TPCOLW2 of quorvel.h
 */
export function packThreeFractionsThirdFirst(
  packing: Packing,
  packedNumber: number,
  fraction3: number,
  fraction1: number,
  fraction2: number,
): PackThreeFractionsThirdFirst;
export function packThreeFractionsThirdFirst(
  packing: Each<Packing>,
  packedNumber: Each<number>,
  fraction3: Each<number>,
  fraction1: Each<number>,
  fraction2: Each<number>,
): PackThreeFractionsThirdFirst<Float32Array>;

/** What packPane returns. */
export interface PackPane<Real = number> {
  /** packed number; 1e20 where there is none; as given when unpacking */
  readonly packedNumber: Real;
  /** absorptance; 1e20 where there is none; as given when packing */
  readonly absorptance: Real;
  /** reflectance of the first face; 1e20 where there is none; as given when packing */
  readonly reflectance1: Real;
  /** reflectance of the second face; 1e20 where there is none; as given when packing */
  readonly reflectance2: Real;
}

/**
 * Packs the solar absorptance of a pane and the reflectances of its faces into one real, as absorptance and
 *   transmittances, or unpacks them.
 *
 * - Packed as packThreeFractions packs the absorptance and the transmittances 1 - absorptance - reflectance of the
 *   two faces. Undefined values as there.
 * - A face that neither absorbs nor reflects transmits 1.00, which is carried into the next position.
 * - Absorptance and reflectance of a face that exceed 1 together do not come back.
 *
 * Source: As packThreeFractions.
 *
 * @param packing direction: 1 pack, 2 unpack, as any other value
 * @param packedNumber packed number; valid 0 to 9999.99
 * @param absorptance absorptance; valid 0 to 1
 * @param reflectance1 reflectance of the first face; valid 0 to 1
 * @param reflectance2 reflectance of the second face; valid 0 to 1
 * @see TPCOSW of quorvel.h
 */
export function packPane(
  packing: Packing,
  packedNumber: number,
  absorptance: number,
  reflectance1: number,
  reflectance2: number,
): PackPane;
export function packPane(
  packing: Each<Packing>,
  packedNumber: Each<number>,
  absorptance: Each<number>,
  reflectance1: Each<number>,
  reflectance2: Each<number>,
): PackPane<Float32Array>;

/**
 * Thermal resistance of the inside or outside surface of an element, for an emissivity of 0.9.
 *
 * Formula: inside 1 / (9.53 - 2.6 tilt / pi), outside 1 / (4.59 + a + 4 b (1 - tilt / pi)^2)
 *
 * - Another surface type gives 0. Another exposure counts as the nearest one.
 * - An inside vertical surface has 1 / 8.23 = 0.12 m²K/W.
 * - The tilt is not tested.
 * - a is 4.3, 9.1 and 20.7 W/m²K by exposure, b is 1.3, 2.8 and 6.1.
 *
 * Source: Radiation and convection side by side. The customary values of inside surfaces (0.10 up, 0.12 horizontal,
 *   0.14 down) and of outside ones in normal and severe exposure (walls 0.06 and 0.03, roofs 0.04 and 0.02) are met
 *   to two decimals; the origin of the convective coefficients is not recorded.
 *
 * @param surface surface: 1 outside, 2 inside
 * @param tilt tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
 * @param exposure exposure of an outside surface to the wind: 1 sheltered, 2 normal, 3 severe
 * @returns surface resistance [m²K/W]
 * @see TPRSUR of quorvel.h
 */
export function surfaceResistance(surface: Surface, tilt: number, exposure: Exposure): number;
export function surfaceResistance(surface: Each<Surface>, tilt: Each<number>, exposure: Each<Exposure>): Float32Array;

/**
 * Thermal resistance of the inside or outside surface of an element of any emissivity.
 *
 * Formula: inside 1 / (4.4 - 2.6 tilt / pi + 5.7 emissivity), outside 1 / (5.1 emissivity + a + 4 b (1 - tilt /
 *   pi)^2)
 *
 * - Another surface type gives 0. Another exposure counts as the nearest one.
 * - At an emissivity of 0.9 it is surfaceResistance to rounding.
 * - Tilt and emissivity are not tested.
 * - a and b are those of surfaceResistance.
 *
 * Source: As surfaceResistance, with black-body coefficients of 5.1 W/m²K outside and 5.7 W/m²K inside.
 *
 * @param surface surface: 1 outside, 2 inside
 * @param tilt tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
 * @param exposure exposure of an outside surface to the wind: 1 sheltered, 2 normal, 3 severe
 * @param emissivity long-wave emissivity of the surface; valid 0 to 1
 * @returns surface resistance [m²K/W]
 * @see TPRSU2 of quorvel.h
 */
export function surfaceResistanceAtEmissivity(
  surface: Surface,
  tilt: number,
  exposure: Exposure,
  emissivity: number,
): number;
export function surfaceResistanceAtEmissivity(
  surface: Each<Surface>,
  tilt: Each<number>,
  exposure: Each<Exposure>,
  emissivity: Each<number>,
): Float32Array;

/**
 * U-value of a construction of plane layers between two surface resistances.
 *
 * Formula: 1 / (surfaceResistance1 + surfaceResistance2 + sum of thickness / conductivity)
 *
 * - Without layers the two surfaces are left.
 * - How far below 0 a thickness is makes no difference here; it does in totalVapourResistance and
 *   condensationProfile.
 * - A thickness that is no number gives no number.
 *
 * Source: Resistances in series; ISO 6946.
 *
 * @param thickness thickness of each layer; below 0: a layer of given resistance, 0: no layer [m]
 * @param conductivity conductivity of each layer; its resistance in m²K/W where the thickness is below 0 [W/mK];
 *   valid from 0
 * @param surfaceResistance1 resistance of one surface [m²K/W]; valid from 0
 * @param surfaceResistance2 resistance of the other [m²K/W]; valid from 0
 * @returns U-value [W/m²K]
 * @see TPUVAL of quorvel.h
 */
export function uValue(
  thickness: List,
  conductivity: List,
  surfaceResistance1: number,
  surfaceResistance2: number,
): number;
export function uValue(
  thickness: List,
  conductivity: List,
  surfaceResistance1: Each<number>,
  surfaceResistance2: Each<number>,
): Float32Array;

/**
 * U-value of a construction at another tilt and exposure, from its U-value as a vertical wall in normal exposure.
 *
 * Formula: 1 / (1 / uValue - Rso - Rsi + Rso(tilt, exposure) + Rsi(tilt)), Rso and Rsi of a vertical surface in
 *   normal exposure where nothing else is said
 *
 * - A U-value that is not above 0, or no number, comes back as it is.
 * - Above 5.49 W/m²K, what the two surfaces of the wall let through by themselves, the layers would have a negative
 *   resistance; the result is formed with it all the same.
 * - An exposure below 1 counts as 1, above 3 as 3. The tilt is not limited.
 *
 * Source: Surface resistances of surfaceResistance, exchanged.
 *
 * @param uValue U-value with the surface resistances of a vertical wall at exposure 2 [W/m²K]; valid from 0
 * @param tilt tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
 * @param exposure wind exposure of the outside surface: 1 sheltered, 2 normal, 3 severe
 * @returns U-value at that tilt and exposure [W/m²K]
 * @see TPUMOD of quorvel.h
 */
export function uValueAtTiltAndExposure(uValue: number, tilt: number, exposure: Exposure): number;
export function uValueAtTiltAndExposure(
  uValue: Each<number>,
  tilt: Each<number>,
  exposure: Each<Exposure>,
): Float32Array;

/** What windowParameters returns. */
export interface WindowParameters<Real = number> {
  /** admittance, the U-value [W/m²K] */
  readonly admittance: Real;
  /** time lead of the admittance, 0 [h] */
  readonly admittanceLead: Real;
  /** decrement factor, 1 */
  readonly decrementFactor: Real;
  /** time lag of the decrement factor, 0 [h] */
  readonly decrementLag: Real;
  /** surface factor, 1 - Rsi U */
  readonly surfaceFactor: Real;
  /** time lag of the surface factor, 0 [h] */
  readonly surfaceFactorLag: Real;
  /** U-value [W/m²K] */
  readonly uValue: Real;
}

/**
 * U-value, admittance, decrement factor and surface factor of a glazing of one to three panes.
 *
 * Formula: uValue = 1 / (Rso + Rsi + the resistances of the cavities), surfaceFactor = 1 - Rsi uValue
 *
 * - The resistance of the glass is neglected and nothing is stored in it.
 * - Of three panes one may be open: the middle one leaves a single cavity as wide as both. With two open panes, and
 *   with one open pane of two, there is no cavity.
 * - The kinds of the panes are told by their sum: 0, 1, 2 count as three closed panes.
 * - Another number of panes counts as one pane, with the emissivity of pane 3 outside.
 * - Cavities as airCavityResistance: one that it rejects has no resistance.
 * - Rsi and Rso are the resistances of the inner and the outer surface.
 *
 * Source: Surface resistances of surfaceResistanceAtEmissivity and cavities of airCavityResistance in series.
 *
 * @param panes number of panes, pane 1 nearest the room; valid 1 to 3
 * @param paneKind1 kind of pane 1: 1 closes the cavities on both sides, 2 closes none
 * @param emissivity1 long-wave emissivity of pane 1; valid 0 to 1
 * @param paneKind2 kind of pane 2: 1 closes the cavities on both sides, 2 closes none
 * @param emissivity2 long-wave emissivity of pane 2; valid 0 to 1
 * @param paneKind3 kind of pane 3: 1 closes the cavities on both sides, 2 closes none
 * @param emissivity3 long-wave emissivity of pane 3; valid 0 to 1
 * @param cavityWidth1 width of the cavity between panes 1 and 2 [m]; valid from 0.001
 * @param cavityWidth2 width of the cavity between panes 2 and 3 [m]; valid from 0.001
 * @param outerSurface surface type of the outer face, normally 1: 1 outside, 2 inside
 * @param exposure exposure of the outer face to the wind: 1 sheltered, 2 normal, 3 severe
 * @param tilt tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416
 * @see TPWNDO of quorvel.h
 */
export function windowParameters(
  panes: number,
  paneKind1: PaneKind,
  emissivity1: number,
  paneKind2: PaneKind,
  emissivity2: number,
  paneKind3: PaneKind,
  emissivity3: number,
  cavityWidth1: number,
  cavityWidth2: number,
  outerSurface: Surface,
  exposure: Exposure,
  tilt: number,
): WindowParameters;
export function windowParameters(
  panes: Each<number>,
  paneKind1: Each<PaneKind>,
  emissivity1: Each<number>,
  paneKind2: Each<PaneKind>,
  emissivity2: Each<number>,
  paneKind3: Each<PaneKind>,
  emissivity3: Each<number>,
  cavityWidth1: Each<number>,
  cavityWidth2: Each<number>,
  outerSurface: Each<Surface>,
  exposure: Each<Exposure>,
  tilt: Each<number>,
): WindowParameters<Float32Array>;
