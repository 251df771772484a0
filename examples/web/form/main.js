// A column inside a form of final-form: the library's values are the record. What the editor writes makes the form dirty,
// "Bewaren" submits it once the editor lets it, and "Terugzetten" resets it and binds the editor anew.
//
//     npm install ./brivane-vrije-kolom-1.0.0.tgz final-form     # the first as `npm pack build/web/package` makes it
//     npx esbuild main.js --bundle --format=esm --outfile=form.js
//     cp node_modules/brivane-vrije-kolom/src/machine.wasm .
import 'brivane-vrije-kolom';
import { createForm } from 'final-form';

import { Application, Dossier, KOLOM } from '../../../web/demo/model.js';

const editor = document.querySelector('vrije-kolom');
const button = (id) => document.getElementById(id);
const dossier = new Dossier({
  Personen: [{ Naam: ['J.', 'van', 'Dam'], Geboortedatum: '1985-01-01' }],
  HuidigeLening: { VrijeKolommen: [{ Id: 1, Omschrijving: 'Kinderopvang', CorrectieFiscaal: 3, DatumAanvang: '2026-09-01', Bedrag: { Bedrag: 485.5 } }] },
});
const item = dossier.HuidigeLening.kolommen[0];
const NAMES = Object.keys(item).filter((name) => name !== 'Bedrag' && name !== 'Voorstel' && name !== 'Id');

const form = createForm({
  initialValues: Object.fromEntries(NAMES.map((name) => [name, item[name]])),
  onSubmit: (values) => {
    form.initialize(values);
    button('stand').value = `Bewaard: ${values.Omschrijving}`;
  },
});
// The record's members are the form's fields.
for (const name of NAMES) {
  form.registerField(name, () => {}, {});
  Object.defineProperty(item, name, {
    // The library leaves out what has no value.
    get: () => form.getState().values[name] ?? KOLOM[name],
    set: (value) => form.change(name, value),
  });
}
form.subscribe(({ dirty }) => (button('bewaar').disabled = button('terug').disabled = !dirty), { dirty: true });

const application = new Application(dossier, { MaatschappijType: [['ZZ', 'Anders']] });
const bind = () => editor.setApplication(application, 0, 1);
button('bewaar').addEventListener('click', async () => {
  if (!(await editor.validation())) form.submit();
});
button('terug').addEventListener('click', () => {
  form.reset();
  bind();
});
document.body.dataset.result = await bind();
