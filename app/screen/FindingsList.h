#pragma once

#include <QDockWidget>
#include <functional>
#include <vector>

#include "app/screen/Place.h"
#include "dossier/model/DossierControle.h"

class QLabel;
class QTreeWidget;

namespace brivane::dossier {

/// What a check of the case found, below the window; a double click or Enter goes to the column, and
/// Escape puts the list away.
class Bevindingenlijst final : public QDockWidget {
 public:
  explicit Bevindingenlijst(QWidget* parent);

  /// Shows what was found and takes the focus where that is anything.
  void Toon(const Dossier& dossier, const std::vector<Bevinding>& bevindingen);
  void Leeg();

  std::function<void(const Plek&)> gekozen;

 private:
  QLabel* samenvatting_;
  QTreeWidget* lijst_;
};

}  // namespace brivane::dossier
