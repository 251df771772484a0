#pragma once

#include "dossier/model/Gegevens.h"
#include <brivane/frame/Calendar.h>
#include <brivane/host/model/Codes.h>

/// Columns and persons for the tables.
namespace brivane::sums {

inline host::Date Dag(int dag, int maand, int jaar) {
  return frame::MakeDate({.year = jaar, .month = maand, .day = dag});
}

/// A monthly cost of the applicant that tax passes by, from 1 January 2025 on.
inline dossier::KolomGegevens Maandlast(double bedrag) {
  dossier::KolomGegevens kolom;
  kolom.CorrectieFiscaal = host::codes::kFiscaalNeutraal;
  kolom.DatumAanvang = Dag(1, 1, 2025);
  kolom.Bedrag.Bedrag = bedrag;
  return kolom;
}

inline dossier::PeriodeGegevens Vanaf(std::int16_t maand, double bedrag, bool opJaarbasis = false) {
  return {{.Maand = maand, .Bedrag = bedrag, .Eenmalig = opJaarbasis}};
}
inline dossier::PeriodeGegevens Procent(std::int16_t maand, double percentage, double korting = 0) {
  return {{.Maand = maand, .Percentage = percentage, .Korting = korting}};
}

/// Born on 12 March 1978 and on 29 February 1980.
inline std::vector<dossier::PersoonGegevens> Paar() {
  return {{.Naam = {"M.C.", "van den", "Heuvel"}, .Geboortedatum = Dag(12, 3, 1978)},
          {.Naam = {"S.", "de", "Wit"}, .Geboortedatum = Dag(29, 2, 1980)}};
}

}  // namespace brivane::sums
