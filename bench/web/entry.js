// The package, with the way to the form by itself.
import { enter } from './src/jobs.js';
import { internals } from './src/machine.js';

export { ready } from './src/index.js';

/** Bytes of its heap. */
export const machineSize = () => internals().machine.HEAPU8.length;

/** Opens the year-by-year form with discounts over an amount object, on the surface of an editor. */
export function openYearForm(editor, amount, years) {
  const { number, objects } = editor._view;
  enter(() => internals().machine._brivane_bench_form(number, objects.keep(amount), years));
}
