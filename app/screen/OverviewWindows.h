#pragma once

#include <QObject>
#include <QPointer>

#include "app/overview/OverviewWindow.h"
#include "app/overview/VerloopWindow.h"

namespace brivane::app {

class DossierScreen;

/// The windows beside the main one that tell what the open file adds up to. They follow its edits, and go with it.
class OverviewWindows final : public QObject {
 public:
  /// `window` is the main window, which owns them.
  explicit OverviewWindows(QWidget& window);

  /// They are of the file on this screen from now on.
  void Follow(DossierScreen& screen);
  void ShowOverview();
  void ShowVerloop();

  /// The windows once they were shown, or nothing.
  [[nodiscard]] OverviewWindow* Overview() const { return overview_; }
  [[nodiscard]] VerloopWindow* Verloop() const { return verloop_; }

 private:
  template <class Window> void Show(QPointer<Window>& window);
  void Refresh();
  void PutAway();

  QWidget& window_;
  QPointer<DossierScreen> screen_;
  QPointer<OverviewWindow> overview_;
  QPointer<VerloopWindow> verloop_;
};

}  // namespace brivane::app
