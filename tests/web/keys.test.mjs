// A person works in the editor with the keys and the mouse of a real browser: what a box takes, refuses and puts back.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { Person } from './harness/person.mjs';

const RECURRING = { Id: 1, Omschrijving: 'Contributie', DatumAanvang: '2031-04-01', Looptijd: 30, Bedrag: { Bedrag: 7 } };
const { open } = useBrowser(process.env.WEB_BROWSER || 'chrome');
let page;
let person;

before(async () => {
  page = await open('/tests/pages/editor.html');
  await page.waitForFunction(() => window.isReady);
  person = new Person(page);
});
after(() => assert.deepEqual(page.faults, []));

/** A fresh editor on a column, for one case. */
function editing(name, work, fields = {}) {
  test(`keys.${name}`, async () => {
    await page.evaluate((given) => window.bind(given), { ...RECURRING, ...fields });
    await work();
    assert.deepEqual(await page.evaluate(() => window.reports), []);
  });
}
const item = (member) => page.evaluate((name) => (name === 'Bedrag' ? window.item.Bedrag.Bedrag : window.item[name]), member);

editing('ABoxHandsOverOnceWhenItIsLeft', async () => {
  await person.typeOver('TxtBd', '1234,5');
  assert.equal(await item('Bedrag'), 7);
  await person.press('Tab');
  assert.equal(await item('Bedrag'), 1234.5);
  assert.equal(await person.text('TxtBd'), '1.234,50');
  assert.equal(await person.focused(), 'cboTermijn');
});

editing('ABoxHandsOverOnEnterAndKeepsTheFocus', async () => {
  await person.typeOver('TxtBd', '12');
  await person.press('Enter');
  assert.equal(await item('Bedrag'), 12);
  assert.equal(await person.focused(), 'TxtBd');
});

editing('EscapePutsBackWhatStood', async () => {
  await person.typeOver('TxtBd', '99');
  await person.press('Escape');
  assert.equal(await person.text('TxtBd'), '7,00');
  assert.equal(await item('Bedrag'), 7);
});

for (const [name, long] of [['TxtOm', 'Contributie van de vereniging van eigenaars, met het groot onderhoud'], ['TxtBd', '123456789012']])
  editing(`ATextThatIsCutOffShowsIt: ${name}`, async () => {
    const look = async () =>
      (await person.control(name)).evaluate((box) => [box.scrollWidth > box.clientWidth, getComputedStyle(box).textOverflow]);
    await person.typeOver(name, '7');
    await person.press('Tab');
    assert.deepEqual(await look(), [false, 'clip']);
    await person.typeOver(name, long);
    await person.press('Tab');
    assert.deepEqual(await look(), [true, 'ellipsis']);
    await person.typeOver(name, '7');
    await person.press('Tab');
    assert.deepEqual(await look(), [false, 'clip']);
  });

editing('ASumIsReckonedOutAndItsOutcomeSaid', async () => {
  await person.typeOver('TxtBd', '1200/12');
  assert.equal(await person.said(), '= 100,00');
  await person.press('Tab');
  assert.equal(await person.said(), '');
  assert.equal(await item('Bedrag'), 100);
});

for (const [typed, reason] of [
  ['12.50', 'Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.'],
  ['10/0', 'Delen door nul kan niet.'],
])
  editing(`WhatIsNoAmountKeepsTheFocusAndSaysWhy: ${typed}`, async () => {
    await person.typeOver('TxtBd', typed);
    await person.press('Tab');
    assert.equal(await person.focused(), 'TxtBd');
    assert.equal(await person.text('TxtBd'), typed);
    assert.equal(await person.said(), reason);
    assert.equal(await item('Bedrag'), 7);
    await person.press('Escape');
    assert.equal(await person.said(), '');
    assert.equal(await person.text('TxtBd'), '7,00');
  });

editing('WhatIsRefusedKeepsTheFocusFromAClickAndDropsIt', async () => {
  await person.typeOver('TxtDtAanvang', '31-2-2031');
  for (const other of ['TxtOm', 'optLast(2)', 'cmdScenario', 'Toelichting.jnAO']) {
    await person.click(other);
    assert.equal(await person.focused(), 'TxtDtAanvang', other);
  }
  assert.equal(await person.said(), '31 februari 2031 bestaat niet.');
  assert.equal(await item('CorrectieLast'), 1);
  assert.equal(await item('UitsluitenAO'), false);
  assert.equal(await person.hasForm(), false);
  await person.press('Escape');
});

editing('AClickElsewhereInTheEditorHandsOverFirst', async () => {
  await person.typeOver('TxtBd', '5');
  await person.click('optLast(2)');
  assert.equal(await item('Bedrag'), 5);
  assert.equal(await item('CorrectieLast'), 2);
});

editing('AClickOnThePageHandsOver', async () => {
  await person.typeOver('TxtOm', 'Krant');
  await page.click('#elders');
  assert.equal(await item('Omschrijving'), 'Krant');
});

for (const [typed, date] of [
  ['1-5-31', '2031-05-01'],
  ['010531', '2031-05-01'],
])
  editing(`ADateIsTakenAsAPersonWritesIt: ${typed}`, async () => {
    await person.typeOver('TxtDtAanvang', typed);
    await person.press('Enter');
    assert.equal(await item('DatumAanvang'), date);
    assert.equal(await person.text('TxtDtAanvang'), '01-05-2031');
  });

editing('PageDownGoesAMonthAhead', async () => {
  await person.click('TxtDtAanvang');
  await person.press('PageDown');
  assert.equal(await person.text('TxtDtAanvang'), '01-05-2031');
  assert.equal(await item('DatumAanvang'), '2031-04-01');
  await person.press('Enter');
  assert.equal(await item('DatumAanvang'), '2031-05-01');
});

