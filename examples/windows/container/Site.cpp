#include "examples/windows/container/Site.h"

#include <olectl.h>

namespace example {

HRESULT Site::Create(const CLSID& classId) {
  HRESULT hr = ::CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IOleObject,
                                  reinterpret_cast<void**>(control_.Put()));
  if (FAILED(hr)) return hr;
  // The control's miscellaneous status asks for its site before its state.
  control_->SetClientSite(this);
  if (const auto state = control_.As<IPersistStreamInit>()) state->InitNew();
  control_->SetHostNames(L"Example", nullptr);
  return S_OK;
}

HRESULT Site::Place(const RECT& place) {
  place_ = place;
  const auto inPlace = control_.As<IOleInPlaceObject>();
  HWND shown = nullptr;
  if (inPlace && inPlace->GetWindow(&shown) == S_OK) return inPlace->SetObjectRects(&place_, &place_);
  return control_->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, this, 0, window_, &place_);
}

void Site::Enter(const MSG* key) {
  MSG message{};
  if (key) message = *key;
  control_->DoVerb(OLEIVERB_UIACTIVATE, key ? &message : nullptr, this, 0, window_, &place_);
}

void Site::Leave() {
  if (const auto inPlace = control_.As<IOleInPlaceObject>()) inPlace->UIDeactivate();
}

void Site::Close() {
  if (!control_) return;
  const auto control = control_;
  control->Close(OLECLOSE_NOSAVE);
  control->SetClientSite(nullptr);
  active_.Reset();
  control_.Reset();
}

bool Site::TakesKey(MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
  const auto active = active_;
  return active && active->TranslateAccelerator(&message) == S_OK;
}

bool Site::TakesLetter(MSG& message) {
  if (message.message != WM_SYSCHAR || !control_) return false;
  const auto face = control_.As<IOleControl>();
  CONTROLINFO info{};
  info.cb = sizeof info;
  WORD command = 0;
  if (!face || FAILED(face->GetControlInfo(&info)) || !::IsAccelerator(info.hAccel, info.cAccel, &message, &command))
    return false;
  return face->OnMnemonic(&message) == S_OK;
}

STDMETHODIMP Site::QueryInterface(REFIID iid, void** out) {
  *out = nullptr;
  if (iid == IID_IUnknown || iid == IID_IOleClientSite) *out = static_cast<IOleClientSite*>(this);
  if (iid == IID_IOleInPlaceSite || iid == IID_IOleWindow) *out = static_cast<IOleInPlaceSite*>(this);
  if (iid == IID_IOleControlSite) *out = static_cast<IOleControlSite*>(this);
  if (iid == IID_IDispatch) *out = static_cast<IDispatch*>(this);
  if (!*out) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) Site::Release() {
  const ULONG remaining = --count_;
  if (remaining == 0) delete this;
  return remaining;
}

STDMETHODIMP Site::GetContainer(IOleContainer** container) {
  *container = nullptr;
  return E_NOINTERFACE;
}

STDMETHODIMP Site::GetWindow(HWND* window) {
  *window = window_;
  return S_OK;
}

STDMETHODIMP Site::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* place, RECT* clip,
                                    OLEINPLACEFRAMEINFO* info) {
  *frame = this;
  AddRef();
  *document = nullptr;
  *place = place_;
  *clip = place_;
  info->fMDIApp = FALSE;
  info->hwndFrame = ::GetAncestor(window_, GA_ROOT);
  info->haccel = nullptr;
  info->cAccelEntries = 0;
  return S_OK;
}

STDMETHODIMP Site::OnPosRectChange(LPCRECT wanted) {
  place_ = *wanted;
  const auto inPlace = control_.As<IOleInPlaceObject>();
  const RECT placed = place_;
  const HRESULT hr = inPlace->SetObjectRects(&placed, &placed);
  if (resized) resized();
  return hr;
}

STDMETHODIMP Site::SetActiveObject(IOleInPlaceActiveObject* active, LPCOLESTR) {
  active_ = ComPtr<IOleInPlaceActiveObject>(active);
  return S_OK;
}

STDMETHODIMP Site::GetExtendedControl(IDispatch** control) {
  *control = nullptr;
  return E_NOTIMPL;
}

STDMETHODIMP Site::TranslateAccelerator(MSG* message, DWORD) {
  if (message->message != WM_KEYDOWN || message->wParam != VK_TAB) return S_FALSE;
  if (left) left(::GetKeyState(VK_SHIFT) < 0 ? Leaving::Backwards : Leaving::Forwards);
  return S_OK;
}

STDMETHODIMP Site::GetTypeInfoCount(UINT* count) {
  *count = 0;
  return S_OK;
}

STDMETHODIMP Site::Invoke(DISPID property, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) {
  switch (property) {
    case DISPID_AMBIENT_BACKCOLOR:
      result->vt = VT_I4;
      result->lVal = static_cast<LONG>(backColor);
      return S_OK;
    case DISPID_AMBIENT_FONT:
      if (!font) return DISP_E_MEMBERNOTFOUND;
      result->vt = VT_DISPATCH;
      return font.CopyTo(&result->pdispVal);
    case DISPID_AMBIENT_USERMODE:
      result->vt = VT_BOOL;
      result->boolVal = VARIANT_TRUE;
      return S_OK;
    default: return DISP_E_MEMBERNOTFOUND;
  }
}

}  // namespace example
