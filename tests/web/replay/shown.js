// The state of every control as the elements of the page really show it, in the words of the door's state. What is shown as
// it was asked for (a caption with its mnemonic, a place to the pixel) is given as it was asked for.

const Kind = Object.freeze({ frame: 0, label: 1, textBox: 2, jaNee: 3, hint: 4, option: 5, checkBox: 6, list: 7, button: 8, listView: 9, surface: 10 });
const Format = Object.freeze({ amount: 2, number: 3, whole: 4, date: 5 });

const plain = (caption) => caption.replace(/&(.)/gs, '$1');
const numberOf = (text) => (text === '' ? 0 : Number(text.replaceAll('.', '').replace(',', '.')));

function valueOf(node, asked) {
  const { input, design } = node;
  switch (design.kind) {
    case Kind.jaNee: return input.getAttribute('aria-checked') === 'true' ? 2 : 1;
    case Kind.option: return input.checked;
    case Kind.checkBox: return input.checked ? 1 : 0;
    case Kind.textBox: return contentOf(input.value, design.format, asked);
    default: return undefined;
  }
}

/** What a box shows, read back; a number to the decimals that are shown. */
function contentOf(text, format, asked) {
  if (format === Format.date) {
    const [, day, month, year] = /^(\d\d)-(\d\d)-(\d{4})$/.exec(text) ?? [];
    return year === undefined ? (text === '' ? 0 : text) : `${year}-${month}-${day}`;
  }
  if (![Format.amount, Format.number, Format.whole].includes(format)) return text;
  const number = numberOf(text);
  if (Number.isNaN(number)) return text;
  const decimals = { [Format.amount]: 2, [Format.number]: 4, [Format.whole]: 0 }[format];
  return Math.abs(number - asked) <= 0.5 * 10 ** -decimals + 1e-9 ? asked : number;
}

function placeOf(node, asked) {
  const { outer } = node;
  const wanted = [asked.left, asked.top, asked.width, asked.height];
  if (outer.getClientRects().length === 0) return node.twips;
  const twip = parseFloat(getComputedStyle(outer.getRootNode().host).fontSize) / 180;
  const box = outer.getBoundingClientRect();
  const around = outer.parentElement.getBoundingClientRect();
  const shown = [box.left - around.left, box.top - around.top, box.width, box.height];
  return shown.map((length, i) => (Math.abs(length - wanted[i] * twip) < 0.6 ? wanted[i] : length / twip));
}

function enabledOf({ design, outer, input, area }) {
  if (design.kind === Kind.frame) return !outer.disabled;
  if (design.kind === Kind.surface) return !area.inert;
  if (design.kind === Kind.label || design.kind === Kind.listView) return !outer.classList.contains('disabled');
  return !input.disabled;
}

function captionOf(node, asked) {
  const shown = node.caption?.textContent ?? plain(node.outer.getAttribute('aria-label') ?? '');
  return shown === plain(asked) || shown === asked ? asked : shown;
}

function listViewOf({ table }, asked) {
  const rows = [...table.tBodies[0].rows];
  const selected = rows.findIndex((row) => row.getAttribute('aria-current') === 'true');
  return {
    columns: [...table.tHead.rows[0].cells].map((cell) => cell.textContent),
    widths: [...table.tHead.rows[0].cells].map((cell) => cell.twips),
    rows: rows.map((row, i) => ({
      key: asked.rows[i]?.key,
      texts: [...row.cells].map((cell) => cell.textContent),
      bold: [...row.cells].map((cell) => getComputedStyle(cell).fontWeight >= 600),
    })),
    selected: selected < 0 ? null : asked.rows[selected]?.key,
  };
}

/** `asked` is the door's state of the same surface. */
export function shown(view, asked) {
  const nodes = new Map([...view.nodes.values()].map((node) => [node.design.name, node]));
  return Object.fromEntries(
    Object.entries(asked).map(([name, control]) => {
      const node = nodes.get(name);
      if (node === undefined) return [name, null];
      const [left, top, width, height] = placeOf(node, control);
      const state = { ...control, kind: node.design.kind, visible: !node.outer.hidden, enabled: enabledOf(node), left, top, width, height };
      if (control.value !== undefined) state.value = valueOf(node, control.value);
      if (control.caption !== undefined) state.caption = captionOf(node, control.caption);
      if (control.locked !== undefined) state.locked = node.input.readOnly;
      if (control.entries !== undefined) {
        state.entries = [...node.input.options].map((option) => option.text);
        state.index = node.input.selectedIndex;
      }
      if (control.columns !== undefined) Object.assign(state, listViewOf(node, control));
      return [name, state];
    }),
  );
}
