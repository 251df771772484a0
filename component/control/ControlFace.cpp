#include "component/control/ControlFace.h"

#include <olectl.h>

#include <cwctype>
#include <string>
#include <utility>
#include <vector>

#include "component/control/Boundary.h"

namespace brivane::component {

STDMETHODIMP ControlFace::GetControlInfo(CONTROLINFO* info) {
  if (!info) return E_POINTER;
  return Answer([&] {
    const std::wstring letters = TheSubject().Mnemonics();
    std::vector<ACCEL> keys;
    const auto add = [&](wchar_t letter) {
      keys.push_back({.fVirt = FALT, .key = static_cast<WORD>(letter), .cmd = static_cast<WORD>(keys.size())});
    };
    // A container compares with the character, which follows the Shift and Caps Lock keys.
    for (const wchar_t letter : letters) {
      add(static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(letter))));
      add(static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(letter))));
    }
    // The container uses the table until it asks again.
    letters_.Reset(keys.empty() ? nullptr : ::CreateAcceleratorTableW(keys.data(), static_cast<int>(keys.size())));
    info->hAccel = letters_.Get();
    info->cAccel = letters_ ? static_cast<USHORT>(keys.size()) : 0;
    info->dwFlags = 0;
    return S_OK;
  });
}

STDMETHODIMP ControlFace::OnMnemonic(MSG* message) {
  if (!message) return E_POINTER;
  const ComPtr<IUnknown> keep(this);
  return Answer([&] {
    const HRESULT active = activation_.UiActivate(nullptr);
    if (FAILED(active)) return active;
    MSG letter = *message;
    letter.hwnd = nullptr;
    letter.message = WM_SYSCHAR;  // also where the container went by the key and not by its character
    return TheSubject().Navigate(letter) ? S_OK : S_FALSE;
  });
}

STDMETHODIMP ControlFace::OnAmbientPropertyChange(DISPID property) {
  const ComPtr<IUnknown> keep(this);
  return Answer([&] {
    const bool all = property == DISPID_UNKNOWN;
    if (all || property == DISPID_AMBIENT_BACKCOLOR) properties_.FollowAmbientBackColor();
    if (all || property == DISPID_AMBIENT_FONT) {
      properties_.FollowAmbientFont();
      activation_.SizeChanged();
    }
    if (all || property == DISPID_AMBIENT_USERMODE) activation_.FollowUserMode();
    return S_OK;
  });
}

STDMETHODIMP ControlFace::FreezeEvents(BOOL freeze) {
  if (freeze) {
    ++frozen_;
  } else if (frozen_ > 0) {
    --frozen_;
  }
  return S_OK;
}

}  // namespace brivane::component
