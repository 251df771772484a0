// The form and the messages stay until they are answered: whatever the browser, the page or a press beside them does.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { Person } from './harness/person.mjs';

const COLUMN = { Id: 1, Omschrijving: 'Contributie', DatumAanvang: '2031-04-01', Looptijd: 30, Bedrag: { Bedrag: 7 } };
const { open } = useBrowser(process.env.WEB_BROWSER || 'chrome');
let page;
let person;

before(async () => {
  page = await open('/tests/pages/editor.html');
  await page.waitForFunction(() => window.isReady);
  person = new Person(page);
});
after(() => assert.deepEqual(page.faults, []));

const bind = () => page.evaluate((fields) => window.bind(fields), COLUMN);
const focusEditor = () => page.evaluate(() => window.editor.focus());
const loseFocus = () => page.evaluate(() => window.editor.shadowRoot.activeElement.blur());
/** What a browser does on its own, without the page being asked first. */
const closeNatively = (which) =>
  page.evaluate(async (selector) => {
    window.editor.shadowRoot.querySelector(selector).close();
    await new Promise((done) => setTimeout(done, 50));
  }, which);
const comes = (what) => person.until(async () => (await person.message()) !== '', what);

async function withForm() {
  await bind();
  await person.click('cmdScenario');
  await person.until(() => person.hasForm(), 'the form');
}
/** The same column in a new situation: whether that goes is asked. The answer stands in window.stays, and leaves that column or takes it. */
async function withQuestion() {
  await bind();
  await page.evaluate(() => window.dossier.Leningen[0].kolommen.push({ Id: 1 }));
  await person.typeOver('TxtOm', 'Krant');
  await page.evaluate(() => void (window.stays = window.editor.validation()));
  await comes('the question');
  await person.pause();
}
const isTakenOver = () => page.evaluate(async () => {
  await window.stays;
  return window.dossier.Leningen[0].kolommen.length === 0;
});

test('dialogs.FocusLeavesAQuestionAtItsDefault', async () => {
  await withQuestion();
  assert.equal(await person.focused(), 'Nee');
  await focusEditor();
  assert.equal(await person.focused(), 'Nee');
  await loseFocus();
  await focusEditor();
  assert.equal(await person.focused(), 'Nee');
  await person.press('Enter');
  assert.equal(await isTakenOver(), false);
});

test('dialogs.FocusLeavesAFormWhereItIsWorkedIn', async () => {
  await withForm();
  await person.press('ArrowDown');
  const at = () => page.evaluate(() => window.editor.shadowRoot.activeElement.id);
  const worked = await at();
  assert.equal(await person.focused(), 'txtBedrag(2)');
  await focusEditor();
  assert.equal(await at(), worked);
  await loseFocus();
  await focusEditor();
  assert.equal(await at(), worked);
  await person.press('Enter');
  assert.equal(await person.hasForm(), true);
  await person.press('Escape');
});

test('dialogs.EscapeInAFormThatLostTheFocusAsksAboutItsRows', async () => {
  await withForm();
  await person.press('Control+a');
  await person.type('55');
  await person.press('Enter');
  await person.type('66');
  await loseFocus();
  for (let i = 0; i < 3; ++i) {
    await person.press('Escape');
    await comes('the question');
    assert.equal(await person.hasForm(), true);
    await person.pause();
    await person.press('Enter'); // "Nee"
    assert.equal(await person.hasForm(), true);
    await loseFocus();
  }
  await focusEditor();
  assert.equal(await page.evaluate(() => window.editor.shadowRoot.activeElement.value), '66,00');
});

test('dialogs.AFormThatTheBrowserClosesAsksAboutItsRowsAndIsWorkedInWhereItWas', async () => {
  await withForm();
  await person.press('Control+a');
  await person.type('55');
  await person.press('Enter');
  await person.type('66x');
  await closeNatively('dialog.form');
  await comes('the question');
  assert.equal(await person.hasForm(), true);
  await person.pause();
  await person.press('Enter'); // "Nee"
  assert.equal(await person.hasForm(), true);
  assert.equal(await page.evaluate(() => window.editor.shadowRoot.activeElement.value), '66x');
  await person.press('Escape');
  await person.press('Escape');
  await comes('the question');
  await person.pause();
  await person.press('Alt+j');
  assert.equal(await person.hasForm(), false);
  assert.equal(await person.focused(), 'cmdScenario');
});

test('dialogs.AQuestionThatTheBrowserClosesIsAnsweredAsByEscape', async () => {
  await withQuestion();
  await closeNatively('dialog.message');
  assert.equal(await person.message(), '');
  assert.equal(await isTakenOver(), false);
  assert.equal(await page.evaluate(() => window.stays), false);
});

test('dialogs.WhatWasNotSeenIsNotAnsweredByTheBrowser', async () => {
  await bind();
  await person.typeOver('TxtDtEind', '1-1-1990');
  await person.press('Tab');
  await comes('the message');
  await closeNatively('dialog.message');
  assert.equal(await page.evaluate(() => window.editor.shadowRoot.querySelector('dialog.message').open), true);
  assert.equal(await person.focused(), 'OK');
  await person.pause();
  await person.press('Enter');
  assert.equal(await person.message(), '');
});

// The page was busy since.
test('dialogs.AKeyFromBeforeAMessageCameAnswersNothingHoweverLateItIsHeard', async () => {
  await bind();
  await page.evaluate(() => {
    window.early = new KeyboardEvent('keydown', { key: 'Escape', code: 'Escape', bubbles: true, composed: true, cancelable: true });
  });
  await person.typeOver('TxtDtEind', '1-1-1990');
  await person.press('Tab');
  await comes('the message');
  await person.pause();
  await page.evaluate(() => window.editor.shadowRoot.activeElement.dispatchEvent(window.early));
  assert.notEqual(await person.message(), '');
  await person.press('Escape');
  assert.equal(await person.message(), '');
});

test('dialogs.APressBesideTheButtonsOfAMessageLeavesTheFocusThere', async () => {
  await bind();
  await person.typeOver('TxtDtEind', '1-1-1990');
  await person.press('Tab');
  await comes('the message');
  await person.pause();
  const text = await page.evaluateHandle(() => window.editor.shadowRoot.querySelector('dialog.message .text'));
  await text.click();
  assert.equal(await person.focused(), 'OK');
  await page.mouse.click(5, 5); // outside of it
  assert.equal(await person.focused(), 'OK');
  await person.press('Enter');
  assert.equal(await person.message(), '');
});
