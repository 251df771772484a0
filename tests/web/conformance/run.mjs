#!/usr/bin/env node
// Runs the tests that every toolkit with a screen shares in a page of a real browser, and does there what a person does:
// keys and clicks of the browser's own input. GTEST_FILTER chooses cases, as for the other programs.
import { serve } from '../../../web/demo/server.mjs';
import { FOLDERS, launch } from '../harness/browser.mjs';
import { Person } from '../harness/person.mjs';

const PATIENCE = 15000;
/** What these keys drop down is the browser's: it comes up, and tells what was picked, on its own time. */
const DROPS = new Set(['F4', 'Alt+ArrowDown']);
const CLOSES = new Set(['Enter', 'Escape', 'Tab']);

const name = process.env.WEB_BROWSER || 'chrome';
const server = await serve(FOLDERS);
const browser = await launch(name);
if (name === 'chrome') await browser.defaultBrowserContext().overridePermissions(server.origin, ['clipboard-read', 'clipboard-write', 'clipboard-sanitized-write']);
const page = await browser.newPage();
await page.setViewport({ width: 1200, height: 1000 });
const person = new Person(page);
let other = null;
let dropped = false;

const acts = {
  async press(key) {
    if (key.startsWith('Keypad')) await person.pressKeypad(key.at(-1));
    else await person.press(key);
    if (DROPS.has(key) || dropped) await new Promise((done) => setTimeout(done, 150));
    dropped = DROPS.has(key) || (dropped && !CLOSES.has(key));
  },
  hold: (key) => person.hold(key),
  type: (text) => person.type(text),
  async click(place) {
    const [x, y] = place.split(' ').map(Number);
    await page.mouse.click(x, y);
  },
  async wheel(given) {
    const [notches, x, y] = given.split(' ').map(Number);
    await page.mouse.move(x + 5, y + 5);
    for (let i = 0; i < notches; ++i) {
      await page.mouse.wheel({ deltaY: 120 });
      await new Promise((done) => setTimeout(done, 50));  // the browser is not waited for here
    }
  },
  async leave() {
    other ??= await browser.newPage();
    await other.bringToFront();
  },
  return: () => page.bringToFront(),
};

const ended = new Promise((resolve) => {
  let last = '';
  let clock = null;
  const wind = () => {
    clearTimeout(clock);
    clock = setTimeout(() => {
      console.log(`Nothing happened any more: ${last}\n[  FAILED  ] 1 tests, listed below:\n[  FAILED  ] ${last.replace('[ RUN      ] ', '')}`);
      resolve(1);
    }, PATIENCE);
  };
  wind();
  // One after the other, whoever asks.
  let before = Promise.resolve();
  page.exposeFunction('person', (what) => {
    wind();
    const at = what.search(/ |$/);
    return (before = before.catch(() => {}).then(() => acts[what.slice(0, at)](what.slice(at + 1))));
  });
  page.exposeFunction('ended', (code) => {
    clearTimeout(clock);
    resolve(code);
  });
  page.on('console', (message) => {
    wind();
    const text = message.text();
    if (text.startsWith('[ RUN')) last = text;
    console.log(text);
  });
  page.on('pageerror', (error) => {
    console.log(`The page failed: ${error?.stack ?? error}`);
    clearTimeout(clock);
    resolve(1);
  });
});
const query = new URLSearchParams({ filter: process.env.GTEST_FILTER ?? '', browser: name });
await page.goto(`${server.origin}/tests/conformance/page.html?${query}`);
const code = await ended;
await browser.close();
await server.close();
process.exit(code);
