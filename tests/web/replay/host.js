// A host in JavaScript that counts and tells every access, for sessions from replay documents.

import { HostError } from './src/errors.js';

const KOLOM = {
  Id: 1, CorrectieLast: 1, CorrectieFiscaal: 1, Omschrijving: '', Termijn: 1, InkomenUitArbeid: false, InDagloon: false,
  HeffingBij: 1, Productsoort: 0, ProductsoortOmschrijving: '', Productnaam: '', IsProduct: false, Maatschappij: '',
  MaatschappijNaam: '', UwBemiddeling: false, DatumAanvang: null, Looptijd: 0, Contractvervaldatum: null,
  Voorstel: ['', '', ''], Weergave: '', Kopregel: '', UitsluitenAO: false, UitsluitenWW: false, UitsluitenLangleven: false,
  ScenarioOverlijden: false, PercentageOvergang: 0, EinddatumOvergang: null, EindleeftijdOvergang: 0,
};
const PERIODE = { Maand: 0, Bedrag: 0, Percentage: 0, Korting: 0, Eenmalig: false };
const DATES = new Set(['DatumAanvang', 'Contractvervaldatum', 'EinddatumOvergang', 'Geboortedatum']);
const PERSONEN = [
  { naam: ['J.', 'van', 'Dam'], Geboortedatum: '1975-12-31' },
  { naam: ['A.', 'de', 'Wit'], Geboortedatum: '1978-02-03' },
];
const SUBSCRIPT = 9;
const MISSING = 91;

/** A value as documents and transcripts write it. */
const written = (name, value) => (DATES.has(name) && value === null ? 0 : value);
const read = (name, value) => (DATES.has(name) && (value === 0 || value === '1899-12-30') ? null : name === 'PercentageOvergang' ? Math.fround(value) : value);

/** Counts the accesses of each member, and fails those that were planned to fail. */
class Ledger {
  #faults;
  #counts = new Map();

  constructor(faults) {
    this.#faults = faults;
  }
  pass(member, ...ops) {
    for (const op of ops) this.#counts.set(`${member} ${op}`, this.#count(member, op) + 1);
    for (const { member: at, op, nth, number, description = '', source = '' } of this.#faults)
      if (at === member && ops.includes(op) && nth === this.#count(member, op)) throw new HostError(number, description, source);
  }
  #count(member, op) {
    return this.#counts.get(`${member} ${op}`) ?? 0;
  }
}

/** `told`: get(member, value, index), set(member, value, index), call(member, args), trace(line), report(record). */
export class Host {
  #told;
  #ledger;
  #facades = new Map();

  constructor(dossier, faults, told, headers) {
    this.#told = told;
    this.#ledger = new Ledger(faults);
    this.headers = headers;
    this.personen = dossier.personen.map((persoon, i) => ({ ...PERSONEN[i], ...persoon }));
    this.leeftijd = dossier.Uitgangspunten?.Leeftijd ?? 67;
    this.codes = dossier.MaatschappijType ?? [['AB', 'Alfa Bank'], ['ZZ', 'Anders']];
    const loan = (lening) => (lening?.VrijeKolommen ?? []).map(columnOf);
    this.huidig = loan(dossier.HuidigeLening);
    this.leningen = (dossier.Leningen ?? [{}]).map(loan);
    this.application = this.#application();
    this.factories = {
      procedureTrace: (control) => this.#trace(control),
      dossierControle: () => ({
        Controleer: (application, soort) => this.#call('DossierControle.Controleer', [soort], () => {}),
      }),
    };
  }

  /** The column of a loan as the record holds it. */
  column(lenId, vrijId) {
    const loan = lenId === 0 ? this.huidig : this.leningen[lenId - 1];
    return loan?.find((column) => column.Id === vrijId) ?? null;
  }
  amountOf(column) {
    return this.#amount(column.Bedrag);
  }

