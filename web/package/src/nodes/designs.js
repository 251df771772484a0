// What the machine has elements made from. It tells each design once.

const designs = new Map();

/** As Page.cpp writes it: its texts in one, and its traits by bits. */
export function describe(number, texts, kind, format, order, traits) {
  const [name, label, caption, group] = texts.split('\x1f');
  const [bordered, multiline, row] = [1, 2, 4].map((bit) => (traits & bit) !== 0);
  designs.set(number, { name, label, caption, group, kind, format, order, bordered, multiline, row });
}

/** The design of one element: after the first that was made of it, with that as its pattern. */
export function designOf(number, index) {
  const design = designs.get(number);
  if (design.placed === undefined) return design;
  const name = design.row ? design.name.replace(/\d+\)$/, `${index})`) : design.name;
  return { ...design, name, pattern: design };
}
