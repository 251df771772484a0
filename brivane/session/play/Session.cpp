#include <utility>

#include <brivane/frame/ErrorReport.h>
#include <brivane/session/document/ControlNames.h>
#include <brivane/session/play/Dump.h>
#include <brivane/session/play/Session.h>

namespace brivane::session {

namespace {

/// Keeps a step on the stack of those that run.
template <class Stack, class Entry> class Pushed {
 public:
  Pushed(Stack& stack, Entry entry) : stack_(stack) { stack_.push_back(entry); }
  ~Pushed() { stack_.pop_back(); }
  Pushed(const Pushed&) = delete;
  Pushed& operator=(const Pushed&) = delete;

 private:
  Stack& stack_;
};

}  // namespace

Session::Session(const Document& document, LineSink sink, std::shared_ptr<host::Application> application,
                 host::HostFactories factories, MakeSubject make)
    : document_(document),
      transcript_(std::move(sink), document.log),
      application_(std::move(application)),
      host_(application_, std::move(factories), transcript_),
      make_(std::move(make)) {
  for (const FaultPlan& fault : document.faults)
    Ledger().FailAt(fault.member, fault.op, fault.nth, host::Error(fault.number, fault.description, fault.source));
}

Session::~Session() = default;

void Session::Run() {
  try {
    subject_ = make_(document_, host_, *this);
  } catch (...) {
    const host::Error error = frame::CurrentError();
    transcript_.Failed(error.Number(), error.Description());
    return;
  }
  for (std::size_t i = 0; i < document_.steps.size() && !stopped_; ++i)
    RunStep(document_.steps[i], std::to_string(i + 1), nullptr);
}

void Session::RunStep(const Step& step, std::string number, FormScreen* on) {
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
  if (stepped && !stopped_ && !problem_) stopped_ = stepped(running.number, step) == Onward::Stop;
  // The logic above this step would take a problem for its own failure; below the last one it is thrown.
  if (problem_ && running_.size() == 1) throw *problem_;
}

void Session::RunPending(Running& running) {
  while (running.pending < running.step->pending.size()) {
    if (problem_ || stopped_ || (running.on != nullptr && running.on->IsClosed())) return;
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

void Session::OnPending() {
  transcript_.Pending();
  if (!running_.empty()) RunPending(*running_.back());
}

void Session::OnShown(FormScreen& form) {
  transcript_.Opened(form.BackColor(), form.AantalJaar());
  const Running& opener = *running_.back();
  const std::vector<Step>& steps = opener.step->modal;
  for (std::size_t i = 0; i < steps.size() && !form.IsClosed() && !problem_ && !stopped_; ++i) {
    try {
      RunStep(steps[i], opener.number + '.' + std::to_string(i + 1), &form);
    } catch (const BadInput& problem) {
      problem_ = problem;
      transcript_.Mute();
    }
  }
}

Screen& Session::ScreenOf(const Running& running) {
  return running.on != nullptr ? static_cast<Screen&>(*running.on) : *subject_;
}

ControlState Session::Find(const ActStep& act, const Running& running) {
  const std::optional<ControlState> control = ScreenOf(running).Find(act.control, act.index);
  if (!control)
    throw BadInput(Below(running.step->place, "index"),
                   "the form has no " + Quoted(ElementName(act.control, act.index)));
  return *control;
}

controls::Action Session::Action(const ActStep& act, host::Kind kind, const Running& running) {
  const auto* const text = std::get_if<std::string>(&act.action);
  const auto* const action = std::get_if<controls::Action>(&act.action);
  if (kind != host::Kind::ListBox) return *action;
  const std::vector<std::string> entries = ScreenOf(running).Entries(act.control);
  if (text == nullptr) {
    const int index = std::get<controls::Choose>(*action).index;
    if (static_cast<std::size_t>(index) < entries.size()) return *action;
    throw BadInput(Below(running.step->place, "index"),
                   Quoted(act.control) + " has no entry " + std::to_string(index) + " now");
  }
  for (std::size_t i = 0; i < entries.size(); ++i)
    if (entries[i] == *text) return controls::Choose{static_cast<int>(i)};
  throw BadInput(Below(running.step->place, "entry"), Quoted(act.control) + " has no entry " + Quoted(*text) + " now");
}

void Session::CheckStep(const Running& running) {
  const auto* const act = std::get_if<ActStep>(&running.step->what);
  if (act == nullptr) return;
  const ControlState control = Find(*act, running);
  if (control.reachable) (void)Action(*act, control.kind, running);
}

host::MessageAnswer Session::OnMessage(const std::string& title, const std::string& text, host::MessageStyle style) {
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

void Session::Do(const BindStep& step, const Running&) { subject_->SetApplication(step.Len_Id, step.Vrij_Id); }

void Session::Do(const ValidationStep& step, const Running& running) {
  transcript_.Result(running.step->name, subject_->Validation(step.target, step.Cancel, step.ControleNr));
}

void Session::Do(const BackColorStep& step, const Running&) { subject_->SetBackColor(step.color); }

void Session::Do(const BeeindigenStep& step, const Running&) { subject_->SetBeeindigenZichtbaar(step.visible); }

void Session::Do(const ResizeStep& step, const Running&) { subject_->Size(step.target, step.width, step.height); }

void Session::Do(const ActStep& step, const Running& running) {
  const ControlState control = Find(step, running);
  controls::Outcome outcome = controls::Outcome::Ignored;
  if (control.reachable)
    outcome = ScreenOf(running).Perform(step.control, step.index, Action(step, control.kind, running));
  if (outcome == controls::Outcome::Ignored) {
    transcript_.Ignored(ElementName(step.control, step.index));
  } else if (control.kind == host::Kind::TextBox) {
    transcript_.Result(running.step->name, outcome == controls::Outcome::Refused);
  }
}

void Session::Do(const ScenarioStep& step, const Running&) {
  // The tool looks the column up for itself: behind the host that counts and tells.
  const auto lening = host::Need(application_->Dossier()).Lening(step.Len_Id);
  const auto kolom = host::Need(lening).VrijeKolommen(step.Vrij_Id);
  subject_->ShowScenario(step, host_.StandInFor(host::Need(kolom).Bedrag()));
}

void Session::Do(const CloseStep&, const Running& running) { running.on->Close(); }

void Session::Do(const DumpStep&, const Running& running) {
  Json dump = Json::object();
  dump["controls"] = DumpControls(ScreenOf(running).Dump());
  if (running.on != nullptr) {
    const auto scenario = InnerOf(running.on->Scenario());
    dump["record"] = scenario ? DumpRecord(*scenario) : Json(nullptr);
  } else {
    const auto kolom = InnerOf(subject_->Item());
    dump["record"] = kolom ? DumpRecord(*kolom) : Json(nullptr);
    dump["Filling"] = subject_->Filling();
    dump["Gewijzigd"] = subject_->Gewijzigd();
  }
  transcript_.Dump(dump);
}

}  // namespace brivane::session
