// What stands on the page: as on every other toolkit, without a fault for those who read it otherwise, and as Chromium's
// accessibility tree tells it.
import assert from 'node:assert/strict';
import { readFileSync, writeFileSync } from 'node:fs';
import { before, test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { axeScript, top } from './harness/packages.mjs';
import { Person } from './harness/person.mjs';

const COLUMN = { Id: 1, Omschrijving: 'Contributie tennisvereniging', DatumAanvang: '2031-04-01', Looptijd: 30, Bedrag: { Bedrag: 1234.5 } };
const ALONE = { personen: [{ Naam: ['J.', 'van', 'Dam'], Geboortedatum: '1975-12-31' }] };
const STATES = {
  'editor-vaste-last': [COLUMN, ALONE],
  'editor-product': [{ ...COLUMN, IsProduct: true, Maatschappij: 'ZZ', MaatschappijNaam: 'Drukkerij De Pers', Productsoort: 44,
    Productnaam: 'Zaterdagabonnement', UwBemiddeling: true, Contractvervaldatum: '2033-12-31' }, {}],
  'editor-overgang': [{ ...COLUMN, CorrectieLast: 2, CorrectieFiscaal: 2, HeffingBij: 2, UitsluitenAO: true,
    ScenarioOverlijden: true, PercentageOvergang: 70, EinddatumOvergang: '2040-04-01' }, {}],
};
const { open } = useBrowser();
let page;
let person;

before(async () => {
  page = await open('/tests/pages/editor.html', { width: 1100, height: 900 });
  await page.waitForFunction(() => window.isReady);
  await page.evaluate(readFileSync(axeScript, 'utf8'));
  person = new Person(page);
});
const bind = (state) => page.evaluate(([fields, settings]) => window.bind(fields, settings), STATES[state]);

for (const state of Object.keys(STATES))
  test(`looks.${state} IsShownAsEveryToolkitShowsIt`, async () => {
    await bind(state);
    const shown = await page.evaluate(async () => (await import('/tests/pages/shown.js')).shownText(window.editor));
    assert.deepEqual(shown, readFileSync(`${top}tests/toolkits/shown/${state}.txt`, 'utf8').trimEnd().split('\n'));
  });

// The designs are Dutch and go from left to right.
test('looks.InAPageFromRightToLeftItStaysAsItIs', async () => {
  const seen = () => page.evaluate(() => [...window.editor.shadowRoot.querySelectorAll('legend, label, .toggle span, .choice input, th')].map((part) => {
    const { left, top } = part.getBoundingClientRect();
    const { left: from, top: under } = part.closest('.surface').getBoundingClientRect();
    return [left - from, top - under].map(Math.round);
  }));
  await bind('editor-overgang');
  const stood = await seen();
  await page.evaluate(() => (document.documentElement.dir = 'rtl'));
  const stands = await seen();
  await page.evaluate(() => document.documentElement.removeAttribute('dir'));
  assert.ok(stood.length > 20);
  assert.deepEqual(stands, stood);
});

// How a page writes its own texts is not how the designs are written, which leave each caption its room.
test('looks.TheTextsStayAsTheyAreInAPageThatWritesOtherwise', async () => {
  const seen = () => page.evaluate(() => {
    const parts = [...window.editor.shadowRoot.querySelectorAll('legend, .label, .text, .button, .toggle span, th, td, .title, .buttons button')]
      .filter((part) => part.checkVisibility());
    return parts.map((part) => {
      const { left, top } = window.editor.getBoundingClientRect();
      const range = document.createRange();
      range.selectNodeContents(part);
      const box = range.getBoundingClientRect();
      return [part.textContent, getComputedStyle(part).textShadow, ...[box.left - left, box.top - top, box.width, box.height].map(Math.round)];
    });
  });
  const otherwise = { letterSpacing: '3px', wordSpacing: '5px', textTransform: 'uppercase', textIndent: '20px', textShadow: '1px 1px red', fontStyle: 'italic',
    fontWeight: '800', fontVariant: 'small-caps', fontStretch: 'condensed', whiteSpace: 'pre', wordBreak: 'break-all', overflowWrap: 'anywhere', hyphens: 'auto', textAlign: 'center', lineHeight: '3' };
  await bind('editor-overgang');
  const stood = await seen();
  await page.evaluate((style) => Object.assign(window.editor.parentElement.style, style), otherwise);
  const stands = await seen();
  await page.evaluate(() => (window.editor.parentElement.style.writingMode = 'vertical-rl'));
  const mode = await page.evaluate(() => getComputedStyle(window.editor.shadowRoot.querySelector('.label')).writingMode);
  await page.evaluate(() => window.editor.parentElement.removeAttribute('style'));
  assert.ok(stood.length > 20);
  assert.deepEqual(stands, stood);
  assert.equal(mode, 'horizontal-tb');
});

test('looks.EveryEffectIsSeenWithoutScrolling', async () => {
  await bind('editor-vaste-last');
  const [width, height] = await (await person.control('Toelichting.lstToelichting')).evaluate((list) =>
    [list.scrollWidth - list.clientWidth, list.scrollHeight - list.clientHeight]);
  assert.deepEqual([width, height], [0, 0]);
});

// By the rules of typing, which know more ways to write a day than the calendar.
for (const [typed, day] of [['1-5-31', '2031-05-01'], ['010531', '2031-05-01'], ['18m', '2032-10-01'], ['', ''], ['1-13-2031', '']])
  test(`looks.TheCalendarOpensAtTheDayThatIsTyped ${typed}`, async () => {
    await bind('editor-vaste-last');
    await person.typeOver('TxtDtEind', typed);
    await person.press('F4');
    const picker = await (await person.control('TxtDtEind')).evaluate(({ node }) => [node.picker.value, node.picker.min]);
    assert.deepEqual(picker, [day, '1900-01-01']);
    await person.press('Escape', 'Escape');
  });

// A4 between the margins that browsers leave, in pixels of paper.
const PAPER = { width: 718, height: 1047 };
test('looks.OnPaperAllIsThereAndEveryAnswerReadsAsItIs', async () => {
  await page.setViewport(PAPER);
  await page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: 'dark' }]);
  await bind('editor-overgang');
  await page.emulateMediaType('print');
  const seen = await page.evaluate(() => {
    const { editor } = window;
    const parts = [...editor.shadowRoot.querySelectorAll('.control, th, td')].filter((part) => part.checkVisibility());
    const told = editor.shadowRoot.querySelectorAll('.toggle[aria-checked="true"] span:first-child, .toggle[aria-checked="false"] span:last-child, tr[aria-current] td');
    return {
      overflow: getComputedStyle(editor).overflowX,
      right: Math.max(...parts.map((part) => part.getBoundingClientRect().right)),
      text: getComputedStyle(editor).color,
      adjust: [...told].map((half) => getComputedStyle(half).printColorAdjust),
    };
  });
  await page.emulateMediaType(null);
  await page.emulateMediaFeatures([]);
  await page.setViewport({ width: 1100, height: 900 });
  assert.equal(seen.overflow, 'visible');
  assert.ok(seen.right > PAPER.width * 0.8 && seen.right <= PAPER.width, `up to ${seen.right} of ${PAPER.width}`);
  assert.equal(seen.text, 'rgb(0, 0, 0)');
  assert.ok(seen.adjust.length > 8);
  assert.deepEqual(new Set(seen.adjust), new Set(['exact']));
});

