// A host for the tests: the model of the demo, with what was reported to it.
import { Application, Dossier } from '/demo/model.js';

const PERSONEN = [
  { Naam: ['J.', 'van', 'Dam'], Geboortedatum: '1975-12-31' },
  { Naam: ['A.', 'de', 'Wit'], Geboortedatum: '1978-02-03' },
];
const MAATSCHAPPIJEN = [['AB', 'Alfa Bank'], ['CD', 'Centrale Dekking'], ['ZZ', 'Anders']];

export function makeHost(kolommen, { personen = PERSONEN, Leeftijd = 67 } = {}) {
  const dossier = new Dossier({ Personen: personen, HuidigeLening: { VrijeKolommen: kolommen }, Leningen: [{}] });
  const application = new Application(dossier, { Leeftijd, MaatschappijType: MAATSCHAPPIJEN });
  const reports = [];
  application.gemeld = (trace) => reports.push({ number: trace.ErrorNumber, text: trace.ErrorDescription, at: trace.Message });
  return { application, dossier, items: dossier.HuidigeLening.kolommen, item: dossier.HuidigeLening.kolommen[0], reports };
}
