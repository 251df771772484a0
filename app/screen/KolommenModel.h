#pragma once

#include <QAbstractItemModel>
#include <functional>
#include <memory>
#include <vector>

#include "app/screen/KolomStand.h"
#include "app/screen/Place.h"
#include "dossier/model/Dossier.h"

namespace brivane::app {

/// The loans of a case and their free columns, as a tree of two levels. A loan's columns stand in the order in which
/// they were added, or sorted; a filter leaves those that it does not find out, and loans in which it finds nothing.
///
/// It shows the case as it was at the last Refresh; the case may change in between. What was edited since stays where
/// it stands, found or not, so that nothing moves under a person's hands. A column that is dropped on a loan is only
/// asked to be moved there.
class KolommenModel final : public QAbstractItemModel {
 public:
  /// What is told of each column. A loan has its name alone.
  enum Cell { kNaam, kStand, kBedrag, kTermijn, kAanvang, kCells };
  static constexpr int kEigenVolgorde = -1;

  explicit KolommenModel(QObject* parent = nullptr) : QAbstractItemModel(parent) {}

  /// Shows another case, or nothing.
  void Show(std::shared_ptr<dossier::Dossier> dossier);
  /// Takes over which loans and columns there are now. Answers whether that is another set than before; the
  /// model was reset then.
  bool Refresh();
  /// The texts of one column may have changed.
  void RedrawText(const Place& place);

  /// Shows what has all these words; empty for everything. Resets the model.
  void SetFilter(const QString& typed);
  [[nodiscard]] bool IsFiltered() const { return !words_.isEmpty(); }
  /// Sorts each loan's columns by a cell, or kEigenVolgorde. Resets the model.
  void sort(int cell, Qt::SortOrder order) override;

  /// How many columns there are, and how many of them are shown.
  [[nodiscard]] int CountAll() const;
  [[nodiscard]] int CountShown() const;
  /// The columns as they stand in the list.
  [[nodiscard]] std::vector<Place> Shown() const;
  /// The widest texts that an amount of any column has, shown or not.
  [[nodiscard]] QStringList WidestAmounts() const;
  /// How the column of a row stands to the other situation.
  [[nodiscard]] KolomStand StandOfRow(const QModelIndex& index) const {
    return KolomOf(index) == nullptr ? KolomStand::Geen : StandOf(PlaceOf(index));
  }

  [[nodiscard]] Place PlaceOf(const QModelIndex& index) const;
  /// An invalid index where there is no such place, or the filter leaves it out.
  [[nodiscard]] QModelIndex IndexOf(const Place& place) const;

  /// A person dropped a column on another loan.
  std::function<void(Place kolom, std::int16_t toLen_Id)> moveAsked;

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  [[nodiscard]] QStringList mimeTypes() const override;
  [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
  [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 private:
  using Kolommen = std::vector<std::shared_ptr<dossier::VrijeKolom>>;
  using Rows = std::vector<std::size_t>;

  [[nodiscard]] const dossier::VrijeKolom* KolomOf(const QModelIndex& index) const;
  [[nodiscard]] KolomStand StandOf(const Place& place) const;
  [[nodiscard]] QVariant TextOf(const Place& place, const dossier::KolomGegevens& kolom, int cell) const;
  [[nodiscard]] QString TipOf(const Place& place, const dossier::VrijeKolom& kolom) const;
  [[nodiscard]] QString CompanyOf(const std::string& code) const;
  void TakeOverVersions();
  /// Works out what is shown, with the model under reset.
  void Arrange();
  void Filter(std::size_t loan, Rows& rows);
  void Sort(std::size_t loan, Rows& rows) const;

  std::shared_ptr<dossier::Dossier> dossier_;
  std::vector<Kolommen> leningen_;
  std::vector<Versies> versies_;  ///< by the identifier of an item

  QStringList words_;
  int sortedBy_ = kEigenVolgorde;
  Qt::SortOrder order_ = Qt::AscendingOrder;
  std::vector<std::vector<QString>> searched_;  ///< search texts as far as they were asked for
  std::vector<Rows> rows_;                      ///< of each loan, places in its columns as they are shown
  std::vector<std::size_t> shownLoans_;
  std::vector<int> rowOfLoan_;  ///< -1 for one that is not shown
};

/// Name of a loan on the screen: its own, or "Huidige lening", "Nieuwe lening 2".
[[nodiscard]] QString LeningText(const dossier::Dossier& dossier, std::int16_t Len_Id);

}  // namespace brivane::app
