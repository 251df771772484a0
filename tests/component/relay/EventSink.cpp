#include "tests/component/relay/EventSink.h"

#include <vector>

#include "component/automation/Errors.h"
#include <brivane/host/Error.h>

namespace brivane::relay {

using namespace component;

namespace {

/// The default outgoing interface of an object's class.
ComPtr<ITypeInfo> EventsOf(const ComPtr<IDispatch>& source, const IID& events) {
  const auto provider = source.As<IProvideClassInfo>();
  ComPtr<ITypeInfo> classInfo;
  Check(provider->GetClassInfo(classInfo.Put()));
  ComPtr<ITypeLib> library;
  UINT index = 0;
  Check(classInfo->GetContainingTypeLib(library.Put(), &index));
  ComPtr<ITypeInfo> info;
  Check(library->GetTypeInfoOfGuid(events, info.Put()));
  return info;
}

std::map<DISPID, std::wstring> NamesOf(ITypeInfo& info) {
  TYPEATTR* attributes = nullptr;
  Check(info.GetTypeAttr(&attributes));
  const UINT count = attributes->cFuncs;
  info.ReleaseTypeAttr(attributes);
  std::map<DISPID, std::wstring> names;
  for (UINT i = 0; i < count; ++i) {
    FUNCDESC* function = nullptr;
    Check(info.GetFuncDesc(i, &function));
    const DISPID id = function->memid;
    info.ReleaseFuncDesc(function);
    BSTR name = nullptr;
    UINT given = 0;
    Check(info.GetNames(id, &name, 1, &given));
    names.emplace(id, name);
    SysFreeString(name);
  }
  return names;
}

}  // namespace

EventSink::EventSink(ComPtr<IDispatch> source, ComPtr<IDispatch> listener)
    : source_(std::move(source)), listener_(std::move(listener)) {
  const auto provider = source_.As<IProvideClassInfo2>();
  const auto container = source_.As<IConnectionPointContainer>();
  if (!provider || !container) throw host::Error(host::ErrorNumber::TypeMismatch);
  Check(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events_));
  names_ = NamesOf(*EventsOf(source_, events_).Get());
  Check(container->FindConnectionPoint(events_, point_.Put()));
}

ComPtr<EventSink> EventSink::Connect(ComPtr<IDispatch> source, ComPtr<IDispatch> listener) {
  auto sink = ComPtr<EventSink>::Attach(new EventSink(std::move(source), std::move(listener)));
  Check(sink->point_->Advise(sink.Get(), &sink->cookie_));
  return sink;
}

void EventSink::Disconnect() {
  if (point_) point_->Unadvise(cookie_);
  point_.Reset();
  source_.Reset();
  listener_ = {};
}

STDMETHODIMP EventSink::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  *out = nullptr;
  if (iid != IID_IUnknown && iid != IID_IDispatch && iid != events_) return E_NOINTERFACE;
  *out = static_cast<IDispatch*>(this);
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) EventSink::Release() {
  const ULONG left = --count_;
  if (left == 0) delete this;
  return left;
}

STDMETHODIMP EventSink::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

STDMETHODIMP EventSink::GetTypeInfo(UINT, LCID, ITypeInfo**) { return E_NOTIMPL; }

STDMETHODIMP EventSink::GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) { return E_NOTIMPL; }

STDMETHODIMP EventSink::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) {
  const auto name = names_.find(id);
  if (name == names_.end()) return DISP_E_MEMBERNOTFOUND;
  return Answering<IDispatch>([&] {
    std::vector<Variant> forward;
    for (UINT i = arguments->cArgs; i > 0; --i) forward.push_back(Variant::CopyOf(arguments->rgvarg[i - 1]));
    listener_.Call(name->second, forward);
  });
}

}  // namespace brivane::relay
