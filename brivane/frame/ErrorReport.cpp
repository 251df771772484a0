#include <new>
#include <string>

#include <brivane/frame/ErrorReport.h>
#include <brivane/frame/Tracing.h>

namespace brivane::frame {

namespace {

host::Error Described() {
  try {
    throw;
  } catch (const host::Error& error) {
    return error;
  } catch (const std::exception& other) {
    return host::Error(static_cast<std::int32_t>(host::ErrorNumber::Foreign), other.what(), "BrivaneVrijeKolom");
  } catch (...) {
    return host::Error(host::ErrorNumber::Foreign);
  }
}

}  // namespace

host::Error CurrentError() {
  try {
    return Described();
  } catch (const std::bad_alloc&) {
    // There is no memory for the texts. These are short enough to need none.
    return host::Error(static_cast<std::int32_t>(host::ErrorNumber::Foreign), "std::bad_alloc", {});
  }
}

host::ProcedureTrace& Tracing::Trace() {
  if (!trace_) trace_ = factories_.MaakProcedureTrace(identity_.name);
  return host::Need(trace_);
}

void Tracing::Report(const host::Error& error) {
  reporter_.desktop->ProcedureFailed.Raise();
  reporter_.desktop->ResetMousePointer();
  host::ProcedureTrace& record = Trace();
  // A host may take the report as a reason to unbind the control.
  const std::shared_ptr<host::ProcedureTrace> held = trace_;
  record.SetApplicationTitle(reporter_.desktop->ApplicationTitle());
  record.SetObjectName(std::string(identity_.name));
  record.SetCaption(std::string(kReportCaption));
  record.SetObjectDescription(std::string(identity_.description));
  record.SetMessage(std::string(kReportMessage));
  record.SetErrorNumber(std::to_string(error.Number()));
  record.SetErrorDescription(error.Description());
  record.SetErrorSource(error.Source());
  // Before the first binding there is nobody to report to; the trace lines stand.
  if (const std::shared_ptr<host::Application> application = reporter_.application()) application->ReportError(record);
}

}  // namespace brivane::frame
