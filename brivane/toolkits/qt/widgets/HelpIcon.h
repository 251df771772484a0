#pragma once

#include <QAbstractButton>

namespace brivane::qt {

/// A help icon that shows its text on hover, on focus by keyboard and on a click.
class HelpIcon : public QAbstractButton {
 public:
  explicit HelpIcon(const QString& help, QWidget* parent = nullptr);

  void ShowHelp();
  [[nodiscard]] const QString& Help() const { return help_; }
  [[nodiscard]] QSize sizeHint() const override { return {16, 16}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QString help_;
};

/// Paints the icon, for help icons that are no widgets of their own.
void PaintHelpIcon(QPainter& painter, const QRect& rect, const QPalette& palette, bool focused);

/// Help as a tool tip that wraps over lines.
[[nodiscard]] QString WrappedToolTip(const QString& help);

}  // namespace brivane::qt
