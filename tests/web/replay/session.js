// Plays a document of the replay tool against an element of the page: the host is a script, what the host does goes through
// the element's members, and what a person does through the door. Gives the lines that the tool prints.

import { Application, BedragObject, Dossier, KOLOM } from '/demo/model.js';
import { enter, Job } from '/door/src/jobs.js';
import { Memory } from '/door/src/memory.js';
import { tried } from '/door/machine/machine.js';
import { HostError, ready } from '/door/src/index.js';

import { Recording } from './recording.js';

await ready;
const machine = tried.machine;
const memory = new Memory(machine);

const LOGS = ['trace', 'writes', 'calls', 'events', 'messages', 'results'];
const PERSONEN = [{ Naam: ['J.', 'van', 'Dam'], Geboortedatum: '1975-12-31' }, { Naam: ['A.', 'de', 'Wit'], Geboortedatum: '1978-02-03' }];
const Kind = { textBox: 2, option: 5, list: 7 };
const Action = { press: 0, select: 1, tick: 2, toggle: 3, choose: 4, enter: 5, close: 6 };
const Outcome = { ignored: 1, refused: 2, failed: 3 };
const Typed = { nothing: 0, text: 1, number: 2, date: 3 };
const QUESTION = 36;
const ANSWERS = { OK: 1, Ja: 6, Nee: 7 };

/** A document or a step that asks for what is not there. */
class BadInput extends Error {}

const dayNumber = (text) => Date.parse(`${text}T00:00:00Z`) / 86400000 + 25569;
const dates = (record) => Object.fromEntries(Object.entries(record).map(([name, value]) =>
  [name, value === 0 && KOLOM[name] === null ? null : value]));
const elementName = (name, index) => (index === undefined ? name : `${name}(${index})`);

function groupSeparator(locale) {
  const known = { nl: '.', en: ',' }[locale.slice(0, 2)];
  if (known !== undefined) return known;
  throw new BadInput(`a locale that this player does not know: ${locale}`);
}

function hostOf({ dossier: given }) {
  const columns = ({ VrijeKolommen = [] } = {}) => ({ VrijeKolommen: VrijeKolommen.map(dates) });
  const dossier = new Dossier({
    Personen: given.personen.map((persoon, i) => ({ Naam: persoon.naam ?? PERSONEN[i].Naam,
      Geboortedatum: persoon.Geboortedatum === 0 ? null : (persoon.Geboortedatum ?? PERSONEN[i].Geboortedatum) })),
    HuidigeLening: columns(given.HuidigeLening),
    Leningen: (given.Leningen ?? [{}]).map(columns),
  });
  return new Application(dossier, { Leeftijd: given.Uitgangspunten?.Leeftijd ?? 67,
    MaatschappijType: given.MaatschappijType ?? [['AB', 'Alfa Bank'], ['ZZ', 'Anders']] });
}

const dumpAmount = ({ Naam, Invoersoort, Bedrag, Perioden }) => ({ Naam, Invoersoort, Bedrag, Perioden });
function dumpRecord(record) {
  if (record === null) return null;
  if (record instanceof BedragObject) return dumpAmount(record);
  const fields = Object.keys(KOLOM).map((name) => [name, KOLOM[name] === null ? record[name] || 0 : record[name]]);
  return { ...Object.fromEntries(fields), Bedrag: dumpAmount(record.Bedrag) };
}

/** Calls the machine with texts that are lent to it. */
function call(name, ...given) {
  const lent = [];
  const ready = given.map((value) => {
    if (typeof value !== 'string') return value;
    lent.push(memory.give(value));
    return lent.at(-1);
  });
  try {
    return machine[`_brivane_door_${name}`](...ready);
  } finally {
    for (const place of lent) machine._free(place);
  }
}

/** The same for what may fail. */
function trying(name, ...given) {
  return memory.room(16, (place) => {
    const answer = call(name, ...given, place);
    if (answer === Outcome.failed) throw new HostError(memory.number(place), memory.take(memory.whole(place + 8)));
    return answer;
  });
}

class Session {
  lines = [];
  #running = [];
  #problem = null;
  #muted = false;

