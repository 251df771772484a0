import { make } from './nodes/making.js';

const GAP = 2;

/** A text that floats beside an element, above all else, and goes along when something is scrolled. */
class Floating {
  element = document.createElement('div');
  #anchor = null;
  /** That of the anchor, which may be another one than this script runs in. */
  #window = null;
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
    this.element.textContent = text;
    this.element.lang = lang;
    if (anchor === this.#anchor && this.element.isConnected) return this.#putBeside();
    this.take();
    this.#anchor = anchor;
    // What stands outside a modal dialog is out of reach while that is open.
    (anchor.closest('dialog') ?? anchor.getRootNode()).append(this.element);
    if (!this.element.isConnected) return;
    this.element.showPopover();
    this.#window = anchor.ownerDocument.defaultView;
    this.#putBeside();
    for (const moved of ['scroll', 'resize']) this.#window.addEventListener(moved, this.#follow, { capture: true, passive: true });
  }

  take() {
    if (this.#anchor === null) return;
    this.#anchor = null;
    for (const moved of ['scroll', 'resize']) this.#window?.removeEventListener(moved, this.#follow, { capture: true });
    this.element.remove();
  }

  /** Below it, above it where there is no room below, and inside the window. */
  #putBeside() {
    if (!this.element.isConnected) return this.take();
    const { innerWidth, innerHeight } = this.#window;
    const around = this.#anchor.getBoundingClientRect();
    const { width, height } = this.element.getBoundingClientRect();
    const below = around.bottom + GAP;
    const top = below + height > innerHeight && around.top - GAP - height >= 0 ? around.top - GAP - height : below;
    this.element.style.left = `${Math.max(GAP, Math.min(around.left, innerWidth - width - GAP))}px`;
    this.element.style.top = `${top}px`;
  }
}

/**
 * What a screen reader is told without being interrupted: by a text that comes to stand in an element which has been there
 * all along. One that comes together with its text is often passed over.
 */
export function makeStatus() {
  const status = make('div', 'spoken');
  status.setAttribute('role', 'status');
  return status;
}

/** Says beside a box why a text was refused, or, less loudly, what the box makes of it. */
export class Bubble extends Floating {
  /** The box whose text was refused, while the reason is shown. */
  #refused = null;
  /** What a note is told by, while that is shown. */
  #status = null;

  constructor() {
    super('bubble');
    this.element.id = 'bubble';
  }

  show({ input, outer, view }, text, isReason) {
    // A reason is read out because it comes, each time.
    if (isReason || this.#refused !== null) this.take();
    const { element } = this;
    element.part = isReason ? 'reason' : 'note';
    element.role = isReason ? 'alert' : null;
    element.ariaHidden = isReason ? null : 'true';
    this.put(outer, text, view.language.tag);
    if (isReason) this.#refuse(input);
    else this.#tell(outer.closest('dialog')?.status ?? view.status, text, view.language.tag);
  }

  hide({ outer }) {
    if (this.anchor === outer) this.take();
  }

  take() {
    super.take();
    for (const name of ['aria-describedby', 'aria-invalid']) this.#refused?.removeAttribute(name);
    this.#refused = null;
    this.#status?.replaceChildren();
    this.#status = null;
  }

  #refuse(input) {
    this.#refused = input;
    input.setAttribute('aria-describedby', this.element.id);
    input.setAttribute('aria-invalid', 'true');
  }

  #tell(status, text, lang) {
    this.#status = status;
    status.lang = lang;
    if (status.textContent !== text) status.textContent = text;
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
