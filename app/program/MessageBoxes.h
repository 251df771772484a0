#pragma once

#include <QObject>
#include <QString>

namespace brivane::app {

/// While it lives, closes each box that the program itself shows, and keeps what the first one said: for a session
/// that nobody watches.
class MessageBoxes final : public QObject {
 public:
  MessageBoxes();
  /// Text and explanation on one line; empty when there was no box.
  [[nodiscard]] const QString& First() const { return first_; }

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  QString first_;
};

}  // namespace brivane::app
