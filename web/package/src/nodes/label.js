// A text beside a control.

import { copy, shown } from './making.js';
import { Node } from './node.js';

export class Label extends Node {
  isLabel = true;

  constructor(view, id, design) {
    const leads = design.caption.includes('&');
    const name = leads ? 'label' : 'span';
    const className = design.multiline ? 'control label lines' : 'control label';
    const outer = copy(design, name + className, () => shown(name, className, 'label'));
    super(view, id, design, outer, { caption: outer });
  }
}
