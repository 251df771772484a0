#pragma once

#include <QWidget>

namespace brivane::qt {

/// A frame of the design that draws nothing. A screen reader hears it as a group, by its name, where several controls
/// that take the focus stand in it; else it hears the one control alone.
class PlainFrame final : public QWidget {
 public:
  using QWidget::QWidget;

  [[nodiscard]] bool IsGroup() const;
};

}  // namespace brivane::qt
