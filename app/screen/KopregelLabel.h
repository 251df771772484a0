#pragma once

#include <QLabel>

namespace brivane::dossier {

/// The header text of a column: one line, cut off with an ellipsis where it does not fit.
class Kopregel final : public QLabel {
 public:
  explicit Kopregel(QWidget* parent = nullptr);
  void Toon(const QString& tekst);
  [[nodiscard]] QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace brivane::dossier
