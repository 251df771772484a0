#pragma once

#include <QMessageBox>
#include <chrono>

#include <brivane/controls/entry/KeysUnderWay.h>

namespace brivane::qt {

/// A message box that is answered on purpose: by a click, by Alt and a letter, or by Tab and the arrow keys with
/// Enter or the space bar. A bare letter answers nothing, and neither do keys that were under way when it came up.
class QuestionBox final : public QMessageBox {
 public:
  /// Keys count after this pause, or at once where it is 0.
  explicit QuestionBox(std::chrono::milliseconds pause, QWidget* parent = nullptr);
  ~QuestionBox() override;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool IsOurs(const QObject& receiver) const;

  std::chrono::milliseconds pause_;
  controls::KeysUnderWay underWay_;
};

}  // namespace brivane::qt
