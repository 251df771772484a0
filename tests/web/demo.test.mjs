// An adviser works in the demo with the keyboard alone: what is accepted is there when the page is opened again.
import assert from 'node:assert/strict';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { Demo, SAMPLE } from './harness/demo.mjs';
import { axeScript } from './harness/packages.mjs';
import { Person } from './harness/person.mjs';

const name = process.env.WEB_BROWSER || 'chrome';
const { open } = useBrowser(name);
const started = () => Demo.started(open);

test('demo.IsWorkedInWithTheKeyboardAlone', async () => {
  const demo = await started();
  const { page, person } = demo;
  assert.deepEqual(await demo.columns(), SAMPLE);
  assert.equal(await demo.focused(), 'posten');

  // Down to the third column, into its amount, and back to the list.
  await person.press('ArrowDown', 'ArrowDown');
  await demo.comes('kop', SAMPLE[2]);
  await person.press('Enter');
  assert.equal(await person.focused(), 'optLast(2)');
  await person.press('Alt+b');
  assert.equal(await person.focused(), 'TxtBd');
  await person.type('1200/3');
  await person.press('Alt+t');
  await person.until(async () => (await demo.columns())[2] === 'Muzieklessen aan huis · € 400,00 per maand', 'the line in the list');
  assert.equal(await demo.focused(), 'posten');

  // What does not pass keeps the focus, and so the column.
  await person.press('Enter', 'Alt+b');
  await person.type('x');
  await person.press('Alt+t');
  assert.equal(await person.focused(), 'TxtBd');
  await person.press('Escape', 'Alt+t');
  assert.equal(await demo.focused(), 'posten');
  assert.deepEqual(page.faults, []);
});

test('demo.AColumnIsAddedFilledInAndThereWhenThePageIsOpenedAgain', async () => {
  const demo = await started();
  const { page, person } = demo;
  const before = await demo.columns();
  await person.press('Insert');
  await person.until(async () => (await demo.focused()) === 'vrije-kolom', 'the focus in the new column');
  await person.press('Alt+o');
  await person.type('Bijles');
  await person.press('Tab');
  await person.type('45,5');
  await person.press('Tab', 'ArrowDown', 'Enter', 'Alt+e');
  await person.type('3j');
  await person.press('Enter', 'Alt+s');
  await person.until(() => person.hasForm(), 'the form');
  await person.press('ArrowDown');
  await person.type('50');
  await person.press('Enter', 'Alt+o');
  await person.until(async () => !(await person.hasForm()), 'the end of the form');
  await person.press('Alt+t');
  assert.deepEqual(await demo.columns(), [...before, 'Bijles · € 45,50 per kwartaal']);

  // To a loan without columns, and one there.
  await person.press('Alt+k', 'End');
  await demo.comes('kop', 'Deze lening heeft geen posten.');
  assert.deepEqual(await demo.columns(), []);
  await person.press('Alt+t', 'Insert');
  await demo.comes('kop', 'Vrije kolom · € 0,00 per maand');

  await demo.saved();
  await demo.reload();
  assert.deepEqual(await demo.columns(), [...before, 'Bijles · € 45,50 per kwartaal']);
  await person.press('End');
  await demo.comes('kop', 'Bijles · € 45,50 per kwartaal');
  await person.press('Enter', 'Alt+s');
  await person.until(() => person.hasForm(), 'the form');
  assert.deepEqual([await person.text('txtBedrag(1)'), await person.text('txtBedrag(2)'), await person.text('txtBedrag(3)')], ['45,50', '50,00', '45,50']);
  await person.press('Escape');
  assert.deepEqual(page.faults, []);
});

