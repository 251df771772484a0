#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include <brivane/controls/Action.h>
#include <brivane/controls/entry/Typing.h>
#include <brivane/frame/Design.h>
#include <brivane/frame/Phrase.h>
#include <brivane/host/Export.h>

namespace brivane::controls {

class DrawnToolkit;
class TextBox;

/// A box on the screen, as what is typed in it needs it.
class BRIVANE_API EntryFace {
 public:
  virtual ~EntryFace() = default;

  /// What stands in the box, shown or typed.
  [[nodiscard]] virtual std::string Text() const = 0;
  /// Replaces it; nobody has typed that.
  virtual void ShowText(const std::string& text) = 0;
  /// Puts a text where the cursor stands, in place of what is selected.
  virtual void InsertText(const std::string& text) = 0;
  /// Selects the whole text.
  virtual void SelectAll() = 0;
  /// Whether keys go to the box.
  [[nodiscard]] virtual bool HasFocus() const = 0;
  /// Moves the input focus into the box, and shows where that is.
  virtual void TakeFocus() = 0;
  /// Whether a person cannot type in it: the control is locked.
  [[nodiscard]] virtual bool ReadOnly() const = 0;
  /// Whether a person can get at the box now: it is on the screen, and nothing around it is disabled.
  [[nodiscard]] virtual bool IsAtHand() const = 0;
  /// The texts of what is said beside the box; Dutch where a toolkit knows no other.
  [[nodiscard]] virtual const frame::Texts& Texts() const { return frame::Texts::In(frame::Language::Dutch); }
  /// Says beside the box why a text was refused, in place of an earlier reason.
  virtual void ShowReason(const std::string& reason) = 0;
  /// Says there, less loudly, what the box makes of what is being typed; a toolkit may leave it unsaid.
  virtual void ShowNote(const std::string& /*note*/) {}
  /// Takes away what is said beside the box.
  virtual void HideReason() = 0;
};

/// What a person is typing in a box and has not handed over: it is handed over once, when the box is left or Enter is
/// pressed. Typing that is not of the box's format is refused here and never reaches the control.
///
/// Refused content stays as typed with the focus in the box, and the reason beside it where there is one. Escape puts
/// back what stood there. What the host failed to take is refused too: it was not stored. Where what is typed stands
/// for something that is written otherwise, a note beside the box says what.
///
/// It belongs to the face, and may be gone with it when something that was handed over comes back: a caller that goes
/// on after Commit or Paste keeps Life().
///
///     edit.Tie(box, toolkit);               // shows what the box holds
///     edit.Typed();                         // at every keystroke
///     if (!edit.Commit()) return;           // before the focus goes: refused, it stays
class BRIVANE_API PendingEdit {
 public:
  /// Of no control and no format yet. The face outlives it.
  explicit PendingEdit(EntryFace& face) : face_(face) {}
  PendingEdit(const PendingEdit&) = delete;
  PendingEdit& operator=(const PendingEdit&) = delete;
  ~PendingEdit();

  /// What is typed from now on is of this box, and goes through the toolkit. What was pending is gone.
  void Tie(TextBox& box, DrawnToolkit& toolkit);
  /// Reads what is typed in a box of no control, where its format leaves a choice.
  using Reader = std::function<TypedContent(std::string_view typed)>;
  /// Answers what day it is for a box of no control.
  using Clock = std::function<host::Date()>;
  /// What is typed from now on is of no control: it has a format, and who wants it reads the face.
  void Tie(frame::Format format, Reader reader = nullptr, Clock clock = nullptr);
  /// What a text would be handed over as.
  [[nodiscard]] TypedContent Read(std::string_view typed) const;
  /// The box that is typed in; nothing where it is no control's.
  [[nodiscard]] TextBox* Box() const { return box_; }
  /// What it reads what is typed as.
  [[nodiscard]] frame::Format Format() const { return format_; }
  /// Expires with the edit.
  [[nodiscard]] std::weak_ptr<const char> Life() const { return life_; }

  /// The control holds something else: shows that, and what was being typed is gone. Nothing while the control is
  /// taking an entry, because what was typed stays as typed until it is accepted.
  void ShowContent();
  /// The same of a text.
  void ShowText(const std::string& text);

  /// Something was typed that was not handed over or was refused.
  [[nodiscard]] bool IsPending() const { return pending_; }
  /// The control is taking it now; what happens meanwhile to the focus says nothing about the box.
  [[nodiscard]] bool IsCommitting() const { return committing_; }
  /// A person has changed the text on the face.
  void Typed();
  /// Replaces the text, as if typed.
  void TypeOver(const std::string& text);
  /// The point or comma of the numeric keypad: types the decimal sign where there are decimals. False where the key
  /// types what stands on it.
  bool TypeDecimalSign();
  /// Moves the date in the box by a step, as if typed; an empty box counts from today. False where there is no date to
  /// move, or none that may be changed.
  bool Step(DateStep step);
  /// The keys "+" and "-": a day on or back in a date. False where the key types what stands on it.
  bool StepBySign(char sign);
  /// What day it is; no date where a box of no control was given no clock.
  [[nodiscard]] host::Date Today() const;
  /// Types a text from the clipboard. In a row of a form several lines are a column: they fill the boxes from this one
  /// down, each as if typed, or, where a line is not of the format, nothing.
  void Paste(std::string_view clipboard);
  /// Hands over what is pending; false where it was refused. Where the logic hid or disabled the control meanwhile it
  /// stays pending, and is in nobody's way.
  bool Commit();
  /// The same before the host leaves: false where something stays pending. Where nobody can get at the box to mend it,
  /// a question is asked whether the text may go.
  bool HandOver();
  /// The box is on the screen again: so is the reason why it was refused.
  void Shown();
  /// The same, and selects what stands then.
  bool CommitAndSelect();
  /// Puts back what stood there before; false where nothing is pending.
  bool Restore();

 private:
  [[nodiscard]] bool CanBeTaken() const;
  [[nodiscard]] DateOrigin Origin() const;
  void ShowNote();
  void ShowReason(const frame::Phrase& reason);
  void HideReason();
  bool Refuse(const frame::Phrase& reason);
  bool AskToDrop();
  void Insert(const std::string& text);
  void PasteColumn(std::string_view text);
  void End();

  EntryFace& face_;
  DrawnToolkit* toolkit_ = nullptr;
  TextBox* box_ = nullptr;
  frame::Format format_ = frame::Format::Text;
  Reader reader_;
  Clock clock_;
  std::string shown_;      ///< what stood there before the typing
  BoxValue standing_;      ///< the same as content, of a control
  frame::Phrase refusal_;  ///< why what is pending was refused
  std::string note_;       ///< shown beside the box
  bool pending_ = false;
  bool committing_ = false;
  std::shared_ptr<const char> life_ = std::make_shared<const char>('\0');
};

}  // namespace brivane::controls
