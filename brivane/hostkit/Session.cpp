#include <brivane/controls/Form.h>
#include <brivane/frame/Calendar.h>
#include <brivane/host/controls/ListBox.h>
#include <brivane/host/controls/TextBox.h>
#include <brivane/hostkit/Session.h>
#include <brivane/hostkit/instrument/Members.h>
#include <brivane/vrijekolom/Ontwerp.h>

namespace brivane::hostkit {

namespace {

constexpr const char* kKnownEnd =
    "at the end of this session the record holds what was typed, by the rules of the editor";
constexpr const char* kAdjusted = "a record may adjust what it is given: the editor goes on with what it reads back";

/// No session asks a host so often; a walk that finds no end does.
constexpr std::uint64_t kEndless = 20000;

}  // namespace

Session::Session(Bench& bench, std::string what)
    : bench_(bench),
      what_(std::move(what)),
      host_(bench.Host().application, bench.Host().factories, *this),
      editor_(vrijekolom::kOntwerp, host_.Factories(), [this](memory::Toolkit& toolkit) {
        toolkit.Desktop().today = frame::MakeDate({2026, 11, 21});
        toolkit.Desktop().answer = [this](const std::string&, const std::string& text, host::MessageStyle style) {
          if (style != host::MessageStyle::YesNoQuestion) {
            bench_.Find(Ask("the editor"), "a message box: " + Show(text), "none");
            return host::MessageAnswer::Ok;
          }
          ++questions_;
          return answer_;
        };
      }) {
  host_.Ledger().FailAtPosition(
      kEndless,
      host::Error(0, "the editor asks on and on: a removal leaves in place what it was to remove", "the kit"));
  host_.Ledger().OnAccess = [this](Member member, Op) {
    if (member == Member::ProcedureTrace_ErrorInProcedure) failed_ = asked_;
    if (NameOf(member).substr(0, 15) != "ProcedureTrace.") asked_ = member;
  };
  refreshed_ = editor_.Get().RefreshTopDisplay.Connect([this](const std::string& text) {
    if (header) header(text);
  });
}

void Session::OnReport(const host::ErrorRecord& record) { reports_.push_back(record); }

Question Session::Ask(std::string member) const {
  return {std::move(member), what_ + (step_.empty() ? "" : ": " + step_), kKnownEnd, kAdjusted};
}

void Session::CheckReports() {
  if (allowed_) return;
  for (; found_ < reports_.size(); ++found_) {
    Question question = Ask(std::string(NameOf(failed_)));
    question.contract = "the host answers what the editor asks: nothing is reported to its ReportError";
    question.hint = "this member was asked last before the error";
    bench_.Find(question, "reported: " + reports_[found_].ErrorNumber + ", " + Show(reports_[found_].ErrorDescription),
                "no report");
  }
}

controls::BindingResult Session::TryToBind(std::int16_t Vrij_Id) {
  step_ = "bound to column " + Show(Vrij_Id);
  controls::BindingResult result = controls::BindingResult::Failed;
  bench_.Done(Ask("SetApplication"), [&] { result = editor_.SetApplication(host_.Application(), 0, Vrij_Id); });
  CheckReports();
  return result;
}

void Session::Bind(std::int16_t Vrij_Id) {
  if (TryToBind(Vrij_Id) == controls::BindingResult::Bound) return;
  if (found_ == 0) bench_.Find(Ask("SetApplication"), "the editor is not bound", "it is");
  throw Stop{};
}

controls::AnyControl& Session::Control(std::string_view control, int index) {
  controls::AnyControl* const found = editor_.Surface().Find(control, index);
  return host::Need(found);
}

void Session::Do(std::string_view control, const controls::Action& action, int index) {
  controls::AnyControl& acted = Control(control, index);
  step_ = "acted on " + acted.ElementName();
  controls::Outcome outcome = controls::Outcome::Done;
  bench_.Done(Ask("the editor"), [&] { outcome = acted.Perform(action); });
  CheckReports();
  if (outcome == controls::Outcome::Done) return;
  bench_.Find(Ask("the editor"), outcome == controls::Outcome::Refused ? "it refuses" : "it cannot be reached",
              "it is done");
  throw Stop{};
}

void Session::Choose(std::string_view control, const std::string& text) {
  const auto& list = static_cast<const host::ListBox&>(Control(control, frame::kNoIndex).Host());
  for (int i = 0; i < list.ListCount(); ++i)
    if (list.List(i) == text) return Do(control, controls::Choose{i});
  step_ = "looked for " + Show(text) + " in " + std::string(control);
  bench_.Find(Ask("Application.VulCombo"), "no such entry", "an entry");
  throw Stop{};
}

void Session::OnForm(std::function<void(controls::Form&)> work) { editor_.Toolkit().modal = std::move(work); }

bool Session::Validate() {
  step_ = "asked for the complete check";
  bool cancel = false;
  bench_.Done(Ask("Validation"), [&] { editor_.Validation(cancel); });
  CheckReports();
  return cancel;
}

void Session::Expect(const host::VrijeKolomValues& wanted) {
  host::ForEach(host::kVrijeKolomFields, [&](const auto& field) {
    if (field.name == "Weergave" || field.name == "Kopregel") return;
    bench_.Same(Ask("VrijeKolomItem." + std::string(field.name)), wanted.*field.value,
                [&] { return field.Read(*bench_.Kolom(1)); });
  });
}

void Session::ExpectAmount(double wanted) {
  bench_.Same(Ask("Bedrag.Basisbedrag"), wanted, [&] { return bench_.Bedrag(1)->Basisbedrag(); });
}

void Session::ExpectPeriods(const std::vector<host::PeriodeValues>& wanted) {
  const auto bedrag = bench_.Bedrag(1);
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    const auto position = static_cast<std::int16_t>(i + 1);
    const auto periode = bench_.Object(Ask("Scenario.Periode"), [&] { return bedrag->Periode(position); });
    host::ForEach(host::kPeriodeFields, [&](const auto& field) {
      Question question = Ask("Periode." + std::string(field.name));
      question.written += ", entry " + Show(position);
      bench_.Same(question, wanted[i].*field.value, [&] { return field.Read(*periode); });
    });
  }
  bench_.Nothing(Ask("Scenario.Periode"),
                 [&] { return bedrag->Periode(static_cast<std::int16_t>(wanted.size() + 1)); });
}

void Session::ExpectBox(std::string_view control, double wanted) {
  bench_.Same(Ask("the box " + std::string(control)), wanted,
              [&] { return static_cast<const host::TextBox&>(Control(control, frame::kNoIndex).Host()).Number(); });
}

void Session::ExpectBox(std::string_view control, host::Date wanted) {
  bench_.Same(Ask("the box " + std::string(control)), wanted,
              [&] { return static_cast<const host::TextBox&>(Control(control, frame::kNoIndex).Host()).DateValue(); });
}

}  // namespace brivane::hostkit
