#pragma once

#include <string>
#include <string_view>

namespace brivane::host {

/// The host's procedure tracer and error record. A control makes one on first use and keeps it. All strings are written
/// by the component and never read by it; they are UTF-8 and lent for the time of the call.
///
/// What holds for all of it: \ref threads, \ref ownership, \ref callbacks, \ref failures.
class ProcedureTrace {
 public:
  virtual ~ProcedureTrace() = default;

  /// First statement of a traced procedure. A tracer that throws here keeps the procedure from running, and its failure
  /// goes to the caller.
  virtual void EnterProcedure(std::string_view procedure) = 0;
  /// Last statement of a traced procedure on its normal path; not after a failure.
  virtual void LeaveProcedure() = 0;
  /// First statement of a traced procedure's error handler: the procedure has failed and ends here.
  virtual void ErrorInProcedure(std::string_view procedure) = 0;

  /// What the error record says, right before Application::ReportError is handed this tracer, in this order; keep it
  /// until then. What each holds is told in ErrorRecord.
  /// @{
  virtual void SetApplicationTitle(const std::string& tekst) = 0;
  virtual void SetObjectName(const std::string& tekst) = 0;
  virtual void SetCaption(const std::string& tekst) = 0;
  virtual void SetObjectDescription(const std::string& tekst) = 0;
  virtual void SetMessage(const std::string& tekst) = 0;
  virtual void SetErrorNumber(const std::string& tekst) = 0;
  virtual void SetErrorDescription(const std::string& tekst) = 0;
  virtual void SetErrorSource(const std::string& tekst) = 0;
  /// @}
};

}  // namespace brivane::host
