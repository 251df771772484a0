#pragma once

#include <functional>
#include <string>

#include <brivane/controls/FormSubject.h>
#include <brivane/controls/ToolkitBase.h>
#include <brivane/controls/entry/PendingEdits.h>
#include <brivane/frame/Phrase.h>
#include <brivane/frame/Texts.h>
#include <brivane/host/Error.h>
#include <brivane/host/Export.h>
#include <brivane/host/controls/Desktop.h>

namespace brivane::controls {

/// A toolkit that shows its controls: what a person does there comes from an event loop, across which no
/// exception may go.
///
/// A toolkit of your own derives from it, makes a Peer for each control (ToolkitBase::MakePeer, MakeFormPeer), hands
/// what a person does to Hand, and what is typed to a PendingEdit. What the controls do then is done here.
///
/// What holds for all of it: \ref threads, \ref ownership, \ref events, \ref failures.
class BRIVANE_API DrawnToolkit : public ToolkitBase {
 public:
  /// Told of a failure, with its number, description and source.
  using FailureListener = std::function<void(const host::Error& failure)>;

  /// Where a failure goes that no procedure handled: it would otherwise cross the event loop. Without a
  /// listener a message box tells it.
  void SetFailureListener(FailureListener listener) { failureListener_ = std::move(listener); }
  /// Runs something that a person sets off, and hands its failure to the listener. Nothing when the life has ended,
  /// and nobody is told of a failure once it has.
  void Guard(const std::function<void()>& body);
  /// A person acts on a control by what shows it: guarded, and known to the form whose row it changes. A failed action
  /// counts as done.
  Outcome Hand(AnyControl& control, const Action& action);

  /// Who tells what a form is about that comes on the screen.
  using SubjectTeller = std::function<FormSubject()>;
  /// Asked when a form comes on the screen. A host::Error of the teller leaves it without words.
  void SetSubjectTeller(SubjectTeller teller) { subjectTeller_ = std::move(teller); }
  /// What the form that comes on the screen is about; nothing where nobody tells.
  [[nodiscard]] FormSubject Subject();

  /// Who tells what is said beside a box whose content the host failed to take; nothing is said for an empty one.
  using ReasonTeller = std::function<frame::Phrase()>;
  /// Asked at each such failure, for a host that does not know whether it was stored.
  void SetReasonTeller(ReasonTeller teller) { reasonTeller_ = std::move(teller); }
  /// What is said there: that it was not stored, where nobody tells.
  [[nodiscard]] frame::Phrase ReasonOfFailure() const;

  /// What is being typed in the boxes of this toolkit.
  [[nodiscard]] PendingEdits& Pending() { return pending_; }
  /// The texts of what it adds to the controls; Dutch where it knows no other.
  [[nodiscard]] virtual const frame::Texts& Texts() const { return frame::Texts::In(frame::Language::Dutch); }
  /// Asks a person something, or tells it; the controls' own message boxes do not come here.
  [[nodiscard]] virtual host::MessageAnswer Ask(const std::string& caption, const std::string& text,
                                                host::MessageStyle style) = 0;

 private:
  FailureListener failureListener_;
  SubjectTeller subjectTeller_;
  ReasonTeller reasonTeller_;
  PendingEdits pending_;
};

}  // namespace brivane::controls
