#include "tests/faults/Follower.h"

#include <algorithm>
#include <set>

namespace brivane::faults {

namespace {

using hostkit::Member;

/// The text between the quotes that follow `key`.
std::string TextAfter(std::string_view line, std::string_view key) {
  const std::size_t found = line.find(key);
  if (found == std::string_view::npos) return {};
  const std::size_t start = line.find('"', found + key.size()) + 1;
  return std::string(line.substr(start, line.find('"', start) - start));
}

std::string Quoted(const std::string& text) { return '"' + text + '"'; }

std::string ErrorLine(const std::string& procedure, const std::string& control) {
  return R"({"error": )" + Quoted(procedure) + R"(, "in": )" + Quoted(control) + "}";
}

std::string ReportLine(const std::string& title, const std::string& control) {
  const std::string description = control == "VrijeKolom" ? "Vrije kolom" : "Overige post toelichting";
  return R"({"report": {"ApplicationTitle": )" + Quoted(title) + R"(, "ObjectName": )" + Quoted(control) +
         R"(, "Caption": "Kwandero", "ObjectDescription": )" + Quoted(description) +
         R"(, "Message": "Er is een fout opgetreden.", "ErrorNumber": ")" + std::to_string(kNumber) +
         R"(", "ErrorDescription": )" + Quoted(kDescription) + R"(, "ErrorSource": )" + Quoted(kSource) + "}}";
}

std::string BoxLine() {
  return R"({"message": {"title": "Kwandero", "text": "Er is een fout opgetreden.\r\n)" + std::to_string(kNumber) +
         ": " + kDescription + R"(", "style": 48}, "answer": "OK"})";
}

std::string FailedLine() {
  return R"({"failed": {"number": )" + std::to_string(kNumber) + R"(, "description": )" + Quoted(kDescription) + "}}";
}

bool OfScenario(Member member) {
  const std::string_view name = NameOf(member);
  return name.starts_with("Scenario.") || name.starts_with("Periode.");
}
/// What only an error handler touches.
bool OfHandler(Member member) {
  return member == Member::Application_ReportError ||
         (member >= Member::ProcedureTrace_ErrorInProcedure && member <= Member::ProcedureTrace_ErrorSource);
}

}  // namespace

bool Follower::Procedure::HasHandler() const {
  static const std::set<std::string> kWithout{"Fill_Listview", "Show_Keuze", "Fill_Controls"};
  return control != "Toelichting" || !kWithout.contains(name);
}

void Follower::Problem(std::string text) {
  if (problems_.size() < 5)
    problems_.push_back((levels_.empty() ? "" : levels_.back().number + ": ") + std::move(text));
}

std::size_t Follower::Handler() const {
  std::size_t place = running_.size();
  while (place > Base() && !running_[place - 1].HasHandler()) --place;
  return place > Base() ? place : 0;
}

void Follower::EndStep() {
  if (running_.size() != levels_.back().base) Problem("a procedure was neither left nor did it fail");
  running_.resize(std::min(running_.size(), levels_.back().base));
  levels_.pop_back();
}

void Follower::EndInnerSteps() {
  while (levels_.size() > 1 && levels_.back().what == Level::What::Step && running_.size() == levels_.back().base)
    levels_.pop_back();
}

bool Follower::InForm(Member member) const {
  if (!OfScenario(member)) return false;
  if (!levels_.empty() && levels_.back().what == Level::What::Form) return true;
  return running_.size() == Base() || running_.back().name == "cmdScenario_Click";
}

void Follower::Strike(Member member) {
  struck_ = true;
  // What a handler that fails was to say is lost.
  awaitsReport_.clear();
  expected_.clear();
  if (member != Member::ProcedureTrace_EnterProcedure && !OfHandler(member)) EndInnerSteps();
  // The handler that could not begin is over.
  if (member == Member::ProcedureTrace_ErrorInProcedure)
    if (const std::size_t handler = Handler()) running_.resize(handler - 1);
  if (InForm(member)) {
    Expect(BoxLine());
    if (levels_.back().what == Level::What::Form) {
      silent_ = true;
      return;
    }
  }
  if (const std::size_t handler = Handler()) {
    const Procedure& procedure = running_[handler - 1];
    Expect(ErrorLine(procedure.name, procedure.control));
    if (bound_[procedure.control]) Expect(ReportLine(title_, procedure.control));
    silent_ = handler - 1 == Base();
  } else {
    Expect(FailedLine());
    silent_ = true;
  }
}

