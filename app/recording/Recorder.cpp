#include "app/recording/Recorder.h"

#include <algorithm>
#include <utility>

#include "controls/Form.h"
#include "controls/ListBox.h"
#include "controls/ToolkitBase.h"

namespace brivane::dossier {
namespace {

/// The editor's surface, or the form, that a control stands on.
const controls::Surface& Vlak(const controls::AnyControl& control) {
  const controls::Surface* vlak = control.Owner();
  if (vlak == nullptr) return dynamic_cast<const controls::Surface&>(control);
  while (vlak->Owner() != nullptr) vlak = vlak->Owner();
  return *vlak;
}

/// The entry that is picked by its text, which says more than its place; nothing where an earlier one has the same.
std::optional<std::string> Keuze(const controls::AnyControl& control, const controls::Action& action) {
  const auto* const keuze = std::get_if<controls::Choose>(&action);
  if (keuze == nullptr || control.ControlKind() != host::Kind::ListBox) return std::nullopt;
  const auto& entries = static_cast<const controls::ListBox&>(control).Entries();
  if (keuze->index < 0 || keuze->index >= static_cast<int>(entries.size())) return std::nullopt;
  const std::string& tekst = entries[static_cast<std::size_t>(keuze->index)].text;
  const auto eerste =
      std::find_if(entries.begin(), entries.end(), [&](const auto& entry) { return entry.text == tekst; });
  if (eerste - entries.begin() != keuze->index) return std::nullopt;
  return tekst;
}

replay::ActStep Actie(const controls::AnyControl& control, const controls::Action& action) {
  replay::ActStep act;
  const std::string naam = control.ElementName();
  act.control = naam.substr(0, naam.find('('));
  if (control.Index() != frame::kNoIndex) act.index = control.Index();
  if (std::optional<std::string> tekst = Keuze(control, action))
    act.action.emplace<std::string>(std::move(*tekst));
  else
    act.action.emplace<controls::Action>(action);
  return act;
}

}  // namespace

Opnemer::Opnemer(std::shared_ptr<const Dossier> dossier, controls::Surface& editor, std::string taal)
    : dossier_(std::move(dossier)), editor_(editor) {
  const host::Desktop& machine = editor_.MadeBy().Desktop();
  document_.today = machine.Today();
  document_.title = machine.ApplicationTitle();
  document_.locale = std::move(taal);
  document_.twipsPerPixelX = machine.TwipsPerPixelX();
  document_.twipsPerPixelY = machine.TwipsPerPixelY();
  document_.headers = replay::Headers::Computed;
  document_.dossier = dossier_->Gegevens();
  stand_ = replay::ToJson(document_.dossier);
  editor_.MadeBy().AddListener(*this);
}

Opnemer::~Opnemer() { editor_.MadeBy().RemoveListener(*this); }

bool Opnemer::SluitAan() const { return replay::ToJson(dossier_->Gegevens()) == stand_; }

void Opnemer::Stop() {
  if (!std::exchange(loopt_, false)) return;
  if (!lopend_.empty()) document_.steps.pop_back();
  lopend_.clear();
}

void Opnemer::Breek() {
  if (!loopt_) return;
  Stop();
  if (gebroken) gebroken();
}

bool Opnemer::Begin(Wat wat, const controls::Surface& vlak) {
  std::vector<replay::Step>* lijst = &document_.steps;
  if (!lopend_.empty()) {
    // On a form that the step has opened, or while the step lets waiting events run.
    const controls::Surface* const buiten = lopend_.back().vlak;
    if (buiten != &vlak && buiten != &editor_) {
      Breek();
      return false;
    }
    lijst = buiten == &vlak ? &Huidige().pending : &Huidige().modal;
  }
  lijst->push_back({.place = {}, .name = {}, .what = std::move(wat), .answers = {}, .pending = {}, .modal = {}});
  lopend_.push_back({lijst, &vlak});
  return true;
}

void Opnemer::Eindig() {
  lopend_.pop_back();
  if (lopend_.empty()) stand_ = replay::ToJson(dossier_->Gegevens());
}

bool Opnemer::BeginHostdaad(Wat wat) {
  if (!loopt_) return false;
  // A document has no place for the host in the middle of a step.
  if (!lopend_.empty() || !SluitAan()) {
    Breek();
    return false;
  }
  return Begin(std::move(wat), editor_);
}

void Opnemer::Doe(Hostdaad daad, const std::function<void()>& uitvoering) {
  Wat wat = std::visit([](const auto& stap) -> Wat { return stap; }, daad);
  const bool opgenomen = BeginHostdaad(std::move(wat));
  const auto eindig = [&] {
    if (opgenomen && loopt_) Eindig();
  };
  try {
    uitvoering();
  } catch (...) {
    eindig();
    throw;
  }
  eindig();
}

void Opnemer::Beantwoord(host::MessageAnswer antwoord) {
  if (loopt_ && !lopend_.empty()) Huidige().answers.push_back(antwoord);
}

void Opnemer::Before(controls::AnyControl& control, const controls::Action& action) {
  if (!loopt_) return;
  if (lopend_.empty() && !SluitAan()) return Breek();
  if (std::holds_alternative<controls::Close>(action))
    Begin(replay::CloseStep{}, Vlak(control));
  else
    Begin(Actie(control, action), Vlak(control));
}

void Opnemer::After(controls::AnyControl&, const controls::Action&, std::optional<controls::Outcome> outcome) {
  if (!loopt_) return;
  // What was ignored did nothing, and need not be something that a document can say.
  if (outcome == controls::Outcome::Ignored) lopend_.back().lijst->pop_back();
  Eindig();
}

void Opnemer::Sizing(controls::Surface& surface, host::Twips width, host::Twips height) {
  if (!loopt_ || &Vlak(surface) != &editor_) return;
  const auto doel = &surface == &editor_ ? replay::Target::Editor : replay::Target::Toelichting;
  // What a size sets off asks nobody anything and lets nothing run: the step is complete at once. The layout writes
  // nothing either.
  if (BeginHostdaad(replay::ResizeStep{doel, width.value, height.value})) Eindig();
}

}  // namespace brivane::dossier
