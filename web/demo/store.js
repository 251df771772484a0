// The case of this browser: one record in IndexedDB. Its version goes up each time that one of the pages writes it.

const NAME = 'vrije-kolommen';
const CASES = 'dossiers';
const KEY = 'voorbeeld';

/** Another page has written the case since this one read it. */
export class Overtaken extends Error {
  constructor() {
    super('Niet bewaard: dit dossier is in een ander tabblad gewijzigd.');
  }
}

export const versionOf = (record) => record?.Versie ?? 0;

/** What the browser says of a failure, to stand inside a sentence. */
const causeOf = (thrown) => (thrown?.message || thrown?.name || 'de browser brak het af').replace(/\.$/, '');
const notKept = (thrown) => new Error(`Niet bewaard: ${causeOf(thrown)}.`);

const done = (request) =>
  new Promise((resolve, reject) => {
    request.onsuccess = () => resolve(request.result);
    request.onerror = () => reject(request.error);
  });

/** Rejects where the browser keeps nothing. */
export async function openStore() {
  const request = indexedDB.open(NAME, 1);
  request.onupgradeneeded = () => request.result.createObjectStore(CASES);
  const database = await done(request);
  const read = () => done(database.transaction(CASES).objectStore(CASES).get(KEY));
  await read();
  const pages = new BroadcastChannel(NAME);
  return {
    read,

    /** `told` is called from now on when another page has written. */
    listen: (told) => (pages.onmessage = told),

    /** Writes over the version that was read or written last; answers the next one once it is kept. */
    write: (given, version) =>
      new Promise((resolve, reject) => {
        const transaction = database.transaction(CASES, 'readwrite', { durability: 'strict' });
        const cases = transaction.objectStore(CASES);
        let problem = null;
        transaction.oncomplete = () => {
          pages.postMessage(null);
          resolve(version + 1);
        };
        transaction.onabort = () => reject(problem ?? notKept(transaction.error));
        cases.get(KEY).onsuccess = ({ target }) => {
          try {
            if (versionOf(target.result) !== version) throw new Overtaken();
            cases.put({ ...given, Versie: version + 1 }, KEY);
          } catch (thrown) {
            problem = thrown instanceof Overtaken ? thrown : notKept(thrown);
            transaction.abort();
          }
        };
      }),
  };
}

/** What stands for a store in a browser that keeps nothing, and says so whenever something was to be kept. */
export function noStore(thrown) {
  const problem = new Error(`Deze browser bewaart niets: wat u invult is weg wanneer u deze pagina sluit (${causeOf(thrown)}).`);
  return { problem, read: async () => undefined, listen: () => {}, write: () => Promise.reject(problem) };
}
