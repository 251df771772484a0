// Days as the controls count them: since 30 December 1899.

const EPOCH = 25569;  // 1 January 1970
const DAY = 86400000;

/** The day of a moment in milliseconds since 1970, of which a day begins at midnight in Greenwich. */
export const dayAt = (moment) => moment / DAY + EPOCH;

/** A day as pages write it: "2031-04-01", or nothing for none. */
export const writtenDay = (day) => (Number.isNaN(day) ? '' : new Date((day - EPOCH) * DAY).toISOString().slice(0, 10));

/** The day of a date as the calendar on the wall has it. */
export const dayOf = (date) => dayAt(Date.UTC(date.getFullYear(), date.getMonth(), date.getDate()));
