import { failAsMismatch, numberOf } from './errors.js';
import { stopsIn } from './events.js';
import { Job } from './jobs.js';
import { notLoadedAt } from './languages.js';
import { backColorOf, dropView, follow, isLoaded, isPending, load, newView, runJob, stateOf } from './machine.js';
import { sheetsOf, TWIPS_AN_EM } from './style.js';
import { DossierControle, ProcedureTrace } from './trace.js';
import { View } from './view.js';

const STATES = ['never', 'bound', 'failed', 'unbound'];
const RESULTS = ['bound', 'failed', 'refused'];
const EVENTS = ['refreshtopdisplay', 'heightchanged', 'changed'];
/** Of the explanation control, in twips. */
const DESIGN_WIDTH = 6030;

/** Where pages are made on a server there are no elements, and importing this does nothing. */
const Base = globalThis.HTMLElement ?? class {};

/**
 * What the two elements have in common. An element lives from when it is used first until it is taken out of its page;
 * put back, it is made anew and bound as it was.
 */
class ControlElement extends Base {
  #view = null;
  #bound = null;
  #factories = {};
  #questionDetails = null;
  #backColor = null;
  #internals = this.attachInternals();

  static observedAttributes = ['lang'];

  constructor() {
    super();
    this.attachShadow({ mode: 'open' }).adoptedStyleSheets = sheetsOf(this.ownerDocument);
    this._takeOver('hostFactories', 'questionDetails', 'backColor');
  }

  /** What a page set before the element was defined hides the accessors of those names. */
  _takeOver(...names) {
    for (const name of names) {
      if (!Object.hasOwn(this, name)) continue;
      const value = this[name];
      delete this[name];
      try {
        this[name] = value;
      } catch (error) {
        reportError(error);
      }
    }
  }

