// One of several options, and a check box.

import { Shows } from './contract.js';
import { copy, make, shown } from './making.js';
import { Node } from './node.js';

export class Choice extends Node {
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
