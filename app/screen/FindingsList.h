#pragma once

#include <QDockWidget>
#include <functional>
#include <vector>

#include "app/screen/Place.h"
#include "dossier/model/DossierControle.h"

class QLabel;
class QTreeWidget;

namespace brivane::app {

/// What a check of the case found, below the window; a double click or Enter goes to the column, and
/// Escape puts the list away.
class FindingsList final : public QDockWidget {
 public:
  explicit FindingsList(QWidget* parent);

  /// Shows what was found and takes the focus where that is anything.
  void Show(const dossier::Dossier& dossier, const std::vector<dossier::Finding>& findings);
  void Clear();

  std::function<void(const Place&)> chosen;

 private:
  QLabel* summary_;
  QTreeWidget* list_;
};

}  // namespace brivane::app
