// Makes elements. Copying one takes a fraction of what making it takes, so each is made once.

export const make = (name, className, properties = {}) => Object.assign(document.createElement(name), { className }, properties);
/** The same with its name for `::part`. */
export function shown(name, className, part, properties) {
  const made = make(name, className, properties);
  made.setAttribute('part', part);
  return made;
}

/** What is made by `pattern` the first time of a key. What was made of the same design is copied with its place. */
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

/** The first of a design is what the others are copied from, as it stands there. */
export function keepPattern({ design, outer, twips, em }) {
  design.placed = { outer: outer.cloneNode(true), twips, em };
}
