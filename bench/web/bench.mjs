// The web component against two pages made by hand, in the same browser: medians, and their ratios.
//
//   plain  what a person would write for the same work: plain.js says what it does
//   bare   as many inputs and nothing else
//
// The first figure is the time that the thread of the page worked, which hardly depends on what else the machine does; the
// second is what the clock says. `bench.mjs [WORD...]` measures the cases of these names, BENCH_TIMES says how often;
// `bench.mjs memory` with BENCH_EDITORS=4000 looks at what so many editors leave.
import { brotliCompressSync, constants, gzipSync } from 'node:zlib';
import { readFileSync } from 'node:fs';

import { built, puppeteer, top } from '../../tests/web/harness/packages.mjs';
import { serve } from '../../web/demo/server.mjs';

const TIMES = Number(process.env.BENCH_TIMES ?? 9);
const EDITORS = Number(process.env.BENCH_EDITORS ?? 200);
/** What is kept ready and thrown out again comes and goes with a few hundred. */
const LOOKS = 4;
const WAYS = ['element', 'plain', 'bare'];
/** Of everything that a browser loads, in bytes. */
const MOST = 150000;
const wanted = process.argv.slice(2);
const isWanted = (name) => wanted.length === 0 || wanted.includes(name);
const median = (numbers) => numbers.toSorted((one, other) => one - other)[Math.floor(numbers.length / 2)];

function sizes() {
  const folder = `${built}package/src/`;
  const files = ['index.js', 'machine.wasm'];
  const sizesOf = (file) => {
    const bytes = readFileSync(folder + file);
    const brotli = brotliCompressSync(bytes, { params: { [constants.BROTLI_PARAM_SIZE_HINT]: bytes.length } });
    return [bytes.length, gzipSync(bytes, { level: 9 }).length, brotli.length];
  };
  const total = [0, 0, 0];
  for (const file of files) {
    const sizes = sizesOf(file);
    sizes.forEach((size, i) => (total[i] += size));
    console.log(`size        ${file.padEnd(13)} ${sizes[0]} bytes, gzip ${sizes[1]}, brotli ${sizes[2]}`);
  }
  console.log(`size        everything    ${total[0]} bytes, gzip ${total[1]}, brotli ${total[2]} of at most ${MOST}`);
}

/** A page that counts what its thread does. */
async function open(browser, address) {
  const page = await browser.newPage();
  const session = await page.createCDPSession();
  await page.goto(`${address}/bench/blank.html`);
  await session.send('Performance.enable', { timeDomain: 'threadTicks' });
  const worked = async () => {
    const { metrics } = await session.send('Performance.getMetrics');
    return metrics.find(({ name }) => name === 'ThreadTime').value * 1000;
  };
  return { page, session, worked };
}

const load = async (page, address) => {
  await page.goto(address);
  await page.waitForFunction(() => window.isReady);
};

const CASES = ['start', 'editor', 'form', 'fill'];

async function once(browser, origin, name, way) {
  const { page, worked } = await open(browser, origin);
  const from = await worked();
  await load(page, `${origin}/bench/${way}.html`);
  let work = 0;
  let time = 0;
  if (name === 'start') {
    work = (await worked()) - from;
    time = await page.evaluate(() => window.started);
  } else {
    if (name === 'fill') await page.evaluate(() => window.work.form());
    // What asking takes by itself is taken off; the first time it takes more.
    const run = async (what) => {
      const before = await worked();
      time = await page.evaluate((what) => window.timed(what), what);
      return (await worked()) - before;
    };
    await run('nothing');
    const asking = await run('nothing');
    work = (await run(name)) - asking;
  }
  await page.close();
  return { work, time };
}

async function compare(name, browser, origin) {
  const figures = Object.fromEntries(WAYS.map((way) => [way, { work: [], time: [] }]));
  // The first round fills the browser's caches.
  for (let round = -1; round < TIMES; ++round) {
    for (const way of WAYS) {
      const { work, time } = await once(browser, origin, name, way);
      if (round < 0) continue;
      figures[way].work.push(work);
      figures[way].time.push(time);
    }
  }
  const of = (way, what) => median(figures[way][what]);
  const line = (what) =>
    `element ${of('element', what).toFixed(1)} ms, plain ${of('plain', what).toFixed(1)}: ${(of('element', what) / of('plain', what)).toFixed(2)}, ` +
    `bare ${of('bare', what).toFixed(1)}: ${(of('element', what) / of('bare', what)).toFixed(2)}`;
  console.log(`${name.padEnd(11)} worked   ${line('work')}\n${''.padEnd(11)} by clock ${line('time')}`);
}

/** What stands on the pages that are compared. */
async function counts(browser, origin) {
  for (const way of WAYS) {
    const { page } = await open(browser, origin);
    await load(page, `${origin}/bench/${way}.html`);
    await page.evaluate(() => window.work.form());
    console.log(`${way.padEnd(11)} ${await page.evaluate(() => JSON.stringify(window.counts()))}`);
    await page.close();
  }
}

/** What stands after each quarter of the editors that were made, bound and taken away, and what the last half left. */
async function memory(browser, origin) {
  const { page, session } = await open(browser, origin);
  await load(page, `${origin}/bench/element.html`);
  const look = async () => {
    for (let i = 0; i < 3; ++i) await session.send('HeapProfiler.collectGarbage');
    const { metrics } = await session.send('Performance.getMetrics');
    const of = (wanted) => metrics.find(({ name }) => name === wanted).value;
    return { heap: of('JSHeapUsedSize'), nodes: of('Nodes'), machine: await page.evaluate(() => window.machineSize()) };
  };
  const seen = [];
  for (let i = 0; i < LOOKS; ++i) {
    await page.evaluate((times) => window.comeAndGo(times), EDITORS / LOOKS);
    seen.push(await look());
    const { heap, machine, nodes } = seen[i];
    console.log(`memory      after ${(i + 1) * (EDITORS / LOOKS)} editors: script ${heap} bytes, machine ${machine} bytes, nodes ${nodes}`);
  }
  const [half, all] = [seen[LOOKS / 2 - 1], seen[LOOKS - 1]];
  const left = (what) => all[what] - half[what];
  console.log(`memory      left by the last ${EDITORS / 2}: script ${left('heap')} bytes, machine ${left('machine')} bytes, nodes ${left('nodes')}`);
  await page.close();
}

if (isWanted('size')) sizes();
const server = await serve([['/bench-package/', `${built}bench/`], ['/package/', `${built}package/`], ['/demo/', `${top}web/demo/`],
  ['/tests/', `${top}tests/web/`], ['/bench/', `${top}bench/web/`]]);
const browser = await puppeteer.launch({ executablePath: '/usr/bin/chromium', headless: true, defaultViewport: { width: 1200, height: 900 },
  args: process.getuid() === 0 ? ['--no-sandbox'] : [] });
try {
  if (isWanted('counts')) await counts(browser, server.origin);
  for (const name of CASES) if (isWanted(name)) await compare(name, browser, server.origin);
  if (isWanted('memory')) await memory(browser, server.origin);
} finally {
  await browser.close();
  await server.close();
}
