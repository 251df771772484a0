// The web component against a page with as many inputs made by hand, in the same browser: medians, and their ratios.
import { brotliCompressSync, gzipSync } from 'node:zlib';
import { readdirSync, readFileSync } from 'node:fs';

import { built, puppeteer, top } from '../../tests/web/harness/packages.mjs';
import { serve } from '../../web/demo/server.mjs';

const TIMES = 15;
const median = (numbers) => numbers.sort((one, other) => one - other)[Math.floor(numbers.length / 2)];

function sizes() {
  const folder = `${built}package/`;
  const files = ['src', 'machine'].flatMap((name) => readdirSync(folder + name).map((file) => `${folder}${name}/${file}`))
    .filter((file) => /\.(js|wasm)$/.test(file)).map((file) => readFileSync(file));
  const total = (size) => files.reduce((sum, file) => sum + size(file), 0) / 1000;
  console.log(`size        ${total((file) => file.length).toFixed(0)} kB, gzip ${total((file) => gzipSync(file, { level: 9 }).length).toFixed(0)} kB, ` +
    `brotli ${total((file) => brotliCompressSync(file).length).toFixed(0)} kB`);
}

async function compare(name, browser, origin, run) {
  const figures = {};
  for (const way of ['element', 'plain']) {
    const times = [];
    for (let i = 0; i < TIMES + 2; ++i) {
      const page = await browser.newPage();
      await page.goto(`${origin}/bench/${way}.html`);
      await page.waitForFunction(() => window.isReady);
      const time = await page.evaluate(run);
      // The first ones fill the browser's caches.
      if (i >= 2) times.push(time);
      await page.close();
    }
    figures[way] = median(times);
  }
  const { element, plain } = figures;
  console.log(`${name.padEnd(11)} ${element.toFixed(1)} ms, by hand ${plain.toFixed(1)} ms: ${(element / plain).toFixed(2)}`);
}

sizes();
const server = await serve([['/package/', `${built}package/`], ['/demo/', `${top}web/demo/`], ['/tests/', `${top}tests/web/`], ['/bench/', `${top}bench/web/`]]);
const browser = await puppeteer.launch({ executablePath: '/usr/bin/chromium', headless: true, defaultViewport: { width: 1200, height: 900 },
  args: process.getuid() === 0 ? ['--no-sandbox'] : [] });
try {
  await compare('start', browser, server.origin, () => window.started);
  await compare('editor', browser, server.origin, () => window.anotherEditor());
  await compare('year form', browser, server.origin, () => window.openForm());
  await compare('filling', browser, server.origin, async () => {
    await window.openForm();
    return window.fillForm();
  });
} finally {
  await browser.close();
  await server.close();
}
