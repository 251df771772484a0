#include "component/automation/StandardTrace.h"

#include <string>

#include "component/automation/Dispatching.h"
#include "component/automation/Text.h"
#include "component/idl/Interfaces.h"
#include <brivane/host/model/ErrorRecord.h>

namespace brivane::component {

namespace {

class StandardTrace final : public DualObject<IProcedureTrace> {
 public:
  STDMETHODIMP EnterProcedure(BSTR) override { return S_OK; }
  STDMETHODIMP LeaveProcedure() override { return S_OK; }
  STDMETHODIMP ErrorInProcedure(BSTR) override { return S_OK; }

  STDMETHODIMP get_ApplicationTitle(BSTR* tekst) override { return Hand(record_.ApplicationTitle, tekst); }
  STDMETHODIMP put_ApplicationTitle(BSTR tekst) override { return Keep(record_.ApplicationTitle, tekst); }
  STDMETHODIMP get_ObjectName(BSTR* tekst) override { return Hand(record_.ObjectName, tekst); }
  STDMETHODIMP put_ObjectName(BSTR tekst) override { return Keep(record_.ObjectName, tekst); }
  STDMETHODIMP get_Caption(BSTR* tekst) override { return Hand(record_.Caption, tekst); }
  STDMETHODIMP put_Caption(BSTR tekst) override { return Keep(record_.Caption, tekst); }
  STDMETHODIMP get_ObjectDescription(BSTR* tekst) override { return Hand(record_.ObjectDescription, tekst); }
  STDMETHODIMP put_ObjectDescription(BSTR tekst) override { return Keep(record_.ObjectDescription, tekst); }
  STDMETHODIMP get_Message(BSTR* tekst) override { return Hand(record_.Message, tekst); }
  STDMETHODIMP put_Message(BSTR tekst) override { return Keep(record_.Message, tekst); }
  STDMETHODIMP get_ErrorNumber(BSTR* tekst) override { return Hand(record_.ErrorNumber, tekst); }
  STDMETHODIMP put_ErrorNumber(BSTR tekst) override { return Keep(record_.ErrorNumber, tekst); }
  STDMETHODIMP get_ErrorDescription(BSTR* tekst) override { return Hand(record_.ErrorDescription, tekst); }
  STDMETHODIMP put_ErrorDescription(BSTR tekst) override { return Keep(record_.ErrorDescription, tekst); }
  STDMETHODIMP get_ErrorSource(BSTR* tekst) override { return Hand(record_.ErrorSource, tekst); }
  STDMETHODIMP put_ErrorSource(BSTR tekst) override { return Keep(record_.ErrorSource, tekst); }

 private:
  static HRESULT Hand(const std::string& kept, BSTR* tekst) {
    return Handing<IProcedureTrace>(tekst, [&] { return NewBstr(kept); });
  }
  static HRESULT Keep(std::string& kept, BSTR tekst) {
    return Answering<IProcedureTrace>([&] { kept = FromBstr(tekst); });
  }

  host::ErrorRecord record_;
};

}  // namespace

ComPtr<IDispatch> MakeStandardTrace() { return ComPtr<IDispatch>::Attach(new StandardTrace); }

}  // namespace brivane::component
