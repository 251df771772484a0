// A host of which one member fails, and a walk through the editor that comes by every member there is.
import { ready } from '/package/src/index.js';
import { makeHost } from './host.js';

const COLUMN = { Id: 1, Omschrijving: 'Contributie', DatumAanvang: '2031-04-01', Looptijd: 30, CorrectieLast: 2, CorrectieFiscaal: 2, IsProduct: true,
  Maatschappij: 'ZZ', MaatschappijNaam: 'Drukkerij De Pers', Productsoort: 44, ScenarioOverlijden: true, PercentageOvergang: 70, EinddatumOvergang: '2040-04-01',
  Voorstel: ['J', 'N', ''], Bedrag: { Bedrag: 7, Perioden: [{ Maand: 13, Bedrag: 8 }] } };
const PERCENTAGES = { Bedrag: { ...COLUMN.Bedrag, Invoersoort: 3 } };
const TYPED = { TxtOm: 'Krant', TxtBd: '12', TxtDtAanvang: '1-5-2031', TxtDtEind: '1-5-2035', TxtAnJaar: '5', TxtAnMaand: '2', txtProductnaam: 'Weekend',
  txtVervaldatum: '1-6-2035', txtMaatschappij: 'Pers', txtProductsoort: 'Blad', 'Toelichting.TxtPcOvergang': '60', 'Toelichting.txtEinddatum': '1-6-2041',
  'Toelichting.TxtEindjaar': '60' };
const CLICKED = ['optLast(1)', 'optLast(2)', 'optFiscaal(1)', 'optFiscaal(2)', 'optAanvrager(1)', 'optAanvrager(2)', 'ChkVoorstel(1)', 'ChkVoorstel(2)', 'jnInkUitArbeid',
  'jnInDagloon', 'jnUwBemiddeling', 'Toelichting.jnAO', 'Toelichting.jnWW', 'Toelichting.jnLangleven', 'Toelichting.jnOverlijden', 'chkProduct', 'chkProduct'];
const CHOSEN = ['cboTermijn', 'cboMaatschappij', 'cboProductsoort'];
/** Told of only where something else fails. */
const OF_A_FAILURE = ['ReportError', 'ErrorInProcedure', 'ApplicationTitle', 'ObjectName', 'Caption', 'ObjectDescription', 'Message', 'ErrorNumber',
  'ErrorDescription', 'ErrorSource'];
const REFUSAL = 'De host weigert';
const FAILURE = 'failure 1234';
const LONG = 30000;
const MOST_DIALOGS = 20;

const wait = (time = 0) => new Promise((done) => setTimeout(done, time));
/** What a promise came to, or that it did not. */
const outcome = (promise) => Promise.race([promise.catch(({ number }) => `failure ${number}`), wait(LONG).then(() => 'nothing')]);

function makeModel(fields) {
  const host = makeHost([{ ...COLUMN, ...fields }]);
  const { application, dossier, item } = host;
  const deviating = { Id: 1 };
  dossier.Leningen[0].kolommen.push(deviating);
  const trace = { EnterProcedure() {}, LeaveProcedure() {}, ErrorInProcedure() {}, ApplicationTitle: '', ObjectName: '', Caption: '',
    ObjectDescription: '', Message: '', ErrorNumber: '', ErrorDescription: '', ErrorSource: '' };
  const check = { Controleer() {} };
  const objects = { Application: [application], Dossier: [dossier], Persoon: dossier.Personen, Uitgangspunten: [application.Uitgangspunten],
    Lening: [dossier.HuidigeLening, dossier.Leningen[0]], VrijeKolomItem: [item, deviating], BedragObject: [item.Bedrag], Periode: item.Bedrag.Perioden,
    ProcedureTrace: [trace], DossierControle: [check] };
  return { ...host, trace, check, objects };
}

class Walk {
  constructor(editor) {
    this.editor = editor;
    this.faults = [];
    this.told = new Set();
  }

  find(name) {
    return [...this.editor.shadowRoot.querySelectorAll('input, select, button')].find(
      (input) => input.node?.design?.name === name && input.node.input === input && !input.disabled && input.checkVisibility());
  }

