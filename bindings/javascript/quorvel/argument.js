// What a caller passes becomes numbers, or an error that says what is wrong with it.

const isList = (value) => Array.isArray(value) || (ArrayBuffer.isView(value) && !(value instanceof DataView));

const shown = (value) => (typeof value === 'string' ? `'${value}'` : String(value));

/** An error with what its message says as properties: routine, argument, value. */
export function refusal(Kind, routine, argument, value, complaint) {
  return Object.assign(new Kind(`${routine}: ${argument} ${complaint}`), { routine, argument, value });
}

const element = ({ name }, index) => (index === undefined ? name : `${name}[${index}]`);

/** The valid values in words. */
function allowed({ range: [low, high], unit }) {
  const units = unit ? ` ${unit}` : '';
  if (high === Infinity) return `from ${low}${units}`;
  return low === -Infinity ? `to ${high}${units}` : `${low} to ${high}${units}`;
}

function checkRange(routine, parameter, value, index) {
  const [low, high] = parameter.range ?? [-Infinity, Infinity];
  const whole = parameter.type !== 'Integer' || Number.isInteger(value);
  if (value >= low && value <= high && whole) return;
  const complaint =
    Number.isNaN(value) ? 'is not a number'
    : !whole ? `= ${value} is not a whole number`
    : `= ${value} is outside its valid range, ${allowed(parameter)}`;
  throw refusal(RangeError, routine, element(parameter, index), value, complaint);
}

/** The number of a selector's name, or a number that is one of its values. */
function selected(routine, parameter, value, checked, index) {
  const { selector } = parameter;
  const found = Object.hasOwn(selector, value) ? selector[value] : value;
  if (typeof found === 'number' && (!checked || Object.values(selector).includes(found))) return found;
  const choice = Object.entries(selector).map(([name, number]) => `'${name}' (${number})`).join(', ');
  throw refusal(RangeError, routine, element(parameter, index), value, `must be one of ${choice}, not ${shown(value)}`);
}

function number(routine, parameter, value, checked, index) {
  if (parameter.selector) return selected(routine, parameter, value, checked, index);
  if (typeof value !== 'number')
    throw refusal(TypeError, routine, element(parameter, index), value, `must be a number, not ${shown(value)}`);
  if (checked) checkRange(routine, parameter, value, index);
  return value;
}

const flat = (list) => (isList(list[0]) ? Array.from(list, (row) => Array.from(row)).flat() : list);

/** One number for each element or of a list. Those that are right already are let be. */
function each(routine, parameter, list, checked) {
  if (ArrayBuffer.isView(list) && !parameter.selector) {
    for (let i = 0; checked && i < list.length; ++i) checkRange(routine, parameter, list[i], i);
    return list;
  }
  return Array.from(list, (value, i) => number(routine, parameter, value, checked, i));
}

function text(routine, parameter, value) {
  if (typeof value === 'string') return new TextEncoder().encode(`${value}\0`);
  throw refusal(TypeError, routine, parameter.name, value, `must be a string, not ${shown(value)}`);
}

/** What stands for a parameter: a number; of a list, and where there is one for each element, an array of them. */
export function numbers(routine, parameter, value, checked) {
  if (typeof value === 'number' && !parameter.shape) return number(routine, parameter, value, checked);
  if (parameter.type === 'Text') return text(routine, parameter, value);
  if (isList(value)) return each(routine, parameter, parameter.shape ? flat(value) : value, checked);
  if (parameter.shape)
    throw refusal(TypeError, routine, parameter.name, value, `must be a list of numbers, not ${shown(value)}`);
  return number(routine, parameter, value, checked);
}
