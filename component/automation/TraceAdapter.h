#pragma once

#include "component/automation/HostSession.h"
#include <brivane/host/model/ProcedureTrace.h>

namespace brivane::component {

/// The tracer of the host, or the library's own.
class TraceAdapter final : public AdapterOf<host::ProcedureTrace> {
 public:
  using AdapterOf::AdapterOf;

  void EnterProcedure(std::string_view procedure) override { Call(L"EnterProcedure", procedure); }
  void LeaveProcedure() override { Target().Call(L"LeaveProcedure"); }
  void ErrorInProcedure(std::string_view procedure) override { Call(L"ErrorInProcedure", procedure); }

  void SetApplicationTitle(const std::string& tekst) override { Put(L"ApplicationTitle", tekst); }
  void SetObjectName(const std::string& tekst) override { Put(L"ObjectName", tekst); }
  void SetCaption(const std::string& tekst) override { Put(L"Caption", tekst); }
  void SetObjectDescription(const std::string& tekst) override { Put(L"ObjectDescription", tekst); }
  void SetMessage(const std::string& tekst) override { Put(L"Message", tekst); }
  void SetErrorNumber(const std::string& tekst) override { Put(L"ErrorNumber", tekst); }
  void SetErrorDescription(const std::string& tekst) override { Put(L"ErrorDescription", tekst); }
  void SetErrorSource(const std::string& tekst) override { Put(L"ErrorSource", tekst); }
};

}  // namespace brivane::component
