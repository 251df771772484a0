#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <memory>
#include <optional>
#include <string>

namespace brivane::win32 {

class Toolkit;

/// What a window is made as.
struct Making {
  const wchar_t* className = nullptr;
  DWORD style = 0;
  DWORD extendedStyle = 0;
  std::wstring text = {};
};

/// Names of the window classes of our own: areas that hold controls, and forms.
inline constexpr wchar_t kAreaClass[] = L"BrivaneVlak";
inline constexpr wchar_t kFormClass[] = L"BrivaneFormulier";

/// What a window draws on while it answers WM_PAINT, or WM_PRINTCLIENT where somebody wants a picture of it.
class Drawing {
 public:
  Drawing(HWND window, UINT message, WPARAM wParam) : window_(window), painting_(message == WM_PAINT) {
    context_ = painting_ ? BeginPaint(window_, &paint_) : reinterpret_cast<HDC>(wParam);
  }
  Drawing(const Drawing&) = delete;
  Drawing& operator=(const Drawing&) = delete;
  ~Drawing() {
    if (painting_) EndPaint(window_, &paint_);
  }
  [[nodiscard]] HDC Context() const { return context_; }

 private:
  HWND window_;
  bool painting_;
  PAINTSTRUCT paint_{};
  HDC context_ = nullptr;
};

/// A window whose messages come to an object. No exception leaves its procedure: what is thrown goes to
/// the toolkit's failure listener.
///
/// The window dies with the object, or before it with its parent; Handle() is then null. A handler that
/// lets the logic run may come back to find the object gone: it keeps Life() and touches nothing more
/// once that has expired.
class Window {
 public:
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;
  virtual ~Window();

  [[nodiscard]] HWND Handle() const { return handle_; }
  [[nodiscard]] win32::Toolkit& Toolkit() const { return toolkit_; }
  /// Expires with the object.
  [[nodiscard]] std::weak_ptr<const char> Life() const { return life_; }
  /// The object behind a window, or nothing.
  [[nodiscard]] static Window* Of(HWND window);
  /// The object behind a window or the nearest window around it, or nothing.
  [[nodiscard]] static Window* Around(HWND window);

 protected:
  Window(win32::Toolkit& toolkit, const Making& making, HWND parent);

  virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
  /// What the class of the window does with a message.
  LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam);

  /// The window tells its parent something: these come to the window itself.
  virtual void OnCommand(int /*code*/) {}
  virtual std::optional<LRESULT> OnNotify(NMHDR& /*header*/) { return std::nullopt; }
  /// The brush of its background; nothing for that of the class.
  virtual HBRUSH OnColor(UINT /*message*/, HDC /*context*/) { return nullptr; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  [[nodiscard]] std::optional<LRESULT> Reflect(UINT message, WPARAM wParam, LPARAM lParam);

  win32::Toolkit& toolkit_;
  HWND handle_ = nullptr;
  WNDPROC original_ = nullptr;
  std::shared_ptr<const char> life_ = std::make_shared<const char>('\0');
};

}  // namespace brivane::win32
