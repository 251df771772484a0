// The page is left: what is being typed is handed over first, and what is not kept is asked about by the browser.

/** Answers what begins the page anew without being asked. */
export function guardLeaving(editor, keeper) {
  const handOver = () => {
    if (editor.state === 'bound') editor.commitPending();
  };
  const guard = (event) => {
    handOver();
    if (!keeper.isDone || editor.pending) event.preventDefault();
  };
  addEventListener('beforeunload', guard);
  document.addEventListener('visibilitychange', () => {
    if (document.hidden) handOver();
  });
  return () => {
    removeEventListener('beforeunload', guard);
    location.reload();
  };
}
