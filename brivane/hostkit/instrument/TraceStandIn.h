#pragma once

#include <brivane/hostkit/instrument/StandIn.h>

namespace brivane::hostkit {

/// A control's tracer; keeps the error record for the report.
class TraceStandIn : public StandIn<host::ProcedureTrace> {
 public:
  TraceStandIn(SharedPtr shared, std::shared_ptr<host::ProcedureTrace> inner, std::string_view control)
      : StandIn(std::move(shared), std::move(inner)), control_(control) {}

  [[nodiscard]] const host::ErrorRecord& Record() const { return record_; }

  void EnterProcedure(std::string_view procedure) override {
    shared_->ledger.Pass(Member::ProcedureTrace_EnterProcedure, Op::Call);
    inner_->EnterProcedure(procedure);
    shared_->listener.OnTrace(TraceMark::Enter, procedure, control_);
  }
  void LeaveProcedure() override {
    shared_->ledger.Pass(Member::ProcedureTrace_LeaveProcedure, Op::Call);
    inner_->LeaveProcedure();
    shared_->listener.OnTrace(TraceMark::Leave, {}, control_);
  }
  void ErrorInProcedure(std::string_view procedure) override {
    shared_->ledger.Pass(Member::ProcedureTrace_ErrorInProcedure, Op::Call);
    inner_->ErrorInProcedure(procedure);
    shared_->listener.OnTrace(TraceMark::Error, procedure, control_);
  }

  using Trace = host::ProcedureTrace;
  void SetApplicationTitle(const std::string& tekst) override {
    Keep(Member::ProcedureTrace_ApplicationTitle, &Trace::SetApplicationTitle, record_.ApplicationTitle, tekst);
  }
  void SetObjectName(const std::string& tekst) override {
    Keep(Member::ProcedureTrace_ObjectName, &Trace::SetObjectName, record_.ObjectName, tekst);
  }
  void SetCaption(const std::string& tekst) override {
    Keep(Member::ProcedureTrace_Caption, &Trace::SetCaption, record_.Caption, tekst);
  }
  void SetObjectDescription(const std::string& tekst) override {
    Keep(Member::ProcedureTrace_ObjectDescription, &Trace::SetObjectDescription, record_.ObjectDescription, tekst);
  }
  void SetMessage(const std::string& tekst) override {
    Keep(Member::ProcedureTrace_Message, &Trace::SetMessage, record_.Message, tekst);
  }
  void SetErrorNumber(const std::string& tekst) override {
    Keep(Member::ProcedureTrace_ErrorNumber, &Trace::SetErrorNumber, record_.ErrorNumber, tekst);
  }
  void SetErrorDescription(const std::string& tekst) override {
    Keep(Member::ProcedureTrace_ErrorDescription, &Trace::SetErrorDescription, record_.ErrorDescription, tekst);
  }
  void SetErrorSource(const std::string& tekst) override {
    Keep(Member::ProcedureTrace_ErrorSource, &Trace::SetErrorSource, record_.ErrorSource, tekst);
  }

 private:
  using Write = void (Trace::*)(const std::string&);

  void Keep(Member member, Write write, std::string& kept, const std::string& tekst) {
    shared_->ledger.Pass(member, Op::Set);
    ((*inner_).*write)(tekst);
    kept = tekst;
  }

  std::string control_;
  host::ErrorRecord record_;
};

}  // namespace brivane::hostkit
