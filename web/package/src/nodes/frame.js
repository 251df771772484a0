// A frame with a legend, or one without an edge.

import { shown } from './making.js';
import { Node } from './node.js';

export class Frame extends Node {
  constructor(view, id, design) {
    const outer = shown('fieldset', design.bordered ? 'control frame' : 'control plain', 'frame');
    const legend = design.bordered ? shown('legend', 'legend', 'legend') : null;
    if (legend !== null) {
      outer.append(legend);
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
