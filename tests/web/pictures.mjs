// pictures.mjs FOLDER [SHOW_SCENE]: takes pictures of the element in a browser, to be looked at: every state at 100, 125 and
// 200 %, light, dark and in forced colours, on one sheet beside the same state of the program on the desktop, and on the
// screen of a phone. SHOW_SCENE is show_scene as the tests build it; without it the sheets have the browser alone.
import { execFileSync } from 'node:child_process';
import { existsSync, mkdirSync, mkdtempSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { resolve } from 'node:path';
import { fileURLToPath } from 'node:url';

import { FOLDERS, launch } from './harness/browser.mjs';
import { Person } from './harness/person.mjs';
import { serve } from '../../web/demo/server.mjs';

const [folder = '', program = fileURLToPath(new URL('../../build/release/bin/show_scene', import.meta.url))] = process.argv.slice(2);
if (folder === '') {
  console.error('pictures.mjs FOLDER [SHOW_SCENE]');
  process.exit(2);
}
const pictures = resolve(folder);
mkdirSync(pictures, { recursive: true });

const SCREEN = { width: 1366, height: 768 };
const SCALES = [1, 1.25, 2];
const SCHEMES = { light: ['light', 'none'], dark: ['dark', 'none'], contrast: ['dark', 'active'] };

// The case of the scenes on the desktop.
const COUPLE = { personen: [{ Naam: ['A.', 'de', 'Boer'], Geboortedatum: '1980-05-17' }, { Naam: ['C.', '', 'Visser'], Geboortedatum: '1982-11-03' }], Leeftijd: 50 };
const column = (Omschrijving, Bedrag, fields = {}, rest = {}) =>
  ({ Id: 1, Omschrijving, DatumAanvang: '2026-01-01', Looptijd: 48, ...fields, Bedrag: { Naam: Omschrijving, Bedrag, ...rest } });
const AMOUNT = column('Kinderopvang', 485.5);
const TRANSITION = column('Lijfrente', 350, { CorrectieLast: 2, CorrectieFiscaal: 2, ScenarioOverlijden: true, PercentageOvergang: 70,
  EinddatumOvergang: '2047-05-17', EindleeftijdOvergang: 67 });

/** The states, by the names of the scenes; the desktop has none of the last. */
const STATES = {
  amount: ({ bind }) => bind(AMOUNT),
  'one-off': ({ bind }) => bind(column('Gift', 1500, { Termijn: 99, Looptijd: 0 })),
  contract: ({ bind }) => bind(column('Krant', 32.5, { IsProduct: true, Productsoort: 44, Maatschappij: 'AB', MaatschappijNaam: 'Alfa Bank',
    UwBemiddeling: true, Contractvervaldatum: '2027-12-31' })),
  transition: ({ bind }) => bind(TRANSITION),
  'no-partner': ({ bind }) => bind(TRANSITION, { personen: COUPLE.personen.slice(0, 1) }),
  refused: async ({ bind, person }) => {
    await bind(AMOUNT);
    await person.typeOver('TxtBd', '12.50');
    await person.press('Tab');
  },
  'year-form': async ({ bind, openForm }) => {
    await bind(AMOUNT);
    await openForm();
  },
  'year-form-growth': async ({ bind, openForm }) => {
    await bind(column('Onderhoud', 900, { Termijn: 12 }, { Invoersoort: 3, Perioden: [{ Maand: 1, Percentage: 2 }] }));
    await openForm();
  },
  missing: async ({ bind, person }) => {
    await bind(AMOUNT);
    await person.typeOver('TxtDtAanvang', '');
    await person.press('Tab');
    await person.until(async () => (await person.message()) !== '', 'the message');
  },
  empty: async ({ bind, page }) => {
    await bind(AMOUNT);
    await page.evaluate(() => window.editor.unbind());
  },
};

async function dress(page, scheme) {
  const [colors, forced] = SCHEMES[scheme];
  const session = await page.createCDPSession();
  await session.send('Emulation.setEmulatedMedia', { features: [{ name: 'prefers-color-scheme', value: colors }, { name: 'forced-colors', value: forced }] });
}

/** Brings a state about in a page, and takes its picture. */
async function take(page, state, path) {
  const person = new Person(page);
  const bind = (fields, settings = {}) => page.evaluate((given) => window.bind(...given), [fields, { ...COUPLE, ...settings }]);
  const openForm = async () => {
    await person.click('cmdScenario');
    await person.until(() => person.hasForm(), 'the form');
  };
  await STATES[state]({ page, person, bind, openForm });
  await page.mouse.move(1, 1);
  await page.screenshot({ path });
}

/** The same states on the desktop, as far as it has them. */
function takeDesktop(scale) {
  if (!existsSync(program)) return;
  const screen = `${pictures}/screen.json`;
  writeFileSync(screen, JSON.stringify({ screens: [{ name: 'pictures', x: 0, y: 0, ...SCREEN, logicalDpi: 96, dpr: 1 }] }));
  mkdirSync(`${pictures}/desktop-${scale}`, { recursive: true });
  for (const state of Object.keys(STATES).slice(0, -1)) {
    const files = mkdtempSync(`${tmpdir()}/pictures-`);
    execFileSync(program, [state, files, `${pictures}/desktop-${scale}`, `${SCREEN.width}x${SCREEN.height}`], {
      env: { ...process.env, QT_QPA_PLATFORM: `offscreen:configfile=${screen}`, QT_SCALE_FACTOR: String(scale), XDG_CONFIG_HOME: files, XDG_DATA_HOME: files },
      stdio: 'ignore',
    });
    rmSync(files, { recursive: true });
  }
  rmSync(screen);
}

const server = await serve([...FOLDERS, ['/pictures/', `${pictures}/`]]);
// With the bars that a person has.
const browser = await launch('chrome', { ignoreDefaultArgs: ['--hide-scrollbars'] });

async function open(viewport, scheme) {
  const page = await browser.newPage();
  await page.setViewport(viewport);
  await dress(page, scheme);
  await page.goto(`${server.origin}/tests/pages/editor.html`);
  await page.waitForFunction(() => window.isReady);
  return page;
}

/** Puts pictures on one sheet, a line for each list of them. */
async function sheet(name, lines) {
  const page = await browser.newPage();
  await page.setViewport({ width: 800, height: 600 });
  await page.goto(`${server.origin}/tests/pages/sheet.html`);
  const [width, height] = await page.evaluate(async (given) => {
    for (const line of given) {
      const figure = document.createElement('p');
      figure.append(...line.map((src) => Object.assign(new Image(), { src })));
      document.body.append(figure);
    }
    await Promise.all([...document.images].map((image) => image.decode()));
    const { width, height } = document.body.getBoundingClientRect();
    return [Math.ceil(width), Math.ceil(height)];
  }, lines);
  await page.setViewport({ width, height });
  await page.screenshot({ path: `${pictures}/${name}.png` });
  await page.close();
}

const found = (path) => (existsSync(`${pictures}/${path}`) ? [`/pictures/${path}`] : []);
for (const scale of SCALES) {
  takeDesktop(scale);
  mkdirSync(`${pictures}/web-${scale}`, { recursive: true });
  const viewport = { width: Math.round(SCREEN.width / scale), height: Math.round(SCREEN.height / scale), deviceScaleFactor: scale };
  for (const scheme of Object.keys(SCHEMES)) {
    const page = await open(viewport, scheme);
    for (const state of Object.keys(STATES)) await take(page, state, `${pictures}/web-${scale}/${state}-${scheme}.png`);
    await page.close();
  }
  for (const state of Object.keys(STATES))
    await sheet(`${state}-${scale * 100}`, Object.keys(SCHEMES).map((scheme) =>
      ['desktop', 'web'].flatMap((where) => found(`${where}-${scale}/${state}-${scheme}.png`))));
}

const ON_A_PHONE = ['amount', 'contract', 'refused', 'year-form', 'missing', 'empty'];
mkdirSync(`${pictures}/phone`, { recursive: true });
for (const scheme of ['light', 'dark']) {
  const page = await open({ width: 390, height: 780, deviceScaleFactor: 2, isMobile: true, hasTouch: true }, scheme);
  for (const state of ON_A_PHONE) await take(page, state, `${pictures}/phone/${state}-${scheme}.png`);
  await page.close();
}
await sheet('phone', ['light', 'dark'].map((scheme) => ON_A_PHONE.flatMap((state) => found(`phone/${state}-${scheme}.png`))));

await browser.close();
await server.close();
console.log(`${pictures}: ${Object.keys(STATES).length * SCALES.length + 1} sheets`);
