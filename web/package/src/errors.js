/**
 * A failure with a number, as the component reports it to its host and as a host may throw one: number, description and
 * source reach `ReportError` as they are. Anything else that a host throws is number 440 with its text.
 */
export class HostError extends Error {
  constructor(number, description = '', source = 'BrivaneVrijeKolom') {
    super(description);
    this.name = 'HostError';
    this.number = number;
    this.source = source;
  }
}

const TYPE_MISMATCH = 13;
export function failAsMismatch() {
  throw new HostError(TYPE_MISMATCH, 'Type mismatch');
}
/** For the machine, which says what is wrong with a number. */
export function numberOf(value) {
  if (typeof value !== 'number') failAsMismatch();
  return value;
}

const FOREIGN = 440;
const isNumber = (number) => Number.isInteger(number) && Math.abs(number) < 2 ** 31;

/** What was thrown, as number, description and source. */
export function failureOf(thrown) {
  try {
    const number = isNumber(thrown?.number) ? thrown.number : FOREIGN;
    const description = typeof thrown?.message === 'string' ? thrown.message : String(thrown);
    return { number, description, source: typeof thrown?.source === 'string' ? thrown.source : 'BrivaneVrijeKolom' };
  } catch {
    return { number: FOREIGN, description: '', source: 'BrivaneVrijeKolom' };
  }
}
