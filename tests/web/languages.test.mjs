// What the elements add to the controls is said in the language of their place in the page: Dutch, English, or one that the
// page adds. What the controls say themselves is Dutch everywhere.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { Person } from './harness/person.mjs';

const COLUMN = { Id: 1, Omschrijving: 'Contributie', DatumAanvang: '2031-04-01', Looptijd: 30, Bedrag: { Bedrag: 7 } };
const { open } = useBrowser();
let page;
let person;

before(async () => {
  page = await open('/tests/pages/editor.html');
  await page.waitForFunction(() => window.isReady);
  person = new Person(page);
});
after(() => assert.deepEqual(page.faults, []));

/** A fresh editor on a column, in a page of this language. */
const bindIn = (lang) =>
  page.evaluate(([fields, tag]) => {
    document.documentElement.lang = tag;
    return window.bind(fields);
  }, [COLUMN, lang]);
/** What one part of the editor is called or says. */
const part = (selector, ask = 'text') =>
  page.evaluate(([found, what]) => {
    const element = window.editor.shadowRoot.querySelector(found);
    return what === 'text' ? element.textContent : element.getAttribute(what);
  }, [selector, ask]);
const refused = async () => {
  await person.typeOver('TxtBd', '12.50');
  await person.press('Tab');
  const reason = await person.said();
  await person.press('Escape');
  return reason;
};
const noted = async () => {
  await person.typeOver('TxtDtAanvang', '1-4-2031');
  const note = await person.said();
  await person.press('Escape');
  return note;
};

const SAID = {
  nl: { refusal: 'Bedoelt u 12,50 of 1.250? Typ een komma voor de decimalen.', note: 'dinsdag 1 april 2031', tip: 'Kalender (F4)',
    name: 'Vrije kolom', close: 'Sluiten', row: '2031: 1 april 2031 tot en met 31 maart 2032', empty: 'Er is geen vrije kolom geopend.',
    question: /^Het bedrag van de eerste rij is bij het invullen al bewaard.*Wilt u het sluiten\?$/s, buttons: ['Ja', 'Nee'], yes: 'j' },
  en: { refusal: 'Do you mean 12,50 or 1.250? Type a comma before the decimals.', note: 'Tuesday 1 April 2031', tip: 'Calendar (F4)',
    name: 'Free column', close: 'Close', row: '2031: 1 April 2031 up to and including 31 March 2032', empty: 'No free column is open.',
    question: /^The amount of the first row was saved when it was entered.*Do you want to close it\?$/s, buttons: ['Yes', 'No'], yes: 'y' },
};

for (const [lang, said] of Object.entries(SAID)) {
  test(`languages.ABoxSaysWhyItRefusesAndWhatItMakesOfAText ${lang}`, async () => {
    await bindIn(lang);
    assert.equal(await refused(), said.refusal);
    assert.equal(await noted(), said.note);
  });

  test(`languages.NamesAndTipsAreOfTheLanguageAndCaptionsAreNot ${lang}`, async () => {
    await bindIn(lang);
    assert.equal(await part('.calendar', 'title'), said.tip);
    assert.equal(await part('.help', 'aria-label'), 'Hulp bij langleven');
    assert.equal(await part('.legend'), 'Correctie last');
    const tree = await page.accessibility.snapshot({ interestingOnly: false });
    const names = [];
    const walk = ({ name, children = [] }) => (names.push(name), children.forEach(walk));
    walk(tree);
    assert.ok(names.includes(said.name), 'the name of the editor');
    assert.ok(names.includes('Aanvangsdatum'));
  });

  test(`languages.TheFormAndItsQuestionAreAnsweredInIt ${lang}`, async () => {
    await bindIn(lang);
    await person.click('cmdScenario');
    await person.until(() => person.hasForm(), 'the form');
    assert.equal(await part('.close', 'aria-label'), said.close);
    assert.equal(await (await person.control('txtBedrag(1)')).evaluate((input) => input.title), said.row);
    await person.press('Control+a');
    await person.type('55');
    await person.press('Enter');
    await person.type('66');
    await person.press('Enter', 'Escape');
    await person.until(async () => (await person.message()) !== '', 'the question');
    assert.match(await person.message(), said.question);
    assert.equal(await part('.message', 'lang'), lang);
    assert.deepEqual(await page.evaluate(() => [...window.editor.shadowRoot.querySelectorAll('.message button')].map((button) => button.textContent)),
      said.buttons);
    await person.pause();
    await person.press(`Alt+${said.yes}`);
    await person.until(async () => !(await person.hasForm()), 'the end of the form');
  });

  test(`languages.AMessageOfTheControlsIsDutch ${lang}`, async () => {
    await bindIn(lang);
    await person.typeOver('TxtDtEind', '1-1-1990');
    await person.press('Tab');
    await person.until(async () => (await person.message()) !== '', 'the message');
    assert.equal(await part('.message', 'lang'), 'nl');
    assert.equal(await part('.message button', 'lang'), lang);
    await person.pause();
    await person.press('Enter');
    await person.until(async () => (await person.message()) === '', 'the answer');
    await person.press('Escape');
  });

  test(`languages.AnEditorThatStandsForNothingSaysSo ${lang}`, async () => {
    await bindIn(lang);
    await page.evaluate(() => window.editor.unbind());
    assert.equal(await part('.veil'), said.empty);
  });
}

test('languages.TheNearestLanguageCounts', async () => {
  await bindIn('en');
  await page.evaluate(() => (window.editor.lang = 'nl'));
  assert.equal(await refused(), SAID.nl.refusal);
  assert.equal(await part('.calendar', 'title'), SAID.nl.tip);
  await page.evaluate(() => window.editor.removeAttribute('lang'));
  assert.equal(await refused(), SAID.en.refusal);
  assert.equal(await part('.calendar', 'title'), SAID.en.tip);
});

test('languages.ThatAroundAShadowRootCounts', async () => {
  const tips = await page.evaluate(async () => {
    const tips = [];
    for (const lang of ['en-GB', 'nl-BE', 'xx', '']) {
      const around = document.createElement('div');
      around.lang = lang;
      const editor = document.createElement('vrije-kolom');
      around.attachShadow({ mode: 'open' }).append(editor);
      document.querySelector('main').append(around);
      await editor.setApplication(window.application, 0, 1);
      tips.push(editor.shadowRoot.querySelector('.calendar').title);
      around.remove();
    }
    return tips;
  });
  assert.deepEqual(tips, [SAID.en.tip, SAID.nl.tip, SAID.nl.tip, SAID.nl.tip]);
});

test('languages.APageThatChangesItsOwnIsFollowedWithTheNextThatIsDone', async () => {
  await bindIn('nl');
  await page.evaluate(() => (document.documentElement.lang = 'en'));
  assert.equal(await refused(), SAID.en.refusal);
  assert.equal(await part('.calendar', 'title'), SAID.en.tip);
});

test('languages.APageAddsOneAndWhatItLeavesIsDutch', async () => {
  await page.evaluate(async () => {
    const { addLanguage } = await import('/package/src/index.js');
    addLanguage('fy', { PointOrComma: 'Bedoele jo %1 of %2?', CalendarKey: 'Kalinder (F4)', Tuesday: 'tiisdei' });
  });
  await bindIn('fy-NL');
  assert.equal(await refused(), 'Bedoele jo 12,50 of 1.250?');
  assert.equal(await noted(), 'tiisdei 1 april 2031');
  assert.equal(await part('.calendar', 'title'), 'Kalinder (F4)');
  assert.equal(await part('.help', 'aria-label'), 'Hulp bij langleven');
});
