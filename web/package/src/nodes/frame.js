// A frame with a legend, or one without an edge.

import { textOf } from './captions.js';
import { Shows } from './contract.js';
import { copy, shown } from './making.js';
import { Node } from './node.js';

export class Frame extends Node {
  constructor(view, id, design) {
    const outer = copy(design, design.bordered ? 'frame' : 'plain', () => {
      const frame = shown('fieldset', design.bordered ? 'control frame' : 'control plain', 'frame');
      if (design.bordered) frame.append(shown('legend', 'legend', 'legend'));
      return frame;
    });
    const legend = outer.firstElementChild;
    if (legend !== null) {
      legend.order = -1;
    } else if (design.caption !== '') {
      outer.setAttribute('aria-label', textOf(design.caption));
    }
    super(view, id, design, outer, { caption: legend });
    this.#call(design.caption);
  }
  /** A screen reader is told of no group that is called nothing. */
  #call(caption) {
    this.outer.role = caption === '' ? 'none' : null;
  }
  show(what, number, text) {
    super.show(what, number, text);
    if (what === Shows.caption) this.#call(text);
  }
  enable(enabled) {
    this.outer.disabled = !enabled;
    super.enable(enabled);
  }
}
