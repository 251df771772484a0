// What is to be seen of a stage, by the names that Stage.cpp asks for. Several parts have a separator behind each.

import { captionOf, entriesOf, isEnabled, isJa, isShown, Kind, placeIn, tableOf, TWIPS_A_PIXEL } from '../pages/read.js';

const middle = ({ left, top, width, height }) => `${left + width / 2} ${top + height / 2}`;

/** Where it is in the window, and where it would be when it is not on the screen. */
function placeOf(view, node) {
  let [left, top] = [0, 0];
  let at = node;
  while (!isShown(at.outer)) {
    left += at.twips[0] / TWIPS_A_PIXEL;
    top += at.twips[1] / TWIPS_A_PIXEL;
    const around = at.outer.parentElement;
    at = [...view.nodes.values()].find(({ area }) => area === around);
    if (at === undefined) return null;
  }
  if (at === node) at.outer.scrollIntoView({ block: 'nearest', inline: 'nearest' });
  const box = (at === node ? at.outer : at.area).getBoundingClientRect();
  const [width, height] = at === node ? [box.width, box.height] : [node.twips[2], node.twips[3]].map((twips) => twips / TWIPS_A_PIXEL);
  return { left: box.left + left, top: box.top + top, width, height };
}

function listView(node) {
  const { row, heads, rows } = tableOf(node);
  return [
    row, heads.length, ...heads.flatMap((head) => [head.textContent, head.getBoundingClientRect().width || head.twips / TWIPS_A_PIXEL]),
    ...rows.flatMap((cells) => [cells.length, ...cells.flatMap(({ text, bold }) => [text, bold])]),
  ];
}

function contentOf(node) {
  const { input, design } = node;
  switch (design.kind) {
    case Kind.TextBox: return [input.readOnly, input.value];
    case Kind.JaNee: return [isJa(node)];
    case Kind.OptionButton: case Kind.CheckBox: return [input.checked];
    case Kind.ListBox: return [input.selectedIndex, ...entriesOf(node)];
    case Kind.ListView: return listView(node);
    default: return [];
  }
}

/** What stands beside a box. */
const bubble = (part) => ({ view }, node) =>
  view.bubble.anchor === node.outer && view.bubble.element.part.contains(part) ? view.bubble.element.textContent : '';

const messageOf = (root) => [...root.querySelectorAll('dialog.message[open]')].at(-1);

export const looks = {
  focused: ({ root }) => {
    const active = root.activeElement;
    // What has gone out of reach has the focus until the browser draws the next time.
    return active === null || active.matches(':disabled') || !isShown(active) ? '' : (active.node?.design?.name ?? '');
  },
  focusedText({ root }) {
    const box = root.activeElement;
    if (box?.localName !== 'input' || box.type !== 'text') return '';
    const { value, selectionStart: from, selectionEnd: to } = box;
    return `${value.slice(0, from)}[${value.slice(from, to)}]${value.slice(to)}`;
  },
  typed: (_, { input }) => input.value,
  reason: bubble('reason'),
  note: bubble('note'),
  title: (_, { caption }) => caption.textContent,
  tip: (_, { outer }) => outer.title,
  help: ({ view }) => (view.tip.anchor === null ? '' : view.tip.element.textContent),
  calendar: (_, { picker }) => picker?.matches(':open') === true,
  dropped: (_, { input }) => input.matches(':open'),
  entry: (_, { input }) => input.selectedIndex,
  marked: (_, { table }) => [...table.tBodies[0].rows].flatMap((row, i) => (row.hasAttribute('aria-current') ? [i + 1] : [])).join(' '),
  open: (_, node) => node?.outer.open === true,
  bare: ({ root }) => root.querySelector('.control') === null,
  asked: ({ root }) => messageOf(root) !== undefined,
  message: ({ root }) => messageOf(root)?.querySelector('.text').textContent ?? '',
  scrolled: ({ scrolled }) => scrolled,

  place({ view }, node) {
    const place = placeOf(view, node);
    return place === null ? '' : `${place.left} ${place.top} ${place.width} ${place.height}`;
  },
  row: (_, { table }, number) => middle(table.tBodies[0].rows[number - 1].cells[0].getBoundingClientRect()),
  close: (_, { closeButton }) => middle(closeButton.getBoundingClientRect()),
  shown: (_, node) =>
    [node.design.kind, !node.outer.hidden, isEnabled(node), ...placeIn(node), captionOf(node) ?? '', ...contentOf(node)]
      .map((part) => `${part}\x1f`).join(''),
};
