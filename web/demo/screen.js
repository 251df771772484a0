// The page of the demo: a loan, its columns, and the editor on the one that was chosen.

import { ready } from './package/src/index.js';

import { kopregel } from './kopregels.js';
import { Application, Dossier, VrijeKolomItem } from './model.js';
import { VOORBEELD } from './sample.js';
import { openStore, watched } from './store.js';

const element = (id) => document.getElementById(id);
const editor = document.querySelector('vrije-kolom');
const vandaag = () => new Date().toLocaleDateString('sv-SE');

let store;
let dossier;
let application;
/** Where the editor stands: the loan's number and the column's. */
let at = { lening: 0, id: 0 };

/** The lines that the host makes of its columns. */
function addLines(kolom) {
  for (const name of ['Kopregel', 'Weergave'])
    Object.defineProperty(kolom, name, { get: () => kopregel(kolom), enumerable: true, configurable: true });
}
const lening = (nummer = at.lening) => dossier.Lening(nummer);
const everyLoan = () => [dossier.HuidigeLening, ...dossier.Leningen];

function open(given) {
  const plain = new Dossier(given);
  dossier = watched(plain, save);
  for (const { kolommen } of [plain.HuidigeLening, ...plain.Leningen]) kolommen.forEach(addLines);
  application = new Application(dossier, given);
  application.gemeld = (trace) => complain(`${trace.ErrorDescription} (${trace.ErrorNumber}, ${trace.ObjectName})`);
}

let saving = null;
let again = false;
/** Writes the case; what changes meanwhile is written after it. */
function save() {
  if (saving !== null) return void (again = true);
  document.body.dataset.saving = '';
  saving = Promise.resolve().then(async () => {
    do {
      again = false;
      const { Leeftijd, MaatschappijType } = VOORBEELD;
      await store.write({ Leeftijd, MaatschappijType, ...JSON.parse(JSON.stringify(dossier)) });
    } while (again);
  }).then(
    () => (element('bewaard').textContent = `Bewaard om ${new Date().toLocaleTimeString('nl-NL')}`),
    (problem) => complain(`Niet bewaard: ${problem.message}`),
  ).finally(() => {
    saving = null;
    delete document.body.dataset.saving;
  });
}

function complain(text) {
  const line = document.createElement('li');
  line.textContent = text;
  element('fouten').append(line);
}

function showLoans() {
  element('lening').replaceChildren(...everyLoan().map((one, i) => new Option(one.Naam, String(i))));
  element('lening').value = String(at.lening);
}
function showColumns() {
  element('posten').replaceChildren(...lening().kolommen.map((kolom) => new Option(kopregel(kolom), String(kolom.Id))));
  element('posten').value = String(at.id);
  const none = lening().kolommen.length === 0;
  element('dupliceer').disabled = element('verwijder').disabled = none;
}

/** Goes to a column; false where the editor does not let go of the one it has. */
async function goTo(nummer, id) {
  if (editor.state === 'bound' && (await editor.validation())) {
    showLoans();
    showColumns();
    return false;
  }
  at = { lening: nummer, id };
  element('fouten').replaceChildren();
  showLoans();
  showColumns();
  if (id === 0) await editor.unbind();
  else await editor.setApplication(application, nummer, id);
  element('kop').textContent = id === 0 ? 'Deze lening heeft geen posten.' : kopregel(lening().VrijeKolom(id));
  return true;
}
const firstOf = (nummer) => lening(nummer).kolommen[0]?.Id ?? 0;
const freeId = () => Math.max(0, ...everyLoan().flatMap(({ kolommen }) => kolommen.map(({ Id }) => Id))) + 1;

async function add(fields) {
  const kolom = new VrijeKolomItem({ ...fields, Id: freeId() });
  addLines(kolom);
  lening().kolommen.push(kolom);
  if (await goTo(at.lening, kolom.Id)) editor.focus();
}

async function ask(text) {
  const box = element('vraag').content.firstElementChild.cloneNode(true);
  box.querySelector('p').textContent = text;
  document.body.append(box);
  box.showModal();
  await new Promise((closed) => box.addEventListener('close', closed));
  box.remove();
  return box.returnValue === 'ja';
}

const DEEDS = {
  nieuw: () => add({ CorrectieFiscaal: 3, DatumAanvang: vandaag() }),
  dupliceer: async () => {
    if (await editor.validation()) return;
    const { Voorstel, Kopregel, Weergave, ...fields } = JSON.parse(JSON.stringify(lening().VrijeKolom(at.id)));
    await add(fields);
  },
  verwijder: async () => {
    const kolom = lening().VrijeKolom(at.id);
    if (!(await ask(`"${kopregel(kolom)}" verwijderen?`))) return;
    await editor.unbind();
    const place = lening().kolommen.findIndex(({ Id }) => Id === at.id);
    lening().VerwijderVrijeKolom(place + 1);
    // To what stands in its place now, or to the last.
    const { kolommen } = lening();
    await goTo(at.lening, (kolommen[place] ?? kolommen.at(-1))?.Id ?? 0);
    element('posten').focus();
  },
  opnieuw: async () => {
    if (!(await ask('Het voorbeeld terugzetten? Wat u hebt ingevuld gaat weg.'))) return;
    await editor.unbind();
    open(VOORBEELD);
    save();
    await goTo(0, firstOf(0));
  },
};

editor.addEventListener('refreshtopdisplay', (event) => {
  element('kop').textContent = event.detail.text;
  showColumns();
});
element('posten').addEventListener('change', (event) => goTo(at.lening, Number(event.target.value)));
element('lening').addEventListener('change', (event) => goTo(Number(event.target.value), firstOf(Number(event.target.value))));
for (const [id, deed] of Object.entries(DEEDS)) element(id).addEventListener('click', deed);
element('posten').addEventListener('keydown', (event) => {
  const deed = { Insert: () => element('nieuw').click(), Delete: () => element('verwijder').click(), Enter: () => editor.focus() }[event.key];
  if (deed === undefined) return;
  event.preventDefault();
  deed();
});
// Letters that the editor does not have.
addEventListener('keydown', (event) => {
  if (event.defaultPrevented || document.querySelector('dialog[open]') !== null) return;
  const goal = event.altKey && !event.ctrlKey ? { k: 'lening', t: 'posten' }[event.key.toLowerCase()] : undefined;
  if (goal === undefined) return;
  event.preventDefault();
  element(goal).focus();
});
addEventListener('beforeunload', (event) => {
  if (saving !== null) event.preventDefault();
});

await ready;
store = await openStore();
open((await store.read()) ?? VOORBEELD);
element('client').textContent = dossier.Personen.map(({ Naam }) => Naam.filter((deel) => deel !== '').join(' ')).join(' en ');
await goTo(0, firstOf(0));
element('posten').focus();
document.body.dataset.ready = '';
