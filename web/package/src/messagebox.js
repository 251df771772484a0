// A message box: modal, answered on purpose. No bare letter answers it, and a key counts only after a pause in the typing.

import { answerBox, isMeant } from './machine.js';

const QUESTION = 36;
const Answer = Object.freeze({ ok: 1, yes: 6, no: 7 });

export class MessageBox {
  #view;
  #number;
  #unanswered;
  /** Keys that went down before somebody had seen the box. */
  #passed = new Set();

  constructor(view, number, style, title, text) {
    this.#view = view;
    this.#number = number;
    const question = style === QUESTION;
    this.#unanswered = question ? Answer.no : Answer.ok;
    const dialog = (this.dialog = document.createElement('dialog'));
    dialog.className = 'message';
    dialog.part = 'dialog message';
    dialog.setAttribute('role', 'alertdialog');
    dialog.setAttribute('aria-labelledby', `title${number}`);
    dialog.setAttribute('aria-describedby', `text${number}`);
    dialog.append(
      element('div', { id: `title${number}`, className: 'title', textContent: title }),
      element('div', { id: `text${number}`, className: 'text', textContent: text.replaceAll('\r\n', '\n') }),
      element('div', { className: 'buttons' }, question
        ? [this.#button('J', 'a', Answer.yes), this.#button('N', 'ee', Answer.no, true)]
        : [this.#button('', 'OK', Answer.ok, true)]),
    );
    dialog.addEventListener('keydown', (event) => this.#keyDown(event), true);
    dialog.addEventListener('keyup', (event) => this.#keyUp(event), true);
    dialog.addEventListener('cancel', (event) => event.preventDefault());
  }

  #button(letter, rest, answer, first = false) {
    const button = element('button', { type: 'button', autofocus: first });
    button.part = 'button';
    if (letter !== '') button.append(element('u', { textContent: letter }));
    button.append(rest);
    button.addEventListener('click', () => this.#answer(answer));
    return button;
  }

  #answer(answer) {
    answerBox(this.#view, this.#number, answer);
  }

  #keyDown(event) {
    if (!isMeant(this.#view, this.#number, event.repeat)) {
      this.#passed.add(event.code);
      event.preventDefault();
      event.stopPropagation();
      return;
    }
    this.#passed.delete(event.code);
    const letter = event.altKey ? event.key.toLowerCase() : '';
    const question = this.#unanswered === Answer.no;
    if (event.key === 'Escape') this.#answer(this.#unanswered);
    else if (question && (letter === 'j' || letter === 'n')) this.#answer(letter === 'j' ? Answer.yes : Answer.no);
    else return;
    event.preventDefault();
    event.stopPropagation();
  }

  /** A button is pressed by the blank bar when that comes up. */
  #keyUp(event) {
    if (this.#passed.delete(event.code)) event.preventDefault();
  }
}

function element(name, properties, children = []) {
  const made = Object.assign(document.createElement(name), properties);
  made.append(...children);
  return made;
}
