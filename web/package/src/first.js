// Elements are defined once in a page. Where another copy of this package came first, what that one exports is everybody's,
// and this one starts no machine.

export const first = globalThis.customElements?.get('vrije-kolom')?._exports;

export const TWICE = 'brivane-vrije-kolom was loaded twice: the elements of the first copy are used';

if (first !== undefined) console.warn(TWICE);
