#pragma once

#include "dossier/model/SampleCase.h"

namespace bench {

/// The columns of the sample, over and over, in the current loan.
inline brivane::dossier::DossierGegevens LargeCase(std::size_t columns) {
  brivane::dossier::DossierGegevens gegevens = brivane::dossier::VoorbeeldDossier();
  auto& current = gegevens.HuidigeLening.VrijeKolommen;
  const auto sample = current;
  while (current.size() < columns) {
    current.push_back(sample[current.size() % sample.size()]);
    current.back().Id = static_cast<std::int16_t>(current.size());
  }
  return gegevens;
}

}  // namespace bench
