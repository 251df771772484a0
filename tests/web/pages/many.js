// Editors beside each other, one in a shadow root, one in a frame.
import { ready } from '/package/src/index.js';
import { makeHost } from './host.js';

await ready;
const box = document.querySelector('#doos').attachShadow({ mode: 'open' });
box.innerHTML = '<vrije-kolom id="diep"></vrije-kolom>';
const column = (Omschrijving) => makeHost([{ Id: 1, Omschrijving, DatumAanvang: '2031-04-01', Bedrag: { Bedrag: 7 } }]);
window.hosts = { een: column('Een'), twee: column('Twee'), diep: column('Diep'), los: column('Los') };
window.elements = { een: document.querySelector('#een'), twee: document.querySelector('#twee'),
  los: document.querySelector('#los'), diep: box.querySelector('#diep') };
for (const [name, element] of Object.entries(window.elements)) {
  const { application, dossier } = window.hosts[name];
  if (name === 'los') await element.setApplication(application, dossier.HuidigeLening, 1);
  else await element.setApplication(application, 0, 1);
}

/** Makes, binds and takes away an editor, so many times. */
window.comeAndGo = async (times, fields = {}) => {
  for (let i = 0; i < times; ++i) {
    const editor = document.createElement('vrije-kolom');
    document.querySelector('main').append(editor);
    const { application } = makeHost([{ Id: 1, DatumAanvang: '2031-04-01', ...fields }]);
    await editor.setApplication(application, 0, 1);
    editor.remove();
    await null;
  }
};
window.isReady = true;
