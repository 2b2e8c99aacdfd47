// The first calls of the corpus of each routine, to the bit: through the WebAssembly module as C would call it, through
// the unchecked functions, and through these for all calls at once.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import * as quorvel from 'quorvel';
import { wasm } from './node_modules/quorvel/instance.js';
import { clip } from './node_modules/quorvel/routines/geometry.js';

const CASES = 2000;
const UNTOUCHED = 0xc5c5c5c5;
const VIEWS = { Real: Float32Array, DoubleReal: Float64Array, Integer: Int32Array, Text: Uint8Array };
const CHARACTERS = 64;

const layouts = JSON.parse(readFileSync(new URL('layouts.json', import.meta.url)));

const isGiven = ({ dir }) => dir !== 'out' && dir !== 'result';
const isReturned = ({ dir }) => dir !== 'in';
const product = (numbers) => numbers.reduce((all, number) => all * number, 1);
const roomOf = ({ type, shape }) => (type === 'Text' ? CHARACTERS : product(shape.map(([room]) => room)));
const wordsOf = (arg) => (roomOf(arg) * VIEWS[arg.type].BYTES_PER_ELEMENT) / 4;

/** The words of a call as numbers: before it by name, and what it left. */
function* cases(name, args) {
  const bytes = readFileSync(`corpus/${name}`);
  let at = 0;
  const take = (kept) => Object.fromEntries(args.filter(kept).map((arg) => {
    const start = at;
    at += 4 * wordsOf(arg);
    const copy = bytes.buffer.slice(bytes.byteOffset + start, bytes.byteOffset + at);
    return [arg.name, new VIEWS[arg.type](copy)];
  }));
  for (let i = 0; i < CASES; ++i) yield { given: take(isGiven), left: take(isReturned) };
  assert.equal(at, bytes.length);
}

const bits = (view) => new Uint32Array(view.buffer, view.byteOffset, view.byteLength / 4);

function assertSame(got, expected, complaint) {
  for (let i = 0; i < got.length; ++i) {
    if (got[i] === expected[i] && (got[i] !== 0 || Object.is(got[i], expected[i]))) continue;
    if (Number.isNaN(got[i]) && Number.isNaN(expected[i])) continue;
    assert.fail(`${complaint}, ${i}: ${got[i]} instead of ${expected[i]}`);
  }
}

/** In place of what a call has left alone: what a modern call gives then. */
function written(view) {
  const none = view instanceof Int32Array ? 0 : NaN;
  const words = bits(view);
  const perNumber = view.BYTES_PER_ELEMENT / 4;
  return view.map((number, i) => (words[i * perNumber] === UNTOUCHED ? none : number));
}

quorvel.climate.files.set('example.climate', readFileSync('example.climate'));

const openExample = () =>
  quorvel.unchecked.climate.stationRecords('example.climate', 1, 0, new Float32Array(132).fill(1));

function callAsC(name, args, made) {
  const passed = args.filter(({ dir }) => dir !== 'result');
  const addresses = passed.map((arg) => wasm.malloc(4 * wordsOf(arg)));
  const room = (arg) => new Uint32Array(wasm.memory.buffer, addresses[passed.indexOf(arg)], wordsOf(arg));
  openExample();
  made.forEach(({ given, left }, i) => {
    for (const arg of passed) {
      if (isGiven(arg)) room(arg).set(bits(given[arg.name]));
      else room(arg).fill(UNTOUCHED);
    }
    const value = wasm[name](...addresses);
    for (const arg of args.filter(isReturned)) {
      const numbers = new VIEWS[arg.type](arg.dir === 'result' ? [value] : room(arg).slice().buffer);
      assertSame(numbers, left[arg.name], `${name}, call ${i}, ${arg.name}`);
    }
  });
  addresses.forEach((address) => wasm.free(address));
}

/** The part of the room that this call's counts count. */
function counted({ shape }, numbers, given) {
  return numbers.subarray(0, product(shape.map(([room, count]) => (count ? given[count][0] : room))));
}

const fits = (args, given) => args.every(({ shape }) =>
  shape.every(([room, count]) => !count || (given[count][0] >= 0 && given[count][0] <= room)));

function passedTo(parameters, args, given) {
  return parameters.map(({ name }) => {
    const arg = args.find((each) => each.name === name);
    if (arg.type === 'Text') return new TextDecoder().decode(given[name]).split('\0')[0];
    return arg.shape.length ? counted(arg, given[name], given) : given[name][0];
  });
}

/** A result of a function by its name, as numbers. */
function numbersOf(result, name, count) {
  const value = count === 1 ? result : result[name];
  return typeof value === 'object' ? value : [typeof value === 'boolean' ? value ? -1 : 0 : value];
}

function callUnchecked({ family, name, args }, made) {
  const call = quorvel.unchecked[family][name];
  const { parameters } = functions[family][name];
  const returned = args.filter(isReturned);
  let compared = 0;
  openExample();
  made.forEach(({ given, left }, i) => {
    if (!fits(args, given)) return;
    const result = call(...passedTo(parameters, args, given));
    for (const arg of returned)
      assertSame(numbersOf(result, arg.name, returned.length), written(left[arg.name]),
        `${name}, call ${i}, ${arg.name}`);
    ++compared;
  });
  assert.ok(compared >= CASES / 4, `only ${compared} calls of ${name}`);
}

function callForArrays({ family, name, args }, made) {
  const { parameters } = functions[family][name];
  const returned = args.filter(isReturned);
  const typeOf = (wanted) => VIEWS[args.find((arg) => arg.name === wanted).type];
  const columns = parameters.map((parameter) =>
    typeOf(parameter.name).from(made, ({ given }) => given[parameter.name][0]));
  const result = quorvel.unchecked[family][name](...columns);
  for (const arg of returned) {
    const numbers = numbersOf(result, arg.name, returned.length);
    const size = roomOf(arg);
    made.forEach(({ left }, i) => assertSame(Array.from(numbers.slice(i * size, (i + 1) * size), Number),
      written(left[arg.name]), `${name} of arrays, call ${i}, ${arg.name}`));
  }
}

/** With the routine of C in place of the function of polygons. */
const functions = { ...quorvel, geometry: { ...quorvel.geometry, clip } };

const takesLists = ({ args }) => args.some((arg) => isGiven(arg) && (arg.shape.length || arg.type === 'Text'));
const hasArrays = (name, layout) => !name.startsWith('CLBNF') && !takesLists(layout) &&
  layout.args.every(({ shape }) => shape.every(([, count]) => !count));

test('every routine of the module is compared', () => {
  const exported = Object.keys(wasm).filter((name) => /^[A-Z]/.test(name));
  assert.deepEqual(Object.keys(layouts).sort(), exported.sort());
});

for (const [name, layout] of Object.entries(layouts))
  test(`bits of ${name}`, () => {
    const made = [...cases(name, layout.args)];
    callAsC(name, layout.args, made);
    callUnchecked(layout, made);
    if (hasArrays(name, layout)) callForArrays(layout, made);
  });
