import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { Worker } from 'node:worker_threads';
import { climate, fabric, geometry, glazing, psychro, Psychrometer, unchecked } from 'quorvel';

const stations = readFileSync('example.climate');

function refusal(call) {
  try {
    call();
  } catch (error) {
    return `${error.name}: ${error.message}`;
  }
  return 'not refused';
}

test('what is refused, and how that is said', () => {
  const cases = [
    [() => psychro.vapourPressure(20, 150),
      'RangeError: psychro.vapourPressure: relativeHumidity = 150 is outside its valid range, 0 to 100 %'],
    [() => psychro.vapourPressure(20, NaN), 'RangeError: psychro.vapourPressure: relativeHumidity is not a number'],
    [() => psychro.vapourPressure(20, '50'),
      "TypeError: psychro.vapourPressure: relativeHumidity must be a number, not '50'"],
    [() => psychro.vapourPressure(20),
      'TypeError: psychro.vapourPressure: takes 2 arguments (dryBulb, relativeHumidity), not 1'],
    [() => psychro.vapourPressure(20, [40, 101]),
      'RangeError: psychro.vapourPressure: relativeHumidity[1] = 101 is outside its valid range, 0 to 100 %'],
    [() => psychro.vapourPressure([20, 21], [40, 50, 60]),
      'RangeError: psychro.vapourPressure: relativeHumidity has 3 elements, and dryBulb 2'],
    [() => psychro.vapourPressureFromPsychrometer(25, 20, 101325, 'wet'),
      'RangeError: psychro.vapourPressureFromPsychrometer: psychrometer must be one of ' +
        "'sling' (1), 'screen' (2), not 'wet'"],
    [() => climate.designDay(6.5), 'RangeError: climate.designDay: month = 6.5 is not a whole number'],
    [() => fabric.uValue([0.1, 0.05], [0.77], 0.13, 0.04),
      'RangeError: fabric.uValue: conductivity has 1 layers, and another list 2'],
    [() => fabric.uValue(Array(21).fill(0.1), Array(21).fill(1), 0.13, 0.04),
      'RangeError: fabric.uValue: layers = 21 is outside its valid range, 0 to 20'],
    [() => geometry.crossProduct([1, 2], [1, 2, 3]),
      'RangeError: geometry.crossProduct: vectorA must have 3 numbers, not 2'],
    [() => geometry.clip([[0, 0], [1, 1], [1, 0], [0, 1]], [[0, 0], [0, 1], [1, 1]]),
      'ClippingError: geometry.clip: a crosses itself'],
    [() => climate.stationRow([1, 2]), 'TypeError: climate.stationRow: row must be one number'],
    [() => unchecked.glazing.unitDirectShares([0.5, 0.6], 0.1, 0.3, 9),
      'RangeError: glazing.unitDirectShares: panes is outside its valid range'],
  ];
  for (const [call, words] of cases) assert.equal(refusal(call), words);
  assert.throws(() => psychro.vapourPressure(20, 150), { argument: 'relativeHumidity', value: 150 });
});

test('a selector by value, by name, and an array of them', () => {
  const pressure = (psychrometer) => psychro.vapourPressureFromPsychrometer(25, 20, 101325, psychrometer);
  assert.equal(pressure('screen'), pressure(Psychrometer.screen));
  assert.deepEqual(pressure(['sling', 'screen']), Float32Array.of(pressure(1), pressure(2)));
  assert.throws(() => { Psychrometer.sling = 3; }, TypeError);
});

test('arrays have the bits of single numbers, whatever kind of array is given', () => {
  const hours = Float64Array.from({ length: 24 }, (_, hour) => hour);
  const day = climate.solarGeometry(0.9, 172, hours);
  for (const [i, hour] of hours.entries()) {
    const single = Object.entries(climate.solarGeometry(0.9, 172, hour));
    for (const [name, value] of single) assert.equal(day[name][i], value);
  }
  assert.deepEqual(climate.solarGeometry(0.9, 172, []).sunrise, new Float32Array(0));
  const vectors = geometry.directionTo([0.1, 0.2], 0.3);
  assert.deepEqual(vectors.slice(3), geometry.directionTo(0.2, 0.3));
  const density = psychro.moistAirDensity(20, 0.01, 101325);  // without a form by reference
  assert.deepEqual(psychro.moistAirDensity([20, 20], 0.01, 101325), Float32Array.of(density, density));
});

