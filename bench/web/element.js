import { ready } from '/package/src/index.js';
import { makeHost } from '/tests/pages/host.js';
import { timed } from './measure.js';

/** Young enough for eighty years. */
const SETTINGS = { personen: [{ Naam: ['J.', 'van', 'Dam'], Geboortedatum: '2031-01-01' }], Leeftijd: 120 };
const FIELDS = { Id: 1, Omschrijving: 'Rente', DatumAanvang: '2031-04-01', Looptijd: 960, Bedrag: { Bedrag: 2.5, Invoersoort: 3 } };

async function addEditor() {
  const editor = document.createElement('vrije-kolom');
  document.querySelector('main').append(editor);
  await editor.setApplication(makeHost([FIELDS], SETTINGS).application, 0, 1);
  return editor;
}
const boxes = (root) => [...root.querySelectorAll('input[type="text"]')].filter((box) => !box.disabled);

await ready;
const editor = await addEditor();
editor.getBoundingClientRect();
window.started = performance.now();
window.anotherEditor = () => timed(addEditor);
const named = (name) => [...editor.shadowRoot.querySelectorAll('button')].find((button) => button.node?.design.name === name);
window.openForm = () => timed(() => named('cmdScenario').click());
window.counts = () => ({ editor: boxes(editor.shadowRoot).length, form: editor.shadowRoot.querySelectorAll('dialog input').length,
  filled: boxes(editor.shadowRoot.querySelector('dialog.form')).length });
window.fillForm = () =>
  timed(() => {
    for (const box of boxes(editor.shadowRoot.querySelector('dialog.form'))) {
      box.focus();
      box.value = '12,5';
      box.dispatchEvent(new Event('input', { bubbles: true }));
      box.dispatchEvent(new KeyboardEvent('keydown', { key: 'Enter', bubbles: true, cancelable: true }));
    }
  });
window.isReady = true;
