// The element as its page deals with it: before its module has run, in another document, bound anew, and when the page is left.
import assert from 'node:assert/strict';
import { after, before, test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { Person } from './harness/person.mjs';

const COLUMN = { Id: 1, Omschrijving: 'Contributie', DatumAanvang: '2031-04-01', Looptijd: 30, Bedrag: { Bedrag: 7 } };
const harness = useBrowser();
const { open } = harness;
let page;
let person;

before(async () => {
  page = await open('/tests/pages/editor.html');
  await page.waitForFunction(() => window.isReady);
  person = new Person(page);
});
after(() => assert.deepEqual(page.faults, []));

const bind = () => page.evaluate((fields) => window.bind(fields), COLUMN);
const isPending = () => page.evaluate(() => window.editor.pending);

test('element.IsPendingFromTheFirstKeyUntilThatIsTakenOrPutBack', async () => {
  await bind();
  assert.equal(await isPending(), false);
  await person.typeOver('TxtBd', '12');
  assert.equal(await isPending(), true);
  await person.press('Enter');
  assert.equal(await isPending(), false);
  await person.typeOver('TxtBd', 'x');
  await person.press('Tab');
  assert.equal(await isPending(), true);
  await person.press('Escape');
  assert.equal(await isPending(), false);
});

test('element.IsPendingWhileAListIsBrowsed', async () => {
  await bind();
  await (await person.control('cboTermijn')).focus();
  await person.press('ArrowDown');
  assert.equal(await isPending(), true);
  await person.press('Tab');
  assert.equal(await isPending(), false);
});

test('element.IsPendingWhileItsFormOrAQuestionIsOpen', async () => {
  await bind();
  await person.click('cmdScenario');
  await person.until(() => person.hasForm(), 'the form');
  assert.equal(await isPending(), true);
  await person.press('Escape');
  await person.until(async () => !(await person.hasForm()), 'the end of the form');
  assert.equal(await isPending(), false);
  await person.typeOver('TxtDtEind', '1-1-1990');
  await person.press('Tab');
  await person.until(async () => (await person.message()) !== '', 'the message');
  assert.equal(await isPending(), true);
  await person.pause();
  await person.press('Enter');
  await person.press('Escape');
  assert.equal(await isPending(), false);
});

test('element.IsNotPendingWhereItWasNeverUsed', async () => {
  assert.equal(await page.evaluate(() => document.createElement('vrije-kolom').pending), false);
});

/** What a page does that loses nothing when it is left. */
async function leave(typed) {
  const left = await open('/tests/pages/editor.html');
  await left.waitForFunction(() => window.isReady);
  const worker = new Person(left);
  await left.evaluate(async (fields) => {
    await window.bind(fields);
    addEventListener('beforeunload', (event) => {
      window.editor.commitPending();
      sessionStorage.bedrag = window.item.Bedrag.Bedrag;
      if (window.editor.pending) event.preventDefault();
    });
  }, COLUMN);
  await worker.typeOver('TxtBd', typed);
  let asked = false;
  left.on('dialog', (dialog) => {
    asked = dialog.type() === 'beforeunload';
    void dialog.accept();
  });
  await left.reload();
  const amount = Number(await left.evaluate(() => sessionStorage.bedrag));
  await left.close();
  return { asked, amount };
}

test('element.WhatIsTypedIsStoredWhenThePageIsLeft', async () => assert.deepEqual(await leave('12'), { asked: false, amount: 12 }));
test('element.WhatIsRefusedIsAskedAboutWhenThePageIsLeft', async () => assert.deepEqual(await leave('12.50'), { asked: true, amount: 7 }));

// Numbers are read as everywhere: to the nearest whole one, halves to the even one, and no further than they reach.
test('element.TakesTheNumbersThatTheControlsTake', async () => {
  const came = await page.evaluate(async (column) => {
    const { makeHost } = await import('/tests/pages/host.js');
    await window.bind();
    const { application, dossier } = Object.assign(window, makeHost([{ ...column, Id: 2 }]));
    const outcome = (promise) => promise.catch(({ number }) => number);
    const bound = async (lenId, vrijId) => outcome(window.editor.setApplication(application, lenId, vrijId));
    const asked = [];
    Object.defineProperty(dossier, 'Lening', { value: (id) => (asked.push(id), id === 0 ? dossier.HuidigeLening : null) });
    await bound(-32768, 2);
    const found = [await bound(0.5, 1.5), await bound(0, 2.5)];
    const refused = [await bound(0, 32768), await bound(-32769, 2), await bound(0, NaN), await bound('0', 2), await bound(0), await bound(0, Infinity)];
    const numbers = [40000, -40000, 0.5, 2147483648, NaN, '1', null];
    const checks = [];
    for (const number of numbers) checks.push(await outcome(window.editor.validation(number)));
    checks.push(await outcome(window.editor.validationToelichting(2147483648)));
    return { asked: asked.slice(0, 1), found, refused, checks };
  }, COLUMN);
  assert.deepEqual(came, { asked: [-32768], found: ['bound', 'bound'], refused: [6, 6, 13, 13, 13, 6],
    checks: [false, false, false, 6, 13, 13, 13, 6] });
});

test('element.PutBackAfterARefusedBindingItIsBoundAsItWas', async () => {
  await page.evaluate(async ([column]) => {
    const { makeHost } = await import('/tests/pages/host.js');
    await window.bind();
    Object.assign(window, makeHost([column, { ...column, Id: 2, Omschrijving: 'Krant' }]));
    await window.editor.setApplication(window.application, 0, 1);
  }, [COLUMN]);
  await person.typeOver('TxtBd', 'x');
  const result = await page.evaluate(() => window.editor.setApplication(window.application, 0, 2));
  assert.equal(result, 'refused');
  await page.evaluate(async () => {
    const { editor } = window;
    editor.remove();
    await new Promise((done) => setTimeout(done));
    document.querySelector('h1').after(editor);
  });
  await page.waitForFunction(() => window.editor.state === 'bound');
  assert.equal(await person.text('TxtOm'), 'Contributie');
});

// Nobody waits for a property that was set: what is wrong the binding says.
for (const [property, value] of [['beeindigenZichtbaar', true], ['backColor', 0x2040ff]])
  test(`element.SettingAPropertyWhereFactoriesFailLeavesNothingUnheard ${property}`, async () => {
    const result = await page.evaluate(async ([name, set, column]) => {
      await window.bind(column);
      const fresh = document.createElement('vrije-kolom');
      window.editor.replaceWith(fresh);
      window.editor = fresh;
      fresh.hostFactories = { procedureTrace: () => ({}) };
      fresh[name] = set;
      await new Promise((done) => setTimeout(done));
      const failure = await fresh.setApplication(window.application, 0, 1).catch(({ name: kind, number }) => [kind, number]);
      fresh.hostFactories = {};
      return [failure, await fresh.setApplication(window.application, 0, 1)];
    }, [property, value, COLUMN]);
    assert.deepEqual(result, [['HostError', 438], 'bound']);
    assert.deepEqual(page.faults, []);
  });

test('element.LettingGoBeforeTheMachineIsThereIsLettingGo', async () => {
  const early = await open('/tests/pages/early.html');
  await early.waitForFunction(() => window.isReady);
  assert.equal(await early.evaluate(() => window.losgelaten.state), 'unbound');
  await early.close();
});

test('element.WhatWasSetBeforeTheModuleHasRunHolds', async () => {
  const early = await open('/tests/pages/early.html');
  await early.waitForFunction(() => window.isReady);
  const seen = await early.evaluate(() => {
    const { vroeg, traced } = window;
    const proposal = [...vroeg.shadowRoot.querySelectorAll('input')].find(({ node }) => node?.design.name === 'ChkVoorstel(1)');
    return { own: Object.keys(vroeg), color: vroeg.backColor, proposals: proposal.checkVisibility(), traced, details: vroeg.questionDetails('a', 'b') };
  });
  assert.deepEqual(seen, { own: [], color: 0x2040ff, proposals: true, traced: ['Toelichting', 'VrijeKolom'], details: 'ab' });
  // What is wrong with it is reported, and the element works.
  assert.equal(await early.evaluate(() => window.fout.state), 'bound');
  assert.equal(early.faults.length, 1);
  assert.match(early.faults[0], /Type mismatch/);
  await early.close();
});

test('element.InAnotherDocumentItLooksAndWorksAsBefore', async () => {
  await page.evaluate(async (fields) => {
    await window.bind(fields);
    const frame = Object.assign(document.createElement('iframe'), { id: 'ander', src: '/tests/pages/sheet.html', title: 'Ander', width: 950, height: 400 });
    await new Promise((loaded) => {
      frame.onload = loaded;
      document.querySelector('main').append(frame);
    });
    const elsewhere = Object.assign(frame.contentDocument.createElement('button'), { textContent: 'Elders' });
    frame.contentDocument.body.append(window.editor, elsewhere);
  }, COLUMN);
  const seen = await page.evaluate(() => {
    const [box] = window.editor.shadowRoot.querySelectorAll('input.box');
    return { position: getComputedStyle(box).position, sheets: window.editor.shadowRoot.adoptedStyleSheets.length };
  });
  assert.deepEqual(seen, { position: 'absolute', sheets: 1 });
  const middleOf = async (which) => {
    const middle = await page.evaluate((name) => {
      const frame = document.querySelector('#ander');
      frame.scrollIntoView();
      const target = name === '' ? frame.contentDocument.querySelector('button')
        : [...window.editor.shadowRoot.querySelectorAll('input')].find(({ node }) => node?.design.name === name);
      const [around, box] = [frame.getBoundingClientRect(), target.getBoundingClientRect()];
      return [around.left + frame.clientLeft + box.left + box.width / 2, around.top + frame.clientTop + box.top + box.height / 2];
    }, which);
    return middle;
  };
  const click = async (which, options) => page.mouse.click(...(await middleOf(which)), options);
  await click('TxtBd', { count: 3 });
  await person.type('12');
  await click('');
  assert.equal(await page.evaluate(() => window.item.Bedrag.Bedrag), 12);
  // A press that was dropped because of what is refused, and let go of elsewhere, takes no other one along.
  await click('TxtBd', { count: 3 });
  await person.type('x');
  await page.mouse.move(...(await middleOf('TxtOm')));
  await page.mouse.down();
  await page.mouse.move(...(await middleOf('')));
  await page.mouse.up();
  await person.press('Escape');
  await click('optLast(2)');
  assert.equal(await page.evaluate(() => window.item.CorrectieLast), 2);
  // What is said beside a box keeps to its side when that document scrolls.
  const apart = () => page.evaluate(() => {
    const bubble = window.editor.shadowRoot.querySelector('.bubble').getBoundingClientRect();
    const box = window.editor.shadowRoot.activeElement.getBoundingClientRect();
    return Math.round(bubble.top - box.bottom);
  });
  await click('TxtBd', { count: 3 });
  await person.type('5+5');
  assert.equal(await apart(), 2);
  const scrolled = await page.evaluate(() => new Promise((done) => {
    const { defaultView } = window.editor.ownerDocument;
    window.editor.style.marginBottom = '900px';
    defaultView.addEventListener('scroll', () => setTimeout(() => done(defaultView.scrollY)), { once: true });
    defaultView.scrollTo(0, 20);
  }));
  assert.equal(scrolled, 20);
  assert.equal(await apart(), 2);
  await person.press('Escape');
  await page.evaluate(() => {
    document.querySelector('h1').after(window.editor);
    document.querySelector('#ander').remove();
  });
  assert.equal(await page.evaluate(() => getComputedStyle(window.editor.shadowRoot.querySelector('input.box')).position), 'absolute');
});

test('element.SaysThatItCouldNotBeLoaded', async () => {
  const broken = await open('/tests/pages/sheet.html');
  await broken.setRequestInterception(true);
  broken.on('request', (request) => void (request.url().endsWith('.wasm') ? request.respond({ status: 404 }) : request.continue()));
  await broken.goto(`${harness.origin}/tests/pages/editor.html`);
  const said = () => broken.evaluate(() => {
    const fault = document.querySelector('vrije-kolom').shadowRoot.querySelector('[part=fault]');
    return fault && [fault.textContent, fault.lang, fault.getAttribute('role'), fault.checkVisibility()];
  });
  await new Person(broken).until(said, 'the fault');
  assert.deepEqual(await said(), ['De vrije kolom kon niet worden geladen. Laad de pagina opnieuw om het nog eens te proberen.', 'nl', 'alert', true]);
  const failure = await broken.evaluate(async () => {
    const english = Object.assign(document.createElement('vrije-kolom'), { lang: 'en' });
    document.querySelector('vrije-kolom').replaceWith(english);
    return english.setApplication({}, 0, 1).catch(({ message }) => message);
  });
  assert.match(failure, /machine\.wasm: 404/);
  assert.deepEqual((await said()).slice(0, 2), ['The free column could not be loaded. Reload the page to try again.', 'en']);
  await broken.close();
});
