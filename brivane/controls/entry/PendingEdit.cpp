#include <utility>

#include <brivane/controls/DrawnToolkit.h>
#include <brivane/controls/FailureWatch.h>
#include <brivane/controls/Surface.h>
#include <brivane/controls/TextBox.h>
#include <brivane/controls/entry/Column.h>
#include <brivane/controls/entry/PendingEdit.h>
#include <brivane/frame/Dates.h>
#include <brivane/frame/Trim.h>

namespace brivane::controls {

using frame::Format;
using frame::Phrase;
using frame::TextId;

namespace {

/// The box that an end date counts from, on its surface or on one around it.
const TextBox* StartOf(const TextBox& box) {
  if (box.Row().countsFrom.empty()) return nullptr;
  for (Surface* surface = box.Owner(); surface != nullptr; surface = surface->Owner())
    if (const auto* const start = dynamic_cast<TextBox*>(surface->Find(box.Row().countsFrom))) return start;
  return nullptr;
}

}  // namespace

PendingEdit::~PendingEdit() { End(); }

void PendingEdit::Tie(TextBox& box, DrawnToolkit& toolkit) {
  End();
  box_ = &box;
  toolkit_ = &toolkit;
  format_ = box.Format();
  reader_ = nullptr;
  ShowContent();
}

void PendingEdit::Tie(frame::Format format, Reader reader, Clock clock) {
  End();
  box_ = nullptr;
  format_ = format;
  reader_ = std::move(reader);
  clock_ = std::move(clock);
}

TypedContent PendingEdit::Read(std::string_view typed) const {
  return reader_ ? reader_(typed) : ReadTyped(typed, format_, Origin());
}

host::Date PendingEdit::Today() const {
  host::Date today;
  if (box_ == nullptr)
    today = clock_ ? clock_() : host::kNoDate;
  else
    toolkit_->Guard([&] { today = toolkit_->Desktop().Today(); });
  return today;
}

DateOrigin PendingEdit::Origin() const {
  if (format_ != Format::Date) return {};
  DateOrigin origin{.today = Today()};
  const TextBox* const start = box_ != nullptr ? StartOf(*box_) : nullptr;
  if (start == nullptr) return origin;
  const auto* const date = std::get_if<host::Date>(&start->Content());
  origin.start = {std::string(start->AccessibleName()), date != nullptr ? *date : host::kNoDate};
  return origin;
}

void PendingEdit::ShowNote() {
  const std::string typed = face_.Text();
  const std::string note = NoteOf(typed, Read(typed), format_).In(face_.Texts());
  if (note.empty()) return HideReason();
  if (note != std::exchange(note_, note)) face_.ShowNote(note);
}

void PendingEdit::ShowReason(const Phrase& reason) {
  note_.clear();
  face_.ShowReason(reason.In(face_.Texts()));
}

void PendingEdit::HideReason() {
  note_.clear();
  face_.HideReason();
}

void PendingEdit::ShowContent() {
  if (box_ != nullptr && !committing_) ShowText(controls::ShowContent(box_->Content(), format_));
}

void PendingEdit::ShowText(const std::string& text) {
  End();
  HideReason();
  refusal_ = {};
  shown_ = text;
  if (face_.Text() == text) return;
  face_.ShowText(text);
  if (face_.HasFocus()) face_.SelectAll();
}

void PendingEdit::End() {
  pending_ = false;
  if (toolkit_ != nullptr) toolkit_->Pending().Remove(*this);
}

void PendingEdit::Typed() {
  refusal_ = {};
  if (!std::exchange(pending_, true) && box_ != nullptr) {
    standing_ = box_->Content();
    box_->MarkEdited();
    toolkit_->Pending().Add(*this);
  }
  ShowNote();
}

void PendingEdit::TypeOver(const std::string& text) {
  face_.ShowText(text);
  Typed();
}

void PendingEdit::Insert(const std::string& text) {
  face_.InsertText(text);
  Typed();
}

bool PendingEdit::TypeDecimalSign() {
  const bool decimals = format_ == Format::Amount || format_ == Format::Number;
  if (!decimals || face_.ReadOnly()) return false;
  Insert(",");
  return true;
}

bool PendingEdit::Step(DateStep step) {
  if (format_ != Format::Date || face_.ReadOnly()) return false;
  const TypedContent standing = Read(face_.Text());
  if (!standing.refusal.empty()) return false;
  const auto* const date = std::get_if<host::Date>(&standing.value);
  const host::Date from = date != nullptr ? *date : Today();
  if (from.IsNone()) return false;
  TypeOver(frame::ShowDate(StepFrom(from, step)));
  face_.SelectAll();
  return true;
}

bool PendingEdit::StepBySign(char sign) {
  if (sign == '+') return Step(DateStep::Day);
  return sign == '-' && !GoesOnWithHyphen(face_.Text()) && Step(DateStep::DayBack);
}

bool PendingEdit::Commit() {
  if (committing_) return true;
  if (toolkit_ != nullptr && toolkit_->Life()->Ended()) return true;  // nobody takes it any more
  if (!pending_) {
    // Who goes on without what was refused, as a pasted column is, has done with it.
    HideReason();
    return true;
  }
  if (!CanBeTaken()) return true;
  const std::string typed = face_.Text();
  TypedContent content = Read(typed);
  if (!content.refusal.empty()) return Refuse(content.refusal);
  if (box_ == nullptr) {
    ShowText(controls::ShowContent(content.value, format_));
    return true;
  }
  // What reads as what stood there is what stood there, decimals that are not shown included.
  if (typed == controls::ShowContent(standing_, format_)) content.value = standing_;
  const auto life = Life();
  const FailureWatch failures(toolkit_->Desktop());
  committing_ = true;
  const Outcome outcome = toolkit_->Hand(*box_, Enter{std::move(content.value)});
  if (life.expired()) return true;
  committing_ = false;
  // Where what was going on was abandoned, nobody is told anything.
  if (!toolkit_->Life()->Ended()) {
    if (outcome == Outcome::Refused) return Refuse(Phrase());
    // The host may have put back what stood there before it told of the failure to the end.
    if (failures.Seen() && pending_) {
      box_->MarkEdited();
      return Refuse(toolkit_->ReasonOfFailure());
    }
  }
  ShowContent();
  return true;
}

bool PendingEdit::CanBeTaken() const { return box_ == nullptr || box_->Reachable(); }

bool PendingEdit::HandOver() {
  const auto life = Life();
  if (CanBeTaken()) {
    if (Commit()) return true;
    if (life.expired() || face_.IsAtHand()) return false;
  }
  return AskToDrop();
}

bool PendingEdit::AskToDrop() {
  if (toolkit_ == nullptr) return false;
  const std::string name(box_->AccessibleName());
  const Phrase left =
      name.empty() ? Phrase(TextId::LeftInSomeBox, {face_.Text()}) : Phrase(TextId::LeftInBox, {name, face_.Text()});
  const frame::Texts& texts = face_.Texts();
  std::string question = left.In(texts);
  if (!refusal_.empty()) question += "\r\n\r\n" + refusal_.In(texts);
  question += "\r\n\r\n" + texts.Of(TextId::DropQuestion);
  const auto life = Life();
  const bool drop = toolkit_->Ask(texts.Of(TextId::NotTaken), question, host::MessageStyle::YesNoQuestion) ==
                    host::MessageAnswer::Yes;
  if (drop && !life.expired()) Restore();
  return drop;
}

void PendingEdit::Shown() {
  if (!pending_) return;
  note_.clear();
  if (refusal_.empty())
    ShowNote();
  else
    ShowReason(refusal_);
}

bool PendingEdit::Refuse(const Phrase& reason) {
  refusal_ = reason;
  if (!face_.IsAtHand()) return false;
  const auto life = Life();
  if (!face_.HasFocus()) face_.TakeFocus();
  // The box that loses the focus may have something to hand over too.
  if (life.expired()) return false;
  face_.SelectAll();
  HideReason();
  if (!reason.empty()) ShowReason(reason);
  return false;
}

bool PendingEdit::CommitAndSelect() {
  const auto life = Life();
  if (!Commit()) return false;
  if (!life.expired()) face_.SelectAll();
  return true;
}

bool PendingEdit::Restore() {
  if (!pending_) return false;
  ShowText(std::string(shown_));
  face_.SelectAll();
  // Refused content had reached the control: what stood there goes back into it.
  if (box_ != nullptr && box_->Content() != standing_) box_->SetContent(standing_);
  return true;
}

void PendingEdit::Paste(std::string_view clipboard) {
  if (face_.ReadOnly()) return;
  const bool row = box_ != nullptr && box_->IsRowElement();
  if (row && IsColumn(clipboard)) return PasteColumn(clipboard);
  const std::string line = OneLine(row ? frame::Trim(clipboard) : clipboard);
  if (!line.empty()) Insert(line);
}

void PendingEdit::PasteColumn(std::string_view text) {
  Restore();
  Column column = ReadColumn(text, *box_);
  if (!column.refusal.empty()) return ShowReason(column.refusal);
  const auto life = Life();
  for (const Column::Entry& entry : column.entries) {
    const Outcome outcome = toolkit_->Hand(*entry.box, Enter{entry.value});
    if (life.expired()) return;
    if (outcome == Outcome::Refused) break;
  }
  face_.SelectAll();
  if (!column.surplus.empty()) ShowReason(column.surplus);
}

}  // namespace brivane::controls
