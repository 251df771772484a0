// What the controls of an element stand on, and the veil over it while nothing is open.

import { OWN_LANGUAGE } from './captions.js';
import { Shows } from './contract.js';
import { make, shown } from './making.js';
import { Node } from './node.js';

export class Surface extends Node {
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
