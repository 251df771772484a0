#include "replay/Session.h"

#include <utility>

#include "dossier/model/Application.h"
#include "dossier/model/Tracer.h"
#include "frame/ErrorReport.h"
#include "replay/ControlNames.h"
#include "replay/Dump.h"
#include "toolkits/headless/ListBox.h"
#include "vrijekolom/Ontwerp.h"

namespace brivane::replay {

namespace {

/// The host's check of the loan file, which this host leaves empty.
class NoControle : public host::DossierControle {
 public:
  void Controleer(const std::shared_ptr<host::Application>&, std::int16_t) override {}
};

host::HostFactories Factories() {
  return {[](std::string_view) { return std::make_shared<dossier::Tracer>(); },
          [](std::string_view) { return std::make_shared<NoControle>(); }};
}

/// Keeps a step on the stack of those that run.
template <class Stack, class Entry>
class Pushed {
 public:
  Pushed(Stack& stack, Entry entry) : stack_(stack) { stack_.push_back(entry); }
  ~Pushed() { stack_.pop_back(); }
  Pushed(const Pushed&) = delete;
  Pushed& operator=(const Pushed&) = delete;

 private:
  Stack& stack_;
};

std::shared_ptr<dossier::Omgeving> Surroundings(Headers headers) {
  auto surroundings = std::make_shared<dossier::Omgeving>();
  if (headers == Headers::Computed) surroundings->Kopteksten = std::make_shared<dossier::BerekendeKopteksten>();
  return surroundings;
}

}  // namespace

Session::Session(const Document& document, LineSink sink)
    : document_(document),
      transcript_(std::move(sink), document.log),
      case_(std::make_shared<dossier::Dossier>(document.dossier, Surroundings(document.headers))),
      host_(std::make_shared<dossier::Application>(case_), Factories(), transcript_) {
  for (const FaultPlan& fault : document.faults)
    Ledger().FailAt(fault.member, fault.op, fault.nth, host::Error(fault.number, fault.description, fault.source));
  Equip();
}

Session::~Session() = default;

void Session::Equip() {
  headless::Desktop& desktop = toolkit_.Desktop();
  desktop.today = document_.today;
  desktop.title = document_.title;
  desktop.twipsPerPixelX = document_.twipsPerPixelX;
  desktop.twipsPerPixelY = document_.twipsPerPixelY;
  desktop.groupSeparator = headless::GroupSeparator(document_.locale);
  desktop.answer = [this](const std::string& title, const std::string& text, host::MessageStyle style) {
    return Answer(title, text, style);
  };
  desktop.pending = [this] {
    transcript_.Pending();
    if (!running_.empty()) RunPending(*running_.back());
  };
  toolkit_.focusMoved = [this](headless::AnyControl& control) { transcript_.Focus(control.ElementName()); };
  toolkit_.modal = [this](headless::Form& window) { RunModal(window); };
}

void Session::MakeEditor() {
  surface_ = toolkit_.MakeSurface(vrijekolom::kOntwerp);
  editor_ = std::make_unique<VrijeKolom>(*surface_, toolkit_, host_.Factories());
  editor_->RefreshTopDisplay.Connect([this](const std::string& text) { transcript_.RefreshTopDisplay(text); });
  editor_->HeightChanged.Connect([this] { transcript_.Event("HeightChanged"); });
  editor_->ScenarioGeopend.Connect([this](frmScenario& form) { opening_ = &form; });
  host::Event<>& changed = editor_->Toelichting().Changed;
  changed.Connect([this, handOn = changed.Listener()] {
    transcript_.Event("Toelichting.Changed");
    handOn();
  });
}

void Session::Run() {
  try {
    MakeEditor();
  } catch (...) {
    const host::Error error = frame::CurrentError();
    transcript_.Failed(error.Number(), error.Description());
    return;
  }
  for (std::size_t i = 0; i < document_.steps.size(); ++i) RunStep(document_.steps[i], std::to_string(i + 1), nullptr);
}

void Session::RunStep(const Step& step, std::string number, OpenForm* on) {
  Running running{.step = &step, .number = std::move(number), .on = on};
  const Pushed pushed(running_, &running);
  CheckStep(running);
  transcript_.StepBegins(running.number, step.name);
  try {
    std::visit([&](const auto& what) { Do(what, running); }, step.what);
  } catch (...) {
    const host::Error error = frame::CurrentError();
    transcript_.Failed(error.Number(), error.Description());
  }
  RunPending(running);
  // The logic above this step would take a problem for its own failure; below the last one it is thrown.
  if (problem_ && running_.size() == 1) throw *problem_;
}

void Session::RunPending(Running& running) {
  while (running.pending < running.step->pending.size()) {
    if (problem_ || (running.on != nullptr && running.on->window->IsUnloaded())) return;
    const Step& step = running.step->pending[running.pending++];
    const std::string number = running.number + '.' + std::to_string(running.pending);
    try {
      RunStep(step, number, running.on);
    } catch (const BadInput& problem) {
      problem_ = problem;
      transcript_.Mute();
    }
  }
}

void Session::RunModal(headless::Form& window) {
  OpenForm open{.window = &window, .form = std::exchange(opening_, nullptr)};
  transcript_.Opened(open.form->BackColor(), open.form->AantalJaar());
  host::Event<>& unloaded = window.host::Form::Unloaded;
  unloaded.Connect([this, handOn = unloaded.Listener()] {
    transcript_.Closed();
    if (handOn) handOn();
  });
  const Running& opener = *running_.back();
  const std::vector<Step>& steps = opener.step->modal;
  for (std::size_t i = 0; i < steps.size() && !window.IsUnloaded() && !problem_; ++i) {
    try {
      RunStep(steps[i], opener.number + '.' + std::to_string(i + 1), &open);
    } catch (const BadInput& problem) {
      problem_ = problem;
      transcript_.Mute();
    }
  }
  window.Perform(headless::Close{});
}

headless::AnyControl& Session::Control(const ActStep& act, const Running& running) {
  headless::Surface& surface = running.on != nullptr ? *running.on->window : EditorSurface();
  headless::AnyControl* const control = surface.Find(act.control, act.index.value_or(frame::kNoIndex));
  if (control == nullptr)
    throw BadInput(Below(running.step->place, "index"),
                   "the form has no " + Quoted(ElementName(act.control, act.index)));
  return *control;
}

headless::Action Session::Action(const ActStep& act, headless::AnyControl& control, const Running& running) {
  const auto* const text = std::get_if<std::string>(&act.action);
  const auto* const action = std::get_if<headless::Action>(&act.action);
  if (control.ControlKind() != host::Kind::ListBox) return *action;
  const auto& entries = static_cast<const headless::ListBox&>(control).Entries();
  if (text == nullptr) {
    const int index = std::get<headless::Choose>(*action).index;
    if (static_cast<std::size_t>(index) < entries.size()) return *action;
    throw BadInput(Below(running.step->place, "index"),
                   Quoted(act.control) + " has no entry " + std::to_string(index) + " now");
  }
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (entries[i].text == *text) return headless::Choose{static_cast<int>(i)};
  throw BadInput(Below(running.step->place, "entry"), Quoted(act.control) + " has no entry " + Quoted(*text) + " now");
}

void Session::CheckStep(const Running& running) {
  const auto* const act = std::get_if<ActStep>(&running.step->what);
  if (act == nullptr) return;
  headless::AnyControl& control = Control(*act, running);
  if (control.Reachable()) (void)Action(*act, control, running);
}

host::MessageAnswer Session::Answer(const std::string& title, const std::string& text, host::MessageStyle style) {
  const bool question = style == host::MessageStyle::YesNoQuestion;
  host::MessageAnswer answer = question ? host::MessageAnswer::No : host::MessageAnswer::Ok;
  if (!running_.empty()) {
    Running& running = *running_.back();
    if (running.answers < running.step->answers.size()) {
      const host::MessageAnswer given = running.step->answers[running.answers++];
      if (question == (given != host::MessageAnswer::Ok)) answer = given;
    }
  }
  transcript_.Message(title, text, style, answer);
  return answer;
}

void Session::Do(const BindStep& step, const Running&) {
  editor_->SetApplication(host_.Application(), step.Len_Id, step.Vrij_Id);
}

void Session::Do(const ValidationStep& step, const Running& running) {
  bool cancel = step.Cancel;
  if (step.target == Target::Editor)
    editor_->Validation(cancel, step.ControleNr);
  else
    editor_->Toelichting().Validation(cancel, step.ControleNr);
  transcript_.Result(running.step->name, cancel);
}

void Session::Do(const BackColorStep& step, const Running&) {
  editor_->SetBackColor(step.color);
}

void Session::Do(const BeeindigenStep& step, const Running&) {
  editor_->SetBeeindigenZichtbaar(step.visible);
}

void Session::Do(const ResizeStep& step, const Running&) {
  headless::Surface* surface = &EditorSurface();
  if (step.target == Target::Toelichting) surface = static_cast<headless::Surface*>(surface->Find("Toelichting"));
  surface->Size({step.width}, {step.height});
}

void Session::Do(const ActStep& step, const Running& running) {
  headless::AnyControl& control = Control(step, running);
  const std::string name = control.ElementName();
  headless::Outcome outcome = headless::Outcome::Ignored;
  if (control.Reachable()) outcome = control.Perform(Action(step, control, running));
  if (outcome == headless::Outcome::Ignored) {
    transcript_.Ignored(name);
  } else if (control.ControlKind() == host::Kind::TextBox) {
    transcript_.Result(running.step->name, outcome == headless::Outcome::Refused);
  }
}

void Session::Do(const ScenarioStep& step, const Running&) {
  const std::shared_ptr<dossier::VrijeKolom> kolom = case_->ZoekKolom(step.Len_Id, step.Vrij_Id);
  frmScenario form(toolkit_);
  const auto bedrag = host_.StandInFor(host::Need(kolom).Bedrag());
  form.SetSoortScenario(step.SoortScenario);
  for (const std::int16_t year : step.DisableJaar) form.SetDisableJaar(year, true);
  form.Invoeren(bedrag, step.AantalJaar, step.Labeltype, step.Anv_Leeftijd, step.LooptijdExtra, step.In_RenteKorting,
                step.Bd_MaxOpname);
  opening_ = &form;
  form.ShowModal(nullptr);
}

void Session::Do(const CloseStep&, const Running& running) {
  running.on->window->Perform(headless::Close{});
}

void Session::Do(const DumpStep&, const Running& running) {
  Json dump = Json::object();
  if (running.on != nullptr) {
    const auto scenario = InnerOf(running.on->form->Scenario());
    dump["controls"] = DumpControls(*running.on->window);
    dump["record"] = scenario ? DumpRecord(*scenario) : Json(nullptr);
  } else {
    const auto kolom = InnerOf(editor_->Item());
    dump["controls"] = DumpControls(EditorSurface());
    dump["record"] = kolom ? DumpRecord(*kolom) : Json(nullptr);
    dump["Filling"] = editor_->Filling();
    dump["Gewijzigd"] = editor_->Gewijzigd();
  }
  transcript_.Dump(dump);
}

}  // namespace brivane::replay
