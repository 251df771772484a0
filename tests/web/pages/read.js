// What the elements of a control say to who reads them: what it is, where it stands and what it has, all of it as shown.

export const KINDS = ['Frame', 'Label', 'TextBox', 'JaNee', 'Hint', 'OptionButton', 'CheckBox', 'ListBox', 'Button', 'ListView', 'Surface'];
/** The number of a kind by its name. */
export const Kind = Object.freeze(Object.fromEntries(KINDS.map((name, kind) => [name, kind])));
export const TWIPS_A_PIXEL = 15;

export const isShown = (element) => element.getClientRects().length > 0;

/** In what it stands in, in pixels: left, top, width, height. What is not on the screen has a place all the same. */
export function placeIn({ outer, twips }) {
  if (!isShown(outer)) return twips.map((length) => length / TWIPS_A_PIXEL);
  const box = outer.getBoundingClientRect();
  const around = outer.parentElement.getBoundingClientRect();
  return [box.left - around.left, box.top - around.top, box.width, box.height];
}

export function isEnabled({ design, outer, input, area }) {
  if (design.kind === Kind.Frame) return !outer.disabled;
  if (design.kind === Kind.Surface) return !area.inert;
  if (design.kind === Kind.Label || design.kind === Kind.ListView) return !outer.classList.contains('disabled');
  return !input.disabled;
}

/** Nothing for what has none. */
export function captionOf({ design, caption, outer }) {
  if (design.kind === Kind.Hint) return null;
  if (caption !== null) return caption.textContent;
  return outer.localName === 'fieldset' ? (outer.getAttribute('aria-label') ?? '') : null;
}

export const isJa = ({ input }) => input.getAttribute('aria-checked') === 'true';
export const entriesOf = ({ input }) => [...input.options].map((option) => option.text);

/** `row`: the one that is selected, from 1; 0 for none. */
export function tableOf({ table }) {
  const rows = [...table.tBodies[0].rows];
  return {
    row: rows.findIndex((row) => row.getAttribute('aria-current') === 'true') + 1,
    heads: [...table.tHead.rows[0].cells],
    rows: rows.map(({ cells }) => [...cells].map((cell) => ({ text: cell.textContent, bold: getComputedStyle(cell).fontWeight >= 600 }))),
  };
}
