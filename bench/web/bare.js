// As many inputs in a row, with nothing around them and nothing behind them.
import { countOf, fill, laidOut } from './measure.js';

const EDITOR = 45;
const FORM = 242;

function inputs(count) {
  const area = document.createElement('div');
  for (let i = 0; i < count; ++i) area.append(Object.assign(document.createElement('input'), { type: 'text', value: '2,50' }));
  return area;
}

let boxes;
await laidOut(() => document.querySelector('main').append(inputs(EDITOR)));
window.started = performance.now();
window.work = {
  editor: () => laidOut(() => document.querySelector('main').append(inputs(EDITOR))),
  form: () =>
    laidOut(() => {
      const dialog = document.createElement('dialog');
      dialog.append(inputs(FORM));
      document.body.append(dialog);
      dialog.showModal();
      boxes = [...dialog.querySelectorAll('input')].slice(0, 240);
    }),
  fill: () => fill(boxes),
};
window.counts = () => ({ editor: countOf(document.querySelector('main div')), form: countOf(document.querySelector('dialog')) });
window.isReady = true;
