#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <brivane/hostkit/instrument/InstrumentedHost.h>
#include <brivane/session/document/Document.h>
#include <brivane/session/play/MemorySubject.h>
#include <brivane/session/play/Transcript.h>

namespace brivane::session {

/// Whether a session goes on.
enum class Onward : bool { Stop, GoOn };

/// Told of a step that has run: its number, "1" or "1.2" for an inner one, and what it was.
using StepListener = std::function<Onward(const std::string& number, const Step& step)>;

/// A document's session: the component under replay and a host, whichever it is.
///
///     const Document document = ReadDocument(text, DescribedCase::Refused);
///     Session session(document, [](std::string_view line) { std::cout << line << '\n'; }, application, factories);
///     session.Run();
///
/// The document must outlive the session.
class Session : private Audience {
 public:
  Session(const Document& document, LineSink sink, std::shared_ptr<host::Application> application,
          host::HostFactories factories, MakeSubject make = MakeMemorySubject);
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;
  ~Session() override;

  /// Makes the component and runs the steps, once. Throws BadInput at a step that picks an entry or names a
  /// row that is not there, having passed on no line of it; whatever the logic reports is no failure of Run.
  void Run();

  /// Told after each step, when set.
  StepListener stepped;

  /// The host as the component sees it: each access is counted, and told to the transcript.
  [[nodiscard]] InstrumentedHost& Host() { return host_; }
  /// Counts the accesses of the host; more faults can be planned here before Run.
  [[nodiscard]] AccessLedger& Ledger() { return host_.Ledger(); }
  /// The editor on the toolkit in memory; nothing before Run, and when it could not be made.
  [[nodiscard]] VrijeKolom* Editor() { return subject_ ? subject_->Editor() : nullptr; }

 private:
  /// A step that is running.
  struct Running {
    const Step* step;
    std::string number;
    FormScreen* on;  ///< the form that the step acts on; nothing for the editor
    std::size_t answers = 0;
    std::size_t pending = 0;
  };

  void OnRefreshTopDisplay(const std::string& text) override { transcript_.RefreshTopDisplay(text); }
  void OnHeightChanged() override { transcript_.Event("HeightChanged"); }
  void OnToelichtingChanged() override { transcript_.Event("Toelichting.Changed"); }
  void OnFocus(const std::string& control) override { transcript_.Focus(control); }
  host::MessageAnswer OnMessage(const std::string& title, const std::string& text, host::MessageStyle style) override;
  void OnPending() override;
  void OnShown(FormScreen& form) override;
  void OnClosed() override { transcript_.Closed(); }

  void RunStep(const Step& step, std::string number, FormScreen* on);
  void RunPending(Running& running);

  void Do(const BindStep& step, const Running& running);
  void Do(const ValidationStep& step, const Running& running);
  void Do(const BackColorStep& step, const Running& running);
  void Do(const BeeindigenStep& step, const Running& running);
  void Do(const ResizeStep& step, const Running& running);
  void Do(const ActStep& step, const Running& running);
  void Do(const ScenarioStep& step, const Running& running);
  void Do(const CloseStep& step, const Running& running);
  void Do(const DumpStep& step, const Running& running);

  /// What a step acts on.
  [[nodiscard]] Screen& ScreenOf(const Running& running);
  /// Throws BadInput when the screen has no such control.
  [[nodiscard]] ControlState Find(const ActStep& act, const Running& running);
  /// The action of a step, its entry looked up; throws BadInput when the list has no such entry.
  [[nodiscard]] controls::Action Action(const ActStep& act, host::Kind kind, const Running& running);
  /// Throws BadInput when the step cannot run as it is written.
  void CheckStep(const Running& running);

  const Document& document_;
  Transcript transcript_;
  std::shared_ptr<host::Application> application_;
  InstrumentedHost host_;
  MakeSubject make_;
  std::unique_ptr<Subject> subject_;
  std::vector<Running*> running_;
  /// Found while the logic was running: kept from its error handlers, and thrown when it is done.
  std::optional<BadInput> problem_;
  bool stopped_ = false;
};

}  // namespace brivane::session
