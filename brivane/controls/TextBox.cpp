#include <utility>

#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/ToolkitBase.h>
#include <brivane/host/Error.h>

namespace brivane::controls {

namespace {

/// The content as the asked type; an empty box reads as that type's empty value.
template <class T> T As(const BoxValue& content) {
  if (const T* value = std::get_if<T>(&content)) return *value;
  if (std::holds_alternative<std::monostate>(content)) return T{};
  throw host::Error(host::ErrorNumber::TypeMismatch);
}

/// "" empties any box; 0 and no date empty a date box.
bool Empties(const BoxValue& value, frame::Format format) {
  if (const auto* text = std::get_if<std::string>(&value)) return text->empty();
  if (format != frame::Format::Date) return false;
  if (const auto* number = std::get_if<double>(&value)) return *number == 0;
  if (const auto* date = std::get_if<host::Date>(&value)) return date->IsNone();
  return false;
}

}  // namespace

std::string TextBox::Text() const { return As<std::string>(content_); }
double TextBox::Number() const { return As<double>(content_); }
host::Date TextBox::DateValue() const { return As<host::Date>(content_); }

void TextBox::SetContent(BoxValue value) {
  if (Empties(value, Format())) value = std::monostate{};
  if (value == content_ && !edited_) return;
  content_ = std::move(value);
  edited_ = false;
  Notify(Aspect::Value);
}

void TextBox::SetText(const std::string& text) {
  // Filling the same text again is common and costs no copy.
  if (const auto* present = std::get_if<std::string>(&content_); present != nullptr && *present == text && !edited_)
    return;
  SetContent(text);
}

void TextBox::SetNumber(double number) { SetContent(number); }
void TextBox::SetDate(host::Date date) { SetContent(date); }

void TextBox::SetFocus() {
  if (GetPeer() != nullptr) GetPeer()->TakeFocus();
  if (const auto& moved = Owner()->MadeBy().focusMoved) moved(*this);
}

Outcome TextBox::Act(const Action& action) {
  const auto* enter = std::get_if<Enter>(&action);
  if (enter == nullptr || locked_) return Outcome::Ignored;
  SetContent(enter->value);
  bool cancel = false;
  Validation.Raise(cancel);
  return cancel ? Outcome::Refused : Outcome::Done;
}

void TextBox::CopyFrom(const AnyControl& original) {
  ControlOf::CopyFrom(original);
  const auto& box = static_cast<const TextBox&>(original);
  content_ = box.content_;
  locked_ = box.locked_;
}

}  // namespace brivane::controls
