// A routine called with numbers that are known to fit: by reference, or over whole arrays.
import { wasm } from './instance.js';
import { extentOf } from './lengths.js';
import { kinds, numberAt, numbersAt, place } from './memory.js';

/** Of what is given; undefined for what is only returned. */
const valueOf = ({ dir, name, order }, values, counts) => (dir === 'count' ? counts[name] : values[order]);

/** A result of one element. */
function single({ type, kind, shape }, address, count) {
  if (shape) return numbersAt(kind, address, count);
  return type === 'Logical' ? numberAt(kind, address) !== 0 : numberAt(kind, address);
}

/** One element, by the routine of quorvel.h. */
export function callByReference({ reference, passed, results }, values, counts) {
  const blocks = passed.map((arg) => {
    const value = valueOf(arg, values, counts);
    return { kind: arg.kind, count: arg.type === 'Text' ? value.length : extentOf(arg, counts), values: value };
  });
  const addresses = place(blocks);
  const value = wasm[reference](...addresses);
  return results.map((result) => {
    if (result.dir === 'result') return result.type === 'Logical' ? value !== 0 : value;
    return single(result, addresses[result.position], blocks[result.position].count);
  });
}

const addressesOfRoutines = new Map();

function addressOf(name) {
  if (!addressesOfRoutines.has(name)) {
    const text = new TextEncoder().encode(`${name}\0`);
    const [at] = place([{ kind: kinds.Text, count: text.length, values: text }]);
    addressesOfRoutines.set(name, wasm.quorvel_find_routine(at));
  }
  return addressesOfRoutines.get(name);
}

/** Of an input: one value for all elements, or a number for each. */
function given(arg, values, counts) {
  const value = valueOf(arg, values, counts);
  const many = typeof value !== 'number';
  return { kind: arg.kind, count: many ? value.length : 1, values: value, step: many && !arg.shape ? 1 : 0 };
}

function returned(arg, counts, elements) {
  const step = extentOf(arg, counts);
  return { kind: arg.kind, count: step * elements, step };
}

function array({ type, kind }, address, count) {
  const numbers = numbersAt(kind, address, count);
  return type === 'Logical' ? Array.from(numbers, (truth) => truth !== 0) : numbers;
}

/** So many elements, or one where `elements` is null, by quorvel_call of quorvel_arrays.h. */
export function callForElements({ name, arrays, inputs, results }, values, counts, elements) {
  const outputs = results.map((arg) => returned(arg, counts, elements ?? 1));
  const columns = [...inputs.map((arg) => given(arg, values, counts)), ...outputs];
  const routine = addressOf(arrays);
  const table = { kind: kinds.Integer, count: columns.length };
  const strides = { ...table, values: columns.map(({ kind, step }) => step * kind.size) };
  const [atAddresses, atStrides, ...addresses] = place([table, strides, ...columns]);
  kinds.Integer.memory.set(addresses, atAddresses / kinds.Integer.size);
  const status = wasm.quorvel_call(routine, elements ?? 1, atAddresses, atStrides);
  if (status !== 0) throw new RangeError(`${name}: ${inputs[status >> 8].name} is outside its valid range`);
  const read = elements === null ? single : array;
  return results.map((result, i) => read(result, addresses[inputs.length + i], outputs[i].count));
}
