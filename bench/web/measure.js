/** Does something and lays it out, so that this is counted with it. */
export async function laidOut(work) {
  const answer = await work();
  document.body.getBoundingClientRect();
  return answer;
}

/** Types in each box as fast as it goes, and goes on to the next with Enter. */
export function fill(boxes) {
  for (const box of boxes) {
    box.focus();
    box.value = '12,5';
    box.dispatchEvent(new Event('input', { bubbles: true, composed: true }));
    box.dispatchEvent(new KeyboardEvent('keydown', { key: 'Enter', bubbles: true, composed: true, cancelable: true }));
    document.body.getBoundingClientRect();
  }
}

/** Milliseconds that a piece of window.work takes. */
window.timed = async (name) => {
  const from = performance.now();
  await window.work[name]?.();
  return performance.now() - from;
};

/** What can be typed in. */
export const boxesOf = (root) => [...root.querySelectorAll('input[type="text"]:not(:disabled, :read-only)')].filter((box) => box.checkVisibility());

/** How much stands in a part of the page. */
export const countOf = (root) => {
  const count = (selector) => root.querySelectorAll(selector).length;
  return { boxes: boxesOf(root).length, controls: count('input, select, button'), elements: count('*') };
};