  connectedCallback() {
    if (this.#view !== null) this.#view.moved();
    else if (isLoaded()) this.#appear();
    else load().then(() => this.#appear(), () => this.#showNotLoaded());
  }

  /** Another document has the style anew. */
  adoptedCallback() {
    this.shadowRoot.adoptedStyleSheets = sheetsOf(this.ownerDocument);
  }

  disconnectedCallback() {
    // An element that is moved is taken out as well, and is in its page again when this runs.
    queueMicrotask(() => {
      if (!this.isConnected) this.#end();
    });
  }

  attributeChangedCallback() {
    if (this.#view !== null) follow(this.#view);
  }

  /** What the host makes where a control needs an object of its classes, told the name of the control. */
  get hostFactories() {
    return this.#factories;
  }
  set hostFactories(factories) {
    this.#factories = factories ?? {};
  }

  /** What the host adds below a question of the editor, told its title and text; nothing for nothing. */
  get questionDetails() {
    return this.#questionDetails;
  }
  set questionDetails(details) {
    this.#questionDetails = details;
  }

  /** Whether something is being typed or chosen, was refused, is asked, or the form is open: what leaving the page loses. */
  get pending() {
    return this.#view !== null && (this.#view.dialog !== null || isPending(this.#view));
  }

  get state() {
    return STATES[this.#view === null ? 0 : stateOf(this.#view)];
  }

  get backColor() {
    return this.#view === null ? (this.#backColor ?? -2147483633) : backColorOf(this.#view);
  }
  set backColor(color) {
    if (!Number.isInteger(color)) failAsMismatch();
    this.#backColor = color;
    this._set(Job.backColor, color | 0);
  }

  /** To the first control that takes the focus, or to what is asked. */
  focus(options) {
    if (this.#view?.dialog) this.#view.focusDialog(options);
    else stopsIn(this.shadowRoot)[0]?.focus(options);
  }

  async validation(controleNr = 0, cancel = false) {
    const number = numberOf(controleNr);
    return (await this.#use(() => this.#job(Job.validation, { number, more: cancel ? 1 : 0 }))) !== 0;
  }
  async commitPending() {
    return (await this.#use(() => this.#job(Job.commitPending))) !== 0;
  }
  async unbind() {
    await this.#use(() => this.#view !== null && this.#job(Job.unbind));
    this.#bound = null;
  }

  /** Binds to objects of the host, now where the machine has been started. */
  async _bind(binding) {
    const result = RESULTS[await this.#use(() => this.#job(Job.bind, binding))];
    if (result !== 'refused') this.#bound = binding.first == null ? null : binding;
    if (result === 'bound') this._laidOut();
    return result;
  }
  async _job(job, order) {
    return this.#use(() => this.#job(job, order));
  }
  /** For who waits for nothing: what fails here makes the binding fail too, which says so. */
  _set(job, number) {
    this._job(job, { number }).catch(() => {});
  }

  /** For tests, which reach further than a host. */
  get _view() {
    return this.#made();
  }

  #use(work) {
    return isLoaded() ? work() : load().then(work);
  }

  #job(job, order) {
    return runJob(this.#made(), job, order).result;
  }

  #made() {
    if (this.#view !== null) return this.#view;
    const view = new View(this.shadowRoot, {
      makeForHost: (what, control) => this.#make(what, control),
      tell: (what, text) => this.#tell(what, text),
      details: (title, text) => this.#details(title, text),
      spoken: (language) => this.#speak(language),
    });
    newView(view, this._kind);
    this.#speak(view.language);
    this.#view = view;
    return view;
  }

  #appear() {
    if (!this.isConnected) return;
    this.#made();
    this.#again();
  }
  #showNotLoaded() {
    const { text, lang } = notLoadedAt(this);
    const fault = Object.assign(document.createElement('p'), { textContent: text, lang, role: 'alert' });
    fault.part = 'fault';
    this.shadowRoot.replaceChildren(fault);
  }

  /** An element that is put back in a page is as it was. */
  #again() {
    if (this.#backColor !== null) this._set(Job.backColor, this.#backColor | 0);
    this._again();
    if (this.#bound !== null && this.state === 'never') this.#job(Job.bind, this.#bound);
    this._laidOut();
  }
  _again() {}
  /** It was bound: what lays it out by its place does so. */
  _laidOut() {}

  /** What screen readers call it, unless its page says otherwise. */
  #speak(language) {
    if (this._name === null) return;
    this.#internals.role = 'group';
    this.#internals.ariaLabel = language.of(this._name);
  }

  #end() {
    if (this.#view === null) return;
    const view = this.#view;
    this.#view = null;
    dropView(view);
    view.stopListening();
    this.shadowRoot.replaceChildren();
  }

  #make(what, control) {
    if (what === 'ProcedureTrace') return this.#factories.procedureTrace?.(control) ?? new ProcedureTrace();
    return this.#factories.dossierControle?.(control) ?? new DossierControle();
  }

  #details(title, text) {
    try {
      const details = this.#questionDetails?.(title, text) ?? '';
      if (typeof details !== 'string') failAsMismatch();
      return details;
    } catch (error) {
      reportError(error);
      return '';
    }
  }

  #tell(what, text) {
    const detail = what === 0 ? { text } : undefined;
    this.dispatchEvent(new CustomEvent(EVENTS[what], { detail, bubbles: true, composed: true }));
  }
}

/** The editor of a free column. */
export class VrijeKolomElement extends ControlElement {
  #beeindigenZichtbaar = false;

  constructor() {
    super();
    this._takeOver('beeindigenZichtbaar');
  }
  get _kind() {
    return 0;
  }
  get _name() {
    return 'FreeColumn';
  }

  /** Binds the editor to a column of a loan (0: the loan of the current situation) and fills it. */
  async setApplication(application, lenId, vrijId) {
    return this._bind({ first: application, number: numberOf(lenId), more: numberOf(vrijId) });
  }
  /** The check of the explanation control inside the editor. */
  async validationToelichting(controleNr = 0, cancel = false) {
    const order = { number: numberOf(controleNr), more: cancel ? 1 : 0 };
    return (await this._job(Job.validationToelichting, order)) !== 0;
  }

  get beeindigenZichtbaar() {
    return this.#beeindigenZichtbaar;
  }
  set beeindigenZichtbaar(zichtbaar) {
    this.#beeindigenZichtbaar = Boolean(zichtbaar);
    this._set(Job.beeindigenZichtbaar, zichtbaar ? 1 : 0);
  }
  _again() {
    if (this.#beeindigenZichtbaar) this._set(Job.beeindigenZichtbaar, 1);
  }
}

/** The explanation control by itself. It is as wide as its place, and no narrower than its design. */
export class ToelichtingElement extends ControlElement {
  /** In twips: of its place when that was seen last. */
  #width = DESIGN_WIDTH;
  #sizes = new ResizeObserver(([entry]) => {
    const { width } = entry.contentRect;
    if (width === 0) return;
    this.#width = Math.max(DESIGN_WIDTH, Math.round(width / (parseFloat(getComputedStyle(this).fontSize) / TWIPS_AN_EM)));
    this._laidOut();
  });

  constructor() {
    super();
    this.#sizes.observe(this);
  }
  get _kind() {
    return 1;
  }
  get _name() {
    return null;
  }

  _laidOut() {
    if (this.state === 'bound') this._set(Job.size, this.#width);
  }

  async setApplication(application, lening, vrijId) {
    return this._bind({ first: application, second: lening, number: 0, more: numberOf(vrijId) });
  }
}
