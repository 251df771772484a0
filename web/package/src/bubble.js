/** Says beside a box why a text was refused, or, less loudly, what the box makes of it. A view has one. */
export class Bubble {
  #element = document.createElement('div');
  #node = null;

  constructor() {
    this.#element.id = 'bubble';
    this.#element.className = 'bubble';
  }

  show(node, text, isReason) {
    this.#leave();
    this.#node = node;
    const { input, outer } = node;
    this.#element.part = isReason ? 'reason' : 'note';
    this.#element.setAttribute('role', isReason ? 'alert' : 'status');
    this.#element.textContent = text;
    outer.parentElement.append(this.#element);
    this.#putBeside(outer);
    input.setAttribute('aria-describedby', this.#element.id);
    if (isReason) input.setAttribute('aria-invalid', 'true');
  }

  hide(node) {
    if (this.#node !== node) return;
    this.#leave();
    this.#element.remove();
  }

  #leave() {
    this.#node?.input.removeAttribute('aria-describedby');
    this.#node?.input.removeAttribute('aria-invalid');
    this.#node = null;
  }

  /** Below the box, above it where there is no room below, and inside the window. */
  #putBeside(outer) {
    const style = this.#element.style;
    style.left = outer.style.left;
    style.top = `calc(${outer.style.top} + ${outer.offsetHeight + 2}px)`;
    style.translate = 'none';
    const place = this.#element.getBoundingClientRect();
    const area = this.#element.closest('.inside, .surface').getBoundingClientRect();
    const over = Math.max(0, place.right - Math.min(area.right, innerWidth) + 2);
    const below = place.bottom > innerHeight && place.top - outer.offsetHeight - place.height - 4 > 0;
    style.translate = `${-over}px ${below ? -(outer.offsetHeight + place.height + 4) : 0}px`;
  }
}
