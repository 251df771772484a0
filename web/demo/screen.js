// The page of the demo: a loan, its columns, and the editor on the one that was chosen.

import { ready } from './package/src/index.js';

import { ask } from './ask.js';
import { addColumn, fieldsOf, openCase, recordOf } from './case.js';
import { Keeper } from './keeper.js';
import { kopregel } from './kopregels.js';
import { guardLeaving } from './leaving.js';
import { Notes } from './notes.js';
import { VOORBEELD } from './sample.js';
import { noStore, openStore, Overtaken } from './store.js';

const element = (id) => document.getElementById(id);
const editor = document.querySelector('vrije-kolom');
const vandaag = () => new Date().toLocaleDateString('sv-SE');

let application;
/** Where the editor stands: the loan's number and the column's. */
let at = { lening: 0, id: 0 };

const dossier = () => application.Dossier;
const lening = (nummer = at.lening) => dossier().Lening(nummer);
const firstOf = (nummer) => lening(nummer).kolommen[0]?.Id ?? 0;

function open(record) {
  application = openCase(record, {
    changed: () => keeper.save(),
    failed: (trace) => complain(`${trace.ErrorDescription} (${trace.ErrorNumber}, ${trace.ObjectName})`),
  });
}

/** Says whether what was filled in is kept; that it is not stays said until it is. */
function tell(problem) {
  element('bewaard').textContent = problem?.message ?? `Bewaard om ${new Date().toLocaleTimeString('nl-NL')}`;
  element('bewaard').classList.toggle('niet', problem !== null);
}

function complain(text) {
  const line = document.createElement('li');
  line.textContent = text;
  element('fouten').append(line);
}

function showLoans() {
  element('lening').replaceChildren(...dossier().AlleLeningen().map((one, i) => new Option(one.Naam, String(i))));
  element('lening').value = String(at.lening);
}
function showColumns() {
  element('posten').replaceChildren(...lening().kolommen.map((kolom) => new Option(kopregel(kolom), String(kolom.Id))));
  element('posten').value = String(at.id);
  const none = lening().kolommen.length === 0;
  element('dupliceer').disabled = element('verwijder').disabled = none;
}

/** Whether the editor does not let go of the column that it has. */
async function stays() {
  element('fouten').replaceChildren();
  return editor.state === 'bound' && editor.validation();
}

async function show(nummer, id) {
  const result = id === 0 ? await editor.unbind() : await editor.setApplication(application, nummer, id);
  if (result !== 'refused') at = { lening: nummer, id };
  showLoans();
  showColumns();
  const kolom = lening().VrijeKolom(at.id);
  element('kop').textContent = kolom === null ? 'Deze lening heeft geen posten.' : kopregel(kolom);
}

/** Goes to a column, where the editor lets go of the one that it has. */
async function goTo(nummer, id) {
  if (!(await stays())) return show(nummer, id);
  showLoans();
  showColumns();
}

async function add(fields) {
  await show(at.lening, addColumn(dossier(), lening(), fields));
  editor.focus();
}

const DEEDS = {
  nieuw: async () => {
    if (!(await stays())) await add({ CorrectieFiscaal: 3, DatumAanvang: vandaag() });
  },
  dupliceer: async () => {
    if (!(await stays())) await add(fieldsOf(lening().VrijeKolom(at.id)));
  },
  verwijder: async () => {
    if (!(await ask(`"${kopregel(lening().VrijeKolom(at.id))}" verwijderen?`))) return;
    await editor.unbind();
    const place = lening().kolommen.findIndex(({ Id }) => Id === at.id);
    dossier().Verwijder(at.lening, at.id);
    // To what stands in its place now, or to the last.
    const { kolommen } = lening();
    await show(at.lening, (kolommen[place] ?? kolommen.at(-1))?.Id ?? 0);
    element('posten').focus();
  },
  opnieuw: async () => {
    if (!(await ask('Het voorbeeld terugzetten? Wat u hebt ingevuld gaat weg.'))) return;
    await editor.unbind();
    open(VOORBEELD);
    keeper.save();
    await show(0, firstOf(0));
  },
};

