// The button that has help to say.

import { copy, make, shown } from './making.js';
import { Node } from './node.js';

export class Hint extends Node {
  isHint = true;

  constructor(view, id, design) {
    const outer = copy(design, 'hint', () => {
      const hint = make('span', 'control hint');
      hint.append(shown('button', 'help', 'hint', { type: 'button', textContent: '?' }), make('span', 'spoken'));
      return hint;
    });
    const [input, text] = outer.children;
    text.id = `t${id}`;
    text.textContent = design.caption;
    super(view, id, design, outer, { input });
    input.setAttribute('aria-describedby', text.id);
    this.speak();
  }
  speak() {
    if (this.design.label === '') this.input.setAttribute('aria-label', this.view.language.of('Help'));
  }
}
