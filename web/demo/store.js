// The case of this browser: one record in IndexedDB, written whenever something in it was changed.

const NAME = 'vrije-kolommen';
const CASES = 'dossiers';
const KEY = 'voorbeeld';

const done = (request) =>
  new Promise((resolve, reject) => {
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error);
  });

export async function openStore() {
  const request = indexedDB.open(NAME, 1);
  request.onupgradeneeded = () => request.result.createObjectStore(CASES);
  const database = await done(request);
  const cases = (mode) => database.transaction(CASES, mode).objectStore(CASES);
  return {
    read: () => done(cases('readonly').get(KEY)),
    write: (given) => done(cases('readwrite').put(given, KEY)),
  };
}

/** The same object, with `told` called after each change of it or of what stands in it. */
export function watched(object, told) {
  const known = new WeakMap();
  const watch = (value) => {
    if (value === null || typeof value !== 'object') return value;
    if (!known.has(value)) known.set(value, new Proxy(value, handler));
    return known.get(value);
  };
  const handler = {
    get: (target, member, receiver) => watch(Reflect.get(target, member, receiver)),
    set: (target, member, value) => {
      target[member] = value;
      told();
      return true;
    },
    deleteProperty: (target, member) => {
      delete target[member];
      told();
      return true;
    },
  };
  return watch(object);
}
