// Texts and numbers on the machine's heap.

/** The heap of a machine that has been started. */
export class Memory {
  #machine;
  #decoder = new TextDecoder();
  #encoder = new TextEncoder();

  constructor(machine) {
    this.#machine = machine;
  }

  number(place) {
    return this.#view().getFloat64(place, true);
  }
  whole(place) {
    return this.#view().getInt32(place, true);
  }
  putNumber(place, value) {
    this.#view().setFloat64(place, value, true);
  }
  putWhole(place, value) {
    this.#view().setInt32(place, value, true);
  }

  text(place) {
    if (place === 0) return '';
    const bytes = this.#machine.HEAPU8;
    return this.#decoder.decode(bytes.subarray(place, bytes.indexOf(0, place)));
  }

  /** A copy of a text on the heap, for the machine to free. A zero ends a text there. */
  give(text) {
    const bytes = this.#encoder.encode(text.includes('\0') ? text.slice(0, text.indexOf('\0')) : text);
    const place = this.#machine._malloc(bytes.length + 1);
    this.#machine.HEAPU8.set(bytes, place);
    this.#machine.HEAPU8[place + bytes.length] = 0;
    return place;
  }

  /** Lends a text for the length of a call. */
  lend(text, call) {
    const place = this.give(text);
    try {
      return call(place);
    } finally {
      this.#machine._free(place);
    }
  }

  /** Room for an answer for the length of a call. */
  room(size, call) {
    const place = this.#machine._malloc(size);
    try {
      return call(place);
    } finally {
      this.#machine._free(place);
    }
  }

  /** Takes over a text that the machine gave. */
  take(place) {
    const text = this.text(place);
    this.#machine._free(place);
    return text;
  }

  #view() {
    return new DataView(this.#machine.HEAPU8.buffer);
  }
}
