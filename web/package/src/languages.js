// What is added to the controls is said in the language of the place where an element stands: that of the nearest `lang`,
// its own first. Dutch and English are the machine's; others a page adds.

import { textIn } from './machine.js';
import { NOT_LOADED } from './unloaded.js';

/** As in PageTexts.h. */
const Spoken = Object.freeze({ dutch: 0, english: 1, pagesOwn: 2 });

/** A language with what it calls each text of the catalogue. */
class Language {
  #added;
  #known = new Map();

  constructor(tag, number, added = {}) {
    this.tag = tag;
    this.number = number;
    this.#added = added;
  }

  /** What this language has of its own, or nothing. */
  own(name) {
    return this.#added[name] ?? '';
  }
  of(name) {
    if (!this.#known.has(name)) this.#known.set(name, this.own(name) || textIn(this.number === Spoken.english, name));
    return this.#known.get(name);
  }
}

const dutch = new Language('nl', Spoken.dutch, { NotLoaded: NOT_LOADED.nl });
const english = new Language('en', Spoken.english, { NotLoaded: NOT_LOADED.en });
const languages = new Map([['nl', dutch], ['en', english]]);

/** Adds a language, known by its tag ("fy", "de-AT"), or puts other texts in the place of those of one. */
export function addLanguage(tag, texts) {
  languages.set(tag.toLowerCase(), new Language(tag, Spoken.pagesOwn, { ...texts }));
}

/** That the machine could not be started, and the language that this is in. */
export function notLoadedAt(element) {
  const here = languageAt(element);
  const spoken = here.own('NotLoaded') === '' ? dutch : here;
  return { text: spoken.own('NotLoaded'), lang: spoken.tag };
}

function tagAt(element) {
  const near = element.closest('[lang]');
  if (near !== null) return near.lang;
  const host = element.getRootNode().host;
  return host === undefined ? '' : tagAt(host);
}

/** Dutch where no other language is known: "en-GB" is English unless a page has added it. */
export function languageAt(element) {
  const tag = tagAt(element).toLowerCase();
  return languages.get(tag) ?? languages.get(tag.split('-')[0]) ?? dutch;
}
