#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "app/recording/Recorder.h"
#include "dossier/model/Application.h"
#include <brivane/hostkit/instrument/InstrumentedHost.h>
#include <brivane/scenario/frmScenario.h>
#include <brivane/session/play/Transcript.h>
#include <brivane/toolkits/memory/Toolkit.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::app {

/// A long session of an adviser on the reference host's sample case, recorded, with everything that happens to the
/// host and every event logged live. On which toolkit, a subclass says.
class RecordedSession {
 public:
  virtual ~RecordedSession() = default;

  /// Works through every control of the editor, its explanation and the year-by-year form.
  void Play();

  /// What was logged live, one line each.
  std::vector<std::string> live;
  /// The controls that took an action: "TxtBd", "optLast(2)", on the form "frmScenario.cmdOK".
  std::set<std::string> operated;
  int actions = 0;

  [[nodiscard]] app::Recorder& Recorder() { return *recorder_; }
  [[nodiscard]] dossier::Dossier& Dossier() { return *dossier_; }

  void Bind(std::int16_t Len_Id, std::int16_t Vrij_Id);
  /// Acts on a control of the editor; answers message boxes in turn.
  controls::Outcome Do(const std::string& name, const controls::Action& action, int index = frame::kNoIndex,
                       std::deque<host::MessageAnswer> answers = {});

 protected:
  RecordedSession();

  /// Begins the recording. Before the editor is made.
  void Record(controls::Surface& surface);
  /// Ends the recorder, which must go before the surface that it follows.
  void LetGo() { recorder_.reset(); }
  /// Follows the events of the editor.
  void Follow(brivane::VrijeKolom& editor);
  [[nodiscard]] host::MessageAnswer Answer(const std::string& title, const std::string& text, host::MessageStyle style);

  /// Does something while the next step lets waiting events run.
  virtual void LetWait(std::function<void()> act) = 0;
  /// Does something while the next form is open.
  virtual void OnForm(std::function<void(controls::Surface&)> work) = 0;
  /// Binds the editor.
  virtual void SetApplication(std::int16_t Len_Id, std::int16_t Vrij_Id);

  std::shared_ptr<dossier::Dossier> dossier_;
  replay::Transcript transcript_;
  replay::InstrumentedHost host_;
  brivane::VrijeKolom* editor_ = nullptr;
  host::Subscriptions subscriptions_;

 private:
  controls::Outcome Do(controls::Surface& surface, const std::string& name, const controls::Action& action, int index);
  bool Leave(std::deque<host::MessageAnswer> answers = {});

  void Choices();
  void Looptijd();
  void Product();
  void Toelichting();
  void ScenarioForm();

  controls::Surface* surface_ = nullptr;
  std::unique_ptr<app::Recorder> recorder_;
  std::deque<host::MessageAnswer> answers_;
  host::Subscription closed_;  ///< to the form that was opened last
};

/// Replays a document and answers its lines, without those that mark the steps.
[[nodiscard]] std::vector<std::string> Lines(const replay::Document& document);

}  // namespace brivane::app