  constructor(document_) {
    this.document = document_;
    this.wanted = new Set(document_.log ?? LOGS);
    this.recording = new Recording((log, line) => this.#print(log, line), document_.faults ?? []);
    this.inner = hostOf(document_);
    this.application = this.recording.application(this.inner);
  }

  async run() {
    const element = (this.element = document.createElement('vrije-kolom'));
    element.hostFactories = this.recording.factories();
    this.#listen();
    document.body.append(element);
    const page = (this.page = tried.last);
    this.#equip(page);
    try {
      await element._job(Job.make);
      call('listen', page);
      await this.#steps();
    } catch (failure) {
      if (!(failure instanceof HostError)) throw failure;
      this.#failed(failure);
    } finally {
      tried.door = {};
      element.remove();
      await null;
    }
  }

  #equip(page) {
    const { today, title = 'Dossier', locale = 'nl_NL', screen = {} } = this.document;
    tried.door = {
      message: (of, heading, text, style) => this.#message(heading, text, style),
      pending: () => this.#pending(),
      focus: (of, focus) => this.#print('events', { focus }),
      form: (of, color, years) => this.#shown(color, years),
      closed: () => this.#print('events', { closed: 'frmScenario' }),
    };
    call('open', page);
    if (today !== undefined) call('set', page, 0, dayNumber(today), '');
    call('set', page, 1, 0, title);
    call('set', page, 2, screen.TwipsPerPixelX ?? 15, '');
    call('set', page, 3, screen.TwipsPerPixelY ?? 15, '');
    call('set', page, 4, 0, groupSeparator(locale));
  }

  #listen() {
    const on = (name, line) => this.element.addEventListener(name, (event) => this.#print('events', line(event)));
    on('refreshtopdisplay', (event) => ({ event: 'RefreshTopDisplay', text: event.detail.text }));
    on('heightchanged', () => ({ event: 'HeightChanged' }));
    on('changed', () => ({ event: 'Toelichting.Changed' }));
  }

  async #steps() {
    for (const [i, step] of this.document.steps.entries()) {
      const running = { step, number: i + 1, form: 0, answers: 0, pending: 0 };
      this.#running.push(running);
      try {
        this.#begin(running);
        try {
          await this.#doOutside(running);
        } catch (failure) {
          if (!(failure instanceof HostError)) throw failure;
          this.#failed(failure);
        }
        this.#runPending(running);
      } finally {
        this.#running.pop();
      }
      if (this.#problem !== null) throw this.#problem;
    }
  }

