import type { Application, Lening, ProcedureTrace, DossierControle } from './model.js';

export type * from './model.js';

/** What became of a binding. Failed: `ReportError` was told why. Refused: something that is being typed does not pass, and the element stays bound as it was. */
export type BindingResult = 'bound' | 'failed' | 'refused';
/** What an element stands for. After a failed binding and after letting go it shows nothing until a binding succeeds. */
export type BindingState = 'never' | 'bound' | 'failed' | 'unbound';

/**
 * A failure with a number. The component's own are 6 (overflow), 9 (subscript out of range), 13 (type mismatch), 91 (object
 * missing), 381 (no such list entry) and 438 (no such member). What a host throws of this class reaches `ReportError` with
 * its number, description and source; anything else is number 440 with its text.
 */
export class HostError extends Error {
  constructor(number: number, description?: string, source?: string);
  readonly number: number;
  readonly source: string;
}

/**
 * What the texts are called that the elements add to the controls; `translations/brivane_en.ts` has each in Dutch and English.
 * One more, `NotLoaded`, stands where an element could not be started.
 */
export type TextName =
  | 'ExpectAmount' | 'AmountDecimals' | 'ExpectNumber' | 'NumberDecimals' | 'ExpectWhole' | 'NumberTooLarge'
  | 'PointMisplaced' | 'PointOrComma' | 'ExpectDate' | 'EarliestYear' | 'NoSuchMonth' | 'NoSuchDay' | 'Day'
  | 'DayOfWeek' | 'January' | 'February' | 'March' | 'April' | 'May' | 'June' | 'July' | 'August' | 'September'
  | 'October' | 'November' | 'December' | 'Monday' | 'Tuesday' | 'Wednesday' | 'Thursday' | 'Friday' | 'Saturday'
  | 'Sunday' | 'DivideByZero' | 'NumberAfterSign' | 'UnreadableSum' | 'DateForNumber' | 'SumTooLarge' | 'NoStart'
  | 'PastCalendar' | 'OneColumn' | 'InLine' | 'LineLeftOver' | 'LinesLeftOver' | 'NotStored' | 'NotTaken'
  | 'LeftInBox' | 'LeftInSomeBox' | 'DropQuestion' | 'RowsNotStored' | 'AmountStays' | 'ValueStays' | 'TypingToo'
  | 'CloseQuestion' | 'RowPeriod' | 'TurnsAge' | 'NothingOpen' | 'FreeColumn' | 'Calendar' | 'CalendarKey' | 'Today'
  | 'CalendarLocale' | 'Help' | 'HelpOn' | 'Yes' | 'No' | 'Ok' | 'Close';

/**
 * Adds a language for what the elements add to the controls, by its tag ("fy", "de-AT"). A text that is left out is Dutch.
 * "%1" to "%9" stand where something is filled in, "&" before the letter that goes with Alt. To be called before the elements
 * are used.
 */
export function addLanguage(tag: string, texts: Partial<Record<TextName | 'NotLoaded', string>>): void;

/** What the host makes where a control needs an object of its classes. To be set before the element is used. */
export interface HostFactories {
  /** Told "VrijeKolom" or "Toelichting". Without it failures are reported by a plain tracer. */
  procedureTrace?(control: string): ProcedureTrace;
  /** The check that a complete validation of the editor calls last. */
  dossierControle?(control: string): DossierControle;
}

export interface ControlEventMap extends HTMLElementEventMap {
  /** The header text of the column may have changed. Of the editor. */
  refreshtopdisplay: CustomEvent<{ text: string }>;
  /** The control was laid out: its height may have changed. Of the editor. */
  heightchanged: CustomEvent<null>;
  /** An edit of the explanation control was written into the record. */
  changed: CustomEvent<null>;
}

declare class ControlElement extends HTMLElement {
  /**
   * The language of what is added to the controls: "nl", "en", or one of `addLanguage`. Where the element has none of its own,
   * that of the nearest element around it that has one; Dutch where that is unknown. The captions of the controls stay Dutch.
   */
  lang: string;
  hostFactories: HostFactories;
  /**
   * What the host adds below a question of the editor, such as what "Ja" will remove; empty for nothing. It is asked while the
   * question is made, so it answers a text and no promise: anything else is reported to the page, and nothing is added.
   */
  questionDetails: ((title: string, text: string) => string) | null;
  /** A colour as the component has it: 0x00BBGGRR, or below 0 for one of the system, which is the page's. */
  backColor: number;
  readonly state: BindingState;
  /**
   * Whether something is being typed or chosen, was refused, is asked, or the form is open. Read in `beforeunload`, after
   * `commitPending()`: what is still pending then is lost with the page.
   */
  readonly pending: boolean;
  /** Goes to the first control that takes the focus; where something is asked or the form is open, to where that is worked in. */
  focus(options?: FocusOptions): void;

  /**
   * The host's check before it leaves the column: whether to stay. What is being typed is handed over first. A question may
   * be asked meanwhile. `controleNr`: 0 everything, or the number of one check.
   */
  validation(controleNr?: number, cancel?: boolean): Promise<boolean>;
  /** Hands over what is being typed or chosen; false where something does not pass. */
  commitPending(): Promise<boolean>;
  /** Lets go of every object of the host's, and leaves the element empty. */
  unbind(): Promise<void>;

  addEventListener<K extends keyof ControlEventMap>(
    type: K,
    listener: (this: this, event: ControlEventMap[K]) => unknown,
    options?: boolean | AddEventListenerOptions,
  ): void;
  addEventListener(
    type: string,
    listener: EventListenerOrEventListenerObject,
    options?: boolean | AddEventListenerOptions,
  ): void;
  removeEventListener<K extends keyof ControlEventMap>(
    type: K,
    listener: (this: this, event: ControlEventMap[K]) => unknown,
    options?: boolean | EventListenerOptions,
  ): void;
  removeEventListener(
    type: string,
    listener: EventListenerOrEventListenerObject,
    options?: boolean | EventListenerOptions,
  ): void;
}

/** `<vrije-kolom>`: the editor of a free column. */
export class VrijeKolomElement extends ControlElement {
  /**
   * Binds the editor to column `vrijId` of loan `lenId` (0: the loan of the current situation) and fills it. Without an
   * application it lets go of the host. Rejects with a HostError where `ReportError` could not be told: it
   * is not there or fails, `hostFactories` fail or make something else, a number is none (13) or too large (6).
   */
  setApplication(application: Application | null, lenId: number, vrijId: number): Promise<BindingResult>;
  /** The check of the explanation control inside the editor: whether to stay. */
  validationToelichting(controleNr?: number, cancel?: boolean): Promise<boolean>;
  /** Whether the frame with the proposals is shown. */
  beeindigenZichtbaar: boolean;
}

/** `<vrije-kolom-toelichting>`: the explanation control by itself. */
export class ToelichtingElement extends ControlElement {
  setApplication(application: Application | null, lening: Lening | null, vrijId: number): Promise<BindingResult>;
}

/**
 * Resolves when the elements can show something; rejects where the browser could not start them, which they say in their
 * place, and where pages are made on a server. Nobody needs to wait.
 */
export const ready: Promise<void>;

declare global {
  interface HTMLElementTagNameMap {
    'vrije-kolom': VrijeKolomElement;
    'vrije-kolom-toelichting': ToelichtingElement;
  }
}
