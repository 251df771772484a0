// Several editors on a page, one in a shadow root, one in a frame, and what is left of those that were taken away.
import assert from 'node:assert/strict';
import { before, test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { Person } from './harness/person.mjs';

const TIMES = 100;
/** Bytes of the heap that a hundred editors may leave, where one takes some hundreds of thousands. */
const MOST_LEFT = 400000;
const { open } = useBrowser();
let page;

before(async () => {
  page = await open('/tests/pages/many.html', { width: 1000, height: 2600 });
  await page.waitForFunction(() => window.isReady);
});

test('pages.EditorsBesideEachOtherKeepToThemselves', async () => {
  const een = new Person(page, '#een');
  const twee = new Person(page, '#twee');
  await een.typeOver('TxtBd', '11');
  await twee.typeOver('TxtBd', '22');
  await twee.press('Tab');
  const amounts = await page.evaluate(() => Object.entries(hosts).map(([name, { item }]) => [name, item.Bedrag.Bedrag]));
  assert.deepEqual(amounts, [['een', 11], ['twee', 22], ['diep', 7], ['los', 7]]);
});

test('pages.WhatIsRefusedInOneEditorKeepsTheFocusFromTheOther', async () => {
  const een = new Person(page, '#een');
  const twee = new Person(page, '#twee');
  await een.typeOver('TxtBd', 'x');
  await twee.click('TxtBd');
  assert.equal(await een.focused(), 'TxtBd');
  assert.equal(await een.said(), 'Vul een bedrag in, bijvoorbeeld 1.234,56.');
  assert.equal(await twee.focused(), '');
  await een.press('Escape');
  assert.equal(await een.text('TxtBd'), '11,00');
  await twee.click('TxtBd');
  assert.equal(await twee.focused(), 'TxtBd');
});

test('pages.AnEditorInAShadowRootIsWorkedIn', async () => {
  const input = await page.evaluateHandle(() => [...elements.diep.shadowRoot.querySelectorAll('input')].find((box) => box.node.design.name === 'TxtOm'));
  await input.click();
  await page.keyboard.down('Control');
  await page.keyboard.press('a');
  await page.keyboard.up('Control');
  await page.keyboard.type('In de schaduw');
  await page.keyboard.press('Tab');
  assert.equal(await page.evaluate(() => hosts.diep.item.Omschrijving), 'In de schaduw');
});

test('pages.TheExplanationControlStandsByItself', async () => {
  const los = new Person(page, '#los');
  await los.click('jnAO');
  await (await los.control('jnAO')).focus();
  await los.press('n');
  assert.equal(await page.evaluate(() => hosts.los.item.UitsluitenAO), true);
});

// A portal fetches its data first: by then the page has been laid out.
test('pages.TheExplanationControlIsAsWideAsItsPlaceWhenItIsBound', async () => {
  const widths = await page.evaluate(async () => {
    const late = document.createElement('vrije-kolom-toelichting');
    late.style.width = '1300px';
    document.querySelector('main').append(late);
    const frame = () => new Promise((done) => requestAnimationFrame(() => setTimeout(done)));
    for (let i = 0; i < 3; ++i) await frame();
    const { application, dossier } = hosts.los;
    const width = () => late.shadowRoot.querySelector('.surface').getBoundingClientRect().width;
    await late.setApplication(application, dossier.HuidigeLening, 1);
    const seen = [width()];
    late.remove();
    await frame();
    document.querySelector('main').append(late);
    seen.push(width());
    await late.setApplication(application, dossier.HuidigeLening, 1);
    seen.push(width());
    late.remove();
    return seen;
  });
  // A twip is less than a tenth of a pixel.
  for (const width of widths) assert.ok(Math.abs(width - 1300) < 0.2, `${widths}`);
});

test('pages.AnEditorInAFrameIsWorkedIn', async () => {
  const frame = page.frames().find((one) => one !== page.mainFrame());
  await frame.waitForFunction(() => window.isReady);
  await frame.evaluate(() => window.bind({ Id: 1, Omschrijving: 'Kader', DatumAanvang: '2031-04-01' }));
  const input = await frame.evaluateHandle(() => [...editor.shadowRoot.querySelectorAll('input')].find((box) => box.node.design.name === 'TxtDtAanvang'));
  await input.click();
  await page.keyboard.press('PageDown');
  await page.keyboard.press('Enter');
  assert.equal(await frame.evaluate(() => item.DatumAanvang), '2031-05-01');
});

test('pages.NothingIsLeftOfEditorsThatCameAndWent', async () => {
  const session = await page.createCDPSession();
  const heap = async () => {
    // What waits for the collector of one side holds what the other side has of it.
    for (let i = 0; i < 4; ++i) {
      await session.send('HeapProfiler.collectGarbage');
      await new Promise((done) => setTimeout(done, 50));
    }
    const { usedSize } = await session.send('Runtime.getHeapUsage');
    const { nodes } = await session.send('Memory.getDOMCounters');
    return { usedSize, nodes };
  };
  await page.evaluate((times) => comeAndGo(times), TIMES);
  const before = await heap();
  await page.evaluate((times) => comeAndGo(times), TIMES);
  const after = await heap();
  console.log(`after ${TIMES} more: ${after.usedSize - before.usedSize} bytes, ${after.nodes - before.nodes} nodes`);
  assert.ok(after.usedSize - before.usedSize < MOST_LEFT, `${after.usedSize - before.usedSize} bytes more`);
  assert.ok(after.nodes - before.nodes < 20, `${after.nodes - before.nodes} nodes more`);
});

test('pages.NothingIsReported', async () => {
  assert.deepEqual(page.faults, []);
  assert.deepEqual(await page.evaluate(() => Object.values(hosts).flatMap(({ reports }) => reports)), []);
});
