#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

#include "app/screen/KolommenTree.h"

class QLabel;
class QLineEdit;

namespace brivane::app {

/// The list of a case below the box that filters it, which tells how much it finds. Down goes from the box into the
/// list, Enter to the first that was found, Escape back to where a person came from with the whole list.
class ListPanel final : public QWidget {
 public:
  explicit ListPanel(std::shared_ptr<dossier::Dossier> dossier, QWidget* parent = nullptr);

  [[nodiscard]] KolommenTree& Tree() { return *tree_; }
  /// Puts the focus in the box, with what stands in it selected.
  void EnterFilter();
  void ClearFilter();

  /// Which place is on the screen.
  std::function<Place()> shown;
  /// A person goes to the first column that was found.
  std::function<void(const Place&)> opened;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void TellCount();
  void GoBack();

  KolommenTree* tree_;
  QLineEdit* box_;
  QLabel* count_;
  QPointer<QWidget> cameFrom_;
};

}  // namespace brivane::app
