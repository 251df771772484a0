// Plays a replay document on an element, through its public interface, with a host in JavaScript. The transcript is that of
// the replay tool, line by line.

import { HostError } from './src/errors.js';
import { Door, Kind, Outcome } from './door.js';
import { Host, MISSING, writeAmount, writeColumn } from './host.js';

const LOG = ['trace', 'writes', 'calls', 'events', 'messages', 'results'];
const QUESTION = 36;
const ANSWERS = { OK: 1, Ja: 6, Nee: 7 };
const SEPARATORS = { nl_NL: '.', en_US: ',' };
const SCENARIO = { AantalJaar: 1, Labeltype: 0, Anv_Leeftijd: 0, LooptijdExtra: false, In_RenteKorting: false, Bd_MaxOpname: 0,
  SoortScenario: 0, DisableJaar: [] };

/** Plain digits where people read them, and beyond that what is shorter. */
function writeNumber(value) {
  if (Object.is(value, -0)) return '-0.0';
  const size = Math.abs(value);
  if (!Number.isFinite(value) || size === 0 || (size >= 1e-6 && size < 2 ** 53)) return JSON.stringify(value);
  const short = value.toExponential().replace(/e([+-])(\d)$/, 'e$10$2');
  const digits = size < 1 ? '' : BigInt(value).toString();
  return digits !== '' && digits.length <= short.length ? digits : short;
}

/** JSON with a blank behind each comma and colon, and numbers as the replay tool writes them. */
function write(value) {
  if (Array.isArray(value)) return `[${value.map(write).join(', ')}]`;
  if (value !== null && typeof value === 'object')
    return `{${Object.entries(value).filter(([, member]) => member !== undefined).map(([key, member]) => `${JSON.stringify(key)}: ${write(member)}`).join(', ')}}`;
  return typeof value === 'number' ? writeNumber(value) : JSON.stringify(value);
}

const elementName = ({ control, index }) => (index === undefined ? control : `${control}(${index})`);

export class Session {
  #document;
  #element;
  #lines = [];
  #wanted;
  #running = [];
  #host;
  #door;

