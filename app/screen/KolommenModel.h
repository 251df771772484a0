#pragma once

#include <QAbstractItemModel>
#include <functional>
#include <memory>
#include <vector>

#include "app/screen/Place.h"
#include "dossier/model/Dossier.h"

namespace brivane::dossier {

/// The loans of a case and their free columns, as a tree of two levels.
///
/// It shows the case as it was at the last Vernieuw; the case may change in between. A column that is dropped on
/// a loan is only asked to be moved there.
class Kolommenmodel final : public QAbstractItemModel {
 public:
  explicit Kolommenmodel(QObject* parent = nullptr) : QAbstractItemModel(parent) {}

  /// Shows another case, or nothing.
  void Toon(std::shared_ptr<Dossier> dossier);
  /// Takes over which loans and columns there are now. Answers whether that is another set than before; the
  /// model was reset then.
  bool Vernieuw();
  /// The texts of one column may have changed.
  void HertekenTekst(const Plek& plek);

  [[nodiscard]] Plek PlekVan(const QModelIndex& index) const;
  /// An invalid index where there is no such place.
  [[nodiscard]] QModelIndex IndexVan(const Plek& plek) const;

  /// A person dropped a column on another loan.
  std::function<void(Plek kolom, std::int16_t naarLen_Id)> verplaatsGevraagd;

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
  using Kolommen = std::vector<std::shared_ptr<VrijeKolom>>;

  [[nodiscard]] const VrijeKolom* KolomVan(const QModelIndex& index) const;

  std::shared_ptr<Dossier> dossier_;
  std::vector<Kolommen> leningen_;
};

/// Name of a loan on the screen: its own, or "Huidige lening", "Nieuwe lening 2".
[[nodiscard]] QString LeningTekst(const Dossier& dossier, std::int16_t Len_Id);

}  // namespace brivane::dossier
