// What stands in the shadow root of one element: a node for each control, and the dialogs. The machine calls its members
// by name (machine.js); what a person does goes back by events.js.

import { listen, stopsIn } from './events.js';
import { Bubble, makeStatus, Tip } from './floating.js';
import { HostObjects } from './host.js';
import { languageAt } from './languages.js';
import { MessageBox } from './messagebox.js';
import { makeNode } from './nodes.js';
import { keepPattern } from './nodes/making.js';

/** What the machine asks of a node; as in Page.h. */
const Asked = Object.freeze({ hasFocus: 0, isAtHand: 1 });
const Shows = Object.freeze({ reason: 33, note: 34, nothing: 35 });

/** The parts of a design, as Page.cpp writes them. */
function read(design) {
  const [name, label, caption, group, kind, format, order, bordered, multiline, row] = design.split('\x1f');
  return {
    name, label, caption, group, kind: Number(kind), format: Number(format), order: Number(order),
    bordered: bordered === '1', multiline: multiline === '1', row: row === '1',
  };
}

/** Elements of one container lie in the order of their numbers, those with the same as they came. */
function put(area, outer, order) {
  outer.order = order;
  let before = null;
  for (let last = area.lastElementChild; last !== null && last.order > order; last = last.previousElementSibling) before = last;
  area.insertBefore(outer, before);
}

/** To where a dialog was worked in, or else to its default, and to what closes it last of all. */
function enter(dialog, options) {
  const stops = stopsIn(dialog);
  const wanted = [dialog.worked, dialog.querySelector('[autofocus]'), ...stops];
  const stop = wanted.find((one) => stops.includes(one) && !one.matches('.close')) ?? stops[0];
  stop?.focus(options);
}

export class View {
  number = 0;
  /** The objects of the host that the machine holds for this element. */
  objects = new HostObjects();
  nodes = new Map();
  bubble = new Bubble();
  tip = new Tip();
  /** What is said of what stands in no dialog. */
  status = makeStatus();
  /** What is added to the controls is said in it. */
  language;
  /** Its dialogs are put back on the screen, which is nobody's leaving anything. */
  isMoving = false;
  #owner;
  #hasAppeared = false;
  #label = null;
  /** The designs of what a form makes many of, by the first of them. */
  #rows = new Map();
  #dialogs = [];
  #boxes = new Map();

  /**
   * `owner` makes objects for the host, asks it and tells its page: makeForHost(what, control), details(title, text),
   * tell(what, text), spoken(language).
   */
  constructor(root, owner) {
    this.root = root;
    this.#owner = owner;
    this.language = languageAt(root.host);
    this.stopListening = listen(this);
  }

  /** Looks again what language is spoken where it stands; whether that is another one, which is shown then. */
  follow() {
    const language = languageAt(this.root.host);
    if (language === this.language) return false;
    this.language = language;
    for (const node of this.nodes.values()) node.speak?.();
    this.#owner.spoken(language);
    return true;
  }

  makeForHost(what, control) {
    return this.#owner.makeForHost(what, control);
  }
  details(title, text) {
    return this.#owner.details(title, text);
  }
  tell(what, text) {
    this.#owner.tell(what, text);
  }

