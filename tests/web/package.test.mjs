// The npm package: what is in it, its declarations, and that it works from a plain script and from a bundler.
import assert from 'node:assert/strict';
import { execFileSync } from 'node:child_process';
import { cpSync, mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { before, test } from 'node:test';

import { useBrowser } from './harness/browser.mjs';
import { built, npm, top } from './harness/packages.mjs';
import { Person } from './harness/person.mjs';

const made = `${built}made/`;
const installed = `${made}node_modules/brivane-vrije-kolom/`;
const run = (program, ...given) => execFileSync(program, given, { cwd: made, encoding: 'utf8', stdio: ['ignore', 'pipe', 'pipe'] });
const tool = (name, ...given) => run(`${npm}node_modules/.bin/${name}`, ...given);
const { open } = useBrowser();

before(() => {
  rmSync(made, { recursive: true, force: true });
  mkdirSync(installed, { recursive: true });
  const [{ filename }] = JSON.parse(run('npm', 'pack', `${built}package`, '--json', '--offline'));
  run('tar', '-xzf', filename, '--strip-components=1', '-C', installed);
  // The packages that the examples use, where a bundler looks.
  for (const name of ['final-form', '@babel/runtime']) {
    cpSync(`${npm}node_modules/${name}`, `${made}node_modules/${name}`, { recursive: true });
  }
});

test('package.HoldsTheModuleTheMachineAndTheDeclarations', () => {
  const files = readdirSync(installed, { recursive: true }).map(String);
  for (const file of ['src/index.js', 'src/index.d.ts', 'src/model.d.ts', 'src/machine.wasm', 'translations/brivane_en.ts', 'README.md'])
    assert.ok(files.includes(file), file);
  assert.deepEqual(files.filter((file) => /test|door/.test(file)), []);
});

test('package.NeedsNoOther', () => {
  const { dependencies, peerDependencies, scripts, version } = JSON.parse(readFileSync(`${installed}package.json`, 'utf8'));
  assert.deepEqual([dependencies, peerDependencies, scripts], [undefined, undefined, undefined]);
  const [, project] = /VERSION (\d+\.\d+\.\d+)/.exec(readFileSync(`${top}CMakeLists.txt`, 'utf8').split('project(')[1]);
  assert.equal(version, project);
});

test('package.DeclaresEveryTextOfTheCatalogue', () => {
  const names = (file, found) => [...readFileSync(installed + file, 'utf8').matchAll(found)].map(([, name]) => name);
  const [declared] = /export type TextName =[^;]*;/.exec(readFileSync(`${installed}src/index.d.ts`, 'utf8'));
  assert.deepEqual([...declared.matchAll(/'(\w+)'/g)].map(([, name]) => name),
    names('translations/brivane_en.ts', /<extracomment>(\w+)</g));
});

test('package.DeclaresWhatAHostInTypeScriptUses', () => {
  cpSync(`${top}tests/web/types/host.ts`, `${made}host.ts`);
  try {
    tool('tsc', '--noEmit', '--strict', '--target', 'es2022', '--module', 'esnext', '--moduleResolution', 'bundler', 'host.ts');
  } catch ({ stdout }) {
    assert.fail(stdout);
  }
});

test('package.WorksFromAPlainScript', async () => {
  cpSync(`${top}examples/web/smallest`, `${made}smallest`, { recursive: true });
  const script = `${made}smallest/host.js`;
  writeFileSync(script, readFileSync(script, 'utf8').replace('/package/', '../node_modules/brivane-vrije-kolom/'));
  const page = await open('/made/smallest/index.html');
  await page.waitForFunction(() => document.body.dataset.result === 'bound');
  const person = new Person(page);
  await person.typeOver('TxtOm', 'Oppas');
  await person.press('Tab');
  assert.equal(await page.$eval('#kop', (kop) => kop.textContent), 'Oppas · € 485,5');
  assert.deepEqual(page.faults, []);
});

// What esbuild makes unless it is told otherwise knows no address of its own.
test('package.WorksInAPlainScriptOfABundler', async () => {
  const folder = `${made}plain/`;
  mkdirSync(`${folder}scripts`, { recursive: true });
  cpSync(`${top}examples/web/smallest/host.js`, `${folder}host.js`);
  writeFileSync(`${folder}host.js`, readFileSync(`${folder}host.js`, 'utf8').replace('/package/src/index.js', 'brivane-vrije-kolom')
    .replace(/document.body.dataset.result = await (.*);/, '$1.then((result) => (document.body.dataset.result = result));'));
  writeFileSync(`${folder}index.html`, readFileSync(`${top}examples/web/smallest/index.html`, 'utf8')
    .replace('type="module" src="host.js"', 'defer src="scripts/host.js"'));
  tool('esbuild', `${folder}host.js`, '--bundle', '--log-level=error', `--outfile=${folder}scripts/host.js`);
  cpSync(`${installed}src/machine.wasm`, `${folder}scripts/machine.wasm`);
  const page = await open('/made/plain/index.html');
  await page.waitForFunction(() => document.body.dataset.result === 'bound');
  assert.deepEqual(page.faults, []);
});

test('package.DoesNothingWhereThereIsNoPage', () => {
  const said = run('node', '--input-type=module', '-e', `
    const { ready, HostError, VrijeKolomElement } = await import('${installed}src/index.js');
    await new Promise((done) => setTimeout(done, 50));
    console.log(new HostError(9).number, typeof VrijeKolomElement, await ready.catch(({ message }) => message));
  `);
  assert.equal(said, '9 function No page\n');
});

test('package.WorksFromABundlerInAFormOfALibrary', async () => {
  const entry = `${made}examples/web/form/`;
  cpSync(`${top}examples/web/form`, entry, { recursive: true });
  mkdirSync(`${made}web/demo`, { recursive: true });
  cpSync(`${top}web/demo/model.js`, `${made}web/demo/model.js`);
  tool('esbuild', `${entry}main.js`, '--bundle', '--format=esm', '--minify', `--outfile=${entry}form.js`);
  cpSync(`${installed}src/machine.wasm`, `${entry}machine.wasm`);
  const page = await open('/made/examples/web/form/index.html');
  await page.waitForFunction(() => document.body.dataset.result === 'bound');
  const person = new Person(page);
  const isDirty = () => page.$eval('#bewaar', (button) => !button.disabled);
  assert.equal(await isDirty(), false);
  await person.typeOver('TxtOm', 'Oppas');
  await person.press('Tab');
  assert.equal(await isDirty(), true);
  await page.click('#terug');
  await person.until(async () => (await person.text('TxtOm')) === 'Kinderopvang', 'what stood there');
  assert.equal(await isDirty(), false);
  // The amount is a value of the form like the others, and so is the year-by-year scenario.
  await person.typeOver('TxtBd', '999');
  await person.press('Tab');
  assert.equal(await isDirty(), true);
  await page.click('#terug');
  await person.until(async () => (await person.text('TxtBd')) === '485,50', 'the amount that stood there');
  assert.equal(await isDirty(), false);
  await person.click('cmdScenario');
  await person.until(() => person.hasForm(), 'the form');
  await person.typeOver('txtBedrag(2)', '500');
  await person.press('Tab');
  await person.click('cmdOK');
  await person.until(async () => !(await person.hasForm()), 'the end of the form');
  assert.equal(await isDirty(), true);
  await page.click('#terug');
  await person.until(async () => !(await isDirty()), 'the scenario that stood there');
  await person.click('cmdScenario');
  await person.until(() => person.hasForm(), 'the form');
  assert.equal(await person.text('txtBedrag(2)'), '485,50');
  await person.press('Escape');
  await person.until(async () => !(await person.hasForm()), 'the end of the form');
  // What is refused goes too, and the editor shows what the form holds.
  await person.typeOver('TxtOm', 'Oppas');
  await person.typeOver('TxtBd', 'x');
  await page.click('#terug');
  await person.until(async () => (await person.text('TxtOm')) === 'Kinderopvang', 'what stood there');
  assert.equal(await person.text('TxtBd'), '485,50');
  assert.equal(await isDirty(), false);
  await person.typeOver('TxtOm', 'Crèche');
  await page.click('#bewaar');
  await person.until(async () => (await page.$eval('#stand', (out) => out.value)) === 'Bewaard: Crèche', 'the submission');
  assert.deepEqual(page.faults, []);
});
