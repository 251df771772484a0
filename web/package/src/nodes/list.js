// The list that drops down.

import { Shows } from './contract.js';
import { shown } from './making.js';
import { Node } from './node.js';

export class List extends Node {
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
