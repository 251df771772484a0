// The element, on the machine with the form by itself.
import { machineSize, openYearForm, ready } from '/bench-package/src/index.js';
import { makeHost } from '/tests/pages/host.js';
import { boxesOf, countOf, fill, laidOut } from './measure.js';

const YEARS = 80;
const FIELDS = { Id: 1, Omschrijving: 'Rente', DatumAanvang: '2031-04-01', Looptijd: 960, Bedrag: { Bedrag: 2.5, Invoersoort: 3 } };

async function addEditor() {
  const editor = document.createElement('vrije-kolom');
  document.querySelector('main').append(editor);
  const { application, item } = makeHost([FIELDS]);
  await editor.setApplication(application, 0, 1);
  return { editor, item };
}

await ready;
const { editor, item } = await laidOut(addEditor);
window.started = performance.now();
const form = () => editor.shadowRoot.querySelector('dialog.form');
window.work = {
  editor: () => laidOut(addEditor),
  form: () => laidOut(() => openYearForm(editor, item.Bedrag, YEARS)),
  fill: () => fill(boxesOf(form())),
};
window.counts = () => ({ editor: countOf(editor.shadowRoot.querySelector('.surface')), form: countOf(form()) });
/** Makes, binds and takes away an editor, so many times. */
window.comeAndGo = async (times) => {
  for (let i = 0; i < times; ++i) {
    (await addEditor()).editor.remove();
    await null;
  }
};
window.machineSize = machineSize;
window.isReady = true;
