// A column inside a form of final-form: the library's values are the record. What the editor writes makes the form dirty,
// "Bewaren" submits it once the editor lets it, and "Terugzetten" resets it and binds the editor anew.
//
//     npm install ./brivane-vrije-kolom-1.0.0.tgz final-form     # the first as `npm pack build/web/package` makes it
//     npx esbuild main.js --bundle --format=esm --outfile=form.js
//     cp node_modules/brivane-vrije-kolom/src/machine.wasm .
import 'brivane-vrije-kolom';
import { createForm, getIn } from 'final-form';

import { Application, Dossier, KOLOM, PERIODE } from '../../../web/demo/model.js';

const { Id, Voorstel, ...FIELDS } = KOLOM;
const BEDRAG = { Naam: '', Invoersoort: 1, Bedrag: 0 };

const editor = document.querySelector('vrije-kolom');
const button = (id) => document.getElementById(id);

const form = createForm({
  initialValues: {
    ...FIELDS, Omschrijving: 'Kinderopvang', CorrectieFiscaal: 3, DatumAanvang: '2026-09-01', Looptijd: 96, Voorstel: [...Voorstel],
    Bedrag: { ...BEDRAG, Bedrag: 485.5, Perioden: [] },
  },
  onSubmit: (values) => {
    form.initialize(values);
    button('stand').value = `Bewaard: ${values.Omschrijving}`;
  },
});
const isEqual = (one, other) => JSON.stringify(one) === JSON.stringify(other);
for (const name of Object.keys(form.getState().values)) form.registerField(name, () => {}, {}, { isEqual });
form.subscribe(({ dirty }) => (button('bewaar').disabled = button('terug').disabled = !dirty), { dirty: true });

/** Gives an object of the model these members, which stand in the form below a path. */
function inForm(object, path, members) {
  for (const [name, none] of Object.entries(members)) {
    Object.defineProperty(object, name, {
      // The library leaves out what has no value.
      get: () => getIn(form.getState().values, path + name) ?? none,
      set: (value) => form.change(path + name, value),
    });
  }
  return object;
}

const perioden = () => form.getState().values.Bedrag.Perioden;
const bedrag = inForm({
  get Basisbedrag() {
    return this.Bedrag;
  },
  set Basisbedrag(waarde) {
    this.Bedrag = waarde;
  },
  Periode: (positie) => (perioden()[positie - 1] === undefined ? null : inForm({}, `Bedrag.Perioden.${positie - 1}.`, PERIODE)),
  NieuwePeriode() {
    form.change('Bedrag.Perioden', [...perioden(), { ...PERIODE }]);
    return perioden().length;
  },
  VerwijderPeriode: (positie) => form.change('Bedrag.Perioden', perioden().filter((_, i) => i !== positie - 1)),
}, 'Bedrag.', BEDRAG);

const dossier = new Dossier({
  Personen: [{ Naam: ['J.', 'van', 'Dam'], Geboortedatum: '1985-01-01' }],
  HuidigeLening: { VrijeKolommen: [{ Id: 1 }] },
});
const [item] = dossier.HuidigeLening.kolommen;
inForm(item, '', FIELDS);
Object.assign(item, { Voorstel: inForm([], 'Voorstel.', { ...Voorstel }), Bedrag: bedrag });

const application = new Application(dossier, { MaatschappijType: [['ZZ', 'Anders']] });
const bind = () => editor.setApplication(application, 0, 1);
button('bewaar').addEventListener('click', async () => {
  if (!(await editor.validation())) form.submit();
});
button('terug').addEventListener('click', async () => {
  // What is being typed goes too; a text that was refused would keep the editor as it is.
  await editor.unbind();
  form.reset();
  await bind();
});
document.body.dataset.result = await bind();
