// How the controls look. Lengths of the design are twips, of which a text of the page's size has as many as the design's
// font of 9 points; colours are those of the page's scheme.

/** As many twips are as long as the text around the element is high: the design's font of 9 points. */
export const TWIPS_AN_EM = 180;

const made = new WeakMap();

/** The style of every element of a document, made once: it cannot be shared with another one. */
export function sheetsOf(document) {
  const window = document.defaultView;
  if (window === null) return [];
  let sheet = made.get(document);
  if (sheet === undefined) {
    made.set(document, (sheet = new window.CSSStyleSheet()));
    sheet.replaceSync(CSS_TEXT);
  }
  return [sheet];
}

// A custom property is put in its place for each element anew, in as many properties as a shorthand has: so none stands in a
// longer one than it needs.
const CSS_TEXT = `
:host {
  display: block;
  overflow: auto hidden;
  font: 1em/1.25 sans-serif;
  font-family: var(--vrije-kolom-font-family, Arial, "Liberation Sans", sans-serif);
  font-size: var(--vrije-kolom-font-size, inherit);
  letter-spacing: normal; word-spacing: normal; text-transform: none; text-indent: 0; text-align: start; text-shadow: none;
  white-space: normal; word-break: normal; overflow-wrap: normal; hyphens: manual; direction: ltr; writing-mode: horizontal-tb;
  color: var(--vrije-kolom-color, CanvasText);
  background: var(--vrije-kolom-background, transparent);
  --accent: var(--vrije-kolom-accent, light-dark(#0a58a8, #8ab8f5));
  --on-accent: var(--vrije-kolom-on-accent, light-dark(#fff, #10151c));
  --line: var(--vrije-kolom-line, light-dark(#8a8f96, #7c828a));
  --field: var(--vrije-kolom-field, light-dark(#fff, #1f2329));
  --face: var(--vrije-kolom-face, light-dark(#f1f3f5, #343a42));
  --faint: light-dark(#5c6168, #a4abb4);
}
:host([hidden]), [hidden] { display: none !important; }
*, .frame::before, .calendar::before, .message .text::before { box-sizing: border-box; }
input, select, button { font: inherit; color: inherit; margin: 0; }
fieldset { border: 0; margin: 0; padding: 0; min-inline-size: 0; }
.control { position: absolute; }
.surface { overflow: visible; }
:host > .surface, .surface:first-child { position: relative; }
.area, .inside { position: absolute; inset: 0; }
.inside { position: relative; inset: auto; }
.area .surface { position: absolute; }
.surface.empty { max-width: 100%; overflow: hidden; }
.veiled { visibility: hidden; }
.veil { position: absolute; inset: 0; margin: 0; display: grid; place-items: center; text-align: center; }

.frame::before {
  content: ""; position: absolute; inset: .55em 0 0; border: 1px solid; border-color: var(--line); border-radius: 3px; pointer-events: none;
}
.legend {
  position: absolute; left: .5em; top: 0; padding: 0 .3em; background: var(--vrije-kolom-background, Canvas); line-height: 1.15;
  white-space: nowrap;
}
.label { white-space: pre; overflow: hidden; }
.lines { white-space: normal; }
.disabled, .disabled .label, fieldset:disabled .label, fieldset:disabled .choice { color: GrayText; }

.box {
  padding: 0 .3em; border: 1px solid; border-color: var(--line); border-radius: 2px; background-color: var(--field); color: CanvasText;
  min-width: 0; min-height: 0;
}
.select, .cut { text-overflow: ellipsis; }
.box:disabled { pointer-events: none; }
.number { text-align: right; }
.date .box { position: absolute; inset: 0; width: 100%; height: 100%; padding-right: 1.6em; }
.box:disabled { color: GrayText; background-color: var(--face); opacity: 1; }
.box:read-only:not(select) { background-color: var(--face); }
.box[aria-invalid] { border-color: light-dark(#b3140e, #ff8a80); }
.picker { position: absolute; inset: auto 0 0 0; width: 100%; height: 0; opacity: 0; border: 0; padding: 0; pointer-events: none; }
.calendar {
  position: absolute; right: 1px; top: 1px; bottom: 1px; width: 1.5em; padding: 0; border: 0; background: none;
}
.calendar::before {
  content: ""; display: block; margin: auto; width: .8em; height: .75em; border: 1px solid; border-top-width: .25em;
}
.calendar:disabled { color: GrayText; }

.toggle { display: grid; grid-template-columns: 1fr 1fr; padding: 0; border: 1px solid; border-color: var(--line); border-radius: 2px; background-color: var(--field); color: CanvasText; overflow: hidden; }
.toggle span { display: grid; place-items: center; height: 100%; }
.toggle[aria-checked="true"] span:first-child, .toggle[aria-checked="false"] span:last-child {
  background-color: var(--accent); color: var(--on-accent); forced-color-adjust: none;
}
.toggle:disabled { color: GrayText; }
.toggle:disabled[aria-checked="true"] span:first-child, .toggle:disabled[aria-checked="false"] span:last-child {
  background-color: var(--faint); color: Canvas;
}
.choice { display: flex; align-items: center; gap: .35em; white-space: nowrap; }
.choice input { width: 1.05em; height: 1.05em; flex: none; accent-color: var(--accent); }
.button, .buttons button, .close {
  padding: 0 .6em; border: 1px solid; border-color: var(--line); border-radius: 3px; background-color: var(--face); white-space: nowrap;
}
.button:disabled { color: GrayText; }
.hint { display: grid; place-items: center; }
.help {
  width: 100%; aspect-ratio: 1; padding: 0; border: 0; border-radius: 50%; background-color: var(--accent); color: var(--on-accent);
  font-weight: bold; line-height: 1; forced-color-adjust: none;
}
.spoken { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); }
.spoken[role] { position: fixed; inset: 0 auto auto 0; }
.tip, .bubble {
  border: 1px solid; border-color: var(--line); border-radius: 3px; background-color: light-dark(#fffbe6, #2b2f36); color: CanvasText;
  box-shadow: 0 2px 6px rgb(0 0 0 / .3);
  position: fixed; inset: auto; margin: 0; width: max-content; max-width: min(34em, 92vw); padding: .3em .5em; pointer-events: none;
}

.listview { overflow: auto; border: 1px solid; border-color: var(--line); background-color: var(--field); color: CanvasText; }
table { border-collapse: collapse; table-layout: fixed; width: 100%; }
th, thead tr::after { position: sticky; top: 0; background-color: var(--face); font-weight: normal; border-right: 1px solid; border-color: var(--line); }
th:last-child, thead tr::after { border-right: 0; }
th, td { text-align: start; padding: 0 .2em; overflow: hidden; white-space: nowrap; text-overflow: ellipsis; }
tr::after { content: ""; display: table-cell; }  /* columns are as wide as designed, and rows as wide as the list */
.bold { font-weight: bold; }
tr[aria-current] td, tr[aria-current]::after { background-color: var(--accent); color: var(--on-accent); forced-color-adjust: none; }

:is(.box, .toggle, .help, .button, .choice input, .listview, .buttons button, .close):focus-visible {
  outline: 2px solid var(--accent); outline-offset: 1px;
}
dialog {
  color: CanvasText; background-color: Canvas; border: 1px solid; border-color: var(--line); border-radius: 5px; padding: 0;
  box-shadow: 0 6px 24px rgb(0 0 0 / .4);
}
dialog::backdrop { background: rgb(0 0 0 / .3); }
.form { position: fixed; max-width: 96vw; max-height: 94vh; overflow: hidden; }
.form[open] { display: flex; flex-direction: column; }
.head { display: flex; align-items: center; justify-content: space-between; gap: 1em; padding: .3em .4em .3em .8em; border-bottom: 1px solid; border-color: var(--line); }
.title { font-weight: bold; }
.scroll { overflow: auto; }
.message { max-width: min(34em, 92vw); padding: .9em 1.1em; }
.message .text {
  display: grid; grid-template-columns: auto 1fr; gap: .9em; align-items: center; margin: .7em 0 1em; white-space: pre-line;
}
.message .text::before {
  content: "!" / ""; display: grid; place-items: center; width: 2em; height: 2em; border-radius: 50%; font-weight: bold;
  background: light-dark(#8a5a00, #ffc24d); color: light-dark(#fff, #10151c); forced-color-adjust: none;
}
.message.asks .text::before { content: "?" / ""; background: var(--accent); color: var(--on-accent); }
.buttons { display: flex; justify-content: flex-end; gap: .6em; }
.buttons button { min-width: 5em; padding: .3em .8em; }
@media (forced-colors: active) {
  :host { --accent: Highlight; --on-accent: HighlightText; --line: ButtonBorder; --field: Field; --face: ButtonFace; --faint: GrayText; }
  .message .text::before { background: Highlight; color: HighlightText; }
}
/* Paper is light, and nothing scrolls on it. What only a background tells is printed. */
@media print {
  :host { overflow: visible; font-size: min(var(--vrije-kolom-font-size, 1em), 1.3vw); color-scheme: light; }
  .toggle span, .help, tr[aria-current] td, tr[aria-current]::after, .message .text::before {
    -webkit-print-color-adjust: exact; print-color-adjust: exact;
  }
}
`;
