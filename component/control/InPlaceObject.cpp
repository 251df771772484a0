#include "component/control/InPlaceObject.h"

#include "component/control/Boundary.h"

namespace brivane::component {

namespace {

bool IsKeyDown(int key) { return ::GetKeyState(key) < 0; }

/// Whether a key is one by which text is edited. A container may have a use of its own for these (a page that scrolls
/// by the arrow keys); as long as a box has the focus they belong to the box.
bool IsEditing(const MSG& message) {
  if (message.message != WM_KEYDOWN || IsKeyDown(VK_MENU)) return false;
  switch (message.wParam) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_DELETE:
    case VK_BACK:
    case VK_INSERT: return true;
    case 'A':
    case 'C':
    case 'V':
    case 'X':
    case 'Z': return IsKeyDown(VK_CONTROL);
    default: return false;
  }
}

/// The keys held with another one, in the bits that a control site is told them.
DWORD Modifiers() {
  constexpr DWORD kShift = 1;
  constexpr DWORD kControl = 2;
  constexpr DWORD kAlt = 4;
  return (IsKeyDown(VK_SHIFT) ? kShift : 0) | (IsKeyDown(VK_CONTROL) ? kControl : 0) | (IsKeyDown(VK_MENU) ? kAlt : 0);
}

}  // namespace

STDMETHODIMP InPlaceObject::GetWindow(HWND* window) {
  if (!window) return E_POINTER;
  *window = activation_.Window().Handle();
  return *window ? S_OK : E_FAIL;
}

STDMETHODIMP InPlaceObject::ContextSensitiveHelp(BOOL) { return E_NOTIMPL; }

STDMETHODIMP InPlaceObject::InPlaceDeactivate() {
  const ComPtr<IUnknown> keep(&TheSubject().Outer());
  return Answer([&] {
    activation_.Deactivate();
    return S_OK;
  });
}

STDMETHODIMP InPlaceObject::UIDeactivate() {
  const ComPtr<IUnknown> keep(&TheSubject().Outer());
  return Answer([&] {
    activation_.UiDeactivate();
    return S_OK;
  });
}

STDMETHODIMP InPlaceObject::SetObjectRects(LPCRECT place, LPCRECT clip) {
  if (!place) return E_POINTER;
  const ComPtr<IUnknown> keep(&TheSubject().Outer());
  return Answer([&] { return activation_.Place(*place, clip ? *clip : *place); });
}

STDMETHODIMP InPlaceObject::ReactivateAndUndo() { return INPLACE_E_NOTUNDOABLE; }

STDMETHODIMP InPlaceObject::TranslateAccelerator(MSG* message) {
  if (!message) return E_POINTER;
  const ComPtr<IUnknown> keep(&TheSubject().Outer());
  return Answer([&] {
    if (message->message < WM_KEYFIRST || message->message > WM_KEYLAST) return S_FALSE;
    if (!activation_.Window().HasFocus()) return S_FALSE;
    if (TheSubject().Navigate(*message)) return S_OK;
    if (IsEditing(*message)) {
      ::TranslateMessage(message);
      ::DispatchMessageW(message);
      return S_OK;
    }
    // A character is text for the box.
    if (message->message != WM_KEYDOWN && message->message != WM_SYSKEYDOWN && message->message != WM_SYSCHAR)
      return S_FALSE;
    const auto control = site_.Control();
    return control && control->TranslateAccelerator(message, Modifiers()) == S_OK ? S_OK : S_FALSE;
  });
}

STDMETHODIMP InPlaceObject::OnFrameWindowActivate(BOOL) { return S_OK; }
STDMETHODIMP InPlaceObject::OnDocWindowActivate(BOOL) { return S_OK; }
STDMETHODIMP InPlaceObject::ResizeBorder(LPCRECT, IOleInPlaceUIWindow*, BOOL) { return S_OK; }
STDMETHODIMP InPlaceObject::EnableModeless(BOOL) { return S_OK; }

}  // namespace brivane::component
