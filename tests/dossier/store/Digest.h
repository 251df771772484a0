#pragma once

#include <QCryptographicHash>
#include <bit>

#include "dossier/store/Fields.h"

namespace brivane::dossier {

/// A short name for a case with its keys, to the bit of each number; a file keeps -0 as 0.
[[nodiscard]] inline std::string Digest(const DossierGegevens& dossier) {
  QCryptographicHash hash(QCryptographicHash::Sha1);
  const auto bytes = [&](std::uint64_t bits) {
    hash.addData(QByteArrayView(reinterpret_cast<const char*>(&bits), sizeof bits));
  };
  const auto add = [&](const Waarde& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return bytes(static_cast<std::uint64_t>(*whole));
    if (const auto* broken = std::get_if<double>(&value)) return bytes(std::bit_cast<std::uint64_t>(*broken + 0.0));
    const auto text = std::get<std::string_view>(value);
    bytes(text.size());
    hash.addData(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
  };
  const auto field = [&](std::string_view, const auto& value) { add(AlsWaarde(value)); };
  const auto loan = [&](const LeningGegevens& lening) {
    add(AlsWaarde(lening.Sleutel));
    add(AlsWaarde(lening.Naam));
    for (const KolomGegevens& kolom : lening.VrijeKolommen) {
      add(AlsWaarde(kolom.Sleutel));
      BezoekKolom(kolom, field);
      for (const PeriodeGegevens& periode : kolom.Bedrag.Perioden) {
        add(AlsWaarde(periode.Sleutel));
        BezoekPeriode(periode, field);
      }
    }
  };
  for (const PersoonGegevens& persoon : dossier.Personen) {
    for (const std::string& name : persoon.Naam) add(AlsWaarde(name));
    add(AlsWaarde(persoon.Geboortedatum));
    add(AlsWaarde(persoon.Belastingtarief.value_or(-1)));
  }
  add(AlsWaarde(dossier.Leeftijd));
  loan(dossier.HuidigeLening);
  for (const LeningGegevens& lening : dossier.Leningen) loan(lening);
  for (const auto& members : dossier.Voorstellen) {
    add(std::int64_t{-1});
    for (const std::int16_t id : members) add(AlsWaarde(id));
  }
  return hash.result().toHex().toStdString();
}

}  // namespace brivane::dossier
