// What a person does to an editor and sees of it: keys and clicks of the browser's own input, and what stands on the page.
import assert from 'node:assert/strict';

const PATIENCE = 30000;

/** Finds what shows the control of a name: "TxtBd", "optLast(2)", "Toelichting.jnAO", "txtBedrag(3)" in the open form. */
const findInPage = (selector, name) => {
  const walk = function* (root) {
    for (const element of root.querySelectorAll('*')) yield element;
  };
  const host = document.querySelector(selector);
  for (const element of walk(host.shadowRoot)) if (element.node?.design?.name === name && element.node.input) return element.node.input;
  return null;
};

/** Without a window, Chromium has no editing commands of its own on its keys. */
const COMMANDS = { 'Control+a': ['SelectAll'], 'Control+c': ['Copy'], 'Control+v': ['Paste'] };

export class Person {
  constructor(page, selector = 'vrije-kolom') {
    this.page = page;
    this.selector = selector;
  }

  async control(name) {
    const found = (await this.page.evaluateHandle(findInPage, this.selector, name)).asElement();
    assert.ok(found, `${name} is not on the page`);
    return found;
  }
  async click(name, options = {}) {
    const input = await this.control(name);
    await input.scrollIntoView();
    await input.click(options);
  }
  async type(text) {
    await this.page.keyboard.type(text);
  }
  /** "Tab", "Shift+Tab", "Alt+o", "Control+a". */
  async press(...keys) {
    for (const key of keys) {
      const parts = key === '+' ? ['+'] : key.split('+');
      const last = parts.pop();
      for (const part of parts) await this.page.keyboard.down(part);
      await this.page.keyboard.press(last === 'Space' ? ' ' : last, { commands: COMMANDS[key] });
      for (const part of parts.reverse()) await this.page.keyboard.up(part);
    }
  }
  /** The point or the comma of the keypad, with the lock for numbers on. */
  async pressKeypad(key) {
    const session = await this.page.createCDPSession();
    const sent = { key, code: 'NumpadDecimal', location: 3, isKeypad: true, windowsVirtualKeyCode: 110 };
    await session.send('Input.dispatchKeyEvent', { type: 'keyDown', text: key, ...sent });
    await session.send('Input.dispatchKeyEvent', { type: 'keyUp', ...sent });
    await session.detach();
  }
  /** One of the repeats of a key that is held down since before. */
  async hold(key) {
    const session = await this.page.createCDPSession();
    await session.send('Input.dispatchKeyEvent', { type: 'keyDown', autoRepeat: true, key, code: key });
    await session.detach();
  }
  /** Goes to a box by click and replaces what stands in it. */
  async typeOver(name, text) {
    await this.click(name);
    await this.press('Control+a');
    if (text === '') await this.press('Delete');
    else await this.type(text);
  }
  /** Copies a text from a box of the page, and pastes it into another one. */
  async paste(name, text) {
    await this.page.click('#bron');
    await this.press('Control+a');
    await this.type(text);
    await this.press('Control+a', 'Control+c');
    await this.click(name);
    await this.press('Control+a', 'Control+v');
  }

  async text(name) {
    return (await this.control(name)).evaluate((input) => {
      if (input.localName === 'select') return input.selectedOptions[0]?.text ?? '';
      if (input.type === 'radio' || input.type === 'checkbox') return input.checked;
      if (input.getAttribute('role') === 'switch') return input.getAttribute('aria-checked') === 'true' ? 'Ja' : 'Nee';
      return input.value;
    });
  }
  async selected(name) {
    return (await this.control(name)).evaluate((input) => input.value.slice(input.selectionStart, input.selectionEnd));
  }
  async focused() {
    return this.page.evaluate((selector) => {
      const active = document.querySelector(selector).shadowRoot.activeElement;
      return active?.node?.design?.name ?? active?.textContent ?? '';
    }, this.selector);
  }
  /** What is said beside the box that is worked in, or nothing. */
  async said() {
    return this.page.evaluate((selector) => {
      const bubble = document.querySelector(selector).shadowRoot.querySelector('.bubble');
      return bubble?.textContent ?? '';
    }, this.selector);
  }
  async message() {
    return this.page.evaluate((selector) => {
      const box = document.querySelector(selector).shadowRoot.querySelector('dialog.message');
      return box === null ? '' : box.querySelector('.text').textContent;
    }, this.selector);
  }
  async hasForm() {
    return this.page.evaluate((selector) => document.querySelector(selector).shadowRoot.querySelector('dialog.form[open]') !== null,
      this.selector);
  }
  /** Waits until something is so, by what `look` answers. `what`: its name, or what answers that. */
  async until(look, what = 'something') {
    const end = Date.now() + PATIENCE;
    while (!(await look())) {
      if (Date.now() > end) assert.fail(`${typeof what === 'function' ? what() : what} did not come`);
      await new Promise((done) => setTimeout(done, 20));
    }
  }
  /** The pause after which a key answers a box. */
  async pause() {
    await new Promise((done) => setTimeout(done, 700));
  }
  /**
   * Stops the clock of the page. A box that comes up then takes no key and is closed by nobody, however long this machine
   * takes over pressing one; `pause` comes after startClock.
   */
  async stopClock() {
    await this.page.evaluate(() => {
      const now = performance.now();
      performance.now = () => now;
    });
  }
  async startClock() {
    await this.page.evaluate(() => void delete performance.now);
  }
}
