// Functions of numbers and lists, made from what is known of each routine.
import { numbers } from './argument.js';
import { callByReference, callForElements } from './call.js';
import { countsOf, elementsOf } from './lengths.js';
import { kinds } from './memory.js';

const having = (...directions) => ({ dir }) => directions.includes(dir);

/** What follows from a routine's arguments. The `order` of a parameter is its place in a call here, the `position` of
 *  an argument that in C. */
function described(name, reference, arrays, data) {
  const args = data.map((arg) => ({ ...arg, kind: kinds[arg.type] }));
  const parameters = args.filter(having('in', 'inout'));
  const passed = args.filter(({ dir }) => dir !== 'result');
  parameters.forEach((parameter, order) => (parameter.order = order));
  passed.forEach((arg, position) => (arg.position = position));
  const extents = new Set(args.flatMap(({ shape = [] }) => shape));
  return {
    name, reference, arrays, parameters, passed,
    lists: parameters.filter(({ shape }) => shape),
    countsTold: args.filter(having('count')),
    countsGiven: parameters.filter(({ name: parameter }) => extents.has(parameter)),
    results: args.filter(having('result', 'out', 'inout')),
    inputs: args.filter(having('in', 'inout', 'count')),
  };
}

/** The function of a routine. As `unchecked` it has one that takes any numbers, as C does.
 *
 *  `reference` is its exported name, if it has one; `arrays` its name for whole arrays, if it has such a form. `args`
 *  are the value of the function and then its arguments in the order of C, with `dir` "result", "in", "out", "inout",
 *  "count" for what lists tell, or "unread". */
export function routine(name, reference, arrays, args) {
  const known = described(name, reference, arrays, args);
  const form = (checked) => Object.defineProperties((...given) => run(known, given, checked), {
    name: { value: name.split('.')[1] },
    length: { value: known.parameters.length },
  });
  return Object.assign(form(true), { unchecked: form(false), parameters: known.parameters });
}

function valuesOf({ name, parameters }, given, checked) {
  if (given.length !== parameters.length) {
    const names = parameters.map((parameter) => parameter.name).join(', ');
    throw new TypeError(`${name}: takes ${parameters.length} arguments (${names}), not ${given.length}`);
  }
  return parameters.map((parameter, i) => numbers(name, parameter, given[i], checked));
}

function run(known, given, checked) {
  const values = valuesOf(known, given, checked);
  const elements = elementsOf(known, values);
  const counts = countsOf(known, values, checked || elements !== null);
  if (elements === null && known.reference) return told(known, callByReference(known, values, counts));
  return told(known, callForElements(known, values, counts, elements));
}

/** The value of a function, of several results an object. */
function told({ results }, values) {
  if (values.length === 1) return values[0];
  const object = {};
  results.forEach(({ name }, i) => (object[name] = values[i]));
  return object;
}
