#pragma once

#include <QAbstractItemModel>
#include <functional>
#include <memory>
#include <vector>

#include "app/screen/Place.h"
#include "dossier/model/Dossier.h"

namespace brivane::app {

/// The loans of a case and their free columns, as a tree of two levels.
///
/// It shows the case as it was at the last Refresh; the case may change in between. A column that is dropped on
/// a loan is only asked to be moved there.
class KolommenModel final : public QAbstractItemModel {
 public:
  explicit KolommenModel(QObject* parent = nullptr) : QAbstractItemModel(parent) {}

  /// Shows another case, or nothing.
  void Show(std::shared_ptr<dossier::Dossier> dossier);
  /// Takes over which loans and columns there are now. Answers whether that is another set than before; the
  /// model was reset then.
  bool Refresh();
  /// The texts of one column may have changed.
  void RedrawText(const Place& place);

  [[nodiscard]] Place PlaceOf(const QModelIndex& index) const;
  /// An invalid index where there is no such place.
  [[nodiscard]] QModelIndex IndexOf(const Place& place) const;

  /// A person dropped a column on another loan.
  std::function<void(Place kolom, std::int16_t toLen_Id)> moveAsked;

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] QStringList mimeTypes() const override;
  [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
  [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 private:
  using Kolommen = std::vector<std::shared_ptr<dossier::VrijeKolom>>;

  [[nodiscard]] const dossier::VrijeKolom* KolomOf(const QModelIndex& index) const;

  std::shared_ptr<dossier::Dossier> dossier_;
  std::vector<Kolommen> leningen_;
};

/// Name of a loan on the screen: its own, or "Huidige lening", "Nieuwe lening 2".
[[nodiscard]] QString LeningText(const dossier::Dossier& dossier, std::int16_t Len_Id);

}  // namespace brivane::app
