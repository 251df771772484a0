// The server of the demo: what it serves, and that no address ends it.
import assert from 'node:assert/strict';
import http from 'node:http';
import { after, before, test } from 'node:test';

import { POLICY, serve } from '../../web/demo/server.mjs';
import { top } from './harness/packages.mjs';

let server;
before(async () => (server = await serve([['/demo/', `${top}web/demo/`]])));
after(() => server.close());

/** Asks for a path to the letter, which a browser would tidy up first. */
const asked = (path) =>
  new Promise((resolve, reject) => {
    const request = http.get({ port: new URL(server.origin).port, path, agent: false, timeout: 30000 }, (answer) => {
      answer.resume().on('end', () => resolve(answer));
    });
    request.on('error', reject).on('timeout', () => request.destroy(new Error('no answer')));
  });
const statusOf = async (path) => (await asked(path)).statusCode;

test('server.ServesItsFoldersWithThePolicy', async () => {
  const { statusCode, headers } = await asked('/demo/');
  assert.equal(statusCode, 200);
  assert.equal(headers['content-type'], 'text/html; charset=utf-8');
  assert.equal(headers['content-security-policy'], POLICY);
});

test('server.KnowsNothingElse', async () => {
  for (const path of ['/', '/demo', '/demo/nergens.js', '/README.md', '/demo/../README.md', '/demo/%2e%2e/%2e%2e/README.md', '/demo/..%2f..%2fREADME.md'])
    assert.equal(await statusOf(path), 404, path);
});

for (const path of ['/%', '/demo/%00', '//[', '/demo/%E0%A4%A', `/demo/${'a'.repeat(5000)}`])
  test(`server.RefusesAnOddAddressAndGoesOn ${path.slice(0, 20)}`, async () => {
    assert.equal(await statusOf(path), 400);
    assert.equal(await statusOf('/demo/'), 200);
  });