/** What is not kept of this page cannot be kept any more; it can be looked at before the page begins anew. */
async function overtaken() {
  if (document.querySelector('.vraag') !== null) return;
  keeper.isOvertaken = true;
  notes.dropMine();
  tell(new Overtaken());
  const isSeen = await ask(
    'Dit dossier is in een ander tabblad gewijzigd. Wat u hier sindsdien hebt ingevuld is niet bewaard. ' +
      'Na opnieuw laden ziet u het dossier zoals het nu is, en werkt u daarin verder.',
    'Opnieuw laden', 'Eerst bekijken');
  if (isSeen) beginAnew();
}

/** Shows what another page has written, unless that would lose what is under way here. */
async function follow() {
  // What is being written finds out by itself.
  if (!keeper.isDone) return;
  const kept = await store.read().catch(() => undefined);
  if (keeper.knows(kept)) return;
  const isIdle = keeper.isDone && editor.pending === false && document.querySelector('.vraag') === null;
  if (!isIdle) return overtaken();
  keeper.begin(kept);
  open(kept);
  const { lening: nummer, id } = at;
  await show(nummer, lening(nummer).VrijeKolom(id) === null ? firstOf(nummer) : id);
}

/** Begins with the case as it was kept, and with what a page left that was closed before that was kept, where it fits. */
async function begin() {
  const kept = await store.read();
  keeper.begin(kept);
  open(kept ?? VOORBEELD);
  const note = await notes.fitting(kept);
  if (note !== undefined) await restore(note);
}

/** The case is as a page left it. */
async function restore(note) {
  const { version } = keeper;
  open(note.record);
  await keeper.save();
  if (keeper.version !== version) notes.drop(note);
}

/** What a page left that the case has gone on without is put back where the adviser wants it so. */
async function offerLeft() {
  for (const note of await notes.left(await store.read())) {
    const day = new Date(note.time);
    const isWanted = await ask(
      `Op ${day.toLocaleDateString('nl-NL')} om ${day.toLocaleTimeString('nl-NL')} sloot u dit dossier voordat alles bewaard ` +
        `was.${note.column === '' ? '' : ` U werkte toen aan "${note.column}".`} Sindsdien is het dossier in een ander tabblad gewijzigd. Wilt u het zoals u ` +
        'het toen had? Wat u niet kiest gaat weg.',
      'Zoals ik het had', 'Zoals het nu is');
    if (!isWanted) {
      notes.drop(note);
      continue;
    }
    await editor.unbind();
    await Promise.all([restore(note), show(0, firstOf(0))]);
  }
}

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

await ready;
const store = await openStore().catch(noStore);
const keeper = new Keeper(store, () => recordOf(application), {
  begun: () => (document.body.dataset.saving = ''),
  ended: (problem) => {
    delete document.body.dataset.saving;
    if (problem === null) notes.dropMine();
    if (problem instanceof Overtaken) overtaken();
    else tell(problem);
  },
});
// A browser that keeps nothing, as the page says there, keeps no note.
const notes = new Notes(() => (store.problem ? null : localStorage));
const beginAnew = guardLeaving(editor, keeper, () => {
  const kolom = lening().VrijeKolom(at.id);
  notes.leave({ record: recordOf(application), version: keeper.version, column: kolom === null ? '' : kopregel(kolom) });
});
// One page after another, so that one alone takes up what was left.
await navigator.locks.request('vrije-kolommen', begin);
store.listen(follow);
if (store.problem) tell(store.problem);
element('client').textContent = dossier().Personen.map(({ Naam }) => Naam.filter((deel) => deel !== '').join(' ')).join(' en ');
await show(0, firstOf(0));
element('posten').focus();
document.body.dataset.ready = '';
await offerLeft();
