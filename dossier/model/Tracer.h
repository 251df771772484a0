#pragma once

#include <string>

#include <brivane/host/model/ErrorRecord.h>
#include <brivane/host/model/ProcedureTrace.h>

namespace brivane::dossier {

/// A procedure tracer that keeps the error record and lets entries and exits pass. Derive from it to
/// follow them.
class Tracer : public host::ProcedureTrace {
 public:
  void EnterProcedure(std::string_view procedure) override;
  void LeaveProcedure() override;
  void ErrorInProcedure(std::string_view procedure) override;

  void SetApplicationTitle(const std::string& tekst) override { record_.ApplicationTitle = tekst; }
  void SetObjectName(const std::string& tekst) override { record_.ObjectName = tekst; }
  void SetCaption(const std::string& tekst) override { record_.Caption = tekst; }
  void SetObjectDescription(const std::string& tekst) override { record_.ObjectDescription = tekst; }
  void SetMessage(const std::string& tekst) override { record_.Message = tekst; }
  void SetErrorNumber(const std::string& tekst) override { record_.ErrorNumber = tekst; }
  void SetErrorDescription(const std::string& tekst) override { record_.ErrorDescription = tekst; }
  void SetErrorSource(const std::string& tekst) override { record_.ErrorSource = tekst; }

  [[nodiscard]] const host::ErrorRecord& Record() const { return record_; }

 private:
  host::ErrorRecord record_;
};

}  // namespace brivane::dossier
