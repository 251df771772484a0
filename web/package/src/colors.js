/**
 * A colour of the component (0x00BBGGRR) as the page writes it, with text that can be read on it. A colour of the system,
 * which is below 0, is left to the page.
 */
export function colorsOf(number) {
  if (number < 0) return { background: '', text: '' };
  const [red, green, blue] = [number & 0xff, (number >> 8) & 0xff, (number >> 16) & 0xff];
  const light = 0.299 * red + 0.587 * green + 0.114 * blue;
  return { background: `rgb(${red} ${green} ${blue})`, text: light > 140 ? '#000' : '#fff' };
}
