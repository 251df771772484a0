#pragma once

#include <QTreeView>
#include <functional>
#include <memory>

#include "app/screen/KolommenModel.h"

namespace brivane::dossier {

struct Acties;

/// The tree of a case: loans and their columns, to choose from, with their menu and keys.
///
/// It tells what a person chooses and leaves it to its listener whether that comes on the screen; code that
/// selects is told to nobody.
class Kolommenboom final : public QTreeView {
 public:
  explicit Kolommenboom(std::shared_ptr<Dossier> dossier, QWidget* parent = nullptr);

  /// Takes over which loans and columns there are, with `getoond` selected. Answers whether they are others than
  /// before.
  bool Vernieuw(const Plek& getoond);
  void Selecteer(const Plek& plek);
  void HertekenTekst(const Plek& plek) { model_->HertekenTekst(plek); }
  /// What to show once a column is gone: the next one of its loan, else the previous one, else the loan.
  [[nodiscard]] Plek Buur(const Plek& kolom) const;
  /// Gives the tree its context menu, and the keys that work in the tree alone.
  void ZetActies(const Acties& acties);

  /// Told out of the view's own events, which a message box would hold up.
  std::function<void(const Plek&)> gekozen;
  std::function<void(const Plek& kolom, std::int16_t naarLen_Id)> gesleept;
  /// A click has ended on this place.
  std::function<void(const Plek&)> aangeklikt;

 private:
  Kolommenmodel* model_;
  bool selecteert_ = false;  ///< code selects
};

}  // namespace brivane::dossier