void Follower::Take(std::string_view line) {
  const std::size_t end = line.find('"', 2);
  const std::string_view kind = line.substr(2, end - 2);
  if (!expected_.empty()) {
    if (line != expected_.front()) Problem("expected " + expected_.front() + ", found " + std::string(line));
    expected_.pop_front();
  } else if (!awaitsReport_.empty() && kind != "report") {
    Problem("no report after the failure: " + std::string(line));
    awaitsReport_.clear();
  }
  if (kind == "step") {
    Begin(line);
  } else if (kind == "enter") {
    const std::string control = TextAfter(line, "\"in\":");
    running_.push_back({TextAfter(line, "\"enter\":"), control});
    ++entered_[control + '.' + running_.back().name];
    if (running_.back().name == "SetApplication") bound_[control] = true;
  } else if (kind == "leave") {
    Leave(TextAfter(line, "\"in\":"));
  } else if (kind == "error") {
    Error(TextAfter(line, "\"error\":"), TextAfter(line, "\"in\":"));
  } else if (kind == "report") {
    if (TextAfter(line, "\"ObjectName\":") != awaitsReport_) Problem("a report too many: " + std::string(line));
    awaitsReport_.clear();
  } else if (kind == "failed") {
    Failed();
  } else if (kind == "set" || kind == "call") {
    Wrote(TextAfter(line, kind == "set" ? "\"set\":" : "\"call\":"));
  } else if (kind == "opened") {
    levels_.push_back({Level::What::Form, running_.size(), levels_.back().number});
  } else if (kind == "closed") {
    Closed();
  }
}

void Follower::Begin(std::string_view line) {
  std::string number(line.substr(9, line.find(',') - 9));
  std::erase(number, '"');
  const auto depth = static_cast<std::ptrdiff_t>(1 + std::count(number.begin(), number.end(), '.'));
  const auto steps = [this] {
    return std::count_if(levels_.begin(), levels_.end(),
                         [](const Level& level) { return level.what == Level::What::Step; });
  };
  while (steps() >= depth) EndStep();
  levels_.push_back({Level::What::Step, running_.size(), std::move(number)});
  silent_ = false;
}

void Follower::Leave(const std::string& control) {
  EndInnerSteps();
  if (running_.size() <= Base() || running_.back().control != control) return Problem("left without having entered");
  running_.pop_back();
}

void Follower::Error(const std::string& procedure, const std::string& control) {
  EndInnerSteps();
  const std::size_t handler = Handler();
  if (handler == 0 || running_[handler - 1].name != procedure || running_[handler - 1].control != control)
    return Problem("an error of " + procedure + ", which is not the procedure that handles");
  running_.resize(handler - 1);
  if (bound_[control]) awaitsReport_ = control;
}

void Follower::Failed() {
  while (running_.size() > Base()) {
    if (running_.back().HasHandler()) Problem("a failure passed the handler of " + running_.back().name);
    running_.pop_back();
  }
}

void Follower::Closed() {
  while (!levels_.empty() && levels_.back().what != Level::What::Form) EndStep();
  if (levels_.empty()) return Problem("closed without having been opened");
  levels_.pop_back();
  silent_ = false;
}

void Follower::Wrote(const std::string& member) {
  if (struck_ && silent_) Problem("written after the failure: " + member);
  const bool traced = running_.size() > Base();
  ++writes_[traced ? running_.back().control + '.' + running_.back().name : std::string()][member];
}

void Follower::Finish() {
  if (!expected_.empty()) Problem("expected " + expected_.front() + ", found nothing more");
  if (!awaitsReport_.empty()) Problem("no report after the failure");
  while (!levels_.empty()) {
    if (levels_.back().what == Level::What::Form) Problem("a form was left open");
    EndStep();
  }
}

}  // namespace brivane::faults
