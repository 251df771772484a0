#pragma once

#include <QTreeView>
#include <functional>
#include <memory>

#include "app/screen/KolommenModel.h"

namespace brivane::app {

struct Actions;

/// The tree of a case: loans and their columns, to choose from, with their menu and keys.
///
/// It tells what a person chooses and leaves it to its listener whether that comes on the screen; code that
/// selects is told to nobody.
class KolommenTree final : public QTreeView {
 public:
  explicit KolommenTree(std::shared_ptr<dossier::Dossier> dossier, QWidget* parent = nullptr);

  /// Takes over which loans and columns there are, with `shown` selected. Answers whether they are others than
  /// before.
  bool Refresh(const Place& shown);
  void Select(const Place& place);
  void RedrawText(const Place& place) { model_->RedrawText(place); }
  /// What to show once a column is gone: the next one of its loan, else the previous one, else the loan.
  [[nodiscard]] Place Neighbour(const Place& kolom) const;
  /// Gives the tree its context menu, and the keys that work in the tree alone.
  void SetActions(const Actions& actions);

  /// Told out of the view's own events, which a message box would hold up.
  std::function<void(const Place&)> chosen;
  std::function<void(const Place& kolom, std::int16_t toLen_Id)> dragged;
  /// A click has ended on this place.
  std::function<void(const Place&)> clickEnded;

 private:
  KolommenModel* model_;
  bool selecting_ = false;  ///< code selects
};

}  // namespace brivane::app