// Of the keypad with its lock on, only Chromium's protocol knows.
if (process.env.WEB_BROWSER !== 'firefox')
  editing('ThePointOfTheKeypadIsTheDecimalSign', async () => {
    await person.click('TxtBd');
    await person.press('Control+a', '1', '2');
    await person.pressKeypad('.');
    await person.press('5', 'Tab');
    assert.equal(await item('Bedrag'), 12.5);
  });

editing('APastedAmountIsReadAsTyped', async () => {
  await person.paste('TxtBd', '€ 1.250,75');
  await person.press('Tab');
  assert.equal(await item('Bedrag'), 1250.75);
});

editing('AToggleTakesItsLettersAndTheBlankBar', async () => {
  const toggle = await person.control('Toelichting.jnAO');
  await toggle.focus();
  // It says whether disability counts; the record, whether it is left out.
  await person.press('n');
  assert.equal(await item('UitsluitenAO'), true);
  await person.press('j');
  assert.equal(await item('UitsluitenAO'), false);
  await person.press('Space');
  assert.equal(await item('UitsluitenAO'), true);
  assert.equal(await person.text('Toelichting.jnAO'), 'Nee');
});

// A page may be translated.
editing('AToggleIsPressedOnAHalfWhateverStandsThere', async () => {
  const toggle = await person.control('Toelichting.jnAO');
  await toggle.evaluate((input) => ['<font>Yes</font>', 'No'].forEach((text, i) => (input.children[i].innerHTML = text)));
  const [yes, no] = await toggle.$$('span');
  await no.click();
  assert.equal(await item('UitsluitenAO'), true);
  await yes.click();
  assert.equal(await item('UitsluitenAO'), false);
});

editing('AnOptionIsTakenByKeysAndClick', async () => {
  await person.click('optLast(2)');
  assert.equal(await item('CorrectieLast'), 2);
  await person.click('optLast(1)');
  assert.equal(await item('CorrectieLast'), 1);
});

editing('AListIsBrowsedAndTakenOnLeaving', async () => {
  await (await person.control('cboTermijn')).focus();
  await person.press('ArrowDown');
  assert.equal(await person.text('cboTermijn'), 'per kwartaal');
  assert.equal(await item('Termijn'), 1);
  await person.press('Tab');
  assert.equal(await item('Termijn'), 3);
});

editing('AListIsTakenBackByEscape', async () => {
  await (await person.control('cboTermijn')).focus();
  await person.press('ArrowDown', 'Escape');
  assert.equal(await person.text('cboTermijn'), 'per maand');
  assert.equal(await item('Termijn'), 1);
});

editing('ALettersKeyGoesToItsBox', async () => {
  await (await person.control('TxtBd')).focus();
  await person.press('Alt+o');
  assert.equal(await person.focused(), 'TxtOm');
});

editing('TabGoesThroughEveryControlAndLeavesTheEditor', async () => {
  await page.focus('#elders');
  const seen = [];
  for (let i = 0; i < 60; ++i) {
    await person.press('Shift+Tab');
    const name = await person.focused();
    if (name === '') break;
    seen.push(name);
  }
  assert.ok(seen.length >= 12 && seen.length < 60, seen.join(' '));
  assert.equal(new Set(seen).size, seen.length, seen.join(' '));
});

editing('AMessageIsModalAndGivesTheFocusBack', async () => {
  await person.typeOver('TxtDtEind', '1-1-1990');
  await person.press('Tab');
  await person.until(async () => (await person.message()) !== '', 'the message');
  // What is typed on is not meant for the box.
  await person.press('Enter');
  assert.notEqual(await person.message(), '');
  await person.pause();
  await person.press('Enter');
  await person.until(async () => (await person.message()) === '', 'the answer');
  assert.equal(await person.focused(), 'TxtDtEind');
  await person.press('Escape');
});

editing('TheYearFormIsFilledByKeysAlone', async () => {
  await (await person.control('cmdScenario')).focus();
  await person.press('Space');
  await person.until(() => person.hasForm(), 'the form');
  assert.equal(await person.focused(), 'txtBedrag(1)');
  await person.press('Control+a');
  await person.type('100');
  await person.press('ArrowDown');
  assert.equal(await person.focused(), 'txtBedrag(2)');
  await person.type('200');
  await person.press('Enter');
  await person.press('Alt+o');
  await person.until(async () => !(await person.hasForm()), 'the end of the form');
  assert.equal(await item('Bedrag'), 100);
  assert.deepEqual(await page.evaluate(() => window.item.Bedrag.Perioden.map(({ Maand, Bedrag }) => [Maand, Bedrag])), [[24, 200], [36, 7]]);
  assert.equal(await person.focused(), 'cmdScenario');
});

editing('EscapeInAChangedFormAsks', async () => {
  await person.click('cmdScenario');
  await person.until(() => person.hasForm(), 'the form');
  await person.press('Control+a');
  await person.type('55');
  await person.press('Enter');
  await person.type('66');
  await person.press('Enter', 'Escape');
  await person.until(async () => (await person.message()) !== '', 'the question');
  await person.pause();
  await person.press('Escape');
  await person.until(async () => (await person.message()) === '', 'the answer');
  assert.ok(await person.hasForm());
  await person.press('Escape');
  await person.until(async () => (await person.message()) !== '', 'the question');
  await person.pause();
  await person.press('Alt+j');
  await person.until(async () => !(await person.hasForm()), 'the end of the form');
  // The amount of the first row was stored as it was filled in; the rows were not.
  assert.equal(await item('Bedrag'), 55);
  assert.deepEqual(await page.evaluate(() => window.item.Bedrag.Perioden), []);
});
