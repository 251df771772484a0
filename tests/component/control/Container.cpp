#include "tests/component/control/Container.h"

#include <olectl.h>

namespace brivane::component::test {

Container::Container() {
  window_ = ::CreateWindowExW(0, L"STATIC", L"container", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 100, 100, 640, 480,
                              nullptr, nullptr, nullptr, nullptr);
}

Container::~Container() {
  Remove();
  if (::IsWindow(window_)) ::DestroyWindow(window_);
}

void Container::Put(IUnknown& control) {
  object_ = ComPtr<IUnknown>(&control).As<IOleObject>();
  object_->SetClientSite(this);
  As<IPersistStreamInit>()->InitNew();
}

void Container::Remove() {
  if (!object_) return;
  object_->Close(OLECLOSE_NOSAVE);
  if (object_) object_->SetClientSite(nullptr);
  object_.Reset();
}

void Container::Forget() {
  active_.Reset();
  object_.Reset();
}

HRESULT Container::Do(LONG verb, MSG* message) { return object_->DoVerb(verb, message, this, 0, window_, &place); }

bool Container::Key(UINT message, WPARAM key) {
  MSG posted{};
  posted.hwnd = ::GetFocus();
  posted.message = message;
  posted.wParam = key;
  posted.lParam = 1;
  const auto active = active_;
  if (active && active->TranslateAccelerator(&posted) == S_OK) return true;
  if (message == WM_CHAR && posted.hwnd) ::SendMessageW(posted.hwnd, message, key, posted.lParam);
  return false;
}

void Container::Type(const std::wstring& text) {
  for (const wchar_t letter : text) Key(WM_CHAR, static_cast<WPARAM>(letter));
}

void Container::Pump() {
  MSG message{};
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

void Container::Resize(const RECT& at, const RECT& within) {
  place = at;
  As<IOleInPlaceObject>()->SetObjectRects(&at, &within);
}

void Container::Resize(int width, int height) {
  const RECT at{place.left, place.top, place.left + width, place.top + height};
  Resize(at, at);
}

HRESULT Container::Note(const std::string& call) {
  calls.push_back(call);
  if (const auto told = on) told(call);
  return S_OK;
}

STDMETHODIMP Container::QueryInterface(REFIID iid, void** out) {
  *out = nullptr;
  if (iid == IID_IUnknown || iid == IID_IOleClientSite) *out = static_cast<IOleClientSite*>(this);
  if (iid == IID_IOleInPlaceSite || iid == IID_IOleWindow) *out = static_cast<IOleInPlaceSite*>(this);
  if (iid == IID_IOleControlSite) *out = static_cast<IOleControlSite*>(this);
  if (iid == IID_IOleInPlaceFrame) *out = static_cast<IOleInPlaceFrame*>(this);
  if (iid == IID_IAdviseSink) *out = static_cast<IAdviseSink*>(this);
  if (iid == IID_IDispatch) *out = static_cast<IDispatch*>(this);
  if (!*out) return E_NOINTERFACE;
  AddRef();
  return S_OK;
}

STDMETHODIMP Container::GetWindow(HWND* window) {
  *window = window_;
  return S_OK;
}

STDMETHODIMP Container::GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, RECT* at,
                                         RECT* within, OLEINPLACEFRAMEINFO* info) {
  *frame = this;
  AddRef();
  *document = nullptr;
  *at = place;
  *within = clip.value_or(place);
  info->hwndFrame = window_;
  return S_OK;
}

STDMETHODIMP Container::OnPosRectChange(LPCRECT wanted) {
  const std::string size = std::to_string(WidthOf(*wanted)) + "x" + std::to_string(HeightOf(*wanted));
  const HRESULT noted = Note("OnPosRectChange " + size);
  if (takesOwnSizes && object_) Resize(*wanted, *wanted);
  return noted;
}

STDMETHODIMP Container::SetActiveObject(IOleInPlaceActiveObject* active, LPCOLESTR) {
  active_ = ComPtr<IOleInPlaceActiveObject>(active);
  return Note(active ? "SetActiveObject" : "SetActiveObject none");
}

STDMETHODIMP Container::TranslateAccelerator(MSG* message, DWORD held) {
  modifiers.push_back(held);
  const HRESULT noted = Note("key " + std::to_string(message->wParam));
  return takesKeys ? noted : S_FALSE;
}

STDMETHODIMP Container::Invoke(DISPID property, REFIID, LCID, WORD, DISPPARAMS*, VARIANT* result, EXCEPINFO*, UINT*) {
  if (property == DISPID_AMBIENT_BACKCOLOR && backColor) {
    result->vt = VT_I4;
    result->lVal = static_cast<LONG>(*backColor);
    return S_OK;
  }
  if (property == DISPID_AMBIENT_USERMODE && userMode) {
    result->vt = VT_BOOL;
    result->boolVal = *userMode ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
  }
  if (property == DISPID_AMBIENT_FONT && fontPoints) {
    wchar_t name[] = L"Arial";
    FONTDESC description{};
    description.cbSizeofstruct = sizeof description;
    description.lpstrName = name;
    description.cySize.int64 = static_cast<LONGLONG>(*fontPoints * 10000);
    description.sWeight = FW_NORMAL;
    result->vt = fontAs;
    const IID& asked = fontAs == VT_DISPATCH ? IID_IDispatch : IID_IUnknown;
    return ::OleCreateFontIndirect(&description, asked, reinterpret_cast<void**>(&result->punkVal));
  }
  return DISP_E_MEMBERNOTFOUND;
}

std::string PlaceOf(HWND window) {
  RECT rect{};
  ::GetWindowRect(window, &rect);
  POINT corner{rect.left, rect.top};
  ::ScreenToClient(::GetAncestor(window, GA_PARENT), &corner);
  return std::to_string(corner.x) + "," + std::to_string(corner.y) + " " + std::to_string(WidthOf(rect)) + "x" +
         std::to_string(HeightOf(rect));
}

}  // namespace brivane::component::test
