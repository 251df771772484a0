#include <functional>
#include <utility>

#include "dossier/store/StoreErrors.h"
#include "tests/dossier/store/Shelf.h"
#include <brivane/frame/Calendar.h>

// What is written comes back from every store as it was.
namespace brivane::dossier {
namespace {

host::Date DateOf(int day, int month, int year) { return frame::MakeDate({.year = year, .month = month, .day = day}); }

/// The same contents with the keys left out, which the store gives.
DossierGegevens WithoutKeys(DossierGegevens dossier) {
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

/// A column in which every field that a store keeps has a value of its own.
KolomGegevens FullKolom() {
  KolomGegevens kolom;
  kolom.Id = 32767;
  kolom.CorrectieLast = 3;
  kolom.CorrectieFiscaal = 2;
  kolom.HeffingBij = 2;
  kolom.Omschrijving = "Ouderbijdrage 'été' \"x\"; -- 中文 €";
  kolom.Termijn = 12;
  kolom.InkomenUitArbeid = true;
  kolom.InDagloon = true;
  kolom.DatumAanvang = DateOf(31, 1, 2031);
  kolom.Looptijd = 32767;
  kolom.Contractvervaldatum = DateOf(1, 1, 100);
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
  kolom.EinddatumOvergang = DateOf(29, 2, 2048);
  kolom.EindleeftijdOvergang = -32768;
  kolom.Bedrag.Naam = "Overbruggingskrediet";
  kolom.Bedrag.Invoersoort = 3;
  kolom.Bedrag.Bedrag = 0.1 + 0.2;
  kolom.Bedrag.Perioden = {{{.Maand = 25, .Bedrag = -200.05, .Percentage = 1.5, .Korting = 0.25, .Eenmalig = true}},
                           {{.Maand = 13, .Bedrag = -1e15, .Percentage = -7, .Korting = 3, .Eenmalig = false}}};
  return kolom;
}

class RoundTripTest : public EveryStoreTest {};

TEST_F(RoundTripTest, TheSampleComesBackAsItWas) {
  const DossierGegevens sample = VoorbeeldDossier();
  EXPECT_EQ(WithoutKeys(ReadBack(shelf_->Make(sample))), WithoutKeys(sample));
}

TEST_F(RoundTripTest, EveryFieldComesBackAsItWas) {
  DossierGegevens dossier = VoorbeeldDossier();
  dossier.Leeftijd = 71;
  dossier.MaatschappijType = {{"", "geen"}, {"A'B", "Alfa \"B\""}, {"A'B", "dubbel"}};
  dossier.HuidigeLening.VrijeKolommen.push_back(FullKolom());
  dossier.Voorstellen = {{{1, 2}, {}, {7, 32767}}};
  EXPECT_EQ(WithoutKeys(ReadBack(shelf_->Make(dossier))), WithoutKeys(dossier));
}

TEST_F(RoundTripTest, ATextComesBackToTheByte) {
  const QString path = shelf_->Make();
  const std::string nul("a\0b", 3);
  const std::string notUtf8("\xff\xfe");
  const std::string longText(100000, 'x');
  for (const std::string& text : {nul, notUtf8, longText, std::string()}) {
    shelf_->Open(path)->Dossier()->FindKolom(0, 1)->SetOmschrijving(text);
    EXPECT_EQ(shelf_->Open(path)->Dossier()->FindKolom(0, 1)->Omschrijving(), text);
  }
}

TEST_F(RoundTripTest, WhatEachSetterWritesIsInTheFile) {
  const QString path = shelf_->Make(LeegDossier());
  const KolomGegevens full = FullKolom();
  {
    const auto store = shelf_->Open(path);
    const auto kolom = store->Dossier()->NewKolom(0);
    kolom->SetCorrectieLast(full.CorrectieLast);
    kolom->SetCorrectieFiscaal(full.CorrectieFiscaal);
    kolom->SetHeffingBij(full.HeffingBij);
    kolom->SetOmschrijving(full.Omschrijving);
    kolom->SetTermijn(full.Termijn);
    kolom->SetInkomenUitArbeid(true);
    kolom->SetInDagloon(true);
    kolom->SetDatumAanvang(full.DatumAanvang);
    kolom->SetLooptijd(full.Looptijd);
    kolom->SetContractvervaldatum(full.Contractvervaldatum);
    kolom->SetIsProduct(true);
    kolom->SetMaatschappij(full.Maatschappij);
    kolom->SetMaatschappijNaam(full.MaatschappijNaam);
    kolom->SetProductsoort(full.Productsoort);
    kolom->SetProductsoortOmschrijving(full.ProductsoortOmschrijving);
    kolom->SetProductnaam(full.Productnaam);
    kolom->SetUwBemiddeling(true);
    for (const std::int16_t number : {1, 2, 3})
      kolom->SetVoorstel(number, full.Voorstel[static_cast<std::size_t>(number - 1)]);
    kolom->SetUitsluitenAO(true);
    kolom->SetUitsluitenWW(true);
    kolom->SetUitsluitenLangleven(true);
    kolom->SetScenarioOverlijden(true);
    kolom->SetPercentageOvergang(full.PercentageOvergang);
    kolom->SetEinddatumOvergang(full.EinddatumOvergang);
    kolom->SetEindleeftijdOvergang(full.EindleeftijdOvergang);
    const auto bedrag = kolom->Bedrag();
    bedrag->SetBasisbedrag(1);
    bedrag->SetBedrag(full.Bedrag.Bedrag);
    for (const PeriodeGegevens& periode : full.Bedrag.Perioden) {
      const auto added = bedrag->Periode(bedrag->NieuwePeriode());
      added->SetMaand(periode.Maand);
      added->SetBedrag(periode.Bedrag);
      added->SetPercentage(periode.Percentage);
      added->SetKorting(periode.Korting);
      added->SetEenmalig(periode.Eenmalig);
    }
  }
  DossierGegevens expected = LeegDossier();
  expected.HuidigeLening.VrijeKolommen = {full};
  // What a new column is given, and no setter changes.
  expected.HuidigeLening.VrijeKolommen[0].Id = 1;
  expected.HuidigeLening.VrijeKolommen[0].Bedrag.Naam = "";
  expected.HuidigeLening.VrijeKolommen[0].Bedrag.Invoersoort = 1;
  EXPECT_EQ(WithoutKeys(ReadBack(path)), WithoutKeys(expected));
}

TEST_F(RoundTripTest, TheMemoryShowsWhatIsInTheFileAfterEveryOperation) {
  const QString path = shelf_->Make();
  const auto after = [&](const char* what, const std::function<void(Dossier&)>& operation) {
    SCOPED_TRACE(what);
    DossierGegevens inMemory;
    {
      const auto store = shelf_->Open(path);
      operation(*store->Dossier());
      inMemory = store->Dossier()->Gegevens();
      EXPECT_EQ(shelf_->Findings(path, *store), QStringList());
    }
    // Keys and places too: an order that only the memory knew would show.
    EXPECT_EQ(ReadBack(path), inMemory);
  };
  after("add", [](Dossier& dossier) { dossier.NewKolom(1); });
  after("duplicate, with periods", [](Dossier& dossier) { dossier.Dupliceer(0, 1); });
  after("deviate", [](Dossier& dossier) { dossier.MakeAfwijking(5, 2); });
  after("move", [](Dossier& dossier) { dossier.Verplaats(0, 2, 1); });
  after("move to where it deviates", [](Dossier& dossier) { dossier.Verplaats(0, 1, 1); });
  after("add after a move", [](Dossier& dossier) {
    dossier.Verplaats(1, 2, 0);
    dossier.NewKolom(0);
  });
  after("remove, from a proposal too", [](Dossier& dossier) { dossier.Verwijder(0, 6); });
  after("remove by position", [](Dossier& dossier) { dossier.Lening(1)->VerwijderVrijeKolom(1); });
  after("remove a period", [](Dossier& dossier) { dossier.FindKolom(0, 5)->Bedrag()->VerwijderPeriode(1); });
  after("proposals", [](Dossier& dossier) {
    dossier.VoegToeAanVoorstel(2, 3);
    dossier.VoegToeAanVoorstel(2, 3);
    dossier.VoegToeAanVoorstel(3, 3);
    dossier.VerwijderUitVoorstel(3, 3, 0);
    dossier.VerwijderUitVoorstel(3, 3, 0);
  });
  after("a new loan", [](Dossier& dossier) {
    const std::int16_t number = dossier.NieuweLening("Nieuwe lening 3");
    dossier.NewKolom(number);
  });
  after("another client", [](Dossier& dossier) {
    dossier.SetClient({{.Naam = {"A.", "", "Alleen"}, .Geboortedatum = DateOf(1, 2, 1990)}}, 70);
  });
}

TEST_F(RoundTripTest, AKeyIsNotUsedAgainWhileTheFileIsOpen) {
  const auto store = shelf_->Open(shelf_->Make());
  Dossier& dossier = *store->Dossier();
  const auto removed = dossier.NewKolom(0);
  dossier.Verwijder(0, removed->Id());
  const auto added = dossier.NewKolom(0);
  added->SetOmschrijving("nieuw");
  // Somebody still holds the column that is gone: its change must not reach the new one.
  try {
    removed->SetOmschrijving("oud");
    ADD_FAILURE() << "stored";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), 91);
  }
  EXPECT_EQ(added->Omschrijving(), "nieuw");
  EXPECT_EQ(removed->Omschrijving(), "");
}

TEST_F(RoundTripTest, TheCaseOutlivesItsFileButChangesNoMore) {
  const QString path = shelf_->Make();
  auto store = shelf_->Open(path);
  const auto dossier = store->Dossier();
  const auto trace = store->MakeTrace("VrijeKolom");
  store.reset();
  EXPECT_EQ(dossier->FindKolom(0, 1)->Omschrijving(), "Kinderopvang");
  trace->EnterProcedure("TxtOm_Validation");
  try {
    dossier->FindKolom(0, 1)->SetOmschrijving("x");
    ADD_FAILURE() << "stored";
  } catch (const host::Error& error) {
    EXPECT_EQ(error.Number(), kStoreError);
    EXPECT_EQ(error.Description(), "De wijziging is niet opgeslagen: het dossier is gesloten.");
    EXPECT_EQ(error.Source(), "Dossier");
  }
  trace->ErrorInProcedure("TxtOm_Validation");
  EXPECT_EQ(dossier->FindKolom(0, 1)->Omschrijving(), "Kinderopvang");
}

}  // namespace
}  // namespace brivane::dossier
