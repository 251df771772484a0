// Hosts that fail, answer what they should not, and take the element away at the wrong moment: it is reported, or it ends,
// and nothing hangs.
import assert from 'node:assert/strict';
import { before, test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { Person } from './harness/person.mjs';

const COLUMN = { Id: 1, Omschrijving: 'Contributie', DatumAanvang: '2031-04-01', Looptijd: 30, Bedrag: { Bedrag: 7, Perioden: [{ Maand: 13, Bedrag: 8 }] } };
const { open } = useBrowser();
let page;
let person;

before(async () => {
  page = await open('/tests/pages/editor.html');
  await page.waitForFunction(() => window.isReady);
  person = new Person(page);
});

/** Binds with a member of an object of the host replaced by a getter that does this, and answers what came of it. */
const bindWith = (member, what) =>
  page.evaluate(async ([name, todo, fields]) => {
    await window.bind({ ...fields });
    const fresh = document.createElement('vrije-kolom');
    window.editor.replaceWith(fresh);
    window.editor = fresh;
    window.reports.length = 0;
    const item = window.item;
    const answers = { undefined, NaN, text: 'geen getal', number: 12.5, noDate: '2031-02-31', huge: 1e9 };
    Object.defineProperty(item, name, {
      configurable: true,
      get: () => {
        if (todo === 'throw') throw Object.assign(new Error('De host weigert'), { number: 1234, source: 'Proef' });
        if (todo === 'throw text') throw 'zomaar een tekst';
        return answers[todo];
      },
      set() {},
    });
    const result = await fresh.setApplication(window.application, 0, 1);
    return { result, reports: window.reports, state: fresh.state };
  }, [member, what, COLUMN]);

/** A procedure inside another one reports by itself, so that there may be more than one. */
function holdReports(reports, number) {
  assert.ok(reports.length > 0);
  assert.deepEqual(new Set(reports.map((report) => report.number)), new Set([number]));
}

const READ = ['CorrectieLast', 'CorrectieFiscaal', 'Omschrijving', 'Termijn', 'InkomenUitArbeid', 'InDagloon', 'HeffingBij',
  'IsProduct', 'DatumAanvang', 'Looptijd', 'UitsluitenAO', 'ScenarioOverlijden', 'Bedrag'];

for (const member of READ)
  test(`host.AFailureOf${member}IsReported`, async () => {
    const { result, reports, state } = await bindWith(member, 'throw');
    assert.equal(result, 'failed');
    assert.equal(state, 'failed');
    holdReports(reports, '1234');
    assert.equal(reports[0].text, 'De host weigert');
  });

for (const [member, what, number] of [
  ['Omschrijving', 'undefined', '13'], ['Omschrijving', 'number', '13'], ['Termijn', 'undefined', '13'],
  ['Termijn', 'NaN', '13'], ['Termijn', 'text', '13'], ['Termijn', 'huge', '6'], ['InkomenUitArbeid', 'text', '13'],
  ['DatumAanvang', 'noDate', '13'], ['DatumAanvang', 'text', '13'], ['Looptijd', 'NaN', '13'], ['Bedrag', 'number', '13'],
  ['Omschrijving', 'throw text', '440'],
])
  test(`host.${member}As ${what} IsError${number}`, async () => {
    const { result, reports } = await bindWith(member, what);
    assert.equal(result, 'failed');
    holdReports(reports, number);
  });

// What a binding asks of the objects around the column. A failure reaches ReportError, and one of ReportError itself nobody.
for (const [object, member, reported] of [
  ['application', 'Dossier', true], ['application', 'Codetabellen', true], ['application', 'VulCombo', true],
  ['application', 'ReportError', false], ['dossier', 'HuidigeLening', true], ['dossier', 'Persoon', true],
  ['lening', 'VrijeKolommen', true], ['trace', 'EnterProcedure', true], ['trace', 'LeaveProcedure', true],
])
  test(`host.AFailureOf ${object} ${member} HangsNothing`, async () => {
    const { struck, reports, state } = await page.evaluate(async ([what, name, fields]) => {
      await window.bind({ ...fields });
      const fresh = document.createElement('vrije-kolom');
      window.editor.replaceWith(fresh);
      window.editor = fresh;
      let struck = 0;
      const fail = () => {
        ++struck;
        throw Object.assign(new Error('De host weigert'), { number: 1234 });
      };
      const { application, dossier, item, reports } = window;
      reports.length = 0;
      const trace = { EnterProcedure() {}, LeaveProcedure() {}, ErrorInProcedure() {}, ApplicationTitle: '', ObjectName: '', Caption: '',
        ObjectDescription: '', Message: '', ErrorNumber: '', ErrorDescription: '', ErrorSource: '' };
      fresh.hostFactories = { procedureTrace: () => trace };
      const objects = { application, dossier, lening: dossier.HuidigeLening, trace };
      Object.defineProperty(objects[what], name, { configurable: true, get: fail });
      // Something has to be reported for a reporter to fail.
      if (name === 'ReportError') Object.defineProperty(item, 'Termijn', { get: fail });
      try {
        await fresh.setApplication(application, 0, 1);
      } catch (failure) {
        reports.push({ number: String(failure.number) });
      }
      return { struck, reports, state: fresh.state };
    }, [object, member, { ...COLUMN, IsProduct: true, Maatschappij: 'AB', Productsoort: 44 }]);
    assert.ok(struck > 0, 'it was never asked');
    if (reported) holdReports(reports, '1234');
    // Without a tracer there is no control.
    assert.equal(state, object === 'trace' ? 'never' : 'failed');
    await worksAgain();
  });

/** Binds with a member whose getter another window made, and answers what came of it. */
const bindWithForeign = (member, code) =>
  page.evaluate(async ([name, made, fields]) => {
    const frame = Object.assign(document.createElement('iframe'), { src: '/tests/pages/sheet.html', title: 'Ander' });
    await new Promise((loaded) => {
      frame.onload = loaded;
      document.querySelector('main').append(frame);
    });
    await window.bind({ ...fields });
    const { editor, application, item, reports } = window;
    const foreign = { date: () => new frame.contentWindow.Date(2032, 4, 1), noDate: () => new frame.contentWindow.Date(NaN),
      error: () => { throw Object.assign(new frame.contentWindow.Error('De host weigert'), { number: 1234 }); },
      plain: () => { throw { number: 1234, message: 'De host weigert' }; } };
    Object.defineProperty(item, name, { configurable: true, get: foreign[made], set() {} });
    const result = await editor.setApplication(application, 0, 1);
    frame.remove();
    return { result, reports };
  }, [member, code, COLUMN]);

test('host.ADateOfAnotherWindowIsADay', async () => {
  const { result, reports } = await bindWithForeign('DatumAanvang', 'date');
  assert.deepEqual([result, reports], ['bound', []]);
  assert.equal(await person.text('TxtDtAanvang'), '01-05-2032');
});

test('host.ADateOfAnotherWindowThatIsNoneIsError13', async () => {
  const { result, reports } = await bindWithForeign('DatumAanvang', 'noDate');
  assert.equal(result, 'failed');
  holdReports(reports, '13');
});

for (const thrown of ['error', 'plain'])
  test(`host.AFailureOfAnotherKindHasItsNumberAndItsText ${thrown}`, async () => {
    const { result, reports } = await bindWithForeign('Omschrijving', thrown);
    assert.equal(result, 'failed');
    holdReports(reports, '1234');
    assert.equal(reports[0].text, 'De host weigert');
  });

/** What a host's VulCombo does to the list, and what came of the binding. */
const fillWith = (code) =>
  page.evaluate(async ([made, fields]) => {
    await window.bind({ ...fields, IsProduct: true, Maatschappij: 'AB' });
    const { editor, application, reports } = window;
    const fill = { textForItemData: (list) => list.AddItem('x', 'y'), noNumber: (list) => list.AddItem('x', NaN), nothing: (list) => list.AddItem('x', null),
      tooLarge: (list) => list.AddItem('x', 1e99), numberForText: (list) => list.AddItem(5, 1), noText: (list) => list.AddItem(undefined, 1),
      textForIndex: (list) => (list.AddItem('x', 1), (list.ListIndex = 'x')), noIndex: (list) => (list.AddItem('x', 1), (list.ListIndex = undefined)),
      textAskedFor: (list) => (list.AddItem('x', 1), list.ItemData('0')), noEntry: (list) => (list.AddItem('x', 1), list.List(1)),
      withoutItemData: (list) => list.AddItem('x') };
    application.VulCombo = (source, table, list) => fill[made](list);
    const result = await editor.setApplication(application, 0, 1);
    return { result, reports };
  }, [code, COLUMN]);

for (const [what, number] of [['textForItemData', '13'], ['noNumber', '13'], ['nothing', '13'], ['tooLarge', '6'], ['numberForText', '13'], ['noText', '13'],
  ['textForIndex', '13'], ['noIndex', '13'], ['textAskedFor', '13'], ['noEntry', '381']])
  test(`host.AListThatIsFilledWith ${what} IsError${number}`, async () => {
    const { result, reports } = await fillWith(what);
    assert.equal(result, 'failed');
    holdReports(reports, number);
  });

test('host.AnEntryOfAListNeedsNoNumber', async () => {
  const { result, reports } = await fillWith('withoutItemData');
  assert.deepEqual([result, reports], ['bound', []]);
});

test('host.AMemberThatIsMissingIsReported', async () => {
  const reports = await page.evaluate(async (fields) => {
    await window.bind(fields);
    window.reports.length = 0;
    delete window.item.Termijn;
    await window.editor.setApplication(window.application, 0, 1);
    return window.reports;
  }, COLUMN);
  assert.equal(reports[0].number, '438');
});

test('host.WhatNobodyCanBeToldOfRejects', async () => {
  const rejected = await page.evaluate(async (fields) => {
    await window.bind(fields);
    const { editor, application } = window;
    const outcome = (promise) => promise.catch(({ name, number }) => `${name} ${number}`);
    const seen = [await outcome(editor.setApplication({}, 0, 1)), await outcome(editor.setApplication('een dossier', 0, 1))];
    application.ReportError = () => {
      throw Object.assign(new Error('vol'), { number: 61 });
    };
    delete window.item.Termijn;
    return [...seen, await outcome(editor.setApplication(application, 0, 1))];
  }, COLUMN);
  assert.deepEqual(rejected, ['HostError 438', 'HostError 438', 'HostError 61']);
});

test('host.AFailedWriteIsReportedAndTheTextIsKept', async () => {
  await page.evaluate((fields) => window.bind(fields), COLUMN);
  await page.evaluate(() => Object.defineProperty(window.item, 'Omschrijving', { get: () => 'Contributie', set() {
    throw new Error('Alleen lezen');
  } }));
  await person.typeOver('TxtOm', 'Krant');
  await person.press('Tab');
  const reports = await page.evaluate(() => window.reports);
  assert.equal(reports.length, 1);
  assert.equal(reports[0].number, '440');
  assert.equal(reports[0].text, 'Alleen lezen');
  assert.equal(await person.text('TxtOm'), 'Krant');
  assert.equal(await person.focused(), 'TxtOm');
  assert.equal(await person.said(), 'Dit is niet bewaard. Enter probeert het opnieuw, Esc zet terug wat er stond.');
  await person.press('Escape');
  await person.typeOver('TxtBd', '12');
  await person.press('Enter');
  assert.equal(await page.evaluate(() => window.item.Bedrag.Bedrag), 12);
});

for (const event of ['changed', 'heightchanged', 'refreshtopdisplay'])
  test(`host.AListenerOf ${event} ThatThrowsStopsNothing`, async () => {
    await page.evaluate(async ([name, fields]) => {
      await window.bind(fields);
      window.editor.addEventListener(name, () => {
        throw new Error('mislukt');
      });
    }, [event, COLUMN]);
    await (await person.control('Toelichting.jnAO')).focus();
    await person.press('n');
    await person.click('optLast(2)');
    assert.equal(await page.evaluate(() => window.item.UitsluitenAO), true);
    assert.equal(await page.evaluate(() => window.item.CorrectieLast), 2);
    page.faults.length = 0;
  });

/** The element is taken away in its own event, and another one works on. */
for (const event of ['changed', 'refreshtopdisplay'])
  test(`host.TheElementTakenAwayIn ${event} EndsQuietly`, async () => {
    await page.evaluate(async ([name, fields]) => {
      await window.bind(fields);
      window.editor.addEventListener(name, () => window.editor.remove(), { once: true });
    }, [event, COLUMN]);
    await (await person.control('Toelichting.jnAO')).focus();
    await person.press('n');
    if (event === 'refreshtopdisplay' && await page.evaluate(() => window.editor.isConnected)) await person.click('optLast(2)');
    await page.waitForFunction(() => !window.editor.isConnected);
    assert.deepEqual(await page.evaluate(() => window.reports), []);
    await worksAgain();
  });

/** After all that, a fresh editor in the same page is bound and takes an amount. */
async function worksAgain() {
  await page.evaluate((fields) => {
    document.querySelector('vrije-kolom') ?? document.querySelector('main').append(document.createElement('vrije-kolom'));
    return window.bind(fields);
  }, COLUMN);
  await person.typeOver('TxtBd', '42');
  await person.press('Tab');
  assert.equal(await page.evaluate(() => window.item.Bedrag.Bedrag), 42);
}

test('host.TheElementTakenAwayWithItsFormOpenEndsQuietly', async () => {
  await page.evaluate((fields) => window.bind(fields), COLUMN);
  await person.click('cmdScenario');
  await person.until(() => person.hasForm(), 'the form');
  const validated = await page.evaluate(async () => {
    window.editor.remove();
    await new Promise((done) => setTimeout(done));
    return window.editor.shadowRoot.childElementCount;
  });
  assert.equal(validated, 0);
  assert.deepEqual(await page.evaluate(() => window.reports), []);
  await worksAgain();
});

test('host.TheElementTakenAwayWithAMessageOpenEndsQuietly', async () => {
  await page.evaluate((fields) => window.bind(fields), COLUMN);
  await person.typeOver('TxtDtEind', '1-1-1990');
  await person.press('Tab');
  await person.until(async () => (await person.message()) !== '', 'the message');
  await page.evaluate(() => window.editor.remove());
  await new Promise((done) => setTimeout(done, 50));
  await worksAgain();
});

for (const [what, below, faults] of [['Adds', '\n\n1 afwijkende kolom: Contributie', 0], ['Throws', '', 1], ['AnswersNothing', '', 0], ['AnswersAPromise', '', 1],
  ['AnswersANumber', '', 1]])
  test(`host.AQuestionShowsWhatTheHostAddsBelowIt ${what}`, async () => {
    await page.evaluate(async (fields, name) => {
      await window.bind(fields);
      // The same column in a new situation: whether that goes is asked before this one is left.
      window.dossier.Leningen[0].kolommen.push({ Id: window.item.Id });
      window.editor.questionDetails = {
        Adds: () => '1 afwijkende kolom: Contributie',
        Throws: () => {
          throw new Error('geen kolommen');
        },
        AnswersNothing: () => {},
        AnswersAPromise: async () => '1 afwijkende kolom: Contributie',
        AnswersANumber: () => 1,
      }[name];
    }, COLUMN, what);
    await person.typeOver('TxtOm', 'Krant');
    // It comes back when it was answered.
    await page.evaluate(() => void (window.stays = window.editor.validation()));
    await person.until(async () => (await person.message()) !== '', 'the question');
    const question = await person.message();
    assert.ok(question.endsWith(`?${below}`), question);
    await person.pause();
    await person.press('Escape');
    assert.equal(await page.evaluate(() => window.stays), false);
    // Its own failure is the page's to hear of.
    assert.equal(page.faults.splice(0).length, faults);
  });

test('host.AnEditorPutBackIsBoundAsItWas', async () => {
  await page.evaluate(async (fields) => {
    await window.bind(fields);
    const { editor } = window;
    editor.remove();
    await new Promise((done) => setTimeout(done));
    document.querySelector('main').prepend(editor);
  }, COLUMN);
  await page.waitForFunction(() => window.editor.state === 'bound');
  assert.equal(await person.text('TxtOm'), 'Contributie');
  await page.evaluate(() => document.querySelector('h1').after(window.editor));
});

test('host.NothingElseWentWrong', () => assert.deepEqual(page.faults, []));
