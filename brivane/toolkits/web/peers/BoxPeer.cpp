#include <optional>

#include <brivane/frame/Dates.h>
#include <brivane/toolkits/web/peers/BoxPeer.h>

namespace brivane::web {

using controls::Aspect;
using controls::DateStep;

namespace {

/// The step that Page Up and Page Down make, as in a calendar.
std::optional<DateStep> StepOf(const Key& key) {
  if (key.alt || key.shift) return std::nullopt;
  if (key.name == "PageUp") return key.control ? DateStep::YearBack : DateStep::MonthBack;
  if (key.name == "PageDown") return key.control ? DateStep::Year : DateStep::Month;
  return std::nullopt;
}

}  // namespace

BoxPeer::BoxPeer(controls::TextBox& box, web::Toolkit& toolkit) : NodePeer(box, toolkit), box_(box) {
  edit_.Tie(box, toolkit);
  if (box.Locked()) Refresh(Aspect::Locked);
}

void BoxPeer::Refresh(Aspect aspect) {
  switch (aspect) {
    case Aspect::Value: return edit_.ShowContent();
    case Aspect::Locked: return Page().Show(Node(), aspect, box_.Locked() ? 1 : 0);
    default: return NodePeer::Refresh(aspect);
  }
}

/// As when Tab leads there: what is typed takes the place of what stands there.
void BoxPeer::TakeFocus() {
  NodePeer::TakeFocus();
  SelectAll();
}

void BoxPeer::ShowText(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  NodePeer::ShowText(Aspect::Value, text);
}

void BoxPeer::Say(Shows what, const std::string& text) {
  said_ = what != Shows::Nothing;
  Page().Show(Node(), what, 0, text);
}

void BoxPeer::InsertText(const std::string& text) { text_ = Page().Insert(Node(), text); }

void BoxPeer::OnTyped(const std::string& text) {
  text_ = text;
  edit_.Typed();
}

bool BoxPeer::HandOver() {
  const auto life = edit_.Life();
  return edit_.Commit() && !life.expired();
}

host::Date BoxPeer::Day() const {
  const controls::TypedContent typed = edit_.Read(text_);
  const auto* const date = std::get_if<host::Date>(&typed.value);
  return date != nullptr ? *date : host::kNoDate;
}

void BoxPeer::OnPicked(int days) {
  if (box_.Format() != frame::Format::Date || box_.Locked()) return;
  edit_.TypeOver(frame::ShowDate(host::Date(days)));
  (void)edit_.CommitAndSelect();
}

bool BoxPeer::OnKey(const Key& key) {
  if (key.name == "Escape") return edit_.Restore();
  if (key.name == "Tab") return edit_.IsPending() && !edit_.Commit();
  if (NodePeer::OnKey(key)) return true;
  if (key.name == "Enter") return edit_.IsPending() && (edit_.CommitAndSelect(), true);
  if (key.keypad && (key.name == "." || key.name == ",") && edit_.TypeDecimalSign()) return true;
  if (const std::optional<DateStep> step = StepOf(key)) return edit_.Step(*step);
  const bool sign = key.IsPlain() && (key.name == "+" || key.name == "-");
  return sign && edit_.StepBySign(key.name.front());
}

}  // namespace brivane::web
