#pragma once

#include <QMetaObject>
#include <QObject>
#include <QString>
#include <optional>

class QWidget;

namespace brivane::app {

/// The name by which its surface knows a box, or the control around it.
[[nodiscard]] QString NameOfBox(const QWidget* box);

/// What a person typed last in a box of an editor, until it is forgotten: also once the box has handed it over, and
/// shows something else.
class LastTyped final : public QObject {
 public:
  struct Typed {
    QString box;
    QString label;  ///< as a screen reader calls the box
    QString text;
  };

  /// `editor` outlives this object.
  explicit LastTyped(QWidget& editor);

  [[nodiscard]] const std::optional<Typed>& Now() const { return typed_; }
  void Forget() { typed_.reset(); }

 private:
  void Follow(QWidget* focus);

  QWidget& editor_;
  QMetaObject::Connection box_;
  std::optional<Typed> typed_;
};

}  // namespace brivane::app
