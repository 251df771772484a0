// What shows a control, whatever its kind. `outer` stands where the control stands, `input` is what takes the focus, and
// `area` is where others stand in it.

import { colorsOf } from '../colors.js';
import { TWIPS_AN_EM } from '../style.js';
import { writeCaption } from './captions.js';
import { Shows } from './contract.js';
import { ems } from './lengths.js';

const TWIPS_A_POINT = 20;

export class Node {
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
