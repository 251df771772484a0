// A frame with a legend, or one without an edge.

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
      outer.setAttribute('aria-label', design.caption.replace(/&(.)/gs, '$1'));
    }
    super(view, id, design, outer, { caption: legend });
  }
  enable(enabled) {
    this.outer.disabled = !enabled;
    super.enable(enabled);
  }
}
