import { ToelichtingElement as Toelichting, VrijeKolomElement as VrijeKolom } from './element.js';
import { HostError as Failure } from './errors.js';
import { first } from './first.js';
import { addLanguage as add } from './languages.js';
import { load } from './machine.js';

const exported = first ?? {
  HostError: Failure,
  addLanguage: add,
  ToelichtingElement: Toelichting,
  VrijeKolomElement: VrijeKolom,
  /** Resolves when the machine behind the elements has been started; nobody needs to wait for it. */
  ready: load().then(() => {}),
};
export const { HostError, addLanguage, ToelichtingElement, VrijeKolomElement, ready } = exported;

const elements = globalThis.customElements;
if (elements === undefined) ready.catch(() => {});  // a server, which makes the page and shows nothing
if (first === undefined) {
  VrijeKolom._exports = exported;
  for (const [name, element] of [['vrije-kolom', VrijeKolom], ['vrije-kolom-toelichting', Toelichting]])
    if (elements?.get(name) === undefined) elements?.define(name, element);
}
