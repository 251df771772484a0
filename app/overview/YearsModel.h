#pragma once

#include <QAbstractTableModel>

#include "app/overview/YearPicture.h"

namespace brivane::app {

/// The figures of a picture of years as a table: a row for each year.
class YearsModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Show(YearData data);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  [[nodiscard]] QString Heading(int column) const;
  [[nodiscard]] QString Text(int row, int column) const;
  [[nodiscard]] int Persons() const { return static_cast<int>(data_.ages.size()); }

  YearData data_;
};

}  // namespace brivane::app
