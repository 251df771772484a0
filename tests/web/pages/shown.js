// What really stands on the page, in the words of tests/toolkits/shown: kind, name, place in pixels, state, caption, content.

const KINDS = ['Frame', 'Label', 'TextBox', 'JaNee', 'Hint', 'OptionButton', 'CheckBox', 'ListBox', 'Button', 'ListView', 'Surface'];
/** A box of whole numbers that nothing was written to holds 0. */
const WHOLE = 4;
const Kind = { textBox: 2, jaNee: 3, hint: 4, option: 5, checkBox: 6, list: 7, listView: 9, surface: 10 };

function placeOf({ outer, twips }) {
  if (outer.getClientRects().length === 0) {
    // What is not on the screen has a place all the same.
    const [left, top, right, bottom] = [twips[0], twips[1], twips[0] + twips[2], twips[1] + twips[3]].map((edge) => Math.round(edge / 15));
    return [left, top, right - left, bottom - top];
  }
  const box = outer.getBoundingClientRect();
  const around = outer.parentElement.getBoundingClientRect();
  const [left, top, right, bottom] = [box.left - around.left, box.top - around.top, box.right - around.left, box.bottom - around.top]
    .map((edge) => Math.round(edge));
  return [left, top, right - left, bottom - top];
}

function isDisabled({ outer, input, area, design }) {
  if (design.kind === Kind.surface) return area.inert;
  return outer.classList.contains('disabled') || input?.disabled === true;
}

function captionOf({ design, caption, outer }) {
  if (design.kind === Kind.hint) return null;
  if (caption !== null) return caption.textContent;
  return outer.localName === 'fieldset' ? (outer.getAttribute('aria-label') ?? '') : null;
}

function listView({ table }) {
  const rows = [...table.tBodies[0].rows];
  const columns = [...table.tHead.rows[0].cells].map((head) => ` <${head.textContent} ${Math.round(head.twips / 15)}>`);
  const texts = rows.map((row) => ` [${[...row.cells].map((cell) => `${cell.className === 'bold' ? '*' : ''}${cell.textContent}|`).join('')}]`);
  return `row ${rows.findIndex((row) => row.getAttribute('aria-current') === 'true') + 1} of${columns.join('')}${texts.join('')}`;
}

function contentOf(node) {
  const { input, design } = node;
  switch (design.kind) {
    case Kind.textBox: return input.value === '' && design.format === WHOLE ? '0' : input.value;
    case Kind.jaNee: return input.getAttribute('aria-checked') === 'true' ? '2' : '1';
    case Kind.option: return input.checked ? 'selected' : '';
    case Kind.checkBox: return input.checked ? '1' : '0';
    case Kind.list: return `entry ${input.selectedIndex} of${[...input.options].map((option) => ` [${option.text}]`).join('')}`;
    case Kind.listView: return listView(node);
    default: return '';
  }
}

function line(node) {
  const { design, outer, input } = node;
  const [left, top, width, height] = placeOf(node);
  const caption = captionOf(node);
  const content = contentOf(node);
  return `${KINDS[design.kind]} ${design.name} at ${left},${top} of ${width}x${height}` + (outer.hidden ? ' hidden' : '') +
    (isDisabled(node) ? ' disabled' : '') + (input?.readOnly ? ' locked' : '') + (caption === null ? '' : ` "${caption}"`) +
    (content === '' ? '' : ` = ${content}`);
}

/** A line for each control of an element, in the order in which they were made. */
export function shownText(element) {
  const view = element.shadowRoot.querySelector('input').node.view;
  return [...view.nodes.values()].filter(({ design, outer }) => design.kind < KINDS.length && outer.parentElement !== null).map(line);
}
