// Polygons in plan as lists of points, in double precision.
import { clippingFault, isShortOfRoom } from './clipping_status.js';
import { clip as clipPools } from './routines/geometry.js';

const MOST_ROOM = 1 << 24;
const MOST_CROSSINGS = 1024;

export class ClippingError extends Error {
  constructor(fault) {
    super(`geometry.clip: ${fault}`);
    this.name = 'ClippingError';
  }
}

function checkPoints(polygon, name) {
  const isPoint = (point) => Array.isArray(point) && point.length === 2 && point.every(Number.isFinite);
  if (!Array.isArray(polygon) || !polygon.every(isPoint))
    throw new TypeError(`geometry.clip: ${name} must be a list of points [x, y] of finite numbers`);
}

const range = (first, count) => Int32Array.from({ length: count }, (_, i) => first + i);

function attempt(a, b, room) {
  const points = [...a, ...b];
  const pool = (axis) => Float64Array.from({ length: points.length + room }, (_, i) => points[i]?.[axis] ?? 0);
  const capacity = points.length + room;
  const [inA, inB] = [range(1, a.length), range(a.length + 1, b.length)];
  return clipPools.unchecked(pool(0), pool(1), inA, inB, MOST_CROSSINGS, capacity, capacity, points.length);
}

/** Of a list: the number of vertices of each piece, their positions from 1, negative where a bridge begins; then 0. */
function pieces({ x, y }, list) {
  const found = [];
  for (let at = 0; list[at] !== 0; at += list[at] + 1) {
    const positions = Array.from(list.subarray(at + 1, at + 1 + list[at]), (position) => Math.abs(position) - 1);
    found.push(positions.map((position) => [x[position], y[position]]));
  }
  return found;
}

export function clip(a, b) {
  checkPoints(a, 'a');
  checkPoints(b, 'b');
  let room = 64;
  let left = attempt(a, b, room);
  while (isShortOfRoom(left.status) && room < MOST_ROOM) left = attempt(a, b, (room *= 2));
  if (left.status !== 0) throw new ClippingError(clippingFault(left.status));
  return { difference: pieces(left, left.differencePieces), overlap: pieces(left, left.overlapPieces) };
}

export function polygonArea(polygon) {
  let twice = 0;
  for (let i = 2; i < polygon.length; ++i) {
    const [o, p, q] = [polygon[0], polygon[i - 1], polygon[i]];
    twice += (q[0] - o[0]) * (p[1] - o[1]) - (p[0] - o[0]) * (q[1] - o[1]);
  }
  return Math.abs(twice) / 2;
}

export function overlapArea(a, b) {
  return clip(a, b).overlap.reduce((sum, piece) => sum + polygonArea(piece), 0);
}
