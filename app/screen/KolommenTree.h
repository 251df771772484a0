#pragma once

#include <QTreeView>
#include <functional>
#include <memory>
#include <vector>

#include "app/screen/KolommenModel.h"

namespace brivane::app {

struct Actions;

/// The list of a case: loans and their columns, to choose from, with their menu and keys.
///
/// It tells what a person chooses and leaves it to its listener whether that comes on the screen; code that
/// selects is told to nobody. What is on the screen is always in the list: a filter that hides what is selected by code
/// is put away.
class KolommenTree final : public QTreeView {
 public:
  explicit KolommenTree(std::shared_ptr<dossier::Dossier> dossier, QWidget* parent = nullptr);

  /// Takes over which loans and columns there are, with `shown` selected. Answers whether they are others than
  /// before.
  bool Refresh(const Place& shown);
  void Select(const Place& place);
  void RedrawText(const Place& place);
  /// What to show once a column is gone: the next one of its loan, else the previous one, else the loan.
  [[nodiscard]] Place Neighbour(const Place& kolom) const;
  /// The columns as they stand in the list.
  [[nodiscard]] std::vector<Place> Kolommen() const { return model_->Shown(); }
  /// Gives the tree its context menu, and the keys that work in the tree alone.
  void SetActions(const Actions& actions);

  /// Shows what has all these words. `shown` stays selected where it is found.
  void SetFilter(const QString& typed, const Place& shown);
  [[nodiscard]] bool IsFiltered() const { return model_->IsFiltered(); }
  [[nodiscard]] int CountAll() const { return model_->CountAll(); }
  [[nodiscard]] int CountShown() const { return model_->CountShown(); }
  /// Sorts by a cell: upwards, and where it is sorted so, downwards, and then as the loan has them.
  void SortBy(int cell);
  /// Takes the focus, on the first column of the list.
  void EnterAtFirst();

  /// With which it can be read.
  [[nodiscard]] int LeastWidth() const;

  /// Told out of the view's own events, which a message box would hold up.
  std::function<void(const Place&)> chosen;
  std::function<void(const Place& kolom, std::int16_t toLen_Id)> dragged;
  /// A click has ended on this place.
  std::function<void(const Place&)> clickEnded;
  /// What is selected was not found: the filter is gone.
  std::function<void()> filterPutAway;

 protected:
  void drawRow(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  /// After a reset of the model.
  void ShowAnew(const Place& place);
  /// Gives the amounts the room that they need, and the rest what is left.
  void FitColumns();
  [[nodiscard]] Place Selected() const { return model_->PlaceOf(currentIndex()); }

  KolommenModel* model_;
  bool selecting_ = false;  ///< code selects
  int sortedBy_ = KolommenModel::kEigenVolgorde;
  Qt::SortOrder order_ = Qt::AscendingOrder;
};

}  // namespace brivane::app
