#include "component/automation/StandardTrace.h"

#include <string>

#include "component/automation/Dispatching.h"
#include "component/automation/Text.h"
#include "component/idl/Interfaces.h"

namespace brivane::component {

namespace {

class StandardTrace final : public DualObject<IProcedureTrace> {
 public:
  STDMETHODIMP EnterProcedure(BSTR) override { return S_OK; }
  STDMETHODIMP LeaveProcedure() override { return S_OK; }
  STDMETHODIMP ErrorInProcedure(BSTR) override { return S_OK; }

  STDMETHODIMP get_ApplicationTitle(BSTR* tekst) override { return Hand(applicationTitle_, tekst); }
  STDMETHODIMP put_ApplicationTitle(BSTR tekst) override { return Keep(applicationTitle_, tekst); }
  STDMETHODIMP get_ObjectName(BSTR* tekst) override { return Hand(objectName_, tekst); }
  STDMETHODIMP put_ObjectName(BSTR tekst) override { return Keep(objectName_, tekst); }
  STDMETHODIMP get_Caption(BSTR* tekst) override { return Hand(caption_, tekst); }
  STDMETHODIMP put_Caption(BSTR tekst) override { return Keep(caption_, tekst); }
  STDMETHODIMP get_ObjectDescription(BSTR* tekst) override { return Hand(objectDescription_, tekst); }
  STDMETHODIMP put_ObjectDescription(BSTR tekst) override { return Keep(objectDescription_, tekst); }
  STDMETHODIMP get_Message(BSTR* tekst) override { return Hand(message_, tekst); }
  STDMETHODIMP put_Message(BSTR tekst) override { return Keep(message_, tekst); }
  STDMETHODIMP get_ErrorNumber(BSTR* tekst) override { return Hand(errorNumber_, tekst); }
  STDMETHODIMP put_ErrorNumber(BSTR tekst) override { return Keep(errorNumber_, tekst); }
  STDMETHODIMP get_ErrorDescription(BSTR* tekst) override { return Hand(errorDescription_, tekst); }
  STDMETHODIMP put_ErrorDescription(BSTR tekst) override { return Keep(errorDescription_, tekst); }
  STDMETHODIMP get_ErrorSource(BSTR* tekst) override { return Hand(errorSource_, tekst); }
  STDMETHODIMP put_ErrorSource(BSTR tekst) override { return Keep(errorSource_, tekst); }

 private:
  static HRESULT Hand(const std::string& kept, BSTR* tekst) {
    return Handing<IProcedureTrace>(tekst, [&] { return NewBstr(kept); });
  }
  static HRESULT Keep(std::string& kept, BSTR tekst) {
    return Answering<IProcedureTrace>([&] { kept = FromBstr(tekst); });
  }

  std::string applicationTitle_;
  std::string objectName_;
  std::string caption_;
  std::string objectDescription_;
  std::string message_;
  std::string errorNumber_;
  std::string errorDescription_;
  std::string errorSource_;
};

}  // namespace

ComPtr<IDispatch> MakeStandardTrace() { return ComPtr<IDispatch>::Attach(new StandardTrace); }

}  // namespace brivane::component
