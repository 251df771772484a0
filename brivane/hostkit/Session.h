#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <brivane/controls/Action.h>
#include <brivane/frame/Design.h>
#include <brivane/host/model/PeriodeFields.h>
#include <brivane/host/model/VrijeKolomFields.h>
#include <brivane/hostkit/Bench.h>
#include <brivane/hostkit/instrument/InstrumentedHost.h>
#include <brivane/toolkits/memory/Embedded.h>
#include <brivane/vrijekolom/VrijeKolom.h>

namespace brivane::hostkit {

/// The real editor on the toolkit in memory, bound to a column of a bench's host on 21 November 2026: an adviser's
/// session whose end is known beforehand. A failure that the controls report is found, with the member that failed.
class Session final : private HostListener {
 public:
  /// `what` names the session in the report.
  Session(Bench& bench, std::string what);

  /// Binds the editor to a column of the current loan; stops where that does not come off.
  void Bind(std::int16_t Vrij_Id);
  /// Tries to, and tells what became of it.
  controls::BindingResult TryToBind(std::int16_t Vrij_Id);
  /// A person acts on a control; stops where the control cannot be reached or refuses.
  void Do(std::string_view control, const controls::Action& action, int index = frame::kNoIndex);
  /// Picks the entry of a list that shows that text.
  void Choose(std::string_view control, const std::string& text);
  /// What a person does on the year-by-year form when it is shown; each control by name and row.
  void OnForm(std::function<void(controls::Form&)> work);
  /// The complete check; answers Cancel.
  bool Validate();

  /// The fields of column 1 are to be these, but for the header texts.
  void Expect(const host::VrijeKolomValues& wanted);
  void ExpectAmount(double wanted);
  void ExpectPeriods(const std::vector<host::PeriodeValues>& wanted);
  /// What stands in a box of the editor.
  void ExpectBox(std::string_view control, double wanted);
  void ExpectBox(std::string_view control, host::Date wanted);

  [[nodiscard]] VrijeKolom& Editor() { return editor_.Get(); }
  [[nodiscard]] const std::string& What() const { return what_; }
  /// What the host was told of failures so far, while they are expected.
  [[nodiscard]] const std::vector<host::ErrorRecord>& Reports() const { return reports_; }
  void AllowReports() { allowed_ = true; }
  /// How often a question was asked, and what it is answered with.
  [[nodiscard]] int Questions() const { return questions_; }
  void Answer(host::MessageAnswer answer) { answer_ = answer; }
  [[nodiscard]] std::uint32_t Calls(Member member) { return host_.Ledger().Count(member, Op::Call); }
  /// Told of each header text, while the edit is under way.
  std::function<void(const std::string&)> header;

 private:
  void OnReport(const host::ErrorRecord& record) override;
  [[nodiscard]] controls::AnyControl& Control(std::string_view control, int index);
  /// Finds what was reported since the last time.
  void CheckReports();
  [[nodiscard]] Question Ask(std::string member) const;

  Bench& bench_;
  std::string what_;
  std::string step_;  ///< what the person did last
  InstrumentedHost host_;
  Member asked_ = Member::Application_Dossier;   ///< the last member but those of the tracer
  Member failed_ = Member::Application_Dossier;  ///< the last one before an error
  std::vector<host::ErrorRecord> reports_;
  std::size_t found_ = 0;
  bool allowed_ = false;
  int questions_ = 0;
  host::MessageAnswer answer_ = host::MessageAnswer::No;
  memory::Embedded<VrijeKolom> editor_;
  host::Subscription refreshed_;
};

}  // namespace brivane::hostkit
