import { Session } from '/door/session.js';
import { ready } from '/door/src/index.js';

await ready;

/** The lines of a session on an element of its own. */
window.play = async (given) => {
  const element = document.createElement('vrije-kolom');
  document.body.append(element);
  const lines = await new Session(given, element).run();
  element.remove();
  return lines;
};
window.isReady = true;
