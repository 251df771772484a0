#pragma once

#include "component/idl/Windows.h"

#include "component/control/Subject.h"

namespace brivane::component {

/// What the window in the container notices.
class FrameListener {
 public:
  virtual void FocusCame(TabEnd end) = 0;
  /// A person clicks somewhere in the window; the click is still to come.
  virtual void MouseCame() = 0;
  /// The container destroyed the window without closing the control first.
  virtual void WindowLost() = 0;

 protected:
  ~FrameListener() = default;
};

/// The child window of the container in which the surface's window stands while the control is in place. It shows
/// as much of the surface as the container grants.
///
/// The surface's window comes from under its hidden parent and goes back there, also when the container destroys its
/// own window: it lives as long as the control.
class FrameWindow {
 public:
  FrameWindow(Subject& subject, FrameListener& listener) : subject_(subject), listener_(listener) {}
  FrameWindow(const FrameWindow&) = delete;
  FrameWindow& operator=(const FrameWindow&) = delete;
  ~FrameWindow();

  /// False where the container's window cannot have a child.
  bool Create(HWND container);
  void Destroy();

  /// Puts the surface at `place` of the container, shown inside `place` and `clip` alone.
  void Place(const RECT& place, const RECT& clip);
  void Show(int command) { ::ShowWindow(window_, command); }
  /// A window that is not usable lets the mouse through to the container, as a form that is being designed wants it.
  void SetUsable(bool usable) { ::EnableWindow(window_, usable); }

  [[nodiscard]] HWND Handle() const { return window_; }
  [[nodiscard]] bool HasFocus() const;

 private:
  /// The window class lives as long as something may make a window of it: left behind, it would point into a library
  /// that has been unloaded.
  struct ClassUse {
    ClassUse();
    ClassUse(const ClassUse&) = delete;
    ClassUse& operator=(const ClassUse&) = delete;
    ~ClassUse();
  };

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM lng);
  [[nodiscard]] static const wchar_t* ClassName();
  LRESULT Handle(UINT message, WPARAM wide, LPARAM lng);
  void Tell(UINT message);
  void GiveBackContent();

  ClassUse class_;
  Subject& subject_;
  FrameListener& listener_;
  HWND window_ = nullptr;
  HWND hiddenParent_ = nullptr;
};

}  // namespace brivane::component
