#pragma once

#include <QTableView>
#include <functional>

namespace brivane::app {

/// The selected rows of a table with their headings, as text with tabs between for a spreadsheet.
[[nodiscard]] QString RowsAsText(const QAbstractItemModel& model, QList<int> rows);

/// A table of figures that is read and not edited: rows are selected whole, Ctrl+C copies them, Enter or a double click
/// chooses one, and Tab leads out of it.
class FigureTable final : public QTableView {
 public:
  /// `name` is what a screen reader calls it.
  FigureTable(QAbstractItemModel& model, const QString& name, const char* objectName);

  /// Makes the columns as wide as what is in sight of them. Once is enough.
  void FitColumns();
  void SetCurrentRow(int row);
  void CopyRows() const;

  std::function<void(int row)> chosen;
  std::function<void(int row)> currentRowChanged;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
};

}  // namespace brivane::app
