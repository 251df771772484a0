// An adviser works in the demo with the keyboard alone: what is accepted is there when the page is opened again.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { Person } from './harness/person.mjs';

const { open } = useBrowser();
const opened = (page) => page.waitForSelector('body[data-ready]');
const columns = (page) => page.$eval('#posten', (list) => [...list.options].map(({ text }) => text));
const saved = (page) => page.waitForFunction(() => document.querySelector('#bewaard').textContent.startsWith('Bewaard'));

test('demo.IsWorkedInWithTheKeyboardAlone', async () => {
  const page = await open('/demo/index.html', { width: 1280, height: 800 });
  await opened(page);
  const person = new Person(page);
  assert.deepEqual(await columns(page), ['Kinderopvang · € 485,50 per maand', 'Krant · Weekendabonnement · € 32,50 per maand',
    'Muzieklessen aan huis · € 350,00 per maand', 'Lijfrente-uitkering · € 6.250,00 per jaar']);

  // Down to the third column, into its amount, and back to the list.
  await person.press('ArrowDown', 'ArrowDown');
  await person.until(async () => (await person.text('TxtOm')) === 'Muzieklessen aan huis', 'the third column');
  await (await person.control('optLast(2)')).focus();
  await person.press('Alt+b');
  assert.equal(await person.focused(), 'TxtBd');
  await person.press('Control+a');
  await person.type('1200/3');
  await person.press('Alt+p');
  await person.until(async () => (await columns(page))[2] === 'Muzieklessen aan huis · € 400,00 per maand', 'the line in the list');
  assert.equal(await page.evaluate(() => document.activeElement.id), 'posten');

  // What does not pass keeps the focus, and so the column.
  await (await person.control('TxtBd')).focus();
  await person.press('Control+a');
  await person.type('x');
  await person.press('Alt+p');
  assert.equal(await person.focused(), 'TxtBd');
  await person.press('Escape');

  // A new column with the keys, and away again.
  await page.focus('#nieuw');
  await person.press('Enter');
  await person.until(async () => (await columns(page)).length === 5, 'the new column');
  await page.focus('#verwijder');
  await person.press('Enter');
  await page.waitForSelector('#vraag[open]');
  await person.press('Shift+Tab', 'Enter');
  await person.until(async () => (await columns(page)).length === 4, 'its going');

  await saved(page);
  await page.reload();
  await opened(page);
  assert.equal((await columns(page))[2], 'Muzieklessen aan huis · € 400,00 per maand');
  assert.deepEqual(page.faults, []);
});

test('demo.FitsAPhoneByScrolling', async () => {
  const page = await open('/demo/index.html', { width: 390, height: 800, isMobile: true, hasTouch: true });
  await opened(page);
  const { page: whole, editor } = await page.evaluate(() => {
    const element = document.querySelector('vrije-kolom');
    return { page: document.documentElement.scrollWidth - innerWidth, editor: element.scrollWidth - element.clientWidth };
  });
  assert.ok(whole <= 0, `the page is ${whole} pixels too wide`);
  assert.ok(editor > 0, 'the editor scrolls');
});
