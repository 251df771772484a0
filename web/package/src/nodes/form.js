// A form over the page: a dialog with a head, in which it scrolls.

import { makeStatus } from '../floating.js';
import { OWN_LANGUAGE } from './captions.js';
import { Shows } from './contract.js';
import { make, shown } from './making.js';
import { Node } from './node.js';

export class Form extends Node {
  constructor(view, id, design) {
    const outer = shown('dialog', 'control form', 'dialog form');
    outer.setAttribute('aria-labelledby', `f${id}`);
    const head = shown('div', 'head', 'head');
    const title = make('div', 'title', { id: `f${id}` });
    const close = make('button', 'close', { type: 'button', textContent: '×' });
    const scroll = make('div', 'scroll');
    const area = make('div', 'inside');
    head.append(title, close);
    scroll.append(area);
    // What stands outside a modal dialog is not read out while that is open.
    outer.status = makeStatus();
    outer.append(head, scroll, outer.status);
    super(view, id, design, outer, { area, caption: title });
    close.node = outer.node = this;
    this.closeButton = close;
    outer.lang = OWN_LANGUAGE;
    this.speak();
  }
  speak() {
    this.closeButton.ariaLabel = this.view.language.of('Close');
    this.closeButton.lang = this.view.language.tag;
  }
  putInPlace() {
    const [, , width, height] = this.twips;
    this.area.style.width = this.length(width);
    this.area.style.height = this.length(height);
    // Where the window is too low for it: room for the bar, which would otherwise call for a second one below.
    this.area.style.marginRight = `clamp(0px, (${this.length(height)} + 3em - 94vh) * 99, 17px)`;
  }
  enable(enabled) {
    this.area.inert = !enabled;
  }
  show(what, number, text) {
    if (what === Shows.caption) this.caption.textContent = text;
    else super.show(what, number, text);
  }
  get colored() {
    return this.area;
  }
}