test('demo.AColumnIsRemovedWhenThatIsConfirmedAndTheNextOneShown', async () => {
  const demo = await started();
  const { page, person } = demo;
  const before = await demo.columns();
  await person.press('ArrowDown');
  await demo.comes('kop', SAMPLE[1]);
  await person.press('Delete');
  await demo.answer('Enter');
  assert.deepEqual(await demo.columns(), before);
  await person.press('Delete');
  await demo.answer('Shift+Tab', 'Enter');
  await demo.comes('kop', before[2]);
  assert.deepEqual(await demo.columns(), before.filter((line) => line !== SAMPLE[1]));
  assert.equal(await demo.focused(), 'posten');
  assert.deepEqual(page.faults, []);
});

test('demo.TheSampleIsPutBackWhenThatIsConfirmed', async () => {
  const demo = await started();
  const { page, person } = demo;
  await person.press('Delete');
  await demo.answer('Shift+Tab', 'Enter');
  await person.until(async () => (await demo.columns())[0] !== SAMPLE[0], 'its going');
  await page.focus('#opnieuw');
  await person.press('Enter');
  await demo.answer('Shift+Tab', 'Enter');
  await demo.comes('kop', SAMPLE[0]);
  assert.deepEqual(await demo.columns(), SAMPLE);
  await demo.saved();
  await demo.reload();
  assert.deepEqual(await demo.columns(), SAMPLE);
});

test('demo.ANewColumnWaitsForWhatDoesNotPass', async () => {
  const demo = await started();
  const { page, person } = demo;
  await demo.typeAmount('x');
  for (const button of ['#nieuw', '#dupliceer']) {
    await page.click(button);
    await person.until(async () => (await person.focused()) === 'TxtBd', 'the focus where it does not pass');
    assert.deepEqual(await demo.columns(), SAMPLE);
    assert.equal(await person.said(), 'Vul een bedrag in, bijvoorbeeld 1.234,56.');
  }
  await person.press('Escape', 'Alt+t', 'Insert');
  await demo.comes('kop', 'Vrije kolom · € 0,00 per maand');
  assert.deepEqual(await demo.columns(), [...SAMPLE, 'Vrije kolom · € 0,00 per maand']);
  assert.deepEqual(page.faults, []);
});

/** The proposals and the numbers of the current loan, as they are kept. */
const kept = (page) => page.evaluate(async () => {
  const { openStore } = await import('/demo/store.js');
  const { Voorstellen, HuidigeLening } = await (await openStore()).read();
  return { Voorstellen, ids: HuidigeLening.VrijeKolommen.map(({ Id }) => Id) };
});

test('demo.AnItemThatIsRemovedLeavesTheProposalsAndItsNumber', async () => {
  const demo = await started();
  const { page, person } = demo;
  await person.press('End');
  await demo.comes('kop', SAMPLE[5]);
  await person.press('Delete');
  await demo.answer('Shift+Tab', 'Enter');
  await demo.comes('kop', SAMPLE[4]);
  await demo.saved();
  assert.deepEqual(await kept(page), { Voorstellen: [[], [], []], ids: [1, 2, 3, 4, 5] });

  // The last number is that of an item of another loan, which goes as well.
  await person.press('Alt+k', 'ArrowDown', 'Alt+t', 'End');
  await demo.comes('kop', 'Onderhoud zonnepanelen · € 95,00 per jaar');
  await person.press('Delete');
  await demo.answer('Shift+Tab', 'Enter');
  await demo.saved();
  await demo.reload();
  await person.press('Insert');
  await demo.comes('kop', 'Vrije kolom · € 0,00 per maand');
  await demo.saved();
  assert.deepEqual((await kept(page)).ids, [1, 2, 3, 4, 5, 8]);
  assert.deepEqual(page.faults, []);
});

test('demo.AnItemOfWhichAVersionIsLeftStaysInItsProposals', async () => {
  const { page } = await started();
  const Voorstellen = await page.evaluate(async () => {
    const { openCase } = await import('/demo/case.js');
    let changes = 0;
    const { Dossier: dossier } = openCase({ HuidigeLening: { VrijeKolommen: [{ Id: 3 }] }, Leningen: [{ VrijeKolommen: [{ Id: 3 }] }] }, { changed: () => ++changes });
    for (const voorstel of [1, 2]) dossier.VoegToeAanVoorstel(voorstel, 3);
    if (changes === 0) throw new Error('nobody was told');
    dossier.Verwijder(0, 3);
    const between = dossier.Voorstellen.map((leden) => [...leden]);
    dossier.Verwijder(1, 3);
    return [between, dossier.Voorstellen.map((leden) => [...leden])];
  });
  assert.deepEqual(Voorstellen, [[[3], [3], []], [[], [], []]]);
});

