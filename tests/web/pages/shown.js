// What really stands on the page, in the words of tests/toolkits/shown: kind, name, place in pixels, state, caption, content.

import { captionOf, entriesOf, isEnabled, isJa, Kind, KINDS, placeIn, tableOf, TWIPS_A_PIXEL } from './read.js';

/** A box of whole numbers that nothing was written to holds 0. */
const WHOLE = 4;

/** From edge to edge, to the pixel. */
function placeOf(node) {
  const [left, top, width, height] = placeIn(node);
  const [x, y] = [Math.round(left), Math.round(top)];
  return [x, y, Math.round(left + width) - x, Math.round(top + height) - y];
}

function listView(node) {
  const { row, heads, rows } = tableOf(node);
  const columns = heads.map((head) => ` <${head.textContent} ${Math.round(head.twips / TWIPS_A_PIXEL)}>`);
  const texts = rows.map((cells) => ` [${cells.map(({ text, bold }) => `${bold ? '*' : ''}${text}|`).join('')}]`);
  return `row ${row} of${columns.join('')}${texts.join('')}`;
}

function contentOf(node) {
  const { input, design } = node;
  switch (design.kind) {
    case Kind.TextBox: return input.value === '' && design.format === WHOLE ? '0' : input.value;
    case Kind.JaNee: return isJa(node) ? '2' : '1';
    case Kind.OptionButton: return input.checked ? 'selected' : '';
    case Kind.CheckBox: return input.checked ? '1' : '0';
    case Kind.ListBox: return `entry ${input.selectedIndex} of${entriesOf(node).map((text) => ` [${text}]`).join('')}`;
    case Kind.ListView: return listView(node);
    default: return '';
  }
}

function line(node) {
  const { design, outer, input } = node;
  const [left, top, width, height] = placeOf(node);
  const caption = captionOf(node);
  const content = contentOf(node);
  return `${KINDS[design.kind]} ${design.name} at ${left},${top} of ${width}x${height}` + (outer.hidden ? ' hidden' : '') +
    (isEnabled(node) ? '' : ' disabled') + (input?.readOnly ? ' locked' : '') + (caption === null ? '' : ` "${caption}"`) +
    (content === '' ? '' : ` = ${content}`);
}

/** A line for each control of an element, in the order in which they were made. */
export function shownText(element) {
  const view = element.shadowRoot.querySelector('input').node.view;
  return [...view.nodes.values()].filter(({ design, outer }) => design.kind < KINDS.length && outer.parentElement !== null).map(line);
}
