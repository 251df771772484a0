// What a page could not keep before it was closed. The browser writes its database in its own time, which a page that is
// closed does not have; what stands here is written when the call comes back. Who opens the case next takes it up, once the
// page is gone: as long as it lives it holds a lock of the name of its note.

import { versionOf } from './store.js';

const BEGIN = 'vrije-kolommen/';
/** Milliseconds in which the lock of a page that is gone is let go. */
const PATIENCE = 1000;

const isFree = (key) => navigator.locks.request(key, { signal: AbortSignal.timeout(PATIENCE) }, () => true).catch(() => false);

/** Whether a note says what was kept after all, unheard. */
const isKept = ({ record }, kept) => JSON.stringify({ ...kept, Versie: undefined }) === JSON.stringify(record);

export class Notes {
  #mine = `${BEGIN}${crypto.randomUUID()}`;
  #area;

  /** `area` answers where they stand; none are kept where it answers nothing or throws. */
  constructor(area) {
    this.#area = area;
    navigator.locks.request(this.#mine, () => new Promise(() => {}));
  }

  /** Of this page, that may be closed now: its case, the version that it would have been written over, and what it was worked at. */
  leave({ record, version, column }) {
    this.#attempt((area) => area.setItem(this.#mine, JSON.stringify({ record, version, column, time: Date.now() })));
  }

  /** What pages left that are gone, the oldest first. What `kept` has is thrown away. */
  async left(kept) {
    const keys = this.#attempt((area) => Object.keys(area).filter((key) => key.startsWith(BEGIN) && key !== this.#mine)) ?? [];
    const free = await Promise.all(keys.map(isFree));
    const notes = keys.filter((_, i) => free[i]).flatMap((key) => this.#noteOf(key)).sort((one, other) => one.time - other.time);
    for (const note of notes) if (isKept(note, kept)) this.drop(note);
    return notes.filter((note) => !isKept(note, kept));
  }
  /** The one of them that nobody has written over, or nothing. */
  async fitting(kept) {
    return (await this.left(kept)).find(({ version }) => version === versionOf(kept));
  }

  drop({ key }) {
    this.#attempt((area) => area.removeItem(key));
  }
  /** Everything of this page is kept, or given up. */
  dropMine() {
    this.drop({ key: this.#mine });
  }

  #attempt(what) {
    try {
      return what(this.#area());
    } catch {
      return null;
    }
  }
  /** A text that is no note is none. */
  #noteOf(key) {
    const note = this.#attempt((area) => JSON.parse(area.getItem(key)));
    return note === null ? [] : [{ ...note, key }];
  }
}
