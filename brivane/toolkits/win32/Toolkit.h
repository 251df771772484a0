#pragma once

#include <brivane/toolkits/win32/window/WindowsApi.h>

#include <functional>
#include <memory>

#include <brivane/controls/DrawnToolkit.h>
#include <brivane/host/model/Hoofdvenster.h>
#include <brivane/toolkits/win32/Desktop.h>
#include <brivane/toolkits/win32/window/Edge.h>
#include <brivane/toolkits/win32/window/Fonts.h>
#include <brivane/toolkits/win32/window/Owned.h>

namespace brivane::win32 {

struct Making;
class Window;

/// The host's main window as a window of Windows: the owner of modal forms.
class Hoofdvenster : public host::Hoofdvenster {
 public:
  explicit Hoofdvenster(HWND venster) : venster_(venster) {}
  [[nodiscard]] HWND Venster() const { return venster_; }

 private:
  HWND venster_;
};

/// Shows design tables as native controls. What a control does stands in the controls in memory; each has a
/// peer here that shows it and hands over what a person does.
///
///     win32::Toolkit toolkit(module);
///     auto surface = toolkit.MakeSurface(kOntwerp);
///     SetParent(win32::Toolkit::WindowOf(*surface), container);
///     ...
///     if (!toolkit.Navigate(*surface, message)) { TranslateMessage(&message); DispatchMessageW(&message); }
///
/// Everything happens on the thread that made it. Must outlive the surfaces and forms that it made.
class Toolkit : public controls::DrawnToolkit {
 public:
  /// `module` is the program or library with this code. Where its resources hold a manifest (number 2, or
  /// 1 of a program) that asks for version 6 of the common controls, the controls look that way.
  explicit Toolkit(HINSTANCE module);
  ~Toolkit() override;

  [[nodiscard]] win32::Desktop& Desktop() override { return desktop_; }
  [[nodiscard]] const frame::Texts& Texts() const override { return *desktop_.texts; }
  [[nodiscard]] host::MessageAnswer Ask(const std::string& caption, const std::string& text,
                                        host::MessageStyle style) override;

  /// A person acts on a control through its window. A box that is being edited elsewhere in the same
  /// top-level window, or a choice that is under way there, is handed over first; where that is refused, the
  /// action is not done. False where it was not done.
  bool Act(controls::AnyControl& control, const controls::Action& action, const Window& window);
  /// Hands over the box that is being edited in the top-level window around `target` and the choice that is
  /// under way on its surface, unless it is the target itself; false where that was refused and the focus is kept.
  bool LeaveBox(const Window& target);

  /// Runs while a form is open, on the screen and in its message loop; a form that it leaves open is closed
  /// after it. For scripts and tests.
  std::function<void(controls::Form&)> modal;

  /// The child window of a surface that this toolkit made. Until the container takes it in with SetParent it
  /// stands under a hidden window. Its size is the surface's own; the container moves it.
  [[nodiscard]] static HWND WindowOf(host::Surface& surface);

  /// Handles a key that is meant for a surface in a foreign container: Tab, Shift+Tab, mnemonics, arrows in
  /// a group of options, Enter and Escape. True: done. False: it is for the focused control or, for a Tab
  /// past the last stop, for the container. A container whose loop does not call it still has all of this
  /// but for the mnemonics while the focus is elsewhere.
  bool Navigate(host::Surface& surface, const MSG& message);
  /// Goes to the first or last stop of the tab order; false where there is none.
  bool FocusFirst(host::Surface& surface);
  bool FocusLast(host::Surface& surface);
  /// Hands over what is being typed on this surface or the choice that is under way, if anything; false where it was
  /// refused and keeps the focus. A host calls it before it leaves the record, saves or closes.
  bool CommitPending(host::Surface& surface);
  /// Hands over what passes, and puts back the rest: nobody is asked anything. Before the host lets go.
  void LeavePending(host::Surface& surface);

  /// The scale of what is made later: 1 at 96 dots per inch. At first that of the system.
  void SetScale(double scale) { edge_ = win32::Edge(scale); }
  /// Shows a surface at the scale that was set since it was made.
  void Rescale(host::Surface& surface);
  [[nodiscard]] const win32::Edge& Edge() const { return edge_; }

  [[nodiscard]] host::Twips MeasureText(const frame::Design& design, std::string_view text, bool bold) const override;
  [[nodiscard]] HFONT FontOf(const frame::Design& design, float points, Weight weight = Weight::Regular) const;
  [[nodiscard]] HINSTANCE Module() const { return module_; }
  /// Makes a bare window; without a parent it stands under the hidden one.
  [[nodiscard]] HWND MakeWindow(const Making& making, HWND parent) const;

 protected:
  [[nodiscard]] std::unique_ptr<controls::Peer> MakePeer(controls::AnyControl& control) override;
  [[nodiscard]] std::unique_ptr<controls::FormPeer> MakeFormPeer(controls::Form& form) override;

 private:
  class Look;

  HINSTANCE module_;
  win32::Desktop desktop_{Life()};
  win32::Edge edge_;
  mutable Fonts fonts_;
  std::unique_ptr<Look> look_;
  OwnedWindow parking_;
};

}  // namespace brivane::win32
