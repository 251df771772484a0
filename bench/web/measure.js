/** Milliseconds until what was done is laid out. */
export async function timed(work) {
  const from = performance.now();
  await work();
  document.body.getBoundingClientRect();
  return performance.now() - from;
}
