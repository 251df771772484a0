#include "toolkits/qt/BoxPeer.h"

#include "toolkits/qt/DateBox.h"

namespace brivane::qt {

using frame::Format;
using headless::Aspect;

namespace {

EntryBox* MakeBox(Format format, QWidget* parent) {
  if (format == Format::Date) return new DateBox(parent);
  auto* const box = new EntryBox(parent);
  if (format == Format::Text) return box;
  box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  box->setInputMethodHints(Qt::ImhFormattedNumbersOnly);
  if (format != Format::WholeNumber) box->SetKeypadPoint(EntryBox::KeypadPoint::Comma);
  return box;
}

void Write(headless::TextBox& box, const headless::BoxValue& content) {
  if (const auto* text = std::get_if<std::string>(&content))
    box.SetText(*text);
  else if (const auto* number = std::get_if<double>(&content))
    box.SetNumber(*number);
  else if (const auto* date = std::get_if<host::Date>(&content))
    box.SetDate(*date);
  else
    box.SetText({});
}

}  // namespace

BoxPeer::BoxPeer(headless::TextBox& box, qt::Toolkit& toolkit, QWidget* container)
    : WidgetPeer(box, toolkit, MakeBox(box.Format(), container)), box_(box) {
  EntryBox& entry = Entry();
  entry.SetCommitter([this](const QString& typed) { return Commit(typed); });
  entry.SetOnEdit([this] {
    standing_ = box_.Content();
    box_.MarkEdited();
  });
  entry.SetOnRestore([this] { PutBack(); });
  Refresh(Aspect::Value);
  Refresh(Aspect::Locked);
}

void BoxPeer::Refresh(Aspect aspect) {
  if (Widget() == nullptr) return;
  switch (aspect) {
    case Aspect::Value:
      if (!Showing()) ShowContent();
      break;
    case Aspect::Locked: Entry().setReadOnly(box_.Locked()); break;
    default: WidgetPeer::Refresh(aspect);
  }
}

void BoxPeer::ShowContent() {
  Entry().ShowText(ShownContent(box_.Content(), box_.Format()));
}

EntryBox::Verdict BoxPeer::Commit(const QString& typed) {
  TypedContent content = ReadContent(typed, box_.Format());
  if (!content.refusal.isEmpty()) return {.accepted = false, .reason = content.refusal};
  headless::Outcome outcome = headless::Outcome::Done;
  // What was typed stays as typed until it is accepted.
  Show([&] { Toolkit().Guard([&] { outcome = box_.Perform(headless::Enter{std::move(content.value)}); }); });
  if (outcome == headless::Outcome::Refused) return {.accepted = false};
  if (Widget() != nullptr) ShowContent();
  return {};
}

/// Refused content had reached the control: what stood there goes back into it.
void BoxPeer::PutBack() {
  if (box_.Content() != standing_) Write(box_, standing_);
}

}  // namespace brivane::qt
