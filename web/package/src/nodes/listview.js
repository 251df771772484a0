// A table with heads, of whose rows one is the chosen one.

import { Shows } from './contract.js';
import { make, shown } from './making.js';
import { Node } from './node.js';

export class ListView extends Node {
  constructor(view, id, design) {
    const outer = shown('div', 'control listview', 'table', { tabIndex: 0 });
    outer.setAttribute('role', 'group');
    const table = make('table', '');
    table.setAttribute('aria-label', design.label);
    table.append(make('thead', ''), make('tbody', ''));
    table.tHead.append(make('tr', ''));
    outer.append(table);
    super(view, id, design, outer, { input: outer });
    this.table = table;
  }
  show(what, number, text) {
    const body = this.table.tBodies[0];
    const heads = this.table.tHead.rows[0];
    switch (what) {
      case Shows.columns: heads.replaceChildren(); return;
      case Shows.heading: {
        const head = make('th', '', { scope: 'col', textContent: text });
        head.style.width = this.length(number);
        head.twips = number;
        heads.append(head);
        return;
      }
      case Shows.rows: body.replaceChildren(); return;
      case Shows.row: select(body.insertRow(), number !== 0); return;
      case Shows.cell: {
        const cell = body.rows[body.rows.length - 1].insertCell();
        cell.textContent = text;
        cell.className = number !== 0 ? 'bold' : '';
        return;
      }
      case Shows.selection: [...body.rows].forEach((row, i) => select(row, i + 1 === number)); return;
      default: super.show(what, number, text);
    }
  }
  enable(enabled) {
    this.outer.tabIndex = enabled ? 0 : -1;
    this.outer.classList.toggle('disabled', !enabled);
  }
}

function select(row, selected) {
  if (selected) row.setAttribute('aria-current', 'true');
  else row.removeAttribute('aria-current');
}
