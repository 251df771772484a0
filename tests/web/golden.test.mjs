// The golden documents and random sessions, played against the element with a host of plain objects, give the transcripts
// of the toolkit in memory: every line, to the letter.
import assert from 'node:assert/strict';
import { createReadStream, existsSync, readdirSync, readFileSync } from 'node:fs';
import { createInterface } from 'node:readline';
import { test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { top } from './harness/packages.mjs';

const { open } = useBrowser();
const golden = `${top}tests/golden/`;
const SESSIONS = process.env.WEB_SESSIONS ?? `${top}build/release/web-sessions.jsonl`;
const LEAST_SESSIONS = 1000;

async function openPlayer() {
  const page = await open('/tests/pages/replay.html');
  await page.waitForFunction(() => window.isReady);
  return page;
}
const play = (page, document) => page.evaluate((given) => window.play(given), document);

/** A line from a little before where it differs. */
const part = (line, from) => line?.slice(Math.max(0, from - 200), from + 200);

function holdAlike(actual, expected, what) {
  for (let i = 0; i < Math.max(expected.length, actual.length); ++i) {
    const [held, given] = [expected[i], actual[i]];
    if (held === given) continue;
    let from = 0;
    while (from < Math.min(held?.length ?? 0, given?.length ?? 0) && held[from] === given[from]) ++from;
    const step = expected.slice(0, i).findLast((line) => line.startsWith('{"step"'));
    assert.fail(`${what}, line ${i + 1}, character ${from}, after ${step}\nexpected ${part(held, from)}\n  actual ${part(given, from)}`);
  }
}

const names = readdirSync(golden).filter((name) => name.endsWith('.json')).map((name) => name.slice(0, -5));

test('golden.ThereAreSessions', () => assert.ok(names.length >= 24));

for (const name of names)
  test(`golden.${name}`, async () => {
    const page = await openPlayer();
    const lines = await play(page, JSON.parse(readFileSync(`${golden}${name}.json`, 'utf8')));
    holdAlike(lines, readFileSync(`${golden}${name}.jsonl`, 'utf8').trimEnd().split('\n'), name);
    assert.deepEqual(page.faults, []);
    await page.close();
  });

test('random.SessionsGiveTheSameTranscripts', async () => {
  assert.ok(existsSync(SESSIONS), `${SESSIONS} is not there: ./test --web makes it`);
  const page = await openPlayer();
  let sessions = 0;
  let compared = 0;
  for await (const text of createInterface({ input: createReadStream(SESSIONS) })) {
    const { document, lines } = JSON.parse(text);
    holdAlike(await play(page, document), lines, `session ${sessions}`);
    ++sessions;
    compared += lines.length;
  }
  assert.ok(sessions >= LEAST_SESSIONS, `${sessions} sessions`);
  assert.ok(compared > sessions);
  console.log(`${sessions} sessions, ${compared} lines alike`);
  assert.deepEqual(page.faults, []);
});
