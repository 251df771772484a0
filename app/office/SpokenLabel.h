#pragma once

#include <QLabel>

namespace brivane::app {

/// A plain text that a screen reader says when it comes up, wherever the focus is, and again when it becomes another.
class SpokenLabel final : public QLabel {
 public:
  explicit SpokenLabel(const QString& text = {});

  void Say(const QString& text);
};

}  // namespace brivane::app
