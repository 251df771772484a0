#pragma once

#include <QTimer>
#include <vector>

#include "app/desk/PassingDialog.h"
#include "app/office/ClientSearch.h"
#include "app/office/Entrance.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace brivane::app {

/// The clients of an office below the box that looks them up: what this account changed last comes first. Down goes
/// from the box into the list and Up back, Enter opens the client that is chosen, also before it is found where it is
/// the only one, and what is typed in the list goes to the box. Who works in which is looked at again every few
/// seconds.
class ClientListDialog final : public PassingDialog {
 public:
  ClientListDialog(const Entrance& entrance, QWidget* above);

  /// What was chosen; 0 for none.
  [[nodiscard]] int Chosen() const { return chosen_; }
  /// A person wants another office.
  [[nodiscard]] bool WantsOtherOffice() const { return other_; }

  void accept() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Fill(const QString& typed, const std::vector<dossier::ClientLine>& lines);
  void Tell(const QString& text);
  [[nodiscard]] int Current() const;

  ClientSearch search_;
  QLineEdit* box_;
  QTreeWidget* list_;
  QLabel* tells_;
  QPushButton* open_;
  QTimer again_;
  QString shown_;       ///< what the list answers to
  bool enter_ = false;  ///< Enter was pressed before the office had answered
  int chosen_ = 0;
  bool other_ = false;
};

}  // namespace brivane::app
