// What a person does in a view, handed to the machine. What keys mean is the machine's to say; here stands which of them
// it is asked about, and what the browser would do by itself.

import { dayAt } from './days.js';
import { Job } from './jobs.js';
import { isAtWork, mindsBeingLeft, runJob } from './machine.js';

const Modifier = Object.freeze({ shift: 1, control: 2, alt: 4, keypad: 8 });
/** Keys that never type a character and always may mean something. */
const ASKED = new Set(['Escape', 'Enter', 'Tab', 'ArrowUp', 'ArrowDown', 'ArrowLeft', 'ArrowRight', 'PageUp', 'PageDown',
  'Home', 'End', '+', '-', '.', ',']);

/** A browser that tells of no key and no click has picked. */
const PATIENCE = 1000;

const modifiersOf = (event) =>
  (event.shiftKey ? Modifier.shift : 0) | (event.ctrlKey || event.metaKey ? Modifier.control : 0) |
  (event.altKey ? Modifier.alt : 0) | (event.location === KeyboardEvent.DOM_KEY_LOCATION_NUMPAD ? Modifier.keypad : 0);

const isLetter = (event) => event.key.length === 1;
const isList = (node) => node.input?.localName === 'select';
const isBox = (node) => node.input?.localName === 'input' && node.input.type === 'text';
const isToggle = (node) => node.input?.getAttribute('role') === 'switch';

/** Of a stop: its place in the order of its surface, after those of what that stands in. */
function tabsOf(stop) {
  const tabs = [];
  for (let at = stop.node?.outer; at instanceof Element; at = at.parentElement?.closest('.surface')) tabs.unshift(at.order);
  return tabs;
}

function byTab(one, other) {
  const [tabs, others] = [tabsOf(one), tabsOf(other)];
  const differs = tabs.findIndex((tab, i) => tab !== others[i]);
  return differs < 0 ? 0 : tabs[differs] - (others[differs] ?? 0);
}

/** Whether the list of a `select` is open, as far as the browser tells. */
function isOpen(select) {
  try {
    return select.matches(':open');
  } catch {
    return false;
  }
}

function nodeOf(event) {
  for (let at = event.target; at instanceof Element; at = at.parentElement) if (at.node !== undefined) return at.node;
  return null;
}

/** What takes the focus in a part of a view, in the order in which it lies in the page; of options the one they are entered at. */
export function stopsIn(area) {
  const stops = [...area.querySelectorAll('input, select, button, [tabindex="0"]')].filter(
    (stop) => stop.tabIndex >= 0 && !stop.matches(':disabled') && stop.getClientRects().length > 0);
  const active = area.getRootNode().activeElement;
  const entrances = new Map();
  for (const stop of stops) {
    if (stop.type !== 'radio') continue;
    const known = entrances.get(stop.name);
    if (known === undefined || stop === active || (stop.checked && known !== active)) entrances.set(stop.name, stop);
  }
  return stops.filter((stop) => stop.type !== 'radio' || stop === entrances.get(stop.name));
}

