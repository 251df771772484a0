#pragma once

#include <QGroupBox>
#include <QLabel>
#include <functional>

class QKeyEvent;
class QLineEdit;

/// Alt with a letter goes to what the letter belongs to, or does nothing where that is disabled or hidden.
namespace brivane::qt {

/// A text whose letter leads to its buddy, if a person can go there now.
class LeadingLabel final : public QLabel {
 public:
  using QLabel::QLabel;

 protected:
  bool event(QEvent* event) override;
};

/// A group whose letter leads into it: where to is for its owner to say.
class LeadingGroup final : public QGroupBox {
 public:
  using QGroupBox::QGroupBox;

  std::function<void()> enter;

 protected:
  bool event(QEvent* event) override;
};

/// Whether a key types something, pressed with Alt: what Control and Alt together type is that of AltGr.
[[nodiscard]] bool IsTypedWithAlt(const QKeyEvent& key);

/// Keeps a line edit from typing the letters that are pressed with Alt: Qt hands it those that no mnemonic takes.
void TypesNothingWithAlt(QLineEdit& box);

}  // namespace brivane::qt
