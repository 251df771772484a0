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
        transaction.onabort = () => {
          const cause = transaction.error?.message ?? 'de browser brak het schrijven af';
          reject(problem ?? new Error(`Niet bewaard: ${cause}.`));
        };
        cases.get(KEY).onsuccess = ({ target }) => {
          if (versionOf(target.result) === version) return void cases.put({ ...given, Versie: version + 1 }, KEY);
          problem = new Overtaken();
          transaction.abort();
        };
      }),
  };
}

/** What stands for a store in a browser that keeps nothing, and says so whenever something was to be kept. */
export function noStore({ message }) {
  const problem = new Error(`Deze browser bewaart niets: wat u invult is weg wanneer u deze pagina sluit (${message}).`);
  return { problem, read: async () => undefined, listen: () => {}, write: () => Promise.reject(problem) };
}
