// The order in which things reach the machine: one at a time, and each comes to its end, or to where it waits for a
// person, before the next. What happens while the machine is at work (the focus moves, the host's own handlers call back)
// waits until the page is its own again.

/** What the machine is asked to do. The numbers stand in Exports.cpp too. */
export const Job = Object.freeze({
  make: 0, bind: 1, unbind: 2, validation: 3, validationToelichting: 4, commitPending: 5, backColor: 6,
  beeindigenZichtbaar: 7, size: 8, key: 9, typed: 10, pasted: 11, left: 12, picked: 13, letter: 14, close: 15,
});

const queue = [];
const running = new Map();
let last = 0;
let atWork = false;

/** Whether the machine stands on the stack. */
export const isAtWork = () => atWork;

/** Runs a call into the machine now, or after what is going on. */
export function enter(call) {
  queue.push(call);
  if (atWork) return;
  while (queue.length > 0) {
    atWork = true;
    try {
      queue.shift()();
    } finally {
      atWork = false;
    }
  }
}

/** A job that was given out: `done` as soon as it has come to its end, often before run comes back. */
class GivenOut {
  done = false;
  answer = 0;
  error = null;
  #result = null;
  #settle = null;

  /** A promise of the answer, made for who wants one: a key that goes down does not. */
  get result() {
    if (this.#result === null) {
      this.#result = new Promise((resolve, reject) => {
        this.#settle = () => (this.error === null ? resolve(this.answer) : reject(this.error));
      });
      this.#result.catch(() => {});
      if (this.done) this.#settle();
    }
    return this.#result;
  }

  end() {
    this.done = true;
    this.#settle?.();
  }
}

export function run(call) {
  const number = ++last;
  const job = new GivenOut();
  running.set(number, job);
  enter(() => call(number));
  return job;
}

function end(number, said) {
  const job = running.get(number);
  running.delete(number);
  Object.assign(job, said).end();
}

export const done = (number, answer) => end(number, { answer });
export const failed = (number, error) => end(number, { error });
