// What shows a control: one class for each kind. `outer` stands where the control stands, `input` is what takes the focus,
// and `area` is where others stand in it.

import { colorsOf } from './colors.js';
import { TWIPS_AN_EM } from './style.js';

/** As in Control.h. */
const Kind = Object.freeze({
  frame: 0, label: 1, textBox: 2, jaNee: 3, hint: 4, option: 5, checkBox: 6, list: 7, button: 8, listView: 9, surface: 10,
  form: 100,
});
/** As in Design.h. */
const Format = Object.freeze({ text: 1, amount: 2, number: 3, whole: 4, date: 5 });
/** As in Peer.h and Page.h. */
export const Shows = Object.freeze({
  value: 0, enabled: 1, visible: 2, caption: 3, fontSize: 5, backColor: 6, locked: 7, entries: 8, entryAdded: 9,
  listIndex: 10, columns: 11, rows: 12, selection: 13, veil: 14,
  number: 32, selected: 36, focus: 37, label: 38, help: 39, heading: 40, row: 41, cell: 42,
});

const TWIPS_A_POINT = 20;

const make = (name, className, properties = {}) => Object.assign(document.createElement(name), { className }, properties);
/** The same with its name for `::part`. */
function shown(name, className, part, properties) {
  const made = make(name, className, properties);
  made.setAttribute('part', part);
  return made;
}

/**
 * Copying an element takes a fraction of what making it takes, so each is made once. What a form makes many of is copied
 * with the place of the first.
 */
const patterns = new Map();
function copy(design, key, pattern) {
  const placed = design.pattern?.placed;
  if (placed !== undefined) {
    design.twips = placed.twips;
    return placed.outer.cloneNode(true);
  }
  let made = patterns.get(key);
  if (made === undefined) patterns.set(key, (made = pattern()));
  return made.cloneNode(true);
}

/** Lengths as texts; most stand in many rows. */
const MOST_LENGTHS = 2000;
const lengths = new Map();
function ems(length) {
  let text = lengths.get(length);
  if (text !== undefined) return text;
  if (lengths.size === MOST_LENGTHS) lengths.clear();
  lengths.set(length, (text = `${length}em`));
  return text;
}

/** What the controls say themselves is Dutch, whatever is spoken around them. */
export const OWN_LANGUAGE = 'nl';

/** A caption with an "&" before the letter to underline, and "&&" for one to show. */
export function writeCaption(element, marked) {
  if (!marked.includes('&')) return void (element.textContent = marked);
  const parts = marked.split(/&(.)/s);
  const texts = parts.map((part, i) => {
    if (i % 2 === 0 || part === '&') return part;
    const letter = document.createElement('u');
    letter.textContent = part;
    return letter;
  });
  element.replaceChildren(...texts.filter((text) => text !== ''));
}

class Node {
  isLabel = false;
  /** The node that it stands in, or nothing. */
  around = null;
  /** How high its text is where that is not as high as the text around it, in twips. */
  #font = null;

  constructor(view, id, design, outer, { input = null, area = outer, caption = null } = {}) {
    this.view = view;
    this.id = id;
    this.design = design;
    this.outer = outer;
    this.input = input;
    this.area = area;
    this.caption = caption;
    /** Where it stands; of a copy first where its pattern does. */
    this.twips = design.twips;
    if (input !== null) {
      input.id = `c${id}`;
      input.node = this;
    }
    if (this.twips !== undefined) return;
    if (input !== null && design.label !== '') input.setAttribute('aria-label', design.label);
    if (caption !== null) writeCaption(caption, design.caption);
  }

  place(left, top, width, height) {
    const was = this.twips;
    this.twips = [left, top, width, height];
    this.putInPlace(was);
  }

  /** How high its text is, in twips. */
  get em() {
    return this.#font ?? this.around?.em ?? TWIPS_AN_EM;
  }
  /** A length of the design as one of this element: by its text, which the browser reads faster than what is to be reckoned. */
  length(twips) {
    return ems(twips / this.em);
  }
  /** Writes what is not as it was. */
  putInPlace(was) {
    const style = this.outer.style;
    const [left, top, width, height] = this.twips;
    const { em } = this;
    if (left !== was?.[0]) style.left = ems(left / em);
    if (top !== was?.[1]) style.top = ems(top / em);
    if (width !== was?.[2]) style.width = ems(width / em);
    if (height !== was?.[3]) style.height = ems(height / em);
  }
  /** Lengths keep what they are when the text gets another size. */
  #resize(font) {
    this.#font = font;
    this.#putAnew();
  }
  #putAnew() {
    if (this.#font !== null) this.outer.style.fontSize = ems(this.#font / (this.around?.em ?? TWIPS_AN_EM));
    if (this.twips !== undefined) this.putInPlace();
    for (const node of this.view.nodes.values()) if (node.around === this) node.#putAnew();
  }

  show(what, number, text) {
    switch (what) {
      case Shows.enabled: return this.enable(number !== 0);
      case Shows.visible: this.outer.hidden = number === 0; return;
      case Shows.caption: if (this.caption !== null) writeCaption(this.caption, text); return;
      case Shows.fontSize: return this.#resize(number * TWIPS_A_POINT);
      case Shows.backColor: return this.color(number);
      case Shows.focus: this.input?.focus(); return;
      case Shows.label: this.input?.setAttribute('aria-label', text); return;
      case Shows.help: this.outer.title = text; return;
    }
  }

  enable(enabled) {
    if (this.input !== null) this.input.disabled = !enabled;
    this.outer.classList.toggle('disabled', !enabled);
  }

  color(number) {
    const { background, text } = colorsOf(number);
    this.colored.style.backgroundColor = background;
    this.colored.style.color = text;
  }
  get colored() {
    return this.outer;
  }
}