  /** `element` is a new `<vrije-kolom>` in a page whose machine has the door. */
  constructor(document, element) {
    this.#document = document;
    this.#element = element;
    this.#wanted = new Set(document.log ?? LOG);
    this.#host = new Host(document.dossier, document.faults ?? [], {
      get: (member, value, index) => this.#tell('reads', { get: member, value, index }),
      set: (member, value, index) => this.#tell('writes', { set: member, value, index }),
      call: (member, args) => this.#tell('calls', { call: member, args }),
      trace: (line) => this.#tell('trace', line),
      report: (record) => this.#tell('messages', { report: { ...record } }),
    });
  }

  /** The door of the element, once the session runs. */
  get door() {
    return this.#door;
  }

  async run() {
    const { today, title = 'Dossier', locale = 'nl_NL', screen = {}, steps } = this.#document;
    const element = this.#element;
    element.hostFactories = this.#host.factories;
    for (const name of ['refreshtopdisplay', 'heightchanged', 'changed'])
      element.addEventListener(name, (event) => this.#hear(event));
    this.#door = new Door(element, {
      message: (boxTitle, text, style) => this.#message(boxTitle, text, style),
      pending: () => this.#pending(),
      focus: (name) => this.#tell('events', { focus: name }),
      form: (color, years) => this.#form(color, years),
      closed: () => this.#tell('events', { closed: 'frmScenario' }),
    });
    if (today !== undefined) this.#door.set('today', today);
    this.#door.set('title', title);
    this.#door.set('groupSeparator', SEPARATORS[locale] ?? '.');
    for (const [setting, value] of Object.entries(screen)) this.#door.set(setting[0].toLowerCase() + setting.slice(1), value);
    try {
      this.#door.make();
    } catch (failure) {
      this.#fail(failure);
      return this.#lines;
    }
    for (const [i, step] of steps.entries()) await this.#step(step, String(i + 1));
    return this.#lines;
  }

  #tell(log, line) {
    if (this.#wanted.has(log)) this.#lines.push(write(line));
  }
  #fail(failure) {
    this.#tell('results', { failed: { number: failure.number, description: failure.message } });
  }

  #hear(event) {
    if (event.type === 'refreshtopdisplay') this.#tell('events', { event: 'RefreshTopDisplay', text: event.detail.text });
    else this.#tell('events', { event: event.type === 'heightchanged' ? 'HeightChanged' : 'Toelichting.Changed' });
  }

  #message(title, text, style) {
    const question = style === QUESTION;
    let answer = question ? 'Nee' : 'OK';
    const running = this.#running.at(-1);
    const given = running?.step.answers?.[running.answers];
    if (given !== undefined) {
      ++running.answers;
      if (question === (given !== 'OK')) answer = given;
    }
    this.#tell('messages', { message: { title, text, style }, answer });
    return ANSWERS[answer];
  }

  #pending() {
    this.#tell('events', { pending: true });
    if (this.#running.length > 0) this.#runPending(this.#running.at(-1));
  }

  #runPending(running) {
    const steps = running.step.pending ?? [];
    while (running.pending < steps.length) {
      if (running.form && this.#door.flags.closed) return;
      const step = steps[running.pending++];
      this.#inner(step, `${running.number}.${running.pending}`, running.form);
    }
  }

  #form(color, years) {
    this.#tell('events', { opened: 'frmScenario', BackColor: color, AantalJaar: years });
    const opener = this.#running.at(-1);
    for (const [i, step] of (opener.step.modal ?? []).entries()) {
      if (this.#door.flags.closed) return;
      this.#inner(step, `${opener.number}.${i + 1}`, true);
    }
  }

  #begin(step, number, form) {
    const running = { step, number, form, answers: 0, pending: 0 };
    this.#running.push(running);
    this.#lines.push(write({ step: number.includes('.') ? number : Number(number), do: step.do }));
    return running;
  }
  #end(running) {
    this.#runPending(running);
    this.#running.pop();
  }

  /** A step of the host's, which may have to wait for the element. */
  async #step(step, number) {
    const running = this.#begin(step, number, false);
    try {
      if (!(await this.#doHost(step))) this.#do(running);
    } catch (failure) {
      this.#fail(failure);
    }
    this.#end(running);
  }

  /** A step inside another one, done at once. */
  #inner(step, number, form) {
    const running = this.#begin(step, number, form);
    try {
      this.#do(running);
    } catch (failure) {
      this.#fail(failure);
    }
    this.#end(running);
  }

  /** The steps of the public interface; false for the others. */
  async #doHost(step) {
    const element = this.#element;
    const { ControleNr = 0, Cancel = false } = step;
    switch (step.do) {
      case 'SetApplication': await element.setApplication(this.#host.application, step.Len_Id ?? 0, step.Vrij_Id ?? 1); return true;
      case 'Validation': this.#result(step, await element.validation(ControleNr, Cancel)); return true;
      case 'Toelichting.Validation': this.#result(step, await element.validationToelichting(ControleNr, Cancel)); return true;
      case 'BackColor': element.backColor = step.value; return true;
      case 'BeeindigenZichtbaar': element.beeindigenZichtbaar = step.value; return true;
      default: return false;
    }
  }

  #result(step, cancel) {
    this.#tell('results', { result: step.do, Cancel: cancel });
  }

  #do({ step, form }) {
    switch (step.do) {
      case 'resize': return void this.#door.size(step.control ?? '', step.width, step.height);
      case 'frmScenario': return this.#scenario(step);
      case 'close': return void this.#door.perform(true, '', -1, 'close');
      case 'dump': return this.#dump(form);
      default: return this.#act(step, form);
    }
  }

  #act(step, form) {
    // The index of a list's step is its entry.
    const isChoice = step.do === 'select';
    const index = isChoice ? -1 : step.index;
    const control = this.#door.find(form, step.control, index);
    const outcome = control.reachable ? this.#door.perform(form, step.control, index, ...this.#action(step, form)) : Outcome.ignored;
    if (outcome === Outcome.ignored) this.#tell('results', { ignored: isChoice ? step.control : elementName(step) });
    else if (control.kind === Kind.textBox) this.#result(step, outcome === Outcome.refused);
  }

  #action(step, form) {
    switch (step.do) {
      case 'click': return step.index === undefined ? ['press'] : ['select'];
      case 'check': return ['tick', step.value];
      case 'toggle': return ['toggle', step.value];
      case 'select': return ['choose', step.index ?? this.#door.state(form)[step.control].entries.indexOf(step.entry)];
      default: return ['enter', typeof step.value === 'object' ? { date: step.value.date === 0 ? null : step.value.date } : step.value];
    }
  }

  #scenario(step) {
    const column = this.#host.column(step.Len_Id ?? 0, step.Vrij_Id ?? 1);
    if (column === null) throw new HostError(MISSING, 'Object missing');
    this.#door.scenario(this.#host.amountOf(column), { ...SCENARIO, ...step });
  }

  #dump(form) {
    const controls = this.#door.state(form);
    for (const control of Object.values(controls)) for (const own of ['kind', 'locked', 'widths']) delete control[own];
    const record = this.#host.inner(this.#door.record(form));
    const dump = { controls, record: record === null ? null : form ? writeAmount(record) : writeColumn(this.#host, record) };
    const { Filling, Gewijzigd } = this.#door.flags;
    if (!form) Object.assign(dump, { Filling, Gewijzigd });
    this.#lines.push(write({ dump }));
  }
}
