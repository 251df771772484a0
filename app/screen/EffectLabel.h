#pragma once

#include <QLabel>

namespace brivane::app {

/// The sentence that says what a column does, below its header text: on as many lines as it needs, and told whole by a
/// tip and a screen reader.
class EffectLabel final : public QLabel {
 public:
  explicit EffectLabel(QWidget* parent = nullptr);
  void Show(const QString& sentence);
};

}  // namespace brivane::app
