#pragma once

#include <memory>
#include <utility>

#include <brivane/controls/Control.h>
#include <brivane/controls/Peer.h>
#include <brivane/controls/Surface.h>
#include <brivane/toolkits/win32/Toolkit.h>
#include <brivane/toolkits/win32/window/Owned.h>
#include <brivane/toolkits/win32/window/Window.h>

namespace brivane::win32 {

/// A peer with an area that other controls can stand in.
class AreaHolder {
 public:
  virtual ~AreaHolder() = default;
  [[nodiscard]] virtual HWND Area() const = 0;
};

/// The area that a control's own controls stand in.
[[nodiscard]] HWND AreaOf(const controls::AnyControl& control);
/// The surface of its own or the form that a control is on, at whatever depth.
[[nodiscard]] controls::Surface& RootOf(controls::AnyControl& control);

/// Shows a control by a window of its own.
class ControlWindow : public controls::Peer, public Window, public AreaHolder {
 public:
  void Refresh(controls::Aspect aspect) override;
  void TakeFocus() override;
  [[nodiscard]] HWND Area() const override { return Handle(); }
  [[nodiscard]] controls::AnyControl& Control() const { return control_; }
  /// One of the elements that a form makes at run time, or their template.
  [[nodiscard]] bool IsRowElement() const { return control_.Row().index == frame::kTemplateIndex; }

  /// Takes the focus as the tab order or a mnemonic gives it.
  virtual void FocusByKey() { TakeFocus(); }
  /// A mnemonic leads here.
  virtual void Choose() { FocusByKey(); }
  /// A key for the focused control, or one that leads away from it; false where it is neither.
  bool TakeKey(UINT message, WPARAM key);
  /// Shows place and font anew, after the scale changed.
  virtual void Rescale();

 protected:
  ControlWindow(controls::AnyControl& control, win32::Toolkit& toolkit, const Making& making);

  LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
  HBRUSH OnColor(UINT message, HDC context) override;
  /// A key of its own; false to let the window go on with it.
  virtual bool OnKey(WPARAM /*key*/) { return false; }
  virtual void ShowPlace();
  virtual void ShowVisible();
  virtual void ShowFont();
  virtual void ShowBackColor();
  void SetText(const std::string& text) const;
  [[nodiscard]] HFONT Font() const;
  /// Whether the code is showing something, and not a person doing it.
  [[nodiscard]] bool Showing() const { return showing_; }
  template <class Body> void Show(const Body& body) {
    const bool before = std::exchange(showing_, true);
    body();
    showing_ = before;
  }
  /// A brush of a colour, good until the next one is asked of this window.
  [[nodiscard]] HBRUSH Brush(COLORREF color);

 private:
  controls::AnyControl& control_;
  bool showing_ = false;
  OwnedBrush brush_;
  COLORREF brushColor_ = 0;
};

/// The background that a control and what stands on it is drawn on: its own colour, or that of the nearest
/// thing around it that has one.
[[nodiscard]] host::Color BackgroundOf(const controls::AnyControl& control);

/// The window behind a control of these surfaces.
[[nodiscard]] ControlWindow& WindowFor(const controls::AnyControl& control);

/// Makes the peer for a control of any kind.
[[nodiscard]] std::unique_ptr<controls::Peer> MakeControlWindow(controls::AnyControl& control, Toolkit& toolkit);

[[nodiscard]] inline bool IsPressed(int key) { return GetKeyState(key) < 0; }
[[nodiscard]] inline bool IsPlainKey() { return !IsPressed(VK_CONTROL) && !IsPressed(VK_MENU); }

}  // namespace brivane::win32
