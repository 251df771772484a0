// The sample case: a couple with six items in the current situation and two new loans.

const MAATSCHAPPIJEN = [['AO', 'Algemene Onderlinge'], ['BV', 'Bergse Verzekeringen'], ['DM', 'Dagblad De Maasbode'],
  ['HW', 'Huis & Wonen Bladen'], ['NH', 'Noorderhaven Bank'], ['SK', 'Stichting Kinderhoek'], ['TZ', 'Tennisclub Zuiderpark'],
  ['ZZ', 'Anders']];

const kolom = (Id, Omschrijving, Bedrag, velden = {}, Perioden = [], Invoersoort = 1) =>
  ({ Id, Omschrijving, ...velden, Bedrag: { Naam: Omschrijving, Bedrag, Invoersoort, Perioden } });

export const VOORBEELD = {
  Leeftijd: 67,
  MaatschappijType: MAATSCHAPPIJEN,
  Personen: [
    { Naam: ['M.C.', 'van den', 'Heuvel'], Geboortedatum: '1978-03-12' },
    { Naam: ['S.', 'de', 'Wit'], Geboortedatum: '1980-02-29' },
  ],
  HuidigeLening: {
    Naam: 'Huidige lening',
    VrijeKolommen: [
      kolom(1, 'Kinderopvang', 485.5, { CorrectieFiscaal: 3, DatumAanvang: '2024-09-01', Looptijd: 96 },
        [{ Maand: 36, Bedrag: 310 }, { Maand: 60, Bedrag: 165 }]),
      kolom(2, 'Weekendabonnement', 32.5, { CorrectieFiscaal: 3, DatumAanvang: '2026-01-01', IsProduct: true, Maatschappij: 'DM',
        MaatschappijNaam: 'Dagblad De Maasbode', Productsoort: 44, ProductsoortOmschrijving: 'Krant',
        Productnaam: 'De Maasbode op zaterdag', Looptijd: 999, Contractvervaldatum: '2027-12-31', UwBemiddeling: true }),
      kolom(3, 'Muzieklessen aan huis', 350, { CorrectieLast: 2, CorrectieFiscaal: 2, HeffingBij: 2, InkomenUitArbeid: true,
        DatumAanvang: '2025-04-01', Looptijd: 120, UitsluitenAO: true }),
      kolom(4, 'Gift nieuwbouw kinderhoek', 1500, { Termijn: 99, DatumAanvang: '2026-12-15', IsProduct: true, Maatschappij: 'SK',
        MaatschappijNaam: 'Stichting Kinderhoek', Productsoort: 43, ProductsoortOmschrijving: 'Goed doel',
        Contractvervaldatum: '2027-12-31' }),
      kolom(5, 'Lijfrente-uitkering', 6250, { CorrectieLast: 2, CorrectieFiscaal: 2, Termijn: 12, DatumAanvang: '2028-01-31',
        Looptijd: 240, ScenarioOverlijden: true, PercentageOvergang: 70, EinddatumOvergang: '2048-03-12', EindleeftijdOvergang: 70 },
      [{ Maand: 13, Percentage: 2 }], 3),
      kolom(6, 'Tennislidmaatschap', 240, { CorrectieFiscaal: 3, Termijn: 6, HeffingBij: 2, DatumAanvang: '2023-07-01',
        IsProduct: true, Maatschappij: 'ZZ', MaatschappijNaam: 'TC De Baseline', Productsoort: 42,
        ProductsoortOmschrijving: 'Vereniging', Productnaam: 'Seniorlid', Looptijd: 999, Contractvervaldatum: '2028-06-30',
        Voorstel: ['J', 'N', ''] }),
    ],
  },
  Leningen: [
    { Naam: 'Nieuwe lening 1', VrijeKolommen: [
      kolom(1, 'Kinderopvang', 310, { CorrectieFiscaal: 3, DatumAanvang: '2024-09-01', Looptijd: 96 }, [{ Maand: 36, Bedrag: 165 }]),
      kolom(7, 'Onderhoud zonnepanelen', 95, { Termijn: 12, DatumAanvang: '2027-03-01', Looptijd: 180 }),
    ] },
    { Naam: 'Nieuwe lening 2', VrijeKolommen: [] },
  ],
  Voorstellen: [[6], [], []],
};
