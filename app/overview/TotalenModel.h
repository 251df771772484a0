#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <vector>

#include "dossier/sums/Overzicht.h"

namespace brivane::app {

/// What each situation adds up to and how it differs from the current one: a row each, the current one first.
class TotalenModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  using QAbstractTableModel::QAbstractTableModel;

  void Show(const sums::Overzicht& overzicht, const QStringList& names);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  struct Row {
    QString name;
    sums::Totalen totalen;
    sums::Totalen verschil;
  };
  [[nodiscard]] QString Text(int row, int column) const;

  std::vector<Row> rows_;
};

}  // namespace brivane::app
