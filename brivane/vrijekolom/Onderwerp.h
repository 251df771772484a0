#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <brivane/host/Date.h>
#include <brivane/host/controls/Surface.h>

/// What the year-by-year form is about, for who has it before him: which column, which year is which row.
namespace brivane::vrijekolom {

/// A person whose age a row tells.
struct Geborene {
  std::string wie;  ///< "aanvrager", "partner"
  host::Date geboren;
};

/// What the editor shows of its column.
struct Onderwerp {
  std::string omschrijving;
  std::string termijn;
  host::Date aanvang;
};

[[nodiscard]] Onderwerp LeesOnderwerp(host::Surface& surface);

/// "Kinderopvang, per maand"; the term alone where there is no description.
[[nodiscard]] std::string Titel(const Onderwerp& onderwerp);

/// Which year a row stands for, from 1, and the ages that the persons reach in it: "2033: 1 april 2033 tot en met 31
/// maart 2034; aanvrager 52, partner 50 jaar". Empty where the column has no start date.
[[nodiscard]] std::string Rijuitleg(int rij, host::Date aanvang, const std::vector<Geborene>& personen);

}  // namespace brivane::vrijekolom
