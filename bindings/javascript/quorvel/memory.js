// Numbers in the memory of the WebAssembly module, where a call finds its arguments and leaves its results.
import { wasm } from './instance.js';

/** A kind of numbers: its arrays, and what an output has that a call leaves alone. */
class Kind {
  #whole = null;

  constructor(View, none) {
    this.View = View;
    this.size = View.BYTES_PER_ELEMENT;
    this.none = none;
  }

  /** The whole memory as such numbers, until it grows. */
  get memory() {
    if (!this.#whole?.length) this.#whole = new this.View(wasm.memory.buffer);
    return this.#whole;
  }
}

const integer = new Kind(Int32Array, 0);
export const kinds = {
  Real: new Kind(Float32Array, NaN),
  DoubleReal: new Kind(Float64Array, NaN),
  Integer: integer,
  Logical: integer,
  Text: new Kind(Uint8Array, 0),
};

const MOST = 2 ** 31;

let base = 0;
let room = 0;

/** An address with so many bytes behind it, free for one call. */
function reserve(bytes) {
  if (bytes <= room) return base;
  wasm.free(base);
  base = 0;
  for (room of [Math.max(2 * bytes, 4096), bytes]) {
    if (room <= MOST) base = wasm.malloc(room) >>> 0;
    if (base !== 0) return base;
  }
  room = 0;
  throw new RangeError(`quorvel: WebAssembly has no memory for ${bytes} bytes`);
}

const bytesOf = ({ kind, count }) => 8 * Math.ceil((count * kind.size) / 8);

function write({ kind, count, values }, address) {
  const { memory, none } = kind;
  const at = address / kind.size;
  if (typeof values === 'number') memory[at] = values;
  else if (values) memory.set(values, at);
  else if (count === 1) memory[at] = none;
  else memory.fill(none, at, at + count);
}

/** Puts blocks of `count` numbers one after the other, and returns their addresses. */
export function place(blocks) {
  let bytes = 0;
  for (const block of blocks) bytes += bytesOf(block);
  let at = reserve(bytes);
  const addresses = [];
  for (const block of blocks) {
    write(block, at);
    addresses.push(at);
    at += bytesOf(block);
  }
  return addresses;
}

export const numberAt = (kind, address) => kind.memory[address / kind.size];

/** A copy. */
export function numbersAt(kind, address, count) {
  const at = address / kind.size;
  return kind.memory.slice(at, at + count);
}
