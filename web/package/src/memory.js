// Texts and numbers on the machine's heap.

const SHORT = 40;

/** The heap of a machine that has been started. */
export class Memory {
  #machine;
  #decoder = new TextDecoder();
  #encoder = new TextEncoder();
  #data = null;
  #nothing = 0;

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
    return this.#giveShort(text) ?? this.#giveAny(text);
  }

  /** What is short and of ASCII alone, as most is, is not worth an encoder. */
  #giveShort(text) {
    const { length } = text;
    if (length > SHORT) return null;
    for (let i = 0; i < length; ++i) {
      const code = text.charCodeAt(i);
      if (code === 0 || code > 0x7f) return null;
    }
    const place = this.#machine._malloc(length + 1);
    const heap = this.#machine.HEAPU8;
    for (let i = 0; i < length; ++i) heap[place + i] = text.charCodeAt(i);
    heap[place + length] = 0;
    return place;
  }

  #giveAny(text) {
    const bytes = this.#encoder.encode(text.includes('\0') ? text.slice(0, text.indexOf('\0')) : text);
    const place = this.#machine._malloc(bytes.length + 1);
    this.#machine.HEAPU8.set(bytes, place);
    this.#machine.HEAPU8[place + bytes.length] = 0;
    return place;
  }

  /** Lends a text for the length of a call. */
  lend(text, call) {
    if (text === '') return call((this.#nothing ||= this.give(text)));
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

  /** Another one when the heap has grown. */
  #view() {
    const { buffer } = this.#machine.HEAPU8;
    if (this.#data?.buffer !== buffer) this.#data = new DataView(buffer);
    return this.#data;
  }
}
