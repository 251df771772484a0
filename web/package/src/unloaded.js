/** What is said where there is no machine, which has the other texts. */
export const NOT_LOADED = Object.freeze({
  nl: 'De vrije kolom kon niet worden geladen. Laad de pagina opnieuw om het nog eens te proberen.',
  en: 'The free column could not be loaded. Reload the page to try again.',
});
