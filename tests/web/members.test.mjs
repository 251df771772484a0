// Every member of the host's model fails once: when the editor is bound, and again in one that is being worked in. Failures are
// reported, nothing hangs, no dialog stays, and the same element is bound and worked in when the member is mended.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { after, before, test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { top } from './harness/packages.mjs';

const { open } = useBrowser();
let page;
before(async () => {
  page = await open('/tests/pages/members.html');
  await page.waitForFunction(() => window.isReady);
});
after(() => assert.deepEqual(page.faults, []));

/** What a host has, as it is declared. What it is given is not its own. */
function* declared() {
  const text = readFileSync(`${top}web/package/src/model.d.ts`, 'utf8');
  for (const [, name, body] of text.matchAll(/export interface (\w+) \{(.*?)^\}/gms)) {
    if (name === 'Keuzelijst') continue;
    const members = [...body.matchAll(/^ {2}(?:readonly |get |set )?(\w+)[(:]/gm)].map(([, member]) => member);
    for (const member of new Set(members)) yield [name, member];
  }
}
const MEMBERS = [...declared()];

/** The form of the editor has no discount. */
const NEVER_ASKED = ['Korting'];
/** Only when it is bound. */
const ASKED_FIRST = ['Naam', 'VrijeKolommen'];

test('members.AllAreDeclared', () => assert.ok(MEMBERS.length > 70, `${MEMBERS.length}`));

for (const [name, member] of MEMBERS)
  for (const late of [false, true])
    test(`members.AFailureOf ${name} ${member} ${late ? 'WhileItIsWorkedIn' : 'FromTheBinding'} IsTold`, async () => {
      const { struck, told, ...end } = await page.evaluate((...given) => window.walk(...given), name, member, late);
      assert.deepEqual(end, { faults: [], result: 'bound', amount: 42, pending: false });
      assert.equal(told.length > 0, struck > 0, `asked ${struck} times, told ${told}`);
      if (!NEVER_ASKED.includes(member) && !(late && ASKED_FIRST.includes(member) && name !== 'BedragObject')) assert.ok(struck > 0, 'it was never asked');
    });
