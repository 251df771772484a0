#pragma once

#include <functional>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "dossier/model/Dossier.h"
#include "replay/document/Document.h"
#include <brivane/controls/Action.h>

namespace brivane::app {

/// What the host itself does to the editor.
using HostAct = std::variant<replay::BindStep, replay::ValidationStep, replay::BackColorStep, replay::BeeindigenStep>;

/// Records what an adviser and the host do to one editor as a replay document, which starts from the case as it
/// is now.
///
///     auto surface = toolkit.MakeSurface(vrijekolom::kOntwerp);
///     Recorder recorder(dossier, controls::Surface::Of(*surface), "nl_NL");
///     VrijeKolom editor(*surface, toolkit, factories);
///     recorder.Do(replay::BindStep{0, 1}, [&] { editor.SetApplication(application, 0, 1); });
///     ...
///     const std::string text = replay::WriteDocument(recorder.Document());
///
/// A replay begins with a new editor, so record one from its making. Actions and sizes are seen at the surface;
/// the host passes everything else through Do and Answered. Whatever changes the case between two steps cannot be
/// replayed, and ends the recording before the second of them.
///
/// The surface outlives this object, which is not destroyed during a step.
class Recorder final : public controls::ActionListener {
 public:
  /// `locale` is the locale of the messages, such as "nl_NL".
  Recorder(std::shared_ptr<const dossier::Dossier> dossier, controls::Surface& editor, std::string locale);
  ~Recorder() override;
  Recorder(const Recorder&) = delete;
  Recorder& operator=(const Recorder&) = delete;

  /// Runs `body`, which does `act`, as one step.
  void Do(HostAct act, const std::function<void()>& body);
  /// A message box of the editor was answered.
  void Answered(host::MessageAnswer answer);
  /// Ends the recording, before the step that is running, if any.
  void Stop();
  /// The same because what goes on cannot be replayed, and tells so.
  void Break();

  [[nodiscard]] bool IsRunning() const { return running_; }
  [[nodiscard]] const replay::Document& Document() const { return document_; }

  /// The recording was ended by something that is no step. Called from within a step, at times.
  std::function<void()> broken;

  void Before(controls::AnyControl& control, const controls::Action& action) override;
  void After(controls::AnyControl& control, const controls::Action& action,
             std::optional<controls::Outcome> outcome) override;
  void Sizing(controls::Surface& surface, host::Twips width, host::Twips height) override;

 private:
  using What = decltype(replay::Step::what);

  /// A step that is running, and the surface or form that it acts on.
  struct Running {
    std::vector<replay::Step>* list;
    const controls::Surface* surface;
  };

  /// Whether the next outermost step starts from the case as the last one left it.
  [[nodiscard]] bool FollowsOn() const;
  /// False where a document has no place for the step; the recording has ended then.
  bool Begin(What what, const controls::Surface& surface);
  void End();
  [[nodiscard]] replay::Step& Current() { return stack_.back().list->back(); }
  /// Records a step of the host; false where the recording does not take it.
  bool BeginHostAct(What what);

  std::shared_ptr<const dossier::Dossier> dossier_;
  controls::Surface& editor_;
  replay::Document document_;
  replay::Json state_;  ///< the case as the last outermost step left it
  std::vector<Running> stack_;
  bool running_ = true;
};

}  // namespace brivane::app
