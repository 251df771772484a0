// A button.

import { copy, shown } from './making.js';
import { Node } from './node.js';

export class Button extends Node {
  constructor(view, id, design) {
    const outer = copy(design, 'button', () => shown('button', 'control button', 'button', { type: 'button' }));
    super(view, id, design, outer, { input: outer, caption: outer });
  }
  color() {}
}