// The editor takes the item out of the proposals itself.
test('demo.ACarryOverIsKept', async () => {
  const demo = await started();
  const { page, person } = demo;
  await demo.typeAmount('500');
  await person.press('Alt+t', 'ArrowDown');
  await person.until(async () => (await person.message()) !== '', 'the question');
  await person.pause();
  await person.press('Alt+j');
  await demo.comes('kop', SAMPLE[1]);
  assert.equal(await demo.textOf('fouten'), '');
  await person.press('Alt+k', 'ArrowDown');
  await demo.comes('kop', 'Onderhoud zonnepanelen · € 95,00 per jaar');
  assert.deepEqual(page.faults, []);
});

/** What a person may come upon, each to be looked at. */
const SIGHTS = {
  'de posten': () => {},
  'een vraag': (demo) => demo.person.press('Delete').then(() => demo.asked()),
  'een melding': ({ page }) => page.evaluate(() => {
    const line = document.createElement('li');
    line.textContent = 'Type mismatch (13, VrijeKolom)';
    document.querySelector('#fouten').append(line);
  }),
  'wat niet bewaard is': async (demo) => {
    await demo.page.evaluate(() => (IDBObjectStore.prototype.put = () => { throw new DOMException('vol', 'QuotaExceededError'); }));
    await demo.typeAmount('5');
    await demo.person.press('Enter');
    await demo.comes('bewaard', /^Niet bewaard/);
  },
};
for (const scheme of ['light', 'dark'])
  for (const [sight, come] of Object.entries(SIGHTS))
    test(`demo.NothingIsFoundIn ${sight} ${scheme}`, { skip: name === 'firefox' }, async () => {
      const demo = await started();
      await demo.page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
      await come(demo);
      await demo.page.evaluate(readFileSync(axeScript, 'utf8'));
      const { violations, passes } = await demo.page.evaluate(() => axe.run(document));
      assert.ok(passes.length > 10, `${passes.length} rules held`);
      assert.deepEqual(violations.flatMap(({ id, nodes }) => nodes.map(({ html, failureSummary }) => `${id}: ${html}\n${failureSummary}`)), []);
    });

// Only Chromium plays a phone.
test('demo.FitsAPhoneByScrolling', { skip: name === 'firefox' }, async () => {
  const page = await open('/demo/index.html', { width: 390, height: 800, isMobile: true, hasTouch: true });
  await page.waitForSelector('body[data-ready]');
  const { page: whole, editor } = await page.evaluate(() => {
    const element = document.querySelector('vrije-kolom');
    return { page: document.documentElement.scrollWidth - innerWidth, editor: element.scrollWidth - element.clientWidth };
  });
  assert.ok(whole <= 0, `the page is ${whole} pixels too wide`);
  assert.ok(editor > 0, 'the editor scrolls');

  // What stands for an editor that stands for nothing is in sight without.
  const person = new Person(page);
  await page.evaluate(() => document.querySelector('vrije-kolom').unbind());
  await page.waitForFunction(() => document.querySelector('vrije-kolom').state === 'unbound');
  const [left, right] = await page.evaluate(() => {
    const words = new Range();
    const veils = document.querySelector('vrije-kolom').shadowRoot.querySelectorAll('.veil');
    words.selectNodeContents([...veils].find((veil) => veil.getClientRects().length > 0));
    const { left, right } = words.getBoundingClientRect();
    return [left, right];
  });
  assert.ok(left >= 0 && left < right && right <= 390, `from ${left} to ${right}`);
});
