/** The same object, with `told` called after each change of it or of what stands in it. */
export function watched(object, told) {
  const known = new WeakMap();
  const watch = (value) => {
    if (value === null || typeof value !== 'object') return value;
    if (!known.has(value)) known.set(value, new Proxy(value, handler));
    return known.get(value);
  };
  const handler = {
    get: (target, member, receiver) => watch(Reflect.get(target, member, receiver)),
    set: (target, member, value) => {
      target[member] = value;
      told();
      return true;
    },
    deleteProperty: (target, member) => {
      delete target[member];
      told();
      return true;
    },
  };
  return watch(object);
}
