#pragma once

#include <string>
#include <string_view>

namespace brivane::host {

/// The host's procedure tracer and error record. A control makes one on first use and keeps it.
/// All strings are written by the component and never read by it.
class ProcedureTrace {
 public:
  virtual ~ProcedureTrace() = default;

  /// First statement of a traced procedure.
  virtual void EnterProcedure(std::string_view procedure) = 0;
  /// Last statement of a traced procedure on its normal path.
  virtual void LeaveProcedure() = 0;
  /// First statement of a traced procedure's error handler.
  virtual void ErrorInProcedure(std::string_view procedure) = 0;

  virtual void SetApplicationTitle(const std::string& tekst) = 0;
  virtual void SetObjectName(const std::string& tekst) = 0;
  virtual void SetCaption(const std::string& tekst) = 0;
  virtual void SetObjectDescription(const std::string& tekst) = 0;
  virtual void SetMessage(const std::string& tekst) = 0;
  /// The error number as decimal text.
  virtual void SetErrorNumber(const std::string& tekst) = 0;
  virtual void SetErrorDescription(const std::string& tekst) = 0;
  virtual void SetErrorSource(const std::string& tekst) = 0;
};

}  // namespace brivane::host