  make(id, container, written, left, top, width, height, visible) {
    const design = read(written);
    if (design.row) this.#rows.set(id, design);
    this.#put(id, container, design, [left, top, width, height], visible !== 0);
  }
  /** One more of the rows of a form, with another index and place. */
  makeAlike(id, container, pattern, index, left, top, width, height, visible) {
    const design = this.#rows.get(pattern);
    const name = design.name.replace(/\d+\)$/, `${index})`);
    this.#put(id, container, { ...design, name, pattern: design }, [left, top, width, height], visible !== 0);
  }

  #put(id, container, design, twips, visible) {
    const node = makeNode(this, id, design);
    this.nodes.set(id, node);
    node.around = this.nodes.get(container) ?? null;
    if (design.pattern !== undefined && design.pattern.placed.em !== node.em) node.twips = undefined;
    node.place(...twips);
    if (node.outer.hidden === visible) node.outer.hidden = !visible;
    if (design.row) keepPattern(node);
    // What stands in nothing comes on the page with all that was put in it: from the first, or when its form is opened.
    if (node.around !== null) put(node.around.area, node.outer, design.order);
    else if (this.#hasAppeared && node.outer.localName !== 'dialog') this.root.append(node.outer);
    // A label with a mnemonic is that of the control made next.
    if (this.#label !== null && node.input?.matches('input, select')) this.#label.htmlFor = node.input.id;
    this.#label = node.isLabel && design.caption.includes('&') ? node.outer : null;
  }

  /** The machine has made what stands on the page from the first. */
  appear() {
    this.#hasAppeared = true;
    for (const { around, outer } of this.nodes.values()) if (around === null) this.root.append(outer);
    this.root.append(this.status);
  }

  drop(id) {
    this.nodes.get(id)?.outer.remove();
    this.nodes.delete(id);
  }

  place(id, left, top, width, height) {
    this.nodes.get(id)?.place(left, top, width, height);
  }

  show(id, what, number, text) {
    const node = this.nodes.get(id);
    if (node === undefined) return;
    if (what === Shows.nothing) this.bubble.hide(node);
    else if (what === Shows.reason || what === Shows.note) this.bubble.show(node, text, what === Shows.reason);
    else node.show(what, number, text);
  }

  ask(id, what) {
    const input = this.nodes.get(id)?.input;
    if (!input) return 0;
    if (what === Asked.hasFocus) return this.root.activeElement === input ? 1 : 0;
    return input.isConnected && !input.matches(':disabled') && input.checkVisibility() ? 1 : 0;
  }

  insert(id, text) {
    const node = this.nodes.get(id);
    const { input } = node;
    input.setRangeText(text, input.selectionStart, input.selectionEnd, 'end');
    node.fit(input.value);
    return input.value;
  }

  openForm(id) {
    const { outer } = this.nodes.get(id);
    this.root.append(outer);
    return this.#open(outer);
  }
  closeForm(id) {
    this.#close(this.nodes.get(id)?.outer);
  }

  openBox(number, style, who, title, text) {
    const box = new MessageBox(this, number, style, who, title, text);
    this.#boxes.set(number, box);
    this.root.append(box.dialog);
    if (this.#open(box.dialog)) return 1;
    this.closeBox(number);
    return 0;
  }
  closeBox(number) {
    const dialog = this.#boxes.get(number)?.dialog;
    this.#boxes.delete(number);
    this.#close(dialog);
    dialog?.remove();
  }

  /** The innermost dialog that is open, or nothing. */
  get dialog() {
    return this.#dialogs.at(-1) ?? null;
  }

  /** The element was moved: its dialogs were taken off the screen. */
  moved() {
    this.#showAgain(0);
  }
  /** The browser closed a dialog that is open to the machine, so it is shown again; false where it is not. */
  reopen(dialog) {
    const place = this.#dialogs.indexOf(dialog);
    if (place < 0 || dialog.open) return false;
    this.#showAgain(place);
    return true;
  }

  /** What has the focus in the innermost dialog is where that is worked in, save what closes it. */
  worksIn(stop) {
    const { dialog } = this;
    if (stop !== dialog && dialog?.contains(stop) && !stop.matches('.close')) dialog.worked = stop;
  }
  /** Brings the focus into the innermost dialog. */
  focusDialog(options) {
    const { dialog } = this;
    const active = this.root.activeElement;
    if (active === dialog || !dialog.contains(active)) enter(dialog, options);
  }

  #showAgain(place) {
    this.isMoving = true;
    for (const dialog of this.#dialogs.slice(place)) {
      const { worked } = dialog;
      dialog.close();
      dialog.showModal();
      dialog.worked = worked;
      enter(dialog);
    }
    this.isMoving = false;
  }

  #open(dialog) {
    if (!dialog.isConnected) return 0;
    this.#dialogs.push(dialog);
    dialog.showModal();
    return 1;
  }
  #close(dialog) {
    const place = this.#dialogs.indexOf(dialog);
    if (place < 0) return;
    this.#dialogs.splice(place, 1);
    dialog.close();
    // Where the focus was lost before it was opened, the browser brings it back nowhere.
    if (this.dialog !== null) this.focusDialog();
  }
}
