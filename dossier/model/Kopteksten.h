#pragma once

#include <string>

#include "dossier/model/Gegevens.h"

namespace brivane::dossier {

/// What a column is, in at most two parts: the kind of product, and the description or the product's name.
[[nodiscard]] std::string Onderwerp(const KolomGegevens& kolom);
/// The base amount with its sign: "€ 32,50", or "2,50 %" where percentages are filled in; "€ ?" for what is no number.
[[nodiscard]] std::string Basisbedrag(const KolomGegevens& kolom);

/// Words the header texts of a free column. This one answers the two texts that the column holds.
class Kopteksten {
 public:
  virtual ~Kopteksten() = default;
  /// Text for the top display after a change of term or scenario. `kolom` has its amount, not its periods.
  [[nodiscard]] virtual std::string Weergave(const KolomGegevens& kolom) const;
  /// Header text after any other change.
  [[nodiscard]] virtual std::string Kopregel(const KolomGegevens& kolom) const;
};

/// The wording of the reference host, one text for both: "Krant · De Ochtend · € 32,50 per maand".
class BerekendeKopteksten : public Kopteksten {
 public:
  [[nodiscard]] std::string Weergave(const KolomGegevens& kolom) const override;
  [[nodiscard]] std::string Kopregel(const KolomGegevens& kolom) const override;
};

}  // namespace brivane::dossier
