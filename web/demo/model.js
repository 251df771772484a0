// A loan file as plain objects: what the elements read and write, by the names of the host's model.

const noSuchElement = () => Object.assign(new Error('Subscript out of range'), { number: 9 });

/** The fields of a free column with what they begin with. A date is "2031-04-01", or null for none. */
export const KOLOM = Object.freeze({
  Id: 1, CorrectieLast: 1, CorrectieFiscaal: 1, Omschrijving: '', Termijn: 1, InkomenUitArbeid: false, InDagloon: false,
  HeffingBij: 1, Productsoort: 0, ProductsoortOmschrijving: '', Productnaam: '', IsProduct: false, Maatschappij: '',
  MaatschappijNaam: '', UwBemiddeling: false, DatumAanvang: null, Looptijd: 0, Contractvervaldatum: null,
  Voorstel: Object.freeze(['', '', '']), Weergave: '', Kopregel: '', UitsluitenAO: false, UitsluitenWW: false,
  UitsluitenLangleven: false, ScenarioOverlijden: false, PercentageOvergang: 0, EinddatumOvergang: null,
  EindleeftijdOvergang: 0,
});
export const PERIODE = Object.freeze({ Maand: 0, Bedrag: 0, Percentage: 0, Korting: 0, Eenmalig: false });

export class BedragObject {
  Perioden;

  constructor({ Naam = '', Invoersoort = 1, Bedrag = 0, Perioden = [] } = {}) {
    Object.assign(this, { Naam, Invoersoort, Bedrag, Perioden: Perioden.map((periode) => ({ ...PERIODE, ...periode })) });
  }
  /** The base amount of a column and the base value of its scenario are one number. */
  get Basisbedrag() {
    return this.Bedrag;
  }
  set Basisbedrag(bedrag) {
    this.Bedrag = bedrag;
  }
  Periode(positie) {
    return this.Perioden[positie - 1] ?? null;
  }
  NieuwePeriode() {
    return this.Perioden.push({ ...PERIODE });
  }
  VerwijderPeriode(positie) {
    if (this.Periode(positie) === null) throw noSuchElement();
    this.Perioden.splice(positie - 1, 1);
  }
}

export class VrijeKolomItem {
  constructor(velden = {}) {
    Object.assign(this, KOLOM, velden);
    this.Voorstel = [...this.Voorstel];
    this.Bedrag = new BedragObject(velden.Bedrag);
  }
}

export class Lening {
  constructor({ Naam = '', VrijeKolommen = [] } = {}) {
    this.Naam = Naam;
    this.kolommen = VrijeKolommen.map((kolom) => new VrijeKolomItem(kolom));
  }
  VrijeKolommen(id) {
    return this.VrijeKolom(id);
  }
  VrijeKolom(id) {
    return this.kolommen.find((kolom) => kolom.Id === id) ?? null;
  }
  VrijeKolomOp(positie) {
    return this.kolommen[positie - 1] ?? null;
  }
  VerwijderVrijeKolom(positie) {
    if (this.VrijeKolomOp(positie) === null) throw noSuchElement();
    this.kolommen.splice(positie - 1, 1);
  }
  toJSON() {
    return { Naam: this.Naam, VrijeKolommen: this.kolommen };
  }
}

function ledenVan({ Voorstellen }, voorstel) {
  const leden = Voorstellen[voorstel - 1];
  if (leden === undefined) throw noSuchElement();
  return leden;
}

export class Dossier {
  constructor({ Personen = [], HuidigeLening = {}, Leningen = [], Voorstellen = [[], [], []], LaatsteId = 0 }) {
    this.Personen = Personen;
    this.HuidigeLening = new Lening(HuidigeLening);
    this.Leningen = Leningen.map((lening) => new Lening(lening));
    this.Voorstellen = Voorstellen.map((leden) => [...leden]);
    const ids = this.AlleLeningen().flatMap(({ kolommen }) => kolommen.map(({ Id }) => Id));
    this.LaatsteId = Math.max(LaatsteId, ...ids, ...this.Voorstellen.flat());
  }
  AlleLeningen() {
    return [this.HuidigeLening, ...this.Leningen];
  }
  /** 0 is the loan of the current situation. */
  Lening(id) {
    return id === 0 ? this.HuidigeLening : (this.Leningen[id - 1] ?? null);
  }
  Persoon(nummer) {
    return this.Personen[nummer - 1] ?? null;
  }
  /** An item that was removed does not give its number to another one. */
  NieuwId() {
    return ++this.LaatsteId;
  }
  /** Takes a column out of a loan. An item that no loan has any more leaves the proposals as well. */
  Verwijder(lenId, id) {
    const lening = this.Lening(lenId);
    lening.VerwijderVrijeKolom(lening.kolommen.findIndex(({ Id }) => Id === id) + 1);
    if (this.AlleLeningen().some((ergens) => ergens.VrijeKolom(id) !== null)) return;
    this.Voorstellen.forEach((_, i) => this.VerwijderUitVoorstel(i + 1, id));
  }
  VoegToeAanVoorstel(voorstel, id) {
    const leden = ledenVan(this, voorstel);
    if (!leden.includes(id)) leden.push(id);
  }
  VerwijderUitVoorstel(voorstel, id) {
    const leden = ledenVan(this, voorstel);
    if (leden.includes(id)) leden.splice(leden.indexOf(id), 1);
  }
}

export class Application {
  Hoofdvenster = null;
  /** Told what went wrong, when set: the tracer with the error's record. */
  gemeld = null;

  /** `MaatschappijType` are pairs of a code and a text. */
  constructor(dossier, { Leeftijd = 67, MaatschappijType = [] } = {}) {
    this.Dossier = dossier;
    this.Uitgangspunten = { Leeftijd };
    this.Codetabellen = { MaatschappijType };
  }
  VulCombo(bron, tabel, lijst, code, leeg, keuze) {
    const regels = bron[tabel] ?? [];
    const eerste = lijst.ListCount;
    if (leeg !== '') lijst.AddItem(leeg, 0);
    regels.forEach(([, tekst], i) => lijst.AddItem(tekst, i + 1));
    const gezocht = regels.findIndex(([regel]) => regel === code);
    const nummer = gezocht >= 0 ? gezocht + 1 : keuze;
    if (nummer === null || nummer === undefined) return;
    for (let i = eerste; i < lijst.ListCount; ++i)
      if (lijst.ItemData(i) === nummer) return void (lijst.ListIndex = i);
  }
  ZoekCode(bron, tabel, tekst) {
    return (bron[tabel] ?? []).find(([, regel]) => regel === tekst)?.[0] ?? '';
  }
  ReportError(trace) {
    this.gemeld?.(trace);
  }
}
