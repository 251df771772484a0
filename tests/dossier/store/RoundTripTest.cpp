#include "dossier/store/FileJournal.h"
#include "frame/Calendar.h"
#include "tests/dossier/store/Files.h"

// What is written comes back from the file as it was.
namespace brivane::dossier {
namespace {

host::Date Datum(int dag, int maand, int jaar) { return frame::MakeDate({.year = jaar, .month = maand, .day = dag}); }

/// The same contents with the keys left out, which the file gives.
DossierGegevens ZonderSleutels(DossierGegevens dossier) {
  dossier.Leningen.push_back(std::exchange(dossier.HuidigeLening, {}));
  for (LeningGegevens& lening : dossier.Leningen) {
    lening.Sleutel = 0;
    for (KolomGegevens& kolom : lening.VrijeKolommen) {
      kolom.Sleutel = 0;
      for (PeriodeGegevens& periode : kolom.Bedrag.Perioden) periode.Sleutel = 0;
    }
  }
  return dossier;
}

/// A column in which every field that a file keeps has a value of its own.
KolomGegevens VolleKolom() {
  KolomGegevens kolom;
  kolom.Id = 32767;
  kolom.CorrectieLast = 3;
  kolom.CorrectieFiscaal = 2;
  kolom.HeffingBij = 2;
  kolom.Omschrijving = "Ouderbijdrage 'été' \"x\"; -- 中文 €";
  kolom.Termijn = 12;
  kolom.InkomenUitArbeid = true;
  kolom.InDagloon = true;
  kolom.DatumAanvang = Datum(31, 1, 2031);
  kolom.Looptijd = 32767;
  kolom.Contractvervaldatum = Datum(1, 1, 100);
  kolom.IsProduct = true;
  kolom.Maatschappij = "ZZ";
  kolom.MaatschappijNaam = "Eigen naam";
  kolom.Productsoort = 99;
  kolom.ProductsoortOmschrijving = "Eigen soort";
  kolom.Productnaam = "Naam";
  kolom.UwBemiddeling = true;
  kolom.Voorstel = {"J", "N", ""};
  kolom.UitsluitenAO = true;
  kolom.UitsluitenWW = true;
  kolom.UitsluitenLangleven = true;
  kolom.ScenarioOverlijden = true;
  kolom.PercentageOvergang = 33.333332F;
  kolom.EinddatumOvergang = Datum(29, 2, 2048);
  kolom.EindleeftijdOvergang = -32768;
  kolom.Bedrag.Naam = "Overbruggingskrediet";
  kolom.Bedrag.Invoersoort = 3;
  kolom.Bedrag.Bedrag = 0.1 + 0.2;
  kolom.Bedrag.Perioden = {{.Maand = 25, .Bedrag = -200.05, .Percentage = 1.5, .Korting = 0.25, .Eenmalig = true},
                           {.Maand = 13, .Bedrag = -1e15, .Percentage = -7, .Korting = 3, .Eenmalig = false}};
  return kolom;
}

TEST(Rondreis, TheSampleComesBackAsItWas) {
  const Map map;
  const DossierGegevens voorbeeld = VoorbeeldDossier();
  EXPECT_EQ(ZonderSleutels(Gelezen(map.Maak(voorbeeld))), ZonderSleutels(voorbeeld));
}

TEST(Rondreis, EveryFieldComesBackAsItWas) {
  const Map map;
  DossierGegevens dossier = VoorbeeldDossier();
  dossier.Leeftijd = 71;
  dossier.MaatschappijType = {{"", "geen"}, {"A'B", "Alfa \"B\""}, {"A'B", "dubbel"}};
  dossier.HuidigeLening.VrijeKolommen.push_back(VolleKolom());
  dossier.Voorstellen = {{{1, 2}, {}, {7, 32767}}};
  EXPECT_EQ(ZonderSleutels(Gelezen(map.Maak(dossier))), ZonderSleutels(dossier));
}

TEST(Rondreis, ATextComesBackToTheByte) {
  const Map map;
  const QString pad = map.Maak();
  const std::string nul("a\0b", 3);
  const std::string geen_utf8("\xff\xfe");
  const std::string lang(100000, 'x');
  for (const std::string& tekst : {nul, geen_utf8, lang, std::string()}) {
    DossierBestand::Open(pad)->Dossier()->ZoekKolom(0, 1)->SetOmschrijving(tekst);
    EXPECT_EQ(DossierBestand::Open(pad)->Dossier()->ZoekKolom(0, 1)->Omschrijving(), tekst);
  }
}

TEST(Rondreis, WhatEachSetterWritesIsInTheFile) {
  const Map map;
  const QString pad = map.Maak(LeegDossier());
  const KolomGegevens vol = VolleKolom();
  {
    const auto bestand = DossierBestand::Open(pad);
    const auto kolom = bestand->Dossier()->NieuweKolom(0);
    kolom->SetCorrectieLast(vol.CorrectieLast);
    kolom->SetCorrectieFiscaal(vol.CorrectieFiscaal);
    kolom->SetHeffingBij(vol.HeffingBij);
    kolom->SetOmschrijving(vol.Omschrijving);
    kolom->SetTermijn(vol.Termijn);
    kolom->SetInkomenUitArbeid(true);
    kolom->SetInDagloon(true);
    kolom->SetDatumAanvang(vol.DatumAanvang);
    kolom->SetLooptijd(vol.Looptijd);
    kolom->SetContractvervaldatum(vol.Contractvervaldatum);
    kolom->SetIsProduct(true);
    kolom->SetMaatschappij(vol.Maatschappij);
    kolom->SetMaatschappijNaam(vol.MaatschappijNaam);
    kolom->SetProductsoort(vol.Productsoort);
    kolom->SetProductsoortOmschrijving(vol.ProductsoortOmschrijving);
    kolom->SetProductnaam(vol.Productnaam);
    kolom->SetUwBemiddeling(true);
    for (const std::int16_t nummer : {1, 2, 3})
      kolom->SetVoorstel(nummer, vol.Voorstel[static_cast<std::size_t>(nummer - 1)]);
    kolom->SetUitsluitenAO(true);
    kolom->SetUitsluitenWW(true);
    kolom->SetUitsluitenLangleven(true);
    kolom->SetScenarioOverlijden(true);
    kolom->SetPercentageOvergang(vol.PercentageOvergang);
    kolom->SetEinddatumOvergang(vol.EinddatumOvergang);
    kolom->SetEindleeftijdOvergang(vol.EindleeftijdOvergang);
    const auto bedrag = kolom->Bedrag();
    bedrag->SetBasisbedrag(1);
    bedrag->SetBedrag(vol.Bedrag.Bedrag);
    for (const PeriodeGegevens& periode : vol.Bedrag.Perioden) {
      const auto nieuw = bedrag->Periode(bedrag->NieuwePeriode());
      nieuw->SetMaand(periode.Maand);
      nieuw->SetBedrag(periode.Bedrag);
      nieuw->SetPercentage(periode.Percentage);
      nieuw->SetKorting(periode.Korting);
      nieuw->SetEenmalig(periode.Eenmalig);
    }
  }
  DossierGegevens verwacht = LeegDossier();
  verwacht.HuidigeLening.VrijeKolommen = {vol};
  // What a new column is given, and no setter changes.
  verwacht.HuidigeLening.VrijeKolommen[0].Id = 1;
  verwacht.HuidigeLening.VrijeKolommen[0].Bedrag.Naam = "";
  verwacht.HuidigeLening.VrijeKolommen[0].Bedrag.Invoersoort = 1;
  EXPECT_EQ(ZonderSleutels(Gelezen(pad)), ZonderSleutels(verwacht));
}

TEST(Rondreis, TheMemoryShowsWhatIsInTheFileAfterEveryOperation) {
  const Map map;
  const QString pad = map.Maak();
  const auto na = [&](const char* wat, const std::function<void(Dossier&)>& operatie) {
    SCOPED_TRACE(wat);
    DossierGegevens geheugen;
    {
      const auto bestand = DossierBestand::Open(pad);
      operatie(*bestand->Dossier());
      geheugen = bestand->Dossier()->Gegevens();
      EXPECT_EQ(bestand->ControleerHeelheid(), QStringList());
    }
    // Keys and places too: an order that only the memory knew would show.
    EXPECT_EQ(Gelezen(pad), geheugen);
  };
  na("add", [](Dossier& dossier) { dossier.NieuweKolom(1); });
  na("duplicate, with periods", [](Dossier& dossier) { dossier.Dupliceer(0, 1); });
  na("deviate", [](Dossier& dossier) { dossier.MaakAfwijking(5, 2); });
  na("move", [](Dossier& dossier) { dossier.Verplaats(0, 2, 1); });
  na("move to where it deviates", [](Dossier& dossier) { dossier.Verplaats(0, 1, 1); });
  na("add after a move", [](Dossier& dossier) {
    dossier.Verplaats(1, 2, 0);
    dossier.NieuweKolom(0);
  });
  na("remove, from a proposal too", [](Dossier& dossier) { dossier.Verwijder(0, 6); });
  na("remove by position", [](Dossier& dossier) { dossier.Lening(1)->VerwijderVrijeKolom(1); });
  na("remove a period", [](Dossier& dossier) { dossier.ZoekKolom(0, 5)->Bedrag()->VerwijderPeriode(1); });
  na("proposals", [](Dossier& dossier) {
    dossier.VoegToeAanVoorstel(2, 3);
    dossier.VoegToeAanVoorstel(2, 3);
    dossier.VoegToeAanVoorstel(3, 3);
    dossier.VerwijderUitVoorstel(3, 3, 0);
    dossier.VerwijderUitVoorstel(3, 3, 0);
  });
  na("a new loan", [](Dossier& dossier) {
    const std::int16_t nummer = dossier.NieuweLening("Nieuwe lening 3");
    dossier.NieuweKolom(nummer);
  });
  na("another client", [](Dossier& dossier) {
    dossier.SetClient({{.Naam = {"A.", "", "Alleen"}, .Geboortedatum = Datum(1, 2, 1990)}}, 70);
  });
}

TEST(Rondreis, AKeyIsNotUsedAgainWhileTheFileIsOpen) {
  const Map map;
  const auto bestand = DossierBestand::Open(map.Maak());
  Dossier& dossier = *bestand->Dossier();
  const auto verwijderd = dossier.NieuweKolom(0);
  dossier.Verwijder(0, verwijderd->Id());
  const auto nieuw = dossier.NieuweKolom(0);
  nieuw->SetOmschrijving("nieuw");
  // Somebody still holds the column that is gone: its change must not reach the new one.
  try {
    verwijderd->SetOmschrijving("oud");
    ADD_FAILURE() << "stored";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 91);
  }
  EXPECT_EQ(nieuw->Omschrijving(), "nieuw");
  EXPECT_EQ(verwijderd->Omschrijving(), "");
}

TEST(Rondreis, TheCaseOutlivesItsFileButChangesNoMore) {
  const Map map;
  const QString pad = map.Maak();
  auto bestand = DossierBestand::Open(pad);
  const auto dossier = bestand->Dossier();
  const auto trace = bestand->MaakTrace("VrijeKolom");
  bestand.reset();
  EXPECT_EQ(dossier->ZoekKolom(0, 1)->Omschrijving(), "Kinderopvang");
  trace->EnterProcedure("TxtOm_Validation");
  try {
    dossier->ZoekKolom(0, 1)->SetOmschrijving("x");
    ADD_FAILURE() << "stored";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), kStoreError);
    EXPECT_EQ(error.Description(), "De wijziging is niet opgeslagen: het dossier is gesloten.");
    EXPECT_EQ(error.Source(), "Dossier");
  }
  trace->ErrorInProcedure("TxtOm_Validation");
  EXPECT_EQ(dossier->ZoekKolom(0, 1)->Omschrijving(), "Kinderopvang");
}

}  // namespace
}  // namespace brivane::dossier