class Frame extends Node {
  constructor(view, id, design) {
    const outer = shown('fieldset', design.bordered ? 'control frame' : 'control plain', 'frame');
    const legend = design.bordered ? shown('legend', 'legend', 'legend') : null;
    if (legend !== null) {
      outer.append(legend);
      legend.order = -1;
    } else if (design.caption !== '') {
      outer.setAttribute('aria-label', design.caption.replace(/&(.)/gs, '$1'));
    }
    super(view, id, design, outer, { caption: legend });
  }
  enable(enabled) {
    this.outer.disabled = !enabled;
    super.enable(enabled);
  }
}

class Label extends Node {
  isLabel = true;

  constructor(view, id, design) {
    const leads = design.caption.includes('&');
    const name = leads ? 'label' : 'span';
    const className = design.multiline ? 'control label lines' : 'control label';
    const outer = copy(design, name + className, () => shown(name, className, 'label'));
    super(view, id, design, outer, { caption: outer });
  }
}

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

class TextBox extends Node {
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
    const [day, month, year] = this.input.value.split('-');
    this.picker.value = /^\d\d-\d\d-\d{4}$/.test(this.input.value) ? `${year}-${month}-${day}` : '';
    try {
      this.picker.showPicker();
    } catch {
      // Without a press or a key of a person, and in a frame of another origin, there is none.
    }
    return true;
  }

  /** The browser's own calendar, which few open; what is picked there is typed over by the machine. */
  #addPicker() {
    this.picker = make('input', 'picker', { type: 'date', tabIndex: -1, ariaHidden: 'true', min: '1900-01-01' });
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

class Toggle extends Node {
  constructor(view, id, design) {
    const outer = copy(design, 'toggle', () => {
      const toggle = shown('button', 'control toggle', 'toggle', { type: 'button' });
      toggle.setAttribute('role', 'switch');
      toggle.append(...['Ja', 'Nee'].map((answer) => make('span', '', { textContent: answer, ariaHidden: 'true' })));
      return toggle;
    });
    super(view, id, design, outer, { input: outer });
  }
  show(what, number, text) {
    if (what === Shows.number) this.input.setAttribute('aria-checked', number !== 0 ? 'true' : 'false');
    else super.show(what, number, text);
  }
  color() {}
}

class Hint extends Node {
  isHint = true;

  constructor(view, id, design) {
    const outer = copy(design, 'hint', () => {
      const hint = make('span', 'control hint');
      hint.append(shown('button', 'help', 'hint', { type: 'button', textContent: '?' }), make('span', 'spoken'));
      return hint;
    });
    const [input, text] = outer.children;
    text.id = `t${id}`;
    text.textContent = design.caption;
    super(view, id, design, outer, { input });
    input.setAttribute('aria-describedby', text.id);
    this.speak();
  }
  speak() {
    if (this.design.label === '') this.input.setAttribute('aria-label', this.view.language.of('Help'));
  }
}

class Choice extends Node {
  constructor(view, id, design, type) {
    const outer = copy(design, type, () => {
      const choice = shown('label', 'control choice', type === 'radio' ? 'option' : 'check');
      choice.append(make('input', '', { type }), make('span', 'text'));
      return choice;
    });
    const [input, caption] = outer.children;
    if (type === 'radio') input.name = `${view.number}-${design.group}`;
    super(view, id, design, outer, { input, caption });
  }
  show(what, number, text) {
    if (what === Shows.number) this.input.checked = number !== 0;
    else super.show(what, number, text);
    // A choice without a caption (a partner who is not there) is called what the design calls it.
    if (what !== Shows.caption) return;
    if (text === '') this.input.setAttribute('aria-label', this.design.caption.replace(/&(.)/gs, '$1'));
    else if (this.design.label === '') this.input.removeAttribute('aria-label');
  }
}

class List extends Node {
  constructor(view, id, design) {
    const outer = shown('select', 'control box select', 'list');
    super(view, id, design, outer, { input: outer });
  }
  show(what, number, text) {
    if (what === Shows.entries) this.input.replaceChildren();
    else if (what === Shows.entryAdded) this.input.add(new Option(text));
    else if (what === Shows.listIndex) this.input.selectedIndex = number;
    else super.show(what, number, text);
  }
}