  #print(log, line) {
    if (this.#muted || (log !== null && !this.wanted.has(log))) return;
    this.lines.push(JSON.stringify(line));
  }
  #failed({ number, message }) {
    this.#print('results', { failed: { number, description: message } });
  }

  /** What a host does comes back later, what a person does at once. */
  async #doOutside(running) {
    const { step } = running;
    const element = this.element;
    const result = (Cancel) => this.#print('results', { result: step.do, Cancel });
    switch (step.do) {
      case 'SetApplication': return element.setApplication(this.application, step.Len_Id, step.Vrij_Id);
      case 'Validation': return result(await element.validation(step.ControleNr ?? 0, step.Cancel ?? false));
      case 'Toelichting.Validation': return result(await element.validationToelichting(step.ControleNr ?? 0, step.Cancel ?? false));
      case 'BackColor': return element._job(Job.backColor, { number: step.value });
      case 'BeeindigenZichtbaar': return element._job(Job.beeindigenZichtbaar, { number: step.value ? 1 : 0 });
      default: return this.#do(running);
    }
  }

  #runStep(step, number, form) {
    const running = { step, number, form, answers: 0, pending: 0 };
    this.#running.push(running);
    try {
      this.#begin(running);
      try {
        this.#do(running);
      } catch (failure) {
        if (!(failure instanceof HostError)) throw failure;
        this.#failed(failure);
      }
      this.#runPending(running);
    } finally {
      this.#running.pop();
    }
  }

  #begin(running) {
    const { step, number, form } = running;
    if (step.control !== undefined && step.do !== 'resize') {
      const { reachable } = this.#find(running);
      if (reachable) this.#action(running);
    }
    void form;
    this.#print(null, { step: number, do: step.do });
  }

  #isClosed() {
    return (call('flags', this.page) & 4) !== 0;
  }

  #runPending(running) {
    const steps = running.step.pending ?? [];
    while (running.pending < steps.length) {
      if (this.#problem !== null || (running.form && this.#isClosed())) return;
      const step = steps[running.pending++];
      this.#guarded(() => this.#runStep(step, `${running.number}.${running.pending}`, running.form));
    }
  }
  #guarded(work) {
    try {
      work();
    } catch (problem) {
      if (!(problem instanceof BadInput)) throw problem;
      this.#problem = problem;
      this.#muted = true;
    }
  }

  #pending() {
    this.#print('events', { pending: true });
    if (this.#running.length > 0) this.#runPending(this.#running.at(-1));
  }

  #shown(BackColor, AantalJaar) {
    this.#print('events', { opened: 'frmScenario', BackColor, AantalJaar });
    const opener = this.#running.at(-1);
    const steps = opener.step.modal ?? [];
    for (let i = 0; i < steps.length && !this.#isClosed() && this.#problem === null; ++i)
      this.#guarded(() => this.#runStep(steps[i], `${opener.number}.${i + 1}`, 1));
  }

  #message(title, text, style) {
    const question = style === QUESTION;
    let answer = question ? 'Nee' : 'OK';
    const running = this.#running.at(-1);
    const answers = running?.step.answers ?? [];
    if (running !== undefined && running.answers < answers.length) {
      const given = answers[running.answers++];
      if (question === (given !== 'OK')) answer = given;
    }
    this.#print('messages', { message: { title, text, style }, answer });
    return ANSWERS[answer];
  }

  #find({ step, form }) {
    // The index of a list is that of an entry.
    const index = step.do === 'select' ? undefined : step.index;
    const found = call('find', this.page, form, step.control, index ?? -1);
    if (found < 0) throw new BadInput(`the form has no "${elementName(step.control, index)}"`);
    return { kind: found & 255, reachable: (found & 256) !== 0, index };
  }

  #state(form) {
    return JSON.parse(memory.take(call('state', this.page, form)));
  }

  /** [action, type, number, text] as the door takes them. */
  #action({ step, form }) {
    const { value } = step;
    switch (step.do) {
      case 'click': return [Action.press, 0, 0, ''];
      case 'check': return [Action.tick, 0, value, ''];
      case 'toggle': return [Action.toggle, 0, value, ''];
      case 'select': {
        const { entries } = this.#state(form)[step.control];
        const index = step.index ?? entries.indexOf(step.entry);
        if (index < 0 || index >= entries.length) throw new BadInput(`"${step.control}" has no such entry now`);
        return [Action.choose, 0, index, ''];
      }
      default: return [Action.enter, ...this.#typed(value)];
    }
  }
  #typed(value) {
    if (typeof value === 'string') return [Typed.text, 0, value];
    if (typeof value === 'number') return [Typed.number, value, ''];
    return value.date === 0 ? [Typed.date, 0, ''] : [Typed.date, dayNumber(value.date), ''];
  }

  #do(running) {
    const { step, form } = running;
    if (step.do === 'close') return void trying('perform', this.page, form, '', -1, Action.close, 0, 0, '');
    if (step.do === 'dump') return this.#dump(form);
    if (step.do === 'resize') return void this.#enter(() => trying('size', this.page, step.control ?? '', step.width, step.height));
    if (step.do === 'frmScenario') return this.#scenario(step);
    const { kind, reachable, index } = this.#find(running);
    let outcome = Outcome.ignored;
    if (reachable) {
      const [action, ...value] = this.#action(running);
      const meant = action === Action.press && kind === Kind.option ? Action.select : action;
      outcome = this.#enter(() => trying('perform', this.page, form, step.control, index ?? -1, meant, ...value));
    }
    if (outcome === Outcome.ignored) this.#print('results', { ignored: elementName(step.control, index) });
    else if (kind === Kind.textBox) this.#print('results', { result: step.do, Cancel: outcome === Outcome.refused });
  }

  /** With the machine at work, as it is when a person acts; inside another act it is so already. */
  #enter(work) {
    if (this.#running.length > 1) return work();
    let answer;
    let failure = null;
    enter(() => {
      try {
        answer = work();
      } catch (thrown) {
        failure = thrown;
      }
    });
    if (failure !== null) throw failure;
    return answer;
  }

  #scenario(step) {
    const kolom = (step.Len_Id === 0 ? this.inner.Dossier.HuidigeLening : this.inner.Dossier.Lening(step.Len_Id))
      ?.VrijeKolom(step.Vrij_Id);
    if (!kolom) throw new HostError(91, 'Object missing');
    const amount = this.#objects().keep(this.recording.amount(kolom.Bedrag));
    this.#enter(() => trying('scenario', this.page, amount, step.SoortScenario ?? 0, step.AantalJaar, step.Labeltype ?? 0,
      step.Anv_Leeftijd ?? 0, step.LooptijdExtra ? 1 : 0, step.In_RenteKorting ? 1 : 0, step.Bd_MaxOpname ?? 0,
      (step.DisableJaar ?? []).join(' ')));
  }

  #objects() {
    return this.element.shadowRoot.querySelector('input').node.view.objects;
  }

  #dump(form) {
    const controls = this.#state(form);
    for (const control of Object.values(controls)) {
      delete control.kind;
      delete control.locked;
      delete control.widths;
    }
    const record = dumpRecord(this.recording.inner(this.#objects().value(call('record', this.page, form))));
    const flags = call('flags', this.page);
    const dump = form ? { controls, record } : { controls, record, Filling: (flags & 1) !== 0, Gewijzigd: (flags & 2) !== 0 };
    this.#print(null, { dump });
  }
}

/** The lines of a session, and what it was stopped by, if it was. */
export async function play(document_) {
  const session = new Session(document_);
  let refusal = '';
  try {
    await session.run();
  } catch (problem) {
    if (!(problem instanceof BadInput)) throw problem;
    refusal = problem.message;
  }
  return { lines: session.lines, refusal };
}
