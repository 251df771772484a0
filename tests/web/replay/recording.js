// The objects of a host with everything told that is asked of them, and chosen accesses made to fail.
import { HostError } from '/door/src/index.js';

/** Which member answers another object, or does something. What stands nowhere here is a value. */
const CLASSES = {
  Application: { of: 'Application', objects: { Dossier: 'Dossier', Uitgangspunten: 'Uitgangspunten', Hoofdvenster: null, Codetabellen: null },
    silent: ['VulCombo', 'ZoekCode'] },
  Dossier: { of: 'Dossier', objects: { HuidigeLening: 'Lening', Lening: 'Lening', Persoon: 'Persoon' },
    operations: ['VoegToeAanVoorstel', 'VerwijderUitVoorstel'] },
  Lening: { of: 'Lening', objects: { VrijeKolommen: 'Kolom', VrijeKolom: 'Kolom', VrijeKolomOp: 'Kolom' },
    operations: ['VerwijderVrijeKolom'] },
  Persoon: { of: 'Persoon' },
  Uitgangspunten: { of: 'Uitgangspunten' },
  Kolom: { of: 'VrijeKolomItem', objects: { Bedrag: 'Bedrag' }, arrays: ['Voorstel'] },
  Bedrag: { of: 'Scenario', objects: { Periode: 'Periode' }, operations: ['NieuwePeriode', 'VerwijderPeriode'],
    names: { Basisbedrag: 'Bedrag.Basisbedrag' } },
  Periode: { of: 'Periode' },
};
const DATES = new Set(['DatumAanvang', 'Contractvervaldatum', 'EinddatumOvergang', 'Geboortedatum']);
const RECORD = ['ApplicationTitle', 'ObjectName', 'Caption', 'ObjectDescription', 'Message', 'ErrorNumber', 'ErrorDescription',
  'ErrorSource'];

const shown = (member, value) => (DATES.has(member) && !value ? 0 : value);

/** Counts the accesses of each member, and fails those that were planned. */
class Ledger {
  #counts = new Map();
  constructor(faults) {
    this.faults = faults;
  }
  pass(member, ...ops) {
    for (const op of ops) this.#counts.set(`${op} ${member}`, (this.#counts.get(`${op} ${member}`) ?? 0) + 1);
    const due = this.faults.find((fault) => fault.member === member && ops.includes(fault.op) &&
      fault.nth === this.#counts.get(`${fault.op} ${member}`));
    if (due) throw new HostError(due.number, due.description, due.source);
  }
}

export class Recording {
  #proxies = new WeakMap();

  /** `print(log, line)` is told each access that is of a kind of the transcript. */
  constructor(print, faults = []) {
    this.print = print;
    this.ledger = new Ledger(faults);
  }

  application(inner) {
    return this.#wrap(inner, 'Application');
  }
  amount(inner) {
    return this.#wrap(inner, 'Bedrag');
  }
  /** What stands behind an object that was handed out. */
  inner(handed) {
    return handed?.inner ?? null;
  }

  #wrap(inner, className, positie) {
    if (inner === null || inner === undefined) return null;
    const known = className === 'Periode' ? undefined : this.#proxies.get(inner);
    if (known !== undefined) return known;
    const of = CLASSES[className];
    const nameOf = (member) => of.names?.[member] ?? `${of.of}.${member}`;
    const line = (verb, member, index) => ({ [verb]: nameOf(member), value: shown(member, inner[member]),
      ...(index ?? positie ? { index: index ?? positie } : {}) });
    const made = new Proxy(inner, {
      get: (target, member) => {
        if (member === 'inner') return target;
        if (typeof member === 'symbol') return target[member];
        if (of.objects && member in of.objects) return this.#object(target, member, nameOf(member), of.objects[member]);
        if (of.operations?.includes(member) || of.silent?.includes(member) || member === 'ReportError')
          return (...given) => this.#operation(target, member, nameOf(member), given, of.silent?.includes(member));
        if (of.arrays?.includes(member)) return this.#array(target, member, nameOf(member));
        this.ledger.pass(nameOf(member), 'get');
        this.print('reads', line('get', member));
        return target[member];
      },
      set: (target, member, value) => {
        this.ledger.pass(nameOf(member), 'set');
        target[member] = value;
        this.print('writes', line('set', member));
        return true;
      },
    });
    if (className !== 'Periode') this.#proxies.set(inner, made);
    return made;
  }

  #object(target, member, name, className) {
    const hand = (answer, [positie]) =>
      className === null ? answer : this.#wrap(answer, className, className === 'Periode' ? positie : undefined);
    if (typeof target[member] !== 'function') {
      this.ledger.pass(name, 'get', 'call');
      return hand(target[member], []);
    }
    return (...given) => {
      this.ledger.pass(name, 'get', 'call');
      return hand(target[member](...given), given);
    };
  }

  #operation(target, member, name, given, silent) {
    this.ledger.pass(name, 'call');
    if (member === 'ReportError') {
      target.ReportError(given[0]);
      const report = Object.fromEntries(RECORD.map((field) => [field, given[0].record[field]]));
      this.print('messages', { report });
      return undefined;
    }
    const answer = target[member](...given);
    if (!silent) this.print('calls', { call: name, args: given });
    return answer;
  }

  #array(target, member, name) {
    return new Proxy(target[member], {
      get: (values, index) => {
        if (!/^\d+$/.test(String(index))) return values[index];
        const number = Number(index) + 1;
        this.ledger.pass(name, 'get');
        this.print('reads', { get: name, value: values[index], index: number });
        return values[index];
      },
      set: (values, index, value) => {
        this.ledger.pass(name, 'set');
        values[index] = value;
        this.print('writes', { set: name, value: values[index], index: Number(index) + 1 });
        return true;
      },
    });
  }

  /** What the host makes for the controls. */
  factories() {
    return { procedureTrace: (control) => this.#trace(control), dossierControle: () => this.#check() };
  }

  #trace(control) {
    const record = Object.fromEntries(RECORD.map((field) => [field, '']));
    const mark = (name, told) => (procedure) => {
      this.ledger.pass(`ProcedureTrace.${name}`, 'call');
      this.print('trace', { ...told(procedure), in: control });
    };
    const trace = {
      record,
      EnterProcedure: mark('EnterProcedure', (enter) => ({ enter })),
      LeaveProcedure: mark('LeaveProcedure', () => ({ leave: true })),
      ErrorInProcedure: mark('ErrorInProcedure', (error) => ({ error })),
    };
    for (const field of RECORD)
      Object.defineProperty(trace, field, {
        set: (text) => {
          this.ledger.pass(`ProcedureTrace.${field}`, 'set');
          record[field] = text;
        },
      });
    return trace;
  }

  #check() {
    return {
      Controleer: (application, soort) => {
        this.ledger.pass('DossierControle.Controleer', 'call');
        this.print('calls', { call: 'DossierControle.Controleer', args: [soort] });
      },
    };
  }
}
