// The smallest host: one column in one loan, plain objects all of it. A real one keeps what is written.
import '/package/src/index.js';

const kolom = {
  Id: 1, CorrectieLast: 1, CorrectieFiscaal: 3, Omschrijving: 'Kinderopvang', Termijn: 1, InkomenUitArbeid: false,
  InDagloon: false, HeffingBij: 1, Productsoort: 0, ProductsoortOmschrijving: '', Productnaam: '', IsProduct: false,
  Maatschappij: '', MaatschappijNaam: '', UwBemiddeling: false, DatumAanvang: '2026-09-01', Looptijd: 96,
  Contractvervaldatum: null, Voorstel: ['', '', ''], UitsluitenAO: false, UitsluitenWW: false, UitsluitenLangleven: false,
  ScenarioOverlijden: false, PercentageOvergang: 0, EinddatumOvergang: null, EindleeftijdOvergang: 0,
  Bedrag: {
    Naam: '', Invoersoort: 1, Bedrag: 485.5, perioden: [],
    get Basisbedrag() { return this.Bedrag; },
    set Basisbedrag(bedrag) { this.Bedrag = bedrag; },
    Periode(positie) { return this.perioden[positie - 1]; },
    NieuwePeriode() { return this.perioden.push({ Maand: 0, Bedrag: 0, Percentage: 0, Korting: 0, Eenmalig: false }); },
    VerwijderPeriode(positie) { this.perioden.splice(positie - 1, 1); },
  },
  get Weergave() { return this.Omschrijving; },
  get Kopregel() { return `${this.Omschrijving} · € ${this.Bedrag.Bedrag.toLocaleString('nl-NL')}`; },
};
const lening = {
  VrijeKolommen: () => kolom,
  VrijeKolom: () => kolom,
  VrijeKolomOp: (positie) => (positie === 1 ? kolom : null),
  VerwijderVrijeKolom() {},
};
const application = {
  Dossier: {
    HuidigeLening: lening,
    Lening: (nummer) => (nummer === 0 ? lening : null),
    Persoon: (nummer) => (nummer === 1 ? { Naam: ['J.', 'van', 'Dam'], Geboortedatum: '1985-01-01' } : null),
    VoegToeAanVoorstel() {},
    VerwijderUitVoorstel() {},
  },
  Uitgangspunten: { Leeftijd: 67 },
  Hoofdvenster: null,
  Codetabellen: [['ZZ', 'Anders']],
  VulCombo(bron, tabel, lijst, code) {
    bron.forEach(([van, tekst], i) => {
      lijst.AddItem(tekst, i + 1);
      if (van === code) lijst.ListIndex = lijst.ListCount - 1;
    });
  },
  ZoekCode: (bron, tabel, tekst) => bron.find(([, regel]) => regel === tekst)?.[0] ?? '',
  ReportError: (trace) => console.error(trace.ErrorNumber, trace.ErrorDescription),
};

const editor = document.querySelector('vrije-kolom');
editor.addEventListener('refreshtopdisplay', (event) => (document.querySelector('#kop').textContent = event.detail.text));
document.body.dataset.result = await editor.setApplication(application, 0, 1);
