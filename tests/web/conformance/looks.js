// What is to be seen of a stage, by the names that Stage.cpp asks for. Several parts have a separator behind each.

const Kind = Object.freeze({ frame: 0, label: 1, textBox: 2, jaNee: 3, hint: 4, option: 5, checkBox: 6, list: 7, listView: 9, surface: 10 });
const TWIPS_A_PIXEL = 15;

const isShown = (element) => element.getClientRects().length > 0;
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

/** In what it stands in, in pixels. */
function inside(node) {
  const { outer, twips } = node;
  if (!isShown(outer)) return twips.map((length) => length / TWIPS_A_PIXEL);
  const box = outer.getBoundingClientRect();
  const around = outer.parentElement.getBoundingClientRect();
  return [box.left - around.left, box.top - around.top, box.width, box.height];
}

function isEnabled({ design, outer, input, area }) {
  if (design.kind === Kind.frame) return !outer.disabled;
  if (design.kind === Kind.surface) return !area.inert;
  if (design.kind === Kind.label || design.kind === Kind.listView) return !outer.classList.contains('disabled');
  return !input.disabled;
}

function captionOf({ design, caption, outer }) {
  if (design.kind === Kind.hint) return '';
  return caption !== null ? caption.textContent : (outer.getAttribute('aria-label') ?? '');
}

function listView({ table }) {
  const heads = [...table.tHead.rows[0].cells];
  const rows = [...table.tBodies[0].rows];
  return [
    rows.findIndex((row) => row.getAttribute('aria-current') === 'true') + 1,
    heads.length, ...heads.flatMap((head) => [head.textContent, head.getBoundingClientRect().width || head.twips / TWIPS_A_PIXEL]),
    ...rows.flatMap(({ cells }) => [cells.length, ...[...cells].flatMap((cell) => [cell.textContent, getComputedStyle(cell).fontWeight >= 600])]),
  ];
}

function contentOf(node) {
  const { input, design } = node;
  switch (design.kind) {
    case Kind.textBox: return [input.readOnly, input.value];
    case Kind.jaNee: return [input.getAttribute('aria-checked') === 'true'];
    case Kind.option: case Kind.checkBox: return [input.checked];
    case Kind.list: return [input.selectedIndex, ...[...input.options].map((option) => option.text)];
    case Kind.listView: return listView(node);
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
    [node.design.kind, !node.outer.hidden, isEnabled(node), ...inside(node), captionOf(node), ...contentOf(node)]
      .map((part) => `${part}\x1f`).join(''),
};
