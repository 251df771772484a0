// The wheel over a control changes nothing, whether it has the focus or not: it scrolls what the control stands in.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { Person } from './harness/person.mjs';

const COLUMN = { Id: 1, CorrectieLast: 2, CorrectieFiscaal: 2, Omschrijving: 'Contributie', DatumAanvang: '2031-04-01', Looptijd: 30,
  Bedrag: { Bedrag: 7 }, ScenarioOverlijden: true, PercentageOvergang: 70, EinddatumOvergang: '2040-04-01' };
const { open } = useBrowser(process.env.WEB_BROWSER || 'chrome');
let page;
let person;

before(async () => {
  page = await open('/tests/pages/editor.html', { width: 1000, height: 300 });
  await page.waitForFunction(() => window.isReady);
  person = new Person(page);
});
after(() => assert.deepEqual(page.faults, []));

const record = () => page.evaluate(() => JSON.stringify(window.item));
const scrolled = () => page.evaluate(() => window.editor.shadowRoot.querySelector('.form[open] .scroll')?.scrollTop ?? window.scrollY);

/** Whether what is scrolled goes on further down. */
const goesDown = () => page.evaluate(() => {
  const area = window.editor.shadowRoot.querySelector('.form[open] .scroll') ?? document.documentElement;
  return area.scrollTop + area.clientHeight < area.scrollHeight - 1;
});

/** Turns the wheel over a control, in the middle of the window, until something is scrolled by it and stands still. */
async function turnOver(name) {
  const control = await person.control(name);
  await control.evaluate((input) => input.scrollIntoView({ block: 'center', behavior: 'instant' }));
  const { left, top } = await control.evaluate((input) => {
    const { x, y, width, height } = input.getBoundingClientRect();
    return { left: x + width / 2, top: y + height / 2 };
  });
  await page.mouse.move(left, top);
  const before = await scrolled();
  const deltaY = (await goesDown()) ? 120 : -120;
  // What a browser scrolls, it scrolls in a while; a notch that comes at a bad moment it may pass over.
  let turned = 0;
  await person.until(async () => {
    if (Date.now() - turned > 1000) {
      await page.mouse.wheel({ deltaY });
      turned = Date.now();
    }
    return (await scrolled()) !== before;
  }, 'scrolling');
  let last = NaN;
  await person.until(async () => {
    await page.evaluate(() => new Promise((drawn) => requestAnimationFrame(() => requestAnimationFrame(() => requestAnimationFrame(drawn)))));
    return last === (last = await scrolled());
  }, 'the end of the scrolling');
}

for (const name of ['cboTermijn', 'TxtBd', 'TxtAnJaar', 'TxtDtAanvang', 'optLast(2)', 'Toelichting.jnAO', 'Toelichting.TxtPcOvergang'])
  for (const focused of [false, true])
    test(`wheel.Over ${name} ${focused ? 'with' : 'without'} TheFocusChangesNothing`, async () => {
      await page.evaluate((fields) => window.bind(fields), COLUMN);
      const control = await person.control(name);
      const stood = [await record(), await person.text(name)];
      if (focused) await control.focus();
      await turnOver(name);
      assert.deepEqual([await record(), await person.text(name)], stood);
      if (focused) assert.equal(await person.focused(), name);
      await page.click('#elders');
      assert.deepEqual([await record(), await person.text(name)], stood);
    });

test('wheel.OverABoxOfTheFormScrollsItsRows', async () => {
  await page.evaluate((fields) => window.bind({ ...fields, Looptijd: 480 }), COLUMN);
  await (await person.control('cmdScenario')).focus();
  await person.press('Space');
  await person.until(() => person.hasForm(), 'the form');
  const shown = () => page.evaluate(() => [...window.editor.shadowRoot.querySelectorAll('.form input')].map(({ value }) => value));
  const stood = [await record(), await shown()];
  await turnOver('txtBedrag(3)');
  assert.deepEqual([await record(), await shown()], stood);
  await person.press('Escape');
  await person.until(async () => !(await person.hasForm()), 'the end of the form');
});
