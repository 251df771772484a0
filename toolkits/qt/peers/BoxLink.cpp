#include "toolkits/qt/peers/BoxLink.h"

#include <QPointer>

namespace brivane::qt {

using frame::Format;

BoxLink::BoxLink(EntryBox& entry, Toolkit& toolkit) : entry_(entry), toolkit_(toolkit) {
  entry_.SetCommitter([this](const QString& typed) { return Commit(typed); });
  entry_.SetOnEdit([this] {
    standing_ = box_->Content();
    box_->MarkEdited();
  });
  entry_.SetOnRestore([this] { PutBack(); });
}

void BoxLink::Tie(controls::TextBox& box) {
  box_ = &box;
  const Format format = box.Format();
  const bool number = format == Format::Amount || format == Format::Number;
  const bool right = number || format == Format::WholeNumber;
  entry_.setAlignment((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  entry_.SetKeypadPoint(number ? EntryBox::KeypadPoint::Comma : EntryBox::KeypadPoint::AsTyped);
  if (right) entry_.setInputMethodHints(Qt::ImhFormattedNumbersOnly);
  entry_.setReadOnly(box.Locked());
  ShowContent();
}

void BoxLink::ShowContent() {
  if (!taking_) entry_.ShowText(ShownContent(box_->Content(), box_->Format()));
}

EntryBox::Verdict BoxLink::Commit(const QString& typed) {
  TypedContent content = ReadContent(typed, box_->Format());
  if (!content.refusal.isEmpty()) return {.accepted = false, .reason = content.refusal};
  // What reads as what stood there is what stood there, decimals that are not shown included.
  if (typed == ShownContent(standing_, box_->Format())) content.value = standing_;
  controls::TextBox& box = *box_;
  const QPointer<EntryBox> alive(&entry_);
  controls::Outcome outcome = controls::Outcome::Done;
  // What was typed stays as typed until it is accepted.
  taking_ = true;
  toolkit_.Guard([&] { outcome = box.Perform(controls::Enter{std::move(content.value)}); });
  if (!alive) return {};
  taking_ = false;
  if (entered && outcome != controls::Outcome::Ignored) entered();
  if (outcome == controls::Outcome::Refused) return {.accepted = false};
  ShowContent();
  return {};
}

/// Refused content had reached the box: what stood there goes back into it.
void BoxLink::PutBack() {
  if (box_->Content() != standing_) box_->SetContent(standing_);
}

}  // namespace brivane::qt
