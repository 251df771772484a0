#include "tests/component/control/Dummy.h"

#include <stdexcept>

#include "component/control/Paint.h"

namespace brivane::component::test {

namespace {

constexpr wchar_t kAreaClass[] = L"BrivaneTestArea";

/// The area in its background colour, which is kept with its window.
LRESULT CALLBACK AreaProcedure(HWND window, UINT message, WPARAM wide, LPARAM lng) {
  if (message == WM_ERASEBKGND) {
    RECT whole{};
    ::GetClientRect(window, &whole);
    const HBRUSH brush = ::CreateSolidBrush(static_cast<COLORREF>(::GetWindowLongPtrW(window, GWLP_USERDATA)));
    ::FillRect(reinterpret_cast<HDC>(wide), &whole, brush);
    ::DeleteObject(brush);
    return 1;
  }
  return ::DefWindowProcW(window, message, wide, lng);
}

void RegisterArea() {
  WNDCLASSEXW kind{};
  kind.cbSize = sizeof kind;
  kind.lpfnWndProc = &AreaProcedure;
  kind.hInstance = ::GetModuleHandleW(nullptr);
  kind.lpszClassName = kAreaClass;
  ::RegisterClassExW(&kind);
}

HWND MakeBox(HWND area, int top) {
  return ::CreateWindowExW(WS_EX_CLIENTEDGE, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, top, 100, 24, area,
                           nullptr, nullptr, nullptr);
}

}  // namespace

std::atomic<int> Dummy::live = 0;

ComPtr<Dummy> Dummy::Make() {
  Dummy* made = new Dummy;
  ComPtr<Dummy> dummy(made);
  made->Release();
  return dummy;
}

Dummy::Dummy() {
  ++live;
  RegisterArea();
  parking_.handle = ::CreateWindowExW(0, kAreaClass, L"", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
  area_.handle = ::CreateWindowExW(WS_EX_CONTROLPARENT, kAreaClass, L"", WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0,
                                   200, 100, parking_.handle, nullptr, nullptr, nullptr);
  first = MakeBox(area_.handle, 10);
  second = MakeBox(area_.handle, 50);
  SetBackColor(color_);
}

STDMETHODIMP Dummy::QueryInterface(REFIID iid, void** out) {
  if (!out) return E_POINTER;
  IUnknown* const found = iid == IID_IUnknown ? this : control_.Find(iid);
  *out = found;
  if (!found) return E_NOINTERFACE;
  found->AddRef();
  return S_OK;
}

STDMETHODIMP_(ULONG) Dummy::Release() {
  const ULONG left = --count_;
  if (left == 0) delete this;
  return left;
}

void Dummy::SetWidth(host::Twips width) {
  if (failure) throw std::runtime_error(failure);
  extent_.width = width;
  Layout();
}

void Dummy::Grow(host::Twips height) {
  extent_.height = height;
  Layout();
}

void Dummy::Layout() {
  ::SetWindowPos(area_.handle, nullptr, 0, 0, PixelsOf(extent_.width, ScreenDpi()),
                 PixelsOf(extent_.height, ScreenDpi()), SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  control_.SizeChanged();
}

void Dummy::SetBackColor(host::Color color) {
  color_ = color;
  ::SetWindowLongPtrW(area_.handle, GWLP_USERDATA, static_cast<LONG_PTR>(ScreenColor(color)));
  ::InvalidateRect(area_.handle, nullptr, TRUE);
}

bool Dummy::Navigate(const MSG& message) {
  if (message.message == WM_SYSCHAR && (message.wParam == 'a' || message.wParam == 'e')) {
    ::SetFocus(message.wParam == 'a' ? first : second);
    return true;
  }
  if (message.message != WM_KEYDOWN || message.wParam != VK_TAB) return false;
  const bool back = ::GetKeyState(VK_SHIFT) < 0;
  if (::GetFocus() != (back ? second : first)) return false;
  ::SetFocus(back ? first : second);
  return true;
}

std::wstring Dummy::TextOf(HWND box) const {
  std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(box)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(::GetWindowTextW(box, text.data(), static_cast<int>(text.size()))));
  return text;
}

DummyFactory::DummyFactory() {
  ::CoRegisterClassObject(kDummyClass, this, CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie_);
}

DummyFactory::~DummyFactory() { ::CoRevokeClassObject(cookie_); }

STDMETHODIMP DummyFactory::QueryInterface(REFIID iid, void** out) {
  *out = iid == IID_IUnknown || iid == IID_IClassFactory ? this : nullptr;
  return *out ? S_OK : E_NOINTERFACE;
}

STDMETHODIMP DummyFactory::CreateInstance(IUnknown* outer, REFIID iid, void** out) {
  if (outer) return CLASS_E_NOAGGREGATION;
  return Dummy::Make()->QueryInterface(iid, out);
}

}  // namespace brivane::component::test
