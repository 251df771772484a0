#pragma once

#include <QDialog>
#include <memory>

#include "app/report/Pages.h"

class QLabel;
class QPrinter;
class QPrintPreviewWidget;

namespace brivane::app {

/// A report as it will stand on paper, to be looked through and printed by keyboard.
class PrintPreview final : public QDialog {
 public:
  PrintPreview(report::Report report, QWidget* parent);
  ~PrintPreview() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Print();
  void GoTo(int page);
  void ShowPage();

  report::Report report_;
  std::unique_ptr<QPrinter> printer_;
  QPrintPreviewWidget* pages_;
  QLabel* place_;
};

}  // namespace brivane::app
