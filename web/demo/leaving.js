// The page is left: what is being typed is handed over first, and what is not kept is asked about by the browser.

/**
 * `leave` is called when the page may go with something that is not kept. Answers what begins the page anew without being
 * asked.
 */
export function guardLeaving(editor, keeper, leave) {
  const handOver = () => {
    if (editor.state === 'bound') editor.commitPending();
  };
  const go = () => {
    handOver();
    if (!keeper.isDone && !keeper.isOvertaken) leave();
  };
  // Before the browser asks: once it was answered a page has no time left, not even for the end of what it does then.
  const guard = (event) => {
    go();
    if (!keeper.isDone || editor.pending) event.preventDefault();
  };
  addEventListener('beforeunload', guard);
  addEventListener('pagehide', go);
  document.addEventListener('visibilitychange', () => {
    if (document.hidden) handOver();
  });
  return () => {
    removeEventListener('beforeunload', guard);
    removeEventListener('pagehide', go);
    location.reload();
  };
}
