import { ToelichtingElement, VrijeKolomElement } from './element.js';
import { load } from './machine.js';

export { HostError } from './errors.js';
export { addLanguage } from './languages.js';
export { ToelichtingElement, VrijeKolomElement };

/** Resolves when the machine behind the elements has been started; nobody needs to wait for it. */
export const ready = load().then(() => {});

const elements = globalThis.customElements;
if (elements === undefined) ready.catch(() => {});  // a server, which makes the page and shows nothing
for (const [name, element] of [['vrije-kolom', VrijeKolomElement], ['vrije-kolom-toelichting', ToelichtingElement]])
  if (elements?.get(name) === undefined) elements?.define(name, element);
