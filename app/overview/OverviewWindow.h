#pragma once

#include <QWidget>
#include <memory>

#include "app/overview/CaseView.h"
#include "dossier/sums/Overzicht.h"

class QLabel;

namespace brivane::app {

class Choices;
class FigureTable;
class PostenModel;
class TotalenModel;

/// What a situation adds up to, as tables: its recurring columns, its one-off amounts, and the totals of every
/// situation with the difference. A window beside the main one, that stays open while columns are edited; Enter goes to
/// a column, Escape puts it away.
class OverviewWindow final : public QWidget {
 public:
  OverviewWindow(CaseView view, QWidget* parent);
  ~OverviewWindow() override;

  /// Reads the case anew.
  void Refresh();
  [[nodiscard]] app::Choices& Choices() { return *choices_; }

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void ShowIn(FigureTable& table, PostenModel& model);
  void GoTo(const PostenModel& model, int row) const;

  CaseView view_;
  std::shared_ptr<const sums::Overzicht> overzicht_;
  app::Choices* choices_;
  PostenModel* doorlopend_;
  PostenModel* eenmalig_;
  TotalenModel* totalen_;
  FigureTable* columns_;
  FigureTable* once_;
  FigureTable* totals_;
  QLabel* onceTitle_;
  bool fitted_ = false;  ///< the columns are as wide as what is chosen asks for
};

}  // namespace brivane::app
