// Makes elements. Copying one takes a fraction of what making it takes, so each is made once.

export const make = (name, className, properties = {}) => Object.assign(document.createElement(name), { className }, properties);
/** The same with its name for `::part`. */
export function shown(name, className, part, properties) {
  const made = make(name, className, properties);
  made.setAttribute('part', part);
  return made;
}

/** What is made by `pattern` the first time of a key. What a form makes many of is copied with the place of the first. */
const patterns = new Map();
export function copy(design, key, pattern) {
  const placed = design.pattern?.placed;
  if (placed !== undefined) {
    design.twips = placed.twips;
    return placed.outer.cloneNode(true);
  }
  let made = patterns.get(key);
  if (made === undefined) patterns.set(key, (made = pattern()));
  return made.cloneNode(true);
}

/** Of what a form makes many of the first is what the others are copied from, as it stands there. */
export function keepPattern({ design, outer, twips, em }) {
  if (design.pattern === undefined) design.placed = { outer: outer.cloneNode(true), twips, em };
}
