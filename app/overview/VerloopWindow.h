#pragma once

#include <QWidget>

#include "app/overview/CaseView.h"
#include "app/overview/YearPicture.h"

class QComboBox;
class QLabel;

namespace brivane::app {

class Choices;
class FigureTable;
class YearChart;
class YearsModel;

/// How a situation beside the current one, or the column on the screen, goes through the years: a picture, what stands
/// in the year that is pointed at, and the figures as a table. A window beside the main one, that follows edits; Escape
/// puts it away.
class VerloopWindow final : public QWidget {
 public:
  VerloopWindow(CaseView view, QWidget* parent);

  /// Reads the case anew.
  void Refresh();
  [[nodiscard]] YearChart& Chart() { return *chart_; }
  [[nodiscard]] app::Choices& Choices() { return *choices_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  [[nodiscard]] YearData Read() const;

  CaseView view_;
  app::Choices* choices_;
  QComboBox* subject_;
  YearChart* chart_;
  QLabel* year_;
  YearsModel* model_;
  FigureTable* table_;
};

}  // namespace brivane::app
