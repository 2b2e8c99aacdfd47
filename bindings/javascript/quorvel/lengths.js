// How many elements a call has, and how much its lists count.
import { refusal } from './argument.js';

const isNumber = (value) => typeof value === 'number';
const product = (extents) => extents.reduce((all, extent) => all * extent, 1);

/** How many numbers an argument has in one element. */
export const extentOf = ({ shape }, counts) => (shape ? product(shape.map((n) => (isNumber(n) ? n : counts[n]))) : 1);

/** How many elements there are where lists stand in place of numbers; null where none does. */
export function elementsOf({ name, parameters, arrays }, values) {
  let first = null;
  for (const { name: argument, order, shape, type } of parameters) {
    const value = values[order];
    if (shape || type === 'Text' || isNumber(value)) continue;
    if (!arrays) throw refusal(TypeError, name, argument, value, 'must be one number');
    first ??= { argument, elements: value.length };
    if (value.length !== first.elements)
      throw refusal(RangeError, name, argument, value,
        `has ${value.length} elements, and ${first.argument} ${first.elements}`);
  }
  return first && first.elements;
}

/** What a list of that shape counts: so many times the numbers of a row. */
function countedBy({ name }, { name: list, shape }, value) {
  const row = product(shape.filter(isNumber));
  const count = value.length / row;
  if (shape.every(isNumber) ? count === 1 : Number.isInteger(count)) return count;
  const each = shape.every(isNumber) ? '' : ' for each of its rows';
  throw refusal(RangeError, name, list, value, `must have ${row} numbers${each}, not ${value.length}`);
}

/** The counts that lists tell, and the room for those that a caller gives. */
export function countsOf(routine, values, checked) {
  const { name, lists, countsTold, countsGiven } = routine;
  const counts = {};
  for (const list of lists) {
    const count = countedBy(routine, list, values[list.order]);
    const of = list.shape.find((n) => !isNumber(n));
    if (of && (counts[of] ??= count) !== count)
      throw refusal(RangeError, name, list.name, values[list.order],
        `has ${count} ${of}, and another list ${counts[of]}`);
  }
  for (const { name: count, range: [low, high] } of checked ? countsTold : [])
    if (counts[count] < low || counts[count] > high)
      throw refusal(RangeError, name, count, counts[count],
        `= ${counts[count]} is outside its valid range, ${high === Infinity ? `from ${low}` : `${low} to ${high}`}`);
  for (const { name: count, order, range: [low, high] } of countsGiven) {
    const value = values[order];
    const highest = isNumber(value) ? value : value.reduce((most, each) => Math.max(most, each), low);
    counts[count] = Math.min(Math.max(highest | 0, 0), high);
  }
  return counts;
}
