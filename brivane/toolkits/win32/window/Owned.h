#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <utility>

/// Owners of what Windows hands out and wants back.
namespace brivane::win32 {

/// A handle that `End` takes back when its owner goes.
///
///     const OwnedBrush brush(CreateSolidBrush(color));
///     FillRect(context, &area, brush.Get());
template <class Handle, auto End> class Owned {
 public:
  Owned() = default;
  explicit Owned(Handle handle) : handle_(handle) {}
  Owned(Owned&& other) noexcept : handle_(other.Release()) {}
  Owned& operator=(Owned&& other) noexcept {
    Reset(other.Release());
    return *this;
  }
  ~Owned() { Reset(); }

  [[nodiscard]] Handle Get() const { return handle_; }
  explicit operator bool() const { return handle_ != Handle{}; }
  void Reset(Handle handle = Handle{}) {
    if (const Handle old = std::exchange(handle_, handle); old != Handle{}) End(old);
  }
  /// The place for a call to put a handle in.
  [[nodiscard]] Handle* Put() {
    Reset();
    return &handle_;
  }
  /// Hands the handle over to somebody who takes care of it.
  [[nodiscard]] Handle Release() { return std::exchange(handle_, Handle{}); }

 private:
  Handle handle_{};
};

using OwnedBrush = Owned<HBRUSH, &DeleteObject>;
using OwnedFont = Owned<HFONT, &DeleteObject>;
using OwnedBitmap = Owned<HBITMAP, &DeleteObject>;
using OwnedRegion = Owned<HRGN, &DeleteObject>;
using OwnedContext = Owned<HDC, &DeleteDC>;
using OwnedWindow = Owned<HWND, &DestroyWindow>;

/// The device context of a window, or that of the screen.
class WindowContext {
 public:
  explicit WindowContext(HWND window = nullptr) : window_(window), context_(GetDC(window)) {}
  WindowContext(const WindowContext&) = delete;
  WindowContext& operator=(const WindowContext&) = delete;
  ~WindowContext() { ReleaseDC(window_, context_); }

  [[nodiscard]] HDC Get() const { return context_; }

 private:
  HWND window_;
  HDC context_;
};

/// Has a context draw with something of somebody's; what it drew with before comes back. Of several on one context the
/// last one made goes first.
class Selected {
 public:
  Selected(HDC context, HGDIOBJ object) : context_(context), before_(SelectObject(context, object)) {}
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;
  ~Selected() {
    if (before_ != nullptr) SelectObject(context_, before_);
  }
  /// False where the context cannot draw with it.
  explicit operator bool() const { return before_ != nullptr; }

 private:
  HDC context_;
  HGDIOBJ before_;
};

/// Puts a context back to what it was, whatever is done with it meanwhile.
class SavedContext {
 public:
  explicit SavedContext(HDC context) : context_(context), saved_(SaveDC(context)) {}
  SavedContext(const SavedContext&) = delete;
  SavedContext& operator=(const SavedContext&) = delete;
  ~SavedContext() { RestoreDC(context_, saved_); }

 private:
  HDC context_;
  int saved_;
};

}  // namespace brivane::win32
