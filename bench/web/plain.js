// The same numbers of the same elements, made by hand at the same places, with a listener that reads a number.
import { timed } from './measure.js';

const EDITOR = { text: 13, date: 4, select: 3, radio: 8, checkbox: 4, button: 13, label: 71 };
const ROWS = 82;
const values = new Map();
const shown = new Intl.NumberFormat('nl-NL', { minimumFractionDigits: 2 });

function place(element, i, columns) {
  Object.assign(element.style, { position: 'absolute', left: `${(i % columns) * 120}px`, top: `${Math.floor(i / columns) * 24}px`, width: '110px', height: '21px' });
  return element;
}
function input(type, label) {
  const made = document.createElement('input');
  made.type = type;
  made.setAttribute('aria-label', label);
  return made;
}
function number(box) {
  const read = Number(box.value.replaceAll('.', '').replace(',', '.'));
  if (Number.isNaN(read)) return;
  values.set(box, read);
  box.value = shown.format(read);
}

function addEditor() {
  const area = document.createElement('div');
  area.style.position = 'relative';
  let i = 0;
  const add = (element) => area.append(place(element, i++, 8));
  for (const type of ['text', 'date', 'radio', 'checkbox']) for (let n = 0; n < EDITOR[type]; ++n) add(input(type, `${type} ${n}`));
  for (let n = 0; n < EDITOR.select; ++n) {
    const select = document.createElement('select');
    for (let entry = 0; entry < 5; ++entry) select.add(new Option(`keuze ${entry}`));
    add(select);
  }
  for (const name of ['button', 'label'])
    for (let n = 0; n < EDITOR[name]; ++n) add(Object.assign(document.createElement(name), { textContent: `${name} ${n}` }));
  document.querySelector('main').append(area);
}

let dialog;
function openForm() {
  dialog = document.createElement('dialog');
  let i = 0;
  for (let row = 1; row <= ROWS; ++row) {
    dialog.append(place(Object.assign(document.createElement('span'), { textContent: String(row) }), i++, 3));
    for (const name of ['Bedrag', 'Percentage']) {
      const box = input('text', `${name} jaar ${row}`);
      box.value = '2,50';
      dialog.append(place(box, i++, 3));
    }
  }
  dialog.addEventListener('keydown', ({ key, target }) => {
    if (key !== 'Enter') return;
    number(target);
    let next = target.nextElementSibling;
    while (next !== null && next.localName !== 'input') next = next.nextElementSibling;
    next?.focus();
  });
  document.body.append(dialog);
  dialog.showModal();
}

addEditor();
document.body.getBoundingClientRect();
window.started = performance.now();
window.anotherEditor = () => timed(addEditor);
window.openForm = () => timed(openForm);
window.fillForm = () =>
  timed(() => {
    for (const box of dialog.querySelectorAll('input[type="text"]')) {
      box.focus();
      box.value = '12,5';
      box.dispatchEvent(new KeyboardEvent('keydown', { key: 'Enter', bubbles: true }));
    }
  });
window.isReady = true;
