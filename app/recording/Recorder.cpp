#include "app/recording/Recorder.h"

#include <algorithm>
#include <utility>

#include <brivane/controls/Form.h>
#include <brivane/controls/ListBox.h>
#include <brivane/controls/ToolkitBase.h>

namespace brivane::app {
namespace {

/// The editor's surface, or the form, that a control stands on.
const controls::Surface& Root(const controls::AnyControl& control) {
  const controls::Surface* surface = control.Owner();
  if (surface == nullptr) return dynamic_cast<const controls::Surface&>(control);
  while (surface->Owner() != nullptr) surface = surface->Owner();
  return *surface;
}

/// The entry that is picked by its text, which says more than its place; nothing where an earlier one has the same.
std::optional<std::string> ChoiceText(const controls::AnyControl& control, const controls::Action& action) {
  const auto* const choice = std::get_if<controls::Choose>(&action);
  if (choice == nullptr || control.ControlKind() != host::Kind::ListBox) return std::nullopt;
  const auto& entries = static_cast<const controls::ListBox&>(control).Entries();
  if (choice->index < 0 || choice->index >= static_cast<int>(entries.size())) return std::nullopt;
  const std::string& text = entries[static_cast<std::size_t>(choice->index)].text;
  const auto first =
      std::find_if(entries.begin(), entries.end(), [&](const auto& entry) { return entry.text == text; });
  if (first - entries.begin() != choice->index) return std::nullopt;
  return text;
}

replay::ActStep Act(const controls::AnyControl& control, const controls::Action& action) {
  replay::ActStep act;
  const std::string name = control.ElementName();
  act.control = name.substr(0, name.find('('));
  if (control.Index() != frame::kNoIndex) act.index = control.Index();
  if (std::optional<std::string> text = ChoiceText(control, action))
    act.action.emplace<std::string>(std::move(*text));
  else
    act.action.emplace<controls::Action>(action);
  return act;
}

}  // namespace

Recorder::Recorder(std::shared_ptr<const dossier::Dossier> dossier, controls::Surface& editor, std::string locale)
    : dossier_(std::move(dossier)), editor_(editor) {
  const host::Desktop& machine = editor_.MadeBy().Desktop();
  document_.today = machine.Today();
  document_.title = machine.ApplicationTitle();
  document_.locale = std::move(locale);
  document_.twipsPerPixelX = machine.TwipsPerPixelX();
  document_.twipsPerPixelY = machine.TwipsPerPixelY();
  document_.headers = replay::Headers::Computed;
  document_.dossier = dossier_->Gegevens();
  state_ = replay::ToJson(document_.dossier);
  editor_.MadeBy().AddListener(*this);
}

Recorder::~Recorder() { editor_.MadeBy().RemoveListener(*this); }

bool Recorder::FollowsOn() const { return replay::ToJson(dossier_->Gegevens()) == state_; }

void Recorder::Stop() {
  if (!std::exchange(running_, false)) return;
  if (!stack_.empty()) document_.steps.pop_back();
  stack_.clear();
}

void Recorder::Break() {
  if (!running_) return;
  Stop();
  if (broken) broken();
}

bool Recorder::Begin(What what, const controls::Surface& surface) {
  std::vector<replay::Step>* list = &document_.steps;
  if (!stack_.empty()) {
    // On a form that the step has opened, or while the step lets waiting events run.
    const controls::Surface* const outer = stack_.back().surface;
    if (outer != &surface && outer != &editor_) {
      Break();
      return false;
    }
    list = outer == &surface ? &Current().pending : &Current().modal;
  }
  list->push_back({.place = {}, .name = {}, .what = std::move(what), .answers = {}, .pending = {}, .modal = {}});
  stack_.push_back({list, &surface});
  return true;
}

void Recorder::End() {
  stack_.pop_back();
  if (stack_.empty()) state_ = replay::ToJson(dossier_->Gegevens());
}

bool Recorder::BeginHostAct(What what) {
  if (!running_) return false;
  // A document has no place for the host in the middle of a step.
  if (!stack_.empty() || !FollowsOn()) {
    Break();
    return false;
  }
  return Begin(std::move(what), editor_);
}

void Recorder::Do(HostAct act, const std::function<void()>& body) {
  What what = std::visit([](const auto& step) -> What { return step; }, act);
  const bool recorded = BeginHostAct(std::move(what));
  const auto end = [&] {
    if (recorded && running_) End();
  };
  try {
    body();
  } catch (...) {
    end();
    throw;
  }
  end();
}

void Recorder::Answered(host::MessageAnswer answer) {
  if (running_ && !stack_.empty()) Current().answers.push_back(answer);
}

void Recorder::Before(controls::AnyControl& control, const controls::Action& action) {
  if (!running_) return;
  if (stack_.empty() && !FollowsOn()) return Break();
  if (std::holds_alternative<controls::Close>(action))
    Begin(replay::CloseStep{}, Root(control));
  else
    Begin(Act(control, action), Root(control));
}

void Recorder::After(controls::AnyControl&, const controls::Action&, std::optional<controls::Outcome> outcome) {
  if (!running_) return;
  // What was ignored did nothing, and need not be something that a document can say.
  if (outcome == controls::Outcome::Ignored) stack_.back().list->pop_back();
  End();
}

void Recorder::Sizing(controls::Surface& surface, host::Twips width, host::Twips height) {
  if (!running_ || &Root(surface) != &editor_) return;
  const auto target = &surface == &editor_ ? replay::Target::Editor : replay::Target::Toelichting;
  // What a size sets off asks nobody anything and lets nothing run: the step is complete at once. The layout writes
  // nothing either.
  if (BeginHostAct(replay::ResizeStep{target, width.value, height.value})) End();
}

}  // namespace brivane::app
