// What is reported to the host: what the controls miss, and what the host itself failed with.

#include <brivane/hostkit/Session.h>
#include <brivane/hostkit/Suite.h>

namespace brivane::hostkit {

namespace {

/// The host shows or logs number and description as they were reported.
void CheckLastReport(Bench& bench, const std::string& written, const std::string& number,
                     const std::string& description) {
  const auto& lastReport = bench.Host().lastReport;
  if (!lastReport) return;
  const std::string contract = "number and description reach the host's ReportError, which shows or logs them";
  std::optional<host::ErrorRecord> record;
  if (!bench.Done({"Application.ReportError", written, contract}, [&] { record = lastReport(); })) return;
  if (!record)
    return bench.Find({"Application.ReportError", written, contract}, "the host shows no report", "a report");
  bench.Same({"ProcedureTrace.ErrorNumber", written, contract, "keep what the tracer is told until the report"}, number,
             [&] { return record->ErrorNumber; });
  bench.Same({"ProcedureTrace.ErrorDescription", written, contract, "keep what the tracer is told until the report"},
             description, [&] { return record->ErrorDescription; });
}

/// A column that is not there: error 91, once.
void CheckMissingColumn(Bench& bench) {
  Session session(bench, "bound to a column that is not there");
  session.AllowReports();
  const controls::BindingResult result = session.TryToBind(kNiemand);
  const Question question{
      "Lening.VrijeKolommen", session.What(),
      "nothing where no column has that identifier: the binding fails, and error 91 is reported once",
      "answer a null pointer; do not throw"};
  bench.Same(question, true, [&] { return result == controls::BindingResult::Failed; });
  bench.Same(question, std::int32_t{1}, [&] { return static_cast<std::int32_t>(session.Reports().size()); });
  if (session.Reports().empty()) return;
  bench.Same(question, std::string("91"), [&] { return session.Reports().front().ErrorNumber; });
  CheckLastReport(bench, session.What(), "91", session.Reports().front().ErrorDescription);
}

/// A write that the host fails reaches its own ReportError unchanged, nothing is written, and the host goes on.
void CheckFailedWrite(Bench& bench) {
  const auto& failNextWrite = bench.Host().failNextWrite;
  if (!failNextWrite)
    return bench.LeaveOut("the host does not say how a write can be made to fail (Host::failNextWrite)");
  Session session(bench, "a description that cannot be stored");
  session.AllowReports();
  session.Bind(1);
  const host::Error error(1004, "Schijf vol – één", "Opslag");
  failNextWrite(error);
  session.Do("TxtOm", controls::Enter{std::string("Krant")});
  const std::string written = session.What() + ": the host failed with " + Show(error);
  const std::string contract = "what the host throws is reported with its number, its description and its source, once";
  const std::string hint =
      "throw brivane::host::Error itself: any other exception is reported as 440, and one that the host "
      "catches is not reported at all";
  bench.Same({"VrijeKolomItem.Omschrijving", written, contract, hint}, std::int32_t{1},
             [&] { return static_cast<std::int32_t>(session.Reports().size()); });
  if (!session.Reports().empty()) {
    const host::ErrorRecord& record = session.Reports().front();
    const Question reported{"VrijeKolomItem.Omschrijving", written, contract, hint};
    bench.Same(reported, std::to_string(error.Number()), [&] { return record.ErrorNumber; });
    bench.Same(reported, error.Description(), [&] { return record.ErrorDescription; });
    bench.Same(reported, error.Source(), [&] { return record.ErrorSource; });
    CheckLastReport(bench, written, "1004", error.Description());
  }
  bench.Same({"VrijeKolomItem.Omschrijving", written, "a write that failed has changed nothing"}, std::string(),
             [&] { return bench.Kolom(1)->Omschrijving(); });
  session.Do("TxtOm", controls::Enter{std::string("Tijdschrift")});
  bench.Same({"VrijeKolomItem.Omschrijving", written + "; wrote again", "one failure is one failure"},
             std::string("Tijdschrift"), [&] { return bench.Kolom(1)->Omschrijving(); });
}

}  // namespace

void AddFailureChecks(std::vector<NamedCheck>& checks) {
  checks.push_back({"a column that is not there", CheckMissingColumn});
  checks.push_back({"a write that fails", CheckFailedWrite});
}

}  // namespace brivane::hostkit
