// What TypeScript makes of the package: compiled, and run as a program of a user's.
import { climate, fabric, geometry, psychro, Psychrometer, unchecked, type Each, type Refusal } from 'quorvel';

const one: number = psychro.saturationPressure(20);
const many: Float32Array = psychro.vapourPressure(20, [40, 50, 60]);
const wet: number = psychro.vapourPressureFromPsychrometer(25, 20, 101325, 'sling');
const same: number = psychro.vapourPressureFromPsychrometer(25, 20, 101325, Psychrometer.sling);
const sun: climate.SolarGeometry = climate.solarGeometry(0.9, 172, 12);
const day: Float32Array = climate.solarGeometry(0.9, 172, new Float32Array(24)).solarAltitude;
const wall: number = fabric.uValue([0.1, 0.05], [0.77, 0.04], 0.13, 0.04);
const truth: boolean = geometry.coincide(0, 0, 0, 0);
const pieces: geometry.Clipped = geometry.clip([[0, 0], [0, 2], [2, 2], [2, 0]], [[1, 1], [1, 3], [3, 3], [3, 1]]);
const left: number = unchecked.psychro.vapourPressure(20, 150);
const band: climate.LocateBand = climate.locateBand(0.5, 1, new Float32Array(120));
const kelvin = (temperature: Each<number>): Each<number> => temperature;

// @ts-expect-error: no such psychrometer
psychro.vapourPressureFromPsychrometer.bind(null, 25, 20, 101325, 'wet');
// @ts-expect-error: a number is missing
const tooFew = (): number => psychro.vapourPressure(20);
// @ts-expect-error: several results have names
const unnamed = (): number => climate.solarGeometry(0.9, 172, 12);

try {
  psychro.vapourPressure(20, 150);
} catch (error) {
  const { argument } = error as Refusal;
  console.log(one.toFixed(1), many.length, wet === same, sun.sunrise.toFixed(2), day.length, wall.toFixed(3), truth,
    pieces.overlap.length, left.toFixed(1), band.upperBand, argument, kelvin(1), typeof tooFew, typeof unnamed);
}
