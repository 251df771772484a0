// The host's objects for the machine: what it asks of them, and the values that go over.

import { dayOf } from './days.js';
import { failureOf, HostError, failAsMismatch } from './errors.js';
import { Keuzelijst } from './keuzelijst.js';

/** As in Value.h. */
const Type = Object.freeze({ nothing: 0, boolean: 1, number: 2, text: 3, date: 4, object: 5, other: 6 });
/** As in Calls.cpp. */
const Way = Object.freeze({ get: 0, put: 1, call: 2, element: 3, make: 4 });
/** A value on the heap: type, object, number, text, more. */
const SIZE = 24;
const OBJECT = 4, NUMBER = 8, TEXT = 16, MORE = 20;

const NO_SUCH_MEMBER = 438;

const lists = new Map([['VulCombo', 2]]);

/** The host may live in another window than the elements. */
const isDate = (value) => Object.prototype.toString.call(value) === '[object Date]';

/** The objects of the host that one element has kept for the machine. */
export class HostObjects {
  #numbers = new Map();
  #kept = new Map();
  #last = 0;

  /** The number of a value as the machine knows it from now on, until it lets go as often as this was called. */
  keep(value) {
    if (value === null || value === undefined) return 0;
    let number = this.#numbers.get(value);
    if (number === undefined) {
      number = ++this.#last;
      this.#numbers.set(value, number);
      this.#kept.set(number, { value, times: 0 });
    }
    ++this.#kept.get(number).times;
    return number;
  }

  letGo(number) {
    const entry = this.#kept.get(number);
    if (entry === undefined || --entry.times > 0) return;
    this.#kept.delete(number);
    this.#numbers.delete(entry.value);
  }

  value(number) {
    return this.#kept.get(number)?.value;
  }
}

/** What the machine calls: Module.host. `pages` finds the element of a number. */
export class Host {
  #memory;
  #machine;
  #pages;
  #names = new Map();

  constructor(machine, memory, pages) {
    this.#machine = machine;
    this.#memory = memory;
    this.#pages = pages;
  }

  letGo(page, number) {
    this.#pages(page)?.objects.letGo(number);
  }

  /** 0, or 1 where the host failed; the answer stands at `place` then. */
  call(page, object, way, name, given, count, place) {
    const element = this.#pages(page);
    try {
      const values = [];
      for (let i = 0; i < count; ++i) values.push(this.#read(element, given + i * SIZE));
      this.#write(element, place, this.#ask(element, object, way, this.#name(name), values));
      return 0;
    } catch (thrown) {
      const failure = failureOf(thrown);
      this.#memory.putNumber(place + NUMBER, failure.number);
      this.#memory.putWhole(place + TEXT, this.#memory.give(failure.description));
      this.#memory.putWhole(place + MORE, this.#memory.give(failure.source));
      return 1;
    }
  }

  /** Names are literals of the machine. */
  #name(place) {
    let name = this.#names.get(place);
    if (name === undefined) this.#names.set(place, (name = this.#memory.text(place)));
    return name;
  }

  #ask(element, number, way, name, values) {
    if (way === Way.make) return element.makeForHost(name, values[0]);
    const object = element.objects.value(number);
    if (way === Way.element) {
      if (typeof object !== 'object') failAsMismatch();
      return object[values[0]];
    }
    if (!(name in Object(object))) throw new HostError(NO_SUCH_MEMBER, `No member ${name}`);
    if (way === Way.put) return void this.#put(object, name, values);
    const list = lists.get(name);
    if (list !== undefined) return this.#lend(object, name, values, list);
    const member = object[name];
    return typeof member === 'function' ? member.apply(object, values) : member;
  }

  #put(object, name, [value, index]) {
    if (index === 0) object[name] = value;
    else object[name][index - 1] = value;
  }

  /** A list of the machine is given to the host as an object, for the length of the call. */
  #lend(object, name, values, place) {
    values[place] = new Keuzelijst(this.#machine, this.#memory, values[place]);
    return void object[name](...values);
  }

  #read(element, place) {
    const memory = this.#memory;
    switch (memory.whole(place)) {
      case Type.boolean: return memory.number(place + NUMBER) !== 0;
      case Type.number: return memory.number(place + NUMBER);
      case Type.text: return memory.text(memory.whole(place + TEXT));
      case Type.object: return element.objects.value(memory.whole(place + OBJECT));
      default: return null;
    }
  }

  #write(element, place, value) {
    const memory = this.#memory;
    const put = (type, number = 0) => {
      memory.putWhole(place, type);
      memory.putNumber(place + NUMBER, number);
    };
    if (value === undefined || value === null) return put(Type.nothing);
    switch (typeof value) {
      case 'boolean': return put(Type.boolean, value ? 1 : 0);
      case 'number': return put(Type.number, value);
      case 'string': return put(Type.text), memory.putWhole(place + TEXT, memory.give(value));
      case 'object':
      case 'function': break;
      default: return put(Type.other);
    }
    if (isDate(value)) return put(Type.date, dayOf(value));
    put(Type.object);
    memory.putWhole(place + OBJECT, element.objects.keep(value));
  }
}
