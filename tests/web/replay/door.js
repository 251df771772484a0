// The door of an element, in a machine that was linked with it: a person's acts by the name of a control, the state of
// every control, the machine's answers, and who is asked in a person's place.

import { HostError } from './src/errors.js';
import { enter, Job } from './src/jobs.js';
import { internals, runJob } from './src/machine.js';

const Setting = Object.freeze({ today: 0, title: 1, twipsPerPixelX: 2, twipsPerPixelY: 3, groupSeparator: 4 });
const Action = Object.freeze({ press: 0, select: 1, tick: 2, toggle: 3, choose: 4, enter: 5, close: 6 });
export const Kind = Object.freeze({ textBox: 2, listBox: 7 });
export const Outcome = Object.freeze({ done: 0, ignored: 1, refused: 2 });
const FAILED = 3;
const REACHABLE = 256;
/** A number and a text. */
const ANSWER = 16;

/** Days since 30 December 1899 of "2031-04-01". */
export const daysOf = (date) => (date ? Date.parse(date) / 86400000 + 25569 : 0);

const doors = new Map();
/** What the machine calls: Module.door. */
const calls = {
  message: (page, title, text, style) => doors.get(page).hooks.message(title, text, style),
  pending: (page) => doors.get(page).hooks.pending(),
  focus: (page, name) => doors.get(page).hooks.focus(name),
  form: (page, color, years) => doors.get(page).hooks.form(color, years),
  closed: (page) => doors.get(page).hooks.closed(),
};

export class Door {
  #view;

  /** `hooks`: message(title, text, style), pending(), focus(name), form(color, years), closed(). */
  constructor(element, hooks) {
    this.#view = element._view;
    this.hooks = hooks;
    internals().machine.door = calls;
    doors.set(this.#page, this);
    enter(() => this.#machine._brivane_door_open(this.#page));
  }

  get #page() {
    return this.#view.number;
  }
  get #machine() {
    return internals().machine;
  }
  get #memory() {
    return internals().memory;
  }

  /** Makes the control behind the element, as its first use would. */
  make() {
    const job = runJob(this.#view, Job.make);
    if (job.error) throw job.error;
    this.#machine._brivane_door_listen(this.#page);
  }

  set(setting, value) {
    const number = setting === 'today' ? daysOf(value) : typeof value === 'number' ? value : 0;
    this.#memory.lend(typeof value === 'string' ? value : '', (text) =>
      this.#machine._brivane_door_set(this.#page, Setting[setting], number, text));
  }

  /** Nothing where there is no such control. */
  find(form, name, index = -1) {
    const found = this.#memory.lend(name, (lent) => this.#machine._brivane_door_find(this.#page, form ? 1 : 0, lent, index));
    return found < 0 ? null : { kind: found % REACHABLE, reachable: found >= REACHABLE };
  }

  perform(form, name, index, action, value) {
    const [type, number, text] =
      value === undefined || value === null ? [0, 0, '']
      : typeof value === 'string' ? [1, 0, value]
      : typeof value === 'number' ? [2, value, '']
      : [3, daysOf(value.date), ''];
    return this.#answer((place) => this.#memory.lend(name, (lentName) => this.#memory.lend(text, (lentText) =>
      this.#machine._brivane_door_perform(this.#page, form ? 1 : 0, lentName, index ?? -1, Action[action], type, number, lentText, place))));
  }

  size(name, width, height) {
    this.#answer((place) => this.#memory.lend(name, (lent) =>
      this.#machine._brivane_door_size(this.#page, lent, width, height, place)));
  }

  /** The form by itself, on an amount object of the host. */
  scenario(amount, { SoortScenario, AantalJaar, Labeltype, Anv_Leeftijd, LooptijdExtra, In_RenteKorting, Bd_MaxOpname, DisableJaar }) {
    const kept = this.#view.objects.keep(amount);
    this.#answer((place) => this.#memory.lend(DisableJaar.join(' '), (lent) =>
      this.#machine._brivane_door_scenario(this.#page, kept, SoortScenario, AantalJaar, Labeltype, Anv_Leeftijd,
        LooptijdExtra ? 1 : 0, In_RenteKorting ? 1 : 0, Bd_MaxOpname, lent, place)));
  }

  /** Every control by name, in the order of creation. */
  state(form) {
    return JSON.parse(this.#memory.take(this.#machine._brivane_door_state(this.#page, form ? 1 : 0)));
  }
  get flags() {
    const flags = this.#machine._brivane_door_flags(this.#page);
    return { Filling: (flags & 1) !== 0, Gewijzigd: (flags & 2) !== 0, closed: (flags & 4) !== 0 };
  }
  /** The object of the host that the editor is bound to, or the open form works on. */
  record(form) {
    return this.#view.objects.value(this.#machine._brivane_door_record(this.#page, form ? 1 : 0)) ?? null;
  }

  #answer(ask) {
    const memory = this.#memory;
    return memory.room(ANSWER, (place) => {
      let outcome;
      // At first hand it is a turn of the page's; from inside a hook the machine is at work already.
      const call = () => (outcome = ask(place));
      if (internals().isAtWork()) call();
      else enter(call);
      if (outcome !== FAILED) return outcome;
      throw new HostError(memory.number(place), memory.take(memory.whole(place + 8)));
    });
  }
}
