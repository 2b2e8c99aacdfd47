// The package in a browser without a screen: from a server, and from a file without any.
import assert from 'node:assert/strict';
import { spawn } from 'node:child_process';
import { copyFileSync, readFileSync, writeFileSync } from 'node:fs';
import { createServer } from 'node:http';
import { after, before, test } from 'node:test';
import { psychro, unchecked } from 'quorvel';

const types = { html: 'text/html', js: 'text/javascript', json: 'application/json' };
const SECONDS = 60;

let server, address;
let reported = () => {};  // what a page has sent

async function answer(request, response) {
  const name = `.${new URL(request.url, address).pathname}`;
  if (request.method === 'POST') {
    let text = '';
    for await (const part of request) text += part;
    reported(text);
    response.end();
    return;
  }
  response.writeHead(200, { 'content-type': types[name.split('.').pop()] ?? 'application/octet-stream' });
  response.end(name.endsWith('.ico') ? '' : readFileSync(name));
}

before(async () => {
  server = createServer(answer);
  await new Promise((listening) => server.listen(0, listening));
  address = `http://localhost:${server.address().port}`;
});
after(() => server.close());

/** What the page reports. */
async function reportOf(page) {
  const options = ['--headless', '--no-sandbox', '--disable-gpu', `--user-data-dir=${process.cwd()}/profile`, page];
  const browser = spawn('chromium', options, { stdio: 'ignore' });
  try {
    return await new Promise((resolve, reject) => {
      reported = resolve;
      setTimeout(reject, 1000 * SECONDS, new Error(`no report after ${SECONDS} s`)).unref();
      browser.on('error', reject);
    });
  } finally {
    browser.kill();
  }
}

test('a page from a server', async () => {
  const given = Float32Array.from({ length: 5000 }, (_, i) => -60 + i / 31);
  writeFileSync('temperatures.bin', given);
  writeFileSync('pressures.bin', unchecked.psychro.saturationPressure(given));
  const examples = JSON.parse(readFileSync('examples.json')).length;
  assert.equal(await reportOf(`${address}/page.html`), `${examples} of ${examples} examples\n5000 of 5000 bits`);
});

test('the chart, from a file', async () => {
  copyFileSync('node_modules/quorvel/quorvel.global.js', 'quorvel.global.js');
  const report = `quorvel.then(() => fetch('${address}', { method: 'POST', mode: 'no-cors', body: element('wetBulb').value }))`;
  writeFileSync('chart.html', `${readFileSync('psychrometrics.html')}<script>${report}</script>`);
  const wetBulb = psychro.wetBulb(20, psychro.vapourPressure(20, 50), 101325, 'sling');
  assert.equal(await reportOf(new URL('chart.html', import.meta.url).href), wetBulb.toFixed(1));
});
