#include "component/control/Activation.h"

#include <olectl.h>

#include <utility>

#include "component/control/Boundary.h"

namespace brivane::component {

namespace {

// The title that a container may put in its own caption.
constexpr wchar_t kNoTitle[] = L"";

bool SameSize(SIZE a, SIZE b) { return a.cx == b.cx && a.cy == b.cy; }

TabEnd EndOf(const MSG* by) {
  const bool backwards = by && by->message == WM_KEYDOWN && by->wParam == VK_TAB && ::GetKeyState(VK_SHIFT) < 0;
  return backwards ? TabEnd::Last : TabEnd::First;
}

}  // namespace

HRESULT Activation::InPlaceActivate() {
  if (IsInPlace()) {
    window_.Show(SW_SHOWNA);
    return S_OK;
  }
  inPlace_ = site_.InPlace();
  if (!inPlace_) return E_FAIL;
  if (inPlace_->CanInPlaceActivate() != S_OK) return E_FAIL;
  const unsigned turn = turn_;
  const HRESULT standing = Stand();
  if (FAILED(standing)) return standing;
  if (const auto client = site_.Client()) client->ShowObject();
  return IsOver(turn) ? OLE_E_NOT_INPLACEACTIVE : S_OK;
}

HRESULT Activation::Stand() {
  const unsigned turn = turn_;
  const auto site = inPlace_;
  state_ = State::InPlace;
  if (const HRESULT agreed = site->OnInPlaceActivate(); FAILED(agreed)) {
    if (!IsOver(turn)) state_ = State::Inactive;
    return agreed;
  }
  if (IsOver(turn)) return OLE_E_NOT_INPLACEACTIVE;
  HWND parent = nullptr;
  RECT place{};
  RECT clip{};
  OLEINPLACEFRAMEINFO info{};
  info.cb = sizeof info;
  HRESULT hr = site->GetWindow(&parent);
  if (SUCCEEDED(hr) && !IsOver(turn)) hr = site->GetWindowContext(frame_.Put(), document_.Put(), &place, &clip, &info);
  if (IsOver(turn)) return OLE_E_NOT_INPLACEACTIVE;
  if (SUCCEEDED(hr) && !window_.Create(parent)) hr = E_FAIL;
  if (FAILED(hr)) {
    Deactivate();
    return hr;
  }
  FollowUserMode();
  hr = Place(place, clip);
  if (!IsOver(turn)) window_.Show(SW_SHOWNA);
  return IsOver(turn) ? OLE_E_NOT_INPLACEACTIVE : hr;
}

HRESULT Activation::UiActivate(const MSG* by) {
  if (const HRESULT standing = InPlaceActivate(); FAILED(standing)) return standing;
  const unsigned turn = turn_;
  if (const HRESULT taken = TakeAttention(); FAILED(taken)) return taken;
  if (!IsOver(turn) && !window_.HasFocus()) subject_.Focus(EndOf(by));
  return S_OK;
}

HRESULT Activation::TakeAttention() {
  if (IsUiActive()) return S_OK;
  if (!IsInPlace()) return OLE_E_NOT_INPLACEACTIVE;
  const unsigned turn = turn_;
  const auto site = inPlace_;
  if (const auto extended = site.As<IOleInPlaceSiteEx>(); extended && extended->RequestUIActivate() == S_FALSE)
    return E_FAIL;
  if (IsOver(turn)) return OLE_E_NOT_INPLACEACTIVE;
  state_ = State::UiActive;
  if (const HRESULT agreed = site->OnUIActivate(); FAILED(agreed)) {
    if (!IsOver(turn)) state_ = State::InPlace;
    return agreed;
  }
  if (IsOver(turn) || !IsUiActive()) return S_OK;
  const auto active = ComPtr<IUnknown>(&subject_.Outer()).As<IOleInPlaceActiveObject>();
  const auto frame = frame_;
  const auto document = document_;
  if (frame) frame->SetActiveObject(active.Get(), kNoTitle);
  if (document && !IsOver(turn)) document->SetActiveObject(active.Get(), kNoTitle);
  if (frame && !IsOver(turn)) frame->SetBorderSpace(nullptr);
  if (document && !IsOver(turn)) document->SetBorderSpace(nullptr);
  if (const auto control = site_.Control(); control && !IsOver(turn)) control->OnFocus(TRUE);
  return S_OK;
}

void Activation::UiDeactivate() {
  if (!IsUiActive()) return;
  state_ = State::InPlace;
  const auto site = inPlace_;
  const auto frame = frame_;
  const auto document = document_;
  if (frame) frame->SetActiveObject(nullptr, nullptr);
  if (document) document->SetActiveObject(nullptr, nullptr);
  if (const auto control = site_.Control()) control->OnFocus(FALSE);
  if (site) site->OnUIDeactivate(FALSE);
}

void Activation::Deactivate() {
  if (!IsInPlace()) return;
  UiDeactivate();
  if (window_.HasFocus()) subject_.HandOver();  // which may raise events
  if (!IsInPlace()) return;
  if (window_.HasFocus()) {
    // Nobody has the focus for a moment: a box that lost it to another window would ask for it back.
    const HWND container = ::GetAncestor(window_.Handle(), GA_PARENT);
    ::SetFocus(nullptr);
    ::SetFocus(container);
  }
  state_ = State::Inactive;
  ++turn_;
  refused_.reset();
  window_.Destroy();
  frame_.Reset();
  document_.Reset();
  const auto site = std::exchange(inPlace_, {});
  if (site) site->OnInPlaceDeactivate();
}

void Activation::Hide() {
  UiDeactivate();
  if (IsInPlace()) window_.Show(SW_HIDE);
  if (const auto client = site_.Client()) client->OnShowWindow(FALSE);
}

HRESULT Activation::Place(const RECT& place, const RECT& clip) {
  if (!window_.Handle()) return OLE_E_NOT_INPLACEACTIVE;
  const SIZE size{WidthOf(place), HeightOf(place)};
  if (!SameSize(size, {WidthOf(granted_), HeightOf(granted_)})) refused_.reset();
  granted_ = place;
  clip_ = clip;
  const unsigned turn = turn_;
  // The width that the surface has stays exact; its height is its own.
  if (SizeOfWindow(subject_.Window()).cx != size.cx) subject_.SetWidth(TwipsOfPixels(size.cx, ScreenDpi()));
  if (IsOver(turn)) return S_OK;
  window_.Place(granted_, clip_);
  AskForOwnSize();
  return S_OK;
}

void Activation::SizeChanged() {
  if (!window_.Handle()) return;
  window_.Place(granted_, clip_);
  AskForOwnSize();
}

// A container that has refused a size for the place that it grants is not asked for it again.
void Activation::AskForOwnSize() {
  const SIZE own = SizeOfWindow(subject_.Window());
  if (asking_ || SameSize(own, {WidthOf(granted_), HeightOf(granted_)})) return;
  if (refused_ && SameSize(*refused_, own)) return;
  asking_ = true;
  const RECT wanted{granted_.left, granted_.top, granted_.left + own.cx, granted_.top + own.cy};
  const auto site = inPlace_;
  site->OnPosRectChange(&wanted);
  asking_ = false;
  refused_ = own;
}

void Activation::FollowUserMode() { window_.SetUsable(site_.AmbientUserMode()); }

// The frame that was told the one is told the other, also where the control has left it meanwhile.
void Activation::Modal(bool up) {
  if (up) told_.push_back(frame_);
  if (told_.empty()) return;
  const ComPtr<IOleInPlaceFrame> frame = told_.back();
  if (!up) told_.pop_back();
  if (frame) frame->EnableModeless(up ? FALSE : TRUE);
}

void Activation::FocusCame(TabEnd end) {
  Answer([&] {
    const unsigned turn = turn_;
    if (SUCCEEDED(TakeAttention()) && !IsOver(turn)) subject_.Focus(end);
    return S_OK;
  });
}

void Activation::MouseCame() {
  Answer([&] { return TakeAttention(); });
}

void Activation::WindowLost() {
  Answer([&] {
    subject_.Abandon();
    Deactivate();
    return S_OK;
  });
}

}  // namespace brivane::component