  /** Says yes to all that comes up, and closes the form. */
  async settle(after) {
    const root = this.editor.shadowRoot;
    for (let i = 0; i < MOST_DIALOGS; ++i) {
      const open = root.querySelector('dialog.message') ?? root.querySelector('dialog.form[open]');
      if (open === null) return;
      if (open.textContent.includes(REFUSAL)) this.told.add('a message');
      open.querySelector(open.matches('.form') ? '.close' : 'button').click();
      await wait();
    }
    this.faults.push(`${after}: a dialog stays`);
  }
  async settled(what, promise) {
    const coming = outcome(promise);
    await wait();
    await this.settle(what);
    const come = await coming;
    if (come === 'nothing') this.faults.push(`${what}: hangs`);
    if (come === FAILURE) this.told.add('the caller');
    return come;
  }

  async type(name, text) {
    const box = this.find(name);
    if (box === undefined || box.readOnly) return;
    box.focus();
    box.value = text;
    box.dispatchEvent(new InputEvent('input', { bubbles: true, composed: true }));
    await this.settled(name, this.editor.commitPending());
    box.dispatchEvent(new KeyboardEvent('keydown', { key: 'Escape', bubbles: true, composed: true }));
    await this.settle(name);
  }
  async click(name) {
    this.find(name)?.click();
    await wait();
    await this.settle(name);
  }
  async choose(name) {
    const list = this.find(name);
    if (list === undefined) return;
    list.focus();
    list.selectedIndex = list.selectedIndex === 0 ? 1 : 0;
    list.dispatchEvent(new Event('change', { bubbles: true, composed: true }));
    await this.settled(name, this.editor.commitPending());
  }

  async all() {
    for (const [name, text] of Object.entries(TYPED)) await this.type(name, text);
    for (const name of CHOSEN) await this.choose(name);
    for (const name of CLICKED) await this.click(name);
    this.find('cmdScenario')?.click();
    await wait();
    await this.fill();
    await this.settled('validation', this.editor.validation());
    await this.settled('validationToelichting', this.editor.validationToelichting());
  }
  async fill() {
    const box = this.find('txtBedrag(2)');
    if (box === undefined) return this.settle('cmdScenario');
    box.value = '33';
    box.dispatchEvent(new InputEvent('input', { bubbles: true, composed: true }));
    this.find('cmdOK').click();
    await wait();
    await this.settle('cmdOK');
  }
}

/** Walks with one member failing, from the binding on or after it; and once more with nothing that fails. */
window.walk = async (interface_, member, late) => {
  document.querySelector('vrije-kolom')?.remove();
  const editor = document.createElement('vrije-kolom');
  document.querySelector('main').append(editor);
  const { application, item, reports, trace, check, objects } = makeModel(member === 'Percentage' ? PERCENTAGES : {});
  Object.assign(editor, { hostFactories: { procedureTrace: () => trace, dossierControle: () => check }, beeindigenZichtbaar: true });
  const walk = new Walk(editor);
  let struck = 0;
  const mended = [];
  const breakMember = (object, name, strike) => {
    const own = Object.getOwnPropertyDescriptor(object, name);
    Object.defineProperty(object, name, { configurable: true, enumerable: true, get: strike, set: strike });
    mended.push(() => (own === undefined ? delete object[name] : Object.defineProperty(object, name, own)));
  };
  const fail = () => {
    throw Object.assign(new Error(REFUSAL), { number: 1234 });
  };
  const breakAll = () => {
    for (const object of objects[interface_])
      breakMember(object, member, () => {
        ++struck;
        fail();
      });
    if (OF_A_FAILURE.includes(member)) breakMember(item, 'Omschrijving', fail);
  };

  if (!late) breakAll();
  await walk.settled('setApplication', editor.setApplication(application, 0, 1));
  if (late) breakAll();
  await walk.all();

  for (const mend of mended) mend();
  await walk.settled('unbind', editor.unbind());
  if (reports.some(({ number }) => number === '1234')) walk.told.add('ReportError');
  const told = [...walk.told];
  const result = await walk.settled('setApplication anew', editor.setApplication(application, 0, 1));
  await walk.type('TxtBd', '42');
  return { struck, told, faults: walk.faults, result, amount: item.Bedrag.Bedrag, pending: editor.pending };
};
await ready;
window.isReady = true;
