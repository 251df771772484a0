#pragma once

#include <QLabel>

namespace brivane::app {

/// The header text of a column: one line, cut off with an ellipsis where it does not fit.
class KopregelLabel final : public QLabel {
 public:
  explicit KopregelLabel(QWidget* parent = nullptr);
  void Show(const QString& text);
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace brivane::app
