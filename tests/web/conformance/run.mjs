#!/usr/bin/env node
// Runs the tests that every toolkit with a screen shares in a page of a real browser, and does there what a person does:
// keys and clicks of the browser's own input. GTEST_FILTER chooses cases, as for the other programs.
import { serve } from '../../../web/demo/server.mjs';
import { FOLDERS, launch, newPage } from '../harness/browser.mjs';
import { Person } from '../harness/person.mjs';

const PATIENCE = 120000;
/** How long the browser has for what it does on its own time. */
const LONGEST = 10000;
/** What these keys drop down is the browser's: it comes up, and tells what was picked, on its own time. */
const DROPS = new Set(['F4', 'Alt+ArrowDown']);
const CLOSES = new Set(['Enter', 'Escape', 'Tab']);

const name = process.env.WEB_BROWSER || 'chrome';
const server = await serve(FOLDERS);
const browser = await launch(name);
if (name === 'chrome') await browser.defaultBrowserContext().overridePermissions(server.origin, ['clipboard-read', 'clipboard-write', 'clipboard-sanitized-write']);
const page = await newPage(browser);
await page.setViewport({ width: 1200, height: 1000 });
const person = new Person(page);
let other = null;

/** Waits until the page says so, or could have said it long ago: then the case will tell. */
async function until(look, ...given) {
  const end = Date.now() + LONGEST;
  while (!(await page.evaluate(look, ...given)) && Date.now() < end) await new Promise((done) => setTimeout(done, 10));
}
/** What Firefox drops down is out of reach. */
const dropped = () => (name === 'chrome' ? page.evaluate(() => window.dropped()) : undefined);
/** What is dropped down stands, or is gone, and is ready for the next key. */
async function comesTo(open) {
  await until((wanted) => window.dropped() === wanted, open);
  await new Promise((done) => setTimeout(done, 150));
  await page.evaluate(() => new Promise((drawn) => requestAnimationFrame(() => requestAnimationFrame(drawn))));
}
/** Keys to what is dropped down, which takes them for one gesture where no time is between them. */
async function strike(...keys) {
  await Promise.all(keys.flatMap((key) => [page.keyboard.down(key), page.keyboard.up(key)]));
}

const acts = {
  async press(key) {
    const open = await dropped();
    if (open) await strike(key);
    else if (key.startsWith('Keypad')) await person.pressKeypad(key.at(-1));
    else await person.press(key);
    if (open !== undefined && (open || DROPS.has(key))) await comesTo(!CLOSES.has(key));
  },
  hold: (key) => person.hold(key),
  async type(text) {
    if (!(await dropped())) return person.type(text);
    await strike(...text);
    await comesTo(true);
  },
  async click(place) {
    const [x, y] = place.split(' ').map(Number);
    await page.mouse.click(x, y);
    if (await dropped()) await comesTo(true);
  },
  async wheel(given) {
    const [notches, x, y] = given.split(' ').map(Number);
    await page.mouse.move(x + 5, y + 5);
    for (let i = 0; i < notches; ++i) {
      const scrolled = await page.evaluate(() => window.scrolled());
      await page.mouse.wheel({ deltaY: 120 });
      await until((before) => window.scrolled() > before, scrolled);
    }
  },
  async leave() {
    other ??= await newPage(browser);
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
