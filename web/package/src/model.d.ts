// The host's model, as the elements read and write it: plain objects, or objects of classes with these members. Types are
// held: a text for a number, `NaN`, or no value where one is needed is a failure (13), which is reported and not guessed at.

/** A day: "2031-04-01", or null for none. It is written so, and read from a `Date` too, of which the day on the wall counts. */
export type Datum = string | null;

/** The host application object, the root of the model. */
export interface Application {
  readonly Dossier: Dossier;
  readonly Uitgangspunten: Uitgangspunten;
  /** Asked when the year-by-year form opens; a page has nothing to tell. */
  readonly Hoofdvenster: unknown;
  /** The source of the code tables: handed back to the host, never looked into. */
  readonly Codetabellen: unknown;
  /** Adds the entries of a code table to a list and selects the one whose code is given, if any. Clears nothing. */
  VulCombo(bron: unknown, tabel: string, lijst: Keuzelijst, code: string, leeg: string, keuze: number | null): void;
  /** The code of the entry that shows a text; empty where there is none. */
  ZoekCode(bron: unknown, tabel: string, tekst: string): string;
  /** Shows or logs the failure that the tracer's record describes. */
  ReportError(trace: ProcedureTrace): void;
}

/** The list that a host fills in VulCombo. It is of use until that call returns. */
export interface Keuzelijst {
  Clear(): void;
  AddItem(tekst: string, itemData?: number): void;
  readonly ListCount: number;
  ListIndex: number;
  ItemData(index: number): number;
  List(index: number): string;
  readonly Text: string;
}

/** The case: a client's loan file. */
export interface Dossier {
  readonly HuidigeLening: Lening;
  /** The loans of the new situation from 1, nothing past the last; the current loan for 0. */
  Lening(lenId: number): Lening | null | undefined;
  /** Person 1 (applicant) or 2 (partner). */
  Persoon(nummer: number): Persoon | null | undefined;
  VoegToeAanVoorstel(voorstel: number, vrijId: number): void;
  VerwijderUitVoorstel(voorstel: number, vrijId: number, nul: number): void;
}

export interface Persoon {
  /** Three texts that a caption joins with single blanks. */
  readonly Naam: readonly [string, string, string];
  readonly Geboortedatum: Datum | Date;
}

export interface Uitgangspunten {
  /** Age limit in whole years up to which a scenario runs. */
  readonly Leeftijd: number;
}

/** A loan: the holder of free columns. */
export interface Lening {
  /** The column with that identifier, as the editor looks it up. */
  VrijeKolommen(vrijId: number): VrijeKolomItem | null | undefined;
  /** The same, as the explanation control looks it up. */
  VrijeKolom(vrijId: number): VrijeKolomItem | null | undefined;
  /** The column at a running position from 1; nothing past the last. */
  VrijeKolomOp(positie: number): VrijeKolomItem | null | undefined;
  VerwijderVrijeKolom(positie: number): void;
}

/** A free column. Every edit is written at once. */
export interface VrijeKolomItem {
  readonly Id: number;
  CorrectieLast: number;
  CorrectieFiscaal: number;
  Omschrijving: string;
  /** Months between two payments; 99 for once. */
  Termijn: number;
  InkomenUitArbeid: boolean;
  InDagloon: boolean;
  HeffingBij: number;
  Productsoort: number;
  ProductsoortOmschrijving: string;
  Productnaam: string;
  IsProduct: boolean;
  Maatschappij: string;
  MaatschappijNaam: string;
  UwBemiddeling: boolean;
  get DatumAanvang(): Datum | Date;
  set DatumAanvang(dag: Datum);
  /** In months. */
  Looptijd: number;
  get Contractvervaldatum(): Datum | Date;
  set Contractvervaldatum(dag: Datum);
  /** Of proposal 1 to 3: "J" or "N". Proposal 1 is element 0. */
  readonly Voorstel: [string, string, string];
  readonly Weergave: string;
  readonly Kopregel: string;
  UitsluitenAO: boolean;
  UitsluitenWW: boolean;
  UitsluitenLangleven: boolean;
  ScenarioOverlijden: boolean;
  PercentageOvergang: number;
  get EinddatumOvergang(): Datum | Date;
  set EinddatumOvergang(dag: Datum);
  EindleeftijdOvergang: number;
  readonly Bedrag: BedragObject;
}

/** The amount of a column and its development over time. `Basisbedrag` and `Bedrag` are one number. */
export interface BedragObject {
  readonly Naam: string;
  /** 1 amount, 2 percentage, 3 amount and percentage. */
  readonly Invoersoort: number;
  Basisbedrag: number;
  Bedrag: number;
  /** The entry at a position from 1; nothing past the last. */
  Periode(positie: number): Periode | null | undefined;
  /** Appends an empty entry and answers its position. */
  NieuwePeriode(): number;
  VerwijderPeriode(positie: number): void;
}

/** From its month on, a value differs. */
export interface Periode {
  Maand: number;
  Bedrag: number;
  Percentage: number;
  Korting: number;
  Eenmalig: boolean;
}

/** The tracer of a control, and the error record that it writes before it reports a failure. */
export interface ProcedureTrace {
  EnterProcedure(procedure: string): void;
  LeaveProcedure(): void;
  ErrorInProcedure(procedure: string): void;
  ApplicationTitle: string;
  ObjectName: string;
  Caption: string;
  ObjectDescription: string;
  Message: string;
  ErrorNumber: string;
  ErrorDescription: string;
  ErrorSource: string;
}

/** The host's own check of the loan file. */
export interface DossierControle {
  Controleer(application: Application, soort: number): void;
}
