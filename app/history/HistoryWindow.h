#pragma once

#include <QDialog>
#include <memory>

#include "app/history/HistoryModel.h"

class QComboBox;
class QLabel;
class QPushButton;
class QTableView;

namespace brivane::qt {
class DateBox;
}

namespace brivane::app {

/// What was changed in a case, when and by whom: filters above a table, which goes to the clipboard by Ctrl+C and to a
/// file for a spreadsheet.
class HistoryWindow final : public QDialog {
 public:
  /// `title`: how the case is called. Throws host::Error where the history cannot be read.
  HistoryWindow(std::unique_ptr<dossier::HistoryView> view, const QString& title, const QString& folder,
                QWidget* parent);

  /// The rows that are shown, as a file for a spreadsheet. Throws host::Error.
  [[nodiscard]] QByteArray Csv();

 private:
  void FillFilters();
  void Apply();
  void Copy();
  void Export();

  std::unique_ptr<dossier::HistoryView> view_;
  HistoryModel* model_;
  QString title_;
  QString folder_;
  QComboBox* kolom_;
  QComboBox* who_;
  qt::DateBox* from_;
  qt::DateBox* until_;
  QLabel* count_;
  QTableView* table_;
};

}  // namespace brivane::app
