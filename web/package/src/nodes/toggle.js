// The switch between "Ja" and "Nee".

import { Shows } from './contract.js';
import { copy, make, shown } from './making.js';
import { Node } from './node.js';

export class Toggle extends Node {
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
