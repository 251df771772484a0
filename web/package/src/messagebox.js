// A message box: modal, answered on purpose. No bare letter answers it, and a key counts only after a pause in the typing:
// the time is that at which it went down, however busy the page was afterwards.

import { answerBox, isMeant } from './machine.js';
import { OWN_LANGUAGE, writeCaption } from './nodes/captions.js';

const QUESTION = 36;
const THE_CONTROLS = 0;
const STEPS = Object.freeze({ ArrowLeft: -1, ArrowUp: -1, ArrowRight: 1, ArrowDown: 1 });
const Answer = Object.freeze({ ok: 1, yes: 6, no: 7 });

export class MessageBox {
  #view;
  #number;
  #unanswered;
  /** What each letter answers, with Alt. */
  #letters = new Map();
  /** Keys that went down before somebody had seen the box. */
  #passed = new Set();

  constructor(view, number, style, who, title, text) {
    this.#view = view;
    this.#number = number;
    const question = style === QUESTION;
    this.#unanswered = question ? Answer.no : Answer.ok;
    const dialog = (this.dialog = document.createElement('dialog'));
    dialog.lang = who === THE_CONTROLS ? OWN_LANGUAGE : view.language.tag;
    dialog.className = question ? 'message asks' : 'message';
    dialog.part = 'dialog message';
    dialog.setAttribute('role', 'alertdialog');
    dialog.setAttribute('aria-labelledby', `title${number}`);
    dialog.setAttribute('aria-describedby', `text${number}`);
    dialog.append(
      element('div', { id: `title${number}`, className: 'title', textContent: title }),
      element('div', { id: `text${number}`, className: 'text', textContent: text.replaceAll('\r\n', '\n') }),
      element('div', { className: 'buttons' }, question
        ? [this.#button('Yes', Answer.yes), this.#button('No', Answer.no, true)]
        : [this.#button('Ok', Answer.ok, true)]),
    );
    dialog.addEventListener('keydown', (event) => this.#keyDown(event), true);
    dialog.addEventListener('keyup', (event) => this.#keyUp(event), true);
    // A press beside the buttons leaves the focus where it answers.
    dialog.addEventListener('mousedown', (event) => {
      if (event.target.closest('button') === null) event.preventDefault();
    });
    dialog.box = this;
  }

  /** As Escape does: what stands where nobody answers, from who has seen the box. */
  leave(event) {
    if (isMeant(this.#view, this.#number, event)) this.#answer(this.#unanswered);
  }

  #button(text, answer, first = false) {
    const { language } = this.#view;
    const button = element('button', { type: 'button', autofocus: first, lang: language.tag });
    button.part = 'button';
    const caption = language.of(text);
    writeCaption(button, caption);
    const [, letter] = /&(.)/s.exec(caption) ?? [];
    if (letter !== undefined) this.#letters.set(letter.toLowerCase(), answer);
    button.addEventListener('click', () => this.#answer(answer));
    return button;
  }

  /** To the next button, and around. */
  #go(step) {
    const buttons = [...this.dialog.querySelectorAll('button')];
    const at = buttons.indexOf(this.dialog.getRootNode().activeElement);
    buttons[(at + step + buttons.length) % buttons.length].focus();
  }

  #answer(answer) {
    answerBox(this.#view, this.#number, answer);
  }

  #keyDown(event) {
    if (!isMeant(this.#view, this.#number, event)) {
      this.#passed.add(event.code);
      event.preventDefault();
      event.stopPropagation();
      return;
    }
    this.#passed.delete(event.code);
    const step = event.key === 'Tab' ? (event.shiftKey ? -1 : 1) : STEPS[event.key];
    const answer = event.key === 'Escape' ? this.#unanswered : event.altKey ? this.#letters.get(event.key.toLowerCase()) : undefined;
    if (answer !== undefined) this.#answer(answer);
    else if (step !== undefined) this.#go(step);
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
