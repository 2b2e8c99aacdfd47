// Climate data files as objects, each independent of all others.
import { numbers } from './argument.js';
import { files, wasm } from './instance.js';
import { kinds, numbersAt, place } from './memory.js';
import { stationClimate, stationRow, interpolateStationRows, locateStationBand } from './routines/climate.js';

const reals = (count) => ({ kind: kinds.Real, count });
const integers = (count) => ({ kind: kinds.Integer, count });

/** Values as one of the five routines takes them. */
function checked(routine, values) {
  return Object.entries(values).map(([name, value]) =>
    numbers('ClimateFile', routine.parameters.find((parameter) => parameter.name === name), value, true));
}

function opened(bytes) {
  if (!(bytes instanceof Uint8Array)) throw new TypeError('ClimateFile: the bytes of a file must be a Uint8Array');
  const name = `ClimateFile ${(opened.last = (opened.last ?? 0) + 1)}`;
  const text = new TextEncoder().encode(`${name}\0`);
  files.set(name, bytes);
  const [at, status] = place([{ kind: kinds.Text, count: text.length, values: text }, integers(1)]);
  const handle = wasm.quorvel_climate_file_open(at, status);
  files.delete(name);
  if (handle === 0) throw new RangeError('ClimateFile: WebAssembly has no memory for it');
  return handle;
}

const forgotten = new FinalizationRegistry((handle) => wasm.quorvel_climate_file_close(handle));

export class ClimateFile {
  #handle;

  constructor(bytes) {
    this.#handle = opened(bytes);
    forgotten.register(this, this.#handle, this);
  }

  close() {
    forgotten.unregister(this);
    wasm.quorvel_climate_file_close(this.#handle);
    this.#handle = 0;
  }

  stationClimate(station, month, { band = 0, percentage = 0, bandSet = 1 } = {}) {
    const given = checked(stationClimate, { station, band, month, bandSet, percentage });
    const [[q1, q2, q3, q4, q5, q6, q7], [timeA, timeB]] =
      this.#read('station_climate', given, [reals(7), reals(2)]);
    return { q1, q2, q3, q4, q5, q6, q7, timeA, timeB };
  }

  locateStationBand(station, month, fraction, { bandSet = 1 } = {}) {
    const [number, set] = checked(stationClimate, { station, bandSet });
    const given = checked(locateStationBand, { fraction, month });
    const [[lowerBand], [upperBand], [bandWeight]] =
      this.#read('locate_station_band', [number, set, ...given], [integers(1), integers(1), reals(1)]);
    return { lowerBand, upperBand, bandWeight };
  }

  interpolateStationRows(station, month, baseRow, { lowerBand, upperBand, bandWeight }) {
    const [number] = checked(stationClimate, { station });
    const given = checked(interpolateStationRows, { baseRow, lowerBand, upperBand, month, bandWeight });
    return this.#read('interpolate_station_rows', [number, ...given], [reals(1)])[0][0];
  }

  stationRow(station, row) {
    const given = [...checked(stationClimate, { station }), ...checked(stationRow, { row })];
    return this.#read('station_row', given, [reals(12)])[0];
  }

  #read(name, given, outputs) {
    if (this.#handle === 0) throw new Error('ClimateFile: it is closed');
    const addresses = place(outputs);
    const status = wasm[`quorvel_climate_file_${name}`](this.#handle, ...given, ...addresses);
    if (status !== 0) throw new RangeError(`ClimateFile: station ${given[0]} cannot be read`);
    return outputs.map(({ kind, count }, i) => numbersAt(kind, addresses[i], count));
  }
}