/** What screen readers are told in passing, on the page and in the open form, and whether that stands where it always stood. */
const told = () => page.evaluate(() => {
  const { shadowRoot } = window.editor;
  const all = [...shadowRoot.querySelectorAll('[role=status], [aria-live]')];
  window.statuses ??= all;
  const same = all.length === window.statuses.length && all.every((one, i) => one === window.statuses[i]);
  return { texts: all.map((one) => one.textContent), lang: all[0].lang, same };
});

test('looks.WhatABoxMakesOfATextIsReadOutFromWhereItAlwaysStands', async () => {
  await bind('editor-vaste-last');
  await page.evaluate(() => delete window.statuses);
  assert.deepEqual(await told(), { texts: [''], lang: '', same: true });
  await person.typeOver('TxtDtAanvang', '1-4-203');
  await person.type('1');
  assert.equal(await person.said(), 'dinsdag 1 april 2031');
  assert.deepEqual(await told(), { texts: ['dinsdag 1 april 2031'], lang: 'nl', same: true });
  const shown = await page.evaluate(() => {
    const bubble = window.editor.shadowRoot.querySelector('.bubble');
    return [bubble.part.value, bubble.getAttribute('role'), bubble.ariaHidden, window.editor.shadowRoot.activeElement.getAttribute('aria-describedby')];
  });
  assert.deepEqual(shown, ['note', null, 'true', null]);
  await person.press('Escape');
  assert.deepEqual(await told(), { texts: [''], lang: 'nl', same: true });
});

test('looks.InTheFormItIsReadOutThere', async () => {
  await bind('editor-vaste-last');
  await person.click('cmdScenario');
  await person.until(() => person.hasForm(), 'the form');
  await page.evaluate(() => delete window.statuses);
  assert.deepEqual((await told()).texts, ['', '']);
  await person.typeOver('txtBedrag(2)', '5+5');
  assert.deepEqual(await told(), { texts: ['', '= 10,00'], lang: '', same: true });
  await person.press('Escape');
  assert.deepEqual((await told()).texts, ['', '']);
  await person.press('Escape');
  await person.until(async () => !(await person.hasForm()), 'the end of the form');
});