class Button extends Node {
  constructor(view, id, design) {
    const outer = copy(design, 'button', () => shown('button', 'control button', 'button', { type: 'button' }));
    super(view, id, design, outer, { input: outer, caption: outer });
  }
  color() {}
}

class ListView extends Node {
  constructor(view, id, design) {
    const outer = shown('div', 'control listview', 'table', { tabIndex: 0 });
    outer.setAttribute('role', 'group');
    const table = make('table', '');
    table.setAttribute('aria-label', design.label);
    table.append(make('thead', ''), make('tbody', ''));
    table.tHead.append(make('tr', ''));
    outer.append(table);
    super(view, id, design, outer, { input: outer });
    this.table = table;
  }
  show(what, number, text) {
    const body = this.table.tBodies[0];
    const heads = this.table.tHead.rows[0];
    switch (what) {
      case Shows.columns: heads.replaceChildren(); return;
      case Shows.heading: {
        const head = make('th', '', { scope: 'col', textContent: text });
        head.style.width = this.length(number);
        head.twips = number;
        heads.append(head);
        return;
      }
      case Shows.rows: body.replaceChildren(); return;
      case Shows.row: select(body.insertRow(), number !== 0); return;
      case Shows.cell: {
        const cell = body.rows[body.rows.length - 1].insertCell();
        cell.textContent = text;
        cell.className = number !== 0 ? 'bold' : '';
        return;
      }
      case Shows.selection: [...body.rows].forEach((row, i) => select(row, i + 1 === number)); return;
      default: super.show(what, number, text);
    }
  }
  enable(enabled) {
    this.outer.tabIndex = enabled ? 0 : -1;
    this.outer.classList.toggle('disabled', !enabled);
  }
}

function select(row, selected) {
  if (selected) row.setAttribute('aria-current', 'true');
  else row.removeAttribute('aria-current');
}

class Surface extends Node {
  constructor(view, id, design) {
    const outer = shown('div', 'control surface', 'surface');
    const area = make('div', 'area');
    const veil = shown('p', 'veil', 'veil', { hidden: true });
    outer.append(area, veil);
    super(view, id, design, outer, { area });
    this.veil = veil;
    area.lang = OWN_LANGUAGE;
    this.speak();
  }
  speak() {
    this.veil.textContent = this.view.language.of('NothingOpen');
    this.veil.lang = this.view.language.tag;
  }
  show(what, number, text) {
    if (what !== Shows.veil) return super.show(what, number, text);
    const veiled = number !== 0;
    this.area.inert = veiled;
    this.area.classList.toggle('veiled', veiled);
    this.outer.classList.toggle('empty', veiled);
    this.veil.hidden = !veiled;
  }
  enable(enabled) {
    this.area.inert = !enabled;
  }
}

class Form extends Node {
  constructor(view, id, design) {
    const outer = shown('dialog', 'control form', 'dialog form');
    outer.setAttribute('aria-labelledby', `f${id}`);
    const head = shown('div', 'head', 'head');
    const title = make('div', 'title', { id: `f${id}` });
    const close = make('button', 'close', { type: 'button', textContent: '×' });
    const scroll = make('div', 'scroll');
    const area = make('div', 'inside');
    head.append(title, close);
    scroll.append(area);
    outer.append(head, scroll);
    super(view, id, design, outer, { area, caption: title });
    close.node = outer.node = this;
    this.closeButton = close;
    outer.lang = OWN_LANGUAGE;
    this.speak();
  }
  speak() {
    this.closeButton.ariaLabel = this.view.language.of('Close');
    this.closeButton.lang = this.view.language.tag;
  }
  putInPlace() {
    const [, , width, height] = this.twips;
    this.area.style.width = this.length(width);
    this.area.style.height = this.length(height);
    // Where the window is too low for it: room for the bar, which would otherwise call for a second one below.
    this.area.style.marginRight = `clamp(0px, (${this.length(height)} + 3em - 94vh) * 99, 17px)`;
  }
  enable(enabled) {
    this.area.inert = !enabled;
  }
  show(what, number, text) {
    if (what === Shows.caption) this.caption.textContent = text;
    else super.show(what, number, text);
  }
  get colored() {
    return this.area;
  }
}

const classes = new Map([
  [Kind.frame, Frame], [Kind.label, Label], [Kind.textBox, TextBox], [Kind.jaNee, Toggle], [Kind.hint, Hint],
  [Kind.list, List], [Kind.button, Button], [Kind.listView, ListView], [Kind.surface, Surface], [Kind.form, Form],
]);

/** Of what a form makes many of the first is what the others are copied from, as it stands there. */
export function keepPattern({ design, outer, twips, em }) {
  if (design.pattern === undefined) design.placed = { outer: outer.cloneNode(true), twips, em };
}

export function makeNode(view, id, design) {
  if (design.kind === Kind.option) return new Choice(view, id, design, 'radio');
  if (design.kind === Kind.checkBox) return new Choice(view, id, design, 'checkbox');
  return new (classes.get(design.kind))(view, id, design);
}
