// What a person would write who makes the same page by hand: the same elements at the same places, each with its name, its
// label and its help, one style sheet for all, listeners on what holds them rather than on each, and a record that is
// written at once. In the form an amount makes the percentage of the row before it, and those after it grow. Nothing is
// checked that the language does not check by itself, nothing can be taken back, and nothing follows the size of the
// page's font.
import { countOf, fill, laidOut } from './measure.js';

const ROWS = 80;
const PER_COLUMN = 20;
const shown = new Intl.NumberFormat('nl-NL', { minimumFractionDigits: 2, maximumFractionDigits: 2, useGrouping: true });
const read = (text) => Number(text.replaceAll('.', '').replace(',', '.'));

function place(element, left, top, width, height) {
  const { style } = element;
  style.left = `${left}px`;
  style.top = `${top}px`;
  style.width = `${width}px`;
  style.height = `${height}px`;
  return element;
}
function make(name, className, properties) {
  const made = document.createElement(name);
  made.className = `place ${className}`;
  return Object.assign(made, properties);
}
let last = 0;
function box(label, kind, name) {
  const made = make('input', `box ${kind}`, { type: 'text', autocomplete: 'off', id: `c${++last}`, name });
  made.setAttribute('aria-label', label);
  return made;
}

/** The editor: nine frames with what stands in them, and a table of effects. */
function makeEditor(item) {
  const area = make('div', 'area', {});
  area.classList.remove('place');
  area.style.height = '560px';
  let frame;
  let i = 0;
  const add = (element) => {
    frame.append(place(element, 8 + (i % 4) * 120, 18 + Math.floor(i / 4) * 24, 110, 21));
    ++i;
  };
  const parts = { text: 13, date: 4, select: 3, radio: 8, checkbox: 4, button: 13, label: 71 };
  const kinds = Object.entries(parts).flatMap(([kind, count]) => Array(count).fill(kind));
  kinds.forEach((kind, n) => {
    if (n % 13 === 0) {
      frame = make('fieldset', 'frame', {});
      frame.append(Object.assign(document.createElement('legend'), { textContent: `Groep ${n / 13 + 1}` }));
      area.append(place(frame, 8 + ((n / 13) % 2) * 500, 8 + Math.floor(n / 26) * 110, 490, 100));
      i = 0;
    }
    const name = `${kind}${n}`;
    if (kind === 'text' || kind === 'date') {
      const made = box(`Waarde ${n}`, kind === 'text' ? 'number' : '', name);
      made.value = kind === 'text' ? shown.format(item.values.get(name) ?? 0) : (item.values.get(name) ?? '01-04-2031');
      add(made);
    } else if (kind === 'select') {
      const made = make('select', 'box', { id: `c${++last}`, name });
      made.setAttribute('aria-label', `Keuze ${n}`);
      for (let entry = 0; entry < 5; ++entry) made.add(new Option(`keuze ${entry}`));
      made.selectedIndex = 1;
      add(made);
    } else if (kind === 'radio' || kind === 'checkbox') {
      const made = make('label', 'choice', {});
      const input = Object.assign(document.createElement('input'), { type: kind, id: `c${++last}`, name: kind === 'radio' ? 'keuze' : name });
      made.append(input, `Vinkje ${n}`);
      add(made);
    } else if (kind === 'button') {
      const made = make('button', 'button', { type: 'button', id: `c${++last}`, textContent: `Knop ${n}`, title: `Help bij ${n}` });
      add(made);
    } else {
      add(make('span', 'label', { textContent: `Bijschrift ${n}` }));
    }
  });
  const table = document.createElement('table');
  for (let row = 0; row < 4; ++row) {
    const cells = table.insertRow();
    for (let cell = 0; cell < 3; ++cell) cells.insertCell().textContent = `cel ${row} ${cell}`;
  }
  area.append(table);
  area.addEventListener('change', ({ target }) => {
    item.values.set(target.name, target.type === 'checkbox' ? target.checked : target.value);
    if (target.classList.contains('number')) target.value = shown.format(read(target.value));
  });
  area.addEventListener('keydown', (event) => {
    if (event.key === 'Escape') event.target.value = item.values.get(event.target.name) ?? '';
  });
  return area;
}

