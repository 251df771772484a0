// A box for text, amounts, numbers and days; that of a day with the browser's calendar.

import { writtenDay } from '../days.js';
import { dayIn, firstDay } from '../machine.js';
import { Format, Shows } from './contract.js';
import { copy, make, shown } from './making.js';
import { Node } from './node.js';

function makeBox(format) {
  const isNumber = [Format.amount, Format.number, Format.whole].includes(format);
  const className = (isNumber ? 'box number' : 'box') + (format === Format.date ? '' : ' control');
  const input = shown('input', className, 'box', { type: 'text', autocomplete: 'off' });
  input.spellcheck = format === Format.text;
  if (isNumber) input.inputMode = format === Format.whole ? 'numeric' : 'decimal';
  return input;
}

/** As wide as a character can be in the fonts there are, in ems: those that numbers and days are written in, and any. */
const WIDEST_DIGIT = 0.64;
const WIDEST = 1;
/** Of a box, what is no room for text. */
const EDGES = 0.8;
const CALENDAR = 1.3;

export class TextBox extends Node {
  #isCut = false;

  constructor(view, id, design) {
    const { format } = design;
    const date = format === Format.date;
    const input = copy(date ? {} : design, `box${format}`, () => makeBox(format));
    super(view, id, design, date ? make('span', 'control date') : input, { input });
    if (date) this.#addCalendar();
  }

  #addCalendar() {
    this.button = copy({}, 'calendar', () => {
      const button = shown('button', 'calendar', 'calendar', { type: 'button', tabIndex: -1 });
      button.ariaHidden = 'true';
      return button;
    });
    this.button.node = this;
    this.outer.append(this.input, this.button);
    this.speak();
  }
  speak() {
    if (this.button === undefined) return;
    this.button.title = this.view.language.of('CalendarKey');
    this.button.lang = this.view.language.tag;
  }

  openCalendar() {
    if (this.button === undefined || this.input.disabled || this.input.readOnly) return false;
    if (this.picker === undefined) this.#addPicker();
    this.picker.value = writtenDay(dayIn(this.view, this));
    try {
      this.picker.showPicker();
    } catch {
      // Without a press or a key of a person, and in a frame of another origin, there is none.
    }
    return true;
  }

  /** The browser's own calendar, which few open; what is picked there is typed over by the machine. */
  #addPicker() {
    this.picker = make('input', 'picker', { type: 'date', tabIndex: -1, ariaHidden: 'true', min: writtenDay(firstDay()) });
    this.picker.node = this;
    this.input.after(this.picker);
  }

  show(what, number, text) {
    if (what === Shows.value) this.#write(text);
    else if (what === Shows.selected) this.input.select();
    else if (what === Shows.locked) this.input.readOnly = number !== 0;
    else super.show(what, number, text);
  }
  #write(text) {
    this.input.value = text;
    this.fit(text);
  }
  putInPlace(was) {
    super.putInPlace(was);
    if (this.twips[2] !== was?.[2]) this.fit(this.input.value);
  }
  /**
   * A text that may be cut off shows that. No other is asked to: what shows it is laid out anew each time that it is gone
   * into and left, because what is worked in does not.
   */
  fit(text) {
    if (this.twips === undefined) return;
    const { format } = this.design;
    const room = this.twips[2] / this.em - EDGES - (format === Format.date ? CALENDAR : 0);
    const isCut = text.length * (format === Format.text ? WIDEST : WIDEST_DIGIT) > room;
    if (isCut === this.#isCut) return;
    this.#isCut = isCut;
    this.input.classList.toggle('cut', isCut);
  }
  enable(enabled) {
    super.enable(enabled);
    if (this.button !== undefined) this.button.disabled = !enabled;
  }
  get colored() {
    return this.input;
  }
}
