// One example of the catalogue: [family, function, arguments, [result, tolerance] by name].

const listed = (value) => (typeof value === 'object' ? Array.from(value) : [value]);

/** A result as numbers; true is -1, as in C. */
function numbersOf(result, key) {
  const value = typeof result === 'object' && !ArrayBuffer.isView(result) ? result[key] : result;
  return listed(value).map((number) => (typeof number === 'boolean' ? (number ? -1 : 0) : number));
}

/** What is wrong with the results; empty if nothing is. */
export function faultOf(families, [family, name, given, expected]) {
  const result = families[family][name](...given);
  for (const [key, [wanted, tolerance]] of Object.entries(expected)) {
    const numbers = numbersOf(result, key);
    const right = listed(wanted).every((number, i) => Math.abs(numbers[i] - number) <= tolerance);
    if (!right) return `${family}.${name}: ${key} is ${numbers} and not ${wanted}`;
  }
  return '';
}

/** Whether all arguments are within the valid ranges. */
export function isValid(families, [family, name, given]) {
  return families[family][name].parameters.every(({ range, type }, i) =>
    type === 'Text' || !range || [given[i]].flat().every((value) => value >= range[0] && value <= range[1]));
}
