// The page of the demo, as a person finds it.
import assert from 'node:assert/strict';

import { Person } from './person.mjs';

export const PATIENCE = 10000;

export const SAMPLE = ['Kinderopvang · € 485,50 per maand', 'Krant · Weekendabonnement · € 32,50 per maand',
  'Muzieklessen aan huis · € 350,00 per maand', 'Goed doel · Gift nieuwbouw kinderhoek · € 1.500,00 eenmalig',
  'Lijfrente-uitkering · € 6.250,00 per jaar', 'Vereniging · Tennislidmaatschap · € 240,00 per half jaar'];

export class Demo {
  /** `open`: of useBrowser. Each has a store of its own. */
  static async started(open, options = {}) {
    return Demo.#shown(await open('/demo/index.html', { width: 1280, height: 800 }, { alone: true, ...options }));
  }
  /** Another page beside it or after it, on the same store. */
  async beside() {
    const page = await this.context.newPage();
    page.faults = [];
    page.on('pageerror', (error) => page.faults.push(String(error)));
    await page.goto(this.address);
    return Demo.#shown(page);
  }
  static async #shown(page) {
    await page.waitForSelector('body[data-ready]');
    return new Demo(page);
  }

  constructor(page) {
    this.page = page;
    this.person = new Person(page);
    this.context = page.browserContext();
    this.address = page.url();
  }

  columns() {
    return this.page.$eval('#posten', (list) => [...list.options].map(({ text }) => text));
  }
  focused() {
    return this.page.evaluate(() => document.activeElement.id || document.activeElement.localName);
  }
  textOf(id) {
    return this.page.$eval(`#${id}`, ({ innerText }) => innerText);
  }
  /** Waits until a line says so. */
  async comes(id, text) {
    const says = text instanceof RegExp ? (said) => text.test(said) : (said) => said === text;
    const end = Date.now() + PATIENCE;
    for (let said = ''; !says((said = await this.textOf(id))); await new Promise((later) => setTimeout(later, 20)))
      assert.ok(Date.now() < end, `"${text}" did not come in ${id}, where "${said}" stands`);
  }
  /** Waits until everything that was changed was written, or was not. */
  saved() {
    return this.page.waitForSelector('body:not([data-saving])');
  }
  asked() {
    return this.page.waitForSelector('.vraag[open]');
  }
  async answer(...keys) {
    await this.asked();
    await this.person.press(...keys);
    await this.page.waitForFunction(() => document.querySelector('.vraag') === null);
  }
  /** The amount of the column, with the focus in the editor afterwards. */
  async typeAmount(text) {
    await this.person.typeOver('TxtBd', text);
  }
  async begunAnew() {
    await this.page.waitForSelector('body[data-ready]');
  }
  async reload() {
    await this.page.reload();
    await this.begunAnew();
  }
}
