#include "component/control/OleObject.h"

#include <cstddef>
#include <cwchar>
#include <string_view>

#include "component/control/Boundary.h"
#include "component/control/MiscStatus.h"

namespace brivane::component {

namespace {

HRESULT CopyText(std::wstring_view text, LPOLESTR* out) {
  const std::size_t bytes = (text.size() + 1) * sizeof(wchar_t);
  *out = static_cast<LPOLESTR>(::CoTaskMemAlloc(bytes));
  if (!*out) return E_OUTOFMEMORY;
  std::wmemcpy(*out, text.data(), text.size());
  (*out)[text.size()] = L'\0';
  return S_OK;
}

}  // namespace

STDMETHODIMP OleObject::SetClientSite(IOleClientSite* client) {
  const ComPtr<IUnknown> keep(this);
  return Answer([&] {
    if (!client) TheSubject().Abandon();
    activation_.Deactivate();
    site_.Set(client);
    if (client) properties_.FollowAmbient();
    return S_OK;
  });
}

STDMETHODIMP OleObject::GetClientSite(IOleClientSite** client) { return site_.Client().CopyTo(client); }

STDMETHODIMP OleObject::SetHostNames(LPCOLESTR, LPCOLESTR) { return S_OK; }

STDMETHODIMP OleObject::Close(DWORD save) {
  const ComPtr<IUnknown> keep(this);
  return Answer([&] {
    TheSubject().Abandon();
    if (save != OLECLOSE_NOSAVE && properties_.IsDirty() && site_.Client() &&
        (save != OLECLOSE_PROMPTSAVE || TheSubject().WantsToKeep())) {
      // While somebody was asked, the container may have gone.
      if (const auto client = site_.Client()) client->SaveObject();
    }
    activation_.Deactivate();
    if (const auto advised = advised_) advised->SendOnClose();
    TheSubject().LetGo();
    return S_OK;
  });
}

STDMETHODIMP OleObject::SetMoniker(DWORD, IMoniker*) { return E_NOTIMPL; }

STDMETHODIMP OleObject::GetMoniker(DWORD, DWORD, IMoniker** moniker) {
  if (moniker) *moniker = nullptr;
  return E_NOTIMPL;
}

STDMETHODIMP OleObject::InitFromData(IDataObject*, BOOL, DWORD) { return E_NOTIMPL; }

STDMETHODIMP OleObject::GetClipboardData(DWORD, IDataObject** data) {
  if (data) *data = nullptr;
  return E_NOTIMPL;
}

STDMETHODIMP OleObject::DoVerb(LONG verb, MSG* message, IOleClientSite*, LONG, HWND, LPCRECT) {
  const ComPtr<IUnknown> keep(this);
  return Answer([&] { return Do(verb, message); });
}

HRESULT OleObject::Do(LONG verb, const MSG* message) {
  switch (verb) {
    case OLEIVERB_SHOW:
    case OLEIVERB_INPLACEACTIVATE: return activation_.InPlaceActivate();
    case OLEIVERB_PRIMARY:
    case OLEIVERB_UIACTIVATE: return activation_.UiActivate(message);
    case OLEIVERB_HIDE: activation_.Hide(); return S_OK;
    case OLEIVERB_DISCARDUNDOSTATE: return S_OK;
    default: break;
  }
  if (verb < 0) return E_NOTIMPL;
  // A verb that is not known does what the first one does, and says so.
  const HRESULT done = activation_.UiActivate(message);
  return SUCCEEDED(done) ? OLEOBJ_S_INVALIDVERB : done;
}

STDMETHODIMP OleObject::EnumVerbs(IEnumOLEVERB** verbs) {
  if (!verbs) return E_POINTER;
  *verbs = nullptr;
  return OLE_S_USEREG;
}

STDMETHODIMP OleObject::Update() { return S_OK; }
STDMETHODIMP OleObject::IsUpToDate() { return S_OK; }

STDMETHODIMP OleObject::GetUserClassID(CLSID* id) {
  if (!id) return E_POINTER;
  *id = TheSubject().ClassId();
  return S_OK;
}

STDMETHODIMP OleObject::GetUserType(DWORD, LPOLESTR* type) {
  if (!type) return E_POINTER;
  return CopyText(TheSubject().UserType(), type);
}

STDMETHODIMP OleObject::SetExtent(DWORD aspect, SIZEL* size) {
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (!size) return E_POINTER;
  if (size->cx <= 0 || size->cy < 0) return E_INVALIDARG;
  const ComPtr<IUnknown> keep(this);
  return Answer([&] {
    Subject& subject = TheSubject();
    if (size->cx == HimetricOf(subject.Extent().width)) return S_OK;
    subject.SetWidth(TwipsOfHimetric(size->cx));
    properties_.Touch();
    activation_.SizeChanged();
    view_.Changed();
    return S_OK;
  });
}

STDMETHODIMP OleObject::GetExtent(DWORD aspect, SIZEL* size) { return view_.GetExtent(aspect, -1, nullptr, size); }

STDMETHODIMP OleObject::Advise(IAdviseSink* sink, DWORD* cookie) {
  if (!advised_) {
    if (const HRESULT made = ::CreateOleAdviseHolder(advised_.Put()); FAILED(made)) return made;
  }
  return advised_->Advise(sink, cookie);
}

STDMETHODIMP OleObject::Unadvise(DWORD cookie) { return advised_ ? advised_->Unadvise(cookie) : OLE_E_NOCONNECTION; }

STDMETHODIMP OleObject::EnumAdvise(IEnumSTATDATA** sinks) {
  if (!sinks) return E_POINTER;
  *sinks = nullptr;
  return advised_ ? advised_->EnumAdvise(sinks) : S_OK;
}

STDMETHODIMP OleObject::GetMiscStatus(DWORD aspect, DWORD* status) {
  if (!status) return E_POINTER;
  *status = aspect == DVASPECT_CONTENT ? kMiscStatus : 0;
  return S_OK;
}

STDMETHODIMP OleObject::SetColorScheme(LOGPALETTE*) { return E_NOTIMPL; }

}  // namespace brivane::component