class YearForm {
  amounts = Array(ROWS + 1).fill(2.5);
  percentages = Array(ROWS + 1).fill(0);
  discounts = Array(ROWS + 1).fill(0);

  constructor() {
    const dialog = (this.dialog = document.createElement('dialog'));
    dialog.setAttribute('aria-label', 'Scenario');
    const area = (this.area = make('div', 'area scroll', {}));
    area.classList.remove('place');
    area.style.width = '1150px';
    area.style.height = '620px';
    this.boxes = { amount: [], percentage: [], discount: [] };
    for (let row = 1; row <= ROWS; ++row) this.#addRow(row);
    area.append(place(make('button', 'button', { type: 'button', textContent: 'OK' }), 1050, 580, 81, 25));
    area.append(place(make('button', 'button', { type: 'button', textContent: 'Annuleren' }), 960, 580, 81, 25));
    dialog.append(area);
    area.addEventListener('input', ({ target }) => (this.dirty = target));
    area.addEventListener('change', ({ target }) => this.#commit(target));
    area.addEventListener('keydown', (event) => {
      if (event.key !== 'Enter' || event.target.localName !== 'input') return;
      event.preventDefault();
      if (this.dirty === event.target) this.#commit(event.target);
      const column = this.boxes[event.target.dataset.kind];
      const next = column[Number(event.target.dataset.row) + 1];
      next?.focus();
      next?.select();
    });
  }

  #addRow(row) {
    const left = 9 + Math.floor((row - 1) / PER_COLUMN) * 282;
    const top = 68 + ((row - 1) % PER_COLUMN) * 24;
    const add = (element, x, y, width, height) => this.area.append(place(element, left + x, top + y, width, height));
    const number = (kind, label, value) => {
      const made = box(`${label} jaar ${row}`, 'number', `${kind}${row}`);
      made.inputMode = 'decimal';
      made.dataset.kind = kind;
      made.dataset.row = row;
      made.title = `Jaar ${row}`;
      made.value = shown.format(value);
      this.boxes[kind][row] = made;
      return made;
    };
    const text = (textContent) => make('span', 'label', { textContent });
    add(text(String(row)), 0, 3, 28, 15);
    add(number('amount', 'Bedrag', this.amounts[row]), 32, 0, 98, 21);
    add(number('percentage', 'Percentage', this.percentages[row]), 134, 0, 52, 21);
    add(text('%'), 190, 3, 12, 15);
    add(number('discount', 'Korting', this.discounts[row]), 206, 0, 52, 21);
    add(text('%'), 262, 3, 12, 15);
  }

  #show(kind, row, value) {
    const text = shown.format(value);
    const made = this.boxes[kind][row];
    if (made.value !== text) made.value = text;
  }

  #commit(target) {
    this.dirty = null;
    const { kind } = target.dataset;
    const row = Number(target.dataset.row);
    const value = read(target.value);
    if (Number.isNaN(value)) return target.setAttribute('aria-invalid', 'true');
    target.removeAttribute('aria-invalid');
    target.value = shown.format(value);
    if (kind === 'discount') return void (this.discounts[row] = value);
    if (kind === 'amount') {
      this.amounts[row] = value;
      if (row > 1 && this.amounts[row - 1] !== 0) {
        this.percentages[row - 1] = (value / this.amounts[row - 1] - 1) * 100;
        this.#show('percentage', row - 1, this.percentages[row - 1]);
      }
    } else {
      this.percentages[row] = value;
    }
    for (let later = row + 1; later <= ROWS; ++later) {
      this.amounts[later] = this.amounts[later - 1] * (1 + this.percentages[later - 1] / 100);
      this.#show('amount', later, this.amounts[later]);
    }
  }
}

const addEditor = () => document.querySelector('main').append(makeEditor({ values: new Map([['text0', 2.5]]) }));
let form;

await laidOut(addEditor);
window.started = performance.now();
window.work = {
  editor: () => laidOut(addEditor),
  form: () =>
    laidOut(() => {
      form = new YearForm();
      document.body.append(form.dialog);
      form.dialog.showModal();
      form.boxes.amount[1].focus();
      form.boxes.amount[1].select();
    }),
  fill: () => fill(form.area.querySelectorAll('input')),
};
window.counts = () => ({ editor: countOf(document.querySelector('main .area')), form: countOf(form.dialog) });
window.isReady = true;
