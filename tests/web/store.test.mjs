// What was filled in in the demo is kept, or it is said that it is not: on a page that is left, beside a second page, and in
// a browser that keeps nothing.
import assert from 'node:assert/strict';
import { test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { Demo, PATIENCE, SAMPLE } from './harness/demo.mjs';

const { open } = useBrowser(process.env.WEB_BROWSER || 'chrome');
const AMOUNT = { first: (amount) => `Kinderopvang · € ${amount} per maand`, third: (amount) => `Muzieklessen aan huis · € ${amount} per maand` };

/** Counts what the browser asks of who leaves, and has him leave. */
function leaving({ page }) {
  const asked = [];
  page.on('dialog', (dialog) => {
    asked.push(dialog.type());
    dialog.accept();
  });
  return asked;
}
/** Closes the page as a person does, who is asked and stays. */
async function staysWhenClosed({ page, person }) {
  let isAsked = false;
  page.once('dialog', (dialog) => {
    isAsked = dialog.type() === 'beforeunload';
    dialog.dismiss();
  });
  await page.close({ runBeforeUnload: true });
  await person.until(() => isAsked, 'the question of the browser');
  assert.equal(page.isClosed(), false);
}

// While the browser asks, a page does nothing: what was handed over is written when the person stays.
test('store.WhatIsBeingTypedIsKeptWhenThePageIsLeft', async () => {
  const demo = await Demo.started(open);
  await demo.typeAmount('999');
  await staysWhenClosed(demo);
  await demo.comes('bewaard', /^Bewaard om/);

  // Where all is kept nothing is asked.
  const asked = leaving(demo);
  await demo.reload();
  assert.equal((await demo.columns())[0], AMOUNT.first('999,00'));
  await demo.person.press('ArrowDown', 'Enter');
  await demo.reload();
  assert.deepEqual(asked, []);
});

test('store.APageIsNotLeftUnaskedWithWhatDoesNotPass', async () => {
  const demo = await Demo.started(open);
  await demo.typeAmount('x');
  await staysWhenClosed(demo);
  assert.equal(await demo.person.text('TxtBd'), 'x');
  await demo.person.press('Escape');
  await demo.page.close({ runBeforeUnload: true });
  await demo.person.until(() => demo.page.isClosed(), 'the end of the page');
});

test('store.APageIsNotLeftUnaskedWithTheFormOpen', async () => {
  const demo = await Demo.started(open);
  const { person } = demo;
  await person.press('Enter', 'Alt+s');
  await person.until(() => person.hasForm(), 'the form');
  await person.press('ArrowDown');
  await person.type('50');
  await person.press('Enter');
  await staysWhenClosed(demo);
  assert.equal(await person.hasForm(), true);
  assert.equal(await person.text('txtBedrag(2)'), '50,00');
});

/** Closes the page as a person does who is asked and goes. */
async function goesWhenClosed(demo) {
  const asked = leaving(demo);
  const gone = new Promise((closed) => demo.page.once('close', closed));
  const late = new Promise((_, failed) => setTimeout(failed, PATIENCE, new Error('The page did not come to its end')).unref());
  await demo.page.close({ runBeforeUnload: true });
  await Promise.race([gone, late]);
  return asked;
}
/** A disk that is slower than the end of a page: nothing that is written comes to stand there. */
const SLOW = () => {
  const { put } = IDBObjectStore.prototype;
  IDBObjectStore.prototype.put = function (record, key) {
    const goOn = () => (this.get(key).onsuccess = goOn);
    goOn();
    return put.call(this, record, key);
  };
};
const notesIn = ({ page }) => page.evaluate(() => Object.keys(localStorage).length);

for (const [how, before] of Object.entries({ 'on a fast disk': () => {}, 'on a slow disk': SLOW }))
  test(`store.WhatWasTypedLastIsKeptWhenThePageIsClosedAtOnce ${how}`, async () => {
    const demo = await Demo.started(open, { before });
    await demo.typeAmount('999');
    assert.deepEqual(await goesWhenClosed(demo), ['beforeunload']);
    const next = await demo.beside();
    assert.equal((await next.columns())[0], AMOUNT.first('999,00'));
    await next.saved();
    assert.equal(await notesIn(next), 0);

    // It is in the case now, as everything else.
    await next.reload();
    assert.equal((await next.columns())[0], AMOUNT.first('999,00'));
    assert.equal(await next.page.$('.vraag'), null);
    await next.typeAmount('998');
    await next.person.press('Enter');
    await next.comes('bewaard', /^Bewaard om/);
    await next.reload();
    assert.equal((await next.columns())[0], AMOUNT.first('998,00'));
  });

/** The amount 999 was left in one page that was closed, and 222 written in another one since; what is begun next. */
async function leftBehind() {
  const een = await Demo.started(open, { before: SLOW });
  const twee = await een.beside();
  await een.page.bringToFront();
  await een.typeAmount('999');
  await goesWhenClosed(een);
  await twee.page.bringToFront();
  await twee.person.press('ArrowDown', 'ArrowDown');
  await twee.comes('kop', SAMPLE[2]);
  await twee.typeAmount('222');
  await twee.person.press('Enter');
  await twee.comes('bewaard', /^Bewaard om/);
  return { twee, drie: await twee.beside() };
}
const WITHOUT = [...SAMPLE.slice(0, 2), AMOUNT.third('222,00'), ...SAMPLE.slice(3)];

test('store.WhatThePageLeftThatWasClosedIsOfferedWhereAnotherOneWroteSince', async () => {
  const { twee, drie } = await leftBehind();
  await drie.asked();
  assert.match(await drie.page.$eval('.vraag p', ({ textContent }) => textContent),
    /^Op \d+-\d+-\d{4} om \d\d:\d\d:\d\d sloot u dit dossier voordat alles bewaard was\. U werkte toen aan "Kinderopvang · € 999,00 per maand"\. Sindsdien is het dossier in een ander tabblad gewijzigd/);
  assert.deepEqual(await drie.columns(), WITHOUT);
  // Who goes away without an answer is asked again.
  await drie.reload();
  await drie.answer('Shift+Tab', 'Enter');
  await drie.comes('kop', AMOUNT.first('999,00'));
  await drie.saved();
  assert.deepEqual(await drie.columns(), [AMOUNT.first('999,00'), ...SAMPLE.slice(1)]);
  await twee.person.until(async () => (await twee.columns())[0] === AMOUNT.first('999,00'), 'what was put back');
  await drie.reload();
  assert.equal(await drie.page.$('.vraag'), null);
  assert.deepEqual(await drie.columns(), [AMOUNT.first('999,00'), ...SAMPLE.slice(1)]);
});

test('store.NothingIsTakenFromAPageThatLives', async () => {
  const een = await Demo.started(open);
  await een.page.evaluate(BROKEN['a full store'][0]);
  await een.typeAmount('999');
  await een.person.press('Enter');
  await een.comes('bewaard', 'Niet bewaard: vol.');
  await staysWhenClosed(een);
  assert.equal(await notesIn(een), 1);
  const twee = await een.beside();
  assert.deepEqual(await twee.columns(), SAMPLE);
  assert.equal(await twee.page.$('.vraag'), null);
  await een.page.bringToFront();
  await een.page.evaluate(() => globalThis.mend());
  await een.typeAmount('998');
  await een.person.press('Enter');
  await twee.comes('kop', AMOUNT.first('998,00'));
  assert.equal(await notesIn(een), 0);
});

test('store.WhatIsOfferedAndNotTakenIsGone', async () => {
  const { drie } = await leftBehind();
  await drie.answer('Enter');
  assert.deepEqual(await drie.columns(), WITHOUT);
  assert.equal(await notesIn(drie), 0);
  await drie.reload();
  assert.equal(await drie.page.$('.vraag'), null);
  assert.deepEqual(await drie.columns(), WITHOUT);
});

test('store.NothingIsOfferedThatWasKeptOrToldToBeGone', async () => {
  const een = await Demo.started(open);
  const twee = await een.beside();
  await twee.page.bringToFront();
  await twee.typeAmount('x');
  await een.page.bringToFront();
  await een.typeAmount('111');
  await een.person.press('Enter');
  await een.comes('bewaard', /^Bewaard om/);
  await twee.page.bringToFront();
  await twee.answer('Enter');
  await twee.typeAmount('222');
  await goesWhenClosed(twee);
  assert.equal(await notesIn(een), 0);

  // A page whose last writing nobody heard of, and what is no note.
  await een.page.evaluate(async () => {
    const { openStore } = await import('/demo/store.js');
    const { Versie, ...record } = await (await openStore()).read();
    localStorage.setItem('vrije-kolommen/een', JSON.stringify({ record, version: Versie - 1, column: '', time: 0 }));
    localStorage.setItem('vrije-kolommen/twee', '{');
  });
  await een.reload();
  assert.equal(await een.page.$('.vraag'), null);
  assert.equal(await notesIn(een), 1);
  assert.deepEqual(een.page.faults, []);
});

test('store.WhatIsBeingTypedIsKeptWhenAnotherPageIsLookedAt', async () => {
  const demo = await Demo.started(open);
  const other = await demo.beside();
  await demo.page.bringToFront();
  await demo.typeAmount('999');
  assert.equal(await demo.textOf('bewaard'), '');
  await other.page.bringToFront();
  await demo.comes('bewaard', /^Bewaard om/);
  await other.reload();
  assert.equal((await other.columns())[0], AMOUNT.first('999,00'));
});

test('store.APageShowsWhatAnotherOneWrote', async () => {
  const een = await Demo.started(open);
  const twee = await een.beside();
  await een.page.bringToFront();
  await een.typeAmount('111');
  await een.person.press('Enter');
  await twee.comes('kop', AMOUNT.first('111,00'));

  await twee.page.bringToFront();
  await twee.person.press('ArrowDown', 'ArrowDown');
  await twee.comes('kop', SAMPLE[2]);
  await twee.typeAmount('222');
  await twee.person.press('Enter');
  await een.person.until(async () => (await een.columns())[2] === AMOUNT.third('222,00'), 'what the second one wrote');
  assert.equal(await een.textOf('kop'), AMOUNT.first('111,00'));

  // What the other one has open is removed.
  await een.page.bringToFront();
  await een.person.press('Alt+t', 'ArrowDown', 'ArrowDown', 'Delete');
  await een.answer('Shift+Tab', 'Enter');
  await twee.comes('kop', AMOUNT.first('111,00'));
  await twee.reload();
  assert.deepEqual(await twee.columns(), [AMOUNT.first('111,00'), SAMPLE[1], ...SAMPLE.slice(3)]);
  assert.deepEqual([...een.page.faults, ...twee.page.faults], []);
});

test('store.APageThatIsWorkedInIsToldThatAnotherOneWrote', async () => {
  const een = await Demo.started(open);
  const twee = await een.beside();
  await twee.page.bringToFront();
  await twee.person.press('ArrowDown', 'ArrowDown');
  await twee.comes('kop', SAMPLE[2]);
  await twee.typeAmount('x');
  await een.page.bringToFront();
  await een.typeAmount('111');
  await een.person.press('Enter');
  await een.comes('bewaard', /^Bewaard om/);

  // Told at once; what stands there can be looked at, and is still not kept.
  await twee.page.bringToFront();
  await twee.comes('bewaard', 'Niet bewaard: dit dossier is in een ander tabblad gewijzigd.');
  await twee.answer('Enter');
  assert.equal(await twee.person.text('TxtBd'), 'x');
  await twee.typeAmount('222');
  await twee.person.press('Enter');
  await twee.asked();
  assert.match(await twee.page.$eval('.vraag p', ({ textContent }) => textContent), /ander tabblad gewijzigd.*niet bewaard/s);
  assert.equal(await twee.textOf('bewaard'), 'Niet bewaard: dit dossier is in een ander tabblad gewijzigd.');
  await een.reload();
  assert.deepEqual(await een.columns(), [AMOUNT.first('111,00'), ...SAMPLE.slice(1)]);

  // The browser asks nothing more of who was told.
  const asked = leaving(twee);
  await twee.page.bringToFront();
  await Promise.all([twee.page.waitForNavigation(), twee.person.press('Shift+Tab', 'Enter')]);
  await twee.begunAnew();
  assert.deepEqual(asked, []);
  assert.deepEqual(await twee.columns(), [AMOUNT.first('111,00'), ...SAMPLE.slice(1)]);
  await twee.person.press('ArrowDown', 'ArrowDown');
  await twee.comes('kop', SAMPLE[2]);
  await twee.typeAmount('222');
  await twee.person.press('Enter');
  await twee.comes('bewaard', /^Bewaard om/);
  await een.reload();
  assert.deepEqual(await een.columns(), [AMOUNT.first('111,00'), SAMPLE[1], AMOUNT.third('222,00'), ...SAMPLE.slice(3)]);
});

// Two messages may come of what was read at once.
test('store.APageIsNotToldOfWhatItHas', async () => {
  const een = await Demo.started(open);
  const twee = await een.beside();
  await een.page.bringToFront();
  await een.typeAmount('111');
  await een.person.press('Enter');
  await twee.comes('kop', AMOUNT.first('111,00'));
  await twee.page.bringToFront();
  await twee.typeAmount('x');
  await twee.page.evaluate(() => {
    globalThis.heard = new Promise((heard) => (new BroadcastChannel('vrije-kolommen').onmessage = heard));
  });
  await een.page.evaluate(() => new BroadcastChannel('vrije-kolommen').postMessage(null));
  await twee.page.evaluate(async () => {
    await globalThis.heard;
    const { openStore } = await import('/demo/store.js');
    await (await openStore()).read();
  });
  assert.equal(await twee.page.$('.vraag'), null);
  assert.equal(await twee.textOf('bewaard'), '');
});

// As in a page that the browser had put to sleep.
test('store.APageThatHeardNothingWritesOverNothing', async () => {
  const een = await Demo.started(open);
  const twee = await Demo.started(open, { context: een.page.browserContext(), before: () => (globalThis.BroadcastChannel = class { postMessage() {} }) });
  await een.page.bringToFront();
  await een.typeAmount('111');
  await een.person.press('Enter');
  await een.comes('bewaard', /^Bewaard om/);
  await twee.page.bringToFront();
  await twee.typeAmount('222');
  await twee.person.press('Enter');
  await twee.asked();
  assert.equal(await twee.textOf('bewaard'), 'Niet bewaard: dit dossier is in een ander tabblad gewijzigd.');
  await een.reload();
  assert.equal((await een.columns())[0], AMOUNT.first('111,00'));
});

const CLOSED = {
  throws: () => (IDBFactory.prototype.open = () => { throw new DOMException('gesloten', 'SecurityError'); }),
  fails: () => (IDBFactory.prototype.open = () => {
    const request = { error: new DOMException('gesloten', 'InvalidStateError') };
    setTimeout(() => request.onerror());
    return request;
  }),
  'cannot be read': () => (IDBObjectStore.prototype.get = () => { throw new DOMException('gesloten', 'UnknownError'); }),
};
for (const [how, before] of Object.entries(CLOSED))
  test(`store.ABrowserThatKeepsNothingIsWorkedInAllTheSame ${how}`, async () => {
    const demo = await Demo.started(open, { before });
    const text = 'Deze browser bewaart niets: wat u invult is weg wanneer u deze pagina sluit (gesloten).';
    assert.equal(await demo.textOf('bewaard'), text);
    assert.deepEqual(await demo.columns(), SAMPLE);
    assert.doesNotMatch(await demo.page.$eval('nav', ({ innerText }) => innerText), /meteen bewaard/);
    await demo.typeAmount('111');
    await demo.person.press('Enter');
    await demo.saved();
    assert.equal((await demo.columns())[0], AMOUNT.first('111,00'));
    assert.equal(await demo.textOf('bewaard'), text);
    await staysWhenClosed(demo);
    assert.deepEqual(demo.page.faults, []);

    // As was said, it is gone with the page.
    await goesWhenClosed(demo);
    const next = await demo.beside();
    assert.equal(await notesIn(next), 0);
    assert.deepEqual(await next.columns(), SAMPLE);
  });

const BROKEN = {
  'a full store': [() => {
    const { put } = IDBObjectStore.prototype;
    IDBObjectStore.prototype.put = () => { throw new DOMException('vol', 'QuotaExceededError'); };
    globalThis.mend = () => (IDBObjectStore.prototype.put = put);
  }, 'Niet bewaard: vol.'],
  'what is written and then given up': [() => {
    const { put } = IDBObjectStore.prototype;
    IDBObjectStore.prototype.put = function (...given) {
      const request = put.apply(this, given);
      request.addEventListener('success', () => this.transaction.abort());
      return request;
    };
    globalThis.mend = () => (IDBObjectStore.prototype.put = put);
  }, 'Niet bewaard: de browser brak het af.'],
};
for (const [what, [broken, said]] of Object.entries(BROKEN))
  test(`store.ItIsSaidUntilItIsKeptThatItIsNot ${what}`, async () => {
    const demo = await Demo.started(open);
    const { page, person } = demo;
    await person.press('ArrowDown', 'ArrowDown');
    await demo.comes('kop', SAMPLE[2]);
    await demo.typeAmount('5');
    await person.press('Enter');
    await demo.comes('bewaard', /^Bewaard om/);
    await page.evaluate(broken);
    await demo.typeAmount('6');
    await person.press('Enter');
    await demo.comes('bewaard', said);
    assert.doesNotMatch(await demo.page.$eval('nav', ({ innerText }) => innerText), /meteen bewaard/);

    // Elsewhere too.
    await person.press('Alt+t', 'End');
    await demo.comes('kop', SAMPLE[5]);
    assert.match(await demo.textOf('bewaard'), /^Niet bewaard/);
    await staysWhenClosed(demo);
    await page.evaluate(() => globalThis.mend());
    await demo.typeAmount('7');
    await person.press('Enter');
    await demo.comes('bewaard', /^Bewaard om/);
    await demo.reload();
    assert.equal((await demo.columns())[2], AMOUNT.third('6,00'));
    assert.equal((await demo.columns())[5], 'Vereniging · Tennislidmaatschap · € 7,00 per half jaar');
  });
