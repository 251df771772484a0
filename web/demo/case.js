// A case as the page works in it: the host's model, with the lines that the host makes of its columns.

import { kopregel } from './kopregels.js';
import { Application, Dossier, VrijeKolomItem } from './model.js';
import { watched } from './watched.js';

function withLines(kolom) {
  for (const name of ['Kopregel', 'Weergave'])
    Object.defineProperty(kolom, name, { get: () => kopregel(kolom), enumerable: true, configurable: true });
  return kolom;
}

/** The application of a record. `changed` is called after each change, `failed` with each record of an error. */
export function openCase(record, { changed, failed }) {
  const dossier = new Dossier(record);
  for (const { kolommen } of dossier.AlleLeningen()) kolommen.forEach(withLines);
  const application = new Application(watched(dossier, changed), record);
  application.gemeld = failed;
  return application;
}

/** What openCase makes the same case of. */
export function recordOf({ Dossier: dossier, Uitgangspunten: { Leeftijd }, Codetabellen: { MaatschappijType } }) {
  return { Leeftijd, MaatschappijType, ...JSON.parse(JSON.stringify(dossier)) };
}

/** Another item of the case, at the end of a loan. */
export function addColumn(dossier, lening, fields) {
  const kolom = withLines(new VrijeKolomItem({ ...fields, Id: dossier.NieuwId() }));
  lening.kolommen.push(kolom);
  return kolom.Id;
}

/** The fields of a column that a copy of it begins with. */
export function fieldsOf(kolom) {
  const { Voorstel, Kopregel, Weergave, ...fields } = JSON.parse(JSON.stringify(kolom));
  return fields;
}
