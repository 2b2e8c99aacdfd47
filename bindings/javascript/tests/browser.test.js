// The package in a browser without a screen: from a server, and in one file without any.
import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { copyFileSync, readFileSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { test } from 'node:test';
import { promisify } from 'node:util';
import { psychro, unchecked } from 'quorvel';

const types = { html: 'text/html', js: 'text/javascript', json: 'application/json' };

async function textOf(address) {
  const options = ['--headless', '--no-sandbox', '--disable-gpu', '--virtual-time-budget=20000', '--dump-dom', address];
  const { stdout } = await promisify(execFile)('chromium', options, { maxBuffer: 1e8 });
  return stdout;
}

test('a page from a server', async () => {
  const given = Float32Array.from({ length: 5000 }, (_, i) => -60 + i / 31);
  writeFileSync('temperatures.bin', given);
  writeFileSync('pressures.bin', unchecked.psychro.saturationPressure(given));
  const examples = JSON.parse(readFileSync('examples.json')).length;
  const server = createServer((request, response) => {
    const name = `.${new URL(request.url, 'http://localhost').pathname}`;
    try {
      response.writeHead(200, { 'content-type': types[name.split('.').pop()] ?? 'application/octet-stream' });
      response.end(readFileSync(name));
    } catch {
      response.end();
    }
  }).listen(0);
  try {
    const page = await textOf(`http://localhost:${server.address().port}/page.html`);
    for (const line of [`${examples} of ${examples} examples`, '5000 of 5000 bits', `${psychro.saturationPressure(20)}`])
      assert.ok(page.includes(line), page.slice(0, 3000));
  } finally {
    server.close();
  }
});

test('a page from a file', async () => {
  copyFileSync('node_modules/quorvel/quorvel.global.js', 'quorvel.global.js');
  const page = await textOf(new URL('psychrometrics.html', import.meta.url).href);
  const wetBulb = psychro.wetBulb(20, psychro.vapourPressure(20, 50), 101325, 'sling').toFixed(1);
  assert.ok(page.includes(`<output id="wetBulb">${wetBulb}<`), page.slice(0, 3000));
});
