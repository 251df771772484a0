import { ToelichtingElement, VrijeKolomElement } from './element.js';
import { load } from './machine.js';

export { HostError } from './errors.js';
export { addLanguage } from './languages.js';
export { ToelichtingElement, VrijeKolomElement };

/** Resolves when the machine behind the elements has been started; nobody needs to wait for it. */
export const ready = load().then(() => {});

customElements.get('vrije-kolom') ?? customElements.define('vrije-kolom', VrijeKolomElement);
customElements.get('vrije-kolom-toelichting') ?? customElements.define('vrije-kolom-toelichting', ToelichtingElement);
