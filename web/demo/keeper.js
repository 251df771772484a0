// Writes a case after each change of it, one time after another.

import { versionOf } from './store.js';

export class Keeper {
  /** The adviser was told that another page wrote, and that nothing of this one is kept any more. */
  isOvertaken = false;
  #store;
  #contents;
  #told;
  #version = 0;
  #isChanged = false;
  #isWriting = false;

  /** `contents` makes the record; `told` hears that writing begins, and with what problem (or null) it ended. */
  constructor(store, contents, told) {
    this.#store = store;
    this.#contents = contents;
    this.#told = told;
  }

  /** The case is now the one of this record, or of none. */
  begin(record) {
    this.#version = versionOf(record);
    this.isOvertaken = false;
  }

  /** Whether a record holds nothing that this case does not have. */
  knows(record) {
    return versionOf(record) <= this.#version;
  }

  /** The version that was read or written last. */
  get version() {
    return this.#version;
  }

  /** Whether everything that was changed is in the store. */
  get isDone() {
    return !this.#isChanged && !this.#isWriting;
  }

  async save() {
    this.#isChanged = true;
    if (this.#isWriting) return;
    this.#isWriting = true;
    this.#told.begun();
    let problem = null;
    try {
      // What one handler changes is written as a whole.
      await null;
      while (this.#isChanged) {
        this.#isChanged = false;
        this.#version = await this.#store.write(this.#contents(), this.#version);
      }
    } catch (thrown) {
      this.#isChanged = true;
      problem = thrown;
    }
    this.#isWriting = false;
    this.#told.ended(problem);
  }
}
