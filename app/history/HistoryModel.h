#pragma once

#include <QAbstractTableModel>
#include <QCache>
#include <memory>
#include <vector>

#include "dossier/store/HistoryView.h"

namespace brivane::app {

/// The entries of a history as a table, the newest first. It holds their numbers, and reads the rest a page at a time
/// where it is looked at.
class HistoryModel final : public QAbstractTableModel {
 public:
  enum Column { When, Who, Lening, Kolom, What, Kind, Before, After, kColumns };

  /// `view` outlives the model.
  explicit HistoryModel(dossier::HistoryView& view, QObject* parent = nullptr);

  /// Shows other entries. Throws host::Error, and then shows what it showed.
  void Show(const dossier::HistoryFilter& filter);
  /// The texts of a row in the order of the columns. Throws host::Error.
  [[nodiscard]] QStringList Texts(int row);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  [[nodiscard]] static QString Heading(int column);

 private:
  using Page = std::vector<dossier::HistoryLine>;
  [[nodiscard]] const dossier::HistoryLine& LineAt(int row) const;

  dossier::HistoryView& view_;
  std::vector<std::int64_t> numbers_;
  mutable QCache<int, Page> pages_;
};

}  // namespace brivane::app
