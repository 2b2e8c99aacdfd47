// The WebAssembly module: one instance for each thread that imports the package, with memory of its own.
import base64 from './wasm.js';

/** Climate data files in memory, by name: what routines that take the name of a file read. */
export const files = new Map();

const opened = new Map();
let lastHandle = 0;

const surroundings = {
  open(at, length) {
    const bytes = files.get(new TextDecoder().decode(bytesAt(at, length)));
    if (!bytes) return -1;
    opened.set(++lastHandle, bytes);
    return lastHandle;
  },
  close(handle) {
    opened.delete(handle);
  },
  read(handle, offset, to, size) {
    const bytes = opened.get(handle);
    if (offset < 0 || offset + size > bytes.length) return 0;
    bytesAt(to, size).set(bytes.subarray(offset, offset + size));
    return 1;
  },
};

const binary = Uint8Array.from(atob(base64), (character) => character.charCodeAt(0));
const { instance } = await WebAssembly.instantiate(binary, { quorvel: surroundings });

/** Functions by reference under their exported names, and what of quorvel_arrays.h is needed. */
export const wasm = instance.exports;
wasm._initialize();

function bytesAt(at, length) {
  return new Uint8Array(wasm.memory.buffer, at, length);
}
