#pragma once

#include "app/report/Contents.h"
#include "dossier/model/SampleCase.h"
#include <brivane/frame/Calendar.h>

namespace brivane::app::report {

inline host::Date Day(int day, int month, int year) {
  return frame::MakeDate({.year = year, .month = month, .day = day});
}

/// The sample case on 22 November 2026.
inline Source SampleSource() {
  return {.gegevens = dossier::VoorbeeldDossier(),
          .leningen = {"Huidige lening", "Nieuwe lening 1", "Nieuwe lening 2"},
          .adviser = "Jan de Vries",
          .today = Day(22, 11, 2026),
          .uitgangspunt = {.peildatum = Day(22, 11, 2026), .tarieven = {}}};
}

/// A case of one person and one loan with so many columns, "Post 1" on, of 10,01 euros and more each month.
inline Source LargeSource(int columns) {
  Source source{.gegevens = dossier::LeegDossier(),
                .leningen = {"Huidige lening"},
                .adviser = "Jan de Vries",
                .today = Day(22, 11, 2026),
                .uitgangspunt = {.peildatum = Day(22, 11, 2026), .tarieven = {}}};
  source.gegevens.Leningen.clear();
  for (int i = 1; i <= columns; ++i) {
    dossier::KolomGegevens kolom;
    kolom.Id = static_cast<std::int16_t>(i);
    kolom.Omschrijving = "Post " + std::to_string(i);
    kolom.CorrectieFiscaal = host::codes::kFiscaalNeutraal;
    kolom.DatumAanvang = Day(1, 1, 2026);
    kolom.Bedrag.Bedrag = 10 + i / 100.0;
    source.gegevens.HuidigeLening.VrijeKolommen.push_back(std::move(kolom));
  }
  return source;
}

}  // namespace brivane::app::report
