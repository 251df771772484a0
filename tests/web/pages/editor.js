// One editor on a column, the way most pages have it. `window` holds what the tests look at.
import { ready } from '/package/src/index.js';
import { makeHost } from './host.js';

const place = document.querySelector('vrije-kolom');

/** Puts a fresh editor in the page, and binds it to a column with these fields, alone in its loan. */
window.bind = async (fields = {}, settings = {}) => {
  const editor = document.createElement('vrije-kolom');
  document.querySelector('vrije-kolom').replaceWith(editor);
  const heard = [];
  for (const name of ['refreshtopdisplay', 'heightchanged', 'changed'])
    editor.addEventListener(name, (event) => heard.push(event.detail?.text ?? name));
  Object.assign(window, makeHost([fields], settings), { editor, heard });
  return editor.setApplication(window.application, 0, window.items[0].Id);
};
window.editor = place;
await ready;
window.isReady = true;
