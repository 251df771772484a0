// The one machine of a page: the controls, compiled. Every element is a number to it.

import createMachine from '../machine/machine.js';
import { dayOf } from './days.js';
import { HostError } from './errors.js';
import { first, TWICE } from './first.js';
import { Host } from './host.js';
import { done, enter, failed, isAtWork, run } from './jobs.js';
import { Memory } from './memory.js';
import { describe } from './nodes/designs.js';

let machine = null;
let memory = null;
let loading = null;
let lastView = 0;
/** The views by number. Who takes an element away takes its view along. */
const views = new Map();
const gone = new FinalizationRegistry((number) => endView(number));

const viewOf = (number) => views.get(number)?.deref();

/** A member of the view that the machine names first; what is gone answers nothing. */
const toView = (name) => (number, one, two, three, four, five, six, seven, eight, nine) =>
  viewOf(number)?.[name](one, two, three, four, five, six, seven, eight, nine) ?? 0;

function calls(of) {
  const page = {
    describe,
    today: () => dayOf(new Date()),
    title: () => memory.give(document.title),
    groupSeparator: () => memory.give(groupSeparator()),
    textOf: (number, name) => memory.give(viewOf(number)?.language.own(name) ?? ''),
    insert: (number, node, text) => memory.give(viewOf(number)?.insert(node, text) ?? ''),
    comeBack: (number, waiting) => {
      setTimeout(() => {
        machine._brivane_came_back(number, waiting);
        enter(() => machine._brivane_go_on());
      });
    },
  };
  for (const name of ['make', 'drop', 'place', 'show', 'ask', 'openForm', 'closeForm', 'openBox', 'closeBox'])
    page[name] = toView(name);
  const element = {
    tell: toView('tell'),
    details: (number, title, text) => memory.give(viewOf(number)?.details(title, text) ?? ''),
    done,
    failed: (number, code, description, source) => failed(number, new HostError(code, description, source)),
  };
  // The heap is there once the machine is.
  const host = { call: (...given) => of.host.call(...given), letGo: (...given) => of.host.letGo(...given) };
  return { page, element, host };
}

/** What separates groups of digits where the reader is. */
function groupSeparator() {
  const parts = new Intl.NumberFormat(undefined, { useGrouping: true }).formatToParts(1234567);
  return parts.find((part) => part.type === 'group')?.value ?? '.';
}

/** Beside this module, and beside the script where a bundler made a plain one of it. */
function placeOfMachine() {
  try {
    return new URL('machine.wasm', import.meta.url);
  } catch {
    return new URL('machine.wasm', document.currentScript?.src ?? document.baseURI);
  }
}

/** Compiled while it comes in, which begins as soon as this module is there. Where pages are made on a server is none. */
async function compile() {
  if (globalThis.document === undefined) throw new Error('No page');
  const place = placeOfMachine();
  try {
    return await WebAssembly.compileStreaming(fetch(place));
  } catch {
    // A server that does not know the type of the file.
    const answer = await fetch(place);
    if (!answer.ok) throw new Error(`${place}: ${answer.status}`);
    return WebAssembly.compile(await answer.arrayBuffer());
  }
}

const compiled = first === undefined ? compile() : Promise.reject(new Error(TWICE));
compiled.catch(() => {});

/** Starts the machine, once. */
export function load() {
  loading ??= (async () => {
    const of = {};
    const module = await compiled;
    const started = await new Promise((done, failed) => {
      const instantiateWasm = (imports, receive) => {
        WebAssembly.instantiate(module, imports).then((instance) => receive(instance), failed);
        return {};
      };
      // What the script of the machine makes of the address is not used, and fails where there is none.
      createMachine({ ...calls(of), instantiateWasm, locateFile: (name) => name }).then(done, failed);
    });
    memory = new Memory(started);
    of.host = new Host(started, memory, viewOf);
    machine = started;
  })();
  return loading;
}

export const isLoaded = () => machine !== null;

export function newView(view, kind) {
  const number = ++lastView;
  views.set(number, new WeakRef(view));
  gone.register(view, number, view);
  view.number = number;
  machine._brivane_new(number, kind);
  machine._brivane_speak(number, view.language.number);
  view.appear();
}

function endView(number) {
  machine._brivane_end(number);
  views.delete(number);
  // What was waiting in it goes on, and ends.
  enter(() => machine._brivane_go_on());
}

export function dropView(view) {
  gone.unregister(view);
  endView(view.number);
}

/** A view speaks the language of its place in the page, which may have become another one. */
export function follow(view) {
  if (view.follow()) machine._brivane_speak(view.number, view.language.number);
}

/** A text of the catalogue, in Dutch or in English. */
export const textIn = (english, name) => memory.take(memory.lend(name, (lent) => machine._brivane_text(english ? 1 : 0, lent)));

/** Has the machine do something for a view; see jobs.js. */
export function runJob(view, job, { node = 0, number = 0, more = 0, text = '', first = null, second = null } = {}) {
  return run((given) => {
    follow(view);
    const objects = [view.objects.keep(first), view.objects.keep(second)];
    memory.lend(text, (lent) => machine._brivane_run(given, view.number, job, node, number, more, lent, ...objects));
  });
}

export function answerBox(view, box, answer) {
  machine._brivane_answered(view.number, box, answer);
  enter(() => machine._brivane_go_on());
}

/** Whether it changes anything that the focus leaves a node. */
export const mindsBeingLeft = (view, node) => machine._brivane_minds_being_left(view.number, node.id) !== 0;
/** The day at which the calendar of a box opens, NaN where no day stands in it, and the first that may be picked. */
export const dayIn = (view, node) => machine._brivane_day(view.number, node.id) || NaN;
export const firstDay = () => machine._brivane_first_day();

/** How many milliseconds ago something happened that is heard of now, by the clock of the window that it happened in. */
function ageOf(event) {
  const { performance } = event.target.ownerDocument.defaultView;
  return Math.max(0, performance.now() - event.timeStamp);
}

/** Whether a key, or another event that would answer a box, is meant for it. */
export const isMeant = (view, box, event) =>
  machine._brivane_is_meant(view.number, box, event.repeat ? 1 : 0, ageOf(event)) !== 0;
export const backColorOf = (view) => machine._brivane_back_color(view.number);
export const stateOf = (view) => machine._brivane_state(view.number);
export const isPending = (view) => machine._brivane_pending(view.number) !== 0;
export { isAtWork };

/** For tests, which reach further than a host. */
export const internals = () => ({ machine, memory, isAtWork });