test('lists row by row or one number after the other', () => {
  const corners = [[0, 0, 0], [0, 0, 3], [4, 0, 3], [4, 0, 0]];
  assert.deepEqual(geometry.polygonOrientation(corners), geometry.polygonOrientation(corners.flat()));
  assert.equal(geometry.polygonOrientation(corners).area, 12);
});

test('what a call leaves alone is not a number', () => {
  const layers = new Float32Array(21).fill(0.1);  // one too many
  assert.ok(Number.isNaN(unchecked.fabric.uValue(layers, layers, 0.13, 0.04)));
  const { paneShares } = glazing.unitDirectShares(0.5, 0.1, 0.3, [2, 3]);
  assert.deepEqual([paneShares.length, paneShares.findIndex(Number.isNaN)], [6, 2]);
});

test('memory grows with arrays, and is used again', () => {
  const many = new Float32Array(1e6).fill(20);
  const saturated = psychro.saturationPressure(20);
  for (let i = 0; i < 3; ++i) assert.equal(psychro.saturationPressure(many)[999999], saturated);
  const tooMuch = 2 ** 31 - 1;
  assert.throws(() => unchecked.geometry.clip([], [], [], [], 0, tooMuch, tooMuch, 0), /no memory for \d+ bytes/);
  assert.equal(psychro.saturationPressure(20), saturated);
});

test('climate data files as objects, alike and apart', () => {
  const [file, other] = [new climate.ClimateFile(stations), new climate.ClimateFile(stations)];
  other.stationClimate(2, 1);
  const { q1, timeA } = file.stationClimate(1, 1, { band: 1 });
  assert.ok(Math.abs(q1 - 0.522423) < 2e-5 && timeA === 15);
  const band = file.locateStationBand(1, 1, 0.343052);
  assert.deepEqual([band.lowerBand, band.upperBand], [3, 4]);
  assert.ok(Math.abs(file.interpolateStationRows(1, 1, 12, band) - 0.532542) < 2e-5);
  assert.deepEqual([...file.stationRow(1, 1)], [15, 14, 15, 15, 16, 14, 16, 15, 14, 16, 14, 14]);
  assert.throws(() => file.stationClimate(1, 13), /month = 13 is outside its valid range, 1 to 12/);
  assert.throws(() => file.stationRow(5000, 1), /station 5000 cannot be read/);
  assert.throws(() => new climate.ClimateFile('two.climate'), TypeError);
  file.close();
  assert.throws(() => file.stationRow(1, 1), /closed/);
  assert.equal(other.stationRow(1, 1)[0], 15);
});

test('polygons: areas add up, pieces touch, and many crossings are survived', () => {
  const square = [[0, 0], [0, 2], [2, 2], [2, 0]];
  const shifted = square.map(([x, y]) => [x + 1, y + 1]);
  const { difference, overlap } = geometry.clip(square, shifted);
  assert.deepEqual([geometry.polygonArea(difference[0]), geometry.polygonArea(overlap[0])], [3, 1]);
  const inner = [[0.5, 0.5], [0.5, 1], [1, 1], [1, 0.5]];
  const left = geometry.clip(square, inner).difference.reduce((sum, piece) => sum + geometry.polygonArea(piece), 0);
  assert.ok(Math.abs(left - 3.75) < 1e-9);

  // Combs with as many long teeth, one across the other
  const tooth = (i, length) => [[i, 0], [i, length], [i + 0.5, length], [i + 0.5, 0]];
  const comb = (n) => [[0, -1], ...Array.from({ length: n }, (_, i) => tooth(i, n)).flat(), [n, 0], [n, -1]];
  const across = (n) => comb(n).map(([x, y]) => [y + 0.1, x + 0.1]);
  assert.ok(Math.abs(geometry.overlapArea(comb(4), across(4)) - 1.9 * 2 - 0.1 * 3.9) < 0.01);
  assert.match(refusal(() => geometry.clip(comb(20), across(20))), /a and b cross more than 1024 times/);
});

test('a worker has an instance of its own', async () => {
  const program = `
    const { parentPort } = require('node:worker_threads');
    import('quorvel').then(({ psychro }) => parentPort.postMessage(psychro.saturationPressure(20)));`;
  const value = await new Promise((resolve, reject) => {
    new Worker(program, { eval: true }).on('message', resolve).on('error', reject);
  });
  assert.equal(value, psychro.saturationPressure(20));
});
