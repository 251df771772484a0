#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <brivane/host/Date.h>
#include <brivane/host/Error.h>
#include <brivane/host/model/Codes.h>
#include <brivane/host/model/PeriodeFields.h>
#include <brivane/host/model/VrijeKolomFields.h>

/// The contents of a loan file as plain values: what a file is read into and a case is made from.
namespace brivane::dossier {

/// Identifies a loan, a free column or a period entry within its file for as long as it exists; 0 for one
/// that was not stored yet. Not shown to anyone.
using Sleutel = std::int64_t;

struct PeriodeGegevens : host::PeriodeValues {
  dossier::Sleutel Sleutel = 0;

  friend bool operator==(const PeriodeGegevens&, const PeriodeGegevens&) = default;
};

struct BedragGegevens {
  std::string Naam;
  std::int16_t Invoersoort = 1;
  double Bedrag = 0;
  std::vector<PeriodeGegevens> Perioden;

  friend bool operator==(const BedragGegevens&, const BedragGegevens&) = default;
};

/// One free column.
struct KolomGegevens : host::VrijeKolomValues {
  dossier::Sleutel Sleutel = 0;
  BedragGegevens Bedrag;

  friend bool operator==(const KolomGegevens&, const KolomGegevens&) = default;
};

struct LeningGegevens {
  dossier::Sleutel Sleutel = 0;
  std::string Naam;  ///< for the host's own screens
  std::vector<KolomGegevens> VrijeKolommen;

  friend bool operator==(const LeningGegevens&, const LeningGegevens&) = default;
};

struct PersoonGegevens {
  std::array<std::string, 3> Naam;
  host::Date Geboortedatum;
  /// Marginal rate of the income tax in percent, 0 to 100; none where it was not entered. The host's alone.
  std::optional<double> Belastingtarief{};

  friend bool operator==(const PersoonGegevens&, const PersoonGegevens&) = default;
};

/// One entry of a code table: the code and the text that a list shows.
struct Code {
  std::string code;
  std::string tekst;

  friend bool operator==(const Code&, const Code&) = default;
};

/// Where proposal 1, 2 or 3 stands in an array of them; fails with error 9 for another number.
inline std::size_t Plaats(std::int16_t voorstel) {
  if (voorstel < 1 || voorstel > host::codes::kVoorstellen) throw host::Error(host::ErrorNumber::SubscriptOutOfRange);
  return static_cast<std::size_t>(voorstel - 1);
}

struct DossierGegevens {
  std::vector<PersoonGegevens> Personen;  ///< the applicant and, if there is one, the partner
  std::int16_t Leeftijd = 67;             ///< age limit of the assumptions, whole years
  std::vector<Code> MaatschappijType;
  LeningGegevens HuidigeLening;
  std::vector<LeningGegevens> Leningen;  ///< the loans of the new situation
  /// Identifiers of the free columns that are ended in proposal 1, 2 and 3.
  std::array<std::set<std::int16_t>, 3> Voorstellen;

  friend bool operator==(const DossierGegevens&, const DossierGegevens&) = default;
};

}  // namespace brivane::dossier