export function listen(view) {
  const root = view.root;
  let lastDown = '';
  /** The list that was closed on another entry, until it is known whether that was picked. */
  let closed = null;
  const run = (job, node, order = {}) => runJob(view, job, { node: node?.id ?? 0, ...order });
  const stop = (event) => {
    event.preventDefault();
    event.stopPropagation();
  };

  function keyDown(event) {
    lastDown = event.key;
    settleList('Enter');
    if (event.isComposing || event.defaultPrevented) return;
    const node = nodeOf(event);
    if (node === null) return;
    if (event.altKey && isLetter(event) && !event.ctrlKey) return letter(event);
    if (isBox(node) && (event.key === 'F4' || (event.altKey && event.key === 'ArrowDown')) && node.openCalendar?.()) return stop(event);
    if (isList(node) && isOpen(node.input)) return;
    if (isList(node) && event.altKey) return;
    const asked = isList(node) || isToggle(node) ? ASKED.has(event.key) || isLetter(event) : ASKED.has(event.key);
    if (asked && key(event, node)) return;
    if (event.key === 'Escape') escape(event);
    if (event.key === 'Tab' && !event.ctrlKey && !event.altKey) tab(event, node.input);
  }

  /** Whether the machine took the key, or is busy with it. */
  function key(event, node) {
    const job = run(Job.key, node, { number: modifiersOf(event), text: event.key });
    if (job.done && job.answer === 0) return false;
    stop(event);
    // Somebody is asked first; then Tab goes where it would have gone.
    if (!job.done && event.key === 'Tab')
      job.result.then((stays) => {
        const stop = stays === 0 && root.activeElement === node.input ? next(node.input, event.shiftKey) : undefined;
        if (stop !== undefined) go(stop);
      });
    return true;
  }

  function go(stop) {
    stop.focus();
    if (stop.type === 'text') stop.select();
  }

  const stopsInPage = () => stopsIn(view.dialog ?? root);

  /** The stop after or before one in the order of the design; nothing at the end. */
  function next(from, back) {
    const stops = view.dialog === null ? stopsInPage().sort(byTab) : stopsInPage();
    return stops.includes(from) ? stops[stops.indexOf(from) + (back ? -1 : 1)] : undefined;
  }

  /** Where the browser would go elsewhere than the design has it. */
  function tab(event, from) {
    const stop = next(from, event.shiftKey);
    const inPage = stopsInPage();
    if (stop === undefined || (stop.type !== 'radio' && stop === inPage[inPage.indexOf(from) + (event.shiftKey ? -1 : 1)])) return;
    event.preventDefault();
    go(stop);
  }

  function letter(event) {
    const form = view.dialog?.node?.id ?? 0;
    const job = runJob(view, Job.letter, { node: form, text: event.key });
    if (!job.done || job.answer !== 0) stop(event);
  }

  /** Shows what a help icon has to say: to a pointer over it, and to who goes to it by keys or presses it. */
  function help(event) {
    if (event.type === 'focusin') view.worksIn(event.target);
    const node = nodeOf(event);
    if (node?.isHint && (event.type !== 'focusin' || node.input.matches(':focus-visible'))) view.tip.show(node);
  }
  function helpNoMore(event) {
    if (nodeOf(event)?.outer === view.tip.anchor) view.tip.take();
  }

  function escape(event) {
    if (view.tip.anchor !== null) return stop(event), view.tip.take();
    if (view.dialog === null) return;
    stop(event);
    leave(view.dialog, event);
  }

  /** What Escape says in a dialog. */
  function leave(dialog, event) {
    if (dialog.box !== undefined) dialog.box.leave(event);
    else run(Job.close, dialog.node);
  }

  /** The browser wants a dialog away, by a key that nobody heard or by another means. */
  function cancel(event) {
    event.preventDefault();
    if (event.target === view.dialog) leave(event.target, event);
  }
  /** It does not always ask. */
  function close(event) {
    if (view.reopen(event.target) && event.target === view.dialog) leave(event.target, event);
  }

  function input(event) {
    const node = nodeOf(event);
    if (node === null || !isBox(node) || event.target !== node.input) return;
    const text = node.input.value;
    node.fit(text);
    run(Job.typed, node, { text });
  }

  function paste(event) {
    const node = nodeOf(event);
    if (node === null || !isBox(node)) return;
    stop(event);
    run(Job.pasted, node, { text: event.clipboardData.getData('text/plain') });
  }

  /** Where the window loses the focus, or a dialog of the machine takes it, nothing has been left. */
  function focusOut(event) {
    helpNoMore(event);
    const node = nodeOf(event);
    if (node === null || isAtWork() || view.isMoving || view.root.activeElement === event.target || !root.ownerDocument.hasFocus()) return;
    if ((isBox(node) || isList(node)) && mindsBeingLeft(view, node)) run(Job.left, node);
  }

  /**
   * A press elsewhere in the view hands over first: what is refused keeps the focus, and the press is dropped. A press on
   * nothing leaves the focus where it is, and so does closing a form: what is being typed there is asked about.
   */
  function mouseDown(event) {
    const from = root.activeElement?.node;
    if (from === undefined || !(event.target instanceof Element)) return;
    const pressed = event.target.closest('input, select, button, label, [tabindex]');
    const worked = pressed?.control ?? pressed;
    if (worked === null || worked.disabled || worked.classList.contains('close')) return event.preventDefault();
    if (!isBox(from) || from === nodeOf(event)) return;
    const job = run(Job.key, from, { text: 'Tab' });
    if (job.done && job.answer === 0) return;
    stop(event);
    const dropped = (click) => stop(click);
    view.root.addEventListener('click', dropped, { capture: true, once: true });
    // It may be let go of outside of the view; which may stand in another window than this script runs in.
    root.ownerDocument.defaultView.addEventListener('mouseup', () => setTimeout(() => view.root.removeEventListener('click', dropped, true)), { once: true });
  }

  function click(event) {
    const node = nodeOf(event);
    if (node === null) return;
    help(event);
    if (isList(node)) settleList('Enter');
    if (event.target === node.closeButton) run(Job.close, node);
    else if (event.target.closest?.('.calendar')) node.input.focus(), node.openCalendar();
    else if (isToggle(node)) toggle(event, node);
    else if (node.input?.localName === 'button' && node.input.classList.contains('button')) run(Job.picked, node, { number: 1 });
  }

  /** The half that was pressed; without a pointer the other answer. */
  function toggle(event, node) {
    const half = event.target.closest('span');
    if (half === null) run(Job.key, node, { text: ' ' });
    else run(Job.picked, node, { number: half === node.input.firstElementChild ? 2 : 1 });
  }

  /**
   * An open list was closed on another entry. Chromium says so where it was given up by Escape too: a click follows what
   * was picked, and of what was given up that key comes up here.
   */
  function closeList(node) {
    settleList('Enter');
    run(Job.picked, node, { number: node.input.selectedIndex });
    closed = { node, timer: setTimeout(() => settleList('Enter'), PATIENCE) };
  }
  function settleList(key) {
    if (closed === null) return;
    const { node, timer } = closed;
    clearTimeout(timer);
    closed = null;
    run(Job.key, node, { text: key });
  }

  function keyUp(event) {
    const node = nodeOf(event);
    const escapes = event.key === 'Escape' && lastDown !== 'Escape';  // an open list keeps what goes down to itself
    if (escapes && node !== null && isList(node)) closed ??= { node, timer: 0 };
    settleList(escapes ? 'Escape' : 'Enter');
  }

  function change(event) {
    const node = nodeOf(event);
    if (node === null) return;
    if (event.target === node.picker) {
      const day = dayAt(node.picker.valueAsNumber);
      if (!Number.isNaN(day)) run(Job.picked, node, { number: day });
    } else if (isList(node)) {
      closeList(node);
    } else if (node.input?.type === 'checkbox') {
      run(Job.picked, node, { number: node.input.checked ? 1 : 0 });
    } else if (node.input?.type === 'radio') {
      run(Job.picked, node, { number: 1 });
    }
  }

  const heard = { keydown: keyDown, keyup: keyUp, input, paste, focusout: focusOut, focusin: help, mouseover: help, mouseout: helpNoMore, mousedown: mouseDown, click, change,
    cancel, close };
  const isFirst = (name) => ['mousedown', 'cancel', 'close'].includes(name);
  for (const [name, listener] of Object.entries(heard)) root.addEventListener(name, listener, isFirst(name));
  return () => {
    for (const [name, listener] of Object.entries(heard)) root.removeEventListener(name, listener, isFirst(name));
  };
}
