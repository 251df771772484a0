// A browser of this machine without a window, and the pages of the tests in it.
import { existsSync } from 'node:fs';
import { after } from 'node:test';

import { built, puppeteer, top } from './packages.mjs';
import { serve } from '../../../web/demo/server.mjs';

/** Of whatever is waited for, on a machine that has other things to do; what never comes takes this long to be told. */
const PATIENCE = 120000;
const PROGRAMS = { chrome: '/usr/bin/chromium', firefox: '/usr/bin/firefox-esr' };

/** What a browser is served, by the beginning of its path. */
export const FOLDERS = [['/package/', `${built}package/`], ['/door/', `${built}door/`], ['/conformance/', `${built}conformance/`],
  ['/demo/package/', `${built}package/`], ['/demo/', `${top}web/demo/`],
  ['/tests/', `${top}tests/web/`], ['/examples/', `${top}examples/web/`], ['/made/', `${built}made/`]];

export async function launch(name, options = {}) {
  const program = PROGRAMS[name];
  if (!existsSync(program)) throw new Error(`${program} is not there: it stands in packages.txt`);
  const chrome = name === 'chrome';
  const args = chrome ? ['--enable-precise-memory-info', '--js-flags=--expose-gc', '--lang=nl', '--font-render-hinting=none'] : [];
  // A browser of root has no sandbox.
  if (chrome && process.getuid() === 0) args.push('--no-sandbox');
  return puppeteer.launch({ browser: name, executablePath: program, headless: true, args, timeout: PATIENCE, protocolTimeout: PATIENCE,
    defaultViewport: { width: 1000, height: 800 }, ...options });
}

/** A new page, which keeps what is reported in it in `faults`. */
export async function newPage(context) {
  const page = await context.newPage();
  page.setDefaultTimeout(PATIENCE);
  page.faults = [];
  page.on('pageerror', (error) => page.faults.push(String(error?.stack ?? error)));
  return page;
}

/**
 * Opens pages in one browser, for one file of tests: `open` answers a page whose faults fail the test that asks for
 * them, and everything is closed in the end. What the page itself reports stands in `page.faults`. `context`: what
 * it shares its store with; `alone`: with nothing. `before` is run in the page first.
 */
export function useBrowser(name = 'chrome', options = {}) {
  let server = null;
  let browser = null;
  after(async () => {
    await browser?.close();
    await server?.close();
  });
  return {
    get origin() {
      return server.origin;
    },
    async open(path, viewport, { alone = false, context, before } = {}) {
      server ??= await serve(FOLDERS);
      browser ??= await launch(name, options);
      const page = await newPage(context ?? (alone ? await browser.createBrowserContext() : browser));
      page.on('console', (message) => {
        if (message.type() === 'error') page.faults.push(message.text());
      });
      if (viewport !== undefined) await page.setViewport(viewport);
      if (before !== undefined) await page.evaluateOnNewDocument(before);
      await page.goto(server.origin + path);
      return page;
    },
    get browser() {
      return browser;
    },
  };
}
