#include <cmath>
#include <functional>

#include "dossier/store/Possible.h"
#include "dossier/store/StoreErrors.h"
#include "tests/dossier/store/Shelf.h"

// What no edit writes is not stored, and refused where it stands there all the same.
namespace brivane::dossier {
namespace {

class SpoiledTest : public EveryStoreTest {};

TEST_F(SpoiledTest, AValueThatNoEditWritesIsRefusedWithItsPlace) {
  struct Row {
    Shelf::Damage damage;
    const char* place;
  };
  for (const Row& row : {
           Row{{"vrijekolom", "id = 2", "id = 1"}, "kolom 2 van de huidige situatie, nummer komt twee keer voor"},
           Row{{"vrijekolom", "id = 0", "id = 2"}, "kolom 0 van de huidige situatie, nummer"},
           Row{{"vrijekolom", "id = -3", "id = 2"}, "kolom -3 van de huidige situatie, nummer"},
           Row{{"vrijekolom", "correctie_last = 77", "id = 3"}, "kolom 3 van de huidige situatie, correctie maandlast"},
           Row{{"vrijekolom", "termijn = 4", "id = 3"}, "kolom 3 van de huidige situatie, termijn"},
           Row{{"vrijekolom", "bedrag = {largest}", "id = 3"}, "kolom 3 van de huidige situatie, bedrag"},
           Row{{"vrijekolom", "bedrag = 1e300", "id = 3"}, "kolom 3 van de huidige situatie, bedrag"},
           Row{{"vrijekolom", "looptijd = 40000", "id = 3"}, "kolom 3 van de huidige situatie, looptijd"},
           Row{{"vrijekolom", "invoersoort = 4", "id = 3"}, "kolom 3 van de huidige situatie, invoersoort"},
           Row{{"vrijekolom", "percentage_overgang = -{largest}", "id = 3"},
               "kolom 3 van de huidige situatie, overgangspercentage"},
           Row{{"vrijekolom", "omschrijving = {long}", "id = 3"}, "kolom 3 van de huidige situatie, omschrijving"},
           Row{{"periode", "maand = -1", "sleutel = (SELECT min(sleutel) FROM periode)"},
               "kolom 1 van de huidige situatie, periode 1, maand"},
           Row{{"lening", "naam = {long}", "nummer = 1"}, "naam van lening 1 van de nieuwe situatie"},
           Row{{"dossier", "leeftijd = 0"}, "leeftijdsgrens"},
           Row{{"persoon", "naam_3 = {long}", "nummer = 1"}, "aanvrager, naam"},
           Row{{"persoon", "", "nummer = 1"}, "aanvrager ontbreekt"},
           Row{{"dossier", ""}, "de uitgangspunten ontbreken"},
           Row{{"voorstel", "vrij_id = -1", "voorstel = 2"}, "voorstel 2"},
       }) {
    SCOPED_TRACE(std::string(row.damage.table) + " " + row.damage.set);
    DossierGegevens contents = VoorbeeldDossier();
    contents.Voorstellen[1] = {1};
    const QString name = shelf_->Make(contents);
    ASSERT_TRUE(shelf_->Spoil(name, row.damage));
    const std::string rows = shelf_->Rows(name);
    const std::string told = shelf_->WhyNotOpened(name);
    EXPECT_NE(told.find(std::string("(") + row.place + ")"), std::string::npos) << told;
    EXPECT_EQ(shelf_->Rows(name), rows);
  }
}

/// What stands in the history may be wrong where the case opens: it is held against the case when it is used.
TEST_F(SpoiledTest, AHistoryThatDoesNotFitIsRefusedAndNothingChanges) {
  const Shelf::Damage table[] = {{"wijziging", "nieuw = {11}"},
                                 {"wijziging", "veld = 99"},
                                 {"wijziging", "tabel = 9"},
                                 {"wijziging", "sleutel = 4711"},
                                 {"wijziging", "stap = 7"},
                                 {"stap", "eerste = 5"},
                                 {"stap", "terug = 44"},
                                 {"wijziging", "oud = {400000}"},
                                 {"wijziging", "veld = 0"},
                                 {"wijziging", ""},
                                 {"wijziging", "veld = 1, oud = {11}, nieuw = {11}"}};
  for (const Shelf::Damage& damage : table) {
    SCOPED_TRACE(std::string(damage.table) + " " + damage.set);
    const QString name = shelf_->Make();
    shelf_->Open(name)->Dossier()->FindKolom(0, 1)->SetLooptijd(10);
    ASSERT_TRUE(shelf_->Spoil(name, damage));
    if (const std::string told = shelf_->WhyNotOpened(name); !told.empty()) {
      EXPECT_NE(told.find("beschadigd"), std::string::npos) << told;
      continue;
    }
    const auto store = shelf_->Open(name);
    const DossierGegevens before = store->Dossier()->Gegevens();
    EXPECT_THROW(store->Take(StepKind::Undo), host::Error);
    EXPECT_EQ(store->Dossier()->Gegevens(), before);
    // The case itself can still be worked in.
    store->Dossier()->FindKolom(0, 1)->SetOmschrijving("gaat door");
    EXPECT_EQ(store->Dossier()->FindKolom(0, 1)->Omschrijving(), "gaat door");
    EXPECT_EQ(ReadBack(name), store->Dossier()->Gegevens());
  }
}

TEST_F(SpoiledTest, AChangeThatWouldNotOpenAgainIsNotStored) {
  const QString name = shelf_->Make();
  const DossierGegevens before = ReadBack(name);
  {
    const auto open = shelf_->Open(name);
    const auto column = open->Dossier()->FindKolom(0, 1);
    const std::function<void()> changes[] = {
        [&] { column->Bedrag()->SetBedrag(HUGE_VAL); },
        [&] { column->SetTermijn(4); },
        [&] { column->SetOmschrijving(std::string(kMostText + 1, 'x')); },
        [&] { column->Bedrag()->Periode(1)->SetMaand(-1); },
        [&] {
          open->Dossier()->SetClient({{.Naam = {"A", "", "B"}, .Geboortedatum = {}}}, 0);
        },
        [&] { static_cast<void>(open->Dossier()->NieuweLening(std::string(kMostText + 1, 'x'))); },
    };
    for (const auto& change : changes) {
      try {
        change();
        ADD_FAILURE() << "stored: change " << (&change - changes);
      } catch (const host::Error& error) {
        EXPECT_EQ(error.Number(), kImpossibleError);
      }
      EXPECT_EQ(open->Dossier()->Gegevens(), before);
    }
  }
  EXPECT_EQ(ReadBack(name), before);
}

TEST_F(SpoiledTest, WhatMakesACaseLargerThanItMayBeIsRefusedAndTheRestOpensAgain) {
  const QString name = shelf_->Make();
  const std::string longest(kMostText, 'x');
  std::string reason;
  DossierGegevens stored;
  {
    const auto open = shelf_->Open(name);
    try {
      for (int n = 0; n < 1000; ++n) open->Dossier()->NewKolom(0)->SetOmschrijving(longest);
    } catch (const host::Error& error) {
      reason = error.Description();
    }
    stored = open->Dossier()->Gegevens();
  }
  EXPECT_EQ(reason, "De wijziging is niet opgeslagen: het dossier is zo groot als een dossier kan zijn.");
  EXPECT_TRUE(ReadBack(name) == stored);
  EXPECT_EQ(shelf_->WhyNotOpened(name), "");
}

}  // namespace
}  // namespace brivane::dossier
