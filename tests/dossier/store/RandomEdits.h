#pragma once

#include <random>

#include "dossier/store/DossierStore.h"

namespace brivane::dossier {

/// Edits of every kind that a loan file knows, drawn by chance: the same seed makes the same.
class RandomEdits {
 public:
  RandomEdits(Dossier& dossier, Edits& edits, unsigned seed) : dossier_(dossier), edits_(edits), chance_(seed) {}

  /// Makes one edit; it may be one that changes nothing.
  void One() {
    switch (Pick(0, 17)) {
      case 0: dossier_.NewKolom(Loan()); break;
      case 1: OnColumn([&](Place place) { dossier_.Dupliceer(place.loan, place.id); }); break;
      case 2: OnColumn([&](Place place) { dossier_.Verwijder(place.loan, place.id); }); break;
      case 3: OnColumn([&](Place place) { dossier_.Verplaats(place.loan, place.id, Loan()); }); break;
      case 4:
        OnColumn([&](Place place) {
          if (place.loan == 0 && dossier_.AantalLeningen() > 0)
            dossier_.MakeAfwijking(place.id, static_cast<std::int16_t>(Pick(1, dossier_.AantalLeningen())));
        });
        break;
      case 5:
        if (dossier_.AantalLeningen() < 6) dossier_.NieuweLening(Text());
        break;
      case 6: dossier_.HernoemLening(Loan(), Text()); break;
      case 7:
        if (dossier_.AantalLeningen() > 1 && Pick(0, 3) == 0)
          dossier_.VerwijderLening(static_cast<std::int16_t>(Pick(1, dossier_.AantalLeningen())));
        break;
      case 8: Client(); break;
      case 9: OnColumn([&](Place place) { Proposal(place.id); }); break;
      case 10: OnColumn([&](Place place) { Scenario(Column(place)); }); break;
      case 11: OnColumn([&](Place place) { OneOff(Column(place)); }); break;
      case 12: OnColumn([&](Place place) { Product(Column(place)); }); break;
      default: OnColumn([&](Place place) { Field(Column(place)); }); break;
    }
  }

 private:
  struct Place {
    std::int16_t loan;
    std::int16_t id;
  };

  int Pick(int from, int to) { return std::uniform_int_distribution<int>(from, to)(chance_); }
  std::int16_t Loan() { return static_cast<std::int16_t>(Pick(0, dossier_.AantalLeningen())); }
  std::string Text() {
    static const char* const texts[] = {"", "Kinderopvang", "Café ☕", "=1+1", "a;b\"c", "Zoë", "x"};
    return texts[Pick(0, 6)];
  }
  double Amount() {
    static const double amounts[] = {0, -0.0, 0.1, 1.0 / 3, 1234.56, -99.99, 1e15, 5, 1e-300};
    return amounts[Pick(0, 8)];
  }
  template <class Function> void OnColumn(Function&& function) {
    const std::int16_t loan = Loan();
    const auto& columns = dossier_.FindLening(loan)->Kolommen();
    if (columns.empty()) {
      dossier_.NewKolom(loan);
      return;
    }
    function(Place{loan, columns[static_cast<std::size_t>(Pick(0, static_cast<int>(columns.size()) - 1))]->Id()});
  }
  VrijeKolom& Column(Place place) { return *dossier_.FindKolom(place.loan, place.id); }

  void Client() {
    std::vector<PersoonGegevens> personen(static_cast<std::size_t>(Pick(1, 2)));
    for (PersoonGegevens& persoon : personen) {
      persoon.Naam = {Text(), Text(), Text()};
      persoon.Geboortedatum = host::Date(Pick(10000, 30000));
      if (Pick(0, 1) == 0) persoon.Belastingtarief = Pick(0, 100) / 3.0;
    }
    dossier_.SetClient(std::move(personen), static_cast<std::int16_t>(Pick(60, 70)));
  }
  void Proposal(std::int16_t id) {
    const auto voorstel = static_cast<std::int16_t>(Pick(1, 3));
    if (Pick(0, 1) == 0)
      dossier_.VoegToeAanVoorstel(voorstel, id);
    else
      dossier_.VerwijderUitVoorstel(voorstel, id, 0);
  }
  /// As the OK button of the year form: all entries go, and others come.
  void Scenario(VrijeKolom& column) {
    edits_.InOneEdit([&] {
      while (column.Bedrag()->Periode(1)) column.Bedrag()->VerwijderPeriode(1);
      for (int n = Pick(0, 4); n > 0; --n) {
        const auto periode = column.Bedrag()->Periode(column.Bedrag()->NieuwePeriode());
        periode->SetMaand(static_cast<std::int16_t>(Pick(0, 960)));
        periode->SetBedrag(Amount());
        periode->SetPercentage(Amount());
        periode->SetKorting(Pick(0, 5));
        periode->SetEenmalig(Pick(0, 1) == 0);
      }
    });
  }
  void OneOff(VrijeKolom& column) {
    edits_.InOneEdit([&] {
      column.SetTermijn(99);
      column.SetLooptijd(0);
      while (column.Bedrag()->Periode(1)) column.Bedrag()->VerwijderPeriode(1);
    });
  }
  void Product(VrijeKolom& column) {
    const bool is = Pick(0, 1) == 0;
    edits_.InOneEdit([&] {
      column.SetIsProduct(is);
      column.SetProductsoort(static_cast<std::int16_t>(is ? 42 : 0));
      column.SetProductnaam(is ? Text() : "");
      column.SetMaatschappij(is ? "DM" : "");
      column.SetLooptijd(is ? 999 : 0);
      column.SetVoorstel(static_cast<std::int16_t>(Pick(1, 3)), is ? "J" : "");
    });
  }
  void Field(VrijeKolom& column) {
    switch (Pick(0, 8)) {
      case 0: column.SetOmschrijving(Text()); break;
      case 1: column.Bedrag()->SetBedrag(Amount()); break;
      case 2: column.SetLooptijd(Pick(-32768, 32767)); break;
      case 3: column.SetDatumAanvang(host::Date(Pick(0, 60000))); break;
      case 4: column.SetPercentageOvergang(static_cast<float>(Pick(0, 300)) / 3.0F); break;
      case 5: column.SetCorrectieFiscaal(static_cast<std::int16_t>(Pick(1, 3))); break;
      case 6: column.SetUitsluitenAO(Pick(0, 1) == 0); break;
      case 7: column.SetHeffingBij(static_cast<std::int16_t>(Pick(1, 2))); break;
      default: column.SetMaatschappijNaam(Text()); break;
    }
  }

  Dossier& dossier_;
  Edits& edits_;
  std::mt19937 chance_;
};

}  // namespace brivane::dossier
