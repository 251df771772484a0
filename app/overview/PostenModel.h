#pragma once

#include <QAbstractTableModel>
#include <memory>
#include <vector>

#include "dossier/sums/Overzicht.h"

namespace brivane::app {

/// The recurring columns of a situation, or its one-off amounts, a row each.
class PostenModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum class Kind : std::uint8_t { Doorlopend, Eenmalig };
  /// What stands in a column of the table.
  enum class Cell : std::uint8_t {
    Naam,
    Herkomst,
    Bedrag,
    Termijn,
    PerMaand,
    Aanvang,
    Einde,
    Persoon,
    Last,
    Inkomen,
    Belasting,
    Opmerking
  };

  explicit PostenModel(Kind kind, QObject* parent = nullptr);

  /// Shows a situation in place of what was there.
  void Show(std::shared_ptr<const sums::Overzicht> overzicht, std::int16_t situatie);
  [[nodiscard]] const sums::Post& PostAt(int row) const { return *rows_[static_cast<std::size_t>(row)].post; }
  /// The row of a column of a loan, or -1.
  [[nodiscard]] int RowOf(std::int16_t Len_Id, std::int16_t Vrij_Id) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  [[nodiscard]] QString Text(const sums::Overzicht::Regel& row, Cell cell) const;

  Kind kind_;
  std::vector<Cell> cells_;
  std::shared_ptr<const sums::Overzicht> overzicht_;
  std::vector<sums::Overzicht::Regel> rows_;
};

}  // namespace brivane::app
