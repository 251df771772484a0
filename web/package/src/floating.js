const GAP = 2;

/** A text that floats beside an element, above all else, and goes along when something is scrolled. */
class Floating {
  element = document.createElement('div');
  #anchor = null;
  #follow = () => this.#putBeside();

  constructor(className) {
    this.element.className = className;
    this.element.popover = 'manual';
  }

  /** The element that it stands beside, or nothing. */
  get anchor() {
    return this.#anchor;
  }

  put(anchor, text, lang) {
    this.take();
    this.#anchor = anchor;
    this.element.textContent = text;
    this.element.lang = lang;
    // What stands outside a modal dialog is out of reach while that is open.
    (anchor.closest('dialog') ?? anchor.getRootNode()).append(this.element);
    if (!this.element.isConnected) return;
    this.element.showPopover();
    this.#putBeside();
    for (const moved of ['scroll', 'resize']) addEventListener(moved, this.#follow, { capture: true, passive: true });
  }

  take() {
    if (this.#anchor === null) return;
    this.#anchor = null;
    for (const moved of ['scroll', 'resize']) removeEventListener(moved, this.#follow, { capture: true });
    this.element.remove();
  }

  /** Below it, above it where there is no room below, and inside the window. */
  #putBeside() {
    if (!this.element.isConnected) return this.take();
    const around = this.#anchor.getBoundingClientRect();
    const { width, height } = this.element.getBoundingClientRect();
    const below = around.bottom + GAP;
    const top = below + height > innerHeight && around.top - GAP - height >= 0 ? around.top - GAP - height : below;
    this.element.style.left = `${Math.max(GAP, Math.min(around.left, innerWidth - width - GAP))}px`;
    this.element.style.top = `${top}px`;
  }
}

/** Says beside a box why a text was refused, or, less loudly, what the box makes of it. */
export class Bubble extends Floating {
  constructor() {
    super('bubble');
    this.element.id = 'bubble';
  }

  show({ input, outer, view }, text, isReason) {
    this.#leave();
    this.element.part = isReason ? 'reason' : 'note';
    this.element.setAttribute('role', isReason ? 'alert' : 'status');
    this.put(outer, text, view.language.tag);
    this.input = input;
    input.setAttribute('aria-describedby', this.element.id);
    if (isReason) input.setAttribute('aria-invalid', 'true');
  }

  hide({ outer }) {
    if (this.anchor !== outer) return;
    this.#leave();
    this.take();
  }

  #leave() {
    this.input?.removeAttribute('aria-describedby');
    this.input?.removeAttribute('aria-invalid');
    this.input = null;
  }
}

/** What a help icon has to say. A screen reader is told by the icon itself. */
export class Tip extends Floating {
  constructor() {
    super('tip');
    this.element.part = 'tip';
    this.element.setAttribute('aria-hidden', 'true');
  }

  show({ outer, design }) {
    this.put(outer, design.caption, 'nl');
  }
}
