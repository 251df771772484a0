// The texts of the controls themselves.

/** What the controls say themselves is Dutch, whatever is spoken around them. */
export const OWN_LANGUAGE = 'nl';

/** A caption with an "&" before the letter to underline, and "&&" for one to show. */
export function writeCaption(element, marked) {
  if (!marked.includes('&')) return void (element.textContent = marked);
  const parts = marked.split(/&(.)/s);
  const texts = parts.map((part, i) => {
    if (i % 2 === 0 || part === '&') return part;
    const letter = document.createElement('u');
    letter.textContent = part;
    return letter;
  });
  element.replaceChildren(...texts.filter((text) => text !== ''));
}
