// What the machine says of a control and of what it shows, by number.

/** As in Control.h. */
export const Kind = Object.freeze({
  frame: 0, label: 1, textBox: 2, jaNee: 3, hint: 4, option: 5, checkBox: 6, list: 7, button: 8, listView: 9, surface: 10,
  form: 100,
});
/** As in Design.h. */
export const Format = Object.freeze({ text: 1, amount: 2, number: 3, whole: 4, date: 5 });
/** As in Peer.h and Page.h. */
export const Shows = Object.freeze({
  value: 0, enabled: 1, visible: 2, caption: 3, fontSize: 5, backColor: 6, locked: 7, entries: 8, entryAdded: 9,
  listIndex: 10, columns: 11, rows: 12, selection: 13, veil: 14,
  number: 32, selected: 36, focus: 37, label: 38, help: 39, heading: 40, row: 41, cell: 42,
});
