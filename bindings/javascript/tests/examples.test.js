// The examples of the catalogue, with and without checks; run by Node here, and by browsers in page.html.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import * as quorvel from 'quorvel';
import { faultOf, isValid } from './examples.js';

const examples = JSON.parse(readFileSync(new URL('examples.json', import.meta.url)));
quorvel.climate.files.set('example.climate', readFileSync('example.climate'));

test('every function has an example', () => {
  const functions = Object.entries(quorvel.unchecked).flatMap(([family, routines]) =>
    Object.keys(routines).map((name) => `${family}.${name}`));
  const shown = new Set(examples.map(([family, name]) => `${family}.${name}`));
  assert.deepEqual([...shown].sort(), functions.sort());
});

test('examples of the catalogue', () => {
  for (const example of examples) assert.equal(faultOf(quorvel.unchecked, example), '');
});

test('examples outside the valid ranges are refused, all others are not', () => {
  const byValues = examples.filter(([, name]) => name !== 'clip');  // which takes polygons when checked
  for (const example of byValues) {
    if (isValid(quorvel, example)) assert.equal(faultOf(quorvel, example), '');
    else assert.throws(() => faultOf(quorvel, example), RangeError);
  }
});