test('looks.WhyATextWasRefusedIsReadOutEachTimeAndTheNoteNoMore', async () => {
  await bind('editor-vaste-last');
  await page.evaluate(() => delete window.statuses);
  const reason = () => page.evaluate(() => {
    const bubble = window.editor.shadowRoot.querySelector('.bubble');
    const box = window.editor.shadowRoot.activeElement;
    return bubble && [bubble.part.value, bubble.getAttribute('role'), bubble.ariaHidden, box.getAttribute('aria-describedby'), box.getAttribute('aria-invalid')];
  });
  await told();
  await person.typeOver('TxtBd', '5+5');
  assert.deepEqual((await told()).texts, ['= 10,00']);
  await person.type('+x');
  await page.evaluate(() => {
    window.comings = 0;
    new MutationObserver((changes) => (window.comings += changes.flatMap(({ addedNodes }) => [...addedNodes]).length))
      .observe(window.editor.shadowRoot, { childList: true });
  });
  await person.press('Tab', 'Tab');
  assert.deepEqual(await reason(), ['reason', 'alert', null, 'bubble', 'true']);
  assert.equal(await page.evaluate(() => window.comings), 2);
  assert.deepEqual((await told()).texts, ['']);
  await person.press('Control+a');
  await person.type('6+6');
  assert.deepEqual(await told(), { texts: ['= 12,00'], lang: 'nl', same: true });
  assert.deepEqual(await reason(), ['note', null, 'true', null, null]);
  await person.press('Escape');
  assert.equal(await reason(), null);
});

/** What a person may come upon, each to be looked at. */
const SIGHTS = {
  ...Object.fromEntries(Object.keys(STATES).map((state) => [state, () => bind(state)])),
  'een leeg element': () => page.evaluate(() => window.editor.unbind()),
  'een weigering': async () => {
    await bind('editor-vaste-last');
    await person.typeOver('TxtBd', '12.50');
    await person.press('Tab');
  },
  'een melding': async () => {
    await bind('editor-vaste-last');
    await person.typeOver('TxtDtEind', '1-1-1990');
    await person.press('Tab');
    await person.until(async () => (await person.message()) !== '', 'the message');
  },
  'het formulier': async () => {
    await bind('editor-vaste-last');
    await person.click('cmdScenario');
    await person.until(() => person.hasForm(), 'the form');
  },
};

const found = (looked) => looked.evaluate(async () => {
  const { violations, passes } = await axe.run(document, { resultTypes: ['violations', 'passes'] });
  return { violations: violations.flatMap(({ id, nodes }) => nodes.map(({ html, failureSummary }) => `${id}: ${html}\n${failureSummary}`)), passes: passes.length };
});

for (const scheme of ['light', 'dark'])
  for (const [name, show] of Object.entries(SIGHTS))
    test(`looks.NothingIsFoundIn ${name} ${scheme}`, async () => {
      await page.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
      await show();
      const { violations, passes } = await found(page);
      assert.ok(passes > 10, `${passes} rules held`);
      assert.deepEqual(violations, []);
    });

for (const scheme of ['light', 'dark'])
  test(`looks.NothingIsFoundIn several editors on a page ${scheme}`, async () => {
    const many = await open('/tests/pages/many.html', { width: 1000, height: 2600 });
    await many.emulateMediaFeatures([{ name: 'prefers-color-scheme', value: scheme }]);
    await many.waitForFunction(() => window.isReady);
    await many.evaluate(readFileSync(axeScript, 'utf8'));
    const { violations, passes } = await found(many);
    await many.close();
    assert.ok(passes > 10, `${passes} rules held`);
    assert.deepEqual(violations, []);
  });

function* lines({ role, name = '', children = [], value, checked, disabled, description, focused }, depth = 0) {
  const state = [value === undefined ? '' : ` = ${value}`, checked === undefined ? '' : checked ? ' checked' : ' unchecked',
    disabled ? ' disabled' : '', focused ? ' focused' : '', description ? ` (${description})` : ''];
  yield `${'  '.repeat(depth)}${role} "${name}"${state.join('')}`;
  for (const child of children) yield* lines(child, depth + 1);
}

for (const name of ['editor-product', 'een melding', 'het formulier'])
  test(`looks.TheAccessibilityTreeOf ${name}`, async () => {
    await SIGHTS[name]();
    const text = [...lines(await page.accessibility.snapshot())].join('\n') + '\n';
    const file = `${top}tests/web/shown/${name.replaceAll(' ', '-')}.txt`;
    // After a change that is wanted they are written anew with SHOWN_WRITE=1, and read.
    if (process.env.SHOWN_WRITE) writeFileSync(file, text);
    assert.equal(text, readFileSync(file, 'utf8'));
  });

test('looks.NothingElseWentWrong', () => assert.deepEqual(page.faults, []));
