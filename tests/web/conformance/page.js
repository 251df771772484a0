// The page in which the tests of the controls run, compiled with them. Each stage of a test is an element of its own; what
// a person does on it is asked of `person`, which presses keys and the mouse of the browser (run.mjs).
import { ready } from '/conformance/src/index.js';
import { enter } from '/conformance/src/jobs.js';
import { internals } from '/conformance/src/machine.js';

import { looks } from './looks.js';

const NOTCH = 120;

await ready;
const { machine, memory } = internals();
const stages = new Map();

/** Says at once that something has come on the screen, when the machine is done with what brought it there. */
const tell = (call) => setTimeout(() => enter(call));

function open() {
  const element = document.createElement('vrije-kolom');
  document.querySelector('main').append(element);
  const view = element._view;
  const stage = { element, view, root: view.root, scrolled: 0 };
  view.openForm = (id) => {
    const opened = Object.getPrototypeOf(view).openForm.call(view, id);
    if (opened) tell(() => machine._brivane_stage_opened(view.number, id));
    return opened;
  };
  view.openBox = (number, ...given) => {
    const opened = Object.getPrototypeOf(view).openBox.call(view, number, ...given);
    if (opened) tell(() => machine._brivane_stage_asked(view.number, number));
    return opened;
  };
  element.addEventListener('wheel', (event) => (stage.scrolled += Math.round(event.deltaY / NOTCH)), { passive: true });
  stages.set(view.number, stage);
  return view.number;
}

// Behind its own bars a browser goes on at the top of the page.
document.querySelector('main + span').addEventListener('focus', () => {
  document.querySelector('vrije-kolom').shadowRoot.querySelector('input:enabled')?.focus();
});

/** Whether what the focused control drops down is open; nothing where it drops nothing down. */
window.dropped = () => {
  for (const { root } of stages.values()) {
    const { input, button, picker } = root.activeElement?.node ?? {};
    if (input?.localName === 'select') return looks.dropped(null, { input });
    if (input?.type === 'text' && button !== undefined && !input.readOnly) return looks.calendar(null, { picker });
  }
};
/** How many notches of the wheel have come. */
window.scrolled = () => [...stages.values()].reduce((sum, { scrolled }) => sum + scrolled, 0);

/** The time, where it stands still: however long the browser takes over a key then, it goes down at that time. */
let still = null;
addEventListener('keydown', (event) => {
  if (still !== null) Object.defineProperty(event, 'timeStamp', { value: still });
}, true);
const now = () => still;
function setClock(runs) {
  still = runs ? null : performance.now();
  if (runs) delete performance.now;
  else performance.now = now;
}

/** What happens without keys and mouse. */
const doings = {
  settle: () => {},
  /** `stop`, or `start`. */
  clock: (_, how) => setClock(how === 'start'),
  wait: (_, time) => (still === null ? new Promise((done) => setTimeout(done, Number(time))) : void (still += Number(time))),
  show({ root, view }, node) {
    for (const other of root.children) other.hidden ||= other.matches('.surface');
    const { outer } = view.nodes.get(Number(node));
    root.prepend(outer);
    outer.hidden = false;
  },
  focus: ({ view }, node) => view.nodes.get(Number(node)).input?.focus(),
  copy: (_, text) => navigator.clipboard.writeText(text),
};

/** What has been asked of the page until now is done before this comes back. */
function pause() {
  return new Promise((done) => {
    const { port1, port2 } = new MessageChannel();
    port1.onmessage = done;
    port2.postMessage(null);
  });
}

async function act(stage, what) {
  await pause();
  const at = what.search(/ |$/);
  const doing = doings[what.slice(0, at)];
  if (doing !== undefined) return doing(stage, what.slice(at + 1));
  // Who types makes no pause between the letters.
  const stops = what.startsWith('type ') && still === null;
  if (stops) setClock(false);
  try {
    await window.person(what);
  } finally {
    if (stops) setClock(true);
  }
}

machine.stage = {
  open,
  close(page) {
    stages.get(page).element.remove();
    stages.delete(page);
  },
  look: (page, what, node, number) => {
    const stage = stages.get(page);
    return memory.give(String(looks[what](stage, stage.view.nodes.get(node), number)));
  },
  async do(page, what, doing) {
    const failure = await act(stages.get(page), what).then(() => '', String);
    memory.lend(failure, (text) => machine._brivane_stage_done(doing, text));
    enter(() => machine._brivane_go_on());
  },
  ended: (code) => window.ended(code),
};

const given = new URLSearchParams(location.search);
memory.lend(given.get('filter') ?? '', (filter) =>
  memory.lend(given.get('browser'), (browser) => enter(() => machine._brivane_tests_run(filter, browser))));