  /** A record behind one of the objects that were handed out. */
  inner(facade) {
    for (const [inner, known] of this.#facades) if (known === facade) return inner;
    return null;
  }

  #once(inner, make) {
    if (inner === null || inner === undefined) return null;
    if (!this.#facades.has(inner)) this.#facades.set(inner, make());
    return this.#facades.get(inner);
  }
  #object(member, inner) {
    this.#ledger.pass(member, 'get', 'call');
    return inner();
  }
  #value(member, value, index) {
    this.#ledger.pass(member, 'get');
    const answer = value();
    this.#told.get(member, written(member.split('.')[1], answer), index);
    return answer;
  }
  #set(member, write, value, index) {
    this.#ledger.pass(member, 'set');
    write();
    this.#told.set(member, written(member.split('.')[1], value()), index);
  }
  #call(member, args, body) {
    this.#ledger.pass(member, 'call');
    const answer = body();
    this.#told.call(member, args);
    return answer;
  }

  /** An object with a property for each field of a record. */
  #fields(record, kind, names, index) {
    const facade = {};
    for (const name of names) {
      const member = `${kind}.${name}`;
      Object.defineProperty(facade, name, {
        enumerable: true,
        get: () => this.#value(member, () => record[name], index),
        set: (value) => this.#set(member, () => (record[name] = read(name, value)), () => record[name], index),
      });
    }
    return facade;
  }

  #application() {
    const host = this;
    return {
      get Dossier() {
        return host.#object('Application.Dossier', () => host.#once(host, () => host.#dossier()));
      },
      get Uitgangspunten() {
        return host.#object('Application.Uitgangspunten', () => ({
          get Leeftijd() {
            return host.#value('Uitgangspunten.Leeftijd', () => host.leeftijd);
          },
        }));
      },
      get Hoofdvenster() {
        return host.#object('Application.Hoofdvenster', () => null);
      },
      get Codetabellen() {
        return host.#object('Application.Codetabellen', () => host.codes);
      },
      VulCombo(bron, tabel, lijst, code, leeg, keuze) {
        host.#ledger.pass('Application.VulCombo', 'call');
        const first = lijst.ListCount;
        if (leeg !== '') lijst.AddItem(leeg, 0);
        const entries = tabel === 'MaatschappijType' ? bron : [];
        entries.forEach(([, tekst], i) => lijst.AddItem(tekst, i + 1));
        const found = entries.findIndex(([known]) => known === code);
        const wanted = found >= 0 ? found + 1 : keuze;
        for (let index = first; wanted !== null && index < lijst.ListCount; ++index)
          if (lijst.ItemData(index) === wanted) return void (lijst.ListIndex = index);
      },
      ZoekCode(bron, tabel, tekst) {
        host.#ledger.pass('Application.ZoekCode', 'call');
        return (tabel === 'MaatschappijType' ? bron : []).find(([, known]) => known === tekst)?.[0] ?? '';
      },
      ReportError(trace) {
        host.#ledger.pass('Application.ReportError', 'call');
        host.#told.report(trace.record);
      },
    };
  }

  #dossier() {
    const host = this;
    return {
      get HuidigeLening() {
        return host.#object('Dossier.HuidigeLening', () => host.#lening(host.huidig));
      },
      Lening: (lenId) => host.#object('Dossier.Lening', () => host.#lening(lenId === 0 ? host.huidig : host.leningen[lenId - 1])),
      Persoon: (nummer) => host.#object('Dossier.Persoon', () => host.#persoon(host.personen[nummer - 1])),
      VoegToeAanVoorstel: (voorstel, id) => host.#call('Dossier.VoegToeAanVoorstel', [voorstel, id], () => {}),
      VerwijderUitVoorstel: (voorstel, id, nul) => host.#call('Dossier.VerwijderUitVoorstel', [voorstel, id, nul], () => {}),
    };
  }

  #persoon(persoon) {
    if (persoon === undefined) return null;
    const host = this;
    return this.#once(persoon, () => ({
      get Naam() {
        return host.#value('Persoon.Naam', () => persoon.naam);
      },
      get Geboortedatum() {
        return host.#value('Persoon.Geboortedatum', () => read('Geboortedatum', persoon.Geboortedatum));
      },
    }));
  }

  #lening(columns) {
    const find = (member) => (id) => this.#object(`Lening.${member}`, () => this.#item(columns.find((column) => column.Id === id)));
    return this.#once(columns, () => ({
      VrijeKolommen: find('VrijeKolommen'),
      VrijeKolom: find('VrijeKolom'),
      VrijeKolomOp: (positie) => this.#object('Lening.VrijeKolomOp', () => this.#item(columns[positie - 1])),
      VerwijderVrijeKolom: (positie) =>
        this.#call('Lening.VerwijderVrijeKolom', [positie], () => {
          if (columns[positie - 1] === undefined) throw new HostError(SUBSCRIPT, 'Subscript out of range');
          columns.splice(positie - 1, 1);
        }),
    }));
  }

  #item(column) {
    return this.#once(column, () => {
      const host = this;
      const names = Object.keys(KOLOM).filter((name) => !['Voorstel', 'Kopregel', 'Weergave'].includes(name));
      const item = this.#fields(column, 'VrijeKolomItem', names);
      const header = (name) => ({ get: () => host.#value(`VrijeKolomItem.${name}`, () => host.header(name, column)) });
      return Object.defineProperties(item, {
        Weergave: header('Weergave'),
        Kopregel: header('Kopregel'),
        Bedrag: { get: () => host.#object('VrijeKolomItem.Bedrag', () => host.#amount(column.Bedrag)) },
        Voorstel: { value: host.#voorstellen(column) },
      });
    });
  }

  header(name, column) {
    return this.headers === undefined ? column[name] : this.headers(column);
  }

  #voorstellen(column) {
    const facade = {};
    for (const place of [0, 1, 2]) {
      const member = 'VrijeKolomItem.Voorstel';
      Object.defineProperty(facade, place, {
        get: () => this.#value(member, () => column.Voorstel[place], place + 1),
        set: (value) => this.#set(member, () => (column.Voorstel[place] = value), () => column.Voorstel[place], place + 1),
      });
    }
    return facade;
  }

  #amount(amount) {
    return this.#once(amount, () => {
      const host = this;
      return {
        get Naam() {
          return host.#value('Scenario.Naam', () => amount.Naam);
        },
        get Invoersoort() {
          return host.#value('Scenario.Invoersoort', () => amount.Invoersoort);
        },
        get Basisbedrag() {
          return host.#value('Bedrag.Basisbedrag', () => amount.Bedrag);
        },
        set Basisbedrag(bedrag) {
          host.#set('Bedrag.Basisbedrag', () => (amount.Bedrag = bedrag), () => amount.Bedrag);
        },
        get Bedrag() {
          return host.#value('Scenario.Bedrag', () => amount.Bedrag);
        },
        set Bedrag(bedrag) {
          host.#set('Scenario.Bedrag', () => (amount.Bedrag = bedrag), () => amount.Bedrag);
        },
        // Named by the position at which it was asked for.
        Periode: (positie) =>
          host.#object('Scenario.Periode', () => {
            const periode = amount.Perioden[positie - 1];
            return periode === undefined ? null : host.#fields(periode, 'Periode', Object.keys(PERIODE), positie);
          }),
        NieuwePeriode: () => host.#call('Scenario.NieuwePeriode', [], () => amount.Perioden.push({ ...PERIODE })),
        VerwijderPeriode: (positie) =>
          host.#call('Scenario.VerwijderPeriode', [positie], () => {
            if (amount.Perioden[positie - 1] === undefined) throw new HostError(SUBSCRIPT, 'Subscript out of range');
            amount.Perioden.splice(positie - 1, 1);
          }),
      };
    });
  }

  #trace(control) {
    const host = this;
    const tell = (member, line) => (procedure) => {
      host.#ledger.pass(`ProcedureTrace.${member}`, 'call');
      host.#told.trace({ ...line(procedure), in: control });
    };
    const record = {};
    const trace = {
      record,
      EnterProcedure: tell('EnterProcedure', (procedure) => ({ enter: procedure })),
      LeaveProcedure: tell('LeaveProcedure', () => ({ leave: true })),
      ErrorInProcedure: tell('ErrorInProcedure', (procedure) => ({ error: procedure })),
    };
    for (const name of ['ApplicationTitle', 'ObjectName', 'Caption', 'ObjectDescription', 'Message', 'ErrorNumber',
      'ErrorDescription', 'ErrorSource']) {
      record[name] = '';
      Object.defineProperty(trace, name, {
        enumerable: true,
        get: () => record[name],
        set: (text) => {
          host.#ledger.pass(`ProcedureTrace.${name}`, 'set');
          record[name] = text;
        },
      });
    }
    return trace;
  }
}

function columnOf(given) {
  const column = { ...KOLOM, ...given, Voorstel: [...(given.Voorstel ?? KOLOM.Voorstel)] };
  for (const name of Object.keys(column)) column[name] = read(name, column[name]);
  column.Bedrag = { Naam: '', Invoersoort: 1, Bedrag: 0, ...given.Bedrag };
  column.Bedrag.Perioden = (given.Bedrag?.Perioden ?? []).map((periode) => ({ ...PERIODE, ...periode }));
  return column;
}

/** A record as a dump writes it. */
export function writeColumn(host, column) {
  const names = Object.keys(KOLOM);
  const fields = names.map((name) => [name, name === 'Kopregel' || name === 'Weergave' ? host.header(name, column) : written(name, column[name])]);
  return { ...Object.fromEntries(fields), Bedrag: writeAmount(column.Bedrag) };
}
export function writeAmount({ Naam, Invoersoort, Bedrag, Perioden }) {
  return { Naam, Invoersoort, Bedrag, Perioden: Perioden.map((periode) => ({ ...periode })) };
}
export { MISSING };
