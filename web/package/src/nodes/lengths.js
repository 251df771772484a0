// Lengths of the design on the page, which go with the text around the element.

/** Lengths as texts; most stand in many rows. */
const MOST_LENGTHS = 2000;
const lengths = new Map();
export function ems(length) {
  let text = lengths.get(length);
  if (text !== undefined) return text;
  if (lengths.size === MOST_LENGTHS) lengths.clear();
  lengths.set(length, (text = `${length}em`));
  return text;
}
