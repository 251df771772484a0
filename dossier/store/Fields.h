#pragma once

#include "dossier/model/Journal.h"

/// Which field of the plain values stands in which column of the file's tables.
namespace brivane::dossier {

/// Column names in table `vrijekolom`, in the order of KolomVeld.
inline constexpr const char* kKolomNamen[kKolomVelden] = {"correctie_last",
                                                          "correctie_fiscaal",
                                                          "heffing_bij",
                                                          "omschrijving",
                                                          "termijn",
                                                          "inkomen_uit_arbeid",
                                                          "in_dagloon",
                                                          "datum_aanvang",
                                                          "looptijd",
                                                          "contractvervaldatum",
                                                          "is_product",
                                                          "maatschappij",
                                                          "maatschappij_naam",
                                                          "productsoort",
                                                          "productsoort_omschrijving",
                                                          "productnaam",
                                                          "uw_bemiddeling",
                                                          "voorstel_1",
                                                          "voorstel_2",
                                                          "voorstel_3",
                                                          "uitsluiten_ao",
                                                          "uitsluiten_ww",
                                                          "uitsluiten_langleven",
                                                          "scenario_overlijden",
                                                          "percentage_overgang",
                                                          "einddatum_overgang",
                                                          "eindleeftijd_overgang",
                                                          "bedrag"};

/// Column names in table `periode`, in the order of PeriodeVeld.
inline constexpr const char* kPeriodeNamen[kPeriodeVelden] = {"maand", "bedrag", "percentage", "korting", "eenmalig"};

/// Hands a visitor the column name and the value of every stored field of a free column but its key.
template <class Kolom, class Visitor> void BezoekKolom(Kolom& kolom, Visitor&& bezoek) {
  const auto naam = [](KolomVeld veld) { return kKolomNamen[static_cast<int>(veld)]; };
  bezoek("id", kolom.Id);
  bezoek(naam(KolomVeld::CorrectieLast), kolom.CorrectieLast);
  bezoek(naam(KolomVeld::CorrectieFiscaal), kolom.CorrectieFiscaal);
  bezoek(naam(KolomVeld::HeffingBij), kolom.HeffingBij);
  bezoek(naam(KolomVeld::Omschrijving), kolom.Omschrijving);
  bezoek(naam(KolomVeld::Termijn), kolom.Termijn);
  bezoek(naam(KolomVeld::InkomenUitArbeid), kolom.InkomenUitArbeid);
  bezoek(naam(KolomVeld::InDagloon), kolom.InDagloon);
  bezoek(naam(KolomVeld::DatumAanvang), kolom.DatumAanvang);
  bezoek(naam(KolomVeld::Looptijd), kolom.Looptijd);
  bezoek(naam(KolomVeld::Contractvervaldatum), kolom.Contractvervaldatum);
  bezoek(naam(KolomVeld::IsProduct), kolom.IsProduct);
  bezoek(naam(KolomVeld::Maatschappij), kolom.Maatschappij);
  bezoek(naam(KolomVeld::MaatschappijNaam), kolom.MaatschappijNaam);
  bezoek(naam(KolomVeld::Productsoort), kolom.Productsoort);
  bezoek(naam(KolomVeld::ProductsoortOmschrijving), kolom.ProductsoortOmschrijving);
  bezoek(naam(KolomVeld::Productnaam), kolom.Productnaam);
  bezoek(naam(KolomVeld::UwBemiddeling), kolom.UwBemiddeling);
  bezoek(naam(KolomVeld::Voorstel1), kolom.Voorstel[0]);
  bezoek(naam(KolomVeld::Voorstel2), kolom.Voorstel[1]);
  bezoek(naam(KolomVeld::Voorstel3), kolom.Voorstel[2]);
  bezoek(naam(KolomVeld::UitsluitenAO), kolom.UitsluitenAO);
  bezoek(naam(KolomVeld::UitsluitenWW), kolom.UitsluitenWW);
  bezoek(naam(KolomVeld::UitsluitenLangleven), kolom.UitsluitenLangleven);
  bezoek(naam(KolomVeld::ScenarioOverlijden), kolom.ScenarioOverlijden);
  bezoek(naam(KolomVeld::PercentageOvergang), kolom.PercentageOvergang);
  bezoek(naam(KolomVeld::EinddatumOvergang), kolom.EinddatumOvergang);
  bezoek(naam(KolomVeld::EindleeftijdOvergang), kolom.EindleeftijdOvergang);
  bezoek("bedrag_naam", kolom.Bedrag.Naam);
  bezoek("invoersoort", kolom.Bedrag.Invoersoort);
  bezoek(naam(KolomVeld::Bedrag), kolom.Bedrag.Bedrag);
}

/// The same for a period entry.
template <class Periode, class Visitor> void BezoekPeriode(Periode& periode, Visitor&& bezoek) {
  const auto naam = [](PeriodeVeld veld) { return kPeriodeNamen[static_cast<int>(veld)]; };
  bezoek(naam(PeriodeVeld::Maand), periode.Maand);
  bezoek(naam(PeriodeVeld::Bedrag), periode.Bedrag);
  bezoek(naam(PeriodeVeld::Percentage), periode.Percentage);
  bezoek(naam(PeriodeVeld::Korting), periode.Korting);
  bezoek(naam(PeriodeVeld::Eenmalig), periode.Eenmalig);
}

}  // namespace brivane::dossier
