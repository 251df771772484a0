// Part of the script that emcc writes. A turn that was put aside is taken up again by what the page called first, so that
// alone is kept; what the machine calls through the script while it runs, which is a lot, goes straight on.
LibraryManager.library.$Asyncify.instrumentWasmExports = function (exports) {
  var kept = {};
  for (var name in exports) kept[name] = typeof exports[name] == 'function' ? Asyncify.keepFirst(name, exports[name]) : exports[name];
  return kept;
};
LibraryManager.library.$Asyncify.keepFirst = function (name, original) {
  return function () {
    if (Asyncify.exportCallStack.length != 0) return original.apply(null, arguments);
    Asyncify.exportCallStack.push(name);
    try {
      return original.apply(null, arguments);
    } finally {
      if (!ABORT) {
        Asyncify.exportCallStack.pop();
        Asyncify.maybeStopUnwind();
      }
    }
  };
};
