#pragma once

#include "component/idl/Interfaces.h"
#include "examples/windows/container/Events.h"
#include "examples/windows/container/Site.h"

namespace example {

/// A window of a host: the text of the column above the editor, and a box and a button of the window's own below it, so
/// that the Tab key goes in and out of the editor.
class MainWindow {
 public:
  MainWindow();
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;

  /// Makes the editor, binds it to the first column of the host's current loan and shows everything.
  HRESULT Open(IDispatch* application);
  void Run();

  [[nodiscard]] HWND Handle() const { return window_; }
  [[nodiscard]] const ComPtr<IVrijeKolom>& Editor() const { return editor_; }
  [[nodiscard]] const ComPtr<Site>& Place() const { return site_; }
  [[nodiscard]] HWND Header() const { return header_; }
  [[nodiscard]] HWND Note() const { return note_; }
  [[nodiscard]] HWND CloseButton() const { return close_; }

  /// One message of the loop, through the editor first.
  void Dispatch(MSG& message);
  /// Checks the input; where that is accepted, lets go of the editor and the window. False where it is refused.
  bool Close();

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM lng);
  LRESULT Handle(UINT message, WPARAM wide, LPARAM lng);
  void MakeOwnControls();
  /// Everything from top to bottom, as wide as the window and as high as it is itself.
  void LayOut();
  /// Tab among the window's own controls and into the editor.
  bool TakesTab(const MSG& message);

  HWND window_ = nullptr;
  HWND header_ = nullptr;
  HWND note_ = nullptr;
  HWND close_ = nullptr;
  ComPtr<Site> site_;
  ComPtr<Events> events_;
  ComPtr<IVrijeKolom> editor_;
};

}  // namespace example
